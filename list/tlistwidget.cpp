// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "tlistwidget.h"

#include "combolineedit.h"
#include "dataeditor.h"
#include "mjline.h"
#include "rowformat_p.h"
#include "rowgeometry_p.h"
#include "rowstyle_p.h"

#include <QApplication>
#include <QDesktopWidget>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

const int rowsPerPage = 14;
const int minRowsPerPage = 5;
const int maxRowWidth = 480;

/// A host may give any number as page length or index; none may come out on the other side of 0.
int toInt(qint64 number)
{
    typedef std::numeric_limits<int> Int;
    return int(qBound(qint64(Int::min()), number, qint64(Int::max())));
}

/// Rows that an instruction widget shows by the table that it carries.
bool isCarriedTable(const QString &kind)
{
    return kind == QLatin1String(RowFormat::other) || kind == QLatin1String(RowFormat::title);
}

bool isOpen(QWidget *widget)
{
    const MJLine *line = qobject_cast<MJLine *>(widget);
    return line && line->isExpanded();
}

DataEditor *carriedTable(QObject *widget)
{
    const MJLine *line = qobject_cast<MJLine *>(widget);
    return line ? line->dataEditor() : nullptr;
}

/// A copy of \a row in a list of its exact size, its strings shared with those of \a neighbour
/// where they are equal. The rows of a program differ in few of their strings, so a long program
/// takes a good deal less memory.
QStringList sharedWith(const QStringList &neighbour, const QStringList &row)
{
    QStringList result;
    result.reserve(row.size());
    for (int k = 0; k < row.size(); ++k) {
        const QString &own = row.at(k);
        const bool isEqual = k < neighbour.size() && !own.isEmpty() && own == neighbour.at(k);
        result.append(isEqual ? neighbour.at(k) : own);
    }
    return result;
}

/// The number of a row as its text: "N" and decimal digits in a list without a title, the digits
/// alone with one. A long list is renumbered at each insertion, so this counts without the heap.
class NumberText
{
public:
    NumberText(int number, bool hasPrefix) : m_number(number), m_hasPrefix(hasPrefix) { write(); }

    /// A string of the same length keeps its memory, unless it is shared.
    void writeTo(QString &string) const
    {
        const int size = int(m_text + maxSize - m_begin);
        if (string.size() == size)
            std::copy(m_begin, m_begin + size, string.data());
        else
            string = QString(m_begin, size);
    }

    /// Goes on to the next number.
    void increment()
    {
        ++m_number;
        QChar &last = m_text[maxSize - 1];
        if (m_number > 0 && last.unicode() < '9')
            last = QLatin1Char(char(last.unicode() + 1));
        else
            write();
    }

private:
    enum { maxSize = 12 }; // "N-2147483648"

    void write()
    {
        unsigned rest = m_number < 0 ? 0u - unsigned(m_number) : unsigned(m_number);
        m_begin = m_text + maxSize;
        do {
            *--m_begin = QLatin1Char(char('0' + rest % 10));
            rest /= 10;
        } while (rest > 0);
        if (m_number < 0)
            *--m_begin = QLatin1Char('-');
        if (m_hasPrefix)
            *--m_begin = QLatin1Char('N');
    }

    int m_number;
    bool m_hasPrefix;
    QChar m_text[maxSize];
    QChar *m_begin;
};

/// A string of a stored row, to be written. A short row counts as filled up with empty strings;
/// they become real as soon as one behind its end is written.
QString &stringAt(QStringList &row, int position)
{
    while (row.size() <= position)
        row.append(QString());
    return row[position];
}

/// Has the processor fetch what will be written soon.
inline void fetch(const void *memory)
{
#ifdef __GNUC__
    __builtin_prefetch(memory, 1);
#else
    Q_UNUSED(memory)
#endif
}

/// Walks ahead of a loop that writes the numbers of long stretches of rows. A row and its number
/// lie anywhere in memory, and waiting for both takes most of the time.
class NumberFetcher
{
public:
    explicit NumberFetcher(const QList<QStringList> &rows) : m_rows(rows) {}

    void goAheadOf(int i) const
    {
        if (i + 3 * distance >= m_rows.size())
            return;
        fetchRow(m_rows.at(i + 3 * distance));
        if (const QString *number = numberOf(m_rows.at(i + 2 * distance)))
            fetch(number);
        if (const QString *number = numberOf(m_rows.at(i + distance)))
            fetch(number->constData());
    }

private:
    enum { distance = 8 };

