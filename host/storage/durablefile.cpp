// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/durablefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegExp>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char hiddenStart[] = ".filarix-";
const int randomLetters = 12;
const int mostTries = 100;
// The bytes of a name that a file system takes, less our start and end.
const int longestStem = 255 - 32;

QByteArray encoded(const QString &path)
{
    return QFile::encodeName(path);
}

QString randomEnd()
{
    static const char letters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    unsigned char numbers[randomLetters] = {};
    QFile source(QLatin1String("/dev/urandom"));
    if (source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        source.read(reinterpret_cast<char *>(numbers), sizeof numbers);
    QString end;
    for (unsigned char number : numbers)
        end += QLatin1Char(letters[number % (sizeof letters - 1)]);
    return end;
}

QString temporaryPathFor(const QString &path)
{
    const QFileInfo file(path);
    QString stem = file.fileName();
    while (encoded(stem).size() > longestStem)
        stem.chop(1);
    return file.dir().filePath(QLatin1String(hiddenStart) + stem + QLatin1Char('.') + randomEnd());
}

} // namespace

DurableFile::DurableFile(const QString &path) : m_path(path)
{
    const QFileInfo file(path);
    if (file.isSymLink() && file.exists())
        m_path = file.canonicalFilePath();
}

DurableFile::~DurableFile()
{
    cancel();
}

bool DurableFile::open(const QString &model)
{
    m_error = 0;
    m_hasReplaced = false;
    for (int i = 0; i < mostTries && m_handle < 0; ++i) {
        m_temporaryPath = temporaryPathFor(m_path);
        m_handle = ::open(encoded(m_temporaryPath).constData(),
                          O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (m_handle < 0 && errno != EEXIST)
            break;
    }
    if (m_handle < 0)
        return fail();
    struct stat old = {};
    if (::stat(encoded(model.isEmpty() ? m_path : model).constData(), &old) != 0)
        return true;
    // The owner first: a change of it takes rights away.
    const bool isOwned = ::fchown(m_handle, old.st_uid, old.st_gid) == 0;
    const mode_t rights = old.st_mode & (isOwned ? 07777 : 0777);
    // File systems without rights refuse, and have none to keep.
    if (::fchmod(m_handle, rights) != 0 && errno != EPERM && errno != ENOTSUP)
        return fail();
    return true;
}

bool DurableFile::write(const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(m_handle, bytes.constData() + done, bytes.size() - done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return fail();
        done += count;
    }
    return m_handle >= 0;
}

bool DurableFile::commit(const std::function<bool()> &mayReplace)
{
    if (m_handle < 0 || ::fsync(m_handle) != 0)
        return fail();
    const int handle = m_handle;
    m_handle = -1;
    if (::close(handle) != 0)
        return fail();
    if (mayReplace && !mayReplace()) {
        m_error = 0;
        cancel();
        return false;
    }
    if (std::rename(encoded(m_temporaryPath).constData(), encoded(m_path).constData()) != 0)
        return fail();
    m_temporaryPath.clear();
    m_hasReplaced = true;
    return syncFolder(QFileInfo(m_path).path()) || fail();
}

void DurableFile::cancel()
{
    if (m_handle >= 0)
        ::close(m_handle);
    m_handle = -1;
    if (!m_temporaryPath.isEmpty())
        ::unlink(encoded(m_temporaryPath).constData());
    m_temporaryPath.clear();
}

QString DurableFile::errorString() const
{
    return m_error == 0 ? QString() : QString::fromLocal8Bit(std::strerror(m_error));
}

bool DurableFile::syncFolder(const QString &folder)
{
    const int handle = ::open(encoded(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return false;
    // Some file systems, of network shares above all, know no such thing for folders.
    const bool done = ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    const int error = errno;
    ::close(handle);
    errno = error;
    return done;
}

bool DurableFile::isTemporary(const QString &name)
{
    return QRegExp(QString::fromLatin1("%1.*\\.[a-z0-9]{%2}")
                       .arg(QRegExp::escape(QLatin1String(hiddenStart)))
                       .arg(randomLetters))
        .exactMatch(name);
}

bool DurableFile::fail()
{
    m_error = errno;
    cancel();
    return false;
}
