// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef OPENEDPROGRAM_H
#define OPENEDPROGRAM_H

#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <guards/windowprogram.h>
#include <programs/programdirectory.h>

//! [opened program]
/// Opens the program \a name of the program directory at the row \a row, from 1. False when it is
/// missing, or the operator kept the one that is open.
inline bool openAt(WMMainWindow *window, const QString &name, int row,
                   ProgramGuard *guard = nullptr)
{
    const QString path = ProgramDirectory::path() + QLatin1Char('/') + name;
    if (!WindowProgram::openProgram(window, path, guard))
        return false;
    WindowProgram::editorOf(window)->gotoLine(row);
    return true;
}
//! [opened program]

#endif // OPENEDPROGRAM_H
