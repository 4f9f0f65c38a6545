// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/taughtprogram.h"

#include "screens/machinedata.h"
#include "screens/rowchange.h"
#include "storage/rowfile.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

const int movementStrings = 31;
// The cells that a row widget keeps for commands take four strings after the kind, no more.
const int commandStrings = 5;

// Places of a movement's strings.
const int nameAt = 2;
const int remarkAt = 12;
// Of a command's: what stands before its text. The list looks for this very word when it makes the
// row's widget.
const int markAt = 3;
const QLatin1String mark("Oth");
// What movements were called before their names told the kind.
const QLatin1String formerName("Move");

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(TaughtProgram)
};

void appendPairs(QStringList *row, const QStringList &keys, const QStringList &values)
{
    for (int i = 0; i < keys.size(); ++i)
        *row << keys.at(i) << values.at(i);
}

bool isMovement(const QString &kind)
{
    return kind == QLatin1String("MJ") || kind == QLatin1String("ML");
}

QString wordOf(const QString &kind)
{
    return kind == QLatin1String("MJ") ? TaughtProgram::jointWord() : TaughtProgram::lineWord();
}

/// As wide as a sixth of the narrowest panel, arrow and all.
QString shortWordOf(const QString &kind)
{
    return kind == QLatin1String("MJ") ? QLatin1String("MovJ") : QLatin1String("MovL");
}

bool tellsNothing(const QString &name)
{
    const QLatin1String words[] = {QLatin1String(""),      formerName,
                                   QLatin1String("MoveJ"), QLatin1String("MoveL"),
                                   QLatin1String("MovJ"),  QLatin1String("MovL")};
    return std::find(std::begin(words), std::end(words), name) != std::end(words);
}

/// A name of its own gives way to the word of the kind and stays as the remark, which holds "_" for
/// a blank.
void nameByKind(QStringList *row)
{
    const QString kind = row->at(0);
    const QString name = row->at(nameAt);
    if (!tellsNothing(name)) {
        QStringList remark(name);
        if (!row->at(remarkAt).isEmpty())
            remark.append(row->at(remarkAt));
        (*row)[remarkAt] =
            remark.join(QLatin1Char('_')).replace(QLatin1Char(' '), QLatin1Char('_'));
    }
    if (name != wordOf(kind))
        (*row)[nameAt] = wordOf(kind);
}

void appendNumbered(QList<QStringList> *rows, QStringList row)
{
    row[1] = QString::number(rows->size() + 1);
    rows->append(row);
}

} // namespace

/// The title's cells stand over the instruction, the point, the speed, Z and T. The list shows
/// every second of the texts from the third on.
QStringList TaughtProgram::titleRow()
{
    return {QLatin1String("Title"),
            QLatin1String("Title"),
            Words::tr("Instr."),
            Words::tr("Point"),
            QString(),
            Words::tr("Speed"),
            QString(),
            Words::tr("Z"),
            QString(),
            Words::tr("T"),
            QString()};
}

QString TaughtProgram::jointWord()
{
    return QLatin1String("MoveJ");
}

QString TaughtProgram::lineWord()
{
    return QLatin1String("MoveL");
}

QString TaughtProgram::longestShortWord()
{
    return shortWordOf(QLatin1String("ML")) + QString::fromUtf8("(\u2193)");
}

QStringList TaughtProgram::shown(QStringList row, bool isNarrow)
{
    const QString kind = row.value(0);
    if (isMovement(kind) && isNarrow)
        row[nameAt] = shortWordOf(kind);
    else if (kind == mark)
        row[markAt] = Words::tr("Text");
    return row;
}

QStringList TaughtProgram::stored(QStringList row)
{
    const QString kind = row.value(0);
    if (isMovement(kind))
        nameByKind(&row);
    else if (kind == mark && row.at(markAt) != mark)
        row[markAt] = mark;
    return row;
}

QStringList TaughtProgram::movement(const QString &kind, int point, int speed,
                                    const MachineData &machine)
{
    QStringList row{kind,
                    QString(),
                    wordOf(kind),
                    QLatin1String("P"),
                    QString::number(point),
                    QLatin1String("V"),
                    QString::number(speed),
                    QLatin1String("Z"),
                    QLatin1String("0"),
                    QLatin1String("T"),
                    QLatin1String("0"),
                    QLatin1String("Att"),
                    QString()};
    appendPairs(&row, MachineData::pointKeys(), machine.points().at(point - 1).values);
    appendPairs(&row, MachineData::speedKeys(), machine.speeds().at(speed - 1).values);
    return row;
}

QStringList TaughtProgram::command(const QString &text)
{
    return {mark, QString(), QString(), mark, text};
}

QList<QStringList> TaughtProgram::sample(const MachineData &machine)
{
    const QString joint = QLatin1String("MJ");
    const QString line = QLatin1String("ML");
    QList<QStringList> rows;
    const auto move = [&](const QString &kind, const char *remark, int point, int speed) {
        QStringList row = movement(kind, point, speed, machine);
        row[remarkAt] = QLatin1String(remark);
        appendNumbered(&rows, row);
    };
    const auto note = [&](const QString &text) { appendNumbered(&rows, command(text)); };

    move(joint, "", 1, 4);
    move(joint, "", 2, 4);
    note(QLatin1String("M10 clamp the wire"));
    for (int layer = 1; layer <= 4; ++layer) {
        const int from = layer % 2 ? 3 : 5;
        const int to = layer % 2 ? 5 : 3;
        note(QString::fromLatin1("Layer %1 of 4").arg(layer));
        move(line, "", from, 2);
        note(QLatin1String("M03 spindle on"));
        move(line, "Wind", from, 1);
        move(line, "Wind", 4, 2);
        move(line, "Wind", 4, 3);
        move(line, "Wind", to, 3);
        move(line, "Wind", to, 1);
        note(QLatin1String("G04 F0.3 wait at the flange"));
        move(joint, "Press", 4, 1);
        move(line, "Press", from, 1);
        move(joint, "Press", 4, 1);
        note(QLatin1String("M05 spindle off"));
        move(joint, "Tape", 6, 4);
        note(QLatin1String("M00 lay the tape, then start"));
        move(joint, "", to, 4);
    }
    move(line, "", 7, 2);
    note(QLatin1String("M10 clamp the wire"));
    move(joint, "", 8, 4);
    note(QLatin1String("M12 cut the wire"));
    move(joint, "", 1, 4);
    return rows;
}

bool TaughtProgram::isValid(const QStringList &row)
{
    const QString kind = row.value(0);
    if (kind == mark)
        return row.size() == commandStrings && row.at(markAt) == mark;
    return isMovement(kind) && row.size() == movementStrings;
}

bool TaughtProgram::load(const QString &path, QList<QStringList> *rows, QString *error)
{
    QList<QStringList> read;
    if (!RowFile::read(path, &read, error))
        return false;
    for (int i = 0; i < read.size(); ++i) {
        if (!isValid(read.at(i))) {
            *error = Words::tr("%1 is no taught program: row %2 is not an instruction.")
                         .arg(path)
                         .arg(i + 1);
            return false;
        }
        read[i] = stored(read.at(i));
    }
    *rows = RowChange::numbered(read);
    return true;
}

bool TaughtProgram::store(const QString &path, const QList<QStringList> &rows, QString *error)
{
    return RowFile::write(path, QLatin1String("Taught program"), rows, error);
}
