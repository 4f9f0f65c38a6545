// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/sha256.h"
#include "filarixtest.h"
#include "programs/programsnapshot.h"
#include "signalhook.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSignalSpy>

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

class TestProgramSnapshot : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void factsAndCopy_data();
    void factsAndCopy();
    void checksumIsWhatAPcShows();
    void copyStaysWhatItWas();
    void comparing_data();
    void comparing();
    void programWrittenMeanwhileIsReadAgain();
    void programThatIsAlwaysWrittenFails();
    void failures_data();
    void failures();
    void stopIsNoFailure();
    void storageThatHangsFails();
    void copyGoes();
    void copyOfAnotherRunGoes();
    void copyOfAnotherPanelStays();
    void nobodyWaitsForStorageThatHangs();

private:
    QStringList copies() const;

    QString m_folder;
    QString m_path;
};

/// A panel beside this one: its process, what it waits for, and what it says.
static struct
{
    pid_t process;
    int order;
    int report;
} other;

static QByteArray longProgram()
{
    return QByteArray("G01 X1.5 Y-2\n").repeated(4 * ProgramSnapshot::pieceBytes / 13);
}

void TestProgramSnapshot::init()
{
    FilarixTest::init();
    qRegisterMetaType<ProgramSnapshot::Verdict>("ProgramSnapshot::Verdict");
    m_folder = home() + "/hmi/outgoing";
    m_path = programDir() + "/coil.cnc";
}

QStringList TestProgramSnapshot::copies() const
{
    return QDir(m_folder).entryList(QDir::Files | QDir::Hidden);
}

void TestProgramSnapshot::factsAndCopy_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("lines");
    QTest::newRow("empty") << QByteArray("") << 1;
    QTest::newRow("one line") << QByteArray("G01") << 1;
    QTest::newRow("one line and its end") << QByteArray("G01\n") << 2;
    QTest::newRow("carriage returns") << QByteArray("G01\r\nG02\r\n") << 3;
    QTest::newRow("many pieces") << longProgram() << longProgram().count('\n') + 1;
}

void TestProgramSnapshot::factsAndCopy()
{
    QFETCH(QByteArray, bytes);
    writeFile(m_path, bytes);
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    snapshot.take(m_path);
    QCOMPARE(taken.size(), 0);
    QTRY_COMPARE(taken.size(), 1);
    QCOMPARE(failures.size(), 0);
    QCOMPARE(snapshot.facts().name, QString("coil.cnc"));
    QCOMPARE(snapshot.facts().bytes, qint64(bytes.size()));
    QTEST(int(snapshot.facts().lines), "lines");
    QCOMPARE(snapshot.facts().hash, Sha256::hash(bytes));
    QCOMPARE(readFile(snapshot.copyPath()), bytes);
    QCOMPARE(snapshot.programPath(), m_path);
}

void TestProgramSnapshot::checksumIsWhatAPcShows()
{
    // echo -n abc | sha256sum
    writeFile(m_path, "abc");
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    snapshot.take(m_path);
    QTRY_COMPARE(taken.size(), 1);
    QCOMPARE(snapshot.facts().checksum(), QString("BA78 16BF"));
}

void TestProgramSnapshot::copyStaysWhatItWas()
{
    writeFile(m_path, "before\n");
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    snapshot.take(m_path);
    QTRY_COMPARE(taken.size(), 1);
    writeFile(m_path, "after\n");
    QCOMPARE(readFile(snapshot.copyPath()), QByteArray("before\n"));
}

void TestProgramSnapshot::comparing_data()
{
    QTest::addColumn<QByteArray>("later");
    QTest::addColumn<ProgramSnapshot::Verdict>("verdict");
    QTest::newRow("untouched") << longProgram() << ProgramSnapshot::Same;
    QTest::newRow("another last byte")
        << longProgram().replace(longProgram().size() - 1, 1, "?") << ProgramSnapshot::Changed;
    QTest::newRow("empty by now") << QByteArray("") << ProgramSnapshot::Changed;
    QTest::newRow("gone") << QByteArray() << ProgramSnapshot::Gone;
}

void TestProgramSnapshot::comparing()
{
    QFETCH(QByteArray, later);
    writeFile(m_path, longProgram());
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    QSignalSpy verdicts(&snapshot, SIGNAL(compared(ProgramSnapshot::Verdict)));
    snapshot.take(m_path);
    QTRY_COMPARE(taken.size(), 1);
    if (later.isNull())
        QVERIFY(QFile::remove(m_path));
    else
        writeFile(m_path, later);
    snapshot.compare();
    QTRY_COMPARE(verdicts.size(), 1);
    QTEST(verdicts.at(0).at(0).value<ProgramSnapshot::Verdict>(), "verdict");
    // The copy is not touched by the look at the program.
    QCOMPARE(readFile(snapshot.copyPath()), longProgram());
    QCOMPARE(taken.size(), 1);
}

