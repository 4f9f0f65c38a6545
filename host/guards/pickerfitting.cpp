// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/pickerfitting.h"

#include "base/hostcompat.h"
#include "guards/pickerfacts.h"
#include "guards/pickerstrip.h"
#include "guards/pickertable.h"
#include "programs/recentprograms.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableWidget>

namespace {

// Beyond that, what belongs together stands too far apart.
const QSize largest(800, 800);
const int gap = 4;
/// A table of less width shows no dates.
const int datesFrom = 460;
/// A dialog of less width or height shows no heads, one of less width has the name above the keys.
const int headsFrom = 300;
/// Beside the table, or below it where the screen is upright.
const int facts = 230;
const int narrowFacts = 158;
const int factsHeight = 130;
/// Of a program that is written there is less to know, and a low screen has few rows.
const int lowSaveFactsHeight = 70;
const int lowBelow = 600;
/// A row, for what the guard says above the table.
const int leastTable = 52;
const int narrowBelow = 600;
const int factsPixels = 16;
const int narrowFactsPixels = 14;

/// Where the library puts its table, and below it the field and the keys.
const int tableRow = 1;
const int keyRow = 2;

bool isMove(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
           || key == Qt::Key_PageDown || key == Qt::Key_Home || key == Qt::Key_End;
}

} // namespace

PickerFitting::PickerFitting(QDialog *dialog, WindowDialogs::Picker picker, const QString &folder,
                             const MachineProfile &profile, RecentPrograms *recent)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_picker(picker)
    , m_field(dialog->findChild<QLineEdit *>())
    , m_table(dialog->findChild<QTableWidget *>())
    , m_recent(recent)
    , m_strip(new PickerStrip(picker, dialog))
    , m_rows(new PickerTable(m_table, this))
    , m_facts(new PickerFacts(folder, profile, picker == WindowDialogs::SavePicker, dialog))
    , m_listing(std::make_shared<ProgramListing>(folder, m_rows->allNames()))
{
    if (recent)
        m_rows->setRecent(recent->names());
    layOut();
    refill();
    // The library gives its keypad the dialog in the place of the field.
    dialog->setProperty("hmiName", tr("Program name"));
    m_field->setAccessibleName(tr("Program name"));
    m_table->setAccessibleName(tr("Programs"));
    m_table->installEventFilter(this);
    connect(m_strip, SIGNAL(orderChosen()), SLOT(sort()));
    connect(m_strip, SIGNAL(filterChanged()), SLOT(filter()));
    connect(m_strip, SIGNAL(pageWanted(int)), SLOT(turnPage(int)));
    connect(m_strip, SIGNAL(listWanted()), SLOT(goToList()));
    connect(m_table, SIGNAL(currentCellChanged(int, int, int, int)), SLOT(followKeys(int)));
    connect(m_table->verticalScrollBar(), SIGNAL(valueChanged(int)), SLOT(showPaging()));
    connect(m_table->verticalScrollBar(), SIGNAL(rangeChanged(int, int)), SLOT(showPaging()));
    connect(m_field, SIGNAL(textChanged(QString)), SLOT(follow(QString)));
    if (recent)
        connect(recent, SIGNAL(changed()), SLOT(takeRecent()));
    connect(&m_listingRunner, SIGNAL(ended()), SLOT(takeListing()));
    m_listingRunner.start(m_listing);
    HostCompat::callLater(this, [this] { m_isShowing = false; });
}

PickerTable::Order PickerFitting::order() const
{
    return m_strip->order();
}

void PickerFitting::setOrder(PickerTable::Order order)
{
    m_strip->setOrder(order);
}

