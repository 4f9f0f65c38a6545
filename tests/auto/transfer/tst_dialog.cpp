// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dialog.h"
#include "filarixtest.h"

#include <QApplication>
#include <QDesktopWidget>

class TestDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainDialogWithoutParent();
    void titleGivesBackWhatWasSet();
    void titleIsTheWindowTitle();
    void withoutParentIsCentredOnTheScreen_data();
    void withoutParentIsCentredOnTheScreen();
    void withParentIsCentredOnItsSize_data();
    void withParentIsCentredOnItsSize();
    void positionOfTheParentIsNotAdded();
    void resizedParentCentresAnewAtEachShowing();
    void emptyParentCountsAsNone_data();
    void emptyParentCountsAsNone();
    void largerThanTheParentStandsLeftOfAndAboveIt();
    void sizeIsKept();
    void isPlacedAnewAfterTheOperatorMovedIt();
};

namespace {

QPoint centreOfTheScreen(const QSize &size)
{
    const QRect screen = QApplication::desktop()->screenGeometry(-1);
    return QPoint((screen.left() + screen.right()) / 2 - size.width() / 2,
                  (screen.top() + screen.bottom()) / 2 - size.height() / 2);
}

} // namespace

void TestDialog::isAPlainDialogWithoutParent()
{
    Dialog dialog(nullptr);
    QVERIFY(!dialog.parent());
    QCOMPARE(dialog.windowFlags(), QDialog().windowFlags());
    QVERIFY(!dialog.isModal());
}

void TestDialog::titleGivesBackWhatWasSet()
{
    Dialog dialog(nullptr);
    QCOMPARE(dialog.getTitle(), QString());
    dialog.setTitle("Copy");
    QCOMPARE(dialog.getTitle(), QString("Copy"));
    dialog.setTitle(QString());
    QCOMPARE(dialog.getTitle(), QString());
}

void TestDialog::titleIsTheWindowTitle()
{
    Dialog dialog(nullptr);
    dialog.setTitle("Open");
    QCOMPARE(dialog.windowTitle(), QString("Open"));
    dialog.setWindowTitle("Save");
    QCOMPARE(dialog.getTitle(), QString("Save"));
}

void TestDialog::withoutParentIsCentredOnTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("even") << QSize(200, 100);
    QTest::newRow("odd") << QSize(201, 101);
    QTest::newRow("larger than the screen") << QSize(3001, 2001);
}

void TestDialog::withoutParentIsCentredOnTheScreen()
{
    QFETCH(QSize, size);
    Dialog dialog(nullptr);
    dialog.setFixedSize(size);
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(centreOfTheScreen(size), size));
}

void TestDialog::withParentIsCentredOnItsSize_data()
{
    QTest::addColumn<QSize>("parentSize");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("even") << QSize(400, 300) << QSize(200, 100) << QPoint(100, 100);
    QTest::newRow("both halves are cut, not their difference")
        << QSize(401, 301) << QSize(200, 101) << QPoint(100, 100);
    QTest::newRow("odd dialog on an even parent")
        << QSize(400, 300) << QSize(201, 101) << QPoint(100, 100);
}

void TestDialog::withParentIsCentredOnItsSize()
{
    QFETCH(QSize, parentSize);
    QFETCH(QSize, size);
    QWidget parent;
    parent.setGeometry(QRect(QPoint(0, 0), parentSize));
    Dialog dialog(&parent);
    dialog.setFixedSize(size);
    dialog.show();
    QTEST(dialog.geometry().topLeft(), "place");
}

void TestDialog::positionOfTheParentIsNotAdded()
{
    QWidget parent;
    parent.setGeometry(150, 70, 400, 300);
    parent.show();
    Dialog dialog(&parent);
    dialog.setFixedSize(200, 100);
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(100, 100, 200, 100));
}

void TestDialog::resizedParentCentresAnewAtEachShowing()
{
    QWidget parent;
    parent.resize(400, 300);
    Dialog dialog(&parent);
    dialog.setFixedSize(200, 100);
    dialog.show();
    QCOMPARE(dialog.geometry().topLeft(), QPoint(100, 100));

    parent.resize(600, 500);
    QCOMPARE(dialog.geometry().topLeft(), QPoint(100, 100));
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.geometry().topLeft(), QPoint(200, 200));
}

void TestDialog::emptyParentCountsAsNone_data()
{
    QTest::addColumn<QSize>("parentSize");
    QTest::newRow("no width") << QSize(0, 300);
    QTest::newRow("no height") << QSize(400, 0);
}

void TestDialog::emptyParentCountsAsNone()
{
    QFETCH(QSize, parentSize);
    QWidget parent;
    parent.resize(parentSize);
    QCOMPARE(parent.size(), parentSize);
    Dialog dialog(&parent);
    dialog.setFixedSize(200, 100);
    dialog.show();
    QCOMPARE(dialog.geometry().topLeft(), centreOfTheScreen(QSize(200, 100)));
}

void TestDialog::largerThanTheParentStandsLeftOfAndAboveIt()
{
    QWidget parent;
    parent.resize(101, 51);
    Dialog dialog(&parent);
    dialog.setFixedSize(300, 200);
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(50 - 150, 25 - 100, 300, 200));
}

void TestDialog::sizeIsKept()
{
    Dialog dialog(nullptr);
    dialog.resize(317, 211);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(317, 211));
}

void TestDialog::isPlacedAnewAfterTheOperatorMovedIt()
{
    Dialog dialog(nullptr);
    dialog.setFixedSize(200, 100);
    dialog.show();
    dialog.move(3, 5);
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.geometry().topLeft(), centreOfTheScreen(QSize(200, 100)));
}

FILARIX_TEST_MAIN(TestDialog)
#include "tst_dialog.moc"
