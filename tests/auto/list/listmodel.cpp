// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "listmodel.h"

namespace {

QString before(const QString &text, char separator)
{
    return text.section(QLatin1Char(separator), 0, 0);
}

QString withBlanks(QString text)
{
    return text.replace('_', ' ');
}

/// Inner form to the form that a row widget reads.
void normalise(QStringList *list, int limit)
{
    if (list->size() > limit)
        list->insert(1, QString());
    while (list->size() < 35)
        *list << QString();
}

} // namespace

QString KeypadAnswer::changeOf(QString *field, bool numeric) const
{
    QStringList parts = field->split(':');
    *field = text;
    bool converts = true;
    if (numeric)
        text.toDouble(&converts);
    if (converts)
        parts[parts.size() - 1] = text;
    return parts.size() < 2 ? *field : parts.first() + ":" + parts.last();
}

// Table rows

TableModel::TableModel() : isTitle(false), count(0), hidden(false), selected(false) {}

TableModel::TableModel(bool title, const QStringList &list)
    : isTitle(title), count(list.size()), hidden(false), selected(false)
{
    cells[0] = list.value(0);
    if (joinsTwoStrings())
        cells[1] = list.at(2).isEmpty() ? list.at(1) : list.at(2);
    else
        cells[1] = list.value(1);
    const int step = isTitle && count > 8 ? 2 : 1;
    for (int column = firstColumn(); column < count && column <= 31; column += step)
        cells[column] = list.at(column);
}

bool TableModel::joinsTwoStrings() const
{
    return count == 4 || (isTitle && count > 8);
}

int TableModel::firstColumn() const
{
    return joinsTwoStrings() ? 3 : 2;
}

bool TableModel::isField(int column) const
{
    if (column < 1 || !cells.contains(column))
        return false;
    if (column == 1)
        return count == 2 && !isTitle;
    return count == 4 || !isTitle;
}

bool TableModel::isNumeric() const
{
    return count != 2 && count != 4 && count != 6;
}

int TableModel::number() const
{
    const QString text = cells.value(0);
    return (text.startsWith('N') ? text.mid(1) : text).toInt();
}

QStringList TableModel::data() const
{
    QStringList list;
    list << cells.value(0);
    if (joinsTwoStrings())
        list << QString();
    list << cells.value(1);
    for (int column = firstColumn(); column < count; ++column)
        list << cells.value(column);
    return list;
}

void TableModel::setData(const QStringList &list)
{
    if (list.size() != count)
        return;
    cells[0] = list.value(0);
    cells[1] = list.value(1);
    if (joinsTwoStrings()) {
        if (!list.at(1).isEmpty() && !list.at(2).isEmpty())
            cells[1] = list.at(1) + ":" + list.at(2);
        else if (list.at(1).isEmpty())
            cells[1] = list.at(2);
    }
    for (int column = firstColumn(); column < count; ++column) {
        if (cells.contains(column))
            cells[column] = list.at(column);
    }
}

// Instruction rows

LineModel::LineModel()
    : expanded(false), hasDetailFields(false), firstLineHidden(false), detailAreaHidden(true)
{}

LineModel::LineModel(QStringList *list)
    : expanded(false), hasDetailFields(false), firstLineHidden(false), detailAreaHidden(true)
{
    const bool isLong = list->size() > 9;
    const bool isTitle = isLong && list->first() == "Title";
    if (isLong)
        list->insert(1, QString());
    if (isTitle)
        list->first() = QString();
    QStringList tableList = *list;
    if (isLong && !isTitle)
        tableList = QStringList() << list->at(2) << ""
                                  << "Oth"
                                  << "";
    normalise(list, 1000);

    num = list->at(0);
    ins = list->at(2) + suffix();
    ins = before(ins, '(') + suffix();
    jpos = list->at(3) + ":" + list->at(4);
    v = list->at(5) + ":" + list->at(6);
    z = list->at(7) + ":" + list->at(8);
    t = list->at(9) + ":" + list->at(10);
    resText = withBlanks(list->at(12));
    details = list->mid(13, 18);
    table = TableModel(isTitle, tableList);
    firstLineHidden = isTitle || list->at(2) == "Oth";
    table.hidden = !firstLineHidden;
}

