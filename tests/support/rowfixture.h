// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWFIXTURE_H
#define ROWFIXTURE_H

#include <QSize>
#include <QString>
#include <QStringList>

/// Rows as the tests of lists and tables give them to the library, written out as a host's file has
/// them: nothing here is built by what is tested.
namespace RowFixture {

/// The list that single rows are made for.
const QSize listSize(480, 800);

// Behind the name of an instruction that is closed and of one that is open.
const QString down = QString::fromUtf8("(↓)");
const QString up = QString::fromUtf8("(↑)");

/// "s0", "s1" and so on.
inline QStringList numbered(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list << QString::fromLatin1("s%1").arg(i);
    return list;
}

/// The numbers from \a first to \a last in words.
inline QStringList numbers(int first, int last)
{
    QStringList result;
    for (int i = first; i <= last; ++i)
        result << QString::number(i);
    return result;
}

inline QStringList strings(const char *words)
{
    return QString::fromLatin1(words).split(QLatin1Char('|'));
}

/// An instruction: 31 strings, kind first. Its detail keys are "k13" and so on, and its values the
/// positions where they stand.
inline QStringList instruction(const QString &number,
                               const QString &kind = QString::fromLatin1("MJ"))
{
    QStringList row = QStringList() << kind << number;
    row += strings("MOVE|P|4|V|6|Z|8|T|10|Att|free_text");
    for (int position = 13; position <= 30; position += 2)
        row << QString::fromLatin1("k%1").arg(position) << QString::number(position + 1);
    return row;
}
inline QStringList instruction(int number)
{
    return instruction(QString::number(number));
}

/// As a host reads it from its file: 31 strings of its own, of which the number, the Jpos index and
/// six values differ from those of the row before.
inline QStringList taughtRow(int number)
{
    const QString n = QString::number(number);
    QStringList row = QStringList() << QString::fromLatin1("MJ") << n << QString::fromLatin1("MOVJ")
                                    << QString::fromLatin1("P") << n;
    row += strings("V|100|Z|1.500|T|0.25|Att|first_layer");
    for (int k = 0; k < 9; ++k)
        row << QString::fromLatin1("J%1").arg(k + 1)
            << (k < 6 ? QString::number(number * (k + 1)) : QString::fromLatin1("50"));
    return row;
}

/// The row that an instruction's widget shows as a table.
inline QStringList comment(const QString &number, const QString &text)
{
    return QStringList() << QString::fromLatin1("Oth") << number << QString()
                         << QString::fromLatin1("Oth") << text;
}

inline QStringList variable(const QString &number, const QString &value)
{
    return QStringList() << QString::fromLatin1("DataEditor") << number
                         << QString::fromLatin1("name") << value;
}

/// A title with the names of the columns below it.
inline QStringList title()
{
    return strings("Title|Title|No|Ins||P||V||Z||T");
}

/// A title of numbered columns.
inline QStringList columnTitle()
{
    QStringList row = strings("Title|Title");
    for (int i = 1; i <= 11; ++i)
        row << QString::fromLatin1("column %1").arg(i);
    return row;
}

/// The title of a table.
inline QStringList tableTitle()
{
    return strings("DataEditor|No|Name|Value");
}

} // namespace RowFixture

#endif // ROWFIXTURE_H
