// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWTHATGOES_H
#define WINDOWTHATGOES_H

#include "wmmainwindow.h"

#include <QApplication>
#include <QToolButton>

//! [window that goes]
/// Makes a window that leaves nothing behind: the buttons that are on no bar go with it.
inline WMMainWindow *newWindowThatGoes(QWidget *parent, int rotation)
{
    const QList<QWidget *> before = QApplication::topLevelWidgets();
    WMMainWindow *window = new WMMainWindow(parent, rotation);
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (qobject_cast<QToolButton *>(widget) && !before.contains(widget))
            QObject::connect(window, SIGNAL(destroyed()), widget, SLOT(deleteLater()));
    }
    return window;
}
//! [window that goes]

//! [window taken away]
/// Takes a window away at any moment, from an alarm or a timer too. The window may be loading a
/// program or waiting behind one of its dialogs just then. `delete` would pull the window away from
/// under that.
inline void takeAway(WMMainWindow *window)
{
    window->hide();
    window->deleteLater();
}
//! [window taken away]

#endif // WINDOWTHATGOES_H
