// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "recordingkeypads.h"
#include "rowfixture.h"
#include "rowprobe.h"
#include "tlistwidget.h"

#include <QDesktopWidget>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>

#include <limits>

Q_DECLARE_METATYPE(QList<int>)

using namespace RowFixture;
using namespace RowProbe;

namespace {

const char plainSheet[] =
    "border-style:solid;border-width: 1px; background-color:#ffffff;color: #000000;";
const char selectedSheet[] =
    "border-style:solid;border-width: 1px;background-color: #00ffff;color: #ffffff;";

/// A list with or without a title and with \a rows instructions, numbered by their index, on the
/// last page.
class Program
{
public:
    Program(bool titled, int rows)
        : m_title(titled ? title() : QStringList()), m_list(m_title, nullptr)
    {
        for (int i = 0; i < rows; ++i) {
            QStringList row = instruction(m_list.count());
            m_list.addWidget(row, false, false);
        }
        QStringList none;
        m_list.addWidget(none, true, true);
    }

    TListWidget *operator->() { return &m_list; }
    TListWidget *get() { return &m_list; }

    ListWidget *pool() { return &m_list; }
    MJLine *line(int row) { return qobject_cast<MJLine *>(pool()->itemAt(m_list.getListPos(row))); }

    /// The numbers on the page from top to bottom, without the title.
    QStringList page()
    {
        QStringList numbers;
        for (int slot = m_title.isEmpty() ? 0 : 1; slot < pool()->count(); ++slot) {
            if (!pool()->itemAt(slot)->isHidden())
                numbers << numberOf(pool()->itemAt(slot));
        }
        return numbers;
    }

    int startLine() { return (m_title.isEmpty() ? 0 : 1) - m_list.getListPos(0); }

    /// Writes beside the list's back what only a refill of this row takes away.
    void smear(int row)
    {
        qobject_cast<QLabel *>(RowView(line(row)).cell(RowView::Num))->setText("smear");
    }
    bool isSmeared(int row)
    {
        return RowView::text(RowView(line(row)).cell(RowView::Num)) == "smear";
    }

private:
    QStringList m_title;
    TListWidget m_list;
};

QList<int> integers(const QSignalSpy &spy)
{
    QList<int> result;
    for (int i = 0; i < spy.count(); ++i)
        result << spy.at(i).at(0).toInt();
    return result;
}

bool isSelected(QWidget *row)
{
    return row->styleSheet() == selectedSheet;
}

void newTitledAndUntitled()
{
    QTest::addColumn<bool>("titled");
    QTest::newRow("with a title") << true;
    QTest::newRow("without a title") << false;
}

} // namespace

class TestTListWidget : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void argumentsHaveTheirNames_data();
    void argumentsHaveTheirNames();
    void startsWithAFullPageOfTheScreen();
    void titleRowIsStoredWithoutItsKind();
    void emptyTitleListMakesNoTitle();
    void createWidgetTakesTheKindOff_data();
    void createWidgetTakesTheKindOff();
    void tableRowBecomesATitleOnDemand();

    void appendWithoutRefreshDrawsNothing();
    void appendWithRefreshMakesTheRowCurrent();
    void viewOnlyAppendsNothingAndMovesToTheLastPage();
    void hostsListIsNotChangedByAppending();
    void setContentOffThePageChangesTheStoreAndNoWidget();
    void setContentRefillsTheRow();
    void setContentNeverReachesTheTitle();
    void rowOfTheSlotBehindAShortenedPageIsRefilled();

    void shortListWithTitleIgnoresPaging();
    void nextPageLeavesAShortPageAndPrevPageStepsBackAFullOne_data();
    void nextPageLeavesAShortPageAndPrevPageStepsBackAFullOne();
    void prevPageStopsAtTheTop_data();
    void prevPageStopsAtTheTop();
    void prevLineAtTheTopDoesNotRedraw_data();
    void prevLineAtTheTopDoesNotRedraw();
    void linesMoveThePageByOne_data();
    void linesMoveThePageByOne();
    void homeAndEnd_data();
    void homeAndEnd();
    void pagingKeepsTheCurrentRow();
    void pagingClosesOpenRows();
    void pagingLeavesTheLastSlotOfATitledListOpen();
    void openRowAtTheFootPushesTheFirstTwoRowsOut_data();
    void openRowAtTheFootPushesTheFirstTwoRowsOut();
    void openRowAboveTheFootPushesNothingOut();
    void pageOfTwoRowsFewerIsFullEnoughToMakeRoom();
    void titleRowIsNeverShownBelowTheTitle();
    void rowsOfThePageGetWidgetsOnceOnly();
    void refillEmitsNothing();
    void rowThatReportsItselfDuringItsRefillIsNotHeard();
    void refillLeavesTheFocusInView_data();
    void refillLeavesTheFocusInView();

    void setSizeGivesRowsByHeight_data();
    void setSizeGivesRowsByHeight();
    void setSizeReplacesTheRowsAndKeepsTheTitle();
    void setSizeFromWithinATap();
    void setTotalLineChangesThePage();
    void tinyPages_data();
    void tinyPages();

    void currentRowOfATitledListIsNeverTheTitle();
    void clickInsideThePageRestylesTwoRowsAndRefillsNone();
    void setCurIndexWithForceAlwaysRedraws();
    void setCurIndexOffThePageRedrawsAndDoesNotMoveThePage();
    void setCurIndexIgnoresNegativeRows();
    void lastSlotOfATitledListCountsAsOffThePage();
    void multipleSelectionStretches();
    void insertingAndRemovingEndAMultipleSelection();
    void selectionOfAnOthRowStylesItsTable();
    void deselectReachesOneRowBehindTheRowsOfATitledList();
    void extraIndexIsKept();
    void tapsAreReportedAfterTheRowIsCurrent();
    void pressBesideTheRowsIsTaken();

    void insertRenumbersTheRowsBehind_data();
    void insertRenumbersTheRowsBehind();
    void insertBehindTheEndAppends();
    void insertViewOnlyOnlyDraws();
    void removeRenumbersTheRowsBehind_data();
    void removeRenumbersTheRowsBehind();
    void removeBeforeTheCurrentRowKeepsItCurrent();
    void removeOfTheLastRowMovesTheCurrentRowUp();
    void removeNeverMakesTheTitleCurrent();
    void removeOfAnInvalidRowStillFixesNumbersAndIndexes();
    void removeMovesThePageBackIntoTheRows_data();
    void removeMovesThePageBackIntoTheRows();
    void clearOfATitleAloneReportsOnce();
    void clearReportsItsProgress_data();
    void clearReportsItsProgress();
    void clearKeepsTheCurrentRow();

    void setIndexOfTheTopRowWaitsForItsRefill_data();
    void setIndexOfTheTopRowWaitsForItsRefill();
    void setIndexByKind();
    void groupsOfAnInstructionRow();
    void groupsOfOtherKindsAreEmpty();
    void setVAndSetJposWriteStoreAndWidget();
    void oneMoreStringThanTheGroupAndItsIndexReachesTheStoreOnly();
    void oneSlotShowsAGroupAtItsNextRefillOnly_data();
    void oneSlotShowsAGroupAtItsNextRefillOnly();
    void setJposOfAnOthRowChangesNothing();
    void editSurvivesPagingAwayAndBack();
    void editOfAnOthRowReachesTheStore();
    void editOfATableRowReachesTheStore();
    void editEmitsNoSignalOfTheList();
    void listMayChangeWhileAKeypadIsOpen_data();
    void listMayChangeWhileAKeypadIsOpen();
    void editReachesTheStoreThoughItsRowIsReplaced_data();
    void editReachesTheStoreThoughItsRowIsReplaced();
    void editOfAReplacedRowFollowsTheRow_data();
    void editOfAReplacedRowFollowsTheRow();

    void rowsOfUnknownKindHaveNoWidget();
    void emptiedRowKeepsWhatItsWidgetShows();
    void titleOfUnknownKindIsNoTitle();
    void shortRows_data();
    void shortRows();
    void shortGroupsChangeNothing();
    void indexesOutOfRange_data();
    void indexesOutOfRange();
    void positionsNeverComeOutOnTheOtherSideOfZero();
    void directCallsWithoutASender();
    void mixedFamiliesDoNotCrash();
};

void TestTListWidget::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestTListWidget::cleanup()
{
    QCOMPARE(DeviceLog::answersLeft(), 0);
    FilarixTest::cleanup();
}

void TestTListWidget::argumentsHaveTheirNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("sg_item_deleted(int)") << QByteArray("value");
    QTest::newRow("on_line_changed(bool)") << QByteArray("expand");
    QTest::newRow("on_line_clicked(int)") << QByteArray("index");
}

void TestTListWidget::argumentsHaveTheirNames()
{
    QFETCH(QByteArray, name);
    const QMetaObject &meta = TListWidget::staticMetaObject;
    const QMetaMethod method = meta.method(meta.indexOfMethod(QTest::currentDataTag()));
    QCOMPARE(method.parameterNames(), QList<QByteArray>() << name);
}

// Building

void TestTListWidget::startsWithAFullPageOfTheScreen()
{
    Program untitled(false, 40);
    QCOMPARE(untitled.page(), numbers(26, 39));
    Program titled(true, 40);
    QCOMPARE(titled.page(), numbers(28, 40));

    const QSize screen = QApplication::desktop()->availableGeometry(-1).size();
    const int width = qMin(screen.width(), 480);
    MJLine *line = untitled.line(30);
    QCOMPARE(line->height(), int(screen.height() * 1.04 / 24.0));
    QCOMPARE(RowView(line).cell(RowView::Num)->width(), int((width + 11.0f * 0.5f) / 11.0f - 2));

    QStringList none;
    TListWidget empty(none, nullptr);
    QCOMPARE(empty.count(), 0);
    QCOMPARE(empty.getCurIndex(), 0);
    QCOMPARE(empty.getLastIndex(), -1);
    QCOMPARE(empty.getExtraIndex(), 0);
    QVERIFY(!empty.isMultiSelect());
}

