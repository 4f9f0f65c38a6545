// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/livetext.h"

#include <QLabel>

class TestLiveText : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsThereAtOnce();
    void theTextFollowsTheLanguage();
    void anotherPropertyFollowsToo();
    void nothingElseSetsItAgain();
};

static void changeLanguage(QWidget *widget)
{
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(widget, &change);
}

void TestLiveText::theTextIsThereAtOnce()
{
    QLabel label;
    new LiveText(&label, [] { return QString("Names"); });
    QCOMPARE(label.text(), QString("Names"));
}

void TestLiveText::theTextFollowsTheLanguage()
{
    QString name = "Names";
    QLabel label;
    new LiveText(&label, [&name] { return name; });
    name = "Namen";
    QCOMPARE(label.text(), QString("Names"));
    changeLanguage(&label);
    QCOMPARE(label.text(), QString("Namen"));
}

void TestLiveText::anotherPropertyFollowsToo()
{
    QString name = "Page up";
    QLabel label("Page");
    new LiveText(
        &label, [&name] { return name; }, "accessibleName");
    QCOMPARE(label.accessibleName(), QString("Page up"));
    name = "Seite zurück";
    changeLanguage(&label);
    QCOMPARE(label.accessibleName(), QString("Seite zurück"));
    QCOMPARE(label.text(), QString("Page"));
}

void TestLiveText::nothingElseSetsItAgain()
{
    int count = 0;
    QLabel label;
    new LiveText(&label, [&count] { return QString::number(++count); });
    label.resize(100, 20);
    label.show();
    QVERIFY(TestCompat::waitForExposed(&label));
    QCOMPARE(label.text(), QString("1"));
}

FILARIX_TEST_MAIN(TestLiveText)
#include "tst_livetext.moc"
