// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/windinginspection.h"

class TestWindingInspection : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void programIsCheckedToItsEnd_data();
    void programIsCheckedToItsEnd();
    void whatCannotBeReadIsUnfinished();
    void withoutAProfileThereIsNoCheck();
    void longProgramTakesSteps();
};

static ProgramVerdict inspect(WindingInspection *inspection)
{
    while (inspection->step())
        ;
    inspection->close();
    return inspection->verdict();
}

static QByteArray rightProgram(int turns = 1)
{
    return "G21\nG90\nT1\nG00 X0 Y25 U0\nM10\nG00 X0.125 Y8\nG01 U2.5 F200\nS300 M03\n"
           + QByteArray("G33 X12.625 K0.25\nG33 X0.125 K0.25\n").repeated(turns)
           + "M05\nG01 U0 F200\nG00 X0 Y25\nM12\nM30\n";
}

void TestWindingInspection::programIsCheckedToItsEnd_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<bool>("isFaulty");
    QTest::newRow("right") << rightProgram() << false;
    QTest::newRow("a word that no machine knows, in the last line")
        << rightProgram().replace("M30\n", "M30 Q7") << true;
}

void TestWindingInspection::programIsCheckedToItsEnd()
{
    QFETCH(QByteArray, program);
    QFETCH(bool, isFaulty);
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, program);
    WindingInspection inspection(path, MachineProfile::forSamples());
    const ProgramVerdict verdict = inspect(&inspection);
    QCOMPARE(int(verdict.state), int(ProgramVerdict::Checked));
    QCOMPARE(verdict.errors > 0, isFaulty);
    QCOMPARE(inspection.percent(), 100);
}

void TestWindingInspection::whatCannotBeReadIsUnfinished()
{
    WindingInspection missing(programDir() + "/missing.cnc", MachineProfile::forSamples());
    QCOMPARE(int(inspect(&missing).state), int(ProgramVerdict::Unfinished));
    WindingInspection folder(programDir(), MachineProfile::forSamples());
    QCOMPARE(int(inspect(&folder).state), int(ProgramVerdict::Unfinished));
}

void TestWindingInspection::withoutAProfileThereIsNoCheck()
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, rightProgram());
    WindingInspection inspection(path, MachineProfile());
    const ProgramVerdict verdict = inspect(&inspection);
    QCOMPARE(int(verdict.state), int(ProgramVerdict::Unfinished));
    QCOMPARE(verdict.errors, 0);
}

// A hung disk is noticed between two steps.
void TestWindingInspection::longProgramTakesSteps()
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, rightProgram(20000));
    WindingInspection inspection(path, MachineProfile::forSamples());
    QVERIFY(inspection.step());
    QVERIFY(inspection.percent() > 0);
    QVERIFY(inspection.percent() < 100);
    QCOMPARE(int(inspect(&inspection).state), int(ProgramVerdict::Checked));
}

FILARIX_TEST_MAIN(TestWindingInspection)
#include "tst_windinginspection.moc"