void TestProgramSnapshot::programWrittenMeanwhileIsReadAgain()
{
    writeFile(m_path, longProgram());
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    bool isWritten = false;
    const SignalHook hook(&snapshot, SIGNAL(progress(int)), [&](int percent) {
        if (!isWritten && percent >= 20)
            writeFile(m_path, "after\n");
        isWritten = isWritten || percent >= 20;
    });
    snapshot.take(m_path);
    QTRY_COMPARE(taken.size(), 1);
    QVERIFY(isWritten);
    QCOMPARE(readFile(snapshot.copyPath()), QByteArray("after\n"));
    QCOMPARE(snapshot.facts().bytes, qint64(6));
    QCOMPARE(snapshot.facts().lines, qint64(2));
}

void TestProgramSnapshot::programThatIsAlwaysWrittenFails()
{
    writeFile(m_path, longProgram());
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    int size = longProgram().size();
    const SignalHook hook(&snapshot, SIGNAL(progress(int)),
                          [&](int) { writeFile(m_path, QByteArray(++size, 'X')); });
    snapshot.take(m_path);
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(failures.at(0).at(0).toString().contains("is being written"));
}

void TestProgramSnapshot::failures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("word");
    QTest::newRow("never saved") << QString() << "Save it";
    QTest::newRow("gone") << home() + "/cnc/gone.cnc"
                          << "gone.cnc is gone";
    QTest::newRow("a directory") << home() + "/cnc"
                                 << "not a program";
}

void TestProgramSnapshot::failures()
{
    QFETCH(QString, path);
    QFETCH(QString, word);
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    snapshot.take(path);
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY2(failures.at(0).at(0).toString().contains(word),
             qPrintable(failures.at(0).at(0).toString()));
    QVERIFY(!snapshot.isRunning());
}

void TestProgramSnapshot::stopIsNoFailure()
{
    writeFile(m_path, longProgram());
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    QSignalSpy stops(&snapshot, SIGNAL(stopped(QString)));
    const SignalHook hook(&snapshot, SIGNAL(progress(int)), [&] { snapshot.stop(); });
    snapshot.take(m_path);
    QTRY_COMPARE(stops.size(), 1);
    QCOMPARE(taken.size(), 0);
    QCOMPARE(failures.size(), 0);
    QVERIFY(stops.at(0).at(0).toString().contains("stopped"));
    QTRY_VERIFY(copies().isEmpty());
}

// A program that hangs when it is opened: the system waits until the lease is given back.
static volatile std::sig_atomic_t leaseIsWanted = 0;

static bool lease(QFile *file)
{
    leaseIsWanted = 0;
    std::signal(SIGIO, [](int) { leaseIsWanted = 1; });
    return file->open(QIODevice::ReadWrite) && ::fcntl(file->handle(), F_SETLEASE, F_WRLCK) == 0;
}

static bool release(QFile *file)
{
    return ::fcntl(file->handle(), F_SETLEASE, F_UNLCK) == 0;
}

void TestProgramSnapshot::storageThatHangsFails()
{
    writeFile(m_path, "G01\n");
    QFile leased(m_path);
    QVERIFY(lease(&leased));
    ProgramSnapshot snapshot(m_folder);
    snapshot.setStallTime(100);
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    snapshot.take(m_path);
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(!snapshot.isRunning());
    QVERIFY(failures.at(0).at(0).toString().contains("storage stopped answering"));
    QVERIFY(release(&leased));
    // What hung leaves nothing behind, and does not come in the way of the next one.
    snapshot.setStallTime(FileTaskRunner::stallMs);
    snapshot.take(m_path);
    QTRY_COMPARE(taken.size(), 1);
    QTRY_COMPARE(copies().size(), 1);
    QCOMPARE(readFile(snapshot.copyPath()), QByteArray("G01\n"));
}

