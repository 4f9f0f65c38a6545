// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wholefile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const mode_t usualMode = 0666;

bool writeAll(int fd, const QByteArray &bytes)
{
    int written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            ::write(fd, bytes.constData() + written, size_t(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            written += int(count);
    }
    return true;
}

/// As a new file of this process would have it.
mode_t usualModeOfThisProcess()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return usualMode & ~mask;
}

/// Where a link leads, so that the link stays one.
QByteArray placeOf(const QByteArray &name)
{
    char *resolved = ::realpath(name.constData(), nullptr);
    QByteArray place = resolved ? QByteArray(resolved) : name;
    ::free(resolved);
    return place;
}

bool writeInPlace(const QByteArray &name, const QByteArray &bytes)
{
    const int fd = ::open(name.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (fd < 0)
        return false;
    const bool isWritten = writeAll(fd, bytes);
    const int reason = errno;
    const bool isClosed = ::close(fd) == 0;
    if (!isWritten)
        errno = reason;
    return isWritten && isClosed;
}

bool writeBeside(const QByteArray &place, mode_t mode, const QByteArray &bytes)
{
    QByteArray beside = place + ".XXXXXX";
    const int fd = ::mkostemp(beside.data(), O_CLOEXEC);
    if (fd < 0)
        return false;
    bool isDone = writeAll(fd, bytes) && ::fchmod(fd, mode) == 0 && ::fsync(fd) == 0;
    int reason = errno;
    if (::close(fd) != 0 && isDone) {
        isDone = false;
        reason = errno;
    }
    if (isDone && ::rename(beside.constData(), place.constData()) == 0)
        return true;
    if (isDone)
        reason = errno;
    ::unlink(beside.constData());
    errno = reason;
    return false;
}

bool writeAnywhere(const QByteArray &name, const QByteArray &bytes)
{
    struct stat facts;
    if (::stat(name.constData(), &facts) != 0)
        return writeBeside(name, usualModeOfThisProcess(), bytes);
    if (S_ISDIR(facts.st_mode)) {
        errno = EISDIR;
        return false;
    }
    if (!S_ISREG(facts.st_mode))
        return writeInPlace(name, bytes);
    // A file that its owner made read-only is not replaced behind his back.
    if (::access(name.constData(), W_OK) != 0)
        return false;
    return writeBeside(placeOf(name), facts.st_mode & 07777, bytes);
}

bool isFile(const QByteArray &name, struct stat *facts)
{
    const bool isThere =
        name == "-" ? ::fstat(STDIN_FILENO, facts) == 0 : ::stat(name.constData(), facts) == 0;
    return isThere && S_ISREG(facts->st_mode);
}

} // namespace

bool WholeFile::isSame(const QByteArray &name, const QByteArray &other)
{
    struct stat facts;
    struct stat others;
    return isFile(name, &facts) && isFile(other, &others) && facts.st_dev == others.st_dev
           && facts.st_ino == others.st_ino;
}

bool WholeFile::write(const QByteArray &name, const QByteArray &bytes, QByteArray *error)
{
    if (writeAnywhere(name, bytes))
        return true;
    *error = std::strerror(errno);
    return false;
}