    /// What a list is made of lies behind its only member, which nobody gives away.
    static void fetchRow(const QStringList &row)
    {
        const void *data = nullptr;
        static_assert(sizeof row == sizeof data, "one pointer");
        std::memcpy(&data, reinterpret_cast<const char *>(&row), sizeof data);
        fetch(data);
    }

    static const QString *numberOf(const QStringList &row)
    {
        return row.size() > RowFormat::Num ? &row.at(RowFormat::Num) : nullptr;
    }

    const QList<QStringList> &m_rows;
};

/// Appends what a row widget holds; false if the widget is none for a row of that kind.
bool readRow(QObject *widget, const QString &kind, QStringList *content)
{
    if (RowFormat::isInstruction(kind)) {
        MJLine *const line = qobject_cast<MJLine *>(widget);
        if (line)
            *content += line->GetLineList();
        return line;
    }
    DataEditor *table = nullptr;
    if (kind == QLatin1String(RowFormat::other))
        table = carriedTable(widget);
    else if (kind == QLatin1String(RowFormat::dataEditor))
        table = qobject_cast<DataEditor *>(widget);
    if (table)
        *content += table->getData();
    return table;
}

/// The field of a row that a keypad is open for; null if there is none.
ComboLineEdit *fieldAtKeypad(const QWidget *widget)
{
    Q_FOREACH (ComboLineEdit *field, widget->findChildren<ComboLineEdit *>()) {
        if (field->isAtKeypad())
            return field;
    }
    return nullptr;
}

/// Row widgets that have left the list while a keypad was open for one of their fields. They live
/// on as hidden children of the list until that is closed, and know their row.
namespace Retired {

const char indexName[] = "filarixRowIndex";
const char rowName[] = "filarixRow";

bool isOne(const QObject *widget)
{
    return widget && widget->property(indexName).isValid();
}

int index(const QObject *widget)
{
    return widget->property(indexName).toInt();
}

/// Whether \a row is still what the widget showed, but for its number.
bool shows(const QObject *widget, QStringList row)
{
    QStringList shown = widget->property(rowName).toStringList();
    stringAt(shown, RowFormat::Num) = stringAt(row, RowFormat::Num);
    return shown == row;
}

/// Deletes a widget that showed row \a index, once it is done with.
void take(QWidget *widget, int index, const QStringList &row)
{
    ComboLineEdit *const field = fieldAtKeypad(widget);
    if (!field) {
        widget->deleteLater(); // a tap on that very row may have brought us here
        return;
    }
    widget->setProperty(indexName, index);
    widget->setProperty(rowName, row);
    // The last that a field says of a tap, behind the change.
    QObject::connect(field, SIGNAL(clicked()), widget, SLOT(deleteLater()));
}

/// The rows of \a list from \a from on move by \a step.
void move(const QWidget *list, int from, int step)
{
    Q_FOREACH (QObject *widget, list->children()) {
        if (isOne(widget) && index(widget) >= from)
            widget->setProperty(indexName, index(widget) + step);
    }
}

/// Row \a removed of \a list goes.
void forget(const QWidget *list, int removed)
{
    Q_FOREACH (QObject *widget, list->children()) {
        if (isOne(widget) && index(widget) == removed)
            widget->setProperty(indexName, -1);
    }
}

} // namespace Retired

} // namespace

TListWidget::TListWidget(QStringList &list, QWidget *parent)
    : ListWidget(parent)
    , m_startLine(0)
    , m_totalLine(rowsPerPage)
    , m_titleWidget(nullptr)
    , m_curIndex(0)
    , m_extraIndex(0)
    , m_lastIndex(-1)
    , m_multiSelect(false)
    , m_size(QApplication::desktop()->availableGeometry(-1).size())
{
    m_size.setWidth(qMin(m_size.width(), maxRowWidth));
    if (list.isEmpty())
        return;
    m_startLine = 1;
    m_titleWidget = createWidget(list, false, true);
    m_content.append(list);
    ListWidget::addWidget(m_titleWidget);
    --m_totalLine;
}

