// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMOPENER_H
#define PROGRAMOPENER_H

#include "base/filarixhostglobal.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class WGCodeEditer;
class WMMainWindow;

/// Opens a program in the library's window as its operator would, but by its path.
///
/// The window knows one way to a program: its own Open, which asks for a name. The opener answers
/// that question before anybody sees it, so the window has the file, the title and the download
/// that belong to the program.
///
///     ProgramOpener opener(window);
///     if (!opener.open(ProgramDirectory::path() + "/coil.cnc"))
///         tell("The program is not open.");
class FILARIX_HOST_EXPORT ProgramOpener : public QObject
{
    Q_OBJECT

public:
    /// \a window may go first. \a isBusy says whether the host still has a command of the window in
    /// hand, if it ever has.
    explicit ProgramOpener(WMMainWindow *window,
                           const std::function<bool()> &isBusy = std::function<bool()>(),
                           QObject *parent = nullptr);

    /// Presses Open and waits, with the event loop running; whether the program at \a path is the
    /// window's afterwards. The program has to stand in the program directory. What the window asks
    /// besides, about changes say, is the operator's to answer.
    bool open(const QString &path);
    /// Makes \a text the document's, in one step that Undo takes back, with the cursor at
    /// \a cursor. The document is modified then, unless that was its text before.
    void put(const QString &text, int cursor);

    /// Whether the editor has changes that are not saved. The window's own mark is the host's.
    bool isModified() const;
    /// Whether a window of the library loads a program at this moment.
    static bool isLoading();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isBusy() const;
    void waitForEnd();

    QPointer<WMMainWindow> m_window;
    std::function<bool()> m_isBusy;
    QPointer<WGCodeEditer> m_editor;
    QString m_name;
};

#endif // PROGRAMOPENER_H
