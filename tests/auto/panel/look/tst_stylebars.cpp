// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelstyle.h"
#include "look/stylebars.h"
#include "look/styleshades.h"
#include "styletest.h"

class TestStyleBars : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { restoreLook(); }
    void handleStandsOut_data() { addLooks(); }
    void handleStandsOut();
    void onlyThePressedPartChanges();
    void barThatCannotMoveHasNoHandle();
    void barLyingDownPointsSideways();
    void sliderGrowsTowardsItsHandle();
    void progressIsAsLongAsIsDone_data();
    void progressIsAsLongAsIsDone();
    void progressWithoutAnEndStandsStill();
    void textOfProgressIsReadOnBothParts();
    void progressThatIsOffIsFaint();
};

namespace {

const QSize upright(34, 200);
const QSize lying(200, 34);

QStyleOptionSlider bar(QStyleOptionSlider option, Qt::Orientation orientation)
{
    option.orientation = orientation;
    option.maximum = 100;
    option.pageStep = 50;
    option.subControls = QStyle::SC_All;
    if (orientation == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return option;
}

} // namespace

void TestStyleBars::handleStandsOut()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    PanelStyle style;
    const QStyleOptionSlider option =
        bar(optionOf<QStyleOptionSlider>(upright, rest), Qt::Vertical);
    const QImage image = drawn(upright, [&](QPainter *painter) {
        StyleBars::drawScrollBar(option, painter, &style, nullptr);
    });
    const QPoint middle =
        style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, nullptr)
            .center();
    const QColor groove = image.pixelColor(1, 160);
    QVERIFY(Contrast::ratio(image.pixelColor(middle), groove) >= 2.4);
    QCOMPARE(groove, StyleShades::groove(option));
}

void TestStyleBars::onlyThePressedPartChanges()
{
    PanelStyle style;
    QStyleOptionSlider option = bar(optionOf<QStyleOptionSlider>(upright, rest), Qt::Vertical);
    const auto picture = [&] {
        return drawn(upright, [&](QPainter *painter) {
            StyleBars::drawScrollBar(option, painter, &style, nullptr);
        });
    };
    QList<QImage> pictures{picture()};
    option.state = pressed;
    QCOMPARE(picture(), pictures.first());
    for (QStyle::SubControl part :
         {QStyle::SC_ScrollBarSlider, QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine}) {
        option.activeSubControls = part;
        pictures.append(picture());
    }
    QVERIFY(areAllDifferent(pictures));
}

void TestStyleBars::barThatCannotMoveHasNoHandle()
{
    PanelStyle style;
    QStyleOptionSlider option = bar(optionOf<QStyleOptionSlider>(upright, rest), Qt::Vertical);
    option.maximum = 0;
    const QImage image = drawn(upright, [&](QPainter *painter) {
        StyleBars::drawScrollBar(option, painter, &style, nullptr);
    });
    QCOMPARE(coloursIn(image, QRect(10, 40, 10, 120)),
             QSet<QRgb>{StyleShades::groove(option).rgb()});
}

void TestStyleBars::barLyingDownPointsSideways()
{
    PanelStyle style;
    QStyleOptionSlider option = bar(optionOf<QStyleOptionSlider>(lying, rest), Qt::Horizontal);
    const auto picture = [&] {
        return drawn(lying, [&](QPainter *painter) {
            StyleBars::drawScrollBar(option, painter, &style, nullptr);
        });
    };
    const QImage image = picture();
    const QRect first(0, 0, 34, 34);
    // The tip of the arrow is nearer to the end.
    QVERIFY(contrastIn(image, QRect(11, 16, 4, 3), Look::palette().color(QPalette::Button)) > 4);
    // What is at the left end points to the left, whichever way the words run.
    option.direction = Qt::RightToLeft;
    QCOMPARE(picture().copy(first), image.copy(first));
}

void TestStyleBars::sliderGrowsTowardsItsHandle()
{
    PanelStyle style;
    const QColor chosen = Look::palette().color(QPalette::Highlight);
    const auto picture = [&](QStyleOptionSlider option, const QSize &size) {
        return drawn(size, [&](QPainter *painter) {
            option.sliderPosition = option.sliderValue = 50;
            StyleBars::drawSlider(option, painter, &style, nullptr);
        });
    };
    QStyleOptionSlider option = bar(optionOf<QStyleOptionSlider>(lying, rest), Qt::Horizontal);
    const QImage image = picture(option, lying);
    QCOMPARE(image.pixelColor(40, 17), chosen);
    QVERIFY(image.pixelColor(160, 17) != chosen);
    option.upsideDown = true;
    QCOMPARE(picture(option, lying).pixelColor(160, 17), chosen);
    option.upsideDown = false;
    option.state = pressed | QStyle::State_Horizontal;
    option.activeSubControls = QStyle::SC_SliderHandle;
    QVERIFY(picture(option, lying) != image);
    option.state = QStyle::State_Horizontal;
    QVERIFY(picture(option, lying).pixelColor(40, 17) != chosen);

    option = bar(optionOf<QStyleOptionSlider>(upright, rest), Qt::Vertical);
    QCOMPARE(picture(option, upright).pixelColor(17, 40), chosen);
    option.upsideDown = true;
    QCOMPARE(picture(option, upright).pixelColor(17, 160), chosen);
}

