// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/blockreader.h"

class TestBlockReader : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void words_data();
    void words();
    void faults_data();
    void faults();
    void columnsOfBytesAreThoseOfTheEditor_data();
    void columnsOfBytesAreThoseOfTheEditor();
    void bytesOfNoUtf8AreFound();
    void linesAreCounted();
    void commentHasItsPlace();
    void tapeMarkIsNoFault();
    void onlySoManyWordsAndFaultsAreKept();
    void aCommentOfManyLettersHidesNoFault();
    void whatStandsBeyondTheLongestLineIsTold();
    void codesAreTenths();
    void numbersAreThoseOfTheToolkit();
};

static QString textOf(const GCodeBlock &block)
{
    QStringList words;
    for (const GCodeWord &word : block)
        words << QString("%1%2@%3+%4")
                     .arg(QLatin1Char(word.letter))
                     .arg(word.value)
                     .arg(word.column)
                     .arg(word.length);
    return words.join(" ");
}

static QString faultsOf(const GCodeBlock &block)
{
    static const char *const names[] = {
        "control", "nonascii", "comment nonascii", "stray", "missing", "malformed", "large", "open",
        "words",   "long"};
    QStringList faults;
    for (int i = 0; i < block.faultCount; ++i)
        faults << QString("%1@%2+%3")
                      .arg(names[block.faults[i].kind])
                      .arg(block.faults[i].column)
                      .arg(block.faults[i].length);
    return faults.join(" ");
}

void TestBlockReader::words_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("words");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("blanks") << " \t "
                            << "";
    QTest::newRow("plain") << "G01 X1.5 F200"
                           << "G1@1+3 X1.5@5+4 F200@10+4";
    QTest::newRow("without blanks") << "G01X1.5F200"
                                    << "G1@1+3 X1.5@4+4 F200@8+4";
    QTest::newRow("small letters") << "g33 x12.625 k0.25"
                                   << "G33@1+3 X12.625@5+7 K0.25@13+5";
    QTest::newRow("blank before the number") << "X 5 Y\t-2"
                                             << "X5@1+3 Y-2@5+4";
    QTest::newRow("signs and points") << "X+.5 Y-1. Z-.25"
                                      << "X0.5@1+4 Y-1@6+4 Z-0.25@11+5";
    QTest::newRow("block number") << "N0010 G0"
                                  << "N10@1+5 G0@7+2";
    QTest::newRow("comment behind") << "M30; the end X5"
                                    << "M30@1+3";
    QTest::newRow("comment between") << "G1 (slow) X5 (fast) Y6"
                                     << "G1@1+2 X5@11+2 Y6@21+2";
    QTest::newRow("semicolon in a comment") << "(a;b) X1"
                                            << "X1@7+2";
    QTest::newRow("bracket behind a semicolon") << "X1 ;(a"
                                                << "X1@1+2";
    QTest::newRow("line end of another system") << "X1\r"
                                                << "X1@1+2";
    QTest::newRow("twice the same letter") << "X1 X2"
                                           << "X1@1+2 X2@4+2";
    QTest::newRow("many digits") << "X0.1234567890123456789"
                                 << "X0.123457@1+22";
    QTest::newRow("small beyond measure") << "X0.0000000000000000000000000001"
                                          << "X0@1+31";
    QTest::newRow("zeros in front") << "X00000000000000000000000012.5"
                                    << "X12.5@1+29";
}

void TestBlockReader::words()
{
    QFETCH(QString, line);
    QFETCH(QString, words);
    BlockReader reader;
    const GCodeBlock &ofText = reader.read(line);
    QCOMPARE(textOf(ofText), words);
    QCOMPARE(faultsOf(ofText), QString());
    const QByteArray bytes = line.toLatin1();
    const GCodeBlock &ofBytes = reader.read(bytes.constData(), bytes.size());
    QCOMPARE(textOf(ofBytes), words);
    QCOMPARE(faultsOf(ofBytes), QString());
}

