// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programsummary.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class TestProgramSummary : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sizeAndDateComeFirst();
    void linesAreCountedAsTheEditorDoes_data();
    void linesAreCountedAsTheEditorDoes();
    void firstCommentThatSaysSomething_data();
    void firstCommentThatSaysSomething();
    void turnsAndWireOfACoil();
    void commentsAloneWindNothing();
    void missingFile();
    void whatIsNoFileIsNotRead_data();
    void whatIsNoFileIsNotRead();
    void fileThatCannotBeRead();
    void hugeFileIsReadInPart();
    void fileThatGoesWhileItIsRead();
    void fileThatIsCutWhileItIsRead();
    void fileThatGrowsIsReadAsItWas();

private:
    static QString path() { return programDir() + "/coil.cnc"; }
    static void readAll(ProgramSummary *summary)
    {
        while (summary->step())
            continue;
        summary->close();
    }
};

void TestProgramSummary::init()
{
    FilarixTest::init();
    emptyFolder(programDir());
}

void TestProgramSummary::sizeAndDateComeFirst()
{
    writeFile(path(), "; Stator\nG01\n");
    const struct timespec times[2] = {{1772627460, 0}, {1772627460, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path()).constData(), times, 0), 0);
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QCOMPARE(int(summary.kind()), int(ProgramSummary::Unknown));
    QVERIFY(summary.step());
    QCOMPARE(int(summary.kind()), int(ProgramSummary::Program));
    QCOMPARE(summary.size(), qint64(13));
    QCOMPARE(summary.written().toUTC().toString("yyyy-MM-dd HH:mm"), QString("2026-03-04 12:31"));
    QVERIFY(!summary.isWhole());
    QVERIFY(!summary.step());
    QVERIFY(summary.isWhole());
    QCOMPARE(summary.percent(), 100);
    QCOMPARE(summary.comment(), QString("Stator"));
}

void TestProgramSummary::linesAreCountedAsTheEditorDoes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("lines");
    QTest::newRow("empty") << QByteArray() << 1;
    QTest::newRow("no end") << QByteArray("G01") << 1;
    QTest::newRow("one end") << QByteArray("G01\n") << 2;
    QTest::newRow("null bytes") << QByteArray("G01\0\0\nX\0", 8) << 2;
    QTest::newRow("more than a piece") << QByteArray("G01 X1\n").repeated(60000) << 60001;
}

void TestProgramSummary::linesAreCountedAsTheEditorDoes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, lines);
    writeFile(path(), bytes);
    ProgramSummary summary(path(), MachineProfile::forSamples());
    readAll(&summary);
    QVERIFY(summary.isWhole());
    QCOMPARE(summary.lines(), qint64(lines));
}

void TestProgramSummary::firstCommentThatSaysSomething_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("comment");
    QTest::newRow("none") << QByteArray("G01 X1\nG02\n") << QString();
    QTest::newRow("semicolon") << QByteArray("G01 X1 ; to the start\n") << "to the start";
    QTest::newRow("brackets") << QByteArray("(Rotor 12)\nG01\n") << "Rotor 12";
    QTest::newRow("underlined") << QByteArray(";=====\n; * Coil 7 *\n;=====\n") << "Coil 7";
    QTest::newRow("line ends") << QByteArray("; Coil\r\nG01\r\n") << "Coil";
    QTest::newRow("null bytes") << QByteArray("; Co\0il\n", 8) << "Co il";
    QTest::newRow("other letters") << QByteArray("; Spule f\xc3\xbcr M\xc3\xbchle\n")
                                   << QString::fromUtf8("Spule f\xc3\xbcr M\xc3\xbchle");
    QTest::newRow("endless") << QByteArray("; ") + QByteArray(100000, 'a') << QString(120, 'a');
    QTest::newRow("far down") << QByteArray("G01\n").repeated(100) + "; late\n" << QString();
}

void TestProgramSummary::firstCommentThatSaysSomething()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, comment);
    writeFile(path(), bytes);
    ProgramSummary summary(path(), MachineProfile::forSamples());
    readAll(&summary);
    QCOMPARE(summary.comment(), comment);
}

