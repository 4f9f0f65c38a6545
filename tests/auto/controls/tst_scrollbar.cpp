// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "scrollbar.h"

#include <QScrollArea>

class TestScrollBar : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsVerticalWhateverItIsMadeFor_data();
    void startsVerticalWhateverItIsMadeFor();
    void theSheetGoesByTheArgument_data();
    void theSheetGoesByTheArgument();
    void theHintGoesByTheCurrentOrientation();
    void theHintOfNeitherOrientationIsTheToolkits();
    void aScrollAreaTurnsIt();
};

void TestScrollBar::startsVerticalWhateverItIsMadeFor_data()
{
    QTest::addColumn<int>("orientation");
    QTest::newRow("horizontal") << int(Qt::Horizontal);
    QTest::newRow("vertical") << int(Qt::Vertical);
    QTest::newRow("neither") << 0;
}

void TestScrollBar::startsVerticalWhateverItIsMadeFor()
{
    QFETCH(int, orientation);
    QWidget window;
    ScrollBar bar(Qt::Orientation(orientation), &window);
    QCOMPARE(bar.orientation(), Qt::Vertical);
    QCOMPARE(bar.sizeHint(), QSize(30, 69));
    QCOMPARE(bar.parentWidget(), &window);
}

void TestScrollBar::theSheetGoesByTheArgument_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("vertical")
        << int(Qt::Vertical)
        << "QScrollBar::Vertical {border:0px;margin: 30px 0px 30px 0px;} "
           "QScrollBar::add-line:Vertical {width: 30px;height:30px;subcontrol-position: "
           "bottom;subcontrol-origin: margin;} QScrollBar::sub-line:Vertical {width: "
           "30px;height:30px;subcontrol-position: top;subcontrol-origin: margin;}";
    QTest::newRow("horizontal")
        << int(Qt::Horizontal)
        << "QScrollBar::Horizontal {border:0px;margin: 0px 30px 0px 30px;} "
           "QScrollBar::add-line:Horizontal {width: 30px;height:30px;subcontrol-position: "
           "right;subcontrol-origin: margin;} QScrollBar::sub-line:Horizontal {width: "
           "30px;height:30px;subcontrol-position: left;subcontrol-origin: margin;}";
    QTest::newRow("neither") << 0 << QString();
}

void TestScrollBar::theSheetGoesByTheArgument()
{
    QFETCH(int, orientation);
    QFETCH(QString, sheet);
    ScrollBar bar(Qt::Orientation(orientation), nullptr);
    QCOMPARE(bar.styleSheet(), sheet);
}

void TestScrollBar::theHintGoesByTheCurrentOrientation()
{
    ScrollBar bar(Qt::Vertical, nullptr);
    bar.setOrientation(Qt::Horizontal);
    QCOMPARE(bar.sizeHint(), QSize(69, 30));
    bar.setOrientation(Qt::Vertical);
    QCOMPARE(bar.sizeHint(), QSize(30, 69));
}

void TestScrollBar::theHintOfNeitherOrientationIsTheToolkits()
{
    ScrollBar bar(Qt::Orientation(0), nullptr);
    QScrollBar plain;
    bar.setOrientation(Qt::Orientation(0));
    plain.setOrientation(Qt::Orientation(0));
    QCOMPARE(bar.sizeHint(), plain.sizeHint());
    QVERIFY(bar.sizeHint() != QSize(30, 69));
    QVERIFY(bar.sizeHint() != QSize(69, 30));
}

void TestScrollBar::aScrollAreaTurnsIt()
{
    QScrollArea area;
    area.setHorizontalScrollBar(new ScrollBar(Qt::Horizontal, &area));
    area.setVerticalScrollBar(new ScrollBar(Qt::Vertical, &area));
    QWidget *page = new QWidget;
    page->resize(2000, 2000);
    area.setWidget(page);
    area.resize(300, 200);
    area.show();
    QCOMPARE(area.horizontalScrollBar()->height(), 30);
    QCOMPARE(area.verticalScrollBar()->width(), 30);
}

FILARIX_TEST_MAIN(TestScrollBar)
#include "tst_scrollbar.moc"
