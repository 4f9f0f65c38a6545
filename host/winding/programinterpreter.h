// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMINTERPRETER_H
#define PROGRAMINTERPRETER_H

#include "base/filarixhostglobal.h"
#include "winding/blockreader.h"
#include "winding/machineprofile.h"

/// What holds from one block to the next.
struct FILARIX_HOST_EXPORT ModalState
{
    /// RapidMotion, FeedMotion or SynchronousMotion; Ignored before the first one.
    MachineFunction::Action motion = MachineFunction::Ignored;
    bool isInches = false;
    bool isRelative = false;
    /// 1 forward, -1 reverse, 0 off.
    int spindle = 0;
    /// -1 before the first one.
    int tool = -1;
    /// As the program gave it, in its units a minute; 0 before the first one.
    double feed = 0;
    /// Of the spindle, in 1/min, whether it turns or not; 0 before the first one.
    double speed = 0;
    /// The wire was clamped, and not cut since.
    bool isClamped = false;
    bool isEnded = false;

    /// With which the spindle turns, in 1/min: positive forward, 0 when it stands.
    double turning() const { return spindle * speed; }
};

/// What one block has the machine do.
///
/// Positions stand by MachineAxis::slot, lengths in mm, tension in newtons;
/// step.to[MachineAxis::Traverse] is where the guide ends.
struct FILARIX_HOST_EXPORT WindingStep
{
    /// In the program, from 1.
    int line = 0;
    /// The move that is made: RapidMotion, FeedMotion or SynchronousMotion; Ignored for none. A
    /// move to where everything stands already is one, too.
    MachineFunction::Action motion = MachineFunction::Ignored;
    double from[MachineAxis::slotCount] = {};
    double to[MachineAxis::slotCount] = {};
    /// The axes that the block names, a bit for each slot.
    quint32 axesGiven = 0;
    /// For a FeedMotion: mm/min, or for a move of no axis in mm its unit a minute. 0 when none was
    /// ever given.
    double feed = 0;
    /// For a SynchronousMotion: mm a turn, as the block gives it; 0 when it gives none.
    double pitch = 0;
    /// Of a dwell; 0 for none.
    double dwellSeconds = 0;
    /// A bit, 1 << MachineFunction::Action, for what the block's functions do. In a block that
    /// comes behind the program's end none is set.
    quint32 actions = 0;
    /// The words that were acted upon, a bit for each place in GCodeBlock::words.
    quint32 usedWords = 0;
    /// The words that are unknown to the profile: the letter, or the number of a G or M.
    quint32 unknownWords = 0;
    /// The program has ended before: the block has no effect.
    bool isBehindEnd = false;
    /// Behind the block.
    ModalState state;

    bool does(MachineFunction::Action action) const { return actions & (1u << action); }
    bool moves(int slot) const { return from[slot] != to[slot]; }
    /// Whether wire may be laid: the spindle turns and the guide moves along, other than in haste.
    bool isWinding() const
    {
        return motion >= MachineFunction::FeedMotion && moves(MachineAxis::Traverse)
               && state.turning() != 0;
    }
};

/// Performs a program in mind, block by block.
///
///     ProgramInterpreter interpreter(profile);
///     const WindingStep &step = interpreter.add(reader.read(text));
///
/// The order in one block is fixed, wherever a word stands: units, positions absolute or relative;
/// feed, speed, tool; spindle, wire; dwell; motion; pause, end. Axes without a G word move as the
/// last motion said. The pitch and the dwell's time hold for their block alone. Of two words of one
/// letter the last one counts, but G and M words all do. The program begins at 0 on each axis, in
/// millimetres and with absolute positions.
class FILARIX_HOST_EXPORT ProgramInterpreter
{
public:
    explicit ProgramInterpreter(const MachineProfile &profile);

    /// What is given back belongs to the interpreter, and holds until the next call.
    const WindingStep &add(const GCodeBlock &block);

    /// Behind the last block; before the first one, how a program begins.
    const ModalState &state() const { return m_step.state; }
    /// The position of the axis in this slot.
    double position(int slot) const { return m_step.to[slot]; }
    const MachineProfile &profile() const { return m_profile; }

private:
    struct Words;

    void readWords(const GCodeBlock &block, Words *words);
    void readFunction(const GCodeWord &word, quint32 bit, Words *words);
    void readValue(const GCodeWord &word, quint32 bit, Words *words);
    void readAxis(const MachineAxis &axis, double value, Words *words);
    void applyModes(const Words &words);
    void applySpindle();
    void dwell(const Words &words);
    void move(const Words &words);
    void moveAxes(const Words &words);
    bool movesInMillimetres() const;
    double lengthUnit() const;

    static const int letters = 26;

    MachineProfile m_profile;
    /// By letter, from 'A'.
    MachineAxis m_axes[letters];
    WindingStep m_step;
};

#endif // PROGRAMINTERPRETER_H
