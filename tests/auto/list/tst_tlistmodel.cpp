// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds TListWidget, beside a plain model of it.

#include "devicelog.h"
#include "filarixtest.h"
#include "listmodel.h"
#include "rowfixture.h"
#include "rowprobe.h"
#include "tlistwidget.h"

#include <QDesktopWidget>

#include <random>

using namespace RowProbe;

namespace {

const char plainSheet[] =
    "border-style:solid;border-width: 1px; background-color:#ffffff;color: #000000;";
const char selectedSheet[] =
    "border-style:solid;border-width: 1px;background-color: #00ffff;color: #ffffff;";

class Random
{
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    /// 0 to \a n - 1.
    int below(int n) { return int(m_engine() % unsigned(n)); }
    int between(int first, int last) { return first + below(last - first + 1); }
    bool oneIn(int n) { return below(n) == 0; }

    QString pick(const char *const *texts, int count) { return QLatin1String(texts[below(count)]); }

private:
    std::mt19937 m_engine;
};

/// Notes what the list emits, in order.
class Recorder : public QObject
{
    Q_OBJECT

public:
    explicit Recorder(TListWidget *list)
    {
        connect(list, SIGNAL(clicked(int)), this, SLOT(clicked(int)));
        connect(list, SIGNAL(sg_jpos_update(int)), this, SLOT(jpos(int)));
        connect(list, SIGNAL(sg_v_update(int)), this, SLOT(v(int)));
        connect(list, SIGNAL(sg_item_deleted(int)), this, SLOT(deleted(int)));
    }

    QStringList emitted;

public Q_SLOTS:
    void clicked(int i) { emitted << QString("clicked %1").arg(i); }
    void jpos(int i) { emitted << QString("jpos %1").arg(i); }
    void v(int i) { emitted << QString("v %1").arg(i); }
    void deleted(int i) { emitted << QString("deleted %1").arg(i); }
};

enum Rows { InstructionRows, TableRows };

QStringList titleRow(Rows rows)
{
    return rows == InstructionRows ? RowFixture::columnTitle() : RowFixture::tableTitle();
}

/// One list and its model, going the same way.
class Walk
{
public:
    Walk(unsigned seed, Rows rows, bool titled, bool shown);

    /// Makes one random step with both; what went apart, or nothing.
    QString step();

private:
    typedef void (Walk::*Operation)();
    struct Choice
    {
        int weight;
        Operation operation;
    };

    int t() const { return m_model.hasTitle ? 1 : 0; }
    int anyRow() { return m_random.between(t(), m_model.count() - 1); }
    bool hasRows() const { return m_model.count() > t(); }
    QString word();
    QString numberText(int i);
    QStringList anyContent(int i);
    QStringList instructionContent(int i);
    QStringList otherContent(int i);
    QStringList tableContent(int i);
    QStringList group(int least);
    KeypadAnswer anyAnswer(bool numeric);
    int anyShownSlot(bool line);
    void note(const QString &operation)
    {
        m_done << operation;
        ++m_operations;
    }
    const Choice &choose();

    void append();
    void insert();
    void remove();
    void clear();
    void setContent();
    void setV();
    void setJpos();
    void setIndex();
    void turnPage();
    void moveLine();
    void goHomeOrToTheEnd();
    void setCurrent();
    void askCurrent();
    void multiSelect();
    void deselect();
    void redraw();
    void resize();
    void setTotalLine();
    void tapLine();
    void editLine();
    void tapTable();
    void editTable();

    QString compare();
    QString compareFields();
    QString compareStore();
    QString compareSlot(int slot);
    QString compareLine(MJLine *line, const LineModel &model);
    QString compareTable(DataEditor *table, const TableModel &model);
    QString compareGroups();

