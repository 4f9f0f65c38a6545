// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "heldfile.h"
#include "storage/filejob.h"

#include <QSemaphore>
#include <QThread>

class TestFileJob : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void workRunsBesideTheEventLoop();
    void oneAtATime();
    void answerMayBeginTheNextWork();
    void waitEndsWithTheAnswer();
    void workThatHangsIsGivenUp();
    void waitEndsWhenTheWorkIsGivenUp();
    void jobMayGoWhileItsWorkHangs();
};

static const int stallMs = 100;

void TestFileJob::workRunsBesideTheEventLoop()
{
    FileJob job;
    QThread *worker = nullptr;
    bool isDone = false;
    job.run([&] { worker = QThread::currentThread(); },
            [&] {
                QCOMPARE(QThread::currentThread(), qApp->thread());
                isDone = true;
            },
            [] { QFAIL("nothing stalls"); });
    QVERIFY(job.isRunning());
    QVERIFY(!isDone);
    QTRY_VERIFY(isDone);
    QVERIFY(worker && worker != qApp->thread());
    QVERIFY(!job.isRunning());
}

void TestFileJob::oneAtATime()
{
    FileJob job;
    QStringList log;
    job.run([] {}, [&] { log += "first"; }, [] {});
    job.run([] {}, [&] { log += "second"; }, [] {});
    QTRY_VERIFY(!job.isRunning());
    QCOMPARE(log, QStringList("first"));
}

void TestFileJob::answerMayBeginTheNextWork()
{
    FileJob job;
    bool isDone = false;
    job.run([] {}, [&] { job.run([] {}, [&] { isDone = true; }, [] {}); }, [] {});
    QTRY_VERIFY(isDone);
}

void TestFileJob::waitEndsWithTheAnswer()
{
    FileJob job;
    bool isDone = false;
    job.wait();
    job.run([] {}, [&] { isDone = true; }, [] {});
    job.wait();
    QVERIFY(isDone);
}

void TestFileJob::workThatHangsIsGivenUp()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    FileJob job;
    job.setStallTime(stallMs);
    LoopPulse pulse;
    QStringList log;
    job.run([gate] { gate->acquire(); }, [&] { log += "done"; }, [&] { log += "stalled"; });
    QTRY_COMPARE(log, QStringList("stalled"));
    QVERIFY(!job.isRunning());
    // Late answers count for nothing, and the next work runs.
    gate->release();
    job.run([] {}, [&] { log += "next"; }, [] {});
    QTRY_COMPARE(log, (QStringList{"stalled", "next"}));
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
}

void TestFileJob::waitEndsWhenTheWorkIsGivenUp()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    FileJob job;
    job.setStallTime(stallMs);
    bool isStalled = false;
    job.run([gate] { gate->acquire(); }, [] {}, [&] { isStalled = true; });
    job.wait();
    QVERIFY(isStalled);
    gate->release();
}

void TestFileJob::jobMayGoWhileItsWorkHangs()
{
    std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    QElapsedTimer time;
    {
        FileJob job;
        job.run([gate] { gate->acquire(); }, [] { QFAIL("nobody is there"); }, [] {});
        time.start();
    }
    QVERIFY(time.elapsed() < patience(5000));
    gate->release();
    const std::weak_ptr<QSemaphore> held = gate;
    gate.reset();
    QTRY_VERIFY(held.expired());
}

FILARIX_TEST_MAIN(TestFileJob)
#include "tst_filejob.moc"
