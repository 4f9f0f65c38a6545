// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "somecoil.h"
#include "winding/coilpicture.h"

#include <QElapsedTimer>

typedef CoilDrawing D;

Q_DECLARE_METATYPE(CoilScene::Kind)

class TestCoilPicture : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachTurnIsACircle();
    void layersHaveColoursOfTheirOwn();
    void tensionHasColours();
    void turnsBehindTheLineAreNotWoundYet();
    void tooSmallTurnsAreDrawnAsLayers();
    void aPartShowsItsTurns();
    void oneCoilAtATimeIsSeen();
    void aCoilIsSeenWithItsBobbin();
    void theScaleGivesWayToTheNumberOfTheCoil();
    void anEmptyProgramShowsTheBobbin();
    void theGuidesPathHasItsKinds();
    void nothingIsDrawnBesideThePicture_data();
    void nothingIsDrawnBesideThePicture();
    void aTouchLeadsToItsLine_data();
    void aTouchLeadsToItsLine();
    void aWayHasItsBeginAndItsEnd();
    void aTouchBesideTheCoilLeadsNowhere();
    void aLineThatWindsNothingHasItsPlace();
    void theCoilOfALineIsKnown();
    void scenesDiffer();
    void theSheetHasAllOfIt();
    void aLongProgramIsDrawnAtOnce();
    void aMoveOfCountlessTurnsIsDrawnAtOnce();
};

namespace {

CoilScene sceneOf(CoilScene::Kind kind, int width = 700, int height = 380)
{
    CoilScene scene;
    scene.kind = kind;
    scene.size = QSizeF(width, height);
    return scene;
}

QVector<D::Shape> shapesOf(const CoilDrawing &drawing, D::Kind kind, D::Role role)
{
    QVector<D::Shape> found;
    for (int i = 0; i < drawing.shapes().size(); ++i) {
        const D::Shape &shape = drawing.shapes().at(i);
        if (shape.kind == kind && (shape.fill == role || shape.edge == role))
            found.append(shape);
    }
    return found;
}

QStringList textsOf(const CoilDrawing &drawing)
{
    QStringList texts;
    for (int i = 0; i < drawing.shapes().size(); ++i) {
        if (drawing.shapes().at(i).kind == D::Text)
            texts.append(drawing.shapes().at(i).text);
    }
    return texts;
}

QPointF middleOf(const QRectF &place)
{
    return place.center();
}

WindingModel twoCoils()
{
    QByteArray first = SomeCoil::program(2, 20);
    first.replace("M30\n", "");
    return SomeCoil::model(first + SomeCoil::program(3, 20));
}

} // namespace

void TestCoilPicture::eachTurnIsACircle()
{
    const WindingModel model = SomeCoil::model(4, 40);
    const CoilPicture picture(model, sceneOf(CoilScene::Section));
    const QVector<D::Shape> wires = shapesOf(picture.drawing(), D::Circle, D::Wire);
    QCOMPARE(wires.size(), 160);
    // As large as the wire, side by side, none beyond the picture.
    const qreal scale = picture.frame().xScale();
    for (int i = 0; i < wires.size(); ++i) {
        QVERIFY(qAbs(wires.at(i).box.width() - qreal(model.totals().wireDiameter) * scale) < 0.01);
        QVERIFY(picture.frame().area.contains(wires.at(i).box));
    }
    QVERIFY(qAbs(wires.at(1).box.center().x() - wires.at(0).box.center().x()
                 - qreal(SomeCoil::pitch) * scale)
            < 0.01);
    // The second layer comes back, above the first one.
    QVERIFY(wires.at(41).box.center().x() < wires.at(40).box.center().x());
    QVERIFY(wires.at(40).box.center().y() < wires.at(39).box.center().y());
}

void TestCoilPicture::layersHaveColoursOfTheirOwn()
{
    const WindingModel model = SomeCoil::model(5, 10);
    const CoilPicture picture(model, sceneOf(CoilScene::Section));
    const QVector<D::Shape> wires = shapesOf(picture.drawing(), D::Circle, D::Wire);
    QCOMPARE(wires.size(), 50);
    for (int layer = 0; layer < 5; ++layer) {
        QCOMPARE(wires.at(layer * 10).shade, float(layer / 4.0));
        QCOMPARE(wires.at(layer * 10 + 9).shade, float(layer / 4.0));
    }
    QVERIFY(textsOf(picture.drawing()).contains("Layer 1"));
    QVERIFY(textsOf(picture.drawing()).contains("5"));
}

