// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/blockreader.h"

#include <cmath>

namespace {

const int codesPerNumber = 10;
const int mostCode = 9999;
// A number of a G or M word that is off by less is meant to be whole tenths.
const double codeTolerance = 1e-6;
// As many digits fit into 64 bits, whatever they are.
const int mostDigits = 18;
const double powersOfTen[mostDigits + 1] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,
                                            1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13,
                                            1e14, 1e15, 1e16, 1e17, 1e18};
const uint firstPrintable = 0x20;
const uint deleteCharacter = 0x7f;
const uint firstC1Control = 0x80;
const uint firstNonAscii = 0x80;
const uint lastC1Control = 0x9f;
// First bytes of a character of two, three and four bytes. An editor counts one of four twice.
const uint firstOfTwo = 0xc0;
const uint firstOfThree = 0xe0;
const uint firstOfFour = 0xf0;
const int bytesBehindFirstOfFour = 3;

inline uint valueOf(QChar character)
{
    return character.unicode();
}

inline uint valueOf(char byte)
{
    return uchar(byte);
}

/// How many bytes follow the first one of a character in UTF-8; 0 behind any other byte, and for
/// what is no byte.
inline int bytesBehind(QChar)
{
    return 0;
}

inline int bytesBehind(char byte)
{
    const uint value = uchar(byte);
    if (value < firstOfTwo)
        return 0;
    return value < firstOfThree ? 1 : value < firstOfFour ? 2 : bytesBehindFirstOfFour;
}

inline bool isContinuation(QChar)
{
    return false;
}

inline bool isContinuation(char byte)
{
    return (uchar(byte) & 0xc0) == 0x80;
}

/// Of bytes only the controls of ASCII can be told: the others are parts of characters.
inline bool isControl(QChar character)
{
    const uint value = character.unicode();
    return value < firstPrintable || value == deleteCharacter
           || (value >= firstC1Control && value <= lastC1Control);
}

inline bool isControl(char byte)
{
    return uchar(byte) < firstPrintable || uchar(byte) == deleteCharacter;
}

inline bool isDigit(uint value)
{
    return value - '0' < 10u;
}

inline bool isBlank(uint value)
{
    return value == ' ' || value == '\t';
}

inline bool isLetter(uint value)
{
    return (value | 0x20u) - 'a' < 26u;
}

/// A number as its digits come.
struct Decimal
{
    void add(uint digit);
    double value() const { return double(mantissa) / powersOfTen[decimals]; }

    quint64 mantissa = 0;
    /// Of the mantissa, without zeros in front.
    int digits = 0;
    int decimals = 0;
    bool hasDigit = false;
    bool hasPoint = false;
    bool isTooLong = false;
};

/// Further decimals make no difference; further digits before the point are too many.
void Decimal::add(uint digit)
{
    hasDigit = true;
    if (digits == mostDigits || decimals == mostDigits) {
        isTooLong = isTooLong || !hasPoint;
        return;
    }
    mantissa = mantissa * 10 + digit;
    digits += mantissa != 0;
    decimals += hasPoint;
}

/// Reads one line into a block.
template<class Character>
class LineScanner
{
public:
    LineScanner(const Character *text, int length, GCodeBlock *block)
        : m_text(text), m_length(length), m_block(block)
    {}

    void scan();

private:
    /// The value at a place, and beyond the end that of no character of a word.
    uint at(int index) const { return index < m_length ? valueOf(m_text[index]) : 0; }
    int column() const { return m_at - m_hidden + 1; }
    void skipBlanks();
    void scanOne(uint value);
    void scanWord();
    bool scanNumber(GCodeWord *word);
    Decimal scanDigits();
    void skipNumber();
    void scanComment(uint opener);
    void scanStray();
    void passInComment();
    int passNonAscii();
    void addWord(const GCodeWord &word);
    void addFault(BlockFault::Kind kind, int column, int length);
    void addOrWiden(BlockFault::Kind kind, int column, int length);

