// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef RIGHTPROGRAM_H
#define RIGHTPROGRAM_H

#include <QByteArray>
#include <QList>

/// What a line of a generated program is there for.
struct ProgramLine
{
    enum Role {
        Remark,  ///< A comment or nothing.
        Mode,    ///< Unit, distances, guide tube, a pause: no motion.
        Travel,  ///< G00 beside the bobbin.
        Feed,    ///< G01 of the guide.
        Tension, ///< G01 of the wire's tension.
        Clamp,
        Start, ///< The spindle begins to turn.
        Speed, ///< It goes on at another speed.
        Wind,  ///< G33.
        Dwell,
        Stop,
        Cut,
        End
    };

    QByteArray text;
    Role role;
};
typedef QList<ProgramLine> ProgramLines;

namespace RightProgram {

/// A program without a fault for the machine of profile(), of \a atMost lines or some less: coils
/// of different sizes in inches or millimetres, absolute or relative, written in one of the ways
/// that people and programs have. The same \a seed gives the same program.
ProgramLines lines(quint32 seed, int atMost);

/// The lines, each with its end.
QByteArray text(const ProgramLines &lines);

/// The machine that they are for, as a profile's file.
QByteArray profile();

} // namespace RightProgram

#endif // RIGHTPROGRAM_H
