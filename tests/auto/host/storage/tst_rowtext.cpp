// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixrows.h"
#include "filarixtest.h"
#include "rowfixture.h"
#include "storage/rowtext.h"

#include <QElapsedTimer>

typedef QList<QStringList> Rows;

/// Rows to other programs and back.
class TestRowText : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowsComeBack_data();
    void rowsComeBack();
    void csvIsWrittenForSpreadsheets();
    void csvMayHaveAnotherSeparator();
    void csvOfOthersIsRead_data();
    void csvOfOthersIsRead();
    void brokenCsvIsRefused_data();
    void brokenCsvIsRefused();
    void jsonIsWrittenByTheRow();
    void jsonOfOthersIsRead_data();
    void jsonOfOthersIsRead();
    void brokenJsonIsRefused_data();
    void brokenJsonIsRefused();
    void bytesThatAreNoTextAreRefused_data();
    void bytesThatAreNoTextAreRefused();
    void noCutOrFlippedByteGetsPast();
    void deepAndLongTextsAreReadInTime_data();
    void deepAndLongTextsAreReadInTime();
};

namespace {

QStringList row(const char *words)
{
    return QString::fromUtf8(words).split(QLatin1Char('|'));
}

const Rows before = Rows() << QStringList("before");

bool fromCsv(const QByteArray &bytes, Rows *rows, QString *error)
{
    return RowText::fromCsv(bytes, rows, error);
}

typedef bool (*ReadRows)(const QByteArray &bytes, Rows *rows, QString *error);

/// That \a bytes are refused in words, with the rows left alone.
void checkRefusal(ReadRows read, const QByteArray &bytes, int line)
{
    Rows rows = before;
    QString error;
    QVERIFY(!read(bytes, &rows, &error));
    QVERIFY(rows == before);
    QVERIFY2(error.contains(QString("Line %1 ").arg(line)), qPrintable(error));
}

} // namespace

Q_DECLARE_METATYPE(ReadRows)

void TestRowText::rowsComeBack_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::newRow("none") << Rows();
    QTest::newRow("instructions") << (Rows() << RowFixture::taughtRow(1) << RowFixture::taughtRow(2)
                                             << RowFixture::comment("3", "a text"));
    QTest::newRow("tables") << (Rows() << RowFixture::variable("1", "-7.5"));
    QTest::newRow("one empty string") << (Rows() << QStringList(QString()));
    QTest::newRow("empty strings") << (Rows() << row("||") << row("a|") << row("|b"));
    QTest::newRow("separators") << (Rows() << row("a,b|c;d|\te"));
    QTest::newRow("quotation marks") << (Rows() << row("\"|\"\"|a\"b|\"a\""));
    QTest::newRow("line ends") << (Rows() << row("a\nb|\r\n|\r|\n"));
    QTest::newRow("blanks") << (Rows() << row(" |  a|b  |\t"));
    QTest::newRow("signs") << (Rows() << row("\\|\\n|/|[1]|{}|#|=1+1|\x01|\x1f|\x7f"));
    QTest::newRow("wide") << (Rows() << row("sp\xc3\xbcle|\xf0\x9f\x98\x80|\xef\xbb\xbf"));
    QTest::newRow("separators of lines")
        << (Rows() << (QStringList(QString(QChar(0x2028))) << QString(QChar(0x2029)) << "x"));
}

void TestRowText::rowsComeBack()
{
    QFETCH(Rows, rows);
    QString error;
    Rows found = before;
    QVERIFY(RowText::fromCsv(RowText::toCsv(rows), &found, &error));
    QVERIFY(found == rows);
    found = before;
    QVERIFY(RowText::fromCsv(RowText::toCsv(rows, ';'), &found, &error, ';'));
    QVERIFY(found == rows);
    found = before;
    QVERIFY(RowText::fromJson(RowText::toJson(rows), &found, &error));
    QVERIFY(found == rows);
    QCOMPARE(error, QString());
}

void TestRowText::csvIsWrittenForSpreadsheets()
{
    QCOMPARE(RowText::toCsv(Rows() << row("MJ|1|a,b|say \"go\"|two\nlines|")),
             QByteArray("MJ,1,\"a,b\",\"say \"\"go\"\"\",\"two\nlines\",\r\n"));
    QCOMPARE(RowText::toCsv(Rows() << QStringList(QString()) << QStringList() << row("x")),
             QByteArray("\"\"\r\nx\r\n"));
}

void TestRowText::csvMayHaveAnotherSeparator()
{
    QCOMPARE(RowText::toCsv(Rows() << row("a,b|c;d|e"), ';'), QByteArray("a,b;\"c;d\";e\r\n"));
}

