// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WHighlighter and WGCodeEditer: the marks of faulty lines.

#include "filarixtest.h"
#include "wgcodeediter.h"
#include "whighlighter.h"

#include <QPointer>
#include <QTextBlock>
#include <QTextLayout>

/// The marks of faulty lines as a host sets them: recorded, never drawn by the editor itself.
class TestErrorMarks : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aMarkHoldsTheColumnsAtFault_data();
    void aMarkHoldsTheColumnsAtFault();
    void aCodeOfBlanksRecordsAndRemovesNothing();
    void aSecondMarkReplacesTheFirst();
    void withoutMarksNothingIsColouredAnew();
    void withAMarkTheDocumentIsColouredAnew();
    void theMarkedLineShowsItsSyntaxColoursOnly();
    void marksStayWhateverHappensToTheText();
    void aHighlighterTakenOffColoursNothing();
    void marksAreTakenWhileAnotherDocumentIsSet();
    void marksOutliveTheDocumentWithTheirHighlighter();
};

namespace {

WHighlighter *highlighterOf(const WGCodeEditer &editor)
{
    return editor.document()->findChild<WHighlighter *>();
}

QHash<int, QList<int>> marks(const WGCodeEditer &editor)
{
    return highlighterOf(editor)->errorLines;
}

QList<QTextLayout::FormatRange> formats(const WGCodeEditer &editor, int line)
{
    return editor.document()->findBlockByNumber(line).layout()->additionalFormats();
}

/// Takes the colours of a line away behind the highlighter's back.
void bleach(const WGCodeEditer &editor, int line)
{
    editor.document()->findBlockByNumber(line).layout()->clearAdditionalFormats();
}

} // namespace

void TestErrorMarks::aMarkHoldsTheColumnsAtFault_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("columns");
    QTest::newRow("one column") << 0 << "   ^"
                                << "3";
    QTest::newRow("several columns") << 2 << "^  ^^ ^"
                                     << "0 3 4 6";
    QTest::newRow("any character but the blank") << 1 << "\t 0"
                                                 << "0 2";
    QTest::newRow("beyond the document") << 5000 << "x"
                                         << "0";
    QTest::newRow("before the document") << -1 << "x"
                                         << "0";
}

void TestErrorMarks::aMarkHoldsTheColumnsAtFault()
{
    QFETCH(int, line);
    QFETCH(QString, code);
    QFETCH(QString, columns);
    WGCodeEditer editor(nullptr);
    editor.addErrorCode(line, code);
    QCOMPARE(marks(editor).keys(), QList<int>() << line);
    QStringList held;
    Q_FOREACH (int column, marks(editor).value(line))
        held << QString::number(column);
    QCOMPARE(held.join(QLatin1String(" ")), columns);
    // A mark that no block matches is no error.
    editor.highlightErrorCode();
    QCOMPARE(marks(editor).size(), 1);
}

void TestErrorMarks::aCodeOfBlanksRecordsAndRemovesNothing()
{
    WGCodeEditer editor(nullptr);
    editor.addErrorCode(1, QLatin1String("   "));
    editor.addErrorCode(1, QString());
    QVERIFY(marks(editor).isEmpty());
    editor.addErrorCode(1, QLatin1String(" ^"));
    editor.addErrorCode(1, QLatin1String("  "));
    QCOMPARE(marks(editor).value(1), QList<int>() << 1);
}

void TestErrorMarks::aSecondMarkReplacesTheFirst()
{
    WGCodeEditer editor(nullptr);
    editor.addErrorCode(1, QLatin1String("^^"));
    editor.addErrorCode(4, QLatin1String("^"));
    editor.addErrorCode(1, QLatin1String("   ^"));
    QCOMPARE(marks(editor).size(), 2);
    QCOMPARE(marks(editor).value(1), QList<int>() << 3);
    QCOMPARE(marks(editor).value(4), QList<int>() << 0);
}

void TestErrorMarks::withoutMarksNothingIsColouredAnew()
{
    WGCodeEditer editor(nullptr);
    QCoreApplication::processEvents();
    editor.setPlainText(QLatin1String("G01 X1"));
    QCOMPARE(formats(editor, 0).size(), 2);
    bleach(editor, 0);
    editor.addErrorCode(0, QLatin1String("  "));
    editor.highlightErrorCode();
    QCOMPARE(formats(editor, 0).size(), 0);
}

void TestErrorMarks::withAMarkTheDocumentIsColouredAnew()
{
    WGCodeEditer editor(nullptr);
    QCoreApplication::processEvents();
    editor.setPlainText(QLatin1String("G01 X1\nG02"));
    bleach(editor, 0);
    bleach(editor, 1);
    editor.addErrorCode(1, QLatin1String("^"));
    QCOMPARE(formats(editor, 0).size(), 0);
    editor.highlightErrorCode();
    QCOMPARE(formats(editor, 0).size(), 2);
    QCOMPARE(formats(editor, 1).size(), 1);
}

