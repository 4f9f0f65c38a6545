// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MODIFIEDMARK_H
#define MODIFIEDMARK_H

#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QTextDocument>

//! [modified mark]
/// Lets the window's "[*]" follow the document. A host that embeds the window, and so shows no
/// title of it, connects the same signal to a mark of its own.
inline void followChanges(WMMainWindow *window)
{
    WGCodeEditer *editor = window->findChild<WGCodeEditer *>();
    QObject::connect(editor->document(), SIGNAL(modificationChanged(bool)), window,
                     SLOT(documentWasModified()));
}
//! [modified mark]

#endif // MODIFIEDMARK_H
