// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIXROWS_H
#define FILARIXROWS_H

#include <QLatin1String>
#include <QList>
#include <QString>
#include <QStringList>

/// Rows for TListWidget: builds them, and finds what is wrong with one. This header needs Qt Core
/// and nothing of the library.
///
/// A list takes rows as they come and checks nothing. One colon too many moves values to other
/// fields, and a wrong number makes an edit land in another row. A host that builds its rows here,
/// or checks what it reads from a file, is safe from that:
///
///     using namespace FilarixRows;
///     InstructionRow move(InstructionRow::Joint, "MOVJ");
///     move.setJpos("P", 3).setV("V", 1).setZ("Z", "0").setT("T", "0.5").setRes("over the core");
///     move.setDetail(0, "X", "12.5");
///     QStringList row = move.row(list->count());
///     if (checkRow(row, list->count()).isEmpty())
///         list->addWidget(row, true, false);
///
/// Give a list of instructions a title row. When rows move, a list without one writes their numbers
/// as "N" and the index, which tables read and instruction rows do not.
namespace FilarixRows {

// Kinds, at position 0. A list holds "DataEditor" rows only, or none of them.
const char jointMove[] = "MJ";  ///< The kind of an instruction row.
const char linearMove[] = "ML"; ///< The same; nothing tells the two apart.
const char other[] = "Oth";     ///< A kind, and the mark by which the row's widget knows it.
const char title[] = "Title";   ///< The same.
const char dataEditor[] = "DataEditor"; ///< The kind of a row of a list of tables.

/// Where the strings of an instruction row stand, as the host gives and reads it. A key and its
/// value are shown as one text, with a ":" between.
enum Position {
    Kind = 0,         ///< "MJ" or "ML"
    Num = 1,          ///< the row's index in the list, the title counted
    Ins = 2,          ///< the instruction's name; no "("
    JposKey = 3,      ///< the Jpos label
    JposIndex = 4,    ///< an integer, or empty
    VKey = 5,         ///< the V label
    VIndex = 6,       ///< an integer, or empty
    ZKey = 7,         ///< the Z field
    ZValue = 8,       ///< a number
    TKey = 9,         ///< the T field
    TValue = 10,      ///< a number
    Att = 11,         ///< "Att"
    Res = 12,         ///< free text with "_" for each blank
    FirstDetail = 13, ///< nine pairs from here on; see detailKey()
    HostLength = 31   ///< how many strings a row has
};

/// What stands at Att.
const char attLiteral[] = "Att";

// The detail pairs, key then value: six of the Jpos group, then three of the V group.
const int detailCount = 9; ///< Detail pairs of a row.
const int jposDetails = 6; ///< Of these, the first belong to the Jpos group,
const int vDetails = 3;    ///< and the last to the V group.

/// Position of the key of detail pair \a pair, 0 to 8.
inline int detailKey(int pair)
{
    return FirstDetail + 2 * pair;
}

/// Position of the value of detail pair \a pair, 0 to 8.
inline int detailValue(int pair)
{
    return detailKey(pair) + 1;
}

/// Rows with Jpos and V groups; nothing tells the two kinds apart.
inline bool isInstruction(const QString &kind)
{
    return kind == QLatin1String(jointMove) || kind == QLatin1String(linearMove);
}

/// Builds an instruction row. What is not set is empty. Texts are taken as they are given, except
/// for the blanks of the free text: checkRow() tells which of them a row cannot hold.
class InstructionRow
{
public:
    /// The kind of row: "MJ" or "ML".
    enum Motion { Joint, Linear };

    /// \a ins is the instruction's name.
    explicit InstructionRow(Motion motion, const QString &ins)
    {
        m_row.reserve(HostLength);
        for (int i = 0; i < HostLength; ++i)
            m_row.append(QString());
        m_row[Kind] = QLatin1String(motion == Linear ? linearMove : jointMove);
        m_row[Ins] = ins;
        m_row[Att] = QLatin1String(attLiteral);
    }

