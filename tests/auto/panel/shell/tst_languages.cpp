// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "look/livetext.h"
#include "look/panelkey.h"
#include "panelprogram.h"
#include "screens/choicepage.h"
#include "screens/clockpage.h"
#include "screens/connectionsscreen.h"
#include "screens/filesscreen.h"
#include "screens/programreview.h"
#include "screens/programscreen.h"
#include "screens/settingsscreen.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/languages.h"
#include "shell/panelwindow.h"
#include "shell/settings.h"
#include "stick/devicewatch.h"
#include "wgcodeediter.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>

namespace {

QStringList folders()
{
    return QStringList(QLatin1String(FILARIX_TRANSLATIONS));
}

QString settingsFile()
{
    return FilarixTest::home() + QLatin1String("/hmi/panel.ini");
}

QString translated(const char *context, const char *source)
{
    return QCoreApplication::translate(context, source);
}

/// Texts of buttons and labels that are wider, or once wrapped higher, than their widgets. A label
/// that shortens its text says so by three dots.
QString textsThatDoNotFit(const QWidget *window)
{
    QStringList clipped;
    const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        const QToolButton *tool = qobject_cast<const QToolButton *>(button);
        if (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)
            continue;
        if (button->isVisible() && button->fontMetrics().width(button->text()) > button->width())
            clipped << button->text();
    }
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->isVisible() || label->inherits("ElidedLabel"))
            continue;
        const bool fits = label->wordWrap()
                              ? label->heightForWidth(label->width()) <= label->height()
                              : label->fontMetrics().width(label->text()) <= label->width();
        if (!fits)
            clipped << label->text();
    }
    return clipped.join(QLatin1Char('|'));
}

/// The panel with all its screens, as the program has it.
struct Panel
{
    explicit Panel(const QSize &size, const QString &code = QString(),
                   const QStringList &translations = folders())
        : program(optionsFor(size, code), translations)
    {
        QCOMPARE(program.start(), PanelProgram::Started);
        // What the machine's devices are says nothing of the languages, and changes meanwhile.
        program.deviceWatch()->disconnect();
        // With all that their files hold, and with the program checked.
        const bool areFilled = TestCompat::waitFor([this] {
            return !program.teachScreen()->isLoading() && !program.variablesScreen()->isLoading()
                   && !program.connectionsScreen()->isBusy()
                   && program.programReview()->state() == ProgramReview::Checked;
        });
        QVERIFY(areFilled);
    }

    static Options optionsFor(const QSize &size, const QString &code)
    {
        Options options;
        options.size = size;
        options.language = code;
        return options;
    }

    PanelWindow &window() const { return *program.window(); }
    Languages &languages() { return *program.languages(); }

    /// A row has cells for another kind of row, which it hides.
    static bool isPartOfItsRow(const QLabel *label)
    {
        const QWidget *row = label->parentWidget();
        while (row && !row->inherits("MJLine"))
            row = row->parentWidget();
        return !row || label->isVisibleTo(row);
    }

    static QString textOf(const QTableWidgetItem *item) { return item ? item->text() : QString(); }

    /// All that can be read on it, but the clock.
    QStringList texts() const
    {
        QStringList texts(window().windowTitle());
        const QList<QLabel *> labels = window().findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (isPartOfItsRow(label))
                texts << label->text();
        }
        const QList<QAbstractButton *> buttons = window().findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            texts << button->text();
        const QList<QTableWidget *> tables = window().findChildren<QTableWidget *>();
        for (const QTableWidget *table : tables) {
            for (int column = 0; column < table->columnCount(); ++column)
                texts << textOf(table->horizontalHeaderItem(column))
                      << textOf(table->item(table->rowCount() - 1, column));
        }
        return texts.replaceInStrings(QRegExp(QLatin1String("\\d{1,2}:\\d\\d(:\\d\\d)?")),
                                      QString());
    }

    PanelProgram program;
};

} // namespace

