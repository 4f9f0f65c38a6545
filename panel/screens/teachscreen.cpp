// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/teachscreen.h"

#include "dataeditor.h"
#include "filarixpanel.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "mjline.h"
#include "screens/machinedata.h"
#include "screens/movementlimits.h"
#include "screens/pathpicker.h"
#include "screens/tablepicker.h"
#include "screens/taughtprogram.h"
#include "tlistwidget.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>

namespace {

const int usualKeyColumns = 2;
// A panel with room for a line of the four that page beside the list.
const int roomy = 1000;
const int roomyKeyColumns = 4;
const int keysInALine = 9;
// On a panel narrower than a line of them.
const int keysInAShortLine = 5;

// What messages about numbers that may not be are about.
const QLatin1String refusedNumbers("refused numbers");

int keyColumns(int width)
{
    if (width < FilarixPanel::smallBelow)
        return keysInAShortLine;
    if (width < FilarixPanel::wideFrom)
        return keysInALine;
    return width < roomy ? usualKeyColumns : roomyKeyColumns;
}

QIcon libraryIcon(const char *name)
{
    return QIcon(QString::fromLatin1(":/images/%1.png").arg(QLatin1String(name)));
}

} // namespace

/// A table of the machine's, and the list's way to the number by which an instruction names an
/// entry.
struct TeachScreen::SharedTable
{
    QStringList keys;
    QList<TableEntry> entries;
    int (TListWidget::*numberIn)(int row) const;
    void (TListWidget::*write)(int row, QStringList &values);
};

/// An entry that the operator chose, and how many instructions name it now. 0 is no choice.
struct TeachScreen::Choice
{
    int number = 0;
    QString name;
    int rows = 0;
};

TeachScreen::TeachScreen(const QSize &surface, const QString &folder, MachineData *machine,
                         QWidget *parent)
    : ListScreen(surface, TaughtProgram::titleRow(), keyColumns(surface.width()),
                 new RowKeeper(QLatin1String("Taught program"), &TaughtProgram::load), parent)
    , m_folder(folder)
    , m_file(QDir(folder).filePath(QLatin1String("program.teach")))
    , m_machine(machine)
{
    addPagingKeys();
    connect(addKey(libraryIcon("insert"), [] { return tr("Joint"); }), &PanelKey::clicked, this,
            [this] { insertMovement(QLatin1String("MJ")); });
    connect(addKey(libraryIcon("insert"), [] { return tr("Line"); }), &PanelKey::clicked, this,
            [this] { insertMovement(QLatin1String("ML")); });
    connect(addKey(libraryIcon("insert"), [] { return tr("Other"); }), &PanelKey::clicked, this,
            [this] { insert(TaughtProgram::command(tr("G04 F1 wait"))); });
    connect(addKey(libraryIcon("delete"), [] { return tr("Delete"); }), &PanelKey::clicked, this,
            &TeachScreen::removeChosen);
    m_selectKey = addKey(Glyphs::icon(Glyphs::Select, Glyphs::OnKey), [] { return tr("Select"); });
    m_selectKey->setCheckable(true);
    connect(m_selectKey, &PanelKey::toggled, this, [this](bool several) {
        if (several)
            list()->setMultiSelect();
        else
            list()->clearMultiSelect();
    });

    connect(list(), &TListWidget::clicked, this, &TeachScreen::followRow);
    connect(list(), &TListWidget::sg_jpos_update, this, &TeachScreen::choosePoint);
    connect(list(), &TListWidget::sg_v_update, this, &TeachScreen::chooseSpeed);
    connect(list(), &TListWidget::sg_item_deleted, this, &TeachScreen::showClearing);

    connect(new MovementLimits(list(), this), &MovementLimits::refused, this,
            &TeachScreen::tellRefused);

    setLoading(true);
    loadFirst();
}

void TeachScreen::tellRefused(const QString &text)
{
    Q_EMIT told(text, Message::Warning, refusedNumbers);
}

void TeachScreen::tellFault()
{
    const MovementLimits::Fault fault = MovementLimits::firstFault(rows());
    if (fault.row >= 0)
        tellRefused(fault.text);
}

/// Nobody shall find a number in the file that the machine must not have.
bool TeachScreen::mayStore()
{
    const MovementLimits::Fault fault = MovementLimits::firstFault(rows());
    if (fault.row < 0)
        return true;
    bringIntoView(fault.row + firstRow());
    tellRefused(tr("Not stored. %1").arg(fault.text));
    return false;
}

