// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "shell/messagebar.h"
#include "shell/messagelog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTranslator>

class TestMessageBar : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void rowKeepsItsPlace();
    void whatStopsRunningWorkHasRoom();
    void lineIsThereWhileThereIsSomethingToSay();
    void keyClosesWhatIsSaid();
    void informationPassesAndTheWarningIsBack();
    void lastMessageStaysWithoutItsTone();
    void keyOfRunningWorkStopsIt();
    void timeLeftStandsBesideTheText_data();
    void timeLeftStandsBesideTheText();
    void workOfUnknownLengthHasNoFigure();
    void stoppedWorkCannotBeStoppedOnceMore();
    void thumbOnStopSparesTheNextWork();
    void messageIsReadWhileWorkRuns();
    void workFollowsAnInformation();
    void endOfWorkIsNotClosedByAThumbOnStop();
    void touchOnTheTextIsTold();
    void touchTargetIsLargeEnough();
    void keyFollowsTheLanguage();
};

static QString shown(const MessageBar &bar)
{
    return bar.findChild<QLabel *>("messageText")->text();
}

void TestMessageBar::rowKeepsItsPlace()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.resize(480, 40);
    bar.show();
    const QSize size = bar.size();
    const QRect text = bar.findChild<QLabel *>("messageText")->geometry();
    log.tell(QString("a long sentence ").repeated(15), Message::Alarm);
    QCoreApplication::processEvents();
    QVERIFY(bar.key()->isVisible());
    QCOMPARE(bar.size(), size);
    QCOMPARE(bar.findChild<QLabel *>("messageText")->geometry(), text);
    bar.showWork("on its way", 3);
    QCoreApplication::processEvents();
    QCOMPARE(bar.width(), size.width());
    QCOMPARE(bar.findChild<QLabel *>("messageText")->width(), text.width());
    bar.endWork();
    QCoreApplication::processEvents();
    QCOMPARE(bar.size(), size);
}

// 15 mm: whoever wants to stop does not look.
void TestMessageBar::whatStopsRunningWorkHasRoom()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.resize(480, 40);
    bar.show();
    bar.showWork("on its way", 3);
    QCoreApplication::processEvents();
    QCOMPARE(bar.height(), Measures::stop().height());
    QCOMPARE(bar.key()->height(), Measures::stop().height());
    QVERIFY(bar.key()->width() >= Measures::stop().width());

    QWidget strip;
    MessageBar *line = new MessageBar(&log, MessageBar::Line);
    QHBoxLayout layout(&strip);
    layout.addWidget(line);
    layout.addWidget(line->key());
    strip.resize(480, 44);
    strip.show();
    line->showWork("on its way", 3);
    QTRY_VERIFY(line->key()->width() >= Measures::stop().width());
    line->endWork();
}

void TestMessageBar::lineIsThereWhileThereIsSomethingToSay()
{
    QWidget strip;
    MessageLog log;
    MessageBar *bar = new MessageBar(&log, MessageBar::Line);
    QHBoxLayout layout(&strip);
    layout.addWidget(bar);
    layout.addWidget(bar->key());
    strip.show();
    QVERIFY(bar->isHidden());
    QVERIFY(bar->key()->isHidden());
    log.tell("The PLC does not answer.", Message::Warning, "plc");
    QVERIFY(bar->isVisible());
    QVERIFY(bar->key()->isVisible());
    QCOMPARE(shown(*bar), QString("The PLC does not answer."));
    log.end("plc");
    QVERIFY(bar->isHidden());
    QVERIFY(bar->key()->isHidden());
}

void TestMessageBar::keyClosesWhatIsSaid()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QVERIFY(!bar.key()->isVisible());
    log.tell("The PLC does not answer.", Message::Warning);
    QCOMPARE(bar.text(), QString("The PLC does not answer."));
    QCOMPARE(bar.property("tone").toString(), QString("warning"));
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(bar.text(), QString());
    QCOMPARE(log.standingCount(), 0);
    QVERIFY(!bar.key()->isVisible());
    QCOMPARE(stops.size(), 0);
}

