// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "blockformatter_p.h"
#include "filarixtest.h"
#include "whighlighter.h"

#include <QDir>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <random>

class TestWHighlighter : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void belongsToItsDocument();
    void wordsTakeTheirColours_data();
    void wordsTakeTheirColours();
    void aFormatSetsItsForegroundAlone_data();
    void aFormatSetsItsForegroundAlone();
    void anEmptyBlockHasNoFormats();
    void anEditColoursItsBlockAnew();
    void anEditThatChangesTheRuleAloneChangesTheColour();
    void textThatIsNotWhatWasExpectedIsReadBack_data();
    void textThatIsNotWhatWasExpectedIsReadBack();
    void aChangeBehindTheEndColoursNothing();
    void aHighlighterThatDoesNotListenIsLeftAlone();
    void marksAreNotDrawn();
    void aHostsHighlighterUsesAMarkUp();
    void outsideOfHighlightingAMarkDrawsNothing();
    void sameAsTheSixExpressionsOnRandomLines();
    void sameAsTheSixExpressionsOnSamplePrograms();
};

namespace {

struct Rule
{
    const char *pattern;
    Qt::GlobalColor colour;
    char letter;
};

// Feed and speed share a colour.
const Rule rules[] = {
    {"G[0-9]{1,2}", Qt::darkGreen, 'g'},
    {"M[0-9]{1,2}", Qt::darkCyan, 'm'},
    {"[X,Y,Z,U,V,W,I,J,K]\\-?\\d+\\.?\\d*", Qt::darkMagenta, 'a'},
    {"F\\-?\\d+\\.?\\d*", Qt::blue, 'b'},
    {"S\\d+", Qt::blue, 'b'},
    {"T[0-9]{1,2}", Qt::darkYellow, 't'},
};
const char plain = '-';
const char unknown = '?';

QTextCharFormat formatOf(Qt::GlobalColor colour)
{
    QTextCharFormat format;
    format.setForeground(QBrush(colour, Qt::SolidPattern));
    return format;
}

/// One letter a character: the rule whose format it has.
QString colours(const QTextBlock &block)
{
    QString letters(block.text().size(), QLatin1Char(plain));
    Q_FOREACH (const QTextLayout::FormatRange &range, block.layout()->additionalFormats()) {
        char letter = unknown;
        for (const Rule &rule : rules) {
            if (range.format == formatOf(rule.colour))
                letter = rule.letter;
        }
        for (int i = range.start; i < range.start + range.length; ++i)
            letters[i] = QLatin1Char(letter);
    }
    return letters;
}

/// A highlighter takes notice of a document that has a layout, as the editor's has, and not before
/// the event loop ran once.
WHighlighter *newHighlighter(QTextDocument *document)
{
    document->setDocumentLayout(new QPlainTextDocumentLayout(document));
    WHighlighter *highlighter = new WHighlighter(document);
    QCoreApplication::processEvents();
    return highlighter;
}

QString colours(const QString &line)
{
    QTextDocument document;
    newHighlighter(&document);
    document.setPlainText(line);
    return colours(document.firstBlock());
}

/// The same by applying the expressions one after the other.
QString expected(const QString &line)
{
    static QList<QRegExp> expressions;
    if (expressions.isEmpty()) {
        for (const Rule &rule : rules)
            expressions.append(QRegExp(QLatin1String(rule.pattern)));
    }
    QString letters(line.size(), QLatin1Char(plain));
    for (int i = 0; i < expressions.size(); ++i) {
        const QRegExp &expression = expressions.at(i);
        int index = expression.indexIn(line);
        while (index >= 0) {
            const int length = expression.matchedLength();
            letters.replace(index, length, QString(length, QLatin1Char(rules[i].letter)));
            index = expression.indexIn(line, index + length);
        }
    }
    return letters;
}

void compareAll(const QTextDocument &document)
{
    for (QTextBlock block = document.firstBlock(); block.isValid(); block = block.next()) {
        const QString shipped = colours(block);
        const QString wanted = expected(block.text());
        QVERIFY2(shipped == wanted, qPrintable(QString::fromLatin1("\"%1\": %2 instead of %3")
                                                   .arg(block.text(), shipped, wanted)));
    }
}

/// As a host may make it: draws the marks too.
class MarkDrawer : public WHighlighter
{
public:
    explicit MarkDrawer(QTextDocument *document) : WHighlighter(document) {}

protected:
    void highlightBlock(const QString &text) override
    {
        WHighlighter::highlightBlock(text);
        highlightErrorCode(text);
    }
};

QTextCharFormat errorFormat()
{
    QTextCharFormat format;
    format.setFontWeight(75);
    format.setForeground(QBrush(Qt::red, Qt::SolidPattern));
    return format;
}

} // namespace

