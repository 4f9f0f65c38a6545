// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWPROGRAM_H
#define WINDOWPROGRAM_H

#include "base/filarixhostglobal.h"

class ProgramGuard;
class QString;
class QWidget;
class WGCodeEditer;
class WMMainWindow;

/// The program in the library's window, for a host's code.
///
///     WGCodeEditer *editor = WindowProgram::editorOf(window);
///     if (!WindowProgram::openProgram(window, ProgramDirectory::path() + "/coil.cnc"))
///         ...
namespace WindowProgram {

/// The editor of \a window, a WMMainWindow or a widget that holds one. Null for none.
FILARIX_HOST_EXPORT WGCodeEditer *editorOf(const QWidget *window);

/// Opens the program at \a path as the window's Open does, without the question for a name. File,
/// title and download belong to the program then. To load a text into the editor leaves
/// getCurrentFile() empty, and D/L would send "".
///
/// Waits, with the event loop running, and tells whether the program is the window's afterwards.
/// What the window asks besides, about changes say, is the operator's to answer. The \a guard of
/// the window, if it has one, goes on comparing and keeping.
///
/// False, with the window as it was, where \a path is no file in the program directory: the window
/// opens from no other place. The same where the panel's storage does not answer, and while a
/// dialog or another command is open.
FILARIX_HOST_EXPORT bool openProgram(WMMainWindow *window, const QString &path,
                                     ProgramGuard *guard = nullptr);

/// Puts the cursor on the line that the file of the open program has at \a line, from 1. A PLC
/// counts these, and the editor may have dropped comments. The line stands in red until the cursor
/// moves. A comment that was dropped leads to the line before.
///
/// Waits, with the event loop running. False, with the cursor where it was, when the editor shows
/// something else than the file. The same where there is no such line, and where the storage does
/// not answer.
FILARIX_HOST_EXPORT bool goToFileLine(WMMainWindow *window, int line);

} // namespace WindowProgram

#endif // WINDOWPROGRAM_H
