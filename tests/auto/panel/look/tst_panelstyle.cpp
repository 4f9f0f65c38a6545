// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "contrast.h"
#include "filarixtest.h"
#include "look/look.h"
#include "look/panelstyle.h"
#include "wfinddialog.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QStringListModel>
#include <QStyleOption>
#include <QTableWidget>

class TestPanelStyle : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void buttonsOfMessageBoxesAreLargeEnough();
    void findDialogIsLargeEnough();
    void fixedSizesOfTheLibraryStay();
    void cellsTakeTheHeightOfTheirRow();
    void rowsOfListsAreHighEnoughForGloves();
    void tablesKeepTheHeightsOfTheirRows();
    void chosenButtonStandsOut_data();
    void chosenButtonStandsOut();
    void fieldsHaveAnEdgeOnDarkPaper();
    void cleanup();
    void theFrameOfTheFocusHasTwoColours();
};

void TestPanelStyle::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestPanelStyle::buttonsOfMessageBoxesAreLargeEnough()
{
    QMessageBox box(QMessageBox::Warning, "Title", "Text", QMessageBox::Yes | QMessageBox::No);
    box.show();
    const QList<QAbstractButton *> buttons = box.buttons();
    QCOMPARE(buttons.size(), 2);
    for (QAbstractButton *button : buttons)
        QVERIFY(button->height() >= 40 && button->width() >= 40);
}

void TestPanelStyle::findDialogIsLargeEnough()
{
    WFindDialog dialog(nullptr);
    dialog.show();
    const QWidgetList all = dialog.findChildren<QWidget *>();
    int touched = 0;
    for (QWidget *widget : all) {
        if (!qobject_cast<QPushButton *>(widget) && !qobject_cast<QLineEdit *>(widget)
            && !qobject_cast<QCheckBox *>(widget))
            continue;
        ++touched;
        QVERIFY2(widget->height() >= 34, widget->metaObject()->className());
    }
    QCOMPARE(touched, 7);
}

void TestPanelStyle::fixedSizesOfTheLibraryStay()
{
    QPushButton button("OK");
    button.setFixedSize(30, 20);
    button.show();
    QCOMPARE(button.size(), QSize(30, 20));
}

void TestPanelStyle::cellsTakeTheHeightOfTheirRow()
{
    QLineEdit field;
    ComboLineEdit cell(nullptr);
    QVERIFY(field.sizeHint().height() >= 40);
    QVERIFY(cell.sizeHint().height() < 34);
}

void TestPanelStyle::rowsOfListsAreHighEnoughForGloves()
{
    QListView list;
    QStringListModel rows(QStringList() << "a.cnc"
                                        << "b.cnc");
    list.setModel(&rows);
    list.show();
    QVERIFY(list.visualRect(rows.index(1)).height() >= 48);
    QVERIFY(list.visualRect(rows.index(1)).top() >= 48);
}

void TestPanelStyle::tablesKeepTheHeightsOfTheirRows()
{
    QTableWidget table(2, 1);
    table.verticalHeader()->setDefaultSectionSize(34);
    table.setItem(0, 0, new QTableWidgetItem("a"));
    table.show();
    QCOMPARE(table.rowHeight(0), 34);
}

void TestPanelStyle::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

void TestPanelStyle::chosenButtonStandsOut_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("light") << int(Look::Light);
    QTest::newRow("dark") << int(Look::Dark);
}

void TestPanelStyle::chosenButtonStandsOut()
{
    QFETCH(int, look);
    Look::use(Look::Style(look));
    QPushButton button("English");
    button.setCheckable(true);
    button.resize(120, 40);
    const auto ground = [&button] {
        return TestCompat::grab(&button).toImage().pixelColor(8, button.height() / 2);
    };
    const QColor plain = ground();
    button.setChecked(true);
    const QColor chosen = ground();
    QVERIFY(chosen.blue() - chosen.red() > 100);
    QVERIFY(plain.blue() - plain.red() < 50);
    QVERIFY(Contrast::ratio(chosen, Qt::white) >= Contrast::textContrast);
}

void TestPanelStyle::fieldsHaveAnEdgeOnDarkPaper()
{
    Look::use(Look::Dark);
    QLineEdit field;
    QCheckBox box;
    for (QWidget *widget : {static_cast<QWidget *>(&field), static_cast<QWidget *>(&box)}) {
        widget->resize(24, 40);
        QVERIFY2(Contrast::drawn(widget, widget->rect()) >= 3, widget->metaObject()->className());
    }
}

void TestPanelStyle::theFrameOfTheFocusHasTwoColours()
{
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    QStyleOption option;
    option.rect = image.rect();
    QApplication::style()->drawControl(QStyle::CE_FocusFrame, &option, &painter);
    const QColor expected[] = {Look::focusEdge(), Look::focusEdge(), Look::focus(), Look::focus(),
                               Qt::gray};
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(image.pixelColor(i, 10), expected[i]);
        QCOMPARE(image.pixelColor(29 - i, 10), expected[i]);
        QCOMPARE(image.pixelColor(15, i), expected[i]);
        QCOMPARE(image.pixelColor(15, 19 - i), expected[i]);
    }
}

FILARIX_TEST_MAIN(TestPanelStyle)
#include "tst_panelstyle.moc"
