// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WGCodeEditer, beside the toolkit's own editor.

#include "compat.h"
#include "filarixtest.h"
#include "plaineditor.h"
#include "wgcodeediter.h"

#include <QApplication>
#include <QImage>
#include <QInputMethodEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>

#include <random>

/// What an editor and its document tell, in order.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(QPlainTextEdit *editor) : m_editor(editor)
    {
        const QTextDocument *document = editor->document();
        connect(document, SIGNAL(contentsChange(int, int, int)),
                SLOT(contentsChange(int, int, int)));
        connect(document, SIGNAL(contentsChanged()), SLOT(contentsChanged()));
        connect(document, SIGNAL(blockCountChanged(int)), SLOT(blockCountChanged(int)));
        connect(document, SIGNAL(modificationChanged(bool)), SLOT(modificationChanged(bool)));
        connect(document, SIGNAL(undoAvailable(bool)), SLOT(undoAvailable(bool)));
        connect(document, SIGNAL(redoAvailable(bool)), SLOT(redoAvailable(bool)));
        connect(editor, SIGNAL(textChanged()), SLOT(textChanged()));
        connect(editor, SIGNAL(cursorPositionChanged()), SLOT(cursorPositionChanged()));
        connect(editor, SIGNAL(selectionChanged()), SLOT(selectionChanged()));
        connect(editor, SIGNAL(copyAvailable(bool)), SLOT(copyAvailable(bool)));
    }

    QStringList entries;

private Q_SLOTS:
    void contentsChange(int from, int removed, int added)
    {
        // The formats are there before anybody else hears of the text.
        entries << QString::fromLatin1("contentsChange %1 -%2 +%3, %4 ranges")
                       .arg(from)
                       .arg(removed)
                       .arg(added)
                       .arg(Compat::formats(m_editor->document()->findBlock(from).layout()).size());
    }
    void contentsChanged() { entries << QLatin1String("contentsChanged"); }
    void blockCountChanged(int count)
    {
        entries << QString::fromLatin1("blockCountChanged %1").arg(count);
    }
    void modificationChanged(bool on) { add("modificationChanged", on); }
    void undoAvailable(bool on) { add("undoAvailable", on); }
    void redoAvailable(bool on) { add("redoAvailable", on); }
    void copyAvailable(bool on) { add("copyAvailable", on); }
    void textChanged() { entries << QLatin1String("textChanged"); }
    void selectionChanged() { entries << QLatin1String("selectionChanged"); }
    void cursorPositionChanged()
    {
        entries << QString::fromLatin1("cursorPositionChanged %1")
                       .arg(m_editor->textCursor().position());
    }

private:
    void add(const char *name, bool on)
    {
        entries << QString::fromLatin1("%1 %2").arg(QLatin1String(name)).arg(on);
    }

    QPlainTextEdit *m_editor;
};

/// Scrolls an editor once, at the given turn of the event loop.
class Scroller : public QObject
{
    Q_OBJECT

public:
    Scroller(QScrollBar *bar, int turn, int value) : m_bar(bar), m_turns(turn), m_value(value)
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(turn()));
        m_timer.start(0);
    }

private Q_SLOTS:
    void turn()
    {
        if (--m_turns == 0)
            m_bar->setValue(m_value);
    }

private:
    QTimer m_timer;
    QScrollBar *m_bar;
    int m_turns;
    int m_value;
};

namespace {

/// The library's editor and the plain one, side by side.
struct Pair
{
    explicit Pair(bool isShown)
        : editor(nullptr), plain(nullptr), editorLog(&editor), plainLog(&plain)
    {
        if (!isShown)
            return;
        Q_FOREACH (QPlainTextEdit *view, both()) {
            // Wide enough for every line: how far a view scrolls sideways depends on the lines that
            // were laid out so far, and that is what the library's editor spares itself.
            view->resize(8000, 300);
            view->show();
            TestCompat::waitForExposed(view);
        }
    }

    QList<QPlainTextEdit *> both() { return QList<QPlainTextEdit *>() << &editor << &plain; }

