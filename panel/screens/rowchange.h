// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWCHANGE_H
#define ROWCHANGE_H

#include <QList>
#include <QStringList>

class TListWidget;

/// Changes to the rows of the library's list, whose numbers follow their places.
namespace RowChange {

/// The rows, numbered from 1 in their order.
QList<QStringList> numbered(QList<QStringList> rows);
/// Whether the two are the same but for their numbers.
bool isSame(const QStringList &a, const QStringList &b);
/// Makes \a rows the rows of a list with a title, and touches no row that stays. The list is not
/// drawn anew, and its current row stays as a number.
void apply(TListWidget *list, const QList<QStringList> &rows);

} // namespace RowChange

#endif // ROWCHANGE_H