QString LineModel::suffix() const
{
    return QString::fromUtf8(expanded ? "(\342\206\221)" : "(\342\206\223)");
}

QString LineModel::detailText(int pair) const
{
    return details.at(2 * pair) + ":" + details.at(2 * pair + 1);
}

int LineModel::number() const
{
    return num.toInt();
}

void LineModel::toggle()
{
    if (!expanded && !hasDetailFields) {
        hasDetailFields = true;
        for (int pair = 0; pair < 9; ++pair)
            detailFields << detailText(pair);
    }
    expanded = !expanded;
    ins = before(ins, '(') + suffix();
    detailAreaHidden = !expanded;
    if (expanded)
        resField = resText;
}

void LineModel::refill(QStringList *list)
{
    normalise(list, 19);
    num = list->at(0);
    ins = list->at(2) + suffix();
    jpos = list->at(3) + ":" + list->at(4);
    v = list->at(5) + ":" + list->at(6);
    z = list->at(7) + ":" + list->at(8);
    t = list->at(9) + ":" + list->at(10);
    resText = withBlanks(list->at(12));
    details = list->mid(13, 18);
    expanded = !expanded;
    toggle();
    if (hasDetailFields) {
        for (int pair = 0; pair < 9; ++pair)
            detailFields[pair] = detailText(pair);
    }
}

QStringList LineModel::read()
{
    resText.replace(' ', '_');
    QStringList list;
    list << num << before(ins, '(');
    list += (jpos.split(':') + v.split(':') + z.split(':') + t.split(':'));
    list << "Att" << resText;
    return list + details;
}

void LineModel::setV(const QStringList &l)
{
    if (l.size() < 3)
        return;
    for (int pair = 6; pair <= 8; ++pair) {
        details[2 * pair + 1] = l.at(pair - 6);
        if (hasDetailFields)
            detailFields[pair] = detailText(pair);
    }
    if (l.size() == 4)
        v = before(v, ':') + ":" + l.at(3);
}

void LineModel::setJpos(const QStringList &l)
{
    if (l.size() < 6)
        return;
    for (int pair = 0; pair <= 5; ++pair) {
        details[2 * pair + 1] = l.at(pair);
        if (hasDetailFields)
            detailFields[pair] = detailText(pair);
    }
    if (l.size() == 7)
        jpos = before(jpos, ':') + ":" + l.at(6);
}

void LineModel::changeDetail(int field, const QString &text)
{
    details[2 * field + 1] = text.split(':').last();
    detailFields[field] = text;
    if (field == 6 || field == 7)
        v = before(v, ':') + ":";
    else
        jpos = before(jpos, ':') + ":";
}

void LineModel::changeRes(const QString &text)
{
    resField = text;
    resText = text;
}

// The list

ListModel::ListModel(QStringList *title, QSize screen)
    : startLine(0)
    , totalLine(14)
    , hasTitle(false)
    , cur(0)
    , last(-1)
    , multi(false)
    , size(qMin(screen.width(), 480), screen.height())
    , height(0)
{
    if (title->isEmpty())
        return;
    startLine = 1;
    SlotModel slot;
    hasTitle = makeSlot(title, true, &slot);
    store << *title;
    if (hasTitle)
        pool << slot;
    totalLine = 13;
    sumHeights();
}

ListModel::Family ListModel::familyOf(const QString &kind)
{
    if (kind == "MJ" || kind == "ML" || kind == "Oth" || kind == "Title")
        return LineFamily;
    return kind == "DataEditor" ? TableFamily : NoFamily;
}

bool ListModel::makeSlot(QStringList *row, bool title, SlotModel *slot) const
{
    const Family family = familyOf(row->takeFirst());
    slot->isLine = family == LineFamily;
    slot->height = rowHeight(false);
    if (family == LineFamily)
        slot->line = LineModel(row);
    else if (family == TableFamily)
        slot->table = TableModel(title, *row);
    return family != NoFamily;
}

int ListModel::rowHeight(bool open) const
{
    return open ? int(3.0 * size.height() * 1.04 / 24.0) : int(size.height() * 1.04 / 24.0);
}

bool ListModel::isInstruction(int i) const
{
    return typeAt(i) == "MJ" || typeAt(i) == "ML";
}

int ListModel::slotOf(int i) const
{
    return i - startLine + t();
}

