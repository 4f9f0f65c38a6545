// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programwrite.h"

#include <QDir>
#include <QFile>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

class TestProgramWrite : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void writeReplacesTheWholeOnly();
    void writeBesideAllCoversNothing();
    void abandonedWriteReplacesNothing();
    void doneWriteCannotBeAbandoned();
    void fullDiskLeavesTheOldProgram();
    void lettersTheEncodingLacksAreTold();

private:
    static QString path() { return programDir() + "/coil.cnc"; }
};

void TestProgramWrite::writeReplacesTheWholeOnly()
{
    writeFile(path(), "G01\n");
    ::chmod(QFile::encodeName(path()), 0640);
    ProgramWrite write(path(), "G02\nG03\n");
    QVERIFY(!write.step());
    QVERIFY(write.isStored());
    QCOMPARE(readFile(path()), QByteArray("G02\nG03\n"));
    struct stat now = {};
    ::stat(QFile::encodeName(path()), &now);
    QCOMPARE(int(now.st_mode & 0777), 0640);
}

void TestProgramWrite::writeBesideAllCoversNothing()
{
    writeFile(path(), "G01\n");
    ProgramWrite write(path(), "G02\n", ProgramWrite::BesideAll);
    write.step();
    QVERIFY(write.isStored());
    QCOMPARE(write.path(), programDir() + "/coil_2.cnc");
    QCOMPARE(readFile(path()), QByteArray("G01\n"));
    QCOMPARE(readFile(write.path()), QByteArray("G02\n"));
}

void TestProgramWrite::abandonedWriteReplacesNothing()
{
    writeFile(path(), "G01\n");
    ProgramWrite write(path(), "G02\n");
    QVERIFY(write.abandon());
    write.step();
    QVERIFY(!write.isStored());
    QCOMPARE(readFile(path()), QByteArray("G01\n"));
    QCOMPARE(QDir(programDir()).entryList(QDir::Files | QDir::Hidden), QStringList("coil.cnc"));
}

void TestProgramWrite::doneWriteCannotBeAbandoned()
{
    ProgramWrite write(path(), "G02\n");
    write.step();
    QVERIFY(write.isStored());
    QVERIFY(write.stamp() == FileStamp::of(path()));
    QVERIFY(!write.abandon());
}

void TestProgramWrite::fullDiskLeavesTheOldProgram()
{
    writeFile(path(), "G01\n");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old = {};
    ::getrlimit(RLIMIT_FSIZE, &old);
    const rlimit small = {100, old.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    ProgramWrite write(path(), QString("G02\n").repeated(1000));
    write.step();
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &old), 0);
    QVERIFY(!write.isStored());
    QCOMPARE(write.reason(), QString("File too large"));
    QCOMPARE(readFile(path()), QByteArray("G01\n"));
    QCOMPARE(QDir(programDir()).entryList(QDir::Files | QDir::Hidden), QStringList("coil.cnc"));
}

// Half a character is none in any encoding.
void TestProgramWrite::lettersTheEncodingLacksAreTold()
{
    ProgramWrite write(path(), QString(QChar(0xd83d)) + "\n");
    write.step();
    QVERIFY(write.isStored());
    QVERIFY(!write.isFaithful());
}

FILARIX_TEST_MAIN(TestProgramWrite)
#include "tst_programwrite.moc"
