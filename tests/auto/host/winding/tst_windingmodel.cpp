// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "windingprogram.h"

#include <cmath>

using WindingProgram::modelOf;
using WindingProgram::profileWith;
using WindingProgram::promptProfile;

class TestWindingModel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void testCoil();
    void statorCoil();
    void enduranceRun();
    void massAndResistance();
    void conductorOfTheProfile();
    void timeOfTheTestCoil();
    void spindleRamps_data();
    void spindleRamps();
    void stopWaitsForTheSpindle();
    void reverseGoesThroughStandstill();
    void fractionsOfTurns();
    void correctionsWithinALayerMakeNone();
    void guideThatNeverDrawsBack();
    void guideThatDrawsBackForSeveralLayers();
    void layersAllFromOneSide();
    void tapeBetweenLayers();
    void nestedLayersNeedTheGuideToWait();
    void growthByWireAndByNesting();
    void backAtTheCoreIsAnotherCoil();
    void tieIsNoLayer();
    void feedWithTurningSpindle();
    void placingWithTurningSpindleLaysNothing();
    void nothingIsWoundWithout_data();
    void nothingIsWoundWithout();
    void behindTheEndNothingIsWound();
    void overfullCoilHasItsLine();
    void coilUpToTheFlangeIsNotOverfull();
    void inches();
    void placesOfLines();
    void linesOfPlaces();
    void linesOfTurnsAndTimes();
    void turnsAndLinesAgree();
    void plotOverTurns();
    void plotOverTime();
    void pitchOfAFeedIsThatOfTheSteadySpindle();
    void speedOfALongMoveIsEven();
    void plotOfNothing();
    void plotKeepsExtremes();
    void pathKeepsItsEnds();
    void recordsAreBounded();
    void layersAreBounded();
    void copiesAreOfTheirOwn();
    void emptyProgram();
};

static const double pi = 3.14159265358979323846;

/// Within a thousandth of what is expected.
static bool isNear(double value, double expected)
{
    return std::fabs(value - expected) <= 0.001 * std::fabs(expected);
}

#define VERIFY_NEAR(value, expected)                                                               \
    QVERIFY2(isNear(value, expected),                                                              \
             qPrintable(QString("%1 instead of %2").arg(value).arg(expected)))

static QByteArray sample(const char *name)
{
    const QByteArray program = FilarixTest::readFile(QString(FILARIX_SAMPLES "/") + name);
    if (program.isEmpty())
        qFatal("There is no %s.", name);
    return program;
}

static QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 6);
}

/// Layers of 0.5 mm wire between 0.25 and 10.25: 20 turns each.
static QByteArray plainLayers(int count, double growth, const QByteArray &between = QByteArray())
{
    QByteArray program = "G00 X0.25 Y10\nS600 M03\n";
    for (int i = 0; i < count; ++i) {
        program += "G01 Y" + number(10 + i * growth) + " F6000\n";
        program += i % 2 == 0 ? "G33 X10.25 K0.5\n" : "G33 X0.25 K0.5\n";
        program += between;
    }
    return program;
}

static double turnsOf(const WindingModel &model)
{
    double turns = 0;
    for (const WindingLayer &layer : model.layers())
        turns += layer.turns;
    return turns;
}

void TestWindingModel::testCoil()
{
    const WindingModel model = modelOf(sample("test-coil.cnc"));
    const WindingTotals totals = model.totals();
    QCOMPARE(totals.turns, 200.0);
    QCOMPARE(totals.layers, 4);
    QCOMPARE(totals.coils, 1);
    QCOMPARE(totals.lines, 37);
    QCOMPARE(totals.wireDiameter, 0.25);
    QCOMPARE(totals.outerDiameter, 15.0);
    QCOMPARE(totals.highestTension, 2.5);
    QCOMPARE(totals.highestSpeed, 600.0);
    QCOMPARE(totals.overfullLine, 0);
    const int lines[] = {14, 20, 25, 31};
    double sum = 0;
    for (int i = 0; i < 4; ++i) {
        const WindingLayer &layer = model.layers().at(i);
        const double diameter = 13.25 + i * 0.5;
        QCOMPARE(layer.turns, 50.0);
        QCOMPARE(layer.firstTurn, i * 50.0);
        QCOMPARE(layer.level, i);
        QCOMPARE(layer.direction, i % 2 == 0 ? 1 : -1);
        QCOMPARE(layer.left, 0.125);
        QCOMPARE(layer.right, 12.625);
        QCOMPARE(layer.diameter, diameter);
        QCOMPARE(layer.firstLine, lines[i]);
        QCOMPARE(layer.lastLine, lines[i]);
        QVERIFY(!layer.isNested);
        sum += 50 * pi * diameter;
    }
    VERIFY_NEAR(totals.wireLength, sum / 1000);
}

