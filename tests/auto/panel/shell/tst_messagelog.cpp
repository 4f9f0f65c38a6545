// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "shell/messagelog.h"

#include <QSignalSpy>

class TestMessageLog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void nothingStandsAtFirst();
    void mostUrgentStands();
    void newestStandsAmongEquals();
    void informationPassesAndGivesWay();
    void informationIsReadWhileAnAlarmStands();
    void alarmDoesNotWaitForAnInformation();
    void messageEndsWithItsCause();
    void nextOfACauseTakesItsPlace();
    void withoutACauseItStandsForItself();
    void operatorClosesOneAfterTheOther();
    void allAreClosed();
    void messagesThatEndedAreKept();
    void sameAgainIsListedOnceWithItsNewTime();
    void sameAgainLaterStandsOnce();
    void fiftyAreKept();
    void whatStandsIsNotForgotten();
    void orderIsThatOfTelling();
    void changesAreTold();
};

static QStringList texts(const MessageLog &log)
{
    QStringList texts;
    const QList<Message> messages = log.messages();
    for (const Message &message : messages)
        texts.append(message.text);
    return texts;
}

void TestMessageLog::nothingStandsAtFirst()
{
    MessageLog log;
    QCOMPARE(log.current().text, QString());
    QVERIFY(log.messages().isEmpty());
    QVERIFY(!log.isFresh());
    log.closeCurrent();
    log.closeAll();
    log.end("plc");
    log.tell(QString(), Message::Alarm);
    QVERIFY(log.messages().isEmpty());
}

void TestMessageLog::mostUrgentStands()
{
    MessageLog log;
    log.tell("alarm", Message::Alarm);
    log.tell("warning", Message::Warning);
    QCOMPARE(log.current().text, QString("alarm"));
    QCOMPARE(log.current().tone, Message::Alarm);
    QCOMPARE(log.standingCount(), 2);
}

void TestMessageLog::newestStandsAmongEquals()
{
    MessageLog log;
    log.tell("first", Message::Warning);
    log.tell("second", Message::Warning);
    QCOMPARE(log.current().text, QString("second"));
}

void TestMessageLog::informationPassesAndGivesWay()
{
    MessageLog log;
    log.setPassingTime(30);
    log.tell("stored", Message::Information);
    QCOMPARE(log.current().text, QString("stored"));
    QTRY_COMPARE(log.current().text, QString());
    log.tell("warning", Message::Warning);
    log.tell("stored", Message::Information);
    QCOMPARE(log.current().text, QString("stored"));
    QTRY_COMPARE(log.current().text, QString("warning"));
    QVERIFY(!log.isFresh());
    QVERIFY(!log.isStanding(0));
    QVERIFY(log.isStanding(1));
}

void TestMessageLog::informationIsReadWhileAnAlarmStands()
{
    MessageLog log;
    log.tell("alarm", Message::Alarm);
    log.tell("one", Message::Information);
    log.tell("two", Message::Information);
    QCOMPARE(log.current().text, QString("two"));
    log.closeCurrent();
    // The first had its time.
    QCOMPARE(log.current().text, QString("alarm"));
}

void TestMessageLog::alarmDoesNotWaitForAnInformation()
{
    MessageLog log;
    log.tell("stored", Message::Information);
    log.tell("alarm", Message::Alarm);
    QCOMPARE(log.current().text, QString("alarm"));
}

void TestMessageLog::messageEndsWithItsCause()
{
    MessageLog log;
    log.tell("The PLC does not answer.", Message::Alarm, "plc");
    log.tell("The stick is full.", Message::Warning, "stick");
    log.end("storage");
    log.end(QString());
    QCOMPARE(log.standingCount(), 2);
    log.end("plc");
    QCOMPARE(log.current().text, QString("The stick is full."));
    log.end("stick");
    QCOMPARE(log.current().text, QString());
    QVERIFY(!log.isFresh());
    QCOMPARE(log.messages().size(), 2);
}

void TestMessageLog::nextOfACauseTakesItsPlace()
{
    MessageLog log;
    log.tell("The PLC does not answer.", Message::Alarm, "plc");
    log.tell("a.cnc is in the PLC.", Message::Information, "plc");
    QCOMPARE(log.current().text, QString("a.cnc is in the PLC."));
    log.closeCurrent();
    QCOMPARE(log.current().text, QString());
    QCOMPARE(log.messages().size(), 2);
}

void TestMessageLog::withoutACauseItStandsForItself()
{
    MessageLog log;
    log.tell("one", Message::Warning);
    log.tell("two", Message::Warning);
    QCOMPARE(log.standingCount(), 2);
}

