// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "strictmessages.h"

#include <QtGlobal>

namespace {

struct Record
{
    QStringList expectations;
    QStringList unexpected;
    QStringList expectedSeen;
    QStringList debug;
};

Record &record()
{
    static Record instance;
    return instance;
}

// The offscreen platform has no window manager, fonts from one folder, and says so.
bool isNoiseOfThePlatform(const QString &text)
{
    return text.contains(QLatin1String("This plugin does not support"))
           || text.contains(QLatin1String("propagateSizeHints"));
}

void take(QtMsgType type, const QString &text)
{
    if (type == QtDebugMsg) {
        record().debug.append(text);
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    if (type == QtInfoMsg)
        return;
#endif
    if (isNoiseOfThePlatform(text))
        return;
    Q_FOREACH (const QString &expectation, record().expectations) {
        if (text.contains(expectation)) {
            record().expectedSeen.append(text);
            return;
        }
    }
    record().unexpected.append(text);
}

// QtTest's own, which prints the message.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
QtMessageHandler previousHandler = nullptr;

void handler(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    take(type, text);
    if (previousHandler)
        previousHandler(type, context, text);
}
#else
QtMsgHandler previousHandler = nullptr;

void handler(QtMsgType type, const char *text)
{
    take(type, QString::fromLocal8Bit(text));
    if (previousHandler)
        previousHandler(type, text);
}
#endif

} // namespace

void StrictMessages::install()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QtMessageHandler replaced = qInstallMessageHandler(handler);
#else
    const QtMsgHandler replaced = qInstallMsgHandler(handler);
#endif
    if (replaced != handler)
        previousHandler = replaced;
}

void StrictMessages::expect(const QString &text)
{
    record().expectations.append(text);
}

QStringList StrictMessages::unexpected()
{
    return record().unexpected;
}

QStringList StrictMessages::expectedSeen()
{
    return record().expectedSeen;
}

QStringList StrictMessages::debugMessages()
{
    return record().debug;
}

void StrictMessages::reset()
{
    record() = Record();
}