void TestWindingModel::statorCoil()
{
    const WindingModel model = modelOf(sample("stator-coil.cnc"));
    const WindingTotals totals = model.totals();
    QCOMPARE(totals.turns, 2016.0);
    QCOMPARE(totals.layers, 28);
    QCOMPARE(totals.coils, 1);
    double sum = 0;
    for (int i = 0; i < 28; ++i) {
        const WindingLayer &layer = model.layers().at(i);
        QCOMPARE(layer.turns, 72.0);
        QCOMPARE(layer.direction, i % 2 == 0 ? 1 : -1);
        QCOMPARE(layer.left, 0.25);
        QCOMPARE(layer.right, 35.75);
        QVERIFY(layer.isNested);
        // The guide draws back by 0.435 mm a layer, in hundredths.
        VERIFY_NEAR(layer.diameter, 13.5 + i * 0.87);
        sum += 72 * pi * (13.5 + i * 0.87);
    }
    VERIFY_NEAR(totals.wireLength, sum / 1000);
}

void TestWindingModel::enduranceRun()
{
    // The same sums as the maker's, in hundredths of a millimetre.
    double turns = 0;
    double length = 0;
    int at = 0;
    int core = 0;
    for (int layer = 1; layer <= 950; ++layer) {
        const int distance = 1200 + layer % 190 * 22;
        if (layer == 1 || layer % 190 == 0)
            core = distance;
        int way = 0;
        for (int section = 1; section <= 18; ++section) {
            const int forth = section * 200 + layer % 7 * 3;
            const int position = layer % 2 ? 3800 - forth : forth;
            way += std::abs(position - at);
            at = position;
        }
        turns += way / 22.0;
        length += way / 22.0 * pi * (13.22 + 2 * (distance - core) / 100.0);
    }
    const WindingModel model = modelOf(sample("endurance-run.cnc"));
    const WindingTotals totals = model.totals();
    QCOMPARE(totals.lines, 20000);
    QCOMPARE(totals.layers, 950);
    // The guide comes back to the core behind each 190th distance.
    QCOMPARE(totals.coils, 6);
    QVERIFY(std::fabs(totals.turns - turns) < 1e-6);
    VERIFY_NEAR(totals.wireLength, length / 1000);
    VERIFY_NEAR(totals.outerDiameter, 13.22 + 2 * 189 * 0.22 + 0.22);
    QVERIFY(std::fabs(turnsOf(model) - totals.turns) < 1e-6);
    for (int i = 0; i < 950; ++i)
        QCOMPARE(model.layers().at(i).firstLine, 11 + i * 21);
}

void TestWindingModel::massAndResistance()
{
    const WindingTotals totals = modelOf(sample("test-coil.cnc")).totals();
    const double area = pi / 4 * 0.25 * 0.25;
    QCOMPARE(totals.conductorDiameter, 0.25);
    VERIFY_NEAR(totals.mass, totals.wireLength * area * 8.89);
    VERIFY_NEAR(totals.resistance, totals.wireLength * 0.017241 / area);
    VERIFY_NEAR(totals.fillFactor, 200 * area / (38 * (100 - 13) / 2.0));
}

void TestWindingModel::conductorOfTheProfile()
{
    const MachineProfile profile =
        profileWith("diameter = pitch\nmetal = copper", "size = 0.224 grade 1\nmetal = aluminium");
    const WindingTotals totals = modelOf(sample("test-coil.cnc"), profile).totals();
    QCOMPARE(totals.wireDiameter, 0.252);
    QCOMPARE(totals.conductorDiameter, 0.224);
    const double area = pi / 4 * 0.224 * 0.224;
    VERIFY_NEAR(totals.mass, totals.wireLength * area * 2.703);
    VERIFY_NEAR(totals.resistance, totals.wireLength * 0.028264 / area);
    VERIFY_NEAR(totals.wireLength, 50 * pi * 4 * (13.252 + 0.75) / 1000);
}

