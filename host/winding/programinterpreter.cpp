// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/programinterpreter.h"

#include <cstring>

namespace {

const double mmPerInch = 25.4;
// A number of a tool beyond it is none of any machine.
const double mostTools = 1000000;
// In mm, and farther than any program goes.
const double farthest = 1e12;

} // namespace

/// What the words of one block say, each in its place.
struct ProgramInterpreter::Words
{
    MachineFunction::Action motion = MachineFunction::Ignored;
    double axes[MachineAxis::slotCount];
    double pitch = 0;
    double dwell = 0;
    double feed = 0;
    double speed = 0;
    double tool = 0;
    bool hasFeed = false;
    bool hasSpeed = false;
    bool hasTool = false;
};

ProgramInterpreter::ProgramInterpreter(const MachineProfile &profile) : m_profile(profile)
{
    for (const MachineAxis &axis : m_profile.axes())
        m_axes[axis.letter - 'A'] = axis;
}

const WindingStep &ProgramInterpreter::add(const GCodeBlock &block)
{
    m_step.line = block.line;
    m_step.motion = MachineFunction::Ignored;
    m_step.axesGiven = 0;
    m_step.feed = 0;
    m_step.pitch = 0;
    m_step.dwellSeconds = 0;
    m_step.actions = 0;
    m_step.usedWords = 0;
    m_step.unknownWords = 0;
    m_step.isBehindEnd = m_step.state.isEnded;
    std::memcpy(m_step.from, m_step.to, sizeof m_step.from);
    if (block.wordCount == 0)
        return m_step;

    Words words;
    readWords(block, &words);
    if (m_step.isBehindEnd) {
        m_step.actions = 0;
        m_step.axesGiven = 0;
        m_step.usedWords = 0;
        return m_step;
    }
    applyModes(words);
    dwell(words);
    move(words);
    if (m_step.does(MachineFunction::ProgramEnd))
        m_step.state.isEnded = true;
    return m_step;
}

void ProgramInterpreter::readWords(const GCodeBlock &block, Words *words)
{
    // What a dwell's letter means hangs on a word that may stand behind it.
    for (int i = 0; i < block.wordCount; ++i)
        if (m_profile.use(block.words[i].letter) == MachineProfile::FunctionUse)
            readFunction(block.words[i], 1u << i, words);
    for (int i = 0; i < block.wordCount; ++i)
        if (m_profile.use(block.words[i].letter) != MachineProfile::FunctionUse)
            readValue(block.words[i], 1u << i, words);
}

void ProgramInterpreter::readFunction(const GCodeWord &word, quint32 bit, Words *words)
{
    const MachineFunction *function = m_profile.function(word);
    if (!function) {
        m_step.unknownWords |= bit;
        return;
    }
    m_step.usedWords |= bit;
    m_step.actions |= 1u << function->action;
    if (function->isMotion())
        words->motion = function->action;
}

void ProgramInterpreter::readValue(const GCodeWord &word, quint32 bit, Words *words)
{
    m_step.usedWords |= bit;
    if (word.letter == m_profile.dwellLetter() && m_step.does(MachineFunction::Dwell)) {
        words->dwell = word.value * m_profile.dwellSeconds();
        return;
    }
    switch (m_profile.use(word.letter)) {
    case MachineProfile::AxisUse:
        readAxis(m_axes[word.letter - 'A'], word.value, words);
        break;
    case MachineProfile::FeedUse:
        words->feed = word.value;
        words->hasFeed = true;
        break;
    case MachineProfile::SpeedUse:
        words->speed = word.value;
        words->hasSpeed = true;
        break;
    case MachineProfile::PitchUse:
        words->pitch = word.value;
        break;
    case MachineProfile::ToolUse:
        words->tool = word.value;
        words->hasTool = true;
        break;
    case MachineProfile::UnknownUse:
        m_step.unknownWords |= bit;
        m_step.usedWords &= ~bit;
        break;
    default: // a dwell's time without a dwell, block numbers, what is ignored
        m_step.usedWords &= ~bit;
    }
}

void ProgramInterpreter::readAxis(const MachineAxis &axis, double value, Words *words)
{
    m_step.axesGiven |= 1u << axis.slot;
    words->axes[axis.slot] = value;
}

void ProgramInterpreter::applyModes(const Words &words)
{
    ModalState &state = m_step.state;
    if (m_step.does(MachineFunction::Inches))
        state.isInches = true;
    if (m_step.does(MachineFunction::Millimetres))
        state.isInches = false;
    if (m_step.does(MachineFunction::Absolute))
        state.isRelative = false;
    if (m_step.does(MachineFunction::Relative))
        state.isRelative = true;
    if (words.hasFeed)
        state.feed = qMax(0.0, words.feed);
    if (words.hasSpeed)
        state.speed = qMax(0.0, words.speed);
    if (words.hasTool && words.tool >= 0 && words.tool <= mostTools)
        state.tool = int(words.tool);
    applySpindle();
    if (m_step.does(MachineFunction::ClampWire))
        state.isClamped = true;
    if (m_step.does(MachineFunction::CutWire))
        state.isClamped = false;
}

void ProgramInterpreter::applySpindle()
{
    int &spindle = m_step.state.spindle;
    if (m_step.does(MachineFunction::SpindleForward))
        spindle = 1;
    if (m_step.does(MachineFunction::SpindleReverse))
        spindle = -1;
    // Of words that contradict each other, the one that does least.
    if (m_step.does(MachineFunction::SpindleStop))
        spindle = 0;
}

void ProgramInterpreter::dwell(const Words &words)
{
    m_step.dwellSeconds = qMax(0.0, words.dwell);
}

void ProgramInterpreter::move(const Words &words)
{
    ModalState &state = m_step.state;
    if (words.motion != MachineFunction::Ignored)
        state.motion = words.motion;
    if (m_step.axesGiven == 0 || state.motion == MachineFunction::Ignored)
        return;
    m_step.motion = state.motion;
    moveAxes(words);
    if (m_step.motion == MachineFunction::SynchronousMotion)
        m_step.pitch = qMax(0.0, words.pitch) * lengthUnit();
    if (m_step.motion == MachineFunction::FeedMotion)
        m_step.feed = state.feed * (movesInMillimetres() ? lengthUnit() : 1);
}

void ProgramInterpreter::moveAxes(const Words &words)
{
    for (const MachineAxis &axis : m_profile.axes()) {
        if (!(m_step.axesGiven & (1u << axis.slot)))
            continue;
        const double value =
            words.axes[axis.slot] * (axis.unit == MachineAxis::Millimetres ? lengthUnit() : 1);
        double &position = m_step.to[axis.slot];
        position = m_step.state.isRelative ? position + value : value;
        // A program that only ever adds must not leave what can be reckoned with.
        position = qBound(-farthest, position, farthest);
    }
}

bool ProgramInterpreter::movesInMillimetres() const
{
    for (const MachineAxis &axis : m_profile.axes())
        if (axis.unit == MachineAxis::Millimetres && (m_step.axesGiven & (1u << axis.slot)))
            return true;
    return false;
}

double ProgramInterpreter::lengthUnit() const
{
    return m_step.state.isInches ? mmPerInch : 1;
}
