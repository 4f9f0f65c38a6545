// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"

class TestMeasures : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aScreenTellsItsDotsPerInch_data();
    void aScreenTellsItsDotsPerInch();
    void millimetresBecomePixels_data();
    void millimetresBecomePixels();
    void glovesHave48PixelsAtLeast();
    void columnOfKeysHasRoomForThree_data();
    void columnOfKeysHasRoomForThree();
    void senselessDotsAreNotUsed();
    void textSizesAreKnownByTheirNames();
    void aTextSizeIsToldToAllWidgets();
    void keypadsAreTold();
};

namespace {

class Listener : public QWidget
{
public:
    int told = 0;

protected:
    bool event(QEvent *event) override
    {
        told += event->type() == Measures::textSizeChange() ? 1 : 0;
        return QWidget::event(event);
    }
};

} // namespace

void TestMeasures::cleanup()
{
    Measures::use(Measures::usualDotsPerInch);
    Measures::useTextSize(100);
    FilarixTest::cleanup();
}

void TestMeasures::aScreenTellsItsDotsPerInch_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QSizeF>("millimetres");
    QTest::addColumn<int>("dots");
    QTest::newRow("4.3 inch") << QSize(480, 272) << QSizeF(95, 53.9) << 128;
    QTest::newRow("7 inch") << QSize(1024, 600) << QSizeF(154.2, 85.9) << 171;
    QTest::newRow("turned") << QSize(272, 480) << QSizeF(53.9, 95) << 128;
    QTest::newRow("no size") << QSize(800, 480) << QSizeF(0, 0) << 96;
    QTest::newRow("below nothing") << QSize(800, 480) << QSizeF(-1, -1) << 96;
    QTest::newRow("a ratio in the place of a size") << QSize(800, 480) << QSizeF(16, 9) << 96;
    QTest::newRow("a wall") << QSize(800, 480) << QSizeF(1600, 900) << 96;
    QTest::newRow("no pixels") << QSize() << QSizeF(160, 90) << 96;
}

void TestMeasures::aScreenTellsItsDotsPerInch()
{
    QFETCH(QSize, pixels);
    QFETCH(QSizeF, millimetres);
    QFETCH(int, dots);
    QCOMPARE(qRound(Measures::dotsPerInchOf(pixels, millimetres)), dots);
}

void TestMeasures::millimetresBecomePixels_data()
{
    QTest::addColumn<int>("dots");
    QTest::addColumn<QSize>("surface");
    QTest::addColumn<int>("touch");
    QTest::addColumn<QSize>("stop");
    QTest::newRow("a PC, where 9 mm are 34") << 96 << QSize() << 40 << QSize(57, 57);
    QTest::newRow("4.3 inch, with room for 9 mm and for 15 in the width alone")
        << 130 << QSize(480, 272) << 47 << QSize(77, 54);
    QTest::newRow("the same upright") << 130 << QSize(272, 480) << 47 << QSize(77, 77);
    QTest::newRow("7 inch") << 170 << QSize(1024, 600) << 61 << QSize(101, 101);
    QTest::newRow("without room") << 350 << QSize(272, 480) << 54 << QSize(90, 90);
}

void TestMeasures::millimetresBecomePixels()
{
    QFETCH(int, dots);
    QFETCH(QSize, surface);
    Measures::use(dots, surface);
    QCOMPARE(Measures::dotsPerInch(), qreal(dots));
    QCOMPARE(Measures::pixels(25.4), dots);
    QTEST(Measures::touch(), "touch");
    QTEST(Measures::stop(), "stop");
}

void TestMeasures::glovesHave48PixelsAtLeast()
{
    QCOMPARE(Measures::glove(), 48);
    Measures::use(170, QSize(1024, 600));
    QCOMPARE(Measures::glove(), 61);
}

void TestMeasures::columnOfKeysHasRoomForThree_data()
{
    QTest::addColumn<int>("dots");
    QTest::addColumn<QSize>("surface");
    QTest::addColumn<int>("width");
    QTest::newRow("a PC") << 96 << QSize() << 160;
    QTest::newRow("800 pixels") << 96 << QSize(800, 480) << 160;
    QTest::newRow("1024 pixels") << 96 << QSize(1024, 600) << 160;
    QTest::newRow("a panel that leaves the content its part") << 96 << QSize(480, 272) << 148;
    QTest::newRow("fine pixels") << 170 << QSize(1024, 600) << 160;
    QTest::newRow("finer ones, with room for two") << 300 << QSize(1024, 600) << 226;
}

void TestMeasures::columnOfKeysHasRoomForThree()
{
    QFETCH(int, dots);
    QFETCH(QSize, surface);
    Measures::use(dots, surface);
    QTEST(Measures::keyColumn(), "width");
}

void TestMeasures::senselessDotsAreNotUsed()
{
    for (const qreal dots : {0.0, -130.0, 49.0, 401.0, qQNaN(), qInf()}) {
        Measures::use(130);
        Measures::use(dots);
        QCOMPARE(Measures::dotsPerInch(), Measures::usualDotsPerInch);
    }
}

void TestMeasures::textSizesAreKnownByTheirNames()
{
    QCOMPARE(Measures::textSizeNames(), QStringList({"100", "125", "150"}));
    QCOMPARE(Measures::textSize(), 100);
    QCOMPARE(Measures::letters(13), 13);
    Measures::useTextSize(150);
    QCOMPARE(Measures::letters(13), 20);
    Measures::useTextSize(400);
    QCOMPARE(Measures::textSize(), 150);
}

void TestMeasures::aTextSizeIsToldToAllWidgets()
{
    Listener listener;
    Measures::useTextSize(125);
    QCOMPARE(listener.told, 1);
    Measures::useTextSize(125);
    QCOMPARE(listener.told, 1);
    Measures::useTextSize(7);
    QCOMPARE(listener.told, 1);
    Measures::useTextSize(100);
    QCOMPARE(listener.told, 2);
}

void TestMeasures::keypadsAreTold()
{
    Measures::use(170);
    QCOMPARE(qApp->property("hmiDotsPerInch").toDouble(), 170.0);
    Measures::use(Measures::usualDotsPerInch);
    QVERIFY(!qApp->property("hmiDotsPerInch").isValid());
    Measures::useTextSize(125);
    QCOMPARE(qApp->property("hmiTextSize").toInt(), 125);
}

FILARIX_TEST_MAIN(TestMeasures)
#include "tst_measures.moc"
