// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MACHINEDATA_H
#define MACHINEDATA_H

#include "screens/valuerule.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

/// One entry of a shared table: a name for the operator and the values as text.
struct TableEntry
{
    QString name;
    QStringList values;
};

/// What the host knows of the machine: the tables that taught instructions share.
///
/// An entry is named by its number, its place in the table counted from 1; 0 names none.
class MachineData : public QObject
{
    Q_OBJECT

public:
    explicit MachineData(QObject *parent = nullptr);

    /// The taught points, six values each, in the order of pointKeys().
    const QList<TableEntry> &points() const { return m_points; }
    /// The speeds, three values each, in the order of speedKeys().
    const QList<TableEntry> &speeds() const { return m_speeds; }
    static QStringList pointKeys();
    static QStringList speedKeys();

    /// What the numbers of an instruction may be. The zone is where a movement may leave its path.
    /// A value of a point or a speed is named by its place among the keys.
    static ValueRule zoneRule();
    static ValueRule toolRule();
    static ValueRule pointRule(int key);
    static ValueRule speedRule(int key);

    /// Number of the point that Tag copies.
    int currentPoint() const { return m_currentPoint; }
    /// A number outside the table is ignored.
    void setCurrentPoint(int number);
    /// The G-code line that moves to the current point at the first speed.
    QString lineToCurrentPoint() const;

Q_SIGNALS:
    void currentPointChanged(int number);

private:
    QList<TableEntry> m_points;
    QList<TableEntry> m_speeds;
    int m_currentPoint = 1;
};

#endif // MACHINEDATA_H