void TestTListWidget::titleRowIsStoredWithoutItsKind()
{
    QStringList row = title();
    TListWidget list(row, nullptr);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.ListWidget::count(), 1);
    // As the row widget left it: the word "Title" gone, an empty string behind it, filled up.
    QCOMPARE(row.size(), 35);
    QCOMPARE(row.mid(0, 3), QStringList() << ""
                                          << ""
                                          << "No");
    QCOMPARE(list.getContent(0), row);
    QCOMPARE(list.typeAt(0), QString());
    QCOMPARE(list.getListPos(1), 1);

    MJLine *line = qobject_cast<MJLine *>(list.itemAt(0));
    QVERIFY(line);
    QVERIFY(line->dataEditor()->isTitle());
    QVERIFY(line->firstLine()->isHidden());
    QVERIFY(!line->dataEditor()->isHidden());
}

void TestTListWidget::emptyTitleListMakesNoTitle()
{
    QStringList none;
    TListWidget list(none, nullptr);
    QCOMPARE(list.ListWidget::count(), 0);
    QCOMPARE(list.getListPos(0), 0);
    list.reshow();
    QCOMPARE(list.height(), 0);
}

void TestTListWidget::createWidgetTakesTheKindOff_data()
{
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<QByteArray>("widgetClass");
    QTest::addColumn<bool>("expand");
    QTest::newRow("MJ") << instruction("3", "MJ") << QByteArray("MJLine") << false;
    QTest::newRow("ML, opened") << instruction("3", "ML") << QByteArray("MJLine") << true;
    QTest::newRow("Oth") << comment("3", "hello") << QByteArray("MJLine") << false;
    QTest::newRow("Title") << title() << QByteArray("MJLine") << false;
    QTest::newRow("DataEditor") << variable("3", "7") << QByteArray("DataEditor") << false;
    QTest::newRow("unknown") << instruction("3", "mj") << QByteArray() << true;
    QTest::newRow("kind alone") << QStringList("MJ") << QByteArray("MJLine") << false;
    QTest::newRow("nothing") << QStringList() << QByteArray() << false;
}

void TestTListWidget::createWidgetTakesTheKindOff()
{
    QFETCH(QStringList, row);
    QFETCH(QByteArray, widgetClass);
    QFETCH(bool, expand);
    QStringList none;
    TListWidget list(none, nullptr);
    QStringList inner = row;
    QWidget *widget = list.createWidget(inner, expand, false);
    QCOMPARE(QByteArray(widget ? widget->metaObject()->className() : ""), widgetClass);
    QCOMPARE(list.ListWidget::count(), 0);
    QCOMPARE(list.count(), 0);
    if (widget)
        QCOMPARE(widget->parentWidget(), static_cast<QWidget *>(&list));
    if (widgetClass != "MJLine") {
        QCOMPARE(inner, row.mid(1)); // the kind goes, and no other step is taken
        return;
    }
    QCOMPARE(inner.size(), 35);
    QCOMPARE(qobject_cast<MJLine *>(widget)->isExpanded(), expand);
}

void TestTListWidget::tableRowBecomesATitleOnDemand()
{
    QStringList row = variable("No", "Value");
    TListWidget list(row, nullptr);
    DataEditor *head = qobject_cast<DataEditor *>(list.itemAt(0));
    QVERIFY(head);
    QVERIFY(head->isTitle());
    QCOMPARE(list.getContent(0), QStringList() << "No"
                                               << "name"
                                               << "Value");

    QStringList again = variable("1", "2");
    DataEditor *plain = qobject_cast<DataEditor *>(list.createWidget(again, false, false));
    QVERIFY(!plain->isTitle());
}

// Appending and refilling

void TestTListWidget::appendWithoutRefreshDrawsNothing()
{
    QStringList none;
    TListWidget list(none, nullptr);
    for (int i = 0; i < 20; ++i) {
        QStringList row = instruction(i);
        list.addWidget(row, false, false);
    }
    QCOMPARE(list.count(), 20);
    QCOMPARE(list.ListWidget::count(), 0);
    QCOMPARE(list.getCurIndex(), 0);
    QCOMPARE(list.getListPos(6), 0); // the last page is the page already
}

void TestTListWidget::appendWithRefreshMakesTheRowCurrent()
{
    Program program(true, 20);
    QStringList row = instruction(21);
    program->addWidget(row, true, false);
    QCOMPARE(program->getCurIndex(), 21);
    QCOMPARE(program->getLastIndex(), 21);
    QCOMPARE(program.page(), numbers(9, 21));
    QVERIFY(isSelected(program.line(21)));
    QVERIFY(!isSelected(program.line(20)));
}

void TestTListWidget::viewOnlyAppendsNothingAndMovesToTheLastPage()
{
    Program program(false, 40);
    program->home();
    QCOMPARE(program.page(), numbers(0, 13));
    program->setMultiSelect();
    QStringList row = instruction(40);
    program->addWidget(row, false, true);
    QCOMPARE(program->count(), 40);
    QCOMPARE(program.startLine(), 26);
    QVERIFY(program->isMultiSelect());
    QCOMPARE(program.page(), numbers(0, 13)); // without refresh nothing is drawn
    program->addWidget(row, true, true);
    QCOMPARE(program.page(), numbers(26, 39));
    QCOMPARE(program->getCurIndex(), 0);
    QVERIFY(program->isMultiSelect());
}

void TestTListWidget::hostsListIsNotChangedByAppending()
{
    Program program(false, 3);
    QStringList row = instruction(3);
    program->addWidget(row, true, false);
    QCOMPARE(row, instruction(3));
    row[2] = "other";
    QCOMPARE(program->getContent(3), instruction(3));
    QStringList inserted = instruction(1);
    program->insertWidget(1, inserted, true, false);
    QCOMPARE(inserted, instruction(1));
}

void TestTListWidget::setContentOffThePageChangesTheStoreAndNoWidget()
{
    Program program(true, 40);
    QStringList before = program.page();
    QStringList row = instruction("5", "ML");
    row[2] = "ARC";
    const QStringList stored = row;
    program->setContent(5, row);
    QCOMPARE(program->getContent(5), stored);
    QCOMPARE(program->typeAt(5), QString("ML"));
    QCOMPARE(row, stored.mid(1)); // no widget, so only the kind is taken off
    QCOMPARE(program.page(), before);
}

void TestTListWidget::setContentRefillsTheRow()
{
    Program program(false, 5);
    QStringList row = instruction("2", "ML");
    row[2] = "ARC";
    row[8] = "8.25";
    program->setContent(2, row);
    QCOMPARE(row.size(), 35); // the row widget fills it up
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Ins)),
             QString::fromUtf8("ARC(\342\206\223)"));
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Z)), QString("Z:8.25"));

    QStringList other = comment("2", "hello");
    program->setContent(2, other);
    QVERIFY(program.line(2)->firstLine()->isHidden());
    QVERIFY(!program.line(2)->dataEditor()->isHidden());
    QCOMPARE(RowView::text(tableCell(program.line(2)->dataEditor(), 2)), QString("hello"));

    QStringList back = instruction(2);
    program->setContent(2, back);
    QVERIFY(!program.line(2)->firstLine()->isHidden());
    QVERIFY(program.line(2)->dataEditor()->isHidden());
}

void TestTListWidget::setContentNeverReachesTheTitle()
{
    Program program(true, 40);
    program->end();
    MJLine *head = qobject_cast<MJLine *>(program.pool()->itemAt(0));
    const QString before = RowView::text(tableCell(head->dataEditor(), 0));
    const int above = program.startLine() - 1;
    QCOMPARE(program->getListPos(above), 0);
    QStringList row = comment(QString::number(above), "hello");
    program->setContent(above, row);
    QCOMPARE(program->typeAt(above), QString("Oth"));
    QCOMPARE(RowView::text(tableCell(head->dataEditor(), 0)), before);
    QVERIFY(head->dataEditor()->isTitle());
}

// One slot behind the page is still within reach; it is hidden, so nobody sees it.
void TestTListWidget::rowOfTheSlotBehindAShortenedPageIsRefilled()
{
    Program program(false, 14);
    program->setTotalLine(6);
    QStringList row = instruction(6);
    row[2] = "ARC";
    program->setContent(6, row);
    QCOMPARE(program.line(6)->getIns(), QString("ARC"));
    QVERIFY(program.line(6)->isHidden());
    row = instruction(7);
    row[2] = "ARC";
    program->setContent(7, row);
    QCOMPARE(program.line(7)->getIns(), QString("MOVE"));
}

// Paging

void TestTListWidget::shortListWithTitleIgnoresPaging()
{
    Program program(true, 5);
    QCOMPARE(program.page(), numbers(1, 5));
    void (TListWidget::*const commands[])() = {&TListWidget::home, &TListWidget::end,
                                               &TListWidget::prevPage, &TListWidget::nextPage};
    for (void (TListWidget::*const command)() : commands) {
        program.smear(3);
        (program.get()->*command)();
        QVERIFY(program.isSmeared(3));
        QCOMPARE(program.startLine(), 1);
    }
}

