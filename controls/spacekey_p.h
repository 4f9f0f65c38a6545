// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SPACEKEY_P_H
#define SPACEKEY_P_H

#include <QKeyEvent>
#include <QString>

/// On the panels' keys Return and Enter act on the focused control the way Space does on a desktop.
namespace SpaceKey {

inline bool isReturn(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

inline bool isArrow(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Left || event->key() == Qt::Key_Up
           || event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
}

/// The Space that stands for \a event: its own press or release, and never a repeat.
inline QKeyEvent insteadOf(const QKeyEvent *event)
{
    return QKeyEvent(event->type(), Qt::Key_Space, Qt::KeypadModifier, QString(), false, 1);
}

} // namespace SpaceKey

#endif // SPACEKEY_P_H
