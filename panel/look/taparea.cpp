// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/taparea.h"

#include <QKeyEvent>
#include <QMouseEvent>

TapArea::TapArea(QWidget *parent) : QFrame(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

void TapArea::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return QFrame::keyPressEvent(event);
    if (!event->isAutoRepeat())
        Q_EMIT touched();
}

void TapArea::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void TapArea::mouseReleaseEvent(QMouseEvent *event)
{
    if (rect().contains(event->pos()))
        Q_EMIT touched();
}
