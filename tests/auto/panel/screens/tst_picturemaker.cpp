// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/picturemaker.h"
#include "somecoil.h"

#include <QElapsedTimer>
#include <QScopedPointer>
#include <QSignalSpy>

Q_DECLARE_METATYPE(PictureMaker::Picture)

class TestPictureMaker : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aPictureIsThatOfItsScene();
    void ofManyOrdersTheLastOneCounts();
    void whatIsCancelledDoesNotCome();
    void aMakerMayGoWhileItDraws();
    void theFirstPictureComesSoon();

private:
    static PictureMaker::Order order(const WindingModel &model, int width);
};

void TestPictureMaker::initTestCase()
{
    qRegisterMetaType<PictureMaker::Picture>("PictureMaker::Picture");
}

PictureMaker::Order TestPictureMaker::order(const WindingModel &model, int width)
{
    PictureMaker::Order order;
    order.model = model;
    order.scene.size = QSizeF(width, 300);
    order.palette = CoilDrawing::lightPalette();
    return order;
}

void TestPictureMaker::aPictureIsThatOfItsScene()
{
    const WindingModel model = SomeCoil::model(4, 40);
    const PictureMaker::Picture picture = PictureMaker::draw(order(model, 500));
    QCOMPARE(picture.image.size(), QSize(500, 300));
    QVERIFY(picture.whole.contains(picture.frame.world));
    QVERIFY(picture.leastWidth > 0);
    // A wire is where the frame says that it is, and paper is above it.
    const WindingLayer layer = model.layers().first();
    const QPointF wire(layer.left + 0.25, layer.diameter / 2);
    const QPoint pixel = picture.frame.toPicture(wire).toPoint();
    QCOMPARE(picture.image.pixelColor(pixel).name(),
             CoilDrawing::lightPalette().scale.first().name());
    QCOMPARE(picture.image.pixelColor(pixel.x(), int(picture.frame.area.top()) + 2).name(),
             QColor(Qt::white).name());
}

void TestPictureMaker::ofManyOrdersTheLastOneCounts()
{
    PictureMaker maker;
    QList<int> widths;
    connect(&maker, &PictureMaker::made, &maker,
            [&](const PictureMaker::Picture &picture) { widths.append(picture.image.width()); });
    const WindingModel model = SomeCoil::model(28, 70);
    for (int i = 0; i < 20; ++i)
        maker.order(order(model, 300 + i));
    QVERIFY(maker.isRunning());
    QTRY_VERIFY(!maker.isRunning());
    QCOMPARE(widths, QList<int>({300, 319}));
}

void TestPictureMaker::whatIsCancelledDoesNotCome()
{
    PictureMaker maker;
    QSignalSpy made(&maker, &PictureMaker::made);
    const WindingModel model = SomeCoil::model(4, 40);
    maker.order(order(model, 300));
    maker.order(order(model, 301));
    maker.cancel();
    maker.order(order(model, 302));
    QTRY_VERIFY(!maker.isRunning());
    QCOMPARE(made.size(), 1);
    QCOMPARE(made.at(0).at(0).value<PictureMaker::Picture>().image.width(), 302);
}

void TestPictureMaker::aMakerMayGoWhileItDraws()
{
    QScopedPointer<PictureMaker> maker(new PictureMaker);
    maker->order(order(SomeCoil::model(28, 70), 700));
    maker.reset();
    QVERIFY(!maker);
}

void TestPictureMaker::theFirstPictureComesSoon()
{
    const WindingModel model = SomeCoil::model(28, 72);
    PictureMaker maker;
    QSignalSpy made(&maker, &PictureMaker::made);
    QElapsedTimer time;
    time.start();
    maker.order(order(model, 800));
    QTRY_COMPARE(made.size(), 1);
    qInfo("a picture after %lld ms", time.elapsed());
    QVERIFY2(time.elapsed() <= patience(300), qPrintable(QString::number(time.elapsed())));
}

FILARIX_TEST_MAIN(TestPictureMaker)
#include "tst_picturemaker.moc"
