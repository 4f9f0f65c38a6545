// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/coilview.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QSignalSpy>
#include <QWheelEvent>

class TestCoilView : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aTouchTellsWhereItWas();
    void aTouchBesideThePictureTellsNothing();
    void aDragMovesAndTouchesNothing();
    void aHandThatTremblesStillTouches();
    void twoFingersZoom();
    void theSecondFingerEndsADrag();
    void keysZoomAndMove();
    void theWheelZooms();
    void nothingIsSeenBesideTheWhole();
    void fitGoesToAndFro();
    void acrossZoomsFromLeftToRightAlone();
    void aDraggedPictureFollowsAtOnce();
    void aMarkIsSeen();
    void zoomKeysKeepTheMarkInPlace();
    void withoutAPictureNothingHappens();
    void paintingTakesNoTime();
};

namespace {

const QSize viewSize(500, 300);
const QRectF area(40, 20, 440, 250);
// In the area's shape.
const QRectF allOfIt(0, 0, 88, 50);

CoilDrawing::Palette colours()
{
    return CoilDrawing::lightPalette();
}

/// Has a picture whose left half is of another colour than its right one.
class SomeView : public CoilView
{
public:
    SomeView()
    {
        resize(viewSize);
        setColours(colours());
        setWhole(allOfIt, 2);
        setUp(allOfIt);
        show();
    }

    void setUp(const QRectF &world)
    {
        QImage image(viewSize, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QPainter(&image).fillRect(0, 0, viewSize.width() / 2, viewSize.height(), Qt::yellow);
        CoilFrame frame;
        frame.area = area;
        frame.world = world;
        showPicture(image, frame);
    }
};

QTouchDevice *glass()
{
    static QTouchDevice *device = QTest::createTouchDevice();
    return device;
}

bool isNear(const QPointF &one, const QPointF &other, qreal slack = 0.5)
{
    return (one - other).manhattanLength() <= slack;
}

} // namespace

void TestCoilView::aTouchTellsWhereItWas()
{
    SomeView view;
    QSignalSpy touched(&view, &CoilView::touched);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, area.center().toPoint());
    QCOMPARE(touched.size(), 1);
    QVERIFY(isNear(touched.at(0).at(0).toPointF(), allOfIt.center()));
    QTest::touchEvent(&view, glass()).press(1, QPoint(60, 40), &view);
    QTest::touchEvent(&view, glass()).release(1, QPoint(60, 40), &view);
    QCOMPARE(touched.size(), 2);
    QVERIFY(isNear(touched.at(1).at(0).toPointF(), view.frame().toWorld(QPointF(60, 40))));
}

void TestCoilView::aTouchBesideThePictureTellsNothing()
{
    SomeView view;
    QSignalSpy touched(&view, &CoilView::touched);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseClick(&view, Qt::RightButton, Qt::NoModifier, area.center().toPoint());
    QCOMPARE(touched.size(), 0);
}

void TestCoilView::aDragMovesAndTouchesNothing()
{
    SomeView view;
    view.zoomIn();
    QSignalSpy touched(&view, &CoilView::touched);
    QSignalSpy wanted(&view, &CoilView::wanted);
    const QPointF under = view.frame().toWorld(QPointF(200, 150));
    QTest::touchEvent(&view, glass()).press(1, QPoint(200, 150), &view);
    QTest::touchEvent(&view, glass()).move(1, QPoint(220, 150), &view);
    QTest::touchEvent(&view, glass()).move(1, QPoint(230, 160), &view);
    QTest::touchEvent(&view, glass()).release(1, QPoint(230, 160), &view);
    QCOMPARE(touched.size(), 0);
    QVERIFY(wanted.size() >= 1);
    QVERIFY(isNear(view.frame().toWorld(QPointF(230, 160)), under));
}

void TestCoilView::aHandThatTremblesStillTouches()
{
    SomeView view;
    view.zoomIn();
    const QRectF before = view.world();
    QSignalSpy touched(&view, &CoilView::touched);
    QTest::touchEvent(&view, glass()).press(1, QPoint(200, 150), &view);
    QTest::touchEvent(&view, glass()).move(1, QPoint(204, 152), &view);
    QTest::touchEvent(&view, glass()).release(1, QPoint(203, 149), &view);
    QCOMPARE(touched.size(), 1);
    QCOMPARE(view.world(), before);
}