    void read(const QString &text)
    {
        editor.readGCode(text);
        plain.readGCode(text);
    }

    /// Everything by which the two could be told apart; empty when nothing is.
    QString difference();

    WGCodeEditer editor;
    PlainEditor plain;
    SignalLog editorLog;
    SignalLog plainLog;
};

bool isEqual(const QTextLayout::FormatRange &a, const QTextLayout::FormatRange &b)
{
    return a.start == b.start && a.length == b.length && a.format == b.format;
}

QString formatDifference(const QTextBlock &a, const QTextBlock &b)
{
    const Compat::FormatRanges aRanges = Compat::formats(a.layout());
    const Compat::FormatRanges bRanges = Compat::formats(b.layout());
    if (aRanges.size() == bRanges.size()
        && std::equal(aRanges.constBegin(), aRanges.constEnd(), bRanges.constBegin(), isEqual))
        return QString();
    return QString::fromLatin1("block %1 \"%2\" has %3 ranges instead of %4, or others")
        .arg(a.blockNumber())
        .arg(a.text())
        .arg(aRanges.size())
        .arg(bRanges.size());
}

QString Pair::difference()
{
    if (editor.toPlainText() != plain.toPlainText())
        return QLatin1String("the text");
    QTextBlock a = editor.document()->begin();
    QTextBlock b = plain.document()->begin();
    for (; a.isValid() && b.isValid(); a = a.next(), b = b.next()) {
        const QString found = formatDifference(a, b);
        if (!found.isEmpty())
            return found;
    }
    for (int i = 0; i < qMax(editorLog.entries.size(), plainLog.entries.size()); ++i) {
        const QString is = editorLog.entries.value(i);
        const QString wanted = plainLog.entries.value(i);
        if (is != wanted)
            return QString::fromLatin1("signal %1: %2 instead of %3").arg(i).arg(is, wanted);
    }
    const QTextDocument *own = editor.document();
    const QTextDocument *other = plain.document();
    if (own->availableUndoSteps() != other->availableUndoSteps()
        || own->availableRedoSteps() != other->availableRedoSteps())
        return QLatin1String("the undo steps");
    if (own->isModified() != other->isModified())
        return QLatin1String("the modified mark");
    if (editor.textCursor().position() != plain.textCursor().position()
        || editor.textCursor().anchor() != plain.textCursor().anchor())
        return QLatin1String("the cursor");
    const QScrollBar *bar = editor.verticalScrollBar();
    const QScrollBar *plainBar = plain.verticalScrollBar();
    if (bar->value() != plainBar->value() || bar->maximum() != plainBar->maximum()
        || (editor.isVisible() && bar->pageStep() != plainBar->pageStep()))
        return QString::fromLatin1("scrolled to %1 of %2 instead of %3 of %4")
            .arg(bar->value())
            .arg(bar->maximum())
            .arg(plainBar->value())
            .arg(plainBar->maximum());
    if (editor.centerOnScroll() || !editor.updatesEnabled())
        return QLatin1String("the state of the view");
    return QString();
}

/// Words, near misses and comments, with any line end that a file may hold.
QString randomLine(std::mt19937 &random)
{
    static const QString letters = QLatin1String("GMXYZUVWIJKFST,;N");
    static const QString others = QLatin1String("0123456789-.- x") + QChar(0x0663);
    QString line;
    const int words = int(random() % 5);
    for (int word = 0; word < words; ++word) {
        line += letters.at(int(random() % unsigned(letters.size())));
        for (int k = int(random() % 6); k > 0; --k)
            line += others.at(int(random() % unsigned(others.size())));
    }
    return line;
}

QString randomProgram(std::mt19937 &random, int lines, bool allLineEnds)
{
    QString text;
    for (int i = 0; i < lines; ++i) {
        text += randomLine(random);
        const unsigned kind = unsigned(random() % 40);
        if (allLineEnds && kind == 0)
            text += QLatin1Char('\r');
        else if (allLineEnds && kind == 1)
            text += QChar(QChar::ParagraphSeparator);
        else if (allLineEnds && kind == 2)
            text += QLatin1Char('\r');
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

class TestAsPlainEditor : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void loads_data();
    void loads();
    void followsTheEndUnlessScrolled_data();
    void followsTheEndUnlessScrolled();
    void looksTheSame_data();
    void looksTheSame();
    void undoesALoad();
    void editsAtRandom();
    void composesText();
    void coloursAnew();
};

void TestAsPlainEditor::loads_data()
{
    QTest::addColumn<bool>("isShown");
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("allLineEnds");
    QTest::addColumn<QString>("before");
    QTest::newRow("short") << true << 400 << true << QString();
    QTest::newRow("shown") << true << 3000 << false << QString();
    QTest::newRow("shown, behind a line") << true << 3000 << false << "G01 X1";
    QTest::newRow("shown, behind an empty line") << true << 3000 << false << "G01 X1\n";
    QTest::newRow("shown, behind a page")
        << true << 3000 << false << QString("G1F2S3\n").repeated(99);
    QTest::newRow("shown, all line ends") << true << 3000 << true << QString();
    QTest::newRow("not shown") << false << 3000 << false << QString();
    QTest::newRow("not shown, all line ends") << false << 3000 << true << "G01 X1";
}

void TestAsPlainEditor::loads()
{
    QFETCH(bool, isShown);
    QFETCH(int, lines);
    QFETCH(bool, allLineEnds);
    QFETCH(QString, before);
    std::mt19937 random(20260801u);
    for (int i = scaled(3); i > 0; --i) {
        Pair pair(isShown);
        Q_FOREACH (QPlainTextEdit *view, pair.both())
            view->setPlainText(before);
        pair.read(randomProgram(random, lines, allLineEnds));
        QCOMPARE(pair.difference(), QString());
    }
}

void TestAsPlainEditor::followsTheEndUnlessScrolled_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("turn");
    QTest::addColumn<int>("value");
    const QString page = QString::fromLatin1("G01 X1\n").repeated(100);
    QTest::newRow("at the start of a page") << page << 0 << 0;
    QTest::newRow("up from the end") << QString() << 20 << 5;
    QTest::newRow("up from the end, late") << QString() << 49 << 5;
    QTest::newRow("down from the start") << page << 10 << 40;
    QTest::newRow("down to the end") << page << 10 << 1000000;
}

void TestAsPlainEditor::followsTheEndUnlessScrolled()
{
    QFETCH(QString, before);
    QFETCH(int, turn);
    QFETCH(int, value);
    std::mt19937 random(20260802u);
    const QString text = randomProgram(random, 3000, false);
    Pair pair(true);
    Q_FOREACH (QPlainTextEdit *view, pair.both())
        view->setPlainText(before);
    {
        const Scroller scroller(pair.editor.verticalScrollBar(), turn, value);
        pair.editor.readGCode(text);
    }
    {
        const Scroller scroller(pair.plain.verticalScrollBar(), turn, value);
        pair.plain.readGCode(text);
    }
    QCOMPARE(pair.difference(), QString());
}

void TestAsPlainEditor::looksTheSame_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("lines");
    QTest::newRow("from left to right") << "G01 X1 Y2 F100" << 1500;
    QTest::newRow("from left to right, 6 digits in the gutter") << "G1" << 100100;
    const QChar alef(0x0627);
    QTest::newRow("a line from right to left") << QString(6, alef) + QLatin1String(" G01") << 1500;
    const QString gothic = QString(QChar(0xd800)) + QChar(0xdf30);
    QTest::newRow("characters of two units") << gothic << 1500;
}

