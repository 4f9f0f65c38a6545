// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WGCodeEditer's loader.

#include "filarixtest.h"
#include "openwindow.h"
#include "waqp.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include <functional>
#include <random>

/// Looks at the progress dialog of a load each time the load serves the event loop.
class LoadWatcher : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void(QProgressDialog *)> Visit;

    explicit LoadWatcher(const Visit &visit = Visit()) : m_visit(visit)
    {
        connect(&m_timer, SIGNAL(timeout()), SLOT(look()));
        m_timer.start(0);
    }

    static QProgressDialog *dialog()
    {
        Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
            if (QProgressDialog *progress = qobject_cast<QProgressDialog *>(widget))
                return progress;
        }
        return nullptr;
    }

    /// The dialog's values, in order. A finished dialog has reset itself to -1.
    QList<int> values;

private Q_SLOTS:
    void look()
    {
        QProgressDialog *progress = dialog();
        if (!progress)
            return;
        if (values.isEmpty() || values.last() != progress->value())
            values << progress->value();
        if (m_visit)
            m_visit(progress);
    }

private:
    QTimer m_timer;
    Visit m_visit;
};

namespace {

void press(QProgressDialog *progress)
{
    progress->findChild<QPushButton *>()->click();
}

/// A program of \a parts lines; every tenth is a comment, every tenth empty, every tenth blank.
QStringList program(int parts)
{
    QStringList lines;
    for (int i = 0; i < parts; ++i) {
        switch (i % 10) {
        case 3:
            lines << QString::fromLatin1("; turn %1").arg(i);
            break;
        case 5:
            lines << QString();
            break;
        case 7:
            lines << QString::fromLatin1("  ");
            break;
        case 8:
            lines << QString::fromLatin1("g01 x%1 ; back ; again").arg(i);
            break;
        default:
            lines << QString::fromLatin1("N%1 G01 X%1.5").arg(i);
        }
    }
    return lines;
}

// The steps of loading, written down one by one, on the toolkit's plain editor.

QString plainPreproccess(const QStringList &lines)
{
    QString result;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).isEmpty())
            continue;
        const QString first =
            lines.at(i).split(QString(";"), QString::KeepEmptyParts, Qt::CaseSensitive).first();
        if (!first.isEmpty())
            result = result + first + "\n";
    }
    const int last = result.lastIndexOf("\n");
    if (last >= 0)
        result.remove(last, 1);
    return result;
}

void plainRead(QPlainTextEdit &editor, const QString &text, int pieces = 50)
{
    const QStringList lines = text.split(QString("\n"), QString::KeepEmptyParts, Qt::CaseSensitive);
    if (lines.size() < 500) {
        editor.setPlainText(text);
        return;
    }
    int position = 0;
    for (int i = 0; i < pieces; ++i) {
        const int size = lines.size() / 50 + (i < lines.size() % 50 ? 1 : 0);
        const QString result = plainPreproccess(lines.mid(position, size));
        if (!result.isEmpty())
            editor.appendPlainText(result);
        position += size;
    }
}

QStringList blocks(const QPlainTextEdit &editor)
{
    QStringList texts;
    for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next())
        texts << block.text();
    return texts;
}

/// Everything about a document that an operator could tell apart.
QString difference(QPlainTextEdit &editor, QPlainTextEdit &plain)
{
    if (blocks(editor) != blocks(plain))
        return QLatin1String("text");
    if (editor.textCursor().position() != plain.textCursor().position()
        || editor.textCursor().anchor() != plain.textCursor().anchor())
        return QLatin1String("cursor");
    if (editor.document()->isModified() != plain.document()->isModified())
        return QLatin1String("modified flag");
    if (editor.document()->availableUndoSteps() != plain.document()->availableUndoSteps()
        || editor.document()->availableRedoSteps() != plain.document()->availableRedoSteps())
        return QLatin1String("undo steps");
    return QString();
}