void TestWindingModel::timeOfTheTestCoil()
{
    const WindingTotals totals = modelOf(sample("test-coil.cnc"), promptProfile()).totals();
    // Tension up and down, layers at 300 and 600 a minute, three dwells, three steps of the guide.
    const double seconds = 2 * 0.75 + 2 * 10 + 2 * 5 + 3 * 0.2 + 3 * 0.0375;
    QVERIFY(std::fabs(totals.seconds - seconds) < 1e-9);
    // One turn and two times two while the guide waits, and what the spindle turns as it draws
    // back.
    QVERIFY(std::fabs(totals.looseTurns - (1 + 2 + 2 + 0.0375 * (5 + 10 + 10))) < 1e-9);
}

void TestWindingModel::spindleRamps_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<double>("seconds");
    // By 600 a minute each second: half a second and 1.25 turns up to 300.
    QTest::newRow("up") << QByteArray("S300 M03\nG33 X12.5 K0.25") << 0.5 + 48.75 / 5;
    QTest::newRow("not yet up") << QByteArray("S300 M03\nG33 X0.125 K0.25")
                                << std::sqrt(2 * 0.5 / 10.0);
    QTest::newRow("up further") << QByteArray("S300 M03\nG04 F1\nS600\nG33 X12.5 K0.25")
                                << 1 + 0.5 + (50 - 3.75) / 10;
    QTest::newRow("down") << QByteArray("S600 M03\nG04 F2\nS300\nG33 X12.5 K0.25")
                          << 2 + 0.5 + (50 - 3.75) / 5;
    QTest::newRow("stop") << QByteArray("S300 M03\nG04 F1\nM05") << 1 + 0.5;
}

void TestWindingModel::spindleRamps()
{
    QFETCH(QByteArray, program);
    QFETCH(double, seconds);
    const double measured = modelOf(program).totals().seconds;
    QVERIFY2(std::fabs(measured - seconds) < 1e-9,
             qPrintable(QString("%1 instead of %2").arg(measured).arg(seconds)));
}

void TestWindingModel::stopWaitsForTheSpindle()
{
    const WindingTotals totals = modelOf("S600 M03\nG04 F1\nM05").totals();
    // A second up to 600, and a second down.
    QVERIFY(std::fabs(totals.looseTurns - 10) < 1e-9);
    QVERIFY(std::fabs(totals.seconds - 2) < 1e-9);
}

void TestWindingModel::reverseGoesThroughStandstill()
{
    const WindingTotals totals = modelOf("S600 M03\nG04 F1\nM04\nG04 F2").totals();
    QVERIFY(std::fabs(totals.looseTurns - 15) < 1e-9);
    const WindingModel reverse = modelOf("S600 M03\nG04 F1\nM04\nG33 X5 K0.5");
    QVERIFY(std::fabs(reverse.totals().looseTurns - 10) < 1e-9);
    QCOMPARE(reverse.totals().turns, 10.0);
}

void TestWindingModel::fractionsOfTurns()
{
    const WindingModel model = modelOf("S300 M03\nG33 X1.3 K0.4\nG33 X2.1 K0.4");
    QVERIFY(std::fabs(model.totals().turns - 5.25) < 1e-9);
    QCOMPARE(model.totals().layers, 1);
    QCOMPARE(model.layers().first().lastLine, 3);
}

void TestWindingModel::correctionsWithinALayerMakeNone()
{
    const WindingModel model =
        modelOf("S300 M03\nG00 Y10\nG33 X5 K0.5\nG01 Y9.7 F400\nG33 X10 K0.5\n"
                "G01 Y10.5 F400\nG33 X5 K0.5\nG01 Y10.2 F400\nG33 X0 K0.5\n");
    QCOMPARE(model.layers().size(), 2);
    QCOMPARE(model.layers().at(0).turns, 20.0);
    QCOMPARE(model.layers().at(1).turns, 20.0);
    QCOMPARE(model.layers().at(1).diameter, 13.5 + 2 * 0.5);
}

void TestWindingModel::guideThatNeverDrawsBack()
{
    const WindingModel model = modelOf(plainLayers(5, 0));
    QCOMPARE(model.layers().size(), 5);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(model.layers().at(i).turns, 20.0);
        QCOMPARE(model.layers().at(i).diameter, 13.5 + i * 1.0);
        QCOMPARE(model.layers().at(i).level, i);
    }
}

void TestWindingModel::guideThatDrawsBackForSeveralLayers()
{
    QByteArray program = "G00 X0 Y10\nS600 M03\n";
    for (int i = 0; i < 3; ++i)
        program += "G01 Y" + number(10 + i * 1.5)
                   + " F6000\nG33 X10 K0.5\nG33 X0 K0.5\nG33 X10 K0.5\nG00 X0\n";
    const WindingModel model = modelOf(program);
    QCOMPARE(model.layers().size(), 9);
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(model.layers().at(i).turns, 20.0);
        QCOMPARE(model.layers().at(i).diameter, 13.5 + i * 1.0);
    }
}

