// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WMMainWindow: the words in force, WordsInForce, Rule and Scanner.

#include "filarixtest.h"
#include "wgcodeediter.h"
#include "whighlighter.h"
#include "wmmainwindow.h"

#include <QTextBlock>
#include <QTextTable>

#include <ctime>
#include <random>

/// WMMainWindow::getEffectiveString() and the two operations that it is made of, which this file
/// reaches with access control off.
class TestEffectiveFilter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatChangesSomething_data();
    void keepsWhatChangesSomething();
    void asksTheCursorsLineAndThoseAbove();
    void changesNothing();
    void splitsWordsIntoNamesAndValues_data();
    void splitsWordsIntoNamesAndValues();
    void splitAppendsToTheLists();
    void comparesWithTheNearestLine_data();
    void comparesWithTheNearestLine();
    void blocksThatAreNoSingleLine();
    void tablesAndFramesEndALine();
    void sameAsThePlainStepsOnRandomDocuments();
    void sameAsThePlainStepsOnLongDocuments();
    void everyLineAboveIsRead();
    void aNameThatStandsNowhereInAMillionLines();
};

namespace {

/// The filter word for word, as a program of few lines can afford it.
namespace Plain {

QStringList words(const QString &line)
{
    return line.split(QLatin1Char(' '), QString::SkipEmptyParts);
}

bool splitString(const QStringList &words, QStringList &names, QList<double> &values)
{
    bool result = false;
    Q_FOREACH (const QString &word, words) {
        if (word == QString::fromLatin1(""))
            continue;
        QString valueText;
        for (int i = 1; i < word.size(); ++i)
            valueText += word.at(i);
        if (valueText.isEmpty())
            continue;
        names << QString(word.at(0));
        values << valueText.toDouble();
        result = true;
    }
    return result;
}

bool compareString(WGCodeEditer &editor, int lineNumber, const QString &name, double value)
{
    for (; lineNumber >= 0; --lineNumber) {
        QStringList names;
        QList<double> values;
        splitString(words(editor.getLineText(lineNumber)), names, values);
        const int index = names.indexOf(name);
        if (index >= 0)
            return values.at(index) == value;
    }
    return false;
}

QString getEffectiveString(WGCodeEditer &editor, const QString &line)
{
    QString kept;
    const int startLine = editor.currentLineNumber();
    const QStringList parts = words(line);
    if (parts.size() > 0)
        kept = parts.at(0);
    int start;
    if (kept.indexOf(QLatin1Char('g')) >= 0) {
        start = 1;
    } else if (kept.indexOf(QLatin1Char('G')) >= 0) {
        start = 1;
    } else {
        kept = QString();
        start = 0;
    }
    QStringList names;
    QList<double> values;
    const bool split = splitString(parts, names, values);
    if (names.size() != values.size())
        return kept;
    if (!split)
        return kept;
    if (start >= names.size())
        return QString();
    bool keptAWord = false;
    for (int i = start; i <= names.size() - 1; ++i) {
        if (!compareString(editor, startLine, names.at(i), values.at(i))) {
            kept = kept + QLatin1String(" ") + parts.at(i);
            keptAWord = true;
        }
    }
    return keptAWord ? kept : QString();
}

} // namespace Plain

struct Desk
{
    Desk() : window(nullptr, 0), editor(window.findChild<WGCodeEditer *>()) {}
    void load(const QString &text, int row = 0)
    {
        editor->setPlainText(text);
        goTo(row);
    }
    void goTo(int row)
    {
        QTextCursor cursor(editor->document()->findBlockByNumber(row));
        editor->setTextCursor(cursor);
    }
    WMMainWindow window;
    WGCodeEditer *editor;
};

const char twoLines[] = "G01 X10 Y20\nG01 Z5";

} // namespace