void TeachScreen::noteStore()
{
    Q_EMIT causeEnded(refusedNumbers);
}

/// Rows that make way for those of a file are nothing to tell of.
void TeachScreen::showClearing(int percent)
{
    if (!isLoading())
        Q_EMIT worked(tr("Clearing: %1 %").arg(percent), percent);
}

void TeachScreen::loadFirst()
{
    keeper()->load(m_file, [this](const RowKeeper::Loaded &loaded) { showFirst(loaded); });
}

/// A program that nobody can read is not taken for one that isn't there. There are no rows then,
/// not those of the sample, and the file stays until the operator stores.
void TeachScreen::showFirst(const RowKeeper::Loaded &loaded)
{
    const bool isNew = loaded.state == RowKeeper::Loaded::Missing;
    setRows(isNew ? TaughtProgram::sample(*m_machine) : loaded.rows);
    setLoading(false);
    markStored(rows());
    tellUnread(loaded, tr("The list is empty. Store first puts that file aside."),
               tr("The list is empty. Try Load."));
    tellFault();
}

/// The list never fills its title row again. The title's cells are those of the row without its
/// first two words, its kind and its number.
void TeachScreen::retranslate()
{
    QStringList cells = TaughtProgram::titleRow();
    cells[0].clear();
    cells[1].clear();
    if (MJLine *title = qobject_cast<MJLine *>(list()->itemAt(0)))
        title->dataEditor()->setData(cells);
}

QString TeachScreen::title() const
{
    return QFileInfo(m_file).fileName();
}

QString TeachScreen::filePath() const
{
    return m_file;
}

QList<PanelKey *> TeachScreen::keys()
{
    PanelKey *loadKey = new PanelKey(Glyphs::icon(Glyphs::Load), [] { return tr("Load"); });
    PanelKey *storeKey = new PanelKey(Glyphs::icon(Glyphs::Store), [] { return tr("Store"); });
    PanelKey *clearKey = new PanelKey(Glyphs::icon(Glyphs::Clear), [] { return tr("Clear"); });
    connect(loadKey, &PanelKey::clicked, this, &TeachScreen::askAndLoad);
    connect(storeKey, &PanelKey::clicked, this, &TeachScreen::store);
    connect(clearKey, &PanelKey::clicked, this, &TeachScreen::clear);
    return {whenLoaded(loadKey), whenLoaded(storeKey), whenLoaded(clearKey)};
}

bool TeachScreen::mayClose()
{
    return mayLoseProgram(tr("The taught program has changes that are not stored."));
}

QString TeachScreen::storedText(int count) const
{
    return tr("%1 stored, instructions: %2.").arg(title()).arg(count);
}

QString TeachScreen::fileCause() const
{
    return QLatin1String("teach");
}

void TeachScreen::load(const QString &path)
{
    if (keeper()->isBusy())
        return;
    setLoading(true);
    keeper()->load(path, [this, path](const RowKeeper::Loaded &loaded) { showRead(path, loaded); });
}

void TeachScreen::showRead(const QString &path, const RowKeeper::Loaded &loaded)
{
    const bool isRead = loaded.state == RowKeeper::Loaded::Read;
    if (isRead)
        showProgram(path, loaded.rows);
    setLoading(false);
    if (isRead)
        Q_EMIT told(tr("%1 loaded, instructions: %2.").arg(title()).arg(loaded.rows.size()),
                    Message::Information);
    else if (loaded.state == RowKeeper::Loaded::Missing)
        Q_EMIT told(tr("%1 is not there.").arg(path), Message::Warning);
    else
        Q_EMIT told(loaded.error, Message::Warning);
    if (isRead)
        tellFault();
}

void TeachScreen::showProgram(const QString &path, const QList<QStringList> &program)
{
    m_file = path;
    m_selectKey->setChecked(false);
    setRows(program);
    markStored(rows());
    Q_EMIT causeEnded(fileCause());
}

QString TeachScreen::nameOf(const QString &path) const
{
    return QFileInfo(path).fileName().simplified();
}

QString TeachScreen::describe(const QString &name, const QString &time, int count) const
{
    return tr("%1, %2, instructions: %3").arg(name, time).arg(count);
}

