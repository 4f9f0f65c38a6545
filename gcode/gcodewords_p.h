// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GCODEWORDS_P_H
#define GCODEWORDS_P_H

#include <QChar>
#include <qnamespace.h>

/// The words of a G-code line that have a colour.
///
/// Six rules say what such a word is, each by an expression. Next to it stands what the expression
/// amounts to: a first character and the shape of what follows. No character begins the words of
/// two rules, and none that begins a word can stand inside of one. So the words never overlap, and
/// one pass over a line finds what the six expressions find one after the other.
namespace GCodeWords {

/// What follows the first character of a word.
enum Shape {
    TwoDigits, ///< one or two of the digits 0 to 9
    Digits,    ///< one or more decimal digits of any script
    Number     ///< the same, with "-" before them or not, and "." and more digits or not
};

struct Rule
{
    const char *pattern;
    const char *firstCharacters;
    Shape shape;
    Qt::GlobalColor foreground;
};

const int ruleCount = 6;
extern const Rule rules[ruleCount];

/// Finds the words of a text from left to right.
///
///     for (Scanner words(text.constData(), text.size()); words.next();)
///         setFormat(words.start(), words.length(), formats[words.rule()]);
class Scanner
{
public:
    /// The text must outlive the scanner.
    Scanner(const QChar *text, int size);

    /// Goes on to the next word; false when there is none left.
    bool next();

    /// The word's first character, from 0, its length and the index of its rule.
    int start() const { return int(m_word - m_text); }
    int length() const { return int(m_at - m_word); }
    int rule() const { return m_rule; }

private:
    const QChar *const m_text;
    const QChar *const m_end;
    const QChar *m_at;
    const QChar *m_word;
    int m_rule;
};

} // namespace GCodeWords

#endif // GCODEWORDS_P_H
