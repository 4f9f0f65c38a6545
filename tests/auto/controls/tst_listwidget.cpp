// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "listwidget.h"

#include <QPointer>

class TestListWidget : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void newContainerIsEmptyAndFlat();
    void hasNoMetaObjectOfItsOwn();
    void nullRowChangesNothing();
    void heightIsTheSumOfTheRows();
    void rowsStackFromTheTopWithoutGaps();
    void insertedRowStandsAtItsIndex();
    void itemAtOutOfRangeIsNull();
    void removedRowStaysAliveAndAChild();
    void removingOutOfRangeChangesNothing();
    void takenRowIsDeleted();
    void negativeMarginsCountAsZero();
    void clearHidesTheContainerAndKeepsTheRows();
    void filledAgainAfterClearItStaysHidden();
    void heightIsStaleUntilRecalculated();
    void removingAGrownRowSubtractsItsNewHeight();
    void sumBelowZeroIsShownAsNoHeight();
};

namespace {

QWidget *newRow(int height, QWidget *parent = nullptr)
{
    QWidget *row = new QWidget(parent);
    row->setFixedHeight(height);
    return row;
}

/// The height that the container is fixed to.
int fixedHeight(const ListWidget &list)
{
    return list.minimumHeight() == list.maximumHeight() ? list.minimumHeight() : -1;
}

} // namespace

void TestListWidget::newContainerIsEmptyAndFlat()
{
    const ListWidget list(nullptr);
    QCOMPARE(list.height(), 0);
    QCOMPARE(list.count(), 0);
    QCOMPARE(fixedHeight(list), 0);
    QVERIFY(!list.isVisible());
}

void TestListWidget::hasNoMetaObjectOfItsOwn()
{
    const ListWidget list(nullptr);
    QCOMPARE(list.metaObject(), &QWidget::staticMetaObject);
}

void TestListWidget::nullRowChangesNothing()
{
    ListWidget list(nullptr);
    list.addWidget(newRow(30));
    list.addWidget(nullptr);
    list.insertWidget(0, nullptr);
    list.removeWidget(nullptr);
    list.takeAt(nullptr);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.height(), 30);
    QCOMPARE(fixedHeight(list), 30);
}

void TestListWidget::heightIsTheSumOfTheRows()
{
    ListWidget list(nullptr);
    list.addWidget(newRow(30));
    list.addWidget(newRow(50));
    QCOMPARE(list.height(), 80);
    QCOMPARE(fixedHeight(list), 80);
    delete list.removeWidget(0);
    QCOMPARE(list.height(), 50);
    QCOMPARE(fixedHeight(list), 50);
}

void TestListWidget::rowsStackFromTheTopWithoutGaps()
{
    QWidget window;
    ListWidget *list = new ListWidget(&window);
    list->setFixedWidth(200);
    QWidget *first = newRow(30);
    QWidget *second = newRow(50);
    list->addWidget(first);
    list->addWidget(second);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QCOMPARE(first->geometry(), QRect(0, 0, 200, 30));
    QCOMPARE(second->geometry(), QRect(0, 30, 200, 50));
    QCOMPARE(static_cast<QWidget *>(list)->height(), 80);

    first->hide();
    list->recalculateHeight();
    QTRY_COMPARE(second->y(), 0);
    // A hidden row counts with its height.
    QCOMPARE(list->height(), 80);
}

void TestListWidget::insertedRowStandsAtItsIndex()
{
    ListWidget list(nullptr);
    QWidget *first = newRow(10);
    QWidget *second = newRow(20);
    QWidget *third = newRow(40);
    list.addWidget(third);
    list.insertWidget(0, first);
    list.insertWidget(1, second);
    QCOMPARE(list.indexof(first), 0);
    QCOMPARE(list.indexof(second), 1);
    QCOMPARE(list.indexof(third), 2);
    QCOMPARE(list.itemAt(1), second);
    QCOMPARE(list.height(), 70);
    QCOMPARE(fixedHeight(list), 70);
    QWidget other;
    QCOMPARE(list.indexof(&other), -1);
}

void TestListWidget::itemAtOutOfRangeIsNull()
{
    ListWidget list(nullptr);
    QVERIFY(!list.itemAt(0));
    QWidget *row = newRow(30);
    list.addWidget(row);
    QVERIFY(!list.itemAt(-1));
    QCOMPARE(list.itemAt(0), row);
    QVERIFY(!list.itemAt(list.count()));
}

