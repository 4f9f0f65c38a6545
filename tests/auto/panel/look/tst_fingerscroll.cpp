// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/fingerscroll.h"
#include "look/paneltable.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScopedPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QScroller>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

#include <algorithm>

namespace {

const int frameMs = 16;
const int taps = 50;
const int longestMedianMs = 20;
const int longestMs = 100;

/// A finger on a window, by the events of the window system, with times of its own.
class Finger
{
public:
    void down(QWidget *widget, const QPoint &place)
    {
        m_window = widget->window()->windowHandle();
        m_at = widget->mapTo(widget->window(), place);
        m_time += QApplication::doubleClickInterval() + 1;
        send(QEvent::MouseButtonPress, Qt::LeftButton);
    }

    void downAgain()
    {
        m_time += frameMs;
        send(QEvent::MouseButtonPress, Qt::LeftButton);
    }

    /// In steps, as the glass tells of them.
    void drag(const QPoint &by, int steps = 10)
    {
        const QPoint from = m_at;
        for (int i = 1; i <= steps; ++i) {
            m_at = from + by * i / steps;
            m_time += frameMs;
            send(QEvent::MouseMove, Qt::LeftButton);
        }
    }

    void rest() { m_time += 2000; }

    void up()
    {
        m_time += frameMs;
        send(QEvent::MouseButtonRelease, Qt::NoButton);
    }

    void tap(QWidget *widget, const QPoint &place)
    {
        down(widget, place);
        up();
    }

private:
    void send(QEvent::Type type, Qt::MouseButtons buttons)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QWindowSystemInterface::handleMouseEvent(
            m_window, m_time, m_at, m_window->mapToGlobal(m_at), buttons, button, type);
        QCoreApplication::processEvents();
    }

    QWindow *m_window = nullptr;
    QPoint m_at;
    ulong m_time = 1000;
};

} // namespace

class TestFingerScroll : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dragMovesTheProgramAndNotItsCursor();
    void linesFollowTheFinger();
    void tapPutsTheCursorThere();
    void tapThatSlidesALittleIsATap();
    void tapIsAnsweredAtOnce();
    void fingerThatRestsFirstChoosesNothingEither();
    void flickGoesOn();
    void touchStopsAFlickAndDoesNothingElse();
    void whoMovesTheProgramEndsAFlick();
    void dragAcrossMovesLongLines();
    void dragOnTheGutterMovesTheProgram();
    void dragOnTheBarIsTheBars();
    void dragInAListChoosesNoRow();
    void tapInAListChoosesItsRow();
    void tapGivesTheFocusAndADragDoesNot();
    void doubleTapInAListIsOne();
    void dragAcrossATableChoosesNothing();
    void headerTakesItsDrags();
    void dragThatStartsOnAKeyPressesNothing();
    void tapThatOpensADialogLeavesItUsable();
    void whatFitsTakesItsPressesAtOnce();
    void rowsOfThePagedListKeepTheirPresses();
    void editorThatGoesUnderTheFingerIsForgotten();
    void fingerLiftedElsewhereStartsNothing();

private:
    QPlainTextEdit *showEditor(int lines, int letters = 10);
    QListView *showList();
    PanelTable *showTable();
    void show(QWidget *widget, const QSize &size);

    QScopedPointer<FingerScroll> m_scroll;
    QScopedPointer<QWidget> m_shown;
    QStringListModel m_rows;
    Finger m_finger;
};

void TestFingerScroll::init()
{
    FilarixTest::init();
    m_scroll.reset(new FingerScroll);
    QStringList rows;
    for (int i = 0; i < 200; ++i)
        rows.append(QString("row %1").arg(i));
    m_rows.setStringList(rows);
}

void TestFingerScroll::cleanup()
{
    m_shown.reset();
    m_scroll.reset();
    FilarixTest::cleanup();
}

void TestFingerScroll::show(QWidget *widget, const QSize &size)
{
    m_shown.reset(widget);
    widget->resize(size);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
}

QPlainTextEdit *TestFingerScroll::showEditor(int lines, int letters)
{
    WGCodeEditer *editor = new WGCodeEditer(nullptr);
    QStringList text;
    for (int i = 0; i < lines; ++i)
        text.append(QString("G01 X%1 ").arg(i) + QString(letters, 'F'));
    editor->setPlainText(text.join('\n'));
    show(editor, QSize(400, 300));
    return editor;
}

