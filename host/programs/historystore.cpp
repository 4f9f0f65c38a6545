// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/historystore.h"

#include "base/hostcompat.h"
#include "base/sha256.h"
#include "storage/durablefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QRegExp>
#include <QSet>
#include <QUrl>

#include <algorithm>

const int HistoryStore::restMs;

namespace {

const char formatLine[] = "filarix-history 1";
const char versionSuffix[] = ".version";
const char dateFormat[] = "yyyy-MM-ddTHH:mm:ss.zzzZ";
const int numberDigits = 10;
// More than any head has: a name of 255 bytes takes three times as many when it is escaped.
const int longestLine = 1024;

QByteArray head(const ProgramVersion &version)
{
    return QByteArray(formatLine) + "\nname " + QUrl::toPercentEncoding(version.name) + "\nstored "
           + version.stored.toString(QLatin1String(dateFormat)).toLatin1() + "\nbytes "
           + QByteArray::number(version.bytes) + "\nsha256 " + version.hash.toHex() + "\n\n";
}

/// The value of the next line of a head; null when that is not the line of \a key.
QByteArray value(QFile *file, const char *key)
{
    const QByteArray line = file->readLine(longestLine);
    const QByteArray start = QByteArray(key) + ' ';
    if (!line.startsWith(start) || !line.endsWith('\n'))
        return QByteArray();
    return line.mid(start.size(), line.size() - start.size() - 1);
}

bool read(ProgramVersion *version)
{
    QFile file(version->path);
    if (!file.open(QIODevice::ReadOnly)
        || file.readLine(longestLine) != QByteArray(formatLine) + '\n')
        return false;
    version->name = QUrl::fromPercentEncoding(value(&file, "name"));
    version->stored = QDateTime::fromString(QString::fromLatin1(value(&file, "stored")),
                                            QLatin1String(dateFormat));
    version->stored.setTimeSpec(Qt::UTC);
    version->bytes = value(&file, "bytes").toLongLong();
    version->hash = QByteArray::fromHex(value(&file, "sha256"));
    const bool ends = file.readLine(longestLine) == "\n";
    version->offset = file.pos();
    return ends && !version->name.isEmpty() && !version->name.contains(QLatin1Char('/'))
           && version->hash.size() == 32 && file.size() == version->offset + version->bytes;
}

} // namespace

HistoryStore::HistoryStore(const QString &folder, const Limits &limits)
    : m_folder(folder), m_limits(limits)
{}

bool HistoryStore::isOpen() const
{
    const QMutexLocker lock(&m_mutex);
    return m_isOpen;
}

QList<ProgramVersion> HistoryStore::versions() const
{
    const QMutexLocker lock(&m_mutex);
    return m_versions;
}

bool HistoryStore::open(QString *error)
{
    const QMutexLocker lock(&m_mutex);
    QDir folder(m_folder);
    if (!folder.mkpath(QLatin1String("."))) {
        *error = tr("The history has no place: the folder %1 cannot be made.").arg(m_folder);
        return false;
    }
    const QRegExp ours(QString::fromLatin1("(\\d{%1,18})\\.version(\\.\\w{6})?").arg(numberDigits));
    m_versions.clear();
    m_bytes = 0;
    m_lastNumber = 0;
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        if (DurableFile::isTemporary(name))
            folder.remove(name);
        if (!ours.exactMatch(name))
            continue;
        ProgramVersion version;
        version.number = ours.cap(1).toLongLong();
        version.path = folder.filePath(name);
        m_lastNumber = std::max(m_lastNumber, version.number);
        if (!ours.cap(2).isEmpty())
            folder.remove(name);
        else if (read(&version))
            m_versions.append(version);
    }
    std::sort(m_versions.begin(), m_versions.end(),
              [](const ProgramVersion &a, const ProgramVersion &b) { return a.number < b.number; });
    for (const ProgramVersion &version : HostCompat::readOnly(m_versions))
        m_bytes += version.bytes;
    trim();
    m_isOpen = true;
    return true;
}

