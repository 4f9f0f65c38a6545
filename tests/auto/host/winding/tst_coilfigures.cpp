// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "somecoil.h"
#include "winding/coilfigures.h"

class TestCoilFigures : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCoilHasItsFigures();
    void coilsAreCountedWhereThereAreSeveral();
    void nothingWoundIsNothing();
    void numbersAreShort();
    void timesAreReadable();
    void theTableHasEachFigureWithItsUnit();
};

static QString textOf(const WindingModel &model, const char *key)
{
    const QVector<CoilFigure> all = CoilFigures::of(model);
    for (int i = 0; i < all.size(); ++i) {
        if (all.at(i).key == key)
            return all.at(i).text;
    }
    return "none";
}

void TestCoilFigures::aCoilHasItsFigures()
{
    const WindingModel model = SomeCoil::model(4, 40);
    QCOMPARE(textOf(model, "turns"), QString("160"));
    QCOMPARE(textOf(model, "layers"), QString("4"));
    QCOMPARE(textOf(model, "coils"), QString("none"));
    QCOMPARE(textOf(model, "wire_length"),
             CoilFigures::number(model.totals().wireLength, 2) + " m");
    QVERIFY(textOf(model, "mass").endsWith(" g"));
    QVERIFY(textOf(model, "resistance_20_celsius").endsWith(QString(" ") + QChar(0x3a9)));
    QVERIFY(textOf(model, "fill_factor").endsWith(" %"));
    QVERIFY(textOf(model, "outer_diameter").endsWith(" mm"));
    QCOMPARE(textOf(model, "wire_diameter"), QString("0.5 mm"));
}

void TestCoilFigures::coilsAreCountedWhereThereAreSeveral()
{
    const QByteArray first = SomeCoil::program(2, 20);
    QByteArray both = first;
    both.replace("M30\n", "");
    const WindingModel model = SomeCoil::model(both + first);
    QCOMPARE(model.totals().coils, 2);
    QCOMPARE(textOf(model, "coils"), QString("2"));
}

void TestCoilFigures::nothingWoundIsNothing()
{
    QCOMPARE(textOf(WindingModel(), "turns"), QString("0"));
    QCOMPARE(textOf(WindingModel(), "wire_length"), QString("0 m"));
    QCOMPARE(textOf(WindingModel(), "wire_diameter"), QString("none"));
    QVERIFY(CoilFigures::csv(WindingModel()).contains("turns,0,\r\n"));
}

void TestCoilFigures::numbersAreShort()
{
    QCOMPARE(CoilFigures::number(12.50, 3), QString("12.5"));
    QCOMPARE(CoilFigures::number(12.004, 2), QString("12"));
    QCOMPARE(CoilFigures::number(2016, 0), QString("2016"));
    QCOMPARE(CoilFigures::number(100, 1), QString("100"));
    QCOMPARE(CoilFigures::number(-0.001, 1), QString("0"));
}

void TestCoilFigures::timesAreReadable()
{
    QCOMPARE(CoilFigures::timeText(0), QString("0 s"));
    QCOMPARE(CoilFigures::timeText(12.34), QString("12.3 s"));
    QCOMPARE(CoilFigures::timeText(59.7), QString("1:00 min"));
    QCOMPARE(CoilFigures::timeText(253.2), QString("4:13 min"));
    QCOMPARE(CoilFigures::timeText(3599.6), QString("1:00:00 h"));
    QCOMPARE(CoilFigures::timeText(15719), QString("4:21:59 h"));
    // A feed of next to nothing never ends.
    QVERIFY2(!CoilFigures::timeText(1e31).contains('-'), qPrintable(CoilFigures::timeText(1e31)));
}

void TestCoilFigures::theTableHasEachFigureWithItsUnit()
{
    const WindingModel model = SomeCoil::model(4, 40);
    const QByteArray table = CoilFigures::csv(model);
    QVERIFY(table.startsWith("quantity,value,unit\r\n"));
    const QList<QByteArray> lines = table.split('\n');
    QCOMPARE(lines.size(), CoilFigures::of(model).size() + 2);
    for (int i = 0; i + 1 < lines.size(); ++i) {
        QVERIFY(lines.at(i).endsWith('\r'));
        QCOMPARE(lines.at(i).count(','), 2);
    }
    QVERIFY(table.contains("turns,160,\r\n"));
    bool isNumber = false;
    const double length = table.split('\n').at(3).split(',').at(1).toDouble(&isNumber);
    QVERIFY(isNumber);
    QVERIFY(qAbs(length - model.totals().wireLength) < 1e-6 * length);
    for (int i = 0; i < table.size(); ++i)
        QVERIFY(uchar(table.at(i)) < 0x80);
}

FILARIX_TEST_MAIN(TestCoilFigures)
#include "tst_coilfigures.moc"