void TestProgramSummary::turnsAndWireOfACoil()
{
    // Ten turns of 0.5 mm: the guide goes 5 mm while the spindle turns.
    writeFile(path(), "G90 G21\nS600 M3\nG01 X0 F1000\nG33 X5 K0.5\nM5\nM30\n");
    ProgramSummary summary(path(), MachineProfile::forSamples());
    readAll(&summary);
    QVERIFY2(qAbs(summary.turns() - 10) < 0.5, qPrintable(QString::number(summary.turns())));
    QVERIFY(summary.wireLength() > 0);
}

void TestProgramSummary::commentsAloneWindNothing()
{
    writeFile(path(), "; nothing\n");
    ProgramSummary summary(path(), MachineProfile::forSamples());
    readAll(&summary);
    QCOMPARE(summary.turns(), 0.0);
    QCOMPARE(summary.wireLength(), 0.0);
}

void TestProgramSummary::missingFile()
{
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QVERIFY(!summary.step());
    QCOMPARE(int(summary.kind()), int(ProgramSummary::Missing));
    QVERIFY(!summary.isWhole());
}

void TestProgramSummary::whatIsNoFileIsNotRead_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("pipe") << "pipe";
    QTest::newRow("folder") << "folder";
    QTest::newRow("link to a pipe") << "link";
}

void TestProgramSummary::whatIsNoFileIsNotRead()
{
    QFETCH(QString, what);
    const QByteArray file = QFile::encodeName(path());
    if (what == "folder") {
        QCOMPARE(::mkdir(file.constData(), 0700), 0);
    } else if (what == "pipe") {
        QCOMPARE(::mkfifo(file.constData(), 0600), 0);
    } else {
        QCOMPARE(::mkfifo((file + ".pipe").constData(), 0600), 0);
        QCOMPARE(::symlink("coil.cnc.pipe", file.constData()), 0);
    }
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QVERIFY(!summary.step());
    QCOMPARE(int(summary.kind()), int(ProgramSummary::NoProgram));
}

void TestProgramSummary::fileThatCannotBeRead()
{
    // For the superuser too, in whose eyes all rights are given.
    QCOMPARE(::symlink("coil.cnc", QFile::encodeName(path()).constData()), 0);
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QVERIFY(!summary.step());
    QCOMPARE(int(summary.kind()), int(ProgramSummary::Unreadable));
    QVERIFY(!summary.error().isEmpty());
}

void TestProgramSummary::hugeFileIsReadInPart()
{
    writeFile(path(), "; huge\nG01 X1\n");
    QFile file(path());
    // Full of nothing, it takes no room on the disk.
    QVERIFY(file.resize(qint64(2) * 1024 * 1024 * 1024));
    ProgramSummary summary(path(), MachineProfile::forSamples());
    readAll(&summary);
    QCOMPARE(int(summary.kind()), int(ProgramSummary::Program));
    QCOMPARE(summary.size(), qint64(2) * 1024 * 1024 * 1024);
    QVERIFY(!summary.isWhole());
    QCOMPARE(summary.comment(), QString("huge"));
    QCOMPARE(summary.percent(), 100);
    QCOMPARE(summary.turns(), 0.0);
}

void TestProgramSummary::fileThatGoesWhileItIsRead()
{
    writeFile(path(), QByteArray("G01 X1\n").repeated(100000));
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QVERIFY(summary.step());
    QVERIFY(summary.step());
    QVERIFY(QFile::remove(path()));
    readAll(&summary);
    QCOMPARE(summary.lines(), qint64(100001));
}

void TestProgramSummary::fileThatIsCutWhileItIsRead()
{
    writeFile(path(), QByteArray("G01 X1\n").repeated(100000));
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QVERIFY(summary.step());
    QVERIFY(summary.step());
    QVERIFY(QFile::resize(path(), 10));
    readAll(&summary);
    QVERIFY(summary.lines() < 100001);
}

void TestProgramSummary::fileThatGrowsIsReadAsItWas()
{
    writeFile(path(), "G01\n");
    ProgramSummary summary(path(), MachineProfile::forSamples());
    QVERIFY(summary.step());
    QFile file(path());
    QVERIFY(file.open(QIODevice::Append));
    file.write("G02\nG03\n");
    file.close();
    readAll(&summary);
    QCOMPARE(summary.lines(), qint64(2));
}

FILARIX_TEST_MAIN(TestProgramSummary)
#include "tst_programsummary.moc"
