// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/measures.h"
#include "look/spokennames.h"
#include "screens/choicepage.h"

#include <QPushButton>
#include <QSignalSpy>

class TestChoicePage : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyAsksAndWhoeverKeepsTheChoiceDecides();
    void theOneInForceBearsATickAndIsEnabled();
    void keysAreLargeEnoughAndSpoken();
    void keysFollowTheLanguage();
};

namespace {

/// Stands in front of all texts.
QString language;

struct Page : public ChoicePage
{
    Page()
        : ChoicePage(
            "sounds", [] { return language + "Sounds"; }, 2)
    {
        addChoice("off", [] { return language + "Off"; });
        addChoice("on", [] { return language + "On"; });
    }
};

} // namespace

void TestChoicePage::aKeyAsksAndWhoeverKeepsTheChoiceDecides()
{
    Page page;
    QSignalSpy chosen(&page, SIGNAL(chosen(QString)));
    QCOMPARE(page.values(), QStringList({"off", "on"}));
    QCOMPARE(page.marked(), QString());
    page.mark("off");
    page.key("on")->click();
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.first().first().toString(), QString("on"));
    // Nobody has agreed yet.
    QCOMPARE(page.marked(), QString("off"));
    QVERIFY(page.key("off")->isChecked() && !page.key("on")->isChecked());
    page.mark("on");
    QVERIFY(!page.key("off")->isChecked() && page.key("on")->isChecked());
    // A second touch switches nothing off.
    page.key("on")->click();
    QVERIFY(page.key("on")->isChecked());
    QCOMPARE(chosen.size(), 2);
    QVERIFY(!page.key("loud"));
}

void TestChoicePage::theOneInForceBearsATickAndIsEnabled()
{
    Page page;
    page.mark("on");
    for (const QString &value : page.values()) {
        QVERIFY(page.key(value)->isEnabled());
        QCOMPARE(page.key(value)->icon().isNull(), value != "on");
    }
}

void TestChoicePage::keysAreLargeEnoughAndSpoken()
{
    Page page;
    page.resize(300, 300);
    page.show();
    QVERIFY(TestCompat::waitForExposed(&page));
    const QPushButton *on = page.findChild<QPushButton *>("sounds_on");
    QCOMPARE(on, page.key("on"));
    QCOMPARE(SpokenNames::nameOf(page.key("on")), QString("Sounds On"));
    QVERIFY(on->height() >= Measures::touch() && on->height() <= 2 * Measures::touch());
    QCOMPARE(on->y(), page.key("off")->y());
    QVERIFY(on->x() > page.key("off")->x());
}

void TestChoicePage::keysFollowTheLanguage()
{
    Page page;
    QCOMPARE(page.key("on")->text(), QString("On"));
    language = "y ";
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&page, &change);
    QCOMPARE(page.key("on")->text(), QString("y On"));
    QCOMPARE(page.key("on")->accessibleName(), QString("y Sounds y On"));
    language.clear();
}

FILARIX_TEST_MAIN(TestChoicePage)
#include "tst_choicepage.moc"
