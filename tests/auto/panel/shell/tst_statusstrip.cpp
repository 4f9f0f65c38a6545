// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/plctransfer.h"
#include "shell/statusstrip.h"

#include <QDir>
#include <QHBoxLayout>
#include <QSignalSpy>
#include <QTime>

class TestStatusStrip : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsClaimedBeforeTheFirstLook();
    void plcComesAndGoes();
    void transferIsShown();
    void failedTransferStaysToBeSeen();
    void stoppedTransferIsNoFailureOfThePlc();
    void refusedTransferIsNoFailureOfThePlc();
    void failureIsOverWhenThePlcIsBack();
    void stickComesAndGoes();
    void storage_data();
    void storage();
    void clockTicks();
    void wordsFollowTheLanguage();
    void thingsAreNamedWhereThereIsRoom();
    void namesGiveWayToSomethingElse();
    void checkIsShownOnceItIsTold();
    void keysAskForTheCheck();
    void smallStripShowsFaultsForTheClock();
    void checkIsTold_data();
    void checkIsTold();
    void touchOnTheCheckAsksForIt();
    void wordsKeepToTheirPlace();

private:
    static DeviceState devices(bool plc, bool stick, qint64 freeBytes);
    static StatusItem *item(const StatusStrip &strip, const char *name);
};

DeviceState TestStatusStrip::devices(bool plc, bool stick, qint64 freeBytes)
{
    DeviceState state;
    state.isKnown = true;
    state.plcReachable = plc;
    state.stickIn = stick;
    state.freeBytes = freeBytes;
    return state;
}

StatusItem *TestStatusStrip::item(const StatusStrip &strip, const char *name)
{
    return strip.findChild<StatusItem *>(name);
}

void TestStatusStrip::nothingIsClaimedBeforeTheFirstLook()
{
    StatusStrip strip(false);
    for (const char *name : {"plcState", "stickState", "storageState"}) {
        QCOMPARE(item(strip, name)->text(), QString::fromUtf8("\u2013"));
        QVERIFY(!item(strip, name)->hasTone());
        QVERIFY(item(strip, name)->accessibleName().endsWith("not known"));
    }
    QCOMPARE(strip.plc(), StatusStrip::PlcUnknown);
    QCOMPARE(strip.storage(), StatusStrip::StorageUnknown);
}

void TestStatusStrip::plcComesAndGoes()
{
    StatusStrip strip(false);
    strip.showDevices(devices(true, false, 0));
    QCOMPARE(item(strip, "plcState")->text(), QString("ready"));
    QCOMPARE(item(strip, "plcState")->tone(), Message::Information);
    strip.showDevices(devices(false, false, 0));
    QCOMPARE(item(strip, "plcState")->text(), QString("away"));
    QCOMPARE(item(strip, "plcState")->tone(), Message::Alarm);
    QCOMPARE(strip.plc(), StatusStrip::PlcAway);
    strip.showDevices(DeviceState());
    QCOMPARE(strip.plc(), StatusStrip::PlcUnknown);
}

void TestStatusStrip::transferIsShown()
{
    const QString plc = home() + "/plc";
    QDir().mkpath(plc);
    writeFile(programDir() + "/a.cnc", QByteArray(5 * PlcTransfer::pieceBytes, 'x'));
    PlcTransfer transfer(plc);
    StatusStrip strip(false);
    strip.showDevices(devices(true, false, 0));
    strip.follow(&transfer);
    QStringList words;
    bool alwaysSending = true;
    connect(&transfer, &PlcTransfer::progress, this, [&] {
        words.append(item(strip, "plcState")->text());
        alwaysSending = alwaysSending && strip.plc() == StatusStrip::PlcSending;
    });
    transfer.start(programDir() + "/a.cnc");
    QTRY_VERIFY(!words.isEmpty() && !transfer.isRunning());
    QVERIFY(alwaysSending);
    QVERIFY2(words.contains("50 %"), qPrintable(words.join(',')));
    QCOMPARE(item(strip, "plcState")->text(), QString("ready"));
}

