// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/variablesscreen.h"

#include "dataeditor.h"
#include "filarixpanel.h"
#include "look/panelkey.h"
#include "screens/knownrows.h"
#include "screens/rowdetails.h"
#include "screens/valuekeypad.h"
#include "screens/variabledetails.h"
#include "tlistwidget.h"

#include <QChildEvent>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

namespace {

const int nameAt = VariableTable::nameAt;
const int valueAt = VariableTable::valueAt;

// What messages about values that may not be are about.
const QLatin1String refusedValues("refused values");

// Beside the text of a cell, its border included.
const int cellMargin = 4;
// A value, its unit and its mark.
const int leastField = 140;

/// What a cell of the library's becomes wider by to show the longest of \a texts.
int lackOf(const QWidget *cell, const QStringList &texts)
{
    int needed = 0;
    for (const QString &text : texts)
        needed = qMax(needed, cell->fontMetrics().horizontalAdvance(text));
    return qMax(0, needed + 2 * cellMargin - cell->minimumWidth());
}

void widen(QWidget *cell, int pixels)
{
    cell->setFixedWidth(cell->minimumWidth() + pixels);
}

/// The row that a widget shows, from its first cell: "N5".
int numberOf(DataEditor *row)
{
    return row->getData().value(0).mid(1).toInt();
}

/// Null for a row without one.
ValueMark *markOf(const DataEditor *row)
{
    return row ? row->findChild<ValueMark *>() : nullptr;
}

} // namespace

VariablesScreen::VariablesScreen(const QSize &surface, const QString &folder, QWidget *parent)
    : VariablesScreen(surface, folder, std::make_shared<KnownRows>(), parent)
{}

VariablesScreen::VariablesScreen(const QSize &surface, const QString &folder,
                                 const std::shared_ptr<KnownRows> &known, QWidget *parent)
    : ListScreen(surface, QStringList(), surface.width() < FilarixPanel::wideFrom ? 4 : 1,
                 new RowKeeper(QLatin1String("Machine variables"),
                               [known](const QString &path, QList<QStringList> *rows,
                                       QString *error) { return known->read(path, rows, error); }),
                 parent)
    , m_file(QDir(folder).filePath(QLatin1String("variables.txt")))
    , m_known(known)
{
    addPagingKeys();
    list()->installEventFilter(this);
    connect(this, &PanelScreen::titleChanged, this, &VariablesScreen::refreshMarks);
    // The value comes first.
    if (details())
        connect(details(), &RowDetails::touched, this,
                [this](int index) { touch(list()->getCurIndex(), details()->placeOf(index)); });
    setLoading(true);
    keeper()->load(m_file, [this](const RowKeeper::Loaded &loaded) { showRead(loaded); });
}

QString VariablesScreen::title() const
{
    return tr("Machine variables");
}

QList<PanelKey *> VariablesScreen::keys()
{
    PanelKey *storeKey = new PanelKey(Glyphs::icon(Glyphs::Store), [] { return tr("Store"); });
    connect(storeKey, &PanelKey::clicked, this, &VariablesScreen::store);
    return {whenLoaded(storeKey)};
}

bool VariablesScreen::mayClose()
{
    return mayLoseChanges(title(), tr("The variables have changes that are not stored."));
}

void VariablesScreen::refreshStatus()
{
    ListScreen::refreshStatus();
    refreshMarks();
}

QList<QStringList> VariablesScreen::rowsToStore() const
{
    return rows() + m_table.otherRows();
}

/// Nobody shall find a value in the file that the machine must not have.
bool VariablesScreen::mayStore()
{
    const QStringList refused = refusedNames();
    if (!refused.isEmpty()) {
        bringIntoView(m_table.numberOf(refused.first()));
        const MachineVariable &first = m_table.at(m_table.numberOf(refused.first()));
        Q_EMIT told(tr("Not stored. %1 must be %2.").arg(first.name, first.rule.limits()),
                    Message::Warning, refusedValues);
        return false;
    }
    m_storing = changedNames();
    m_storingRows = rowsToStore();
    return true;
}

void VariablesScreen::noteStore()
{
    m_known->set(m_storingRows);
    m_fresh = QSet<QString>(m_storing.begin(), m_storing.end());
    Q_EMIT causeEnded(refusedValues);
}

QString VariablesScreen::storedText(int count) const
{
    return m_storing.isEmpty()
               ? tr("Variables stored: %1.").arg(count)
               : tr("Variables stored: %1, changed ones: %2.").arg(count).arg(m_storing.size());
}

QString VariablesScreen::fileCause() const
{
    return QLatin1String("variables");
}

QString VariablesScreen::nameOf(const QString &) const
{
    return tr("Variables");
}

QString VariablesScreen::describe(const QString &name, const QString &time, int count) const
{
    return tr("%1, %2, values: %3").arg(name, time).arg(count);
}

