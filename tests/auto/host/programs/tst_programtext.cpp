// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// What the loader makes of a program, ProgramText::loaded(), is compared with the loader itself in
// tst_programcomparison.

#include "filarixtest.h"
#include "programs/programtext.h"

class TestProgramText : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void bytesComeBack_data();
    void bytesComeBack();
    void linesAreTheEditors_data();
    void linesAreTheEditors();
    void fileIsRead();
    void windowsLineEndsAreFaithful();
    void bytesOfNoCharacterAreNot();
    void missingFileHasTheSystemsReason();
    void shortProgramIsOnePiece();
    void codeIsWhatStandsBeforeTheSemicolon();
    void pieceOutlivesTheText();
    void rowsAreCountedWithoutComments();

private:
    static QString path() { return programDir() + "/coil.cnc"; }
};

void TestProgramText::bytesComeBack_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("lines") << QByteArray("G01\nG02\n");
    QTest::newRow("another alphabet") << QByteArray("; \xd0\x96\n");
}

void TestProgramText::bytesComeBack()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(ProgramText::encoded(ProgramText::decoded(bytes)), bytes);
}

void TestProgramText::linesAreTheEditors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("lines");
    QTest::newRow("nothing") << QString() << 1;
    QTest::newRow("no end") << QString("G01") << 1;
    QTest::newRow("ends") << QString("G01\n\n") << 3;
}

void TestProgramText::linesAreTheEditors()
{
    QFETCH(QString, text);
    QFETCH(int, lines);
    QCOMPARE(ProgramText::lines(text), qint64(lines));
}

void TestProgramText::fileIsRead()
{
    writeFile(path(), "G01\nG02\n");
    QString text;
    QString error;
    bool isFaithful = false;
    QVERIFY(ProgramText::read(path(), &text, &error, &isFaithful));
    QCOMPARE(text, QString("G01\nG02\n"));
    QVERIFY(isFaithful);
}

void TestProgramText::windowsLineEndsAreFaithful()
{
    writeFile(path(), "G01\r\nG02\r\n");
    QString text;
    QString error;
    bool isFaithful = false;
    QVERIFY(ProgramText::read(path(), &text, &error, &isFaithful));
    QCOMPARE(text, QString("G01\nG02\n"));
    QVERIFY(isFaithful);
}

void TestProgramText::bytesOfNoCharacterAreNot()
{
    writeFile(path(), "G01\n\xff\n");
    QString text;
    QString error;
    bool isFaithful = true;
    QVERIFY(ProgramText::read(path(), &text, &error, &isFaithful));
    QVERIFY(!isFaithful);
}

void TestProgramText::missingFileHasTheSystemsReason()
{
    QString text;
    QString error;
    bool isFaithful = true;
    QVERIFY(!ProgramText::read(path(), &text, &error, &isFaithful));
    QVERIFY2(error.contains("No such file"), qPrintable(error));
}

void TestProgramText::shortProgramIsOnePiece()
{
    const QString text = "; head\n\nG01 ; tail\n";
    QCOMPARE(ProgramText::loaded(text), QStringList(text));
    const QString almost = QString("G01 ;\n").repeated(ProgramText::loaderThreshold - 2);
    QCOMPARE(ProgramText::loaded(almost), QStringList(almost));
}

void TestProgramText::codeIsWhatStandsBeforeTheSemicolon()
{
    const QString text = QString("G01 ; tail\n; note\n\n G02\n").repeated(250);
    const QStringList pieces = ProgramText::loaded(text);
    QCOMPARE(pieces.size(), int(ProgramText::loaderPieces));
    QCOMPARE(pieces.join("\n").split("\n").size(), 500);
    QVERIFY(pieces.first().startsWith("G01 \n G02\nG01 \n G02"));
    QVERIFY(!pieces.join("\n").contains(';'));
}

// A piece of one line is a copy as any other.
void TestProgramText::pieceOutlivesTheText()
{
    QStringList pieces;
    {
        QString text = "G77\n" + QString(";\n").repeated(600);
        text.detach();
        pieces = ProgramText::loaded(text);
        text.fill('x');
    }
    QCOMPARE(pieces.first(), QString("G77"));
}

void TestProgramText::rowsAreCountedWithoutComments()
{
    const QString text("; title\nG01\n\n  ; blanks\nG02 ; why\n");
    QCOMPARE(ProgramText::rowOf(text, 1), 0);
    QCOMPARE(ProgramText::rowOf(text, 2), 1);
    QCOMPARE(ProgramText::rowOf(text, 3), 1);
    QCOMPARE(ProgramText::rowOf(text, 4), 2);
    QCOMPARE(ProgramText::rowOf(text, 5), 3);
    QCOMPARE(ProgramText::rowOf(text, 100), 3);
}

FILARIX_TEST_MAIN(TestProgramText)
#include "tst_programtext.moc"
