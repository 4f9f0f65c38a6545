// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "waqp.h"
#include "wgcodeediter.h"
#include "whighlighter.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyle>
#include <QTextBlock>
#include <QTextLayout>
#include <QVBoxLayout>

#include <limits>

#include <random>

namespace {

const QChar softBreak(QChar::LineSeparator);

/// A screen around an editor that notes which presses nobody handled.
class Screen : public QWidget
{
public:
    Screen() : other(new QLineEdit(this)), editer(new WGCodeEditer(this))
    {
        QVBoxLayout *layout = new QVBoxLayout(this);
        layout->addWidget(other);
        layout->addWidget(editer);
        resize(400, 300);
    }

    QLineEdit *other;
    WGCodeEditer *editer;
    QList<QEvent::Type> unhandled;

protected:
    void mousePressEvent(QMouseEvent *event) override { unhandled << event->type(); }
    void mouseDoubleClickEvent(QMouseEvent *event) override { unhandled << event->type(); }
};

/// Notes what a widget is asked to paint.
class PaintLog : public QObject
{
public:
    explicit PaintLog(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

    QRegion painted;
};

QString numberedLines(int count)
{
    QStringList lines;
    for (int i = 1; i <= count; ++i)
        lines << QString::fromLatin1("N%1 G01 X%1").arg(i);
    return lines.join(QLatin1String("\n"));
}

void setPosition(QPlainTextEdit &editor, int position, int anchor = -1)
{
    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(anchor < 0 ? position : anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    editor.setTextCursor(cursor);
}

QPoint placeOf(QPlainTextEdit &editor, int position)
{
    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(position);
    return editor.cursorRect(cursor).center();
}

/// Moves from one position of the text to another with the left button held.
void drag(QPlainTextEdit &editor, int from, int to)
{
    QWidget *viewport = editor.viewport();
    const QPoint start = placeOf(editor, from);
    const QPoint end = placeOf(editor, to);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, start);
    // QTest::mouseMove() moves without a button.
    for (int i = 1; i <= 4; ++i) {
        const QPoint at = start + (end - start) * i / 4;
        QMouseEvent move(QEvent::MouseMove, at, viewport->mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, end);
}

int leftMargin(const QAbstractScrollArea &area)
{
    return area.viewport()->geometry().left() - area.contentsRect().left();
}

bool isCurrentLineMark(const WGCodeEditer &editer)
{
    const QList<QTextEdit::ExtraSelection> marks = editer.extraSelections();
    return marks.size() == 1
           && marks.first().format.background() == editer.palette().alternateBase()
           && marks.first().format.boolProperty(QTextFormat::FullWidthSelection)
           && !marks.first().format.hasProperty(QTextFormat::ForegroundBrush)
           && !marks.first().cursor.hasSelection()
           && marks.first().cursor.position() == editer.textCursor().position();
}

bool isRedMark(const WGCodeEditer &editer)
{
    const QList<QTextEdit::ExtraSelection> marks = editer.extraSelections();
    return marks.size() == 1
           && marks.first().format.foreground() == QBrush(Qt::red, Qt::SolidPattern)
           && marks.first().format.boolProperty(QTextFormat::FullWidthSelection)
           && !marks.first().format.hasProperty(QTextFormat::BackgroundBrush)
           && !marks.first().cursor.hasSelection()
           && marks.first().cursor.position() == editer.textCursor().position();
}

/// The gutter drawn as the editor's own geometry wants it.
QImage expectedGutter(WGCodeEditer &editer, const QRect &rect)
{
    QWidget *gutter = editer.lineNumberArea;
    QImage image(gutter->size(), QImage::Format_RGB32);
    image.fill(0);
    QPainter painter(&image);
    // The gutter has it from the editor; a painter takes of a font only what was set there.
    painter.setFont(editer.font());
    painter.setClipRect(rect);
    painter.fillRect(rect, Qt::lightGray);
    painter.setPen(Qt::black);
    QTextBlock block = editer.firstVisibleBlock();
    int top = int(editer.blockBoundingGeometry(block).top() + editer.contentOffset().y());
    while (block.isValid() && top <= rect.bottom()) {
        painter.drawText(QRect(0, top, gutter->width(), QFontMetrics(editer.font()).height()),
                         Qt::AlignRight, QString::number(block.blockNumber() + 1));
        top += int(editer.blockBoundingGeometry(block).height());
        block = block.next();
    }
    return image;
}

QImage paintedGutter(WGCodeEditer &editer, const QRect &rect)
{
    QWidget *gutter = editer.lineNumberArea;
    QImage image(gutter->size(), QImage::Format_RGB32);
    image.fill(0);
    gutter->render(&image, rect.topLeft(), QRegion(rect));
    return image;
}

typedef void (*Command)(WGCodeEditer &);

void insertG1(WGCodeEditer &editer)
{
    editer.insertLine(QLatin1String("G1"));
}
void insertNothing(WGCodeEditer &editer)
{
    editer.insertLine(QString());
}
void insertEmpty(WGCodeEditer &editer)
{
    editer.insertLine();
}
void insertAbove(WGCodeEditer &editer)
{
    editer.insertBefore();
}
void deleteCurrent(WGCodeEditer &editer)
{
    editer.deleteLine();
}
void replaceByG1(WGCodeEditer &editer)
{
    editer.updateGCode(QLatin1String("G1"));
}
void replaceByNothing(WGCodeEditer &editer)
{
    editer.updateGCode(QString());
}
void moveUp(WGCodeEditer &editer)
{
    editer.moveEvent(GCODE::MoveUp);
}
void moveDown(WGCodeEditer &editer)
{
    editer.moveEvent(GCODE::MoveDown);
}
void moveNowhere(WGCodeEditer &editer)
{
    editer.moveEvent(GCODE::MoveOperation(2));
}
void gotoSecond(WGCodeEditer &editer)
{
    editer.gotoLine(2);
}
void askCurrentText(WGCodeEditer &editer)
{
    editer.curLineText();
}
void pasteBuffer(WGCodeEditer &editer)
{
    editer.paste();
}
void askAll(WGCodeEditer &editer)
{
    editer.getLineText(0);
    editer.currentLineNumber();
    editer.getCurRowNumber();
    editer.getCurColNumber();
    editer.lineNumberAreaWidth();
}

} // namespace

Q_DECLARE_METATYPE(Command)

class TestWGCodeEditer : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void fontIsArialBoldOf15Points();
    void selectionWithoutFocusIsCyan();
    void nothingIsWrapped();
    void scrollBarsAreWideEnoughForAThumb_data();
    void scrollBarsAreWideEnoughForAThumb();
    void startsEmptyWithOneHighlighterAndNoFindDialog();

