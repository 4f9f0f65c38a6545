// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadcheck.h"

#include "keypadvalue.h"

#include <QRegExp>
#include <QValidator>
#include <qnumeric.h>

namespace {

/// Words for what is no finite number, "nan" and "inf", are no numbers here.
bool isNumber(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && qIsFinite(value);
}

bool isWholeNumber(const QString &text)
{
    bool ok = false;
    text.toLongLong(&ok);
    return ok;
}

/// What may become a number yet: a sign or a point without digits.
bool isBegun(const QString &text)
{
    return QRegExp(QLatin1String("[-+]?\\.?")).exactMatch(text);
}

int decimalsOf(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    return point < 0 ? 0 : text.length() - point - 1;
}

/// A number on a keypad has a point, in every country. A validator of numbers reads the point of
/// its own country, and some take ours for the sign between thousands.
QString asTheValidatorReads(const QString &text, const QValidator *validator)
{
    const bool isOfNumbers = qobject_cast<const QIntValidator *>(validator)
                             || qobject_cast<const QDoubleValidator *>(validator);
    QString read = text;
    return isOfNumbers ? read.replace(QLatin1Char('.'), validator->locale().decimalPoint()) : read;
}

} // namespace

QString KeypadCheck::refusal(const QValidator *validator, const KeypadLimits &limits,
                             const QString &text)
{
    const QString refused = ofValidator(validator, text);
    return refused.isEmpty() ? ofLimits(limits, text) : refused;
}

QString KeypadCheck::ofValidator(const QValidator *validator, const QString &text)
{
    if (!validator)
        return QString();

    // A validator may correct its arguments. The operator's text stays as typed.
    QString checked = asTheValidatorReads(text, validator);
    int cursor = checked.length();
    const QValidator::State state = validator->validate(checked, cursor);
    if (state == QValidator::Acceptable)
        return QString();
    if (text.trimmed().isEmpty())
        return tr("Nothing entered");

    const QIntValidator *whole = qobject_cast<const QIntValidator *>(validator);
    const QDoubleValidator *real = qobject_cast<const QDoubleValidator *>(validator);
    const bool incomplete = state == QValidator::Intermediate;
    if (!whole && !real)
        return incomplete ? tr("Not complete") : tr("Not allowed");
    if (!isNumber(text))
        return incomplete ? tr("Not complete") : tr("Not a number");

    const KeypadLimits limits = whole ? KeypadLimits(whole->bottom(), whole->top())
                                      : KeypadLimits(real->bottom(), real->top());
    QString outside = ofRange(limits, text.toDouble());
    if (!outside.isEmpty())
        return outside;
    if (whole)
        return tr("Not a whole number");
    return decimalsOf(text) > real->decimals() ? tr("Too many decimals") : tr("Not allowed");
}

QString KeypadCheck::ofLimits(const KeypadLimits &limits, const QString &text)
{
    if (!limits.isBounded() && !limits.isWhole())
        return QString();
    if (text.trimmed().isEmpty())
        return tr("Nothing entered");
    if (isBegun(text))
        return tr("Not complete");
    if (!isNumber(text))
        return tr("Not a number");
    QString outside = ofRange(limits, text.toDouble());
    if (!outside.isEmpty())
        return outside;
    return limits.isWhole() && !isWholeNumber(text) ? tr("Not a whole number") : QString();
}

QString KeypadCheck::ofRange(const KeypadLimits &limits, double value)
{
    if (value < limits.minimum())
        return tr("At least %1").arg(KeypadLimits::shown(limits.minimum()));
    if (value > limits.maximum())
        return tr("At most %1").arg(KeypadLimits::shown(limits.maximum()));
    return QString();
}
