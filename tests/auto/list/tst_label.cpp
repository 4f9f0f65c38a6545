// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "label.h"

#include <QMouseEvent>
#include <QSignalSpy>

class TestLabel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void pressEmitsClickedAtOnce();
    void everyButtonCounts();
    void pressIsKeptFromTheWidgetBelow();
    void textStaysThatOfALabel();
};

namespace {

class PressCounter : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

} // namespace

void TestLabel::pressEmitsClickedAtOnce()
{
    Label label(nullptr);
    QSignalSpy clicked(&label, SIGNAL(clicked()));
    QTest::mousePress(&label, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
}

void TestLabel::everyButtonCounts()
{
    Label label(nullptr);
    QSignalSpy clicked(&label, SIGNAL(clicked()));
    QTest::mousePress(&label, Qt::RightButton);
    QTest::mousePress(&label, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(clicked.size(), 2);
}

void TestLabel::pressIsKeptFromTheWidgetBelow()
{
    PressCounter row;
    Label *label = new Label(&row);
    QLabel *passive = new QLabel(&row);
    QTest::mousePress(label, Qt::LeftButton);
    QCOMPARE(row.presses, 0);
    QTest::mousePress(passive, Qt::LeftButton);
    QCOMPARE(row.presses, 1);
}

void TestLabel::textStaysThatOfALabel()
{
    Label label(nullptr);
    label.setText("P:3");
    QCOMPARE(label.text(), QString("P:3"));
    QVERIFY(label.qt_metacast("Label"));
    QVERIFY(label.qt_metacast("QLabel"));
}

FILARIX_TEST_MAIN(TestLabel)
#include "tst_label.moc"