    void emptyDocumentHasAGutterOfOneDigit();
    void gutterWidthGrowsWithTheDigits_data();
    void gutterWidthGrowsWithTheDigits();
    void tenthLineWidensTheGutterAtOnce();
    void gutterWidthIgnoresTheArgument();
    void gutterFillsTheLeftEdge();
    void gutterIsPaintedAsTheBlocksLie_data();
    void gutterIsPaintedAsTheBlocksLie();
    void gutterPaintsAPartOnly();
    void gutterDrawsTheNumbersOfHiddenBlocksToo();
    void gutterLooksTheSameOnTheCurrentLine();
    void gutterScrollsWithTheText();
    void gutterUpdatesTheStripOfTheText();
    void fullUpdateRenewsTheGutterWidth();

    void cursorMovementMovesTheMark();
    void markHasNoSelection();
    void readOnlyEditorHasNoMark();
    void gotoLineJumpsAndMarksInRed();
    void gotoLineMarksTheLineItStandsOnToo();
    void gotoLineThatDoesNotExistLeadsToTheFirstLine_data();
    void gotoLineThatDoesNotExistLeadsToTheFirstLine();

    void lineCommands_data();
    void lineCommands();
    void lineCommandsAgainstAModelOfLines();
    void editingCommandsTakeTheFocus_data();
    void editingCommandsTakeTheFocus();

    void moveKeepsTheColumnAndDropsTheSelection();
    void getLineTextOutsideTheProgramIsEmpty();
    void currentLineTextLeavesTheCursorAlone();
    void rowsAndColumnsCountFromOne();
    void currentLineNumberIsStored();

    void pressPlacesTheCursorAndGoesOnToTheParent();
    void pressOnTheCursorRenewsTheMark();
    void dragSelectsNothing();
    void pressDropsTheSelection();
    void doubleTouchSelectsNothing();

    void shiftReturnBreaksTheLineInsideItsBlock();
    void softBreakMakesTextLinesAndBlocksDiffer();
    void softBreakCommands_data();
    void softBreakCommands();

    void keysGoToTheBaseClass();
    void copyBufferIsNotTheClipboard();
    void pasteWithoutACopyDeletesTheSelection();
};

void TestWGCodeEditer::fontIsArialBoldOf15Points()
{
    WGCodeEditer editer(nullptr);
    const QFont font = WAQP::setFont(QLatin1String("Arial"), 15, true);
    QCOMPARE(editer.font().family(), font.family());
    QCOMPARE(editer.font().pointSize(), 15);
    QCOMPARE(int(editer.font().weight()), 75);
    QCOMPARE(editer.document()->defaultFont().pointSize(), 15);
}

void TestWGCodeEditer::selectionWithoutFocusIsCyan()
{
    const QPlainTextEdit plain;
    const WGCodeEditer editer(nullptr);
    const QPalette palette = editer.palette();
    QCOMPARE(palette.brush(QPalette::Inactive, QPalette::Highlight),
             QBrush(Qt::cyan, Qt::SolidPattern));
    QCOMPARE(palette.brush(QPalette::Active, QPalette::Highlight),
             plain.palette().brush(QPalette::Active, QPalette::Highlight));
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::Highlight),
             plain.palette().brush(QPalette::Disabled, QPalette::Highlight));
    QCOMPARE(palette.brush(QPalette::Inactive, QPalette::HighlightedText),
             plain.palette().brush(QPalette::Inactive, QPalette::HighlightedText));
}

void TestWGCodeEditer::nothingIsWrapped()
{
    WGCodeEditer editer(nullptr);
    QCOMPARE(editer.lineWrapMode(), QPlainTextEdit::NoWrap);
    QCOMPARE(editer.wordWrapMode(), QTextOption::NoWrap);

    editer.resize(100, 100);
    editer.setPlainText(QString(500, QLatin1Char('X')) + QLatin1String(" Y"));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    QCOMPARE(editer.document()->lineCount(), 1);
}

void TestWGCodeEditer::scrollBarsAreWideEnoughForAThumb_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("style of the toolkit's choice") << QApplication::style()->objectName();
    QTest::newRow("style of the host's choice") << "windows";
}