QListView *TestFingerScroll::showList()
{
    QWidget *panel = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(panel);
    QLineEdit *field = new QLineEdit;
    QListView *list = new QListView;
    list->setModel(&m_rows);
    column->addWidget(field);
    column->addWidget(list);
    field->setFocus();
    show(panel, QSize(300, 400));
    return list;
}

PanelTable *TestFingerScroll::showTable()
{
    PanelTable *table = new PanelTable(100, 3);
    table->letChooseRow();
    for (int row = 0; row < table->rowCount(); ++row)
        table->setItem(row, 0, new QTableWidgetItem(QString::number(row)));
    show(table, QSize(300, 300));
    return table;
}

void TestFingerScroll::dragMovesTheProgramAndNotItsCursor()
{
    QPlainTextEdit *editor = showEditor(1000);
    QSignalSpy moved(editor, SIGNAL(cursorPositionChanged()));
    m_finger.down(editor->viewport(), QPoint(100, 200));
    QCOMPARE(editor->textCursor().blockNumber(), 0);
    m_finger.drag(QPoint(0, -150));
    QTRY_VERIFY(editor->verticalScrollBar()->value() > 0);
    m_finger.rest();
    m_finger.up();
    QCOMPARE(moved.size(), 0);
    QVERIFY(!editor->textCursor().hasSelection());
}

void TestFingerScroll::linesFollowTheFinger()
{
    QPlainTextEdit *editor = showEditor(1000);
    const int line = editor->cursorRect().height();
    m_finger.down(editor->viewport(), QPoint(100, 250));
    // The way of a tap is not made up for.
    m_finger.drag(QPoint(0, -(8 * line)), 40);
    const QScrollBar *bar = editor->verticalScrollBar();
    QTRY_VERIFY2(bar->value() >= 7 && bar->value() <= 8, qPrintable(QString::number(bar->value())));
    m_finger.drag(QPoint(0, 9 * line), 40);
    QTRY_COMPARE(bar->value(), 0);
    m_finger.up();
}

void TestFingerScroll::tapPutsTheCursorThere()
{
    QPlainTextEdit *editor = showEditor(1000);
    const QPoint place(100, 200);
    const int line = editor->cursorForPosition(place).blockNumber();
    QVERIFY(line > 0);
    m_finger.tap(editor->viewport(), place);
    QCOMPARE(editor->textCursor().blockNumber(), line);
    QCOMPARE(editor->verticalScrollBar()->value(), 0);
}

void TestFingerScroll::tapThatSlidesALittleIsATap()
{
    QPlainTextEdit *editor = showEditor(1000);
    const QPoint place(100, 200);
    m_finger.down(editor->viewport(), place);
    m_finger.drag(QPoint(0, -FingerScroll::tapDistance()), 4);
    m_finger.up();
    QCOMPARE(editor->textCursor().blockNumber(), editor->cursorForPosition(place).blockNumber());
    QCOMPARE(editor->verticalScrollBar()->value(), 0);
}

