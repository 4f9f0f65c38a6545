// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TABLEPICKER_H
#define TABLEPICKER_H

#include "dialog.h"
#include "screens/machinedata.h"

class PanelTable;

/// Lets the operator choose an entry of a shared table.
class TablePicker : public Dialog
{
    Q_OBJECT

public:
    /// \a current is the number of the entry that is chosen at first; 0 for none.
    TablePicker(const QString &title, const QStringList &keys, const QList<TableEntry> &table,
                int current, QWidget *parent = nullptr);

    /// Number of the chosen entry, counted from 1; 0 while none is.
    int number() const;

private:
    PanelTable *m_table;
};

#endif // TABLEPICKER_H