void compareWithPlainCalls(const QString &text, const QString &before = QString())
{
    WGCodeEditer editor(nullptr);
    QPlainTextEdit plain;
    plain.setLineWrapMode(QPlainTextEdit::NoWrap);
    editor.setPlainText(before);
    plain.setPlainText(before);
    editor.readGCode(text);
    plainRead(plain, text);
    QCOMPARE(difference(editor, plain), QString());
    editor.undo();
    plain.undo();
    QCOMPARE(difference(editor, plain), QString());
}

/// Value of a line "Name:   123 b" of the process's own figures, in bytes.
qint64 processMemory(const char *name)
{
    const QByteArray status = FilarixTest::readFile(QLatin1String("/proc/self/status"));
    const int at = status.indexOf(name);
    return at < 0 ? 0
                  : status.mid(at + int(qstrlen(name)) + 1, 20)
                            .split('k')
                            .first()
                            .trimmed()
                            .toLongLong()
                        * 1024;
}

} // namespace

class TestGCodeLoader : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleansFromTheThresholdOn_data();
    void cleansFromTheThresholdOn();
    void emptyTextLeavesAnEmptyDocument();
    void shortProgramReplacesTheDocument();
    void longProgramIsAppended();
    void preproccess_data();
    void preproccess();
    void commentOnlyPieceAddsNothing();
    void lowerCaseStaysOnBothPaths();
    void carriageReturnsAreOrdinaryCharacters_data();
    void carriageReturnsAreOrdinaryCharacters();
    void randomProgramsLoadAsThePlainCallsDo();

    void progressDialogIsAsTheToolkitMakesIt();
    void shortProgramShowsNoProgress();
    void eventsAreServedAfterEachPiece_data();
    void eventsAreServedAfterEachPiece();
    void windowStaysUsableBetweenThePieces();
    void wrappedProgramIsLaidOutForItsWidth();
    void updatesComeBack_data();
    void updatesComeBack();
    void updatesHeldByTheParentComeBack();

    void elapsedTimeGoesToTheDebugOutput_data();
    void elapsedTimeGoesToTheDebugOutput();

    void abortKeepsThePiecesSoFar_data();
    void abortKeepsThePiecesSoFar();
    void abortedWindowNamesTheWholeFile();
    void savingAfterAnAbortStoresTheFrontPart();
    void closedProgressDialogAborts();
    void secondLoadAfterAnAbortIsWhole();

    void millionLinesCanBeAborted();
    void millionLinesLoad();
};

void TestGCodeLoader::cleansFromTheThresholdOn_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("finalLineEnd");
    QTest::addColumn<bool>("cleaned");
    QTest::newRow("498 lines") << 498 << false << false;
    QTest::newRow("498 lines and a line end: 499 parts") << 498 << true << false;
    QTest::newRow("499 lines") << 499 << false << false;
    QTest::newRow("499 lines and a line end: 500 parts") << 499 << true << true;
    QTest::newRow("500 lines") << 500 << false << true;
    QTest::newRow("500 lines and a line end: 501 parts") << 500 << true << true;
    QTest::newRow("501 lines") << 501 << false << true;
}

void TestGCodeLoader::cleansFromTheThresholdOn()
{
    QFETCH(int, lines);
    QFETCH(bool, finalLineEnd);
    QFETCH(bool, cleaned);
    const QString text =
        program(lines).join(QLatin1String("\n")) + QLatin1String(finalLineEnd ? "\n" : "");
    QString expected = text;
    if (cleaned) {
        QStringList kept;
        Q_FOREACH (const QString &line, program(lines)) {
            if (!line.isEmpty() && !line.startsWith(QLatin1Char(';')))
                kept << line.section(QLatin1Char(';'), 0, 0);
        }
        expected = kept.join(QLatin1String("\n"));
        // Two lines of ten are gone, and those behind them moved up.
        QCOMPARE(kept.size(), lines - (lines + 6) / 10 - (lines + 4) / 10);
    }
    WGCodeEditer editor(nullptr);
    editor.readGCode(text);
    QCOMPARE(editor.document()->toPlainText(), expected);
    QCOMPARE(editor.getLineText(3), QString::fromLatin1(cleaned ? "N4 G01 X4.5" : "; turn 3"));
    compareWithPlainCalls(text);
}

