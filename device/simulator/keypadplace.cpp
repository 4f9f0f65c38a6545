// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadplace.h"

QRect KeypadPlace::atTheBottom(const QRect &screen, const QSize &size)
{
    return QRect(screen.left() + (screen.width() - size.width()) / 2,
                 screen.top() + screen.height() - size.height(), size.width(), size.height());
}

QRect KeypadPlace::besides(const QRect &screen, const QRect &edited, const QSize &size,
                           int leastHeight)
{
    const int below = screen.bottom() - edited.bottom();
    const int above = edited.top() - screen.top();
    const int room = below >= size.height() ? below : qMax(below, above);
    if (room < leastHeight)
        return QRect();
    QRect place = atTheBottom(screen, QSize(size.width(), qMin(room, size.height())));
    if (room != below)
        place.moveTop(screen.top());
    return place;
}