void PickerFitting::layOut()
{
    const QSize panel = QApplication::desktop()->availableGeometry(-1).size();
    const QSize size = panel.boundedTo(largest);
    const bool isUpright = size.width() < size.height();
    const int factsWidth = size.width() < narrowBelow ? narrowFacts : facts;
    const int tableWidth = size.width() - (isUpright ? 0 : factsWidth + gap) - 2 * gap;
    m_rows->showDates(tableWidth >= datesFrom);
    m_table->horizontalHeader()->setVisible(qMin(size.width(), size.height()) >= headsFrom);
    m_table->setMinimumHeight(leastTable);
    m_strip->fit(size.width());

    QGridLayout *grid = static_cast<QGridLayout *>(m_dialog->layout());
    grid->setContentsMargins(gap, gap, gap, gap);
    grid->setSpacing(gap);
    grid->setMenuBar(m_strip);
    grid->removeWidget(m_table);
    QBoxLayout *middle =
        new QBoxLayout(isUpright ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    middle->setSpacing(gap);
    middle->addWidget(m_table, 1);
    middle->addWidget(m_facts);
    // What has no room is cut: facts must never push the list away.
    const bool isLowSave = m_picker == WindowDialogs::SavePicker && size.height() < lowBelow;
    if (isUpright)
        m_facts->setFixedHeight(isLowSave ? lowSaveFactsHeight : factsHeight);
    else
        m_facts->setFixedWidth(factsWidth);
    if (isLowSave)
        m_facts->setRoom(PickerFacts::AsManyAsFit);
    QFont font = m_facts->font();
    font.setPixelSize(factsWidth == facts ? factsPixels : narrowFactsPixels);
    font.setBold(false);
    m_facts->setFont(font);
    m_facts->setSizePolicy(isUpright ? QSizePolicy::Ignored : QSizePolicy::Fixed,
                           isUpright ? QSizePolicy::Fixed : QSizePolicy::Ignored);
    QVBoxLayout *upper = new QVBoxLayout;
    upper->setSpacing(gap);
    upper->addLayout(middle, 1);
    if (size.width() < headsFrom)
        upper->addLayout(takeNameRow(grid));
    grid->addLayout(upper, tableRow, 0);
    // The dialog's other children were shown before.
    m_strip->show();
    m_facts->show();
    m_dialog->resize(size);
}

/// "Name:" and its field out of the row of the keys, where they would have no room.
QLayout *PickerFitting::takeNameRow(const QGridLayout *grid) const
{
    QHBoxLayout *row = new QHBoxLayout;
    row->setSpacing(gap);
    QLayout *keys = grid->itemAtPosition(keyRow, 0)->layout();
    QWidget *const parts[] = {m_dialog->findChild<QLabel *>(), m_field};
    for (QWidget *part : parts) {
        keys->removeWidget(part);
        row->addWidget(part);
    }
    return row;
}

void PickerFitting::refill()
{
    m_rows->fill();
    m_rows->mark(m_field->text());
    m_strip->setCount(m_rows->shownNames().size(), m_rows->allNames().size());
    showPaging();
}

void PickerFitting::takeListing()
{
    m_rows->setListing(*m_listing);
    if (m_picker != WindowDialogs::OpenPicker && !m_listing->isWritable())
        m_strip->setReadOnly();
    refill();
}

void PickerFitting::takeRecent()
{
    m_rows->setRecent(m_recent->names());
    refill();
}

void PickerFitting::sort()
{
    m_rows->setOrder(m_strip->order());
    refill();
    m_table->scrollToTop();
}

/// A program that is the only one left is what the operator looked for. Names to be written to or
/// to be removed are touched on purpose.
void PickerFitting::filter()
{
    m_rows->setFilter(m_strip->filter());
    refill();
    const QStringList shown = m_rows->shownNames();
    if (m_picker == WindowDialogs::OpenPicker && shown.size() == 1)
        m_field->setText(shown.first());
}

void PickerFitting::turnPage(int direction)
{
    m_table->verticalScrollBar()->triggerAction(direction < 0 ? QAbstractSlider::SliderPageStepSub
                                                              : QAbstractSlider::SliderPageStepAdd);
}

void PickerFitting::showPaging()
{
    const QScrollBar *bar = m_table->verticalScrollBar();
    m_strip->setPaging(bar->value() > bar->minimum(), bar->value() < bar->maximum());
}

void PickerFitting::goToList()
{
    m_table->setFocus();
    if (m_picker == WindowDialogs::OpenPicker)
        take(qMax(0, m_table->currentRow()));
}

void PickerFitting::take(int row)
{
    if (const QTableWidgetItem *item = m_table->item(row, 0))
        m_field->setText(item->text());
}

/// The library hears of touches alone.
void PickerFitting::followKeys(int row)
{
    if (m_isMoving)
        take(row);
}

void PickerFitting::follow(const QString &name)
{
    // The file that the library proposes was chosen by nobody.
    if (m_isShowing && m_picker == WindowDialogs::RemovePicker && !name.isEmpty())
        return m_field->clear();
    m_rows->mark(name);
    m_facts->tell(name);
}

/// What is typed into the list is looked for. A row that is reached by keys is chosen, but none
/// that merely gets the focus: the operator's own name would go.
bool PickerFitting::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const QKeyEvent *key = static_cast<QKeyEvent *>(event);
    if (isMove(key->key())) {
        m_isMoving = true;
        HostCompat::callLater(this, [this] { m_isMoving = false; });
    }
    const QString text = key->text();
    if (text.isEmpty() || !text.at(0).isPrint() || text.at(0).isSpace()
        || (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        return false;
    m_strip->look(text);
    return true;
}
