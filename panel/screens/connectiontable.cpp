// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/connectiontable.h"

#include "conneditor.h"
#include "dataeditor.h"
#include "display/surfaceloan.h"
#include "filarixpanel.h"
#include "listwidget.h"
#include "look/measures.h"

#include <QBoxLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

namespace {

// The library makes cells of 40 and 120 pixels for it, on each panel: the names take the rest.
const int libraryWidth = 480;
// The library divides the height that it sees by it.
const int rowsInHeight = 24;
const int widestName = 220;
const int narrowestName = 96;
const int portPixels = 60;
// Between the border of a cell and its text.
const int letterMargin = 3;
const int sideMargin = 6;
const int footMargin = 4;
// Heading, buttons and what lies between.
const int aroundRows = 110;
const int headingPixels = 18;
const int smallHeadingPixels = 15;
const QLatin1String longestAddress("255.255.255.255");
const char addressName[] = "hmiName";

// The library's columns, the least telling first, and the one that is edited.
const int cpuColumn = 2;
const int portColumn = 1;
const int baudColumn = 3;
const int cidColumn = 0;
const int addressColumn = 4;
const int columnsToHide[] = {cpuColumn, portColumn, baudColumn, cidColumn};

QSize panelSize()
{
    return QGuiApplication::primaryScreen()->availableSize();
}

bool isSmall()
{
    return panelSize().height() < FilarixPanel::smallBelow;
}

int touchHeight()
{
    return isSmall() ? Measures::touch() : Measures::glove();
}

QWidget *cell(const DataEditor *row, int column)
{
    return row->layout()->itemAt(column)->widget();
}

/// Before the row is shown: its cells have their widths, and none counts as hidden yet.
int cellsWidth(const DataEditor *row, const QList<int> &withoutColumns)
{
    int width = 0;
    for (int column = 0; column <= addressColumn; ++column)
        width += withoutColumns.contains(column) ? 0 : cell(row, column)->minimumWidth();
    return width;
}

/// What the names ask for, as far as there is room for it.
int namesWidth(const ConnectionFile::Contents &contents, const QFontMetrics &metrics)
{
    int widest = narrowestName;
    for (const ConnectionFile::Connection &connection : contents.connections)
        widest = qMax(widest, metrics.horizontalAdvance(connection.name) + 4 * letterMargin);
    return qMin(widest, widestName);
}

bool hasPorts(const ConnectionFile::Contents &contents)
{
    for (const ConnectionFile::Connection &connection : contents.connections) {
        if (!ConnectionFile::portOf(connection.address).isEmpty())
            return true;
    }
    return false;
}

QLabel *addLabel(DataEditor *row, int place, const QString &text, int width)
{
    QLabel *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(label->fontMetrics().elidedText(text, Qt::ElideRight, width - 2 * letterMargin));
    label->setFixedWidth(width);
    // The sheet of the row gives the label the border of the other cells.
    static_cast<QBoxLayout *>(row->layout())->insertWidget(place, label);
    return label;
}

DataEditor *rowAt(const ListWidget *rows, int index)
{
    return static_cast<DataEditor *>(rows->itemAt(index));
}

} // namespace

ConnectionTable::ConnectionTable(const QString &path, const ConnectionFile::Contents &contents,
                                 const Texts &texts)
    : m_contents(contents)
{
    {
        const SurfaceLoan loan(rowsInHeight * touchHeight(), libraryWidth);
        m_editor.reset(new ConnEditor(path, nullptr));
        m_editor->init_list();
    }
    m_rows = static_cast<ListWidget *>(m_editor->findChild<QScrollArea *>()->widget());
    dress(texts);
}

ConnectionTable::~ConnectionTable() = default;

bool ConnectionTable::exec()
{
    return m_editor->exec() == QDialog::Accepted;
}

void ConnectionTable::dress(const Texts &texts)
{
    widenAddresses();
    m_editor->setFixedHeight(qMin(m_editor->height(), panelSize().height()));
    const bool hasBar = m_rows->height() > m_editor->height() - aroundRows;
    const int bar = hasBar ? m_editor->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    const QMargins row = rowAt(m_rows, 0)->layout()->contentsMargins();
    const int around = 2 * sideMargin + bar + row.left() + row.right();
    const int heading = m_rows->fontMetrics().horizontalAdvance(texts.ports) + 4 * letterMargin;
    m_portsWidth = hasPorts(m_contents) ? qMax(portPixels, heading) : 0;
    const int wanted = around + widestName + cellsWidth(rowAt(m_rows, 0), {}) + m_portsWidth;
    const int width = qMin(wanted, panelSize().width());
    hideColumns(width - around);
    dressRow(0, texts.names, texts.ports);
    for (int i = 0; i < qMin(m_rows->count() - 1, m_contents.connections.size()); ++i) {
        const ConnectionFile::Connection &connection = m_contents.connections.at(i);
        dressRow(i + 1, connection.name, ConnectionFile::portOf(connection.address));
        if (connection.address.isEmpty())
            showUnset(i, texts.unset);
        watch(i);
    }
    m_editor->setFixedWidth(width);
    dressFrame(texts.heading);
}