class TestLanguages : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyLanguageIsSpoken_data();
    void everyLanguageIsSpoken();
    void anUnknownLanguageChangesNothing_data();
    void anUnknownLanguageChangesNothing();
    void theProgramsOwnFolderComesFirst();
    void theChoiceIsKept();
    void withoutAChoiceTheSystemsLanguageIsTaken_data();
    void withoutAChoiceTheSystemsLanguageIsTaken();
    void aLiveTextFollowsTheLanguage();
    void theRunningPanelChangesItsLanguage_data();
    void theRunningPanelChangesItsLanguage();
    void theFindDialogFollows();
    void everythingFits_data();
    void everythingFits();
    void theOperatorChoosesByAKey_data();
    void theOperatorChoosesByAKey();
    void aTranslationThatIsNotInstalledIsTold();
};

void TestLanguages::cleanup()
{
    QLocale::setDefault(QLocale::c());
    FilarixTest::cleanup();
}

static void addTranslations()
{
    QTest::addColumn<QString>("code");
    const QList<Languages::Language> all = Languages::all();
    for (const Languages::Language &language : all) {
        if (language.code != "en")
            QTest::newRow(qPrintable(language.code)) << language.code;
    }
}

void TestLanguages::everyLanguageIsSpoken_data()
{
    addTranslations();
}

void TestLanguages::everyLanguageIsSpoken()
{
    QFETCH(QString, code);
    Settings settings(settingsFile());
    Languages languages(folders(), &settings);
    QCOMPARE(languages.current(), QString("en"));
    QVERIFY(languages.use(code));
    QCOMPARE(languages.current(), code);
    QCOMPARE(languages.shortName(), code.left(2).toUpper());
    QVERIFY(translated("WMMainWindow", "Open") != "Open");
    QVERIFY(translated("PanelWindow", "Connections") != "Connections");
    const char stopped[] = "The download was stopped. The PLC keeps what it had.";
    QVERIFY(translated("DownloadSource", stopped) != stopped);
    QVERIFY(translated("KeypadCheck", "Not a number") != "Not a number");
    QVERIFY(translated("QPlatformTheme", "Cancel") != "Cancel");

    QVERIFY(languages.use("en"));
    QCOMPARE(translated("WMMainWindow", "Open"), QString("Open"));
    QCOMPARE(translated("QPlatformTheme", "Cancel"), QString("Cancel"));
}

void TestLanguages::anUnknownLanguageChangesNothing_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("where");
    QTest::newRow("no code") << QString() << folders();
    QTest::newRow("none of ours") << "fr" << folders();
    QTest::newRow("a path") << "../de" << folders();
    QTest::newRow("not installed") << "de" << QStringList("/nowhere");
}

void TestLanguages::anUnknownLanguageChangesNothing()
{
    QFETCH(QString, code);
    QFETCH(QStringList, where);
    Settings settings(settingsFile());
    Languages languages(where, &settings);
    QVERIFY(!languages.use(code));
    QVERIFY(!languages.choose(code));
    QCOMPARE(languages.current(), QString("en"));
    QCOMPARE(translated("WMMainWindow", "Open"), QString("Open"));
    QVERIFY(!QFileInfo::exists(settingsFile()));
}

void TestLanguages::theProgramsOwnFolderComesFirst()
{
    const QString own = home() + "/own";
    QVERIFY(QDir().mkpath(own));
    // Another language under the name, to be told apart.
    for (const char *name : {"filarix", "filarixhost", "filarix-panel"})
        QVERIFY(QFile::copy(QString("%1/%2_it.qm").arg(FILARIX_TRANSLATIONS, name),
                            QString("%1/%2_de.qm").arg(own, name)));
    Settings settings(settingsFile());
    Languages languages(QStringList(own) + folders(), &settings);
    QVERIFY(languages.use("de"));
    QCOMPARE(translated("WMMainWindow", "Open"), QString("Apri"));
}

