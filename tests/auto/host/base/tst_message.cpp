// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/message.h"
#include "filarixtest.h"

#include <QSignalSpy>

class TestMessage : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void standsForItselfAndIsNotUrgentAtFirst();
    void tonesRiseWithTheUrgency();
    void travelsInASignal();

Q_SIGNALS:
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void logged(const Message &message);
};

void TestMessage::standsForItselfAndIsNotUrgentAtFirst()
{
    const Message message;
    QCOMPARE(message.tone, Message::Information);
    QVERIFY(message.text.isEmpty());
    QVERIFY(message.cause.isEmpty());
    QVERIFY(!message.time.isValid());
}

// Whoever shows several things in one place shows the most urgent tone of them.
void TestMessage::tonesRiseWithTheUrgency()
{
    QVERIFY(Message::Information < Message::Warning);
    QVERIFY(Message::Warning < Message::Alarm);
}

void TestMessage::travelsInASignal()
{
    qRegisterMetaType<Message>("Message");
    qRegisterMetaType<Message::Tone>("Message::Tone");
    QSignalSpy tellings(this, SIGNAL(told(QString, Message::Tone, QString)));
    QSignalSpy loggings(this, SIGNAL(logged(Message)));
    Message sent;
    sent.text = "The stick is out.";
    sent.tone = Message::Alarm;
    sent.cause = "stick";
    sent.time = QDateTime::currentDateTime();
    Q_EMIT told(sent.text, sent.tone);
    Q_EMIT logged(sent);
    QCOMPARE(tellings.first().at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(tellings.first().at(2).toString().isEmpty());
    const Message received = loggings.first().first().value<Message>();
    QCOMPARE(received.text, sent.text);
    QCOMPARE(received.tone, sent.tone);
    QCOMPARE(received.cause, sent.cause);
    QCOMPARE(received.time, sent.time);
}

FILARIX_TEST_MAIN(TestMessage)
#include "tst_message.moc"