/// The library's cell is too narrow for some of the addresses that it takes.
void ConnectionTable::widenAddresses()
{
    for (int i = 0; i < m_rows->count(); ++i) {
        QWidget *address = cell(rowAt(m_rows, i), addressColumn);
        const int letters = address->fontMetrics().horizontalAdvance(longestAddress);
        address->setFixedWidth(qMax(address->minimumWidth(), letters + 4 * letterMargin));
    }
}

/// What tells an operator least gives way to the names, and the ports go last.
void ConnectionTable::hideColumns(int room)
{
    const DataEditor *first = rowAt(m_rows, 0);
    QList<int> hidden;
    const auto left = [&] { return room - cellsWidth(first, hidden) - m_portsWidth; };
    const int names = namesWidth(m_contents, m_rows->fontMetrics());
    for (int column : columnsToHide) {
        if (left() < names)
            hidden.append(column);
    }
    if (left() < narrowestName)
        m_portsWidth = 0;
    m_namesWidth = qBound(1, left(), widestName);
    for (int i = 0; i < m_rows->count(); ++i) {
        for (int column : qAsConst(hidden))
            cell(rowAt(m_rows, i), column)->hide();
    }
}

void ConnectionTable::dressRow(int index, const QString &name, const QString &port)
{
    DataEditor *row = rowAt(m_rows, index);
    if (m_portsWidth > 0)
        addLabel(row, addressColumn + 1, port, m_portsWidth)->setObjectName(QLatin1String("port"));
    addLabel(row, 0, name, m_namesWidth)->setObjectName(QLatin1String("connectionName"));
}

/// The library shows an address of its own where none is stored.
void ConnectionTable::showUnset(int number, const QString &text)
{
    QLineEdit *field = rowAt(m_rows, number + 1)->findChild<QLineEdit *>();
    field->clear();
    QLabel *unset = new QLabel(text, field);
    unset->setObjectName(QLatin1String("unset"));
    unset->setTextFormat(Qt::PlainText);
    unset->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The sheet of the library's field gives all that lies in it a border of its own.
    unset->setStyleSheet(QLatin1String("border: 0"));
    unset->setIndent(letterMargin);
    // In some languages it takes two lines.
    unset->setWordWrap(true);
    QHBoxLayout *line = new QHBoxLayout(field);
    // The field's border stays in sight.
    line->setContentsMargins(1, 1, 1, 1);
    line->addWidget(unset);
    connect(field, &QLineEdit::textChanged, unset,
            [unset](const QString &address) { unset->setVisible(address.isEmpty()); });
}

/// An answer counts although it is the address that was shown: that may be a default, which the
/// file does not hold yet.
void ConnectionTable::watch(int number)
{
    DataEditor *row = rowAt(m_rows, number + 1);
    QLineEdit *field = row->findChild<QLineEdit *>();
    const QString name = m_contents.connections.at(number).name;
    field->setProperty(addressName, name);
    field->setAccessibleName(name);
    connect(row, &DataEditor::sg_content_change, this,
            [this, row, number] { m_changes.insert(number, row->getData().last()); });
}

/// The edge of the dialog is drawn beside the rows, and a heading stands above them.
void ConnectionTable::dressFrame(const QString &heading)
{
    QLabel *title = new QLabel(heading);
    title->setObjectName(QLatin1String("heading"));
    // A strip above the dialog shows it instead, where there is one.
    m_editor->setWindowTitle(heading);
    QFont font = title->font();
    font.setPixelSize(isSmall() ? smallHeadingPixels : headingPixels);
    font.setBold(true);
    title->setFont(font);
    QVBoxLayout *column = static_cast<QVBoxLayout *>(m_editor->layout());
    column->setContentsMargins(sideMargin, footMargin, sideMargin, footMargin + sideMargin / 2);
    column->setSpacing(footMargin);
    column->insertWidget(0, title);
    m_editor->findChild<QScrollArea *>()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QList<QPushButton *> buttons = m_editor->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        button->setFixedHeight(touchHeight());
        button->setFixedWidth(qMin(button->width(), (m_editor->width() - 3 * sideMargin) / 2));
    }
}