    Random m_random;
    Rows m_rows;
    QStringList m_titleForList;
    QStringList m_titleForModel;
    QSize m_screen;
    TListWidget m_list;
    ListModel m_model;
    Recorder m_recorder;
    QString m_trouble;  // found by an operation itself
    QStringList m_done; // the last ones
    int m_operations;
};

Walk::Walk(unsigned seed, Rows rows, bool titled, bool shown)
    : m_random(seed)
    , m_rows(rows)
    , m_titleForList(titled ? titleRow(rows) : QStringList())
    , m_titleForModel(m_titleForList)
    , m_screen(QApplication::desktop()->availableGeometry(-1).size())
    , m_list(m_titleForList, nullptr)
    , m_model(&m_titleForModel, m_screen)
    , m_recorder(&m_list)
    , m_operations(0)
{
    if (shown) {
        m_list.show();
        QApplication::processEvents();
    }
}

QString Walk::word()
{
    static const char *const words[] = {"",    "0",         "1",  "-2.5", "17",  "X",    "Y1",
                                        "a_b", "two words", "N4", "Oth",  "1e3", "0.10", "end"};
    return m_random.pick(words, sizeof words / sizeof *words);
}

/// Nearly always the number that a host has to give.
QString Walk::numberText(int i)
{
    if (m_random.oneIn(60))
        return word();
    // The instruction rows of a list without a title report themselves right without the letter.
    const bool isPrefixed = !m_model.hasTitle && (m_rows == TableRows || m_random.oneIn(3));
    return (isPrefixed ? "N" : "") + QString::number(i);
}

QStringList Walk::instructionContent(int i)
{
    static const char *const names[] = {"MOVJ", "MOVL", "WAIT", "", "CALL(3)", "Oth"};
    QStringList row;
    row << (m_random.oneIn(2) ? "MJ" : "ML") << numberText(i);
    row << m_random.pick(names, m_random.oneIn(10) ? 6 : 3);
    while (row.size() < 31)
        row << (m_random.oneIn(3) ? word() : QString::number(row.size()));
    if (m_random.oneIn(20))
        row[m_random.between(3, 30)] = "k:v";
    if (m_random.oneIn(20))
        row = row.mid(0, m_random.between(3, 30));
    return row;
}

QStringList Walk::otherContent(int i)
{
    QStringList row;
    if (m_random.oneIn(8)) { // a heading among the rows
        row << "Title" << (m_random.oneIn(2) ? QString("Title") : numberText(i));
        for (int k = m_random.between(7, 11); k > 0; --k)
            row << word();
        return row;
    }
    row << "Oth" << numberText(i) << (m_random.oneIn(4) ? word() : QString()) << "Oth" << word();
    if (m_random.oneIn(15)) { // another length than the editor that it meets
        for (int k = m_random.between(1, 8); k > 0; --k)
            row << word();
    }
    return row;
}

QStringList Walk::tableContent(int i)
{
    QStringList row;
    row << "DataEditor" << numberText(i) << word();
    const int columns = m_random.oneIn(12) ? m_random.between(2, 9) : 5;
    for (int k = 2; k < columns; ++k)
        row << word();
    return row;
}

QStringList Walk::anyContent(int i)
{
    if (m_rows == TableRows)
        return tableContent(i);
    return m_random.oneIn(4) ? otherContent(i) : instructionContent(i);
}

QStringList Walk::group(int least)
{
    QStringList l;
    for (int k = least + m_random.below(3); k > 0; --k)
        l << word();
    return l;
}

/// What the operator is going to do on the keypad, handed to the keypads too.
KeypadAnswer Walk::anyAnswer(bool numeric)
{
    DeviceLog::reset();
    if (m_random.oneIn(8)) {
        DeviceLog::setInstanceAvailable(false);
        return KeypadAnswer();
    }
    if (m_random.oneIn(4)) {
        DeviceLog::cancel();
        return KeypadAnswer();
    }
    QString text = numeric && !m_random.oneIn(6) ? QString::number(m_random.below(1000)) : word();
    if (m_random.oneIn(20))
        text += ":1";
    DeviceLog::acceptWith(text);
    return KeypadAnswer(text);
}

/// A slot of the page that the operator sees and can touch; -1 if there is none of that class.
int Walk::anyShownSlot(bool line)
{
    QList<int> found;
    for (int slot = t(); slot < m_model.pool.size(); ++slot) {
        if (!m_model.pool.at(slot).hidden && m_model.pool.at(slot).isLine == line)
            found << slot;
    }
    return found.isEmpty() ? -1 : found.at(m_random.below(found.size()));
}

// The operations. Each does the same to the list and to the model.

void Walk::append()
{
    if (m_model.count() > 45)
        return;
    for (int k = m_random.oneIn(20) ? 15 : 1; k > 0; --k) {
        QStringList row = anyContent(m_model.count());
        const bool refresh = m_random.oneIn(2);
        const bool viewOnly = m_random.oneIn(4);
        note(QString("addWidget %1 %2 %3").arg(row.join("|")).arg(refresh).arg(viewOnly));
        m_model.addWidget(row, refresh, viewOnly);
        m_list.addWidget(row, refresh, viewOnly);
    }
}

void Walk::insert()
{
    if (m_model.count() > 45)
        return;
    const int i = m_random.between(t(), m_model.count() + 1);
    QStringList row = anyContent(i);
    const bool refresh = m_random.oneIn(2);
    const bool viewOnly = m_random.oneIn(8);
    note(QString("insertWidget %1 %2 %3 %4").arg(i).arg(row.join("|")).arg(refresh).arg(viewOnly));
    m_model.insertWidget(i, row, refresh, viewOnly);
    m_list.insertWidget(i, row, refresh, viewOnly);
}

void Walk::remove()
{
    int i = m_random.oneIn(2) ? m_model.count() - 1 : m_random.between(t(), m_model.count());
    if (i < t() || m_random.oneIn(20))
        i = m_random.oneIn(2) ? -1 : m_model.count() + m_random.below(3);
    const bool refresh = m_random.oneIn(2);
    note(QString("removeWidget %1 %2").arg(i).arg(refresh));
    m_model.removeWidget(i, refresh);
    m_list.removeWidget(i, refresh);
}

void Walk::clear()
{
    note("clear");
    m_model.clear();
    m_list.clear();
}

void Walk::setContent()
{
    if (!hasRows())
        return;
    const int i = anyRow();
    QStringList forModel = anyContent(i);
    QStringList forList = forModel;
    note(QString("setContent %1 %2").arg(i).arg(forModel.join("|")));
    m_model.setContent(i, &forModel);
    m_list.setContent(i, forList);
    if (forModel != forList)
        m_trouble = "the caller's list is " + forList.join("|") + " for " + forModel.join("|");
}

void Walk::setV()
{
    if (!hasRows())
        return;
    const int i = anyRow();
    if (m_model.store.at(i).size() < 31 && !m_model.values(i, 26, 30).isEmpty())
        return; // a row without a V group
    QStringList l = group(3);
    note(QString("setV %1 %2").arg(i).arg(l.join("|")));
    m_model.setV(i, l);
    m_list.setV(i, l);
}

void Walk::setJpos()
{
    if (!hasRows())
        return;
    const int i = anyRow();
    if (m_model.store.at(i).size() < 31 && !m_model.values(i, 26, 30).isEmpty())
        return;
    QStringList l = group(6);
    note(QString("setJpos %1 %2").arg(i).arg(l.join("|")));
    m_model.setJpos(i, l);
    m_list.setJpos(i, l);
}

void Walk::setIndex()
{
    if (!hasRows())
        return;
    const int i = anyRow();
    const QString n = numberText(i);
    note(QString("setIndex %1 %2").arg(i).arg(n));
    m_model.setIndex(i, n);
    m_list.setIndex(i, n);
}

void Walk::turnPage()
{
    const bool next = m_random.oneIn(2);
    note(next ? "nextPage" : "prevPage");
    next ? m_model.nextPage() : m_model.prevPage();
    next ? m_list.nextPage() : m_list.prevPage();
}

void Walk::moveLine()
{
    const bool next = m_random.oneIn(2);
    note(next ? "nextLine" : "prevLine");
    next ? m_model.nextLine() : m_model.prevLine();
    next ? m_list.nextLine() : m_list.prevLine();
}

void Walk::goHomeOrToTheEnd()
{
    const bool home = m_random.oneIn(2);
    note(home ? "home" : "end");
    home ? m_model.home() : m_model.end();
    home ? m_list.home() : m_list.end();
}

void Walk::setCurrent()
{
    const int i = m_random.oneIn(2) ? m_random.between(-2, m_model.count() + 2)
                                    : m_model.startLine + m_random.below(14);
    const bool force = m_random.oneIn(6);
    note(QString("setCurIndex %1 %2").arg(i).arg(force));
    m_model.setCurIndex(i, force);
    m_list.setCurIndex(i, force);
}

void Walk::askCurrent()
{
    note("getCurIndex");
    const int expected = m_model.currentIndex();
    const int current = m_list.getCurIndex();
    if (current != expected)
        m_trouble = QString("the current row is %1 for %2").arg(current).arg(expected);
}

void Walk::multiSelect()
{
    const bool on = m_random.oneIn(2);
    note(on ? "setMultiSelect" : "clearMultiSelect");
    on ? m_model.setMultiSelect() : m_model.clearMultiSelect();
    on ? m_list.setMultiSelect() : m_list.clearMultiSelect();
}

void Walk::deselect()
{
    const int i = m_random.between(0, m_model.count() + 1);
    const bool plain = m_random.oneIn(2);
    note(QString("deselect %1 %2").arg(i).arg(plain));
    m_model.deselect(i, plain);
    m_list.deselect(i, plain);
}

void Walk::redraw()
{
    note("reshow");
    m_model.reshow();
    m_list.reshow();
}

void Walk::resize()
{
    const int percent = m_random.between(30, 120);
    const QSize s(m_random.between(200, 480), m_screen.height() * percent / 100);
    note(QString("setSize %1 %2").arg(s.width()).arg(s.height()));
    m_model.setSize(s);
    m_list.setSize(s);
}

void Walk::setTotalLine()
{
    const int n = m_random.between(-3, 16);
    note(QString("setTotalLine %1").arg(n));
    m_model.setTotalLine(n);
    m_list.setTotalLine(n);
}

void Walk::tapLine()
{
    enum { Frame, Number, Instruction, Jpos, V, Arrow };
    const int slot = anyShownSlot(true);
    if (slot < 0)
        return;
    const LineModel &model = m_model.pool.at(slot).line;
    QList<int> places;
    places << Frame;
    if (!model.firstLineHidden)
        places << Number << Instruction << Instruction << Instruction << Jpos << V;
    if (!model.detailAreaHidden)
        places << Arrow;
    const int place = places.at(m_random.below(places.size()));
    note(QString("tap place %1 in slot %2").arg(place).arg(slot));
    MJLine *line = qobject_cast<MJLine *>(m_list.itemAt(slot));
    const RowView view(line);
    switch (place) {
    case Frame:
        m_model.tapRow(slot);
        tap(line);
        break;
    case Number:
        m_model.tapRow(slot);
        tap(view.cell(RowView::Num));
        break;
    case Instruction:
        m_model.tapInstruction(slot);
        tap(view.cell(RowView::Ins));
        break;
    case Jpos:
        m_model.tapJpos(slot);
        tap(view.cell(RowView::Jpos));
        break;
    case V:
        m_model.tapV(slot);
        tap(view.cell(RowView::V));
        break;
    case Arrow:
        m_model.tapInstruction(slot);
        tap(view.arrow());
        break;
    }
}

void Walk::editLine()
{
    enum { Z = 9, T, Res }; // the numbers below are the details'
    const int slot = anyShownSlot(true);
    if (slot < 0)
        return;
    const LineModel &model = m_model.pool.at(slot).line;
    QList<int> fields;
    if (!model.firstLineHidden)
        fields << Z << T;
    if (!model.detailAreaHidden)
        fields << 0 << 1 << 2 << 3 << 4 << 5 << 6 << 7 << 8 << Res;
    if (fields.isEmpty())
        return;
    const int field = fields.at(m_random.below(fields.size()));
    const KeypadAnswer answer = anyAnswer(field != Res);
    note(QString("edit field %1 in slot %2: %3 %4")
             .arg(field)
             .arg(slot)
             .arg(answer.accepted)
             .arg(answer.text));
    const RowView view(qobject_cast<MJLine *>(m_list.itemAt(slot)));
    switch (field) {
    case Z:
        m_model.tapZ(slot, answer);
        tap(view.cell(RowView::Z));
        break;
    case T:
        m_model.tapT(slot, answer);
        tap(view.cell(RowView::T));
        break;
    case Res:
        m_model.tapRes(slot, answer);
        tap(view.res());
        break;
    default:
        m_model.tapDetail(slot, field, answer);
        tap(view.detail(field));
    }
}

void Walk::tapTable()
{
    const int slot = anyShownSlot(m_rows == InstructionRows);
    if (slot < 0)
        return;
    const SlotModel &model = m_model.pool.at(slot);
    const TableModel &table = model.isLine ? model.line.table : model.table;
    if (table.hidden)
        return;
    QWidget *row = m_list.itemAt(slot);
    DataEditor *editor =
        model.isLine ? qobject_cast<MJLine *>(row)->dataEditor() : qobject_cast<DataEditor *>(row);
    const bool onFirstCell = m_random.oneIn(2);
    const bool isKept = onFirstCell && !table.isTitle && table.count != 4;
    note(QString("tap table in slot %1, first cell: %2").arg(slot).arg(onFirstCell));
    m_model.tapTable(slot, isKept);
    tap(onFirstCell ? tableCell(editor, 0) : editor);
}

void Walk::editTable()
{
    const int slot = anyShownSlot(m_rows == InstructionRows);
    if (slot < 0)
        return;
    const SlotModel &model = m_model.pool.at(slot);
    const TableModel &table = model.isLine ? model.line.table : model.table;
    QList<int> columns = table.cells.keys();
    const int cell = m_random.below(columns.size());
    const int column = columns.at(cell);
    if (table.hidden || !table.isField(column))
        return;
    QWidget *row = m_list.itemAt(slot);
    DataEditor *editor =
        model.isLine ? qobject_cast<MJLine *>(row)->dataEditor() : qobject_cast<DataEditor *>(row);
    const KeypadAnswer answer = anyAnswer(table.isNumeric());
    note(QString("edit column %1 in slot %2: %3 %4")
             .arg(column)
             .arg(slot)
             .arg(answer.accepted)
             .arg(answer.text));
    m_model.tapTableField(slot, column, answer);
    tap(tableCell(editor, cell));
}

const Walk::Choice &Walk::choose()
{
    static const Choice choices[] = {
        {40, &Walk::append},
        {25, &Walk::insert},
        {50, &Walk::remove},
        {1, &Walk::clear},
        {100, &Walk::setContent},
        {100, &Walk::setV},
        {100, &Walk::setJpos},
        {100, &Walk::setIndex},
        {80, &Walk::turnPage},
        {80, &Walk::moveLine},
        {50, &Walk::goHomeOrToTheEnd},
        {20, &Walk::setCurrent},
        {20, &Walk::askCurrent},
        {5, &Walk::multiSelect},
        {15, &Walk::deselect},
        {30, &Walk::redraw},
        {1, &Walk::resize},
        {6, &Walk::setTotalLine},
        {40, &Walk::tapLine},
        {15, &Walk::editLine},
        {12, &Walk::tapTable},
        {12, &Walk::editTable},
    };
    int total = 0;
    for (const Choice &choice : choices)
        total += choice.weight;
    int left = m_random.below(total);
    const Choice *chosen = choices;
    while (left >= chosen->weight)
        left -= (chosen++)->weight;
    return *chosen;
}

QString Walk::step()
{
    while (m_done.size() > 12)
        m_done.removeFirst();
    // An operation that finds nothing to work on is no step.
    const int before = m_operations;
    while (m_operations == before)
        (this->*choose().operation)();
    const QString difference = compare();
    return difference.isEmpty() ? difference : m_done.join("\n") + "\n=> " + difference;
}

// The comparison

#define DIFFERENT(what, actual, expected)                                                          \
    do {                                                                                           \
        if ((actual) != (expected))                                                                \
            return QString("%1: %2 for %3").arg(what).arg(actual).arg(expected);                   \
    } while (0)

QString Walk::compare()
{
    if (!m_trouble.isEmpty())
        return m_trouble;
    DIFFERENT("signals", m_recorder.emitted.join(","), m_model.emitted.join(","));
    m_recorder.emitted.clear();
    m_model.emitted.clear();
    QString difference = compareFields();
    if (difference.isEmpty())
        difference = compareStore();
    for (int slot = 0; difference.isEmpty() && slot < m_model.pool.size(); ++slot)
        difference = compareSlot(slot);
    if (difference.isEmpty() && hasRows())
        difference = compareGroups();
    return difference;
}

QString Walk::compareFields()
{
    DIFFERENT("answers left", DeviceLog::answersLeft(), 0);
    DIFFERENT("rows", m_list.count(), m_model.count());
    DIFFERENT("slots", m_list.ListWidget::count(), m_model.pool.size());
    DIFFERENT("start of the page", -m_list.getListPos(0), m_model.startLine - t());
    DIFFERENT("end of the selection", m_list.getLastIndex(), m_model.last);
    DIFFERENT("multiple selection", m_list.isMultiSelect(), m_model.multi);
    DIFFERENT("height", m_list.height(), m_model.height);
    return QString();
}

QString Walk::compareStore()
{
    for (int i = 0; i < m_model.count(); ++i) {
        const QStringList row = m_list.getContent(i);
        if (row != m_model.store.at(i))
            return QString("row %1: %2 for %3")
                .arg(i)
                .arg(row.join("|"), m_model.store.at(i).join("|"));
    }
    return QString();
}

QString Walk::compareGroups()
{
    const int i = anyRow();
    DIFFERENT("kind", m_list.typeAt(i), m_model.typeAt(i));
    DIFFERENT("V", m_list.getV(i).join("|"), m_model.values(i, 26, 30).join("|"));
    DIFFERENT("Jpos", m_list.getJpos(i).join("|"), m_model.values(i, 14, 24).join("|"));
    DIFFERENT("V index", m_list.getVIndex(i), m_model.index(i, 6));
    DIFFERENT("Jpos index", m_list.getJposIndex(i), m_model.index(i, 4));
    return QString();
}

const char *sheetOf(bool selected)
{
    return selected ? selectedSheet : plainSheet;
}

QString Walk::compareSlot(int slot)
{
    const SlotModel &model = m_model.pool.at(slot);
    QWidget *widget = m_list.itemAt(slot);
    const QString place = QString("slot %1 ").arg(slot);
    DIFFERENT(place + "hidden", widget->isHidden(), model.hidden);
    DIFFERENT(place + "sheet", widget->styleSheet(), QLatin1String(sheetOf(model.selected)));
    DIFFERENT(place + "height", widget->height(), model.height);
    DIFFERENT(place + "blocked", widget->signalsBlocked(), false);
    QString difference;
    if (model.isLine) {
        MJLine *line = qobject_cast<MJLine *>(widget);
        difference = line ? compareLine(line, model.line) : QString("is no instruction row");
    } else {
        DataEditor *table = qobject_cast<DataEditor *>(widget);
        difference = table ? compareTable(table, model.table) : QString("is no table row");
    }
    return difference.isEmpty() ? difference : place + difference;
}

QString Walk::compareLine(MJLine *line, const LineModel &model)
{
    const RowView view(line);
    DIFFERENT("open", line->isExpanded(), model.expanded);
    DIFFERENT("first line hidden", line->firstLine()->isHidden(), model.firstLineHidden);
    DIFFERENT("details hidden", view.detailArea()->isHidden(), model.detailAreaHidden);
    DIFFERENT("number", view.text(RowView::Num), model.num);
    DIFFERENT("instruction", view.text(RowView::Ins), model.ins);
    DIFFERENT("Jpos label", view.text(RowView::Jpos), model.jpos);
    DIFFERENT("V label", view.text(RowView::V), model.v);
    DIFFERENT("Z", view.text(RowView::Z), model.z);
    DIFFERENT("T", view.text(RowView::T), model.t);
    DIFFERENT("detail fields", view.isBuilt(), model.hasDetailFields);
    for (int k = 0; model.hasDetailFields && k < 9; ++k)
        DIFFERENT(QString("detail %1").arg(k), view.detailText(k), model.detailFields.at(k));
    if (model.hasDetailFields)
        DIFFERENT("free text", view.resText(), model.resField);
    const QString sheet = line->dataEditor()->styleSheet();
    DIFFERENT("table hidden", line->dataEditor()->isHidden(), model.table.hidden);
    DIFFERENT("table sheet", sheet, QLatin1String(sheetOf(model.table.selected)));
    return compareTable(line->dataEditor(), model.table);
}

QString Walk::compareTable(DataEditor *table, const TableModel &model)
{
    int cell = 0;
    for (QMap<int, QString>::const_iterator i = model.cells.begin(); i != model.cells.end(); ++i)
        DIFFERENT(QString("column %1").arg(i.key()), RowView::text(tableCell(table, cell++)),
                  i.value());
    DIFFERENT("cells", table->layout()->count(), cell);
    return QString();
}

} // namespace

