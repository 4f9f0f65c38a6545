// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VALUERULE_H
#define VALUERULE_H

#include <QCoreApplication>
#include <QString>

class QLineEdit;
class QValidator;

/// What the values of one thing may be: of a machine variable, or of a number in an instruction.
///
/// Values are text. Numbers have a point and no exponent, in every country.
///
///     const ValueRule rule = ValueRule::decimal(0.5, 8.5, QLatin1String("N"));
///     rule.refusal(QLatin1String("9999")); // "above 8.5"
struct ValueRule
{
    Q_DECLARE_TR_FUNCTIONS(ValueRule)

public:
    enum Type { Integer, Decimal, Text, Switch };

    /// No number is larger, whatever its rule says: it would lose digits on its way to a machine.
    static const int largestNumber = 999999999;
    /// Nor is a text longer.
    static const int longestText = 200;

    static ValueRule integer(double minimum, double maximum, const QString &unit = QString());
    static ValueRule decimal(double minimum, double maximum, const QString &unit = QString());

    bool isNumber() const { return type == Integer || type == Decimal; }
    /// Why \a value is refused, in a few words; empty for a value that may be. An empty one counts
    /// as not entered yet, and may be.
    QString refusal(const QString &value) const;
    /// What has to be entered, in a few words: "0.5 to 8.5 N".
    QString limits() const;
    /// The same of a number in short, without its unit: "0.5 to 8.5".
    QString range() const;
    /// "6.0 N"; nothing for an empty value.
    QString withUnit(const QString &value) const;
    /// The value without blanks around it, and without the unit behind it.
    QString bare(const QString &value) const;
    /// What a keypad asks whether a text may be accepted. Never null; belongs to \a parent.
    QValidator *validator(QObject *parent) const;
    /// Tells a keypad, by the properties that it looks for on \a receiver, what is entered.
    void describe(QObject *receiver, const QString &name) const;
    /// The same, and the validator, for a field that opens a keypad by itself.
    void prepare(QLineEdit *field, const QString &name) const;

    /// A text that is a finite number in plain digits; false, and \a number as it was, otherwise.
    static bool readNumber(const QString &text, double *number);
    static QString numberText(double number);
    /// A number as it is stored: "+05" is "5", "-0" is "0", ".5" is "0.5". Its decimals stay as
    /// they were typed. What is no number stays as it is.
    static QString plain(const QString &text);
    /// So much of \a value that it fills no message.
    static QString shortened(const QString &value);
    /// The two values of a switch.
    static QString on() { return QStringLiteral("on"); }
    static QString off() { return QStringLiteral("off"); }

    Type type = Text;
    /// For the operator; empty for none.
    QString unit;
    /// Both may be reached. For numbers alone.
    double minimum = -largestNumber;
    double maximum = largestNumber;
    /// Letters that a text may have.
    int letters = longestText;
};

#endif // VALUERULE_H