void TestMessageBar::informationPassesAndTheWarningIsBack()
{
    MessageLog log;
    log.setPassingTime(30);
    MessageBar bar(&log, MessageBar::Row);
    log.tell("full", Message::Warning);
    log.tell("stored", Message::Information);
    QCOMPARE(bar.text(), QString("stored"));
    QCOMPARE(bar.property("tone").toString(), QString("information"));
    QTRY_COMPARE(bar.text(), QString("full"));
    QCOMPARE(bar.property("tone").toString(), QString("warning"));
}

void TestMessageBar::lastMessageStaysWithoutItsTone()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    QCOMPARE(shown(bar), QString());
    log.tell("The PLC does not answer.", Message::Alarm, "plc");
    QCOMPARE(bar.property("tone").toString(), QString("alarm"));
    log.end("plc");
    QCOMPARE(bar.text(), QString());
    QCOMPARE(bar.property("tone").toString(), QString("none"));
    QCOMPARE(shown(bar),
             log.messages().first().time.toString("HH:mm") + "  The PLC does not answer.");
}

void TestMessageBar::keyOfRunningWorkStopsIt()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    bar.showWork("a.cnc goes to the PLC", 40);
    QVERIFY(bar.isWorking());
    QCOMPARE(bar.text(), QString("a.cnc goes to the PLC"));
    QCOMPARE(bar.findChild<QProgressBar *>()->value(), 40);
    QVERIFY(bar.findChild<QProgressBar *>()->isVisible());
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(stops.size(), 1);
    QVERIFY(bar.isWorking());
    bar.endWork();
    QVERIFY(!bar.findChild<QProgressBar *>()->isVisible());
    QCOMPARE(bar.text(), QString());
}

void TestMessageBar::timeLeftStandsBesideTheText_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("row") << int(MessageBar::Row);
    QTest::newRow("line") << int(MessageBar::Line);
}

// A long text ends in dots; how long it takes is always read.
void TestMessageBar::timeLeftStandsBesideTheText()
{
    QFETCH(int, form);
    QWidget strip;
    MessageLog log;
    MessageBar *bar = new MessageBar(&log, MessageBar::Form(form));
    QHBoxLayout layout(&strip);
    layout.addWidget(bar);
    if (form == MessageBar::Line)
        layout.addWidget(bar->key());
    strip.resize(300, 60);
    strip.show();
    QLabel *left = bar->findChild<QLabel *>("workLeft");
    bar->showWork(QString("a-long-name").repeated(20), 40);
    QVERIFY(!left->isVisible());
    bar->showWork(QString("a-long-name").repeated(20), 41, "55 min left");
    QVERIFY(left->isVisible());
    QTRY_VERIFY(left->width() >= left->fontMetrics().horizontalAdvance(left->text()));
    QVERIFY(bar->rect().contains(left->geometry()));
    // A message has the place for itself.
    log.tell("The stick is in.", Message::Warning);
    QVERIFY(!left->isVisible());
    bar->endWork();
    QVERIFY(!left->isVisible());
}

void TestMessageBar::workOfUnknownLengthHasNoFigure()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    bar.showWork("listing", -1);
    QProgressBar *progress = bar.findChild<QProgressBar *>();
    QCOMPARE(progress->maximum(), 0);
    bar.showWork("copying", 40);
    QCOMPARE(progress->maximum(), 100);
    QCOMPARE(progress->value(), 40);
    bar.endWork();
}

void TestMessageBar::stoppedWorkCannotBeStoppedOnceMore()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    bar.showWork("Stopping ...", 40, QString(), false);
    QVERIFY(!bar.key()->isEnabled());
    bar.showWork("Stopping ...", 41, QString(), false);
    QVERIFY(!bar.key()->isEnabled());
    bar.showWork("copying", 0);
    QVERIFY(bar.key()->isEnabled());
    bar.endWork();
}

void TestMessageBar::thumbOnStopSparesTheNextWork()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    bar.showWork("copying", 40);
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QTest::mousePress(bar.key(), Qt::LeftButton);
    bar.showWork("checking", 3);
    bar.restKey();
    QTest::mouseRelease(bar.key(), Qt::LeftButton);
    bar.showWork("checking", 4);
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(stops.size(), 0);
    QTRY_VERIFY(bar.key()->isEnabled());
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(stops.size(), 1);
    bar.endWork();
}