void TestBlockReader::faults_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("faults");
    QTest::newRow("letter alone") << "G1 X Y2"
                                  << "G1@1+2 Y2@6+2"
                                  << "missing@4+1";
    QTest::newRow("letter at the end") << "G1 X"
                                       << "G1@1+2"
                                       << "missing@4+1";
    QTest::newRow("number alone") << "G1 12"
                                  << "G1@1+2"
                                  << "stray@4+2";
    QTest::newRow("two numbers") << "X1 2"
                                 << "X1@1+2"
                                 << "stray@4+1";
    QTest::newRow("two points") << "X1.2.3 Y1"
                                << "Y1@8+2"
                                << "malformed@1+6";
    QTest::newRow("two signs") << "X+-1 Y1"
                               << "Y1@6+2"
                               << "malformed@1+4";
    QTest::newRow("sign alone") << "X- Y1"
                                << "Y1@4+2"
                                << "malformed@1+2";
    QTest::newRow("point alone") << "X. Y1"
                                 << "Y1@4+2"
                                 << "malformed@1+2";
    QTest::newRow("sign behind") << "X5-3"
                                 << ""
                                 << "malformed@1+4";
    QTest::newRow("a decimal comma") << "X1,5"
                                     << "X1@1+2"
                                     << "stray@3+2";
    QTest::newRow("too large") << "X12345678901 Y1"
                               << "Y1@14+2"
                               << "large@1+12";
    QTest::newRow("too large by far") << "X" + QString(400, '9') + " Y1"
                                      << "Y1@403+2"
                                      << "large@1+401";
    QTest::newRow("other signs") << "X1 */ Y2"
                                 << "X1@1+2 Y2@7+2"
                                 << "stray@4+2";
    QTest::newRow("control characters") << "X1 \x01\x02 Y2"
                                        << "X1@1+2 Y2@7+2"
                                        << "control@4+2";
    QTest::newRow("NUL") << "X1" + QString(QChar(0)) + "Y2"
                         << "X1@1+2 Y2@4+2"
                         << "control@3+1";
    QTest::newRow("NUL in a comment") << ";" + QString(QChar(0)) << ""
                                      << "control@2+1";
    QTest::newRow("return inside") << "X1\rY2"
                                   << "X1@1+2 Y2@4+2"
                                   << "control@3+1";
    QTest::newRow("open comment") << "X1 (to the pin"
                                  << "X1@1+2"
                                  << "open@4+11";
    QTest::newRow("closed without opening") << "X1)"
                                            << "X1@1+2"
                                            << "stray@3+1";
}

void TestBlockReader::faults()
{
    QFETCH(QString, line);
    QFETCH(QString, words);
    QFETCH(QString, faults);
    BlockReader reader;
    const GCodeBlock &ofText = reader.read(line);
    QCOMPARE(textOf(ofText), words);
    QCOMPARE(faultsOf(ofText), faults);
    const QByteArray bytes = line.toLatin1();
    const GCodeBlock &ofBytes = reader.read(bytes.constData(), bytes.size());
    QCOMPARE(textOf(ofBytes), words);
    QCOMPARE(faultsOf(ofBytes), faults);
}

void TestBlockReader::columnsOfBytesAreThoseOfTheEditor_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("faults");
    QTest::newRow("two bytes") << QString::fromUtf8("X1 \u00e4\u00f6 Y2") << "X1@1+2 Y2@7+2"
                               << "nonascii@4+2";
    QTest::newRow("three bytes") << QString::fromUtf8("\u2193X1") << "X1@2+2"
                                 << "nonascii@1+1";
    QTest::newRow("four bytes") << QString::fromUtf8("\U0001f600X1") << "X1@3+2"
                                << "nonascii@1+2";
    QTest::newRow("in a comment") << QString::fromUtf8("(\u00fcber \u4e2d\u6587) X1") << "X1@11+2"
                                  << "comment nonascii@2+1 comment nonascii@7+2";
    QTest::newRow("a minus of typography") << QString::fromUtf8("X\u22125 Y1") << "Y1@5+2"
                                           << "missing@1+1 nonascii@2+1 stray@3+1";
}

void TestBlockReader::columnsOfBytesAreThoseOfTheEditor()
{
    QFETCH(QString, line);
    QFETCH(QString, words);
    QFETCH(QString, faults);
    BlockReader reader;
    const GCodeBlock &ofText = reader.read(line);
    QCOMPARE(textOf(ofText), words);
    QCOMPARE(faultsOf(ofText), faults);
    const QByteArray bytes = line.toUtf8();
    const GCodeBlock &ofBytes = reader.read(bytes.constData(), bytes.size());
    QCOMPARE(textOf(ofBytes), words);
    QCOMPARE(faultsOf(ofBytes), faults);
}

void TestBlockReader::bytesOfNoUtf8AreFound()
{
    BlockReader reader;
    const QByteArray latin("X1 \xb5 Y2 ; 20 \xb0"
                           "C \xe4\xf6");
    const GCodeBlock &block = reader.read(latin.constData(), latin.size());
    QCOMPARE(textOf(block), QString("X1@1+2 Y2@6+2"));
    QCOMPARE(faultsOf(block), QString("nonascii@4+1 comment nonascii@14+1 comment nonascii@17+2"));
}