void TestTListWidget::nextPageLeavesAShortPageAndPrevPageStepsBackAFullOne_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::nextPageLeavesAShortPageAndPrevPageStepsBackAFullOne()
{
    QFETCH(bool, titled);
    const int t = titled ? 1 : 0;
    const int page = 14 - t;
    Program program(titled, 2 * page + 3);
    program->home();
    QCOMPARE(program.page(), numbers(t, t + page - 1));
    program->nextPage();
    QCOMPARE(program.page(), numbers(t + page, t + 2 * page - 1));
    program->nextPage();
    QCOMPARE(program.page(), numbers(t + 2 * page, t + 2 * page + 2));
    program->nextPage();
    QCOMPARE(program.page().size(), 3);
    program->prevPage();
    QCOMPARE(program.page(), numbers(t + page, t + 2 * page - 1));
}

void TestTListWidget::prevPageStopsAtTheTop_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::prevPageStopsAtTheTop()
{
    QFETCH(bool, titled);
    const int t = titled ? 1 : 0;
    const int page = 14 - t;
    Program program(titled, 40);
    program->home();
    for (int k = 0; k < page; ++k)
        program->nextLine();
    QCOMPARE(program.startLine(), page + t);
    program->prevPage();
    QCOMPARE(program.startLine(), t);
    for (int k = 0; k < 3; ++k)
        program->nextLine();
    program->prevPage();
    QCOMPARE(program.startLine(), t);
    // At the top there is no way to go, yet the page is drawn.
    program.smear(3);
    program->prevPage();
    QCOMPARE(program.startLine(), t);
    QVERIFY(!program.isSmeared(3));
}

void TestTListWidget::prevLineAtTheTopDoesNotRedraw_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::prevLineAtTheTopDoesNotRedraw()
{
    QFETCH(bool, titled);
    Program program(titled, 40);
    program->home();
    program.smear(3);
    program->prevLine();
    QCOMPARE(program.startLine(), titled ? 1 : 0);
    QVERIFY(program.isSmeared(3));
}

void TestTListWidget::linesMoveThePageByOne_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::linesMoveThePageByOne()
{
    QFETCH(bool, titled);
    const int t = titled ? 1 : 0;
    const int page = 14 - t;
    Program program(titled, page + 2);
    QCOMPARE(program.startLine(), t + 2);
    program->nextLine();
    QCOMPARE(program.startLine(), t + 2);
    program->prevLine();
    QCOMPARE(program.page(), numbers(t + 1, t + page));
    program->prevLine();
    QCOMPARE(program.page(), numbers(t, t + page - 1));
    program->nextLine();
    QCOMPARE(program.page(), numbers(t + 1, t + page));
}

void TestTListWidget::homeAndEnd_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::homeAndEnd()
{
    QFETCH(bool, titled);
    const int t = titled ? 1 : 0;
    const int page = 14 - t;
    Program program(titled, 40);
    program->home();
    QCOMPARE(program.page(), numbers(t, t + page - 1));
    program->end();
    QCOMPARE(program.page(), numbers(40 + t - page, 39 + t));
    // The first full page is the last one as well.
    Program justFull(titled, page);
    justFull->end();
    QCOMPARE(justFull.page(), numbers(t, t + page - 1));
    // A title and one row fewer than a page is a full page to the guards.
    Program nearlyFull(titled, page - t);
    nearlyFull->end();
    QCOMPARE(nearlyFull.page(), numbers(t, page - 1));
    QCOMPARE(nearlyFull.startLine(), t);
}

void TestTListWidget::pagingKeepsTheCurrentRow()
{
    Program program(true, 40);
    program->setCurIndex(35, false);
    program->home();
    program->nextPage();
    program->prevPage();
    QCOMPARE(program->getCurIndex(), 35);
    program->end();
    QVERIFY(isSelected(program.line(35)));
}

void TestTListWidget::pagingClosesOpenRows()
{
    Program program(false, 40);
    program->home();
    tap(RowView(program.line(2)).cell(RowView::Ins));
    QVERIFY(program.line(2)->isExpanded());
    program->nextPage();
    for (int i = 14; i < 28; ++i)
        QVERIFY(!program.line(i)->isExpanded());
    QCOMPARE(program.page(), numbers(14, 27));
}

void TestTListWidget::pagingLeavesTheLastSlotOfATitledListOpen()
{
    Program program(true, 40);
    program->home();
    tap(RowView(program.line(13)).cell(RowView::Ins));
    tap(RowView(program.line(12)).cell(RowView::Ins));
    QVERIFY(program.line(12)->isExpanded());
    program->nextPage();
    QVERIFY(program.line(26)->isExpanded());
    QVERIFY(!program.line(25)->isExpanded());
    // Open as it is, it still pushes two rows out.
    QCOMPARE(program.page(), numbers(16, 26));
}

void TestTListWidget::openRowAtTheFootPushesTheFirstTwoRowsOut_data()
{
    QTest::addColumn<bool>("titled");
    QTest::addColumn<int>("fromTheFoot");
    QTest::newRow("last row, title") << true << 1;
    QTest::newRow("last row but one, title") << true << 2;
    QTest::newRow("last row") << false << 1;
    QTest::newRow("last row but one") << false << 2;
}

void TestTListWidget::openRowAtTheFootPushesTheFirstTwoRowsOut()
{
    QFETCH(bool, titled);
    QFETCH(int, fromTheFoot);
    const int t = titled ? 1 : 0;
    Program program(titled, 40);
    program->home();
    const int opened = 14 - fromTheFoot;
    const int closedHeight = program->height();
    tap(RowView(program.line(opened)).cell(RowView::Ins));
    QVERIFY(program.line(opened)->isExpanded());
    QCOMPARE(program.page(), numbers(t + 2, 13));
    QCOMPARE(program.startLine(), t); // the page itself has not moved
    QCOMPARE(program->getCurIndex(), opened);
    const int closedRow = program.line(t)->height();
    QCOMPARE(program->height(), closedHeight + program.line(opened)->height() - closedRow);
    tap(RowView(program.line(opened)).arrow());
    QCOMPARE(program.page(), numbers(t, 13));
    QCOMPARE(program->height(), closedHeight);
}

void TestTListWidget::openRowAboveTheFootPushesNothingOut()
{
    Program program(false, 40);
    program->home();
    tap(RowView(program.line(11)).cell(RowView::Ins));
    QCOMPARE(program.page(), numbers(0, 13));
    // A page with free slots has room enough.
    Program shortPage(false, 10);
    tap(RowView(shortPage.line(9)).cell(RowView::Ins));
    QCOMPARE(shortPage.page(), numbers(0, 9));
}

void TestTListWidget::pageOfTwoRowsFewerIsFullEnoughToMakeRoom()
{
    Program nearlyFull(false, 12);
    tap(RowView(nearlyFull.line(11)).cell(RowView::Ins));
    QCOMPARE(nearlyFull.page(), numbers(2, 11));
    Program shorter(false, 11);
    tap(RowView(shorter.line(10)).cell(RowView::Ins));
    QCOMPARE(shorter.page(), numbers(0, 10));
}

void TestTListWidget::titleRowIsNeverShownBelowTheTitle()
{
    Program program(true, 13);
    program->home();
    program->end();
    program->prevPage();
    for (int k = 0; k < 20; ++k)
        program->prevLine();
    QCOMPARE(program.page(), numbers(1, 13));
    program->removeWidget(13, true);
    program->end();
    QCOMPARE(program.page(), numbers(1, 12));
    QVERIFY(program->getCurIndex() != 0);
}

void TestTListWidget::rowsOfThePageGetWidgetsOnceOnly()
{
    Program program(true, 60);
    QList<QWidget *> widgets;
    for (int slot = 0; slot < program.pool()->count(); ++slot)
        widgets << program.pool()->itemAt(slot);
    QCOMPARE(widgets.size(), 14);
    program->home();
    program->nextPage();
    program->end();
    program->clear();
    QCOMPARE(program.page(), QStringList());
    QStringList row = instruction(1);
    program->addWidget(row, true, false);
    QCOMPARE(program.page(), numbers(1, 1));
    QCOMPARE(program.pool()->count(), widgets.size());
    for (int slot = 0; slot < widgets.size(); ++slot)
        QCOMPARE(program.pool()->itemAt(slot), widgets.at(slot));
}

void TestTListWidget::refillEmitsNothing()
{
    Program program(false, 40);
    QSignalSpy changed(program.line(30), SIGNAL(sg_content_change(int)));
    QSignalSpy resized(program.line(30), SIGNAL(sizeChanged(bool)));
    program->home();
    QCOMPARE(changed.count() + resized.count(), 0);
    QVERIFY(!program.line(3)->signalsBlocked());
}

namespace {

/// A host that has a row report itself whenever a text in it changes.
class Meddler : public QObject
{
    Q_OBJECT

public:
    explicit Meddler(MJLine *line) : m_line(line)
    {
        Q_FOREACH (QLineEdit *edit, line->findChildren<QLineEdit *>())
            connect(edit, SIGNAL(textChanged(QString)), SLOT(report()));
    }

    QStringList rows;

private Q_SLOTS:
    void report()
    {
        const int row = m_line->getNum().toInt();
        rows << QString::number(row);
        QMetaObject::invokeMethod(m_line, "sg_content_change", Q_ARG(int, row));
    }

private:
    MJLine *m_line;
};

} // namespace

