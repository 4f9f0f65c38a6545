// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VARIABLETABLE_H
#define VARIABLETABLE_H

#include "screens/valuerule.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QSet>
#include <QStringList>

/// One variable of the machine.
struct MachineVariable
{
    QString name;
    ValueRule rule;
    QString value;
};

/// The machine's variables as their file has them: a row for the value of each, and one for what
/// its values may be.
///
///     DataEditor  N5  (empty)  Tension  6.0
///     Variable  Tension  type=decimal  unit=N  minimum=0.5  maximum=8.5
///
/// A variable is one that the panel brings along or that the file defines. What the panel does not
/// understand, rows and keys alike, is stored again as it was read.
class VariableTable
{
    Q_DECLARE_TR_FUNCTIONS(VariableTable)

public:
    /// A row for the list: kind, number, nothing, name, value.
    static const int rowLength = 5;
    static const int nameAt = 3;
    static const int valueAt = 4;
    /// No file defines more.
    static const int mostVariables = 500;

    /// The variables of the sample machine, which ":/samples/variables.txt" has.
    VariableTable();

    /// Takes rules and values from the rows of a file. To be called once.
    void read(const QList<QStringList> &rows);
    /// No variable has a value any more.
    void clearValues();

    int count() const { return m_variables.size(); }
    const MachineVariable &at(int number) const { return m_variables.at(number); }
    /// The number of a variable, -1 for a name that there is none of.
    int numberOf(const QString &name) const { return m_numbers.value(name, -1); }
    /// The rows for the list, numbered "N0" and on.
    QList<QStringList> listRows() const;
    /// What stands in the file beside the values, definitions first read first.
    QList<QStringList> otherRows() const;
    /// Why rows that define a variable are not used, each in words for the operator.
    const QStringList &faults() const { return m_faults; }

private:
    void add(const MachineVariable &variable);
    void readDefinition(const QStringList &row);
    void readValue(const QStringList &row);
    void addFault(const QString &name, const QString &reason);

    QList<MachineVariable> m_variables;
    QHash<QString, int> m_numbers;
    /// Variables that the rows read so far define.
    QSet<QString> m_defined;
    /// Names of all definitions read, the unusable ones too.
    QSet<QString> m_named;
    QList<QStringList> m_ownDefinitions;
    QList<QStringList> m_kept;
    QStringList m_faults;
};

#endif // VARIABLETABLE_H