void TestListWidget::removedRowStaysAliveAndAChild()
{
    ListWidget list(nullptr);
    const QPointer<QWidget> byIndex = newRow(30);
    const QPointer<QWidget> byWidget = newRow(50);
    list.addWidget(byIndex);
    list.addWidget(byWidget);
    QCOMPARE(list.removeWidget(0), byIndex.data());
    list.removeWidget(byWidget.data());
    QCOMPARE(list.count(), 0);
    QCOMPARE(list.height(), 0);
    QCOMPARE(fixedHeight(list), 0);
    QVERIFY(byIndex && byWidget);
    QCOMPARE(byIndex->parentWidget(), static_cast<QWidget *>(&list));
    QCOMPARE(byWidget->parentWidget(), static_cast<QWidget *>(&list));
}

void TestListWidget::removingOutOfRangeChangesNothing()
{
    ListWidget list(nullptr);
    list.addWidget(newRow(30));
    QVERIFY(!list.removeWidget(-1));
    QVERIFY(!list.removeWidget(1));
    list.takeAt(-1);
    list.takeAt(1);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.height(), 30);
}

void TestListWidget::takenRowIsDeleted()
{
    ListWidget list(nullptr);
    const QPointer<QWidget> byIndex = newRow(30);
    const QPointer<QWidget> byWidget = newRow(50);
    const QPointer<QWidget> left = newRow(5);
    list.addWidget(byIndex);
    list.addWidget(left);
    list.addWidget(byWidget);
    list.takeAt(0);
    QVERIFY(!byIndex);
    QCOMPARE(list.height(), 55);
    list.takeAt(byWidget.data());
    QVERIFY(!byWidget);
    QVERIFY(left);
    QCOMPARE(list.height(), 5);
    QCOMPARE(list.count(), 1);
}

void TestListWidget::negativeMarginsCountAsZero()
{
    ListWidget list(nullptr);
    list.setContentsMargins(-1, 2, -3, 4);
    int left, top, right, bottom;
    list.getContentsMargins(&left, &top, &right, &bottom);
    QCOMPARE(left, 0);
    QCOMPARE(top, 2);
    QCOMPARE(right, 0);
    QCOMPARE(bottom, 4);
}

void TestListWidget::clearHidesTheContainerAndKeepsTheRows()
{
    ListWidget list(nullptr);
    const QPointer<QWidget> first = newRow(30);
    const QPointer<QWidget> second = newRow(50);
    list.addWidget(first);
    list.addWidget(second);
    list.show();
    QVERIFY(list.isVisible());
    list.clear();
    QCOMPARE(list.count(), 0);
    QCOMPARE(list.height(), 0);
    QCOMPARE(fixedHeight(list), 0);
    QVERIFY(!list.isVisible());
    QVERIFY(first && second);
    QCOMPARE(first->parentWidget(), static_cast<QWidget *>(&list));
}

void TestListWidget::filledAgainAfterClearItStaysHidden()
{
    ListWidget list(nullptr);
    list.show();
    list.clear();
    list.addWidget(newRow(30));
    QVERIFY(list.isHidden());
    list.show();
    QVERIFY(list.isVisible());
    list.hide();
}

void TestListWidget::heightIsStaleUntilRecalculated()
{
    ListWidget list(nullptr);
    QWidget *row = newRow(30);
    list.addWidget(row);
    list.addWidget(newRow(50));
    row->setFixedHeight(100);
    QCOMPARE(list.height(), 80);
    QCOMPARE(fixedHeight(list), 80);
    list.recalculateHeight();
    QCOMPARE(list.height(), 150);
    QCOMPARE(fixedHeight(list), 150);
}

void TestListWidget::removingAGrownRowSubtractsItsNewHeight()
{
    ListWidget list(nullptr);
    QWidget *row = newRow(30);
    list.addWidget(row);
    list.addWidget(newRow(50));
    row->setFixedHeight(40);
    list.removeWidget(row);
    QCOMPARE(list.height(), 40);
    list.recalculateHeight();
    QCOMPARE(list.height(), 50);
}

void TestListWidget::sumBelowZeroIsShownAsNoHeight()
{
    ListWidget list(nullptr);
    QWidget *row = newRow(30);
    list.addWidget(row);
    row->setFixedHeight(100);
    list.removeWidget(row);
    QCOMPARE(list.height(), -70);
    QCOMPARE(fixedHeight(list), 0);
}

FILARIX_TEST_MAIN(TestListWidget)
#include "tst_listwidget.moc"
