// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/measures.h"
#include "look/panelstyle.h"
#include "look/styleboxes.h"
#include "look/styleshades.h"
#include "styletest.h"

class TestStyleBoxes : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { restoreLook(); }
    void ticksTellTheirState_data() { addLooks(); }
    void ticksTellTheirState();
    void fieldsTellTheirState_data() { addLooks(); }
    void fieldsTellTheirState();
    void fieldWithoutAnEdgeIsPaperAlone();
    void comboIsAKeyOrAField();
    void keysOfASpinBoxAreWideEnough();
    void keyOfASpinBoxTellsItsState();
};

namespace {

const QSize tick(24, 24);
const QSize field(160, 40);
const int firstKey = 100; // where the keys of the spin box begin, at the most

typedef void (*Drawing)(const QStyleOption &option, QPainter *painter);

QStyleOptionSpinBox spinOf(QStyleOptionSpinBox option)
{
    option.frame = true;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    return option;
}

} // namespace

void TestStyleBoxes::ticksTellTheirState()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    const QColor paper = Look::palette().color(QPalette::Window);
    for (Drawing drawing : {&StyleBoxes::drawTick, &StyleBoxes::drawRadio}) {
        QList<QImage> pictures;
        for (QStyle::State state : {rest, pressed, on, on | pressed, off, off | QStyle::State_On}) {
            const QStyleOption option = optionOf<QStyleOption>(tick, state);
            pictures.append(drawn(tick, [&](QPainter *painter) { drawing(option, painter); }));
        }
        QVERIFY(areAllDifferent(pictures));
        QVERIFY(contrastIn(pictures.at(0), QRect(QPoint(), tick), paper) >= 3);
        const QColor chosen = Look::palette().color(QPalette::Highlight);
        QVERIFY(contrastIn(pictures.at(2), QRect(4, 4, 16, 16), chosen) >= 3);
    }
    QStyleOption part = optionOf<QStyleOption>(tick, rest | QStyle::State_NoChange);
    const QImage some =
        drawn(tick, [&](QPainter *painter) { StyleBoxes::drawTick(part, painter); });
    QCOMPARE(some.pixelColor(12, 12), Look::palette().color(QPalette::HighlightedText));
    QCOMPARE(some.pixelColor(12, 5), Look::palette().color(QPalette::Highlight));
}

void TestStyleBoxes::fieldsTellTheirState()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    QList<QImage> pictures;
    for (QStyle::State state : {rest, focused, off}) {
        QStyleOptionFrame option = optionOf<QStyleOptionFrame>(field, state);
        option.lineWidth = 1;
        pictures.append(
            drawn(field, [&](QPainter *painter) { StyleBoxes::drawField(option, painter); }));
    }
    QVERIFY(areAllDifferent(pictures));
    QVERIFY(contrastIn(pictures.at(0), QRect(0, 20, 3, 1), Look::palette().color(QPalette::Window))
            >= 3);
    QStyleOption edge = optionOf<QStyleOption>(field, rest);
    const QImage alone =
        drawn(field, [&](QPainter *painter) { StyleBoxes::drawFieldEdge(edge, painter); });
    QCOMPARE(alone.pixelColor(20, 20), Look::palette().color(QPalette::Window));
    QCOMPARE(alone.pixelColor(0, 20), pictures.at(0).pixelColor(0, 20));
    const QImage frame =
        drawn(field, [&](QPainter *painter) { StyleBoxes::drawFrame(edge, painter); });
    QCOMPARE(frame.pixelColor(0, 0), StyleShades::edge(edge));
    QCOMPARE(frame.pixelColor(1, 1), Look::palette().color(QPalette::Window));
}

void TestStyleBoxes::fieldWithoutAnEdgeIsPaperAlone()
{
    QStyleOptionFrame option = optionOf<QStyleOptionFrame>(field, focused);
    option.lineWidth = 0;
    const QImage image =
        drawn(field, [&](QPainter *painter) { StyleBoxes::drawField(option, painter); });
    QCOMPARE(coloursIn(image, image.rect()),
             QSet<QRgb>{Look::palette().color(QPalette::Base).rgb()});
}

void TestStyleBoxes::comboIsAKeyOrAField()
{
    PanelStyle style;
    const auto picture = [&style](const QStyleOptionComboBox &option) {
        return drawn(field, [&](QPainter *painter) {
            StyleBoxes::drawCombo(option, painter, &style, nullptr);
        });
    };
    QList<QImage> pictures;
    for (QStyle::State state : {rest, pressed, focused, off})
        pictures.append(picture(optionOf<QStyleOptionComboBox>(field, state)));
    QCOMPARE(pictures.at(0).pixelColor(20, 20), Look::palette().color(QPalette::Button));
    // While its list is open, it looks pressed and not chosen.
    QCOMPARE(picture(optionOf<QStyleOptionComboBox>(field, on)), pictures.at(1));
    QStyleOptionComboBox open = optionOf<QStyleOptionComboBox>(field, rest);
    open.editable = true;
    pictures.append(picture(open));
    QCOMPARE(pictures.last().pixelColor(20, 20), Look::palette().color(QPalette::Base));
    QVERIFY(areAllDifferent(pictures));
    open.frame = false;
    QCOMPARE(picture(open).pixelColor(0, 20), Look::palette().color(QPalette::Window));
}

void TestStyleBoxes::keysOfASpinBoxAreWideEnough()
{
    QStyleOptionSpinBox option = spinOf(optionOf<QStyleOptionSpinBox>(field, rest));
    const QRect fewer = StyleBoxes::fewerKey(option);
    const QRect more = StyleBoxes::moreKey(option);
    QVERIFY(more.width() >= Measures::pixels(Measures::touchMm));
    QCOMPARE(more.size(), fewer.size());
    QCOMPARE(fewer.right() + 1, more.left());
    QVERIFY(!StyleBoxes::spinField(option).intersects(fewer));
    option.buttonSymbols = QAbstractSpinBox::NoButtons;
    QVERIFY(StyleBoxes::spinField(option).right() > more.left());
}

void TestStyleBoxes::keyOfASpinBoxTellsItsState()
{
    PanelStyle style;
    const auto picture = [&style](const QStyleOptionSpinBox &option) {
        return drawn(field, [&](QPainter *painter) {
            StyleBoxes::drawSpin(option, painter, &style, nullptr);
        });
    };
    QStyleOptionSpinBox option = spinOf(optionOf<QStyleOptionSpinBox>(field, rest));
    const QImage still = picture(option);
    const QRect fewer = StyleBoxes::fewerKey(option);
    const QRect more = StyleBoxes::moreKey(option);
    QVERIFY(contrastIn(still, more, Look::palette().color(QPalette::Button)) >= 4.5);
    option.state = pressed;
    option.activeSubControls = QStyle::SC_SpinBoxUp;
    const QImage down = picture(option);
    QVERIFY(down.copy(more) != still.copy(more));
    QCOMPARE(down.copy(fewer), still.copy(fewer));
    option.state = rest;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
    QVERIFY(picture(option).copy(fewer) != still.copy(fewer));
    option.buttonSymbols = QAbstractSpinBox::PlusMinus;
    QVERIFY(picture(option).copy(more) != still.copy(more));
    option.buttonSymbols = QAbstractSpinBox::NoButtons;
    option.frame = false;
    QCOMPARE(coloursIn(picture(option), QRect(QPoint(firstKey, 0), QSize(60, 40))).size(), 1);
}

FILARIX_TEST_MAIN(TestStyleBoxes)
#include "tst_styleboxes.moc"
