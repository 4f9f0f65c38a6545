// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds TListWidget: a program far longer than a page.

#include "filarixtest.h"
#include "rowfixture.h"
#include "rowprobe.h"
#include "tlistwidget.h"

#include <QSet>
#include <QSignalSpy>

using namespace RowFixture;
using namespace RowProbe;

namespace {

const int manyRows = FilarixTest::scaled(100000);

/// A list of rows that were appended without drawing.
class LargeList
{
public:
    explicit LargeList(bool titled)
        : m_title(titled ? columnTitle() : QStringList())
        , m_list(m_title, nullptr)
        , m_t(titled ? 1 : 0)
    {
        for (int i = 0; i < manyRows; ++i) {
            QStringList row = taughtRow(i + m_t);
            m_list.addWidget(row, false, false);
        }
    }

    TListWidget *operator->() { return &m_list; }
    TListWidget *get() { return &m_list; }
    int firstRow() const { return m_t; }
    int lastRow() const { return manyRows - 1 + m_t; }
    int page() const { return 14 - m_t; }

    /// Row widgets in slots, and any that may be left elsewhere. The title counts.
    int liveRows() { return m_list.findChildren<MJLine *>().size(); }

    /// The page shows the rows from \a first on.
    bool shows(int first, int rows)
    {
        for (int i = first; i < first + rows; ++i) {
            QWidget *row = m_list.itemAt(m_list.getListPos(i));
            if (!row || row->isHidden() || numberOf(row) != QString::number(i))
                return false;
        }
        for (int slot = m_list.getListPos(first + rows); slot < m_list.ListWidget::count();
             ++slot) {
            if (!m_list.itemAt(slot)->isHidden())
                return false;
        }
        return true;
    }

private:
    QStringList m_title;
    TListWidget m_list;
    int m_t;
};

} // namespace

/// A program far longer than any page.
class TestTListLarge : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void pagesToTheEndAndBackWithOnePageOfWidgets_data();
    void pagesToTheEndAndBackWithOnePageOfWidgets();
    void jumpsAndInsertsAtTheFront_data();
    void jumpsAndInsertsAtTheFront();
    void equalStringsOfNeighboursAreStoredOnce();
    void clearReportsEachRow();
};

void TestTListLarge::pagesToTheEndAndBackWithOnePageOfWidgets_data()
{
    QTest::addColumn<bool>("titled");
    QTest::newRow("with a title") << true;
    QTest::newRow("without a title") << false;
}

void TestTListLarge::pagesToTheEndAndBackWithOnePageOfWidgets()
{
    QFETCH(bool, titled);
    LargeList list(titled);
    QCOMPARE(list.liveRows(), titled ? 1 : 0);
    QStringList none;
    list->addWidget(none, true, true);
    QCOMPARE(list.liveRows(), 14);
    QVERIFY(list.shows(list.lastRow() - list.page() + 1, list.page()));

    list->home();
    int first = list.firstRow();
    for (; first + list.page() <= list.lastRow(); first += list.page()) {
        QVERIFY(list.shows(first, list.page()));
        QCOMPARE(list.liveRows(), 14);
        list->nextPage();
    }
    QVERIFY(list.shows(first, list.lastRow() - first + 1));
    list->nextPage();
    QVERIFY(list.shows(first, list.lastRow() - first + 1));
    while (first > list.firstRow()) {
        list->prevPage();
        first -= list.page();
        QVERIFY(list.shows(first, list.page()));
        QCOMPARE(list.liveRows(), 14);
    }
    list->prevPage();
    QVERIFY(list.shows(list.firstRow(), list.page()));
}

void TestTListLarge::jumpsAndInsertsAtTheFront_data()
{
    pagesToTheEndAndBackWithOnePageOfWidgets_data();
}

void TestTListLarge::jumpsAndInsertsAtTheFront()
{
    QFETCH(bool, titled);
    LargeList list(titled);
    const int t = list.firstRow();
    const QString prefix = titled ? "" : "N";
    list->home();
    list->setCurIndex(manyRows / 2, false);
    list->end();
    QVERIFY(list.shows(list.lastRow() - list.page() + 1, list.page()));
    list->home();
    QVERIFY(list.shows(t, list.page()));
    QCOMPARE(list->getCurIndex(), manyRows / 2);

    QStringList row = taughtRow(t);
    row[2] = "NEW";
    list->insertWidget(t, row, true, false);
    QCOMPARE(list->count(), manyRows + 1 + t);
    QCOMPARE(list->getCurIndex(), t);
    QCOMPARE(list->getContent(t), row);
    for (int i = t + 1; i < list->count(); ++i) {
        QStringList expected = taughtRow(i - 1);
        expected[1] = prefix + QString::number(i);
        if (list->getContent(i) != expected)
            QCOMPARE(list->getContent(i), expected);
    }
    list->removeWidget(t, true);
    QCOMPARE(list->count(), manyRows + t);
    QCOMPARE(list->getContent(list.lastRow()).at(1), prefix + QString::number(list.lastRow()));
    QCOMPARE(list.liveRows(), 14);
}

void TestTListLarge::equalStringsOfNeighboursAreStoredOnce()
{
    LargeList list(true);
    const int differing = 8;
    QSet<const QChar *> buffers;
    for (int i = 1; i <= manyRows; ++i) {
        const QStringList row = list->getContent(i);
        Q_FOREACH (const QString &text, row)
            buffers.insert(text.constData());
    }
    QVERIFY2(buffers.size() <= manyRows * differing + 31,
             qPrintable(QString::number(buffers.size())));

    // Shared until written: what is written to one row leaves its neighbours alone.
    QStringList v = QStringList() << "1"
                                  << "2"
                                  << "3"
                                  << "77";
    list->setV(500, v);
    QCOMPARE(list->getVIndex(500), 77);
    QCOMPARE(list->getContent(499), taughtRow(499));
    QCOMPARE(list->getContent(501), taughtRow(501));
}

void TestTListLarge::clearReportsEachRow()
{
    LargeList list(true);
    QSignalSpy progress(list.get(), SIGNAL(sg_item_deleted(int)));
    list->clear();
    QCOMPARE(progress.count(), manyRows + 1);
    int before = 0;
    for (int i = 0; i < progress.count(); ++i) {
        const int percent = progress.at(i).at(0).toInt();
        QVERIFY(percent >= before && percent <= 100);
        before = percent;
    }
    QCOMPARE(before, 100);
    QCOMPARE(progress.at(0).at(0).toInt(), 0);
    QCOMPARE(progress.at(manyRows / 2).at(0).toInt(), 50);
    QCOMPARE(list->count(), 1);
}

FILARIX_TEST_MAIN(TestTListLarge)
#include "tst_tlistlarge.moc"