void TestStatusStrip::failedTransferStaysToBeSeen()
{
    const QString plc = home() + "/plc";
    QDir().mkpath(plc);
    PlcTransfer transfer(plc);
    StatusStrip strip(false);
    strip.follow(&transfer);
    strip.showDevices(devices(true, false, 0));
    writeFile(programDir() + "/long.cnc", QByteArray(5 * PlcTransfer::pieceBytes, 'x'));
    // What was sent is gone when it shall be read back.
    const QMetaObject::Connection spoiling = connect(&transfer, &PlcTransfer::progress, this,
                                                     [plc] { QFile::remove(plc + "/long.cnc"); });
    transfer.start(programDir() + "/long.cnc");
    QTRY_COMPARE(strip.plc(), StatusStrip::PlcFailed);
    disconnect(spoiling);
    QCOMPARE(item(strip, "plcState")->text(), QString("failed"));
    QCOMPARE(item(strip, "plcState")->tone(), Message::Alarm);
    strip.showDevices(devices(true, true, 0));
    QCOMPARE(strip.plc(), StatusStrip::PlcFailed);
    // Nor is it forgotten for one that the operator stops.
    QSignalSpy stops(&transfer, SIGNAL(stopped(QString)));
    connect(&transfer, &PlcTransfer::progress, &transfer, &PlcTransfer::stop);
    transfer.start(programDir() + "/long.cnc");
    QTRY_COMPARE(stops.size(), 1);
    QCOMPARE(strip.plc(), StatusStrip::PlcFailed);
    disconnect(&transfer, &PlcTransfer::progress, &transfer, &PlcTransfer::stop);
    writeFile(programDir() + "/a.cnc", "G01\n");
    transfer.start(programDir() + "/a.cnc");
    QTRY_COMPARE(strip.plc(), StatusStrip::PlcReady);
}

void TestStatusStrip::stoppedTransferIsNoFailureOfThePlc()
{
    const QString plc = home() + "/plc";
    QDir().mkpath(plc);
    PlcTransfer transfer(plc);
    StatusStrip strip(false);
    strip.follow(&transfer);
    strip.showDevices(devices(true, false, 0));
    writeFile(programDir() + "/long.cnc", QByteArray(5 * PlcTransfer::pieceBytes, 'x'));
    bool wasSending = false;
    connect(&transfer, &PlcTransfer::progress, &transfer, [&] {
        wasSending = strip.plc() == StatusStrip::PlcSending;
        transfer.stop();
    });
    QSignalSpy stops(&transfer, SIGNAL(stopped(QString)));
    transfer.start(programDir() + "/long.cnc");
    QTRY_COMPARE(stops.size(), 1);
    QVERIFY(wasSending);
    QCOMPARE(strip.plc(), StatusStrip::PlcReady);
    QCOMPARE(item(strip, "plcState")->text(), QString("ready"));
}

void TestStatusStrip::refusedTransferIsNoFailureOfThePlc()
{
    const QString plc = home() + "/plc";
    QDir().mkpath(plc);
    PlcTransfer transfer(plc);
    StatusStrip strip(true);
    strip.follow(&transfer);
    strip.showDevices(devices(true, false, 0));
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/none.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QCOMPARE(strip.plc(), StatusStrip::PlcReady);
}

void TestStatusStrip::failureIsOverWhenThePlcIsBack()
{
    PlcTransfer transfer(home() + "/nowhere");
    StatusStrip strip(false);
    strip.follow(&transfer);
    strip.showDevices(devices(true, false, 0));
    writeFile(programDir() + "/a.cnc", "G01\n");
    // The PLC has gone, and nobody has looked since.
    transfer.start(programDir() + "/a.cnc");
    QTRY_COMPARE(strip.plc(), StatusStrip::PlcFailed);
    // A program that is gone puts nothing right.
    QSignalSpy failures(&transfer, SIGNAL(failed(QString)));
    transfer.start(programDir() + "/none.cnc");
    QTRY_COMPARE(failures.size(), 1);
    QCOMPARE(strip.plc(), StatusStrip::PlcFailed);
    strip.showDevices(devices(false, false, 0));
    QCOMPARE(strip.plc(), StatusStrip::PlcAway);
    strip.showDevices(devices(true, false, 0));
    QCOMPARE(strip.plc(), StatusStrip::PlcReady);
}

