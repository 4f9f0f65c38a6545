// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "somecoil.h"
#include "winding/coilpicture.h"
#include "winding/coilplots.h"

typedef CoilDrawing D;

class TestCoilPlots : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void threeCurvesStandOneBelowTheOther();
    void theCurvesHaveTheirUnits();
    void aLongTimeIsInMinutes();
    void aPartHasMorePoints();
    void whatStaysIsALevelLine();
    void theTraverseHasNoSpikes();
    void nothingWoundHasScalesAlone();
};

namespace {

CoilScene plotScene(bool isOverTime)
{
    CoilScene scene;
    scene.kind = CoilScene::Plots;
    scene.size = QSizeF(600, 300);
    scene.isOverTime = isOverTime;
    return scene;
}

CoilDrawing drawn(const WindingModel &model, const CoilScene &scene)
{
    CoilDrawing drawing(scene.size);
    CoilPlots(model, scene).draw(&drawing);
    return drawing;
}

QPolygonF curve(const CoilDrawing &drawing, D::Role role)
{
    QPolygonF points;
    for (int i = 0; i < drawing.shapes().size(); ++i) {
        if (drawing.shapes().at(i).kind == D::Line && drawing.shapes().at(i).edge == role)
            points = drawing.shapes().at(i).points;
    }
    return points;
}

bool says(const CoilDrawing &drawing, const QString &text)
{
    for (int i = 0; i < drawing.shapes().size(); ++i) {
        if (drawing.shapes().at(i).text.contains(text))
            return true;
    }
    return false;
}

} // namespace

void TestCoilPlots::threeCurvesStandOneBelowTheOther()
{
    const CoilScene scene = plotScene(false);
    const CoilDrawing drawing = drawn(SomeCoil::model(6, 40), scene);
    const QRectF traverse = curve(drawing, D::Traverse).boundingRect();
    const QRectF speed = curve(drawing, D::Speed).boundingRect();
    const QRectF tension = curve(drawing, D::Tension).boundingRect();
    QVERIFY(traverse.height() > 30);
    QVERIFY(traverse.bottom() < speed.top());
    QVERIFY(speed.bottom() < tension.top());
    QVERIFY(tension.bottom() < scene.size.height());
    QVERIFY(qAbs(traverse.right() - tension.right()) < 1);
}

void TestCoilPlots::theCurvesHaveTheirUnits()
{
    const WindingModel model = SomeCoil::model(6, 40);
    const CoilDrawing overTurns = drawn(model, plotScene(false));
    QVERIFY(says(overTurns, "Traverse  mm"));
    QVERIFY(says(overTurns, "Speed  1/min"));
    QVERIFY(says(overTurns, "Tension  N"));
    QVERIFY(says(overTurns, "turns"));
    const CoilDrawing overTime = drawn(model, plotScene(true));
    QVERIFY(!says(overTime, "turns"));
    QCOMPARE(CoilPlots(model, plotScene(false)).whole().width(), qreal(240));
    QCOMPARE(CoilPlots(model, plotScene(true)).whole().width(), qreal(model.totals().seconds));
}

void TestCoilPlots::aLongTimeIsInMinutes()
{
    const WindingModel model = SomeCoil::model("G04 F1000\n" + SomeCoil::program(2, 40));
    QVERIFY(model.totals().seconds > 1000);
    const CoilDrawing drawing = drawn(model, plotScene(true));
    QVERIFY(says(drawing, "min"));
    CoilScene part = plotScene(true);
    part.world = QRectF(0, 0, 100, 1);
    bool isInSeconds = false;
    const CoilDrawing seconds = drawn(model, part);
    for (int i = 0; i < seconds.shapes().size(); ++i)
        isInSeconds = isInSeconds || seconds.shapes().at(i).text == "s";
    QVERIFY(isInSeconds);
}

void TestCoilPlots::aPartHasMorePoints()
{
    const WindingModel model = SomeCoil::model(40, 70);
    CoilScene scene = plotScene(false);
    const int ofAll = curve(drawn(model, scene), D::Traverse).size();
    scene.world = QRectF(100, 0, 28, 1);
    const int ofPart = curve(drawn(model, scene), D::Traverse).size();
    QVERIFY2(ofPart > 10 * ofAll, qPrintable(QString("%1 %2").arg(ofAll).arg(ofPart)));
    QVERIFY(ofPart < 100000);
}

// Between two changes nothing rises slowly: the speed is what it is until the next word.
void TestCoilPlots::whatStaysIsALevelLine()
{
    const WindingModel model = SomeCoil::model(6, 40);
    const QPolygonF tension = curve(drawn(model, plotScene(false)), D::Tension);
    QVERIFY(tension.size() > 4);
    for (int i = 1; i < tension.size(); ++i) {
        const QPointF way = tension.at(i) - tension.at(i - 1);
        QVERIFY2(qAbs(way.x()) < 4 || qAbs(way.y()) < 0.5,
                 qPrintable(QString("%1 %2").arg(way.x()).arg(way.y())));
    }
}

// Where one move ends and the next one begins the guide is in one place.
void TestCoilPlots::theTraverseHasNoSpikes()
{
    QByteArray text = "T2\nG00 X0.25 Y14 U5\nS300 M03\n";
    for (int i = 1; i <= 8; ++i)
        text += "G33 X" + QByteArray::number(i * 4) + " K0.5\n";
    const QPolygonF traverse =
        curve(drawn(SomeCoil::model(text + "M05\nM30\n"), plotScene(false)), D::Traverse);
    QVERIFY(traverse.size() > 100);
    for (int i = 2; i < traverse.size(); ++i)
        QVERIFY2(qAbs(traverse.at(i).y() - traverse.at(i - 1).y()) < 5,
                 qPrintable(QString::number(traverse.at(i).y() - traverse.at(i - 1).y())));
}

void TestCoilPlots::nothingWoundHasScalesAlone()
{
    const CoilDrawing drawing = drawn(WindingModel(), plotScene(false));
    QVERIFY(curve(drawing, D::Traverse).isEmpty());
    QVERIFY(says(drawing, "Traverse"));
    QVERIFY(CoilPlots(WindingModel(), plotScene(false)).leastWidth() > 0);
}

FILARIX_TEST_MAIN(TestCoilPlots)
#include "tst_coilplots.moc"
