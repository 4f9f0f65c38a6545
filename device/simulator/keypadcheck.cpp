// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadcheck.h"

#include <QValidator>

namespace {

bool isNumber(const QString &text)
{
    bool ok = false;
    text.toDouble(&ok);
    return ok;
}

int decimalsOf(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    return point < 0 ? 0 : text.length() - point - 1;
}

bool isBetween(double value, double bottom, double top)
{
    return value >= bottom && value <= top;
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

QString KeypadCheck::refusal(const QValidator *validator, const QString &text)
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

    const double value = text.toDouble();
    const bool inside = whole ? isBetween(value, whole->bottom(), whole->top())
                              : isBetween(value, real->bottom(), real->top());
    if (!inside)
        return tr("Outside the limits");
    if (whole)
        return tr("Not a whole number");
    return decimalsOf(text) > real->decimals() ? tr("Too many decimals") : tr("Not allowed");
}
