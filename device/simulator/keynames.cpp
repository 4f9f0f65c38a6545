// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keynames.h"

namespace {

struct SpokenSign
{
    char sign;
    const char *name;
};

const SpokenSign signNames[] = {
    {'.', QT_TRANSLATE_NOOP("KeyNames", "Point")},
    {',', QT_TRANSLATE_NOOP("KeyNames", "Comma")},
    {';', QT_TRANSLATE_NOOP("KeyNames", "Semicolon")},
    {':', QT_TRANSLATE_NOOP("KeyNames", "Colon")},
    {'-', QT_TRANSLATE_NOOP("KeyNames", "Minus")},
    {'_', QT_TRANSLATE_NOOP("KeyNames", "Underscore")},
    {'+', QT_TRANSLATE_NOOP("KeyNames", "Plus")},
    {'=', QT_TRANSLATE_NOOP("KeyNames", "Equals")},
    {'*', QT_TRANSLATE_NOOP("KeyNames", "Asterisk")},
    {'/', QT_TRANSLATE_NOOP("KeyNames", "Slash")},
    {'\\', QT_TRANSLATE_NOOP("KeyNames", "Backslash")},
    {'(', QT_TRANSLATE_NOOP("KeyNames", "Left parenthesis")},
    {')', QT_TRANSLATE_NOOP("KeyNames", "Right parenthesis")},
    {'[', QT_TRANSLATE_NOOP("KeyNames", "Left bracket")},
    {']', QT_TRANSLATE_NOOP("KeyNames", "Right bracket")},
    {'{', QT_TRANSLATE_NOOP("KeyNames", "Left brace")},
    {'}', QT_TRANSLATE_NOOP("KeyNames", "Right brace")},
    {'<', QT_TRANSLATE_NOOP("KeyNames", "Less than")},
    {'>', QT_TRANSLATE_NOOP("KeyNames", "Greater than")},
    {'!', QT_TRANSLATE_NOOP("KeyNames", "Exclamation mark")},
    {'?', QT_TRANSLATE_NOOP("KeyNames", "Question mark")},
    {'#', QT_TRANSLATE_NOOP("KeyNames", "Number sign")},
    {'$', QT_TRANSLATE_NOOP("KeyNames", "Dollar")},
    {'%', QT_TRANSLATE_NOOP("KeyNames", "Percent")},
    {'&', QT_TRANSLATE_NOOP("KeyNames", "Ampersand")},
    {'@', QT_TRANSLATE_NOOP("KeyNames", "At sign")},
    {'~', QT_TRANSLATE_NOOP("KeyNames", "Tilde")},
    {'^', QT_TRANSLATE_NOOP("KeyNames", "Caret")},
    {'\'', QT_TRANSLATE_NOOP("KeyNames", "Apostrophe")},
};

} // namespace

QString KeyNames::spoken(const QString &label)
{
    for (const SpokenSign &known : signNames) {
        if (label == QString(QLatin1Char(known.sign)))
            return tr(known.name);
    }
    return label;
}

QString KeyNames::capitals(bool areOn, bool areLocked)
{
    if (areLocked)
        return tr("Shift, locked");
    return areOn ? tr("Shift, for one letter") : tr("Shift");
}