void ListModel::checkStartLine()
{
    if (startLine <= 0)
        startLine = t();
}

void ListModel::sumHeights()
{
    height = 0;
    Q_FOREACH (const SlotModel &slot, pool)
        height += slot.height;
}

void ListModel::reshow()
{
    if (!multi)
        last = cur;
    const int lo = qMin(cur, last);
    const int hi = qMax(cur, last);
    checkStartLine();
    int first = startLine;
    int end = startLine + totalLine;
    if (count() <= end)
        end = count();
    if (end < first)
        end = first;

    if (count() >= pool.size() - 1 && slotOf(end) == pool.size()
        && end >= startLine + totalLine - 2) {
        bool anyOpen = false;
        for (int i = end - 2; i <= end - 1; ++i) {
            const int slot = slotOf(i);
            if (exists(slot) && pool.at(slot).isLine && pool.at(slot).line.expanded)
                anyOpen = true;
        }
        if (anyOpen) {
            for (int i = first; i <= first + 1; ++i) {
                if (exists(slotOf(i)))
                    pool[slotOf(i)].hidden = true;
            }
            first += 2;
        }
    }
    for (int i = qMax(first, end); slotOf(i) < pool.size(); ++i)
        pool[slotOf(i)].hidden = true;
    for (int i = first; i < end; ++i) {
        QStringList row = store.at(i);
        if (exists(slotOf(i))) {
            row.removeFirst();
            show(i, &row);
        } else {
            SlotModel slot;
            if (makeSlot(&row, false, &slot))
                pool << slot;
        }
        pool[slotOf(i)].hidden = false;
        deselect(i, i < lo || i > hi);
    }
    sumHeights();
}

void ListModel::setSize(QSize s)
{
    size.setWidth(s.width());
    const int h = size.height();
    int a = 4 * s.height() - h;
    a = a * 14 / 3;
    a = a / h;
    totalLine = a < 5 ? 5 : a;
    if (hasTitle)
        totalLine -= 1;
    while (pool.size() > t())
        pool.removeLast();
    reshow();
}

void ListModel::setTotalLine(int n)
{
    totalLine = n;
    reshow();
}

/// Writes a row, without its kind, into its slot.
void ListModel::show(int i, QStringList *row)
{
    const int slot = slotOf(i);
    if (slot < t() || slot > totalLine || !exists(slot))
        return;
    SlotModel &s = pool[slot];
    const QString kind = typeAt(i);
    if (isInstruction(i)) {
        s.line.refill(row);
        s.height = rowHeight(s.line.expanded);
        s.line.firstLineHidden = false;
        s.line.table.hidden = true;
    } else if (kind == "Oth" || kind == "Title") {
        s.line.table.setData(*row);
        s.line.table.hidden = false;
        s.line.firstLineHidden = true;
    } else {
        s.table.setData(*row);
    }
}

void ListModel::toggle(int slot)
{
    pool[slot].line.toggle();
    pool[slot].height = rowHeight(pool.at(slot).line.expanded);
}

void ListModel::sweep(bool stopsAtTheEnd)
{
    for (int i = startLine; slotOf(i) < totalLine; ++i) {
        if (stopsAtTheEnd && (slotOf(i) >= pool.size() || i >= count()))
            return;
        if (isInstruction(i) && exists(slotOf(i)) && pool.at(slotOf(i)).line.expanded)
            toggle(slotOf(i));
    }
}

void ListModel::nextPage()
{
    if (!(startLine + totalLine < count()))
        return;
    startLine += totalLine;
    sweep(true);
    reshow();
}

void ListModel::prevPage()
{
    if (!(totalLine <= count()))
        return;
    if (hasTitle)
        startLine = startLine > totalLine ? startLine - totalLine : 1;
    else if (startLine > 0)
        startLine = startLine < totalLine ? 0 : startLine - totalLine;
    sweep(true);
    reshow();
}

void ListModel::nextLine()
{
    if (!(startLine + totalLine < count()))
        return;
    startLine += 1;
    sweep(true);
    reshow();
}

void ListModel::prevLine()
{
    if (!(startLine > t())) {
        startLine = t();
        return;
    }
    startLine -= 1;
    sweep(true);
    reshow();
}

