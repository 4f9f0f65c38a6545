// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "samples.h"

#include <QDir>
#include <QFile>

QStringList Samples::names()
{
    return {QLatin1String("test-coil.cnc"), QLatin1String("stator-coil.cnc"),
            QLatin1String("endurance-run.cnc")};
}

QString Samples::programDir()
{
    return QDir::home().filePath(QLatin1String("cnc"));
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
        const QString target = folder.filePath(name);
        if (!QFile::copy(QLatin1String(":/samples/") + name, target))
            continue;
        // What comes out of the resource is read-only, and these are there to be edited.
        QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::WriteOwner);
        copied.append(name);
    }
    return copied;
}
