// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWLIST_P_H
#define ROWLIST_P_H

#include "listwidget.h"

#include <QList>

namespace RowList {

/// Empties a stack and hides it. The rows live on as its children, for somebody may still hold one;
/// hidden, so that none shows through beside the rows that follow.
inline void clear(ListWidget *list)
{
    QList<QWidget *> rows;
    for (int i = 0; i < list->count(); ++i)
        rows.append(list->itemAt(i));
    // First of all: a stack on the screen would lay out all that is left after each row.
    list->hide();
    list->clear();
    Q_FOREACH (QWidget *row, rows)
        row->hide();
}

} // namespace RowList

#endif // ROWLIST_P_H
