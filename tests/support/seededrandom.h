// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SEEDEDRANDOM_H
#define SEEDEDRANDOM_H

#include <QByteArray>
#include <QtGlobal>

/// Numbers that look random and are the same on each machine, with each toolkit and in each run.
class SeededRandom
{
public:
    explicit SeededRandom(quint32 seed) : m_state(seed * Q_UINT64_C(2685821657736338717) + 1) {}

    /// 0 to \a limit - 1.
    int below(int limit) { return int(next() % quint32(limit)); }
    /// \a first to \a last, both included.
    int between(int first, int last) { return first + below(last - first + 1); }
    bool inPercent(int percent) { return below(100) < percent; }
    /// One of the letters of \a letters.
    char oneOf(const char *letters) { return letters[below(int(qstrlen(letters)))]; }

private:
    quint32 next()
    {
        m_state ^= m_state >> 12;
        m_state ^= m_state << 25;
        m_state ^= m_state >> 27;
        return quint32((m_state * Q_UINT64_C(2685821657736338717)) >> 32);
    }

    quint64 m_state;
};

#endif // SEEDEDRANDOM_H
