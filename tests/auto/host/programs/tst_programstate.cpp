// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/programstate.h"

class TestProgramState : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachKindHasItsRules_data();
    void eachKindHasItsRules();
    void agreementEndsTheQuestion();
    void linesSayWhatIsMissing();
    void sameNumberOfLinesHasItsOwnWords();
    void textsNameTheProgram();
    void placeholderInANameStaysThere();
};

static ProgramState stateOf(ProgramState::Kind kind)
{
    ProgramState state;
    state.kind = kind;
    state.name = "coil.cnc";
    state.fileLines = 1200;
    state.shownLines = 700;
    return state;
}

void TestProgramState::eachKindHasItsRules_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("tone");
    QTest::addColumn<bool>("refusesSave");
    QTest::addColumn<bool>("refusesDownload");
    QTest::addColumn<bool>("asks");
    QTest::newRow("plain") << int(ProgramState::Plain) << int(Message::Information) << false
                           << false << false;
    QTest::newRow("cleaned") << int(ProgramState::Cleaned) << int(Message::Warning) << false
                             << false << true;
    QTest::newRow("different") << int(ProgramState::Different) << int(Message::Warning) << false
                               << false << true;
    QTest::newRow("incomplete") << int(ProgramState::Incomplete) << int(Message::Warning) << true
                                << true << false;
    QTest::newRow("not stored") << int(ProgramState::NotStored) << int(Message::Alarm) << false
                                << true << false;
}

void TestProgramState::eachKindHasItsRules()
{
    QFETCH(int, kind);
    QFETCH(int, tone);
    QFETCH(bool, refusesSave);
    QFETCH(bool, refusesDownload);
    QFETCH(bool, asks);
    const ProgramState state = stateOf(ProgramState::Kind(kind));
    QCOMPARE(int(state.tone()), tone);
    QCOMPARE(state.refusesSave(), refusesSave);
    QCOMPARE(state.refusesDownload(), refusesDownload);
    QCOMPARE(state.asksBeforeSave(), asks);
    QCOMPARE(state.line().isEmpty(), kind == ProgramState::Plain);
}

void TestProgramState::agreementEndsTheQuestion()
{
    ProgramState state = stateOf(ProgramState::Cleaned);
    state.isAgreed = true;
    QVERIFY(!state.asksBeforeSave());
    // No agreement saves what is not here.
    state.kind = ProgramState::Incomplete;
    QVERIFY(state.refusesSave());
}

void TestProgramState::linesSayWhatIsMissing()
{
    const ProgramState::Kind kinds[] = {ProgramState::Cleaned, ProgramState::Different,
                                        ProgramState::Incomplete};
    for (ProgramState::Kind kind : kinds) {
        const QString line = stateOf(kind).line();
        QVERIFY2(line.contains("1200") && line.contains("700"), qPrintable(line));
    }
    ProgramState state = stateOf(ProgramState::Different);
    state.reason = "Input/output error";
    QVERIFY(state.line().contains("Input/output error"));
    state.kind = ProgramState::NotStored;
    QVERIFY(state.line().contains("coil.cnc"));
    QVERIFY(state.line().contains("Input/output error"));
}

void TestProgramState::sameNumberOfLinesHasItsOwnWords()
{
    ProgramState state = stateOf(ProgramState::Different);
    state.shownLines = state.fileLines;
    QVERIFY2(!state.line().contains("1200"), qPrintable(state.line()));
}

void TestProgramState::textsNameTheProgram()
{
    QVERIFY(stateOf(ProgramState::Cleaned).saveQuestion().contains("coil.cnc"));
    QVERIFY(stateOf(ProgramState::Different).saveQuestion().contains("coil.cnc"));
    QVERIFY(stateOf(ProgramState::Incomplete).refusal().contains("coil.cnc"));
    ProgramState state = stateOf(ProgramState::NotStored);
    state.reason = "No space left on device";
    QVERIFY(state.refusal().contains("No space left on device"));
}

void TestProgramState::placeholderInANameStaysThere()
{
    ProgramState state = stateOf(ProgramState::Cleaned);
    state.name = "coil%2.cnc";
    const QString question = state.saveQuestion();
    QVERIFY2(question.contains("coil%2.cnc") && question.contains("1200")
                 && question.contains("700"),
             qPrintable(question));
}

FILARIX_TEST_MAIN(TestProgramState)
#include "tst_programstate.moc"
