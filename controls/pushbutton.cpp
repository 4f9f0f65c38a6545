// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "pushbutton.h"

#include "spacekey_p.h"

#include <QStyleOptionButton>
#include <QStylePainter>

PushButton::PushButton(QWidget *parent) : QPushButton(parent) {}

PushButton::PushButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {}

PushButton::PushButton(const QIcon &icon, const QString &text, QWidget *parent)
    : QPushButton(icon, text, parent)
{}

void PushButton::keyPressEvent(QKeyEvent *event)
{
    if (SpaceKey::isReturn(event)) {
        if (event->isAutoRepeat())
            return;
        QKeyEvent space = SpaceKey::insteadOf(event);
        QPushButton::keyPressEvent(&space);
        return;
    }
    if (SpaceKey::isArrow(event))
        return;
    QPushButton::keyPressEvent(event);
}

void PushButton::keyReleaseEvent(QKeyEvent *event)
{
    if (SpaceKey::isReturn(event)) {
        if (event->isAutoRepeat())
            return;
        QKeyEvent space = SpaceKey::insteadOf(event);
        QAbstractButton::keyReleaseEvent(&space);
        return;
    }
    if (SpaceKey::isArrow(event))
        return;
    QAbstractButton::keyReleaseEvent(event);
}

void PushButton::paintEvent(QPaintEvent *)
{
    // The base class would fill the option by its own initStyleOption().
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButton, option);
}

void PushButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    // Styles draw the frame only for a focus that came from the keyboard.
    if (option->state & QStyle::State_HasFocus)
        option->state |= QStyle::State_KeyboardFocusChange;
}
