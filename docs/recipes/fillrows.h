// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILLROWS_H
#define FILLROWS_H

#include "filarixrows.h"
#include "tlistwidget.h"

//! [fill rows]
/// Puts \a rows in place of what the list holds, its title left alone. Nothing is drawn before the
/// last row is in, and only a page of row widgets is ever made. So 100,000 rows take as long as it
/// takes to copy their texts.
inline void fillRows(TListWidget *list, const QList<QStringList> &rows)
{
    list->clear();
    for (int i = 0; i < rows.size(); ++i) {
        QStringList row = rows.at(i);
        list->addWidget(row, false, false);
    }
    QStringList none;
    list->addWidget(none, true, true);
    list->home();
}
//! [fill rows]

#endif // FILLROWS_H
