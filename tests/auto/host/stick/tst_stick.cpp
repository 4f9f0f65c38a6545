// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "stick/stick.h"

#include <QDir>
#include <QFileInfo>

class TestStick : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pluggedFolderIsSeenAtTheMountPoint();
    void pulledStickLeavesNothingBehind();
    void mountPointComesBackAtTheEnd();
    void mountPointThatWasMissingStaysSo();
    void mountPointInUseIsLeftAlone();
    void folderThatTheManagerWouldNotKnowIsRefused();
    void linkOfSomebodyElseIsLeftAlone();
    void markerOfAnotherStickIsRespected();
    void markerIsNotWrittenThroughALink();
    void leftoverOfAKilledProgramIsTakenOver();
    void markerOfAKilledProgramIsReplaced();
    void markerOfARunningProgramIsRespected();
    void folderThatCannotBeMade();
    void ownStickOfThePanelIsOnlyWatched();
    void copyIsTheSameStick();

private:
    QString m_folder;
};

void TestStick::init()
{
    FilarixTest::init();
    m_folder = "/mnt/Storage.stick";
    writeFile(m_folder + "/coil.cnc", "G01\n");
    QDir().mkdir(Stick::mountPoint());
}

void TestStick::cleanup()
{
    emptyFolder(m_folder);
    QFile::remove(Stick::marker());
    if (QFileInfo(Stick::mountPoint()).isSymLink())
        QFile::remove(Stick::mountPoint());
    QDir().mkdir(Stick::mountPoint());
    emptyFolder(Stick::mountPoint());
    FilarixTest::cleanup();
}

void TestStick::pluggedFolderIsSeenAtTheMountPoint()
{
    Stick stick(m_folder);
    QVERIFY(!stick.isPresent());
    QString error;
    QVERIFY2(stick.plug(&error), qPrintable(error));
    QVERIFY(stick.isPresent());
    QCOMPARE(readFile("/mnt/Storage/coil.cnc"), QByteArray("G01\n"));
    QVERIFY(QFileInfo("/tmp/udiskattach").exists());
    QVERIFY(stick.plug(&error));
    writeFile("/mnt/Storage/new.cnc", "G02\n");
    QCOMPARE(readFile(m_folder + "/new.cnc"), QByteArray("G02\n"));
}

void TestStick::pulledStickLeavesNothingBehind()
{
    Stick stick(m_folder);
    QString error;
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(stick.plug(&error), qPrintable(error));
        stick.pull();
        QVERIFY(!stick.isPresent());
        QVERIFY(!QFileInfo("/tmp/udiskattach").exists());
        QVERIFY(!QFileInfo("/mnt/Storage").exists());
    }
    stick.pull();
    QCOMPARE(readFile(m_folder + "/coil.cnc"), QByteArray("G01\n"));
}

void TestStick::mountPointComesBackAtTheEnd()
{
    {
        Stick stick(m_folder);
        QString error;
        QVERIFY(stick.plug(&error));
    }
    const QFileInfo point("/mnt/Storage");
    QVERIFY(point.isDir() && !point.isSymLink());
    QVERIFY(!QFileInfo("/tmp/udiskattach").exists());
}

void TestStick::mountPointThatWasMissingStaysSo()
{
    QVERIFY(QDir().rmdir("/mnt/Storage"));
    {
        Stick stick(m_folder);
        QString error;
        QVERIFY(stick.plug(&error));
        QVERIFY(stick.isPresent());
    }
    QVERIFY(!QFileInfo("/mnt/Storage").exists());
}

void TestStick::mountPointInUseIsLeftAlone()
{
    writeFile("/mnt/Storage/real.cnc", "G03\n");
    Stick stick(m_folder);
    QString error;
    QVERIFY(!stick.plug(&error));
    QVERIFY2(error.contains("/mnt/Storage") && error.contains("stays out"), qPrintable(error));
    QCOMPARE(readFile("/mnt/Storage/real.cnc"), QByteArray("G03\n"));
    QVERIFY(!QFileInfo("/tmp/udiskattach").exists());
    stick.pull();
    QCOMPARE(readFile("/mnt/Storage/real.cnc"), QByteArray("G03\n"));
}

void TestStick::folderThatTheManagerWouldNotKnowIsRefused()
{
    Stick stick(home() + "/elsewhere");
    QString error;
    QVERIFY(!stick.plug(&error));
    QVERIFY2(error.contains("stays out"), qPrintable(error));
    QVERIFY(QFileInfo("/mnt/Storage").isDir());
    QVERIFY(!QFileInfo("/mnt/Storage").isSymLink());
    QVERIFY(!stick.isPresent());
}