void ListModel::home()
{
    if (!(totalLine <= count()))
        return;
    startLine = t();
    sweep(false);
    reshow();
}

void ListModel::end()
{
    if (!(totalLine <= count()))
        return;
    startLine = count() - totalLine;
    sweep(false);
    reshow();
}

int ListModel::currentIndex()
{
    if (hasTitle && cur <= 0)
        cur = 1;
    return cur;
}

void ListModel::setCurIndex(int i, bool force)
{
    if (i < 0)
        return;
    if (slotOf(i) < t() || slotOf(i) >= totalLine || multi || pool.size() <= 1 || force) {
        cur = i;
        reshow();
    } else {
        deselect(cur, true);
        cur = i;
        deselect(i, false);
    }
}

void ListModel::setMultiSelect()
{
    last = cur;
    multi = true;
    reshow();
}

void ListModel::clearMultiSelect()
{
    multi = false;
    reshow();
}

void ListModel::deselect(int i, bool plain)
{
    const int slot = slotOf(i);
    if (slot > totalLine || slot < t() || !(i < store.size() + t()) || !exists(slot))
        return;
    if (typeAt(i) == "Oth")
        pool[slot].line.table.selected = !plain;
    else
        pool[slot].selected = !plain;
}

void ListModel::addWidget(const QStringList &row, bool refresh, bool viewOnly)
{
    if (!viewOnly) {
        multi = false;
        store << row;
        if (refresh)
            setCurIndex(count() - 1, false);
    }
    if (count() >= totalLine) {
        startLine = count() - totalLine;
        checkStartLine();
    }
    if (refresh)
        reshow();
}

void ListModel::renumberText(int j, int number)
{
    setIndex(j, (hasTitle ? "" : "N") + QString::number(number));
}

void ListModel::insertWidget(int i, const QStringList &row, bool refresh, bool viewOnly)
{
    if (!viewOnly) {
        multi = false;
        for (int j = i; j < count(); ++j)
            renumberText(j, j + 1);
        store.insert(qMin(i, count()), row);
        deselect(cur, true);
        cur = i;
    }
    if (refresh)
        reshow();
}

void ListModel::removeWidget(int i, bool refresh)
{
    multi = false;
    for (int j = i + 1; j < count(); ++j)
        renumberText(j, j - 1);
    if (i >= 0 && i < count())
        store.removeAt(i);
    const int n = count();
    if (!(slotOf(i) <= 0 && slotOf(i) >= totalLine)) {
        if (i < cur && cur > t())
            cur -= 1;
        if (cur >= n)
            cur = n - 1;
        if (i < last && last > t())
            last -= 1;
        if (last >= n)
            last = n - 1;
        if (startLine >= n)
            startLine = n < totalLine ? t() : n - totalLine;
    }
    if (refresh)
        reshow();
}

void ListModel::clear()
{
    const int n = count();
    int total = t() * 100;
    while (count() > t()) {
        store.removeLast();
        emitSignal("deleted", total / n);
        total += 100;
    }
    startLine = t();
    reshow();
    emitSignal("deleted", 100);
}

void ListModel::setContent(int i, QStringList *row)
{
    store[i] = *row;
    row->removeFirst();
    show(i, row);
}

void ListModel::setIndex(int i, const QString &n)
{
    store[i][1] = n;
    const int slot = slotOf(i);
    if (slot < 1 || slot >= totalLine + t() || !exists(slot))
        return;
    const QString kind = typeAt(i);
    if (isInstruction(i))
        pool[slot].line.num = n;
    else if (kind == "Oth")
        pool[slot].line.table.cells[0] = n;
    else if (!pool.at(slot).isLine)
        pool[slot].table.cells[0] = n;
}

QStringList ListModel::values(int i, int first, int last) const
{
    QStringList result;
    for (int position = first; isInstruction(i) && position <= last; position += 2)
        result << store.at(i).value(position);
    return result;
}

int ListModel::index(int i, int position) const
{
    return isInstruction(i) ? store.at(i).value(position).toInt() : -1;
}

void ListModel::write(int i, int firstPosition, int strings, int indexPosition,
                      const QStringList &l)
{
    for (int k = 0; k < strings; ++k)
        store[i][firstPosition + 2 * k] = l.at(k);
    if (l.size() > strings)
        store[i][indexPosition] = l.at(strings);
}

