// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "../../list/rowprobe.h"
#include "devicelog.h"
#include "filarixrows.h"
#include "filarixtest.h"
#include "guards/fittedlist.h"
#include "rowfixture.h"
#include "tlistwidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace RowFixture;
using namespace RowProbe;

/// A list of the library with as much room as its host gives it.
class TestFittedList : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rowsFillTheWidth_data();
    void rowsFillTheWidth();
    void titleStandsAboveItsColumns_data();
    void titleStandsAboveItsColumns();
    void pageFillsTheHeight_data();
    void pageFillsTheHeight();
    void aTableFillsItsPlace();
    void itFollowsEachChangeOfItsPlace();
    void contentAndPlaceOfTheListStay();
    void openRowIsMovedIntoView();
    void editsReachTheListAsEver();
    void barsNeverShow();
    void noRoomIsNoTrouble();
};

namespace {

/// What a row may leave free: the cells are rounded down, and each has a border.
const int spare = 16;

QStringList head()
{
    return FilarixRows::titleRow("Instr.", "Point", "Speed", "Z", "T");
}

void fill(TListWidget *list, int rows)
{
    for (int i = 0; i < rows; ++i) {
        QStringList row = instruction(list->count());
        list->addWidget(row, false, false);
    }
    QStringList none;
    list->addWidget(none, true, true);
    list->home();
}

MJLine *line(TListWidget *list, int row)
{
    return qobject_cast<MJLine *>(list->itemAt(list->getListPos(row)));
}

/// Where the cells of a row begin, from the left of the list.
QList<int> starts(TListWidget *list, QWidget *row)
{
    MJLine *instruction = qobject_cast<MJLine *>(row);
    QWidget *cells = row;
    if (instruction) {
        const bool isTable = !instruction->dataEditor()->isHidden();
        cells =
            isTable ? static_cast<QWidget *>(instruction->dataEditor()) : instruction->firstLine();
    }
    QList<int> starts;
    for (int i = 0; i < cells->layout()->count(); ++i) {
        QWidget *cell = cells->layout()->itemAt(i)->widget();
        starts.append(cell->mapTo(list, QPoint()).x());
    }
    return starts;
}

int rightEdge(TListWidget *list, MJLine *row)
{
    QWidget *last = RowView(row).cell(RowView::T);
    return last->mapTo(list, QPoint(last->width(), 0)).x();
}

/// How far the title stands beside the columns at the most.
int parting(TListWidget *list, int row)
{
    const QList<int> above = starts(list, list->itemAt(0));
    const QList<int> below = starts(list, list->itemAt(list->getListPos(row)));
    int parting = qAbs(above.size() - below.size()) * 1000;
    for (int i = 0; i < qMin(above.size(), below.size()); ++i)
        parting = qMax(parting, qAbs(above.at(i) - below.at(i)));
    return parting;
}

void show(QWidget *widget, const QSize &size)
{
    widget->resize(size);
    widget->show();
    QVERIFY(TestCompat::waitForExposed(widget));
    QTRY_COMPARE(widget->size(), size);
}

} // namespace

void TestFittedList::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestFittedList::rowsFillTheWidth_data()
{
    QTest::addColumn<int>("width");
    Q_FOREACH (int width, QList<int>() << 320 << 480 << 640 << 750)
        QTest::newRow(qPrintable(QString::number(width))) << width;
}

void TestFittedList::rowsFillTheWidth()
{
    QFETCH(int, width);
    FittedList fitted(head());
    fill(fitted.list(), 30);
    show(&fitted, QSize(width, 400));
    const int edge = rightEdge(fitted.list(), line(fitted.list(), 1));
    QVERIFY2(edge <= width && edge > width - spare, qPrintable(QString::number(edge)));
    QCOMPARE(fitted.list()->width(), width);
}

void TestFittedList::titleStandsAboveItsColumns_data()
{
    rowsFillTheWidth_data();
}

void TestFittedList::titleStandsAboveItsColumns()
{
    QFETCH(int, width);
    FittedList fitted(head());
    fill(fitted.list(), 30);
    show(&fitted, QSize(width, 400));
    QCOMPARE(parting(fitted.list(), 1), 0);
}

void TestFittedList::pageFillsTheHeight_data()
{
    QTest::addColumn<int>("height");
    Q_FOREACH (int height, QList<int>() << 40 << 120 << 272 << 480 << 580)
        QTest::newRow(qPrintable(QString::number(height))) << height;
}

void TestFittedList::pageFillsTheHeight()
{
    QFETCH(int, height);
    FittedList fitted(head());
    fill(fitted.list(), 100);
    show(&fitted, QSize(480, height));
    int shown = 0;
    for (int slot = 1; QWidget *row = fitted.list()->itemAt(slot); ++slot)
        shown += row->isVisible();
    const int rowHeight = line(fitted.list(), 1)->height();
    QVERIFY(rowHeight > 0);
    QCOMPARE(shown, qMax(1, height / rowHeight - 1));
}