void TestCoilPicture::tensionHasColours()
{
    const WindingModel model = SomeCoil::model(5, 40);
    CoilScene scene = sceneOf(CoilScene::Section);
    scene.colours = CoilScene::ByTension;
    const CoilPicture picture(model, scene);
    const QVector<D::Shape> wires = shapesOf(picture.drawing(), D::Circle, D::Wire);
    QCOMPARE(wires.size(), 200);
    // It falls from layer to layer.
    for (int layer = 1; layer < 5; ++layer)
        QVERIFY(wires.at(layer * 40 + 20).shade < wires.at(layer * 40 - 20).shade);
    QVERIFY(textsOf(picture.drawing()).join("|").contains("5 N"));
}

void TestCoilPicture::turnsBehindTheLineAreNotWoundYet()
{
    const WindingModel model = SomeCoil::model(4, 40);
    CoilScene scene = sceneOf(CoilScene::Section);
    scene.wantedLine = SomeCoil::line(1);
    const CoilPicture half(model, scene);
    QCOMPARE(shapesOf(half.drawing(), D::Circle, D::Wire).size(), 80);
    QCOMPARE(shapesOf(half.drawing(), D::Circle, D::PaleWire).size(), 80);
    scene.wantedLine = 1;
    QCOMPARE(shapesOf(CoilPicture(model, scene).drawing(), D::Circle, D::Wire).size(), 0);
    scene.wantedLine = 1000;
    QCOMPARE(shapesOf(CoilPicture(model, scene).drawing(), D::Circle, D::PaleWire).size(), 0);
}

void TestCoilPicture::tooSmallTurnsAreDrawnAsLayers()
{
    const WindingModel model = SomeCoil::model(20, 70);
    const CoilPicture picture(model, sceneOf(CoilScene::Section, 110, 90));
    QCOMPARE(shapesOf(picture.drawing(), D::Circle, D::Wire).size(), 0);
    const int bars = shapesOf(picture.drawing(), D::Box, D::Wire).size();
    QVERIFY2(bars >= 20, qPrintable(QString::number(bars)));
    QVERIFY(bars < 100);
}

void TestCoilPicture::aPartShowsItsTurns()
{
    const WindingModel model = SomeCoil::model(20, 70);
    CoilScene scene = sceneOf(CoilScene::Section);
    const CoilPicture whole(model, scene);
    scene.world = QRectF(10, whole.frame().world.top() + 3, 8, 5);
    const CoilPicture part(model, scene);
    QVERIFY(part.frame().world.width() >= 8);
    QVERIFY(part.frame().world.width() < 12);
    QVERIFY(qAbs(part.frame().xScale() - part.frame().yScale()) < 1e-6);
    const int circles = shapesOf(part.drawing(), D::Circle, D::Wire).size();
    QVERIFY2(circles > 50 && circles < 500, qPrintable(QString::number(circles)));
    QVERIFY(part.whole().contains(part.frame().world));
    QVERIFY(part.leastWidth() > 0 && part.leastWidth() < 8);
}

void TestCoilPicture::oneCoilAtATimeIsSeen()
{
    const WindingModel model = twoCoils();
    CoilScene scene = sceneOf(CoilScene::Section);
    QCOMPARE(shapesOf(CoilPicture(model, scene).drawing(), D::Circle, D::Wire).size(), 40);
    scene.coil = 1;
    const CoilPicture second(model, scene);
    QCOMPARE(shapesOf(second.drawing(), D::Circle, D::Wire).size(), 60);
    QVERIFY(textsOf(second.drawing()).contains("Coil 2 of 2"));
}

void TestCoilPicture::aCoilIsSeenWithItsBobbin()
{
    const WindingModel model = SomeCoil::model(4, 70);
    const CoilPicture picture(model, sceneOf(CoilScene::Section));
    QCOMPARE(shapesOf(picture.drawing(), D::Box, D::Bobbin).size(), 3);
    const MachineBobbin bobbin = model.profile().bobbin();
    QVERIFY(picture.frame().world.left() < bobbin.left);
    QVERIFY(picture.frame().world.right() > bobbin.right());
    QVERIFY(picture.frame().world.top() < bobbin.coreDiameter / 2);
    // The whole has the flanges up to their rims.
    QVERIFY(picture.whole().bottom() > bobbin.flangeDiameter / 2);
}

