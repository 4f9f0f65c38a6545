// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "screens/choicepage.h"
#include "screens/clockpage.h"
#include "screens/settingsscreen.h"
#include "shell/languages.h"
#include "shell/settings.h"
#include "shell/touchsound.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

/// That everything fits, is reached by the keyboard and has a name is tst_textfit's and
/// tst_keyboardwalk's; that a running panel follows is tst_languages' and tst_panelprogram's.
class TestSettingsScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void allSectionsAreInViewWhereThereIsRoom_data();
    void allSectionsAreInViewWhereThereIsRoom();
    void aSmallPanelHasAKeyForEachSection_data();
    void aSmallPanelHasAKeyForEachSection();
    void whatIsInForceIsMarked();
    void eachLanguageIsWrittenInItself();
    void everyChoiceHoldsAtOnceAndIsKept();
    void whatSomebodyElseChangesIsMarked();
    void aChoiceThatCannotBeStoredLastsAndIsTold();
    void aTranslationThatIsNotInstalledIsToldAndNotMarked();
    void theRoomFollowsTheDevices();
    void theClockSpeaksTheLanguage();

private:
    static QString file() { return FilarixTest::home() + "/hmi/panel.ini"; }
};

namespace {

const QSize small(480, 272);
const QSize roomy(800, 480);

struct Desk
{
    explicit Desk(const QSize &size = roomy, const QString &path = QString())
        : settings(path)
        , languages(QStringList(), &settings)
        , screen(size, "/home/panel/hmi", &languages, &settings, &sounds)
    {
        screen.resize(size);
        screen.show();
    }

    QPushButton *key(const QString &name) const { return screen.findChild<QPushButton *>(name); }
    bool isSeen(const QString &section) const
    {
        return screen.findChild<QWidget *>("page_" + section)->isVisible();
    }
    QString marked(const QString &section) const
    {
        return screen.findChild<ChoicePage *>("page_" + section)->marked();
    }

    Settings settings;
    Languages languages;
    TouchSound sounds;
    SettingsScreen screen;
};

} // namespace

void TestSettingsScreen::cleanup()
{
    Look::use(Look::Light);
    Measures::useTextSize(100);
    FilarixTest::cleanup();
}

void TestSettingsScreen::allSectionsAreInViewWhereThereIsRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("columns");
    QTest::newRow("lying") << roomy << 3;
    QTest::newRow("upright") << QSize(480, 800) << 2;
    QTest::newRow("large") << QSize(1280, 800) << 3;
}

void TestSettingsScreen::allSectionsAreInViewWhereThereIsRoom()
{
    QFETCH(QSize, size);
    QFETCH(int, columns);
    const Desk desk(size);
    QCOMPARE(desk.screen.title(), QString("Settings"));
    QSet<int> lefts;
    for (const QString &section : SettingsScreen::sections()) {
        QVERIFY(desk.isSeen(section));
        lefts.insert(desk.screen.findChild<QWidget *>("page_" + section)->x());
    }
    QCOMPARE(lefts.size(), columns);
    QVERIFY(!desk.screen.findChild<PanelKey *>());
}

void TestSettingsScreen::aSmallPanelHasAKeyForEachSection_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("lying") << small;
    QTest::newRow("upright") << QSize(272, 480);
}

void TestSettingsScreen::aSmallPanelHasAKeyForEachSection()
{
    QFETCH(QSize, size);
    Desk desk(size);
    QVERIFY(desk.isSeen("language"));
    for (const QString &section : SettingsScreen::sections()) {
        PanelKey *way = desk.screen.findChild<PanelKey *>("section_" + section);
        QVERIFY(way->width() >= Measures::touch() && way->height() >= Measures::touch());
        QTest::mouseClick(way, Qt::LeftButton);
        QVERIFY(way->isChecked());
        for (const QString &other : SettingsScreen::sections())
            QCOMPARE(desk.isSeen(other), other == section);
    }
    desk.screen.showSection("none of them");
    QVERIFY(desk.isSeen("about"));
    desk.screen.showSection("look");
    QVERIFY(desk.isSeen("look"));
    QVERIFY(desk.screen.findChild<PanelKey *>("section_look")->isChecked());
}

