// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "signalhook.h"
#include "stick/devicewatch.h"
#include "stick/stick.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSemaphore>
#include <QSharedPointer>
#include <QSignalSpy>

#include <atomic>

#include <sys/vfs.h>

class TestDeviceWatch : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void looksAtTheFolders();
    void storageOfAMissingFolderIsUnknown();
    void changesAreTold();
    void looksAtOnceWhenAsked();
    void deviceThatKeepsItWaitingStopsNothing();
};

void TestDeviceWatch::cleanup()
{
    QFile::remove(Stick::marker());
    FilarixTest::cleanup();
}

void TestDeviceWatch::looksAtTheFolders()
{
    const QString plc = home() + "/plc";
    DeviceState state = DeviceWatch::lookAt(plc, programDir());
    QVERIFY(state.isKnown);
    QVERIFY(!state.plcReachable);
    QVERIFY(!state.stickIn);
    struct statfs storage = {};
    QCOMPARE(::statfs(QFile::encodeName(programDir()).constData(), &storage), 0);
    const qint64 before = qint64(storage.f_bavail) * storage.f_bsize;
    QVERIFY(qAbs(state.freeBytes - before) < 64 * 1024 * 1024);

    QDir().mkpath(plc);
    QDir().mkpath(Stick::mountPoint());
    writeFile(Stick::marker(), "in");
    state = DeviceWatch::lookAt(plc, programDir());
    QVERIFY(state.plcReachable);
    // The folder alone is what an unmount leaves.
    QVERIFY(!state.stickIn);
    QVERIFY(QDir().rmdir(Stick::mountPoint()));
    QDir().mkpath(Stick::mountPoint() + ".stick");
    QVERIFY(QFile::link(Stick::mountPoint() + ".stick", Stick::mountPoint()));
    QVERIFY(DeviceWatch::lookAt(plc, programDir()).stickIn);
    QVERIFY(QFile::remove(Stick::marker()));
    QVERIFY(!DeviceWatch::lookAt(plc, programDir()).stickIn);
    QVERIFY(QFile::remove(Stick::mountPoint()));
    QDir().mkpath(Stick::mountPoint());

    QDir().rmdir(plc);
    writeFile(plc, "a file is no folder");
    QVERIFY(!DeviceWatch::lookAt(plc, programDir()).plcReachable);
}

void TestDeviceWatch::storageOfAMissingFolderIsUnknown()
{
    QCOMPARE(DeviceWatch::lookAt(home(), home() + "/nowhere").freeBytes, qint64(-1));
}

void TestDeviceWatch::changesAreTold()
{
    const QString plc = home() + "/plc";
    const QString programs = programDir();
    DeviceWatch watch([plc, programs] {
        DeviceState state = DeviceWatch::lookAt(plc, programs);
        state.freeBytes = 0; // others write to the disk meanwhile
        return state;
    });
    QVERIFY(!watch.state().isKnown);
    QSignalSpy changes(&watch, SIGNAL(changed(DeviceState)));
    QTRY_COMPARE(changes.size(), 1);
    QVERIFY(!watch.state().plcReachable);
    QDir().mkpath(plc);
    QTRY_COMPARE(changes.size(), 2);
    QVERIFY(watch.state().plcReachable);
    QVERIFY(changes.at(1).at(0).value<DeviceState>() == watch.state());
}

void TestDeviceWatch::looksAtOnceWhenAsked()
{
    QSharedPointer<std::atomic<int>> looks(new std::atomic<int>(0));
    DeviceWatch watch([looks] {
        ++*looks;
        return DeviceState();
    });
    QTRY_VERIFY(looks->load() >= 1);
    QElapsedTimer time;
    time.start();
    const int before = looks->load();
    for (int i = 1; i <= 20; ++i) {
        watch.lookNow();
        QTRY_VERIFY(looks->load() >= before + i);
    }
    // Seconds long if each had waited for its turn.
    QVERIFY(time.elapsed() < 10000);
}

// A folder on a network that is gone keeps whoever asks for it waiting.
void TestDeviceWatch::deviceThatKeepsItWaitingStopsNothing()
{
    QSharedPointer<QSemaphore> gate(new QSemaphore(1));
    QScopedPointer<DeviceWatch> watch(new DeviceWatch([gate] {
        gate->acquire();
        DeviceState state;
        state.isKnown = true;
        state.plcReachable = true;
        return state;
    }));
    QTRY_VERIFY(watch->state().plcReachable);

    QElapsedTimer sinceLast;
    sinceLast.start();
    qint64 longest = 0;
    QTimer pulse;
    const SignalHook hook(&pulse, SIGNAL(timeout()), [&] {
        longest = qMax(longest, sinceLast.restart());
        watch->lookNow();
    });
    pulse.start(5);
    // Nothing is claimed of devices that nobody could look at for seconds.
    QTRY_VERIFY_WITH_TIMEOUT(!watch->state().isKnown, 10000);
    pulse.stop();
    // A loop that had waited for the look would have stood for all of the time.
    QVERIFY2(longest < 2000, qPrintable(QString::number(longest)));

    // Nor does the end of the program wait.
    QElapsedTimer parting;
    parting.start();
    watch.reset();
    QVERIFY(parting.elapsed() < 4000);

    // And nothing is left behind once the device answers.
    const QWeakPointer<QSemaphore> heldByTheLook = gate;
    gate->release(1);
    gate.clear();
    QTRY_VERIFY(heldByTheLook.isNull());
}

FILARIX_TEST_MAIN(TestDeviceWatch)
#include "tst_devicewatch.moc"
