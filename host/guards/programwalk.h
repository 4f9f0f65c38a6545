// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMWALK_H
#define PROGRAMWALK_H

#include "base/filarixhostglobal.h"

#include <QObject>
#include <QPointer>
#include <QString>

class QEvent;
class QWidget;
class WGCodeEditer;
class WMMainWindow;

/// Leads through the program of the library's window: to its ends, by pages, and to any line. A
/// touch on the window's read-out of row and column asks for a line on the numeric keypad.
///
///     ProgramWalk *walk = new ProgramWalk(window);
///     connect(pageKey, SIGNAL(clicked()), walk, SLOT(pageDown()));
///
/// The cursor goes along, so that the window's commands act on what is seen. The cursor stands
/// before the first character of its line then. Without a touch screen no keypad opens.
class FILARIX_HOST_EXPORT ProgramWalk : public QObject
{
    Q_OBJECT
    /// What the keypad answered.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// Belongs to \a window, which has one such object at the most.
    explicit ProgramWalk(WMMainWindow *window);

    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The number of the first line that \a editor shows, from 1.
    static int topLine(const WGCodeEditer *editor);
    /// The number of the last line that \a editor shows, from 1, be it only a part of it.
    static int bottomLine(const WGCodeEditer *editor);
    /// Whether \a editor shows its cursor's line.
    static bool isCursorSeen(const WGCodeEditer *editor);

public Q_SLOTS:
    void goToFirst();
    void goToLast();
    /// The line that was on top is the last one then. A cursor out of sight comes into it.
    void pageUp();
    /// The last line, be it only a part of it, is on top then.
    void pageDown();
    /// Puts the cursor on \a line, from 1, in the middle of the editor. A number that no line has
    /// leads to the nearest one.
    void goTo(int line);
    /// Has the operator enter the number of a line, and goes there. Nothing while a program is
    /// loaded.
    void askForLine();

private:
    bool isOnReadOut(const QEvent *event) const;
    void turn(int pages);
    void setCursor(int line);

    WMMainWindow *m_window;
    WGCodeEditer *m_editor;
    /// Holds the read-out.
    QPointer<QWidget> m_strip;
    QString m_text;
    bool m_isPressed = false;
};

#endif // PROGRAMWALK_H
