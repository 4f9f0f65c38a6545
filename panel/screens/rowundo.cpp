// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/rowundo.h"

const int RowUndo::mostSteps;
const int RowUndo::mostRows;

void RowUndo::restart(const State &now)
{
    m_now = now;
    m_steps.clear();
    m_rows = 0;
}

void RowUndo::note(const State &now)
{
    if (now.rows != m_now.rows) {
        m_steps.append(m_now);
        m_rows += m_now.rows.size();
        // One step back there always is.
        while (m_steps.size() > mostSteps || (m_rows > mostRows && m_steps.size() > 1))
            m_rows -= m_steps.takeFirst().rows.size();
    }
    m_now = now;
}

RowUndo::State RowUndo::takeBack()
{
    m_now = m_steps.takeLast();
    m_rows -= m_now.rows.size();
    return m_now;
}