void TestCoilView::twoFingersZoom()
{
    SomeView view;
    QSignalSpy touched(&view, &CoilView::touched);
    const QPointF middle = view.frame().toWorld(QPointF(250, 150));
    QTest::touchEvent(&view, glass()).press(1, QPoint(230, 150), &view);
    QTest::touchEvent(&view, glass())
        .move(1, QPoint(230, 150), &view)
        .press(2, QPoint(270, 150), &view);
    QTest::touchEvent(&view, glass())
        .move(1, QPoint(210, 150), &view)
        .move(2, QPoint(290, 150), &view);
    QTest::touchEvent(&view, glass())
        .release(1, QPoint(210, 150), &view)
        .release(2, QPoint(290, 150), &view);
    QVERIFY2(qAbs(view.world().width() - allOfIt.width() / 2) < 0.01,
             qPrintable(QString::number(view.world().width())));
    QVERIFY(qAbs(view.world().height() - allOfIt.height() / 2) < 0.01);
    QVERIFY(isNear(view.frame().toWorld(QPointF(250, 150)), middle));
    QCOMPARE(touched.size(), 0);
}

void TestCoilView::theSecondFingerEndsADrag()
{
    SomeView view;
    QSignalSpy touched(&view, &CoilView::touched);
    QTest::touchEvent(&view, glass()).press(1, QPoint(230, 150), &view);
    QTest::touchEvent(&view, glass())
        .move(1, QPoint(230, 150), &view)
        .press(2, QPoint(270, 150), &view);
    QTest::touchEvent(&view, glass())
        .move(1, QPoint(230, 150), &view)
        .release(2, QPoint(270, 150), &view);
    const QRectF world = view.world();
    // The finger that is left does nothing until it is lifted.
    QTest::touchEvent(&view, glass()).move(1, QPoint(330, 150), &view);
    QTest::touchEvent(&view, glass()).release(1, QPoint(330, 150), &view);
    QCOMPARE(view.world(), world);
    QCOMPARE(touched.size(), 0);
}

void TestCoilView::keysZoomAndMove()
{
    SomeView view;
    QTest::keyClick(&view, Qt::Key_Plus);
    const QRectF closer = view.world();
    QVERIFY(closer.width() < allOfIt.width());
    QVERIFY(isNear(closer.center(), allOfIt.center()));
    QTest::keyClick(&view, Qt::Key_Right);
    QVERIFY(view.world().left() > closer.left());
    QTest::keyClick(&view, Qt::Key_Left);
    QVERIFY(isNear(view.world().topLeft(), closer.topLeft()));
    QTest::keyClick(&view, Qt::Key_Up);
    QVERIFY(view.world().top() > closer.top());
    QTest::keyClick(&view, Qt::Key_Down);
    QVERIFY(isNear(view.world().topLeft(), closer.topLeft()));
    QTest::keyClick(&view, Qt::Key_Minus);
    QVERIFY(isNear(view.world().topLeft(), allOfIt.topLeft()));
    QTest::keyClick(&view, Qt::Key_Plus);
    QTest::keyClick(&view, Qt::Key_Home);
    QVERIFY(view.isFitted());
}

void TestCoilView::theWheelZooms()
{
    SomeView view;
    const QPointF point(100, 200);
    const QPointF under = view.frame().toWorld(point);
    QWheelEvent event(point, view.mapToGlobal(point.toPoint()), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &event);
    QVERIFY(view.world().width() < allOfIt.width());
    QVERIFY(isNear(view.frame().toWorld(point), under));
}

void TestCoilView::nothingIsSeenBesideTheWhole()
{
    SomeView view;
    view.look(QRectF(-100, -100, 1000, 1000));
    QCOMPARE(view.world(), allOfIt);
    view.look(QRectF(80, 40, 44, 25));
    QVERIFY(allOfIt.contains(view.world()));
    QVERIFY(qAbs(view.world().width() - 44) < 0.01);
    view.look(QRectF(40, 20, 0.001, 0.001));
    QVERIFY(qAbs(view.world().width() - 2) < 0.01);
    for (int i = 0; i < 50; ++i)
        view.zoomIn();
    QVERIFY(view.world().width() >= 1.99);
    for (int i = 0; i < 50; ++i)
        view.zoomOut();
    QVERIFY(view.isWhole());
}

void TestCoilView::fitGoesToAndFro()
{
    SomeView view;
    const QRectF part(10, 0, 44, 25);
    view.setUp(part);
    QVERIFY(view.isFitted());
    QCOMPARE(view.world(), part);
    QSignalSpy wanted(&view, &CoilView::wanted);
    view.fit();
    QCOMPARE(view.world(), allOfIt);
    QVERIFY(!view.isFitted());
    QCOMPARE(wanted.size(), 1);
    view.fit();
    QVERIFY(view.isFitted());
    QCOMPARE(wanted.size(), 2);
    view.setUp(part);
    QCOMPARE(view.world(), part);
}

