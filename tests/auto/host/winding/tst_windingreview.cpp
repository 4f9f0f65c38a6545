// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "hearer.h"
#include "winding/windingreview.h"

#include <QAbstractTextDocumentLayout>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextCursor>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <ctime>

#include <sys/stat.h>

class TestWindingReview : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void fileInTheCallingThread();
    void fileThatCannotBeRead_data();
    void fileThatCannotBeRead();
    void fileBesideTheEventLoop();
    void fileThatIsMissing();
    void documentBesideTheEventLoop();
    void samplesFromFileAndDocumentAreTheSame();
    void nothingIsToldBeforeStartReturns();
    void changeWhileCopyingBeginsAgain();
    void changeBehindCopyingIsSeenByTheRevision();
    void documentThatGoes();
    void stopLeavesTheOneBefore();
    void newStartTakesThePlace();
    void eachReviewHasAListenerOfItsOwn();
    void endOfTheObjectWhileWorkRuns();
    void fileThatNeverAnswersStalls();
    void coilIsSeenWhileItGrows();
    void eventLoopIsNotHeld();
};

static std::shared_ptr<BlockListener> makeHearer()
{
    return std::make_shared<Hearer>();
}

static const Hearer *hearerOf(const WindingReview &review)
{
    return static_cast<const Hearer *>(review.listener().get());
}

/// As many lines, each of which winds two turns.
static QByteArray longProgram(int lines)
{
    QByteArray program = "S600 M03\nG91\n";
    for (int i = 2; i < lines; ++i)
        program += i % 40 < 20 ? "G33 X1 K0.5 ; there\n" : "G33 X-1 K0.5 ; and back\n";
    return program;
}

/// Looks at the coil each time that progress is told.
class GrowthWatch : public QObject
{
    Q_OBJECT

public:
    explicit GrowthWatch(WindingReview *review) : m_review(review)
    {
        connect(review, SIGNAL(progressed(int)), this, SLOT(look()));
    }

    QList<double> turns;

private Q_SLOTS:
    void look() { turns.append(m_review->modelSoFar().totals().turns); }

private:
    WindingReview *const m_review;
};

/// The thread's own work between two turns of its event loop, in ms of processor time.
class LoopWatch : public QObject
{
    Q_OBJECT

public:
    LoopWatch()
    {
        connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
        m_timer.start(0);
        m_last = now();
    }

    double longestMs() const { return m_longest; }

private Q_SLOTS:
    void look()
    {
        const double time = now();
        m_longest = qMax(m_longest, time - m_last);
        m_last = time;
    }

private:
    static double now()
    {
        struct timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
    }

    QTimer m_timer;
    double m_last = 0;
    double m_longest = 0;
};

void TestWindingReview::fileInTheCallingThread()
{
    const QByteArray program = longProgram(50000);
    writeFile(home() + "/long.cnc", program);
    QString error("from before");
    ProgramReading reading(MachineProfile::forSamples());
    QVERIFY(WindingReview::read(home() + "/long.cnc", &reading, &error));
    QCOMPARE(error, QString());
    QCOMPARE(reading.lines(), 50000);
    QCOMPARE(reading.model().totals().turns, 99996.0);
    ProgramReading empty(MachineProfile::forSamples());
    writeFile(home() + "/empty.cnc", "");
    QVERIFY(WindingReview::read(home() + "/empty.cnc", &empty, &error));
    QCOMPARE(empty.lines(), 0);
}

void TestWindingReview::fileThatCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");
    QTest::newRow("missing") << "none.cnc"
                             << "The program none.cnc cannot be read: No such file or directory.";
    QTest::newRow("a folder") << "folder"
                              << "folder is not a program file.";
    QTest::newRow("a pipe") << "pipe"
                            << "pipe is not a program file.";
}

void TestWindingReview::fileThatCannotBeRead()
{
    QFETCH(QString, name);
    QFETCH(QString, error);
    writeFile(home() + "/folder/file", "");
    QCOMPARE(::mkfifo(QFile::encodeName(home() + "/pipe").constData(), 0600), 0);
    QString told;
    ProgramReading reading(MachineProfile::forSamples());
    QVERIFY(!WindingReview::read(home() + "/" + name, &reading, &told));
    QCOMPARE(told, error);
}

