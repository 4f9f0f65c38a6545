// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMWINDOW_H
#define PROGRAMWINDOW_H

#include "compat.h"
#include "filarixtest.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QToolButton>

/// The library's window as a host makes it, with nothing left of it afterwards.
class ProgramWindow
{
public:
    ProgramWindow() : m_window(new WMMainWindow(nullptr, 90))
    {
        if (TestCompat::warnsOfUnmarkedTitles())
            StrictMessages::expect("[*]");
    }

    ~ProgramWindow()
    {
        delete m_window;
        const QWidgetList topLevels = QApplication::topLevelWidgets();
        for (QWidget *widget : topLevels) {
            // The window leaves the buttons that no bar takes to nobody.
            if (qobject_cast<QToolButton *>(widget))
                delete widget;
        }
    }

    WMMainWindow *window() const { return m_window; }
    WGCodeEditer *editor() const { return m_window->findChild<WGCodeEditer *>(); }
    QTextDocument *document() const { return editor()->document(); }
    /// All of it as it is, with "\n" between its lines.
    QString text() const
    {
        return Compat::rawText(document()).replace(QChar(QChar::ParagraphSeparator), QChar('\n'));
    }
    bool isModified() const { return document()->isModified(); }

private:
    Q_DISABLE_COPY(ProgramWindow)

    WMMainWindow *m_window;
};

#endif // PROGRAMWINDOW_H
