// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SIGNALHOOK_H
#define SIGNALHOOK_H

#include <QByteArray>
#include <QObject>

#include <functional>

/// Calls a function at each signal while it lives, on both toolkits: Qt 4 connects to slots alone.
/// The function may take the signal's argument, an int or a bool.
///
///     SignalHook hook(transfer, SIGNAL(progress(int)), [&](int percent) { ... });
class SignalHook : public QObject
{
    Q_OBJECT

public:
    SignalHook(QObject *sender, const char *signal, const std::function<void()> &call)
        : m_call(call)
    {
        connect(sender, signal, this, SLOT(call()));
    }
    SignalHook(QObject *sender, const char *signal, const std::function<void(int)> &call)
        : m_callInt(call)
    {
        if (QByteArray(signal).contains("(bool)"))
            connect(sender, signal, this, SLOT(call(bool)));
        else
            connect(sender, signal, this, SLOT(call(int)));
    }

public Q_SLOTS:
    void call() { m_call(); }
    void call(int value) { m_callInt(value); }
    void call(bool value) { m_callInt(value); }

private:
    std::function<void()> m_call;
    std::function<void(int)> m_callInt;
};

#endif // SIGNALHOOK_H
