// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MARKEDLINES_H
#define MARKEDLINES_H

#include "wgcodeediter.h"

#include <QMap>

#include <guards/errormarks.h>

//! [marked lines]
/// Marks the lines that a check of the host's own found at fault, in place of those of the check
/// before. \a findings has a text for the operator by its row, from 1.
inline void showFindings(ErrorMarks *marks, const QMap<int, QString> &findings)
{
    marks->clear();
    Q_FOREACH (int row, findings.keys())
        marks->mark(row, ErrorMarks::Error, findings.value(row));
}
//! [marked lines]

//! [next mark]
/// To the next mark behind \a row, or to the first one again; what it says, for the operator.
inline QString goToNextMark(ErrorMarks *marks, WGCodeEditer *editor, int row)
{
    const int next = marks->nextRow(row) > 0 ? marks->nextRow(row) : marks->nextRow(0);
    if (next > 0)
        editor->gotoLine(next);
    return marks->text(next);
}
//! [next mark]

#endif // MARKEDLINES_H
