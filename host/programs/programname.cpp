// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/programname.h"

#include <QFileInfo>

namespace {

QString withEnd(const QString &name, const QString &end)
{
    const QFileInfo info(name);
    const QString suffix = info.suffix();
    const QString stem = info.completeBaseName() + end;
    return suffix.isEmpty() ? stem : stem + QLatin1Char('.') + suffix;
}

} // namespace

QString ProgramName::suffix()
{
    return QLatin1String(".cnc");
}

QString ProgramName::unnamed()
{
    return tr("New program");
}

QString ProgramName::first()
{
    return QLatin1String("program.cnc");
}

QString ProgramName::complaint(const QString &name)
{
    if (name.trimmed().isEmpty())
        return tr("Give the program a name.");
    if (name.contains(QLatin1Char('/')) || name.contains(QChar(0)))
        return tr("A name holds no \"/\": programs lie in one folder.");
    if (name.startsWith(QLatin1Char('.')))
        return tr("A name that begins with a dot is hidden from the lists. Take another one.");
    return QString();
}

bool ProgramName::isBare(const QString &name)
{
    return QFileInfo(name).suffix().isEmpty();
}

QString ProgramName::freeOne(const QString &name, const QStringList &taken)
{
    QString free = name;
    for (int i = 2; taken.contains(free, Qt::CaseInsensitive); ++i)
        free = withEnd(name, QLatin1Char('_') + QString::number(i));
    return free;
}

QString ProgramName::ofPart(const QString &name)
{
    return withEnd(name, QLatin1String("-part"));
}
