// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VALUEKEYPAD_H
#define VALUEKEYPAD_H

#include <QObject>
#include <QRect>
#include <QString>

struct ValueRule;

/// One question to the operator by the keypad that suits a value: the numeric one for numbers, the
/// letters for texts.
///
///     ValueKeypad keypad(rule, QLatin1String("N5 Tension"));
///     if (keypad.ask(QLatin1String("6.0")))
///         store(keypad.text());
class ValueKeypad : public QObject
{
    Q_OBJECT
    /// What a keypad writes once the operator has accepted.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// \a rule must outlive the keypad.
    ValueKeypad(const ValueRule &rule, const QString &name);

    /// What must stay visible beside the keypad, in screen coordinates.
    void setEditedRect(const QRect &rect);
    /// Opens the keypad on \a value and waits. True once the operator has accepted a text; the
    /// caller judges that: a panel's own keypad need not.
    bool ask(const QString &value);

    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

private:
    template<class Keypad>
    bool run(Keypad *keypad, const QString &value);

    const ValueRule &m_rule;
    QString m_text;
};

#endif // VALUEKEYPAD_H