void TestEffectiveFilter::keepsWhatChangesSomething_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("candidate");
    QTest::addColumn<QString>("result");
    const char *const empty = "";
    QTest::newRow("one word in force, one changed") << twoLines << "G01 X10 Y30"
                                                    << "G01 Y30";
    QTest::newRow("all in force") << twoLines << "G01 X10 Y20" << empty;
    QTest::newRow("same number, other text") << twoLines << "G01 X10.0" << empty;
    QTest::newRow("found on the cursor's own line") << twoLines << "G01 Z5" << empty;
    QTest::newRow("another number") << twoLines << "G01 Z6"
                                    << "G01 Z6";
    QTest::newRow("the G word alone") << twoLines << "G01" << empty;
    QTest::newRow("no G word: a leading blank") << twoLines << "X11 Y20"
                                                << " X11";
    QTest::newRow("a name on no line") << twoLines << "M3"
                                       << " M3";
    QTest::newRow("an empty line") << twoLines << "" << empty;
    QTest::newRow("one character with a G") << twoLines << "G"
                                            << "G";
    QTest::newRow("one character without a G") << twoLines << "X" << empty;
    QTest::newRow("words and names out of step") << twoLines << "G0 X Y30"
                                                 << "G0 X";

    QTest::newRow("blanks only") << twoLines << "    " << empty;
    QTest::newRow("doubled name, the first in force") << "X1"
                                                      << "X1 X2"
                                                      << " X2";
    QTest::newRow("doubled name, the second in force") << "X2"
                                                       << "X1 X2"
                                                       << " X1";
    QTest::newRow("lower-case g counts") << "Y1"
                                         << "g1 X5"
                                         << "g1 X5";
    QTest::newRow("a g inside of the first word counts") << "Y1"
                                                         << "Xg1 Y2"
                                                         << "Xg1 Y2";
    QTest::newRow("and that word is not compared") << "X0 Y1"
                                                   << "Xg1 Y1" << empty;
    QTest::newRow("a g in a later word does not count") << "Y1"
                                                        << "X1 Yg1"
                                                        << " X1 Yg1";
    QTest::newRow("empty document") << ""
                                    << "G01 X1 Y2 M3"
                                    << "G01 X1 Y2 M3";
    QTest::newRow("empty document, no G word") << ""
                                               << "X1 Y2"
                                               << " X1 Y2";
    QTest::newRow("doubled name on the nearest line: its first counts") << "X1 X2"
                                                                        << "X1" << empty;
    QTest::newRow("doubled name on the nearest line: its second does not") << "X1 X2"
                                                                           << "X2"
                                                                           << " X2";
    QTest::newRow("the nearest line decides") << "X1\nX2"
                                              << "X1"
                                              << " X1";
    QTest::newRow("bad numbers are zero") << "X0"
                                          << "Xabc" << empty;
    QTest::newRow("zero equals a bad number") << "Xabc"
                                              << "X0" << empty;
    QTest::newRow("bad numbers equal each other") << "X1.2.3"
                                                  << "Xabc" << empty;
    QTest::newRow("nearly the same number") << "X10"
                                            << "X10.0001"
                                            << " X10.0001";
    QTest::newRow("names are case-sensitive") << "X10"
                                              << "x10"
                                              << " x10";
    QTest::newRow("exponents are numbers") << "X1000"
                                           << "X1e3" << empty;
    QTest::newRow("nan equals nothing") << "Xnan"
                                        << "Xnan"
                                        << " Xnan";
    QTest::newRow("infinity equals itself") << "Xinf"
                                            << "Xinf" << empty;
    QTest::newRow("minus zero is zero") << "X0"
                                        << "X-0" << empty;
    QTest::newRow("a comment is read like words") << "; X5"
                                                  << "X5" << empty;
    QTest::newRow("a tab does not separate") << "X1\tY2"
                                             << "Y2"
                                             << " Y2";
    QTest::newRow("a tab is part of the word") << "X1"
                                               << "X1\tY2"
                                               << " X1\tY2";
    QTest::newRow("a no-break space does not separate")
        << QString(QLatin1String("X1") + QChar(0xa0) + QLatin1String("Y2")) << "Y2"
        << " Y2";
    QTest::newRow("runs of blanks") << "  X1   Y2 "
                                    << "   G1   X1   Y3  "
                                    << "G1 Y3";
    QTest::newRow("one-character words on the way up") << "Y2\nX Y X"
                                                       << "Y2" << empty;
    QTest::newRow("one-character word first") << "Y2"
                                              << "X Y3"
                                              << " X";
    QTest::newRow("two one-character words") << ""
                                             << "X Y Z1 W2"
                                             << " X Y";
    QTest::newRow("G alone before a word") << ""
                                           << "G X5" << empty;
}

void TestEffectiveFilter::keepsWhatChangesSomething()
{
    QFETCH(QString, document);
    QFETCH(QString, candidate);
    QFETCH(QString, result);
    Desk desk;
    desk.load(document, document.count(QLatin1Char('\n')));
    QCOMPARE(desk.window.getEffectiveString(candidate), result);
    QCOMPARE(Plain::getEffectiveString(*desk.editor, candidate), result);
}