bool VariablesScreen::bringBack(const QString &, const QList<QStringList> &rows)
{
    QList<QStringList> all = this->rows();
    int brought = 0;
    for (const QStringList &row : rows) {
        const int number =
            row.size() == VariableTable::rowLength ? m_table.numberOf(row.at(nameAt)) : -1;
        if (number < 0 || number >= all.size())
            continue;
        all[number][valueAt] = m_table.at(number).rule.bare(row.at(valueAt));
        ++brought;
    }
    if (brought == 0)
        return false;
    setRows(all);
    refreshStatus();
    if (brought < rows.size())
        Q_EMIT told(tr("Values that are no variable's now, not brought back: %1.")
                        .arg(rows.size() - brought),
                    Message::Warning, fileCause());
    tellRefused();
    return true;
}

QString VariablesScreen::value(const QString &name) const
{
    const int number = m_table.numberOf(name);
    return number < 0 ? QString() : list()->getContent(number).value(valueAt);
}

QString VariablesScreen::refusal(const QString &name) const
{
    const int number = m_table.numberOf(name);
    return number < 0 ? QString() : m_table.at(number).rule.refusal(value(name));
}

/// The values of a file that nobody can read stay empty: nobody shall take those of a new machine
/// for those of this one.
void VariablesScreen::showRead(const RowKeeper::Loaded &loaded)
{
    const bool isRead = loaded.state == RowKeeper::Loaded::Read;
    if (isRead)
        m_known->set(loaded.rows);
    m_table.read(loaded.rows);
    if (!isRead && loaded.state != RowKeeper::Loaded::Missing)
        m_table.clearValues();
    setRows(m_table.listRows());
    setLoading(false);
    markStored(rows());
    tellUnread(loaded, tr("The values are empty. Store first puts that file aside."),
               tr("The values are empty. Switch the panel off and on."));
    tellFaults();
}

void VariablesScreen::tellFaults()
{
    const QStringList &faults = m_table.faults();
    if (!faults.isEmpty())
        Q_EMIT told(tr("%1, lines not used: %2. %3.")
                        .arg(QFileInfo(m_file).fileName())
                        .arg(faults.size())
                        .arg(faults.first()),
                    Message::Warning, fileCause());
    tellRefused();
}

void VariablesScreen::tellRefused()
{
    const QStringList refused = refusedNames();
    if (refused.size() == 1)
        Q_EMIT told(demand(m_table.at(m_table.numberOf(refused.first())), value(refused.first())),
                    Message::Warning, refusedValues);
    else if (refused.size() > 1)
        Q_EMIT told(tr("Variables out of limits: %1. Touch the red ones.").arg(refused.size()),
                    Message::Warning, refusedValues);
}

QStringList VariablesScreen::refusedNames() const
{
    QStringList names;
    for (int number = 0; number < m_table.count(); ++number) {
        const QString &name = m_table.at(number).name;
        if (!refusal(name).isEmpty())
            names.append(name);
    }
    return names;
}

/// Why \a value is none for a variable, and what would be.
QString VariablesScreen::demand(const MachineVariable &variable, const QString &value)
{
    return tr("%1 is %2. It must be %3.")
        .arg(variable.name, value.isEmpty() ? tr("empty") : ValueRule::shortened(value),
             variable.rule.limits());
}

bool VariablesScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == list() && event->type() == QEvent::ChildPolished) {
        if (DataEditor *row =
                qobject_cast<DataEditor *>(static_cast<QChildEvent *>(event)->child()))
            adopt(row);
    }
    DataEditor *row = qobject_cast<DataEditor *>(watched->parent());
    if (!markOf(row))
        return ListScreen::eventFilter(watched, event);
    // The list fills a row with another variable without a word. Its number is painted then.
    if (event->type() == QEvent::Paint)
        refreshMark(row);
    const QLineEdit *field = qobject_cast<QLineEdit *>(watched);
    if (!field || event->type() == QEvent::MouseButtonDblClick)
        return field;
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    touch(numberOf(row), QRect(field->mapToGlobal(QPoint()), field->size()));
    return true;
}

/// A row that is new to the page.
void VariablesScreen::adopt(DataEditor *row)
{
    QLineEdit *field = row->findChild<QLineEdit *>();
    if (!field || markOf(row))
        return;
    const QList<QLabel *> cells = row->findChildren<QLabel *>();
    fitCells(cells, field);
    new ValueMark(field);
    field->installEventFilter(this);
    for (QLabel *cell : cells)
        cell->installEventFilter(this);
    refreshMark(row);
}

