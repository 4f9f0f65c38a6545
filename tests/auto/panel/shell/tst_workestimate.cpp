// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "shell/workestimate.h"

class TestWorkEstimate : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsSaidOfYoungWork();
    void evenWorkTakesAsLongAsItSays();
    void timeRunsOnBetweenTwoReports();
    void oneStepSaysNothing();
    void workThatStandsStillHasNoEnd();
    void slowWorkIsNotTakenForOneThatStandsStill();
    void theNextPartBeginsAnew();
    void workThatIsDoneHasNothingLeft();
};

void TestWorkEstimate::nothingIsSaidOfYoungWork()
{
    WorkEstimate estimate;
    QCOMPARE(estimate.secondsLeft(0), int(WorkEstimate::unknown));
    for (int percent = 0; percent < 20; ++percent) {
        estimate.note(percent, percent * 100);
        QCOMPARE(estimate.secondsLeft(percent * 100), int(WorkEstimate::unknown));
    }
    estimate.note(20, 2000);
    QCOMPARE(estimate.secondsLeft(2000), 8);
}

void TestWorkEstimate::evenWorkTakesAsLongAsItSays()
{
    WorkEstimate estimate;
    for (int percent = 10; percent < 100; ++percent) {
        // What was done before the first report took a time that nobody measured.
        const qint64 now = 5000 + (percent - 10) * 600;
        estimate.note(percent, now);
        if (percent > 13)
            QCOMPARE(estimate.secondsLeft(now), int(((100 - percent) * 600 + 999) / 1000));
    }
}

void TestWorkEstimate::timeRunsOnBetweenTwoReports()
{
    WorkEstimate estimate;
    estimate.note(0, 0);
    estimate.note(50, 30000);
    QCOMPARE(estimate.secondsLeft(30000), 30);
    // The same figure once more is no progress.
    estimate.note(50, 31000);
    QCOMPARE(estimate.secondsLeft(31000), 29);
    QCOMPARE(estimate.secondsLeft(32000), 28);
}

void TestWorkEstimate::oneStepSaysNothing()
{
    WorkEstimate estimate;
    estimate.note(0, 0);
    estimate.note(1, 2500);
    QCOMPARE(estimate.secondsLeft(2500), int(WorkEstimate::unknown));
    estimate.note(2, 5000);
    QCOMPARE(estimate.secondsLeft(5000), 245);
}

void TestWorkEstimate::workThatStandsStillHasNoEnd()
{
    WorkEstimate estimate;
    estimate.note(0, 0);
    estimate.note(40, 4000);
    QCOMPARE(estimate.secondsLeft(6000), 4);
    QCOMPARE(estimate.secondsLeft(6001), int(WorkEstimate::unknown));
    QCOMPARE(estimate.secondsLeft(3600000), int(WorkEstimate::unknown));
    // It goes on, and the time that it stood counts.
    estimate.note(50, 20000);
    QCOMPARE(estimate.secondsLeft(20000), 20);
}

void TestWorkEstimate::slowWorkIsNotTakenForOneThatStandsStill()
{
    WorkEstimate estimate;
    estimate.note(0, 0);
    estimate.note(2, 20000);
    QCOMPARE(estimate.secondsLeft(29000), 971);
    QCOMPARE(estimate.secondsLeft(60001), int(WorkEstimate::unknown));
    // Longer than it was said to take: it will be soon, and nobody knows when.
    WorkEstimate late;
    late.note(0, 0);
    late.note(98, 98000);
    QCOMPARE(late.secondsLeft(99900), 1);
}

void TestWorkEstimate::theNextPartBeginsAnew()
{
    WorkEstimate estimate;
    estimate.note(0, 0);
    estimate.note(90, 3000);
    QCOMPARE(estimate.secondsLeft(3000), 1);
    estimate.note(0, 3500);
    QCOMPARE(estimate.secondsLeft(3500), int(WorkEstimate::unknown));
    estimate.note(10, 5000);
    QCOMPARE(estimate.secondsLeft(5000), int(WorkEstimate::unknown));
    estimate.note(20, 8500);
    QCOMPARE(estimate.secondsLeft(8500), 20);
}

void TestWorkEstimate::workThatIsDoneHasNothingLeft()
{
    WorkEstimate estimate;
    estimate.note(0, 0);
    estimate.note(100, 9000);
    QCOMPARE(estimate.secondsLeft(9000), int(WorkEstimate::unknown));
}

FILARIX_TEST_MAIN(TestWorkEstimate)
#include "tst_workestimate.moc"
