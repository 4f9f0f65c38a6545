// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/settingspage.h"

#include <QLabel>

class TestSettingsPage : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void headingAndHintFollowTheLanguage();
};

void TestSettingsPage::headingAndHintFollowTheLanguage()
{
    QString language = "en";
    SettingsPage page("clock", [&] { return "Clock " + language; });
    page.setHint([&] { return "Hint " + language; });
    QLabel *hint = page.findChild<QLabel *>("hint");
    QCOMPARE(page.objectName(), QString("page_clock"));
    QCOMPARE(page.heading(), QString("Clock en"));
    QCOMPARE(page.findChild<QLabel *>()->text(), QString("Clock en"));
    QCOMPARE(hint->text(), QString("Hint en"));
    QVERIFY(hint->wordWrap());
    language = "de";
    QEvent change(QEvent::LanguageChange);
    for (QLabel *label : page.findChildren<QLabel *>())
        QCoreApplication::sendEvent(label, &change);
    QCOMPARE(page.heading(), QString("Clock de"));
    QCOMPARE(page.findChild<QLabel *>()->text(), QString("Clock de"));
    QCOMPARE(hint->text(), QString("Hint de"));
}

FILARIX_TEST_MAIN(TestSettingsPage)
#include "tst_settingspage.moc"
