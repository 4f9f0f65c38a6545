// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds ErrorMarks. The library's own marks have taken the shorter name.

#include "contrast.h"
#include "filarixtest.h"
#include "guards/errormarks.h"
#include "programwindow.h"
#include "wgcodeediter.h"

#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextLayout>

/// Lines that stay marked in an editor of the library.
class TestHostErrorMarks : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreMarkedAndClearedByTheirNumber();
    void aSecondMarkReplacesTheFirst();
    void rowsThatDoNotExistAreNotMarked();
    void neighboursAreFound();
    void marksFollowTheirText_data();
    void marksFollowTheirText();
    void marksFollowThroughManyEdits();
    void marksOfTheLastLineFollowIt_data();
    void marksOfTheLastLineFollowIt();
    void aLineBroughtBackByUndoHasNoMark();
    void marksMayBeSetWhileTheTextChanges();
    void joinedLinesShowTheWorstMark();
    void anotherProgramStartsWithoutMarks_data();
    void anotherProgramStartsWithoutMarks();
    void anotherDocumentStartsWithoutMarks();
    void marksAreDrawnBehindTheCurrentLine();
    void marksAreOnTheScreenWhateverTheEditorShows();
    void theCurrentLineStaysToBeSeenBesideItsMark();
    void hostsOwnSelectionsStay();
    void clearedMarksLeaveTheScreen();
    void nothingOfThemIsInTheDocument();
    void textsStandOutFromTheirGround_data();
    void textsStandOutFromTheirGround();
    void severitiesAreToldApartWithoutColour();
    void colorsMayBeTheHosts();
    void editorMayGoFirst();
    void marksMayGoFirst();
    void movedTellsOfOtherRows();
    void aMillionLinesAreEditedAsFastAsBefore();
};

namespace {

typedef QList<QTextEdit::ExtraSelection> Selections;

/// Pixels from the right that the editor leaves free, and some more.
const int insideMargin = 12;

const char sixLines[] = "G01 X1\nG01 X2\nG01 X3\nG01 X4\nG01 X5\nM2";

QList<int> none()
{
    return QList<int>();
}

QList<int> one(int row)
{
    return QList<int>() << row;
}

/// An editor of the library with a program, and its marks.
struct Desk
{
    explicit Desk(const QString &text = QLatin1String(sixLines)) : editor(nullptr), marks(&editor)
    {
        editor.setPlainText(text);
    }

    void show()
    {
        editor.setGeometry(0, 0, 400, 300);
        editor.show();
        QVERIFY(TestCompat::waitForExposed(&editor));
    }

    /// Paints the editor, as the screen would.
    void paint() { TestCompat::grab(&editor); }

    void goTo(int row)
    {
        editor.setTextCursor(QTextCursor(editor.document()->findBlockByNumber(row - 1)));
    }

    /// Rows that are drawn as marked, from the extra selections.
    QList<int> drawn()
    {
        paint();
        QList<int> rows;
        Q_FOREACH (const QTextEdit::ExtraSelection &selection, editor.extraSelections()) {
            if (selection.format.hasProperty(QTextFormat::TextUnderlineStyle))
                rows.append(rowAt(selection.cursor.selectionStart()));
        }
        return rows;
    }

    int rowAt(int position) const
    {
        return editor.document()->findBlock(position).blockNumber() + 1;
    }

    QString line(int row) const { return editor.document()->findBlockByNumber(row - 1).text(); }

