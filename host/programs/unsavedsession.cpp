// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/unsavedsession.h"

#include "programs/unsavedstore.h"
#include "storage/durablefile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegExp>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const int mostOffered = 20;
const int mostTries = 100;

int openFolder(const QString &path)
{
    return ::open(QFile::encodeName(path).constData(),
                  O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

/// While the lock lives nobody else makes a session in the folder or looks for those that are left.
/// So a new session is not taken for a left one before somebody holds it.
class FolderLock
{
public:
    explicit FolderLock(const QString &folder) : m_handle(openFolder(folder))
    {
        while (m_handle >= 0 && ::flock(m_handle, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    ~FolderLock()
    {
        if (m_handle >= 0)
            ::close(m_handle);
    }
    bool isHeld() const { return m_handle >= 0; }

private:
    Q_DISABLE_COPY(FolderLock)

    const int m_handle;
};

/// A handle of the folder that holds it; -1 when somebody else does.
int hold(const QString &path)
{
    const int handle = openFolder(path);
    if (handle < 0 || ::flock(handle, LOCK_EX | LOCK_NB) == 0)
        return handle;
    const int error = errno;
    ::close(handle);
    errno = error;
    return -1;
}

QString newName(int count)
{
    return QString::fromLatin1("%1-%2-%3")
        .arg(QDateTime::currentDateTimeUtc().toString(QLatin1String("yyyyMMdd-HHmmss-zzz")))
        .arg(::getpid())
        .arg(count);
}

bool isName(const QString &name)
{
    return QRegExp(QLatin1String("\\d{8}-\\d{6}-\\d{3}-\\d+-\\d+")).exactMatch(name);
}

} // namespace

UnsavedSession::Pointer UnsavedSession::make(const QString &folder)
{
    QDir().mkpath(folder);
    const FolderLock lock(folder);
    if (!lock.isHeld())
        return Pointer();
    for (int i = 0; i < mostTries; ++i) {
        const QString path = QDir(folder).filePath(newName(i));
        if (::mkdir(QFile::encodeName(path).constData(), 0700) == 0) {
            const int handle = hold(path);
            if (handle < 0 || !DurableFile::syncFolder(folder))
                return Pointer();
            return Pointer(new UnsavedSession(path, handle));
        }
        if (errno != EEXIST)
            break;
    }
    return Pointer();
}

QList<UnsavedSession::Pointer> UnsavedSession::left(const QString &folder)
{
    QList<Pointer> sessions;
    const FolderLock lock(folder);
    if (!lock.isHeld())
        return sessions;
    const QStringList names = QDir(folder).entryList(
        QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name | QDir::Reversed);
    for (const QString &name : names) {
        if (sessions.size() == mostOffered)
            break;
        if (!isName(name))
            continue;
        const QString path = QDir(folder).filePath(name);
        const int handle = hold(path);
        if (handle < 0)
            continue;
        const Pointer session(new UnsavedSession(path, handle));
        // Whatever is in it keeps the folder from going.
        if (::rmdir(QFile::encodeName(path).constData()) != 0)
            sessions.append(session);
    }
    return sessions;
}

UnsavedSession::~UnsavedSession()
{
    ::close(m_handle);
}

QString UnsavedSession::filePath(const QString &name) const
{
    return QDir(m_path).filePath(name);
}

bool UnsavedSession::remove()
{
    const QStringList names = QDir(m_path).entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : names) {
        if (UnsavedStore::isOwn(name) || DurableFile::isTemporary(name))
            ::unlink(QFile::encodeName(filePath(name)).constData());
    }
    return ::rmdir(QFile::encodeName(m_path).constData()) == 0 || errno == ENOENT;
}
