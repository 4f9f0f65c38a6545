// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "heldfile.h"
#include "stick/folderwatch.h"

#include <QDir>
#include <QScopedPointer>
#include <QSemaphore>
#include <QSignalSpy>

#include <atomic>

class TestFolderWatch : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void countsFilesBytesAndNames();
    void missingFolderIsKnownToBeMissing();
    void looksOnceMoreAfterALookThatIsUnderWay();
    void folderThatHangsIsOverdue();
    void endDoesNotWaitForAFolderThatHangs();
};

void TestFolderWatch::countsFilesBytesAndNames()
{
    const QString folder = home() + "/folder";
    writeFile(folder + "/a.cnc", "12345");
    writeFile(folder + "/b c.cnc", "123");
    QDir().mkpath(folder + "/below");
    const FolderState state = FolderWatch::lookAt(folder);
    QVERIFY(state.isKnown);
    QVERIFY(state.isThere);
    QCOMPARE(state.files, 2);
    QCOMPARE(state.bytes, qint64(8));
    QCOMPARE(state.unsafeNames, 1);
}

void TestFolderWatch::missingFolderIsKnownToBeMissing()
{
    const QString folder = home() + "/nowhere";
    FolderWatch watch([folder] { return FolderWatch::lookAt(folder); });
    QVERIFY(!watch.state().isKnown);
    QSignalSpy changed(&watch, SIGNAL(changed()));
    watch.look();
    QTRY_COMPARE(changed.size(), 1);
    QVERIFY(watch.state().isKnown);
    QVERIFY(!watch.state().isThere);
    QCOMPARE(watch.state().files, 0);
}

// What happened while a look was under way may have happened behind its back.
void TestFolderWatch::looksOnceMoreAfterALookThatIsUnderWay()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const std::shared_ptr<std::atomic<int>> looks = std::make_shared<std::atomic<int>>(0);
    FolderWatch watch([gate, looks] {
        gate->acquire();
        FolderState state;
        state.files = ++*looks;
        return state;
    });
    for (int i = 0; i < 5; ++i)
        watch.look();
    gate->release(5);
    QTRY_COMPARE(watch.state().files, 2);
    QCoreApplication::processEvents();
    QCOMPARE(looks->load(), 2);
    QCOMPARE(gate->available(), 3);
}

void TestFolderWatch::folderThatHangsIsOverdue()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    FolderWatch watch([gate] {
        gate->acquire();
        FolderState state;
        state.isKnown = true;
        return state;
    });
    watch.setPatience(100);
    LoopPulse pulse;
    watch.look();
    QTRY_VERIFY(watch.isOverdue());
    QVERIFY(!watch.state().isKnown);
    gate->release();
    QTRY_VERIFY(watch.state().isKnown);
    QVERIFY(!watch.isOverdue());
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
}

void TestFolderWatch::endDoesNotWaitForAFolderThatHangs()
{
    std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    QScopedPointer<FolderWatch> watch(new FolderWatch([gate] {
        gate->acquire();
        return FolderState();
    }));
    watch->look();
    QElapsedTimer time;
    time.start();
    watch.reset();
    QVERIFY(time.elapsed() < patience(900));
    gate->release();
    const std::weak_ptr<QSemaphore> held = gate;
    gate.reset();
    QTRY_VERIFY(held.expired());
}

FILARIX_TEST_MAIN(TestFolderWatch)
#include "tst_folderwatch.moc"
