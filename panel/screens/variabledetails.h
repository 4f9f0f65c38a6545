// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VARIABLEDETAILS_H
#define VARIABLEDETAILS_H

#include "screens/rowdetails.h"
#include "screens/valuemark.h"
#include "screens/variabletable.h"

/// A variable of the machine in the words of RowDetails: the value, what stands in the file, the
/// limits, and what is wrong with the value.
namespace VariableDetails {

/// The value is the first of them, and the one that a touch changes. \a shown is on the screen, as
/// \a state says; \a stored is in the file, null for nothing.
QList<RowDetails::Detail> of(const MachineVariable &variable, const QString &shown,
                             const QString &stored, const ValueMark::State &state);

} // namespace VariableDetails

#endif // VARIABLEDETAILS_H
