// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"
#include "screens/rowdetails.h"

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>

class TestRowDetails : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void eachValueHasItsNameAndNote();
    void touchedKeyIsTold();
    void plainValueIsNoKey();
    void keysAreLargeEnough_data();
    void keysAreLargeEnough();
    void sameKindsKeepTheirKeys();
    void keyMayBeReplacedByItsTouch();
    void wrongValueIsMarked();
    void wideValueHasALineOfItsOwn();
    void longWordWidensNothing();
    void headingAloneSaysWhyThereIsNothing();
};

static RowDetails::Detail detail(const char *name, const char *value, const char *note,
                                 bool isKey = true)
{
    RowDetails::Detail detail;
    detail.name = name;
    detail.value = value;
    detail.note = note;
    detail.isKey = isKey;
    return detail;
}

static QStringList shown(const RowDetails &details)
{
    QStringList texts;
    for (const QLabel *label : details.findChildren<QLabel *>()) {
        if (label->isVisible() && !label->text().isEmpty())
            texts.append(label->text());
    }
    return texts;
}

static QList<QToolButton *> keys(const RowDetails &details)
{
    QList<QToolButton *> keys;
    for (QToolButton *key : details.findChildren<QToolButton *>()) {
        if (key->isVisible())
            keys.append(key);
    }
    return keys;
}

static void show(RowDetails *details, const QList<RowDetails::Detail> &all)
{
    details->setDetails("Row 1", all);
    details->resize(320, 480);
    details->show();
    QVERIFY(TestCompat::waitForExposed(details));
}

void TestRowDetails::cleanup()
{
    Measures::use(Measures::usualDotsPerInch);
    FilarixTest::cleanup();
}

void TestRowDetails::eachValueHasItsNameAndNote()
{
    RowDetails details(2);
    show(&details, {detail("X", "-6 mm", "-2000 to 2000"), detail("Y", "14 mm", "")});
    QCOMPARE(shown(details), (QStringList{"Row 1", "X", "-2000 to 2000", "-6 mm", "Y", "14 mm"}));
    QCOMPARE(keys(details).at(0)->accessibleName(), QString("X, -6 mm, -2000 to 2000"));
    QCOMPARE(keys(details).at(1)->accessibleName(), QString("Y, 14 mm"));
}

void TestRowDetails::touchedKeyIsTold()
{
    RowDetails details(2);
    QSignalSpy touched(&details, SIGNAL(touched(int)));
    show(&details,
         {detail("X", "-6", ""), detail("Type", "text", "", false), detail("Y", "14", "")});
    QTest::mouseClick(keys(details).at(1), Qt::LeftButton);
    QCOMPARE(touched.size(), 1);
    QCOMPARE(touched.at(0).at(0).toInt(), 2);
    QCOMPARE(details.placeOf(2),
             QRect(keys(details).at(1)->mapToGlobal(QPoint()), keys(details).at(1)->size()));
    QVERIFY(!details.placeOf(-1).isValid());
    QVERIFY(!details.placeOf(3).isValid());
    // By the keyboard as well.
    QVERIFY(keys(details).at(0)->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(keys(details).at(0), Qt::Key_Space);
    QCOMPARE(touched.size(), 2);
    QCOMPARE(touched.at(1).at(0).toInt(), 0);
}

void TestRowDetails::plainValueIsNoKey()
{
    RowDetails details(1);
    show(&details, {detail("Type", "text", "", false)});
    QVERIFY(keys(details).isEmpty());
    QCOMPARE(shown(details), (QStringList{"Row 1", "Type", "text"}));
}

void TestRowDetails::keysAreLargeEnough_data()
{
    QTest::addColumn<double>("dpi");
    QTest::newRow("coarse") << 96.0;
    QTest::newRow("fine") << 133.0;
}

void TestRowDetails::keysAreLargeEnough()
{
    QFETCH(double, dpi);
    Measures::use(dpi);
    RowDetails details(2);
    QList<RowDetails::Detail> all;
    for (int i = 0; i < 14; ++i)
        all.append(detail("X", "-6 mm", "-2000 to 2000"));
    show(&details, all);
    for (const QToolButton *key : keys(details)) {
        QVERIFY(key->height() >= Measures::touch());
        QVERIFY(key->width() >= Measures::touch());
    }
}

void TestRowDetails::sameKindsKeepTheirKeys()
{
    RowDetails details(2);
    show(&details, {detail("X", "-6", ""), detail("Y", "14", "")});
    const QList<QToolButton *> before = keys(details);
    details.setDetails("Row 2", {detail("X", "7", ""), detail("Y", "8", "")});
    QCOMPARE(keys(details), before);
    QCOMPARE(shown(details), (QStringList{"Row 2", "X", "7", "Y", "8"}));
}

void TestRowDetails::keyMayBeReplacedByItsTouch()
{
    RowDetails details(2);
    show(&details, {detail("X", "-6", ""), detail("Y", "14", "")});
    connect(&details, &RowDetails::touched, &details,
            [&details] { details.setDetails("Row 2", {detail("Text", "M05", "")}); });
    const QPointer<QToolButton> old = keys(details).at(0);
    QTest::mouseClick(old, Qt::LeftButton);
    QTRY_VERIFY(!old);
    QTRY_COMPARE(shown(details), (QStringList{"Row 2", "Text", "M05"}));
}

void TestRowDetails::wrongValueIsMarked()
{
    RowDetails details(1);
    RowDetails::Detail wrong = detail("Tool", "999", "above 99");
    wrong.tone = Message::Alarm;
    show(&details, {wrong});
    QLabel *note = details.findChildren<QLabel *>().at(2);
    QCOMPARE(note->text(), QString("above 99"));
    QVERIFY(note->autoFillBackground());
    QCOMPARE(note->palette().color(QPalette::Window), Look::ground(Message::Alarm));
    details.setDetails("Row 1", {detail("Tool", "9", "0 to 99")});
    QVERIFY(!note->autoFillBackground());
}

void TestRowDetails::wideValueHasALineOfItsOwn()
{
    RowDetails details(2);
    RowDetails::Detail remark = detail("Remark", "Wind the first layer", "");
    remark.isWide = true;
    show(&details, {detail("X", "-6", ""), remark, detail("Y", "14", "")});
    const QList<QToolButton *> all = keys(details);
    QVERIFY(all.at(1)->y() > all.at(0)->geometry().bottom());
    QVERIFY(all.at(2)->y() > all.at(1)->geometry().bottom());
    QVERIFY(all.at(1)->width() > 2 * all.at(0)->width());
}

void TestRowDetails::longWordWidensNothing()
{
    RowDetails details(1);
    RowDetails::Detail remark = detail("Remark", "", "");
    remark.isWide = true;
    remark.value = QString(5000, 'W');
    show(&details, {remark});
    QCOMPARE(details.width(), 320);
    QVERIFY(details.rect().contains(
        QRect(keys(details).at(0)->mapTo(&details, QPoint()), keys(details).at(0)->size())));
}

void TestRowDetails::headingAloneSaysWhyThereIsNothing()
{
    RowDetails details(2);
    show(&details, {detail("X", "-6", "")});
    details.setDetails("No row is chosen.");
    QTRY_VERIFY(details.findChildren<QToolButton *>().isEmpty());
    QCOMPARE(shown(details), QStringList("No row is chosen."));
}

FILARIX_TEST_MAIN(TestRowDetails)
#include "tst_rowdetails.moc"
