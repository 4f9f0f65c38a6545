// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "modaldriver.h"
#include "openwindow.h"

#include <QTextDocument>

namespace {

QString pathOf(const char *name)
{
    return FilarixTest::programDir() + QLatin1Char('/') + QLatin1String(name);
}

/// \a count copies of \a line, the last one without its line end.
QByteArray lines(int count, const QByteArray &line = "G01 X1\n")
{
    QByteArray bytes;
    bytes.reserve(count * line.size());
    for (int i = 0; i < count; ++i)
        bytes += line;
    bytes.chop(1);
    return bytes;
}

/// Opens a program as an operator does.
bool open(OpenWindow &window, const char *name)
{
    ModalDriver person;
    person.then([name](QWidget *dialog) {
        WFileDialog *const picker = qobject_cast<WFileDialog *>(dialog);
        if (!picker)
            return;
        picker->nameEdit->setText(QLatin1String(name));
        picker->applyButton->click();
    });
    return QMetaObject::invokeMethod(&window, "open") && person.finished();
}

bool save(OpenWindow &window)
{
    bool isSaved = false;
    return QMetaObject::invokeMethod(&window, "save", Q_RETURN_ARG(bool, isSaved)) && isSaved;
}

} // namespace

/// Programs that no editor of ours has made: what the document holds, what is stored, and that what
/// is stored stays the same from then on.
class TestUntidyPrograms : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void isOpenedAndStored_data();
    void isOpenedAndStored();
    void paragraphSeparatorsBeforeACommentTakeTwoSaves();
    void oneLongLine_data();
    void oneLongLine();
    void longLineOnTheScreen();
    void emptyLinesOnly_data();
    void emptyLinesOnly();
};