// The gutter grows as a program goes in, and with it the room for the lines shrinks.
void TestAsPlainEditor::looksTheSame()
{
    QFETCH(QString, words);
    QFETCH(int, lines);
    const QString text = (words + QLatin1Char('\n')).repeated(lines);
    Pair pair(true);
    QList<QImage> pictures;
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        view->resize(400, 300);
        view->setCursorWidth(0);
    }
    QCoreApplication::processEvents();
    pair.read(text);
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        view->clearFocus();
        QCoreApplication::processEvents();
        pictures << TestCompat::grab(view).toImage();
    }
    QVERIFY(pictures.first() == pictures.last());
}

void TestAsPlainEditor::undoesALoad()
{
    std::mt19937 random(20260803u);
    Pair pair(true);
    pair.read(randomProgram(random, 2000, false));
    const int steps = pair.plain.document()->availableUndoSteps();
    QVERIFY(steps > 0);
    for (int i = 0; i < 60; ++i) {
        Q_FOREACH (QPlainTextEdit *view, pair.both()) {
            if (i < 40)
                view->undo();
            else
                view->redo();
        }
        QCOMPARE(pair.difference(), QString());
    }
}

void TestAsPlainEditor::editsAtRandom()
{
    std::mt19937 random(20260804u);
    Pair pair(true);
    pair.read(randomProgram(random, 600, false));
    const int edits = scaled(3000);
    for (int i = 0; i < edits; ++i) {
        const int characters = pair.plain.document()->characterCount();
        const int from = int(random() % unsigned(characters));
        const int to = qMin(characters - 1, from + int(random() % 80));
        const unsigned kind = unsigned(random() % 8);
        const QString text =
            kind < 3 ? randomLine(random) : randomProgram(random, int(random() % 4), true);
        Q_FOREACH (QPlainTextEdit *view, pair.both()) {
            QTextCursor cursor(view->document());
            cursor.setPosition(from);
            if (kind == 7) {
                view->undo();
                continue;
            }
            if (kind == 6 || kind == 2)
                cursor.setPosition(to, QTextCursor::KeepAnchor);
            if (kind == 5)
                cursor.deleteChar();
            else if (kind == 4)
                cursor.insertBlock();
            else
                cursor.insertText(text);
        }
        if (i % 50 == 49) {
            QCOMPARE(pair.difference(), QString());
            pair.editorLog.entries.clear();
            pair.plainLog.entries.clear();
        }
    }
}

