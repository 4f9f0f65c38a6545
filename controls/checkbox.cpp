// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkbox.h"

#include "spacekey_p.h"

CheckBox::CheckBox(QWidget *parent) : QCheckBox(parent) {}

CheckBox::CheckBox(const QString &text, QWidget *parent) : QCheckBox(text, parent) {}

void CheckBox::keyPressEvent(QKeyEvent *event)
{
    if (SpaceKey::isReturn(event)) {
        if (event->isAutoRepeat())
            return;
        QKeyEvent space = SpaceKey::insteadOf(event);
        QAbstractButton::keyPressEvent(&space);
        return;
    }
    if (SpaceKey::isArrow(event))
        return;
    QAbstractButton::keyPressEvent(event);
}

void CheckBox::keyReleaseEvent(QKeyEvent *event)
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