void TestBlockReader::linesAreCounted()
{
    BlockReader reader;
    QCOMPARE(reader.line(), 0);
    QCOMPARE(reader.read(QString("X1")).line, 1);
    QCOMPARE(reader.read(QString()).line, 2);
    reader.setLine(99);
    QCOMPARE(reader.read("X1", 2).line, 100);
    QCOMPARE(reader.line(), 100);
}

void TestBlockReader::commentHasItsPlace()
{
    BlockReader reader;
    const GCodeBlock &block = reader.read(QString("G1 (slow) X5 ; fast"));
    QCOMPARE(block.commentColumn, 4);
    QCOMPARE(block.commentLength, 6);
    QVERIFY(!block.isEmpty());
    reader.read(QString("  ; fast"));
    QCOMPARE(block.commentColumn, 3);
    QCOMPARE(block.commentLength, 6);
    QVERIFY(block.isEmpty());
    reader.read(QString("X1"));
    QCOMPARE(block.commentColumn, 0);
    QCOMPARE(block.commentLength, 0);
}

void TestBlockReader::tapeMarkIsNoFault()
{
    BlockReader reader;
    const GCodeBlock &block = reader.read(QString(" %O1000"));
    QVERIFY(block.isMark);
    QVERIFY(!block.isEmpty());
    QCOMPARE(textOf(block), QString());
    QCOMPARE(faultsOf(block), QString());
    reader.read(QString("X1 %"));
    QVERIFY(!block.isMark);
    QCOMPARE(faultsOf(block), QString("stray@4+1"));
}

void TestBlockReader::onlySoManyWordsAndFaultsAreKept()
{
    BlockReader reader;
    const int mostWords = GCodeBlock::mostWords;
    const int mostFaults = GCodeBlock::mostFaults;
    const GCodeBlock &words = reader.read(QString("X1").repeated(mostWords + 3));
    QCOMPARE(words.wordCount, mostWords);
    QCOMPARE(faultsOf(words), QString("words@%1+6").arg(2 * mostWords + 1));
    const GCodeBlock &faults = reader.read(QString("X ").repeated(mostFaults + 3));
    QCOMPARE(faults.faultCount, mostFaults);
    QCOMPARE(faults.moreFaults, 3);
}

void TestBlockReader::aCommentOfManyLettersHidesNoFault()
{
    BlockReader reader;
    const QString letters = QString(QChar(0xe4)) + 'a';
    const GCodeBlock &block = reader.read('(' + letters.repeated(100) + ") X @");
    QCOMPARE(block.moreFaults, 0);
    QVERIFY2(faultsOf(block).endsWith("missing@204+1 stray@206+1"), qPrintable(faultsOf(block)));
}

void TestBlockReader::whatStandsBeyondTheLongestLineIsTold()
{
    BlockReader reader;
    const int longest = BlockReader::longestLine;
    const QString full = "X1" + QString(longest - 2, ' ');
    QCOMPARE(faultsOf(reader.read(full)), QString());
    const GCodeBlock &block = reader.read(full + "Y2");
    QCOMPARE(textOf(block), QString("X1@1+2"));
    QCOMPARE(faultsOf(block), QString("long@%1+2").arg(longest + 1));
    reader.read(QString("X ").repeated(longest));
    QCOMPARE(int(block.faults[block.faultCount - 1].kind), int(BlockFault::LineTooLong));
}

void TestBlockReader::codesAreTenths()
{
    GCodeWord word;
    word.value = 33;
    QCOMPARE(word.code(), 330);
    word.value = 38.2;
    QCOMPARE(word.code(), 382);
    word.value = 38.25;
    QCOMPARE(word.code(), -1);
    word.value = -1;
    QCOMPARE(word.code(), -1);
    word.value = 1e9;
    QCOMPARE(word.code(), -1);
}

void TestBlockReader::numbersAreThoseOfTheToolkit()
{
    BlockReader reader;
    quint32 seed = 20261122;
    const auto random = [&seed](quint32 below) {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % below;
    };
    for (int i = 0; i < 20000; ++i) {
        const QString number = QString("%1%2.%3")
                                   .arg(random(2) ? "-" : "")
                                   .arg(random(100000))
                                   .arg(random(1000000), int(random(7)), 10, QLatin1Char('0'));
        const GCodeBlock &block = reader.read("X" + number);
        QCOMPARE(block.wordCount, 1);
        QCOMPARE(block.words[0].value, number.toDouble());
    }
}

FILARIX_TEST_MAIN(TestBlockReader)
#include "tst_blockreader.moc"