void TestRowText::csvOfOthersIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Rows>("rows");
    QTest::newRow("nothing") << QByteArray() << Rows();
    QTest::newRow("no end of the last line") << QByteArray("a,b") << (Rows() << row("a|b"));
    QTest::newRow("plain line ends") << QByteArray("a\nb\n") << (Rows() << row("a") << row("b"));
    QTest::newRow("empty lines") << QByteArray("\n\r\na\n\n\nb\r\n\r\n")
                                 << (Rows() << row("a") << row("b"));
    QTest::newRow("a byte order mark")
        << QByteArray("\xef\xbb\xbf\"a\",b\n") << (Rows() << row("a|b"));
    QTest::newRow("blanks stay") << QByteArray(" a , b\n") << (Rows() << row(" a | b"));
    QTest::newRow("all in quotation marks")
        << QByteArray("\"a\",\"b\"\r\n\"c\"") << (Rows() << row("a|b") << row("c"));
    QTest::newRow("a separator at the end") << QByteArray("a,") << (Rows() << row("a|"));
}

void TestRowText::csvOfOthersIsRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Rows, rows);
    Rows found = before;
    QString error;
    QVERIFY2(RowText::fromCsv(bytes, &found, &error), qPrintable(error));
    QVERIFY(found == rows);
}

void TestRowText::brokenCsvIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::newRow("a quotation mark that nothing closes") << QByteArray("a\n\"b\nc") << 3;
    QTest::newRow("a text behind a closed one") << QByteArray("\"a\"b\n") << 1;
    QTest::newRow("a blank behind a closed one") << QByteArray("x\n\"a\" ,b\n") << 2;
    QTest::newRow("a quotation mark in a text") << QByteArray("a\nb\nc\"d\n") << 3;
    QTest::newRow("a blank before a quotation mark") << QByteArray("a, \"b\"\n") << 1;
    QTest::newRow("a carriage return alone") << QByteArray("a\rb\n") << 1;
    QTest::newRow("a quotation mark alone") << QByteArray("\"") << 1;
    QTest::newRow("three of them") << QByteArray("\"\"\"") << 1;
}

void TestRowText::brokenCsvIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, line);
    checkRefusal(fromCsv, bytes, line);
}

void TestRowText::jsonIsWrittenByTheRow()
{
    QCOMPARE(RowText::toJson(Rows() << row("MJ|1") << row("a\"\\\n\x01|\xc3\xbc")),
             QByteArray("[[\"MJ\", \"1\"],\n[\"a\\\"\\\\\\n\\u0001\", \"\xc3\xbc\"]]\n"));
    QCOMPARE(RowText::toJson(Rows()), QByteArray("[]\n"));
}

void TestRowText::jsonOfOthersIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Rows>("rows");
    QTest::newRow("no row") << QByteArray("[]") << Rows();
    QTest::newRow("a row without strings") << QByteArray("[[]]") << (Rows() << QStringList());
    QTest::newRow("blanks") << QByteArray(" [\t[ \"a\" ,\r\n\"b\"] ] \n") << (Rows() << row("a|b"));
    QTest::newRow("escapes") << QByteArray("[[\"\\\"\\\\\\/\\b\\f\\n\\r\\t\\u00Fc\"]]")
                             << (Rows() << row("\"\\/\b\f\n\r\t\xc3\xbc"));
    QTest::newRow("a wide escape")
        << QByteArray("[[\"\\ud83d\\ude00\"]]") << (Rows() << row("\xf0\x9f\x98\x80"));
    QTest::newRow("a byte order mark")
        << QByteArray("\xef\xbb\xbf[[\"a\"]]") << (Rows() << row("a"));
}

void TestRowText::jsonOfOthersIsRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Rows, rows);
    Rows found = before;
    QString error;
    QVERIFY2(RowText::fromJson(bytes, &found, &error), qPrintable(error));
    QVERIFY(found == rows);
}

