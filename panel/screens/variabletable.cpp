// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/variabletable.h"

#include "storage/rowfile.h"

#include <algorithm>
#include <cmath>

namespace {

const QLatin1String valueKind("DataEditor");
const QLatin1String definitionKind("Variable");
// The first two strings of a definition are its kind and the variable's name.
const int definitionKeysAt = 2;

const int longestName = 24;
const int longestUnit = 8;
// A name that nobody can read is told in part.
const int toldLetters = 20;

bool isReadable(const QString &text, int most)
{
    return text.size() <= most
           && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
}

QHash<QString, QString> keysOf(const QStringList &row)
{
    QHash<QString, QString> keys;
    for (int i = definitionKeysAt; i < row.size(); ++i) {
        const int sign = row.at(i).indexOf(QLatin1Char('='));
        if (sign > 0)
            keys.insert(row.at(i).left(sign).trimmed(), row.at(i).mid(sign + 1).trimmed());
    }
    return keys;
}

bool readType(const QString &text, ValueRule::Type *type)
{
    const struct
    {
        const char *name;
        ValueRule::Type type;
    } types[] = {{"integer", ValueRule::Integer},
                 {"decimal", ValueRule::Decimal},
                 {"text", ValueRule::Text},
                 {"on/off", ValueRule::Switch}};
    for (const auto &known : types) {
        if (text != QLatin1String(known.name))
            continue;
        *type = known.type;
        return true;
    }
    return false;
}

/// A limit that is not given leaves \a limit as it is.
bool readLimit(const QHash<QString, QString> &keys, const char *key, double *limit)
{
    const QString text = keys.value(QLatin1String(key));
    return text.isEmpty() || ValueRule::readNumber(text, limit);
}

/// What is wrong with the limits in \a keys; empty, and the limits in \a rule, otherwise.
QString readLimits(const QHash<QString, QString> &keys, ValueRule *rule)
{
    const double most = rule->isNumber() ? ValueRule::largestNumber : ValueRule::longestText;
    double minimum = rule->isNumber() ? -most : 0;
    double maximum = most;
    if (!readLimit(keys, "minimum", &minimum) || !readLimit(keys, "maximum", &maximum))
        return VariableTable::tr("limit not a number");
    if (minimum > maximum)
        return VariableTable::tr("minimum above maximum");
    if (std::fabs(minimum) > most || std::fabs(maximum) > most)
        return VariableTable::tr("limit too large");
    if (rule->type == ValueRule::Integer && std::ceil(minimum) > std::floor(maximum))
        return VariableTable::tr("no whole number between the limits");
    rule->minimum = minimum;
    rule->maximum = maximum;
    rule->letters = rule->isNumber() ? ValueRule::longestText : int(maximum);
    return QString();
}

/// What is wrong with a definition; empty, and \a rule read, otherwise.
QString readRule(const QStringList &row, ValueRule *rule)
{
    const QHash<QString, QString> keys = keysOf(row);
    const QString name = row.value(1);
    if (name.trimmed().isEmpty() || !isReadable(name, longestName))
        return VariableTable::tr("name empty, too long or not readable");
    if (!readType(keys.value(QLatin1String("type")), &rule->type))
        return VariableTable::tr("type unknown");
    rule->unit = keys.value(QLatin1String("unit"));
    if (!isReadable(rule->unit, longestUnit))
        return VariableTable::tr("unit too long or not readable");
    return readLimits(keys, rule);
}

QString toldName(const QString &name)
{
    QString readable = name.left(toldLetters).simplified();
    std::replace_if(
        readable.begin(), readable.end(), [](QChar c) { return !c.isPrint(); }, QLatin1Char('?'));
    return readable.size() < name.size() ? readable + QLatin1String("...") : readable;
}

} // namespace

VariableTable::VariableTable()
{
    QList<QStringList> rows;
    QString error;
    RowFile::read(QLatin1String(":/samples/variables.txt"), &rows, &error);
    read(rows);
    // A file may define all of it anew.
    m_ownDefinitions.swap(m_kept);
    m_defined.clear();
    m_named.clear();
}

void VariableTable::read(const QList<QStringList> &rows)
{
    for (const QStringList &row : rows) {
        if (row.value(0) == definitionKind)
            readDefinition(row);
    }
    for (const QStringList &row : rows) {
        if (row.value(0) == definitionKind)
            m_kept.append(row);
        else
            readValue(row);
    }
}

void VariableTable::clearValues()
{
    for (MachineVariable &variable : m_variables)
        variable.value.clear();
}

QList<QStringList> VariableTable::listRows() const
{
    QList<QStringList> rows;
    for (const MachineVariable &variable : m_variables)
        rows.append({valueKind, QString::fromLatin1("N%1").arg(rows.size()), QString(),
                     variable.name, variable.value});
    return rows;
}

QList<QStringList> VariableTable::otherRows() const
{
    QList<QStringList> rows = m_kept;
    for (const QStringList &definition : m_ownDefinitions) {
        if (!m_named.contains(definition.value(1)))
            rows.append(definition);
    }
    return rows;
}

void VariableTable::add(const MachineVariable &variable)
{
    m_numbers.insert(variable.name, m_variables.size());
    m_variables.append(variable);
}

void VariableTable::readDefinition(const QStringList &row)
{
    const QString name = row.value(1);
    m_named.insert(name);
    MachineVariable variable;
    const QString fault = readRule(row, &variable.rule);
    if (!fault.isEmpty())
        return addFault(name, fault);
    if (m_defined.contains(name))
        return addFault(name, tr("there twice"));
    const int number = numberOf(name);
    if (number < 0 && count() >= mostVariables)
        return addFault(name, tr("too many variables"));
    m_defined.insert(name);
    variable.name = name;
    if (number < 0)
        add(variable);
    else
        m_variables[number].rule = variable.rule;
}

/// The last row of a variable counts.
void VariableTable::readValue(const QStringList &row)
{
    const bool isValue = row.size() == rowLength && row.at(0) == valueKind;
    const int number = isValue ? numberOf(row.at(nameAt)) : -1;
    if (number < 0)
        m_kept.append(row);
    else
        m_variables[number].value = m_variables.at(number).rule.bare(row.at(valueAt));
}

void VariableTable::addFault(const QString &name, const QString &reason)
{
    m_faults.append(tr("%1: %2").arg(toldName(name), reason));
}
