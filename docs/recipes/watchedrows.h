// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WATCHEDROWS_H
#define WATCHEDROWS_H

#include "fillrows.h"

#include <QLayout>

#include <guards/fittedlist.h>
#include <guards/rowwatcher.h>

//! [watched rows]
/// Adds a titled list of taught rows to \a layout. The list fills its place there. Each edit of the
/// operator's calls the slot rowEdited(int, QStringList) of \a host: the row's index, and what the
/// row holds now.
inline TListWidget *addTaughtList(QLayout *layout, const QList<QStringList> &rows, QObject *host)
{
    const QStringList title = FilarixRows::titleRow("Instr.", "Point", "Speed", "Z", "T");
    FittedList *fitted = new FittedList(title);
    layout->addWidget(fitted);
    fillRows(fitted->list(), rows);
    QObject::connect(new RowWatcher(fitted->list(), fitted), SIGNAL(rowEdited(int, QStringList)),
                     host, SLOT(rowEdited(int, QStringList)));
    return fitted->list();
}
//! [watched rows]

#endif // WATCHEDROWS_H