void TestAsPlainEditor::composesText()
{
    Pair pair(true);
    const QString line = QLatin1String("G01 X1 F100\nM03 S1200");
    typedef QInputMethodEvent::Attribute Attribute;
    QTextCharFormat underlined;
    underlined.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        view->setPlainText(line);
        QTextCursor cursor = view->textCursor();
        cursor.setPosition(5); // within X1
        view->setTextCursor(cursor);
        QInputMethodEvent event(QLatin1String("ab"),
                                QList<Attribute>()
                                    << Attribute(QInputMethodEvent::TextFormat, 0, 2, underlined));
        QApplication::sendEvent(view, &event);
    }
    QCOMPARE(Compat::formats(pair.plain.document()->begin().layout()).size(), 4);
    QCOMPARE(pair.difference(), QString());
    // A change of the block while the text is being composed.
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QTextCursor cursor(view->document());
        cursor.insertText(QLatin1String("T1 "));
    }
    QCOMPARE(pair.difference(), QString());
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        QInputMethodEvent event;
        event.setCommitString(QLatin1String("9"));
        QApplication::sendEvent(view, &event);
    }
    QCOMPARE(pair.difference(), QString());
}

void TestAsPlainEditor::coloursAnew()
{
    std::mt19937 random(20260805u);
    Pair pair(true);
    pair.read(randomProgram(random, 2000, false));
    Q_FOREACH (QPlainTextEdit *view, pair.both()) {
        for (int i = 0; i < 100; ++i) {
            QTextBlock block = view->document()->findBlockByNumber(i * 7);
            Compat::setFormats(block.layout(), Compat::FormatRanges());
        }
    }
    pair.editor.addErrorCode(3, QLatin1String("x"));
    pair.editor.highlightErrorCode();
    pair.plain.rehighlight();
    QCOMPARE(pair.difference(), QString());
    pair.editor.highlightErrorCode();
    pair.plain.rehighlight();
    QCOMPARE(pair.difference(), QString());
}

FILARIX_TEST_MAIN(TestAsPlainEditor)
#include "tst_asplaineditor.moc"
