// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/modalwords.h"

#include <QElapsedTimer>
#include <QTextBlock>
#include <QTextDocument>

class TestModalWords : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAboveALine_data();
    void wordsAboveALine();
    void lineItselfCountsForNothing();
    void profileThatKnowsNothingGivesNothing();
    void ownProfileSaysWhatTheWordsDo();
    void longProgramTakesNoLonger();
};

namespace {

QString wordsBelow(const QString &text,
                   const MachineProfile &profile = MachineProfile::forSamples())
{
    QTextDocument document(text);
    return ModalWords::before(document.lastBlock(), profile);
}

} // namespace

void TestModalWords::wordsAboveALine_data()
{
    QTest::addColumn<QString>("above");
    QTest::addColumn<QString>("words");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("no words") << "; G90 F200\n(S300)\n\n"
                              << "";
    QTest::newRow("order") << "S300 M03 T1\nF200 G01 G90 G21\n"
                           << "G90 G01 F200 S300 M03 G21 T1";
    QTest::newRow("the nearest one") << "G90 F100\nG91\nF200\nF 300.5 G0\n"
                                     << "G91 G00 F300.5";
    QTest::newRow("last of a line") << "G00 X1 G01 F1 F2\n"
                                    << "G01 F2";
    QTest::newRow("small letters, one digit") << "g90 g1x2f3\n"
                                              << "G90 G01 F3";
    QTest::newRow("a dwell's time is no feed") << "G01 F200\nG04 F0.2\n"
                                               << "G01 F200";
    QTest::newRow("axes and pitch don't last") << "G33 X10 K0.25 U2\n"
                                               << "G33";
    QTest::newRow("spindle off") << "M03\nS0 M05\n"
                                 << "S0 M05";
    QTest::newRow("unknown words") << "G17 H2 Q5 M99\n"
                                   << "";
    QTest::newRow("behind the end") << "G90 G01 F200\nM30\nS5\n"
                                    << "S5";
}

void TestModalWords::wordsAboveALine()
{
    QFETCH(QString, above);
    QFETCH(QString, words);
    QCOMPARE(wordsBelow(above), words);
}

void TestModalWords::lineItselfCountsForNothing()
{
    QCOMPARE(wordsBelow("G90\nG91 G01"), QString("G90"));
}

void TestModalWords::profileThatKnowsNothingGivesNothing()
{
    QCOMPARE(wordsBelow("G90 G01 F200\n", MachineProfile()), QString());
}

void TestModalWords::ownProfileSaysWhatTheWordsDo()
{
    QByteArray text = MachineProfile::sampleText();
    text.replace("G91 = relative, positions", "G91.1 = relative, positions");
    text.replace("F = feed", "E = feed");
    text.replace("dwell = F", "dwell = E");
    QStringList errors;
    const MachineProfile profile = MachineProfile::fromText(text, "own", &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(wordsBelow("G90\nG91.1 E70 F200\n", profile), QString("G91.1 E70"));
}

/// What stands farther up than the look back goes is left out, and never guessed.
void TestModalWords::longProgramTakesNoLonger()
{
    const int lines = 300000;
    QString text = "G91\n";
    text += QString("X1 Y2 Z3 U1\n").repeated(lines);
    text += "G01 F200\n";
    QTextDocument document(text);
    // The first look has to make the lines' place in the document known.
    const QTextBlock last = document.lastBlock();
    QElapsedTimer time;
    time.start();
    const QString words = ModalWords::before(last, MachineProfile::forSamples());
    QCOMPARE(words, QString("G01 F200"));
    QVERIFY2(time.elapsed() < FilarixTest::patience(1000),
             qPrintable(QString::number(time.elapsed())));
}

FILARIX_TEST_MAIN(TestModalWords)
#include "tst_modalwords.moc"