QWidget *TListWidget::createWidget(QStringList &list, bool expand, bool title)
{
    const QString kind = list.isEmpty() ? QString() : list.takeFirst();
    if (RowFormat::isInstruction(kind) || isCarriedTable(kind)) {
        MJLine *line = new MJLine(list, m_size, this);
        connect(line, SIGNAL(clicked(int)), this, SLOT(on_line_clicked(int)));
        connect(line, SIGNAL(sg_content_change(int)), this, SLOT(on_content_change(int)));
        connect(line, SIGNAL(sg_v_update(int)), this, SLOT(on_v_update(int)));
        connect(line, SIGNAL(sg_jpos_update(int)), this, SLOT(on_jpos_update(int)));
        connect(line, SIGNAL(sizeChanged(bool)), this, SLOT(on_line_changed(bool)));
        if (expand)
            line->on_expand();
        return line;
    }
    if (kind == QLatin1String(RowFormat::dataEditor)) {
        DataEditor *editor = new DataEditor(title, list, m_size, this, false);
        connect(editor, SIGNAL(clicked(int)), this, SLOT(on_line_clicked(int)));
        connect(editor, SIGNAL(sg_content_change(int)), this, SLOT(on_content_change(int)));
        return editor;
    }
    return nullptr;
}

int TListWidget::titleCount() const
{
    return m_titleWidget ? 1 : 0;
}

bool TListWidget::isRow(int i) const
{
    return i >= 0 && i < m_content.size();
}

/// The widget of row \a i, visible or hidden; null where there is none. Never the title.
QWidget *TListWidget::rowWidget(int i) const
{
    const int pos = getListPos(i);
    return pos < titleCount() ? nullptr : itemAt(pos);
}

int TListWidget::count() const
{
    return m_content.size();
}

int TListWidget::getListPos(int i) const
{
    return toInt(qint64(i) - m_startLine + titleCount());
}

void TListWidget::checkStartLine()
{
    if (m_startLine <= 0)
        m_startLine = titleCount();
}

// The page

/// The row behind the last one of the page.
int TListWidget::pageEnd() const
{
    const qint64 end = qMin(qint64(m_startLine) + m_totalLine, qint64(count()));
    return int(qMax(end, qint64(m_startLine)));
}

/// Whether one of the last two rows before \a end is open while the row widgets just fill the page.
/// An open row is three times as high, and hangs over the foot.
bool TListWidget::isFootOpen(int end) const
{
    if (getListPos(end) != ListWidget::count() || end < qint64(m_startLine) + m_totalLine - 2)
        return false;
    return isOpen(itemAt(getListPos(end - 1))) || isOpen(itemAt(getListPos(end - 2)));
}

/// Hides the first two rows of the page, so that the rows at the foot move into view. The first
/// row that stays.
int TListWidget::pushOutAtTheTop()
{
    const int pushedOut = 2;
    const int top = titleCount();
    for (int slot = top; slot < top + pushedOut; ++slot) {
        if (QWidget *widget = itemAt(slot))
            widget->hide();
    }
    return toInt(qint64(m_startLine) + pushedOut);
}

void TListWidget::reshow()
{
    if (!m_multiSelect)
        m_lastIndex = m_curIndex;
    checkStartLine();
    const int end = pageEnd();
    recalculateHeight();
    const int first = isFootOpen(end) ? pushOutAtTheTop() : m_startLine;
    // A refill is no edit: nothing that a row says meanwhile may get as far as the store.
    const int endSlot = getListPos(end);
    for (int slot = getListPos(first); QWidget *widget = itemAt(slot); ++slot) {
        if (slot < endSlot)
            widget->blockSignals(true);
        else
            widget->hide();
    }
    for (int i = first; i < end; ++i)
        showRow(i);
    recalculateHeight();
}

/// Fills the widget of a row of the page, makes it if there is none yet, and shows it.
void TListWidget::showRow(int i)
{
    QStringList row = m_content.at(i);
    if (!rowWidget(i)) {
        ListWidget::addWidget(createWidget(row, false, false));
    } else if (!row.isEmpty()) {
        row.removeFirst();
        refill(i, row);
    }
    QWidget *widget = rowWidget(i);
    if (!widget)
        return; // the kind is unknown
    widget->show();
    deselect(i, i < qMin(m_lastIndex, m_curIndex) || i > qMax(m_lastIndex, m_curIndex));
    widget->blockSignals(false);
}