void TestUntidyPrograms::isOpenedAndStored_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("stored");

    QTest::newRow("empty") << QByteArray("") << QString() << QByteArray("");
    QTest::newRow("one line end") << QByteArray("\n") << "\n" << QByteArray("\n");
    QTest::newRow("no final line end") << QByteArray("G1\nG2") << "G1\nG2" << QByteArray("G1\nG2");
    QTest::newRow("CR LF") << QByteArray("G1\r\nG2\r\n") << "G1\nG2\n" << QByteArray("G1\nG2\n");
    QTest::newRow("CR LF and LF") << QByteArray("G1\r\nG2\nG3\r\n") << "G1\nG2\nG3\n"
                                  << QByteArray("G1\nG2\nG3\n");
    // A carriage return counts for nothing, so there is no line end at all.
    QTest::newRow("CR only") << QByteArray("G1\rG2\rG3\r") << "G1G2G3" << QByteArray("G1G2G3");
    QTest::newRow("CR CR LF") << QByteArray("G1\r\r\nG2") << "G1\nG2" << QByteArray("G1\nG2");

    const QString withNul = QLatin1String("G1") + QChar(0) + QLatin1String("X2\nG3") + QChar(0);
    QTest::newRow("NUL bytes") << QByteArray("G1\0X2\nG3\0", 9) << withNul
                               << QByteArray("G1\0X2\nG3\0", 9);
    QTest::newRow("NUL bytes alone")
        << QByteArray(3, '\0') << QString(3, QChar(0)) << QByteArray(3, '\0');
    QTest::newRow("tabs and other control characters")
        << QByteArray("G1\tX2\x01\x1b\x7f\v") << "G1\tX2\x01\x1b\x7f\v"
        << QByteArray("G1\tX2\x01\x1b\x7f\v");
    QTest::newRow("UTF-8 byte-order mark")
        << QByteArray("\xef\xbb\xbfG1\nG2") << "G1\nG2" << QByteArray("G1\nG2");
    QTest::newRow("UTF-8 byte-order mark alone")
        << QByteArray("\xef\xbb\xbf") << QString() << QByteArray("");
    QTest::newRow("UTF-16 with its mark") << QByteArray("\xff\xfeG\0001\0\n\0", 8) << "G1\n"
                                          << QByteArray("G1\n");
    const QByteArray comment("G1 ; \xc3\xa4\xe4\xb8\xad\xf0\x9f\x94\xa7");
    QTest::newRow("comment in other languages") << comment << QString::fromUtf8(comment) << comment;
    const QByteArray unknown = TestCompat::signOfAStrayByte();
    QTest::newRow("Latin-1") << QByteArray("G1 ; \xe4\xf6\nG2")
                             << QString::fromUtf8("G1 ; " + unknown + unknown + "\nG2")
                             << "G1 ; " + unknown + unknown + "\nG2";
    QTest::newRow("character cut short") << QByteArray("G1 ; \xe4\xb8\nG2")
                                         << QString::fromUtf8("G1 ; " + unknown + unknown + "\nG2")
                                         << "G1 ; " + unknown + unknown + "\nG2";
    QTest::newRow("file cut short within a character")
        << QByteArray("G1 ; \xe4\xb8") << "G1 ; " << QByteArray("G1 ; ");
    QTest::newRow("no-break space") << QByteArray("G1\xc2\xa0X1") << "G1 X1" << QByteArray("G1 X1");
    QTest::newRow("line and paragraph separators") << QByteArray("a\xe2\x80\xa8"
                                                                 "b\xe2\x80\xa9"
                                                                 "c")
                                                   << "a\nb\nc" << QByteArray("a\nb\nc");

    const struct
    {
        int count;
        const char *name;
    } counts[] = {{498, "498"}, {499, "499"}, {500, "500"}, {501, "501"}};
    for (const auto &count : counts) {
        const QByteArray code = lines(count.count);
        const QByteArray commented = lines(count.count, "X1;c\n");
        const QByteArray cleaned = lines(count.count, "X1\n");
        const bool isCleaned = count.count >= 500;
        const bool isCleanedWithEnd = count.count + 1 >= 500;
        const QByteArray name = count.name;
        QTest::newRow(name + " lines") << code << QString::fromLatin1(code) << code;
        const QByteArray ended = isCleanedWithEnd ? code : code + '\n';
        QTest::newRow(name + " lines and a final line end") << code + '\n'
                                                            << QString::fromLatin1(ended) << ended;
        const QByteArray plain = isCleaned ? cleaned : commented;
        QTest::newRow(name + " lines with comments")
            << commented << QString::fromLatin1(plain) << plain;
        const QByteArray plainEnded = isCleanedWithEnd ? cleaned : commented + '\n';
        QTest::newRow(name + " lines with comments and a final line end")
            << commented + '\n'
            << QString::fromLatin1(plainEnded) << plainEnded;
        QByteArray foreign = commented + '\n';
        foreign.replace("\n", "\r\n");
        QTest::newRow(name + " lines with comments, CR LF")
            << foreign << QString::fromLatin1(plainEnded) << plainEnded;
    }
    QTest::newRow("501 lines that end in CR only")
        << QByteArray(lines(501, "X1;c\r")) << QString::fromLatin1(lines(501, "X1;c ")).remove(' ')
        << lines(501, "X1;c ").replace(' ', "");
}

void TestUntidyPrograms::isOpenedAndStored()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(QByteArray, stored);
    writeFile(pathOf("a.cnc"), bytes);

    OpenWindow window;
    QVERIFY(open(window, "a.cnc"));
    QCOMPARE(window.documentText(), text);
    QVERIFY(!window.isDocumentModified());
    QCOMPARE(readFile(pathOf("a.cnc")), bytes); // reading touches nothing

    QVERIFY(save(window));
    QCOMPARE(readFile(pathOf("a.cnc")), stored);
    QVERIFY(save(window));
    QCOMPARE(readFile(pathOf("a.cnc")), stored);

    // Nor does it change by being opened again, on another day.
    OpenWindow another;
    QVERIFY(open(another, "a.cnc"));
    QCOMPARE(another.documentText(), text);
    QVERIFY(save(another));
    QCOMPARE(readFile(pathOf("a.cnc")), stored);
}

