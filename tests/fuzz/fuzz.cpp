// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"

#include <QApplication>
#include <QBuffer>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>

QString Fuzz::programText(const QByteArray &bytes)
{
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QTextStream in(&file);
    return in.readAll();
}

QByteArray Fuzz::takePart(QByteArray *bytes, char separator)
{
    const int at = bytes->indexOf(separator);
    const QByteArray part = at < 0 ? *bytes : bytes->left(at);
    *bytes = at < 0 ? QByteArray() : bytes->mid(at + 1);
    return part;
}

int Fuzz::takeNumber(QByteArray *bytes, int count)
{
    if (bytes->isEmpty())
        return 0;
    const int number = uchar(bytes->at(0)) % count;
    bytes->remove(0, 1);
    return number;
}

QStringList Fuzz::strings(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).split(QLatin1Char('\n'));
}

void Fuzz::fail(const char *condition, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: not so: %s\n", file, line, condition);
    std::abort();
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    if (qgetenv("FILARIX_SANDBOX").isEmpty()) {
        std::fprintf(stderr, "This program writes to a home and to fixed paths: start it by "
                             "tests/fuzz/run.sh.\n");
        std::exit(98);
    }
    // The toolkit's remarks on odd texts would drown the fuzzer's own lines.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    static QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::tryInput(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    return 0;
}
