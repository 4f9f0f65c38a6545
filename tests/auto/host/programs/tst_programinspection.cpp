// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT
//
// Holds ProgramVerdict; a ProgramInspection is what a host makes of it.

#include "filarixtest.h"
#include "programs/programinspection.h"

class TestProgramInspection : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void withoutACheckThereIsNothingToSay();
    void doubtTakesASecondTouch_data();
    void doubtTakesASecondTouch();
};

void TestProgramInspection::withoutACheckThereIsNothingToSay()
{
    const ProgramVerdict verdict;
    QCOMPARE(verdict.line(), QString());
    QVERIFY(!verdict.isDoubtful());
    QVERIFY(!verdict.forbidsSending);
}

void TestProgramInspection::doubtTakesASecondTouch_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("errors");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<bool>("isDoubtful");
    const int checked = ProgramVerdict::Checked;
    const int unfinished = ProgramVerdict::Unfinished;
    QTest::newRow("nothing found") << checked << 0 << 0 << false;
    QTest::newRow("warnings") << checked << 0 << 7 << false;
    QTest::newRow("an error") << checked << 1 << 0 << true;
    QTest::newRow("unfinished") << unfinished << 0 << 0 << true;
}

void TestProgramInspection::doubtTakesASecondTouch()
{
    QFETCH(int, state);
    QFETCH(int, errors);
    QFETCH(int, warnings);
    ProgramVerdict verdict;
    verdict.state = ProgramVerdict::State(state);
    verdict.errors = errors;
    verdict.warnings = warnings;
    QTEST(verdict.isDoubtful(), "isDoubtful");
}

FILARIX_TEST_MAIN(TestProgramInspection)
#include "tst_programinspection.moc"
