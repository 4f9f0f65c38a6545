// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/sha256.h"
#include "filarixtest.h"
#include "filecalls.h"
#include "programs/plctransfer.h"
#include "signalhook.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTimer>

#include <atomic>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class TestPlcTransfer : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void programArrivesByteForByte_data();
    void programArrivesByteForByte();
    void progressRisesTo100();
    void eventLoopRunsBetweenThePieces();
    void earlierProgramOfTheNameIsReplaced();
    void failures_data();
    void failures();
    void folderThatTakesNothing();
    void folderThatIsTheProgramDirectory();
    void programTooLarge();
    void copyIsSentUnderTheNameOfTheProgram();
    void arrivalThatDiffersIsTakenOut_data();
    void arrivalThatDiffersIsTakenOut();
    void stopKeepsWhatThePlcHad();
    void stopAfterTheArrivalTellsThatNothingWasCompared();
    void stalledTransferFails();
    void arrivalOfAnotherIsNotTakenOut();
    void copyThatChangedIsNotSent();
    void stalledSyncRenamesNothing();
    void renameThatHangsIsToldAsNotKnown();
    void destructionLetsNothingBeRenamed();
    void nobodyWaitsForAFolderThatHangs();
    void whatAKilledPanelLeftGoesAfterADay();
    void secondStartWhileRunningDoesNothing();
    void oneTransferAfterAnother();

private:
    QString m_plc;
};

static QByteArray longProgram()
{
    QByteArray program;
    for (int i = 0; program.size() < 10 * PlcTransfer::pieceBytes; ++i)
        program += "G01 X" + QByteArray::number(i) + "\n";
    return program;
}

void TestPlcTransfer::init()
{
    FilarixTest::init();
    m_plc = home() + "/plc";
    QVERIFY(QDir().mkpath(m_plc));
    programDir();
}

void TestPlcTransfer::cleanup()
{
    FileCalls::reset();
    FilarixTest::cleanup();
}

static void setAge(const QString &path, qint64 seconds)
{
    const time_t then = ::time(nullptr) - time_t(seconds);
    const struct timespec times[2] = {{then, 0}, {then, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
}

/// Lets the first file that is forced to the disk in a folder hang until it is let go.
class Hanging
{
public:
    explicit Hanging(const QString &folder)
        : m_folder(QFile::encodeName(folder)), m_gate(std::make_shared<QSemaphore>())
    {}
    ~Hanging() { release(); }

    bool holds(const QByteArray &path)
    {
        if (!path.startsWith(m_folder + '/') || m_hasHung.exchange(true))
            return false;
        const std::shared_ptr<QSemaphore> gate = m_gate;
        gate->acquire();
        return true;
    }
    bool isHanging() const { return m_hasHung && !m_isReleased; }
    void release()
    {
        m_isReleased = true;
        m_gate->release();
    }

private:
    const QByteArray m_folder;
    const std::shared_ptr<QSemaphore> m_gate;
    std::atomic<bool> m_hasHung{false};
    bool m_isReleased = false;
};

void TestPlcTransfer::programArrivesByteForByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray allBytes;
    for (int i = 0; i < 256; ++i)
        allBytes += char(i);
    const QByteArray piece(PlcTransfer::pieceBytes, 'X');
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("one byte") << QByteArray("G");
    QTest::newRow("every byte there is") << allBytes;
    QTest::newRow("carriage returns") << QByteArray("G01\r\nG02\r\n");
    QTest::newRow("one under a piece") << piece.left(piece.size() - 1);
    QTest::newRow("a piece") << piece;
    QTest::newRow("one over a piece") << piece + 'Y';
    QTest::newRow("many pieces") << longProgram();
}

void TestPlcTransfer::programArrivesByteForByte()
{
    QFETCH(QByteArray, bytes);
    writeFile(programDir() + "/coil.cnc", bytes);
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc");
    QVERIFY(transfer.isRunning());
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(!transfer.isRunning());
    QCOMPARE(failures.size(), 0);
    QCOMPARE(ends.at(0).at(0).toString(), m_plc + "/coil.cnc");
    QCOMPARE(ends.at(0).at(1).toLongLong(), qint64(bytes.size()));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), bytes);
    // Nothing half-made lies beside it.
    QCOMPARE(QDir(m_plc).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestPlcTransfer::progressRisesTo100()
{
    writeFile(programDir() + "/coil.cnc", longProgram());
    PlcTransfer transfer(m_plc);
    QSignalSpy steps(&transfer, SIGNAL(progress(int)));
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(ends.size(), 1);
    int last = 0;
    for (int i = 0; i < steps.size(); ++i) {
        QVERIFY(steps.at(i).at(0).toInt() >= last);
        last = steps.at(i).at(0).toInt();
    }
    QCOMPARE(last, 100);
    QVERIFY(steps.size() >= 20);
}

void TestPlcTransfer::eventLoopRunsBetweenThePieces()
{
    writeFile(programDir() + "/coil.cnc", longProgram());
    PlcTransfer transfer(m_plc);
    int turns = 0;
    QTimer other;
    const SignalHook hook(&other, SIGNAL(timeout()), [&] { ++turns; });
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    other.start(0);
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY2(turns >= 20, qPrintable(QString::number(turns)));
}

void TestPlcTransfer::earlierProgramOfTheNameIsReplaced()
{
    writeFile(m_plc + "/coil.cnc", longProgram());
    writeFile(programDir() + "/coil.cnc", "G01\n");
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("G01\n"));
}

