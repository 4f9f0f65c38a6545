// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/connectionfile.h"

#include "storage/durablefile.h"
#include "storage/filestamp.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSettings>

#include <cstdlib>

namespace {

// A thousand connections take a tenth of it.
const qint64 largestFile = qint64(4) * 1024 * 1024;

struct Typical
{
    const char *name;
    int cid;
    int baud;
    int addr;
    int com;
    const char *address;
};

const Typical typicalConnections[] = {
    {"PLC", 1, 187500, 2, 1, "192.168.1.10"},
    {"Spindle drive", 2, 115200, 3, 2, "192.168.1.21"},
    {"Wire guide", 3, 115200, 4, 3, "192.168.1.22"},
    {"Tension unit", 4, 19200, 5, 4, "192.168.1.23:4001"},
    {"Label printer", 5, 9600, 6, 5, ""},
};

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(ConnectionFile)
};

QString key(int number, const char *suffix)
{
    return QString::fromLatin1("Connect %1%2").arg(number).arg(QLatin1String(suffix));
}

QString addressKey(const QString &name)
{
    return name + QLatin1String("new IP");
}

/// A file under a name that was never there before, so that nobody remembers what it held.
class PrivateFile
{
public:
    PrivateFile()
    {
        QByteArray folder =
            QFile::encodeName(QDir::temp().filePath(QLatin1String("filarix-XXXXXX")));
        if (::mkdtemp(folder.data()))
            m_folder = QFile::decodeName(folder);
    }

    ~PrivateFile()
    {
        if (m_folder.isEmpty())
            return;
        // The toolkit may have left a file of its own there.
        QDir folder(m_folder);
        const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System);
        for (const QString &name : names)
            folder.remove(name);
        folder.rmdir(m_folder);
    }

    /// The file itself is not made.
    QString path() const { return m_folder + QLatin1String("/connections.ini"); }

    bool write(const QByteArray &bytes)
    {
        QFile file(path());
        return !m_folder.isEmpty() && file.open(QIODevice::WriteOnly)
               && file.write(bytes) == bytes.size() && file.flush();
    }

    QByteArray bytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    Q_DISABLE_COPY(PrivateFile)

    /// Empty when none could be made.
    QString m_folder;
};

void fill(QSettings *file)
{
    int count = 0;
    for (const Typical &typical : typicalConnections) {
        const QString name = QLatin1String(typical.name);
        file->setValue(key(count, ""), name);
        file->setValue(key(count, " cid"), typical.cid);
        file->setValue(key(count, " baud"), typical.baud);
        file->setValue(key(count, " addr"), typical.addr);
        file->setValue(key(count, " com"), typical.com);
        if (*typical.address)
            file->setValue(addressKey(name), QLatin1String(typical.address));
        ++count;
    }
    file->setValue(QLatin1String("connect count"), count);
    file->sync();
}

QByteArray typicalBytes()
{
    const PrivateFile made;
    QSettings file(made.path(), QSettings::IniFormat);
    fill(&file);
    return made.bytes();
}

/// To open a pipe would wait for somebody to write into it.
bool readBytes(const QString &path, QByteArray *bytes, QString *error)
{
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.isValid() || stamp.size > largestFile) {
        *error = stamp.isValid() ? Words::tr("%1 is too large.").arg(path)
                                 : Words::tr("%1 is not a file.").arg(path);
        return false;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        *bytes = file.readAll();
    if (file.error() == QFile::NoError)
        return true;
    *error = Words::tr("%1 cannot be read: %2.").arg(path, file.errorString());
    return false;
}

