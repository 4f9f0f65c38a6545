// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "storage/filestamp.h"

#include <QDateTime>
#include <QFile>

#include <sys/stat.h>

namespace {

const qint64 nsPerSecond = 1000000000;
const qint64 nsPerMs = 1000000;

FileStamp stamp(int result, const struct stat64 &info)
{
    FileStamp stamp;
    if (result != 0 || !S_ISREG(info.st_mode))
        return stamp;
    stamp.size = info.st_size;
    stamp.inode = qint64(info.st_ino);
    stamp.modified = info.st_mtim.tv_sec * nsPerSecond + info.st_mtim.tv_nsec;
    stamp.changed = info.st_ctim.tv_sec * nsPerSecond + info.st_ctim.tv_nsec;
    return stamp;
}

} // namespace

FileStamp FileStamp::of(const QString &path)
{
    struct stat64 info = {};
    const int result = ::stat64(QFile::encodeName(path).constData(), &info);
    return stamp(result, info);
}

FileStamp FileStamp::of(const QFile &openFile)
{
    struct stat64 info = {};
    const int result = ::fstat64(openFile.handle(), &info);
    return stamp(result, info);
}

qint64 FileStamp::age() const
{
    return QDateTime::currentMSecsSinceEpoch() - modified / nsPerMs;
}