void TestWindingModel::layersAllFromOneSide()
{
    QByteArray program = "G00 X0 Y10\nS600 M03\n";
    for (int i = 0; i < 4; ++i)
        program += "G01 Y" + number(10 + i * 0.5) + " F6000\nG33 X10 K0.5\nG00 X0\n";
    const WindingModel model = modelOf(program);
    QCOMPARE(model.layers().size(), 4);
    for (const WindingLayer &layer : model.layers())
        QCOMPARE(layer.direction, 1);
    QCOMPARE(model.totals().turns, 80.0);
}

void TestWindingModel::tapeBetweenLayers()
{
    const WindingModel model = modelOf("G00 X0 Y10\nS600 M03\nG33 X10 K0.5\nG01 Y10.8 F600\n"
                                       "G33 X0 K0.5\nG01 Y11.3 F600\nG33 X10 K0.5\n");
    QCOMPARE(model.layers().size(), 3);
    // 0.3 mm of tape: the guide drew back for it.
    QCOMPARE(model.layers().at(1).diameter, 13.5 + 2 * 0.8);
    QCOMPARE(model.layers().at(2).diameter, 13.5 + 2 * 1.3);
    QVERIFY(!model.layers().at(1).isNested);
}

void TestWindingModel::nestedLayersNeedTheGuideToWait()
{
    const WindingModel hasty = modelOf(plainLayers(3, 0.433));
    QCOMPARE(hasty.totals().turns, 60.0);
    QVERIFY(hasty.layers().first().isNested);
    const WindingModel model = modelOf(plainLayers(3, 0.433, "G04 F0.1\n"));
    QCOMPARE(model.totals().turns, 63.0);
    for (const WindingLayer &layer : model.layers())
        QCOMPARE(layer.turns, 21.0);
    QCOMPARE(model.layers().at(1).firstTurn, 21.0);
    // In layers of full height the wire climbs on the way.
    QCOMPARE(modelOf(plainLayers(3, 0.5, "G04 F0.1\n")).totals().turns, 60.0);
}

void TestWindingModel::growthByWireAndByNesting()
{
    const MachineProfile byWire = profileWith("growth = guide", "growth = wire");
    const WindingModel wire = modelOf(plainLayers(4, 0.3), byWire);
    const MachineProfile byNesting = profileWith("growth = guide", "growth = nested");
    const WindingModel nested = modelOf(plainLayers(4, 0), byNesting);
    QCOMPARE(wire.layers().size(), 4);
    QCOMPARE(nested.layers().size(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(wire.layers().at(i).diameter, 13.5 + i * 1.0);
        VERIFY_NEAR(nested.layers().at(i).diameter, 13.5 + i * std::sqrt(3) / 2);
        QVERIFY(nested.layers().at(i).isNested);
        QVERIFY(!wire.layers().at(i).isNested);
    }
}

void TestWindingModel::backAtTheCoreIsAnotherCoil()
{
    const WindingModel model = modelOf(plainLayers(4, 0.5) + plainLayers(3, 0.5));
    QCOMPARE(model.totals().coils, 2);
    QCOMPARE(model.layers().size(), 7);
    QCOMPARE(model.layers().at(3).level, 3);
    QCOMPARE(model.layers().at(3).coil, 0);
    QCOMPARE(model.layers().at(4).level, 0);
    QCOMPARE(model.layers().at(4).coil, 1);
    QCOMPARE(model.layers().at(4).diameter, 13.5);
    QCOMPARE(model.totals().outerDiameter, 13.5 + 3 + 0.5);
    // The fuller one counts.
    VERIFY_NEAR(model.totals().fillFactor, 80 * pi / 4 * 0.25 / (38 * 43.5));
}

void TestWindingModel::tieIsNoLayer()
{
    const WindingModel model =
        modelOf(plainLayers(3, 0.5) + "G33 X7.25 K1\nG33 X10.25 K1\nM05\n", promptProfile());
    QCOMPARE(model.layers().size(), 3);
    QCOMPARE(model.totals().turns, 60.0);
    QVERIFY(model.totals().looseTurns > 6);
    // On the way, wider turns are of the layer.
    QCOMPARE(modelOf("S600 M03\nG33 X5 K0.5\nG33 X10 K1\n").totals().turns, 15.0);
}

void TestWindingModel::feedWithTurningSpindle()
{
    // 600 turns and 300 mm a minute: half a millimetre a turn.
    const WindingModel model =
        modelOf("G00 Y10\nS600 M03\nG04 F2\nG01 X10 F300\nY10.5\nX0\n", promptProfile());
    QCOMPARE(model.layers().size(), 2);
    QVERIFY(std::fabs(model.totals().turns - 40) < 1e-9);
    QVERIFY(std::fabs(model.totals().wireDiameter - 0.5) < 1e-9);
    QCOMPARE(model.layers().first().diameter, 13.5);
}

void TestWindingModel::placingWithTurningSpindleLaysNothing()
{
    const WindingModel model =
        modelOf("S60 M03\nG01 X-2 F600\nG33 X10 K0.5\nG01 X-2 F600\n", promptProfile());
    QCOMPARE(model.layers().size(), 1);
    QCOMPARE(model.totals().turns, 24.0);
    QCOMPARE(model.totals().wireDiameter, 0.5);
    QVERIFY(std::fabs(model.totals().looseTurns - 1.4) < 1e-9);
}

void TestWindingModel::nothingIsWoundWithout_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("a turning spindle") << QByteArray("S300\nG33 X10 K0.5");
    QTest::newRow("a speed") << QByteArray("M03\nG33 X10 K0.5");
    QTest::newRow("a pitch") << QByteArray("S300 M03\nG33 X10");
    QTest::newRow("a way") << QByteArray("S300 M03\nG33 X0 K0.5\nG33 Y5 K0.5");
    QTest::newRow("a feed") << QByteArray("S300 M03\nG01 X10");
    QTest::newRow("a motion that lays wire") << QByteArray("S300 M03\nG00 X10");
    QTest::newRow("a pitch of a wire") << QByteArray("S300 M03\nG33 X10 K6");
}

