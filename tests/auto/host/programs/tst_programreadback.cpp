// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programreadback.h"

#include <QDir>
#include <QFile>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

class TestProgramReadback : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void bytesOfTheTextAreStored_data();
    void bytesOfTheTextAreStored();
    void fullDiskHasItsReason();
    void unexplainedDifferenceHasNone();
    void missingFileHasItsReason();
    void probeLeavesNothingBehind();

private:
    static QString path() { return programDir() + "/coil.cnc"; }
};

void TestProgramReadback::bytesOfTheTextAreStored_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("lines") << "G01\nG02\n";
    QTest::newRow("letters of another alphabet") << QString::fromUtf8("; \xd0\x96\n");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("; \xf0\x9f\x94\xa7\n");
}

void TestProgramReadback::bytesOfTheTextAreStored()
{
    QFETCH(QString, text);
    writeFile(path(), text.toUtf8());
    ProgramReadback readback(path(), text);
    QVERIFY(!readback.step());
    QVERIFY(readback.isStored());
    QVERIFY(readback.isFaithful());
    QVERIFY(readback.reason().isEmpty());
}

void TestProgramReadback::fullDiskHasItsReason()
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old;
    ::getrlimit(RLIMIT_FSIZE, &old);
    const QString text = QString("G01 X1\n").repeated(5000);
    writeFile(path(), text.toUtf8().left(8192));
    const rlimit small = {8192, old.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    ProgramReadback readback(path(), text);
    readback.step();
    ::setrlimit(RLIMIT_FSIZE, &old);
    QVERIFY(!readback.isStored());
    QCOMPARE(readback.reason(), QString("File too large"));
}

void TestProgramReadback::unexplainedDifferenceHasNone()
{
    writeFile(path(), "something else");
    ProgramReadback readback(path(), "G01\n");
    readback.step();
    QVERIFY(!readback.isStored());
    QVERIFY(readback.reason().isEmpty());
    // Nor is it mended in silence.
    QCOMPARE(readFile(path()), QByteArray("something else"));
}

void TestProgramReadback::missingFileHasItsReason()
{
    programDir();
    ProgramReadback readback(path(), "G01\n");
    readback.step();
    QVERIFY(!readback.isStored());
    QCOMPARE(readback.reason(), QString("No such file or directory"));
}

void TestProgramReadback::probeLeavesNothingBehind()
{
    writeFile(path(), "something else");
    ProgramReadback(path(), "G01\n").step();
    QCOMPARE(QDir(programDir()).entryList(QDir::Files | QDir::Hidden), QStringList("coil.cnc"));
}

FILARIX_TEST_MAIN(TestProgramReadback)
#include "tst_programreadback.moc"
