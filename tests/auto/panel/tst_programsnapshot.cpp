// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programsnapshot.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

#include <fcntl.h>
#include <sys/stat.h>
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
    void stopFails();
    void storageThatHangsFails();
    void copyGoes();
    void copyOfAnotherRunGoes();

private:
    QString m_folder;
    QString m_path;
};

static QByteArray longProgram()
{
    return QByteArray("G01 X1.5 Y-2\n").repeated(4 * ProgramSnapshot::kPiece / 13);
}

void TestProgramSnapshot::init()
{
    FilarixTest::init();
    qRegisterMetaType<ProgramSnapshot::Verdict>("ProgramSnapshot::Verdict");
    m_folder = home() + "/hmi/outgoing";
    m_path = programDir() + "/coil.cnc";
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
    QCOMPARE(snapshot.facts().hash, QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
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
    connect(&snapshot, &ProgramSnapshot::progress, [&](int percent) {
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
    connect(&snapshot, &ProgramSnapshot::progress,
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

void TestProgramSnapshot::stopFails()
{
    writeFile(m_path, longProgram());
    ProgramSnapshot snapshot(m_folder);
    QSignalSpy taken(&snapshot, SIGNAL(taken()));
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    connect(&snapshot, &ProgramSnapshot::progress, &snapshot, &ProgramSnapshot::stop);
    snapshot.take(m_path);
    QTRY_COMPARE(failures.size(), 1);
    QCOMPARE(taken.size(), 0);
    QVERIFY(failures.at(0).at(0).toString().contains("stopped"));
}

void TestProgramSnapshot::storageThatHangsFails()
{
    // The copy's place hangs when it is opened: nobody reads from the pipe.
    writeFile(m_path, "G01\n");
    ProgramSnapshot snapshot(m_folder);
    snapshot.setStallTime(100);
    QVERIFY(QDir().mkpath(m_folder));
    const QByteArray pipe = QFile::encodeName(snapshot.copyPath());
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QSignalSpy failures(&snapshot, SIGNAL(failed(QString)));
    snapshot.take(m_path);
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(!snapshot.isRunning());
    QVERIFY(failures.at(0).at(0).toString().contains("storage stopped answering"));
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(reader >= 0);
    ::close(reader);
}

void TestProgramSnapshot::copyGoes()
{
    writeFile(m_path, "G01\n");
    {
        ProgramSnapshot snapshot(m_folder);
        QSignalSpy taken(&snapshot, SIGNAL(taken()));
        snapshot.take(m_path);
        QTRY_COMPARE(taken.size(), 1);
        snapshot.drop();
        QVERIFY(QDir(m_folder).entryList(QDir::Files | QDir::Hidden).isEmpty());
        snapshot.take(m_path);
        QTRY_COMPARE(taken.size(), 2);
    }
    QVERIFY(QDir(m_folder).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestProgramSnapshot::copyOfAnotherRunGoes()
{
    writeFile(m_folder + "/program", "of a run that was killed\n");
    ProgramSnapshot snapshot(m_folder);
    QVERIFY(QDir(m_folder).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

FILARIX_TEST_MAIN(TestProgramSnapshot)
#include "tst_programsnapshot.moc"
