// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/filethread.h"

#include <QElapsedTimer>
#include <QScopedPointer>
#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include <atomic>

class TestFileThread : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void workRunsThereAndAnswersHere();
    void piecesRunInTheirOrder();
    void workMayPostMore();
    void pieceInHandEndsAndTheOthersAreDropped();
    void lastIsDoneWhateverIsDropped();
    void workThatHangsIsLeftBehind_data();
    void workThatHangsIsLeftBehind();
};

void TestFileThread::workRunsThereAndAnswersHere()
{
    FileThread thread;
    QThread *worker = nullptr;
    QThread *answerer = nullptr;
    thread.post([&worker] { worker = QThread::currentThread(); },
                [&answerer] { answerer = QThread::currentThread(); });
    QVERIFY(!answerer);
    QTRY_VERIFY(answerer);
    QVERIFY(worker && worker != qApp->thread());
    QVERIFY(answerer == qApp->thread());
}

void TestFileThread::piecesRunInTheirOrder()
{
    FileThread thread;
    QStringList works;
    QStringList answers;
    for (int i = 0; i < 100; ++i) {
        const QString name = QString::number(i);
        thread.post([&works, name] { works.append(name); },
                    [&answers, name] { answers.append(name); });
    }
    QTRY_COMPARE(answers.size(), 100);
    QCOMPARE(works, answers);
    QCOMPARE(works.first(), QString("0"));
    QCOMPARE(works.last(), QString("99"));
}

void TestFileThread::workMayPostMore()
{
    FileThread thread;
    bool isDone = false;
    thread.post([] {}, [&thread, &isDone] { thread.post([] {}, [&isDone] { isDone = true; }); });
    QTRY_VERIFY(isDone);
}

void TestFileThread::pieceInHandEndsAndTheOthersAreDropped()
{
    const std::shared_ptr<QSemaphore> begun = std::make_shared<QSemaphore>();
    const std::shared_ptr<std::atomic<int>> ended = std::make_shared<std::atomic<int>>(0);
    int answers = 0;
    {
        FileThread thread;
        for (int i = 0; i < 3; ++i)
            thread.post(
                [begun, ended] {
                    begun->release();
                    QThread::yieldCurrentThread();
                    ended->fetch_add(1);
                },
                [&answers] { ++answers; });
        begun->acquire();
    }
    const int atTheEnd = ended->load();
    QVERIFY(atTheEnd >= 1);
    QCoreApplication::processEvents();
    QCOMPARE(ended->load(), atTheEnd);
    QCOMPARE(answers, 0);
}

void TestFileThread::lastIsDoneWhateverIsDropped()
{
    const std::shared_ptr<QThread *> where = std::make_shared<QThread *>(nullptr);
    {
        FileThread thread;
        thread.setLast([where] { *where = QThread::currentThread(); });
    }
    QVERIFY(*where && *where != qApp->thread());
}

void TestFileThread::workThatHangsIsLeftBehind_data()
{
    QTest::addColumn<bool>("isGivenUp");
    QTest::newRow("given up") << true;
    QTest::newRow("nobody knew") << false;
}

void TestFileThread::workThatHangsIsLeftBehind()
{
    QFETCH(bool, isGivenUp);
    const std::shared_ptr<QSemaphore> begun = std::make_shared<QSemaphore>();
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const std::shared_ptr<QSemaphore> over = std::make_shared<QSemaphore>();
    int answers = 0;
    QScopedPointer<FileThread> thread(new FileThread);
    thread->post(
        [begun, gate] {
            begun->release();
            gate->acquire();
        },
        [&answers] { ++answers; });
    thread->setLast([over] { over->release(); });
    begun->acquire();
    if (isGivenUp)
        thread->giveUp();
    QElapsedTimer time;
    time.start();
    thread.reset();
    QVERIFY(time.elapsed() < patience(isGivenUp ? 90 : 2000));
    QVERIFY(!over->tryAcquire());
    // It comes back later, ends as any other, and its answer goes nowhere.
    gate->release();
    QVERIFY(over->tryAcquire(1, patience(5000)));
    QTest::qWait(10);
    QCOMPARE(answers, 0);
}

FILARIX_TEST_MAIN(TestFileThread)
#include "tst_filethread.moc"
