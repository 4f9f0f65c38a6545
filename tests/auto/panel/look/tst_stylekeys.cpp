// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelstyle.h"
#include "look/stylekeys.h"
#include "look/styleshades.h"
#include "styletest.h"

class TestStyleKeys : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { restoreLook(); }
    void everyStateLooksDifferent_data() { addLooks(); }
    void everyStateLooksDifferent();
    void wordsAreReadInEveryState();
    void keysOfABarHaveAGround();
    void toolKeyShowsItsFocusAndItsMenu();
    void frameOfTheFocusLiesAlongTheEdge();
};

namespace {

const QSize side(80, 40);

QImage toolKey(QStyleOptionToolButton option)
{
    PanelStyle style;
    QImage image(side, QImage::Format_RGB32);
    image.fill(option.palette.color(QPalette::Window));
    QPainter painter(&image);
    option.toolButtonStyle = Qt::ToolButtonTextOnly;
    StyleKeys::drawToolKey(option, &painter, &style, nullptr);
    return image;
}

} // namespace

void TestStyleKeys::everyStateLooksDifferent()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    QList<QImage> pictures;
    const auto draw = [&pictures](const QStyleOption &option) {
        pictures.append(
            drawn(side, [&](QPainter *painter) { StyleKeys::drawGround(option, painter); }));
    };
    for (QStyle::State state : {rest, pressed, on, on | pressed, off, off | QStyle::State_On})
        draw(optionOf<QStyleOptionButton>(side, state));
    QStyleOptionButton key = optionOf<QStyleOptionButton>(side, rest);
    key.features = QStyleOptionButton::DefaultButton;
    draw(key);
    // What is off looks alike, chosen or not: neither can be pressed.
    QCOMPARE(pictures.at(4), pictures.takeAt(5));
    QVERIFY(areAllDifferent(pictures));
}

void TestStyleKeys::wordsAreReadInEveryState()
{
    for (QStyle::State state : {rest, pressed, on, on | pressed}) {
        const QStyleOption option = optionOf<QStyleOption>(side, state);
        const QColor words = StyleKeys::wordsOn(option).color(QPalette::ButtonText);
        QVERIFY(Contrast::ratio(words, StyleShades::key(option)) >= Contrast::textContrast);
    }
}

void TestStyleKeys::keysOfABarHaveAGround()
{
    const QImage image =
        toolKey(optionOf<QStyleOptionToolButton>(side, rest | QStyle::State_AutoRaise));
    QCOMPARE(image.pixelColor(10, 20), Look::palette().color(QPalette::Button));
    // Two of them stand apart.
    QCOMPARE(image.pixelColor(0, 20), Look::palette().color(QPalette::Window));
}

void TestStyleKeys::toolKeyShowsItsFocusAndItsMenu()
{
    QStyleOptionToolButton option = optionOf<QStyleOptionToolButton>(side, rest);
    QList<QImage> pictures{toolKey(option)};
    option.features = QStyleOptionToolButton::HasMenu;
    pictures.append(toolKey(option));
    option.state = focused | QStyle::State_KeyboardFocusChange;
    pictures.append(toolKey(option));
    QVERIFY(areAllDifferent(pictures));
    QCOMPARE(pictures.last().pixelColor(40, 0), Look::focus());
}

void TestStyleKeys::frameOfTheFocusLiesAlongTheEdge()
{
    const QRect place(QPoint(), side);
    const QImage inside =
        drawn(side, [&](QPainter *painter) { StyleKeys::drawFocus(place, painter); });
    QCOMPARE(inside.pixelColor(0, 20), Look::focus());
    QCOMPARE(inside.pixelColor(2, 20), Look::focusEdge());
    const QImage around =
        drawn(side, [&](QPainter *painter) { StyleKeys::drawFocusFrame(place, painter); });
    QCOMPARE(around.pixelColor(0, 20), Look::focusEdge());
    QCOMPARE(around.pixelColor(StyleKeys::focusWidth, 20), Look::focus());
}

FILARIX_TEST_MAIN(TestStyleKeys)
#include "tst_stylekeys.moc"
