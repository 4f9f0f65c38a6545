// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/tablepicker.h"

#include "filarixpanel.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/paneltable.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

const int valueWidth = 50;
const int rowMargin = 8;
const int narrowLines = 3;

bool isNarrow()
{
    return QGuiApplication::primaryScreen()->availableSize().width() < FilarixPanel::smallBelow;
}

/// The values below the name, each beside its key.
QString withValues(const TableEntry &entry, const QStringList &keys)
{
    QStringList values;
    for (int i = 0; i < keys.size(); ++i)
        values.append(keys.at(i) + QChar(QChar::Nbsp) + entry.values.value(i));
    return entry.name + QChar(QChar::LineSeparator) + values.join(QLatin1String("  "));
}

} // namespace

TablePicker::TablePicker(const QString &title, const QStringList &keys,
                         const QList<TableEntry> &table, int current, QWidget *parent)
    : Dialog(parent), m_table(new PanelTable(table.size(), 2 + keys.size()))
{
    setTitle(title);
    QLabel *heading = new QLabel(title);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);

    m_table->setHorizontalHeaderLabels(QStringList() << tr("No.") << tr("Name") << keys);
    m_table->letChooseRow();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setDefaultSectionSize(valueWidth);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_table->setColumnWidth(0, Measures::touch());
    for (int row = 0; row < table.size(); ++row) {
        m_table->setItem(row, 0, new QTableWidgetItem(QString::number(row + 1)));
        const TableEntry &entry = table.at(row);
        m_table->setItem(row, 1,
                         new QTableWidgetItem(isNarrow() ? withValues(entry, keys) : entry.name));
        for (int i = 0; i < keys.size(); ++i)
            m_table->setItem(row, 2 + i, new QTableWidgetItem(entry.values.value(i)));
    }
    for (int i = 0; isNarrow() && i < keys.size(); ++i)
        m_table->setColumnHidden(2 + i, true);
    if (isNarrow())
        m_table->verticalHeader()->setDefaultSectionSize(
            narrowLines * m_table->fontMetrics().lineSpacing() + rowMargin);

    QPushButton *ok = new QPushButton(tr("OK"));
    QPushButton *cancel = new QPushButton(tr("Cancel"));
    ok->setEnabled(false);
    ok->setDefault(true);
    connect(m_table, &QTableWidget::itemSelectionChanged, ok, [ok] { ok->setEnabled(true); });
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    if (current >= 1 && current <= table.size())
        m_table->selectRow(current - 1);

    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(heading);
    column->addWidget(m_table, 1);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(ok);
    column->addLayout(buttons);
    const QSize panel = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(560, 430).boundedTo(panel - QSize(8, 8)));
}

int TablePicker::number() const
{
    const QList<QTableWidgetItem *> chosen = m_table->selectedItems();
    return chosen.isEmpty() ? 0 : chosen.first()->row() + 1;
}
