// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/panelstyle.h"
#include "screens/tablepicker.h"

#include <QPushButton>
#include <QTableWidget>

class TestTablePicker : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void currentEntryIsChosenAtFirst();
    void withoutACurrentEntryOkWaitsForAChoice();
    void touchChoosesTheRow();
};

static QPushButton *okButton(TablePicker *picker)
{
    // Behind Cancel, as everywhere.
    return picker->findChildren<QPushButton *>().last();
}

void TestTablePicker::currentEntryIsChosenAtFirst()
{
    MachineData machine;
    TablePicker picker("Points", MachineData::pointKeys(), machine.points(), 3);
    QCOMPARE(picker.number(), 3);
    QVERIFY(okButton(&picker)->isEnabled() && okButton(&picker)->isDefault());
    QCOMPARE(picker.findChild<QTableWidget *>()->item(2, 1)->text(), machine.points().at(2).name);
}

void TestTablePicker::withoutACurrentEntryOkWaitsForAChoice()
{
    MachineData machine;
    TablePicker picker("Points", MachineData::pointKeys(), machine.points(), 0);
    QCOMPARE(picker.number(), 0);
    QVERIFY(!okButton(&picker)->isEnabled());
}

void TestTablePicker::touchChoosesTheRow()
{
    MachineData machine;
    TablePicker picker("Speeds", MachineData::speedKeys(), machine.speeds(), 1);
    picker.show();
    QTableWidget *table = picker.findChild<QTableWidget *>();
    const QRect cell = table->visualItemRect(table->item(2, 1));
    QVERIFY(cell.height() >= 34);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    QCOMPARE(picker.number(), 3);
    QTest::mouseClick(okButton(&picker), Qt::LeftButton);
    QCOMPARE(picker.result(), int(QDialog::Accepted));
}

FILARIX_TEST_MAIN(TestTablePicker)
#include "tst_tablepicker.moc"
