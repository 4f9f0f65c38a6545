// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "groupbox.h"

#include "spacekey_p.h"

GroupBox::GroupBox(QWidget *parent) : QGroupBox(parent) {}

GroupBox::GroupBox(const QString &title, QWidget *parent) : QGroupBox(title, parent) {}

bool GroupBox::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        const QKeyEvent *key = static_cast<QKeyEvent *>(event);
        if (SpaceKey::isReturn(key)) {
            QKeyEvent space = SpaceKey::insteadOf(key);
            return QGroupBox::event(&space);
        }
    }
    return QGroupBox::event(event);
}
