// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadlayout.h"

#include <QStringList>

KeypadLayout::KeypadLayout(const char *const *rows, const QString &absent, const QString &heir)
{
    int row = 0;
    for (; rows[row]; ++row) {
        const QStringList tokens =
            QString::fromLatin1(rows[row]).simplified().split(QLatin1Char(' '));
        for (int column = 0; column < tokens.count(); ++column)
            place(tokens.at(column) == absent ? heir : tokens.at(column), QRect(column, row, 1, 1));
        m_cells.setWidth(tokens.count());
    }
    m_cells.setHeight(row);
}

void KeypadLayout::place(const QString &token, const QRect &cell)
{
    for (int i = 0; i < m_keys.count(); ++i) {
        if (m_keys.at(i).token == token) {
            m_keys[i].cells |= cell;
            return;
        }
    }
    const PlacedKey key = {token, cell};
    m_keys.append(key);
}
