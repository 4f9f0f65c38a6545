// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef BLOCKREADER_H
#define BLOCKREADER_H

#include "base/filarixhostglobal.h"

#include <QString>

/// A letter and its number: X12.5.
struct FILARIX_HOST_EXPORT GCodeWord
{
    double value = 0;
    /// Of the letter, from 1, in characters as an editor counts them.
    int column = 0;
    /// From the letter to the last digit, blanks between them counted.
    int length = 0;
    /// From 'A' to 'Z', also where the program has a small one.
    char letter = 0;

    /// The number of a G or M word times ten: 330 for G33, 382 for G38.2; -1 for one that no
    /// function can have.
    int code() const;
};

/// What is wrong with the writing of a line, whatever the machine understands.
struct FILARIX_HOST_EXPORT BlockFault
{
    enum Kind {
        ControlCharacter,  ///< Also in a comment. NUL is one, a tab is a blank.
        NonAscii,          ///< Outside of a comment.
        NonAsciiInComment, ///< Machines skip it; a panel of another encoding shows something else.
        StrayCharacter,    ///< Neither letter, number nor comment: "*", "/", a number alone.
        NumberMissing,     ///< A letter with no number behind it.
        NumberMalformed,   ///< "1.2.3", "+-1", "-": the word is left out.
        NumberTooLarge,    ///< Beyond GCodeBlock::largestValue: the word is left out.
        CommentNotClosed,  ///< "(" without its ")".
        TooManyWords,      ///< Words beyond GCodeBlock::mostWords are left out.
        LineTooLong        ///< What is beyond BlockReader::longestLine is not read.
    };

    Kind kind = StrayCharacter;
    /// From 1, in characters, and as many of them.
    int column = 0;
    int length = 0;
};

/// One line of a program, in words.
struct FILARIX_HOST_EXPORT GCodeBlock
{
    static const int mostWords = 32;
    static const int mostFaults = 16;
    /// A BlockFault::NonAsciiInComment is left out where so many faults stand before it.
    static const int mostNotes = mostFaults / 2;
    /// No machine has an axis, a speed or a number beyond it; sums of such values stay finite.
    static const int largestValue = 1000000000;

    /// In the program, from 1.
    int line = 0;
    int wordCount = 0;
    int faultCount = 0;
    /// Faults beyond mostFaults; a NonAsciiInComment is none of them.
    int moreFaults = 0;
    /// Of the first comment, from its ";" or "(" on; 0 for none.
    int commentColumn = 0;
    /// Up to the line's end or the ")" included.
    int commentLength = 0;
    /// The line begins with "%", as tapes begin and end; nothing else of it is read.
    bool isMark = false;
    GCodeWord words[mostWords];
    BlockFault faults[mostFaults];

    const GCodeWord *begin() const { return words; }
    const GCodeWord *end() const { return words + wordCount; }
    /// The first word of this letter; null for none.
    const GCodeWord *word(char letter) const;
    /// No word, no fault and no mark: the line is empty or a comment.
    bool isEmpty() const { return wordCount == 0 && faultCount == 0 && !isMark; }
};

/// Reads a program line by line.
///
///     BlockReader reader;
///     for (QTextBlock line = document->begin(); line.isValid(); line = line.next())
///         interpreter.add(reader.read(line.text()));
///
/// A word is a letter, large or small, and a number: a sign or none, digits, a point or none.
/// Blanks may stand between words, between letter and number, or nowhere. Comments are what follows
/// ";" and what stands between "(" and ")". Nothing is kept of a line, and no memory is taken for
/// one.
class FILARIX_HOST_EXPORT BlockReader
{
public:
    /// Characters of a line, or bytes, that are read. Longer ones get a BlockFault::LineTooLong.
    static const int longestLine = 65536;

    BlockReader() = default;

    /// The next line, without its line end; a "\r" at its end is none of it. What is given back
    /// belongs to the reader, and holds until the next call.
    const GCodeBlock &read(const QChar *text, int length);
    /// The same from a file in UTF-8 or in an encoding of one byte a character. Columns count the
    /// characters that an editor would show for UTF-8.
    const GCodeBlock &read(const char *bytes, int length);
    const GCodeBlock &read(const QString &text) { return read(text.constData(), text.size()); }

    /// Of the line that was read last; 0 before the first one.
    int line() const { return m_block.line; }
    /// The next line gets the number behind this one.
    void setLine(int line) { m_block.line = line; }

private:
    GCodeBlock m_block;
};

#endif // BLOCKREADER_H
