// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "messagebar.h"
#include "panelkey.h"

#include <QProgressBar>
#include <QSignalSpy>
#include <QTimer>

class TestMessageBar : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void warningStaysUntilItIsClosed();
    void informationPassesByItself();
    void keyOfRunningWorkStopsIt();
    void longTextIsShownWhole();
};

void TestMessageBar::warningStaysUntilItIsClosed()
{
    QWidget screen;
    screen.resize(480, 200);
    MessageBar bar(&screen);
    screen.show();
    bar.tell("The PLC does not answer.", Message::Warning);
    QCOMPARE(bar.text(), QString("The PLC does not answer."));
    QVERIFY(!bar.findChild<QTimer *>() || !bar.findChild<QTimer *>()->isActive());
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QTest::mouseClick(bar.findChild<PanelKey *>(), Qt::LeftButton);
    QVERIFY(bar.isHidden());
    QCOMPARE(bar.text(), QString());
    QCOMPARE(stops.size(), 0);
}

void TestMessageBar::informationPassesByItself()
{
    QWidget screen;
    screen.resize(480, 200);
    MessageBar bar(&screen);
    screen.show();
    bar.tell("Nothing to insert.", Message::Information);
    QVERIFY(bar.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(bar.isHidden(), 10000);
}

void TestMessageBar::keyOfRunningWorkStopsIt()
{
    QWidget screen;
    screen.resize(480, 200);
    MessageBar bar(&screen);
    screen.show();
    bar.showWork("a.cnc goes to the PLC", 40);
    QCOMPARE(bar.findChild<QProgressBar *>()->value(), 40);
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QTest::mouseClick(bar.findChild<PanelKey *>(), Qt::LeftButton);
    QCOMPARE(stops.size(), 1);
    QVERIFY(bar.isVisible());
}

void TestMessageBar::longTextIsShownWhole()
{
    QWidget screen;
    screen.resize(480, 200);
    MessageBar bar(&screen);
    screen.show();
    bar.tell("short", Message::Warning);
    const int low = bar.height();
    bar.tell(QString("a long sentence ").repeated(15), Message::Warning);
    QVERIFY(bar.height() > low);
    QVERIFY(screen.rect().contains(bar.geometry()));
    screen.resize(700, 200);
    QTRY_COMPARE(bar.width(), 692);
}

FILARIX_TEST_MAIN(TestMessageBar)
#include "tst_messagebar.moc"