void TestWHighlighter::belongsToItsDocument()
{
    QTextDocument document;
    WHighlighter *highlighter = new WHighlighter(&document);
    QCOMPARE(highlighter->parent(), static_cast<QObject *>(&document));
    QCOMPARE(highlighter->document(), &document);
    QVERIFY(highlighter->errorLines.isEmpty());
}

void TestWHighlighter::wordsTakeTheirColours_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("letters");
    QTest::newRow("preparatory word") << "G01"
                                      << "ggg";
    QTest::newRow("preparatory word of one digit") << "G1"
                                                   << "gg";
    QTest::newRow("preparatory word of three digits") << "G123"
                                                      << "ggg-";
    QTest::newRow("preparatory word with a sign") << "G-1"
                                                  << "---";
    QTest::newRow("auxiliary word") << "M30"
                                    << "mmm";
    QTest::newRow("auxiliary word of three digits") << "M300"
                                                    << "mmm-";
    QTest::newRow("tool word") << "T5"
                               << "tt";
    QTest::newRow("tool word of three digits") << "T105"
                                               << "ttt-";
    QTest::newRow("tool word with a sign") << "T-1"
                                           << "---";
    QTest::newRow("feed word") << "F1500"
                               << "bbbbb";
    QTest::newRow("feed word with sign and point") << "F-1.25"
                                                   << "bbbbbb";
    QTest::newRow("speed word") << "S500"
                                << "bbbb";
    QTest::newRow("speed word takes no sign") << "S-500"
                                              << "-----";
    QTest::newRow("speed word takes no point") << "S5.5"
                                               << "bb--";
    QTest::newRow("address with a decimal point") << "X12.5"
                                                  << "aaaaa";
    QTest::newRow("address with a point and no digit behind it") << "X12."
                                                                 << "aaaa";
    QTest::newRow("address with a point and no digit before it") << "X.5"
                                                                 << "---";
    QTest::newRow("address with two points") << "X1.2.3"
                                             << "aaaa--";
    QTest::newRow("address with a sign") << "Y-0.5"
                                         << "aaaaa";
    QTest::newRow("address with two signs") << "Y--5"
                                            << "----";
    QTest::newRow("address with a plus") << "Y+5"
                                         << "---";
    QTest::newRow("every address") << "X1Y1Z1U1V1W1I1J1K1"
                                   << "aaaaaaaaaaaaaaaaaa";
    QTest::newRow("letters that are no address") << "A1 B1 C1 D1 E1 H1 L1 N1 O1 P1 Q1 R1"
                                                 << "-----------------------------------";
    QTest::newRow("a comma with a number") << "1,25"
                                           << "-aaa";
    QTest::newRow("a comma with a negative number") << ",-2.5,"
                                                    << "aaaaa-";
    QTest::newRow("lower case") << "g01 x10 f5 s5 m3 t1"
                                << "-------------------";
    QTest::newRow("a whole line") << "G01 X10 Y-2.5 F100"
                                  << "ggg-aaa-aaaaa-bbbb";
    QTest::newRow("without blanks") << "G01X10Y-2.5F100M03"
                                    << "gggaaaaaaaabbbbmmm";
    QTest::newRow("behind a comment") << "; G01 X1"
                                      << "--ggg-aa";
    QTest::newRow("inside of a word") << "AXG12Y"
                                      << "--ggg-";
    QTest::newRow("letters alone") << "G X , F S T M"
                                   << "-------------";
    QTest::newRow("a blank before the number") << "G 1 X 1"
                                               << "-------";
    // Digits of other scripts count in the expressions that say "digit", not in those that say
    // "0 to 9".
    const QString digit(QChar(0x0664));
    QTest::newRow("Arabic digit of an address") << QLatin1String("X1") + digit << "aaa";
    QTest::newRow("Arabic digit of a fraction") << QLatin1String("X1.") + digit << "aaaa";
    QTest::newRow("Arabic digit of a feed") << QLatin1String("F") + digit << "bb";
    QTest::newRow("Arabic digit of a speed") << QLatin1String("S") + digit << "bb";
    QTest::newRow("Arabic digit of a preparatory word") << QLatin1String("G") + digit << "--";
    QTest::newRow("Arabic digit of an auxiliary word") << QLatin1String("M1") + digit << "mm-";
    QTest::newRow("Arabic digit of a tool word") << QLatin1String("T") + digit << "--";
    QTest::newRow("a superscript is no digit") << QLatin1String("X") + QChar(0x00b2) << "--";
}

void TestWHighlighter::wordsTakeTheirColours()
{
    QFETCH(QString, line);
    QFETCH(QString, letters);
    QCOMPARE(colours(line), letters);
    QCOMPARE(expected(line), letters);
}

