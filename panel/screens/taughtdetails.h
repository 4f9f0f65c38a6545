// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TAUGHTDETAILS_H
#define TAUGHTDETAILS_H

#include "screens/rowdetails.h"

#include <QStringList>

class MachineData;

/// A taught instruction in the words of RowDetails: each of its values by name, with unit and
/// limits, and what is wrong with it.
namespace TaughtDetails {

struct Field
{
    /// Where the value stands in its row.
    int position;
    RowDetails::Detail detail;
};

/// "Instruction 2: MoveJ", for a row as a file has it.
QString headingOf(const QStringList &row);
/// What the number at \a position of an instruction is called: "X", "Speed V", "Zone Z". No two of
/// an instruction are called the same.
QString nameOfNumber(const QStringList &row, int position);
/// The values of that row; none for a row that is no instruction.
QList<Field> fieldsOf(const QStringList &row, const MachineData &machine);

} // namespace TaughtDetails

#endif // TAUGHTDETAILS_H
