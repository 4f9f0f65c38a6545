// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programdirectory.h"
#include "samples.h"
#include "waqp.h"

#include <QDir>
#include <QFileInfo>

class TestSamples : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void programsLieWhereTheLibraryLooks();
    void emptyDirectoryGetsAllSamples();
    void missingDirectoryIsMade();
    void directoryWithAProgramGetsNone();
    void nothingIsOverwritten();
    void emptyStickGetsPrograms();
    void lengths_data();
    void lengths();
    void linesAreWordsTheEditorKnows();
};

void TestSamples::programsLieWhereTheLibraryLooks()
{
    QCOMPARE(ProgramDirectory::path(), WAQP::getCncDir());
}

void TestSamples::missingDirectoryIsMade()
{
    const QString missing = programDir() + "/deeper/cnc";
    QCOMPARE(Samples::install(missing), Samples::names());
}

void TestSamples::emptyDirectoryGetsAllSamples()
{
    QCOMPARE(Samples::install(programDir()), Samples::names());
    for (const QString &name : Samples::names()) {
        const QFileInfo file(programDir() + '/' + name);
        QVERIFY(file.isFile());
        QVERIFY(file.isWritable());
    }
    QVERIFY(Samples::install(programDir()).isEmpty());
}

void TestSamples::directoryWithAProgramGetsNone()
{
    writeFile(programDir() + "/own.cnc", "G01\n");
    QVERIFY(Samples::install(programDir()).isEmpty());
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList("own.cnc"));
}

void TestSamples::nothingIsOverwritten()
{
    // A directory of a sample's name is no program, and in the way.
    QVERIFY(QDir(programDir()).mkdir(Samples::names().first()));
    writeFile(programDir() + "/notes.txt", "mine");
    const QStringList copied = Samples::install(programDir());
    QCOMPARE(copied, Samples::names().mid(1));
    QVERIFY(QFileInfo(programDir() + '/' + Samples::names().first()).isDir());
    QCOMPARE(readFile(programDir() + "/notes.txt"), QByteArray("mine"));
}

void TestSamples::emptyStickGetsPrograms()
{
    const QString stick = home() + "/stick";
    QVERIFY(Samples::fillStick(stick).isEmpty());
    QVERIFY(QDir().mkpath(stick));
    QCOMPARE(Samples::fillStick(stick).size(), 2);
    QVERIFY(Samples::fillStick(stick).isEmpty());
    QCOMPARE(QDir(stick).entryList(QDir::Files).size(), 2);
}

void TestSamples::lengths_data()
{
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("test-coil.cnc") << 10 << 60;
    QTest::newRow("stator-coil.cnc") << 580 << 640;
    QTest::newRow("endurance-run.cnc") << 20000 << 20000;
}

void TestSamples::lengths()
{
    QFETCH(int, least);
    QFETCH(int, most);
    const QByteArray program = readFile(QString(":/samples/") + QTest::currentDataTag());
    QVERIFY(program.endsWith('\n'));
    const int lines = program.count('\n');
    QVERIFY2(lines >= least && lines <= most, qPrintable(QString::number(lines)));
}

void TestSamples::linesAreWordsTheEditorKnows()
{
    const QRegExp word("[GM]\\d\\d|[XYZUVWKF]-?\\d+(\\.\\d+)?|[ST]\\d+");
    for (const QString &name : Samples::names()) {
        const QList<QByteArray> lines = readFile(":/samples/" + name).split('\n');
        for (const QByteArray &line : lines) {
            const QString code = QString::fromLatin1(line).section(';', 0, 0).trimmed();
            const QStringList words = code.split(' ', QString::SkipEmptyParts);
            for (const QString &one : words)
                QVERIFY2(word.exactMatch(one), line.constData());
        }
    }
}

FILARIX_TEST_MAIN(TestSamples)
#include "tst_samples.moc"