// Half filled, it would be stored with what is left of the row before.
void TestTListWidget::rowThatReportsItselfDuringItsRefillIsNotHeard()
{
    Program program(true, 40);
    QStringList changed = instruction(3);
    changed[8] = "17";
    changed[10] = "18";
    changed[14] = "19"; // taken in after the fields of the first line
    QStringList given = changed;
    program->setContent(3, given);
    program->nextPage();
    Meddler meddler(program.line(program.startLine() + 2));
    program->home();
    QVERIFY(meddler.rows.contains("3"));
    QCOMPARE(program->getContent(3), changed);
    for (int i = 1; i < program->count(); ++i)
        QCOMPARE(program->getContent(i).at(1), QString::number(i));
    // An edit is heard as ever.
    meddler.rows.clear();
    DeviceLog::acceptWith("77");
    tap(RowView(program.line(3)).cell(RowView::Z));
    QCOMPARE(program->getContent(3).at(8), QString("77"));
}

void TestTListWidget::refillLeavesTheFocusInView_data()
{
    QTest::addColumn<bool>("toInstruction");
    QTest::newRow("from a table to an instruction") << true;
    QTest::newRow("from an instruction to a table") << false;
}

void TestTListWidget::refillLeavesTheFocusInView()
{
    QFETCH(bool, toInstruction);
    Program program(false, 1);
    const QStringList note = QStringList() << "Oth"
                                           << "0"
                                           << ""
                                           << "Oth"
                                           << "text";
    QStringList before = toInstruction ? note : instruction(0);
    QStringList after = toInstruction ? instruction(0) : note;
    program->setContent(0, before);
    MJLine *const line = program.line(0);
    QWidget *const text = tableCell(line->dataEditor(), 2);
    QWidget *const z = RowView(line).cell(RowView::Z);
    program->show();
    QApplication::setActiveWindow(program.get());
    QWidget *const from = toInstruction ? text : z;
    from->setFocus();
    QTRY_VERIFY(from->hasFocus());
    program->setContent(0, after);
    QWidget *const focused = QApplication::focusWidget();
    QVERIFY(focused);
    QVERIFY(focused->isVisible());
    QWidget *const part = toInstruction ? line->firstLine() : line->dataEditor();
    QVERIFY(part->isAncestorOf(focused) || part == focused);
}

// Sizes

void TestTListWidget::setSizeGivesRowsByHeight_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("rows");
    QTest::newRow("full height") << 100 << 14;
    QTest::newRow("three quarters") << 75 << 9;
    QTest::newRow("half height, the lower limit") << 50 << 5;
    QTest::newRow("nothing") << 0 << 5;
    QTest::newRow("twice the height") << 200 << 32;
}

void TestTListWidget::setSizeGivesRowsByHeight()
{
    QFETCH(int, percent);
    QFETCH(int, rows);
    const int height = QApplication::desktop()->availableGeometry(-1).height();
    Program untitled(false, 60);
    untitled->setSize(QSize(300, height * percent / 100));
    untitled->home();
    QCOMPARE(untitled.page().size(), rows);
    Program titled(true, 60);
    titled->setSize(QSize(300, height * percent / 100));
    titled->home();
    QCOMPARE(titled.page().size(), rows - 1);
}

void TestTListWidget::setSizeReplacesTheRowsAndKeepsTheTitle()
{
    Program program(true, 40);
    program->home();
    const int height = QApplication::desktop()->availableGeometry(-1).height();
    QWidget *head = program.pool()->itemAt(0);
    const QPointer<QWidget> row = program.line(2);
    program->setSize(QSize(300, height));
    QCOMPARE(program.pool()->itemAt(0), head);
    QCOMPARE(head->height(), int(height * 1.04 / 24.0));
    QVERIFY(row && row->isHidden());
    QVERIFY(program.line(2) != row);
    QCOMPARE(program.page(), numbers(1, 13));
    // New rows get the new width and the old height.
    QCOMPARE(RowView(program.line(2)).cell(RowView::Num)->width(), int((300 + 5.5f) / 11.0f - 2));
    QCOMPARE(program.line(2)->height(), int(height * 1.04 / 24.0));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!row);
}

/// A host that changes the size when a row is tapped.
class Resizer : public QObject
{
    Q_OBJECT

public:
    explicit Resizer(TListWidget *list) : m_list(list)
    {
        connect(list, SIGNAL(clicked(int)), this, SLOT(resize()));
    }

public Q_SLOTS:
    void resize() { m_list->setSize(QSize(300, 2000)); }

private:
    TListWidget *m_list;
};

