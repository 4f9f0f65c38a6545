// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/platform.h"
#include "filarixtest.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "shell/touchsound.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>

class TestTouchSound : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTouchOfAKeySoundsWhileItIsOn();
    void whatCannotBePressedIsSilent();
    void aDisplayWithoutABellIsAskedForNothing();
    void theChoiceHasTwoNames();
};

void TestTouchSound::aTouchOfAKeySoundsWhileItIsOn()
{
    TouchSound sounds;
    QSignalSpy sounded(&sounds, SIGNAL(sounded()));
    QPushButton push("OK");
    PanelKey panelKey("Do");
    TapArea area;
    const QWidgetList keys{&push, &panelKey, &area};
    for (QWidget *key : keys)
        QTest::mouseClick(key, Qt::LeftButton);
    QVERIFY(!sounds.isOn());
    QCOMPARE(sounded.size(), 0);
    sounds.setOn(true);
    for (QWidget *key : keys)
        QTest::mouseClick(key, Qt::LeftButton);
    QCOMPARE(sounded.size(), 3);
    // The toolkit has an event of its own for the second of two quick touches.
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(&push, &second);
    QCOMPARE(sounded.size(), 4);
    sounds.setOn(false);
    QTest::mouseClick(&push, Qt::LeftButton);
    QCOMPARE(sounded.size(), 4);
}

void TestTouchSound::whatCannotBePressedIsSilent()
{
    TouchSound sounds;
    QSignalSpy sounded(&sounds, SIGNAL(sounded()));
    sounds.setOn(true);
    QPushButton off("OK");
    off.setEnabled(false);
    QLabel label("OK");
    QTest::mouseClick(&off, Qt::LeftButton);
    QTest::mouseClick(&label, Qt::LeftButton);
    QPushButton on("OK");
    QTest::keyClick(&on, Qt::Key_Space);
    QCOMPARE(sounded.size(), 0);
}

// The toolkit would say so, and a test that hears it fails.
void TestTouchSound::aDisplayWithoutABellIsAskedForNothing()
{
    QVERIFY(!Platform::hasBell());
    TouchSound sounds;
    sounds.setOn(true);
    QPushButton key("OK");
    QTest::mouseClick(&key, Qt::LeftButton);
}

void TestTouchSound::theChoiceHasTwoNames()
{
    QCOMPARE(TouchSound::names(), QStringList({"off", "on"}));
    QCOMPARE(TouchSound::nameOf(true), QString("on"));
    QCOMPARE(TouchSound::settingsKey(), QString("sounds"));
}

FILARIX_TEST_MAIN(TestTouchSound)
#include "tst_touchsound.moc"
