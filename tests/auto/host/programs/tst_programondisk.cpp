// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programondisk.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class TestProgramOnDisk : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingProgram();
    void linesAreCountedAsTheEditorDoes_data();
    void linesAreCountedAsTheEditorDoes();
    void timeIsThatOfTheFile();
    void whatIsNoFileIsNotOpened_data();
    void whatIsNoFileIsNotOpened();
    void fileThatCannotBeReadHasNoLines();

private:
    static QString path() { return programDir() + "/coil.cnc"; }
};

void TestProgramOnDisk::missingProgram()
{
    ProgramOnDisk program(path());
    QVERIFY(!program.step());
    QCOMPARE(int(program.kind()), int(ProgramOnDisk::Missing));
    QCOMPARE(program.lines(), qint64(0));
    QVERIFY(!program.stamp().isValid());
}

void TestProgramOnDisk::linesAreCountedAsTheEditorDoes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("lines");
    QTest::newRow("empty") << QByteArray() << 1;
    QTest::newRow("no end") << QByteArray("G01") << 1;
    QTest::newRow("one end") << QByteArray("G01\n") << 2;
    QTest::newRow("more than a piece") << QByteArray("G01 X1\n").repeated(30000) << 30001;
}

void TestProgramOnDisk::linesAreCountedAsTheEditorDoes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, lines);
    writeFile(path(), bytes);
    ProgramOnDisk program(path());
    QVERIFY(!program.step());
    QCOMPARE(int(program.kind()), int(ProgramOnDisk::File));
    QCOMPARE(program.lines(), qint64(lines));
    QVERIFY(program.stamp() == FileStamp::of(path()));
}

void TestProgramOnDisk::timeIsThatOfTheFile()
{
    writeFile(path(), "G01\n");
    const struct timespec times[2] = {{1772627460, 0}, {1772627460, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path()).constData(), times, 0), 0);
    ProgramOnDisk program(path());
    program.step();
    QCOMPARE(program.written().toUTC().toString("yyyy-MM-dd HH:mm"), QString("2026-03-04 12:31"));
}

void TestProgramOnDisk::whatIsNoFileIsNotOpened_data()
{
    QTest::addColumn<QString>("what");
    const char *kinds[] = {"folder", "pipe", "link", "link to nothing"};
    for (const char *kind : kinds)
        QTest::newRow(kind) << QString(kind);
}

void TestProgramOnDisk::whatIsNoFileIsNotOpened()
{
    QFETCH(QString, what);
    const QByteArray name = QFile::encodeName(path());
    writeFile(home() + "/other", "G01\n");
    if (what == "folder")
        QVERIFY(QDir().mkdir(path()));
    else if (what == "pipe")
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    else
        QCOMPARE(::symlink(what == "link" ? "../other" : "nowhere", name.constData()), 0);
    ProgramOnDisk program(path());
    QVERIFY(!program.step());
    QCOMPARE(int(program.kind()), int(ProgramOnDisk::NoFile));
    QCOMPARE(program.lines(), qint64(0));
}

void TestProgramOnDisk::fileThatCannotBeReadHasNoLines()
{
    writeFile(path(), "G01\n");
    QCOMPARE(::chmod(QFile::encodeName(path()).constData(), 0), 0);
    ProgramOnDisk program(path());
    program.step();
    QCOMPARE(int(program.kind()), int(ProgramOnDisk::File));
    QCOMPARE(program.lines(), qint64(0));
}

FILARIX_TEST_MAIN(TestProgramOnDisk)
#include "tst_programondisk.moc"