    WGCodeEditer editor;
    ErrorMarks marks;
};

/// What is done to an editor whose row 3 is marked.
typedef void (*Edit)(Desk &desk);

void lineAbove(Desk &desk)
{
    desk.goTo(3);
    desk.editor.insertBefore();
}

void lineBelow(Desk &desk)
{
    desk.goTo(3);
    desk.editor.insertLine();
}

void textBelow(Desk &desk)
{
    desk.goTo(3);
    desk.editor.insertLine("G00");
}

void lineAtTheTop(Desk &desk)
{
    desk.goTo(1);
    desk.editor.insertBefore();
}

void changeLine(Desk &desk)
{
    desk.goTo(3);
    desk.editor.updateGCode("G02 X9");
}

void emptyLine(Desk &desk)
{
    desk.goTo(3);
    desk.editor.updateGCode("");
}

void emptyAndChangeLine(Desk &desk)
{
    emptyLine(desk);
    desk.editor.updateGCode("G02 X9");
}

void deleteAbove(Desk &desk)
{
    desk.goTo(2);
    desk.editor.deleteLine();
}

void deleteBelow(Desk &desk)
{
    desk.goTo(4);
    desk.editor.deleteLine();
}

void deleteMarked(Desk &desk)
{
    desk.goTo(3);
    desk.editor.deleteLine();
}

void deleteEmptied(Desk &desk)
{
    emptyLine(desk);
    desk.editor.deleteLine();
}

void typeBefore(Desk &desk)
{
    desk.goTo(3);
    desk.editor.insertPlainText("N10 ");
}

void splitLine(Desk &desk)
{
    desk.goTo(3);
    QTextCursor cursor = desk.editor.textCursor();
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 3);
    cursor.insertBlock();
}

void joinWithAbove(Desk &desk)
{
    desk.goTo(3);
    desk.editor.textCursor().deletePreviousChar();
}

void joinWithBelow(Desk &desk)
{
    desk.goTo(3);
    QTextCursor cursor = desk.editor.textCursor();
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.deleteChar();
}

void pasteLinesBefore(Desk &desk)
{
    desk.goTo(3);
    desk.editor.insertPlainText("G00\nG00\n");
}

void splitBehindTheFirstCharacter(Desk &desk)
{
    desk.goTo(3);
    QTextCursor cursor = desk.editor.textCursor();
    cursor.movePosition(QTextCursor::Right);
    cursor.insertBlock();
}

void removeTheFirstCharacter(Desk &desk)
{
    desk.goTo(3);
    desk.editor.textCursor().deleteChar();
    desk.editor.insertLine("G00");
    desk.goTo(3);
    desk.editor.insertBefore();
}

void removeTwoLinesAround(Desk &desk)
{
    QTextCursor cursor(desk.editor.document()->findBlockByNumber(1));
    cursor.movePosition(QTextCursor::Down, QTextCursor::KeepAnchor, 3);
    cursor.removeSelectedText();
}

/// Edits far apart that the toolkit tells of as one change of all between them.
void editAtBothEnds(Desk &desk)
{
    QTextCursor cursor(desk.editor.document());
    cursor.beginEditBlock();
    cursor.insertText("G00\n");
    cursor.movePosition(QTextCursor::End);
    cursor.insertText("\nM30\n\n");
    cursor.endEditBlock();
}

void undoLineAbove(Desk &desk)
{
    lineAbove(desk);
    desk.editor.undo();
}

void undoSplit(Desk &desk)
{
    splitLine(desk);
    desk.editor.undo();
}

void undoChange(Desk &desk)
{
    changeLine(desk);
    while (desk.editor.document()->isUndoAvailable())
        desk.editor.undo();
}

void moveCursor(Desk &desk)
{
    for (int i = 0; i < 9; ++i)
        desk.editor.moveEvent(GCODE::MoveDown);
    desk.editor.gotoLine(3);
    desk.editor.gotoLine(1);
}

void pasteOwnBuffer(Desk &desk)
{
    desk.goTo(1);
    desk.editor.paste();
}

} // namespace

Q_DECLARE_METATYPE(Edit)

void TestHostErrorMarks::rowsAreMarkedAndClearedByTheirNumber()
{
    Desk desk;
    QVERIFY(desk.marks.mark(5, ErrorMarks::Note, "n"));
    QVERIFY(desk.marks.mark(2, ErrorMarks::Error, "e"));
    QVERIFY(desk.marks.mark(6, ErrorMarks::Warning, "w"));
    QCOMPARE(desk.marks.rows(), QList<int>() << 2 << 5 << 6);
    QCOMPARE(int(desk.marks.severity(2)), int(ErrorMarks::Error));
    QCOMPARE(int(desk.marks.severity(6)), int(ErrorMarks::Warning));
    QCOMPARE(desk.marks.text(2), QString("e"));
    QCOMPARE(desk.marks.text(3), QString());
    QVERIFY(desk.marks.isMarked(5));
    QVERIFY(!desk.marks.isMarked(4));
    desk.marks.unmark(5);
    desk.marks.unmark(4);
    QCOMPARE(desk.marks.rows(), QList<int>() << 2 << 6);
    desk.marks.clear();
    QCOMPARE(desk.marks.rows(), none());
}