void TestCoilPicture::theScaleGivesWayToTheNumberOfTheCoil()
{
    const WindingModel model = twoCoils();
    for (int width = 240; width <= 700; width += 20) {
        const CoilPicture picture(model, sceneOf(CoilScene::Section, width, 240));
        qreal coilEnds = 0;
        qreal scaleBegins = 0;
        for (int i = 0; i < picture.drawing().shapes().size(); ++i) {
            const D::Shape &shape = picture.drawing().shapes().at(i);
            if (shape.text == QLatin1String("Coil 1 of 2"))
                coilEnds = shape.box.left() + D::textWidth(shape.text, shape.width);
            if (shape.text == QLatin1String("Layer 1"))
                scaleBegins = shape.box.left() - D::textWidth(shape.text, shape.width);
        }
        QVERIFY(coilEnds > 0);
        QVERIFY2(coilEnds < scaleBegins, qPrintable(QString::number(width)));
    }
}

void TestCoilPicture::anEmptyProgramShowsTheBobbin()
{
    const WindingModel model = SomeCoil::model(QByteArray());
    const CoilPicture section(model, sceneOf(CoilScene::Section));
    QCOMPARE(shapesOf(section.drawing(), D::Box, D::Bobbin).size(), 3);
    QCOMPARE(shapesOf(section.drawing(), D::Circle, D::Wire).size(), 0);
    QVERIFY(!section.frame().isNull());
    QVERIFY(!CoilPicture(model, sceneOf(CoilScene::Path)).frame().isNull());
    QVERIFY(!CoilPicture(model, sceneOf(CoilScene::Plots)).frame().isNull());
    // A machine that nobody knows, as well.
    const CoilPicture nobodys((WindingModel()), sceneOf(CoilScene::Section));
    QVERIFY(!nobodys.frame().isNull());
    QVERIFY(!nobodys.drawing().isEmpty());
    QVERIFY(CoilPicture().drawing().isEmpty());
}

void TestCoilPicture::theGuidesPathHasItsKinds()
{
    const WindingModel model = SomeCoil::model(4, 40);
    const CoilPicture picture(model, sceneOf(CoilScene::Path));
    const QVector<D::Shape> winding = shapesOf(picture.drawing(), D::Line, D::Winding);
    QVERIFY(winding.size() >= 4);
    const QVector<D::Shape> rapid = shapesOf(picture.drawing(), D::Line, D::Rapid);
    QVERIFY(rapid.size() >= 2);
    for (int i = 0; i < rapid.size(); ++i)
        QVERIFY(rapid.at(i).isDashed);
    QVERIFY(shapesOf(picture.drawing(), D::Line, D::Feed).size() >= 3);
    // To the parking place and back.
    QVERIFY(picture.frame().world.contains(QPointF(-5, 40)));
    QVERIFY(textsOf(picture.drawing()).contains("rapid"));
}

void TestCoilPicture::nothingIsDrawnBesideThePicture_data()
{
    QTest::addColumn<CoilScene::Kind>("kind");
    QTest::addColumn<QSize>("size");
    const CoilScene::Kind kinds[] = {CoilScene::Section, CoilScene::Path, CoilScene::Plots};
    const QSize sizes[] = {QSize(340, 228), QSize(480, 400), QSize(272, 280), QSize(900, 420)};
    for (int kind = 0; kind < 3; ++kind) {
        for (int size = 0; size < 4; ++size)
            QTest::newRow(qPrintable(QString("%1 %2").arg(kind).arg(sizes[size].width())))
                << kinds[kind] << sizes[size];
    }
}

