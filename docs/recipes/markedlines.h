// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MARKEDLINES_H
#define MARKEDLINES_H

#include "wgcodeediter.h"

#include <QMap>

#include <guards/errormarks.h>

//! [marked lines]
/// To the next finding behind \a row, or to the first one again; what it says, for the operator.
inline QString goToFinding(ErrorMarks *marks, WGCodeEditer *editor, int row)
{
    const int next = marks->nextRow(row) > 0 ? marks->nextRow(row) : marks->nextRow(0);
    if (next > 0)
        editor->gotoLine(next);
    return marks->text(next);
}

/// Marks the lines that a check of the program found at fault, in place of those of the check
/// before, and goes to the first. \a findings has a text for the operator by its row, from 1.
inline void showFindings(ErrorMarks *marks, WGCodeEditer *editor,
                         const QMap<int, QString> &findings)
{
    marks->clear();
    Q_FOREACH (int row, findings.keys())
        marks->mark(row, ErrorMarks::Error, findings.value(row));
    goToFinding(marks, editor, 0);
}
//! [marked lines]

#endif // MARKEDLINES_H