void TestHostErrorMarks::aSecondMarkReplacesTheFirst()
{
    Desk desk;
    desk.marks.mark(2, ErrorMarks::Error, "first");
    desk.marks.mark(2, ErrorMarks::Note, "second");
    QCOMPARE(desk.marks.rows(), one(2));
    QCOMPARE(desk.marks.text(2), QString("second"));
    QCOMPARE(int(desk.marks.severity(2)), int(ErrorMarks::Note));
}

void TestHostErrorMarks::rowsThatDoNotExistAreNotMarked()
{
    Desk desk;
    Q_FOREACH (int row, QList<int>() << 0 << -1 << -2147483647 << 7 << 2147483647) {
        QVERIFY(!desk.marks.mark(row, ErrorMarks::Error));
        desk.marks.unmark(row);
        QVERIFY(!desk.marks.isMarked(row));
    }
    QCOMPARE(desk.marks.rows(), none());
}

void TestHostErrorMarks::neighboursAreFound()
{
    Desk desk;
    desk.marks.mark(2, ErrorMarks::Error);
    desk.marks.mark(5, ErrorMarks::Note);
    QCOMPARE(desk.marks.nextRow(0), 2);
    QCOMPARE(desk.marks.nextRow(2), 5);
    QCOMPARE(desk.marks.nextRow(5), 0);
    QCOMPARE(desk.marks.nextRow(99), 0);
    QCOMPARE(desk.marks.previousRow(99), 5);
    QCOMPARE(desk.marks.previousRow(5), 2);
    QCOMPARE(desk.marks.previousRow(2), 0);
    QCOMPARE(desk.marks.previousRow(0), 0);
    // A line that went is passed over.
    desk.marks.mark(3, ErrorMarks::Note);
    desk.goTo(3);
    desk.editor.deleteLine();
    QCOMPARE(desk.marks.nextRow(2), 4);
    QCOMPARE(desk.marks.previousRow(4), 2);
}

void TestHostErrorMarks::marksFollowTheirText_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("row");
    QTest::newRow("a line above") << Edit(lineAbove) << 4;
    QTest::newRow("a line below") << Edit(lineBelow) << 3;
    QTest::newRow("text below") << Edit(textBelow) << 3;
    QTest::newRow("a line at the top") << Edit(lineAtTheTop) << 4;
    QTest::newRow("the line changed") << Edit(changeLine) << 3;
    QTest::newRow("the line emptied") << Edit(emptyLine) << 3;
    QTest::newRow("the line emptied and changed") << Edit(emptyAndChangeLine) << 3;
    QTest::newRow("the line above deleted") << Edit(deleteAbove) << 2;
    QTest::newRow("the line below deleted") << Edit(deleteBelow) << 3;
    QTest::newRow("the line deleted") << Edit(deleteMarked) << 0;
    QTest::newRow("the line emptied and deleted") << Edit(deleteEmptied) << 0;
    QTest::newRow("text typed before it") << Edit(typeBefore) << 3;
    QTest::newRow("the line split") << Edit(splitLine) << 3;
    QTest::newRow("split behind its first character") << Edit(splitBehindTheFirstCharacter) << 3;
    QTest::newRow("its first character removed") << Edit(removeTheFirstCharacter) << 4;
    QTest::newRow("joined with the one above") << Edit(joinWithAbove) << 2;
    QTest::newRow("joined with the one below") << Edit(joinWithBelow) << 3;
    QTest::newRow("lines pasted before it") << Edit(pasteLinesBefore) << 5;
    QTest::newRow("removed with its neighbours") << Edit(removeTwoLinesAround) << 0;
    QTest::newRow("edits far apart at once") << Edit(editAtBothEnds) << 4;
    QTest::newRow("a line above, undone") << Edit(undoLineAbove) << 3;
    QTest::newRow("the line split, undone") << Edit(undoSplit) << 3;
    QTest::newRow("the line changed, undone") << Edit(undoChange) << 3;
    QTest::newRow("the cursor moved") << Edit(moveCursor) << 3;
    QTest::newRow("nothing pasted") << Edit(pasteOwnBuffer) << 3;
}