void TestEffectiveFilter::asksTheCursorsLineAndThoseAbove()
{
    Desk desk;
    desk.load(QLatin1String("G01 X1\nG01 X2\nG01 X3"), 1);
    QCOMPARE(desk.window.getEffectiveString(QLatin1String("G01 X2")), QString());
    QCOMPARE(desk.window.getEffectiveString(QLatin1String("G01 X3")),
             QString::fromLatin1("G01 X3"));
    desk.goTo(0);
    QCOMPARE(desk.window.getEffectiveString(QLatin1String("G01 X1")), QString());
    desk.goTo(2);
    QCOMPARE(desk.window.getEffectiveString(QLatin1String("G01 X3")), QString());
}

void TestEffectiveFilter::changesNothing()
{
    Desk desk;
    desk.load(QLatin1String(twoLines), 1);
    QTextCursor cursor = desk.editor->textCursor();
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    desk.editor->setTextCursor(cursor);
    desk.editor->document()->setModified(false);
    desk.window.getEffectiveString(QLatin1String("G01 X10 Y30"));
    QCOMPARE(desk.editor->toPlainText(), QString::fromLatin1(twoLines));
    QCOMPARE(desk.editor->textCursor(), cursor);
    QVERIFY(!desk.editor->document()->isModified());
}

void TestEffectiveFilter::splitsWordsIntoNamesAndValues_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("values");
    QTest::newRow("none") << QStringList() << QStringList() << "";
    QTest::newRow("empty words") << (QStringList() << QString() << QLatin1String(""))
                                 << QStringList() << "";
    QTest::newRow("one-character words")
        << (QStringList() << QLatin1String("X") << QLatin1String("G")) << QStringList() << "";
    QTest::newRow("pairs") << (QStringList() << QLatin1String("G01") << QLatin1String("X-2.5"))
                           << (QStringList() << QLatin1String("G") << QLatin1String("X"))
                           << "1 -2.5";
    QTest::newRow("bad numbers") << (QStringList() << QLatin1String("X1.2.3") << QLatin1String("Y")
                                                   << QLatin1String("(comment"))
                                 << (QStringList() << QLatin1String("X") << QLatin1String("("))
                                 << "0 0";
}

void TestEffectiveFilter::splitsWordsIntoNamesAndValues()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, names);
    QFETCH(QString, values);
    Desk desk;
    QStringList splitNames;
    QList<double> splitValues;
    QCOMPARE(desk.window.splitString(words, splitNames, splitValues), !names.isEmpty());
    QCOMPARE(splitNames, names);
    QStringList valueTexts;
    Q_FOREACH (double value, splitValues)
        valueTexts << QString::number(value);
    QCOMPARE(valueTexts.join(QLatin1String(" ")), values);
}

void TestEffectiveFilter::splitAppendsToTheLists()
{
    Desk desk;
    QStringList names(QLatin1String("A"));
    QList<double> values;
    values << 7.0;
    QVERIFY(desk.window.splitString(QStringList(QLatin1String("X1")), names, values));
    QVERIFY(!desk.window.splitString(QStringList(QLatin1String("X")), names, values));
    QCOMPARE(names, QStringList() << QLatin1String("A") << QLatin1String("X"));
    QCOMPARE(values, QList<double>() << 7.0 << 1.0);
}

void TestEffectiveFilter::comparesWithTheNearestLine_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("inForce");
    QTest::newRow("on the line itself") << 1 << "Z" << 5.0 << true;
    QTest::newRow("on the line above") << 1 << "X" << 10.0 << true;
    QTest::newRow("another value") << 1 << "X" << 10.5 << false;
    QTest::newRow("below the line") << 0 << "Z" << 5.0 << false;
    QTest::newRow("a negative line") << -1 << "X" << 10.0 << false;
    QTest::newRow("a line beyond the document") << 500 << "Z" << 5.0 << true;
    QTest::newRow("a name of two characters") << 1 << "X1" << 0.0 << false;
    QTest::newRow("an empty name") << 1 << "" << 10.0 << false;
}

void TestEffectiveFilter::comparesWithTheNearestLine()
{
    QFETCH(int, line);
    QFETCH(QString, name);
    QFETCH(double, value);
    QFETCH(bool, inForce);
    Desk desk;
    desk.load(QLatin1String(twoLines));
    QCOMPARE(desk.window.compareString(line, name, value), inForce);
    QCOMPARE(Plain::compareString(*desk.editor, line, name, value), inForce);
}

