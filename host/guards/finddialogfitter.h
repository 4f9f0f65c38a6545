// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDDIALOGFITTER_H
#define FINDDIALOGFITTER_H

#include "base/filarixhostglobal.h"

class QWidget;

/// Fits the library's find dialog to the program that shows it. The library makes the dialog once,
/// in the language of that moment, gives it no parent, and places it nowhere.
///
///     editor->findAndReplace();
///     FindDialogFitter::place(screen);
///
/// The dialogs stay the library's own. Nothing is done where there is none.
class FILARIX_HOST_EXPORT FindDialogFitter
{
public:
    /// Gives the dialogs their texts in the language that is installed now.
    static void retranslate();
    /// Puts the visible dialogs before the window of \a host, into its lower right corner: the
    /// starts of the lines stay in view.
    static void place(const QWidget *host);
};

#endif // FINDDIALOGFITTER_H
