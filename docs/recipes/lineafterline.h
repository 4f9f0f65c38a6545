// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LINEAFTERLINE_H
#define LINEAFTERLINE_H

#include "guards/lineentry.h"
#include "winding/modalwords.h"
#include "wmmainwindow.h"

//! [line after line]
/// The keypad of \a window goes on to the next line. It shows the words that hold there, by
/// \a profile. The window owns what does so.
inline void enterLineAfterLine(WMMainWindow *window, const MachineProfile &profile)
{
    LineEntry *entry = new LineEntry(window, window);
    entry->setHint(ModalWords::hintBy(profile));
}
//! [line after line]

#endif // LINEAFTERLINE_H