void TestHostErrorMarks::marksFollowTheirText()
{
    QFETCH(Edit, edit);
    QFETCH(int, row);
    Desk desk;
    desk.show();
    desk.marks.mark(3, ErrorMarks::Error, "m");
    edit(desk);
    QCOMPARE(desk.marks.rows(), row ? one(row) : none());
    QCOMPARE(desk.marks.text(row), row ? QString("m") : QString());
    QCOMPARE(desk.drawn(), row ? one(row) : none());
}

/// Numbers without a pattern, the same in each run.
class Dice
{
public:
    explicit Dice(quint32 seed) : m_state(seed) {}
    int below(int limit)
    {
        m_state = m_state * 1664525u + 1013904223u;
        return int((m_state >> 8) % quint32(limit));
    }

private:
    quint32 m_state;
};

/// Makes one edit at the cursor and takes it back, step by step.
static void editAndUndo(Desk &desk, bool isDeletion)
{
    const QString before = desk.editor.toPlainText();
    if (isDeletion)
        desk.editor.deleteLine();
    else
        desk.editor.insertBefore();
    while (desk.editor.toPlainText() != before)
        desk.editor.undo();
}

/// Each line of the program is told from all others by its text, and so is a marked one.
void TestHostErrorMarks::marksFollowThroughManyEdits()
{
    QStringList lines;
    for (int i = 0; i < 40; ++i)
        lines.append(QString("L%1").arg(i));
    int made = lines.size();
    Desk desk(lines.join("\n"));
    QSet<QString> marked;
    Dice dice(20261122);
    for (int step = 0; step < scaled(1000, 300); ++step) {
        const int row = 1 + dice.below(desk.editor.blockCount() - 1);
        desk.goTo(row);
        const QString here = desk.line(row);
        const QString fresh = QString("L%1").arg(made++);
        switch (dice.below(7)) {
        case 0:
            desk.editor.insertBefore();
            desk.editor.updateGCode(fresh);
            break;
        case 1:
            desk.editor.insertLine(fresh);
            break;
        case 2:
            desk.editor.deleteLine();
            marked.remove(here);
            break;
        case 3:
            desk.editor.insertPlainText(fresh + '\n' + fresh + "b\n");
            break;
        case 4:
            editAndUndo(desk, !marked.contains(here));
            break;
        default:
            QVERIFY(desk.marks.mark(row, ErrorMarks::Error));
            marked.insert(here);
        }
        QList<int> rows;
        for (QTextBlock block = desk.editor.document()->begin(); block.isValid();
             block = block.next()) {
            if (marked.contains(block.text()))
                rows.append(block.blockNumber() + 1);
        }
        QCOMPARE(desk.marks.rows(), rows);
    }
    QVERIFY(marked.size() > 20);
}

void TestHostErrorMarks::marksOfTheLastLineFollowIt_data()
{
    QTest::addColumn<QString>("last");
    QTest::newRow("a text") << QString("M2");
    QTest::newRow("a character") << QString("%");
    QTest::newRow("nothing") << QString();
}

void TestHostErrorMarks::marksOfTheLastLineFollowIt()
{
    QFETCH(QString, last);
    Desk desk("G00\nG01\n" + last);
    desk.marks.mark(3, ErrorMarks::Error);
    desk.goTo(3);
    desk.editor.updateGCode("M30"); // a new empty line follows it
    QCOMPARE(desk.line(3), QString("M30"));
    QCOMPARE(desk.marks.rows(), one(3));
    desk.goTo(1);
    desk.editor.deleteLine();
    QCOMPARE(desk.marks.rows(), one(2));
    desk.goTo(3);
    desk.editor.deleteLine();
    QCOMPARE(desk.marks.rows(), one(2));
    QTextCursor cursor(desk.editor.document());
    cursor.movePosition(QTextCursor::Down);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QCOMPARE(desk.marks.rows(), one(2));
    cursor.deletePreviousChar();
    QCOMPARE(desk.marks.rows(), none());
}