void TestWGCodeEditer::scrollBarsAreWideEnoughForAThumb()
{
    QFETCH(QString, style);
    const QString styleBefore = QApplication::style()->objectName();
    QApplication::setStyle(style);
    const int extent = TestCompat::sheetsSizeScrollBars(QApplication::style())
                           ? 32
                           : QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    {
        WGCodeEditer editer(nullptr);
        QCOMPARE(editer.styleSheet(),
                 QString::fromLatin1("QScrollBar:horizontal{height:32px;}:vertical{width:32px;}"));

        editer.resize(200, 150);
        editer.setPlainText(numberedLines(100) + QString(100, QLatin1Char('X')));
        editer.show();
        QVERIFY(TestCompat::waitForExposed(&editer));
        QVERIFY(editer.verticalScrollBar()->isVisible());
        QCOMPARE(editer.verticalScrollBar()->width(), extent);
        QVERIFY(editer.horizontalScrollBar()->isVisible());
        QCOMPARE(editer.horizontalScrollBar()->height(), extent);
    }
    QApplication::setStyle(styleBefore);
}

void TestWGCodeEditer::startsEmptyWithOneHighlighterAndNoFindDialog()
{
    WGCodeEditer editer(nullptr);
    QCOMPARE(editer.toPlainText(), QString(""));
    QVERIFY(!editer.document()->isModified());
    QCOMPARE(editer.document()->findChildren<WHighlighter *>(), QList<WHighlighter *>()
                                                                    << editer.highlighter);
    QCOMPARE(editer.highlighter->document(), editer.document());
    QCOMPARE(editer.lineNumberArea->parentWidget(), static_cast<QWidget *>(&editer));
    QVERIFY(!editer.findDialog);
    QVERIFY(!editer.isFound);
    QVERIFY(editer.copiedText.isEmpty());
    QCOMPARE(editer.currentLine, 0);
    QVERIFY(isCurrentLineMark(editer));
    QVERIFY(!editer.isReadOnly());
}

void TestWGCodeEditer::emptyDocumentHasAGutterOfOneDigit()
{
    WGCodeEditer editer(nullptr);
    QCOMPARE(editer.blockCount(), 1);
    const int digit = QFontMetrics(editer.font()).width(QLatin1Char('9'));
    QCOMPARE(editer.lineNumberAreaWidth(), digit + 3);
    QCOMPARE(editer.lineNumberArea->sizeHint(), QSize(digit + 3, 0));

    editer.resize(300, 200);
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    const QRect all = editer.lineNumberArea->rect();
    QCOMPARE(paintedGutter(editer, all), expectedGutter(editer, all));
}

void TestWGCodeEditer::gutterWidthGrowsWithTheDigits_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("digits");
    QTest::newRow("1 line") << 1 << 1;
    QTest::newRow("9 lines") << 9 << 1;
    QTest::newRow("10 lines") << 10 << 2;
    QTest::newRow("99 lines") << 99 << 2;
    QTest::newRow("100 lines") << 100 << 3;
    QTest::newRow("999 lines") << 999 << 3;
    QTest::newRow("1000 lines") << 1000 << 4;
    QTest::newRow("10000 lines") << 10000 << 5;
}

void TestWGCodeEditer::gutterWidthGrowsWithTheDigits()
{
    QFETCH(int, lines);
    QFETCH(int, digits);
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QString(lines - 1, QLatin1Char('\n')));
    const int width = QFontMetrics(editer.font()).width(QLatin1Char('9')) * digits + 3;
    QCOMPARE(editer.lineNumberAreaWidth(), width);
    QCOMPARE(leftMargin(editer), width);
    QCOMPARE(editer.lineNumberArea->sizeHint(), QSize(width, 0));
}

void TestWGCodeEditer::tenthLineWidensTheGutterAtOnce()
{
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    editer.setPlainText(numberedLines(9));
    const int narrow = editer.lineNumberAreaWidth();
    QCOMPARE(leftMargin(editer), narrow);
    QCOMPARE(editer.lineNumberArea->width(), narrow);

    editer.insertLine();
    const int wide = narrow + QFontMetrics(editer.font()).width(QLatin1Char('9'));
    QCOMPARE(editer.lineNumberAreaWidth(), wide);
    QCOMPARE(leftMargin(editer), wide);
    QCOMPARE(editer.lineNumberArea->width(), wide);

    editer.deleteLine();
    QCOMPARE(editer.blockCount(), 9);
    QCOMPARE(leftMargin(editer), narrow);
    QCOMPARE(editer.lineNumberArea->width(), narrow);
}

void TestWGCodeEditer::gutterWidthIgnoresTheArgument()
{
    WGCodeEditer editer(nullptr);
    editer.updateLineNumberAreaWidth(123456);
    QCOMPARE(leftMargin(editer), editer.lineNumberAreaWidth());
}

void TestWGCodeEditer::gutterFillsTheLeftEdge()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(12));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    Q_FOREACH (const QSize &size, QList<QSize>() << QSize(300, 200) << QSize(480, 272)) {
        editer.resize(size);
        const QRect area = editer.contentsRect();
        QCOMPARE(editer.lineNumberArea->geometry(),
                 QRect(area.left(), area.top(), editer.lineNumberAreaWidth(), area.height()));
        QCOMPARE(editer.viewport()->geometry().left(),
                 editer.lineNumberArea->geometry().right() + 1);
    }
}

void TestWGCodeEditer::gutterIsPaintedAsTheBlocksLie_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("firstLine");
    QTest::newRow("three lines") << numberedLines(3) << 0;
    QTest::newRow("more lines than fit") << numberedLines(120) << 0;
    QTest::newRow("scrolled") << numberedLines(120) << 57;
    QTest::newRow("scrolled to the end") << numberedLines(120) << 119;
    QTest::newRow("a soft line break makes a high block")
        << QString("a") + softBreak + "b\nc\n" + softBreak + "\nd" << 0;
}