void TestWindingReview::fileBesideTheEventLoop()
{
    writeFile(home() + "/long.cnc", longProgram(200000));
    WindingReview review;
    review.setListenerMaker(makeHearer);
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    QSignalSpy progressed(&review, SIGNAL(progressed(int)));
    review.start(home() + "/long.cnc");
    QVERIFY(review.isRunning());
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 1, patience(20000));
    QVERIFY(!review.isRunning());
    QVERIFY(progressed.count() > 3);
    QCOMPARE(review.revision(), -1);
    QCOMPARE(review.model().totals().lines, 200000);
    QVERIFY(hearerOf(review)->isInOrder);
    QCOMPARE(hearerOf(review)->blocks, 200000);
    QCOMPARE(hearerOf(review)->finished, 1);
    QVERIFY(hearerOf(review)->thread != QThread::currentThread());
}

void TestWindingReview::fileThatIsMissing()
{
    WindingReview review;
    QSignalSpy failed(&review, SIGNAL(failed(QString)));
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(home() + "/none.cnc");
    QTRY_COMPARE(int(failed.count()), 1);
    QCOMPARE(failed.first().first().toString(),
             QString("The program none.cnc cannot be read: No such file or directory."));
    QVERIFY(!review.isRunning());
    QCOMPARE(int(reviewed.count()), 0);
}

void TestWindingReview::documentBesideTheEventLoop()
{
    QTextDocument document;
    document.setPlainText(longProgram(scaled(60000, 5000)));
    WindingReview review;
    review.setListenerMaker(makeHearer);
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(&document);
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 1, patience(20000));
    // Behind the last line end a document has one more line.
    QCOMPARE(review.model().totals().lines, document.blockCount());
    QCOMPARE(hearerOf(review)->blocks, document.blockCount());
    QCOMPARE(review.model().totals().turns, 2.0 * (document.blockCount() - 3));
    QCOMPARE(review.revision(), document.revision());
    QVERIFY(hearerOf(review)->thread != QThread::currentThread());
    // Another one by the same review.
    QTextDocument other(smallProgram());
    review.start(&other);
    QTRY_COMPARE(int(reviewed.count()), 2);
    QCOMPARE(review.model().totals().turns, 40.0);
}

void TestWindingReview::samplesFromFileAndDocumentAreTheSame()
{
    for (const char *name : {"test-coil.cnc", "stator-coil.cnc", "endurance-run.cnc"}) {
        const QString path = QString(FILARIX_SAMPLES "/") + name;
        ProgramReading reading(MachineProfile::forSamples());
        QString error;
        QVERIFY(WindingReview::read(path, &reading, &error));
        QTextDocument document(QString::fromLatin1(readFile(path)));
        WindingReview review;
        QSignalSpy reviewed(&review, SIGNAL(reviewed()));
        review.start(&document);
        QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 1, patience(20000));
        const WindingTotals totals = review.model().totals();
        QCOMPARE(totals.turns, reading.model().totals().turns);
        QCOMPARE(totals.layers, reading.model().totals().layers);
        QCOMPARE(totals.wireLength, reading.model().totals().wireLength);
        QCOMPARE(totals.seconds, reading.model().totals().seconds);
    }
}

void TestWindingReview::nothingIsToldBeforeStartReturns()
{
    WindingReview review;
    QSignalSpy failed(&review, SIGNAL(failed(QString)));
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(home() + "/none.cnc");
    QCOMPARE(int(failed.count()), 0);
    QTextDocument document(smallProgram());
    review.start(&document);
    QCOMPARE(int(reviewed.count()), 0);
    QTRY_COMPARE(int(reviewed.count()), 1);
    // The first one's end is not told.
    QCOMPARE(int(failed.count()), 0);
}

