// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/glyphs.h"
#include "look/styleshades.h"
#include "look/styletables.h"
#include "styletest.h"

class TestStyleTables : public StyleTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { restoreLook(); }
    void headIsFlatAndTellsWhenItIsPressed();
    void onlyTheLastColumnHasNoLineBehindIt();
    void signTellsHowATableIsSorted();
    void chosenTabIsMarkedWhereItMeetsItsPage_data();
    void chosenTabIsMarkedWhereItMeetsItsPage();
    void entriesOfAMenuTellTheirState_data() { addLooks(); }
    void entriesOfAMenuTellTheirState();
    void mnemonicOfAnEntryIsNotDrawn();
};

namespace {

const QSize head(120, 40);
const QSize entry(240, 40);

} // namespace

void TestStyleTables::headIsFlatAndTellsWhenItIsPressed()
{
    const auto picture = [](const QStyleOptionHeader &option) {
        return drawn(head, [&](QPainter *painter) { StyleTables::drawHead(option, painter); });
    };
    const QImage still = picture(optionOf<QStyleOptionHeader>(head, rest));
    QCOMPARE(coloursIn(still, QRect(0, 0, 110, 39)).size(), 1);
    QVERIFY(picture(optionOf<QStyleOptionHeader>(head, pressed)) != still);
    // A column of which a cell is chosen is no chosen key.
    QCOMPARE(picture(optionOf<QStyleOptionHeader>(head, on)), still);
}

void TestStyleTables::onlyTheLastColumnHasNoLineBehindIt()
{
    QStyleOptionHeader option = optionOf<QStyleOptionHeader>(head, rest);
    const auto end = [&option](QStyleOptionHeader::SectionPosition position) {
        option.position = position;
        return drawn(head, [&](QPainter *painter) { StyleTables::drawHead(option, painter); })
            .pixelColor(119, 10);
    };
    QCOMPARE(end(QStyleOptionHeader::Middle), StyleShades::edge(option));
    QCOMPARE(end(QStyleOptionHeader::End), StyleShades::key(option));
    QCOMPARE(end(QStyleOptionHeader::OnlyOneSection), StyleShades::key(option));
    const QImage empty =
        drawn(head, [&](QPainter *painter) { StyleTables::drawEmptyHead(option, painter); });
    QCOMPARE(empty.pixelColor(119, 10), StyleShades::key(option));
    QCOMPARE(empty.pixelColor(60, 39), StyleShades::edge(option));
}

void TestStyleTables::signTellsHowATableIsSorted()
{
    QList<QImage> pictures;
    for (QStyleOptionHeader::SortIndicator sign :
         {QStyleOptionHeader::None, QStyleOptionHeader::SortUp, QStyleOptionHeader::SortDown}) {
        QStyleOptionHeader option = optionOf<QStyleOptionHeader>(head, rest);
        option.sortIndicator = sign;
        pictures.append(
            drawn(head, [&](QPainter *painter) { StyleTables::drawSortSign(option, painter); }));
    }
    QVERIFY(areAllDifferent(pictures));
    QCOMPARE(coloursIn(pictures.first(), pictures.first().rect()).size(), 1);
}

void TestStyleTables::chosenTabIsMarkedWhereItMeetsItsPage_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QPoint>("mark");
    QTest::newRow("above") << int(QTabBar::RoundedNorth) << QPoint(60, 1);
    QTest::newRow("below") << int(QTabBar::RoundedSouth) << QPoint(60, 38);
    QTest::newRow("left") << int(QTabBar::RoundedWest) << QPoint(1, 20);
    QTest::newRow("right") << int(QTabBar::TriangularEast) << QPoint(118, 20);
}

void TestStyleTables::chosenTabIsMarkedWhereItMeetsItsPage()
{
    QFETCH(int, shape);
    QFETCH(QPoint, mark);
    const auto picture = [shape](QStyle::State state) {
        QStyleOptionTab option = optionOf<QStyleOptionTab>(head, state);
        option.shape = QTabBar::Shape(shape);
        return drawn(head, [&](QPainter *painter) { StyleTables::drawTab(option, painter); });
    };
    const QColor chosen = Look::palette().color(QPalette::Highlight);
    QCOMPARE(picture(rest | QStyle::State_Selected).pixelColor(mark), chosen);
    QVERIFY(picture(rest).pixelColor(mark) != chosen);
    QVERIFY(picture(pressed) != picture(rest));
    const QStyleOption base = optionOf<QStyleOption>(head, rest);
    const QImage line =
        drawn(head, [&](QPainter *painter) { StyleTables::drawTabBase(base, painter); });
    QCOMPARE(line.pixelColor(5, 5), StyleShades::edge(base));
}

void TestStyleTables::entriesOfAMenuTellTheirState()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    const auto picture = [](const QStyleOptionMenuItem &option) {
        return drawn(entry, [&](QPainter *painter) { StyleTables::drawMenuItem(option, painter); });
    };
    QStyleOptionMenuItem option = optionOf<QStyleOptionMenuItem>(entry, rest);
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.text = QLatin1String("Copy\tCtrl+C");
    QList<QImage> pictures{picture(option)};
    const QRect words(40, 0, 100, 40);
    QVERIFY(contrastIn(pictures.first(), words, Look::palette().color(QPalette::Base))
            >= Contrast::textContrast);
    option.checked = true;
    pictures.append(picture(option));
    option.checked = false;
    option.icon = Glyphs::icon(Glyphs::Find, Glyphs::OnPaper);
    pictures.append(picture(option));
    option.state = off;
    pictures.append(picture(option));
    option.state = rest | QStyle::State_Selected;
    option.icon = QIcon();
    pictures.append(picture(option));
    QVERIFY(contrastIn(pictures.last(), words, Look::palette().color(QPalette::Highlight))
            >= Contrast::textContrast);
    option.menuItemType = QStyleOptionMenuItem::SubMenu;
    pictures.append(picture(option));
    option.menuItemType = QStyleOptionMenuItem::Separator;
    pictures.append(picture(option));
    QVERIFY(areAllDifferent(pictures));
    const QImage ground =
        drawn(entry, [&](QPainter *painter) { StyleTables::drawMenuGround(option, painter); });
    QCOMPARE(ground.pixelColor(20, 20), Look::palette().color(QPalette::Base));
}

void TestStyleTables::mnemonicOfAnEntryIsNotDrawn()
{
    const auto picture = [this](const char *text) {
        QStyleOptionMenuItem option = optionOf<QStyleOptionMenuItem>(entry, rest);
        option.menuItemType = QStyleOptionMenuItem::Normal;
        option.text = QLatin1String(text);
        return drawn(entry, [&](QPainter *painter) { StyleTables::drawMenuItem(option, painter); });
    };
    QCOMPARE(picture("&Copy"), picture("Copy"));
    QVERIFY(picture("Copy") != picture("Cut"));
}

FILARIX_TEST_MAIN(TestStyleTables)
#include "tst_styletables.moc"