void TestGCodeLoader::emptyTextLeavesAnEmptyDocument()
{
    WGCodeEditer editor(nullptr);
    editor.setPlainText(QLatin1String("old"));
    editor.readGCode(QString());
    QCOMPARE(editor.document()->toPlainText(), QString(""));
    QCOMPARE(editor.blockCount(), 1);
}

void TestGCodeLoader::shortProgramReplacesTheDocument()
{
    compareWithPlainCalls(QLatin1String("a;c\n\n;d\n"), QLatin1String("old"));
    WGCodeEditer editor(nullptr);
    editor.setPlainText(QLatin1String("old"));
    editor.readGCode(QLatin1String("a;c\n\n;d\n"));
    QCOMPARE(editor.document()->toPlainText(), QString("a;c\n\n;d\n"));
    QVERIFY(!editor.document()->isUndoAvailable());
}

void TestGCodeLoader::longProgramIsAppended()
{
    const QString text = program(600).join(QLatin1String("\n"));
    compareWithPlainCalls(text, QLatin1String("old"));
    WGCodeEditer editor(nullptr);
    editor.setPlainText(QLatin1String("old"));
    editor.readGCode(text);
    QCOMPARE(editor.document()->firstBlock().text(), QString("old"));
    QCOMPARE(editor.getLineText(1), QString("N0 G01 X0.5"));
}

void TestGCodeLoader::preproccess_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("result");
    QTest::newRow("no lines") << QStringList() << QString();
    QTest::newRow("one line") << (QStringList() << "G1") << "G1";
    QTest::newRow("lines are joined without a last end") << (QStringList() << "G1"
                                                                           << "G2")
                                                         << "G1\nG2";
    QTest::newRow("empty lines go") << (QStringList() << ""
                                                      << "G1"
                                                      << ""
                                                      << ""
                                                      << "G2"
                                                      << "")
                                    << "G1\nG2";
    QTest::newRow("only empty lines") << (QStringList() << ""
                                                        << "")
                                      << QString();
    QTest::newRow("a line of blanks stays") << (QStringList() << "  "
                                                              << "\t")
                                            << "  \n\t";
    QTest::newRow("a comment behind a word is cut") << (QStringList() << "G1;c") << "G1";
    QTest::newRow("the blank before a comment stays") << (QStringList() << " G1 ;c") << " G1 ";
    QTest::newRow("a comment line goes") << (QStringList() << "G1"
                                                           << ";c"
                                                           << "G2")
                                         << "G1\nG2";
    QTest::newRow("only comment lines") << (QStringList() << ";c"
                                                          << ";"
                                                          << ";;")
                                        << QString();
    QTest::newRow("a comment behind blanks leaves the blanks") << (QStringList() << "  ;c"
                                                                                 << "G1")
                                                               << "  \nG1";
    QTest::newRow("a second semicolon changes nothing") << (QStringList() << "G1;a;G2") << "G1";
    QTest::newRow("trailing blanks stay") << (QStringList() << "G1  ") << "G1  ";
    QTest::newRow("a line end inside a line is a character") << (QStringList() << "a\nb\n"
                                                                               << "c")
                                                             << "a\nb\n\nc";
    QTest::newRow("a carriage return counts as a character") << (QStringList() << "\r"
                                                                               << "\r;c")
                                                             << "\r\n\r";
}

void TestGCodeLoader::preproccess()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, result);
    WGCodeEditer editor(nullptr);
    QCOMPARE(editor.preproccess(lines), result);
    QCOMPARE(plainPreproccess(lines), result);
    QCOMPARE(editor.document()->toPlainText(), QString(""));
}