void TestLanguages::theChoiceIsKept()
{
    {
        Settings settings(settingsFile());
        Languages languages(folders(), &settings);
        QCOMPARE(languages.preferred(), QString("en"));
        QVERIFY(languages.use("it"));
        QCOMPARE(languages.preferred(), QString("en"));
        QVERIFY(languages.choose("de"));
    }
    Settings settings(settingsFile());
    Languages languages(folders(), &settings);
    QCOMPARE(languages.preferred(), QString("de"));
    QCOMPARE(languages.current(), QString("en"));
    QVERIFY(languages.choose("en"));
    QLocale::setDefault(QLocale("it_IT"));
    QCOMPARE(languages.preferred(), QString("en"));

    QVERIFY(settings.settle(patience(10000)));
    writeFile(settingsFile(), "[General]\nlanguage=klingon\n");
    Settings broken(settingsFile());
    QCOMPARE(Languages(folders(), &broken).preferred(), QString("it"));
    QVERIFY(broken.settle(patience(10000)));
    QVERIFY(!broken.takeTrouble().isEmpty());
}

void TestLanguages::withoutAChoiceTheSystemsLanguageIsTaken_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("code");
    QTest::newRow("Austria") << "de_AT"
                             << "de";
    QTest::newRow("China") << "zh_CN"
                           << "zh_CN";
    QTest::newRow("Taiwan") << "zh_TW"
                            << "en";
    QTest::newRow("Turkey") << "tr_TR"
                            << "tr";
    QTest::newRow("France") << "fr_FR"
                            << "en";
    QTest::newRow("none") << "C"
                          << "en";
}

void TestLanguages::withoutAChoiceTheSystemsLanguageIsTaken()
{
    QFETCH(QString, system);
    QLocale::setDefault(QLocale(system));
    Settings settings(settingsFile());
    const Languages languages(folders(), &settings);
    QTEST(languages.preferred(), "code");
}

void TestLanguages::aLiveTextFollowsTheLanguage()
{
    QLabel label;
    new LiveText(&label, [] { return translated("FilesScreen", "Rename"); });
    PanelKey key(QIcon(), [] { return translated("FilesScreen", "Browse"); });
    QCOMPARE(label.text(), QString("Rename"));
    Settings settings(settingsFile());
    Languages languages(folders(), &settings);
    QVERIFY(languages.use("de"));
    QCoreApplication::processEvents();
    QCOMPARE(label.text(), QString("Umbenennen"));
    QCOMPARE(key.text(), QString::fromUtf8("St\u00f6bern"));
    QVERIFY(languages.use("en"));
    QCoreApplication::processEvents();
    QCOMPARE(label.text(), QString("Rename"));
}

void TestLanguages::theRunningPanelChangesItsLanguage_data()
{
    addTranslations();
}

void TestLanguages::theRunningPanelChangesItsLanguage()
{
    QFETCH(QString, code);
    QStringList expected;
    {
        const Panel made(QSize(480, 272), code);
        expected = made.texts();
    }
    Panel panel(QSize(480, 272));
    const QStringList english = panel.texts();
    QVERIFY(english != expected);
    QVERIFY(panel.languages().use(code));
    QCoreApplication::processEvents();
    QCOMPARE(panel.texts(), expected);
    QVERIFY(panel.languages().use("en"));
    QCoreApplication::processEvents();
    QCOMPARE(panel.texts(), english);
}

void TestLanguages::theFindDialogFollows()
{
    Panel panel(QSize(800, 480));
    // For the keypad that opens at once.
    DeviceLog::cancel();
    panel.program.programScreen()->editor()->findAndReplace();
    QWidget *dialog = nullptr;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        if (widget->inherits("WFindDialog"))
            dialog = widget;
    }
    QVERIFY(dialog);
    const auto texts = [dialog] {
        QStringList texts(dialog->windowTitle());
        const QList<QLabel *> labels = dialog->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts << label->text();
        const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons)
            texts << button->text();
        return texts;
    };
    const QStringList english{
        "Find",  "Find &what:", "Replace &what:", "Match &case", "Search &backward",
        "&Find", "&Replace",    "Close"};
    QCOMPARE(texts(), english);
    QVERIFY(panel.languages().use("de"));
    QCoreApplication::processEvents();
    QStringList german;
    for (const QString &text : english)
        german << translated("WFindDialog", text.toLatin1());
    QCOMPARE(texts(), german);
    QCOMPARE(german.first(), QString("Suchen"));
}

