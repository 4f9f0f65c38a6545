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
    void highKeyHasIconAndWordsInItsMiddle();
};

namespace {

const QSize side(80, 40);

QImage drawnKey(const QStyleOptionToolButton &option)
{
    PanelStyle style;
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(option.palette.color(QPalette::Window));
    QPainter painter(&image);
    StyleKeys::drawToolKey(option, &painter, &style, nullptr);
    return image;
}

QImage toolKey(QStyleOptionToolButton option)
{
    option.toolButtonStyle = Qt::ToolButtonTextOnly;
    return drawnKey(option);
}

/// A red icon above a word.
QImage keyWithIcon(QStyleOptionToolButton option)
{
    QPixmap icon(20, 20);
    icon.fill(Qt::red);
    option.icon = QIcon(icon);
    option.iconSize = icon.size();
    option.text = QLatin1String("Word");
    option.toolButtonStyle = Qt::ToolButtonTextUnderIcon;
    option.fontMetrics = QFontMetrics(option.font);
    return drawnKey(option);
}

/// The first row and the one behind the last where the middle column has the colour.
QPair<int, int> rowsOf(const QImage &image, const QColor &colour)
{
    QPair<int, int> rows(-1, -1);
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(image.width() / 2, y) != colour)
            continue;
        rows.first = rows.first < 0 ? y : rows.first;
        rows.second = y + 1;
    }
    return rows;
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

void TestStyleKeys::highKeyHasIconAndWordsInItsMiddle()
{
    const int words = QFontMetrics(QStyleOptionToolButton().font).height();
    const auto iconOn = [this, words](int room) {
        return rowsOf(keyWithIcon(optionOf<QStyleOptionToolButton>(QSize(80, room + words), rest)),
                      Qt::red);
    };
    const QPair<int, int> low = iconOn(30);
    QCOMPARE(low.second - low.first, 20);
    QVERIFY(low.first <= 4);
    const QPair<int, int> high = iconOn(100);
    QCOMPARE(high.second - high.first, 20);
    // As much above the icon as below the word.
    const int above = high.first;
    const int below = 100 - high.second;
    QVERIFY2(qAbs(above - below) <= 6, qPrintable(QString("%1 %2").arg(above).arg(below)));
}

FILARIX_TEST_MAIN(TestStyleKeys)
#include "tst_stylekeys.moc"