void TestHostErrorMarks::aLineBroughtBackByUndoHasNoMark()
{
    Desk desk;
    desk.marks.mark(3, ErrorMarks::Warning, "m");
    desk.marks.mark(4, ErrorMarks::Error, "below");
    deleteMarked(desk);
    QCOMPARE(desk.marks.rows(), one(3));
    while (desk.editor.document()->isUndoAvailable())
        desk.editor.undo();
    QCOMPARE(desk.line(3), QString("G01 X3"));
    QCOMPARE(desk.marks.rows(), one(4));
    QCOMPARE(desk.marks.text(4), QString("below"));
}

/// A host that follows each change of the text, also those that the toolkit tells of in the middle
/// of emptying the document.
class Follower : public QObject
{
    Q_OBJECT

public:
    explicit Follower(Desk *desk) : m_desk(desk)
    {
        connect(desk->editor.document(), SIGNAL(contentsChanged()), SLOT(check()));
    }

    int checks = 0;

private Q_SLOTS:
    void check()
    {
        m_desk->marks.clear();
        for (int row = 1; row <= m_desk->editor.blockCount(); ++row)
            m_desk->marks.mark(row, ErrorMarks::Error);
        ++checks;
    }

private:
    Desk *m_desk;
};

void TestHostErrorMarks::marksMayBeSetWhileTheTextChanges()
{
    Desk desk;
    desk.show();
    Follower follower(&desk);
    desk.goTo(3);
    desk.editor.updateGCode("G02");
    desk.editor.clear();
    QCOMPARE(desk.marks.rows(), one(1));
    desk.editor.setPlainText("G01\nG02");
    QCOMPARE(desk.marks.rows(), QList<int>() << 1 << 2);
    desk.editor.setPlainText("");
    desk.editor.setPlainText("G01");
    desk.editor.insertLine("G02");
    QCOMPARE(desk.drawn(), QList<int>() << 1 << 2);
    desk.editor.clear();
    QVERIFY(follower.checks >= 7);
}

void TestHostErrorMarks::joinedLinesShowTheWorstMark()
{
    Desk desk;
    desk.marks.mark(3, ErrorMarks::Error, "worst");
    desk.marks.mark(4, ErrorMarks::Note);
    joinWithBelow(desk);
    QCOMPARE(desk.marks.rows(), one(3));
    QCOMPARE(desk.marks.text(3), QString("worst"));
    desk.marks.unmark(3);
    QCOMPARE(desk.marks.rows(), none());
}

void TestHostErrorMarks::anotherProgramStartsWithoutMarks_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("of several lines") << QString(sixLines) << QString(sixLines);
    QTest::newRow("of one line") << QString("M2") << QString("M2");
    QTest::newRow("of no line") << QString() << QString();
    QTest::newRow("emptied") << QString(sixLines) << QString();
}

void TestHostErrorMarks::anotherProgramStartsWithoutMarks()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    Desk desk(before);
    for (int row = 1; row <= desk.editor.blockCount(); ++row)
        QVERIFY(desk.marks.mark(row, ErrorMarks::Error));
    desk.editor.setPlainText(after);
    QCOMPARE(desk.marks.rows(), none());
    QCOMPARE(desk.drawn(), none());
}

void TestHostErrorMarks::anotherDocumentStartsWithoutMarks()
{
    QTextDocument other;
    Desk desk;
    desk.marks.mark(2, ErrorMarks::Error);
    other.setDocumentLayout(new QPlainTextDocumentLayout(&other));
    other.setPlainText(sixLines);
    QPointer<QTextDocument> first = desk.editor.document();
    desk.editor.setDocument(&other);
    QVERIFY(!first);
    QCOMPARE(desk.drawn(), none());
    QCOMPARE(desk.marks.rows(), none());
    QVERIFY(desk.marks.mark(4, ErrorMarks::Note));
    QCOMPARE(desk.drawn(), one(4));
    desk.editor.setDocument(nullptr);
}

