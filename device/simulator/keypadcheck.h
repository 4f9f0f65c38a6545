// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADCHECK_H
#define KEYPADCHECK_H

#include <QCoreApplication>
#include <QString>

class KeypadLimits;
class QValidator;

/// Why a text can't be accepted, in a few words for the operator.
class KeypadCheck
{
    Q_DECLARE_TR_FUNCTIONS(KeypadCheck)

public:
    /// Empty if \a validator finds \a text acceptable, or is null, and \a text keeps to \a limits.
    /// Where there are limits, a text that is no number is refused. The words for what a validator
    /// refuses are told from its kind and the text.
    static QString refusal(const QValidator *validator, const KeypadLimits &limits,
                           const QString &text);

private:
    static QString ofValidator(const QValidator *validator, const QString &text);
    static QString ofLimits(const KeypadLimits &limits, const QString &text);
    static QString ofRange(const KeypadLimits &limits, double value);
};

#endif // KEYPADCHECK_H
