// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/teachscreen.h"

#include "dataeditor.h"
#include "filarixpanel.h"
#include "filarixrows.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "mjline.h"
#include "programs/programname.h"
#include "screens/machinedata.h"
#include "screens/movementlimits.h"
#include "screens/narrowrows.h"
#include "screens/pathpicker.h"
#include "screens/rowchange.h"
#include "screens/rowdetails.h"
#include "screens/tablepicker.h"
#include "screens/taughtdetails.h"
#include "screens/taughtprogram.h"
#include "tlistwidget.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>

#include <algorithm>
#include <memory>

namespace {

const int usualKeyColumns = 3;
// On a panel whose display is too fine for three, with so many lines above one another.
const int fewKeyColumns = 2;
const int linesOfFew = 7;
const int keysInALine = 8;
// On a panel that has the height for one line alone, its page key among them.
const int keysInTheOneLine = 9;
// On a panel narrower than a line of them.
const int keysInAShortLine = 5;
const int shortLines = 2;

// What messages about numbers that may not be are about.
const QLatin1String refusedNumbers("refused numbers");

bool isFlat(const QSize &surface)
{
    return surface.height() < FilarixPanel::smallBelow;
}

bool isNarrow(const QSize &surface)
{
    return surface.width() < FilarixPanel::smallBelow;
}

int keyColumns(const QSize &surface)
{
    if (isNarrow(surface))
        return keysInAShortLine;
    if (surface.width() < FilarixPanel::wideFrom)
        return isFlat(surface) ? keysInTheOneLine : keysInALine;
    return ListScreen::hasRoomForKeys(surface, usualKeyColumns) ? usualKeyColumns : fewKeyColumns;
}

/// 0 where there is room for all keys.
int keyLines(const QSize &surface)
{
    if (surface.width() >= FilarixPanel::wideFrom)
        return keyColumns(surface) == fewKeyColumns ? linesOfFew : 0;
    return isNarrow(surface) ? shortLines : isFlat(surface) ? 1 : 0;
}

QIcon ownIcon(Glyphs::Glyph glyph)
{
    return Glyphs::icon(glyph, Glyphs::OnKey);
}

} // namespace

/// The keys beside or below the list. The first four turn its pages, in the order of Turn.
enum TeachScreen::Key : int {
    First,
    Back,
    On,
    Last,
    Joint,
    Line,
    Text,
    Select,
    Copy,
    Paste,
    Up,
    Down,
    Delete,
    Undo,
    Clear
};

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
                         const QString &earlier, QWidget *parent)
    : ListScreen(surface, TaughtProgram::titleRow(), keyColumns(surface),
                 new RowKeeper(QLatin1String("Taught program"), &TaughtProgram::load), parent)
    , m_folder(folder)
    , m_earlier(earlier)
    , m_isNarrow(isNarrow(surface))
    , m_file(TaughtFolder::pathOf(folder, TaughtFolder::firstName()))
    , m_machine(machine)
    , m_limits(new MovementLimits(list(), this))
{
    if (m_isNarrow)
        new NarrowRows(list(), TaughtProgram::longestShortWord());
    addKeys(surface);
    connect(list(), &TListWidget::clicked, this, &TeachScreen::followRow);
    connect(list(), &TListWidget::sg_jpos_update, this, &TeachScreen::choosePoint);
    connect(list(), &TListWidget::sg_v_update, this, &TeachScreen::chooseSpeed);
    connect(list(), &TListWidget::sg_item_deleted, this, &TeachScreen::showClearing);
    connect(m_limits, &MovementLimits::refused, this, &TeachScreen::tellRefused);
    connect(m_limits, &MovementLimits::judged, this, &TeachScreen::noteEdit);
    if (details())
        connect(details(), &RowDetails::touched, this, &TeachScreen::editDetail);

    showLoading(true);
    loadFirst();
}

/// What is touched most comes first where keys take turns; elsewhere keys of a kind stand together.
void TeachScreen::addKeys(const QSize &surface)
{
    static const Key byUse[] = {Back, On,   Joint, Line,   Up,    Down, Delete, Undo,
                                Text, Copy, Paste, Select, First, Last, Clear};
    static const Key inLines[] = {First, Back,  On, Last, Joint,  Line, Text, Select,
                                  Copy,  Paste, Up, Down, Delete, Undo, Clear};
    static const Key inThrees[] = {First, Back, Up,    Last,   On,     Down, Joint, Line,
                                   Text,  Copy, Paste, Select, Delete, Undo, Clear};
    const int lines = keyLines(surface);
    const Key *order = lines > 0 ? byUse : inLines;
    if (keyColumns(surface) == usualKeyColumns)
        order = inThrees;
    if (lines > 0)
        setKeyLines(lines);
    std::for_each(order, order + Clear + 1, [this](Key key) { addKeyOf(key); });
}