/// Until the mark of the line is painted.
void TestFingerScroll::tapIsAnsweredAtOnce()
{
    QPlainTextEdit *editor = showEditor(1000);
    QList<double> times;
    for (int i = 0; i < taps; ++i) {
        const QPoint place(100, i % 2 == 0 ? 50 : 200);
        const int line = editor->cursorForPosition(place).blockNumber();
        m_finger.down(editor->viewport(), place);
        QElapsedTimer clock;
        clock.start();
        m_finger.up();
        QCOMPARE(editor->textCursor().blockNumber(), line);
        QTRY_VERIFY(!editor->viewport()->testAttribute(Qt::WA_PendingUpdate));
        times.append(double(clock.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    QVERIFY2(times.at(taps / 2) <= patience(longestMedianMs),
             qPrintable(QString::number(times.at(taps / 2))));
    QVERIFY2(times.last() <= patience(longestMs), qPrintable(QString::number(times.last())));
}

void TestFingerScroll::fingerThatRestsFirstChoosesNothingEither()
{
    QListView *list = showList();
    m_finger.down(list->viewport(), QPoint(50, 200));
    m_finger.rest();
    QVERIFY(!list->currentIndex().isValid());
    m_finger.drag(QPoint(0, -100));
    m_finger.up();
    QVERIFY(!list->currentIndex().isValid());
}

void TestFingerScroll::flickGoesOn()
{
    QPlainTextEdit *editor = showEditor(5000);
    m_finger.down(editor->viewport(), QPoint(100, 250));
    m_finger.drag(QPoint(0, -200), 5);
    m_finger.up();
    const int lifted = editor->verticalScrollBar()->value();
    QTRY_VERIFY(editor->verticalScrollBar()->value() > lifted + 5);
    QScroller *scroller = QScroller::scroller(editor->viewport());
    QTRY_COMPARE(int(scroller->state()), int(QScroller::Inactive));
    QCOMPARE(editor->textCursor().blockNumber(), 0);
}

void TestFingerScroll::touchStopsAFlickAndDoesNothingElse()
{
    QPlainTextEdit *editor = showEditor(5000);
    m_finger.down(editor->viewport(), QPoint(100, 250));
    m_finger.drag(QPoint(0, -200), 4);
    m_finger.up();
    QScroller *scroller = QScroller::scroller(editor->viewport());
    QCOMPARE(int(scroller->state()), int(QScroller::Scrolling));
    m_finger.downAgain();
    const int stopped = editor->verticalScrollBar()->value();
    m_finger.rest();
    m_finger.up();
    QTRY_COMPARE(int(scroller->state()), int(QScroller::Inactive));
    QCOMPARE(editor->verticalScrollBar()->value(), stopped);
    QCOMPARE(editor->textCursor().blockNumber(), 0);
    // The next one is a tap again.
    const int line = editor->cursorForPosition(QPoint(100, 100)).blockNumber();
    m_finger.tap(editor->viewport(), QPoint(100, 100));
    QCOMPARE(editor->textCursor().blockNumber(), line);
}

void TestFingerScroll::whoMovesTheProgramEndsAFlick()
{
    QPlainTextEdit *editor = showEditor(5000);
    m_finger.down(editor->viewport(), QPoint(100, 250));
    m_finger.drag(QPoint(0, -200), 4);
    m_finger.up();
    static_cast<WGCodeEditer *>(editor)->gotoLine(4000);
    const int there = editor->verticalScrollBar()->value();
    QTRY_COMPARE(int(QScroller::scroller(editor->viewport())->state()), int(QScroller::Inactive));
    QCOMPARE(editor->verticalScrollBar()->value(), there);
}

void TestFingerScroll::dragAcrossMovesLongLines()
{
    QPlainTextEdit *editor = showEditor(1000, 200);
    m_finger.down(editor->viewport(), QPoint(300, 150));
    m_finger.drag(QPoint(-200, 4));
    QTRY_VERIFY(editor->horizontalScrollBar()->value() > 100);
    m_finger.rest();
    m_finger.up();
    QCOMPARE(editor->verticalScrollBar()->value(), 0);
    QCOMPARE(editor->textCursor().position(), 0);
}

void TestFingerScroll::dragOnTheGutterMovesTheProgram()
{
    QPlainTextEdit *editor = showEditor(1000);
    const QPoint gutter(editor->viewport()->x() / 2, 200);
    QVERIFY(editor->childAt(gutter) != editor->viewport());
    m_finger.down(editor, gutter);
    m_finger.drag(QPoint(0, -150));
    QTRY_VERIFY(editor->verticalScrollBar()->value() > 0);
    m_finger.rest();
    m_finger.up();
    QCOMPARE(editor->textCursor().blockNumber(), 0);
    m_finger.tap(editor, gutter);
    QCOMPARE(editor->textCursor().blockNumber(), 0);
}

void TestFingerScroll::dragOnTheBarIsTheBars()
{
    QPlainTextEdit *editor = showEditor(1000);
    QScrollBar *bar = editor->verticalScrollBar();
    const int down = bar->height() / 2;
    m_finger.down(bar, QPoint(bar->width() / 2, down));
    QVERIFY(bar->value() > 0 || bar->isSliderDown());
    m_finger.drag(QPoint(0, 60));
    QVERIFY(bar->value() > 0);
    m_finger.up();
    QCOMPARE(int(QScroller::hasScroller(editor->viewport())), 0);
    QCOMPARE(editor->textCursor().blockNumber(), 0);
}

void TestFingerScroll::dragInAListChoosesNoRow()
{
    QListView *list = showList();
    QSignalSpy pressed(list, SIGNAL(pressed(QModelIndex)));
    QSignalSpy clicked(list, SIGNAL(clicked(QModelIndex)));
    m_finger.down(list->viewport(), QPoint(50, 200));
    m_finger.drag(QPoint(0, -100));
    QTRY_VERIFY(list->verticalScrollBar()->value() > 0);
    m_finger.rest();
    m_finger.up();
    QVERIFY(!list->currentIndex().isValid());
    QVERIFY(list->selectionModel()->selectedIndexes().isEmpty());
    QCOMPARE(pressed.size(), 0);
    QCOMPARE(clicked.size(), 0);
}

void TestFingerScroll::tapInAListChoosesItsRow()
{
    QListView *list = showList();
    QSignalSpy clicked(list, SIGNAL(clicked(QModelIndex)));
    const QModelIndex wanted = list->indexAt(QPoint(20, 100));
    m_finger.tap(list->viewport(), QPoint(20, 100));
    QCOMPARE(list->currentIndex(), wanted);
    QCOMPARE(clicked.size(), 1);
}

void TestFingerScroll::tapGivesTheFocusAndADragDoesNot()
{
    QListView *list = showList();
    QLineEdit *field = m_shown->findChild<QLineEdit *>();
    QTRY_VERIFY(field->hasFocus());
    const Qt::FocusPolicy own = list->focusPolicy();
    const Qt::FocusPolicy viewports = list->viewport()->focusPolicy();
    m_finger.down(list->viewport(), QPoint(50, 200));
    QCOMPARE(list->focusPolicy(), own);
    QCOMPARE(list->viewport()->focusPolicy(), viewports);
    m_finger.drag(QPoint(0, -100));
    m_finger.rest();
    m_finger.up();
    QVERIFY(field->hasFocus());
    QCOMPARE(list->focusPolicy(), own);
    m_finger.tap(list->viewport(), QPoint(20, 100));
    QVERIFY(list->hasFocus());
}

void TestFingerScroll::doubleTapInAListIsOne()
{
    QListView *list = showList();
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QSignalSpy twice(list, SIGNAL(doubleClicked(QModelIndex)));
    m_finger.tap(list->viewport(), QPoint(20, 100));
    m_finger.downAgain();
    m_finger.up();
    QCOMPARE(twice.size(), 1);
}

void TestFingerScroll::dragAcrossATableChoosesNothing()
{
    PanelTable *table = showTable();
    m_finger.down(table->viewport(), QPoint(50, 100));
    m_finger.drag(QPoint(100, 2));
    m_finger.up();
    QVERIFY(table->selectedItems().isEmpty());
    QCOMPARE(table->verticalScrollBar()->value(), 0);
    QCOMPARE(table->horizontalScrollBar()->value(), 0);
    m_finger.tap(table->viewport(), QPoint(50, 100));
    QVERIFY(!table->selectedItems().isEmpty());
}

void TestFingerScroll::headerTakesItsDrags()
{
    PanelTable *table = showTable();
    QHeaderView *header = table->horizontalHeader();
    const int width = header->sectionSize(0);
    m_finger.down(header->viewport(), QPoint(width - 1, header->height() / 2));
    m_finger.drag(QPoint(30, 0));
    m_finger.up();
    QCOMPARE(header->sectionSize(0), width + 30);
}

void TestFingerScroll::dragThatStartsOnAKeyPressesNothing()
{
    QScrollArea *area = new QScrollArea;
    QWidget *content = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(content);
    for (int i = 0; i < 30; ++i)
        column->addWidget(new QPushButton(QString::number(i)));
    area->setWidget(content);
    show(area, QSize(300, 300));
    QPushButton *key = content->findChildren<QPushButton *>().at(3);
    QSignalSpy clicked(key, SIGNAL(clicked()));
    m_finger.down(key, key->rect().center());
    m_finger.drag(QPoint(0, -80));
    QTRY_VERIFY(area->verticalScrollBar()->value() > 0);
    m_finger.rest();
    m_finger.up();
    QCOMPARE(clicked.size(), 0);
    QVERIFY(!key->isDown());
    key = content->findChildren<QPushButton *>().at(5);
    QSignalSpy tapped(key, SIGNAL(clicked()));
    m_finger.tap(key, key->rect().center());
    QCOMPARE(tapped.size(), 1);
}

/// Opens a dialog at a press, as the library's fields open their keypads.
class Opener : public QLabel
{
    Q_OBJECT

public:
    explicit Opener(Finger *finger) : QLabel("open"), m_finger(finger) {}

    int presses = 0;
    int releases = 0;
    bool wasAnswered = false;

protected:
    void mousePressEvent(QMouseEvent *) override
    {
        ++presses;
        QDialog dialog;
        QListView list(&dialog);
        QStringListModel rows(QStringList(QVector<QString>(100, "row").toList()));
        list.setModel(&rows);
        list.resize(200, 200);
        QTimer::singleShot(0, &dialog, [&] {
            m_finger->tap(list.viewport(), QPoint(20, 50));
            wasAnswered = list.currentIndex().isValid();
            dialog.accept();
        });
        dialog.exec();
    }

    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }

private:
    Finger *m_finger;
};

void TestFingerScroll::tapThatOpensADialogLeavesItUsable()
{
    QScrollArea *area = new QScrollArea;
    QWidget *content = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(content);
    Opener *opener = new Opener(&m_finger);
    column->addWidget(opener);
    for (int i = 0; i < 30; ++i)
        column->addWidget(new QPushButton(QString::number(i)));
    area->setWidget(content);
    show(area, QSize(300, 300));
    m_finger.tap(opener, opener->rect().center());
    QCOMPARE(opener->presses, 1);
    QVERIFY(opener->wasAnswered);
    m_finger.down(content, QPoint(2, 200));
    m_finger.drag(QPoint(0, -100));
    m_finger.up();
    QTRY_VERIFY(area->verticalScrollBar()->value() > 0);
    QCOMPARE(opener->presses, 1);
}

void TestFingerScroll::whatFitsTakesItsPressesAtOnce()
{
    QPlainTextEdit *editor = showEditor(4);
    const QPoint place(100, 40);
    const int line = editor->cursorForPosition(place).blockNumber();
    QVERIFY(line > 0);
    m_finger.down(editor->viewport(), place);
    QCOMPARE(editor->textCursor().blockNumber(), line);
    m_finger.up();
}

void TestFingerScroll::rowsOfThePagedListKeepTheirPresses()
{
    QStringList title;
    TListWidget *list = new TListWidget(title, nullptr);
    list->setFixedWidth(380);
    for (int i = 0; i < 40; ++i) {
        QStringList row = QStringList("DataEditor") << QString("N%1").arg(i) << "Name"
                                                    << "5";
        list->addWidget(row, false, false);
    }
    QScrollArea *area = new QScrollArea;
    area->setWidget(list);
    show(area, QSize(400, 150));
    list->home();
    QVERIFY(area->verticalScrollBar()->maximum() > 0);
    QSignalSpy clicked(list, SIGNAL(clicked(int)));
    QWidget *row = list->itemAt(1);
    QVERIFY(row);
    m_finger.down(row, QPoint(1, row->height() / 2));
    m_finger.drag(QPoint(0, -60));
    QTRY_VERIFY(area->verticalScrollBar()->value() > 0);
    m_finger.rest();
    m_finger.up();
    QVERIFY(area->verticalScrollBar()->value() > 0);
    QCOMPARE(clicked.size(), 0);
    area->verticalScrollBar()->setValue(0);
    m_finger.tap(row, QPoint(1, row->height() / 2));
    QCOMPARE(clicked.size(), 1);
}

void TestFingerScroll::editorThatGoesUnderTheFingerIsForgotten()
{
    QWidget *panel = new QWidget;
    QListView *list = new QListView(panel);
    list->setModel(&m_rows);
    list->resize(300, 300);
    show(panel, QSize(300, 300));
    m_finger.down(list->viewport(), QPoint(50, 100));
    delete list;
    m_finger.drag(QPoint(0, -50));
    m_finger.up();
    QListView *next = new QListView(panel);
    next->setModel(&m_rows);
    next->resize(300, 300);
    next->show();
    m_finger.tap(next->viewport(), QPoint(20, 100));
    QVERIFY(next->currentIndex().isValid());
}

// A dialog may come while the finger is down.
void TestFingerScroll::fingerLiftedElsewhereStartsNothing()
{
    QListView *list = showList();
    m_finger.down(list->viewport(), QPoint(50, 100));
    QDialog dialog;
    QListView other(&dialog);
    other.setModel(&m_rows);
    other.resize(200, 200);
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QMouseEvent up(QEvent::MouseButtonRelease, QPointF(50, 100), Qt::LeftButton, Qt::NoButton,
                   Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &up);
    QVERIFY(!list->currentIndex().isValid());
    m_finger.tap(other.viewport(), QPoint(20, 50));
    QVERIFY(other.currentIndex().isValid());
    QVERIFY(!list->currentIndex().isValid());
    dialog.close();
    m_finger.tap(list->viewport(), QPoint(20, 50));
    QVERIFY(list->currentIndex().isValid());
}

FILARIX_TEST_MAIN(TestFingerScroll)
#include "tst_fingerscroll.moc"
