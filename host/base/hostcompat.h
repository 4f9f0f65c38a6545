// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HOSTCOMPAT_H
#define HOSTCOMPAT_H

// What the companion asks of Qt 5.15 and Qt 4.8 lacks.

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace HostCompat {

/// Runs \a function from the event loop, once. Nothing runs when \a context has gone by then. To be
/// called in the thread of \a context.
void callLater(QObject *context, const std::function<void()> &function);
/// Likewise, after \a ms milliseconds.
void callAfter(int ms, QObject *context, const std::function<void()> &function);

/// Has the calling thread wait.
void sleep(int ms);

/// 32 hexadecimal digits that no other call gives, in this program or another.
QString uniqueName();

/// Reads \a bytes as text; false, with no text, when they are no UTF-8, hold a null or end within a
/// character.
bool fromUtf8(const QByteArray &bytes, QString *text);
/// Whether no half of a wide character in \a text stands without the other.
bool isWellFormed(const QString &text);

/// Has the window system keep \a window before \a host; both have to be shown by now. Qt 4 has no
/// way to ask for that, and nothing is done there.
void keepBefore(QWidget *window, const QWidget *host);

/// Keeps an object's signals back while it lives, and leaves them as they were.
class SignalBlocker
{
public:
    explicit SignalBlocker(QObject *object)
        : m_object(object), m_wereBlocked(object->blockSignals(true))
    {}
    ~SignalBlocker() { m_object->blockSignals(m_wereBlocked); }

private:
    Q_DISABLE_COPY(SignalBlocker)

    QObject *m_object;
    bool m_wereBlocked;
};

/// A container that a loop only reads, and so does not copy first.
template<class Container>
const Container &readOnly(const Container &container)
{
    return container;
}

/// A moment given in milliseconds since 1970, in UTC.
inline QDateTime utcTime(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms).toUTC();
}

} // namespace HostCompat

#endif // HOSTCOMPAT_H