void TestLanguages::everythingFits_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size :
         {QSize(480, 272), QSize(480, 800), QSize(800, 480), QSize(1024, 600), QSize(1280, 800)})
        QTest::newRow(qPrintable(QString("%1x%2").arg(size.width()).arg(size.height()))) << size;
}

// One panel through all the languages: the keys grow and shrink in place.
void TestLanguages::everythingFits()
{
    QFETCH(QSize, size);
    Panel panel(size);
    PanelKey *menu = panel.window().findChild<PanelKey *>("menuKey");
    const QStringList codes = Languages::codes();
    for (const QString &code : codes) {
        QVERIFY(panel.languages().use(code));
        QCoreApplication::processEvents();
        if (menu)
            QTest::mouseClick(menu, Qt::LeftButton);
        for (int screen = 0; screen < 7; ++screen) {
            if (screen > 0)
                panel.window().showScreen(screen);
            QCoreApplication::processEvents();
            QTRY_COMPARE(textsThatDoNotFit(&panel.window()), QString());
            QCOMPARE(panel.window().size(), size);
            const QList<PanelKey *> keys = panel.window().findChildren<PanelKey *>();
            for (const PanelKey *key : keys) {
                if (!key->isVisible())
                    continue;
                const QRect place(key->mapTo(&panel.window(), QPoint(0, 0)), key->size());
                QVERIFY2(panel.window().rect().contains(place), qPrintable(key->text()));
                QVERIFY2(key->width() >= 34 && key->height() >= 34, qPrintable(key->text()));
            }
        }
        // A small panel shows its settings one section after the other.
        for (const QString &section : SettingsScreen::sections()) {
            panel.program.settingsScreen()->showSection(section);
            QCoreApplication::processEvents();
            QTRY_COMPARE(textsThatDoNotFit(&panel.window()), QString());
        }
        panel.window().showScreen(0);
    }
}

void TestLanguages::theOperatorChoosesByAKey_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("behind the menu") << QSize(480, 272);
    QTest::newRow("at the foot") << QSize(480, 800);
    QTest::newRow("at the top") << QSize(800, 480);
}

void TestLanguages::theOperatorChoosesByAKey()
{
    QFETCH(QSize, size);
    Panel panel(size);
    if (PanelKey *menu = panel.window().findChild<PanelKey *>("menuKey"))
        QTest::mouseClick(menu, Qt::LeftButton);
    PanelKey *key = panel.window().findChild<PanelKey *>("settingsKey");
    QVERIFY(key->isVisible());
    QTest::mouseClick(key, Qt::LeftButton);
    SettingsScreen *screen = panel.program.settingsScreen();
    QCOMPARE(panel.window().currentScreen(), static_cast<PanelScreen *>(screen));
    ChoicePage *page = screen->findChild<ChoicePage *>("page_language");
    QVERIFY(page->isVisible());
    QCOMPARE(page->marked(), QString("en"));
    QTest::mouseClick(page->key("de"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(panel.languages().current(), QString("de"));
    QCOMPARE(panel.languages().preferred(), QString("de"));
    QCOMPARE(page->marked(), QString("de"));
    QCOMPARE(page->heading(), QString("Sprache"));
    QCOMPARE(key->text(), QString("Einstellungen"));
    QCOMPARE(screen->findChild<ClockPage *>()->locale().language(), QLocale::German);
}

void TestLanguages::aTranslationThatIsNotInstalledIsTold()
{
    Panel panel(QSize(800, 480), QString(), QStringList("/nowhere"));
    panel.window().showScreen(panel.program.settingsScreen());
    panel.program.settingsScreen()->findChild<ChoicePage *>("page_language")->key("de")->click();
    QCOMPARE(panel.languages().current(), QString("en"));
    QCOMPARE(panel.window().messages()->current().text,
             QString("The translation is not installed."));
}

FILARIX_TEST_MAIN(TestLanguages)

#include "tst_languages.moc"