/// Writes a row in inner form into its widget. Only the kind decides how: a widget that was made
/// for another kind keeps what it has and shows it otherwise.
void TListWidget::refill(int i, QStringList &row)
{
    if (getListPos(i) > m_totalLine)
        return;
    const QString kind = typeAt(i);
    QWidget *widget = rowWidget(i);
    if (!RowFormat::isInstruction(kind) && !isCarriedTable(kind)) {
        if (DataEditor *editor = qobject_cast<DataEditor *>(widget))
            editor->setData(row);
        return;
    }
    MJLine *line = qobject_cast<MJLine *>(widget);
    if (!line)
        return;
    // What comes into view comes first: a focus that is lost with the rest finds a place there.
    if (isCarriedTable(kind)) {
        line->dataEditor()->setData(row);
        line->dataEditor()->show();
        line->firstLine()->hide();
    } else {
        line->setLineList(row);
        line->firstLine()->show();
        line->dataEditor()->hide();
    }
}

void TListWidget::setSize(QSize s)
{
    m_size.setWidth(s.width());
    const qint64 height = m_size.height();
    qint64 rows = minRowsPerPage;
    if (height > 0)
        rows = qMax(rows, (4 * qint64(s.height()) - height) * rowsPerPage / 3 / height);
    m_totalLine = toInt(rows) - titleCount();
    if (m_titleWidget)
        m_titleWidget->setFixedHeight(RowGeometry::rowHeight(m_size.height()));
    while (ListWidget::count() > titleCount()) {
        const int slot = ListWidget::count() - 1;
        QWidget *widget = ListWidget::removeWidget(slot);
        widget->hide();
        const int row = toInt(qint64(m_startLine) + slot - titleCount());
        Retired::take(widget, row, getContent(row));
    }
    reshow();
}

void TListWidget::setTotalLine(int n)
{
    m_totalLine = n;
    reshow();
}

/// Closes the open rows of a page that is about to be shown. The last slot of a list with a title
/// is left out.
void TListWidget::closeOpenRows()
{
    for (int i = m_startLine; i < count() && getListPos(i) < m_totalLine; ++i) {
        QWidget *widget = rowWidget(i);
        if (RowFormat::isInstruction(typeAt(i)) && isOpen(widget))
            static_cast<MJLine *>(widget)->on_expand();
    }
}

/// Moves the page to begin at row \a startLine.
void TListWidget::turnTo(qint64 startLine)
{
    m_startLine = toInt(startLine);
    closeOpenRows();
    reshow();
}

bool TListWidget::hasRowsBehindThePage() const
{
    return qint64(m_startLine) + m_totalLine < count();
}

bool TListWidget::hasFullPage() const
{
    return m_totalLine <= count();
}

void TListWidget::prevPage()
{
    if (!hasFullPage())
        return;
    // A host may set a page length below 0, which leads down: without a title the top is left out.
    const bool isAtTop = !m_titleWidget && m_startLine <= 0;
    const qint64 startLine = isAtTop ? m_startLine : qint64(m_startLine) - m_totalLine;
    turnTo(qMax(qint64(titleCount()), startLine));
}

void TListWidget::nextPage()
{
    if (hasRowsBehindThePage())
        turnTo(qint64(m_startLine) + m_totalLine);
}

void TListWidget::prevLine()
{
    if (m_startLine > titleCount())
        turnTo(m_startLine - 1);
    else
        m_startLine = titleCount();
}

void TListWidget::nextLine()
{
    if (hasRowsBehindThePage())
        turnTo(qint64(m_startLine) + 1);
}

void TListWidget::home()
{
    if (hasFullPage())
        turnTo(titleCount());
}

void TListWidget::end()
{
    if (hasFullPage())
        turnTo(qint64(count()) - m_totalLine);
}

// The selection

int TListWidget::getCurIndex()
{
    if (m_titleWidget && m_curIndex <= 0)
        m_curIndex = 1;
    return m_curIndex;
}

void TListWidget::setCurIndex(int i, bool force)
{
    if (i < 0)
        return;
    const int pos = getListPos(i);
    const bool isOffPage = pos < titleCount() || pos >= m_totalLine;
    if (isOffPage || m_multiSelect || ListWidget::count() <= 1 || force) {
        m_curIndex = i;
        reshow();
        return;
    }
    deselect(m_curIndex, true);
    m_curIndex = i;
    deselect(i, false);
}

int TListWidget::getLastIndex() const
{
    return m_lastIndex;
}

void TListWidget::setMultiSelect()
{
    m_lastIndex = m_curIndex;
    m_multiSelect = true;
    reshow();
}

void TListWidget::clearMultiSelect()
{
    m_multiSelect = false;
    reshow();
}

bool TListWidget::isMultiSelect() const
{
    return m_multiSelect;
}

