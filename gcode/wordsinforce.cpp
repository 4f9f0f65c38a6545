// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wordsinforce_p.h"

#include "compat.h"
#include "gcodenumber_p.h"
#include "gcodesymbols.h"

#include <QTextBlock>
#include <QTextDocument>

namespace {

/// Reading a block by itself costs about ten times its share of the whole text. So taking the whole
/// text begins to pay here, and a little before.
const int nearShare = 64;
const int nearLines = 256;

/// Paragraphs, and the frames and tables that only rich text has.
bool endsABlock(QChar character)
{
    return character == QChar(QChar::ParagraphSeparator) || character == QChar(0xfdd0)
           || character == QChar(0xfdd1);
}

template<class Characters>
int indexOf(const Characters &characters, QChar character)
{
    for (int i = 0; i < characters.size(); ++i) {
        if (characters.at(i) == character)
            return i;
    }
    return -1;
}

/// What QTextBlock::text() gives, with fewer ways through the document's trees.
QString textOf(const QTextBlock &block)
{
    QTextBlock::iterator at = block.begin();
    if (at.atEnd())
        return QString();
    QString text = at.fragment().text();
    for (++at; !at.atEnd(); ++at)
        text += at.fragment().text();
    return text;
}

} // namespace

WordsInForce::WordsInForce(const QStringList &names, const QTextDocument *document, int line)
{
    Q_FOREACH (const QString &name, names) {
        if (name.size() == 1 && indexOf(wanted, name.at(0)) < 0)
            wanted.append(name.at(0));
    }
    updateWantedBits();
    lookUp(document, line);
}

bool WordsInForce::holds(const QString &name, double value) const
{
    for (int i = 0; i < found.size(); ++i) {
        if (name == found.at(i).name)
            return found.at(i).value == value;
    }
    return false;
}

void WordsInForce::lookUp(const QTextDocument *document, int line)
{
    if (line < 0)
        return;
    // Each look into the trees of a long document takes its time: nothing is asked for in advance.
    QTextBlock block = document->findBlockByLineNumber(line);
    if (!block.isValid())
        block = document->findBlockByLineNumber(document->lineCount() - 1);
    if (!block.isValid())
        return; // all is hidden
    readBlock(block);
    if (wanted.isEmpty())
        return;

    const int blocks = document->blockCount();
    // A block that is hidden has no line, one that is wrapped has several: only the blocks know.
    const bool isEven = document->lineCount() == blocks;
    const int blocksToRead = isEven ? qMax(nearLines, blocks / nearShare) : blocks;
    block = block.previous();
    for (int i = 1; i < blocksToRead && block.isValid() && !wanted.isEmpty(); ++i) {
        readBlock(block);
        block = block.previous();
    }
    if (!block.isValid() || wanted.isEmpty())
        return;

    const QString text = Compat::rawText(document);
    readText(text.constData(), text.constData() + block.position() + block.length() - 1);
}

/// Reads a block, unless it is hidden or none.
void WordsInForce::readBlock(const QTextBlock &block)
{
    if (block.lineCount() <= 0)
        return;
    const QString text = textOf(block);
    readLine(text.constData(), text.constData() + text.size());
}

/// Reads lines of a document's text from the last one upward.
void WordsInForce::readText(const QChar *begin, const QChar *end)
{
    while (!wanted.isEmpty()) {
        const QChar *line = end;
        bool mayHoldWord = false;
        while (line != begin && !endsABlock(line[-1])) {
            --line;
            mayHoldWord |= mayBeWanted(*line);
        }
        if (mayHoldWord)
            readLine(line, end);
        if (line == begin)
            return;
        end = line - 1;
    }
}

bool WordsInForce::mayBeWanted(QChar character) const
{
    return (wantedBits >> (character.unicode() % 64)) & 1;
}

void WordsInForce::updateWantedBits()
{
    wantedBits = 0;
    for (int i = 0; i < wanted.size(); ++i)
        wantedBits |= quint64(1) << (wanted.at(i).unicode() % 64);
}

void WordsInForce::readLine(const QChar *begin, const QChar *end)
{
    const QChar blank = QLatin1Char(' ');
    while (begin != end) {
        if (*begin == blank) {
            ++begin;
            continue;
        }
        const QChar *word = begin;
        while (begin != end && *begin != blank)
            ++begin;
        readWord(word, begin);
    }
}

void WordsInForce::readWord(const QChar *begin, const QChar *end)
{
    const int index = end - begin < 2 ? -1 : indexOf(wanted, *begin);
    if (index < 0)
        return;
    Word word;
    word.name = *begin;
    word.value = GCodeNumber::toDouble(begin + 1, end);
    found.append(word);
    wanted[index] = wanted.at(wanted.size() - 1);
    wanted.removeLast();
    updateWantedBits();
}
