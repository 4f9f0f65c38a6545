// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/writeleave.h"

#include <thread>

class TestWriteLeave : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void firstToDecideWins();
    void onlyOneOfTwoThreadsWins();
};

void TestWriteLeave::firstToDecideWins()
{
    WriteLeave written;
    QVERIFY(written.take());
    QVERIFY(!written.withdraw());
    QVERIFY(!written.take());
    WriteLeave withdrawn;
    QVERIFY(withdrawn.withdraw());
    QVERIFY(!withdrawn.take());
    QVERIFY(!withdrawn.withdraw());
}

void TestWriteLeave::onlyOneOfTwoThreadsWins()
{
    for (int i = 0; i < scaled(500, 50); ++i) {
        WriteLeave leave;
        bool isTaken = false;
        std::thread writer([&leave, &isTaken] { isTaken = leave.take(); });
        const bool isWithdrawn = leave.withdraw();
        writer.join();
        QVERIFY(isTaken != isWithdrawn);
    }
}

FILARIX_TEST_MAIN(TestWriteLeave)
#include "tst_writeleave.moc"
