// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWCOMMANDS_H
#define WINDOWCOMMANDS_H

#include "base/filarixhostglobal.h"

#include <QHash>
#include <QObject>

#include <functional>

class ClickGate;
class WMMainWindow;

/// The file commands of the library's program window, each behind a ClickGate.
///
///     WindowCommands commands(window);
///     commands.onCommand([&](WindowCommands::Command command) { commands.pass(command); });
class FILARIX_HOST_EXPORT WindowCommands : public QObject
{
    Q_OBJECT

public:
    enum Command { None, New, Open, Remove, Save, SaveAs, Download };

    /// \a window was made just now: its buttons are told apart by their tool tips, and one of these
    /// follows the language of that moment. \a window must outlive this object, and is given to one
    /// such object at the most.
    explicit WindowCommands(WMMainWindow *window, QObject *parent = nullptr);

    /// \a hold runs in the place of each command, and leads to one pass() or drop(), at once or
    /// later. Has to be called before the window is used.
    void onCommand(const std::function<void(Command)> &hold) { m_hold = hold; }
    /// The window carries the held command out, from the event loop. Ends in one done() or lost().
    void pass(Command command);
    /// Drops the held command: the window hears nothing of it.
    void drop(Command command);
    /// As if the operator pressed the command's button, even where the bar hides the button. Like
    /// any press it is held first. None and a command that the window lacks do nothing, here and in
    /// pass() and drop().
    void press(Command command);

    /// The command that the window carries out at the moment, dialogs included; or None.
    Command running() const { return m_running; }
    /// Whether a command runs, or has passed and is about to.
    bool isBusy() const { return m_running != None || m_passing != None; }

Q_SIGNALS:
    /// A command that passed is over, with all its dialogs.
    void done(WindowCommands::Command command);
    /// A command that passed never ran: its button was disabled by then.
    void lost(WindowCommands::Command command);

private Q_SLOTS:
    void begin();
    void end();

private:
    Command commandOf(ClickGate *gate) const;
    void switchOffHidden(Command command);

    std::function<void(Command)> m_hold;
    QHash<int, ClickGate *> m_gates;
    Command m_passing = None;
    Command m_running = None;
};

#endif // WINDOWCOMMANDS_H
