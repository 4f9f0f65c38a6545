// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/movementlimits.h"

#include "filarixrows.h"
#include "guards/rowwatcher.h"
#include "mjline.h"
#include "screens/machinedata.h"
#include "tlistwidget.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QVariant>

namespace {

using namespace FilarixRows;

// The fields of an instruction's widget in their order: those of its first line, and those that
// show when it is open. A free text follows these.
const int lineFields[] = {ZValue, TValue};
const int lineFieldCount = 2;

QList<int> positions()
{
    QList<int> all{ZValue, TValue};
    for (int pair = 0; pair < detailCount; ++pair)
        all.append(detailValue(pair));
    return all;
}

ValueRule ruleAt(int position)
{
    if (position == ZValue)
        return MachineData::zoneRule();
    if (position == TValue)
        return MachineData::toolRule();
    const int pair = (position - detailValue(0)) / 2;
    return pair < jposDetails ? MachineData::pointRule(pair)
                              : MachineData::speedRule(pair - jposDetails);
}

/// Where the number of a field stands in its row; 0 for a field of no number.
int positionOf(const QLineEdit *field)
{
    const QList<QLineEdit *> line =
        field->parentWidget()->findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
    const int place = line.indexOf(const_cast<QLineEdit *>(field));
    if (line.size() == lineFieldCount)
        return lineFields[place];
    return line.size() > detailCount && place < detailCount ? detailValue(place) : 0;
}

MJLine *lineOf(QWidget *widget)
{
    while (widget && !qobject_cast<MJLine *>(widget))
        widget = widget->parentWidget();
    return qobject_cast<MJLine *>(widget);
}

/// What is wrong with the number at \a position; empty if it may be.
QString fault(const QStringList &row, int number, int position)
{
    const ValueRule rule = ruleAt(position);
    const QString &value = row.at(position);
    if (rule.refusal(value).isEmpty())
        return QString();
    return MovementLimits::tr("Instruction %1: %2 is %3. It must be %4.")
        .arg(number)
        .arg(row.at(position - 1), ValueRule::shortened(value), rule.limits());
}

bool isMovement(const QStringList &row)
{
    return isInstruction(row.value(Kind)) && row.size() >= HostLength;
}

} // namespace

MovementLimits::MovementLimits(TListWidget *list, QObject *parent) : QObject(parent), m_list(list)
{
    connect(new RowWatcher(list, this), &RowWatcher::rowEdited, this, &MovementLimits::judge);
    qApp->installEventFilter(this);
}

MovementLimits::Fault MovementLimits::firstFault(const QList<QStringList> &rows)
{
    const QList<int> numbers = positions();
    // Most numbers of a long program are those of the movement before.
    QStringList before;
    for (int i = 0; i < rows.size(); ++i) {
        const QStringList &row = rows.at(i);
        if (!isMovement(row))
            continue;
        for (int position : numbers) {
            if (!before.isEmpty() && before.at(position) == row.at(position))
                continue;
            const QString text = fault(row, i + 1, position);
            if (!text.isEmpty())
                return {i, text};
        }
        before = row;
    }
    return {-1, QString()};
}

bool MovementLimits::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress)
        return false;
    QLineEdit *field = qobject_cast<QLineEdit *>(watched);
    if (field && m_list->isAncestorOf(field))
        prepare(field);
    return false;
}

void MovementLimits::prepare(QLineEdit *field)
{
    MJLine *line = lineOf(field);
    if (!line)
        return;
    const int row = line->getNum().toInt();
    m_before = m_list->getContent(row);
    const int position = positionOf(field);
    if (position == 0 || !isMovement(m_before))
        return;
    ruleAt(position).prepare(field,
                             tr("Instruction %1, %2").arg(row).arg(m_before.at(position - 1)));
    field->setProperty("hmiEditedRect", QRect(field->mapToGlobal(QPoint()), field->size()));
}

void MovementLimits::judge(int row, const QStringList &content)
{
    const QString text = takeBack(row, content);
    if (!text.isEmpty())
        Q_EMIT refused(text);
    Q_EMIT judged(text.isEmpty());
}

/// Why a number went back to what it was; empty when none did.
QString MovementLimits::takeBack(int row, const QStringList &content)
{
    if (!isMovement(content) || !isMovement(m_before) || content.at(Num) != m_before.at(Num))
        return QString();
    QStringList kept = content;
    QString text;
    const QList<int> numbers = positions();
    for (int position : numbers) {
        // What stood there before is none of the operator's doing.
        if (content.at(position) == m_before.at(position))
            continue;
        const QString wrong = fault(content, row, position);
        if (wrong.isEmpty())
            continue;
        text = wrong;
        kept[position] = m_before.at(position);
    }
    if (!text.isEmpty())
        m_list->setContent(row, kept);
    return text;
}