void TestPlcTransfer::failures_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("isPlcAtFault");
    QTest::newRow("never saved") << ""
                                 << "plc"
                                 << "Save it" << false;
    QTest::newRow("gone") << "cnc/gone.cnc"
                          << "plc"
                          << "gone.cnc" << false;
    QTest::newRow("a directory") << "cnc"
                                 << "plc"
                                 << "not a program" << false;
    QTest::newRow("no PLC") << "cnc/coil.cnc"
                            << "nowhere"
                            << "nowhere" << true;
    QTest::newRow("PLC is a file") << "cnc/coil.cnc"
                                   << "cnc/coil.cnc"
                                   << "does not answer" << true;
}

void TestPlcTransfer::failures()
{
    QFETCH(QString, program);
    QFETCH(QString, folder);
    QFETCH(QString, word);
    writeFile(programDir() + "/coil.cnc", "G01\n");
    PlcTransfer transfer(home() + '/' + folder);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(program.isEmpty() ? QString() : home() + '/' + program);
    // Never before start() has returned: a caller brackets it.
    QCOMPARE(failures.size(), 0);
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(!transfer.isRunning());
    const QString reason = failures.at(0).at(0).toString();
    QVERIFY2(reason.contains(word), qPrintable(reason));
    QTEST(transfer.isPlcAtFault(), "isPlcAtFault");
    // One for each start, and none that comes late.
    transfer.start(program.isEmpty() ? QString() : home() + '/' + program);
    QTRY_VERIFY(!transfer.isRunning());
    QCOMPARE(failures.size(), 2);
    QCOMPARE(ends.size(), 0);
    QVERIFY(QDir(m_plc).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestPlcTransfer::folderThatTakesNothing()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    // All of the machine is read-only here.
    PlcTransfer transfer("/usr/bin");
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(failures.at(0).at(0).toString().contains("does not take"));
    QVERIFY(transfer.isPlcAtFault());
}

void TestPlcTransfer::folderThatIsTheProgramDirectory()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    PlcTransfer transfer(programDir() + "/../cnc/.");
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QCOMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G01\n"));
}

void TestPlcTransfer::programTooLarge()
{
    QFile file(programDir() + "/coil.cnc");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(PlcTransfer::largestProgram + 1));
    PlcTransfer transfer(m_plc);
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(failures.at(0).at(0).toString().contains("64 MB"));
    QVERIFY(!transfer.isPlcAtFault());
}

void TestPlcTransfer::copyIsSentUnderTheNameOfTheProgram()
{
    writeFile(programDir() + "/coil.cnc", "another\n");
    writeFile(home() + "/hmi/copy", longProgram());
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    transfer.start(programDir() + "/coil.cnc", home() + "/hmi/copy");
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(ends.at(0).at(0).toString(), m_plc + "/coil.cnc");
    QCOMPARE(readFile(m_plc + "/coil.cnc"), longProgram());
}

void TestPlcTransfer::arrivalThatDiffersIsTakenOut_data()
{
    QTest::addColumn<int>("keep");
    QTest::addColumn<QByteArray>("tail");
    const int size = longProgram().size();
    QTest::newRow("another last byte") << size - 1 << QByteArray("?");
    QTest::newRow("a byte short") << size - 1 << QByteArray();
    QTest::newRow("a byte over") << size << QByteArray("?");
}