    const Character *const m_text;
    const int m_length;
    GCodeBlock *const m_block;
    int m_at = 0;
    // How many more bytes than columns stand before m_at.
    int m_hidden = 0;
    // Up to here, bytes that may continue a character do.
    int m_characterEnd = 0;
    bool m_isTwoColumnsWide = false;
};

template<class Character>
void LineScanner<Character>::scan()
{
    skipBlanks();
    if (at(m_at) == '%') {
        m_block->isMark = true;
        return;
    }
    while (m_at < m_length)
        scanOne(valueOf(m_text[m_at]));
}

template<class Character>
void LineScanner<Character>::skipBlanks()
{
    while (m_at < m_length && isBlank(valueOf(m_text[m_at])))
        ++m_at;
}

template<class Character>
void LineScanner<Character>::scanOne(uint value)
{
    if (isLetter(value))
        scanWord();
    else if (isBlank(value))
        ++m_at;
    else if (value == ';' || value == '(')
        scanComment(value);
    else
        scanStray();
}

template<class Character>
void LineScanner<Character>::scanWord()
{
    GCodeWord word;
    word.column = column();
    word.letter = char(valueOf(m_text[m_at]) & ~0x20u);
    ++m_at;
    skipBlanks();
    if (scanNumber(&word))
        addWord(word);
}

/// A sign or none, digits, a point or none. False with a fault where that is no number.
template<class Character>
bool LineScanner<Character>::scanNumber(GCodeWord *word)
{
    const int start = m_at;
    const bool isNegative = at(m_at) == '-';
    if (isNegative || at(m_at) == '+')
        ++m_at;
    const Decimal number = scanDigits();
    const uint next = at(m_at);
    if (next == '.' || next == '+' || next == '-' || (m_at > start && !number.hasDigit)) {
        skipNumber();
        addFault(BlockFault::NumberMalformed, word->column, column() - word->column);
        return false;
    }
    if (!number.hasDigit) {
        addFault(BlockFault::NumberMissing, word->column, 1);
        return false;
    }
    word->length = column() - word->column;
    const double value = number.value();
    if (number.isTooLong || value > GCodeBlock::largestValue) {
        addFault(BlockFault::NumberTooLarge, word->column, word->length);
        return false;
    }
    word->value = isNegative ? -value : value;
    return true;
}

template<class Character>
Decimal LineScanner<Character>::scanDigits()
{
    Decimal number;
    for (;; ++m_at) {
        const uint value = at(m_at);
        if (isDigit(value))
            number.add(value - '0');
        else if (value == '.' && !number.hasPoint)
            number.hasPoint = true;
        else
            return number;
    }
}

template<class Character>
void LineScanner<Character>::skipNumber()
{
    for (uint value = at(m_at); isDigit(value) || value == '.' || value == '+' || value == '-';
         value = at(m_at))
        ++m_at;
}

template<class Character>
void LineScanner<Character>::scanComment(uint opener)
{
    const int start = column();
    const bool isRound = opener == '(';
    bool isClosed = !isRound;
    ++m_at;
    while (m_at < m_length) {
        const uint value = valueOf(m_text[m_at]);
        if (isRound && value == ')') {
            ++m_at;
            isClosed = true;
            break;
        }
        passInComment();
    }
    if (m_block->commentColumn == 0) {
        m_block->commentColumn = start;
        m_block->commentLength = column() - start;
    }
    if (!isClosed)
        addFault(BlockFault::CommentNotClosed, start, column() - start);
}

template<class Character>
void LineScanner<Character>::passInComment()
{
    const Character character = m_text[m_at];
    const uint value = valueOf(character);
    const int start = column();
    if (isControl(character) && value != '\t')
        addOrWiden(BlockFault::ControlCharacter, start, 1);
    if (value < firstNonAscii || isControl(character))
        ++m_at;
    else
        addOrWiden(BlockFault::NonAsciiInComment, start, passNonAscii());
}