void TestTListWidget::setSizeFromWithinATap()
{
    Program program(false, 40);
    program->home();
    Resizer resizer(program.get());
    const QPointer<QWidget> row = program.line(2);
    tap(RowView(program.line(2)).cell(RowView::Ins));
    QVERIFY(program.line(2) != row);
    DeviceLog::acceptWith("77");
    tap(RowView(program.line(3)).cell(RowView::Z));
    QCOMPARE(program->getContent(3).at(8), QString("77"));
    QCOMPARE(RowView::text(RowView(program.line(3)).cell(RowView::Z)), QString("Z:77"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!row);
}

void TestTListWidget::setTotalLineChangesThePage()
{
    Program program(true, 40);
    program->home();
    program->setTotalLine(6);
    QCOMPARE(program.page(), numbers(1, 6));
    QCOMPARE(program.pool()->count(), 14); // the pool is never reduced
    program->nextPage();
    QCOMPARE(program.page(), numbers(7, 12));
    program->setTotalLine(20);
    QCOMPARE(program.page(), numbers(7, 26));
    program->setTotalLine(1000);
    QCOMPARE(program.page(), numbers(7, 40));
}

void TestTListWidget::tinyPages_data()
{
    QTest::addColumn<bool>("titled");
    QTest::addColumn<int>("rows");
    for (int titled = 0; titled <= 1; ++titled) {
        for (int rows = -1; rows <= 3; ++rows)
            QTest::newRow(qPrintable(QString("%1 rows%2").arg(rows).arg(titled ? ", title" : "")))
                << bool(titled) << rows;
    }
}

void TestTListWidget::tinyPages()
{
    QFETCH(bool, titled);
    QFETCH(int, rows);
    const int t = titled ? 1 : 0;
    QStringList head = titled ? title() : QStringList();
    TListWidget list(head, nullptr);
    list.setTotalLine(rows);
    for (int i = t; i < 8 + t; ++i) {
        QStringList row = instruction(i);
        list.addWidget(row, true, false);
    }
    QCOMPARE(list.ListWidget::count(), t + qMax(rows, 0));
    if (rows > 0) {
        MJLine *last = qobject_cast<MJLine *>(list.itemAt(list.ListWidget::count() - 1));
        QCOMPARE(last->getNum(), QString::number(7 + t));
        tap(RowView(last).cell(RowView::Ins));
        // Two rows make room, even if there are no more than that.
        for (int slot = t; slot < list.ListWidget::count(); ++slot)
            QCOMPARE(list.itemAt(slot)->isHidden(), slot < t + 2);
    }
    list.home();
    list.nextPage();
    list.nextLine();
    list.prevLine();
    list.prevPage();
    list.end();
    QStringList row = instruction(3);
    list.insertWidget(3, row, true, false);
    list.removeWidget(3, true);
    list.setCurIndex(3, false);
    list.clear();
    QCOMPARE(list.count(), t);
}

// Selection and taps

void TestTListWidget::currentRowOfATitledListIsNeverTheTitle()
{
    Program program(true, 5);
    QCOMPARE(program->getCurIndex(), 1);
    program->setCurIndex(0, false);
    QCOMPARE(program->getCurIndex(), 1);
    Program untitled(false, 5);
    untitled->setCurIndex(0, false);
    QCOMPARE(untitled->getCurIndex(), 0);
}

void TestTListWidget::clickInsideThePageRestylesTwoRowsAndRefillsNone()
{
    Program program(false, 40);
    program->home();
    program->setCurIndex(4, true);
    program.smear(4);
    program.smear(6);
    QSignalSpy clicked(program.get(), SIGNAL(clicked(int)));
    tap(RowView(program.line(7)).cell(RowView::Num));
    QCOMPARE(integers(clicked), QList<int>() << 7);
    QCOMPARE(program->getCurIndex(), 7);
    QVERIFY(!isSelected(program.line(4)));
    QVERIFY(isSelected(program.line(7)));
    QVERIFY(program.isSmeared(4));
    QVERIFY(program.isSmeared(6));
    QCOMPARE(program->getLastIndex(), 4); // follows at the next redraw
}

void TestTListWidget::setCurIndexWithForceAlwaysRedraws()
{
    Program program(false, 40);
    program->home();
    program.smear(6);
    program->setCurIndex(5, true);
    QVERIFY(!program.isSmeared(6));
    QCOMPARE(program->getLastIndex(), 5);
    QVERIFY(isSelected(program.line(5)));
}

void TestTListWidget::setCurIndexOffThePageRedrawsAndDoesNotMoveThePage()
{
    Program program(false, 40);
    program->home();
    program.smear(6);
    program->setCurIndex(30, false);
    QVERIFY(!program.isSmeared(6));
    QCOMPARE(program.page(), numbers(0, 13));
    QCOMPARE(program->getCurIndex(), 30);
    program->setCurIndex(1000, false); // behind the last row: taken all the same
    QCOMPARE(program->getCurIndex(), 1000);
}

void TestTListWidget::setCurIndexIgnoresNegativeRows()
{
    Program program(false, 5);
    program->setCurIndex(3, false);
    program->setCurIndex(-1, true);
    QCOMPARE(program->getCurIndex(), 3);
}

void TestTListWidget::lastSlotOfATitledListCountsAsOffThePage()
{
    Program program(true, 40);
    program->home();
    program.smear(5);
    program->setCurIndex(12, false);
    QVERIFY(program.isSmeared(5));
    program->setCurIndex(13, false);
    QVERIFY(!program.isSmeared(5));
    QVERIFY(isSelected(program.line(13)));
    QVERIFY(!isSelected(program.line(12)));
}

void TestTListWidget::multipleSelectionStretches()
{
    Program program(true, 40);
    program->home();
    program->setCurIndex(5, false);
    program->setMultiSelect();
    QVERIFY(program->isMultiSelect());
    QCOMPARE(program->getLastIndex(), 5);
    program->setCurIndex(8, false);
    for (int i = 1; i <= 13; ++i)
        QCOMPARE(isSelected(program.line(i)), i >= 5 && i <= 8);
    tap(RowView(program.line(3)).cell(RowView::Num));
    for (int i = 1; i <= 13; ++i)
        QCOMPARE(isSelected(program.line(i)), i >= 3 && i <= 5);
    QCOMPARE(program->getLastIndex(), 5);
    program->clearMultiSelect();
    QVERIFY(!program->isMultiSelect());
    QCOMPARE(program->getLastIndex(), 3);
    for (int i = 1; i <= 13; ++i)
        QCOMPARE(isSelected(program.line(i)), i == 3);
}

void TestTListWidget::insertingAndRemovingEndAMultipleSelection()
{
    Program program(true, 5);
    QStringList row = instruction(6);
    program->setMultiSelect();
    program->addWidget(row, false, false);
    QVERIFY(!program->isMultiSelect());
    program->setMultiSelect();
    program->insertWidget(2, row, false, false);
    QVERIFY(!program->isMultiSelect());
    program->setMultiSelect();
    program->removeWidget(2, false);
    QVERIFY(!program->isMultiSelect());
    program->setMultiSelect();
    program->clear();
    QVERIFY(program->isMultiSelect());
}

void TestTListWidget::selectionOfAnOthRowStylesItsTable()
{
    Program program(true, 5);
    QStringList row = comment("3", "hello");
    program->setContent(3, row);
    MJLine *line = program.line(3);
    program->setCurIndex(3, false);
    QVERIFY(isSelected(line->dataEditor()));
    QCOMPARE(line->styleSheet(), QString(plainSheet));
    program->setCurIndex(4, false);
    QVERIFY(!isSelected(line->dataEditor()));
    program->deselect(3, false);
    QVERIFY(isSelected(line->dataEditor()));
}

// The slot is hidden, and styled anew before anybody sees it.
void TestTListWidget::deselectReachesOneRowBehindTheRowsOfATitledList()
{
    Program program(true, 13);
    for (int i = 13; i > 5; --i)
        program->removeWidget(i, true);
    QCOMPARE(program->count(), 6);
    program->deselect(6, false);
    program->deselect(7, false);
    QVERIFY(isSelected(program.line(6)));
    QVERIFY(program.line(6)->isHidden());
    QVERIFY(!isSelected(program.line(7)));
}

void TestTListWidget::extraIndexIsKept()
{
    Program program(true, 5);
    program->setExtraIndex(-17);
    program->home();
    program->clear();
    QCOMPARE(program->getExtraIndex(), -17);
}

void TestTListWidget::tapsAreReportedAfterTheRowIsCurrent()
{
    Program program(true, 5);
    QSignalSpy clicked(program.get(), SIGNAL(clicked(int)));
    QSignalSpy jpos(program.get(), SIGNAL(sg_jpos_update(int)));
    QSignalSpy v(program.get(), SIGNAL(sg_v_update(int)));
    tap(RowView(program.line(2)).cell(RowView::Jpos));
    QCOMPARE(integers(jpos), QList<int>() << 2);
    QCOMPARE(program->getCurIndex(), 2);
    tap(RowView(program.line(3)).cell(RowView::V));
    QCOMPARE(integers(v), QList<int>() << 3);
    QCOMPARE(program->getCurIndex(), 3);
    QCOMPARE(clicked.count(), 0);
    tap(program.line(4));
    QCOMPARE(integers(clicked), QList<int>() << 4);
    QVERIFY(isSelected(program.line(4)));

    // A number below 0 moves no selection; only the labels report it.
    program->setIndex(4, "-1");
    tap(program.line(4));
    tap(RowView(program.line(4)).cell(RowView::Jpos));
    tap(RowView(program.line(4)).cell(RowView::V));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(integers(jpos), QList<int>() << 2 << -1);
    QCOMPARE(integers(v), QList<int>() << 3 << -1);
    QCOMPARE(program->getCurIndex(), 4);
}

void TestTListWidget::pressBesideTheRowsIsTaken()
{
    Program program(true, 5);
    QSignalSpy clicked(program.get(), SIGNAL(clicked(int)));
    program->setCurIndex(2, false);
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(program.get(), &press);
    QVERIFY(press.isAccepted());
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(program->getCurIndex(), 2);
}

// Inserting and removing

void TestTListWidget::insertRenumbersTheRowsBehind_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::insertRenumbersTheRowsBehind()
{
    QFETCH(bool, titled);
    const QString prefix = titled ? "" : "N";
    Program program(titled, 5);
    const int start = program.startLine();
    QStringList row = instruction("new");
    program->insertWidget(2, row, true, false);
    QCOMPARE(program->getContent(1).at(1), QString("1"));
    QCOMPARE(program->getContent(2), row);
    for (int i = 3; i < program->count(); ++i)
        QCOMPARE(program->getContent(i).at(1), prefix + QString::number(i));
    QCOMPARE(program->getCurIndex(), 2);
    QCOMPARE(program.startLine(), start);
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Num)), QString("new"));
    QCOMPARE(RowView::text(RowView(program.line(4)).cell(RowView::Num)), prefix + "4");
}

void TestTListWidget::insertBehindTheEndAppends()
{
    Program program(true, 3);
    QStringList row = instruction("last");
    program->insertWidget(9, row, true, false);
    QCOMPARE(program->count(), 5);
    QCOMPARE(program->getContent(4), row);
    QCOMPARE(program.page(), numbers(1, 3) << "last");
    QCOMPARE(program->getCurIndex(), 9);
}

void TestTListWidget::insertViewOnlyOnlyDraws()
{
    Program program(true, 3);
    program->setMultiSelect();
    program.smear(2);
    QStringList row = instruction("new");
    program->insertWidget(1, row, false, true);
    QVERIFY(program.isSmeared(2));
    program->insertWidget(1, row, true, true);
    QVERIFY(!program.isSmeared(2));
    QVERIFY(program->isMultiSelect());
    QCOMPARE(program.page(), numbers(1, 3));
}

void TestTListWidget::removeRenumbersTheRowsBehind_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::removeRenumbersTheRowsBehind()
{
    QFETCH(bool, titled);
    Program program(titled, 6);
    const QStringList third = program->getContent(3);
    program->removeWidget(2, true);
    QStringList second = program->getContent(2);
    QCOMPARE(second.at(1), QString(titled ? "2" : "N2"));
    second[1] = third.at(1);
    QCOMPARE(second, third);
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Num)),
             QString(titled ? "2" : "N2"));
    QCOMPARE(program->getContent(1).at(1), QString("1"));
}

void TestTListWidget::removeBeforeTheCurrentRowKeepsItCurrent()
{
    Program program(true, 6);
    program->setCurIndex(4, true);
    QStringList current = program->getContent(4);
    program->removeWidget(3, true);
    QCOMPARE(program->getCurIndex(), 3);
    current[1] = "3";
    QCOMPARE(program->getContent(3), current);
    QCOMPARE(program->getLastIndex(), 3);
    program->removeWidget(5, true);
    QCOMPARE(program->getCurIndex(), 3);
}

void TestTListWidget::removeOfTheLastRowMovesTheCurrentRowUp()
{
    Program program(false, 3);
    program->setCurIndex(2, false);
    program->removeWidget(2, true);
    QCOMPARE(program->getCurIndex(), 1);
    QVERIFY(isSelected(program.line(1)));
    program->removeWidget(1, true);
    program->removeWidget(0, true);
    QCOMPARE(program->getCurIndex(), -1);
    QCOMPARE(program.page(), QStringList());
}

void TestTListWidget::removeNeverMakesTheTitleCurrent()
{
    Program program(true, 2);
    program->setCurIndex(1, true);
    program->removeWidget(0, false); // not for a host to do; the current row stays at 1
    QCOMPARE(program->getCurIndex(), 1);

    Program single(true, 1);
    single->setCurIndex(1, false);
    single->removeWidget(1, true);
    QCOMPARE(single->getCurIndex(), 1);
    QCOMPARE(single->count(), 1);
}

void TestTListWidget::removeOfAnInvalidRowStillFixesNumbersAndIndexes()
{
    Program program(true, 3);
    program->setCurIndex(9, false);
    program->removeWidget(7, true);
    QCOMPARE(program->count(), 4);
    QCOMPARE(program.page(), numbers(1, 3));
    QCOMPARE(program->getCurIndex(), 3);

    // The row behind -1 is the first one, and so each row gets the number before its index.
    Program untitled(false, 3);
    untitled->setCurIndex(2, false);
    untitled->removeWidget(-1, true);
    QCOMPARE(untitled.page(), QStringList() << "N-1"
                                            << "N0"
                                            << "N1");
    QCOMPARE(untitled->getCurIndex(), 1);
}