void TestWGCodeEditer::gutterIsPaintedAsTheBlocksLie()
{
    QFETCH(QString, text);
    QFETCH(int, firstLine);
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.setPlainText(text);
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    editer.verticalScrollBar()->setValue(firstLine);
    const QRect all = editer.lineNumberArea->rect();
    const QImage expected = expectedGutter(editer, all);
    QCOMPARE(paintedGutter(editer, all), expected);
    QCOMPARE(TestCompat::grab(editer.lineNumberArea).toImage().convertToFormat(expected.format()),
             expected);
}

void TestWGCodeEditer::gutterPaintsAPartOnly()
{
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.setPlainText(numberedLines(120));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    for (int top = 0; top < editer.lineNumberArea->height() - 30; top += 7) {
        const QRect part(2, top, editer.lineNumberArea->width() - 4, 30);
        QCOMPARE(paintedGutter(editer, part), expectedGutter(editer, part));
    }
}

void TestWGCodeEditer::gutterDrawsTheNumbersOfHiddenBlocksToo()
{
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.setPlainText(numberedLines(8));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    const QRect all = editer.lineNumberArea->rect();
    const QImage before = paintedGutter(editer, all);
    QTextBlock hidden = editer.document()->findBlockByNumber(2);
    hidden.setVisible(false);
    editer.document()->markContentsDirty(hidden.position(), hidden.length());
    QCOMPARE(editer.blockBoundingGeometry(hidden).height(), qreal(0));
    QVERIFY(paintedGutter(editer, all) != before);
    QCOMPARE(paintedGutter(editer, all), expectedGutter(editer, all));
}

void TestWGCodeEditer::gutterLooksTheSameOnTheCurrentLine()
{
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.setPlainText(numberedLines(5));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    const QRect all = editer.lineNumberArea->rect();
    const QImage onTheFirst = paintedGutter(editer, all);
    setPosition(editer, editer.document()->findBlockByNumber(3).position());
    QCOMPARE(paintedGutter(editer, all), onTheFirst);
}

void TestWGCodeEditer::gutterScrollsWithTheText()
{
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.setPlainText(numberedLines(60));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    // The margin above the first line scrolls off with it.
    editer.verticalScrollBar()->setValue(1);
    // Scrolling a widget moves its children too.
    QWidget child(editer.lineNumberArea);
    child.move(1, 100);
    editer.updateLineNumberArea(editer.viewport()->rect(), -13);
    QCOMPARE(child.pos(), QPoint(1, 87));
    editer.updateLineNumberArea(editer.viewport()->rect(), 0);
    QCOMPARE(child.pos(), QPoint(1, 87));
    const int lineHeight = int(editer.blockBoundingGeometry(editer.firstVisibleBlock()).height());
    editer.verticalScrollBar()->setValue(3);
    QCOMPARE(child.pos(), QPoint(1, 87 - 2 * lineHeight));
}

void TestWGCodeEditer::gutterUpdatesTheStripOfTheText()
{
    // On a slow machine a cursor that blinks would paint its own line meanwhile.
    QApplication::setCursorFlashTime(0);
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.setPlainText(numberedLines(60));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    QApplication::processEvents();
    PaintLog log(editer.lineNumberArea);
    editer.updateLineNumberArea(QRect(50, 20, 10, 7), 0);
    QTRY_COMPARE(log.painted, QRegion(0, 20, editer.lineNumberArea->width(), 7));
}

void TestWGCodeEditer::fullUpdateRenewsTheGutterWidth()
{
    WGCodeEditer editer(nullptr);
    editer.resize(300, 200);
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    editer.setViewportMargins(0, 0, 0, 0);
    editer.updateLineNumberArea(editer.viewport()->rect().adjusted(0, 0, -1, 0), 0);
    QCOMPARE(leftMargin(editer), 0);
    editer.updateLineNumberArea(editer.viewport()->rect(), 0);
    QCOMPARE(leftMargin(editer), editer.lineNumberAreaWidth());
    editer.setViewportMargins(0, 0, 0, 0);
    editer.updateLineNumberArea(editer.viewport()->rect(), 1);
    QCOMPARE(leftMargin(editer), editer.lineNumberAreaWidth());
}

void TestWGCodeEditer::cursorMovementMovesTheMark()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(5));
    QVERIFY(isCurrentLineMark(editer));
    setPosition(editer, 17);
    QVERIFY(isCurrentLineMark(editer));
    QCOMPARE(editer.extraSelections().first().cursor.position(), 17);
}

void TestWGCodeEditer::markHasNoSelection()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(5));
    setPosition(editer, 20, 3);
    QVERIFY(editer.textCursor().hasSelection());
    QVERIFY(isCurrentLineMark(editer));
}

void TestWGCodeEditer::readOnlyEditorHasNoMark()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(5));
    editer.setReadOnly(true);
    editer.highlightCurrentLine();
    QVERIFY(editer.extraSelections().isEmpty());
    editer.setReadOnly(false);
    editer.highlightCurrentLine();
    QVERIFY(isCurrentLineMark(editer));
}

void TestWGCodeEditer::gotoLineJumpsAndMarksInRed()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(20));
    setPosition(editer, 9, 2);
    editer.gotoLine(12);
    QCOMPARE(editer.getCurRowNumber(), 12);
    QCOMPARE(editer.getCurColNumber(), 1);
    QVERIFY(!editer.textCursor().hasSelection());
    QVERIFY(isRedMark(editer));
    editer.moveEvent(GCODE::MoveDown);
    QVERIFY(isCurrentLineMark(editer));
    QVERIFY(!editer.document()->isModified());
}

