// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds PlcTransfer, ProgramHistory and HistoryDialog: how long each keeps the event loop.

#include "filarixtest.h"
#include "modaldriver.h"
#include "programs/plctransfer.h"
#include "programs/programhistory.h"
#include "samples.h"
#include "screens/historydialog.h"
#include "screens/machinedata.h"
#include "screens/programscreen.h"
#include "wmmainwindow.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>

#include <ctime>

/// Watches what the thread of the screen does between two turns of the event loop.
///
/// It counts processor time: on a machine that is busy with other things the clock on the wall says
/// how long this thread had to wait for its turn, which is no fault of the program's. What the
/// processor's clock cannot see is a wait for a disk; so it is also measured how much this thread
/// reads and writes, and that is to be nothing worth a wait.
class LoopWatch : public QObject
{
    Q_OBJECT

public:
    LoopWatch()
    {
        connect(&m_timer, &QTimer::timeout, this, &LoopWatch::look);
        m_timer.start(0);
        m_bytes = bytesMoved();
        m_last = now();
    }

    double longestMs() const { return m_longest / 1e6; }
    int turns() const { return m_turns; }
    /// Bytes that the thread itself read from files and wrote to them since the watch began.
    qint64 bytes() const { return bytesMoved() - m_bytes; }

private:
    static qint64 now()
    {
        struct timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return time.tv_sec * qint64(1000000000) + time.tv_nsec;
    }

    static qint64 bytesMoved()
    {
        QFile file("/proc/thread-self/io");
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        qint64 sum = 0;
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("rchar:") || line.startsWith("wchar:"))
                sum += line.mid(7).toLongLong();
        }
        return sum;
    }

    void look()
    {
        const qint64 time = now();
        m_longest = qMax(m_longest, time - m_last);
        m_last = time;
        ++m_turns;
    }

    QTimer m_timer;
    qint64 m_last = 0;
    qint64 m_longest = 0;
    qint64 m_bytes = 0;
    int m_turns = 0;
};

class TestResponsiveness : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void watchSeesALongTurn();
    void watchSeesFilesBeingRead();
    void historyTakesIn();
    void historyBringsBack();
    void downloadIsCopiedAskedAndSent();
    void longHistoryIsShown();

private:
    void judge(const LoopWatch &watch);

    QString m_path;
};

// What a turn may take; a thumb notices more.
static const double longestTurnMs = 100;
// Messages between threads, and what the toolkit looks up.
static const qint64 fewBytes = 64 * 1024;

void TestResponsiveness::initTestCase()
{
    // What the toolkit loads with the first window is none of the host's work.
    HistoryDialog dialog((QList<ProgramVersion>()));
    dialog.show();
    QVERIFY(TestCompat::waitForExposed(&dialog));
}

void TestResponsiveness::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_path = programDir() + "/endurance-run.cnc";
    QVERIFY(Samples::install(programDir()).contains("endurance-run.cnc"));
    QVERIFY(QDir(programDir()).remove("stator-coil.cnc"));
    QVERIFY(readFile(m_path).count('\n') >= 20000);
}

void TestResponsiveness::cleanup()
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        // The program window leaves the buttons that no bar takes to nobody.
        if (qobject_cast<QToolButton *>(widget))
            delete widget;
    }
    FilarixTest::cleanup();
}

void TestResponsiveness::judge(const LoopWatch &watch)
{
    qInfo("longest turn %.1f ms of %d, %lld bytes", watch.longestMs(), watch.turns(),
          static_cast<long long>(watch.bytes()));
    QVERIFY(watch.turns() >= 2);
    QVERIFY2(watch.longestMs() <= longestTurnMs, qPrintable(QString::number(watch.longestMs())));
    QVERIFY2(watch.bytes() >= 0 && watch.bytes() < fewBytes,
             qPrintable(QString::number(watch.bytes())));
}

void TestResponsiveness::watchSeesALongTurn()
{
    LoopWatch watch;
    QTimer::singleShot(0, this, [] {
        struct timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        const qint64 start = time.tv_sec * 1000 + time.tv_nsec / 1000000;
        do
            ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        while (time.tv_sec * 1000 + time.tv_nsec / 1000000 < start + 120);
    });
    QTRY_VERIFY(watch.longestMs() > longestTurnMs);
}

void TestResponsiveness::watchSeesFilesBeingRead()
{
    LoopWatch watch;
    QVERIFY(watch.bytes() < fewBytes);
    const QByteArray bytes = readFile(m_path);
    QVERIFY(watch.bytes() >= bytes.size());
}

void TestResponsiveness::historyTakesIn()
{
    LoopWatch watch;
    ProgramHistory history(programDir(), home() + "/hmi/history");
    QTRY_VERIFY(history.isSettled());
    QCOMPARE(history.versions().size(), 2);
    judge(watch);
}

void TestResponsiveness::historyBringsBack()
{
    ProgramHistory history(programDir(), home() + "/hmi/history");
    QTRY_VERIFY(history.isSettled());
    const QByteArray bytes = readFile(m_path);
    QVERIFY(QFile::remove(m_path));
    ProgramVersion version;
    const QList<ProgramVersion> versions = history.versions();
    for (const ProgramVersion &each : versions) {
        if (each.name == "endurance-run.cnc")
            version = each;
    }
    qRegisterMetaType<Message::Tone>("Message::Tone");
    QSignalSpy told(&history, &ProgramHistory::told);
    {
        LoopWatch watch;
        history.restore(version);
        QTRY_COMPARE(told.size(), 1);
        judge(watch);
    }
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(readFile(m_path), bytes);
}

void TestResponsiveness::downloadIsCopiedAskedAndSent()
{
    const QString plc = home() + "/plc";
    QVERIFY(QDir().mkpath(plc));
    MachineData machine;
    ProgramScreen screen(0, plc, home() + "/hmi", &machine);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    ModalDriver driver;
    driver.then([](QWidget *dialog) { dialog->findChild<QPushButton *>("send")->click(); });
    {
        LoopWatch watch;
        Q_EMIT screen.programWindow()->signal_download(m_path);
        QTRY_COMPARE_WITH_TIMEOUT(told.size(), 1, 20000);
        judge(watch);
    }
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(readFile(plc + "/endurance-run.cnc"), readFile(m_path));
}

void TestResponsiveness::longHistoryIsShown()
{
    QList<ProgramVersion> versions;
    for (int i = 0; i < HistoryStore::Limits().versions; ++i) {
        ProgramVersion version;
        version.number = i + 1;
        version.name = QString("coil-%1.cnc").arg(i % 20);
        version.stored = QDateTime::currentDateTimeUtc();
        version.bytes = i;
        versions.append(version);
    }
    LoopWatch watch;
    QScopedPointer<HistoryDialog> dialog;
    QTimer::singleShot(0, this, [&] {
        dialog.reset(new HistoryDialog(versions));
        dialog->show();
    });
    QTRY_VERIFY(dialog && dialog->isVisible());
    QVERIFY(TestCompat::waitForExposed(dialog.data()));
    QTimer::singleShot(0, dialog.data(),
                       [&] { dialog->findChild<QPushButton *>("forth")->click(); });
    QTRY_VERIFY(dialog->findChild<QPushButton *>("back")->isEnabled());
    judge(watch);
}

FILARIX_TEST_MAIN(TestResponsiveness)
#include "tst_responsiveness.moc"