void TestTListWidget::removeMovesThePageBackIntoTheRows_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::removeMovesThePageBackIntoTheRows()
{
    QFETCH(bool, titled);
    const int t = titled ? 1 : 0;
    const int page = 14 - t;
    Program program(titled, page + 1);
    program->home();
    program->nextPage();
    QCOMPARE(program.startLine(), t + page);
    program->removeWidget(t + page, true);
    // The whole last page, a title counting as one of its rows, then the first row.
    QCOMPARE(program.startLine(), titled ? 1 : 0);
    QCOMPARE(program->ListWidget::count(), 14);
    QCOMPARE(program.page().size(), page);

    Program two(titled, 4);
    two->setTotalLine(4);
    two->home();
    two->nextLine();
    two->removeWidget(3, false);
    two->removeWidget(2, false);
    two->removeWidget(1, true);
    QVERIFY(two.startLine() >= t);
    QCOMPARE(two.page().size(), 1);
}

void TestTListWidget::clearOfATitleAloneReportsOnce()
{
    Program program(true, 0);
    QSignalSpy progress(program.get(), SIGNAL(sg_item_deleted(int)));
    program->clear();
    QCOMPARE(integers(progress), QList<int>() << 100);
    Program empty(false, 0);
    QSignalSpy emptyProgress(empty.get(), SIGNAL(sg_item_deleted(int)));
    empty->clear();
    QCOMPARE(integers(emptyProgress), QList<int>() << 100);
}

void TestTListWidget::clearReportsItsProgress_data()
{
    QTest::addColumn<bool>("titled");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("percent");
    QTest::newRow("title and 4 rows") << true << 4 << (QList<int>() << 20 << 40 << 60 << 80 << 100);
    QTest::newRow("4 rows") << false << 4 << (QList<int>() << 0 << 25 << 50 << 75 << 100);
    QTest::newRow("title and 2 rows") << true << 2 << (QList<int>() << 33 << 66 << 100);
    QTest::newRow("7 rows") << false << 7
                            << (QList<int>() << 0 << 14 << 28 << 42 << 57 << 71 << 85 << 100);
}

void TestTListWidget::clearReportsItsProgress()
{
    QFETCH(bool, titled);
    QFETCH(int, rows);
    QFETCH(QList<int>, percent);
    Program program(titled, rows);
    QSignalSpy progress(program.get(), SIGNAL(sg_item_deleted(int)));
    program->clear();
    QCOMPARE(integers(progress), percent);
    QCOMPARE(program->count(), titled ? 1 : 0);
    QCOMPARE(program.page(), QStringList());
}

void TestTListWidget::clearKeepsTheCurrentRow()
{
    Program program(true, 40);
    const QStringList head = program->getContent(0);
    program->setCurIndex(30, false);
    program->clear();
    QCOMPARE(program->getCurIndex(), 30);
    QCOMPARE(program->getLastIndex(), 30);
    QCOMPARE(program.startLine(), 1);
    QCOMPARE(program->getContent(0), head);
    QVERIFY(!program.pool()->itemAt(0)->isHidden());
}

// Numbers and groups

void TestTListWidget::setIndexOfTheTopRowWaitsForItsRefill_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::setIndexOfTheTopRowWaitsForItsRefill()
{
    QFETCH(bool, titled);
    const int t = titled ? 1 : 0;
    Program program(titled, 40);
    program->home();
    program->setIndex(t, "111");
    program->setIndex(t + 1, "222");
    program->setIndex(13, "333");
    QCOMPARE(program->getContent(t).at(1), QString("111"));
    QCOMPARE(RowView::text(RowView(program.line(t)).cell(RowView::Num)),
             QString(titled ? "111" : "0"));
    QCOMPARE(RowView::text(RowView(program.line(t + 1)).cell(RowView::Num)), QString("222"));
    QCOMPARE(RowView::text(RowView(program.line(13)).cell(RowView::Num)), QString("333"));
    program->reshow();
    QCOMPARE(RowView::text(RowView(program.line(t)).cell(RowView::Num)), QString("111"));
}

void TestTListWidget::setIndexByKind()
{
    Program program(true, 3);
    QStringList row = comment("2", "hello");
    program->setContent(2, row);
    program->setIndex(2, "N5");
    QCOMPARE(RowView::text(tableCell(program.line(2)->dataEditor(), 0)), QString("N5"));
    QCOMPARE(program->getContent(2).at(1), QString("N5"));

    QStringList none;
    TListWidget table(none, nullptr);
    for (int i = 0; i < 3; ++i) {
        QStringList cells = variable(QString("N%1").arg(i), "7");
        table.addWidget(cells, true, false);
    }
    table.setIndex(1, "N9");
    QCOMPARE(numberOf(table.itemAt(1)), QString("N9"));
    QSignalSpy clicked(&table, SIGNAL(clicked(int)));
    tap(table.itemAt(1));
    QCOMPARE(integers(clicked), QList<int>() << 9); // the letter is dropped
}

void TestTListWidget::groupsOfAnInstructionRow()
{
    Program program(true, 3);
    QCOMPARE(program->getV(2), QStringList() << "26"
                                             << "28"
                                             << "30");
    QCOMPARE(program->getJpos(2), QStringList() << "14"
                                                << "16"
                                                << "18"
                                                << "20"
                                                << "22"
                                                << "24");
    QCOMPARE(program->getVIndex(2), 6);
    QCOMPARE(program->getJposIndex(2), 4);
    QStringList row = instruction("2", "ML");
    row[4] = "";
    row[6] = "six";
    program->setContent(2, row);
    QCOMPARE(program->getVIndex(2), 0);
    QCOMPARE(program->getJposIndex(2), 0);
}

void TestTListWidget::groupsOfOtherKindsAreEmpty()
{
    QStringList none;
    TListWidget list(none, nullptr);
    QList<QStringList> rows;
    rows << comment("0", "hello") << title() << variable("2", "7") << instruction("3", "mj");
    Q_FOREACH (QStringList row, rows)
        list.addWidget(row, false, false);
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(list.getV(i), QStringList());
        QCOMPARE(list.getJpos(i), QStringList());
        QCOMPARE(list.getVIndex(i), -1);
        QCOMPARE(list.getJposIndex(i), -1);
        QStringList values = numbers(1, 7);
        list.setV(i, values);
        list.setJpos(i, values);
        QCOMPARE(list.getContent(i), rows.at(i));
    }
}

void TestTListWidget::setVAndSetJposWriteStoreAndWidget()
{
    Program program(true, 5);
    program.line(2)->on_expand();
    QStringList v = QStringList() << "a"
                                  << "b"
                                  << "c"
                                  << "61";
    program->setV(2, v);
    QStringList jpos = QStringList() << "p"
                                     << "q"
                                     << "r"
                                     << "s"
                                     << "t"
                                     << "u";
    program->setJpos(2, jpos);
    QStringList expected = instruction(2);
    expected[6] = "61";
    for (int k = 0; k < 3; ++k)
        expected[26 + 2 * k] = v.at(k);
    for (int k = 0; k < 6; ++k)
        expected[14 + 2 * k] = jpos.at(k);
    QCOMPARE(program->getContent(2), expected);
    QCOMPARE(program->getVIndex(2), 61);
    QCOMPARE(program->getJposIndex(2), 4);
    MJLine *line = program.line(2);
    QCOMPARE(RowView::text(RowView(line).cell(RowView::V)), QString("V:61"));
    QCOMPARE(RowView::text(RowView(line).cell(RowView::Jpos)), QString("P:4"));
    QCOMPARE(RowView::text(RowView(line).detail(0)), QString("k13:p"));
    QCOMPARE(RowView::text(RowView(line).detail(5)), QString("k23:u"));
    QCOMPARE(RowView::text(RowView(line).detail(8)), QString("k29:c"));

    jpos << "41";
    program->setJpos(2, jpos);
    QCOMPARE(program->getJposIndex(2), 41);
    QCOMPARE(RowView::text(RowView(line).cell(RowView::Jpos)), QString("P:41"));
    QCOMPARE(v.size(), 4); // the caller's lists stay whole
    QCOMPARE(jpos.size(), 7);
}

void TestTListWidget::oneMoreStringThanTheGroupAndItsIndexReachesTheStoreOnly()
{
    Program program(true, 5);
    QStringList v = QStringList() << "a"
                                  << "b"
                                  << "c"
                                  << "61"
                                  << "extra";
    program->setV(2, v);
    QCOMPARE(program->getVIndex(2), 61);
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::V)), QString("V:6"));
    QStringList jpos = numbers(1, 8);
    program->setJpos(2, jpos);
    QCOMPARE(program->getJposIndex(2), 7);
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Jpos)), QString("P:4"));
    program->reshow();
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::V)), QString("V:61"));
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Jpos)), QString("P:7"));
}

void TestTListWidget::oneSlotShowsAGroupAtItsNextRefillOnly_data()
{
    newTitledAndUntitled();
}

void TestTListWidget::oneSlotShowsAGroupAtItsNextRefillOnly()
{
    QFETCH(bool, titled);
    Program program(titled, 40);
    program->home();
    const int late = titled ? 13 : 0;
    const int early = titled ? 1 : 13;
    QStringList v = QStringList() << "a"
                                  << "b"
                                  << "c"
                                  << "61";
    QStringList jpos = numbers(1, 6) << "41";
    const int rows[] = {late, early};
    for (int k = 0; k < 2; ++k) {
        program->setV(rows[k], v);
        program->setJpos(rows[k], jpos);
        QCOMPARE(program->getVIndex(rows[k]), 61);
        QCOMPARE(program->getJposIndex(rows[k]), 41);
    }
    QCOMPARE(RowView::text(RowView(program.line(early)).cell(RowView::V)), QString("V:61"));
    QCOMPARE(RowView::text(RowView(program.line(early)).cell(RowView::Jpos)), QString("P:41"));
    QCOMPARE(RowView::text(RowView(program.line(late)).cell(RowView::V)), QString("V:6"));
    QCOMPARE(RowView::text(RowView(program.line(late)).cell(RowView::Jpos)), QString("P:4"));
    program->reshow();
    QCOMPARE(RowView::text(RowView(program.line(late)).cell(RowView::V)), QString("V:61"));
    QCOMPARE(RowView::text(RowView(program.line(late)).cell(RowView::Jpos)), QString("P:41"));
}

