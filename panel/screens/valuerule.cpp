// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/valuerule.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

// As many as the largest number has, and one for what it is a part of.
const int shownDigits = 10;
// Of a value that is told.
const int toldLetters = 20;

bool isPlain(QChar letter)
{
    return (letter >= QLatin1Char('0') && letter <= QLatin1Char('9')) || letter == QLatin1Char('.')
           || letter == QLatin1Char('-') || letter == QLatin1Char('+');
}

ValueRule numberRule(ValueRule::Type type, double minimum, double maximum, const QString &unit)
{
    ValueRule rule;
    rule.type = type;
    rule.minimum = minimum;
    rule.maximum = maximum;
    rule.unit = unit;
    return rule;
}

QString numberRefusal(const ValueRule &rule, const QString &value)
{
    double number = 0;
    if (!ValueRule::readNumber(value, &number))
        return ValueRule::tr("not a number");
    if (number < rule.minimum)
        return ValueRule::tr("below %1").arg(ValueRule::numberText(rule.minimum));
    if (number > rule.maximum)
        return ValueRule::tr("above %1").arg(ValueRule::numberText(rule.maximum));
    const bool isWhole = !value.contains(QLatin1Char('.'));
    return rule.type == ValueRule::Integer && !isWhole ? ValueRule::tr("not whole") : QString();
}

QString textRefusal(const ValueRule &rule, const QString &value)
{
    if (value.size() > rule.letters)
        return ValueRule::tr("too long");
    return std::all_of(value.begin(), value.end(), [](QChar c) { return c.isPrint(); })
               ? QString()
               : ValueRule::tr("not readable");
}

} // namespace

ValueRule ValueRule::integer(double minimum, double maximum, const QString &unit)
{
    return numberRule(Integer, minimum, maximum, unit);
}

ValueRule ValueRule::decimal(double minimum, double maximum, const QString &unit)
{
    return numberRule(Decimal, minimum, maximum, unit);
}

QString ValueRule::refusal(const QString &value) const
{
    if (value.isEmpty())
        return QString();
    if (isNumber())
        return numberRefusal(*this, value);
    if (type == Text)
        return textRefusal(*this, value);
    return value == on() || value == off() ? QString() : tr("not on or off");
}

QString ValueRule::limits() const
{
    if (type == Switch)
        return tr("on or off");
    if (type == Text)
        return tr("at most %1 letters").arg(letters);
    const QString text = withUnit(range());
    return type == Integer ? tr("%1, whole").arg(text) : text;
}

QString ValueRule::range() const
{
    return isNumber() ? tr("%1 to %2").arg(numberText(minimum), numberText(maximum)) : QString();
}

QString ValueRule::withUnit(const QString &value) const
{
    return value.isEmpty() || unit.isEmpty() ? value : value + QLatin1Char(' ') + unit;
}

QString ValueRule::shortened(const QString &value)
{
    return value.size() > toldLetters ? value.left(toldLetters) + QLatin1String("...") : value;
}

QString ValueRule::bare(const QString &value) const
{
    QString trimmed = value.trimmed();
    if (!isNumber() || unit.isEmpty() || !trimmed.endsWith(unit))
        return trimmed;
    const QString number = trimmed.left(trimmed.size() - unit.size()).trimmed();
    double ignored = 0;
    return readNumber(number, &ignored) ? number : trimmed;
}

QValidator *ValueRule::validator(QObject *parent) const
{
    if (type == Text)
        return new QRegularExpressionValidator(
            QRegularExpression(QString::fromLatin1("[^\\p{C}]{0,%1}").arg(letters)), parent);
    if (type == Switch)
        return new QRegularExpressionValidator(QRegularExpression(on() + QLatin1Char('|') + off()),
                                               parent);
    if (type == Integer)
        return new QIntValidator(int(std::ceil(minimum)), int(std::floor(maximum)), parent);
    QDoubleValidator *validator = new QDoubleValidator(parent);
    validator->setRange(minimum, maximum, validator->decimals());
    validator->setNotation(QDoubleValidator::StandardNotation);
    validator->setLocale(QLocale::c());
    return validator;
}

void ValueRule::describe(QObject *receiver, const QString &name) const
{
    receiver->setProperty("hmiName", name);
    receiver->setProperty("hmiUnit", unit);
    receiver->setProperty("hmiMinimum", isNumber() ? QVariant(minimum) : QVariant());
    receiver->setProperty("hmiMaximum", isNumber() ? QVariant(maximum) : QVariant());
    receiver->setProperty("hmiInteger", isNumber() ? QVariant(type == Integer) : QVariant());
}

void ValueRule::prepare(QLineEdit *field, const QString &name) const
{
    const QValidator *old = field->validator();
    field->setValidator(validator(field));
    // A row is touched often, and its field lives as long as the screen.
    if (old && old->parent() == field)
        delete old;
    describe(field, name);
}

bool ValueRule::readNumber(const QString &text, double *number)
{
    bool isRead = false;
    const double read = text.toDouble(&isRead);
    if (!isRead || !std::isfinite(read) || !std::all_of(text.begin(), text.end(), isPlain))
        return false;
    *number = read;
    return true;
}

QString ValueRule::plain(const QString &text)
{
    double number = 0;
    if (!readNumber(text, &number))
        return text;
    const bool isNegative = number < 0;
    QString digits = text;
    while (digits.startsWith(QLatin1Char('+')) || digits.startsWith(QLatin1Char('-'))
           || (digits.size() > 1 && digits.startsWith(QLatin1Char('0'))
               && digits.at(1) != QLatin1Char('.')))
        digits.remove(0, 1);
    if (digits.startsWith(QLatin1Char('.')))
        digits.prepend(QLatin1Char('0'));
    if (digits.endsWith(QLatin1Char('.')))
        digits.chop(1);
    return isNegative ? QLatin1Char('-') + digits : digits;
}

QString ValueRule::numberText(double number)
{
    return QString::number(number, 'g', shownDigits);
}
