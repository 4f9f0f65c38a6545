// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WORKS_H
#define WORKS_H

class QString;
class Report;

/// How much of the whole is measured.
struct Extent
{
    bool isQuick; ///< without the largest sizes
};

/// Putting programs into editors, the turns of the event loop meanwhile, and colouring them anew.
void measureLoads(Report &report, const Extent &extent);
/// What an operator does in a long program.
void measureEdits(Report &report, const Extent &extent);
/// The line filter.
void measureFilter(Report &report, const Extent &extent);
/// Lists of instruction rows.
void measureRows(Report &report, const Extent &extent);
/// Memory, each subject in a process of its own: this program again, with "--peak".
void measureMemory(Report &report, const Extent &extent);

/// Does what one process is to be measured at, and prints its peak memory in KB. The exit status.
int runForPeak(const QString &subject, int size);

#endif // WORKS_H
