// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CANONICALMOTIONS_H
#define CANONICALMOTIONS_H

#include <QByteArray>
#include <QVector>

/// One motion, in the units that were in force in the program.
struct CanonicalMotion
{
    enum Kind { Rapid, Feed, Synchronous };

    Kind kind = Rapid;
    /// Of X, Y and Z.
    double end[3] = {};
    /// For a Synchronous one, a turn.
    double pitch = 0;
    /// Of the program or of the oracle's answer, from 1.
    int line = 0;
};
typedef QVector<CanonicalMotion> CanonicalMotions;

/// The motions in what `rs274 -g` writes.
CanonicalMotions motionsOfOracle(const QByteArray &answer);

/// The motions that our own interpreter makes of a program.
CanonicalMotions motionsOfProgram(const QByteArray &program);

/// How far two motions are apart in their ends and pitches; endless for two that are not of one
/// kind.
double distanceOf(const CanonicalMotion &one, const CanonicalMotion &other);

#endif // CANONICALMOTIONS_H