void TestCoilView::acrossZoomsFromLeftToRightAlone()
{
    SomeView view;
    view.setZooming(CoilView::Across);
    view.zoomIn();
    QVERIFY(view.world().width() < allOfIt.width());
    QCOMPARE(view.world().height(), allOfIt.height());
    QTest::keyClick(&view, Qt::Key_Up);
    QCOMPARE(view.world().top(), allOfIt.top());
}

void TestCoilView::aDraggedPictureFollowsAtOnce()
{
    SomeView view;
    view.zoomIn();
    view.zoomIn();
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Right);
    // The border of the two colours has gone to the left with its place.
    const QPointF border = view.frame().toPicture(QPointF(42, 25));
    QVERIFY(border.x() < 200 && border.x() > 52);
    const QImage seen = view.grab().toImage();
    QCOMPARE(seen.pixelColor(int(border.x()) - 12, 150), QColor(Qt::yellow));
    QCOMPARE(seen.pixelColor(int(border.x()) + 12, 150), QColor(Qt::blue));
}

void TestCoilView::aMarkIsSeen()
{
    SomeView view;
    const QImage before = view.grab().toImage();
    view.setMark({QRectF(40, 20, 10, 4)}, "Line 4711");
    const QImage after = view.grab().toImage();
    QVERIFY(after != before);
    const QRectF place = view.frame().toPicture(QRectF(40, 20, 10, 4));
    const QRgb mark = colours().colour(CoilDrawing::Mark).rgb();
    QCOMPARE(after.pixel(int(place.center().x()), qRound(place.bottom())), mark);
    // Beyond the view there are neither mark nor words.
    view.look(QRectF(70, 30, 8, 5));
    const QImage elsewhere = view.grab().toImage();
    for (int y = 0; y < elsewhere.height(); ++y) {
        for (int x = 0; x < elsewhere.width(); ++x)
            QVERIFY(elsewhere.pixel(x, y) != mark);
    }
    view.fit();
    view.setMarking(CoilView::Ways);
    view.setUp(allOfIt);
    view.setMark({QRectF(QPointF(60, 40), QPointF(20, 10))}, QString());
    const QPoint middle = view.frame().toPicture(QPointF(40, 25)).toPoint();
    QCOMPARE(view.grab().toImage().pixel(middle), mark);
}

void TestCoilView::zoomKeysKeepTheMarkInPlace()
{
    SomeView view;
    view.setMark({QRectF(10, 40, 2, 2)}, QString());
    const QPointF before = view.frame().toPicture(QPointF(11, 41));
    view.zoomIn();
    view.zoomIn();
    QVERIFY(isNear(view.frame().toPicture(QPointF(11, 41)), before, 1));
}

void TestCoilView::withoutAPictureNothingHappens()
{
    CoilView view;
    view.resize(viewSize);
    view.show();
    QSignalSpy touched(&view, &CoilView::touched);
    view.zoomIn();
    view.zoomOut();
    QTest::keyClick(&view, Qt::Key_Left);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, QPoint(100, 100));
    QCOMPARE(touched.size(), 0);
    QVERIFY(!view.hasPicture());
    QVERIFY(view.world().isEmpty());
    SomeView other;
    other.clear();
    QVERIFY(!other.hasPicture());
    QVERIFY(other.isFitted());
}

// At the size of a whole panel, while it is dragged and marked.
void TestCoilView::paintingTakesNoTime()
{
    CoilView view;
    view.resize(800, 480);
    view.setColours(colours());
    view.show();
    QVERIFY(TestCompat::waitForExposed(&view));
    QImage image(800, 480, QImage::Format_RGB32);
    image.fill(Qt::white);
    CoilFrame frame;
    frame.area = QRectF(40, 20, 750, 440);
    frame.world = QRectF(0, 0, 75, 44);
    view.setWhole(frame.world, 1);
    view.showPicture(image, frame);
    view.setMark({QRectF(10, 10, 10, 2)}, "Line 1000000");
    view.zoomIn();
    qint64 best = 1000000000;
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(&view, i % 2 ? Qt::Key_Left : Qt::Key_Right);
        QElapsedTimer time;
        time.start();
        view.repaint();
        best = qMin(best, time.nsecsElapsed());
    }
    qInfo("repaint %.2f ms", double(best) / 1e6);
    QVERIFY2(best <= qint64(patience(16)) * 1000000, qPrintable(QString::number(best)));
}

FILARIX_TEST_MAIN(TestCoilView)
#include "tst_coilview.moc"