void ListModel::setV(int i, const QStringList &l)
{
    if (!isInstruction(i))
        return;
    write(i, 26, 3, 6, l);
    if (slotOf(i) > 0 && slotOf(i) < totalLine && exists(slotOf(i)))
        pool[slotOf(i)].line.setV(l);
}

void ListModel::setJpos(int i, const QStringList &l)
{
    if (!isInstruction(i))
        return;
    write(i, 14, 6, 4, l);
    if (slotOf(i) > 0 && slotOf(i) < totalLine && exists(slotOf(i)))
        pool[slotOf(i)].line.setJpos(l);
}

// Taps

void ListModel::emitSignal(const char *name, int argument)
{
    emitted << QString("%1 %2").arg(name).arg(argument);
}

void ListModel::lineClicked(int index)
{
    if (index < 0)
        return;
    setCurIndex(index, false);
    emitSignal("clicked", index);
}

/// A tap on what an instruction row shows itself; its table reports its own taps.
void ListModel::lineTapped(int slot)
{
    if (pool.at(slot).line.table.hidden)
        lineClicked(pool.at(slot).line.number());
}

void ListModel::contentChanged(int index, const SlotModel *sender)
{
    if (index < 0 || index >= count())
        return;
    const QString kind = typeAt(index);
    QStringList row = store.at(index).mid(1);
    if (isInstruction(index)) {
        row = const_cast<SlotModel *>(sender)->line.read();
    } else if (kind == "Oth") {
        const int slot = slotOf(index);
        if (slot >= t() && exists(slot))
            row = pool.at(slot).line.table.data();
    } else if (kind == "DataEditor") {
        row = sender->table.data();
    }
    store[index] = QStringList(kind) + row;
}

void ListModel::tapRow(int slot)
{
    if (pool.at(slot).isLine)
        lineTapped(slot);
    else
        lineClicked(pool.at(slot).table.number());
}

void ListModel::tapInstruction(int slot)
{
    toggle(slot);
    reshow();
    lineClicked(pool.at(slot).line.number());
}

void ListModel::tapJpos(int slot)
{
    const int number = pool.at(slot).line.number();
    setCurIndex(number, false);
    emitSignal("jpos", number);
}

void ListModel::tapV(int slot)
{
    const int number = pool.at(slot).line.number();
    setCurIndex(number, false);
    emitSignal("v", number);
}

void ListModel::tapZ(int slot, const KeypadAnswer &answer)
{
    SlotModel &s = pool[slot];
    if (answer.accepted) {
        s.line.z = answer.changeOf(&s.line.z, true);
        contentChanged(s.line.number(), &s);
    }
    lineTapped(slot);
}

void ListModel::tapT(int slot, const KeypadAnswer &answer)
{
    SlotModel &s = pool[slot];
    if (answer.accepted) {
        s.line.t = answer.changeOf(&s.line.t, true);
        contentChanged(s.line.number(), &s);
    }
    lineTapped(slot);
}

void ListModel::tapRes(int slot, const KeypadAnswer &answer)
{
    SlotModel &s = pool[slot];
    if (answer.accepted) {
        s.line.changeRes(answer.changeOf(&s.line.resField, false));
        contentChanged(s.line.number(), &s);
    }
    lineTapped(slot);
}

void ListModel::tapDetail(int slot, int field, const KeypadAnswer &answer)
{
    SlotModel &s = pool[slot];
    if (answer.accepted) {
        s.line.changeDetail(field, answer.changeOf(&s.line.detailFields[field], true));
        contentChanged(s.line.number(), &s);
    }
    lineTapped(slot);
}

void ListModel::tapTable(int slot, bool isKept)
{
    const bool isLine = pool.at(slot).isLine;
    lineClicked(isLine ? pool.at(slot).line.table.number() : pool.at(slot).table.number());
    if (isLine && !isKept)
        lineTapped(slot); // silent, unless the tap just put another row here
}

void ListModel::tapTableField(int slot, int column, const KeypadAnswer &answer)
{
    SlotModel &s = pool[slot];
    TableModel &table = s.isLine ? s.line.table : s.table;
    if (answer.accepted) {
        table.cells[column] = answer.text;
        contentChanged(table.number(), &s);
    }
    tapTable(slot, true);
}
