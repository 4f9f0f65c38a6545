// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/downloadsource.h"

#include <QDir>

class TestDownloadSource : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void programIsThereAndRead();
    void copyIsReadUnderTheProgramsName();
    void whatCannotBeReadIsSaid_data();
    void whatCannotBeReadIsSaid();
    void fileThatDoesNotOpenIsSaid();
    void stopKeepsWhatThePlcHad();
};

void TestDownloadSource::programIsThereAndRead()
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, "G01 X1\n");
    DownloadSource source(path);
    QCOMPARE(source.name(), QString("coil.cnc"));
    QCOMPARE(source.reasonMissing(), QString());
    QVERIFY(!source.file().isOpen());
    QVERIFY(source.file().open(QIODevice::ReadOnly));
    QCOMPARE(source.file().readAll(), QByteArray("G01 X1\n"));
}

// The program itself may be gone by then.
void TestDownloadSource::copyIsReadUnderTheProgramsName()
{
    const QString copy = home() + "/copies/program-1";
    writeFile(copy, "G01 as shown\n");
    DownloadSource source(programDir() + "/coil.cnc", copy);
    QCOMPARE(source.name(), QString("coil.cnc"));
    QCOMPARE(source.reasonMissing(), QString());
    QVERIFY(source.file().open(QIODevice::ReadOnly));
    QCOMPARE(source.file().readAll(), QByteArray("G01 as shown\n"));
}

void TestDownloadSource::whatCannotBeReadIsSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("never saved")
        << QString() << "There is no program to download yet. Save it under a name first.";
    QTest::newRow("gone")
        << "gone.cnc"
        << "The program gone.cnc is gone from the panel. Save it again, then download.";
    QTest::newRow("a folder") << "folder"
                              << "folder is not a program file.";
}

void TestDownloadSource::whatCannotBeReadIsSaid()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(QDir(programDir()).mkpath("folder"));
    const DownloadSource source(name.isEmpty() ? QString() : programDir() + '/' + name);
    QCOMPARE(source.reasonMissing(), reason);
}

void TestDownloadSource::fileThatDoesNotOpenIsSaid()
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, "G01 X1\n");
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    DownloadSource source(path);
    QCOMPARE(source.reasonMissing(), QString());
    QVERIFY(!source.file().open(QIODevice::ReadOnly));
    QCOMPARE(source.reasonUnread(),
             QString("The program coil.cnc cannot be read: Permission denied."));
}

void TestDownloadSource::stopKeepsWhatThePlcHad()
{
    QCOMPARE(DownloadSource::stoppedText(),
             QString("The download was stopped. The PLC keeps what it had."));
}

FILARIX_TEST_MAIN(TestDownloadSource)
#include "tst_downloadsource.moc"
