// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/programlist.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const int nameColumn = 0;
const int sizeColumn = 1;
const int dateColumn = 2;
const int columns = 3;
const int cellGap = 14;
const int wordsMargin = 12;
/// A name that is longer is cut in its middle before dates and sizes make way for it.
const int longestName = 24;

} // namespace

ProgramList::ProgramList(ProgramFolder *folder, QWidget *parent)
    : QWidget(parent)
    , m_folder(folder)
    , m_table(new PanelTable(0, columns))
    , m_rows(new PickerTable(m_table, this))
    , m_words(new QLabel)
{
    m_rows->setOrder(PickerTable::ByName);
    m_table->setAccessibleName(tr("Programs"));
    m_table->letChooseRow();
    m_table->verticalHeader()->setDefaultSectionSize(Measures::touch());
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    m_table->installEventFilter(this);
    // The table itself is told before its inner part has the new size.
    m_table->viewport()->installEventFilter(this);
    m_words->setObjectName(QLatin1String("listWords"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_words->setAlignment(Qt::AlignCenter);
    m_words->setMargin(wordsMargin);
    m_words->setAutoFillBackground(true);
    m_words->setBackgroundRole(QPalette::Base);
    QVBoxLayout *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_table);
    column->addWidget(m_words);
    connect(m_folder, &ProgramFolder::changed, this, &ProgramList::takeFolder);
    connect(m_table, &QTableWidget::itemSelectionChanged, this, &ProgramList::takeRow);
    connect(m_table, &QTableWidget::cellActivated, this, &ProgramList::openWanted);
    showWords();
}

ProgramListing::Entry ProgramList::entryOf(const QString &name) const
{
    return m_folder->isKnown() ? m_folder->contents().listing->entries().value(name)
                               : ProgramListing::Entry();
}

void ProgramList::showHeads(bool isWanted)
{
    m_table->horizontalHeader()->setVisible(isWanted);
}

/// The rows keep their place under the finger.
void ProgramList::takeFolder()
{
    if (m_folder->isKnown()) {
        const int place = m_table->verticalScrollBar()->value();
        m_isFilling = true;
        m_rows->setNames(m_folder->contents().names);
        m_rows->setListing(*m_folder->contents().listing);
        m_rows->fill();
        m_rows->mark(m_chosen);
        m_isFilling = false;
        m_table->verticalScrollBar()->setValue(place);
        fitColumns();
    }
    showWords();
    const ProgramListing::Entry entry = entryOf(m_chosen);
    if (m_chosen.isEmpty() || (entry.size == m_entry.size && entry.written == m_entry.written))
        return;
    m_entry = entry;
    Q_EMIT chosenChanged();
}

void ProgramList::takeRow()
{
    const QList<QTableWidgetItem *> items = m_table->selectedItems();
    if (m_isFilling || items.isEmpty())
        return;
    const QString name = m_table->item(items.first()->row(), nameColumn)->text();
    if (name == m_chosen)
        return;
    m_chosen = name;
    m_entry = entryOf(name);
    Q_EMIT chosenChanged();
}

void ProgramList::choose(const QString &name)
{
    const QString known = m_rows->shownNames().contains(name) ? name : QString();
    m_rows->mark(known);
    if (known == m_chosen)
        return;
    m_chosen = known;
    m_entry = entryOf(known);
    Q_EMIT chosenChanged();
}

void ProgramList::showWords()
{
    const QString text = words();
    m_words->setText(text);
    m_words->setVisible(!text.isEmpty());
    m_table->setVisible(text.isEmpty());
}

QString ProgramList::words() const
{
    if (m_folder->isOverdue())
        return tr("The panel's storage does not answer. The programs come once it does.");
    if (!m_folder->isKnown())
        return tr("Reading the programs ...");
    const ProgramFolder::Contents &contents = m_folder->contents();
    if (!contents.error.isEmpty())
        return tr("The folder of the programs cannot be read: %1.").arg(contents.error);
    if (contents.names.isEmpty())
        return tr("No programs yet. Write one on the screen Program, or bring some from the stick "
                  "by I/E.");
    return QString();
}

/// The date makes way first, for names that would lose a part, and then the size.
void ProgramList::fitColumns()
{
    const QFontMetrics metrics = m_table->fontMetrics();
    const int size = metrics.horizontalAdvance(QLatin1String("88888 KB")) + cellGap;
    const int date = metrics.horizontalAdvance(QLatin1String("2026-08-28 08:08")) + cellGap;
    int name = 0;
    for (const QString &shown : m_rows->shownNames())
        name = qMax(name, metrics.horizontalAdvance(shown.left(longestName)) + cellGap);
    const int room = m_table->viewport()->width();
    m_table->setColumnWidth(sizeColumn, size);
    m_table->setColumnWidth(dateColumn, date);
    m_table->setColumnHidden(sizeColumn, room < name + size);
    m_rows->showDates(room >= name + size + date);
}

bool ProgramList::eventFilter(QObject *watched, QEvent *event)
{
    if ((event->type() == QEvent::Resize && watched == m_table->viewport())
        || (event->type() == QEvent::FontChange && watched == m_table))
        fitColumns();
    return QWidget::eventFilter(watched, event);
}

void ProgramList::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_rows->retranslate();
        m_table->setAccessibleName(tr("Programs"));
        showWords();
    }
    QWidget::changeEvent(event);
}