void TestPlcTransfer::arrivalThatDiffersIsTakenOut()
{
    QFETCH(int, keep);
    QFETCH(QByteArray, tail);
    const QByteArray bytes = longProgram();
    writeFile(programDir() + "/coil.cnc", bytes);
    PlcTransfer transfer(m_plc);
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    const QString target = m_plc + "/coil.cnc";
    bool spoilt = false;
    const SignalHook hook(&transfer, SIGNAL(progress(int)), [&](int) {
        if (spoilt || !QFileInfo(target).exists())
            return;
        QFile file(target);
        spoilt = file.open(QIODevice::ReadWrite) && file.resize(keep) && file.seek(keep)
                 && file.write(tail) == tail.size();
    });
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(spoilt);
    QVERIFY(failures.at(0).at(0).toString().contains("differs"));
    QVERIFY(transfer.isPlcAtFault());
    QVERIFY(!QFileInfo(target).exists());
}

void TestPlcTransfer::stopKeepsWhatThePlcHad()
{
    writeFile(m_plc + "/coil.cnc", "before\n");
    writeFile(programDir() + "/coil.cnc", longProgram());
    PlcTransfer transfer(m_plc);
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    QSignalSpy stops(&transfer, SIGNAL(stopped(QString)));
    const SignalHook hook(&transfer, SIGNAL(progress(int)), [&](int percent) {
        if (percent >= 20 && percent < 50)
            transfer.stop();
    });
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(stops.size(), 1);
    QCOMPARE(failures.size(), 0);
    QVERIFY(!transfer.isRunning());
    QVERIFY(stops.at(0).at(0).toString().contains("keeps what it had"));
    QVERIFY(!transfer.isUncompared());
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("before\n"));
    // What was sent by then goes in the thread.
    QTRY_COMPARE(QDir(m_plc).entryList(QDir::Files | QDir::Hidden).size(), 1);

    // Nothing of it comes late.
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    writeFile(programDir() + "/short.cnc", "G01\n");
    transfer.start(programDir() + "/short.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(stops.size(), 1);
    QCOMPARE(failures.size(), 0);
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("before\n"));
}

void TestPlcTransfer::stopAfterTheArrivalTellsThatNothingWasCompared()
{
    writeFile(m_plc + "/coil.cnc", "before\n");
    writeFile(programDir() + "/coil.cnc", longProgram());
    PlcTransfer transfer(m_plc);
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    QSignalSpy stops(&transfer, SIGNAL(stopped(QString)));
    const SignalHook hook(&transfer, SIGNAL(progress(int)), [&](int percent) {
        if (percent >= 60)
            transfer.stop();
    });
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(stops.size(), 1);
    QCOMPARE(failures.size(), 0);
    QVERIFY(stops.at(0).at(0).toString().contains("compared"));
    QVERIFY(transfer.isUncompared());
    QCOMPARE(readFile(m_plc + "/coil.cnc"), longProgram());
}