bool TeachScreen::bringBack(const QString &path, const QList<QStringList> &rows)
{
    if (!std::all_of(rows.begin(), rows.end(), TaughtProgram::isValid))
        return false;
    if (path != m_file && QFileInfo(path).path() == QFileInfo(m_file).path()) {
        m_file = path;
        // The rows of that file were never shown.
        markStored(QList<QStringList>());
    }
    m_selectKey->setChecked(false);
    setRows(rows);
    refreshStatus();
    Q_EMIT titleChanged();
    return true;
}

void TeachScreen::askAndLoad()
{
    if (!mayLoseProgram(tr("Loading replaces what was changed and is not stored.")))
        return;
    const QString path = PathPicker::pick(tr("Load a taught program"), m_folder);
    if (!path.isEmpty())
        load(path);
}

void TeachScreen::clear()
{
    const int count = list()->count() - firstRow();
    const int answer =
        QMessageBox::question(nullptr, tr("Clear"), tr("Remove all %1 instructions?").arg(count),
                              QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    m_selectKey->setChecked(false);
    list()->clear();
    Q_EMIT told(tr("Instructions removed: %1. Load brings the stored ones back.").arg(count),
                Message::Information);
    refreshStatus();
}

void TeachScreen::insertMovement(const QString &kind)
{
    insert(TaughtProgram::movement(kind, tr("Move"), m_machine->currentPoint(), 1, *m_machine));
}

/// Below the current row, and in view.
void TeachScreen::insert(QStringList row)
{
    const int index = qMin(list()->getCurIndex() + 1, list()->count());
    row[1] = QString::number(index);
    m_selectKey->setChecked(false);
    list()->insertWidget(index, row, true, false);
    const int page = list()->getListPos(index);
    if (page < firstRow() || !list()->itemAt(page) || !list()->itemAt(page)->isVisible())
        list()->nextLine();
    refreshStatus();
}

void TeachScreen::removeChosen()
{
    const int current = list()->getCurIndex();
    const int other = list()->isMultiSelect() ? list()->getLastIndex() : current;
    const int from = qMax(firstRow(), qMin(current, other));
    const int to = qMin(list()->count() - 1, qMax(current, other));
    if (from > to) {
        Q_EMIT told(tr("There is no instruction to delete."), Message::Information);
        return;
    }
    m_selectKey->setChecked(false);
    for (int row = to; row >= from; --row)
        list()->removeWidget(row, row == from);
    refreshStatus();
}

void TeachScreen::choosePoint(int row)
{
    const Choice choice = choose(row, tr("Point for instruction %1").arg(row),
                                 {MachineData::pointKeys(), m_machine->points(),
                                  &TListWidget::getJposIndex, &TListWidget::setJpos});
    if (choice.number == 0)
        return;
    m_machine->setCurrentPoint(choice.number);
    tellChoice(tr("Instructions that now name point %1 \"%2\": %3."), choice);
}

void TeachScreen::chooseSpeed(int row)
{
    const Choice choice = choose(row, tr("Speed for instruction %1").arg(row),
                                 {MachineData::speedKeys(), m_machine->speeds(),
                                  &TListWidget::getVIndex, &TListWidget::setV});
    if (choice.number != 0)
        tellChoice(tr("Instructions that now name speed %1 \"%2\": %3."), choice);
}

/// What an instruction names is shared: a choice goes to every row that names the same.
TeachScreen::Choice TeachScreen::choose(int row, const QString &title, const SharedTable &table)
{
    Choice choice;
    const int old = (list()->*table.numberIn)(row);
    TablePicker picker(title, table.keys, table.entries, old);
    if (picker.exec() != QDialog::Accepted || picker.number() == 0)
        return choice;
    choice.number = picker.number();
    const TableEntry &entry = table.entries.at(choice.number - 1);
    choice.name = entry.name;
    QStringList values = entry.values;
    values.append(QString::number(choice.number));
    for (int i = firstRow(); i < list()->count(); ++i) {
        if (i != row && (old < 1 || (list()->*table.numberIn)(i) != old))
            continue;
        (list()->*table.write)(i, values);
        ++choice.rows;
    }
    list()->reshow();
    refreshStatus();
    return choice;
}

void TeachScreen::tellChoice(const QString &text, const Choice &choice)
{
    Q_EMIT told(text.arg(choice.number).arg(choice.name).arg(choice.rows), Message::Information);
}

/// Tag on the program screen copies the point of the instruction that was touched last.
void TeachScreen::followRow(int row)
{
    m_machine->setCurrentPoint(list()->getJposIndex(row));
}

bool TeachScreen::mayLoseProgram(const QString &question)
{
    return mayLoseChanges(tr("Taught program"), question);
}