void TestWGCodeEditer::gotoLineMarksTheLineItStandsOnToo()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(20));
    editer.gotoLine(1);
    QCOMPARE(editer.textCursor().position(), 0);
    QVERIFY(isRedMark(editer));
    editer.setReadOnly(true);
    editer.gotoLine(3);
    QVERIFY(isRedMark(editer));
}

void TestWGCodeEditer::gotoLineThatDoesNotExistLeadsToTheFirstLine_data()
{
    QTest::addColumn<int>("line");
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("one beyond the end") << 6;
    QTest::newRow("far beyond the end") << 1000000;
    // The sanitizers tell whether one less is reckoned with.
    QTest::newRow("the least number") << std::numeric_limits<int>::min();
    QTest::newRow("the greatest number") << std::numeric_limits<int>::max();
}

void TestWGCodeEditer::gotoLineThatDoesNotExistLeadsToTheFirstLine()
{
    QFETCH(int, line);
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(5));
    setPosition(editer, 25);
    editer.gotoLine(line);
    QCOMPARE(editer.textCursor().position(), 0);
    QVERIFY(isRedMark(editer));
}

namespace {

void commandColumns()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<Command>("command");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("newPosition");
}

QTestData &commandRow(const char *name, const char *before, int position, Command command,
                      const char *after, int newPosition, int anchor = -1)
{
    return QTest::newRow(name) << QString(before) << position << anchor << command << QString(after)
                               << newPosition;
}

/// Runs one row: the text, the cursor, and that undo leads back to the text before.
void runCommandRow()
{
    QFETCH(QString, before);
    QFETCH(int, position);
    QFETCH(int, anchor);
    QFETCH(Command, command);
    QFETCH(QString, after);
    QFETCH(int, newPosition);

    WGCodeEditer editer(nullptr);
    editer.setPlainText(before);
    setPosition(editer, position, anchor);
    command(editer);
    QCOMPARE(editer.document()->toPlainText(), after);
    QCOMPARE(editer.textCursor().position(), newPosition);
    QCOMPARE(editer.textCursor().anchor(), newPosition);
    QVERIFY(isCurrentLineMark(editer));
    QCOMPARE(editer.document()->isModified(), before != after);
    while (editer.document()->isUndoAvailable())
        editer.undo();
    QCOMPARE(editer.document()->toPlainText(), before);
}

} // namespace

void TestWGCodeEditer::lineCommands_data()
{
    commandColumns();
    commandRow("insert a text on an empty program", "", 0, insertG1, "G1", 2);
    commandRow("insert a text on an empty line fills it", "a\n\nb", 2, insertG1, "a\nG1\nb", 4);
    commandRow("insert a text on an empty last line fills it", "a\n", 2, insertG1, "a\nG1", 4);
    commandRow("insert a text on a line with text adds one", "abc\nd", 1, insertG1, "abc\nG1\nd",
               6);
    commandRow("insert a text on the last line", "abc", 0, insertG1, "abc\nG1", 6);
    commandRow("insert a text on a line of blanks adds one", " \nd", 0, insertG1, " \nG1\nd", 4);
    commandRow("insert a text drops the selection", "abc\nd", 3, insertG1, "abc\nG1\nd", 6, 1);
    commandRow("insert an empty text on a line with text", "abc\nd", 1, insertNothing, "abc\n\nd",
               4);
    commandRow("insert an empty text on an empty line", "a\n\nb", 2, insertNothing, "a\n\nb", 2);

    commandRow("insert below in mid-line", "abc\nd", 1, insertEmpty, "abc\n\nd", 4);
    commandRow("insert below the last line", "abc", 3, insertEmpty, "abc\n", 4);
    commandRow("insert below an empty line adds one", "a\n\nb", 2, insertEmpty, "a\n\n\nb", 3);
    commandRow("insert below on an empty program", "", 0, insertEmpty, "\n", 1);

    commandRow("insert above in mid-line", "abc\ndef", 6, insertAbove, "abc\n\ndef", 4);
    commandRow("insert above the first line", "abc", 2, insertAbove, "\nabc", 0);
    commandRow("insert above an empty line", "a\n\nb", 2, insertAbove, "a\n\n\nb", 2);
    commandRow("insert above on an empty program", "", 0, insertAbove, "\n", 0);

    commandRow("delete a line in the middle", "a\nbcd\ne", 3, deleteCurrent, "a\ne", 2);
    commandRow("delete the first line", "a\nbcd\ne", 0, deleteCurrent, "bcd\ne", 0);
    commandRow("delete the last line leaves it empty", "a\nbcd", 4, deleteCurrent, "a\n", 2);
    commandRow("delete an empty last line changes nothing", "a\n", 2, deleteCurrent, "a\n", 2);
    commandRow("delete the only line", "abc", 1, deleteCurrent, "", 0);
    commandRow("delete an empty line", "a\n\nb", 2, deleteCurrent, "a\nb", 2);
    commandRow("delete takes the cursor's line of a selection", "ab\ncd\nef", 4, deleteCurrent,
               "ab\nef", 3, 0);

    commandRow("replace a line in the middle", "a\nbcd\ne", 3, replaceByG1, "a\nG1\ne", 4);
    commandRow("replace the line before the last", "bcd\ne", 1, replaceByG1, "G1\ne", 2);
    commandRow("replace the last line adds an empty one", "a\nbcd", 4, replaceByG1, "a\nG1\n", 5);
    commandRow("replace an empty last line adds one", "a\n", 2, replaceByG1, "a\nG1\n", 5);
    commandRow("replace on an empty program", "", 0, replaceByG1, "G1\n", 3);
    commandRow("replace by nothing", "a\nbcd\ne", 3, replaceByNothing, "a\n\ne", 2);
    commandRow("replace the last line by nothing", "abc", 1, replaceByNothing, "\n", 1);

    commandRow("up from the first line stays", "abc\nd", 2, moveUp, "abc\nd", 2);
    commandRow("up", "abc\nabc", 6, moveUp, "abc\nabc", 2);
    commandRow("down from the last line stays", "abc\nabc", 5, moveDown, "abc\nabc", 5);
    commandRow("down", "abc\nabc", 1, moveDown, "abc\nabc", 5);
    commandRow("down to a shorter line", "abc\na\n", 3, moveDown, "abc\na\n", 5);
    commandRow("another value moves nothing", "abc\nabc", 5, moveNowhere, "abc\nabc", 5);
}