void TestWindingModel::nothingIsWoundWithout()
{
    QFETCH(QByteArray, program);
    const WindingModel model = modelOf(program);
    QCOMPARE(model.totals().turns, 0.0);
    QCOMPARE(model.totals().layers, 0);
    QVERIFY(model.layers().isEmpty());
    QCOMPARE(model.outerDiameter(), 13.0);
    QCOMPARE(model.totals().wireLength, 0.0);
}

void TestWindingModel::behindTheEndNothingIsWound()
{
    const WindingModel model = modelOf("S300 M03\nG33 X10 K0.5\nM30\nG33 X0 K0.5\n; end\n");
    QCOMPARE(model.totals().turns, 20.0);
    QCOMPARE(model.totals().lines, 5);
    QVERIFY(!model.place(4).isValid);
}

void TestWindingModel::overfullCoilHasItsLine()
{
    const MachineProfile narrow = profileWith("flange = 100", "flange = 15.9");
    // Wires reach up to 14, 15 and 16 mm.
    const WindingModel model = modelOf(plainLayers(4, 0.5), narrow);
    QCOMPARE(model.totals().overfullLine, model.layers().at(2).firstLine);
    QCOMPARE(model.layers().size(), 4);
    QCOMPARE(modelOf(plainLayers(2, 0.5), narrow).totals().overfullLine, 0);
}

/// Sums of tenths are never quite what they should be.
void TestWindingModel::coilUpToTheFlangeIsNotOverfull()
{
    for (int count = 1; count < 40; ++count) {
        QByteArray program = "G00 X0 Y10\nS600 M03\n";
        for (int i = 0; i < count; ++i)
            program += "G01 Y" + number(10 + i * 0.3) + " F6000\n"
                       + (i % 2 == 0 ? "G33 X10 K0.3\n" : "G33 X0 K0.3\n");
        const QByteArray flange = "flange = " + QByteArray::number(13 + count * 0.6);
        const WindingTotals full = modelOf(program, profileWith("flange = 100", flange)).totals();
        QCOMPARE(full.layers, count);
        QVERIFY2(full.overfullLine == 0, flange.constData());
    }
}

void TestWindingModel::inches()
{
    const WindingModel model = modelOf("G20\nG00 X0 Y0.5\nS300 M03\nG33 X0.5 K0.02\n");
    QVERIFY(std::fabs(model.totals().turns - 25) < 1e-9);
    VERIFY_NEAR(model.totals().wireDiameter, 0.508);
}