void TestWindingReview::changeWhileCopyingBeginsAgain()
{
    QTextDocument document;
    document.documentLayout(); // which documents of an editor have
    document.setPlainText(longProgram(scaled(100000, 20000)));
    WindingReview review;
    review.setListenerMaker(makeHearer);
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    QSignalSpy progressed(&review, SIGNAL(progressed(int)));
    review.start(&document);
    QTRY_VERIFY(progressed.count() > 0);
    QVERIFY(review.isRunning());
    QTextCursor cursor(&document);
    cursor.insertText("S300 M03\nG33 X100 K0.5\n");
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 1, patience(20000));
    QCOMPARE(review.revision(), document.revision());
    QCOMPARE(hearerOf(review)->blocks, document.blockCount());
    QVERIFY(hearerOf(review)->isInOrder);
    QCOMPARE(review.model().layers().first().firstLine, 2);
}

void TestWindingReview::changeBehindCopyingIsSeenByTheRevision()
{
    QTextDocument document;
    document.documentLayout();
    document.setPlainText(smallProgram());
    WindingReview review;
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(&document);
    QTRY_COMPARE(int(reviewed.count()), 1);
    QCOMPARE(review.revision(), document.revision());
    QTextCursor(&document).insertText("M05\n");
    QVERIFY(review.revision() != document.revision());
    QCOMPARE(int(reviewed.count()), 1);
    QVERIFY(!review.isRunning());
}

void TestWindingReview::documentThatGoes()
{
    QScopedPointer<QTextDocument> document(new QTextDocument);
    document->setPlainText(longProgram(20000));
    WindingReview review;
    QSignalSpy stopped(&review, SIGNAL(stopped()));
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(document.data());
    document.reset();
    QTRY_COMPARE(int(stopped.count()), 1);
    QVERIFY(!review.isRunning());
    QCOMPARE(int(reviewed.count()), 0);
}

void TestWindingReview::stopLeavesTheOneBefore()
{
    QTextDocument document(smallProgram());
    WindingReview review;
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    QSignalSpy stopped(&review, SIGNAL(stopped()));
    review.stop();
    QCOMPARE(int(stopped.count()), 0);
    review.start(&document);
    QTRY_COMPARE(int(reviewed.count()), 1);
    writeFile(home() + "/long.cnc", longProgram(100000));
    review.start(home() + "/long.cnc");
    review.stop();
    QCOMPARE(int(stopped.count()), 1);
    QVERIFY(!review.isRunning());
    QCOMPARE(review.model().totals().turns, 40.0);
    review.start(&document);
    review.stop();
    QCOMPARE(int(stopped.count()), 2);
    // Behind both nothing more is told.
    review.start(&document);
    QTRY_COMPARE(int(reviewed.count()), 2);
    QCOMPARE(int(stopped.count()), 2);
}

void TestWindingReview::newStartTakesThePlace()
{
    writeFile(home() + "/long.cnc", longProgram(100000));
    QTextDocument document(smallProgram());
    WindingReview review;
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    for (int i = 0; i < 20; ++i) {
        review.start(home() + "/long.cnc");
        review.start(&document);
    }
    QTRY_COMPARE(int(reviewed.count()), 1);
    QCOMPARE(review.model().totals().turns, 40.0);
    review.start(&document);
    review.start(home() + "/long.cnc");
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 2, patience(20000));
    QCOMPARE(review.model().totals().lines, 100000);
}

void TestWindingReview::eachReviewHasAListenerOfItsOwn()
{
    QTextDocument document(smallProgram());
    WindingReview review;
    review.setListenerMaker(makeHearer);
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(&document);
    QTRY_COMPARE(int(reviewed.count()), 1);
    const std::shared_ptr<BlockListener> first = review.listener();
    review.start(&document);
    QVERIFY(review.listener() == first);
    QTRY_COMPARE(int(reviewed.count()), 2);
    QVERIFY(review.listener() != first);
    QCOMPARE(hearerOf(review)->blocks, 9);
    review.setListenerMaker(WindingReview::ListenerMaker());
    review.start(&document);
    QTRY_COMPARE(int(reviewed.count()), 3);
    QVERIFY(!review.listener());
}