void TestWGCodeEditer::lineCommands()
{
    runCommandRow();
}

// Random commands on a program kept twice: in the editor, and as a list of lines with a row.
void TestWGCodeEditer::lineCommandsAgainstAModelOfLines()
{
    WGCodeEditer editer(nullptr);
    QStringList lines(QString(""));
    int row = 0;
    std::mt19937 random(20260101);
    for (int step = scaled(6000); step > 0; --step) {
        const QString text = QString(int(random() % 3), QLatin1Char(char('A' + random() % 26)));
        switch (random() % 8) {
        case 0: // An empty line is filled, else one is added.
            if (!lines.at(row).isEmpty())
                lines.insert(++row, QString());
            lines[row] = text;
            editer.insertLine(text);
            break;
        case 1:
            lines.insert(++row, QString());
            editer.insertLine();
            break;
        case 2:
            lines.insert(row, QString());
            editer.insertBefore();
            break;
        case 3:
        case 4:
            if (row < lines.size() - 1)
                lines.removeAt(row);
            else
                lines[row].clear();
            editer.deleteLine();
            break;
        case 5:
            lines[row] = text;
            if (row == lines.size() - 1)
                lines.insert(++row, QString());
            editer.updateGCode(text);
            break;
        case 6:
            row = qMax(0, row - 1);
            editer.moveEvent(GCODE::MoveUp);
            break;
        default:
            row = qMin(lines.size() - 1, row + 1);
            editer.moveEvent(GCODE::MoveDown);
            break;
        }
        QCOMPARE(editer.document()->toPlainText(), lines.join(QLatin1String("\n")));
        QCOMPARE(editer.getCurRowNumber(), row + 1);
        QCOMPARE(editer.currentLineNumber(), row);
        QCOMPARE(editer.curLineText(), lines.at(row));
        QCOMPARE(editer.getLineText(row), lines.at(row));
        QVERIFY(isCurrentLineMark(editer));
    }
}

void TestWGCodeEditer::editingCommandsTakeTheFocus_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<bool>("takesFocus");
    QTest::newRow("insert a text") << Command(insertG1) << true;
    QTest::newRow("insert below") << Command(insertEmpty) << true;
    QTest::newRow("insert above") << Command(insertAbove) << true;
    QTest::newRow("delete") << Command(deleteCurrent) << true;
    QTest::newRow("go to a line") << Command(gotoSecond) << true;
    QTest::newRow("up") << Command(moveUp) << false;
    QTest::newRow("down") << Command(moveDown) << false;
    QTest::newRow("the line's text") << Command(askCurrentText) << false;
    QTest::newRow("replace") << Command(replaceByG1) << false;
    QTest::newRow("paste") << Command(pasteBuffer) << false;
    QTest::newRow("queries") << Command(askAll) << false;
}

void TestWGCodeEditer::editingCommandsTakeTheFocus()
{
    QFETCH(Command, command);
    QFETCH(bool, takesFocus);
    Screen screen;
    screen.editer->setPlainText(numberedLines(5));
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    screen.other->setFocus();
    command(*screen.editer);
    QCOMPARE(screen.focusWidget(), takesFocus ? static_cast<QWidget *>(screen.editer)
                                              : static_cast<QWidget *>(screen.other));
}

void TestWGCodeEditer::moveKeepsTheColumnAndDropsTheSelection()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QLatin1String("XXXX\nX\nXXXX\nXXXX"));
    setPosition(editer, 3, 1);
    editer.moveEvent(GCODE::MoveDown);
    QVERIFY(!editer.textCursor().hasSelection());
    QCOMPARE(editer.getCurRowNumber(), 2);
    QCOMPARE(editer.getCurColNumber(), 2);
    // A short line in between does not cost the column.
    editer.moveEvent(GCODE::MoveDown);
    QCOMPARE(editer.getCurRowNumber(), 3);
    QCOMPARE(editer.getCurColNumber(), 4);
}

void TestWGCodeEditer::getLineTextOutsideTheProgramIsEmpty()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QLatin1String("a\nb"));
    QSignalSpy changes(&editer, SIGNAL(textChanged()));
    const QString negative = editer.getLineText(-1);
    QVERIFY(negative.isEmpty());
    QVERIFY(!negative.isNull());
    QCOMPARE(editer.getLineText(0), QString("a"));
    QCOMPARE(editer.getLineText(1), QString("b"));
    QVERIFY(editer.getLineText(2).isEmpty());
    QVERIFY(editer.getLineText(-2147483647).isEmpty());
    QCOMPARE(editer.document()->toPlainText(), QString("a\nb"));
    QCOMPARE(changes.count(), 0);
}