void TestStick::linkOfSomebodyElseIsLeftAlone()
{
    QVERIFY(QDir().rmdir("/mnt/Storage"));
    QVERIFY(QFile::link(home(), "/mnt/Storage"));
    Stick stick(m_folder);
    QString error;
    QVERIFY(!stick.plug(&error));
    stick.pull();
    QCOMPARE(QFile::symLinkTarget("/mnt/Storage"), home());
}

void TestStick::markerOfAnotherStickIsRespected()
{
    writeFile("/tmp/udiskattach", "");
    Stick stick(m_folder);
    QString error;
    QVERIFY(!stick.plug(&error));
    QVERIFY(error.contains("/tmp/udiskattach"));
    stick.pull();
    QVERIFY(QFileInfo("/tmp/udiskattach").exists());
}

void TestStick::markerIsNotWrittenThroughALink()
{
    QVERIFY(QFile::link(home() + "/victim", "/tmp/udiskattach"));
    Stick stick(m_folder);
    QString error;
    QVERIFY(!stick.plug(&error));
    QVERIFY(!QFileInfo(home() + "/victim").exists());
    // What was half done is undone.
    QVERIFY(!QFileInfo("/mnt/Storage").isSymLink());
}

void TestStick::leftoverOfAKilledProgramIsTakenOver()
{
    QVERIFY(QDir().rmdir("/mnt/Storage"));
    QVERIFY(QFile::link(m_folder, "/mnt/Storage"));
    writeFile("/tmp/udiskattach", "");
    Stick stick(m_folder);
    QString error;
    QVERIFY(stick.plug(&error));
    stick.pull();
    QVERIFY(!QFileInfo("/mnt/Storage").exists());
    QVERIFY(!QFileInfo("/tmp/udiskattach").exists());
}

void TestStick::markerOfAKilledProgramIsReplaced()
{
    // No process has this number: it is above what the system gives.
    writeFile("/tmp/udiskattach", "filarix-panel 2000000000");
    Stick stick(m_folder);
    QString error;
    QVERIFY2(stick.plug(&error), qPrintable(error));
    QCOMPARE(readFile("/tmp/udiskattach"),
             "filarix-panel " + QByteArray::number(QCoreApplication::applicationPid()));
}

void TestStick::markerOfARunningProgramIsRespected()
{
    writeFile("/tmp/udiskattach",
              "filarix-panel " + QByteArray::number(QCoreApplication::applicationPid()));
    Stick stick(m_folder);
    QString error;
    QVERIFY(!stick.plug(&error));
    QVERIFY(QFileInfo("/tmp/udiskattach").exists());
}

void TestStick::folderThatCannotBeMade()
{
    Stick stick(m_folder + "/coil.cnc/below");
    QString error;
    QVERIFY(!stick.plug(&error));
    QVERIFY(error.contains("below"));
}

void TestStick::ownStickOfThePanelIsOnlyWatched()
{
    Stick stick;
    QVERIFY(!stick.isSimulated());
    QVERIFY(!stick.isPresent());
    QString error;
    QVERIFY(!stick.plug(&error));
    // A folder that an unmount has left is no stick, whatever the marker says: what is copied into
    // it lands on the panel's own disk.
    writeFile("/tmp/udiskattach", "");
    QVERIFY(!stick.isPresent());
    // A place to which the system mounts sticks, say, with the mount point as a link to it.
    QVERIFY(QDir().rmdir("/mnt/Storage"));
    QVERIFY(QFile::link(home(), "/mnt/Storage"));
    QVERIFY(!stick.isPresent());
    QVERIFY(QFile::remove("/mnt/Storage"));
    QVERIFY(QFile::link("/proc", "/mnt/Storage"));
    QVERIFY(stick.isPresent());
    stick.pull();
    QVERIFY(stick.isPresent());
    QVERIFY(QFile::remove("/tmp/udiskattach"));
    QVERIFY(!stick.isPresent());
}

void TestStick::copyIsTheSameStick()
{
    {
        Stick stick(m_folder);
        {
            Stick copy = stick;
            QString error;
            QVERIFY2(copy.plug(&error), qPrintable(error));
        }
        QVERIFY(Stick::isPresent());
        stick.pull();
        QVERIFY(!Stick::isPresent());
        QString error;
        QVERIFY(stick.plug(&error));
    }
    QVERIFY(!Stick::isPresent());
    QVERIFY(!QFileInfo("/mnt/Storage").isSymLink());
}

FILARIX_TEST_MAIN(TestStick)
#include "tst_stick.moc"
