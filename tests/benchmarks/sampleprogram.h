// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEPROGRAM_H
#define SAMPLEPROGRAM_H

#include <QString>

/// A program of \a lines lines as machines get it: numbered blocks of moves, now and then a feed, a
/// switch and a comment. The same one each time.
QString sampleProgram(int lines);

#endif // SAMPLEPROGRAM_H
