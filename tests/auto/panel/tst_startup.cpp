// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "homelock.h"
#include "samples.h"
#include "startup.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

namespace {

StartUp::Folders folders()
{
    StartUp::Folders folders;
    folders.programs = FilarixTest::home() + "/cnc";
    folders.own = FilarixTest::home() + "/hmi";
    folders.plc = FilarixTest::home() + "/plc";
    folders.stick = FilarixTest::home() + "/stick";
    return folders;
}

} // namespace

class TestStartUp : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void foldersAreMadeAndFilled();
    void aPlcOfSomebodyElseIsNotMade();
    void aHomeIsForOnePanel();
    void anAnswerThatComesLateIsTold();
    void whereNoLockIsPossibleThePanelStarts();
    void withoutTheProgramsThatWereAskedForItDoesNot();
    void commandsRunInAnEmptyFolder();
};

void TestStartUp::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    QDir(home() + "/cnc").removeRecursively();
}

void TestStartUp::cleanup()
{
    QDir::setCurrent("/tmp");
    FilarixTest::cleanup();
}

void TestStartUp::foldersAreMadeAndFilled()
{
    StartUp startUp(folders());
    QCOMPARE(startUp.wait(patience(10000)), StartUp::Ready);
    for (const QString &name : Samples::names())
        QVERIFY(QFileInfo(folders().programs + '/' + name).isFile());
    QVERIFY(QFileInfo(folders().plc).isDir());
    QVERIFY(QFileInfo(folders().stick + "/pin-test.cnc").isFile());
}

void TestStartUp::aPlcOfSomebodyElseIsNotMade()
{
    StartUp::Folders asked = folders();
    asked.plc.clear();
    StartUp startUp(asked);
    QCOMPARE(startUp.wait(patience(10000)), StartUp::Ready);
    QVERIFY(!QFileInfo::exists(home() + "/plc"));
}

void TestStartUp::aHomeIsForOnePanel()
{
    {
        StartUp first(folders());
        QCOMPARE(first.wait(patience(10000)), StartUp::Ready);
        StartUp second(folders());
        QCOMPARE(second.wait(patience(10000)), StartUp::Occupied);
    }
    // The thread of the first may still let go.
    HomeLock lock(folders().own + "/panel.lock");
    QTRY_COMPARE(lock.take(), HomeLock::Own);
}

void TestStartUp::anAnswerThatComesLateIsTold()
{
    HomeLock other(folders().own + "/panel.lock");
    QCOMPARE(other.take(), HomeLock::Own);
    StartUp startUp(folders());
    QSignalSpy refused(&startUp, &StartUp::refused);
    if (startUp.wait(0) == StartUp::Waiting)
        QTRY_COMPARE(refused.size(), 1);
    QTRY_COMPARE(startUp.outcome(), StartUp::Occupied);
    // Nothing of the first panel's was touched.
    QCOMPARE(QDir(folders().programs).entryList(QDir::Files), QStringList());
}

// The sandbox has all but the home read-only.
void TestStartUp::whereNoLockIsPossibleThePanelStarts()
{
    StartUp::Folders asked = folders();
    asked.own = "/etc/filarix";
    StartUp startUp(asked);
    QSignalSpy told(&startUp, &StartUp::told);
    QCOMPARE(startUp.wait(patience(10000)), StartUp::Ready);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains("another panel"));
}

void TestStartUp::withoutTheProgramsThatWereAskedForItDoesNot()
{
    StartUp::Folders asked = folders();
    asked.programs = "/etc/filarix/cnc";
    {
        StartUp startUp(asked);
        QCOMPARE(startUp.wait(patience(10000)), StartUp::Ready);
    }
    asked.areProgramsAskedFor = true;
    StartUp startUp(asked);
    QCOMPARE(startUp.wait(patience(10000)), StartUp::NoProgramDir);
}

void TestStartUp::commandsRunInAnEmptyFolder()
{
    StartUp startUp(folders());
    QCOMPARE(startUp.wait(patience(10000)), StartUp::Ready);
    const QString here = QDir::currentPath();
    QVERIFY(here != "/tmp");
    QCOMPARE(QDir(here).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
    QVERIFY(!(QFileInfo(here).permissions() & QFileDevice::WriteOwner));
    QCOMPARE(qgetenv("PATH"), QByteArray("/usr/bin:/bin"));
}

FILARIX_TEST_MAIN(TestStartUp)
#include "tst_startup.moc"
