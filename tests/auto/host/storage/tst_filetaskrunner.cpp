// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds FileTask, too.

#include "filarixtest.h"
#include "storage/filetaskrunner.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <atomic>

/// What a task did, alive as long as anybody asks.
struct Record
{
    std::atomic<int> steps{0};
    std::atomic<int> closes{0};
    std::atomic<int> inMainThread{0};
    /// A step that this bars hangs.
    QSemaphore gate;
    /// What the task was told when it asked whether it may change something.
    std::atomic<int> mayChange{-1};
    std::atomic<int> closedInMainThread{0};
};

static bool isMainThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

class CountingTask : public FileTask
{
public:
    CountingTask(int steps, const std::shared_ptr<Record> &record, bool isGated = false)
        : m_steps(steps), m_isGated(isGated), m_record(record)
    {}

    bool step() override
    {
        if (isMainThread())
            ++m_record->inMainThread;
        ++m_record->steps;
        if (m_isGated)
            m_record->gate.acquire();
        return ++m_done < m_steps;
    }
    int percent() const override { return 100 * m_done / m_steps; }
    void close() override
    {
        ++m_record->closes;
        if (isMainThread())
            ++m_record->closedInMainThread;
    }

private:
    const int m_steps;
    const bool m_isGated;
    const std::shared_ptr<Record> m_record;
    int m_done = 0;
};

/// Hangs before it asks whether it may change something, or in the middle of the change.
class ChangingTask : public FileTask
{
public:
    enum Place { Before, Within };

    ChangingTask(Place place, const std::shared_ptr<Record> &record)
        : m_place(place), m_record(record)
    {}

    bool step() override
    {
        ++m_record->steps;
        if (m_place == Before)
            m_record->gate.acquire();
        const bool mayChange = beginChange();
        m_record->mayChange.store(mayChange);
        if (m_place == Within)
            m_record->gate.acquire();
        if (mayChange)
            endChange();
        return true;
    }
    void close() override { ++m_record->closes; }

private:
    const Place m_place;
    const std::shared_ptr<Record> m_record;
};

class TestFileTaskRunner : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsRunOneAfterAnotherInAThread();
    void stopLetsNoOtherStepBegin();
    void secondStartWhileRunningDoesNothing();
    void stepThatHangsIsGivenUp();
    void destructionDropsTheAnswer();
    void destructionDoesNotWaitForWhatWasGivenUp();
    void destructionDoesNotWaitForAStepThatHangs();
    void taskThatWasGivenUpChangesNothing_data();
    void taskThatWasGivenUpChangesNothing();
    void changeThatHangsIsUncertain();
    void changesFollowOneAnother();
};

void TestFileTaskRunner::stepsRunOneAfterAnotherInAThread()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    FileTaskRunner work;
    QSignalSpy progress(&work, SIGNAL(progressed(int)));
    QSignalSpy ends(&work, SIGNAL(ended()));
    work.start(std::make_shared<CountingTask>(4, record));
    QVERIFY(work.isRunning());
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(!work.isRunning());
    QCOMPARE(record->steps.load(), 4);
    QCOMPARE(record->closes.load(), 1);
    QCOMPARE(record->inMainThread.load(), 0);
    QCOMPARE(progress.size(), 3);
    QCOMPARE(progress.last().at(0).toInt(), 75);
}

void TestFileTaskRunner::stopLetsNoOtherStepBegin()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    FileTaskRunner work;
    QSignalSpy ends(&work, SIGNAL(ended()));
    QSignalSpy stops(&work, SIGNAL(stopped()));
    connect(&work, SIGNAL(progressed(int)), &work, SLOT(stop()));
    work.start(std::make_shared<CountingTask>(1000, record));
    QTRY_COMPARE(stops.size(), 1);
    QVERIFY(!work.isRunning());
    QTRY_COMPARE(record->closes.load(), 1);
    QCOMPARE(record->steps.load(), 1);
    // Stopping what does not run does not reach the next one.
    work.stop();
    work.start(std::make_shared<CountingTask>(1, record));
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(stops.size(), 1);
}

void TestFileTaskRunner::secondStartWhileRunningDoesNothing()
{
    const std::shared_ptr<Record> first = std::make_shared<Record>();
    const std::shared_ptr<Record> second = std::make_shared<Record>();
    FileTaskRunner work;
    QSignalSpy ends(&work, SIGNAL(ended()));
    work.start(std::make_shared<CountingTask>(3, first));
    work.start(std::make_shared<CountingTask>(3, second));
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(!work.isRunning());
    QCOMPARE(first->steps.load(), 3);
    QCOMPARE(second->steps.load(), 0);
}