void TestTListWidget::setJposOfAnOthRowChangesNothing()
{
    Program program(true, 3);
    QStringList row = comment("2", "hello");
    const QStringList stored = row;
    program->setContent(2, row);
    QStringList jpos = numbers(1, 7);
    program->setJpos(2, jpos);
    QCOMPARE(program->getContent(2), stored);
    QCOMPARE(RowView::text(RowView(program.line(2)).cell(RowView::Jpos)), QString("P:4"));
}

// Edits

void TestTListWidget::editSurvivesPagingAwayAndBack()
{
    Program program(true, 40);
    program->home();
    DeviceLog::acceptWith("12.5");
    tap(RowView(program.line(3)).cell(RowView::Z));
    tap(RowView(program.line(3)).cell(RowView::Ins));
    DeviceLog::acceptWith("-7");
    tap(RowView(program.line(3)).detail(1));
    DeviceLog::acceptWith("two words");
    tap(RowView(program.line(3)).res());

    QStringList expected = instruction(3);
    expected[8] = "12.5";
    expected[16] = "-7";
    expected[4] = ""; // the row no longer stands for a point of the host's table
    expected[12] = "two_words";
    QCOMPARE(program->getContent(3), expected);

    program->nextPage();
    program->prevPage();
    QCOMPARE(RowView::text(RowView(program.line(3)).cell(RowView::Z)), QString("Z:12.5"));
    QCOMPARE(RowView::text(RowView(program.line(3)).cell(RowView::Jpos)), QString("P:"));
    tap(RowView(program.line(3)).cell(RowView::Ins));
    QCOMPARE(RowView::text(RowView(program.line(3)).detail(1)), QString("k15:-7"));
    QCOMPARE(RowView::text(RowView(program.line(3)).res()), QString("two words"));
}

void TestTListWidget::editOfAnOthRowReachesTheStore()
{
    QStringList head = title();
    TListWidget list(head, nullptr);
    for (int i = 1; i <= 3; ++i) {
        QStringList row = comment(QString::number(i), "hello");
        list.addWidget(row, true, false);
    }
    MJLine *line = qobject_cast<MJLine *>(list.itemAt(2));
    DeviceLog::acceptWith("bye");
    tap(tableCell(line->dataEditor(), 2));
    QCOMPARE(list.getContent(2), comment("2", "bye"));
    QCOMPARE(list.getContent(1), comment("1", "hello"));
    QCOMPARE(list.getCurIndex(), 2);
}

void TestTListWidget::editOfATableRowReachesTheStore()
{
    QStringList none;
    TListWidget list(none, nullptr);
    for (int i = 0; i < 3; ++i) {
        QStringList row = variable(QString("N%1").arg(i), "7");
        list.addWidget(row, true, false);
    }
    DataEditor *table = qobject_cast<DataEditor *>(list.itemAt(1));
    DeviceLog::acceptWith("8");
    tap(tableCell(table, 2));
    QCOMPARE(list.getContent(1), variable("N1", "8"));
    QCOMPARE(list.getContent(0), variable("N0", "7"));
    QCOMPARE(list.getCurIndex(), 1);
}

void TestTListWidget::editEmitsNoSignalOfTheList()
{
    Program program(true, 5);
    QSignalSpy clicked(program.get(), SIGNAL(clicked(int)));
    QSignalSpy jpos(program.get(), SIGNAL(sg_jpos_update(int)));
    QSignalSpy v(program.get(), SIGNAL(sg_v_update(int)));
    QMetaObject::invokeMethod(program.line(2), "sg_content_change", Q_ARG(int, 2));
    QCOMPARE(clicked.count() + jpos.count() + v.count(), 0);
}

void TestTListWidget::listMayChangeWhileAKeypadIsOpen_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("edited");
    // A slot keeps its field, so the answer goes to the row that is in the slot by then.
    QTest::newRow("page turned, accepted") << "nextPage" << true << 1;
    QTest::newRow("page turned, cancelled") << "nextPage" << false << 0;
    QTest::newRow("row removed, accepted") << "remove" << true << 1;
    QTest::newRow("row removed, cancelled") << "remove" << false << 0;
    QTest::newRow("page shortened, accepted") << "setTotalLine" << true << 1;
    QTest::newRow("page shortened, cancelled") << "setTotalLine" << false << 0;
    QTest::newRow("rows cleared, accepted") << "clear" << true << 0;
    QTest::newRow("rows cleared, cancelled") << "clear" << false << 0;
    QTest::newRow("rows replaced, accepted") << "setSize" << true << 1;
    QTest::newRow("rows replaced, cancelled") << "setSize" << false << 0;
}

// A host's timer, for example. No edit may reach a row that is gone, and nobody a dead widget.
void TestTListWidget::listMayChangeWhileAKeypadIsOpen()
{
    QFETCH(QString, change);
    QFETCH(bool, accepted);
    Program program(true, 40);
    program->home();
    tap(RowView(program.line(3)).cell(RowView::Ins));
    RecordingDevice::Answer answer;
    answer.accept = accepted;
    answer.text = "77";
    answer.action = [&program, &change]() {
        if (change == "nextPage")
            program->nextPage();
        else if (change == "setSize")
            program->setSize(QSize(300, 2000));
        else if (change == "clear")
            program->clear();
        else if (change == "remove")
            program->removeWidget(3, true);
        else
            program->setTotalLine(2);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    RecordingDevice::instance().answers << answer;
    tap(RowView(program.line(3)).detail(1));
    QCOMPARE(DeviceLog::answersLeft(), 0);

    int edited = 0;
    for (int i = 1; i < program->count(); ++i)
        edited += program->getJpos(i).at(1) == "77" ? 1 : 0;
    QTEST(edited, "edited");
    program->home();
}

void TestTListWidget::editReachesTheStoreThoughItsRowIsReplaced_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("a value of an instruction") << "Z" << true;
    QTest::newRow("its free text") << "free text" << true;
    QTest::newRow("another row's text") << "other" << true;
    QTest::newRow("a table's value") << "table" << true;
    QTest::newRow("cancelled") << "Z" << false;
}

void TestTListWidget::editReachesTheStoreThoughItsRowIsReplaced()
{
    QFETCH(QString, field);
    QFETCH(bool, accepted);
    const bool isTable = field == "table";
    const bool isOther = field == "other";
    QStringList none;
    TListWidget list(none, nullptr);
    for (int i = 0; i < 40; ++i) {
        QStringList row = isTable ? variable(QString::number(i), "7") : instruction(i);
        if (isOther && i == 3)
            row = QStringList() << "Oth"
                                << "3"
                                << ""
                                << "Oth"
                                << "text";
        list.addWidget(row, i == 39, false);
    }
    list.home();
    QPointer<QWidget> row = list.itemAt(3);
    MJLine *const line = qobject_cast<MJLine *>(row);
    if (field == "free text")
        line->on_expand();
    QWidget *const cell = isTable        ? tableCell(qobject_cast<DataEditor *>(row), 2)
                          : isOther      ? tableCell(line->dataEditor(), 2)
                          : field == "Z" ? RowView(line).cell(RowView::Z)
                                         : RowView(line).res();
    QStringList expected = list.getContent(3);
    RecordingDevice::Answer answer;
    answer.accept = accepted;
    answer.text = "77";
    answer.action = [&list]() {
        list.setSize(QSize(300, 2000));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    RecordingDevice::instance().answers << answer;
    tap(cell);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    if (accepted)
        expected[isTable ? 3 : isOther ? 4 : field == "Z" ? 8 : 12] = "77";
    QCOMPARE(list.getContent(3), expected);
    // The operator sees it, and the widget of before is gone once nothing needs it.
    QWidget *const shown = list.itemAt(3);
    QVERIFY(shown != row);
    if (isTable)
        QCOMPARE(RowView::text(tableCell(qobject_cast<DataEditor *>(shown), 2)), expected.at(3));
    else if (isOther)
        QCOMPARE(RowView::text(tableCell(qobject_cast<MJLine *>(shown)->dataEditor(), 2)),
                 expected.at(4));
    else
        QCOMPARE(RowView(qobject_cast<MJLine *>(shown)).text(RowView::Z), "Z:" + expected.at(8));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!row);
}

void TestTListWidget::editOfAReplacedRowFollowsTheRow_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("edited");
    const int none = 0;
    QTest::newRow("a row goes before it") << "remove 2" << 2;
    QTest::newRow("a row goes behind it") << "remove 4" << 3;
    QTest::newRow("it goes itself") << "remove 3" << none;
    QTest::newRow("a row comes before it") << "insert 3" << 4;
    QTest::newRow("a row comes behind it") << "insert 4" << 3;
    QTest::newRow("it becomes another") << "set 3" << none;
    QTest::newRow("another row becomes another") << "set 4" << 3;
    QTest::newRow("all rows go") << "clear 0" << none;
}

