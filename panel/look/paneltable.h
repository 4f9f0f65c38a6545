// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELTABLE_H
#define PANELTABLE_H

#include "look/look.h"
#include "look/measures.h"

#include <QTableWidget>

/// A table to be read: no grid, no numbers beside the rows, and nothing in it can be typed over.
///
///     PanelTable *table = new PanelTable(0, 3);
///     table->letChooseRow();
class PanelTable : public QTableWidget
{
    Q_OBJECT

public:
    /// A row is as high as a thumb needs it, unless another height is given.
    PanelTable(int rows, int columns, int rowHeight = Measures::touch(), QWidget *parent = nullptr);

    /// A touch chooses a whole row, one at a time. Without it nothing can be chosen.
    void letChooseRow();
};

#endif // PANELTABLE_H
