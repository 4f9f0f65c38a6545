// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FIGUREGRID_H
#define FIGUREGRID_H

#include "winding/coilfigures.h"

#include <QList>
#include <QWidget>

class QGridLayout;
class QLabel;

/// Figures side by side: what each is, small, over its value.
class FigureGrid : public QWidget
{
    Q_OBJECT

public:
    /// \a columns is how many stand side by side; \a isLarge for a grid that fills a screen.
    FigureGrid(int columns, bool isLarge, QWidget *parent = nullptr);

    void setFigures(const QVector<CoilFigure> &figures);

private:
    struct Cell
    {
        QWidget *place;
        QLabel *name;
        QLabel *value;
    };

    void addCell();

    const int m_columns;
    const bool m_isLarge;
    QGridLayout *m_grid;
    QList<Cell> m_cells;
};

#endif // FIGUREGRID_H