void TestFileTaskRunner::stepThatHangsIsGivenUp()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    FileTaskRunner work;
    work.setStallTime(50);
    QSignalSpy ends(&work, SIGNAL(ended()));
    QSignalSpy stalls(&work, SIGNAL(stalled()));
    work.start(std::make_shared<CountingTask>(5, record, true));
    QTRY_COMPARE(stalls.size(), 1);
    QVERIFY(!work.isRunning());

    // The next task has a thread of its own.
    work.setStallTime(FileTaskRunner::stallMs);
    const std::shared_ptr<Record> next = std::make_shared<Record>();
    work.start(std::make_shared<CountingTask>(2, next));
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(record->steps.load(), 1);

    // The step comes back in the end: no other follows it, and the task goes.
    record->gate.release(5);
    QTRY_COMPARE(long(record.use_count()), 1L);
    QCOMPARE(record->steps.load(), 1);
    QCOMPARE(ends.size(), 1);
    QCOMPARE(stalls.size(), 1);
}

void TestFileTaskRunner::destructionDropsTheAnswer()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    {
        FileTaskRunner work;
        work.start(std::make_shared<CountingTask>(1000, record));
        QTRY_VERIFY(record->steps.load() > 0);
    }
    QTRY_COMPARE(long(record.use_count()), 1L);
    const int steps = record->steps.load();
    QCoreApplication::processEvents();
    QCOMPARE(record->steps.load(), steps);
}

void TestFileTaskRunner::destructionDoesNotWaitForWhatWasGivenUp()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    QElapsedTimer timer;
    {
        FileTaskRunner work;
        work.setStallTime(50);
        QSignalSpy stalls(&work, SIGNAL(stalled()));
        work.start(std::make_shared<CountingTask>(5, record, true));
        QTRY_COMPARE(stalls.size(), 1);
        timer.start();
    }
    // The patience with work that is still hoped for is a second.
    QVERIFY2(timer.elapsed() < 900, qPrintable(QString::number(timer.elapsed())));
    record->gate.release();
    QTRY_COMPARE(long(record.use_count()), 1L);
}

void TestFileTaskRunner::destructionDoesNotWaitForAStepThatHangs()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    QElapsedTimer timer;
    {
        FileTaskRunner work;
        work.start(std::make_shared<CountingTask>(5, record, true));
        QTRY_COMPARE(record->steps.load(), 1);
        timer.start();
    }
    QVERIFY2(timer.elapsed() < patience(500), qPrintable(QString::number(timer.elapsed())));
    // Its files are closed when the step comes back, and not by us.
    QCOMPARE(record->closes.load(), 0);
    record->gate.release();
    QTRY_COMPARE(long(record.use_count()), 1L);
    QCOMPARE(record->closes.load(), 1);
    QCOMPARE(record->closedInMainThread.load(), 0);
}

void TestFileTaskRunner::taskThatWasGivenUpChangesNothing_data()
{
    QTest::addColumn<bool>("isDestroyed");
    QTest::newRow("it stalled") << false;
    QTest::newRow("whoever wanted it is gone") << true;
}

void TestFileTaskRunner::taskThatWasGivenUpChangesNothing()
{
    QFETCH(bool, isDestroyed);
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    QScopedPointer<FileTaskRunner> work(new FileTaskRunner);
    QSignalSpy stalls(work.data(), SIGNAL(stalled()));
    work->setStallTime(isDestroyed ? FileTaskRunner::stallMs : 50);
    const std::shared_ptr<FileTask> task =
        std::make_shared<ChangingTask>(ChangingTask::Before, record);
    work->start(task);
    QTRY_COMPARE(record->steps.load(), 1);
    if (isDestroyed)
        work.reset();
    else
        QTRY_COMPARE(stalls.size(), 1);
    QVERIFY(task->isGivenUp());
    QVERIFY(!task->isUncertain());
    QVERIFY(isDestroyed || !work->hasChangeUnderWay());
    record->gate.release();
    QTRY_COMPARE(record->closes.load(), 1);
    QCOMPARE(record->mayChange.load(), 0);
}

void TestFileTaskRunner::changeThatHangsIsUncertain()
{
    const std::shared_ptr<Record> record = std::make_shared<Record>();
    FileTaskRunner work;
    work.setStallTime(50);
    QSignalSpy stalls(&work, SIGNAL(stalled()));
    const std::shared_ptr<FileTask> task =
        std::make_shared<ChangingTask>(ChangingTask::Within, record);
    work.start(task);
    QTRY_COMPARE(stalls.size(), 1);
    QCOMPARE(record->mayChange.load(), 1);
    QVERIFY(task->isUncertain());
    QVERIFY(work.hasChangeUnderWay());
    // And known again to whoever asks once it has come back.
    record->gate.release();
    QTRY_VERIFY(!work.hasChangeUnderWay());
    QTRY_COMPARE(record->closes.load(), 1);
}

void TestFileTaskRunner::changesFollowOneAnother()
{
    class Open : public FileTask
    {
    public:
        bool step() override { return false; }
        using FileTask::beginChange;
        using FileTask::endChange;
    };
    Open task;
    for (int i = 0; i < 2; ++i) {
        QVERIFY(task.beginChange());
        QVERIFY(task.isChanging());
        task.endChange();
        QVERIFY(!task.isChanging());
    }
    task.giveUp();
    QVERIFY(!task.beginChange());
    QVERIFY(!task.isUncertain());
}

FILARIX_TEST_MAIN(TestFileTaskRunner)
#include "tst_filetaskrunner.moc"