    /// What the Jpos label shows: its key, and the number that stands for the six values.
    InstructionRow &setJpos(const QString &key, int index)
    {
        return setPair(JposKey, key, QString::number(index));
    }
    /// What the V label shows: its key, and the number that stands for the three values.
    InstructionRow &setV(const QString &key, int index)
    {
        return setPair(VKey, key, QString::number(index));
    }
    /// What the Z field shows.
    InstructionRow &setZ(const QString &key, const QString &value)
    {
        return setPair(ZKey, key, value);
    }
    /// What the T field shows.
    InstructionRow &setT(const QString &key, const QString &value)
    {
        return setPair(TKey, key, value);
    }
    /// The free text. A row has no means to tell "_" from a blank: either is shown as a blank.
    InstructionRow &setRes(const QString &text)
    {
        m_row[Res] = text;
        m_row[Res].replace(QLatin1Char(' '), QLatin1Char('_'));
        return *this;
    }
    /// Detail pair 0 to 8: Jpos values up to 5, V values from 6 on. Another \a pair is ignored.
    InstructionRow &setDetail(int pair, const QString &key, const QString &value)
    {
        return pair < 0 || pair >= detailCount ? *this : setPair(detailKey(pair), key, value);
    }

    /// The 31 strings, for the row of index \a index: list->count() for one to be appended.
    QStringList row(int index) const
    {
        QStringList result = m_row;
        result[Num] = QString::number(index);
        return result;
    }

private:
    InstructionRow &setPair(int position, const QString &key, const QString &value)
    {
        m_row[position] = key;
        m_row[position + 1] = value;
        return *this;
    }

    QStringList m_row;
};

/// The title row of a list of instructions, for the constructor of TListWidget: the texts above the
/// five columns that follow the number. A title is long; what it has no column for stays empty.
inline QStringList titleRow(const QString &ins, const QString &jpos, const QString &v,
                            const QString &z, const QString &t)
{
    const QString unseen;
    return QStringList() << QLatin1String(title) << QLatin1String(title) << ins << jpos << unseen
                         << v << unseen << z << unseen << t << unseen;
}

/// A row among instructions that is none: it shows its number, "Oth", and \a text to be edited.
inline QStringList otherRow(int index, const QString &text)
{
    return QStringList() << QLatin1String(other) << QString::number(index) << QString()
                         << QLatin1String(other) << text;
}

/// A row of a list of tables: the index, then \a cells. All rows of a list take the same number of
/// cells. Of exactly three cells the first is left empty: it shares its place with the second.
inline QStringList dataRow(int index, const QStringList &cells)
{
    return QStringList() << QLatin1String(dataEditor) << QString::number(index) << cells;
}

/// What can be wrong with a row.
enum Fault {
    UnknownKind,      ///< no widget is built for the row
    MixedFamilies,    ///< tables among instructions, or the other way round
    WrongLength,      ///< not 31 strings, or a table of another length than the list's first row
    NumIsNotIndex,    ///< edits of the row would be stored in another one
    ParenthesisInIns, ///< the name is cut there when the row is read back
    ReservedIns,      ///< an instruction named "Oth" hides behind its table
    ColonInField,     ///< read back, later strings move by one; a text is cut by its next edit
    IndexIsNoInteger, ///< reads as 0
    AttMissing,       ///< comes back as "Att"
    BlankInRes,       ///< comes back as "_"
    MarkMissing,      ///< "Oth" or "Title" does not stand where the widget looks for it
    SharedCell,       ///< the first of two strings for one cell is not empty: they come back as one
    TitleAmongRows,   ///< a title that the list was not made with: no page shows it again
    NumReadsAsZero,   ///< "N" before an instruction's number: its edits are stored in row 0
    ValueIsNoNumber   ///< not what the numeric keypad of its field gives
};

/// What is wrong at one position of one row. \a row is its index, the title counted.
struct Problem
{
    /// Takes the three as they are.
    Problem(int rowIndex, int rowPosition, Fault whatIsWrong)
        : row(rowIndex), position(rowPosition), fault(whatIsWrong)
    {}