void TestHostErrorMarks::marksAreDrawnBehindTheCurrentLine()
{
    Desk desk;
    desk.show();
    desk.marks.mark(2, ErrorMarks::Error);
    desk.goTo(5);
    const Selections selections = desk.editor.extraSelections();
    QCOMPARE(selections.size(), 2);
    // The editor's own stays the first, and as it was.
    QCOMPARE(selections.first().cursor.blockNumber(), 4);
    QCOMPARE(selections.first().format.background(), desk.editor.palette().alternateBase());
    QCOMPARE(desk.rowAt(selections.last().cursor.selectionStart()), 2);
}

void TestHostErrorMarks::marksAreOnTheScreenWhateverTheEditorShows()
{
    Desk desk;
    desk.show();
    desk.marks.mark(2, ErrorMarks::Error);
    QCOMPARE(desk.drawn(), one(2));
    desk.editor.highlightCurrentLine();
    QCOMPARE(desk.drawn(), one(2));
    desk.editor.gotoLine(4);
    QCOMPARE(desk.drawn(), one(2));
    QTest::mouseClick(desk.editor.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QCOMPARE(desk.drawn(), one(2));
    desk.editor.setReadOnly(true);
    desk.editor.highlightCurrentLine();
    QCOMPARE(desk.drawn(), one(2));
    desk.editor.setExtraSelections(Selections());
    QCOMPARE(desk.drawn(), one(2));
    QColor ground = desk.editor.palette().color(QPalette::Base);
    const QImage image = TestCompat::grab(desk.editor.viewport()).toImage();
    const QRect line =
        desk.editor.cursorRect(QTextCursor(desk.editor.document()->findBlockByNumber(1)));
    QVERIFY(QColor(image.pixel(image.width() - insideMargin, line.center().y())) != ground);
}

void TestHostErrorMarks::theCurrentLineStaysToBeSeenBesideItsMark()
{
    Desk desk;
    desk.show();
    desk.marks.mark(2, ErrorMarks::Error);
    desk.goTo(2);
    QCOMPARE(desk.drawn(), one(2));
    const QImage image = TestCompat::grab(desk.editor.viewport()).toImage();
    const QRect line = desk.editor.cursorRect();
    // By its bytes: a palette may know a colour finer than a pixel shows it.
    QCOMPARE(image.pixel(image.width() - insideMargin, line.center().y()),
             desk.editor.palette().color(QPalette::AlternateBase).rgb());
    const QColor ground =
        ErrorMarks::defaultColours(ErrorMarks::Error, desk.editor.palette()).background;
    QCOMPARE(QColor(image.pixel(line.right() + 4, line.top() + 1)), ground);
}

void TestHostErrorMarks::hostsOwnSelectionsStay()
{
    Desk desk;
    desk.show();
    desk.marks.mark(2, ErrorMarks::Error);
    QTextEdit::ExtraSelection own;
    own.cursor = desk.editor.textCursor();
    own.format.setBackground(Qt::green);
    desk.editor.setExtraSelections(Selections() << own);
    desk.paint();
    QCOMPARE(desk.editor.extraSelections().size(), 2);
    QCOMPARE(desk.editor.extraSelections().first().format, own.format);
    desk.marks.clear();
    desk.paint();
    QCOMPARE(desk.editor.extraSelections().size(), 1);
    QCOMPARE(desk.editor.extraSelections().first().format, own.format);
}

void TestHostErrorMarks::clearedMarksLeaveTheScreen()
{
    Desk desk;
    desk.show();
    desk.goTo(6);
    const QImage before = TestCompat::grab(&desk.editor).toImage();
    desk.marks.mark(2, ErrorMarks::Error);
    desk.marks.mark(3, ErrorMarks::Warning);
    QVERIFY(TestCompat::grab(&desk.editor).toImage() != before);
    desk.marks.unmark(2);
    desk.marks.clear();
    QVERIFY(TestCompat::grab(&desk.editor).toImage() == before);
}

void TestHostErrorMarks::nothingOfThemIsInTheDocument()
{
    Desk desk;
    desk.show();
    desk.goTo(2);
    desk.editor.updateGCode("G03");
    const int steps = desk.editor.document()->availableUndoSteps();
    desk.editor.document()->setModified(false);
    const QList<QTextLayout::FormatRange> colours =
        desk.editor.document()->findBlockByNumber(2).layout()->additionalFormats();
    QSignalSpy changes(desk.editor.document(), SIGNAL(contentsChanged()));
    desk.marks.mark(2, ErrorMarks::Error);
    desk.marks.mark(3, ErrorMarks::Error);
    desk.paint();
    desk.marks.clear();
    desk.paint();
    desk.marks.mark(3, ErrorMarks::Error);
    desk.paint();
    QCOMPARE(changes.size(), 0);
    QVERIFY(!desk.editor.document()->isModified());
    QCOMPARE(desk.editor.document()->availableUndoSteps(), steps);
    const QTextBlock block = desk.editor.document()->findBlockByNumber(2);
    QCOMPARE(block.layout()->additionalFormats().size(), colours.size());
    QVERIFY(!block.charFormat().hasProperty(QTextFormat::BackgroundBrush));
    QVERIFY(!block.blockFormat().hasProperty(QTextFormat::BackgroundBrush));
    QVERIFY(!block.userData());
}

void TestHostErrorMarks::textsStandOutFromTheirGround_data()
{
    QTest::addColumn<QRgb>("base");
    QTest::newRow("light") << QRgb(0xffffff);
    QTest::newRow("greyish") << QRgb(0xc0c0c0);
    QTest::newRow("dark") << QRgb(0x1e1e1e);
    QTest::newRow("black") << QRgb(0x000000);
}

void TestHostErrorMarks::textsStandOutFromTheirGround()
{
    QFETCH(QRgb, base);
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(base));
    Desk desk;
    desk.editor.setPalette(palette);
    desk.show();
    desk.goTo(6);
    QList<QRgb> grounds;
    for (int i = ErrorMarks::Note; i <= ErrorMarks::Error; ++i) {
        const ErrorMarks::Severity severity = ErrorMarks::Severity(i);
        const ErrorMarks::Colours colours = ErrorMarks::defaultColours(severity, palette);
        QVERIFY(Contrast::ratio(colours.text, colours.background) >= Contrast::textContrast);
        QVERIFY(colours.background != QColor(base));
        QVERIFY(!grounds.contains(colours.background.rgb()));
        grounds.append(colours.background.rgb());

        desk.marks.mark(2, severity);
        desk.paint();
        const QRect row =
            desk.editor.cursorRect(QTextCursor(desk.editor.document()->findBlockByNumber(1)));
        const QRect line(0, row.top(), desk.editor.viewport()->width(), row.height());
        QVERIFY(Contrast::drawn(desk.editor.viewport(), line) >= Contrast::textContrast);
        const QImage image = TestCompat::grab(desk.editor.viewport()).toImage();
        QCOMPARE(QColor(image.pixel(image.width() - insideMargin, row.center().y())),
                 colours.background);
    }
}

