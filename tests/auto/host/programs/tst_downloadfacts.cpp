// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/downloadfacts.h"

class TestDownloadFacts : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesTellHowTheEditorStands_data();
    void linesTellHowTheEditorStands();
    void firstAnswerSendsNothing();
    void questionHoldsWhatAProgramIsToldBy();
    void nameStaysInOneLine();
};

static DownloadFacts facts()
{
    DownloadFacts facts;
    facts.program.name = "coil.cnc";
    facts.program.lines = 20000;
    facts.program.hash = QByteArray::fromHex("3f2a91c0ffff");
    return facts;
}

void TestDownloadFacts::linesTellHowTheEditorStands_data()
{
    QTest::addColumn<int>("standing");
    QTest::addColumn<int>("shown");
    QTest::addColumn<QString>("lines");
    QTest::newRow("not shown") << int(DownloadFacts::NotShown) << -1 << "20000";
    QTest::newRow("same") << int(DownloadFacts::Same) << 20000 << "20000";
    QTest::newRow("same but for the last line end")
        << int(DownloadFacts::Same) << 19999 << "20000 in the file, 19999 shown";
    QTest::newRow("without lines of comment")
        << int(DownloadFacts::Cleaned) << 19000 << "20000 in the file, 19000 shown";
    QTest::newRow("without comments in lines")
        << int(DownloadFacts::Cleaned) << 20000 << "20000 in the file, comments not shown";
    QTest::newRow("the front part")
        << int(DownloadFacts::Incomplete) << 400 << "20000 in the file, 400 shown";
    QTest::newRow("other lines") << int(DownloadFacts::Different) << 20000
                                 << "20000 in the file, others shown";
    QTest::newRow("more lines") << int(DownloadFacts::Different) << 20001
                                << "20000 in the file, 20001 shown";
    QTest::newRow("not compared") << int(DownloadFacts::NotCompared) << 20000
                                  << "20000 in the file, not compared";
}

void TestDownloadFacts::linesTellHowTheEditorStands()
{
    QFETCH(int, standing);
    QFETCH(int, shown);
    DownloadFacts told = facts();
    told.standing = DownloadFacts::Standing(standing);
    told.shownLines = shown;
    QTEST(told.lines(), "lines");
}

void TestDownloadFacts::firstAnswerSendsNothing()
{
    QCOMPARE(facts().question().answers, QStringList() << "Cancel"
                                                       << "Send");
}

void TestDownloadFacts::questionHoldsWhatAProgramIsToldBy()
{
    const Question question = facts().question();
    QCOMPARE(question.plainText(), QString("Send this program to the PLC?\n"
                                           "Program: coil.cnc\n"
                                           "Lines: 20000\n"
                                           "Checksum: 3F2A 91C0"));
    QStringList keys;
    for (const QuestionFact &fact : question.facts)
        keys.append(fact.key);
    QCOMPARE(keys, QStringList() << "name"
                                 << "lines"
                                 << "checksum");
}

// A name may hold anything but "/".
void TestDownloadFacts::nameStaysInOneLine()
{
    DownloadFacts odd = facts();
    odd.program.name = "coil\n  two.cnc";
    QCOMPARE(odd.question().facts.first().value, QString("coil two.cnc"));
    QVERIFY(!odd.question().facts.first().mayBreak);
}

FILARIX_TEST_MAIN(TestDownloadFacts)
#include "tst_downloadfacts.moc"
