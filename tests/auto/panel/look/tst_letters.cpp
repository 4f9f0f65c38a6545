// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/letters.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "look/paneltable.h"
#include "tlistwidget.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

class TestLetters : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lettersGrowAndShrinkAgain();
    void whatHasNoRoomStopsAllOfThem();
    void aLongerTextTakesTheRoomBack();
    void whatTheLibraryMakesStays();
    void aStripOfKeysKeepsItsHeight();
    void aTableGrowsWithItsRows();
    void aCellThatWouldBeCutStopsIt();
    void aDialogGrowsWithinThePanel();
    void aLanguageMeanwhileStartsAnew();

private:
    static int pixels(const QWidget *widget) { return widget->font().pixelSize(); }
};

void TestLetters::init()
{
    FilarixTest::init();
    QFont font = QApplication::font();
    font.setPixelSize(16);
    QApplication::setFont(font);
}

void TestLetters::cleanup()
{
    Measures::useTextSize(100);
    FilarixTest::cleanup();
}

void TestLetters::lettersGrowAndShrinkAgain()
{
    QWidget strip;
    QHBoxLayout row(&strip);
    QLabel *label = new QLabel("ready");
    row.addWidget(label);
    Letters letters(&strip);
    strip.resize(400, 100);
    strip.show();
    Measures::useTextSize(150);
    QCOMPARE(letters.percent(), 150);
    QCOMPARE(pixels(label), 24);
    Measures::useTextSize(125);
    QCOMPARE(pixels(label), 20);
    Measures::useTextSize(100);
    QCOMPARE(pixels(label), 16);
    // What is there only now has its size when it is shown.
    Measures::useTextSize(150);
    QPushButton *key = new QPushButton("Send");
    row.addWidget(key);
    key->show();
    QTRY_COMPARE(pixels(key), 24);
    QCOMPARE(pixels(label), 24);
}

void TestLetters::whatHasNoRoomStopsAllOfThem()
{
    QWidget strip;
    QHBoxLayout row(&strip);
    QLabel *wide = new QLabel("Verbindungen");
    QLabel *small = new QLabel("x");
    row.addWidget(wide);
    row.addWidget(small);
    Letters letters(&strip);
    strip.show();
    const QSize least = strip.minimumSizeHint();
    strip.setFixedSize(least.width() + wide->sizeHint().width() / 5, 100);
    Measures::useTextSize(150);
    QVERIFY2(letters.percent() > 100 && letters.percent() < 125,
             qPrintable(QString::number(letters.percent())));
    QCOMPARE(pixels(wide), pixels(small));
    QVERIFY(wide->sizeHint().width() <= wide->width());
    strip.setFixedSize(least);
    QCOMPARE(letters.percent(), 100);
    QCOMPARE(pixels(wide), 16);
}

void TestLetters::aLongerTextTakesTheRoomBack()
{
    QWidget strip;
    QHBoxLayout row(&strip);
    QLabel *label = new QLabel("ok");
    row.addWidget(label);
    Letters letters(&strip);
    strip.setFixedSize(200, 60);
    strip.show();
    Measures::useTextSize(150);
    QCOMPARE(letters.percent(), 150);
    label->setText("does not answer so");
    QTRY_VERIFY(letters.percent() < 150);
    QVERIFY(label->sizeHint().width() <= label->width());
    label->setText("ok");
    QTRY_COMPARE(letters.percent(), 150);
}

void TestLetters::whatTheLibraryMakesStays()
{
    QWidget screen;
    QHBoxLayout row(&screen);
    QStringList title;
    TListWidget *list = new TListWidget(title, nullptr);
    QLabel *inside = new QLabel("a row", list);
    QLabel *own = new QLabel("own");
    row.addWidget(list);
    row.addWidget(own);
    Letters letters(&screen);
    screen.resize(400, 200);
    screen.show();
    Measures::useTextSize(150);
    QCOMPARE(pixels(own), 24);
    QCOMPARE(pixels(inside), 16);
    QVERIFY(Letters::isForeign(list));
    QVERIFY(!Letters::isForeign(own));
}

