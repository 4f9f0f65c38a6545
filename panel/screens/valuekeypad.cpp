// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/valuekeypad.h"

#include "screens/valuerule.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QValidator>
#include <QVariant>

#include <memory>

ValueKeypad::ValueKeypad(const ValueRule &rule, const QString &name) : m_rule(rule)
{
    rule.describe(this, name);
}

void ValueKeypad::setEditedRect(const QRect &rect)
{
    setProperty("hmiEditedRect", rect);
}

bool ValueKeypad::ask(const QString &value)
{
    if (!m_rule.isNumber()) {
        CharacterKeypad *keypad = CharacterKeypad::instance();
        return keypad && run(keypad, value);
    }
    NumericKeypad *keypad = NumericKeypad::instance();
    if (!keypad)
        return false;
    keypad->setLimitToolTip(m_rule.limits());
    keypad->setDecimalPointEnabled(m_rule.type == ValueRule::Decimal);
    const bool isAccepted = run(keypad, value);
    // The library's next field says nothing of either.
    keypad->setDecimalPointEnabled(true);
    keypad->setLimitToolTip(QString());
    m_text = ValueRule::plain(m_text);
    return isAccepted;
}

template<class Keypad>
bool ValueKeypad::run(Keypad *keypad, const QString &value)
{
    const std::unique_ptr<QValidator> validator(m_rule.validator(nullptr));
    keypad->setObject(this);
    keypad->setText(value);
    keypad->setValidator(validator.get());
    keypad->setShowType(0);
    return keypad->exec() == QDialog::Accepted;
}
