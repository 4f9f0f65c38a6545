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

    /// Of a window that was made just now: its buttons are told apart by their tool tips, of which
    /// one follows the language of that moment.
    explicit WindowCommands(WMMainWindow *window, QObject *parent = nullptr);

    /// \a hold runs in the place of each command, and leads to one pass() or drop().
    void onCommand(const std::function<void(Command)> &hold) { m_hold = hold; }
    void pass(Command command);
    void drop(Command command);
    /// As if the operator pressed the command's button, which its bar may have hidden.
    void press(Command command);

    /// The command that the library carries out at the moment; it may wait in a dialog.
    Command running() const { return m_running; }
    /// Or one is just about to be.
    bool isBusy() const { return m_running != None || m_passing != None; }

Q_SIGNALS:
    /// A command that passed is over, with all its dialogs.
    void done(WindowCommands::Command command);
    /// One that passed never ran: its button was disabled by then.
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