void TestRowText::brokenJsonIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::newRow("nothing") << QByteArray() << 1;
    QTest::newRow("a text") << QByteArray("\"a\"") << 1;
    QTest::newRow("an object") << QByteArray("{}") << 1;
    QTest::newRow("a row that is none") << QByteArray("[\"a\"]") << 1;
    QTest::newRow("a row in a row") << QByteArray("[[[\"a\"]]]") << 1;
    QTest::newRow("a number") << QByteArray("[[1]]") << 1;
    QTest::newRow("null") << QByteArray("[[null]]") << 1;
    QTest::newRow("true") << QByteArray("[[\n\"a\",\ntrue]]") << 3;
    QTest::newRow("no end") << QByteArray("[[\"a\"]") << 1;
    QTest::newRow("no end of a row") << QByteArray("[[\"a\"") << 1;
    QTest::newRow("no end of a string") << QByteArray("[[\"a]]") << 1;
    QTest::newRow("a comma too many") << QByteArray("[[\"a\",]]") << 1;
    QTest::newRow("another comma too many") << QByteArray("[[\"a\"],\n]") << 2;
    QTest::newRow("a comma missing") << QByteArray("[[\"a\"]\n[\"b\"]]") << 2;
    QTest::newRow("a text behind it") << QByteArray("[[\"a\"]]\nx") << 2;
    QTest::newRow("two of them") << QByteArray("[][]") << 1;
    QTest::newRow("a line end in a string") << QByteArray("[[\"a\nb\"]]") << 2;
    QTest::newRow("a tab in a string") << QByteArray("[[\"a\tb\"]]") << 1;
    QTest::newRow("an unknown escape") << QByteArray("[[\"\\x\"]]") << 1;
    QTest::newRow("an escape without an end") << QByteArray("[[\"\\") << 1;
    QTest::newRow("a short number") << QByteArray("[[\"\\u00f\"]]") << 1;
    QTest::newRow("a null") << QByteArray("[[\"\\u0000\"]]") << 1;
    QTest::newRow("half a character") << QByteArray("[[\"\\ud83d\"]]") << 1;
    QTest::newRow("the other half") << QByteArray("[[\"\\ude00x\"]]") << 1;
    QTest::newRow("a comment") << QByteArray("[[\"a\"]] // b") << 1;
    QTest::newRow("other quotation marks") << QByteArray("[['a']]") << 1;
}

void TestRowText::brokenJsonIsRefused()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, line);
    checkRefusal(RowText::fromJson, bytes, line);
}

void TestRowText::bytesThatAreNoTextAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Latin-1") << QByteArray("[[\"sp\xfcle\"]]");
    QTest::newRow("null") << QByteArray("[[\"a\0\"]]", 8);
    QTest::newRow("another encoding") << QByteArray("\xff\xfe[\0[\0", 6);
    QTest::newRow("cut off") << QByteArray("a,\xc3");
}

void TestRowText::bytesThatAreNoTextAreRefused()
{
    QFETCH(QByteArray, bytes);
    Q_FOREACH (ReadRows read, QList<ReadRows>()
                                  << ReadRows(fromCsv) << ReadRows(RowText::fromJson)) {
        Rows rows = before;
        QString error;
        QVERIFY(!read(bytes, &rows, &error));
        QVERIFY(rows == before);
        QCOMPARE(error, QString("This is not a text file."));
    }
}

/// Whatever is done to the bytes: rows or a word, never both, and no row from a JSON that is cut.
void TestRowText::noCutOrFlippedByteGetsPast()
{
    const Rows rows = Rows() << row("MJ|1|a\"b|\xc3\xbc,\n") << row("x|");
    const QByteArray json = RowText::toJson(rows);
    const QByteArray csv = RowText::toCsv(rows);
    for (int length = 0; length < json.size() - 1; ++length) {
        Rows found = before;
        QString error;
        QVERIFY2(!RowText::fromJson(json.left(length), &found, &error),
                 qPrintable(QString::number(length)));
    }
    for (int i = 0; i < 256 * csv.size(); ++i) {
        QByteArray bytes = csv;
        bytes[i / 256] = char(i % 256);
        Rows found = before;
        QString error;
        const bool isRead = RowText::fromCsv(bytes, &found, &error);
        QVERIFY(isRead == error.isEmpty());
        QVERIFY(isRead || found == before);
    }
    for (int i = 0; i < 256 * json.size(); ++i) {
        QByteArray bytes = json;
        bytes[i / 256] = char(i % 256);
        Rows found = before;
        QString error;
        const bool isRead = RowText::fromJson(bytes, &found, &error);
        QVERIFY(isRead == error.isEmpty());
        QVERIFY(isRead || found == before);
    }
}

void TestRowText::deepAndLongTextsAreReadInTime_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<ReadRows>("read");
    QTest::addColumn<bool>("isRead");
    const int size = scaled(2000000);
    QTest::newRow("nested") << QByteArray(size, '[') << ReadRows(RowText::fromJson) << false;
    QTest::newRow("quotation marks") << QByteArray(size, '"') << ReadRows(fromCsv) << true;
    QTest::newRow("separators") << QByteArray(size, ',') << ReadRows(fromCsv) << true;
    QTest::newRow("line ends") << QByteArray(size, '\n') << ReadRows(fromCsv) << true;
    QTest::newRow("one string") << "[[\"" + QByteArray(size, 'a') + "\"]]"
                                << ReadRows(RowText::fromJson) << true;
}

void TestRowText::deepAndLongTextsAreReadInTime()
{
    QFETCH(QByteArray, bytes);
    QFETCH(ReadRows, read);
    QFETCH(bool, isRead);
    Rows rows;
    QString error;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(read(bytes, &rows, &error), isRead);
    QVERIFY(timer.elapsed() < patience(3000));
}

FILARIX_TEST_MAIN(TestRowText)
#include "tst_rowtext.moc"
