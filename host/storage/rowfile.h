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
/// backslash stands before "\", "t" for a tab and "n" for a line end, so every string comes back
/// as it was. Lines that are empty or begin with "#" are left out on reading. UTF-8.
namespace RowFile {

/// What write() writes.
FILARIX_HOST_EXPORT QByteArray bytes(const QString &comment, const QList<QStringList> &rows);
/// Writes the rows under \a comment. The file is replaced as a whole or stays as it was. On
/// failure \a error says why in words.
FILARIX_HOST_EXPORT bool write(const QString &path, const QString &comment,
                               const QList<QStringList> &rows, QString *error);
/// Reads the rows back; null rows and an \a error when the file can't be read or isn't UTF-8.
FILARIX_HOST_EXPORT bool read(const QString &path, QList<QStringList> *rows, QString *error);

} // namespace RowFile

#endif // ROWFILE_H
