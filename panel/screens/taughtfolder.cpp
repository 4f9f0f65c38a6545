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

TaughtFolder::Adopting::Adopting(const QString &earlier, const QString &folder)
    : m_earlier(earlier), m_folder(folder)
{}

bool TaughtFolder::Adopting::step()
{
    if (m_isListed)
        copyNext();
    else
        list();
    return !m_names.isEmpty() && !isGivenUp();
}

void TaughtFolder::Adopting::list()
{
    m_isListed = true;
    const QStringList stored = programsIn(m_folder, QDir::Time);
    m_adoption.first = pathOf(m_folder, stored.isEmpty() ? firstName() : stored.first());
    if (!m_earlier.isEmpty())
        m_names = programsIn(m_earlier, QDir::Name);
}

void TaughtFolder::Adopting::copyNext()
{
    const QString name = m_names.takeFirst();
    const QString to = pathOf(m_folder, name);
    if (isTaken(to) || !beginChange())
        return;
    QDir().mkpath(m_folder);
    endChange();
    const QString from = QDir(m_earlier).filePath(name);
    QString error;
    if (copy(from, to, &error))
        m_adoption.copied.append(name);
    if (!error.isEmpty())
        m_adoption.error =
            Words::tr("%1 could not be copied to %2: %3.").arg(from, m_folder, error);
    if (name == firstName())
        m_adoption.first = error.isEmpty() ? to : from;
}

/// False without a reason when somebody has taken the name meanwhile, or nobody waits any more.
bool TaughtFolder::Adopting::copy(const QString &from, const QString &to, QString *error)
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
    bool isChanging = false;
    const auto mayAppear = [&] {
        isChanging = !isTaken(to) && beginChange();
        return isChanging;
    };
    const bool isCopied = file.open(from) && file.write(bytes) && file.commit(mayAppear);
    if (isChanging)
        endChange();
    if (!isCopied)
        *error = file.errorString();
    return isCopied;
}

TaughtFolder::Adoption TaughtFolder::adopt(const QString &earlier, const QString &folder)
{
    Adopting task(earlier, folder);
    while (task.step()) {
    }
    return task.adoption();
}
