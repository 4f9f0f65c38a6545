// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GAPTEXT_H
#define GAPTEXT_H

#include "programs/keptwork.h"

#include <QString>

/// A long text that takes many changes. A change costs as much as it lies away from the change
/// before, not as much as the text is long.
class GapText
{
public:
    explicit GapText(const QString &text);

    int size() const { return m_buffer.size() - (m_gapEnd - m_gapStart); }
    /// The change must lie within the text.
    void replace(const TextChange &change);
    QString toString() const;

private:
    void moveGap(int position);
    void widenGap(int atLeast);

    /// The text with a gap in it, whose characters count for nothing.
    QString m_buffer;
    int m_gapStart;
    int m_gapEnd;
};

#endif // GAPTEXT_H
