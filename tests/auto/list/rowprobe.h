// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWPROBE_H
#define ROWPROBE_H

#include "dataeditor.h"
#include "rowview.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>

/// Reads and taps the row widgets of a list, whatever their class.
namespace RowProbe {

/// The cells of a table row from left to right.
inline QWidget *tableCell(DataEditor *table, int cell)
{
    return table->layout()->itemAt(cell)->widget();
}

/// The number that a row shows.
inline QString numberOf(QWidget *row)
{
    DataEditor *table = qobject_cast<DataEditor *>(row);
    if (MJLine *line = qobject_cast<MJLine *>(row)) {
        if (line->dataEditor()->isHidden())
            return RowView(line).text(RowView::Num);
        table = line->dataEditor();
    }
    return RowView::text(tableCell(table, 0));
}

/// A press and, if the widget is still there, a release. A press that a cell does not take reaches
/// the row, as on the panel.
inline void tap(QWidget *widget)
{
    const QPointer<QWidget> pressed(widget);
    const QPoint pos = widget->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    if (!pressed)
        return;
    QMouseEvent release(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

} // namespace RowProbe

#endif // ROWPROBE_H
