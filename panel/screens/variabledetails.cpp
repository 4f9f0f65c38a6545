// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/variabledetails.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(VariableDetails)
};

RowDetails::Detail fact(const QString &name, const QString &value)
{
    RowDetails::Detail detail;
    detail.name = name;
    detail.value = value;
    detail.isWide = true;
    return detail;
}

QString typeName(ValueRule::Type type)
{
    switch (type) {
    case ValueRule::Integer:
        return Words::tr("whole number");
    case ValueRule::Decimal:
        return Words::tr("number");
    case ValueRule::Text:
        return Words::tr("text");
    case ValueRule::Switch:
        return Words::tr("on or off");
    }
    return QString();
}

} // namespace

QList<RowDetails::Detail> VariableDetails::of(const MachineVariable &variable, const QString &shown,
                                              const QString &stored, const ValueMark::State &state)
{
    const ValueRule &rule = variable.rule;
    RowDetails::Detail value = fact(Words::tr("Value"), rule.withUnit(shown));
    value.isKey = true;
    value.note = state.word;
    value.tone = state.tone;
    QList<RowDetails::Detail> details{value};
    details.append(fact(Words::tr("In the file"),
                        stored.isEmpty() ? Words::tr("nothing") : rule.withUnit(stored)));
    details.append(fact(Words::tr("Type"), typeName(rule.type)));
    if (rule.type == ValueRule::Text)
        details.append(fact(Words::tr("Length"), rule.limits()));
    if (!rule.isNumber())
        return details;
    details.append(fact(Words::tr("Unit"), rule.unit.isEmpty() ? Words::tr("none") : rule.unit));
    details.append(fact(Words::tr("Minimum"), rule.withUnit(ValueRule::numberText(rule.minimum))));
    details.append(fact(Words::tr("Maximum"), rule.withUnit(ValueRule::numberText(rule.maximum))));
    return details;
}