void TestWindingModel::placesOfLines()
{
    const WindingModel model = modelOf(sample("test-coil.cnc"), promptProfile());
    QVERIFY(!model.place(0).isValid);
    QVERIFY(!model.place(1).isValid);
    QVERIFY(!model.place(13).isValid); // S300 M03 lets no time pass
    QVERIFY(!model.place(38).isValid);
    const WindingPlace first = model.place(14);
    QVERIFY(first.isValid);
    QCOMPARE(first.layer, 0);
    QCOMPARE(first.xFrom, 0.125);
    QCOMPARE(first.xTo, 12.625);
    QCOMPARE(first.distanceTo, 8.0);
    QCOMPARE(first.firstTurn, 0.0);
    QCOMPARE(first.lastTurn, 50.0);
    QCOMPARE(first.begin, 0.75);
    QCOMPARE(first.end, 10.75);
    const WindingPlace dwell = model.place(15);
    QVERIFY(dwell.isValid);
    QCOMPARE(dwell.layer, -1);
    QCOMPARE(dwell.firstTurn, dwell.lastTurn);
    QVERIFY(std::fabs(dwell.end - dwell.begin - 0.2) < 1e-9);
    QCOMPARE(model.place(31).layer, 3);
}

void TestWindingModel::linesOfPlaces()
{
    const WindingModel model = modelOf(sample("stator-coil.cnc"));
    QCOMPARE(model.lineAt(0, 1.0), 33);
    QCOMPARE(model.lineAt(0, 9.0), 35);
    QCOMPARE(model.lineAt(0, 20), 38);
    QCOMPARE(model.lineAt(0, -5), 33);
    QCOMPARE(model.lineAt(0, 99), 43);
    QCOMPARE(model.lineAt(1, 30), 53);
    QCOMPARE(model.lineAt(-1, 0), 0);
    QCOMPARE(model.lineAt(28, 0), 0);
}

void TestWindingModel::linesOfTurnsAndTimes()
{
    const WindingModel model = modelOf(sample("test-coil.cnc"), promptProfile());
    QCOMPARE(model.lineAtTurn(0), 14);
    QCOMPARE(model.lineAtTurn(49.9), 14);
    QCOMPARE(model.lineAtTurn(50), 20);
    QCOMPARE(model.lineAtTurn(199), 31);
    QCOMPARE(model.lineAtTurn(200), 31);
    QCOMPARE(model.lineAtTurn(-1), 0);
    QCOMPARE(model.lineAtTurn(201), 0);
    QCOMPARE(model.layerAtTurn(0), 0);
    QCOMPARE(model.layerAtTurn(120), 2);
    QCOMPARE(model.layerAtTurn(200), 3);
    QCOMPARE(model.layerAtTurn(200.5), -1);
    QCOMPARE(model.lineAtTime(0), 12);
    QCOMPARE(model.lineAtTime(5), 14);
    QCOMPARE(model.lineAtTime(10.8), 15);
    QCOMPARE(model.lineAtTime(-1), 0);
    QCOMPARE(model.lineAtTime(1e6), 0);
}

void TestWindingModel::turnsAndLinesAgree()
{
    const WindingModel model = modelOf(sample("stator-coil.cnc"));
    for (int turn = 0; turn < 2016; ++turn) {
        const int line = model.lineAtTurn(turn + 0.25);
        const int layer = model.layerAtTurn(turn + 0.25);
        QCOMPARE(layer, turn / 72);
        QCOMPARE(model.place(line).layer, layer);
        QVERIFY(line >= model.layers().at(layer).firstLine);
        QVERIFY(line <= model.layers().at(layer).lastLine);
    }
}

void TestWindingModel::plotOverTurns()
{
    const WindingModel model = modelOf(sample("test-coil.cnc"), promptProfile());
    const QVector<WindingPlotPoint> plot =
        model.plot(WindingModel::TraversePosition, WindingModel::Turns, 200);
    QCOMPARE(plot.size(), 200);
    QCOMPARE(plot.at(0).at, 0.0);
    QCOMPARE(plot.at(100).at, 100.0);
    // Half the way along the first layer.
    QVERIFY(std::fabs(plot.at(25).low - 6.375) < 0.01);
    QVERIFY(std::fabs(plot.at(25).high - 6.625) < 0.01);
    // And back in the second one.
    QVERIFY(std::fabs(plot.at(75).high - 6.375) < 0.01);
    const QVector<WindingPlotPoint> tension =
        model.plot(WindingModel::Tension, WindingModel::Turns, 10);
    QCOMPARE(tension.at(5).low, 2.5);
    QCOMPARE(tension.at(5).high, 2.5);
    const QVector<WindingPlotPoint> distance =
        model.plot(WindingModel::GuideDistance, WindingModel::Turns, 8);
    QCOMPARE(distance.at(3).low, 8.25);
}

