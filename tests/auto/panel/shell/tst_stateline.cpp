// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/surfaceloan.h"
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
    void aLineIsAsHighAsItHasToBe();
    void aLineIsAsHighAsItsLettersAtOnce();
    void aLongTextHasASecondLine();
    void aLowPanelHasOneLineOnly();
    void ofALongTextTheHeadIsShown();
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

void TestStateLine::aLineIsAsHighAsItHasToBe()
{
    QWidget screen;
    StateLine line(&screen);
    line.show("text", Message::Warning);
    const int own = line.height();
    line.setLeastHeight(own + 11);
    QCOMPARE(line.height(), own + 11);
    line.show("another", Message::Alarm);
    QCOMPARE(line.height(), own + 11);
    line.setLeastHeight(own - 11);
    QCOMPARE(line.height(), own);
}

void TestStateLine::aLineIsAsHighAsItsLettersAtOnce()
{
    QWidget screen;
    StateLine line(&screen);
    line.show("text", Message::Warning);
    const int height = line.height();
    QLabel *label = line.findChild<QLabel *>("stateLine");
    QFont larger = label->font();
    larger.setPixelSize(2 * height);
    label->setFont(larger);
    QVERIFY(line.height() >= label->fontMetrics().height());
}

void TestStateLine::aLongTextHasASecondLine()
{
    QWidget screen;
    StateLine line(&screen);
    line.resize(300, 26);
    line.show("short", Message::Warning);
    screen.show();
    const int one = line.height();
    const auto pictured = [&line](const QString &end) {
        line.show(QString("a long text ").repeated(4) + end, Message::Warning);
        return TestCompat::grab(&line).toImage();
    };
    QVERIFY(pictured("one") != pictured("two"));
    const int two = line.height();
    QVERIFY(two >= one + 12);
    line.resize(900, two);
    QCOMPARE(line.height(), one);
}

void TestStateLine::aLowPanelHasOneLineOnly()
{
    const SurfaceLoan low(272);
    QWidget screen;
    StateLine line(&screen);
    line.resize(300, 26);
    line.show("short", Message::Warning);
    const int one = line.height();
    line.show(QString("a long text ").repeated(5), Message::Warning);
    QCOMPARE(line.height(), one);
}

void TestStateLine::ofALongTextTheHeadIsShown()
{
    const SurfaceLoan low(272);
    QWidget screen;
    StateLine line(&screen);
    const QLabel *label = line.findChild<QLabel *>("stateLine");
    line.resize(300, 26);
    screen.show();
    const QString text = "620 lines, 501 shown: comments and empty lines are left out";
    line.show(text, Message::Warning);
    QCOMPARE(label->text(), QString("620 lines, 501 shown"));
    QCOMPARE(line.text(), text);
    line.show(QString::fromUtf8("620\u884c\uff1a") + QString(60, 'x'), Message::Warning);
    QCOMPARE(label->text(), QString::fromUtf8("620\u884c"));
    // A short one is whole.
    line.show("Errors: 5", Message::Alarm);
    QCOMPARE(label->text(), QString("Errors: 5"));
    // Without a colon there is no head.
    line.show(QString("a long text ").repeated(9), Message::Warning);
    QCOMPARE(label->text(), line.text());
    line.show(text, Message::Warning);
    line.resize(900, 26);
    QCOMPARE(label->text(), text);
}

FILARIX_TEST_MAIN(TestStateLine)
#include "tst_stateline.moc"