void TestStatusStrip::stickComesAndGoes()
{
    StatusStrip strip(false);
    strip.showDevices(devices(true, true, 0));
    QCOMPARE(item(strip, "stickState")->text(), QString("in"));
    QCOMPARE(item(strip, "stickState")->tone(), Message::Information);
    strip.showDevices(devices(true, false, 0));
    QCOMPARE(item(strip, "stickState")->text(), QString("out"));
    QVERIFY(!item(strip, "stickState")->hasTone());
}

void TestStatusStrip::storage_data()
{
    const qint64 mb = 1024 * 1024;
    QTest::addColumn<qint64>("freeBytes");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("tone");
    QTest::newRow("nothing left") << qint64(0) << "full" << int(Message::Alarm);
    QTest::newRow("too little for a program") << mb - 1 << "full" << int(Message::Alarm);
    QTest::newRow("little") << mb << "! 1 MB" << int(Message::Warning);
    QTest::newRow("less than the manager fills")
        << 30 * mb - 1 << "! 29 MB" << int(Message::Warning);
    QTest::newRow("enough") << 30 * mb << "30 MB" << int(Message::Information);
    QTest::newRow("much") << 1536 * mb << "1.5 GB" << int(Message::Information);
    QTest::newRow("very much") << 300 * 1024 * mb << "300 GB" << int(Message::Information);
}

void TestStatusStrip::storage()
{
    QFETCH(qint64, freeBytes);
    StatusStrip strip(false);
    strip.showDevices(devices(true, false, freeBytes));
    QTEST(item(strip, "storageState")->text(), "word");
    QTEST(int(item(strip, "storageState")->tone()), "tone");
}

void TestStatusStrip::clockTicks()
{
    StatusStrip strip(true);
    StatusStrip small(false);
    QLabel *clock = strip.findChild<QLabel *>("clock");
    const QTime first = QTime::fromString(clock->text(), "HH:mm:ss");
    QVERIFY(first.isValid());
    QTRY_VERIFY(QTime::fromString(clock->text(), "HH:mm:ss") != first);
    QVERIFY(qAbs(QTime::currentTime().secsTo(QTime::fromString(clock->text(), "HH:mm:ss"))) <= 1);
    QVERIFY(QTime::fromString(small.findChild<QLabel *>("clock")->text(), "HH:mm").isValid());
}

void TestStatusStrip::wordsFollowTheLanguage()
{
    StatusStrip strip(false);
    strip.showDevices(devices(true, true, 0));
    {
        const TestCompat::MarkingTranslator marks("StatusStrip");
        QTRY_COMPARE(item(strip, "plcState")->text(), QString("ready*"));
        QCOMPARE(item(strip, "stickState")->text(), QString("in*"));
        QCOMPARE(item(strip, "storageState")->text(), QString("full*"));
    }
    QTRY_COMPARE(item(strip, "plcState")->text(), QString("ready"));
}

void TestStatusStrip::thingsAreNamedWhereThereIsRoom()
{
    StatusStrip strip(true);
    QCOMPARE(item(strip, "plcState")->text(), QString::fromUtf8("PLC \u2013"));
    strip.showDevices(devices(true, false, 40 * 1024 * 1024));
    QCOMPARE(item(strip, "plcState")->text(), QString("PLC ready"));
    QCOMPARE(item(strip, "stickState")->text(), QString("Stick out"));
    QCOMPARE(item(strip, "storageState")->text(), QString("Storage 40 MB"));
}

// A word that grows must not push another out of the strip.
void TestStatusStrip::namesGiveWayToSomethingElse()
{
    StatusStrip strip(true);
    strip.showDevices(devices(true, false, 0));
    const int width = strip.sizeHint().width();
    const QString named = item(strip, "plcState")->text();
    strip.setNamed(false);
    QCOMPARE(item(strip, "plcState")->text(), QString("ready"));
    QVERIFY(strip.sizeHint().width() < width);
    QVERIFY(!item(strip, "stickState")->isHidden());
    strip.setNamed(true);
    QCOMPARE(item(strip, "plcState")->text(), named);
    QCOMPARE(strip.sizeHint().width(), width);
}

void TestStatusStrip::checkIsShownOnceItIsTold()
{
    StatusStrip strip(true);
    QVERIFY(item(strip, "checkState")->isHidden());
    strip.showCheck(StatusStrip::CheckUnknown, 0, 0);
    QVERIFY(!item(strip, "checkState")->isHidden());
    QCOMPARE(item(strip, "checkState")->text(), QString::fromUtf8("Check \u2013"));
    QVERIFY(!item(strip, "checkState")->hasTone());
}

