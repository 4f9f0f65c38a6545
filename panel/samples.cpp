// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "samples.h"

#include <QDir>
#include <QFile>

namespace {

bool copy(const QString &sample, const QString &target)
{
    if (!QFile::copy(QLatin1String(":/samples/") + sample, target))
        return false;
    // A file of the resource is read-only, and the samples are there to be edited.
    return QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::WriteOwner);
}

} // namespace

QStringList Samples::names()
{
    return {QLatin1String("test-coil.cnc"), QLatin1String("stator-coil.cnc"),
            QLatin1String("endurance-run.cnc")};
}

QStringList Samples::install(const QString &programDir)
{
    const QDir folder(programDir);
    folder.mkpath(QLatin1String("."));
    if (!folder.entryList({QLatin1String("*.cnc")}, QDir::Files | QDir::Hidden | QDir::System)
             .isEmpty())
        return QStringList();

    QStringList copied;
    for (const QString &name : names()) {
        if (copy(name, folder.filePath(name)))
            copied.append(name);
    }
    return copied;
}

QStringList Samples::fillStick(const QString &folderPath)
{
    const QDir folder(folderPath);
    if (!folder.exists()
        || !folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden).isEmpty())
        return QStringList();
    QStringList copied;
    for (const char *name : {"pin-test.cnc", "flange coil.cnc"}) {
        if (copy(names().first(), folder.filePath(QLatin1String(name))))
            copied.append(QLatin1String(name));
    }
    return copied;
}
