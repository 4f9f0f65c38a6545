// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/gaptext.h"

#include <algorithm>

namespace {

const int spareChars = 4096;

} // namespace

GapText::GapText(const QString &text)
    : m_buffer(text), m_gapStart(text.size()), m_gapEnd(text.size())
{}

void GapText::replace(const TextChange &change)
{
    moveGap(change.position);
    m_gapEnd += change.removed;
    if (m_gapEnd - m_gapStart < change.added.size())
        widenGap(change.added.size());
    std::copy(change.added.begin(), change.added.end(), m_buffer.begin() + m_gapStart);
    m_gapStart += change.added.size();
}

QString GapText::toString() const
{
    QString text = m_buffer;
    return text.remove(m_gapStart, m_gapEnd - m_gapStart);
}

void GapText::moveGap(int position)
{
    QChar *text = m_buffer.data();
    if (position < m_gapStart) {
        std::copy_backward(text + position, text + m_gapStart, text + m_gapEnd);
        m_gapEnd -= m_gapStart - position;
    } else {
        const int moved = position - m_gapStart;
        std::copy(text + m_gapEnd, text + m_gapEnd + moved, text + m_gapStart);
        m_gapEnd += moved;
    }
    m_gapStart = position;
}

void GapText::widenGap(int atLeast)
{
    const int more = atLeast + qMax(spareChars, m_buffer.size() / 8) - (m_gapEnd - m_gapStart);
    m_buffer.insert(m_gapEnd, QString(more, QChar()));
    m_gapEnd += more;
}
