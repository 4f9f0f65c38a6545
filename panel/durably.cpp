// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "durably.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

bool Durably::syncFolder(const QString &folder)
{
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return false;
    // Some file systems, of network shares above all, know no such thing for folders.
    const bool done = ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
    ::close(handle);
    return done;
}

bool Durably::replace(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
           && syncFolder(QFileInfo(to).path());
}
