// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILESTAMP_H
#define FILESTAMP_H

#include "base/filarixhostglobal.h"

#include <QtGlobal>

class QFile;
class QString;

/// What of a file changes when it is written, replaced or renamed.
///
/// Two equal stamps do not rule out a write within the few milliseconds in which a file system's
/// clock stands: see age().
struct FILARIX_HOST_EXPORT FileStamp
{
    /// Bytes; -1 where there is no file.
    qint64 size = -1;
    qint64 inode = 0;
    /// Nanoseconds since 1970.
    qint64 modified = 0;
    qint64 changed = 0;

    /// The stamp of a regular file, or of an open one; size -1 when there is none.
    static FileStamp of(const QString &path);
    static FileStamp of(const QFile &openFile);

    bool isValid() const { return size >= 0; }
    /// Milliseconds since the file was written; negative when the clock was set back.
    qint64 age() const;
};

inline bool operator==(const FileStamp &a, const FileStamp &b)
{
    return a.size == b.size && a.inode == b.inode && a.modified == b.modified
           && a.changed == b.changed;
}

inline bool operator!=(const FileStamp &a, const FileStamp &b)
{
    return !(a == b);
}

#endif // FILESTAMP_H
