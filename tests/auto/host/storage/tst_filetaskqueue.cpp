// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/filetaskqueue.h"

#include <QEventLoop>
#include <QSemaphore>
#include <QStringList>
#include <QThread>

namespace {

class OneStep : public FileTask
{
public:
    explicit OneStep(const std::shared_ptr<QSemaphore> &gate = std::shared_ptr<QSemaphore>())
        : m_gate(gate)
    {}

    bool step() override
    {
        isInMainThread = QThread::currentThread() == qApp->thread();
        if (m_gate)
            m_gate->acquire();
        return false;
    }

    bool isInMainThread = true;

private:
    const std::shared_ptr<QSemaphore> m_gate;
};

} // namespace

class TestFileTaskQueue : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void tasksRunOneAfterTheOther();
    void taskThatStallsIsAnsweredAndTheNextOneRuns();
    void answerMayRunAnEventLoop();
    void answerMayAddATask();
    void nothingIsAnsweredAfterTheEnd();
};

void TestFileTaskQueue::tasksRunOneAfterTheOther()
{
    FileTaskQueue queue;
    QStringList answers;
    QList<std::shared_ptr<OneStep>> tasks;
    for (int i = 0; i < 3; ++i) {
        tasks.append(std::make_shared<OneStep>());
        queue.run(tasks.last(), [&answers, i](bool hasEnded) {
            answers.append(QString::number(i) + (hasEnded ? " ended" : " stalled"));
        });
    }
    QVERIFY(queue.isRunning());
    QVERIFY(answers.isEmpty());
    QTRY_COMPARE(answers, QStringList() << "0 ended"
                                        << "1 ended"
                                        << "2 ended");
    QVERIFY(!queue.isRunning());
    for (const std::shared_ptr<OneStep> &task : tasks)
        QVERIFY(!task->isInMainThread);
}

void TestFileTaskQueue::taskThatStallsIsAnsweredAndTheNextOneRuns()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    FileTaskQueue queue;
    queue.setStallTime(50);
    QStringList answers;
    const std::shared_ptr<OneStep> hanging = std::make_shared<OneStep>(gate);
    queue.run(hanging, [&answers](bool hasEnded) { answers.append(hasEnded ? "?" : "stalled"); });
    queue.run(std::make_shared<OneStep>(),
              [&answers](bool hasEnded) { answers.append(hasEnded ? "ended" : "?"); });
    QTRY_COMPARE(answers, QStringList() << "stalled"
                                        << "ended");
    QVERIFY(hanging->isGivenUp());
    gate->release();
}

void TestFileTaskQueue::answerMayRunAnEventLoop()
{
    FileTaskQueue queue;
    QStringList answers;
    QEventLoop loop;
    queue.run(std::make_shared<OneStep>(), [&answers, &loop](bool) {
        loop.exec();
        answers.append("first");
    });
    queue.run(std::make_shared<OneStep>(), [&answers, &loop](bool) {
        answers.append("second");
        loop.quit();
    });
    QTRY_COMPARE(answers, QStringList() << "second"
                                        << "first");
}

void TestFileTaskQueue::answerMayAddATask()
{
    FileTaskQueue queue;
    bool isDone = false;
    queue.run(std::make_shared<OneStep>(), [&queue, &isDone](bool) {
        queue.run(std::make_shared<OneStep>(), [&isDone](bool) { isDone = true; });
    });
    QTRY_VERIFY(isDone);
    QVERIFY(!queue.isRunning());
}

void TestFileTaskQueue::nothingIsAnsweredAfterTheEnd()
{
    int answers = 0;
    {
        FileTaskQueue queue;
        for (int i = 0; i < 2; ++i)
            queue.run(std::make_shared<OneStep>(), [&answers](bool) { ++answers; });
    }
    QTest::qWait(20);
    QCOMPARE(answers, 0);
}

FILARIX_TEST_MAIN(TestFileTaskQueue)
#include "tst_filetaskqueue.moc"