void TestWHighlighter::aFormatSetsItsForegroundAlone_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("colour");
    QTest::newRow("preparatory") << "G01" << int(Qt::darkGreen);
    QTest::newRow("auxiliary") << "M03" << int(Qt::darkCyan);
    QTest::newRow("address") << "X10" << int(Qt::darkMagenta);
    QTest::newRow("feed") << "F10" << int(Qt::blue);
    QTest::newRow("speed") << "S10" << int(Qt::blue);
    QTest::newRow("tool") << "T01" << int(Qt::darkYellow);
}

void TestWHighlighter::aFormatSetsItsForegroundAlone()
{
    QFETCH(QString, word);
    QFETCH(int, colour);
    QTextDocument document;
    newHighlighter(&document);
    document.setPlainText(word);
    const QList<QTextLayout::FormatRange> ranges =
        document.firstBlock().layout()->additionalFormats();
    QCOMPARE(ranges.size(), 1);
    QCOMPARE(ranges.first().start, 0);
    QCOMPARE(ranges.first().length, 3);
    const QTextCharFormat format = ranges.first().format;
    QCOMPARE(format.foreground().color(), QColor(Qt::GlobalColor(colour)));
    QCOMPARE(format.foreground().style(), Qt::SolidPattern);
    QCOMPARE(format.properties().size(), 1);
}

void TestWHighlighter::anEmptyBlockHasNoFormats()
{
    QTextDocument document;
    newHighlighter(&document);
    document.setPlainText(QLatin1String("G01\n\nM30"));
    QVERIFY(document.findBlockByNumber(1).layout()->additionalFormats().isEmpty());
    QCOMPARE(document.findBlockByNumber(2).layout()->additionalFormats().size(), 1);
}

void TestWHighlighter::anEditColoursItsBlockAnew()
{
    QTextDocument document;
    newHighlighter(&document);
    document.setPlainText(QLatin1String("G01 X1\nG0"));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(QLatin1String(".5"));
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("ggg-aaaa"));
    cursor.setPosition(0);
    cursor.deleteChar();
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("---aaaa"));
    QCOMPARE(colours(document.lastBlock()), QString::fromLatin1("gg"));
}

void TestWHighlighter::anEditThatChangesTheRuleAloneChangesTheColour()
{
    QTextDocument document;
    new BlockFormatter(newHighlighter(&document));
    document.setPlainText(QLatin1String("G01"));
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("ggg"));
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
    cursor.insertText(QLatin1String("M"));
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("mmm"));
}

void TestWHighlighter::textThatIsNotWhatWasExpectedIsReadBack_data()
{
    QTest::addColumn<QString>("expectedText");
    QTest::newRow("as expected") << "X1 G01\nM3";
    QTest::newRow("too short") << "X1";
    QTest::newRow("too short in its second line") << "X1 G01\nM";
    QTest::newRow("too long") << "X1 G01 F1\nM3";
    QTest::newRow("one line in place of two") << "X1 G01 M3";
    QTest::newRow("nothing") << "";
}

void TestWHighlighter::textThatIsNotWhatWasExpectedIsReadBack()
{
    QFETCH(QString, expectedText);
    QTextDocument document;
    BlockFormatter *formatter = new BlockFormatter(newHighlighter(&document));
    formatter->expect(expectedText, 0);
    QTextCursor(&document).insertText(QLatin1String("X1 G01\nM3"));
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("aa-ggg"));
    QCOMPARE(colours(document.lastBlock()), QString::fromLatin1("mm"));
}

void TestWHighlighter::aChangeBehindTheEndColoursNothing()
{
    QTextDocument document;
    BlockFormatter *formatter = new BlockFormatter(newHighlighter(&document));
    document.setPlainText(QLatin1String("G01"));
    document.firstBlock().layout()->clearAdditionalFormats();
    QVERIFY(QMetaObject::invokeMethod(formatter, "formatChange", Q_ARG(int, 4), Q_ARG(int, 0),
                                      Q_ARG(int, 0)));
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("---"));
}

void TestWHighlighter::aHighlighterThatDoesNotListenIsLeftAlone()
{
    QTextDocument document;
    WHighlighter *highlighter = newHighlighter(&document);
    QVERIFY(disconnect(&document, SIGNAL(contentsChange(int, int, int)), highlighter, nullptr));
    new BlockFormatter(highlighter);
    document.setPlainText(QLatin1String("G01"));
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("---"));
}

void TestWHighlighter::marksAreNotDrawn()
{
    QTextDocument document(QLatin1String("G01 X1\nX2"));
    WHighlighter highlighter(&document);
    highlighter.errorLines.insert(0, QList<int>() << 1 << 2);
    highlighter.rehighlight();
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("ggg-aa"));
    QCOMPARE(highlighter.errorLines.value(0), QList<int>() << 1 << 2);
}

