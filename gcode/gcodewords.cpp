// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "gcodewords_p.h"

#include <algorithm>

namespace GCodeWords {

// The comma among the addresses is meant: a comma with a number is coloured too.
const Rule rules[ruleCount] = {
    {"G[0-9]{1,2}", "G", TwoDigits, Qt::darkGreen},
    {"M[0-9]{1,2}", "M", TwoDigits, Qt::darkCyan},
    {"[X,Y,Z,U,V,W,I,J,K]\\-?\\d+\\.?\\d*", "X,YZUVWIJK", Number, Qt::darkMagenta},
    {"F\\-?\\d+\\.?\\d*", "F", Number, Qt::blue},
    {"S\\d+", "S", Digits, Qt::blue},
    {"T[0-9]{1,2}", "T", TwoDigits, Qt::darkYellow},
};

namespace {

const int asciiCount = 128;
const qint8 noRule = -1;

/// The rule whose words an ASCII character begins.
class RuleByCharacter
{
public:
    RuleByCharacter()
    {
        std::fill(m_rules, m_rules + asciiCount, noRule);
        for (int rule = 0; rule < ruleCount; ++rule) {
            for (const char *first = rules[rule].firstCharacters; *first; ++first)
                m_rules[uchar(*first)] = qint8(rule);
        }
    }

    int operator[](QChar c) const
    {
        return c.unicode() < asciiCount ? m_rules[c.unicode()] : noRule;
    }

private:
    qint8 m_rules[asciiCount];
};

const RuleByCharacter &ruleByCharacter()
{
    static const RuleByCharacter table;
    return table;
}

bool isZeroToNine(QChar c)
{
    return ushort(c.unicode() - '0') <= 9;
}

const QChar *behindDigits(const QChar *at, const QChar *end)
{
    while (at != end && (isZeroToNine(*at) || at->isDigit()))
        ++at;
    return at;
}

/// The end of what follows a word's first character; \a at itself if nothing of the shape does.
const QChar *behindShape(const QChar *at, const QChar *end, Shape shape)
{
    if (shape == TwoDigits) {
        const QChar *const limit = at + qMin(2, int(end - at));
        return std::find_if_not(at, limit, isZeroToNine);
    }
    const bool isNumber = shape == Number;
    const QChar *const digits = isNumber && at != end && *at == QLatin1Char('-') ? at + 1 : at;
    const QChar *const behind = behindDigits(digits, end);
    if (behind == digits)
        return at;
    if (isNumber && behind != end && *behind == QLatin1Char('.'))
        return behindDigits(behind + 1, end);
    return behind;
}

} // namespace

Scanner::Scanner(const QChar *text, int size)
    : m_text(text), m_end(text + size), m_at(text), m_word(text), m_rule(noRule)
{}

bool Scanner::next()
{
    const RuleByCharacter &ruleOf = ruleByCharacter();
    for (const QChar *word = m_at; word != m_end; ++word) {
        const int rule = ruleOf[*word];
        if (rule == noRule)
            continue;
        const QChar *const behind = behindShape(word + 1, m_end, rules[rule].shape);
        if (behind == word + 1)
            continue;
        m_word = word;
        m_at = behind;
        m_rule = rule;
        return true;
    }
    m_at = m_end;
    return false;
}

} // namespace GCodeWords