void TestMessageBar::messageIsReadWhileWorkRuns()
{
    MessageLog log;
    log.tell("full", Message::Warning);
    log.closeCurrent();
    log.setPassingTime(30);
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    bar.showWork("on its way", 40);
    log.tell("The stick is in.", Message::Warning);
    QCOMPARE(bar.text(), QString("The stick is in."));
    QCOMPARE(bar.property("tone").toString(), QString("warning"));
    QVERIFY(bar.findChild<QProgressBar *>()->isVisible());
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(stops.size(), 1);
    QTRY_COMPARE(bar.text(), QString("on its way"));
    QVERIFY(bar.isWorking());
    QCOMPARE(bar.property("tone").toString(), QString("information"));
    bar.endWork();
    QCOMPARE(bar.text(), QString("The stick is in."));
}

// Whoever starts something has read what was said before.
void TestMessageBar::workFollowsAnInformation()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    log.tell("stored", Message::Information);
    bar.showWork("on its way", 0);
    QCOMPARE(bar.text(), QString("on its way"));
    QCOMPARE(log.standingCount(), 0);
}

void TestMessageBar::endOfWorkIsNotClosedByAThumbOnStop()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    bar.showWork("on its way", 99);
    QTest::mousePress(bar.key(), Qt::LeftButton);
    bar.endWork();
    log.tell("a.cnc is in the PLC.", Message::Warning);
    QSignalSpy stops(&bar, SIGNAL(stopped()));
    QTest::mouseRelease(bar.key(), Qt::LeftButton);
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(stops.size(), 0);
    QCOMPARE(bar.text(), QString("a.cnc is in the PLC."));
    QTRY_VERIFY(bar.key()->isEnabled());
    QTest::mouseClick(bar.key(), Qt::LeftButton);
    QCOMPARE(bar.text(), QString());
    // Work that begins anew can be stopped at once.
    bar.showWork("on its way", 1);
    bar.endWork();
    bar.showWork("on its way", 1);
    QVERIFY(bar.key()->isEnabled());
}

void TestMessageBar::touchOnTheTextIsTold()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.resize(480, 40);
    bar.show();
    QSignalSpy touches(&bar, SIGNAL(touched()));
    QWidget *label = bar.findChild<QLabel *>("messageText");
    QTest::mouseClick(label, Qt::LeftButton);
    QCOMPARE(touches.size(), 1);
    bar.showWork("on its way", 5);
    QTest::mouseClick(label, Qt::LeftButton);
    QCOMPARE(touches.size(), 2);
    // A finger that has gone elsewhere touches nothing.
    QTest::mousePress(label, Qt::LeftButton);
    QTest::mouseRelease(label, Qt::LeftButton, Qt::NoModifier, QPoint(5, 300));
    QCOMPARE(touches.size(), 2);
}

void TestMessageBar::touchTargetIsLargeEnough()
{
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.show();
    log.tell("full", Message::Warning);
    QVERIFY(bar.height() >= 40);
    QVERIFY(bar.key()->height() >= 40 && bar.key()->width() >= 40);
    bar.showWork("on its way", 5);
    QVERIFY(bar.key()->height() >= 40 && bar.key()->width() >= 40);
}

void TestMessageBar::keyFollowsTheLanguage()
{
    class Translator : public QTranslator
    {
    public:
        QString translate(const char *, const char *source, const char *, int) const override
        {
            return !qstrcmp(source, "Stop") ? "Halt" : QString();
        }
        bool isEmpty() const override { return false; }
    };
    MessageLog log;
    MessageBar bar(&log, MessageBar::Row);
    bar.showWork("on its way", 5);
    QCOMPARE(bar.key()->text(), QString("Stop"));
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();
    QCOMPARE(bar.key()->text(), QString("Halt"));
    QCoreApplication::removeTranslator(&translator);
}

FILARIX_TEST_MAIN(TestMessageBar)
#include "tst_messagebar.moc"