void TestGCodeLoader::commentOnlyPieceAddsNothing()
{
    // The first, the second and the last of the fifty pieces of ten lines hold nothing to keep.
    QStringList lines;
    for (int i = 0; i < 500; ++i)
        lines << QString::fromLatin1(i < 20 || i >= 490 ? (i % 2 ? "" : ";c") : "G1");
    WGCodeEditer editor(nullptr);
    editor.readGCode(lines.join(QLatin1String("\n")));
    QCOMPARE(editor.blockCount(), 470);
    QCOMPARE(editor.getLineText(0), QString("G1"));
    QCOMPARE(editor.getLineText(469), QString("G1"));

    WGCodeEditer nothing(nullptr);
    nothing.readGCode(QString(700, QLatin1Char('\n')));
    QCOMPARE(nothing.document()->toPlainText(), QString(""));
    QVERIFY(!nothing.document()->isModified());
}

void TestGCodeLoader::lowerCaseStaysOnBothPaths()
{
    WGCodeEditer editor(nullptr);
    editor.readGCode(QLatin1String("g01 x1\nm03"));
    QCOMPARE(editor.document()->toPlainText(), QString("g01 x1\nm03"));
    editor.clear();
    editor.readGCode(QLatin1String("g01 x1\nm03") + QString(500, QLatin1Char('\n')));
    QCOMPARE(editor.document()->toPlainText(), QString("g01 x1\nm03"));
}

void TestGCodeLoader::carriageReturnsAreOrdinaryCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("short") << "G1\rG2\n;c\r\n\r\nG3\r"
                           << (QStringList() << "G1"
                                             << "G2"
                                             << ";c"
                                             << ""
                                             << "G3"
                                             << "");
    // Not empty and not a comment: the line with nothing but a carriage return is kept.
    QTest::newRow("long") << QString("G1\rG2\n;c\r\n\r\nG3;\r") + QString(500, QLatin1Char('\n'))
                          << (QStringList() << "G1"
                                            << "G2"
                                            << ""
                                            << "G3");
}

// What the document makes of them when they arrive is the toolkit's: a line end.
void TestGCodeLoader::carriageReturnsAreOrdinaryCharacters()
{
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    WGCodeEditer editor(nullptr);
    editor.readGCode(text);
    QCOMPARE(blocks(editor), lines);
    compareWithPlainCalls(text);
}

void TestGCodeLoader::randomProgramsLoadAsThePlainCallsDo()
{
    const QStringList pieces = QStringList()
                               << ""
                               << ""
                               << ";"
                               << "; c"
                               << " "
                               << "\t"
                               << "G01 X1"
                               << "m3;c"
                               << "M5 ; a ; b"
                               << " ;"
                               << "\r"
                               << "\r\r" << QString(QChar(0x2028)) << QString(QChar(0x2029))
                               << QString::fromUtf8("; \xc3\xa4\xf0\x9f\x94\xa7")
                               << QString(QChar(0)) << "N10G1;";
    std::mt19937 random(500);
    for (int round = 0; round < scaled(60, 20); ++round) {
        const int parts = round % 3 ? 480 + int(random() % 45) : 500 + int(random() % 1500);
        // Some programs are mostly empty, so that whole pieces hold nothing.
        const unsigned choice = round % 4 ? unsigned(pieces.size()) : 4;
        QStringList lines;
        for (int i = 0; i < parts; ++i) {
            const QString &line = pieces.at(int(random() % choice));
            lines << (random() % 64 ? line : QString::fromLatin1("X1"));
        }
        compareWithPlainCalls(lines.join(QLatin1String("\n")),
                              QLatin1String(round % 5 ? "" : "before"));
        if (QTest::currentTestFailed())
            return;
    }
}