void TestLetters::aStripOfKeysKeepsItsHeight()
{
    QWidget strip;
    QHBoxLayout row(&strip);
    PanelKey *key = new PanelKey(Glyphs::icon(Glyphs::Menu), QString("Menu"));
    row.addWidget(key);
    Letters letters(&strip);
    strip.resize(300, strip.sizeHint().height());
    strip.show();
    const int height = key->sizeHint().height();
    const int side = key->iconSize().height();
    Measures::useTextSize(150);
    QCOMPARE(letters.percent(), 150);
    QCOMPARE(key->sizeHint().height(), height);
    QVERIFY(key->iconSize().height() < side);
    Measures::useTextSize(100);
    QCOMPARE(key->iconSize().height(), side);
}

void TestLetters::aTableGrowsWithItsRows()
{
    QWidget screen;
    QHBoxLayout row(&screen);
    PanelTable *table = new PanelTable(2, 2);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->setColumnWidth(0, 60);
    table->setItem(0, 0, new QTableWidgetItem("1"));
    row.addWidget(table);
    Letters letters(&screen);
    screen.resize(400, 200);
    screen.show();
    const int height = table->rowHeight(0);
    Measures::useTextSize(150);
    QCOMPARE(pixels(table), 24);
    QCOMPARE(pixels(table->horizontalHeader()), 24);
    QCOMPARE(table->columnWidth(0), 90);
    QCOMPARE(table->rowHeight(0), height * 3 / 2);
    Measures::useTextSize(100);
    QCOMPARE(table->columnWidth(0), 60);
    QCOMPARE(table->rowHeight(0), height);
    QCOMPARE(pixels(table->horizontalHeader()), 16);
}

void TestLetters::aCellThatWouldBeCutStopsIt()
{
    QWidget screen;
    QHBoxLayout row(&screen);
    PanelTable *table = new PanelTable(1, 1);
    table->setWordWrap(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setItem(0, 0, new QTableWidgetItem("192.168.1.23:4001"));
    row.addWidget(table);
    Letters letters(&screen);
    const int text = table->fontMetrics().horizontalAdvance("192.168.1.23:4001");
    screen.resize(text * 5 / 4 + 30, 200);
    screen.show();
    Measures::useTextSize(150);
    QVERIFY2(letters.percent() > 100 && letters.percent() < 150,
             qPrintable(QString::number(letters.percent())));
    QVERIFY(table->fontMetrics().horizontalAdvance("192.168.1.23:4001") < table->columnWidth(0));
}

void TestLetters::aDialogGrowsWithinThePanel()
{
    Measures::useTextSize(150);
    QDialog dialog;
    QHBoxLayout row(&dialog);
    QLabel *label = new QLabel("Send this program to the PLC?");
    row.addWidget(label);
    const QSize before = dialog.sizeHint();
    dialog.resize(before);
    Letters::grow(&dialog, QSize(2000, 400));
    QCOMPARE(pixels(label), 24);
    QVERIFY(dialog.width() > before.width());
    QVERIFY(label->sizeHint().width() <= label->width());

    QDialog narrow;
    QHBoxLayout other(&narrow);
    QLabel *kept = new QLabel("Send this program to the PLC?");
    other.addWidget(kept);
    narrow.resize(before);
    Letters::grow(&narrow, before);
    QCOMPARE(pixels(kept), 16);
    QCOMPARE(narrow.size(), before);
}

// A screen that is not seen must not hold the panel to the width of its letters.
void TestLetters::aLanguageMeanwhileStartsAnew()
{
    QWidget screen;
    QHBoxLayout row(&screen);
    QLabel *label = new QLabel("ready");
    row.addWidget(label);
    Letters letters(&screen);
    screen.resize(400, 100);
    screen.show();
    Measures::useTextSize(150);
    screen.hide();
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&screen, &change);
    QCOMPARE(pixels(label), 16);
    screen.show();
    QTRY_COMPARE(pixels(label), 24);
}

FILARIX_TEST_MAIN(TestLetters)
#include "tst_letters.moc"
