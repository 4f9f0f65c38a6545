// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/pickertable.h"

#include "base/hostcompat.h"
#include "compat.h"

#include <QDateTime>
#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>

namespace {

const int nameColumn = 0;
const int sizeColumn = 1;
const int dateColumn = 2;
const int columns = 3;
/// As the library has its rows.
const int rowHeight = 50;
const int headerHeight = 28;
const int gap = 12;
const int bytesPerKilobyte = 1024;

/// Where the number that begins at \a begin ends; without its leading zeros it begins at \a first.
int endOfNumber(const QString &text, int begin, int *first)
{
    *first = begin;
    while (*first < text.size() && text.at(*first) == QLatin1Char('0'))
        ++*first;
    int end = *first;
    while (end < text.size() && text.at(end).isDigit())
        ++end;
    return end;
}

/// Less than 0, 0 or more, as \a a stands before, with or behind \a b.
int compare(const QString &a, const QString &b)
{
    int i = 0;
    int j = 0;
    while (i < a.size() && j < b.size()) {
        if (!a.at(i).isDigit() || !b.at(j).isDigit()) {
            const int left = a.at(i++).toCaseFolded().unicode();
            const int right = b.at(j++).toCaseFolded().unicode();
            if (left != right)
                return left - right;
            continue;
        }
        int first = 0;
        int second = 0;
        const int end = endOfNumber(a, i, &first);
        const int otherEnd = endOfNumber(b, j, &second);
        if (end - first != otherEnd - second)
            return (end - first) - (otherEnd - second);
        const int order = a.mid(first, end - first).compare(b.mid(second, otherEnd - second));
        if (order != 0)
            return order;
        i = end;
        j = otherEnd;
    }
    const int rest = (a.size() - i) - (b.size() - j);
    return rest != 0 ? rest : a.compare(b);
}

int textWidth(const QTableWidget *table, const QString &text)
{
    return table->fontMetrics().width(text) + gap;
}

} // namespace

PickerTable::PickerTable(QTableWidget *table, QObject *parent) : QObject(parent), m_table(table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *size = table->item(row, sizeColumn);
        const Entry entry = {table->item(row, nameColumn)->text(),
                             size ? size->text() : QString(),
                             QString(),
                             0,
                             0,
                             0};
        m_entries.append(entry);
    }
    table->setColumnCount(columns);
    retranslate();
    table->horizontalHeader()->setFixedHeight(headerHeight);
    table->setColumnWidth(sizeColumn, textWidth(table, QLatin1String("88888 KB")));
    table->setColumnWidth(dateColumn, textWidth(table, QLatin1String("2026-08-28 08:08")));
    table->verticalHeader()->setDefaultSectionSize(rowHeight);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    // Two names may differ at the end alone.
    table->setTextElideMode(Qt::ElideMiddle);
    setRecent(QStringList());
}

/// The library's own labels go with the first clear() of its table.
void PickerTable::retranslate()
{
    m_table->setHorizontalHeaderLabels(QStringList() << tr("Name") << tr("Size") << tr("Changed"));
}

void PickerTable::setNames(const QStringList &names)
{
    m_entries.clear();
    for (int i = 0; i < names.size(); ++i) {
        const Entry entry = {names.at(i), QString(), QString(), 0, 0, 0};
        m_entries.append(entry);
    }
    setRecent(m_recent);
}

void PickerTable::setRecent(const QStringList &names)
{
    m_recent = names;
    for (int i = 0; i < m_entries.size(); ++i) {
        const int rank = names.indexOf(m_entries.at(i).name);
        m_entries[i].rank = rank < 0 ? names.size() : rank;
    }
}

void PickerTable::setOrder(Order order)
{
    m_order = order;
}

void PickerTable::setFilter(const QString &part)
{
    m_filter = part.trimmed();
}

void PickerTable::setListing(const ProgramListing &listing)
{
    for (int i = 0; i < m_entries.size(); ++i) {
        Entry &entry = m_entries[i];
        const ProgramListing::Entry known = listing.entries().value(entry.name);
        entry.size = known.size;
        // The library says its own.
        if (entry.sizeText.isEmpty())
            entry.sizeText =
                tr("%1 KB").arg((known.size + bytesPerKilobyte - 1) / bytesPerKilobyte);
        entry.written = known.written;
        entry.dateText = known.written == 0 ? QString()
                                            : QDateTime::fromMSecsSinceEpoch(known.written)
                                                  .toString(QLatin1String("yyyy-MM-dd HH:mm"));
    }
}

void PickerTable::showDates(bool isWanted)
{
    m_table->setColumnHidden(dateColumn, !isWanted);
}

bool PickerTable::isBefore(const Entry &a, const Entry &b, Order order)
{
    if (order == LastUsed && a.rank != b.rank)
        return a.rank < b.rank;
    if (order == ByDate && a.written != b.written)
        return a.written > b.written;
    if (order == BySize && a.size != b.size)
        return a.size > b.size;
    return compare(a.name, b.name) < 0;
}

/// Nobody hears of the single cells: with thousands of rows that would take seconds.
void PickerTable::fill()
{
    const Order order = m_order;
    std::sort(m_entries.begin(), m_entries.end(),
              [order](const Entry &a, const Entry &b) { return isBefore(a, b, order); });
    QVector<const Entry *> shown;
    m_shown.clear();
    for (int i = 0; i < m_entries.size(); ++i) {
        const Entry &entry = m_entries.at(i);
        if (!entry.name.contains(m_filter, Qt::CaseInsensitive))
            continue;
        shown.append(&entry);
        m_shown.append(entry.name);
    }
    const HostCompat::SignalBlocker selecting(m_table);
    m_table->clearSelection();
    m_table->setRowCount(shown.size());
    {
        const HostCompat::SignalBlocker telling(m_table->model());
        for (int row = 0; row < shown.size(); ++row) {
            setText(row, nameColumn, shown.at(row)->name);
            setText(row, sizeColumn, shown.at(row)->sizeText);
            setText(row, dateColumn, shown.at(row)->dateText);
        }
    }
    m_table->scrollToTop();
    m_table->viewport()->update();
}

void PickerTable::setText(int row, int column, const QString &text)
{
    QTableWidgetItem *item = m_table->item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        if (column != nameColumn)
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_table->setItem(row, column, item);
    }
    item->setText(text);
}

void PickerTable::mark(const QString &name)
{
    const HostCompat::SignalBlocker blocker(m_table);
    const int row = m_shown.indexOf(name);
    if (row < 0) {
        m_table->clearSelection();
        return;
    }
    m_table->setCurrentCell(row, nameColumn);
    m_table->scrollToItem(m_table->item(row, nameColumn));
}

QStringList PickerTable::allNames() const
{
    QStringList names;
    for (int i = 0; i < m_entries.size(); ++i)
        names.append(m_entries.at(i).name);
    return names;
}
