// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMWINDOW_H
#define PROGRAMWINDOW_H

#include "compat.h"
#include "filarixtest.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextDocument>
#include <QToolBar>
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
        delete m_window.data();
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
    /// By the text on it; null when there is none.
    QToolButton *button(const QString &text) const
    {
        const QList<QToolButton *> buttons = m_window->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    /// As its bar does while it shows others.
    void hideButton(const QString &text) const
    {
        const QList<QToolBar *> bars = m_window->findChildren<QToolBar *>();
        for (QToolBar *bar : bars) {
            const QList<QAction *> actions = bar->actions();
            for (QAction *action : actions)
                action->setVisible(bar->widgetForAction(action) != button(text));
        }
    }
    void press(const QString &text) const { button(text)->click(); }
    /// Types a name into the library's picker, and presses OK.
    static void pick(QWidget *dialog, const QString &name)
    {
        dialog->findChild<QLineEdit *>()->setText(name);
        dialog->findChildren<QPushButton *>().first()->click();
    }
    bool isModified() const { return document()->isModified(); }

private:
    Q_DISABLE_COPY(ProgramWindow)

    /// A test may take it away.
    QPointer<WMMainWindow> m_window;
};

#endif // PROGRAMWINDOW_H
