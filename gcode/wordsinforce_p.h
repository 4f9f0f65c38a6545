// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WORDSINFORCE_P_H
#define WORDSINFORCE_P_H

#include <QChar>
#include <QStringList>
#include <QVarLengthArray>

class QTextBlock;
class QTextDocument;

/// The values that G-code words have at a line of a program, because the line itself or the nearest
/// one above it set them.
///
/// A word is what stands between blanks (U+0020): its first character is the name, the rest the
/// value. Words of one character count for nothing. A line's first word of a name decides. A value
/// that is no number is 0.
///
///     const WordsInForce words(names, document, line);
///     if (!words.holds(names.at(0), 10.0)) ...
class WordsInForce
{
public:
    /// Looks all \a names up in one pass from text line \a line, from 0, up to the first one. Only
    /// names of one character are ever found; for a negative line none is.
    ///
    /// The time goes by the distance of the farthest name, not by the length of the program. A
    /// sixtieth of the program is read block by block, and only then its whole text at once.
    WordsInForce(const QStringList &names, const QTextDocument *document, int line);

    /// Whether \a name was found with exactly this value. The value "nan" equals nothing.
    bool holds(const QString &name, double value) const;

private:
    struct Word
    {
        QChar name;
        double value;
    };

    bool mayBeWanted(QChar character) const;
    void updateWantedBits();
    void lookUp(const QTextDocument *document, int line);
    void readBlock(const QTextBlock &block);
    void readText(const QChar *begin, const QChar *end);
    void readLine(const QChar *begin, const QChar *end);
    void readWord(const QChar *begin, const QChar *end);

    // A line has few words: these need no memory of their own.
    QVarLengthArray<Word, 16> found;
    QVarLengthArray<QChar, 16> wanted;
    quint64 wantedBits; // of wanted and perhaps some more, by the lowest six bits of a character
};

#endif // WORDSINFORCE_P_H