/// Such a separator is no line end to the loader, but it is one to the document: it leaves an empty
/// line, which goes at the next opening.
void TestUntidyPrograms::paragraphSeparatorsBeforeACommentTakeTwoSaves()
{
    QByteArray tail = lines(600);
    writeFile(pathOf("a.cnc"), "G2\xe2\x80\xa9;c\n" + tail);
    OpenWindow window;
    QVERIFY(open(window, "a.cnc"));
    QVERIFY(save(window));
    QCOMPARE(readFile(pathOf("a.cnc")), "G2\n\n" + tail);
    for (int day = 0; day < 2; ++day) {
        OpenWindow another;
        QVERIFY(open(another, "a.cnc"));
        QVERIFY(save(another));
        QCOMPARE(readFile(pathOf("a.cnc")), "G2\n" + tail);
    }
}

void TestUntidyPrograms::oneLongLine_data()
{
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<int>("size");
    QTest::newRow("of letters") << QByteArray("abcdefghij") << scaled(10 * 1000 * 1000);
    QTest::newRow("of NUL bytes") << QByteArray(10, '\0') << scaled(1000 * 1000);
    // Each word has its colour, and that costs several times as much.
    QTest::newRow("of words") << QByteArray("G01 X10.5 Y3 ") << scaled(500 * 1000);
}

void TestUntidyPrograms::oneLongLine()
{
    QFETCH(QByteArray, unit);
    QFETCH(int, size);
    const QByteArray bytes = unit.repeated(size / TestCompat::longLineDivisor() / unit.size());
    writeFile(pathOf("a.cnc"), bytes);
    OpenWindow window;
    QVERIFY(open(window, "a.cnc"));
    QCOMPARE(window.m_editor->blockCount(), 1);
    QVERIFY(window.documentText() == QString::fromLatin1(bytes.constData(), bytes.size()));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(save(window));
        QVERIFY(readFile(pathOf("a.cnc")) == bytes);
    }
}

/// The line can be seen, and the operator gets away from it.
void TestUntidyPrograms::longLineOnTheScreen()
{
    const QByteArray bytes =
        QByteArray("G01 X10.5 Y3 ").repeated(scaled(100000) / TestCompat::longLineDivisor() / 13);
    writeFile(pathOf("a.cnc"), "G1\n" + bytes + "\nG2");
    OpenWindow window;
    window.resize(800, 480);
    window.show();
    QVERIFY(TestCompat::waitForExposed(&window));
    QVERIFY(open(window, "a.cnc"));
    QVERIFY(!TestCompat::grab(&window).isNull());
    window.m_editor->moveEvent(GCODE::MoveDown);
    QCOMPARE(window.m_editor->curLineText(), QString::fromLatin1(bytes));
    window.m_editor->insertLine();
    window.m_editor->moveEvent(GCODE::MoveUp);
    window.m_editor->deleteLine();
    QVERIFY(!TestCompat::grab(&window).isNull());
    QCOMPARE(window.documentText(), QString("G1\n\nG2"));
}

void TestUntidyPrograms::emptyLinesOnly_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("comments") << QByteArray(";\n");
}

void TestUntidyPrograms::emptyLinesOnly()
{
    QFETCH(QByteArray, line);
    writeFile(pathOf("a.cnc"), line.repeated(scaled(1000 * 1000)));
    OpenWindow window;
    QVERIFY(open(window, "a.cnc"));
    QCOMPARE(window.documentText(), QString());
    QCOMPARE(window.m_editor->blockCount(), 1);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(save(window));
        QCOMPARE(readFile(pathOf("a.cnc")), QByteArray(""));
    }
}

FILARIX_TEST_MAIN(TestUntidyPrograms)
#include "tst_untidyprograms.moc"
