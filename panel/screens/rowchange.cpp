// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/rowchange.h"

#include "tlistwidget.h"

namespace {

const int numberAt = 1;
// Row 0 of the list is its title.
const int firstRow = 1;

/// How many rows at the front are the same, and how many at the back.
struct Kept
{
    int front = 0;
    int back = 0;
};

Kept keptRows(TListWidget *list, const QList<QStringList> &rows)
{
    Kept kept;
    const int old = list->count() - firstRow;
    const int most = qMin(old, rows.size());
    while (kept.front < most
           && RowChange::isSame(list->getContent(firstRow + kept.front), rows.at(kept.front)))
        ++kept.front;
    while (kept.back < most - kept.front
           && RowChange::isSame(list->getContent(firstRow + old - 1 - kept.back),
                                rows.at(rows.size() - 1 - kept.back)))
        ++kept.back;
    return kept;
}

QStringList rowFor(QStringList row, int index)
{
    row[numberAt] = QString::number(index);
    return row;
}

} // namespace

QList<QStringList> RowChange::numbered(QList<QStringList> rows)
{
    for (int i = 0; i < rows.size(); ++i) {
        const QString number = QString::number(firstRow + i);
        // A row that keeps its number goes on sharing its strings.
        if (rows.at(i).value(numberAt) != number)
            rows[i][numberAt] = number;
    }
    return rows;
}

bool RowChange::isSame(const QStringList &a, const QStringList &b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i) {
        if (i != numberAt && a.at(i) != b.at(i))
            return false;
    }
    return true;
}

void RowChange::apply(TListWidget *list, const QList<QStringList> &rows)
{
    const Kept kept = keptRows(list, rows);
    const int end = rows.size() - kept.back;
    int old = list->count() - firstRow - kept.back;
    int place = kept.front;
    for (; place < qMin(old, end); ++place) {
        QStringList row = rowFor(rows.at(place), firstRow + place);
        list->setContent(firstRow + place, row);
    }
    for (; old > place; --old)
        list->removeWidget(firstRow + old - 1, false);
    for (; place < end; ++place) {
        QStringList row = rowFor(rows.at(place), firstRow + place);
        list->insertWidget(firstRow + place, row, false, false);
    }
}