void TestWindingReview::endOfTheObjectWhileWorkRuns()
{
    writeFile(home() + "/long.cnc", longProgram(scaled(200000, 20000)));
    QTextDocument document(QString::fromLatin1(longProgram(20000)));
    for (int i = 0; i < 5; ++i) {
        WindingReview ofFile;
        ofFile.setListenerMaker(makeHearer);
        QSignalSpy progressed(&ofFile, SIGNAL(progressed(int)));
        ofFile.start(home() + "/long.cnc");
        if (i > 0)
            QTRY_VERIFY(progressed.count() > 0);
        WindingReview ofDocument;
        ofDocument.setListenerMaker(makeHearer);
        ofDocument.start(&document);
        QCoreApplication::processEvents();
    }
}

void TestWindingReview::fileThatNeverAnswersStalls()
{
    // A listener that waits stands in for a file that does: both hold one step.
    class Waiting : public BlockListener
    {
    public:
        explicit Waiting(const std::shared_ptr<std::atomic<bool>> &hold) : m_hold(hold) {}
        void add(const GCodeBlock &, const WindingStep &, const WindingModel &) override
        {
            while (*m_hold)
                QThread::yieldCurrentThread();
        }
        void finish(const WindingModel &) override {}

    private:
        const std::shared_ptr<std::atomic<bool>> m_hold;
    };
    const auto hold = std::make_shared<std::atomic<bool>>(true);
    writeFile(home() + "/small.cnc", smallProgram());
    WindingReview review;
    review.setStallTime(50);
    review.setListenerMaker([hold] { return std::make_shared<Waiting>(hold); });
    QSignalSpy failed(&review, SIGNAL(failed(QString)));
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    review.start(home() + "/small.cnc");
    QTRY_COMPARE(int(failed.count()), 1);
    QVERIFY(!review.isRunning());
    QVERIFY(failed.first().first().toString().startsWith("The panel's storage stopped answering."));
    review.setListenerMaker(makeHearer);
    review.start(home() + "/small.cnc");
    QTRY_COMPARE(int(reviewed.count()), 1);
    *hold = false;
}

void TestWindingReview::coilIsSeenWhileItGrows()
{
    const QByteArray program = longProgram(scaled(100000, 20000));
    writeFile(home() + "/long.cnc", program);
    QTextDocument document(QString::fromLatin1(program));
    WindingReview review;
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    GrowthWatch watch(&review);
    QCOMPARE(review.modelSoFar().totals().turns, 0.0);
    review.start(&document);
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 1, patience(20000));
    QVERIFY(!watch.turns.isEmpty());
    const int looks = watch.turns.size();
    review.start(home() + "/long.cnc");
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 2, patience(20000));
    QVERIFY(watch.turns.size() > looks);
    for (int i = 0; i < watch.turns.size(); ++i) {
        QVERIFY(watch.turns.at(i) <= review.model().totals().turns);
        QVERIFY(i == 0 || i == looks || watch.turns.at(i) >= watch.turns.at(i - 1));
    }
    QVERIFY(watch.turns.at(looks - 1) > 0);
    QCOMPARE(review.modelSoFar().totals().turns, 0.0);
}

void TestWindingReview::eventLoopIsNotHeld()
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setPlainText(QString::fromLatin1(longProgram(scaled(100000, 10000))));
    WindingReview review;
    QSignalSpy reviewed(&review, SIGNAL(reviewed()));
    LoopWatch watch;
    review.start(&document);
    QTRY_COMPARE_WITH_TIMEOUT(int(reviewed.count()), 1, patience(60000));
    QCOMPARE(review.model().totals().lines, document.blockCount());
    qDebug("at most %.1f ms", watch.longestMs());
    QVERIFY2(watch.longestMs() < patience(50), qPrintable(QString::number(watch.longestMs())));
}

FILARIX_TEST_MAIN(TestWindingReview)
#include "tst_windingreview.moc"
