// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/workestimate.h"

const int WorkEstimate::unknown;
const int WorkEstimate::patienceMs;

namespace {

const int wholePercent = 100;
// One step says nothing of the next one.
const int leastPercent = 2;
// Work that rests for so many of its usual steps stands still.
const int restingSteps = 4;
const int msPerSecond = 1000;

} // namespace

void WorkEstimate::note(int percent, qint64 now)
{
    if (percent == m_percent)
        return;
    if (m_percent == unknown || percent < m_percent) {
        m_begin = now;
        m_beginPercent = percent;
    }
    m_percent = percent;
    m_last = now;
}

int WorkEstimate::secondsLeft(qint64 now) const
{
    const int done = m_percent - m_beginPercent;
    if (m_percent == unknown || m_percent >= wholePercent || done < leastPercent
        || now - m_begin < patienceMs)
        return unknown;
    const qint64 perPercent = (m_last - m_begin) / done;
    const qint64 rest = now - m_last;
    if (rest > qMax<qint64>(patienceMs, restingSteps * perPercent))
        return unknown;
    const qint64 left = perPercent * (wholePercent - m_percent) - rest;
    return int(qMax<qint64>(1, (left + msPerSecond - 1) / msPerSecond));
}