void TestStyleBars::progressIsAsLongAsIsDone_data()
{
    QTest::addColumn<bool>("isLying");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<bool>("isMirrored");
    QTest::addColumn<QPoint>("done");
    QTest::addColumn<QPoint>("left");
    const QPoint begin(20, 17);
    const QPoint end(180, 17);
    QTest::newRow("lying") << true << false << false << begin << end;
    QTest::newRow("from the end") << true << true << false << end << begin;
    QTest::newRow("from right to left") << true << false << true << end << begin;
    QTest::newRow("upright") << false << false << false << QPoint(17, 180) << QPoint(17, 20);
    QTest::newRow("downwards") << false << true << false << QPoint(17, 20) << QPoint(17, 180);
}

void TestStyleBars::progressIsAsLongAsIsDone()
{
    QFETCH(bool, isLying);
    QFETCH(bool, isInverted);
    QFETCH(bool, isMirrored);
    QFETCH(QPoint, done);
    QFETCH(QPoint, left);
    const QSize size = isLying ? lying : upright;
    QStyleOptionProgressBar option = optionOf<QStyleOptionProgressBar>(size, rest);
    option.orientation = isLying ? Qt::Horizontal : Qt::Vertical;
    option.invertedAppearance = isInverted;
    option.direction = isMirrored ? Qt::RightToLeft : Qt::LeftToRight;
    option.maximum = 200;
    const auto picture = [&](int progress) {
        option.progress = progress;
        return drawn(size, [&](QPainter *painter) {
            StyleBars::drawProgressGroove(option, painter);
            StyleBars::drawProgress(option, painter);
        });
    };
    const QColor chosen = Look::palette().color(QPalette::Highlight);
    QCOMPARE(picture(100).pixelColor(done), chosen);
    QCOMPARE(picture(100).pixelColor(left), StyleShades::groove(option));
    QCOMPARE(picture(0).pixelColor(done), StyleShades::groove(option));
    QCOMPARE(picture(200).pixelColor(left), chosen);
}

void TestStyleBars::progressWithoutAnEndStandsStill()
{
    for (const QSize &size : {lying, upright}) {
        QStyleOptionProgressBar option = optionOf<QStyleOptionProgressBar>(size, rest);
        option.orientation = size == lying ? Qt::Horizontal : Qt::Vertical;
        option.minimum = option.maximum = 0;
        const auto picture = [&](int progress) {
            option.progress = progress;
            return drawn(size,
                         [&](QPainter *painter) { StyleBars::drawProgress(option, painter); });
        };
        const QImage first = picture(1);
        QCOMPARE(coloursIn(first, first.rect()).size(), 2);
        QCOMPARE(picture(2), first);
    }
}

void TestStyleBars::textOfProgressIsReadOnBothParts()
{
    QStyleOptionProgressBar option = optionOf<QStyleOptionProgressBar>(lying, rest);
    option.orientation = Qt::Horizontal;
    option.maximum = 2;
    option.progress = 1;
    option.text = QLatin1String("MMMMMMMM");
    option.textVisible = true;
    const QImage image = drawn(lying, [&](QPainter *painter) {
        StyleBars::drawProgressGroove(option, painter);
        painter->save();
        StyleBars::drawProgress(option, painter);
        painter->restore();
        StyleBars::drawProgressText(option, painter);
    });
    QVERIFY(contrastIn(image, QRect(75, 8, 20, 18), Look::palette().color(QPalette::Highlight))
            >= Contrast::textContrast);
    QVERIFY(contrastIn(image, QRect(105, 8, 20, 18), StyleShades::groove(option))
            >= Contrast::textContrast);
    option.textVisible = false;
    const QImage without =
        drawn(lying, [&](QPainter *painter) { StyleBars::drawProgressText(option, painter); });
    QCOMPARE(coloursIn(without, without.rect()).size(), 1);
}

void TestStyleBars::progressThatIsOffIsFaint()
{
    QStyleOptionProgressBar option = optionOf<QStyleOptionProgressBar>(lying, off);
    option.orientation = Qt::Horizontal;
    option.maximum = option.progress = 1;
    const QImage image =
        drawn(lying, [&](QPainter *painter) { StyleBars::drawProgress(option, painter); });
    QVERIFY(image.pixelColor(100, 17) != Look::palette().color(QPalette::Highlight));
}

FILARIX_TEST_MAIN(TestStyleBars)
#include "tst_stylebars.moc"
