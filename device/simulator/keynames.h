// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYNAMES_H
#define KEYNAMES_H

#include <QCoreApplication>
#include <QString>

/// What a screen reader says for a key. Readers pass over most signs in silence.
class KeyNames
{
    Q_DECLARE_TR_FUNCTIONS(KeyNames)

public:
    /// The words for a key that shows \a label; a letter, a digit or a word is its own name.
    static QString spoken(const QString &label);
    /// The words for the key "+/-".
    static QString sign() { return tr("Change the sign"); }
    /// The words for the key that turns to the symbols, or from them to the letters.
    static QString symbols(bool areShown) { return areShown ? tr("Letters") : tr("Symbols"); }
    /// The words for the key that turns to the page of all letters, or back to that of the words.
    static QString page(bool isText) { return isText ? tr("Words of a line") : tr("Letters"); }
    /// The words for the key that turns to the page of digits and signs, or back to that of
    /// letters.
    static QString digits(bool areShown)
    {
        return areShown ? tr("Letters") : tr("Digits and signs");
    }
    /// The words for the key that turns the capitals to small letters, or back.
    static QString small(bool isSmall) { return isSmall ? tr("Capitals") : tr("Small letters"); }
    /// The words for the key of the capitals: off, on for one letter, or locked.
    static QString capitals(bool areOn, bool areLocked);
};

#endif // KEYNAMES_H