void TestWGCodeEditer::currentLineTextLeavesTheCursorAlone()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QLatin1String("abc\ndef\n"));
    setPosition(editer, 6, 2);
    QSignalSpy moves(&editer, SIGNAL(cursorPositionChanged()));
    QCOMPARE(editer.curLineText(), QString("def"));
    QCOMPARE(editer.textCursor().position(), 6);
    QCOMPARE(editer.textCursor().anchor(), 2);
    QCOMPARE(moves.count(), 0);
    setPosition(editer, 8);
    QCOMPARE(editer.curLineText(), QString(""));
}

void TestWGCodeEditer::rowsAndColumnsCountFromOne()
{
    WGCodeEditer editer(nullptr);
    QCOMPARE(editer.getCurRowNumber(), 1);
    QCOMPARE(editer.getCurColNumber(), 1);
    editer.setPlainText(QLatin1String("abc\ndef\n"));
    setPosition(editer, 5);
    QCOMPARE(editer.getCurRowNumber(), 2);
    QCOMPARE(editer.getCurColNumber(), 2);
    setPosition(editer, 8);
    QCOMPARE(editer.getCurRowNumber(), 3);
    QCOMPARE(editer.getCurColNumber(), 1);
}

void TestWGCodeEditer::currentLineNumberIsStored()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QLatin1String("a\nb\nc"));
    setPosition(editer, 4);
    QCOMPARE(editer.currentLine, 0);
    QCOMPARE(editer.currentLineNumber(), 2);
    QCOMPARE(editer.currentLine, 2);
    setPosition(editer, 0);
    QCOMPARE(editer.currentLine, 2);
}

void TestWGCodeEditer::pressPlacesTheCursorAndGoesOnToTheParent()
{
    Screen screen;
    screen.editer->setPlainText(QLatin1String("XXXXXX\nXXXXXX\nXXXXXX"));
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    const QPoint place = placeOf(*screen.editer, 12);
    QTest::mousePress(screen.editer->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(screen.editer->textCursor().position(), 12);
    QVERIFY(!screen.editer->textCursor().hasSelection());
    QVERIFY(isCurrentLineMark(*screen.editer));
    QCOMPARE(screen.unhandled, QList<QEvent::Type>() << QEvent::MouseButtonPress);
    QTest::mouseRelease(screen.editer->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(screen.editer->textCursor().position(), 12);
    QVERIFY(!screen.editer->document()->isModified());
}

void TestWGCodeEditer::pressOnTheCursorRenewsTheMark()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(numberedLines(3));
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    editer.gotoLine(2);
    QTest::mousePress(editer.viewport(), Qt::LeftButton, Qt::NoModifier,
                      editer.cursorRect().center());
    QCOMPARE(editer.getCurRowNumber(), 2);
    QVERIFY(isCurrentLineMark(editer));
}

void TestWGCodeEditer::dragSelectsNothing()
{
    Screen screen;
    QPlainTextEdit plain;
    Q_FOREACH (QPlainTextEdit *editor, QList<QPlainTextEdit *>() << screen.editer << &plain) {
        editor->setPlainText(QLatin1String("XXXXXX\nXXXXXX\nXXXXXX"));
        editor->window()->show();
        QVERIFY(TestCompat::waitForExposed(editor->window()));
        drag(*editor, 2, 19);
        // The ordinary editor selects under the same hand, so the hand is steady.
        QCOMPARE(editor->textCursor().hasSelection(), editor == &plain);
    }
    QCOMPARE(screen.editer->textCursor().position(), 2);

    // Nor does a double touch leave a word behind from which a drag goes on.
    QTest::mouseDClick(screen.editer->viewport(), Qt::LeftButton);
    drag(*screen.editer, 2, 19);
    QVERIFY(!screen.editer->textCursor().hasSelection());
}

void TestWGCodeEditer::pressDropsTheSelection()
{
    Screen screen;
    screen.editer->setPlainText(QLatin1String("XXXXXX\nXXXXXX\nXXXXXX"));
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    const QPoint place = placeOf(*screen.editer, 9);
    setPosition(*screen.editer, 14, 3);
    QTest::mouseClick(screen.editer->viewport(), Qt::LeftButton, Qt::ShiftModifier, place);
    QCOMPARE(screen.editer->textCursor().position(), 9);
    QVERIFY(!screen.editer->textCursor().hasSelection());
}

void TestWGCodeEditer::doubleTouchSelectsNothing()
{
    Screen screen;
    screen.editer->setPlainText(QLatin1String("XXXXXX\nXXXXXX\nXXXXXX"));
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    const QPoint place = placeOf(*screen.editer, 9);
    QTest::mouseClick(screen.editer->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(screen.editer->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(!screen.editer->textCursor().hasSelection());
    QVERIFY(screen.unhandled.contains(QEvent::MouseButtonDblClick));
    QCOMPARE(screen.editer->textCursor().position(), 9);
}

void TestWGCodeEditer::shiftReturnBreaksTheLineInsideItsBlock()
{
    WGCodeEditer editer(nullptr);
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    QTest::keyClicks(&editer, QLatin1String("G1"));
    QTest::keyClick(&editer, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&editer, QLatin1String("X2"));
    QTest::keyClick(&editer, Qt::Key_Return);
    QTest::keyClicks(&editer, QLatin1String("M2"));
    QCOMPARE(editer.blockCount(), 2);
    QCOMPARE(editer.document()->lineCount(), 3);
    QCOMPARE(editer.document()->firstBlock().text(), QString("G1") + softBreak + "X2");
    QCOMPARE(editer.getCurRowNumber(), 2);
    QCOMPARE(editer.currentLineNumber(), 1);
    QCOMPARE(editer.getCurColNumber(), 3);
}

void TestWGCodeEditer::softBreakMakesTextLinesAndBlocksDiffer()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QString("ab") + softBreak + "cd\nef");
    editer.show();
    QVERIFY(TestCompat::waitForExposed(&editer));
    QCOMPARE(editer.blockCount(), 2);
    QCOMPARE(editer.document()->lineCount(), 3);
    const QString block = QString("ab") + softBreak + "cd";
    QCOMPARE(editer.getLineText(0), block);
    QCOMPARE(editer.getLineText(1), block);
    QCOMPARE(editer.getLineText(2), QString("ef"));
    QVERIFY(editer.getLineText(3).isEmpty());

    setPosition(editer, 4);
    QCOMPARE(editer.curLineText(), QString("cd"));
    QCOMPARE(editer.getCurRowNumber(), 1);
    QCOMPARE(editer.getCurColNumber(), 5);
    editer.moveEvent(GCODE::MoveDown);
    QCOMPARE(editer.curLineText(), QString("ef"));
    QCOMPARE(editer.currentLineNumber(), 1);
    editer.moveEvent(GCODE::MoveUp);
    editer.moveEvent(GCODE::MoveUp);
    QCOMPARE(editer.curLineText(), QString("ab"));
    editer.gotoLine(2);
    QCOMPARE(editer.textCursor().position(), 6);
}

// The commands work on the line as it is shown; the documents' text writes a soft break as "\n".
void TestWGCodeEditer::softBreakCommands_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<Command>("command");
    QTest::addColumn<QStringList>("blocks");
    QTest::addColumn<int>("newPosition");
    const QString both = QString("ab") + softBreak + "cd";
    const QString end = QLatin1String("ef");

    QTest::newRow("insert a text below the upper part")
        << 1 << Command(insertG1)
        << (QStringList() << "ab" << QString("G1") + softBreak + "cd" << end) << 5;
    QTest::newRow("insert a text below the lower part")
        << 4 << Command(insertG1) << (QStringList() << both << "G1" << end) << 8;
    QTest::newRow("insert below the upper part")
        << 1 << Command(insertEmpty) << (QStringList() << "ab" << QString(softBreak) + "cd" << end)
        << 3;
    QTest::newRow("insert above the upper part")
        << 1 << Command(insertAbove) << (QStringList() << "" << both << end) << 0;
    QTest::newRow("delete the upper part")
        << 1 << Command(deleteCurrent) << (QStringList() << "cd" << end) << 0;
    QTest::newRow("delete the lower part")
        << 4 << Command(deleteCurrent) << (QStringList() << QString("ab") + softBreak + "ef") << 3;
    QTest::newRow("replace the upper part")
        << 1 << Command(replaceByG1) << (QStringList() << QString("G1") + softBreak + "cd" << end)
        << 2;
    QTest::newRow("replace the lower part")
        << 4 << Command(replaceByG1) << (QStringList() << QString("ab") + softBreak + "G1" << end)
        << 5;
}