void TestErrorMarks::theMarkedLineShowsItsSyntaxColoursOnly()
{
    WGCodeEditer editor(nullptr);
    QCoreApplication::processEvents();
    editor.setPlainText(QLatin1String("G01 X1"));
    const QTextCharFormat before = formats(editor, 0).first().format;
    editor.addErrorCode(0, QLatin1String("^^^"));
    editor.highlightErrorCode();
    QCOMPARE(formats(editor, 0).size(), 2);
    QVERIFY(formats(editor, 0).first().format == before);
    QCOMPARE(before.foreground().color(), QColor(Qt::darkGreen));
    QCOMPARE(marks(editor).value(0), QList<int>() << 0 << 1 << 2);
    editor.highlightErrorCode();
    QCOMPARE(marks(editor).size(), 1);
}

void TestErrorMarks::marksStayWhateverHappensToTheText()
{
    WGCodeEditer editor(nullptr);
    editor.readGCode(QLatin1String("G01\nG02\nG03"));
    editor.addErrorCode(2, QLatin1String("^"));
    editor.gotoLine(1);
    editor.insertBefore();
    editor.deleteLine();
    editor.deleteLine();
    QCOMPARE(marks(editor).keys(), QList<int>() << 2);
    editor.clear();
    editor.readGCode(QLatin1String("M30"));
    QCOMPARE(marks(editor).keys(), QList<int>() << 2);
    QCOMPARE(marks(editor).value(2), QList<int>() << 0);
}

void TestErrorMarks::aHighlighterTakenOffColoursNothing()
{
    WGCodeEditer editor(nullptr);
    QCoreApplication::processEvents();
    WHighlighter *highlighter = highlighterOf(editor);
    editor.setPlainText(QLatin1String("G01 X1"));
    QCOMPARE(formats(editor, 0).size(), 2);
    highlighter->setDocument(nullptr);
    editor.setPlainText(QLatin1String("G01 X1\nG02"));
    editor.addErrorCode(1, QLatin1String("^"));
    editor.highlightErrorCode();
    QCOMPARE(formats(editor, 0).size(), 0);
    QCOMPARE(formats(editor, 1).size(), 0);

    highlighter->setDocument(editor.document());
    QTRY_COMPARE(formats(editor, 1).size(), 1);
    editor.setPlainText(QLatin1String("G01 X1"));
    QCOMPARE(formats(editor, 0).size(), 2);
}

void TestErrorMarks::marksAreTakenWhileAnotherDocumentIsSet()
{
    QObject keeper;
    WGCodeEditer editor(nullptr);
    QCoreApplication::processEvents();
    editor.setPlainText(QLatin1String("G01 X1"));
    QTextDocument *const own = editor.document();
    own->setParent(&keeper); // or the editor would delete it as soon as it has another one
    WHighlighter *const highlighter = highlighterOf(editor);
    editor.addErrorCode(0, QLatin1String("^"));
    bleach(editor, 0);

    QTextDocument other;
    other.setDocumentLayout(new QPlainTextDocumentLayout(&other));
    editor.setDocument(&other);
    editor.setPlainText(QLatin1String("G02"));
    editor.addErrorCode(3, QLatin1String(" ^"));
    QCOMPARE(highlighter->errorLines.size(), 2);
    QCOMPARE(highlighter->errorLines.value(3), QList<int>() << 1);

    // The colours are still those of the highlighter's own document.
    editor.highlightErrorCode();
    QCOMPARE(formats(editor, 0).size(), 0);
    editor.setDocument(own);
    QCOMPARE(formats(editor, 0).size(), 2);
    QCOMPARE(marks(editor).size(), 2);
}

void TestErrorMarks::marksOutliveTheDocumentWithTheirHighlighter()
{
    QObject keeper;
    WGCodeEditer editor(nullptr);
    QPointer<WHighlighter> highlighter = highlighterOf(editor);
    highlighter->setParent(&keeper);
    QTextDocument other;
    other.setDocumentLayout(new QPlainTextDocumentLayout(&other));
    editor.setDocument(&other); // and the editor's own is gone
    QVERIFY(highlighter);
    QVERIFY(!highlighter->document());
    editor.addErrorCode(2, QLatin1String("^"));
    editor.highlightErrorCode(); // there is nothing to colour
    QCOMPARE(highlighter->errorLines.keys(), QList<int>() << 2);
}

FILARIX_TEST_MAIN(TestErrorMarks)
#include "tst_errormarks.moc"
