// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "shell/stateline.h"

#include <QLabel>
#include <QSignalSpy>

class TestStateLine : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aLineIsThereWhileItHasAText();
    void theTextHasTheColourOfItsTone();
    void theColourFollowsTheLook();
    void aTouchIsTold();
};

static QColor colourOf(const StateLine &line)
{
    QLabel *label = line.findChild<QLabel *>("stateLine");
    label->ensurePolished();
    return label->palette().color(QPalette::WindowText);
}

void TestStateLine::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

void TestStateLine::aLineIsThereWhileItHasAText()
{
    QWidget screen;
    StateLine line(&screen);
    QVERIFY(line.isHidden());
    line.show("Only a part is here.", Message::Warning);
    QVERIFY(!line.isHidden());
    QCOMPARE(line.text(), QString("Only a part is here."));
    line.show(QString(), Message::Information);
    QVERIFY(line.isHidden());
}

void TestStateLine::theTextHasTheColourOfItsTone()
{
    QWidget screen;
    StateLine line(&screen);
    for (Message::Tone tone : {Message::Information, Message::Warning, Message::Alarm}) {
        line.show("text", tone);
        QCOMPARE(colourOf(line), Look::onStrip(tone));
    }
}

void TestStateLine::theColourFollowsTheLook()
{
    QWidget screen;
    StateLine line(&screen);
    line.show("text", Message::Alarm);
    Look::use(Look::Dark);
    QCOMPARE(colourOf(line), Look::onStrip(Message::Alarm));
}

void TestStateLine::aTouchIsTold()
{
    QWidget screen;
    StateLine line(&screen);
    line.show("text", Message::Warning);
    QSignalSpy touched(&line, SIGNAL(touched()));
    QTest::mouseClick(&line, Qt::LeftButton);
    QCOMPARE(touched.size(), 1);
}

FILARIX_TEST_MAIN(TestStateLine)
#include "tst_stateline.moc"