void TestWindingModel::plotOverTime()
{
    const WindingModel model = modelOf("S300 M03\nG04 F1\nS600\nG04 F1\nM05\n");
    const QVector<WindingPlotPoint> plot = model.plot(WindingModel::Speed, WindingModel::Time, 300);
    QCOMPARE(plot.size(), 300);
    // Up for half a second, up again from one second on, then a second down.
    QVERIFY(std::fabs(plot.last().at - 2.99) < 1e-9);
    double highest = 0;
    for (const WindingPlotPoint &point : plot)
        highest = qMax(highest, point.high);
    QCOMPARE(highest, 600.0);
    QVERIFY(plot.last().low < 10);
}

void TestWindingModel::pitchOfAFeedIsThatOfTheSteadySpindle()
{
    // Half a second up to the speed: 1.25 turns in place of 2.5.
    const WindingModel model = modelOf("S300 M03\nG01 X10 F150\nX0\n");
    QCOMPARE(model.totals().wireDiameter, 0.5);
    QCOMPARE(model.layers().at(0).turns, 18.75);
    QCOMPARE(model.layers().at(0).pitch, 0.5);
    QCOMPARE(model.layers().at(1).turns, 20.0);
}

/// The spindle is at its speed long before a layer is wound.
void TestWindingModel::speedOfALongMoveIsEven()
{
    const QByteArray program = "S300 M03\nG33 X25 K0.5\nS600\nG33 X0 K0.5\n";
    const WindingModel model = modelOf(program);
    QCOMPARE(model.totals().turns, 100.0);
    const QVector<WindingPlotPoint> turns =
        model.plot(WindingModel::Speed, WindingModel::Turns, 100);
    // 1.25 turns up to 300, and 3.75 on to 600, each in half a second.
    QCOMPARE(turns.at(0).low, 0.0);
    QCOMPARE(turns.at(2).low, 300.0);
    QCOMPARE(turns.at(49).high, 300.0);
    QCOMPARE(turns.at(54).low, 600.0);
    QCOMPARE(turns.at(99).low, 600.0);
    const QVector<WindingPlotPoint> time =
        model.plot(WindingModel::Speed, WindingModel::Time, 1000);
    for (const WindingPlotPoint &point : time) {
        if (point.at > 0.6 && point.at < 10)
            QCOMPARE(point.high, 300.0);
        if (point.at > 10.9)
            QCOMPARE(point.low, 600.0);
    }
    // A spindle without a ramp has no slope, either.
    const QVector<WindingPlotPoint> steep =
        modelOf(program, profileWith("spindle ramp = 600", "spindle ramp = 0"))
            .plot(WindingModel::Speed, WindingModel::Turns, 100);
    QCOMPARE(steep.at(1).low, 300.0);
    QCOMPARE(steep.at(48).high, 300.0);
    QCOMPARE(steep.at(51).low, 600.0);
}

void TestWindingModel::plotOfNothing()
{
    QVERIFY(modelOf(";\n").plot(WindingModel::Speed, WindingModel::Time, 100).isEmpty());
    QVERIFY(modelOf("G04 F1\n").plot(WindingModel::Speed, WindingModel::Turns, 100).isEmpty());
    QVERIFY(modelOf("G04 F1\n").plot(WindingModel::Speed, WindingModel::Time, 0).isEmpty());
    QCOMPARE(modelOf("G04 F1\n").plot(WindingModel::Speed, WindingModel::Time, 9).size(), 9);
}

void TestWindingModel::plotKeepsExtremes()
{
    QByteArray program = "S600 M03\nG91\n";
    for (int i = 0; i < 600000; ++i)
        program += i == 400000   ? "G33 X0.1 K0.5 U5\n"
                   : i == 400001 ? "G33 X0.1 K0.5 U-5\n"
                                 : "G33 X0.1 K0.5\n";
    const WindingModel model = modelOf(program);
    double highest = 0;
    const QVector<WindingPlotPoint> plot =
        model.plot(WindingModel::Tension, WindingModel::Turns, 400);
    for (const WindingPlotPoint &point : plot)
        highest = qMax(highest, point.high);
    QCOMPARE(highest, 5.0);
    QCOMPARE(plot.last().high, 0.0);
}

