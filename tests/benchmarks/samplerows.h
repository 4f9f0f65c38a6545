// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEROWS_H
#define SAMPLEROWS_H

#include <QStringList>

/// An instruction row in host form, with strings of its own: number, three of the detail values and
/// Z differ from row to row, the other strings are equal, as in a taught program.
QStringList sampleRow(int number);

#endif // SAMPLEROWS_H
