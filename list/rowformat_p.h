// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWFORMAT_P_H
#define ROWFORMAT_P_H

#include "filarixrows.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>

/// The forms of a row inside the library. Kinds and positions are what hosts see too, and stand in
/// filarixrows.h.
///
/// A row is a list of strings and comes in three forms:
/// - the host form is what a host passes in and the list stores: a kind, then the row;
/// - the inner form is the same without its kind;
/// - the working form is what MJLine reads: the inner form with an empty string inserted at
///   position 1, filled up with empty strings. From position 2 on its positions are those of the
///   host form.
namespace RowFormat {

using namespace FilarixRows;

/// Where the number stands in the inner and the working form.
const int workingNum = 0;
/// Where the empty string of the working form goes.
const int insertedPosition = 1;
const int workingLength = 35;

/// A list longer than this gets the inserted string. A new row is less strict than a refilled one.
/// At a refill a list of 10 to 19 strings lands one position further to the left.
const int buildLimit = 9;
const int refillLimit = 19;

/// First step to the working form.
inline void insertEmpty(QStringList &row, int limit)
{
    if (row.size() > limit)
        row.insert(insertedPosition, QString());
}

/// Second step to the working form. A longer list stays as it is.
inline void fillUp(QStringList &row)
{
    while (row.size() < workingLength)
        row.append(QString());
}

/// The text of a field: key ":" value.
inline QString pairText(const QString &key, const QString &value)
{
    return key + QLatin1Char(':') + value;
}

/// The part of \a text before the first \a separator; all of it if there is none.
inline QString partBefore(const QString &text, char separator)
{
    return text.left(text.indexOf(QLatin1Char(separator)));
}

/// The part of \a text after the last \a separator; all of it if there is none.
inline QString partAfter(const QString &text, char separator)
{
    return text.mid(text.lastIndexOf(QLatin1Char(separator)) + 1);
}

} // namespace RowFormat

#endif // ROWFORMAT_P_H