void TeachScreen::addKeyOf(Key key)
{
    const struct
    {
        Key key;
        QIcon icon;
        const char *text;
        void (TeachScreen::*press)();
    } plans[] = {
        {Joint, ownIcon(Glyphs::Joint), "MoveJ", &TeachScreen::insertJoint},
        {Line, ownIcon(Glyphs::Line), "MoveL", &TeachScreen::insertLine},
        {Text, ownIcon(Glyphs::Insert), QT_TR_NOOP("Text"), &TeachScreen::insertText},
        {Copy, ownIcon(Glyphs::Copy), QT_TR_NOOP("Copy"), &TeachScreen::copyChosen},
        {Paste, ownIcon(Glyphs::Paste), QT_TR_NOOP("Paste"), &TeachScreen::paste},
        {Up, ownIcon(Glyphs::Up), QT_TR_NOOP("Up"), &TeachScreen::moveUp},
        {Down, ownIcon(Glyphs::Down), QT_TR_NOOP("Down"), &TeachScreen::moveDown},
        {Delete, ownIcon(Glyphs::Remove), QT_TR_NOOP("Delete"), &TeachScreen::removeChosen},
        {Undo, ownIcon(Glyphs::Undo), QT_TR_NOOP("Undo"), &TeachScreen::undo},
        {Clear, ownIcon(Glyphs::Clear), QT_TR_NOOP("Clear"), &TeachScreen::clear},
    };
    if (key <= Last)
        return addTurnKey(Turn(key));
    if (key == Select)
        return makeSelectKey();
    for (const auto &plan : plans) {
        if (plan.key != key)
            continue;
        const char *const text = plan.text;
        PanelKey *made = addKey(plan.icon, [text] { return tr(text); });
        connect(made, &PanelKey::clicked, this, plan.press);
        if (key == Paste)
            m_pasteKey = made;
        if (key == Undo)
            m_undoKey = made;
    }
}

void TeachScreen::makeSelectKey()
{
    m_selectKey = addKey(ownIcon(Glyphs::Select), [] { return tr("Select"); });
    m_selectKey->setCheckable(true);
    connect(m_selectKey, &PanelKey::toggled, this, [this](bool several) {
        if (several)
            list()->setMultiSelect();
        else
            list()->clearMultiSelect();
    });
}

void TeachScreen::showLoading(bool isLoading)
{
    setLoading(isLoading);
    showKeys();
}

/// A key that has nothing to do is off.
void TeachScreen::showKeys()
{
    m_pasteKey->setEnabled(!isLoading() && !m_copied.isEmpty());
    m_undoKey->setEnabled(!isLoading() && m_undo.isPossible());
    refreshDetails();
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
    // Under its new name the program is being stored already.
    if (m_storing)
        return false;
    const MovementLimits::Fault fault = MovementLimits::firstFault(rows());
    if (fault.row < 0)
        return true;
    bringIntoView(fault.row + firstRow());
    tellRefused(tr("Not stored. %1").arg(fault.text));
    return false;
}