/// A random walk over everything that a host and an operator can do with a paged list, beside a
/// model of it. After each step the rows, the page, the slots, the selection, all texts and the
/// emitted signals must agree.
///
/// With FILARIX_TEST_PART=2/6, say, the second one of six programs that share the walks; without,
/// all of them.
class TestTListModel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void initTestCase();
    void walk_data();
    void walk();

private:
    int m_part = 0;
    int m_parts = 1;
};

void TestTListModel::initTestCase()
{
    const QByteArray share = qgetenv("FILARIX_TEST_PART");
    if (share.isEmpty())
        return;
    const QList<QByteArray> numbers = share.split('/');
    QCOMPARE(numbers.size(), 2);
    m_part = numbers.at(0).toInt() - 1;
    m_parts = numbers.at(1).toInt();
    QVERIFY(m_part >= 0 && m_part < m_parts);
}

void TestTListModel::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestTListModel::walk_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<bool>("titled");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<int>("steps");
    const int many = scaled(50000);
    const int some = scaled(6000);
    QTest::newRow("instructions under a title") << int(InstructionRows) << true << false << many;
    QTest::newRow("instructions") << int(InstructionRows) << false << false << many;
    QTest::newRow("table under a title") << int(TableRows) << true << false << many;
    QTest::newRow("table") << int(TableRows) << false << false << many;
    QTest::newRow("on the screen") << int(InstructionRows) << true << true << some;
}

void TestTListModel::walk()
{
    QFETCH(int, rows);
    QFETCH(bool, titled);
    QFETCH(bool, shown);
    QFETCH(int, steps);
    // Where tests are made smaller, each program still has a walk of its own.
    const int stepsPerList = qBound(1, steps / m_parts, 2000);
    for (int done = m_part * stepsPerList; done < steps; done += m_parts * stepsPerList) {
        const unsigned seed = unsigned(done + 1000003 * rows + 500009 * titled);
        Walk walk(seed, Rows(rows), titled, shown);
        for (int k = 0; k < qMin(stepsPerList, steps - done); ++k) {
            const QString difference = walk.step();
            if (!difference.isEmpty())
                QFAIL(qPrintable(QString("seed %1, step %2\n%3").arg(seed).arg(k).arg(difference)));
        }
    }
}

FILARIX_TEST_MAIN(TestTListModel)
#include "tst_tlistmodel.moc"
