// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/figuregrid.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const int namePixels = 11;
const int valuePixels = 15;
const int largePixels = 18;

QLabel *label(int pixels, bool isBold)
{
    QLabel *label = new QLabel;
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setBold(isBold);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

FigureGrid::FigureGrid(int columns, bool isLarge, QWidget *parent)
    : QWidget(parent), m_columns(columns), m_isLarge(isLarge), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(8, 2, 8, 2);
    m_grid->setHorizontalSpacing(10);
    m_grid->setVerticalSpacing(isLarge ? 4 : 1);
    for (int i = 0; i < columns; ++i)
        m_grid->setColumnStretch(i, 1);
}

void FigureGrid::addCell()
{
    Cell cell;
    cell.place = new QWidget;
    cell.name = label(namePixels, false);
    cell.value = label(m_isLarge ? largePixels : valuePixels, true);
    QVBoxLayout *column = new QVBoxLayout(cell.place);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (m_isLarge)
        column->addStretch();
    column->addWidget(cell.name);
    column->addWidget(cell.value);
    if (m_isLarge)
        column->addStretch();
    m_grid->addWidget(cell.place, m_cells.size() / m_columns, m_cells.size() % m_columns);
    m_cells.append(cell);
}

void FigureGrid::setFigures(const QVector<CoilFigure> &figures)
{
    while (m_cells.size() < figures.size())
        addCell();
    for (int i = 0; i < m_cells.size(); ++i) {
        const Cell &cell = m_cells.at(i);
        cell.place->setVisible(i < figures.size());
        if (i >= figures.size())
            continue;
        cell.name->setText(figures.at(i).name);
        cell.value->setText(figures.at(i).text);
    }
}