void TestEffectiveFilter::blocksThatAreNoSingleLine()
{
    // A soft break makes two lines of a block, and a hidden block has none.
    Desk desk;
    desk.window.show();
    const QString broken =
        QLatin1String("X1") + QChar(QChar::LineSeparator) + QLatin1String("Y2 A1");
    desk.load(broken + QLatin1String("\nX3\nY4\nZ5\nX6"), 4);
    QVERIFY(TestCompat::waitForExposed(&desk.window));
    QCOMPARE(desk.editor->document()->lineCount(), 6);
    const QStringList candidates = QStringList()
                                   << QLatin1String("X6 Y4 Z5 A1") << QLatin1String("X3 Y2 Z6 A2")
                                   << QLatin1String("X0 Y0");
    for (int hidden = -1; hidden < 5; ++hidden) {
        if (hidden >= 0) {
            QTextBlock block = desk.editor->document()->findBlockByNumber(hidden);
            block.setVisible(false);
            block.setLineCount(0);
        }
        for (int row = 0; row < 5; ++row) {
            desk.goTo(row);
            Q_FOREACH (const QString &candidate, candidates) {
                QCOMPARE(desk.window.getEffectiveString(candidate),
                         Plain::getEffectiveString(*desk.editor, candidate));
            }
        }
    }
    desk.window.hide();
}

namespace {

class Generator
{
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QString word(const QString &names)
    {
        static const QStringList values =
            QString::fromLatin1(
                "1,2,1.0,1.00,10,-1,0,-0,.5,0.5,1e0,abc,1.2.3,nan,inf,-,1\t,\t1,1;,g1")
                .split(QLatin1Char(','));
        QString text(names.at(below(names.size())));
        // One in eight has no value: it counts for nothing and puts words and names out of step.
        if (below(8) != 0)
            text += values.at(below(values.size()));
        return text;
    }
    QString line(const QString &names, int maxWords)
    {
        static const QString separators = QString::fromLatin1("     \t") + QChar(0xa0);
        QString text;
        for (int i = below(maxWords + 1); i > 0; --i) {
            text += word(names);
            text += separators.at(below(separators.size()));
            if (below(6) == 0)
                text += QLatin1Char(' ');
        }
        return text;
    }

private:
    std::mt19937 m_random;
};

} // namespace

void TestEffectiveFilter::tablesAndFramesEndALine()
{
    // Only a host that fills the document itself has them; far above the cursor, where the text is
    // read as a whole.
    Desk desk;
    QTextCursor cursor(desk.editor->document());
    cursor.insertText(QLatin1String("X1"));
    cursor.insertTable(1, 2)->cellAt(0, 1).firstCursorPosition().insertText(QLatin1String("Y2"));
    cursor.movePosition(QTextCursor::End);
    cursor.insertFrame(QTextFrameFormat())->firstCursorPosition().insertText(QLatin1String("Z3"));
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QLatin1String("U4") + QString(600, QLatin1Char('\n')));
    const int last = desk.editor->document()->lineCount() - 1;
    const QStringList words = QStringList() << "X1"
                                            << "Y2"
                                            << "Z3"
                                            << "U4";
    Q_FOREACH (const QString &word, words) {
        const QString name = word.left(1);
        const double value = word.mid(1).toInt();
        QVERIFY2(desk.window.compareString(last, name, value), qPrintable(word));
        QVERIFY2(!desk.window.compareString(last, name, value + 1), qPrintable(word));
    }
}

void TestEffectiveFilter::sameAsThePlainStepsOnRandomDocuments()
{
    const int documents = scaled(100000);
    const QString names = QString::fromLatin1("GgXYZxM;(") + QChar(0xe9) + QChar(0xd835);
    Generator random(1103u);
    Desk desk;
    desk.editor->blockSignals(true);
    desk.editor->findChild<WHighlighter *>()->setDocument(nullptr);
    int kept = 0;
    for (int i = 0; i < documents; ++i) {
        const int lines = random.below(7);
        QString text;
        for (int line = 0; line < lines; ++line)
            text += random.line(names, 4) + QLatin1Char('\n');
        desk.load(text, random.below(lines + 1));
        const QString candidate = random.line(names, 5);
        const QString shipped = desk.window.getEffectiveString(candidate);
        const QString plain = Plain::getEffectiveString(*desk.editor, candidate);
        QVERIFY2(shipped == plain,
                 qPrintable(QString::fromLatin1("\"%1\" at row %2 of \"%3\": \"%4\", not \"%5\"")
                                .arg(candidate)
                                .arg(desk.editor->currentLineNumber())
                                .arg(text, shipped, plain)));
        kept += shipped.isEmpty() ? 0 : 1;
    }
    // The cases are worth comparing: some give a line and some don't.
    QVERIFY(kept > documents / 4);
    QVERIFY(kept < documents * 3 / 4);
}

