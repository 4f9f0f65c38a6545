// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWPROBE_H
#define ROWPROBE_H

#include "dataeditor.h"
#include "listwidget.h"
#include "mjline.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>

/// Reaches the cells of row widgets by where they stand in the layouts, reads them and taps them.
namespace RowProbe {

/// The cells of an instruction row's first line.
enum FirstLineCell { NumCell, InsCell, JposCell, VCell, ZCell, TCell, FirstLineCells };
/// The fields of the detail area; 0 to 8 are the detail values.
enum DetailField { ResField = 9, ArrowField = 10, DetailFields };

inline QWidget *widgetIn(QLayout *layout, int index)
{
    QLayoutItem *item = layout ? layout->itemAt(index) : nullptr;
    return item ? item->widget() : nullptr;
}

inline QWidget *firstLineCell(MJLine *line, int cell)
{
    return widgetIn(line->firstLine()->layout(), cell);
}

inline QWidget *detailArea(MJLine *line)
{
    return widgetIn(line->layout(), 1);
}

/// Null until the row has been opened.
inline QWidget *detailField(MJLine *line, int field)
{
    QLayout *area = detailArea(line)->layout();
    if (!area)
        return nullptr;
    if (field == ArrowField)
        return widgetIn(area, 0);
    QLayout *lines = area->itemAt(1)->layout();
    const int upperFields = 5;
    const bool isUpper = field < upperFields;
    return widgetIn(lines->itemAt(isUpper ? 0 : 1)->layout(),
                    isUpper ? field : field - upperFields);
}

/// The cells of a table row from left to right.
inline QWidget *tableCell(DataEditor *table, int cell)
{
    return widgetIn(table->layout(), cell);
}

inline QString text(QWidget *cell)
{
    if (const QLabel *label = qobject_cast<QLabel *>(cell))
        return label->text();
    if (const QLineEdit *edit = qobject_cast<QLineEdit *>(cell))
        return edit->text();
    return QString();
}

inline QString numberOf(QWidget *row)
{
    if (MJLine *line = qobject_cast<MJLine *>(row)) {
        if (line->dataEditor()->isHidden())
            return text(firstLineCell(line, NumCell));
        return text(tableCell(line->dataEditor(), 0));
    }
    if (DataEditor *table = qobject_cast<DataEditor *>(row))
        return text(tableCell(table, 0));
    return QString();
}

/// A press and a release. Presses that a cell does not take reach the row, as on the panel.
inline void tap(QWidget *widget)
{
    const QPoint pos = widget->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

} // namespace RowProbe

#endif // ROWPROBE_H
