// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/paneltable.h"

#include <QHeaderView>

class TestPanelTable : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreAsHighAsAThumb();
    void nothingIsChosenOrTyped();
    void aTouchChoosesAWholeRow();
    void tabLeadsOn();
};

static void fill(PanelTable *table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column, new QTableWidgetItem("cell"));
    }
    table->resize(400, 200);
    table->show();
}

static void touch(PanelTable *table, int row, int column)
{
    const QPoint place = table->visualItemRect(table->item(row, column)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void TestPanelTable::rowsAreAsHighAsAThumb()
{
    QCOMPARE(PanelTable(2, 2).rowHeight(0), Look::smallestTouch);
    QCOMPARE(PanelTable(2, 2, 50).rowHeight(1), 50);
    QVERIFY(PanelTable(2, 2).verticalHeader()->isHidden());
}

void TestPanelTable::nothingIsChosenOrTyped()
{
    PanelTable table(2, 2);
    fill(&table);
    QVERIFY(TestCompat::waitForExposed(&table));
    touch(&table, 1, 1);
    QVERIFY(table.selectedItems().isEmpty());
    QVERIFY(!table.findChild<QWidget *>("qt_scrollarea_viewport")->findChild<QWidget *>());
}

void TestPanelTable::aTouchChoosesAWholeRow()
{
    PanelTable table(2, 3);
    table.letChooseRow();
    fill(&table);
    QVERIFY(TestCompat::waitForExposed(&table));
    touch(&table, 0, 1);
    touch(&table, 1, 1);
    QCOMPARE(table.selectedItems().size(), 3);
    QCOMPARE(table.selectedItems().first()->row(), 1);
}

void TestPanelTable::tabLeadsOn()
{
    QVERIFY(!PanelTable(2, 2).tabKeyNavigation());
}

FILARIX_TEST_MAIN(TestPanelTable)
#include "tst_paneltable.moc"
