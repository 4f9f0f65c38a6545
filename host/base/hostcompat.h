// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HOSTCOMPAT_H
#define HOSTCOMPAT_H

// What the companion asks of Qt 5.15 and Qt 4.8 lacks.

#include <QByteArray>
#include <QDateTime>
#include <QObject>

#include <functional>

namespace HostCompat {

/// Runs \a function from the event loop, once. Nothing runs when \a context has gone by then. To be
/// called in the thread of \a context.
void callLater(QObject *context, const std::function<void()> &function);
/// Likewise, after \a ms milliseconds.
void callAfter(int ms, QObject *context, const std::function<void()> &function);

/// A moment given in milliseconds since 1970, in UTC.
inline QDateTime utcTime(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms).toUTC();
}

} // namespace HostCompat

#endif // HOSTCOMPAT_H
