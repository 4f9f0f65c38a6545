// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/clockpage.h"

#include <QDateTime>
#include <QLabel>

class TestClockPage : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aMomentIsWrittenAsOnAllScreens_data();
    void aMomentIsWrittenAsOnAllScreens();
    void theSystemsMomentIsShownWhileItIsInView();
    void itFollowsTheLocale();
};

namespace {

QString text(const QWidget &page, const char *name)
{
    return page.findChild<QLabel *>(name)->text();
}

} // namespace

void TestClockPage::aMomentIsWrittenAsOnAllScreens_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("day");
    QTest::newRow("USA") << QLocale("en_US") << "Sunday";
    QTest::newRow("Germany") << QLocale("de_DE") << "Sonntag";
    QTest::newRow("China") << QLocale("zh_CN") << QString::fromUtf8("\u661f\u671f\u65e5");
}

void TestClockPage::aMomentIsWrittenAsOnAllScreens()
{
    QFETCH(QLocale, locale);
    ClockPage page;
    page.setLocale(locale);
    page.showMoment(QDateTime(QDate(2026, 11, 22), QTime(15, 4, 30), Qt::UTC));
    QFETCH(QString, day);
    QCOMPARE(text(page, "time"), QString("15:04"));
    QCOMPARE(text(page, "date"), day + ", 2026-11-22");
    QCOMPARE(text(page, "zone"), QString("Time zone: UTC"));
}

void TestClockPage::theSystemsMomentIsShownWhileItIsInView()
{
    ClockPage page;
    page.setLocale(QLocale("de_DE"));
    const QDateTime past(QDate(2001, 1, 2), QTime(3, 4), Qt::UTC);
    page.showMoment(past);
    QCOMPARE(text(page, "time"), QString("03:04"));
    page.show();
    QVERIFY(!text(page, "date").contains("2001"));
    page.showMoment(past);
    QTRY_VERIFY(!text(page, "date").contains("2001"));
    // Out of view it rests.
    page.hide();
    page.showMoment(past);
    QVERIFY(!page.findChild<QTimer *>() || !page.findChild<QTimer *>()->isActive());
    QVERIFY(text(page, "date").contains("2001"));
}

void TestClockPage::itFollowsTheLocale()
{
    ClockPage page;
    page.setLocale(QLocale("de_DE"));
    const QString german = text(page, "date");
    page.setLocale(QLocale("it_IT"));
    QVERIFY(text(page, "date") != german);
}

FILARIX_TEST_MAIN(TestClockPage)
#include "tst_clockpage.moc"
