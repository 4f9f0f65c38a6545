// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/questioner.h"
#include "filarixtest.h"
#include "programs/programkeeper.h"
#include "scriptquestioner.h"

#include <QScopedPointer>
#include <QSignalSpy>

class TestProgramKeeper : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutAHistoryAllMayBeCovered();
    void whatIsKeptMayBeCovered();
    void whatCannotBeKeptIsAsked_data();
    void whatCannotBeKeptIsAsked();
    void longWaitIsTold();
    void shortWaitIsNot();
    void secondAnswerOfTheHistoryCountsForNothing();
    void keeperMayGoMeanwhile();

private:
    QScopedPointer<ScriptQuestioner> m_questioner;
    QScopedPointer<ProgramKeeper> m_keeper;
    ProgramKeeper::Kept m_kept;
    QString m_asked;
    QList<bool> m_answers;
};

void TestProgramKeeper::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_answers.clear();
    m_asked.clear();
    m_kept = ProgramKeeper::Kept();
    m_questioner.reset(new ScriptQuestioner);
    m_keeper.reset(new ProgramKeeper(m_questioner.data()));
    m_keeper->setHistory([this](const QString &path, const ProgramKeeper::Kept &kept) {
        m_asked = path;
        m_kept = kept;
    });
}

void TestProgramKeeper::withoutAHistoryAllMayBeCovered()
{
    m_keeper->setHistory(ProgramKeeper::History());
    m_keeper->keep("/somewhere/coil.cnc", [this](bool mayWrite) { m_answers << mayWrite; });
    // From the event loop, as with one.
    QVERIFY(m_answers.isEmpty());
    QTRY_COMPARE(m_answers, QList<bool>() << true);
}

void TestProgramKeeper::whatIsKeptMayBeCovered()
{
    m_keeper->keep("/somewhere/coil.cnc", [this](bool mayWrite) { m_answers << mayWrite; });
    QCOMPARE(m_asked, QString("/somewhere/coil.cnc"));
    QVERIFY(m_answers.isEmpty());
    m_kept(QString());
    QCOMPARE(m_answers, QList<bool>() << true);
    QVERIFY(m_questioner->asked.isEmpty());
}

void TestProgramKeeper::whatCannotBeKeptIsAsked_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("mayWrite");
    QTest::newRow("closed") << 0 << false;
    QTest::newRow("all the same") << 1 << true;
}

void TestProgramKeeper::whatCannotBeKeptIsAsked()
{
    QFETCH(int, answer);
    QFETCH(bool, mayWrite);
    m_questioner->answers << answer;
    m_keeper->keep("/somewhere/coil.cnc", [this](bool may) { m_answers << may; });
    m_kept("The history is full.");
    QCOMPARE(m_answers, QList<bool>() << mayWrite);
    QCOMPARE(m_questioner->asked.size(), 1);
    const QString text = m_questioner->asked.first().plainText();
    QVERIFY2(text.contains("The history is full.") && text.contains("coil.cnc"), qPrintable(text));
}

void TestProgramKeeper::longWaitIsTold()
{
    QSignalSpy told(m_keeper.data(), SIGNAL(told(QString, Message::Tone, QString)));
    QSignalSpy causeEnded(m_keeper.data(), SIGNAL(causeEnded(QString)));
    m_keeper->keep("/somewhere/coil.cnc", [this](bool mayWrite) { m_answers << mayWrite; });
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(causeEnded.isEmpty());
    m_kept(QString());
    QCOMPARE(causeEnded.size(), 1);
    QCOMPARE(causeEnded.at(0).at(0).toString(), told.at(0).at(2).toString());
}

void TestProgramKeeper::shortWaitIsNot()
{
    QSignalSpy told(m_keeper.data(), SIGNAL(told(QString, Message::Tone, QString)));
    m_keeper->keep("/somewhere/coil.cnc", [this](bool mayWrite) { m_answers << mayWrite; });
    m_kept(QString());
    // Longer than the keeper's patience.
    QTest::qWait(400);
    QVERIFY(told.isEmpty());
}

void TestProgramKeeper::secondAnswerOfTheHistoryCountsForNothing()
{
    m_keeper->keep("/somewhere/coil.cnc", [this](bool mayWrite) { m_answers << mayWrite; });
    m_kept(QString());
    m_kept("too late");
    QCOMPARE(m_answers.size(), 1);
    QVERIFY(m_questioner->asked.isEmpty());
}

void TestProgramKeeper::keeperMayGoMeanwhile()
{
    m_keeper->keep("/somewhere/coil.cnc", [this](bool mayWrite) { m_answers << mayWrite; });
    m_keeper.reset();
    m_kept(QString());
    QVERIFY(m_answers.isEmpty());
}

FILARIX_TEST_MAIN(TestProgramKeeper)
#include "tst_programkeeper.moc"