void TestCoilPicture::nothingIsDrawnBesideThePicture()
{
    QFETCH(CoilScene::Kind, kind);
    QFETCH(QSize, size);
    const WindingModel model = SomeCoil::model(20, 70);
    CoilScene scene = sceneOf(kind, size.width(), size.height());
    scene.letters = size.width() < 400 ? 10 : 12;
    const CoilPicture picture(model, scene);
    bool isClipped = false;
    int texts = 0;
    for (int i = 0; i < picture.drawing().shapes().size(); ++i) {
        const D::Shape &shape = picture.drawing().shapes().at(i);
        if (shape.kind == D::Clip)
            isClipped = !shape.box.isNull();
        if (shape.kind == D::Text) {
            const qreal width = D::textWidth(shape.text, shape.width, shape.isBold);
            const qreal left = shape.anchor == D::AtRight    ? shape.box.x() - width
                               : shape.anchor == D::InMiddle ? shape.box.x() - width / 2
                                                             : shape.box.x();
            QVERIFY2(left >= 0 && left + width <= size.width() + 1, qPrintable(shape.text));
            QVERIFY2(shape.box.y() >= shape.width * 0.7 && shape.box.y() <= size.height(),
                     qPrintable(shape.text));
            ++texts;
        } else if (!isClipped && shape.kind == D::Box) {
            QVERIFY(QRectF(-1, -1, size.width() + 2, size.height() + 2).contains(shape.box));
        }
    }
    QVERIFY(texts > 4);
    QVERIFY(!isClipped);
}

void TestCoilPicture::aTouchLeadsToItsLine_data()
{
    QTest::addColumn<CoilScene::Kind>("kind");
    QTest::addColumn<bool>("isOverTime");
    QTest::newRow("section") << CoilScene::Section << false;
    QTest::newRow("path") << CoilScene::Path << false;
    QTest::newRow("turns") << CoilScene::Plots << false;
    QTest::newRow("time") << CoilScene::Plots << true;
}

void TestCoilPicture::aTouchLeadsToItsLine()
{
    QFETCH(CoilScene::Kind, kind);
    QFETCH(bool, isOverTime);
    const WindingModel model = SomeCoil::model(6, 40);
    CoilScene scene = sceneOf(kind);
    scene.isOverTime = isOverTime;
    for (int layer = 0; layer < 6; ++layer) {
        const int line = SomeCoil::line(layer);
        const QVector<QRectF> places = CoilPicture::placesOf(model, scene, line);
        QCOMPARE(places.size(), 1);
        QCOMPARE(CoilPicture::lineAt(model, scene, middleOf(places.first()), 0.2), line);
        // It is in the picture, where somebody can touch it.
        QVERIFY(CoilPicture(model, scene).frame().world.contains(middleOf(places.first())));
    }
}

void TestCoilPicture::aWayHasItsBeginAndItsEnd()
{
    const WindingModel model = SomeCoil::model("G00 X10 Y30\nG00 X2 Y40\nG00 X8 Y35\n");
    const CoilScene scene = sceneOf(CoilScene::Path);
    const QRectF back = CoilPicture::placesOf(model, scene, 2).value(0);
    QCOMPARE(back.topLeft(), QPointF(10, 30));
    QCOMPARE(back.bottomRight(), QPointF(2, 40));
    const QRectF down = CoilPicture::placesOf(model, scene, 3).value(0);
    QCOMPARE(down.topLeft(), QPointF(2, 40));
    QCOMPARE(down.bottomRight(), QPointF(8, 35));
}

void TestCoilPicture::aTouchBesideTheCoilLeadsNowhere()
{
    const WindingModel model = SomeCoil::model(4, 40);
    QCOMPARE(CoilPicture::lineAt(model, sceneOf(CoilScene::Section), QPointF(10, 45), 0.5), 0);
    QCOMPARE(CoilPicture::lineAt(model, sceneOf(CoilScene::Path), QPointF(80, 80), 0.5), 0);
    QCOMPARE(CoilPicture::lineAt(model, sceneOf(CoilScene::Plots), QPointF(-5, 0.5), 0.5), 0);
    QCOMPARE(CoilPicture::lineAt(WindingModel(), sceneOf(CoilScene::Section), QPointF(1, 1), 9), 0);
}

void TestCoilPicture::aLineThatWindsNothingHasItsPlace()
{
    const WindingModel model = SomeCoil::model(4, 40);
    // The first rapid move.
    QCOMPARE(CoilPicture::placesOf(model, sceneOf(CoilScene::Section), 4).size(), 1);
    QCOMPARE(CoilPicture::placesOf(model, sceneOf(CoilScene::Path), 4).size(), 1);
    // "G21" and what is no line at all.
    QCOMPARE(CoilPicture::placesOf(model, sceneOf(CoilScene::Section), 1).size(), 0);
    QCOMPARE(CoilPicture::placesOf(model, sceneOf(CoilScene::Section), 0).size(), 0);
    QCOMPARE(CoilPicture::placesOf(model, sceneOf(CoilScene::Section), 100000).size(), 0);
}

