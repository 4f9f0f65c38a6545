// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "conneditor.h"
#include "fuzz.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    FUZZ_REQUIRE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void openAndStore(const QString &path)
{
    ConnEditor editor(path, nullptr);
    editor.init_list();
    editor.on_save_clicked();
}

} // namespace

// A connection file and, behind a NUL, a device file: what is stored once is stored the same again.
void Fuzz::tryInput(QByteArray bytes)
{
    // A path of its own for each: of a file that changed within a millisecond the toolkit may have
    // an older state.
    static int number = 0;
    const QString path = QDir::homePath() + QString::fromLatin1("/%1.ini").arg(++number);
    write(path, takePart(&bytes, '\0'));
    write(QString::fromLatin1("/usr/share/qt/bin/settingex.ini"), bytes);
    // Thousands of rows take their time and show nothing new.
    if (QSettings(path, QSettings::IniFormat).value(QLatin1String("connect count")).toInt() <= 20) {
        openAndStore(path);
        const QByteArray once = read(path);
        openAndStore(path);
        FUZZ_REQUIRE(read(path) == once);
    }
    QFile::remove(path);
}
