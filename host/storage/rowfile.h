// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWFILE_H
#define ROWFILE_H

#include "base/filarixhostglobal.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// List rows in a plain text file of the host: one row a line, its strings parted by tabs. A
/// backslash stands before "\", "t" for a tab and "n" for a line end, so every string comes back as
/// it was. Lines that are empty or begin with "#" are left out on reading. So a row without
/// strings, or of one empty string, does not come back. UTF-8. The functions may wait for the disk.
namespace RowFile {

/// What write() writes. \a comment is one line: what follows a line end in it is read as a row.
FILARIX_HOST_EXPORT QByteArray bytes(const QString &comment, const QList<QStringList> &rows);
/// Writes the rows under \a comment. The file is replaced as a whole or stays as it was. On
/// failure \a error says why in words.
FILARIX_HOST_EXPORT bool write(const QString &path, const QString &comment,
                               const QList<QStringList> &rows, QString *error);
/// Reads the rows back. False, with an \a error in words and \a rows as they were, when the file
/// can't be read or isn't UTF-8. \a rows and \a error must not be null.
FILARIX_HOST_EXPORT bool read(const QString &path, QList<QStringList> *rows, QString *error);

} // namespace RowFile

#endif // ROWFILE_H
