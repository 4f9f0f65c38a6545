// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWSFOROTHERS_H
#define ROWSFOROTHERS_H

#include "filarixrows.h"

#include <storage/durablefile.h>
#include <storage/rowtext.h>

//! [rows for a spreadsheet]
/// Writes \a rows for a spreadsheet, to a stick, say: the file is there as a whole or not at all.
/// Runs in a thread of files. The result says why it failed.
inline QString writeCsv(const QString &path, const QList<QStringList> &rows)
{
    DurableFile file(path);
    const bool isStored = file.open() && file.write(RowText::toCsv(rows)) && file.commit();
    return isStored ? QString() : file.errorString();
}
//! [rows for a spreadsheet]

//! [rows from a server]
/// What came from a server, if a list takes it as it is; otherwise none, and why in \a error.
inline QList<QStringList> rowsFromServer(const QByteArray &json, int firstIndex, QString *error)
{
    QList<QStringList> rows;
    if (!RowText::fromJson(json, &rows, error))
        return rows;
    const QList<FilarixRows::Problem> problems = FilarixRows::checkRows(rows, firstIndex);
    if (problems.isEmpty())
        return rows;
    *error = FilarixRows::describe(problems.first());
    return QList<QStringList>();
}
//! [rows from a server]

#endif // ROWSFOROTHERS_H
