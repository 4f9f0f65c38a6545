// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STOREDROWS_H
#define STOREDROWS_H

#include "fillrows.h"
#include "storage/rowfile.h"

//! [rows to a file]
/// Writes the rows of \a list, from \a firstIndex on: 1 where it has a title, 0 elsewhere. The file
/// is replaced as a whole or stays as it was; the result says why.
inline QString exportRows(const TListWidget *list, int firstIndex, const QString &path)
{
    QList<QStringList> rows;
    for (int i = firstIndex; i < list->count(); ++i)
        rows.append(list->getContent(i));
    QString error;
    RowFile::write(path, QLatin1String("Taught rows"), rows, &error);
    return error;
}
//! [rows to a file]

//! [rows from a file]
/// Fills \a list from the file; or leaves the list as it is and says what is wrong. A list takes
/// rows as it gets them, so they are looked at before.
inline QString importRows(TListWidget *list, int firstIndex, const QString &path)
{
    QList<QStringList> rows;
    QString error;
    if (!RowFile::read(path, &rows, &error))
        return error;
    const QList<FilarixRows::Problem> problems = FilarixRows::checkRows(rows, firstIndex);
    if (!problems.isEmpty())
        return FilarixRows::describe(problems.first());
    fillRows(list, rows);
    return QString();
}
//! [rows from a file]

#endif // STOREDROWS_H
