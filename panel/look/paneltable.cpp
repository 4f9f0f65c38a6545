// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/paneltable.h"

#include <QHeaderView>

PanelTable::PanelTable(int rows, int columns, int rowHeight, QWidget *parent)
    : QTableWidget(rows, columns, parent)
{
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Tab leads on, and the arrows lead from row to row.
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(rowHeight);
}

void PanelTable::letChooseRow()
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    horizontalHeader()->setHighlightSections(false);
}
