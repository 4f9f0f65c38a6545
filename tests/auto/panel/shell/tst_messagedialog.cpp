// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/tonemark.h"
#include "shell/messagedialog.h"
#include "shell/messagelog.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

class TestMessageDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void newestIsOnTop();
    void timeHasItsDateUnlessItIsToday();
    void whatStandsHasItsGround();
    void longTextIsShownWhole();
    void nameWithoutSpacesIsBroken();
    void keysTurnThePages();
    void followsTheLog();
    void subjectIsShownInFull();
    void emptyLogSaysSo();
};

static QStringList texts(const MessageDialog &dialog)
{
    QStringList texts;
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>("text");
    for (const QLabel *label : labels)
        texts.append(label->text());
    return texts;
}

static QPushButton *key(const MessageDialog &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(name);
}

void TestMessageDialog::newestIsOnTop()
{
    MessageLog log;
    for (const char *text : {"one", "two", "three"})
        log.tell(text, Message::Warning);
    MessageDialog dialog(&log, QString());
    dialog.show();
    QCOMPARE(texts(dialog), QStringList({"three", "two", "one"}));
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>("text");
    const auto top = [&](int i) { return labels.at(i)->mapTo(&dialog, QPoint(0, 0)).y(); };
    QTRY_VERIFY(top(0) < top(1) && top(1) < top(2));
    QTest::mouseClick(key(dialog, "close"), Qt::LeftButton);
    QVERIFY(dialog.isHidden());
}

void TestMessageDialog::timeHasItsDateUnlessItIsToday()
{
    const QDateTime time(QDate(2026, 3, 9), QTime(7, 5, 1));
    QCOMPARE(MessageDialog::shownTime(time, QDate(2026, 3, 9)), QString("07:05:01"));
    QCOMPARE(MessageDialog::shownTime(time, QDate(2026, 3, 10)), QString("2026-03-09 07:05:01"));
    // The clock was set back since.
    QCOMPARE(MessageDialog::shownTime(time, QDate(2026, 3, 8)), QString("2026-03-09 07:05:01"));
}

void TestMessageDialog::whatStandsHasItsGround()
{
    MessageLog log;
    log.tell("gone", Message::Alarm, "plc");
    log.tell("full", Message::Warning);
    log.end("plc");
    MessageDialog dialog(&log, QString());
    const QList<QFrame *> lines = dialog.findChildren<QFrame *>("message");
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0)->property("tone").toString(), QString("warning"));
    QCOMPARE(lines.at(1)->property("tone").toString(), QString("none"));
    QCOMPARE(dialog.findChildren<ToneMark *>().size(), 2);
}

void TestMessageDialog::longTextIsShownWhole()
{
    MessageLog log;
    log.tell(QString("a long sentence ").repeated(30), Message::Warning);
    MessageDialog dialog(&log, QString());
    dialog.resize(280, 200);
    dialog.show();
    const QLabel *text = dialog.findChild<QLabel *>("text");
    QTRY_VERIFY(text->height() >= text->heightForWidth(text->width()));
    QVERIFY(text->width() < 280);
    QVERIFY(text->height() > 100);
}

void TestMessageDialog::nameWithoutSpacesIsBroken()
{
    MessageLog log;
    log.tell(QString(250, 'w') + ".cnc", Message::Warning);
    MessageDialog dialog(&log, QString(250, 'w'));
    dialog.resize(472, 264);
    dialog.show();
    QCoreApplication::processEvents();
    QCOMPARE(dialog.width(), 472);
    const QScrollArea *area = dialog.findChild<QScrollArea *>();
    QVERIFY(area->widget()->width() <= area->viewport()->width());
    QCOMPARE(texts(dialog).first().remove(QChar(0x200b)), QString(250, 'w') + ".cnc");
}

void TestMessageDialog::keysTurnThePages()
{
    MessageLog log;
    for (int i = 0; i < 50; ++i)
        log.tell(QString("message %1").arg(i), Message::Information);
    MessageDialog dialog(&log, QString());
    dialog.resize(472, 264);
    dialog.show();
    QCoreApplication::processEvents();
    const QScrollBar *bar = dialog.findChild<QScrollArea *>()->verticalScrollBar();
    QVERIFY(!key(dialog, "back")->isEnabled());
    QTRY_VERIFY(key(dialog, "forth")->isEnabled());
    for (const char *name : {"back", "forth", "close"})
        QVERIFY(key(dialog, name)->height() >= 40 && key(dialog, name)->width() >= 40);
    int presses = 0;
    while (key(dialog, "forth")->isEnabled() && ++presses < 100)
        QTest::mouseClick(key(dialog, "forth"), Qt::LeftButton);
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(presses > 3 && presses < 30);
    QVERIFY(key(dialog, "back")->isEnabled());
    QTest::mouseClick(key(dialog, "back"), Qt::LeftButton);
    QVERIFY(bar->value() < bar->maximum());
}

void TestMessageDialog::followsTheLog()
{
    MessageLog log;
    log.tell("one", Message::Warning, "plc");
    MessageDialog dialog(&log, QString());
    dialog.show();
    log.tell("two", Message::Alarm);
    QCOMPARE(texts(dialog), QStringList({"two", "one"}));
    log.end("plc");
    const QList<QFrame *> lines = dialog.findChildren<QFrame *>("message");
    QCOMPARE(lines.at(1)->property("tone").toString(), QString("none"));
}

void TestMessageDialog::subjectIsShownInFull()
{
    MessageLog log;
    MessageDialog dialog(&log, "a very long name of a program.cnc");
    QCOMPARE(dialog.findChild<QLabel *>("subject")->text().remove(QChar(0x200b)),
             QString("a very long name of a program.cnc"));
    MessageDialog other(&log, QString());
    QVERIFY(!other.findChild<QLabel *>("subject"));
}

void TestMessageDialog::emptyLogSaysSo()
{
    MessageLog log;
    MessageDialog dialog(&log, QString());
    dialog.show();
    QVERIFY(texts(dialog).isEmpty());
    QCOMPARE(dialog.findChildren<QLabel *>().size(), 1);
    QVERIFY(!key(dialog, "back")->isEnabled());
    QVERIFY(!key(dialog, "forth")->isEnabled());
}

FILARIX_TEST_MAIN(TestMessageDialog)
#include "tst_messagedialog.moc"
