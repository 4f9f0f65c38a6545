// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds ImportGuard, DeviceWatch and Stick: a stick that the system has unmounted.

#include "base/clickgate.h"
#include "filarixtest.h"
#include "importmanage.h"
#include "scriptquestioner.h"
#include "stick/devicewatch.h"
#include "stick/importguard.h"
#include "stick/stick.h"

#include <QDir>
#include <QDirModel>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>

/// Of Stick, DeviceWatch and ImportGuard: the state after an unmount. The marker is still there,
/// and so is the mount point, as a folder of the panel's own disk. The sandbox of this program has
/// no file system there.
class TestUnmountedStick : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itIsNoStick();
    void nothingIsCopiedIntoTheFolder();
};

void TestUnmountedStick::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    writeFile(programDir() + "/coil.cnc", "G01\n");
    QDir().mkpath(Stick::mountPoint());
    writeFile(Stick::marker(), "");
}

void TestUnmountedStick::cleanup()
{
    QFile::remove(Stick::marker());
    emptyFolder(Stick::mountPoint());
    FilarixTest::cleanup();
}

void TestUnmountedStick::itIsNoStick()
{
    QVERIFY(!Stick::isPresent());
    QVERIFY(!DeviceWatch::lookAt(home(), programDir()).stickIn);
}

void TestUnmountedStick::nothingIsCopiedIntoTheFolder()
{
    StrictMessages::expect("slot_checkUSB");
    ScriptQuestioner questioner;
    ImportGuard guard(programDir(), Stick::mountPoint(), &questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    QListView *programs = manager.findChildren<QListView *>().first();
    programs->setCurrentIndex(
        static_cast<QDirModel *>(programs->model())->index(programDir() + "/coil.cnc"));
    // The first button copies to the stick.
    QPushButton *toStick = manager.findChildren<QPushButton *>().first();
    QCOMPARE(toStick->text(), QString(">>"));
    QTest::mouseClick(toStick, Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains("No stick is in"));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QTRY_VERIFY(!toStick->findChild<ClickGate *>()->isHolding());
    QVERIFY(QDir(Stick::mountPoint()).entryList(QDir::Files).isEmpty());
}

FILARIX_TEST_MAIN(TestUnmountedStick)
#include "tst_unmountedstick.moc"
