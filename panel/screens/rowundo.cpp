// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/rowundo.h"

const int RowUndo::mostSteps;

void RowUndo::restart(const State &now)
{
    m_now = now;
    m_steps.clear();
}

void RowUndo::note(const State &now)
{
    if (now.rows != m_now.rows) {
        m_steps.append(m_now);
        if (m_steps.size() > mostSteps)
            m_steps.removeFirst();
    }
    m_now = now;
}

RowUndo::State RowUndo::takeBack()
{
    m_now = m_steps.takeLast();
    return m_now;
}
