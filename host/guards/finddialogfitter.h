// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDDIALOGFITTER_H
#define FINDDIALOGFITTER_H

#include "base/filarixhostglobal.h"

class QRect;
class QWidget;
class WGCodeEditer;

/// Fits the library's find dialog to the program that shows it. The library makes the dialog once,
/// in the language of that moment, gives it no parent, and places it nowhere.
///
///     FindDialogFitter::show(editor, screen);
///
/// The dialogs stay the library's own. Nothing is done where there is none.
class FILARIX_HOST_EXPORT FindDialogFitter
{
public:
    /// Gives the dialogs their texts in the language that is installed now.
    static void retranslate();
    /// Shows the dialog of \a editor as findAndReplace() does, and places it. The dialog belongs to
    /// the window of \a host before it is shown: a window manager asks no later. So the window
    /// never covers the dialog, nor when the window is touched.
    static void show(WGCodeEditer *editor, const QWidget *host);
    /// Puts the visible dialogs before the window of \a host, into its lower right corner: the
    /// starts of the lines stay in view. A dialog that would take more than half of the width is as
    /// narrow as it can be. A host of less than 600 pixels gives a dialog its whole width. The
    /// fields stand in rows of their own there, and the dialog is lower.
    static void place(const QWidget *host);
    /// Moves the visible dialogs off \a spot, to another side of \a area. A dialog that covers
    /// \a spot on each side stays. Both in global coordinates.
    static void uncover(const QRect &spot, const QRect &area);
};

#endif // FINDDIALOGFITTER_H
