// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styleshades.h"
#include "styletest.h"

class TestStyleShades : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { restoreLook(); }
    void aMixHasAShareOfEach();
    void edgesAndWordsStandOut_data() { addLooks(); }
    void edgesAndWordsStandOut();
    void keyTellsItsState_data() { addLooks(); }
    void keyTellsItsState();
    void fieldThatIsOffIsNoPaper();
    void formHasNoGradient();
    void arrowPointsWhereItIsTold();
};

namespace {

const QSize side(40, 40);

} // namespace

void TestStyleShades::aMixHasAShareOfEach()
{
    const QColor one(10, 20, 30);
    const QColor other(110, 220, 130);
    QCOMPARE(StyleShades::mixed(one, other, 0), one);
    QCOMPARE(StyleShades::mixed(one, other, 1), other);
    QCOMPARE(StyleShades::mixed(one, other, 0.5), QColor(60, 120, 80));
}

void TestStyleShades::edgesAndWordsStandOut()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    const QColor paper = Look::palette().color(QPalette::Window);
    QStyleOption option = optionOf<QStyleOption>(side, rest);
    QVERIFY(Contrast::ratio(StyleShades::edge(option), paper) >= 3);
    QVERIFY(Contrast::ratio(StyleShades::sign(option), StyleShades::key(option))
            >= Contrast::textContrast);
    QVERIFY(Contrast::ratio(StyleShades::edge(option), StyleShades::groove(option)) >= 2.4);
    option.state = off;
    QVERIFY(Contrast::ratio(StyleShades::edge(option), paper) < 3);
    QVERIFY(Contrast::ratio(StyleShades::sign(option), StyleShades::key(option))
            >= Contrast::disabledContrast);
}

void TestStyleShades::keyTellsItsState()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    QSet<QRgb> grounds;
    for (QStyle::State state : {rest, pressed, on, on | pressed, off}) {
        const QStyleOption option = optionOf<QStyleOption>(side, state);
        grounds.insert(StyleShades::key(option).rgb());
        const double least = state ? Contrast::textContrast : Contrast::disabledContrast;
        QVERIFY(Contrast::ratio(StyleShades::keyWords(option), StyleShades::key(option)) >= least);
    }
    QCOMPARE(grounds.size(), 5);
}

void TestStyleShades::fieldThatIsOffIsNoPaper()
{
    const QStyleOption option = optionOf<QStyleOption>(side, rest);
    QCOMPARE(StyleShades::field(option), Look::palette().color(QPalette::Base));
    QVERIFY(StyleShades::field(optionOf<QStyleOption>(side, off)) != StyleShades::field(option));
}

void TestStyleShades::formHasNoGradient()
{
    const QImage image = drawn(side, [](QPainter *painter) {
        StyleShades::fill(painter, QRect(QPoint(), side), Qt::green, Qt::red, 2);
    });
    QCOMPARE(coloursIn(image, QRect(8, 2, 24, 36)), QSet<QRgb>{QColor(Qt::green).rgb()});
    QCOMPARE(image.pixelColor(20, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(20, 1), QColor(Qt::red));
    QVERIFY(image.pixelColor(0, 0) != QColor(Qt::red));
}

void TestStyleShades::arrowPointsWhereItIsTold()
{
    const struct
    {
        Qt::ArrowType direction;
        // Where the tip is, and where nothing is.
        QPoint tip;
        QPoint nothing;
    } arrows[] = {
        {Qt::UpArrow, QPoint(20, 17), QPoint(20, 23)},
        {Qt::DownArrow, QPoint(20, 23), QPoint(20, 17)},
        {Qt::LeftArrow, QPoint(17, 20), QPoint(23, 20)},
        {Qt::RightArrow, QPoint(23, 20), QPoint(17, 20)},
    };
    for (const auto &arrow : arrows) {
        const QImage image = drawn(side, [&arrow](QPainter *painter) {
            StyleShades::drawArrow(painter, QRect(QPoint(), side), arrow.direction, Qt::black);
        });
        QVERIFY(image.pixelColor(arrow.tip).lightness() < 80);
        QCOMPARE(image.pixelColor(arrow.nothing), Look::palette().color(QPalette::Window));
    }
}

FILARIX_TEST_MAIN(TestStyleShades)
#include "tst_styleshades.moc"