void TestFittedList::aTableFillsItsPlace()
{
    FittedList fitted;
    for (int i = 0; i < 20; ++i) {
        QStringList row = variable(QString::number(i), "7");
        fitted.list()->addWidget(row, i == 19, false);
    }
    fitted.list()->home();
    show(&fitted, QSize(700, 300));
    DataEditor *first = qobject_cast<DataEditor *>(fitted.list()->itemAt(0));
    QWidget *last = tableCell(first, 2);
    const int edge = last->mapTo(fitted.list(), QPoint(last->width(), 0)).x();
    QVERIFY2(edge <= 700 && edge > 700 - spare, qPrintable(QString::number(edge)));
    fitted.resize(700, 400);
    QTRY_COMPARE(fitted.list()->itemAt(qMin(19, 400 / first->height() - 1))->isVisible(), true);
}

void TestFittedList::itFollowsEachChangeOfItsPlace()
{
    QWidget host;
    QHBoxLayout *layout = new QHBoxLayout(&host);
    layout->setContentsMargins(0, 0, 0, 0);
    FittedList *fitted = new FittedList(head());
    QPushButton *beside = new QPushButton("beside");
    beside->setFixedWidth(120);
    layout->addWidget(fitted);
    layout->addWidget(beside);
    layout->setSpacing(0);
    fill(fitted->list(), 30);
    show(&host, QSize(600, 300));
    QCOMPARE(fitted->list()->width(), 480);
    beside->hide();
    QTRY_COMPARE(fitted->list()->width(), 600);
    QVERIFY(rightEdge(fitted->list(), line(fitted->list(), 1)) > 600 - spare);
    beside->show();
    QTRY_COMPARE(fitted->list()->width(), 480);
    QTRY_VERIFY(rightEdge(fitted->list(), line(fitted->list(), 1)) <= 480);
}

void TestFittedList::contentAndPlaceOfTheListStay()
{
    FittedList fitted(head());
    fill(fitted.list(), 30);
    show(&fitted, QSize(480, 300));
    fitted.list()->setCurIndex(4, true);
    fitted.resize(640, 350);
    QTRY_COMPARE(fitted.list()->width(), 640);
    QCOMPARE(fitted.list()->count(), 31);
    QCOMPARE(fitted.list()->getCurIndex(), 4);
    QCOMPARE(fitted.list()->getContent(4), instruction(4));
    // The title still reads as it did.
    MJLine *shown = qobject_cast<MJLine *>(fitted.list()->itemAt(0));
    QCOMPARE(RowView::text(tableCell(shown->dataEditor(), 0)), QString());
    QCOMPARE(RowView::text(tableCell(shown->dataEditor(), 1)), QString("Instr."));
}

void TestFittedList::openRowIsMovedIntoView()
{
    FittedList fitted(head());
    fill(fitted.list(), 100);
    show(&fitted, QSize(480, 300));
    const int rowHeight = line(fitted.list(), 1)->height();
    const int middle = 300 / rowHeight / 2;
    tap(RowView(line(fitted.list(), 1)).cell(RowView::Ins));
    QCoreApplication::processEvents();
    tap(RowView(line(fitted.list(), middle)).cell(RowView::Ins));
    const QPoint foot(0, line(fitted.list(), middle)->height() - 1);
    QTRY_VERIFY(fitted.viewport()->rect().contains(
        line(fitted.list(), middle)->mapTo(fitted.viewport(), foot)));
    // The last row of the page, which two open rows have pushed out.
    const int last = fitted.list()->itemAt(0) ? 300 / rowHeight - 1 : 0;
    tap(line(fitted.list(), last));
    const QPoint end(0, line(fitted.list(), last)->height() - 1);
    QTRY_VERIFY(fitted.viewport()->rect().contains(
        line(fitted.list(), last)->mapTo(fitted.viewport(), end)));
}

void TestFittedList::editsReachTheListAsEver()
{
    FittedList fitted(head());
    fill(fitted.list(), 10);
    show(&fitted, QSize(640, 300));
    DeviceLog::acceptWith("5");
    tap(RowView(line(fitted.list(), 2)).cell(RowView::Z));
    QCOMPARE(fitted.list()->getContent(2).at(8), QString("5"));
}

void TestFittedList::barsNeverShow()
{
    FittedList fitted(head());
    fill(fitted.list(), 100);
    show(&fitted, QSize(300, 60));
    QCOMPARE(fitted.viewport()->size(), fitted.size());
}

void TestFittedList::noRoomIsNoTrouble()
{
    FittedList fitted(head());
    fill(fitted.list(), 10);
    fitted.resize(0, 0);
    fitted.resize(480, 0);
    fitted.resize(0, 300);
    show(&fitted, QSize(480, 300));
    QVERIFY(line(fitted.list(), 1)->isVisible());
    FittedList empty;
    show(&empty, QSize(480, 300));
    QCOMPARE(empty.list()->count(), 0);
}

FILARIX_TEST_MAIN(TestFittedList)
#include "tst_fittedlist.moc"
