// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/pickertable.h"

#include <QHeaderView>
#include <QTableWidget>

class TestPickerTable : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingChangesBeforeItIsFilled();
    void headsSayWhatIsBelow();
    void recentOnesThatAreGoneTakeNoPlace();
    void filterKeepsSizesWithTheirNames();
    void blanksAroundAPartCountForNothing();
    void datesComeWithTheListing();
    void markFollowsItsName();
    void emptyTable();
    void otherNamesComeWithTheirSizes();
    void headsAreSaidOnceMore();

private:
    QStringList column(int column) const;

    QTableWidget m_widget;
};

void TestPickerTable::init()
{
    FilarixTest::init();
    m_widget.clear();
    m_widget.setRowCount(0);
    m_widget.setColumnCount(2);
    const QStringList names = QStringList() << "b.cnc"
                                            << "a.cnc"
                                            << "c.cnc";
    m_widget.setRowCount(names.size());
    for (int row = 0; row < names.size(); ++row) {
        m_widget.setItem(row, 0, new QTableWidgetItem(names.at(row)));
        m_widget.setItem(row, 1, new QTableWidgetItem(QString("%1 KB").arg(row)));
    }
}

QStringList TestPickerTable::column(int column) const
{
    QStringList texts;
    for (int row = 0; row < m_widget.rowCount(); ++row)
        texts.append(m_widget.item(row, column)->text());
    return texts;
}

void TestPickerTable::nothingChangesBeforeItIsFilled()
{
    PickerTable table(&m_widget);
    table.setFilter("c");
    QCOMPARE(column(0), QStringList() << "b.cnc"
                                      << "a.cnc"
                                      << "c.cnc");
    table.fill();
    QCOMPARE(table.allNames().size(), 3);
    QCOMPARE(table.shownNames().size(), 3);
}

void TestPickerTable::headsSayWhatIsBelow()
{
    PickerTable table(&m_widget);
    QCOMPARE(m_widget.horizontalHeaderItem(0)->text(), QString("Name"));
    QCOMPARE(m_widget.horizontalHeaderItem(1)->text(), QString("Size"));
    QCOMPARE(m_widget.horizontalHeaderItem(2)->text(), QString("Changed"));
    table.showDates(false);
    QVERIFY(m_widget.isColumnHidden(2));
}

void TestPickerTable::recentOnesThatAreGoneTakeNoPlace()
{
    PickerTable table(&m_widget);
    table.setRecent(QStringList() << "gone.cnc"
                                  << "c.cnc"
                                  << "gone too.cnc"
                                  << "b.cnc");
    table.fill();
    QCOMPARE(column(0), QStringList() << "c.cnc"
                                      << "b.cnc"
                                      << "a.cnc");
    table.setOrder(PickerTable::ByName);
    table.fill();
    QCOMPARE(column(0).first(), QString("a.cnc"));
}

void TestPickerTable::filterKeepsSizesWithTheirNames()
{
    PickerTable table(&m_widget);
    table.setFilter("B.");
    table.fill();
    QCOMPARE(column(0), QStringList("b.cnc"));
    QCOMPARE(column(1), QStringList("0 KB"));
    table.setFilter(QString());
    table.fill();
    QCOMPARE(column(1), QStringList() << "1 KB"
                                      << "0 KB"
                                      << "2 KB");
}

void TestPickerTable::blanksAroundAPartCountForNothing()
{
    PickerTable table(&m_widget);
    table.setFilter("  c. ");
    table.fill();
    QCOMPARE(table.shownNames(), QStringList("c.cnc"));
}

void TestPickerTable::datesComeWithTheListing()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    ProgramListing listing(programDir(), QStringList() << "a.cnc"
                                                       << "b.cnc");
    while (listing.step())
        continue;
    PickerTable table(&m_widget);
    table.setListing(listing);
    table.setOrder(PickerTable::ByDate);
    table.fill();
    QCOMPARE(column(0).first(), QString("a.cnc"));
    QCOMPARE(column(2).first().size(), 16);
    QCOMPARE(column(2).last(), QString());
}

void TestPickerTable::markFollowsItsName()
{
    PickerTable table(&m_widget);
    table.fill();
    table.mark("c.cnc");
    QCOMPARE(m_widget.currentRow(), 2);
    table.mark("gone.cnc");
    QVERIFY(m_widget.selectedItems().isEmpty());
}

void TestPickerTable::emptyTable()
{
    m_widget.setRowCount(0);
    PickerTable table(&m_widget);
    table.fill();
    table.mark("a.cnc");
    QCOMPARE(table.allNames(), QStringList());
}

void TestPickerTable::otherNamesComeWithTheirSizes()
{
    writeFile(programDir() + "/new.cnc", QByteArray(2500, 'x'));
    PickerTable table(&m_widget);
    table.setRecent(QStringList("old.cnc"));
    table.setNames(QStringList() << "new.cnc"
                                 << "old.cnc");
    table.fill();
    QCOMPARE(column(0), QStringList() << "old.cnc"
                                      << "new.cnc");
    QCOMPARE(column(1), QStringList() << ""
                                      << "");
    ProgramListing listing(programDir(), table.allNames());
    while (listing.step()) {
    }
    table.setListing(listing);
    table.fill();
    QCOMPARE(column(1), QStringList() << "0 KB"
                                      << "3 KB");
    table.setNames(QStringList());
    table.fill();
    QCOMPARE(m_widget.rowCount(), 0);
}

void TestPickerTable::headsAreSaidOnceMore()
{
    PickerTable table(&m_widget);
    m_widget.setHorizontalHeaderLabels(QStringList() << "1"
                                                     << "2"
                                                     << "3");
    table.retranslate();
    QCOMPARE(m_widget.horizontalHeaderItem(0)->text(), QString("Name"));
    QCOMPARE(m_widget.horizontalHeaderItem(2)->text(), QString("Changed"));
}

FILARIX_TEST_MAIN(TestPickerTable)
#include "tst_pickertable.moc"
