// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programlisting.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>

class TestProgramListing : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAndDates();
    void whatIsGoneHasNone();
    void manyFilesTakeSeveralSteps();
    void noNames();
    void folderThatTakesNoFilesIsKnown_data();
    void folderThatTakesNoFilesIsKnown();
};

void TestProgramListing::sizesAndDates()
{
    const QString path = programDir() + "/two\nlines.cnc";
    writeFile(path, "G01\n");
    const struct timespec times[2] = {{1772627460, 0}, {1772627460, 5000000}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    ProgramListing listing(programDir(), QStringList("two\nlines.cnc"));
    QVERIFY(!listing.step());
    QCOMPARE(listing.entries().value("two\nlines.cnc").size, qint64(4));
    QCOMPARE(listing.entries().value("two\nlines.cnc").written, qint64(1772627460005));
}

void TestProgramListing::whatIsGoneHasNone()
{
    ProgramListing listing(programDir(), QStringList("gone.cnc"));
    QVERIFY(!listing.step());
    QCOMPARE(listing.entries().value("gone.cnc").written, qint64(0));
}

void TestProgramListing::manyFilesTakeSeveralSteps()
{
    QStringList names;
    for (int i = 0; i < 600; ++i)
        names.append(QString("part-%1.cnc").arg(i));
    writeFile(programDir() + "/part-599.cnc", "G01\n");
    ProgramListing listing(programDir(), names);
    QVERIFY(listing.step());
    QVERIFY(listing.step());
    QVERIFY(!listing.step());
    QCOMPARE(listing.entries().size(), 600);
    QVERIFY(listing.entries().value("part-599.cnc").written > 0);
}

void TestProgramListing::noNames()
{
    ProgramListing listing(programDir(), QStringList());
    QVERIFY(!listing.step());
    QVERIFY(listing.entries().isEmpty());
    QVERIFY(listing.isWritable());
}

void TestProgramListing::folderThatTakesNoFilesIsKnown_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("missing") << home() + "/nowhere";
    // Also for one who may write everywhere.
    QTest::newRow("read-only file system") << "/usr";
}

void TestProgramListing::folderThatTakesNoFilesIsKnown()
{
    QFETCH(QString, folder);
    ProgramListing listing(folder, QStringList());
    QVERIFY(!listing.step());
    QVERIFY(!listing.isWritable());
}

FILARIX_TEST_MAIN(TestProgramListing)
#include "tst_programlisting.moc"
