// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/touchblock.h"

#include <QMouseEvent>

void TouchBlock::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void TouchBlock::mouseReleaseEvent(QMouseEvent *event)
{
    if (rect().contains(event->pos()))
        Q_EMIT touched();
}
