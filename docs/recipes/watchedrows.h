// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WATCHEDROWS_H
#define WATCHEDROWS_H

#include "fillrows.h"

#include <QVBoxLayout>

#include <guards/fittedlist.h>
#include <guards/rowwatcher.h>

//! [watched rows]
/// A titled list of taught rows that fills the screen it stands on, and says what its operator
/// edits.
class TaughtScreen : public QWidget
{
    Q_OBJECT

public:
    explicit TaughtScreen(const QList<QStringList> &rows, QWidget *parent = nullptr)
        : QWidget(parent)
        , m_fitted(new FittedList(
              FilarixRows::titleRow(tr("Instr."), tr("Point"), tr("Speed"), "Z", "T")))
    {
        (new QVBoxLayout(this))->addWidget(m_fitted);
        fillRows(m_fitted->list(), rows);
        connect(new RowWatcher(m_fitted->list(), this), SIGNAL(rowEdited(int, QStringList)),
                SIGNAL(edited(int, QStringList)));
    }

    TListWidget *list() const { return m_fitted->list(); }

Q_SIGNALS:
    /// The row of index \a row holds \a content now.
    void edited(int row, const QStringList &content);

private:
    FittedList *m_fitted;
};
//! [watched rows]

#endif // WATCHEDROWS_H
