// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programcomparison.h"
#include "programs/programtext.h"
#include "waqp.h"
#include "wgcodeediter.h"

#include <sys/stat.h>

namespace {

QString numbered(int lines, const QString &end = QLatin1String("\n"))
{
    QString text;
    for (int i = 1; i <= lines; ++i)
        text += QString::fromLatin1("G01 X%1").arg(i) + end;
    return text;
}

} // namespace

class TestProgramComparison : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void piecesAreTheLoaders_data();
    void piecesAreTheLoaders();
    void verdictFollowsTheText_data();
    void verdictFollowsTheText();
    void fileIsReadAsTheLibraryReadsIt();
    void bytesThatCannotBeDecodedCount_data();
    void bytesThatCannotBeDecodedCount();
    void unreadableFileHasTheSystemsReason();
};

void TestProgramComparison::piecesAreTheLoaders_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("short, with comments") << "; head\n\nG01 ; tail\n";
    QTest::newRow("499 lines without a last end") << numbered(499, " ;\n").trimmed();
    QTest::newRow("499 lines with it") << numbered(499, " ;\n");
    QTest::newRow("not a multiple of the pieces") << "; head\n\n" + numbered(777, " ; tail\n\n");
    QTest::newRow("nothing but comments") << QString("; only\n").repeated(600);
    QTest::newRow("comments at the ends")
        << QString(";\n").repeated(100) + numbered(700) + QString(";\n").repeated(100);
}

// Next to the loader itself.
void TestProgramComparison::piecesAreTheLoaders()
{
    QFETCH(QString, text);
    WGCodeEditer editor(nullptr);
    editor.readGCode(text);
    QStringList kept = ProgramText::loaded(text);
    kept.removeAll(QString());
    QCOMPARE(kept.join("\n"), editor.toPlainText());
    const auto verdict = ProgramComparison::judge(text, editor.toPlainText());
    QVERIFY(verdict == ProgramComparison::Same || verdict == ProgramComparison::Cleaned);
    QCOMPARE(ProgramText::loaded(text).size() == 1,
             text.count('\n') + 1 < ProgramText::loaderThreshold);
}

void TestProgramComparison::verdictFollowsTheText_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("verdict");
    const QString clean = numbered(1000);
    const QString commented = numbered(1000, "; tail\n");
    QTest::newRow("both empty") << QString() << QString() << int(ProgramComparison::Same);
    QTest::newRow("equal") << "G01\n"
                           << "G01\n"
                           << int(ProgramComparison::Same);
    QTest::newRow("last line end")
        << clean << clean.left(clean.size() - 1) << int(ProgramComparison::Same);
    QTest::newRow("two line ends") << "G01\n\n"
                                   << "G01" << int(ProgramComparison::Different);
    QTest::newRow("comments") << commented << clean.left(clean.size() - 1)
                              << int(ProgramComparison::Cleaned);
    QTest::newRow("only comments")
        << QString(";\n").repeated(600) << QString() << int(ProgramComparison::Cleaned);
    QTest::newRow("nothing of a short one") << "G01\n"
                                            << QString() << int(ProgramComparison::Incomplete);
    QTest::newRow("nothing of a long one")
        << clean << QString() << int(ProgramComparison::Incomplete);
    // 1001 parts: a piece of 21 lines.
    QTest::newRow("first piece") << clean << numbered(21).trimmed()
                                 << int(ProgramComparison::Incomplete);
    QTest::newRow("half a piece") << clean << numbered(22).trimmed()
                                  << int(ProgramComparison::Different);
    QTest::newRow("all but the last piece")
        << clean << numbered(981).trimmed() << int(ProgramComparison::Incomplete);
    QTest::newRow("more than the file") << "G01"
                                        << "G01\nG02" << int(ProgramComparison::Different);
    QTest::newRow("other text") << clean << "G99" << int(ProgramComparison::Different);
    QTest::newRow("other text of an empty file")
        << QString() << "G99" << int(ProgramComparison::Different);
}

void TestProgramComparison::verdictFollowsTheText()
{
    QFETCH(QString, file);
    QFETCH(QString, shown);
    QTEST(int(ProgramComparison::judge(file, shown)), "verdict");
}

void TestProgramComparison::fileIsReadAsTheLibraryReadsIt()
{
    writeFile(programDir() + "/coil.cnc", "G01\r\nG02 \xc3\xa9\r\n");
    ProgramComparison comparison(programDir() + "/coil.cnc",
                                 QString::fromUtf8("G01\nG02 \xc3\xa9\n"));
    QVERIFY(!comparison.step());
    QCOMPARE(int(comparison.verdict()), int(ProgramComparison::Same));
    QCOMPARE(comparison.fileLines(), qint64(3));
    QCOMPARE(comparison.shownLines(), qint64(3));
}

void TestProgramComparison::bytesThatCannotBeDecodedCount_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another encoding") << QByteArray("G01 ; \xfc\nG02\n");
    QTest::newRow("a mark of the encoding") << QByteArray("\xef\xbb\xbfG01\nG02\n");
    QTest::newRow("lone returns") << QByteArray("G01\rX1\nG02\n");
}

// The editor shows all that can be decoded; a save would store something else.
void TestProgramComparison::bytesThatCannotBeDecodedCount()
{
    QFETCH(QByteArray, bytes);
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, bytes);
    ProgramComparison comparison(path, ProgramText::decoded(bytes));
    QVERIFY(!comparison.step());
    QCOMPARE(int(comparison.verdict()), int(ProgramComparison::Different));
}

void TestProgramComparison::unreadableFileHasTheSystemsReason()
{
    ProgramComparison comparison(programDir() + "/gone.cnc", "G01");
    QVERIFY(!comparison.step());
    QCOMPARE(int(comparison.verdict()), int(ProgramComparison::Unreadable));
    QCOMPARE(comparison.error(), QString("No such file or directory"));
}

FILARIX_TEST_MAIN(TestProgramComparison)
#include "tst_programcomparison.moc"