void TListWidget::deselect(int i, bool plain)
{
    if (getListPos(i) > m_totalLine || i >= m_content.size() + titleCount())
        return;
    QWidget *widget = rowWidget(i);
    if (typeAt(i) == QLatin1String(RowFormat::other))
        widget = carriedTable(widget);
    if (widget)
        RowStyle::apply(widget, plain ? RowStyle::plainRow : RowStyle::selectedRow);
}

int TListWidget::getExtraIndex() const
{
    return m_extraIndex;
}

void TListWidget::setExtraIndex(int index)
{
    m_extraIndex = index;
}

// What the rows report

void TListWidget::on_line_clicked(int index)
{
    if (index < 0)
        return;
    setCurIndex(index, false);
    Q_EMIT clicked(index);
}

void TListWidget::on_v_update(int index)
{
    setCurIndex(index, false);
    Q_EMIT sg_v_update(index);
}

void TListWidget::on_jpos_update(int index)
{
    setCurIndex(index, false);
    Q_EMIT sg_jpos_update(index);
}

void TListWidget::on_line_changed(bool)
{
    reshow();
}

void TListWidget::on_content_change(int index)
{
    QObject *const row = sender();
    const bool isRetired = Retired::isOne(row);
    const int i = isRetired ? Retired::index(row) : index;
    if (!isRow(i) || (isRetired && !Retired::shows(row, m_content.at(i))))
        return;
    const QString kind = typeAt(i);
    // The table of an "Oth" row is that of the row's slot, whoever reports it.
    const bool isInSlot = kind == QLatin1String(RowFormat::other) && !isRetired;
    QStringList content(kind);
    if (!readRow(isInSlot ? rowWidget(i) : row, kind, &content))
        return;
    if (isRetired)
        stringAt(content, RowFormat::Num) = m_content.at(i).value(RowFormat::Num);
    m_content[i] = sharedWith(m_content.at(i), content);
    if (!isRetired)
        return;
    content.removeFirst();
    refill(i, content);
}

void TListWidget::mousePressEvent(QMouseEvent *)
{
    // A press beside the rows ends here; each row reports its own.
}

// The rows

void TListWidget::addWidget(QStringList &row, bool refresh, bool viewOnly)
{
    if (!viewOnly) {
        m_multiSelect = false;
        m_content.append(sharedWith(m_content.isEmpty() ? row : m_content.last(), row));
        if (refresh)
            setCurIndex(count() - 1, false);
    }
    if (hasFullPage()) {
        m_startLine = toInt(qint64(count()) - m_totalLine);
        checkStartLine();
    }
    if (refresh)
        reshow();
}

void TListWidget::insertWidget(int i, QStringList &row, bool refresh, bool viewOnly)
{
    if (!viewOnly) {
        if (i < 0)
            return;
        m_multiSelect = false;
        renumber(i, 1);
        const int place = qMin(i, count());
        m_content.insert(place, sharedWith(m_content.value(place - 1), row));
        deselect(m_curIndex, true);
        m_curIndex = i;
    }
    if (refresh)
        reshow();
}

void TListWidget::removeWidget(int i, bool refresh)
{
    m_multiSelect = false;
    Retired::forget(this, i);
    if (i < count())
        renumber(qMax(i, -1) + 1, -1);
    if (isRow(i))
        m_content.removeAt(i);
    const int pos = getListPos(i);
    if (pos > 0 || pos < m_totalLine) {
        const int rows = count();
        m_curIndex = indexAfterRemoval(m_curIndex, i, rows);
        m_lastIndex = indexAfterRemoval(m_lastIndex, i, rows);
        if (m_startLine >= rows)
            m_startLine = rows < m_totalLine ? titleCount() : toInt(qint64(rows) - m_totalLine);
    }
    if (refresh)
        reshow();
}

/// Where the row of index \a index stands after \a removed has gone and \a rows are left. The
/// title is no place to move up to.
int TListWidget::indexAfterRemoval(int index, int removed, int rows) const
{
    if (removed < index && index > titleCount())
        --index;
    return qMin(index, rows - 1);
}

/// Gives each row from \a from on its index plus \a step as number.
void TListWidget::renumber(int from, int step)
{
    Retired::move(this, from, step);
    const NumberFetcher fetcher(m_content);
    NumberText text(from + step, !m_titleWidget);
    for (int j = from; j < count(); ++j) {
        fetcher.goAheadOf(j);
        QString &number = stringAt(m_content[j], RowFormat::Num);
        text.writeTo(number);
        text.increment();
        showIndex(j, number);
    }
}

