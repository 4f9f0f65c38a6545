// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ORACLEPROGRAM_H
#define ORACLEPROGRAM_H

#include <QByteArray>

namespace OracleProgram {

/// A program in what our dialect and RS-274 have in common: G00, G01 and G33 over X, Y and Z, in
/// both units and both ways to give a position, words in any order. The same \a seed gives the same
/// program.
QByteArray text(quint32 seed);

} // namespace OracleProgram

#endif // ORACLEPROGRAM_H
