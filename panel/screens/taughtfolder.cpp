// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/taughtfolder.h"

#include "storage/durablefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// What a program may have at the most: the same as when it is read.
const qint64 largestFile = qint64(16) * 1024 * 1024;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(TaughtFolder)
};

/// One that was put aside counts: it is newer than what stands in the old place.
bool isTaken(const QString &path)
{
    for (const QString &one : {path, path + QLatin1String(".broken")}) {
        const QFileInfo file(one);
        if (file.exists() || file.isSymLink())
            return true;
    }
    return false;
}

/// False without a reason when somebody has taken the name meanwhile.
bool copy(const QString &from, const QString &to, QString *error)
{
    QFile source(from);
    if (source.size() > largestFile) {
        *error = Words::tr("it is too large");
        return false;
    }
    const QByteArray bytes = source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
    if (source.error() != QFileDevice::NoError) {
        *error = source.errorString();
        return false;
    }
    DurableFile file(to);
    const auto isFree = [&to] { return !isTaken(to); };
    if (file.open(from) && file.write(bytes) && file.commit(isFree))
        return true;
    *error = file.errorString();
    return false;
}

/// A pipe or a device of such a name is no file: to open it would wait for ever.
QStringList programsIn(const QString &folder, QDir::SortFlags order)
{
    return QDir(folder).entryList(QStringList(QLatin1Char('*') + TaughtFolder::suffix()),
                                  QDir::Files, order);
}

} // namespace

QString TaughtFolder::suffix()
{
    return QLatin1String(".teach");
}

QString TaughtFolder::firstName()
{
    return QLatin1String("program.teach");
}

QString TaughtFolder::pathOf(const QString &folder, const QString &name)
{
    const bool isWhole = name.endsWith(suffix(), Qt::CaseInsensitive);
    return QDir(folder).filePath(isWhole ? name : name + suffix());
}

TaughtFolder::Adoption TaughtFolder::adopt(const QString &earlier, const QString &folder)
{
    Adoption adoption;
    const QStringList stored = programsIn(folder, QDir::Time);
    adoption.first = pathOf(folder, stored.isEmpty() ? firstName() : stored.first());
    const QStringList names = earlier.isEmpty() ? QStringList() : programsIn(earlier, QDir::Name);
    for (const QString &name : names) {
        const QString to = pathOf(folder, name);
        if (isTaken(to))
            continue;
        QDir().mkpath(folder);
        const QString from = QDir(earlier).filePath(name);
        QString error;
        if (copy(from, to, &error))
            adoption.copied.append(name);
        if (!error.isEmpty())
            adoption.error =
                Words::tr("%1 could not be copied to %2: %3.").arg(from, folder, error);
        if (name == firstName())
            adoption.first = error.isEmpty() ? to : from;
    }
    return adoption;
}
