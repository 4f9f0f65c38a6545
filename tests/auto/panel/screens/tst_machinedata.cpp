// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/machinedata.h"

#include <QSignalSpy>

class TestMachineData : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyEntryHasAValueForEachKey();
    void lineToThePointHoldsItsSixValuesAndTheFirstSpeed();
    void numberOutsideTheTableIsIgnored();
    void tablesKeepToTheirRules();
};

void TestMachineData::everyEntryHasAValueForEachKey()
{
    const MachineData machine;
    QVERIFY(!machine.points().isEmpty());
    QVERIFY(!machine.speeds().isEmpty());
    for (const TableEntry &point : machine.points())
        QCOMPARE(point.values.size(), MachineData::pointKeys().size());
    for (const TableEntry &speed : machine.speeds())
        QCOMPARE(speed.values.size(), MachineData::speedKeys().size());
}

void TestMachineData::lineToThePointHoldsItsSixValuesAndTheFirstSpeed()
{
    MachineData machine;
    machine.setCurrentPoint(2);
    QCOMPARE(machine.lineToCurrentPoint(), QString("G01 X-6 Y14 Z0 U1.5 V0 W0 F120"));
}

void TestMachineData::numberOutsideTheTableIsIgnored()
{
    MachineData machine;
    QSignalSpy changes(&machine, SIGNAL(currentPointChanged(int)));
    machine.setCurrentPoint(0);
    machine.setCurrentPoint(machine.points().size() + 1);
    machine.setCurrentPoint(1);
    QCOMPARE(machine.currentPoint(), 1);
    QCOMPARE(changes.size(), 0);
    machine.setCurrentPoint(machine.points().size());
    QCOMPARE(changes.size(), 1);
}

void TestMachineData::tablesKeepToTheirRules()
{
    const MachineData machine;
    for (const TableEntry &point : machine.points()) {
        for (int key = 0; key < point.values.size(); ++key)
            QCOMPARE(MachineData::pointRule(key).refusal(point.values.at(key)), QString());
    }
    for (const TableEntry &speed : machine.speeds()) {
        for (int key = 0; key < speed.values.size(); ++key)
            QCOMPARE(MachineData::speedRule(key).refusal(speed.values.at(key)), QString());
    }
    QCOMPARE(MachineData::toolRule().refusal("999999999999"), QString("above 99"));
    QCOMPARE(MachineData::toolRule().refusal("1.5"), QString("not whole"));
    QCOMPARE(MachineData::zoneRule().refusal("-1"), QString("below 0"));
}

FILARIX_TEST_MAIN(TestMachineData)
#include "tst_machinedata.moc"