void TestWHighlighter::aHostsHighlighterUsesAMarkUp()
{
    QTextDocument document(QLatin1String("G01 X1\nX2\n\nno word"));
    MarkDrawer highlighter(&document);
    highlighter.errorLines.insert(0, QList<int>() << 1);
    highlighter.errorLines.insert(2, QList<int>() << 1);
    highlighter.errorLines.insert(3, QList<int>() << 1);
    highlighter.errorLines.insert(99, QList<int>() << 7);
    highlighter.rehighlight();

    Q_FOREACH (int line, QList<int>() << 0 << 3) {
        // The whole line takes the format, whatever the columns are.
        const QTextBlock block = document.findBlockByNumber(line);
        const QList<QTextLayout::FormatRange> ranges = block.layout()->additionalFormats();
        QCOMPARE(ranges.size(), 1);
        QCOMPARE(ranges.first().start, 0);
        QCOMPARE(ranges.first().length, block.text().size());
        QVERIFY(ranges.first().format == errorFormat());
    }
    QCOMPARE(colours(document.findBlockByNumber(1)), QString::fromLatin1("aa"));
    // The empty line has nothing to draw, and its mark is used up all the same; a line beyond the
    // document never comes.
    QVERIFY(document.findBlockByNumber(2).layout()->additionalFormats().isEmpty());
    QCOMPARE(highlighter.errorLines.keys(), QList<int>() << 99);

    highlighter.rehighlight();
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("ggg-aa"));
}

void TestWHighlighter::outsideOfHighlightingAMarkDrawsNothing()
{
    QTextDocument document(QLatin1String("G01 X1"));
    WHighlighter highlighter(&document);
    highlighter.rehighlight();
    highlighter.errorLines.insert(0, QList<int>() << 1);
    highlighter.highlightErrorCode(document.firstBlock().text());
    QCOMPARE(colours(document.firstBlock()), QString::fromLatin1("ggg-aa"));
    QVERIFY(highlighter.errorLines.contains(0));
}

void TestWHighlighter::sameAsTheSixExpressionsOnRandomLines()
{
    const int documents = scaled(60);
    const int linesEach = 2000;
    const QString digits =
        QLatin1String("0123456789") + QChar(0x0660) + QChar(0x096b) + QChar(0xff17);
    const QString letters = QLatin1String("GMXYZUVWIJKFST,");
    // A mathematical digit takes two characters, neither of which is a digit by itself.
    const QString others = QLatin1String("-.-. ;gxNAB+\t\"") + QChar(0x00e9) + QChar(0x00b2)
                           + QChar(0x4e09) + QChar(0xd835) + QChar(0xdfcf);
    std::mt19937 random(20260727u);
    int coloured = 0;
    QTextDocument document;
    newHighlighter(&document);
    for (int i = 0; i < documents; ++i) {
        QString text;
        for (int line = 0; line < linesEach; ++line) {
            const int length = int(random() % 24);
            for (int k = 0; k < length; ++k) {
                const unsigned kind = unsigned(random() % 8);
                const QString &from = kind < 3 ? letters : kind < 6 ? digits : others;
                text.append(from.at(int(random() % unsigned(from.size()))));
            }
            text.append(QLatin1Char('\n'));
        }
        document.setPlainText(text);
        QCOMPARE(document.blockCount(), linesEach + 1);
        compareAll(document);
        if (QTest::currentTestFailed())
            return;
        for (QTextBlock block = document.firstBlock(); block.isValid(); block = block.next())
            coloured += block.layout()->additionalFormats().isEmpty() ? 0 : 1;
    }
    // The lines are worth comparing: most hold a word, many hold none.
    QVERIFY(coloured > documents * linesEach / 2);
    QVERIFY(coloured < documents * linesEach * 95 / 100);
}

void TestWHighlighter::sameAsTheSixExpressionsOnSamplePrograms()
{
    const QDir samples(QLatin1String(FILARIX_SAMPLE_PROGRAMS));
    const QStringList programs =
        samples.entryList(QStringList(QLatin1String("*.cnc")), QDir::Files, QDir::Name);
    QVERIFY2(!programs.isEmpty(), FILARIX_SAMPLE_PROGRAMS);
    Q_FOREACH (const QString &program, programs) {
        const QByteArray bytes = readFile(samples.filePath(program));
        QVERIFY2(!bytes.isEmpty(), qPrintable(program));
        QTextDocument document;
        newHighlighter(&document);
        document.setPlainText(QString::fromUtf8(bytes));
        compareAll(document);
    }
}

FILARIX_TEST_MAIN(TestWHighlighter)
#include "tst_whighlighter.moc"