void TestSettingsScreen::whatIsInForceIsMarked()
{
    Look::use(Look::Dark);
    Measures::useTextSize(125);
    const Desk desk;
    QCOMPARE(desk.marked("language"), QString("en"));
    QCOMPARE(desk.marked("look"), QString("dark"));
    QCOMPARE(desk.marked("textsize"), QString("125"));
    QCOMPARE(desk.marked("sounds"), QString("off"));
    // All looks that there are have a key, and all sizes.
    const auto values = [&desk](const QString &section) {
        return desk.screen.findChild<ChoicePage *>("page_" + section)->values();
    };
    QCOMPARE(values("look"), Look::names());
    QCOMPARE(values("textsize"), Measures::textSizeNames());
    for (const QPushButton *key : desk.screen.findChildren<QPushButton *>())
        QVERIFY2(key->isEnabled(), qPrintable(key->objectName()));
}

void TestSettingsScreen::eachLanguageIsWrittenInItself()
{
    const Desk desk;
    for (const Languages::Language &language : Languages::all())
        QCOMPARE(desk.key("language_" + language.code)->text(), language.name);
}

void TestSettingsScreen::everyChoiceHoldsAtOnceAndIsKept()
{
    {
        Desk desk(roomy, file());
        QTest::mouseClick(desk.key("look_dark"), Qt::LeftButton);
        QCOMPARE(Look::style(), Look::Dark);
        QCOMPARE(desk.marked("look"), QString("dark"));
        QTest::mouseClick(desk.key("textsize_150"), Qt::LeftButton);
        QCOMPARE(Measures::textSize(), 150);
        QCOMPARE(desk.marked("textsize"), QString("150"));
        QTest::mouseClick(desk.key("sounds_on"), Qt::LeftButton);
        QVERIFY(desk.sounds.isOn());
        QCOMPARE(desk.marked("sounds"), QString("on"));
        QVERIFY(desk.settings.settle(patience(10000)));
        QCOMPARE(desk.settings.takeTrouble(), QString());
    }
    Settings kept(file());
    QCOMPARE(kept.choice(Look::settingsKey(), Look::names()), QString("dark"));
    QCOMPARE(kept.choice(Measures::textSizeKey(), Measures::textSizeNames()), QString("150"));
    QCOMPARE(kept.choice(TouchSound::settingsKey(), TouchSound::names()), QString("on"));
}

void TestSettingsScreen::whatSomebodyElseChangesIsMarked()
{
    const Desk desk;
    Look::use(Look::Dark);
    QTRY_COMPARE(desk.marked("look"), QString("dark"));
    Measures::useTextSize(125);
    QCOMPARE(desk.marked("textsize"), QString("125"));
}

// A file stands where the folder would be.
void TestSettingsScreen::aChoiceThatCannotBeStoredLastsAndIsTold()
{
    writeFile(home() + "/hmi", "no folder");
    Desk desk(roomy, file());
    QSignalSpy troubled(&desk.settings, SIGNAL(troubled()));
    QTest::mouseClick(desk.key("look_dark"), Qt::LeftButton);
    QTRY_COMPARE(troubled.size(), 1);
    const QString trouble = desk.settings.takeTrouble();
    QVERIFY2(trouble.contains("lasts until the program ends"), qPrintable(trouble));
    QCOMPARE(Look::style(), Look::Dark);
    QCOMPARE(desk.marked("look"), QString("dark"));
    QVERIFY(QFile::remove(home() + "/hmi"));
}

void TestSettingsScreen::aTranslationThatIsNotInstalledIsToldAndNotMarked()
{
    Desk desk;
    QSignalSpy told(&desk.screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(desk.key("language_de"), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), QString("The translation is not installed."));
    QCOMPARE(desk.marked("language"), QString("en"));
    QVERIFY(desk.key("language_en")->isChecked());
    QVERIFY(!desk.key("language_de")->isChecked());
}

void TestSettingsScreen::theRoomFollowsTheDevices()
{
    Desk desk;
    const QLabel *facts = desk.screen.findChild<QLabel *>("facts");
    DeviceState state;
    state.freeBytes = qint64(20) * 1024 * 1024 * 1024;
    desk.screen.showDevices(state);
    QVERIFY(facts->text().endsWith("not known"));
    state.isKnown = true;
    desk.screen.showDevices(state);
    QVERIFY(facts->text().endsWith("20 GB"));
}

void TestSettingsScreen::theClockSpeaksTheLanguage()
{
    const Desk desk;
    QCOMPARE(desk.screen.findChild<ClockPage *>()->locale().language(), QLocale::English);
}

FILARIX_TEST_MAIN(TestSettingsScreen)
#include "tst_settingsscreen.moc"