bool parse(ConnectionFile::Contents *contents)
{
    PrivateFile copy;
    if (!copy.write(contents->bytes)) {
        contents->error =
            Words::tr("The connections cannot be read: the panel's temporary storage is "
                      "full.");
        return false;
    }
    const QSettings file(copy.path(), QSettings::IniFormat);
    contents->count = file.value(QLatin1String("connect count"), 0).toInt();
    for (int i = 0; i < qMin(contents->count, ConnectionFile::mostConnections); ++i) {
        ConnectionFile::Connection connection;
        connection.name = file.value(key(i, "")).toString();
        connection.cid = file.value(key(i, " cid"), 0).toString();
        connection.baud = file.value(key(i, " baud"), 0).toString();
        connection.address = file.value(addressKey(connection.name)).toString();
        contents->connections.append(connection);
    }
    return true;
}

QStringList addressesOf(const ConnectionFile::Contents &contents)
{
    QStringList addresses;
    for (const ConnectionFile::Connection &connection : contents.connections)
        addresses.append(connection.address);
    return addresses;
}

QString notStored(const QString &reason)
{
    return Words::tr("The addresses are not stored: %1.").arg(reason);
}

} // namespace

ConnectionFile::Contents ConnectionFile::read(const QString &path)
{
    Contents contents;
    const QFileInfo file(path);
    contents.isThere = file.exists() || file.isSymLink();
    if (!contents.isThere) {
        QDir().mkpath(file.path());
        DurableFile made(path);
        contents.isThere = made.open() && made.write(typicalBytes()) && made.commit();
        if (!contents.isThere) {
            contents.error = Words::tr("%1 cannot be made: %2.").arg(path, made.errorString());
            return contents;
        }
    }
    if (readBytes(path, &contents.bytes, &contents.error))
        parse(&contents);
    return contents;
}

QString ConnectionFile::portOf(const QString &address)
{
    const int colon = address.indexOf(QLatin1Char(':'));
    return colon < 0 ? QString() : address.mid(colon);
}

QStringList ConnectionFile::changedAddresses(const Contents &before,
                                             const QMap<int, QString> &changes)
{
    QHash<QString, QString> byName;
    for (int i = 0; i < before.connections.size(); ++i) {
        const Connection &connection = before.connections.at(i);
        if (changes.contains(i))
            byName.insert(connection.name, changes.value(i) + portOf(connection.address));
    }
    QStringList addresses;
    for (const Connection &connection : before.connections)
        addresses.append(byName.value(connection.name, connection.address));
    return addresses;
}

QByteArray ConnectionFile::withAddresses(const Contents &before, const QStringList &wanted)
{
    if (wanted == addressesOf(before))
        return before.bytes;
    PrivateFile edited;
    if (!edited.write(before.bytes))
        return QByteArray();
    {
        QSettings file(edited.path(), QSettings::IniFormat);
        for (int i = 0; i < qMin(wanted.size(), before.connections.size()); ++i) {
            if (wanted.at(i) != before.connections.at(i).address)
                file.setValue(addressKey(before.connections.at(i).name), wanted.at(i));
        }
    }
    return edited.bytes();
}

QString ConnectionFile::store(const QString &path, const QByteArray &before,
                              const QByteArray &bytes, const QStringList &wanted,
                              const std::function<bool()> &mayReplace)
{
    // The write of what was edited may have failed, too.
    Contents edited;
    edited.bytes = bytes;
    if (!parse(&edited) || addressesOf(edited) != wanted)
        return notStored(Words::tr("the panel's temporary storage is full"));
    DurableFile file(path);
    if (!file.open() || !file.write(bytes))
        return notStored(file.errorString());
    bool isOthers = false;
    const auto isStillOurs = [&] {
        QString error;
        QByteArray now;
        isOthers = !readBytes(path, &now, &error) || now != before;
        return !isOthers && mayReplace();
    };
    if (!file.commit(isStillOurs))
        return notStored(isOthers ? Words::tr("the file was changed meanwhile. Edit them once more")
                                  : file.errorString());
    const Contents stored = read(path);
    if (stored.bytes == bytes && addressesOf(stored) == wanted)
        return QString();
    return notStored(Words::tr("the disk holds something else"));
}
