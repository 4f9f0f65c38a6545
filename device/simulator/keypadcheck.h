// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADCHECK_H
#define KEYPADCHECK_H

#include <QCoreApplication>
#include <QString>

class QValidator;

/// Why a text can't be accepted, in a few words for the operator.
class KeypadCheck
{
    Q_DECLARE_TR_FUNCTIONS(KeypadCheck)

public:
    /// Empty if \a validator finds \a text acceptable, or is null. The validator alone decides;
    /// the words are told from its kind and the text.
    static QString refusal(const QValidator *validator, const QString &text);
};

#endif // KEYPADCHECK_H
