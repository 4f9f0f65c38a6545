// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/windowcommands.h"

#include "base/clickgate.h"
#include "base/hostcompat.h"
#include "wmmainwindow.h"

#include <QToolButton>

namespace {

const char removeToolTip[] = "Remove G File!";

WindowCommands::Command commandNamed(const QString &toolTip)
{
    static const struct
    {
        const char *toolTip;
        WindowCommands::Command command;
    } table[] = {
        {"New G File!", WindowCommands::New},
        {"Open G File!", WindowCommands::Open},
        {removeToolTip, WindowCommands::Remove},
        {"Save G File!", WindowCommands::Save},
        {"Save As G File!", WindowCommands::SaveAs},
        {"Download G File To PLC!", WindowCommands::Download},
    };
    for (const auto &row : table) {
        if (toolTip == QLatin1String(row.toolTip))
            return row.command;
    }
    // The one that the library translates.
    return toolTip == WMMainWindow::tr(removeToolTip) ? WindowCommands::Remove
                                                      : WindowCommands::None;
}

} // namespace

WindowCommands::WindowCommands(WMMainWindow *window, QObject *parent) : QObject(parent)
{
    const QList<QToolButton *> buttons = window->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        const Command command = commandNamed(button->toolTip());
        if (command == None)
            continue;
        ClickGate *gate = new ClickGate(button);
        m_gates.insert(command, gate);
        gate->onClick([this, command] { m_hold(command); });
        connect(gate, SIGNAL(passed()), this, SLOT(end()));
        // Said right before the click, which the library hears first.
        connect(button, SIGNAL(released()), this, SLOT(begin()));
    }
}

void WindowCommands::pass(Command command)
{
    if (!m_gates.contains(command))
        return;
    m_passing = command;
    // The bar may have hidden it since it was pressed.
    QAbstractButton *button = m_gates.value(command)->button();
    if (button->isHidden())
        button->setEnabled(true);
    m_gates.value(command)->pass();
    // Behind the click.
    HostCompat::callLater(this, [this, command] {
        if (m_passing != command)
            return;
        m_passing = None;
        switchOffHidden(command);
        Q_EMIT lost(command);
    });
}

void WindowCommands::drop(Command command)
{
    if (!m_gates.contains(command))
        return;
    m_gates.value(command)->drop();
    switchOffHidden(command);
}

void WindowCommands::press(Command command)
{
    if (!m_gates.contains(command))
        return;
    QAbstractButton *button = m_gates.value(command)->button();
    // A bar that has no room for all of its buttons switches off those that it hides.
    button->setEnabled(true);
    button->click();
}

WindowCommands::Command WindowCommands::commandOf(ClickGate *gate) const
{
    return Command(m_gates.key(gate, None));
}

void WindowCommands::switchOffHidden(Command command)
{
    QAbstractButton *button = m_gates.value(command)->button();
    if (button->isHidden())
        button->setEnabled(false);
}

void WindowCommands::begin()
{
    ClickGate *gate = sender()->findChild<ClickGate *>();
    const Command command = commandOf(gate);
    if (m_passing != command || gate->isHolding())
        return;
    m_passing = None;
    m_running = command;
}

void WindowCommands::end()
{
    const Command command = commandOf(static_cast<ClickGate *>(sender()));
    m_running = None;
    switchOffHidden(command);
    Q_EMIT done(command);
}