void TeachScreen::noteEdit(bool isTaken)
{
    noteRows();
    if (isTaken && MovementLimits::firstFault(rows()).row < 0)
        Q_EMIT causeEnded(refusedNumbers);
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

void TeachScreen::setStallTime(int ms)
{
    m_stallTime = ms;
    m_adopting.setStallTime(ms);
    ListScreen::setStallTime(ms);
}

void TeachScreen::loadFirst()
{
    const std::shared_ptr<TaughtFolder::Adopting> task =
        std::make_shared<TaughtFolder::Adopting>(m_earlier, m_folder);
    connect(&m_adopting, &FileTaskRunner::ended, this,
            [this, task] { loadAdopted(task->adoption()); });
    connect(&m_adopting, &FileTaskRunner::stalled, this, &TeachScreen::loadUnadopted);
    m_adopting.start(task);
}

/// What hangs copies nothing any more. The next start goes on.
void TeachScreen::loadUnadopted()
{
    if (!m_earlier.isEmpty())
        Q_EMIT told(tr("The panel's storage does not answer: taught programs of %1 may be missing.")
                        .arg(m_earlier),
                    Message::Alarm, QLatin1String("storage"));
    TaughtFolder::Adoption none;
    none.first = m_file;
    loadAdopted(none);
}

void TeachScreen::loadAdopted(const TaughtFolder::Adoption &adoption)
{
    if (!adoption.copied.isEmpty())
        Q_EMIT told(tr("Taught programs are in %1 now, copied: %2. The old files stay.")
                        .arg(m_folder)
                        .arg(adoption.copied.size()),
                    Message::Information);
    if (!adoption.error.isEmpty())
        Q_EMIT told(adoption.error, Message::Warning);
    const QString path = adoption.first;
    if (QFileInfo(path).path() == m_folder)
        m_file = path;
    keeper()->load(path,
                   [this, path](const RowKeeper::Loaded &loaded) { showFirst(path, loaded); });
}

/// A program that nobody can read is not taken for one that isn't there. There are no rows then,
/// not those of the sample, and the file stays until the operator stores.
void TeachScreen::showFirst(const QString &path, const RowKeeper::Loaded &loaded)
{
    const bool isNew = loaded.state == RowKeeper::Loaded::Missing;
    setRows(isNew ? TaughtProgram::sample(*m_machine) : loaded.rows);
    setLoading(false);
    // A program that could only be read in its old place is not stored in the new one.
    markStored(path == m_file ? rows() : QList<QStringList>());
    m_undo.restart(state());
    showKeys();
    tellUnread(loaded, tr("The list is empty. Store first puts that file aside."),
               tr("The list is empty. Try Load."));
    tellFault();
}

QStringList TeachScreen::rowForList(const QStringList &row) const
{
    return TaughtProgram::shown(row, m_isNarrow);
}

QList<QStringList> TeachScreen::rows() const
{
    QList<QStringList> rows = ListScreen::rows();
    for (QStringList &row : rows)
        row = TaughtProgram::stored(row);
    return rows;
}

/// The list never fills its title row again. The title's cells are those of the row without its
/// first two words, its kind and its number.
void TeachScreen::retranslate()
{
    for (int row = firstRow(); row < list()->count(); ++row) {
        QStringList shown = rowForList(TaughtProgram::stored(list()->getContent(row)));
        list()->setContent(row, shown);
    }
    QStringList cells = TaughtProgram::titleRow();
    cells[0].clear();
    cells[1].clear();
    if (MJLine *title = qobject_cast<MJLine *>(list()->itemAt(0)))
        title->dataEditor()->setData(cells);
    refreshDetails();
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
    PanelKey *asKey = new PanelKey(Glyphs::icon(Glyphs::StoreAs), [] { return tr("Store as"); });
    connect(loadKey, &PanelKey::clicked, this, &TeachScreen::askAndLoad);
    connect(storeKey, &PanelKey::clicked, this, &TeachScreen::store);
    connect(asKey, &PanelKey::clicked, this, &TeachScreen::storeAs);
    return {whenLoaded(loadKey), whenLoaded(storeKey), whenLoaded(asKey)};
}

bool TeachScreen::mayClose()
{
    while (m_storing && m_storing->isBusy())
        m_storing->wait();
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
    if (keeper()->isBusy() || m_storing)
        return;
    showLoading(true);
    keeper()->load(path, [this, path](const RowKeeper::Loaded &loaded) { showRead(path, loaded); });
}

void TeachScreen::showRead(const QString &path, const RowKeeper::Loaded &loaded)
{
    const bool isRead = loaded.state == RowKeeper::Loaded::Read;
    if (isRead)
        showProgram(path, loaded.rows);
    showLoading(false);
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
    m_undo.restart(state());
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
    // Rows of another place get a name in this one: Store covers no program that they are none of.
    const QString name = QFileInfo(path).fileName();
    const QString here = TaughtFolder::pathOf(m_folder, name);
    if (here != m_file && ProgramName::complaint(name).isEmpty()) {
        m_file = here;
        // The rows of that file were never shown.
        markStored(QList<QStringList>());
    }
    m_selectKey->setChecked(false);
    QList<QStringList> named;
    for (const QStringList &row : rows)
        named.append(TaughtProgram::stored(row));
    setRows(RowChange::numbered(named));
    m_undo.restart(state());
    showKeys();
    refreshStatus();
    Q_EMIT titleChanged();
    tellFault();
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

/// The file of that name is looked at first: what stands there is covered at the operator's word.
void TeachScreen::storeAs()
{
    if (keeper()->isBusy() || m_storing || !mayStore())
        return;
    const QString name = askName();
    if (name.isNull())
        return;
    const QString complaint = ProgramName::complaint(name);
    if (!complaint.isEmpty())
        return Q_EMIT told(complaint, Message::Warning);
    const QString path = TaughtFolder::pathOf(m_folder, name.trimmed());
    if (path == m_file)
        return store();
    m_storing = new RowKeeper(QLatin1String("Taught program"), &TaughtProgram::load, this);
    m_storing->setStallTime(m_stallTime);
    m_storing->load(path,
                    [this, path](const RowKeeper::Loaded &there) { lookAndStore(path, there); });
}

/// Null when the operator gave none.
QString TeachScreen::askName() const
{
    const QString name = QFileInfo(m_file).completeBaseName();
    CharacterKeypad *keypad =
        HMIDeviceInfo::isTouchScreen() ? CharacterKeypad::instance() : nullptr;
    if (!keypad) {
        bool isGiven = false;
        const QString given = QInputDialog::getText(nullptr, tr("Store as"), tr("Name:"),
                                                    QLineEdit::Normal, name, &isGiven);
        return isGiven ? given : QString();
    }
    QLineEdit field(name);
    field.setProperty("hmiName", tr("Store as"));
    keypad->setObject(&field);
    keypad->setValidator(nullptr);
    keypad->setText(name);
    keypad->setShowType(0);
    return keypad->exec() == QDialog::Accepted ? field.text() : QString();
}

void TeachScreen::lookAndStore(const QString &path, const RowKeeper::Loaded &there)
{
    if (there.state == RowKeeper::Loaded::Stalled) {
        dropStoring();
        return Q_EMIT told(there.error, Message::Alarm, QLatin1String("storage"));
    }
    if (there.state != RowKeeper::Loaded::Missing && !mayCover(path, there))
        return dropStoring();
    storeAt(path);
}

bool TeachScreen::mayCover(const QString &path, const RowKeeper::Loaded &there) const
{
    const QString question =
        there.state == RowKeeper::Loaded::Read
            ? tr("%1 is there already, instructions: %2. Write over it?")
                  .arg(nameOf(path), QString::number(there.rows.size()))
            : tr("%1 is there already and cannot be read. Put it aside and store?")
                  .arg(nameOf(path));
    QMessageBox box(QMessageBox::Question, tr("Store as"), question,
                    QMessageBox::Yes | QMessageBox::No);
    // A name is no markup, whatever it looks like.
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

void TeachScreen::storeAt(const QString &path)
{
    const QList<QStringList> shown = rows();
    m_storing->store(path, shown, [this, path, shown](const RowKeeper::Stored &stored) {
        noteStoredAs(path, shown, stored);
    });
}

/// The program has its new name only once it is stored under it.
void TeachScreen::noteStoredAs(const QString &path, const QList<QStringList> &rows,
                               const RowKeeper::Stored &stored)
{
    if (!stored.isStored) {
        dropStoring();
        return noteStored(rows, stored);
    }
    m_file = path;
    takeKeeper(m_storing);
    m_storing = nullptr;
    noteStored(rows, stored);
}

void TeachScreen::dropStoring()
{
    m_storing->deleteLater();
    m_storing = nullptr;
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
    noteRows();
    list()->clear();
    noteRows();
    Q_EMIT told(tr("Instructions removed: %1. Undo brings them back.").arg(count),
                Message::Information);
    refreshStatus();
}

void TeachScreen::insertText()
{
    insert(TaughtProgram::command(tr("G04 F1 wait")));
}

void TeachScreen::insertMovement(const QString &kind)
{
    insert(TaughtProgram::movement(kind, m_machine->currentPoint(), 1, *m_machine));
}

/// Below the current row, and in view.
void TeachScreen::insert(const QStringList &row)
{
    const int index = qMin(list()->getCurIndex() + 1, list()->count());
    QList<QStringList> all = rows();
    all.insert(index - firstRow(), row);
    change(all, index);
}

TeachScreen::Range TeachScreen::chosen() const
{
    const int current = list()->getCurIndex();
    const int other = list()->isMultiSelect() ? list()->getLastIndex() : current;
    Range range;
    range.from = qMax(firstRow(), qMin(current, other));
    range.to = qMin(list()->count() - 1, qMax(current, other));
    return range;
}

RowUndo::State TeachScreen::state() const
{
    RowUndo::State state;
    state.rows = rows();
    state.current = list()->getCurIndex();
    return state;
}

/// Called before each change, for the current row, and behind it.
void TeachScreen::noteRows()
{
    m_undo.note(state());
    showKeys();
}

void TeachScreen::change(const QList<QStringList> &rows, int current)
{
    noteRows();
    m_selectKey->setChecked(false);
    closeRows();
    QList<QStringList> shown;
    for (const QStringList &row : rows)
        shown.append(rowForList(row));
    RowChange::apply(list(), shown);
    list()->setCurIndex(qBound(firstRow(), current, qMax(firstRow(), list()->count() - 1)), true);
    showRow(list()->getCurIndex());
    noteRows();
    refreshStatus();
}

void TeachScreen::copyChosen()
{
    const Range range = chosen();
    if (range.isEmpty())
        return Q_EMIT told(tr("There is no instruction to copy."), Message::Information);
    m_copied = rows().mid(range.from - firstRow(), range.size());
    m_selectKey->setChecked(false);
    // What is pasted follows what was copied.
    list()->setCurIndex(range.to, true);
    showKeys();
    Q_EMIT told(tr("Instructions copied: %1. Paste puts them below a row.").arg(range.size()),
                Message::Information);
}

void TeachScreen::paste()
{
    int index = qMin(list()->getCurIndex() + 1, list()->count());
    QList<QStringList> all = rows();
    for (const QStringList &row : qAsConst(m_copied))
        all.insert(index++ - firstRow(), row);
    change(all, index - 1);
}

/// The rows stay selected, so that one key moves them on.
void TeachScreen::moveChosen(int by)
{
    const Range range = chosen();
    const int over = by < 0 ? range.from - 1 : range.to + 1;
    if (range.isEmpty() || over < firstRow() || over >= list()->count())
        return;
    const bool several = list()->isMultiSelect();
    const int current = list()->getCurIndex() + by;
    const int other = list()->getLastIndex() + by;
    QList<QStringList> all = rows();
    all.move(over - firstRow(), (by < 0 ? range.to : range.from) - firstRow());
    change(RowChange::numbered(all), current);
    if (!several)
        return;
    list()->setCurIndex(other, true);
    m_selectKey->setChecked(true);
    list()->setCurIndex(current, true);
}

void TeachScreen::removeChosen()
{
    const Range range = chosen();
    if (range.isEmpty())
        return Q_EMIT told(tr("There is no instruction to delete."), Message::Information);
    QList<QStringList> all = rows();
    all.erase(all.begin() + range.from - firstRow(), all.begin() + range.to + 1 - firstRow());
    change(all, range.from);
    if (range.size() > 1)
        Q_EMIT told(tr("Instructions removed: %1. Undo brings them back.").arg(range.size()),
                    Message::Information);
}

void TeachScreen::undo()
{
    noteRows();
    if (!m_undo.isPossible())
        return;
    const RowUndo::State before = m_undo.takeBack();
    m_selectKey->setChecked(false);
    closeRows();
    QList<QStringList> shown;
    for (const QStringList &row : before.rows)
        shown.append(rowForList(row));
    RowChange::apply(list(), shown);
    list()->setCurIndex(before.current, true);
    showRow(before.current);
    showKeys();
    refreshStatus();
}

void TeachScreen::showDetails()
{
    QList<RowDetails::Detail> shown;
    m_positions.clear();
    const int row = list()->getCurIndex();
    if (isLoading())
        return details()->setDetails(QString());
    if (row >= list()->count())
        return details()->setDetails(
            list()->count() > firstRow()
                ? tr("No instruction is chosen. Touch one.")
                : tr("No instruction yet. MoveJ, MoveL and Text make one."));
    const QStringList content = TaughtProgram::stored(list()->getContent(row));
    const QList<TaughtDetails::Field> fields = TaughtDetails::fieldsOf(content, *m_machine);
    for (const TaughtDetails::Field &field : fields) {
        shown.append(field.detail);
        m_positions.append(field.position);
    }
    details()->setDetails(TaughtDetails::headingOf(content), shown);
}

/// On the same road as a touch in the row.
void TeachScreen::editDetail(int index)
{
    const int position = m_positions.value(index);
    const int row = list()->getCurIndex();
    const bool isMovement = FilarixRows::isInstruction(list()->typeAt(row));
    if (isMovement && position == FilarixRows::JposIndex)
        return list()->on_jpos_update(row);
    if (isMovement && position == FilarixRows::VIndex)
        return list()->on_v_update(row);
    const int place = list()->getListPos(row);
    if (place < firstRow() || place > pageRows())
        showRow(row);
    m_limits->open(row, position, details()->placeOf(index));
}

void TeachScreen::choosePoint(int row)
{
    refreshDetails();
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
    refreshDetails();
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
    noteRows();
    QStringList values = entry.values;
    values.append(QString::number(choice.number));
    for (int i = firstRow(); i < list()->count(); ++i) {
        if (i != row && (old < 1 || (list()->*table.numberIn)(i) != old))
            continue;
        (list()->*table.write)(i, values);
        ++choice.rows;
    }
    list()->reshow();
    noteRows();
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
