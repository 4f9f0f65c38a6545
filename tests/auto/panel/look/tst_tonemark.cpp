// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/tonemark.h"

#include <QImage>
#include <QLabel>
#include <QPixmap>

class TestToneMark : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aMarkHasTheGroundOfItsTone();
    void aQuietMarkHasNoGround();
    void aClearMarkKeepsItsPlace();
    void whatIsDressedFollowsItsTone();
};

// Beside the drawing.
static QColor groundOf(ToneMark *mark)
{
    return mark->grab().toImage().pixelColor(mark->width() / 2, 0);
}

void TestToneMark::aMarkHasTheGroundOfItsTone()
{
    ToneMark mark;
    for (Message::Tone tone : {Message::Information, Message::Warning, Message::Alarm}) {
        mark.setTone(tone);
        QCOMPARE(groundOf(&mark), Look::ground(tone));
    }
}

void TestToneMark::aQuietMarkHasNoGround()
{
    ToneMark mark;
    const QImage empty = mark.grab().toImage();
    QList<QImage> pictures;
    for (Message::Tone tone : {Message::Information, Message::Warning, Message::Alarm}) {
        mark.setQuiet(tone);
        pictures.append(mark.grab().toImage());
        QVERIFY(pictures.last() != empty);
        QVERIFY(groundOf(&mark) != Look::ground(tone));
    }
    QVERIFY(pictures.at(0) != pictures.at(1));
    QVERIFY(pictures.at(1) != pictures.at(2));
    mark.setTone(Message::Alarm);
    QCOMPARE(groundOf(&mark), Look::ground(Message::Alarm));
}

void TestToneMark::aClearMarkKeepsItsPlace()
{
    ToneMark mark;
    const QImage empty = mark.grab().toImage();
    const QSize size = mark.size();
    mark.setTone(Message::Alarm);
    QVERIFY(mark.grab().toImage() != empty);
    mark.clear();
    QCOMPARE(mark.grab().toImage(), empty);
    QCOMPARE(mark.size(), size);
}

void TestToneMark::whatIsDressedFollowsItsTone()
{
    QLabel label;
    Look::dress(&label, Look::MessageLine);
    const QColor paper = label.palette().color(QPalette::Window);
    ToneMark::put(&label, Message::Alarm);
    QCOMPARE(label.property("tone").toString(), QString("alarm"));
    QCOMPARE(label.palette().color(QPalette::Window), Look::ground(Message::Alarm));
    ToneMark::putNone(&label);
    QCOMPARE(label.palette().color(QPalette::Window), paper);
    ToneMark::put(&label, Message::Warning);
    QCOMPARE(label.property("tone").toString(), QString("warning"));
    QCOMPARE(label.palette().color(QPalette::Window), Look::ground(Message::Warning));
    ToneMark::put(&label, Message::Information);
    QCOMPARE(label.property("tone").toString(), QString("information"));
}

FILARIX_TEST_MAIN(TestToneMark)
#include "tst_tonemark.moc"