void TestTListWidget::editOfAReplacedRowFollowsTheRow()
{
    QFETCH(QString, change);
    const int row = change.section(' ', 1).toInt();
    Program program(true, 40);
    program->home();
    RecordingDevice::Answer answer;
    answer.accept = true;
    answer.text = "77";
    answer.action = [&program, &change, row]() {
        program->setSize(QSize(300, 2000));
        QStringList other = instruction(row);
        other[2] = "OTHER";
        if (change.startsWith("remove"))
            program->removeWidget(row, true);
        else if (change.startsWith("insert"))
            program->insertWidget(row, other, true, false);
        else if (change.startsWith("set"))
            program->setContent(row, other);
        else
            program->clear();
    };
    RecordingDevice::instance().answers << answer;
    tap(RowView(program.line(3)).cell(RowView::Z));
    QCOMPARE(DeviceLog::answersLeft(), 0);
    int edited = 0;
    for (int i = 1; i < program->count(); ++i) {
        QCOMPARE(program->getContent(i).at(1), QString::number(i));
        if (program->getContent(i).at(8) == "77")
            edited = edited ? -1 : i;
    }
    QTEST(edited, "edited");
}

// A host's errors

void TestTListWidget::emptiedRowKeepsWhatItsWidgetShows()
{
    Program program(false, 3);
    const QString before = RowView::text(RowView(program.line(1)).cell(RowView::Ins));
    QStringList empty;
    program->setContent(1, empty);
    program->setCurIndex(2, true);
    QCOMPARE(program->getContent(1), QStringList());
    QCOMPARE(RowView::text(RowView(program.line(1)).cell(RowView::Ins)), before);
    QVERIFY(!program.line(1)->isHidden());
}

void TestTListWidget::rowsOfUnknownKindHaveNoWidget()
{
    QStringList none;
    TListWidget list(none, nullptr);
    QStringList odd = instruction("0", "XX");
    list.addWidget(odd, true, false);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.ListWidget::count(), 0);
    QCOMPARE(list.typeAt(0), QString("XX"));
    QStringList row = instruction(1);
    list.addWidget(row, true, false);
    list.setCurIndex(0, true);
    list.deselect(0, false);
    list.setIndex(0, "5");
    QCOMPARE(list.getContent(0).at(1), QString("5"));
    QStringList again = instruction("0", "YY");
    list.setContent(0, again);
    QCOMPARE(list.typeAt(0), QString("YY"));
    list.home();
    list.removeWidget(0, true);
    QCOMPARE(list.count(), 1);
}

void TestTListWidget::titleOfUnknownKindIsNoTitle()
{
    QStringList head = instruction("0", "XX");
    TListWidget list(head, nullptr);
    QCOMPARE(list.count(), 1);
    QCOMPARE(list.ListWidget::count(), 0);
    QStringList row = instruction(1);
    list.addWidget(row, true, false);
    QCOMPARE(list.getListPos(1), 0);
    QCOMPARE(numberOf(list.itemAt(0)), QString("1"));
}

void TestTListWidget::shortRows_data()
{
    QTest::addColumn<QStringList>("row");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("MJ alone") << QStringList("MJ");
    QTest::newRow("MJ and a number") << (QStringList() << "MJ"
                                                       << "1");
    QTest::newRow("Oth alone") << QStringList("Oth");
    QTest::newRow("Title alone") << QStringList("Title");
    QTest::newRow("DataEditor alone") << QStringList("DataEditor");
    QTest::newRow("DataEditor and a number") << (QStringList() << "DataEditor"
                                                               << "1");
}

void TestTListWidget::shortRows()
{
    QFETCH(QStringList, row);
    QStringList head = row;
    TListWidget titled(head, nullptr);
    QStringList none;
    TListWidget list(none, nullptr);
    for (int i = 0; i < 3; ++i) {
        QStringList copy = row;
        list.addWidget(copy, true, false);
        titled.addWidget(copy, true, false);
        QCOMPARE(list.getContent(i), row);
    }
    const QString kind = row.value(0);
    list.setIndex(1, "N1");
    QCOMPARE(list.getContent(1).value(1), QString("N1"));
    QStringList copy = row;
    list.setContent(1, copy);
    QCOMPARE(list.getContent(1), row);
    for (int slot = 0; slot < list.ListWidget::count(); ++slot)
        tap(list.itemAt(slot));
    const bool isInstruction = kind == "MJ";
    QCOMPARE(list.getVIndex(1), isInstruction ? 0 : -1);
    QCOMPARE(list.getV(1), isInstruction ? QStringList() << ""
                                                         << ""
                                                         << ""
                                         : QStringList());
    QStringList values = numbers(1, 7);
    list.setJpos(1, values);
    // What is missing counts as empty, and is there from then on.
    QCOMPARE(list.getJpos(1), isInstruction ? numbers(1, 6) : QStringList());
    QCOMPARE(list.getJposIndex(1), isInstruction ? 7 : -1);
    list.removeWidget(0, true);
    titled.clear();
}

void TestTListWidget::shortGroupsChangeNothing()
{
    Program program(true, 5);
    for (int size = 0; size < 6; ++size) {
        QStringList values = numbers(1, size);
        program->setJpos(2, values);
        if (size < 3)
            program->setV(2, values);
    }
    QCOMPARE(program->getContent(2), instruction(2));
}

void TestTListWidget::indexesOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("-100") << -100;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("first behind the rows") << 20;
    QTest::newRow("1000") << 1000;
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
}

void TestTListWidget::indexesOutOfRange()
{
    QFETCH(int, index);
    for (int titled = 0; titled <= 1; ++titled) {
        Program program(titled, titled ? 19 : 20);
        const QStringList page = program.page();
        QStringList row = instruction("x");
        program->setContent(index, row);
        QCOMPARE(row, instruction("x"));
        QCOMPARE(program->getContent(index), QStringList());
        QCOMPARE(program->typeAt(index), QString());
        program->setIndex(index, "x");
        QStringList values = numbers(1, 7);
        program->setV(index, values);
        program->setJpos(index, values);
        QCOMPARE(program->getV(index), QStringList());
        QCOMPARE(program->getJpos(index), QStringList());
        QCOMPARE(program->getVIndex(index), -1);
        QCOMPARE(program->getJposIndex(index), -1);
        program->deselect(index, false);
        program->on_content_change(index);
        QCOMPARE(program->count(), 20);
        QCOMPARE(program.page(), page);
        program->on_line_clicked(index);
        program->on_v_update(index);
        program->on_jpos_update(index);
        program->setCurIndex(index, true);
        program->getListPos(index);
        program->reshow();
        QCOMPARE(program.page(), page);
        if (index < 0) {
            program->insertWidget(index, row, true, false);
            QCOMPARE(program->count(), 20);
        }
        program->removeWidget(index, true);
        QCOMPARE(program->count(), 20);
        program->setTotalLine(index > 1000 ? 1000 : index);
        program->nextPage();
        program->prevPage();
        program->nextLine();
        program->prevLine();
        program->home();
        program->end();
        QStringList none;
        program->addWidget(none, true, true);
        program->clear();
    }
}

void TestTListWidget::positionsNeverComeOutOnTheOtherSideOfZero()
{
    const int least = std::numeric_limits<int>::min();
    const int most = std::numeric_limits<int>::max();
    Program program(true, 40);
    QVERIFY(program.startLine() > 1);
    QCOMPARE(program->getListPos(least), least);
    QCOMPARE(program->getListPos(most), most - program.startLine() + 1);
    // A page of a length below 0 ends far behind the rows.
    program->setTotalLine(least);
    program->end();
    QCOMPARE(program->getListPos(0), 1 - most);
    QCOMPARE(program->getListPos(least), least);
    program->setTotalLine(13);
    program->home();
    QCOMPARE(program.page(), numbers(1, 13));
}

void TestTListWidget::directCallsWithoutASender()
{
    Program program(true, 5);
    QStringList row = comment("3", "hello");
    program->setContent(3, row);
    QSignalSpy clicked(program.get(), SIGNAL(clicked(int)));
    for (int i = 0; i < program->count(); ++i) {
        const QStringList before = program->getContent(i);
        program->on_content_change(i);
        QCOMPARE(program->getContent(i), before);
    }
    program->on_line_changed(true);
    program->on_line_changed(false);
    program->on_line_clicked(2);
    QCOMPARE(integers(clicked), QList<int>() << 2);
    QCOMPARE(program->getCurIndex(), 2);

    QStringList none;
    TListWidget tables(none, nullptr);
    QStringList cells = variable("N0", "7");
    tables.addWidget(cells, true, false);
    tables.on_content_change(0);
    QCOMPARE(tables.getContent(0), variable("N0", "7"));
}

void TestTListWidget::mixedFamiliesDoNotCrash()
{
    QStringList none;
    TListWidget list(none, nullptr);
    for (int i = 0; i < 40; ++i) {
        QStringList row = i % 2 ? variable(QString::number(i), "7") : instruction(i);
        list.addWidget(row, true, false);
    }
    list.home();
    list.nextLine(); // now every widget is of the other class
    list.setCurIndex(5, true);
    QStringList values = numbers(1, 7);
    for (int i = 0; i < 14; ++i) {
        QStringList row = comment(QString::number(i), "hello");
        list.setContent(i, row);
        list.setIndex(i, "3");
        list.setJpos(i, values);
        list.deselect(i, false);
        tap(list.itemAt(i));
    }
    list.nextPage();
    list.removeWidget(3, true);
    QCOMPARE(list.count(), 39);
}

FILARIX_TEST_MAIN(TestTListWidget)
#include "tst_tlistwidget.moc"
