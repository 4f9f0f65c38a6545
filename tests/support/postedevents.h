// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef POSTEDEVENTS_H
#define POSTEDEVENTS_H

#include <QCoreApplication>
#include <QEvent>

/// Delivers the posted events, and makes the toolkit's list of them forget the objects that they
/// were for: it goes on holding their addresses until others take the places, and so long what was
/// never deleted is no leak to a sanitizer.
inline void forgetPostedEvents(QObject *receiver)
{
    QCoreApplication::sendPostedEvents();
    for (int i = 0; i < 10000; ++i)
        QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
    QCoreApplication::sendPostedEvents();
}

#endif // POSTEDEVENTS_H