void TestCoilPicture::theCoilOfALineIsKnown()
{
    const WindingModel model = twoCoils();
    const int second = model.layers().last().firstLine;
    QCOMPARE(CoilPicture::coilAt(model, 1), 0);
    QCOMPARE(CoilPicture::coilAt(model, SomeCoil::line(1)), 0);
    QCOMPARE(CoilPicture::coilAt(model, second), 1);
    QCOMPARE(CoilPicture::coilAt(model, 100000), 1);
    QCOMPARE(CoilPicture::coilAt(WindingModel(), 5), 0);
}

void TestCoilPicture::scenesDiffer()
{
    const CoilScene scene = sceneOf(CoilScene::Section);
    QVERIFY(scene == sceneOf(CoilScene::Section));
    QVERIFY(scene != sceneOf(CoilScene::Path));
    QVERIFY(scene != sceneOf(CoilScene::Section, 701));
    CoilScene other = scene;
    other.wantedLine = 3;
    QVERIFY(other != scene);
    other = scene;
    other.world = QRectF(0, 0, 1, 1);
    QVERIFY(other != scene);
}

void TestCoilPicture::theSheetHasAllOfIt()
{
    const WindingModel model = SomeCoil::model(4, 40);
    const CoilDrawing sheet = CoilPicture::sheet(model, "stator <1>");
    const QStringList texts = textsOf(sheet);
    QVERIFY(texts.contains("stator <1>"));
    QVERIFY(texts.contains("160"));
    QVERIFY(texts.contains("Layer 1"));
    QVERIFY(texts.contains("rapid"));
    QVERIFY(texts.filter("Traverse").size() == 1);
    QCOMPARE(shapesOf(sheet, D::Circle, D::Wire).size(), 160);
    const QByteArray svg = sheet.svg(D::lightPalette());
    QVERIFY(svg.contains("stator &lt;1&gt;"));
    QVERIFY(svg.endsWith("</svg>\n"));
}

// A bounded number of shapes in a bounded time, however long the program is.
void TestCoilPicture::aLongProgramIsDrawnAtOnce()
{
    QByteArray text = "T2\nG00 X0.25 Y14 U5\nS300 M03\n";
    const int lines = scaled(1000000, 20000);
    for (int i = 0; i < lines; ++i)
        text += "G33 X" + QByteArray::number(0.25 + (i * 7 % 70) * 0.5) + " Y"
                + QByteArray::number(14 + i % 40) + " K0.5\n";
    const WindingModel model = SomeCoil::model(text + "M30\n");
    for (int kind = 0; kind < 3; ++kind) {
        QElapsedTimer time;
        time.start();
        const CoilPicture picture(model, sceneOf(CoilScene::Kind(kind), 800, 480));
        QVERIFY2(time.elapsed() <= patience(300), qPrintable(QString::number(time.elapsed())));
        QVERIFY(picture.drawing().shapes().size() < 2 * CoilPicture::mostCircles);
    }
}

// A pitch with a slip of the thumb.
void TestCoilPicture::aMoveOfCountlessTurnsIsDrawnAtOnce()
{
    const WindingModel model = SomeCoil::model("T2\nG00 X0.25 Y14 U5\nS300 M03\nG33 X35 K0.5\n"
                                               "G33 X0.25 K0.00000001\nM30\n");
    QVERIFY(model.totals().turns > 3e9);
    CoilScene scene = sceneOf(CoilScene::Section, 800, 480);
    QElapsedTimer time;
    time.start();
    const CoilPicture whole(model, scene);
    QVERIFY(shapesOf(whole.drawing(), D::Circle, D::Wire).isEmpty());
    scene.world = QRectF(10, whole.frame().world.top() + 3, whole.leastWidth(), 0.5);
    const CoilPicture part(model, scene);
    QVERIFY(part.drawing().shapes().size() < 2 * CoilPicture::mostCircles);
    // Half a wire beside the layer its outermost turns reach into view.
    const qreal width = whole.leastWidth();
    scene.world = QRectF(qreal(0.2) - width, whole.frame().world.top() + 3, width, 0.5);
    const CoilPicture beside(model, scene);
    QVERIFY(beside.drawing().shapes().size() < 2 * CoilPicture::mostCircles);
    QVERIFY2(time.elapsed() <= patience(300), qPrintable(QString::number(time.elapsed())));
}

FILARIX_TEST_MAIN(TestCoilPicture)
#include "tst_coilpicture.moc"
