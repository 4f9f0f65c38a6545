// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_DATAEDITOR_H
#define FILARIX_DATAEDITOR_H

#include "filarixglobal.h"

#include <QSize>
#include <QStringList>
#include <QWidget>

/// One row of a table: a number, a name, and cells to read or to edit.
///
/// The number of strings given at construction fixes the row's shape for good. Editable cells open
/// an on-screen keypad when they are tapped. The first cell is the row's number, which the signals
/// carry. A leading "N" is dropped, and what is no number then counts as 0.
///
///     QStringList row = QStringList() << "1" << "Tension" << "25.0";
///     DataEditor *editor = new DataEditor(false, row, list->size(), list, false);
///     connect(editor, SIGNAL(sg_content_change(int)), this, SLOT(store(int)));
class FILARIX_EXPORT DataEditor : public QWidget
{
    Q_OBJECT

public:
    /// Builds the row from \a list, which should hold at least 2 strings; missing ones are empty.
    /// \a size is the size of the whole table in pixels, from which the cells' widths and the
    /// row's height follow. A title row has no editable cell, unless it has 4 strings: its last
    /// cell can be edited then. In a \a connectionRow only the last cell can, and takes an IP
    /// address.
    ///
    /// In a row of 4 strings, and in a title row of more than 8, the strings 1 and 2 share a cell.
    /// The cell shows string 2, or string 1 if string 2 is empty. A title row of more than 8
    /// strings has a cell for every second string only. Strings behind the 34th have no cell.
    DataEditor(bool isTitle, QStringList &list, QSize size, QWidget *parent, bool connectionRow);
    /// A row of a number, a name and one text to edit, 4 strings, for a table of 480 by 800 pixels.
    /// A form made with Qt Designer asks for such a row. \a row can give another shape.
    explicit DataEditor(QWidget *parent, QStringList row = QStringList() << QString() << QString()
                                                                         << QString() << QString())
        : DataEditor(false, row, QSize(480, 800), parent, false)
    {}
    ~DataEditor() override;

    /// Makes a cell and stores a pointer through \a out. \a type 0 is a clickable label, 1 a
    /// passive one, 2 a field to edit, any other an empty area. \a ratio is the number of such
    /// cells that would fill the table. The row owns the cell; it is not yet in the row's layout.
    void CreateWidget(QWidget **out, int type, QString text, QString style, float ratio);

    /// The cells' texts, as many strings as the row was made from. Where two strings share a cell
    /// the first comes back empty, and a string without a cell as well.
    QStringList getData();
    /// Writes the cells. A list of another length than the row was made from changes nothing. Where
    /// two strings share a cell and neither is empty, it shows both with ":" between.
    void setData(QStringList &list);
    /// Writes the first cell, the row's number.
    void setIndex(QString text);

    /// Writes a cell of this row. Null and an area are left alone.
    void setText(QWidget *cell, QString text);
    /// Reads a cell of this row. Empty for null and for an area.
    QString getText(QWidget *cell);

    /// Whether the row was made as a title.
    bool isTitle() const;

Q_SIGNALS:
    /// The row was tapped. The argument is the row's number.
    void clicked(int);
    /// An edit was accepted; the cell holds it already. The argument is the row's number.
    void sg_content_change(int);

public Q_SLOTS:
    /// A cell was tapped: emits clicked().
    void on_editfinished();
    /// The argument is ignored: what the keypad wrote into the cell stays.
    void on_content_change(const QString &);

protected:
    /// A tap beside the cells: emits clicked().
    void mousePressEvent(QMouseEvent *event) override;

private:
    static const int maxCells = 32;

    bool sharesSecondCell() const;
    int firstFurtherColumn() const;
    QString secondText(const QStringList &list) const;
    void createFirstCells(const QStringList &list, bool connectionRow);
    void createFurtherCell(int column, const QString &text, bool connectionRow);
    QWidget *cellAt(int column) const;
    int rowNumber();

    bool m_isTitle;
    QWidget *m_firstCell;
    QWidget *m_secondCell;
    int m_count;
    QWidget *m_cells[maxCells]; // column i stands at i - 2; null where there is no cell
    QSize m_size;
};

#endif // FILARIX_DATAEDITOR_H