HistoryStore::Outcome HistoryStore::store(const QString &path, QString *error)
{
    const QMutexLocker lock(&m_mutex);
    ProgramVersion version;
    version.name = QFileInfo(path).fileName();
    const FileStamp before = FileStamp::of(path);
    if (before.isValid() && m_seen.value(version.name) == before) {
        if (newest(version.name))
            return Known;
        // Once more it would push out others, and they this one again, without an end.
        *error = tr("The history has no room for %1 beside the other programs.").arg(version.name);
        return Failed;
    }
    if (before.age() >= 0 && before.age() < restMs)
        return Restless;
    // A program that fills half of the room would push out all others.
    if (before.size > m_limits.bytes / 2) {
        *error = tr("%1 is too large for the history.").arg(version.name);
        return Failed;
    }
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (!file.isOpen() || file.error() != QFile::NoError) {
        *error = tr("The history cannot read %1: %2.").arg(version.name, file.errorString());
        return Failed;
    }
    if (FileStamp::of(file) != before || FileStamp::of(path) != before)
        return Restless;
    file.close();

    version.hash = Sha256::hash(bytes);
    const ProgramVersion *last = newest(version.name);
    const bool isKnown = last && last->hash == version.hash;
    if (!isKnown) {
        version.number = m_lastNumber + 1;
        version.stored = QDateTime::currentDateTimeUtc();
        version.bytes = bytes.size();
        version.path = pathOf(version.number);
        if (!write(version, bytes, error))
            return Failed;
        m_lastNumber = version.number;
        version.offset = head(version).size();
        m_versions.append(version);
        m_bytes += version.bytes;
        trim();
    }
    m_seen.insert(version.name, before);
    return isKnown ? Known : Stored;
}

bool HistoryStore::holds(const QString &path) const
{
    const QMutexLocker lock(&m_mutex);
    const FileStamp stamp = FileStamp::of(path);
    const QString name = QFileInfo(path).fileName();
    return !stamp.isValid() || (m_seen.value(name) == stamp && newest(name));
}

QString HistoryStore::pathOf(qint64 number) const
{
    return QDir(m_folder).filePath(
        QString::fromLatin1("%1").arg(number, numberDigits, 10, QLatin1Char('0'))
        + QLatin1String(versionSuffix));
}

bool HistoryStore::write(const ProgramVersion &version, const QByteArray &bytes, QString *error)
{
    DurableFile file(version.path);
    if (file.open() && file.write(head(version)) && file.write(bytes) && file.commit())
        return true;
    *error = tr("The history cannot keep %1: %2.").arg(version.name, file.errorString());
    return false;
}

const ProgramVersion *HistoryStore::newest(const QString &name) const
{
    for (int i = m_versions.size() - 1; i >= 0; --i) {
        if (m_versions.at(i).name == name)
            return &m_versions.at(i);
    }
    return nullptr;
}

void HistoryStore::trim()
{
    while (m_versions.size() > m_limits.versions || m_bytes > m_limits.bytes) {
        const int index = firstToGo(m_bytes > m_limits.bytes);
        if (index < 0)
            return;
        const ProgramVersion version = m_versions.takeAt(index);
        m_bytes -= version.bytes;
        QFile::remove(version.path);
    }
}

/// The oldest version that is not the newest of its name. Only too many bytes make the newest of a
/// name go.
int HistoryStore::firstToGo(bool overBytes) const
{
    QHash<QString, int> newestOf;
    for (int i = 0; i < m_versions.size(); ++i)
        newestOf.insert(m_versions.at(i).name, i);
    for (int i = 0; i < m_versions.size(); ++i) {
        if (newestOf.value(m_versions.at(i).name) != i)
            return i;
    }
    // Never the one that came last: it was taken in because it is wanted.
    return overBytes && m_versions.size() > 1 ? 0 : -1;
}
