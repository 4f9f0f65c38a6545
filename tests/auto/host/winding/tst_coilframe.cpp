// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/coilframe.h"

class TestCoilFrame : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void theWorldGrowsUpwards();
    void thereAndBackIsWhereItWas();
    void nothingIsNull();
};

static CoilFrame someFrame()
{
    CoilFrame frame;
    frame.area = QRectF(40, 20, 200, 100);
    frame.world = QRectF(-10, 5, 20, 10);
    return frame;
}

void TestCoilFrame::theWorldGrowsUpwards()
{
    const CoilFrame frame = someFrame();
    QCOMPARE(frame.toPicture(QPointF(-10, 5)), QPointF(40, 120));
    QCOMPARE(frame.toPicture(QPointF(10, 15)), QPointF(240, 20));
    QCOMPARE(frame.toPicture(QRectF(-10, 5, 20, 10)), frame.area);
    QCOMPARE(frame.xScale(), qreal(10));
    QCOMPARE(frame.yScale(), qreal(10));
}

void TestCoilFrame::thereAndBackIsWhereItWas()
{
    const CoilFrame frame = someFrame();
    for (int x = 0; x < 300; x += 37) {
        const QPointF pixel(x, 2 * x);
        const QPointF back = frame.toPicture(frame.toWorld(pixel));
        QVERIFY((back - pixel).manhattanLength() < 1e-6);
    }
}

void TestCoilFrame::nothingIsNull()
{
    QVERIFY(CoilFrame().isNull());
    QVERIFY(!someFrame().isNull());
    CoilFrame flat = someFrame();
    flat.world.setHeight(0);
    QVERIFY(flat.isNull());
}

FILARIX_TEST_MAIN(TestCoilFrame)
#include "tst_coilframe.moc"
