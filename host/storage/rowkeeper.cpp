// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/rowkeeper.h"

#include "storage/durablefile.h"
#include "storage/filestamp.h"
#include "storage/rowfile.h"
#include "storage/writeleave.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

// A hundred times what the longest taught program takes; more would not fit into the memory.
const qint64 largestFile = qint64(16) * 1024 * 1024;

bool exists(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

QString firstAsidePath(const QString &path)
{
    return path + QLatin1String(".broken");
}

QString fileName(const QString &path)
{
    return QFileInfo(path).fileName();
}

/// To open a pipe would wait for somebody to write into it.
bool isReadable(const QString &path, QString *error)
{
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.isValid())
        *error = RowKeeper::tr("%1 is not a file.").arg(path);
    else if (stamp.size > largestFile)
        *error = RowKeeper::tr("%1 is too large.").arg(path);
    return error->isEmpty();
}

RowKeeper::Loaded read(const QString &path, const RowKeeper::Reader &reader)
{
    RowKeeper::Loaded loaded;
    const bool isThere = exists(path);
    if (!isThere && !exists(firstAsidePath(path)))
        return loaded;
    loaded.state = RowKeeper::Loaded::Broken;
    if (!isThere)
        loaded.error = RowKeeper::tr("%1 is missing; what could not be read is %2.")
                           .arg(path, fileName(firstAsidePath(path)));
    else if (isReadable(path, &loaded.error) && reader(path, &loaded.rows, &loaded.error))
        loaded.state = RowKeeper::Loaded::Read;
    return loaded;
}

/// One store, in the thread.
class Storing
{
public:
    /// Without a \a reader nobody knows what stands at the path.
    Storing(const QString &path, const QByteArray &bytes, const RowKeeper::Reader &reader)
        : m_path(path), m_bytes(bytes), m_reader(reader)
    {}

    RowKeeper::Stored run(WriteLeave *leave)
    {
        QDir().mkpath(QFileInfo(m_path).path());
        DurableFile file(m_path);
        const bool isUnknown = exists(file.path()) && !isKnown(file.path());
        if (!file.open() || !file.write(m_bytes))
            return fail(file.errorString());
        // The rights of a file that nobody could read are not worth keeping.
        if (isUnknown)
            QFile::setPermissions(file.temporaryPath(), QFile::permissions(file.temporaryPath())
                                                            | QFile::ReadOwner | QFile::WriteOwner);
        m_stored.isStored =
            file.commit([&] { return leave->take() && (!isUnknown || putAside(file.path())); });
        if (m_stored.isStored)
            return m_stored;
        takeBack(file.path());
        return m_stored.error.isEmpty() ? fail(file.errorString()) : m_stored;
    }

private:
    bool isKnown(const QString &path) const
    {
        return m_reader && read(path, m_reader).state == RowKeeper::Loaded::Read;
    }

    RowKeeper::Stored fail(const QString &reason)
    {
        m_stored.error = RowKeeper::tr("%1 is not stored: %2.").arg(fileName(m_path), reason);
        return m_stored;
    }

    bool putAside(const QString &path)
    {
        const QString aside = RowKeeper::asidePath(path);
        if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData())
            != 0) {
            m_stored.error = RowKeeper::tr("%1 is not stored: the file that stands there cannot be "
                                           "put aside: %2.")
                                 .arg(fileName(m_path), QString::fromLocal8Bit(strerror(errno)));
            return false;
        }
        m_stored.asidePath = aside;
        return true;
    }

    void takeBack(const QString &path)
    {
        if (m_stored.asidePath.isEmpty() || exists(path))
            return;
        if (QFile::rename(m_stored.asidePath, path))
            m_stored.asidePath.clear();
    }

    const QString m_path;
    const QByteArray m_bytes;
    const RowKeeper::Reader m_reader;
    RowKeeper::Stored m_stored;
};

} // namespace

RowKeeper::RowKeeper(const QString &comment, const Reader &reader, QObject *parent)
    : QObject(parent), m_comment(comment), m_reader(reader)
{}

QString RowKeeper::asidePath(const QString &path)
{
    QString aside = firstAsidePath(path);
    for (int number = 2; exists(aside); ++number)
        aside = firstAsidePath(path) + QLatin1Char('.') + QString::number(number);
    return aside;
}

void RowKeeper::load(const QString &path, const std::function<void(const Loaded &)> &answer)
{
    const std::shared_ptr<Loaded> loaded = std::make_shared<Loaded>();
    const Reader reader = m_reader;
    m_job.run([loaded, path, reader] { *loaded = read(path, reader); },
              [this, loaded, path, answer] {
                  if (loaded->state == Loaded::Read)
                      m_known = path;
                  answer(*loaded);
              },
              [path, answer] {
                  Loaded stalled;
                  stalled.state = Loaded::Stalled;
                  stalled.error =
                      tr("%1 cannot be read: the panel's storage does not answer.").arg(path);
                  answer(stalled);
              });
}

void RowKeeper::store(const QString &path, const QList<QStringList> &rows,
                      const std::function<void(const Stored &)> &answer)
{
    const std::shared_ptr<Stored> stored = std::make_shared<Stored>();
    const std::shared_ptr<WriteLeave> leave = std::make_shared<WriteLeave>();
    const QByteArray bytes = RowFile::bytes(m_comment, rows);
    const Reader reader = path == m_known ? m_reader : Reader();
    m_job.run([=] { *stored = Storing(path, bytes, reader).run(leave.get()); },
              [this, stored, path, answer] {
                  if (stored->isStored)
                      m_known = path;
                  answer(*stored);
              },
              [path, leave, answer] {
                  Stored stalled;
                  stalled.error = leave->withdraw()
                                      ? tr("%1 is not stored: the panel's storage does not answer.")
                                            .arg(fileName(path))
                                      : tr("The panel's storage does not answer: nobody knows "
                                           "whether %1 is stored.")
                                            .arg(fileName(path));
                  answer(stalled);
              });
}
