// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/taughtdetails.h"

#include "filarixrows.h"
#include "screens/machinedata.h"
#include "screens/movementlimits.h"
#include "screens/taughtprogram.h"

#include <QCoreApplication>

namespace {

using namespace FilarixRows;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(TaughtDetails)
};

RowDetails::Detail key(const QString &name, const QString &value)
{
    RowDetails::Detail detail;
    detail.name = name;
    detail.value = value;
    detail.isKey = true;
    return detail;
}

/// What an instruction names by the number at \a position.
TaughtDetails::Field entry(const QString &name, const QStringList &row, int position,
                           const QList<TableEntry> &table)
{
    const int number = row.at(position).toInt();
    if (number < 1)
        return {position, key(name, Words::tr("own values"))};
    const QString text = table.value(number - 1).name;
    return {position, key(name, QString::fromLatin1("%1 %2").arg(number).arg(text).trimmed())};
}

TaughtDetails::Field number(const QStringList &row, int position)
{
    const ValueRule rule = MovementLimits::ruleAt(position);
    const QString &value = row.at(position);
    RowDetails::Detail detail =
        key(TaughtDetails::nameOfNumber(row, position), rule.withUnit(value));
    detail.note = rule.refusal(value);
    if (detail.note.isEmpty())
        detail.note = rule.range();
    else
        detail.tone = Message::Alarm;
    return {position, detail};
}

TaughtDetails::Field text(const QString &name, const QString &value, int position)
{
    RowDetails::Detail detail = key(name, value);
    detail.isWide = true;
    return {position, detail};
}

QList<TaughtDetails::Field> movementFields(const QStringList &row, const MachineData &machine)
{
    QList<TaughtDetails::Field> fields{entry(Words::tr("Point"), row, JposIndex, machine.points()),
                                       entry(Words::tr("Speed"), row, VIndex, machine.speeds())};
    for (int pair = 0; pair < detailCount; ++pair)
        fields.append(number(row, detailValue(pair)));
    fields.append(number(row, ZValue));
    fields.append(number(row, TValue));
    QString remark = row.at(Res);
    fields.append(
        text(Words::tr("Remark"), remark.replace(QLatin1Char('_'), QLatin1Char(' ')), Res));
    return fields;
}

} // namespace

QString TaughtDetails::headingOf(const QStringList &row)
{
    const bool isMovement = isInstruction(row.value(Kind));
    return Words::tr("Instruction %1: %2")
        .arg(row.value(Num), isMovement ? row.value(Ins) : Words::tr("Text"));
}

QString TaughtDetails::nameOfNumber(const QStringList &row, int position)
{
    const QString &letter = row.at(position - 1);
    if (position == ZValue)
        return Words::tr("Zone %1").arg(letter);
    if (position == TValue)
        return Words::tr("Tool %1").arg(letter);
    return position < detailValue(jposDetails) ? letter : Words::tr("Speed %1").arg(letter);
}

QList<TaughtDetails::Field> TaughtDetails::fieldsOf(const QStringList &row,
                                                    const MachineData &machine)
{
    if (!TaughtProgram::isValid(row))
        return QList<Field>();
    if (isInstruction(row.at(Kind)))
        return movementFields(row, machine);
    return {text(Words::tr("Text"), row.last(), row.size() - 1)};
}