/// The library divides the row for any text: on a narrow panel "N12" would be read as "N1". What
/// the number and the name lack is taken from the value.
void VariablesScreen::fitCells(const QList<QLabel *> &cells, QLineEdit *field) const
{
    if (cells.size() != 2)
        return;
    QStringList names;
    for (int number = 0; number < m_table.count(); ++number)
        names.append(m_table.at(number).name);
    const int forNumber = lackOf(cells.at(0), {QString::fromLatin1("N%1").arg(m_table.count())});
    const int most = field->minimumWidth() - leastField - forNumber;
    const int forName = qBound(0, lackOf(cells.at(1), names), qMax(0, most));
    widen(cells.at(0), forNumber);
    widen(cells.at(1), forName);
    widen(field, -forNumber - forName);
}

/// The library's own field would open the letters for numbers too, and take whatever they give.
/// That field reports a touch after the change, and so does this function.
void VariablesScreen::touch(int number, const QRect &place)
{
    if (number >= m_table.count())
        return;
    const QPointer<VariablesScreen> self(this);
    const MachineVariable variable = m_table.at(number);
    if (variable.rule.type != ValueRule::Switch)
        edit(number, place);
    else
        enter(variable.name,
              value(variable.name) == ValueRule::off() ? ValueRule::on() : ValueRule::off());
    if (self)
        list()->on_line_clicked(number);
}

void VariablesScreen::edit(int number, const QRect &place)
{
    const QPointer<VariablesScreen> self(this);
    // Copies: the operator may end the program at the keypad.
    const ValueRule rule = m_table.at(number).rule;
    const QString name = m_table.at(number).name;
    ValueKeypad keypad(rule, QString::fromLatin1("N%1 %2").arg(number).arg(name));
    keypad.setEditedRect(place);
    if (keypad.ask(value(name)) && self)
        enter(name, rule.bare(keypad.text()));
}

void VariablesScreen::enter(const QString &name, const QString &value)
{
    const int number = m_table.numberOf(name);
    const ValueRule &rule = m_table.at(number).rule;
    if (!rule.refusal(value).isEmpty() || (rule.isNumber() && value.isEmpty()))
        return Q_EMIT told(demand(m_table.at(number), value), Message::Warning, refusedValues);
    QStringList row = list()->getContent(number);
    if (row.value(nameAt) != name)
        return;
    row[valueAt] = value;
    list()->setContent(number, row);
    m_fresh.remove(name);
    if (refusedNames().isEmpty())
        Q_EMIT causeEnded(refusedValues);
    refreshStatus();
}

QStringList VariablesScreen::changedNames() const
{
    QStringList names;
    for (const QStringList &row : rows()) {
        const int number = m_table.numberOf(row.value(nameAt));
        if (storedRows().value(number) != row)
            names.append(row.value(nameAt));
    }
    return names;
}

void VariablesScreen::refreshMarks()
{
    const QList<DataEditor *> shown = list()->findChildren<DataEditor *>();
    for (DataEditor *row : shown) {
        if (markOf(row))
            refreshMark(row);
    }
    refreshDetails();
}

void VariablesScreen::showDetails()
{
    const int number = list()->getCurIndex();
    if (isLoading())
        return details()->setDetails(QString());
    if (number < 0 || number >= m_table.count())
        return details()->setDetails(tr("No variable is chosen. Touch one."));
    const MachineVariable &variable = m_table.at(number);
    details()->setDetails(QString::fromLatin1("N%1 %2").arg(number).arg(variable.name),
                          VariableDetails::of(variable, value(variable.name),
                                              storedRows().value(number).value(valueAt),
                                              stateOf(variable)));
}

void VariablesScreen::refreshMark(DataEditor *row)
{
    const int number = numberOf(row);
    if (number < 0 || number >= m_table.count())
        return;
    const MachineVariable &variable = m_table.at(number);
    markOf(row)->setState(stateOf(variable));
    QLineEdit *field = row->findChild<QLineEdit *>();
    field->setAccessibleName(variable.name);
    field->setAccessibleDescription(variable.rule.limits());
    // Of a text that is too long for its field the beginning is seen.
    field->setCursorPosition(0);
}

ValueMark::State VariablesScreen::stateOf(const MachineVariable &variable) const
{
    const QString shown = value(variable.name);
    const QStringList stored = storedRows().value(m_table.numberOf(variable.name));
    ValueMark::State state;
    state.unit = variable.rule.unit;
    if (variable.rule.type == ValueRule::Switch)
        state.drawing =
            shown == ValueRule::on() ? ValueMark::State::SwitchedOn : ValueMark::State::SwitchedOff;
    state.word = variable.rule.refusal(shown);
    if (!state.word.isEmpty()) {
        state.tone = Message::Alarm;
    } else if (stored.value(valueAt) != shown) {
        state.tone = Message::Warning;
        state.word = tr("changed");
    } else if (m_fresh.contains(variable.name)) {
        state.word = tr("stored");
    }
    return state;
}
