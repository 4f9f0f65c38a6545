// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/taparea.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>

class TestTapArea : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTouchOnAnyOfItsTextsIsOne();
    void aFingerThatSlidesOffTouchesNothing();
    void whatLiesBehindIsNotTouched();
    void keysTouchItToo();
    void pressIsSeenInTheNextFrame();
    void pressEndsWhereTheFingerLeaves();
};

void TestTapArea::aTouchOnAnyOfItsTextsIsOne()
{
    TapArea area;
    area.resize(200, 60);
    QLabel upper("upper", &area);
    upper.setGeometry(0, 0, 200, 30);
    QLabel lower("lower", &area);
    lower.setGeometry(0, 30, 200, 30);
    area.show();
    QVERIFY(TestCompat::waitForExposed(&area));
    QSignalSpy touched(&area, SIGNAL(touched()));
    QTest::mouseClick(&upper, Qt::LeftButton);
    QTest::mouseClick(&lower, Qt::LeftButton);
    QTest::mouseClick(&area, Qt::LeftButton);
    QCOMPARE(touched.size(), 3);
}

void TestTapArea::aFingerThatSlidesOffTouchesNothing()
{
    TapArea area;
    area.resize(200, 60);
    QSignalSpy touched(&area, SIGNAL(touched()));
    QTest::mousePress(&area, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    QTest::mouseRelease(&area, Qt::LeftButton, Qt::NoModifier, QPoint(10, 80));
    QCOMPARE(touched.size(), 0);
}

void TestTapArea::whatLiesBehindIsNotTouched()
{
    TapArea behind;
    behind.resize(200, 60);
    TapArea area;
    area.setParent(&behind);
    area.resize(100, 60);
    QSignalSpy touched(&behind, SIGNAL(touched()));
    QSignalSpy own(&area, SIGNAL(touched()));
    QTest::mouseClick(&area, Qt::LeftButton);
    QCOMPARE(own.size(), 1);
    QCOMPARE(touched.size(), 0);
}

void TestTapArea::keysTouchItToo()
{
    TapArea area;
    QCOMPARE(area.focusPolicy(), Qt::TabFocus);
    QSignalSpy touched(&area, SIGNAL(touched()));
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_A})
        QTest::keyClick(&area, key);
    QCOMPARE(touched.size(), 3);
}

void TestTapArea::pressIsSeenInTheNextFrame()
{
    TapArea area;
    area.resize(200, 60);
    area.show();
    QVERIFY(TestCompat::waitForExposed(&area));
    const QImage before = TestCompat::grab(&area).toImage();
    QTest::mousePress(&area, Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(TestCompat::grab(&area).toImage() != before);
    QTest::mouseRelease(&area, Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(TestCompat::grab(&area).toImage(), before);
}

void TestTapArea::pressEndsWhereTheFingerLeaves()
{
    TapArea area;
    area.resize(200, 60);
    area.show();
    const QImage before = TestCompat::grab(&area).toImage();
    QTest::mousePress(&area, Qt::LeftButton);
    QMouseEvent move(QEvent::MouseMove, QPoint(10, 80), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&area, &move);
    QCOMPARE(TestCompat::grab(&area).toImage(), before);
    // One that goes away under the finger is as before when it comes back.
    QTest::mousePress(&area, Qt::LeftButton);
    area.hide();
    area.show();
    QCOMPARE(TestCompat::grab(&area).toImage(), before);
}

FILARIX_TEST_MAIN(TestTapArea)
#include "tst_taparea.moc"