void TestStatusStrip::smallStripShowsFaultsForTheClock()
{
    StatusStrip strip(false);
    const QLabel *clock = strip.findChild<QLabel *>("clock");
    strip.showCheck(StatusStrip::Checked, 0, 0);
    QVERIFY(item(strip, "checkState")->isHidden());
    QVERIFY(!clock->isHidden());
    strip.showCheck(StatusStrip::Checked, 0, 1);
    QVERIFY(!item(strip, "checkState")->isHidden());
    QVERIFY(clock->isHidden());
    strip.showCheck(StatusStrip::Checked, 0, 0);
    QVERIFY(!clock->isHidden());
}

void TestStatusStrip::checkIsTold_data()
{
    QTest::addColumn<int>("errors");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("tone");
    QTest::addColumn<QString>("meaning");
    QTest::newRow("nothing") << 0 << 0 << "Check ok" << int(Message::Information)
                             << "Check: nothing found";
    QTest::newRow("warnings") << 0 << 3 << "Check 3" << int(Message::Warning)
                              << "Check: errors 0, warnings 3";
    QTest::newRow("errors") << 2 << 3 << "Check 2" << int(Message::Alarm)
                            << "Check: errors 2, warnings 3";
}

void TestStatusStrip::checkIsTold()
{
    QFETCH(int, errors);
    QFETCH(int, warnings);
    StatusStrip strip(true);
    strip.showCheck(StatusStrip::Checked, errors, warnings);
    QTEST(item(strip, "checkState")->text(), "text");
    QTEST(int(item(strip, "checkState")->tone()), "tone");
    QTEST(item(strip, "checkState")->accessibleName(), "meaning");
}

void TestStatusStrip::keysAskForTheCheck()
{
    StatusStrip strip(false);
    QSignalSpy touched(&strip, SIGNAL(checkTouched()));
    QTest::keyClick(&strip, Qt::Key_Return);
    QCOMPARE(touched.size(), 0);
    QCOMPARE(strip.focusPolicy(), Qt::NoFocus);
    strip.showCheck(StatusStrip::Checked, 12, 0);
    QCOMPARE(strip.focusPolicy(), Qt::TabFocus);
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_A})
        QTest::keyClick(&strip, key);
    QCOMPARE(touched.size(), 2);
}

// What is beside it belongs to whatever the strip stands on.
void TestStatusStrip::touchOnTheCheckAsksForIt()
{
    StatusStrip strip(false);
    QSignalSpy touched(&strip, SIGNAL(checkTouched()));
    strip.show();
    QTest::mouseClick(&strip, Qt::LeftButton, Qt::NoModifier, QPoint(2, strip.height() / 2));
    QCOMPARE(touched.size(), 0);
    strip.showCheck(StatusStrip::Checked, 12, 0);
    QCoreApplication::processEvents();
    QTest::mouseClick(item(strip, "checkState"), Qt::LeftButton);
    QCOMPARE(touched.size(), 1);
    QTest::mouseClick(item(strip, "storageState"), Qt::LeftButton);
    QCOMPARE(touched.size(), 1);
}

void TestStatusStrip::wordsKeepToTheirPlace()
{
    QWidget window;
    QHBoxLayout *row = new QHBoxLayout(&window);
    StatusStrip *strip = new StatusStrip(false);
    row->addStretch();
    row->addWidget(strip);
    window.resize(400, 40);
    window.show();
    strip->showDevices(devices(false, false, 3 * 1024 * 1024));
    strip->showCheck(StatusStrip::Checked, 1234, 0);
    QCoreApplication::processEvents();
    const QList<QLabel *> labels = strip->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 5);
    for (QLabel *label : labels) {
        if (label->isHidden())
            continue;
        QTRY_VERIFY(strip->rect().contains(label->geometry()));
        QTRY_VERIFY(label->fontMetrics().horizontalAdvance(label->text())
                    <= label->contentsRect().width());
    }
}

FILARIX_TEST_MAIN(TestStatusStrip)
#include "tst_statusstrip.moc"
