// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GUARDEDWINDOW_H
#define GUARDEDWINDOW_H

#include "guards/finddialogguide.h"
#include "guards/finddialogkeypad.h"
#include "guards/programguard.h"
#include "guards/programpickers.h"
#include "guards/programwalk.h"
#include "guards/windowprogram.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "wmmainwindow.h"

//! [guarded window]
/// From now on \a window loses nothing without a word. An opened program is compared with its file,
/// a save is read back, and \a history keeps what a save covers. ProgramGuard::state() says how
/// the program on the screen stands to its file. A search starts where the operator looks and goes
/// on at the top, and a touch on the row leads to any line. The pickers of programs say what they
/// are for. The window owns its guard.
inline ProgramGuard *guardWindow(WMMainWindow *window, Questioner *questioner,
                                 ProgramHistory *history)
{
    ProgramGuard *guard = new ProgramGuard(window, ProgramDirectory::path(), questioner, window);
    guard->setHistory(history);
    new FindDialogKeypad(window);
    new FindDialogGuide(WindowProgram::editorOf(window));
    new ProgramWalk(window);
    new ProgramPickers(ProgramDirectory::path(), window);
    return guard;
}
//! [guarded window]

#endif // GUARDEDWINDOW_H
