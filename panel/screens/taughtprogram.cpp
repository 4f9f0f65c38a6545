// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/taughtprogram.h"

#include "screens/machinedata.h"
#include "storage/rowfile.h"

#include <QCoreApplication>

namespace {

const int movementStrings = 31;
// The cells that a row widget keeps for commands take four strings after the kind, no more.
const int commandStrings = 5;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(TaughtProgram)
};

void appendPairs(QStringList *row, const QStringList &keys, const QStringList &values)
{
    for (int i = 0; i < keys.size(); ++i)
        *row << keys.at(i) << values.at(i);
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

QStringList TaughtProgram::movement(const QString &kind, const QString &name, int point, int speed,
                                    const MachineData &machine)
{
    QStringList row{kind,
                    QString(),
                    name,
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
    return {QLatin1String("Oth"), QString(), QString(), QLatin1String("Oth"), text};
}

QList<QStringList> TaughtProgram::sample(const MachineData &machine)
{
    const QString joint = QLatin1String("MJ");
    const QString line = QLatin1String("ML");
    QList<QStringList> rows;
    const auto move = [&](const QString &kind, const char *name, int point, int speed) {
        appendNumbered(&rows, movement(kind, QLatin1String(name), point, speed, machine));
    };
    const auto note = [&](const QString &text) { appendNumbered(&rows, command(text)); };

    move(joint, "Move", 1, 4);
    move(joint, "Move", 2, 4);
    note(QLatin1String("M10 clamp the wire"));
    for (int layer = 1; layer <= 4; ++layer) {
        const int from = layer % 2 ? 3 : 5;
        const int to = layer % 2 ? 5 : 3;
        note(QString::fromLatin1("Layer %1 of 4").arg(layer));
        move(line, "Move", from, 2);
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
        move(joint, "Move", to, 4);
    }
    move(line, "Move", 7, 2);
    note(QLatin1String("M10 clamp the wire"));
    move(joint, "Move", 8, 4);
    note(QLatin1String("M12 cut the wire"));
    move(joint, "Move", 1, 4);
    return rows;
}

bool TaughtProgram::isValid(const QStringList &row)
{
    const QString kind = row.value(0);
    if (kind == QLatin1String("Oth"))
        return row.size() == commandStrings && row.at(3) == QLatin1String("Oth");
    return (kind == QLatin1String("MJ") || kind == QLatin1String("ML"))
           && row.size() == movementStrings;
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
        read[i][1] = QString::number(i + 1);
    }
    *rows = read;
    return true;
}

bool TaughtProgram::store(const QString &path, const QList<QStringList> &rows, QString *error)
{
    return RowFile::write(path, QLatin1String("Taught program"), rows, error);
}
