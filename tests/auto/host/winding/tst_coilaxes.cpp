// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/coilaxes.h"

class TestCoilAxes : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void ticksAreRound_data();
    void ticksAreRound();
    void noRoomNoTicks();
    void tooFarAwayNoTicks();
    void ticksHaveTheDecimalsTheyNeed();
    void scalesStayInTheirRoom();
    void numbersOfAScaleDoNotTouch();
};

void TestCoilAxes::ticksAreRound_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("ticks");
    QTest::newRow("a bobbin") << 0.0 << 36.0 << 8 << "0 5 10 15 20 25 30 35";
    QTest::newRow("few") << 0.0 << 36.0 << 2 << "0 20";
    QTest::newRow("begins below nothing") << -6.0 << 13.0 << 5 << "-5 0 5 10";
    QTest::newRow("small") << 0.1 << 0.52 << 5 << "0.1 0.2 0.3 0.4 0.5";
    QTest::newRow("large") << 0.0 << 147758.0 << 4 << "0 50000 100000";
    QTest::newRow("ends are ticks") << 1.0 << 3.0 << 4 << "1 2 3";
}

void TestCoilAxes::ticksAreRound()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(int, most);
    QFETCH(QString, ticks);
    const QVector<double> all = CoilAxes::ticks(from, to, most);
    QStringList texts;
    for (int i = 0; i < all.size(); ++i)
        texts.append(CoilAxes::text(all.at(i), all.size() > 1 ? all.at(1) - all.at(0) : 1));
    QCOMPARE(texts.join(" "), ticks);
}

void TestCoilAxes::noRoomNoTicks()
{
    QVERIFY(CoilAxes::ticks(0, 10, 0).isEmpty());
    QVERIFY(CoilAxes::ticks(5, 5, 4).isEmpty());
    QVERIFY(CoilAxes::ticks(5, 4, 4).isEmpty());
}

/// Out there a number and the next one are the same: to count from one to the other has no end.
void TestCoilAxes::tooFarAwayNoTicks()
{
    QVERIFY(CoilAxes::ticks(1e15, 1e15 + 0.25, 10).isEmpty());
    QVERIFY(CoilAxes::ticks(-1e15, -1e15 + 0.25, 10).isEmpty());
    QCOMPARE(CoilAxes::ticks(1e9, 1e9 + 1, 2).size(), 2);
}

void TestCoilAxes::ticksHaveTheDecimalsTheyNeed()
{
    QCOMPARE(CoilAxes::text(0.25, 0.05), QString("0.25"));
    QCOMPARE(CoilAxes::text(0.3, 0.1), QString("0.3"));
    QCOMPARE(CoilAxes::text(20, 10), QString("20"));
    QCOMPARE(CoilAxes::text(-0.0000001, 0.5), QString("0"));
}

void TestCoilAxes::scalesStayInTheirRoom()
{
    for (int letters = 9; letters <= 16; ++letters) {
        CoilFrame frame;
        frame.area = QRectF(CoilAxes::roomAtLeft(float(letters)), 20, 300, 150);
        frame.world = QRectF(-5, 0, 45, 110);
        const qreal foot = frame.area.bottom() + CoilAxes::roomBelow(float(letters));
        CoilDrawing drawing(QSizeF(frame.area.right() + 5, foot));
        CoilAxes axes(&drawing, frame, float(letters));
        axes.drawAcross("mm");
        axes.drawUp("mm");
        int texts = 0;
        for (int i = 0; i < drawing.shapes().size(); ++i) {
            const CoilDrawing::Shape &shape = drawing.shapes().at(i);
            if (shape.kind != CoilDrawing::Text)
                continue;
            ++texts;
            const qreal width = CoilDrawing::textWidth(shape.text, shape.width);
            const qreal left =
                shape.anchor == CoilDrawing::AtRight ? shape.box.x() - width : shape.box.x();
            QVERIFY2(left >= 0, qPrintable(shape.text));
            QVERIFY2(shape.box.y() <= foot, qPrintable(shape.text));
        }
        QVERIFY(texts > 5);
    }
}

void TestCoilAxes::numbersOfAScaleDoNotTouch()
{
    CoilFrame frame;
    frame.area = QRectF(40, 20, 180, 90);
    frame.world = QRectF(0, 0, 147758, 1);
    CoilDrawing drawing(QSizeF(230, 130));
    CoilAxes(&drawing, frame, 11).drawAcross("turns");
    qreal last = -1000;
    int numbers = 0;
    for (int i = 0; i < drawing.shapes().size(); ++i) {
        const CoilDrawing::Shape &shape = drawing.shapes().at(i);
        if (shape.kind != CoilDrawing::Text)
            continue;
        const qreal width = CoilDrawing::textWidth(shape.text, shape.width);
        const qreal left = shape.anchor == CoilDrawing::AtRight ? shape.box.x() - width
                                                                : shape.box.x() - width / 2;
        QVERIFY2(left > last, qPrintable(shape.text));
        last = left + width;
        ++numbers;
    }
    QVERIFY(numbers >= 3);
}

FILARIX_TEST_MAIN(TestCoilAxes)
#include "tst_coilaxes.moc"