void TestWindingModel::pathKeepsItsEnds()
{
    const WindingModel model = modelOf(sample("endurance-run.cnc"));
    const QVector<GuidePoint> whole = model.path(1000000);
    QVERIFY(whole.size() > 18000);
    QCOMPARE(whole.first().x, 0.0);
    QCOMPARE(whole.first().distance, 60.0);
    QCOMPARE(whole.first().line, 5);
    QVERIFY(whole.first().isRapid && !whole.first().isWinding);
    const QVector<GuidePoint> drawn = model.path(500);
    QVERIFY(drawn.size() <= 500 && drawn.size() > 200);
    double lowest = 99;
    double highest = 0;
    for (const GuidePoint &point : drawn) {
        lowest = qMin(lowest, point.x);
        highest = qMax(highest, point.x);
    }
    QCOMPARE(lowest, 0.0);
    QVERIFY(std::fabs(highest - 36.18) < 1e-5);
    QVERIFY(model.path(0).isEmpty());
    QVERIFY(modelOf(";").path(10).isEmpty());
    QVERIFY(model.path(1).size() <= 2);
}

void TestWindingModel::recordsAreBounded()
{
    QByteArray program = "G00 X0 Y10\nS600 M03\n";
    const int moves = 3 * WindingModel::mostRecords;
    for (int i = 0; i < moves; ++i)
        program += i % 20 < 10 ? "G91 G33 X1 K0.5\n" : "G91 G33 X-1 K0.5\n";
    const WindingModel model = modelOf(program);
    QVERIFY(std::fabs(model.totals().turns - 2.0 * moves) < 1e-6);
    const int most = WindingModel::mostRecords;
    QVERIFY(model.path(10000000).size() <= most);
    // Four moves are kept together by now.
    for (int line = 3; line < moves; line += 9973) {
        const WindingPlace place = model.place(line);
        QVERIFY(place.isValid);
        QVERIFY(std::fabs(place.firstTurn - 2 * (line - 3)) <= 8);
        const int found = model.lineAtTurn(2 * (line - 3) + 0.5);
        QVERIFY2(std::abs(found - line) <= 4, qPrintable(QString("%1, %2").arg(line).arg(found)));
    }
}

void TestWindingModel::layersAreBounded()
{
    QByteArray program = "G00 X0 Y10\nS600 M03\n";
    const int layers = WindingModel::mostLayers + 5000;
    for (int i = 0; i < layers; ++i)
        program += i % 2 == 0 ? "G33 X1 K0.5\n" : "G33 X0 K0.5\n";
    const WindingModel model = modelOf(program);
    const int most = WindingModel::mostLayers;
    QCOMPARE(int(model.layers().size()), most);
    QCOMPARE(model.totals().layers, layers);
    QCOMPARE(model.totals().turns, 2.0 * layers);
    VERIFY_NEAR(model.totals().outerDiameter, 13 + 2 * 0.5 * layers);
    QCOMPARE(model.layers().last().diameter, 13.5 + (most - 1) * 1.0);
}

void TestWindingModel::copiesAreOfTheirOwn()
{
    BlockReader reader;
    ProgramInterpreter interpreter(MachineProfile::forSamples());
    WindingModel model(MachineProfile::forSamples());
    model.add(interpreter.add(reader.read(QString("S300 M03"))));
    model.add(interpreter.add(reader.read(QString("G33 X10 K0.5"))));
    WindingModel copy = model;
    copy.finish();
    model.add(interpreter.add(reader.read(QString("G33 X0 K0.5"))));
    model.finish();
    QCOMPARE(copy.totals().turns, 20.0);
    QCOMPARE(copy.layers().size(), 1);
    QCOMPARE(model.totals().turns, 40.0);
    QCOMPARE(model.layers().size(), 2);
}

void TestWindingModel::emptyProgram()
{
    const WindingModel model = modelOf("");
    QCOMPARE(model.totals().lines, 0);
    QCOMPARE(model.totals().seconds, 0.0);
    QCOMPARE(model.lineAtTurn(0), 0);
    QCOMPARE(model.lineAtTime(0), 0);
    QCOMPARE(model.layerAtTurn(0), -1);
    const WindingModel nothing;
    QCOMPARE(nothing.totals().fillFactor, 0.0);
    QCOMPARE(nothing.totals().resistance, 0.0);
    QCOMPARE(nothing.outerDiameter(), 0.0);
}

FILARIX_TEST_MAIN(TestWindingModel)
#include "tst_windingmodel.moc"