/// Goes on behind one byte or character; gives back the columns that it takes.
template<class Character>
int LineScanner<Character>::passNonAscii()
{
    const Character character = m_text[m_at];
    const bool continues = isContinuation(character) && m_at < m_characterEnd;
    const int behind = bytesBehind(character);
    ++m_at;
    if (behind > 0) {
        m_characterEnd = m_at + behind;
        m_isTwoColumnsWide = behind == bytesBehindFirstOfFour;
    }
    const bool isSecondColumn = m_isTwoColumnsWide && m_at == m_characterEnd;
    const int columns = !continues || isSecondColumn ? 1 : 0;
    m_hidden += 1 - columns;
    return columns;
}

/// Something that no line should have: told once where several stand side by side.
template<class Character>
void LineScanner<Character>::scanStray()
{
    const Character character = m_text[m_at];
    const int start = column();
    if (valueOf(character) >= firstNonAscii && !isControl(character)) {
        addOrWiden(BlockFault::NonAscii, start, passNonAscii());
        return;
    }
    ++m_at;
    addOrWiden(isControl(character) ? BlockFault::ControlCharacter : BlockFault::StrayCharacter,
               start, 1);
}

template<class Character>
void LineScanner<Character>::addWord(const GCodeWord &word)
{
    if (m_block->wordCount < GCodeBlock::mostWords)
        m_block->words[m_block->wordCount++] = word;
    else
        addOrWiden(BlockFault::TooManyWords, word.column, word.length);
}

template<class Character>
void LineScanner<Character>::addFault(BlockFault::Kind kind, int column, int length)
{
    // What machines skip takes no place from what stops them, and is no fault beyond it.
    if (kind == BlockFault::NonAsciiInComment && m_block->faultCount >= GCodeBlock::mostNotes)
        return;
    if (m_block->faultCount == GCodeBlock::mostFaults) {
        ++m_block->moreFaults;
        return;
    }
    BlockFault &fault = m_block->faults[m_block->faultCount++];
    fault.kind = kind;
    fault.column = column;
    fault.length = length;
}

/// Makes the last fault longer when it is of this kind and ends where the new one begins. A fault
/// about too many words goes on to the last of them.
template<class Character>
void LineScanner<Character>::addOrWiden(BlockFault::Kind kind, int column, int length)
{
    BlockFault *last =
        m_block->faultCount > 0 ? m_block->faults + m_block->faultCount - 1 : nullptr;
    const bool isSame = last && last->kind == kind;
    if (isSame && (kind == BlockFault::TooManyWords || last->column + last->length == column))
        last->length = column + length - last->column;
    else if (length > 0)
        addFault(kind, column, length);
}

template<class Character>
const GCodeBlock &readLine(const Character *text, int length, GCodeBlock *block)
{
    ++block->line;
    block->wordCount = 0;
    block->faultCount = 0;
    block->moreFaults = 0;
    block->commentColumn = 0;
    block->commentLength = 0;
    block->isMark = false;
    if (length > 0 && valueOf(text[length - 1]) == '\r')
        --length;
    const bool isTooLong = length > BlockReader::longestLine;
    LineScanner<Character>(text, qMin(length, +BlockReader::longestLine), block).scan();
    if (isTooLong) {
        // This fault has to be told, whatever else the line is full of.
        block->faultCount = qMin(block->faultCount, GCodeBlock::mostFaults - 1);
        BlockFault &fault = block->faults[block->faultCount++];
        fault.kind = BlockFault::LineTooLong;
        fault.column = BlockReader::longestLine + 1;
        fault.length = length - BlockReader::longestLine;
    }
    return *block;
}

} // namespace

int GCodeWord::code() const
{
    const double tenths = value * codesPerNumber;
    const double whole = std::floor(tenths + 0.5);
    if (whole < 0 || whole > mostCode || std::fabs(tenths - whole) > codeTolerance)
        return -1;
    return int(whole);
}

const GCodeWord *GCodeBlock::word(char letter) const
{
    for (const GCodeWord &word : *this)
        if (word.letter == letter)
            return &word;
    return nullptr;
}

const GCodeBlock &BlockReader::read(const QChar *text, int length)
{
    return readLine(text, length, &m_block);
}

const GCodeBlock &BlockReader::read(const char *bytes, int length)
{
    return readLine(bytes, length, &m_block);
}