void TestEffectiveFilter::sameAsThePlainStepsOnLongDocuments()
{
    // Names that get rarer from one to the next, so that some are found near the cursor, some far
    // above it, and some nowhere.
    const QString names = QLatin1String("XYZUVWABCDE");
    Generator random(2207u);
    Desk desk;
    desk.editor->blockSignals(true);
    desk.editor->findChild<WHighlighter *>()->setDocument(nullptr);
    for (int i = scaled(12, 2); i > 0; --i) {
        const int lines = 300 + random.below(4000);
        QString text;
        for (int line = 0; line < lines; ++line) {
            int rarity = 0;
            while (rarity < names.size() - 1 && random.below(3) == 0)
                ++rarity;
            text += random.line(names.mid(rarity, 1), 2) + QLatin1Char('\n');
        }
        desk.editor->setPlainText(text);
        for (int k = 0; k < 40; ++k) {
            desk.goTo(random.below(lines + 1));
            const QString candidate = random.line(names, 6);
            QCOMPARE(desk.window.getEffectiveString(candidate),
                     Plain::getEffectiveString(*desk.editor, candidate));
        }
    }
}

void TestEffectiveFilter::everyLineAboveIsRead()
{
    // One name a line: whatever way the search takes up the document, it must miss no line.
    const int lines = 1500;
    const int firstName = 0x4e00;
    QString text;
    for (int i = 0; i < lines; ++i)
        text += QChar(firstName + i) + QString::number(i) + QLatin1Char('\n');
    Desk desk;
    desk.load(text, lines);
    for (int i = 0; i < lines; ++i) {
        const QString name(QChar(firstName + i));
        QVERIFY2(desk.window.compareString(lines, name, i), qPrintable(QString::number(i)));
        QVERIFY2(!desk.window.compareString(lines, name, i + 1), qPrintable(QString::number(i)));
    }
    const QString both = QChar(firstName) + QString::fromLatin1("0 ") + QChar(firstName + lines - 1)
                         + QString::number(lines - 1);
    QCOMPARE(desk.window.getEffectiveString(both), QString());
    QCOMPARE(desk.window.getEffectiveString(both + QLatin1String(" X1")),
             QString::fromLatin1(" X1"));
}

/// The milliseconds that the processor has worked for this program, whatever else it has to do.
static qint64 worked()
{
    return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

void TestEffectiveFilter::aNameThatStandsNowhereInAMillionLines()
{
    const int lines = scaled(1000) * 1000;
    QString text;
    text.reserve(lines * 12);
    for (int i = 1; i < lines; ++i)
        text += QString::fromLatin1("G01 X%1\n").arg(i % 1000);
    text += QLatin1String("M30");
    Desk desk;
    desk.editor->blockSignals(true);
    desk.editor->findChild<WHighlighter *>()->setDocument(nullptr);
    desk.load(text, lines - 1);
    QCOMPARE(desk.editor->currentLineNumber(), lines - 1);

    qint64 start = worked();
    QCOMPARE(desk.window.getEffectiveString(QLatin1String("G01 X999 Y5 Z6")),
             QString::fromLatin1("G01 Y5 Z6"));
    const qint64 nowhere = worked() - start;
    qint64 nearby = nowhere;
    for (int i = 0; i < 10; ++i) {
        start = worked();
        QCOMPARE(desk.window.getEffectiveString(QLatin1String("G01 X999")), QString());
        nearby = qMin(nearby, worked() - start);
    }
    // Asking a million lines one by one takes many times the first limit, and the second shows that
    // a near word never asks for the whole text.
    QVERIFY2(nowhere < patience(1500), qPrintable(QString::number(nowhere)));
    QVERIFY2(nearby < patience(10), qPrintable(QString::number(nearby)));
}

FILARIX_TEST_MAIN(TestEffectiveFilter)
#include "tst_effectivefilter.moc"
