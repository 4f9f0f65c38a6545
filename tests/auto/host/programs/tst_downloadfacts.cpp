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
    void verdictIsAFact_data();
    void verdictIsAFact();
    void forbiddenProgramHasNoSecondAnswer();
    void secondQuestionSaysWhy();
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

void TestDownloadFacts::verdictIsAFact_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("errors");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<QString>("value");
    const int checked = ProgramVerdict::Checked;
    QTest::newRow("nothing") << checked << 0 << 0 << "Nothing found";
    QTest::newRow("a warning") << checked << 0 << 1 << "Errors: 0, warnings: 1";
    QTest::newRow("both") << checked << 2 << 1 << "Errors: 2, warnings: 1";
    QTest::newRow("unfinished") << int(ProgramVerdict::Unfinished) << 0 << 0
                                << "Not checked to the end";
}

void TestDownloadFacts::verdictIsAFact()
{
    QFETCH(int, state);
    QFETCH(int, errors);
    QFETCH(int, warnings);
    DownloadFacts checked = facts();
    checked.verdict.state = ProgramVerdict::State(state);
    checked.verdict.errors = errors;
    checked.verdict.warnings = warnings;
    const QuestionFact fact = checked.question().facts.last();
    QCOMPARE(fact.key, QString("check"));
    QTEST(fact.value, "value");
}

void TestDownloadFacts::forbiddenProgramHasNoSecondAnswer()
{
    DownloadFacts forbidden = facts();
    forbidden.verdict.state = ProgramVerdict::Checked;
    forbidden.verdict.errors = 1;
    forbidden.verdict.forbidsSending = true;
    QCOMPARE(forbidden.question().answers, QStringList("Cancel"));
    QCOMPARE(forbidden.question().text,
             QString("This machine takes no program with errors. Mend them, then send it."));
}

void TestDownloadFacts::secondQuestionSaysWhy()
{
    DownloadFacts faulty = facts();
    faulty.verdict.state = ProgramVerdict::Checked;
    faulty.verdict.errors = 2;
    QCOMPARE(faulty.secondQuestion().text,
             QString("The check found errors: 2. The machine may stop or wind something else. "
                     "Send it all the same?"));
    QCOMPARE(faulty.secondQuestion().answers, faulty.question().answers);
    faulty.verdict = ProgramVerdict();
    faulty.verdict.state = ProgramVerdict::Unfinished;
    QCOMPARE(faulty.secondQuestion().text,
             QString("The program could not be checked to the end. Errors may be in it. "
                     "Send it all the same?"));
}

FILARIX_TEST_MAIN(TestDownloadFacts)
#include "tst_downloadfacts.moc"
