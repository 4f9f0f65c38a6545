// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef EDITBUTTONS_H
#define EDITBUTTONS_H

#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAction>
#include <QToolBar>

#include <guards/windowprogram.h>

//! [edit buttons]
/// Undo and Find at the end of the last tool bar of \a window. Its ProgramGuard sees to it that
/// Undo goes no further back than to the program as it was opened.
inline void addEditButtons(WMMainWindow *window)
{
    WGCodeEditer *editor = WindowProgram::editorOf(window);
    QToolBar *bar = window->findChildren<QToolBar *>().last();
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    QAction *undo = bar->addAction(QIcon(":/images/restore.png"), QObject::tr("Undo"));
    undo->setEnabled(false);
    QObject::connect(undo, SIGNAL(triggered()), editor, SLOT(undo()));
    QObject::connect(editor, SIGNAL(undoAvailable(bool)), undo, SLOT(setEnabled(bool)));
    QAction *find = bar->addAction(QIcon(":/images/find.png"), QObject::tr("Find"));
    QObject::connect(find, SIGNAL(triggered()), editor, SLOT(findAndReplace()));
}
//! [edit buttons]

#endif // EDITBUTTONS_H
