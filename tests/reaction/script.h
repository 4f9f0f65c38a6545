// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SCRIPT_H
#define SCRIPT_H

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QTimer>

#include <functional>

/// Takes steps one after the other, one a tick of a timer, so they go on while a dialog waits. What
/// a step adds comes right after it.
///
///     Script script;
///     script.then([panel] { panel->showScreen(0); });
///     script.waitFor("the load", [panel] { return panel->isLoaded(); });
///     script.start();
class Script : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void()> Step;
    typedef std::function<bool()> Condition;

    Script();

    void then(const Step &step);
    /// Lasts until \a condition holds. What takes half a minute ends the script: given up.
    void waitFor(const QString &what, const Condition &condition);
    void start() { m_timer.start(); }

Q_SIGNALS:
    void finished();
    /// \a what never came.
    void givenUp(const QString &what);

private:
    struct Wait
    {
        QString what;
        Condition condition;
    };

    void next();
    void end();

    QTimer m_timer;
    QElapsedTimer m_waiting;
    QList<Wait> m_waits;
    /// Where the next one is added.
    int m_end = 0;
};

#endif // SCRIPT_H
