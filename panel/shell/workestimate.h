// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WORKESTIMATE_H
#define WORKESTIMATE_H

#include <QtGlobal>

/// How long a piece of work still takes, by how it went on so far.
///
/// Nothing is said of work that is young, nor of work that stands still: a disk that hangs would
/// make any number a lie.
///
///     estimate.note(40, clock.elapsed());
///     const int seconds = estimate.secondsLeft(clock.elapsed());
class WorkEstimate
{
public:
    /// What secondsLeft() gives while nobody can say.
    static const int unknown = -1;
    /// Milliseconds of work before anything is said.
    static const int patienceMs = 2000;

    /// At the moment \a now, in milliseconds, \a percent is done. Less than before begins anew: one
    /// part of the work follows another.
    void note(int percent, qint64 now);
    /// At the moment \a now; from 1.
    int secondsLeft(qint64 now) const;

private:
    int m_beginPercent = 0;
    qint64 m_begin = 0;
    int m_percent = unknown;
    qint64 m_last = 0;
};

#endif // WORKESTIMATE_H