void TestGCodeLoader::progressDialogIsAsTheToolkitMakesIt()
{
    Qt::WindowFlags flags;
    int duration = 0;
    {
        const QProgressDialog reference(QLatin1String("Load Files:"), QLatin1String("Abort check"),
                                        0, 523);
        flags = reference.windowFlags();
        duration = reference.minimumDuration();
    }
    int seen = 0;
    LoadWatcher watcher([&](QProgressDialog *progress) {
        ++seen;
        QCOMPARE(progress->labelText(), QString("Load Files:"));
        QCOMPARE(progress->findChild<QPushButton *>()->text(), QString("Abort check"));
        QCOMPARE(progress->minimum(), 0);
        QCOMPARE(progress->maximum(), 523);
        QVERIFY(!progress->parentWidget());
        QCOMPARE(progress->windowFlags(), flags);
        QCOMPARE(progress->windowModality(), Qt::NonModal);
        QCOMPARE(progress->minimumDuration(), duration);
        QVERIFY(progress->autoReset());
        QVERIFY(progress->autoClose());
    });
    WGCodeEditer editor(nullptr);
    editor.readGCode(program(523).join(QLatin1String("\n")));
    QCOMPARE(seen, 50);
    QVERIFY(!LoadWatcher::dialog());
}

void TestGCodeLoader::shortProgramShowsNoProgress()
{
    WGCodeEditer editor(nullptr);
    QTimer::singleShot(0, &editor, SLOT(clear()));
    editor.readGCode(program(499).join(QLatin1String("\n")));
    // The event loop was not served either: the clear() is still to come.
    QCOMPARE(editor.blockCount(), 499);
    QVERIFY(!LoadWatcher::dialog());
    QTRY_COMPARE(editor.blockCount(), 1);
}

void TestGCodeLoader::eventsAreServedAfterEachPiece_data()
{
    QTest::addColumn<int>("parts");
    QTest::newRow("500 parts") << 500;
    QTest::newRow("523 parts") << 523;
    QTest::newRow("5049 parts") << 5049;
}

void TestGCodeLoader::eventsAreServedAfterEachPiece()
{
    QFETCH(int, parts);
    QList<int> expected;
    int position = 0;
    Q_FOREACH (int size, WAQP::chunkSizes(parts, 50))
        expected << (position += size);
    // At its maximum the dialog resets itself.
    expected.last() = -1;

    WGCodeEditer editor(nullptr);
    LoadWatcher watcher;
    editor.readGCode(QString(parts - 1, QLatin1Char('\n')));
    QCOMPARE(watcher.values, expected);
}

// A second program, opened while the first goes in, ends up in the middle of it.
void TestGCodeLoader::windowStaysUsableBetweenThePieces()
{
    const QString outer = program(600).join(QLatin1String("\n"));
    const QString inner = program(700).join(QLatin1String("\n")).toUpper();
    QPlainTextEdit plain;
    plainRead(plain, outer, 1);
    plain.clear();
    plainRead(plain, inner);
    const QStringList rest = outer.split(QLatin1Char('\n')).mid(12);
    for (int i = 0; i < rest.size(); i += 12)
        plain.appendPlainText(plainPreproccess(rest.mid(i, 12)));

    WGCodeEditer editor(nullptr);
    bool entered = false;
    LoadWatcher watcher([&](QProgressDialog *) {
        if (entered)
            return;
        entered = true;
        editor.clear();
        editor.readGCode(inner);
    });
    editor.readGCode(outer);
    QVERIFY(entered);
    QCOMPARE(blocks(editor), blocks(plain));
    QVERIFY(editor.updatesEnabled());
}