void TestHostErrorMarks::severitiesAreToldApartWithoutColour()
{
    Desk desk;
    desk.show();
    desk.marks.mark(1, ErrorMarks::Note);
    desk.marks.mark(2, ErrorMarks::Warning);
    desk.marks.mark(3, ErrorMarks::Error);
    desk.paint();
    QList<int> lines;
    Q_FOREACH (const QTextEdit::ExtraSelection &selection, desk.editor.extraSelections()) {
        if (selection.format.hasProperty(QTextFormat::TextUnderlineStyle)) {
            QVERIFY(!lines.contains(int(selection.format.underlineStyle())));
            lines.append(int(selection.format.underlineStyle()));
        }
    }
    QCOMPARE(lines.size(), 3);
}

void TestHostErrorMarks::colorsMayBeTheHosts()
{
    Desk desk;
    desk.show();
    desk.goTo(6);
    const ErrorMarks::Colours own = {Qt::white, Qt::darkMagenta};
    desk.marks.setColours(ErrorMarks::Warning, own);
    desk.marks.mark(2, ErrorMarks::Warning);
    desk.paint();
    QCOMPARE(desk.editor.extraSelections().last().format.background().color(),
             QColor(Qt::darkMagenta));
    QCOMPARE(desk.editor.extraSelections().last().format.foreground().color(), QColor(Qt::white));
}

