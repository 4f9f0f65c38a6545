// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILECALLS_H
#define FILECALLS_H

#include <QByteArray>

#include <functional>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

/// A test's hands in front of the system's calls, which a test program that includes this, in one
/// file, has in place of the C library's. They are called in whichever thread the call is made.
namespace FileCalls {

/// Before a file is forced to the disk; gets its path.
std::function<void(const QByteArray &path)> beforeSync;
/// Before a file gets a name; gets both. Another answer than 0 is the error that the call ends in.
std::function<int(const QByteArray &from, const QByteArray &to)> beforeRename;

void reset()
{
    beforeSync = nullptr;
    beforeRename = nullptr;
}

} // namespace FileCalls

extern "C" int fsync(int handle)
{
    char path[4096];
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(handle);
    const ssize_t size = ::readlink(link.constData(), path, sizeof path);
    if (FileCalls::beforeSync && size > 0)
        FileCalls::beforeSync(QByteArray(path, int(size)));
    return int(::syscall(SYS_fsync, handle));
}

extern "C" int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                         unsigned flags) noexcept
{
    const int error = FileCalls::beforeRename ? FileCalls::beforeRename(from, to) : 0;
    if (error == 0)
        return int(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
    errno = error;
    return -1;
}

// Some processors have no call of that name: all have the other one.
extern "C" int rename(const char *from, const char *to) noexcept
{
    const int error = FileCalls::beforeRename ? FileCalls::beforeRename(from, to) : 0;
    if (error == 0)
        return int(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
    errno = error;
    return -1;
}

#endif // FILECALLS_H