void TestGCodeLoader::wrappedProgramIsLaidOutForItsWidth()
{
    // The gutter gets wider as the program goes in: each line has to be broken anew.
    const QString line = QLatin1String("G01 X100 Y200 Z300 U400 V500 W600 F7000 S8000 T9 M10");
    const QStringList lines = QStringList(QVector<QString>(1200, line).toList());
    WGCodeEditer editor(nullptr);
    editor.setLineWrapMode(QPlainTextEdit::WidgetWidth);
    editor.setWordWrapMode(QTextOption::WordWrap);
    editor.resize(300, 300);
    editor.show();
    QVERIFY(TestCompat::waitForExposed(&editor));
    const int width = editor.lineNumberAreaWidth();
    editor.readGCode(lines.join(QLatin1String("\n")));
    QVERIFY(editor.lineNumberAreaWidth() > width);
    QCOMPARE(editor.blockCount(), 1200);
    QCOMPARE(editor.horizontalScrollBar()->maximum(), 0);
    const QTextBlock first = editor.document()->firstBlock();
    QVERIFY(first.layout()->lineCount() > 1);
    QVERIFY(first.layout()->lineAt(0).naturalTextWidth() <= editor.viewport()->width());
}

void TestGCodeLoader::updatesComeBack_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("abort");
    QTest::newRow("after a whole load") << true << false;
    QTest::newRow("after an abort") << true << true;
    QTest::newRow("switched off before, after a whole load") << false << false;
    QTest::newRow("switched off before, after an abort") << false << true;
}

void TestGCodeLoader::updatesComeBack()
{
    QFETCH(bool, enabled);
    QFETCH(bool, abort);
    WGCodeEditer editor(nullptr);
    editor.show();
    QVERIFY(TestCompat::waitForExposed(&editor));
    editor.setUpdatesEnabled(enabled);
    LoadWatcher watcher([&](QProgressDialog *progress) {
        if (abort)
            press(progress);
    });
    editor.readGCode(program(600).join(QLatin1String("\n")));
    QCOMPARE(editor.updatesEnabled(), enabled);
}

void TestGCodeLoader::updatesHeldByTheParentComeBack()
{
    QWidget screen;
    WGCodeEditer *editor = new WGCodeEditer(&screen);
    screen.setUpdatesEnabled(false);
    editor->readGCode(program(600).join(QLatin1String("\n")));
    QVERIFY(!editor->updatesEnabled());
    screen.setUpdatesEnabled(true);
    QVERIFY(editor->updatesEnabled());
}

void TestGCodeLoader::elapsedTimeGoesToTheDebugOutput_data()
{
    QTest::addColumn<int>("parts");
    QTest::addColumn<bool>("abort");
    QTest::newRow("short program") << 10 << false;
    QTest::newRow("long program") << 600 << false;
    QTest::newRow("aborted") << 600 << true;
}

void TestGCodeLoader::elapsedTimeGoesToTheDebugOutput()
{
    QFETCH(int, parts);
    QFETCH(bool, abort);
    WGCodeEditer editor(nullptr);
    LoadWatcher watcher([&](QProgressDialog *progress) {
        if (abort)
            press(progress);
    });
    editor.readGCode(program(parts).join(QLatin1String("\n")));
    const QStringList messages = StrictMessages::debugMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(QRegExp(QLatin1String("Elapsed: [0-9]{1,5}")).exactMatch(messages.first().trimmed()),
             qPrintable(messages.first()));
}

void TestGCodeLoader::abortKeepsThePiecesSoFar_data()
{
    QTest::addColumn<int>("pieces");
    QTest::newRow("after the first piece") << 1;
    QTest::newRow("after the second piece") << 2;
    QTest::newRow("in the middle") << 25;
    QTest::newRow("before the last piece") << 49;
    QTest::newRow("after the last piece") << 50;
}

void TestGCodeLoader::abortKeepsThePiecesSoFar()
{
    QFETCH(int, pieces);
    const QString text = program(1030).join(QLatin1String("\n"));
    QPlainTextEdit plain;
    plainRead(plain, text, pieces);

    WGCodeEditer editor(nullptr);
    int turns = 0;
    LoadWatcher watcher([&](QProgressDialog *progress) {
        if (++turns == pieces)
            press(progress);
    });
    editor.readGCode(text);
    QCOMPARE(turns, pieces);
    QCOMPARE(difference(editor, plain), QString());
    QVERIFY(!LoadWatcher::dialog());
}

