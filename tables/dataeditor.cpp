// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dataeditor.h"

#include "rowfield_p.h"
#include "rowgeometry_p.h"
#include "rowstyle_p.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QRegExpValidator>

namespace {

// A row is divided in elevenths. The number takes one, the second column one, two or nine, and the
// other columns share what is left.
const float oneEleventh = 11.0f;
const float twoElevenths = 5.5f;
const float nineElevenths = 1.2222222f; // 11 / 9

const int sharedCount = 4;    // strings of a row whose second cell is shared
const int wideTitleCount = 8; // a title row of more strings is wide: it shows every second one
const int cellsStart = 2;     // the column of m_cells[0]
const int lastColumn = 31;

const char ipPattern[] =
    "(\\d{1,2}|1\\d\\d|2[0-4]\\d|25[0-5])[.](\\d{1,2}|1\\d\\d|2[0-4]\\d|25[0-5])"
    "[.](\\d{1,2}|1\\d\\d|2[0-4]\\d|25[0-5])[.](\\d{1,2}|1\\d\\d|2[0-4]\\d|25[0-5])";

/// How many cells of the kind that follows the second would fill the row.
float furtherRatio(int count, bool isTitle, bool connectionRow)
{
    if (!connectionRow && count == sharedCount)
        return float((count - 3) * 11 * 1.03 * 0.125);
    if (!connectionRow && isTitle && count > wideTitleCount)
        return float((count - 3) * 11 * 0.125 * 0.5);
    return float((count - 2) * 11 / 9.0);
}

} // namespace

DataEditor::DataEditor(bool isTitle, QStringList &list, QSize size, QWidget *parent,
                       bool connectionRow)
    : QWidget(parent)
    , m_isTitle(isTitle)
    , m_firstCell(nullptr)
    , m_secondCell(nullptr)
    , m_count(list.size())
    , m_cells()
    , m_size(size)
{
    QHBoxLayout *layout = new QHBoxLayout;
    layout->setAlignment(Qt::AlignLeft);
    layout->setSpacing(0);
    layout->setContentsMargins(RowGeometry::sideMargin, 0, RowGeometry::sideMargin, 0);

    createFirstCells(list, connectionRow);
    layout->addWidget(m_firstCell);
    layout->addWidget(m_secondCell);
    const int step = m_isTitle && m_count > wideTitleCount ? 2 : 1;
    for (int column = firstFurtherColumn(); column < m_count && column <= lastColumn;
         column += step) {
        createFurtherCell(column, list.at(column), connectionRow);
        layout->addWidget(cellAt(column));
    }

    setLayout(layout);
    setStyleSheet(QLatin1String(RowStyle::plainRow));
    setFixedHeight(RowGeometry::rowHeight(m_size.height()));
    setFocusPolicy(Qt::ClickFocus);
}

DataEditor::~DataEditor() = default;

bool DataEditor::sharesSecondCell() const
{
    return m_count == sharedCount || (m_isTitle && m_count > wideTitleCount);
}

int DataEditor::firstFurtherColumn() const
{
    return sharesSecondCell() ? 3 : 2;
}

void DataEditor::createFirstCells(const QStringList &list, bool connectionRow)
{
    const bool isPlainDataRow = !m_isTitle && m_count != sharedCount && !connectionRow;
    const QString style = QLatin1String(RowStyle::cell);
    CreateWidget(&m_firstCell, isPlainDataRow ? RowField::ClickableLabel : RowField::PassiveLabel,
                 list.value(0), style, oneEleventh);

    if (sharesSecondCell())
        CreateWidget(&m_secondCell, RowField::PassiveLabel,
                     list.at(2).isEmpty() ? list.at(1) : list.at(2), style, twoElevenths);
    else if (m_count == 2)
        CreateWidget(&m_secondCell, m_isTitle ? RowField::PassiveLabel : RowField::NumberField,
                     list.at(1), style, nineElevenths);
    else
        CreateWidget(&m_secondCell, RowField::PassiveLabel, list.value(1), style, oneEleventh);
}

void DataEditor::createFurtherCell(int column, const QString &text, bool connectionRow)
{
    QWidget **cell = &m_cells[column - cellsStart];
    const bool isAddress = connectionRow && column == m_count - 1;
    const bool isPassive = connectionRow ? !isAddress : m_isTitle && m_count != sharedCount;
    CreateWidget(cell, isPassive ? RowField::PassiveLabel : RowField::NumberField, text,
                 QLatin1String(RowStyle::cell), furtherRatio(m_count, m_isTitle, connectionRow));
    if (isAddress) {
        QLineEdit *edit = static_cast<QLineEdit *>(*cell);
        edit->setValidator(new QRegExpValidator(QRegExp(QLatin1String(ipPattern)), edit));
    }
}

void DataEditor::CreateWidget(QWidget **out, int type, QString text, QString style, float ratio)
{
    int fieldType = type;
    if (type == RowField::NumberField && (m_count == 2 || m_count == 4 || m_count == 6))
        fieldType = RowField::TextField; // such rows hold names and texts
    else if (type == RowField::TextField)
        fieldType = RowField::Area;

    QWidget *cell = RowField::create(this, fieldType, text,
                                     RowGeometry::cellWidth(m_size.width(), ratio), style);
    *out = cell;
    if (type == RowField::ClickableLabel || type == RowField::NumberField)
        connect(cell, SIGNAL(clicked()), this, SLOT(on_editfinished()));
    if (type == RowField::NumberField)
        connect(cell, SIGNAL(changed(QString)), this, SLOT(on_content_change(QString)));
}

QWidget *DataEditor::cellAt(int column) const
{
    const int i = column - cellsStart;
    return i < maxCells ? m_cells[i] : nullptr;
}

QStringList DataEditor::getData()
{
    QStringList texts;
    texts << getText(m_firstCell);
    if (sharesSecondCell())
        texts << QString();
    texts << getText(m_secondCell);
    for (int column = firstFurtherColumn(); column < m_count; ++column)
        texts << getText(cellAt(column));
    while (texts.size() > m_count)
        texts.removeLast();
    return texts;
}

QString DataEditor::secondText(const QStringList &list) const
{
    if (!sharesSecondCell())
        return list.value(1);
    const QString &name = list.at(1);
    const QString &value = list.at(2);
    if (!name.isEmpty() && !value.isEmpty())
        return name + QLatin1Char(':') + value;
    return name.isEmpty() ? value : name;
}

void DataEditor::setData(QStringList &list)
{
    if (list.size() != m_count)
        return;
    setText(m_firstCell, list.value(0));
    setText(m_secondCell, secondText(list));
    for (int column = firstFurtherColumn(); column < m_count; ++column)
        setText(cellAt(column), list.at(column));
}

void DataEditor::setIndex(QString text)
{
    setText(m_firstCell, text);
}

void DataEditor::setText(QWidget *cell, QString text)
{
    RowField::setText(cell, text);
}

QString DataEditor::getText(QWidget *cell)
{
    return RowField::text(cell);
}

bool DataEditor::isTitle() const
{
    return m_isTitle;
}

int DataEditor::rowNumber()
{
    QString text = getText(m_firstCell);
    if (text.startsWith(QLatin1Char('N')))
        text.remove(0, 1);
    return text.toInt();
}

void DataEditor::on_editfinished()
{
    Q_EMIT clicked(rowNumber());
}

void DataEditor::on_content_change(const QString &)
{
    Q_EMIT sg_content_change(rowNumber());
}

void DataEditor::mousePressEvent(QMouseEvent *event)
{
    QWidget::mousePressEvent(event);
    Q_EMIT clicked(rowNumber());
}
