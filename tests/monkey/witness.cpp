// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "witness.h"

#include "programs/historystore.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSet>

namespace {

QByteArray hashOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

QStringList programsIn(const QDir &folder)
{
    return folder.entryList(QDir::Files | QDir::NoSymLinks);
}

} // namespace

void Witness::look(const QString &programDir)
{
    const QDir folder(programDir);
    const QStringList names = programsIn(folder);
    for (const QString &name : names) {
        const QString path = folder.filePath(name);
        const FileStamp before = FileStamp::of(path);
        if (m_stamps.value(name) == before)
            continue;
        const QByteArray hash = hashOf(path);
        // One that is being written is seen when that is over.
        if (hash.isEmpty() || FileStamp::of(path) != before)
            continue;
        m_stamps.insert(name, before);
        m_seen.insert(hash, QString::fromLatin1("%1, %2 bytes").arg(name).arg(before.size));
    }
}

QStringList Witness::lost(const QString &programDir, const QString &historyDir) const
{
    QSet<QByteArray> found;
    const QDir folder(programDir);
    const QStringList names = programsIn(folder);
    for (const QString &name : names)
        found.insert(hashOf(folder.filePath(name)));
    const HistoryStore::Limits limits;
    HistoryStore store(historyDir, limits);
    QString error;
    if (!store.open(&error))
        return {error};
    const QList<ProgramVersion> versions = store.versions();
    for (const ProgramVersion &version : versions)
        found.insert(version.hash);
    QStringList all;
    for (auto program = m_seen.begin(); program != m_seen.end(); ++program) {
        if (!found.contains(program.key()))
            all.append(QLatin1String("lost: ") + program.value() + QLatin1Char(' ')
                       + QString::fromLatin1(program.key().toHex().left(8)));
    }
    return versions.size() < limits.versions ? all : QStringList();
}
