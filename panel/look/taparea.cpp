// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/taparea.h"

#include <QMouseEvent>

void TapArea::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void TapArea::mouseReleaseEvent(QMouseEvent *event)
{
    if (rect().contains(event->pos()))
        Q_EMIT touched();
}