void TestPlcTransfer::stalledTransferFails()
{
    writeFile(programDir() + "/coil.cnc", longProgram());
    PlcTransfer transfer(m_plc);
    transfer.setStallTime(200);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    // A folder that hangs when what arrived is opened: nobody writes into the pipe.
    const QString target = m_plc + "/coil.cnc";
    const QByteArray pipe = QFile::encodeName(target);
    bool hangs = false;
    const SignalHook hook(&transfer, SIGNAL(progress(int)), [&](int) {
        if (!hangs && QFileInfo(target).isFile())
            hangs = QFile::remove(target) && ::mkfifo(pipe.constData(), 0600) == 0;
    });
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(hangs);
    QVERIFY(!transfer.isRunning());
    QVERIFY(failures.at(0).at(0).toString().contains("Check the PLC"));
    QVERIFY(transfer.isPlcAtFault());

    // The next one is not held up by the one that still hangs.
    writeFile(programDir() + "/next.cnc", "G01\n");
    transfer.start(programDir() + "/next.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(failures.size(), 1);

    // What hangs comes back, and nobody hears of it.
    const int writer = ::open(pipe.constData(), O_WRONLY | O_NONBLOCK);
    QVERIFY(writer >= 0);
    ::close(writer);
    transfer.start(programDir() + "/next.cnc");
    QTRY_COMPARE(ends.size(), 2);
    QCOMPARE(failures.size(), 1);
}

void TestPlcTransfer::arrivalOfAnotherIsNotTakenOut()
{
    writeFile(programDir() + "/coil.cnc", longProgram());
    PlcTransfer transfer(m_plc);
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    const QString target = m_plc + "/coil.cnc";
    bool isReplaced = false;
    const SignalHook hook(&transfer, SIGNAL(progress(int)), [&](int) {
        if (isReplaced || !QFileInfo(target).exists())
            return;
        writeFile(m_plc + "/theirs", "of another panel\n");
        isReplaced = ::rename(QFile::encodeName(m_plc + "/theirs").constData(),
                              QFile::encodeName(target).constData())
                     == 0;
    });
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(isReplaced);
    QVERIFY2(failures.at(0).at(0).toString().contains("Do not run it"),
             qPrintable(failures.at(0).at(0).toString()));
    QCOMPARE(readFile(target), QByteArray("of another panel\n"));
}

void TestPlcTransfer::copyThatChangedIsNotSent()
{
    const QByteArray shown = longProgram();
    const QByteArray hash = Sha256::hash(shown);
    writeFile(m_plc + "/coil.cnc", "before\n");
    writeFile(programDir() + "/coil.cnc", shown);
    writeFile(home() + "/hmi/copy", QByteArray(shown).replace(shown.size() - 1, 1, "?"));
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc", home() + "/hmi/copy", hash);
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY2(failures.at(0).at(0).toString().contains("has changed since it was shown"),
             qPrintable(failures.at(0).at(0).toString()));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("before\n"));
    QCOMPARE(QDir(m_plc).entryList(QDir::Files | QDir::Hidden).size(), 1);

    writeFile(home() + "/hmi/copy", shown);
    transfer.start(programDir() + "/coil.cnc", home() + "/hmi/copy", hash);
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(readFile(m_plc + "/coil.cnc"), shown);
}

void TestPlcTransfer::stalledSyncRenamesNothing()
{
    writeFile(m_plc + "/coil.cnc", "before\n");
    writeFile(programDir() + "/coil.cnc", "the old one\n");
    Hanging hanging(m_plc);
    FileCalls::beforeSync = [&](const QByteArray &path) { hanging.holds(path); };
    PlcTransfer transfer(m_plc);
    transfer.setStallTime(200);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(hanging.isHanging());
    QVERIFY(failures.at(0).at(0).toString().contains("during the download"));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("before\n"));

    transfer.setStallTime(FileTaskRunner::stallMs);
    writeFile(programDir() + "/coil.cnc", "the new one\n");
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("the new one\n"));

    // The first one's bytes reach the disk after all: it takes away what it had made, no more.
    hanging.release();
    QTRY_COMPARE(QDir(m_plc).entryList(QDir::Files | QDir::Hidden), QStringList("coil.cnc"));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("the new one\n"));
    QCOMPARE(failures.size(), 1);
}

void TestPlcTransfer::renameThatHangsIsToldAsNotKnown()
{
    writeFile(m_plc + "/coil.cnc", "before\n");
    writeFile(programDir() + "/coil.cnc", "the old one\n");
    Hanging hanging(m_plc);
    FileCalls::beforeRename = [&](const QByteArray &from, const QByteArray &) {
        hanging.holds(from);
        return 0;
    };
    PlcTransfer transfer(m_plc);
    transfer.setStallTime(200);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY2(failures.at(0).at(0).toString().contains("is not known"),
             qPrintable(failures.at(0).at(0).toString()));

    // What is compared now could be covered a moment later: nothing is sent.
    writeFile(programDir() + "/coil.cnc", "the new one\n");
    transfer.start(programDir() + "/coil.cnc");
    QCOMPARE(failures.size(), 1);
    QTRY_COMPARE(failures.size(), 2);
    QVERIFY(failures.at(1).at(0).toString().contains("has not ended yet"));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("before\n"));

    hanging.release();
    QTRY_COMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("the old one\n"));
    transfer.setStallTime(FileTaskRunner::stallMs);
    // It has its name a moment before the thread says so.
    const auto isSentInTheEnd = [&] {
        transfer.start(programDir() + "/coil.cnc");
        return ends.size() > 0;
    };
    QVERIFY2(TestCompat::waitFor(isSentInTheEnd), qPrintable(failures.last().at(0).toString()));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("the new one\n"));
}