void TestProgramSnapshot::copyGoes()
{
    writeFile(m_path, "G01\n");
    {
        ProgramSnapshot snapshot(m_folder);
        QSignalSpy taken(&snapshot, SIGNAL(taken()));
        snapshot.take(m_path);
        QTRY_COMPARE(taken.size(), 1);
        QCOMPARE(copies().size(), 1);
        snapshot.drop();
        QVERIFY(snapshot.copyPath().isEmpty());
        QTRY_VERIFY(copies().isEmpty());
        snapshot.take(m_path);
        QTRY_COMPARE(taken.size(), 2);
        // Another one in its place.
        snapshot.take(m_path);
        QTRY_COMPARE(taken.size(), 3);
        QTRY_COMPARE(copies().size(), 1);
    }
    QTRY_VERIFY(copies().isEmpty());
}

void TestProgramSnapshot::copyOfAnotherRunGoes()
{
    writeFile(m_folder + "/program", "of a run that was killed\n");
    writeFile(m_folder + "/program-0123456789abcdef", "of another one\n");
    writeFile(m_folder + "/notes.txt", "by hand\n");
    ProgramSnapshot snapshot(m_folder);
    QTRY_COMPARE(copies(), QStringList("notes.txt"));
}

void TestProgramSnapshot::copyOfAnotherPanelStays()
{
    writeFile(m_path, "shown on the first panel\n");
    QCOMPARE(::write(other.order, "!", 1), ssize_t(1));
    QByteArray copy;
    char letter = 0;
    while (::read(other.report, &letter, 1) == 1 && letter != '\n')
        copy += letter;
    QVERIFY(!copy.isEmpty());
    {
        ProgramSnapshot second(m_folder);
        QSignalSpy taken(&second, SIGNAL(taken()));
        writeFile(m_path, "another one\n");
        second.take(m_path);
        QTRY_COMPARE(taken.size(), 1);
        QCOMPARE(copies().size(), 2);
        second.drop();
        QTRY_COMPARE(copies().size(), 1);
    }
    QCOMPARE(readFile(QFile::decodeName(copy)), QByteArray("shown on the first panel\n"));
    QCOMPARE(::kill(other.process, SIGKILL), 0);
    QCOMPARE(::waitpid(other.process, nullptr, 0), other.process);
    // Nobody holds it any more.
    QCOMPARE(copies().size(), 1);
    ProgramSnapshot third(m_folder);
    QTRY_VERIFY(copies().isEmpty());
}

void TestProgramSnapshot::nobodyWaitsForStorageThatHangs()
{
    writeFile(m_path, "G01\n");
    QFile leased(m_path);
    QVERIFY(lease(&leased));
    QElapsedTimer timer;
    QScopedPointer<ProgramSnapshot> snapshot(new ProgramSnapshot(m_folder));
    snapshot->take(m_path);
    QTRY_VERIFY(leaseIsWanted);
    timer.start();
    snapshot->stop();
    snapshot->drop();
    const ProgramSnapshot other(m_folder);
    snapshot.reset();
    QVERIFY2(timer.elapsed() < patience(500), qPrintable(QString::number(timer.elapsed())));
    QVERIFY(release(&leased));
}

/// Once there is an order: a panel that takes a copy, reports where that is, and runs until it is
/// killed.
static int runOtherPanel(int order, int report, int argc, char **argv)
{
    char letter = 0;
    if (::read(order, &letter, 1) != 1)
        return 0;
    const QCoreApplication application(argc, argv);
    ProgramSnapshot snapshot(FilarixTest::home() + "/hmi/outgoing");
    bool isTaken = false;
    const SignalHook hook(&snapshot, SIGNAL(taken()), [&] { isTaken = true; });
    snapshot.take(FilarixTest::programDir() + "/coil.cnc");
    if (!TestCompat::waitFor([&] { return isTaken; }))
        return 1;
    const QByteArray path = QFile::encodeName(snapshot.copyPath()) + '\n';
    if (::write(report, path.constData(), size_t(path.size())) != path.size())
        return 2;
    for (;;)
        ::pause();
}

// A program with threads cannot be forked everywhere, so that comes first.
int main(int argc, char **argv)
{
    int orders[2];
    int reports[2];
    if (::pipe2(orders, O_CLOEXEC) != 0 || ::pipe2(reports, O_CLOEXEC) != 0)
        return 97;
    other.process = ::fork();
    if (other.process == 0) {
        ::close(orders[1]);
        ::_exit(runOtherPanel(orders[0], reports[1], argc, argv));
    }
    ::close(orders[0]);
    ::close(reports[1]);
    other.order = orders[1];
    other.report = reports[0];
    QApplication application(argc, argv);
    TestProgramSnapshot test;
    return filarixTestMain(&test, argc, argv);
}

#include "tst_programsnapshot.moc"