void TestGCodeLoader::abortedWindowNamesTheWholeFile()
{
    const QString path = programDir() + QLatin1String("/long.cnc");
    writeFile(path, program(1000).join(QLatin1String("\n")).toUtf8());
    OpenWindow window;
    LoadWatcher watcher([](QProgressDialog *progress) { press(progress); });
    window.loadFile(path);
    // A fiftieth, of which two comments and two empty lines are gone.
    QCOMPARE(window.m_editor->blockCount(), 16);
    QCOMPARE(window.m_editor->getLineText(15), QString("N19 G01 X19.5"));
    QCOMPARE(window.windowTitle(), QString("long.cnc[*] - Application"));
    QCOMPARE(window.getCurrentFile(), path);
    QVERIFY(!window.isWindowModified());
    QVERIFY(!window.m_editor->document()->isModified());
}

void TestGCodeLoader::savingAfterAnAbortStoresTheFrontPart()
{
    const QString path = programDir() + QLatin1String("/long.cnc");
    writeFile(path, program(1000).join(QLatin1String("\n")).toUtf8());
    OpenWindow window;
    LoadWatcher watcher([](QProgressDialog *progress) { press(progress); });
    window.loadFile(path);
    QVERIFY(window.save());
    QCOMPARE(readFile(path), plainPreproccess(program(20)).toUtf8());
}

void TestGCodeLoader::closedProgressDialogAborts()
{
    WGCodeEditer editor(nullptr);
    LoadWatcher watcher([](QProgressDialog *progress) { progress->close(); });
    editor.readGCode(program(1000).join(QLatin1String("\n")));
    QCOMPARE(editor.blockCount(), 16);
}

void TestGCodeLoader::secondLoadAfterAnAbortIsWhole()
{
    const QString text = program(1000).join(QLatin1String("\n"));
    WGCodeEditer editor(nullptr);
    {
        LoadWatcher watcher([](QProgressDialog *progress) { press(progress); });
        editor.readGCode(text);
    }
    editor.clear();
    editor.readGCode(text);
    QCOMPARE(editor.document()->toPlainText(), plainPreproccess(program(1000)));
}

void TestGCodeLoader::millionLinesCanBeAborted()
{
    const int lines = scaled(1000000);
    const QString text = QString::fromLatin1("N10 G01 X100.25 Y-3\n").repeated(lines);
    WGCodeEditer editor(nullptr);
    editor.show();
    QVERIFY(TestCompat::waitForExposed(&editor));
    int turns = 0;
    LoadWatcher watcher([&](QProgressDialog *progress) {
        if (++turns == 2)
            press(progress);
    });
    editor.readGCode(text);
    QCOMPARE(turns, 2);
    const QVector<int> sizes = WAQP::chunkSizes(lines + 1, 50);
    QCOMPARE(editor.blockCount(), sizes.at(0) + sizes.at(1));
    QVERIFY(editor.updatesEnabled());
}

// The pieces, the list of lines and the like must not add up to the document's own size again.
void TestGCodeLoader::millionLinesLoad()
{
    const int lines = scaled(1000000);
    const QString text = QString::fromLatin1("G1 X2.5\n").repeated(lines);
    WGCodeEditer editor(nullptr);
    writeFile(QLatin1String("/proc/self/clear_refs"), "5");
    const qint64 before = processMemory("VmRSS:");
    editor.readGCode(text);
    const qint64 document = processMemory("VmRSS:") - before;
    const qint64 peak = processMemory("VmHWM:") - before;
    QCOMPARE(editor.blockCount(), lines);
    QCOMPARE(editor.getLineText(lines - 1), QString("G1 X2.5"));
    // A sanitizer keeps what is freed, to see whether anyone still uses it.
    if (isSanitized())
        return;
    QVERIFY(document > 0);
    QVERIFY(peak < document + document / 2);
}

FILARIX_TEST_MAIN(TestGCodeLoader)
#include "tst_gcodeloader.moc"
