// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/narrowrows.h"

#include "dataeditor.h"
#include "mjline.h"
#include "tlistwidget.h"

#include <QChildEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

#include <algorithm>

namespace {

const int letterPixels = 12;
// Beside the text of a cell: its border, and for a field what the toolkit leaves free.
const int labelMargin = 3;
const int fieldMargin = 4;

// Cells of a line, in their order.
const int nameCell = 1;
const int firstGiver = 2;

QList<QWidget *> cellsOf(const QLayout *layout)
{
    QList<QWidget *> cells;
    for (int i = 0; layout && i < layout->count(); ++i) {
        if (QWidget *cell = layout->itemAt(i)->widget())
            cells.append(cell);
    }
    return cells;
}

/// The sheets of the cells take no letters from the list around them.
void useSmallLetters(QWidget *cell)
{
    QFont font = cell->font();
    font.setPixelSize(letterPixels);
    cell->setFont(font);
}

/// The name gets what it lacks from the cells behind it.
void widenName(const QLayout *layout, const QString &longestName)
{
    const QList<QWidget *> cells = cellsOf(layout);
    std::for_each(cells.begin(), cells.end(), &useSmallLetters);
    if (cells.size() <= firstGiver)
        return;
    QWidget *name = cells.at(nameCell);
    const int needed = name->fontMetrics().horizontalAdvance(longestName) + 2 * labelMargin;
    int lack = qMax(0, needed - name->minimumWidth());
    name->setFixedWidth(name->minimumWidth() + lack);
    for (int i = firstGiver; i < cells.size(); ++i) {
        const int part = lack / (cells.size() - i);
        cells.at(i)->setFixedWidth(cells.at(i)->minimumWidth() - part);
        lack -= part;
    }
}

int neededBy(const QLineEdit *field)
{
    return field->fontMetrics().horizontalAdvance(field->text()) + 2 * fieldMargin;
}

/// All of the line keeps its width.
void divide(const QList<QLineEdit *> &line)
{
    int width = 0;
    int needed = 0;
    for (const QLineEdit *field : line) {
        width += field->minimumWidth();
        needed += neededBy(field);
    }
    int left = width;
    for (int i = 0; i < line.size(); ++i) {
        const int rest = line.size() - i;
        const int fair = neededBy(line.at(i)) + (width - needed) / line.size();
        // What no cell has room for is cut at the end of the line.
        const int given = rest == 1 ? left : qBound(0, fair, left);
        line.at(i)->setFixedWidth(needed <= width ? given : left / rest);
        left -= line.at(i)->minimumWidth();
    }
}

/// The two lines of an open row, or none before it is opened.
QList<QList<QLineEdit *>> detailLines(const MJLine *row)
{
    QList<QList<QLineEdit *>> lines;
    const QList<QLayout *> layouts = row->findChildren<QLayout *>();
    for (const QLayout *layout : layouts) {
        QList<QLineEdit *> line;
        for (QWidget *cell : cellsOf(layout)) {
            if (QLineEdit *field = qobject_cast<QLineEdit *>(cell))
                line.append(field);
        }
        // The first line of a row has two of them, and a text one.
        if (line.size() > 2)
            lines.append(line);
    }
    return lines;
}

} // namespace

NarrowRows::NarrowRows(TListWidget *list, const QString &longestName)
    : QObject(list), m_list(list), m_longestName(longestName)
{
    list->installEventFilter(this);
    if (MJLine *title = qobject_cast<MJLine *>(list->itemAt(0)))
        adopt(title);
}

void NarrowRows::adopt(MJLine *line) const
{
    widenName(line->firstLine()->layout(), m_longestName);
    widenName(line->dataEditor()->layout(), m_longestName);
}

/// An open row is higher than it was.
bool NarrowRows::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::ChildPolished) {
        MJLine *line = qobject_cast<MJLine *>(static_cast<QChildEvent *>(event)->child());
        if (line && line != m_list->itemAt(0)) {
            adopt(line);
            line->installEventFilter(this);
        }
    }
    MJLine *line = event->type() == QEvent::Resize ? qobject_cast<MJLine *>(watched) : nullptr;
    if (line && line->isExpanded())
        followFields(line);
    return false;
}

void NarrowRows::followFields(MJLine *row)
{
    for (const QList<QLineEdit *> &line : detailLines(row)) {
        std::for_each(line.begin(), line.end(), &useSmallLetters);
        divide(line);
        for (QLineEdit *field : line) {
            connect(field, &QLineEdit::textChanged, this, &NarrowRows::fitAround,
                    Qt::UniqueConnection);
            connect(field, &QLineEdit::cursorPositionChanged, this, &NarrowRows::showBeginning,
                    Qt::UniqueConnection);
            field->setCursorPosition(0);
        }
    }
}

void NarrowRows::fitAround()
{
    QLineEdit *changed = static_cast<QLineEdit *>(sender());
    const QWidget *at = changed;
    while (at && !qobject_cast<const MJLine *>(at))
        at = at->parentWidget();
    if (!at)
        return;
    for (const QList<QLineEdit *> &line : detailLines(static_cast<const MJLine *>(at))) {
        if (line.contains(changed))
            divide(line);
    }
}

/// Of a text that is too long. Who types sees the place of the cursor.
void NarrowRows::showBeginning()
{
    QLineEdit *field = static_cast<QLineEdit *>(sender());
    if (!field->hasFocus())
        field->setCursorPosition(0);
}