void TestHostErrorMarks::editorMayGoFirst()
{
    WGCodeEditer *editor = new WGCodeEditer(nullptr);
    editor->setPlainText(sixLines);
    ErrorMarks marks(editor);
    new ErrorMarks(new QPlainTextEdit(editor), editor);
    marks.mark(2, ErrorMarks::Error);
    delete editor;
    QCOMPARE(marks.rows(), none());
    QVERIFY(!marks.mark(2, ErrorMarks::Error));
    QVERIFY(!marks.isMarked(2));
    QCOMPARE(marks.nextRow(0), 0);
    QCOMPARE(marks.previousRow(9), 0);
    marks.unmark(2);
    marks.clear();
}

void TestHostErrorMarks::marksMayGoFirst()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(sixLines);
    {
        ErrorMarks marks(&editor);
        marks.mark(2, ErrorMarks::Error);
        TestCompat::grab(&editor);
        QCOMPARE(editor.extraSelections().size(), 2);
    }
    QCOMPARE(editor.extraSelections().size(), 1);
    // Owned by the editor, they go in the middle of its end.
    ErrorMarks *owned = new ErrorMarks(&editor, &editor);
    QVERIFY(owned->mark(3, ErrorMarks::Note));
}

void TestHostErrorMarks::movedTellsOfOtherRows()
{
    Desk desk;
    QSignalSpy moved(&desk.marks, SIGNAL(moved()));
    desk.marks.mark(3, ErrorMarks::Error);
    QCOMPARE(moved.size(), 0);
    lineAtTheTop(desk);
    QCOMPARE(moved.size(), 1);
    moved.clear();
    typeBefore(desk);
    QCOMPARE(moved.size(), 0);
}

/// Ten thousand marks in a million lines: an edit stays within what a person calls at once.
void TestHostErrorMarks::aMillionLinesAreEditedAsFastAsBefore()
{
    const int lines = scaled(1000000, 20000);
    const int marked = scaled(10000, 200);
    const int edits = 200;
    Desk desk(QString("G01 X1\n").repeated(lines));
    desk.show();
    desk.goTo(lines / 2);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < edits; ++i)
        desk.editor.insertLine("G00");
    const qint64 unmarked = timer.restart();
    for (int i = 0; i < marked; ++i)
        QVERIFY(desk.marks.mark(1 + i * (lines / marked), ErrorMarks::Severity(i % 3)));
    const qint64 marking = timer.restart();
    for (int i = 0; i < edits; ++i)
        desk.editor.insertLine("G00");
    const qint64 editing = timer.restart();
    for (int i = 0; i < edits; ++i)
        desk.paint();
    const qint64 painting = timer.restart();
    QCOMPARE(desk.marks.rows().size(), marked);
    QCOMPARE(desk.marks.rows().last(), 1 + (marked - 1) * (lines / marked) + edits);
    desk.marks.clear();
    const qint64 clearing = timer.elapsed();
    const QString times = QString("%1 edits unmarked %2 ms, marked %3 ms; marking %4 ms, "
                                  "painting %5 ms, clearing %6 ms")
                              .arg(edits)
                              .arg(unmarked)
                              .arg(editing)
                              .arg(marking)
                              .arg(painting)
                              .arg(clearing);
    QVERIFY2(marking < patience(2000), qPrintable(times));
    QVERIFY2(editing < patience(2000), qPrintable(times));
    QVERIFY2(clearing < patience(2000), qPrintable(times));
    qDebug("%s", qPrintable(times));
}

FILARIX_TEST_MAIN(TestHostErrorMarks)
#include "tst_hosterrormarks.moc"
