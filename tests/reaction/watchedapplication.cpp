// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "watchedapplication.h"

#include <QEvent>
#include <QThread>

/// All paints of a window lie in one other event: a request, or the press that could not wait.
bool WatchedApplication::notify(QObject *receiver, QEvent *event)
{
    // Work on files has event loops of its own.
    if (QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    const bool isPaint = event->type() == QEvent::Paint;
    const bool isTaken = QApplication::notify(receiver, event);
    if (isPaint) {
        m_hasPainted = true;
    } else if (m_hasPainted) {
        m_hasPainted = false;
        Q_EMIT painted();
    }
    return isTaken;
}