void TestWGCodeEditer::softBreakCommands()
{
    QFETCH(int, position);
    QFETCH(Command, command);
    QFETCH(QStringList, blocks);
    QFETCH(int, newPosition);
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QString("ab") + softBreak + "cd\nef");
    setPosition(editer, position);
    command(editer);
    QStringList texts;
    for (QTextBlock block = editer.document()->begin(); block.isValid(); block = block.next())
        texts << block.text();
    QCOMPARE(texts, blocks);
    QCOMPARE(editer.textCursor().position(), newPosition);
    QVERIFY(!editer.textCursor().hasSelection());
}

void TestWGCodeEditer::keysGoToTheBaseClass()
{
    WGCodeEditer editer(nullptr);
    QPlainTextEdit plain;
    plain.setLineWrapMode(QPlainTextEdit::NoWrap);
    Q_FOREACH (QPlainTextEdit *editor, QList<QPlainTextEdit *>() << &editer << &plain) {
        QTest::keyClicks(editor, QLatin1String("G01 x1;c"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::keyClick(editor, Qt::Key_Tab);
        QTest::keyClicks(editor, QLatin1String("M3"));
        QTest::keyClick(editor, Qt::Key_Backspace);
        QTest::keyClick(editor, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(editer.toPlainText(), QString("G01 x1;c\n\tM"));
    QCOMPARE(editer.toPlainText(), plain.toPlainText());
    QCOMPARE(editer.textCursor().position(), plain.textCursor().position());
    QCOMPARE(editer.textCursor().anchor(), plain.textCursor().anchor());
}

void TestWGCodeEditer::copyBufferIsNotTheClipboard()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QLatin1String("abc"));
    QApplication::clipboard()->setText(QLatin1String("from elsewhere"));
    editer.paste();
    QCOMPARE(editer.toPlainText(), QString("abc"));
    editer.copiedText = QLatin1String("G1");
    editer.paste();
    QCOMPARE(editer.toPlainText(), QString("G1abc"));
    QCOMPARE(QApplication::clipboard()->text(), QString("from elsewhere"));
    // The keys of the base class still use the clipboard, and not the buffer.
    editer.selectAll();
    QTest::keyClick(&editer, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("G1abc"));
    QCOMPARE(editer.copiedText, QString("G1"));
}

void TestWGCodeEditer::pasteWithoutACopyDeletesTheSelection()
{
    WGCodeEditer editer(nullptr);
    editer.setPlainText(QLatin1String("abcdef"));
    editer.paste();
    QCOMPARE(editer.toPlainText(), QString("abcdef"));
    QVERIFY(!editer.document()->isModified());
    setPosition(editer, 4, 1);
    editer.paste();
    QCOMPARE(editer.toPlainText(), QString("aef"));
}

FILARIX_TEST_MAIN(TestWGCodeEditer)
#include "tst_wgcodeediter.moc"