void TListWidget::clear()
{
    const int t = titleCount();
    const int rows = count();
    for (qint64 progress = qint64(100) * t; count() > t; progress += 100) {
        m_content.removeLast();
        Q_EMIT sg_item_deleted(int(progress / rows));
    }
    m_startLine = t;
    reshow();
    Q_EMIT sg_item_deleted(100);
}

void TListWidget::setContent(int i, QStringList &row)
{
    if (!isRow(i))
        return;
    m_content[i] = sharedWith(m_content.at(qMax(i - 1, 0)), row);
    if (row.isEmpty())
        return;
    row.removeFirst();
    refill(i, row);
}

QStringList TListWidget::getContent(int i) const
{
    return m_content.value(i);
}

QString TListWidget::typeAt(int i) const
{
    return isRow(i) ? m_content.at(i).value(RowFormat::Kind) : QString();
}

void TListWidget::setIndex(int i, QString n)
{
    if (!isRow(i))
        return;
    stringAt(m_content[i], RowFormat::Num) = n;
    showIndex(i, n);
}

/// Shows the number of row \a i, if the row is on the page.
void TListWidget::showIndex(int i, const QString &n)
{
    const int pos = getListPos(i);
    if (pos < 1 || pos >= qint64(m_totalLine) + titleCount())
        return;
    const QString kind = typeAt(i);
    QWidget *widget = rowWidget(i);
    if (RowFormat::isInstruction(kind)) {
        if (MJLine *line = qobject_cast<MJLine *>(widget))
            line->setNum(n);
        return;
    }
    const bool isCarried = kind == QLatin1String(RowFormat::other);
    if (DataEditor *table = isCarried ? carriedTable(widget) : qobject_cast<DataEditor *>(widget))
        table->setIndex(n);
}

// The groups of an instruction row

QStringList TListWidget::getV(int i) const
{
    return groupValues(i, RowFormat::jposDetails, RowFormat::vDetails);
}

QStringList TListWidget::getJpos(int i) const
{
    return groupValues(i, 0, RowFormat::jposDetails);
}

QStringList TListWidget::groupValues(int i, int firstPair, int pairs) const
{
    QStringList values;
    if (!RowFormat::isInstruction(typeAt(i)))
        return values;
    for (int pair = firstPair; pair < firstPair + pairs; ++pair)
        values.append(m_content.at(i).value(RowFormat::detailValue(pair)));
    return values;
}

int TListWidget::getVIndex(int i) const
{
    return groupIndex(i, RowFormat::VIndex);
}

int TListWidget::getJposIndex(int i) const
{
    return groupIndex(i, RowFormat::JposIndex);
}

int TListWidget::groupIndex(int i, int position) const
{
    if (!RowFormat::isInstruction(typeAt(i)))
        return -1;
    return m_content.at(i).value(position).toInt();
}

void TListWidget::setV(int i, QStringList &l)
{
    if (!storeGroup(i, l, RowFormat::jposDetails, RowFormat::vDetails, RowFormat::VIndex))
        return;
    if (MJLine *line = groupWidget(i))
        line->setV(l);
}

void TListWidget::setJpos(int i, QStringList &l)
{
    if (!storeGroup(i, l, 0, RowFormat::jposDetails, RowFormat::JposIndex))
        return;
    if (MJLine *line = groupWidget(i))
        line->setJpos(l);
}

/// Writes the values of a group, and its index if \a l holds any more. False if there is nothing
/// to write or no place for it.
bool TListWidget::storeGroup(int i, const QStringList &l, int firstPair, int pairs,
                             int indexPosition)
{
    if (!RowFormat::isInstruction(typeAt(i)) || l.size() < pairs)
        return false;
    QStringList &row = m_content[i];
    for (int k = 0; k < pairs; ++k)
        stringAt(row, RowFormat::detailValue(firstPair + k)) = l.at(k);
    if (l.size() > pairs)
        stringAt(row, indexPosition) = l.at(pairs);
    return true;
}

/// The widget that shows a group as soon as it is written. One slot of a full page is left out:
/// the first without a title, the last with one. It waits for its next refill.
MJLine *TListWidget::groupWidget(int i) const
{
    const int pos = getListPos(i);
    return pos > 0 && pos < m_totalLine ? qobject_cast<MJLine *>(rowWidget(i)) : nullptr;
}