void TestMessageLog::operatorClosesOneAfterTheOther()
{
    MessageLog log;
    log.tell("warning", Message::Warning);
    log.tell("alarm", Message::Alarm);
    log.closeCurrent();
    QCOMPARE(log.current().text, QString("warning"));
    log.closeCurrent();
    QCOMPARE(log.current().text, QString());
    QCOMPARE(texts(log), QStringList({"alarm", "warning"}));
}

void TestMessageLog::allAreClosed()
{
    MessageLog log;
    log.tell("warning", Message::Warning);
    log.tell("stored", Message::Information);
    log.closeAll();
    QCOMPARE(log.standingCount(), 0);
    QVERIFY(!log.isFresh());
}

void TestMessageLog::messagesThatEndedAreKept()
{
    MessageLog log;
    const QDateTime before = QDateTime::currentDateTime();
    log.tell("gone", Message::Alarm, "plc");
    log.end("plc");
    QCOMPARE(log.messages().size(), 1);
    const Message message = log.messages().first();
    QCOMPARE(message.text, QString("gone"));
    QCOMPARE(message.tone, Message::Alarm);
    QCOMPARE(message.cause, QString("plc"));
    QVERIFY(message.time >= before && message.time <= QDateTime::currentDateTime());
}

void TestMessageLog::sameAgainIsListedOnceWithItsNewTime()
{
    MessageLog log;
    log.tell("Touch once more.", Message::Warning);
    const QDateTime first = log.messages().first().time;
    QTRY_VERIFY(QDateTime::currentDateTime() > first);
    log.closeCurrent();
    log.tell("Touch once more.", Message::Warning);
    QCOMPARE(log.messages().size(), 1);
    QVERIFY(log.messages().first().time > first);
    QCOMPARE(log.current().text, QString("Touch once more."));
    // Another tone is another message.
    log.tell("Touch once more.", Message::Information);
    QCOMPARE(log.messages().size(), 2);
}

void TestMessageLog::sameAgainLaterStandsOnce()
{
    MessageLog log;
    log.tell("full", Message::Warning);
    log.tell("other", Message::Warning);
    log.tell("full", Message::Warning);
    QCOMPARE(texts(log), QStringList({"full", "other", "full"}));
    QCOMPARE(log.standingCount(), 2);
    QVERIFY(!log.isStanding(2));
}

void TestMessageLog::fiftyAreKept()
{
    MessageLog log;
    for (int i = 0; i < 60; ++i)
        log.tell(QString::number(i), Message::Information);
    QCOMPARE(log.messages().size(), MessageLog::kept);
    QCOMPARE(MessageLog::kept, 50);
    QCOMPARE(texts(log).first(), QString("59"));
    QCOMPARE(texts(log).last(), QString("10"));
}

void TestMessageLog::whatStandsIsNotForgotten()
{
    MessageLog log;
    log.tell("alarm", Message::Alarm);
    for (int i = 0; i < 60; ++i)
        log.tell(QString::number(i), Message::Information);
    log.closeCurrent();
    QCOMPARE(log.current().text, QString("alarm"));
    QCOMPARE(log.messages().size(), 50);
    // Standing ones alone have their limit, too.
    for (int i = 0; i < 60; ++i)
        log.tell(QString::number(i), Message::Warning);
    QCOMPARE(log.messages().size(), 50);
    QCOMPARE(log.standingCount(), 50);
}

// By the clock a panel that was set back would have its newest message last.
void TestMessageLog::orderIsThatOfTelling()
{
    MessageLog log;
    for (const char *text : {"a", "b", "c"})
        log.tell(text, Message::Warning);
    QCOMPARE(texts(log), QStringList({"c", "b", "a"}));
    QCOMPARE(log.current().text, QString("c"));
}

void TestMessageLog::changesAreTold()
{
    MessageLog log;
    log.setPassingTime(20);
    QSignalSpy changes(&log, SIGNAL(changed()));
    log.tell("stored", Message::Information);
    QCOMPARE(changes.size(), 1);
    QTRY_COMPARE(changes.size(), 2);
    log.tell("alarm", Message::Alarm, "plc");
    QCOMPARE(changes.size(), 3);
    log.end("stick");
    QCOMPARE(changes.size(), 3);
    log.end("plc");
    QCOMPARE(changes.size(), 4);
}

FILARIX_TEST_MAIN(TestMessageLog)
#include "tst_messagelog.moc"
