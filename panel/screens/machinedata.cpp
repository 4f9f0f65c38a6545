// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/machinedata.h"

namespace {

const double widestZone = 100;
const double lastTool = 99;
// As a panel's fonts have them, and the words of G-code count them.
const char millimetres[] = "mm";
const char degrees[] = "\u00b0";
const char feedUnit[] = "mm/min";
const char rampUnit[] = "mm/s\u00b2";
// The first three axes move along lines, the others turn.
const int linearAxes = 3;
const double longestWay = 2000;
const double widestTurn = 36000;
const double fastest = 3000;
const double highestRamp = 1000;

QList<TableEntry> entries(std::initializer_list<std::initializer_list<const char *>> rows)
{
    QList<TableEntry> table;
    for (const std::initializer_list<const char *> &row : rows) {
        TableEntry entry;
        entry.name = QLatin1String(*row.begin());
        for (const char *const *value = row.begin() + 1; value != row.end(); ++value)
            entry.values.append(QLatin1String(*value));
        table.append(entry);
    }
    return table;
}

} // namespace

MachineData::MachineData(QObject *parent)
    : QObject(parent)
    , m_points(entries({{"Home", "0", "60", "0", "0", "0", "0"},
                        {"Start pin", "-6", "14", "0", "1.5", "0", "0"},
                        {"Left flange", "0.25", "14.5", "0", "6", "0", "0"},
                        {"Middle", "18", "14.5", "0", "6", "0", "0"},
                        {"Right flange", "35.75", "14.5", "0", "6", "0", "0"},
                        {"Tape", "18", "34", "12", "0.5", "0", "0"},
                        {"End pin", "-2", "14", "0", "2", "0", "0"},
                        {"Cutter", "-6", "40", "12", "0", "0", "0"}}))
    , m_speeds(entries({{"Slow", "120", "20", "20"},
                        {"Lay", "480", "60", "60"},
                        {"Wind", "900", "120", "100"},
                        {"Rapid", "1500", "200", "200"}}))
{}

QStringList MachineData::pointKeys()
{
    return QString(QLatin1String("X Y Z U V W")).split(QLatin1Char(' '));
}

QStringList MachineData::speedKeys()
{
    return QString(QLatin1String("V A D")).split(QLatin1Char(' '));
}

ValueRule MachineData::zoneRule()
{
    return ValueRule::decimal(0, widestZone, QLatin1String(millimetres));
}

ValueRule MachineData::toolRule()
{
    return ValueRule::integer(0, lastTool);
}

ValueRule MachineData::pointRule(int key)
{
    const bool isLinear = key < linearAxes;
    const double most = isLinear ? longestWay : widestTurn;
    return ValueRule::decimal(-most, most, QString::fromUtf8(isLinear ? millimetres : degrees));
}

ValueRule MachineData::speedRule(int key)
{
    const bool isFeed = key == 0;
    return ValueRule::decimal(0, isFeed ? fastest : highestRamp,
                              QString::fromUtf8(isFeed ? feedUnit : rampUnit));
}

void MachineData::setCurrentPoint(int number)
{
    if (number < 1 || number > m_points.size() || number == m_currentPoint)
        return;
    m_currentPoint = number;
    Q_EMIT currentPointChanged(number);
}

QString MachineData::lineToCurrentPoint() const
{
    const QStringList values = m_points.at(m_currentPoint - 1).values;
    const QStringList keys = pointKeys();
    QString line = QLatin1String("G01");
    for (int i = 0; i < keys.size(); ++i)
        line += QLatin1Char(' ') + keys.at(i) + values.at(i);
    return line + QLatin1String(" F") + m_speeds.first().values.first();
}
