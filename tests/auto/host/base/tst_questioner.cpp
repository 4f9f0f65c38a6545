// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/questioner.h"
#include "filarixtest.h"
#include "scriptquestioner.h"

class TestQuestioner : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void questionIsWrittenInWords();
    void plainTextHasALineAThingAndAFact();
    void hostAnswersByOneFunction();
};

void TestQuestioner::questionIsWrittenInWords()
{
    const Question question("Save", "Save it?",
                            QStringList() << "No"
                                          << "Yes");
    QCOMPARE(question.title, QString("Save"));
    QCOMPARE(question.answers.size(), 2);
    QVERIFY(question.facts.isEmpty());
    QCOMPARE(question.plainText(), QString("Save it?"));
}

void TestQuestioner::plainTextHasALineAThingAndAFact()
{
    Question question("Download", "Send it?", QStringList("No"));
    question.things << "coil.cnc, 2026-05-04 14:32";
    question.facts << QuestionFact("name", "Program", "coil.cnc", false)
                   << QuestionFact("lines", "Lines", "12", true);
    QCOMPARE(question.plainText(), QString("Send it?\n"
                                           "coil.cnc, 2026-05-04 14:32\n"
                                           "Program: coil.cnc\n"
                                           "Lines: 12"));
}

void TestQuestioner::hostAnswersByOneFunction()
{
    ScriptQuestioner script;
    script.answers << 1;
    Questioner *questioner = &script;
    const Question question("Save", "Save it?",
                            QStringList() << "No"
                                          << "Yes");
    QCOMPARE(questioner->ask(question), 1);
    // What nobody answers is answered harmlessly.
    QCOMPARE(questioner->ask(question), 0);
    QCOMPARE(script.asked.size(), 2);
}

FILARIX_TEST_MAIN(TestQuestioner)
#include "tst_questioner.moc"