    int row;      ///< The row's index.
    int position; ///< Where in the row, as it counts there; the row's length where that is wrong.
    Fault fault;  ///< What is wrong.
};

/// The same fault at the same place.
inline bool operator==(const Problem &a, const Problem &b)
{
    return a.row == b.row && a.position == b.position && a.fault == b.fault;
}

/// The problem in words, for a log.
inline QString describe(const Problem &problem)
{
    const char *text = "";
    switch (problem.fault) {
    case UnknownKind:
        text = "unknown kind";
        break;
    case MixedFamilies:
        text = "tables and instructions in one list";
        break;
    case WrongLength:
        text = "wrong number of strings";
        break;
    case NumIsNotIndex:
        text = "the number is not the row's index";
        break;
    case ParenthesisInIns:
        text = "\"(\" in the instruction's name";
        break;
    case ReservedIns:
        text = "an instruction named \"Oth\"";
        break;
    case ColonInField:
        text = "\":\" in a key or a value";
        break;
    case IndexIsNoInteger:
        text = "not an integer";
        break;
    case AttMissing:
        text = "not \"Att\"";
        break;
    case BlankInRes:
        text = "a blank in the free text, to be written as \"_\"";
        break;
    case MarkMissing:
        text = "the row's mark is missing";
        break;
    case SharedCell:
        text = "two strings for one cell";
        break;
    case TitleAmongRows:
        text = "a title among the rows";
        break;
    case NumReadsAsZero:
        text = "an instruction's number that reads as 0";
        break;
    case ValueIsNoNumber:
        text = "not a number";
        break;
    }
    return QString::fromLatin1("row %1, position %2: %3")
        .arg(problem.row)
        .arg(problem.position)
        .arg(QLatin1String(text));
}

/// What checkRow() is made of.
namespace Detail {

inline bool isInteger(const QString &text)
{
    bool ok = false;
    text.toInt(&ok);
    return ok;
}

inline bool hasLetter(const QString &number)
{
    return number.startsWith(QLatin1Char('N'));
}

/// With an "N" as well: a list without a title numbers its rows so.
inline bool isIndex(const QString &text, int index)
{
    const QString number = hasLetter(text) ? text.mid(1) : text;
    return isInteger(number) && number.toInt() == index;
}

inline bool isEmptyOrNumber(const QString &text)
{
    bool ok = true;
    if (!text.isEmpty())
        text.toDouble(&ok);
    return ok;
}

/// How long an "Oth" row may be: up to where it would be taken for an instruction. Among
/// instructions its widget carries a table for one length only.
const int shortestOther = 4;
const int longestOther = 10;
const int otherAmongInstructions = 5;

inline bool isOtherLength(int length)
{
    return length >= shortestOther && length <= longestOther;
}

/// A table's widget has cells for so many strings behind the kind.
const int shortestData = 2;
const int longestData = 32;

inline void checkInstruction(const QStringList &row, int index, QList<Problem> &problems)
{
    if (row.size() != HostLength) {
        problems << Problem(index, row.size(), WrongLength);
        return;
    }
    if (!isIndex(row.at(Num), index))
        problems << Problem(index, Num, NumIsNotIndex);
    if (row.at(Ins).contains(QLatin1Char('(')))
        problems << Problem(index, Ins, ParenthesisInIns);
    if (row.at(Ins) == QLatin1String(other))
        problems << Problem(index, Ins, ReservedIns);
    for (int i = JposKey; i < HostLength; ++i) {
        if (i != Att && i != Res && row.at(i).contains(QLatin1Char(':')))
            problems << Problem(index, i, ColonInField);
        else if ((i == JposIndex || i == VIndex) && !row.at(i).isEmpty() && !isInteger(row.at(i)))
            problems << Problem(index, i, IndexIsNoInteger);
    }
    if (row.at(Att) != QLatin1String(attLiteral))
        problems << Problem(index, Att, AttMissing);
    if (row.at(Res).contains(QLatin1Char(' ')))
        problems << Problem(index, Res, BlankInRes);
}

inline void checkOther(const QStringList &row, int index, QList<Problem> &problems)
{
    if (!isOtherLength(row.size())) {
        problems << Problem(index, row.size(), WrongLength);
        return;
    }
    if (!isIndex(row.at(1), index))
        problems << Problem(index, 1, NumIsNotIndex);
    if (row.size() == otherAmongInstructions && !row.at(2).isEmpty())
        problems << Problem(index, 2, SharedCell);
    if (row.at(3) != QLatin1String(other))
        problems << Problem(index, 3, MarkMissing);
}

inline void checkTitle(const QStringList &row, int index, QList<Problem> &problems)
{
    const int minLength = 11;
    if (row.value(1) != QLatin1String(title))
        problems << Problem(index, 1, MarkMissing);
    if (row.size() < minLength)
        problems << Problem(index, row.size(), WrongLength);
    if (index != 0)
        problems << Problem(index, Kind, TitleAmongRows);
}

inline void checkData(const QStringList &row, int index, QList<Problem> &problems)
{
    if (row.size() <= shortestData || row.size() > longestData + 1)
        problems << Problem(index, row.size(), WrongLength);
    if (!isIndex(row.value(1), index))
        problems << Problem(index, 1, NumIsNotIndex);
    if (row.size() == 5 && !row.at(2).isEmpty())
        problems << Problem(index, 2, SharedCell);
}

/// The faults that a row has beside the others of its list.
inline void checkInList(const QList<QStringList> &rows, int i, int firstIndex, int otherLength,
                        QList<Problem> &problems)
{
    const QStringList &row = rows.at(i);
    const QString kind = row.value(Kind);
    const int index = firstIndex + i;
    const bool isData = kind == QLatin1String(dataEditor);
    const bool isOther = kind == QLatin1String(other) && isOtherLength(row.size());
    if (isData != (rows.first().value(Kind) == QLatin1String(dataEditor)))
        problems << Problem(index, Kind, MixedFamilies);
    else if ((isData && row.size() != rows.first().size())
             || (isOther && row.size() != otherLength))
        problems << Problem(index, row.size(), WrongLength);
    // A list with a title never writes the letter; the first row of one without is no title.
    if (firstIndex > 0 && FilarixRows::isInstruction(kind) && hasLetter(row.value(Num)))
        problems << Problem(index, Num, NumIsNotIndex);
    if (index == 0 && kind == QLatin1String(title))
        problems << Problem(index, Kind, TitleAmongRows);
}

/// How long the "Oth" rows of a list have to be: as among instructions, or all like the first one.
inline int otherLengthIn(const QList<QStringList> &rows)
{
    int length = -1;
    for (int i = 0; i < rows.size(); ++i) {
        if (FilarixRows::isInstruction(rows.at(i).value(Kind)))
            return otherAmongInstructions;
        const bool isOther = rows.at(i).value(Kind) == QLatin1String(other);
        if (length < 0 && isOther && isOtherLength(rows.at(i).size()))
            length = rows.at(i).size();
    }
    return length;
}

} // namespace Detail

/// All that is wrong with \a row as the row of index \a index, the title counted; empty if it is
/// well-formed. A well-formed instruction row comes back from its widget as it went in. What only
/// the rows around it tell is checkRows()'s to find.
inline QList<Problem> checkRow(const QStringList &row, int index)
{
    QList<Problem> problems;
    const QString kind = row.value(Kind);
    if (isInstruction(kind))
        Detail::checkInstruction(row, index, problems);
    else if (kind == QLatin1String(other))
        Detail::checkOther(row, index, problems);
    else if (kind == QLatin1String(title))
        Detail::checkTitle(row, index, problems);
    else if (kind == QLatin1String(dataEditor))
        Detail::checkData(row, index, problems);
    else
        problems << Problem(index, Kind, UnknownKind);
    return problems;
}

/// All that is wrong with \a rows as the rows of one list, in order. \a firstIndex is 1 in a list
/// with a title row, which is not among \a rows, and 0 in one without.
inline QList<Problem> checkRows(const QList<QStringList> &rows, int firstIndex)
{
    QList<Problem> problems;
    const int otherLength = Detail::otherLengthIn(rows);
    for (int i = 0; i < rows.size(); ++i) {
        problems += checkRow(rows.at(i), firstIndex + i);
        Detail::checkInList(rows, i, firstIndex, otherLength, problems);
    }
    return problems;
}

/// What may surprise in a row that is well-formed, as the row of index \a index. An "N" before the
/// number of an instruction does, as a list without a title writes it. So does a ":" in the free
/// text, which the next edit cuts. So does a value of Z, T or a detail that is neither empty nor a
/// number.
///
///     Q_FOREACH (const FilarixRows::Problem &problem, FilarixRows::warningsFor(row, i))
///         qWarning() << FilarixRows::describe(problem);
inline QList<Problem> warningsFor(const QStringList &row, int index)
{
    QList<Problem> warnings;
    const QString kind = row.value(Kind);
    if (!isInstruction(kind))
        return warnings;
    const bool isWellFormed = checkRow(row, index).isEmpty();
    if (!isWellFormed)
        return warnings;
    if (index != 0 && Detail::hasLetter(row.at(Num)))
        warnings << Problem(index, Num, NumReadsAsZero);
    if (row.at(Res).contains(QLatin1Char(':')))
        warnings << Problem(index, Res, ColonInField);
    for (int i = ZValue; i < HostLength; i += 2) {
        if (i != Res && !Detail::isEmptyOrNumber(row.at(i)))
            warnings << Problem(index, i, ValueIsNoNumber);
    }
    return warnings;
}

} // namespace FilarixRows

#endif // FILARIXROWS_H
