// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "strictmessages.h"

#include <QtGlobal>

#include <cstdio>

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
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
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

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
void handler(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    take(type, text);
}
#else
void handler(QtMsgType type, const char *text)
{
    take(type, QString::fromLocal8Bit(text));
}
#endif

} // namespace

void StrictMessages::install()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    qInstallMessageHandler(handler);
#else
    qInstallMsgHandler(handler);
#endif
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