void TestPlcTransfer::destructionLetsNothingBeRenamed()
{
    writeFile(m_plc + "/coil.cnc", "before\n");
    writeFile(programDir() + "/coil.cnc", "the new one\n");
    Hanging hanging(m_plc);
    FileCalls::beforeSync = [&](const QByteArray &path) { hanging.holds(path); };
    {
        PlcTransfer transfer(m_plc);
        transfer.start(programDir() + "/coil.cnc");
        QTRY_VERIFY(hanging.isHanging());
    }
    hanging.release();
    QTRY_COMPARE(QDir(m_plc).entryList(QDir::Files | QDir::Hidden), QStringList("coil.cnc"));
    QCOMPARE(readFile(m_plc + "/coil.cnc"), QByteArray("before\n"));
}

void TestPlcTransfer::nobodyWaitsForAFolderThatHangs()
{
    writeFile(programDir() + "/coil.cnc", longProgram());
    Hanging hanging(m_plc);
    FileCalls::beforeSync = [&](const QByteArray &path) { hanging.holds(path); };
    QScopedPointer<PlcTransfer> transfer(new PlcTransfer(m_plc));
    transfer->start(programDir() + "/coil.cnc");
    QTRY_VERIFY(hanging.isHanging());
    QElapsedTimer timer;
    timer.start();
    transfer->stop();
    transfer->start(programDir() + "/coil.cnc");
    PlcTransfer other(m_plc);
    transfer.reset();
    QVERIFY2(timer.elapsed() < patience(500), qPrintable(QString::number(timer.elapsed())));
    hanging.release();
    QTRY_VERIFY(QDir(m_plc).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestPlcTransfer::whatAKilledPanelLeftGoesAfterADay()
{
    const QStringList kept{".filarix-b.cnc.abcdef012345", ".filarix-other", ".hidden.abcdef012345"};
    for (const QString &name : kept)
        writeFile(m_plc + '/' + name, "half");
    writeFile(m_plc + "/.filarix-a.cnc.abcdef012345", "half");
    setAge(m_plc + "/.filarix-a.cnc.abcdef012345", 25 * 3600);
    setAge(m_plc + "/.filarix-b.cnc.abcdef012345", 23 * 3600);
    setAge(m_plc + "/.filarix-other", 25 * 3600);
    setAge(m_plc + "/.hidden.abcdef012345", 25 * 3600);
    writeFile(programDir() + "/coil.cnc", "G01\n");
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    transfer.start(programDir() + "/coil.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(QDir(m_plc).entryList(QDir::Files | QDir::Hidden, QDir::Name), QStringList(kept)
                                                                                << "coil.cnc");
}

void TestPlcTransfer::secondStartWhileRunningDoesNothing()
{
    writeFile(programDir() + "/a.cnc", longProgram());
    writeFile(programDir() + "/b.cnc", "b\n");
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    transfer.start(programDir() + "/a.cnc");
    transfer.start(programDir() + "/b.cnc");
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(!transfer.isRunning());
    transfer.start(programDir() + "/a.cnc");
    QTRY_COMPARE(ends.size(), 2);
    QVERIFY(!QFileInfo(m_plc + "/b.cnc").exists());
}

void TestPlcTransfer::oneTransferAfterAnother()
{
    writeFile(programDir() + "/a.cnc", longProgram());
    writeFile(programDir() + "/b.cnc", "b\n");
    PlcTransfer transfer(m_plc);
    QSignalSpy ends(&transfer, SIGNAL(finished(QString, qint64)));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/a.cnc");
    QTRY_COMPARE(ends.size(), 1);
    transfer.start(QString());
    QTRY_COMPARE(failures.size(), 1);
    transfer.start(programDir() + "/b.cnc");
    QTRY_COMPARE(ends.size(), 2);
    QCOMPARE(readFile(m_plc + "/a.cnc"), longProgram());
    QCOMPARE(readFile(m_plc + "/b.cnc"), QByteArray("b\n"));
}

FILARIX_TEST_MAIN(TestPlcTransfer)
#include "tst_plctransfer.moc"
