// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/rowchange.h"
#include "screens/taughtprogram.h"
#include "tlistwidget.h"

class TestRowChange : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreNumberedFromOne();
    void theNumberIsNoDifference();
    void theListHasTheRowsAndTheirNumbers_data();
    void theListHasTheRowsAndTheirNumbers();
    void whatStaysIsNotTouched();
};

static QList<QStringList> rowsOf(const QString &letters)
{
    QList<QStringList> rows;
    for (const QChar letter : letters)
        rows.append(TaughtProgram::command(letter));
    return rows;
}

static QList<QStringList> rowsIn(TListWidget *list)
{
    QList<QStringList> rows;
    for (int i = 1; i < list->count(); ++i)
        rows.append(list->getContent(i));
    return rows;
}

void TestRowChange::rowsAreNumberedFromOne()
{
    const QList<QStringList> rows = RowChange::numbered(rowsOf("ab"));
    QCOMPARE(rows.at(0).at(1), QString("1"));
    QCOMPARE(rows.at(1).at(1), QString("2"));
    QCOMPARE(RowChange::numbered(QList<QStringList>()), QList<QStringList>());
}

void TestRowChange::theNumberIsNoDifference()
{
    const QStringList row{"Oth", "1", "", "Oth", "a"};
    QVERIFY(RowChange::isSame(row, {"Oth", "2", "", "Oth", "a"}));
    QVERIFY(!RowChange::isSame(row, {"Oth", "1", "", "Oth", "b"}));
    QVERIFY(!RowChange::isSame(row, {"Oth", "1", "", "Oth"}));
}

void TestRowChange::theListHasTheRowsAndTheirNumbers_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("inserted") << "abcd"
                              << "abxcd";
    QTest::newRow("inserted first") << "abcd"
                                    << "xyabcd";
    QTest::newRow("appended") << "abcd"
                              << "abcdx";
    QTest::newRow("twice the same") << "aab"
                                    << "aaab";
    QTest::newRow("removed") << "abcd"
                             << "ad";
    QTest::newRow("moved") << "abcd"
                           << "acbd";
    QTest::newRow("all others") << "abcd"
                                << "xyz";
    QTest::newRow("cleared") << "abcd"
                             << "";
    QTest::newRow("filled") << ""
                            << "abcd";
    QTest::newRow("longer than a page") << "ab"
                                        << "abcdefghijklmnopqrstuvwxyz";
    QTest::newRow("the same") << "abc"
                              << "abc";
}

void TestRowChange::theListHasTheRowsAndTheirNumbers()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QStringList title = TaughtProgram::titleRow();
    TListWidget list(title, nullptr);
    RowChange::apply(&list, rowsOf(before));
    list.reshow();
    QCOMPARE(rowsIn(&list), RowChange::numbered(rowsOf(before)));
    RowChange::apply(&list, rowsOf(after));
    list.reshow();
    QCOMPARE(rowsIn(&list), RowChange::numbered(rowsOf(after)));
}

void TestRowChange::whatStaysIsNotTouched()
{
    QStringList title = TaughtProgram::titleRow();
    TListWidget list(title, nullptr);
    const QList<QStringList> rows = RowChange::numbered(rowsOf("abcd"));
    RowChange::apply(&list, rows);
    list.setCurIndex(2, true);
    RowChange::apply(&list, rows);
    QCOMPARE(list.getCurIndex(), 2);
    QCOMPARE(rowsIn(&list), rows);
    // A change of the last row leaves the current one current.
    RowChange::apply(&list, rowsOf("abcx"));
    QCOMPARE(list.getCurIndex(), 2);
}

FILARIX_TEST_MAIN(TestRowChange)
#include "tst_rowchange.moc"
