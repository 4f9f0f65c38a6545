// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/glyphs.h"
#include "look/measures.h"
#include "look/namelabel.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/spokennames.h"
#include "modaldriver.h"
#include "shell/messagebar.h"
#include "shell/panelwindow.h"
#include "shell/statusstrip.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

class FakeScreen : public PanelScreen
{
    Q_OBJECT

public:
    QString title() const override { return m_title; }
    bool hasChanges() const override { return m_changed; }
    QList<PanelKey *> keys() override { return {m_key = new PanelKey("Do")}; }
    bool mayClose() override
    {
        if (!m_mayClose && !m_objection.isEmpty())
            Q_EMIT told(m_objection, Message::Warning);
        return m_mayClose;
    }
    bool isWorking() const override { return m_isWorking; }
    void stopWork(const QString &work) override
    {
        ++m_stops;
        m_stopped = work;
    }

    QString m_title = "coil.cnc";
    bool m_changed = false;
    bool m_mayClose = true;
    QString m_objection;
    bool m_isWorking = false;
    int m_stops = 0;
    QString m_stopped;
    PanelKey *m_key = nullptr;
};

class TestPanelWindow : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    // What the strips take of the panel is as high as the style has it.
    void initTestCase() { QApplication::setStyle(new PanelStyle); }
    void touchTargets_data();
    void touchTargets();
    void tabShowsItsScreenAndKeys();
    void menuKeyOfASmallPanelShowsTheTabs();
    void aKeyboardGoesIntoTheMenuAndBack();
    void titleCarriesTheMarkOfChanges();
    void slimPanelShowsTheWholeName();
    void keysGiveUpTheirWordsForTheName();
    void headShowsNameAndState_data();
    void headShowsNameAndState();
    void statusIsInViewOnEveryScreen_data();
    void statusIsInViewOnEveryScreen();
    void touchShowsEverythingInFull_data();
    void touchShowsEverythingInFull();
    void messageCoversNothing_data();
    void messageCoversNothing();
    void longMessageTakesTheLineOfTheDevices();
    void messageSurvivesAChangeOfScreens();
    void messageGoesWithItsCause();
    void whatIsToldMeanwhileEndsNoWork();
    void gearLeadsToTheSettings_data();
    void gearLeadsToTheSettings();
    void messagesAndProgressOfAScreenAreShown();
    void stopReachesTheScreenThatWorks();
    void workOfTwoScreensIsShownInTurn();
    void panelIsShadedWhileADialogWaits();
    void closingAsksEveryScreen();

private:
    QMap<int, QRect> m_keyPlaces;
};

static void addScreens(PanelWindow *panel, QList<FakeScreen *> *screens)
{
    for (const char *name : {"Program", "Teach", "Variables", "Connections", "Files"}) {
        screens->append(new FakeScreen);
        screens->last()->m_title = name;
        panel->addScreen(screens->last(), name, Glyphs::icon(Glyphs::Program));
    }
}

static PanelKey *key(const QWidget &panel, const QString &text)
{
    const QList<PanelKey *> keys = panel.findChildren<PanelKey *>();
    for (PanelKey *key : keys) {
        if (key->text() == text)
            return key;
    }
    return nullptr;
}

static QString label(const QWidget &panel, const char *name)
{
    return panel.findChild<QLabel *>(name)->text();
}

void TestPanelWindow::touchTargets_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("small") << QSize(480, 272);
    QTest::newRow("small upright") << QSize(272, 480);
    QTest::newRow("upright") << QSize(480, 800);
    QTest::newRow("800x480") << QSize(800, 480);
    QTest::newRow("1024x600") << QSize(1024, 600);
    QTest::newRow("1280x800") << QSize(1280, 800);
}

void TestPanelWindow::touchTargets()
{
    QFETCH(QSize, size);
    PanelWindow panel(size);
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    if (PanelKey *menu = key(panel, "Menu"))
        QTest::mouseClick(menu, Qt::LeftButton);
    QCoreApplication::processEvents();

    QCOMPARE(panel.size(), size);
    const QList<PanelKey *> keys = panel.findChildren<PanelKey *>();
    int visible = 0;
    for (PanelKey *key : keys) {
        if (!key->isVisible())
            continue;
        ++visible;
        QVERIFY2(key->width() >= 34 && key->height() >= 34, qPrintable(key->text()));
        const QRect place(key->mapTo(&panel, QPoint(0, 0)), key->size());
        QVERIFY2(panel.rect().contains(place), qPrintable(key->text()));
        const int needed = key->fontMetrics().boundingRect(key->text()).width();
        QVERIFY2(needed <= key->width(), qPrintable(key->text()));
    }
    QVERIFY(visible >= 6);
    // The screens keep what the strips leave, and that is most of the panel: on the largest the
    // strips hold the keys of the screen, the message with its key, and the tabs.
    QVERIFY(screens.first()->height() >= size.height() - 136);
    if (size == QSize(480, 272))
        QVERIFY(screens.first()->height() >= size.height() - 49);
}

void TestPanelWindow::tabShowsItsScreenAndKeys()
{
    PanelWindow panel(QSize(800, 480));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    QCOMPARE(panel.currentScreen(), static_cast<PanelScreen *>(screens.at(0)));
    QVERIFY(screens.at(0)->m_key->isVisible());
    QVERIFY(!screens.at(1)->m_key->isVisible());

    QTest::mouseClick(key(panel, "Teach"), Qt::LeftButton);
    QCOMPARE(panel.currentScreen(), static_cast<PanelScreen *>(screens.at(1)));
    QVERIFY(!screens.at(0)->m_key->isVisible());
    QVERIFY(screens.at(1)->m_key->isVisible());
    QCOMPARE(label(panel, "title"), QString("Teach"));

    panel.showScreen(-1);
    panel.showScreen(5);
    QCOMPARE(panel.currentScreen(), static_cast<PanelScreen *>(screens.at(1)));
}

void TestPanelWindow::menuKeyOfASmallPanelShowsTheTabs()
{
    PanelWindow panel(QSize(480, 272));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    QVERIFY(!key(panel, "Files")->isVisible());
    QTest::mouseClick(key(panel, "Menu"), Qt::LeftButton);
    QVERIFY(key(panel, "Files")->isVisible());
    QTest::mouseClick(key(panel, "Files"), Qt::LeftButton);
    QVERIFY(!key(panel, "Files")->isVisible());
    QCOMPARE(panel.currentScreen(), static_cast<PanelScreen *>(screens.at(4)));
}

void TestPanelWindow::aKeyboardGoesIntoTheMenuAndBack()
{
    PanelWindow panel(QSize(480, 272));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    QApplication::setActiveWindow(&panel);
    key(panel, "Menu")->setFocus();
    QTRY_VERIFY(key(panel, "Menu")->hasFocus());
    QTest::keyClick(key(panel, "Menu"), Qt::Key_Space);
    QVERIFY(key(panel, "Files")->isVisible());
    QVERIFY(!key(panel, "Menu")->hasFocus());
    key(panel, "Files")->setFocus();
    QTest::keyClick(key(panel, "Files"), Qt::Key_Space);
    QCOMPARE(panel.currentScreen(), static_cast<PanelScreen *>(screens.at(4)));
    QVERIFY(!key(panel, "Files")->isVisible());
    QVERIFY(key(panel, "Menu")->hasFocus());
}

void TestPanelWindow::titleCarriesTheMarkOfChanges()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    panel.addScreen(screen, "Program", QIcon());
    QCOMPARE(label(panel, "title"), QString("coil.cnc"));
    screen->m_changed = true;
    Q_EMIT screen->titleChanged();
    QCOMPARE(label(panel, "title"), QString("coil.cnc*"));
    QVERIFY(panel.isWindowModified());
    screen->m_changed = false;
    screen->m_title = "other.cnc";
    Q_EMIT screen->titleChanged();
    QCOMPARE(label(panel, "title"), QString("other.cnc"));
    QVERIFY(!panel.isWindowModified());
    QVERIFY(panel.windowTitle().startsWith("other.cnc[*]"));
}

void TestPanelWindow::slimPanelShowsTheWholeName()
{
    PanelWindow panel(QSize(272, 480));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    NameLabel *title = panel.findChild<NameLabel *>("title");
    const auto shown = [&](const QString &name) {
        screens.first()->m_title = name;
        Q_EMIT screens.first()->titleChanged();
        QCoreApplication::processEvents();
        return title->shown().join(QString());
    };
    QCOMPARE(shown("stator-coil-of-machine-1.cnc"), QString("stator-coil-of-machine-1.cnc"));
    QVERIFY(title->fontMetrics().horizontalAdvance("stator-coil-of-machine-1.cnc")
            > title->width());
    // Longer than all lines, it keeps its number and its end.
    const QString longer = shown(QString(60, 'm') + "-4711.cnc");
    QVERIFY2(longer.startsWith("mm") && longer.endsWith("-4711.cnc"), qPrintable(longer));
}

// As in German, whose words are long.
void TestPanelWindow::keysGiveUpTheirWordsForTheName()
{
    PanelWindow panel(QSize(800, 480));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    PanelKey *own = screens.first()->m_key;
    own->setIcon(Glyphs::icon(Glyphs::Check));
    const QWidget *block = panel.findChild<QWidget *>("titleBlock");
    const auto show = [&](const QString &word) {
        own->setText(word);
        panel.showScreen(screens.last());
        panel.showScreen(screens.first());
        panel.show();
        QCoreApplication::processEvents();
    };
    show("Check");
    QCOMPARE(own->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QVERIFY(block->width() >= 80);
    show("A word that is as long as all the room beside the tabs of the panel");
    QCOMPARE(own->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QVERIFY2(block->width() >= 80, qPrintable(QString::number(block->width())));
    QVERIFY(own->geometry().right() < panel.width());
    // It is for eyes only.
    QVERIFY(!own->text().isEmpty());
    // What has no sign keeps its word.
    QCOMPARE(screens.last()->m_key->toolButtonStyle(), Qt::ToolButtonTextOnly);
    show("Check");
    QCOMPARE(own->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    // In another language, without a change of the screen.
    own->setText("A word that is as long as all the room beside the tabs of the panel");
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&panel, &change);
    QTRY_COMPARE(own->toolButtonStyle(), Qt::ToolButtonIconOnly);
}

void TestPanelWindow::headShowsNameAndState_data()
{
    touchTargets_data();
}

// With the keys of the program's screen, beside which there is the least room.
void TestPanelWindow::headShowsNameAndState()
{
    QFETCH(QSize, size);
    PanelWindow panel(size);
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    NameLabel *title = panel.findChild<NameLabel *>("title");
    FakeScreen *screen = screens.first();
    screen->m_title = "coil-12.cnc";
    screen->m_changed = true;
    Q_EMIT screen->titleChanged();
    QCoreApplication::processEvents();
    QCOMPARE(title->shown().join(QLatin1Char(' ')), QString("coil-12.cnc (changed)"));
    // A message leaves the name where it is.
    Q_EMIT screen->told(QString(200, 'w'), Message::Warning);
    QCoreApplication::processEvents();
    const QString shown = title->shown().join(QString());
    QVERIFY2(shown.startsWith("coil-12.cnc"), qPrintable(shown));
}

void TestPanelWindow::statusIsInViewOnEveryScreen_data()
{
    touchTargets_data();
}

void TestPanelWindow::statusIsInViewOnEveryScreen()
{
    QFETCH(QSize, size);
    PanelWindow panel(size);
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    DeviceState devices;
    devices.isKnown = true;
    devices.freeBytes = qint64(100) * 1024 * 1024 * 1024;
    panel.status()->showDevices(devices);
    for (int i = 0; i < screens.size(); ++i) {
        panel.showScreen(i);
        screens.at(i)->m_title = QString(200, 'w');
        Q_EMIT screens.at(i)->titleChanged();
        // On a small panel it takes the place of some, and a long one that of all on a slim panel.
        const int length = size == QSize(272, 480) ? 30 : 200;
        if (size != QSize(480, 272))
            Q_EMIT screens.at(i)->told(QString(length, 'w'), Message::Information);
        QCoreApplication::processEvents();
        const QList<QLabel *> words = panel.status()->findChildren<QLabel *>();
        QCOMPARE(words.size(), 5);
        for (QLabel *word : words) {
            // Nothing was checked.
            if (word->objectName() == QLatin1String("checkState"))
                continue;
            QVERIFY(word->isVisible());
            const QRect place(word->mapTo(&panel, QPoint(0, 0)), word->size());
            QVERIFY2(panel.rect().contains(place), qPrintable(word->objectName()));
            QVERIFY2(word->fontMetrics().horizontalAdvance(word->text())
                         <= word->contentsRect().width(),
                     qPrintable(word->objectName()));
            QVERIFY(word->height() >= word->fontMetrics().ascent());
            QVERIFY(word->font().pixelSize() >= 12);
            // Nothing lies over it.
            QCOMPARE(panel.childAt(place.center()), static_cast<QWidget *>(word));
        }
    }
}

void TestPanelWindow::touchShowsEverythingInFull_data()
{
    touchTargets_data();
}

void TestPanelWindow::touchShowsEverythingInFull()
{
    QFETCH(QSize, size);
    PanelWindow panel(size);
    FakeScreen *screen = new FakeScreen;
    screen->m_title = QString(60, 'w') + ".cnc";
    panel.addScreen(screen, "Program", QIcon());
    panel.show();
    const QString text = QString("The stick is full. ").repeated(10);
    Q_EMIT screen->told(text, Message::Warning);
    Q_EMIT screen->worked("on its way", 30);
    QCoreApplication::processEvents();
    QWidget *block = panel.findChild<QWidget *>("titleBlock");
    QVERIFY(block->height() >= 34);
    for (QWidget *target : {block, static_cast<QWidget *>(panel.messageBar())}) {
        ModalDriver driver;
        driver.then([&](QWidget *dialog) {
            const auto shown = [dialog](const char *name) {
                return dialog->findChild<QLabel *>(name)->text().remove(QChar(0x200b));
            };
            QCOMPARE(shown("subject"), screen->m_title);
            QCOMPARE(shown("text"), text);
            dialog->close();
        });
        QTest::mouseClick(target, Qt::LeftButton);
        QVERIFY2(driver.finished(), driver.report());
    }
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        QCOMPARE(dialog->findChild<QLabel *>("subject")->text(), QString("In. Files: 3"));
        dialog->close();
    });
    Q_EMIT screen->explained("In. Files: 3");
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(panel.messages()->messages().size(), 1);
    // The work goes on, and keeps its key.
    QVERIFY(panel.messageBar()->isWorking());
    QVERIFY(panel.messageBar()->key()->isVisible());
}

void TestPanelWindow::messageCoversNothing_data()
{
    touchTargets_data();
}

void TestPanelWindow::messageCoversNothing()
{
    QFETCH(QSize, size);
    PanelWindow panel(size);
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    QStackedWidget *stack = panel.findChild<QStackedWidget *>();
    QRect content = stack->geometry();
    const int row = panel.messageBar()->height();
    for (int state = 0; state < 3; ++state) {
        if (state == 1)
            Q_EMIT screens.at(0)->told(QString(200, 'w'), Message::Alarm);
        if (state == 2)
            Q_EMIT screens.at(0)->worked(QString(200, 'w'), 40);
        QCoreApplication::processEvents();
        // What stops running work is 15 mm high, where the panel is high enough.
        if (state == 2 && panel.messageBar()->height() >= Measures::touch())
            content.setHeight(content.height() + row - Measures::stop().height());
        for (int i = 0; i < screens.size(); ++i) {
            panel.showScreen(i);
            QCoreApplication::processEvents();
            // Nothing gives way under a thumb.
            QCOMPARE(stack->geometry(), content);
            const QRect keyPlace(screens.at(i)->m_key->mapTo(&panel, QPoint(0, 0)),
                                 screens.at(i)->m_key->size());
            QCOMPARE(panel.childAt(keyPlace.center()),
                     static_cast<QWidget *>(screens.at(i)->m_key));
            if (state == 0)
                m_keyPlaces[i] = keyPlace;
            QCOMPARE(keyPlace, m_keyPlaces[i]);
            if (state == 0)
                continue;
            for (QWidget *part : {static_cast<QWidget *>(panel.messageBar()),
                                  static_cast<QWidget *>(panel.messageBar()->key())}) {
                QVERIFY(part->isVisible());
                const QRect place(part->mapTo(&panel, QPoint(0, 0)), part->size());
                QVERIFY(panel.rect().contains(place));
                QVERIFY(!place.intersects(content));
                QVERIFY(part->visibleRegion().boundingRect() == part->rect());
            }
            QVERIFY(panel.messageBar()->key()->height() >= 40);
            // All of the content is the screen's.
            QCOMPARE(panel.childAt(content.center()), static_cast<QWidget *>(screens.at(i)));
            QCOMPARE(panel.childAt(content.topLeft()), static_cast<QWidget *>(screens.at(i)));
            QCOMPARE(panel.childAt(content.bottomRight()), static_cast<QWidget *>(screens.at(i)));
        }
    }
}

// On a slim panel, whose lines are short.
void TestPanelWindow::longMessageTakesTheLineOfTheDevices()
{
    PanelWindow panel(QSize(272, 480));
    const QString text = QString("word ").repeated(18).trimmed();
    panel.messages()->tell(text, Message::Warning, "long");
    panel.show();
    QCoreApplication::processEvents();
    const ElidedLabel *label = panel.findChild<ElidedLabel *>("messageText");
    QVERIFY(!panel.status()->isVisible());
    QVERIFY(label->isWhole());
    panel.messages()->end("long");
    QVERIFY(panel.status()->isVisible());
    panel.messages()->tell("word", Message::Warning, "short");
    QVERIFY(panel.status()->isVisible());
    panel.messages()->tell(text, Message::Warning, "long");
    QVERIFY(!panel.status()->isVisible());
}

void TestPanelWindow::messageSurvivesAChangeOfScreens()
{
    PanelWindow panel(QSize(480, 272));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    Q_EMIT screens.at(0)->told("The PLC does not answer.", Message::Alarm, "plc");
    for (int i = 4; i >= 0; --i) {
        panel.showScreen(i);
        QCOMPARE(panel.messageBar()->text(), QString("The PLC does not answer."));
        QVERIFY(panel.messageBar()->isVisible());
        // What the PLC is stays in view meanwhile.
        QVERIFY(panel.findChild<QLabel *>("plcState")->isVisible());
        QVERIFY(!panel.findChild<QLabel *>("stickState")->isVisible());
    }
    Q_EMIT screens.at(3)->causeEnded("plc");
    QCOMPARE(panel.messageBar()->text(), QString());
    QVERIFY(panel.findChild<QLabel *>("plcState")->isVisible());
    QVERIFY(panel.findChild<QLabel *>("stickState")->isVisible());
}

void TestPanelWindow::messageGoesWithItsCause()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    panel.addScreen(screen, "Program", QIcon());
    panel.show();
    DeviceState devices;
    devices.isKnown = true;
    panel.showDevices(devices);
    QCOMPARE(panel.status()->plc(), StatusStrip::PlcAway);
    Q_EMIT screen->told("The PLC does not answer.", Message::Alarm, "plc");
    QCOMPARE(panel.messageBar()->text(), QString("The PLC does not answer."));
    devices.plcReachable = true;
    panel.showDevices(devices);
    QCOMPARE(panel.status()->plc(), StatusStrip::PlcReady);
    QCOMPARE(panel.messageBar()->text(), QString());
    QCOMPARE(panel.messages()->messages().size(), 1);
}

void TestPanelWindow::whatIsToldMeanwhileEndsNoWork()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    screen->m_mayClose = false;
    screen->m_objection = "A download is running.";
    panel.addScreen(screen, "Program", QIcon());
    panel.show();
    screen->m_isWorking = true;
    Q_EMIT screen->worked("on its way", 30);
    QVERIFY(!panel.close());
    QCOMPARE(panel.messageBar()->text(), QString("A download is running."));
    QVERIFY(panel.messageBar()->isWorking());
    QTest::mouseClick(panel.messageBar()->key(), Qt::LeftButton);
    QCOMPARE(screen->m_stops, 1);
    screen->m_isWorking = false;
    Q_EMIT screen->told("It was stopped.", Message::Information);
    QVERIFY(!panel.messageBar()->isWorking());
    QCOMPARE(panel.messageBar()->text(), QString("It was stopped."));
}

void TestPanelWindow::gearLeadsToTheSettings_data()
{
    touchTargets_data();
}

void TestPanelWindow::gearLeadsToTheSettings()
{
    QFETCH(QSize, size);
    PanelWindow panel(size);
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    FakeScreen *settings = new FakeScreen;
    panel.addSettings(settings);
    panel.show();
    PanelKey *gear = panel.findChild<PanelKey *>("settingsKey");
    if (PanelKey *menu = key(panel, "Menu")) {
        QTest::mouseClick(menu, Qt::LeftButton);
        QCOMPARE(gear->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    } else {
        QCOMPARE(gear->toolButtonStyle(), Qt::ToolButtonIconOnly);
    }
    QVERIFY(gear->isVisible());
    QVERIFY(!gear->icon().isNull());
    QVERIFY(gear->width() >= Measures::touch() && gear->height() >= Measures::touch());
    QCOMPARE(SpokenNames::nameOf(gear), QString("Settings"));
    QTest::mouseClick(gear, Qt::LeftButton);
    QCOMPARE(panel.currentScreen(), static_cast<PanelScreen *>(settings));
    QVERIFY(gear->isChecked());
}

void TestPanelWindow::messagesAndProgressOfAScreenAreShown()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    panel.addScreen(screen, "Program", QIcon());
    panel.show();
    Q_EMIT screen->worked("on its way", 30);
    QCOMPARE(panel.messageBar()->text(), QString("on its way"));
    QTest::mouseClick(panel.messageBar()->key(), Qt::LeftButton);
    QCOMPARE(screen->m_stops, 1);
    Q_EMIT screen->told("arrived", Message::Information);
    QCOMPARE(panel.messageBar()->text(), QString("arrived"));
    QVERIFY(!panel.messageBar()->isWorking());
    panel.messages()->closeAll();
    QVERIFY(label(panel, "messageText").endsWith("arrived"));
}

void TestPanelWindow::stopReachesTheScreenThatWorks()
{
    PanelWindow panel(QSize(800, 480));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    Q_EMIT screens.at(0)->worked("on its way", 30);
    // The operator looks at something else meanwhile.
    panel.showScreen(4);
    QTest::mouseClick(panel.messageBar()->key(), Qt::LeftButton);
    QCOMPARE(screens.at(0)->m_stops, 1);
    QCOMPARE(screens.at(4)->m_stops, 0);
}

void TestPanelWindow::workOfTwoScreensIsShownInTurn()
{
    PanelWindow panel(QSize(800, 480));
    QList<FakeScreen *> screens;
    addScreens(&panel, &screens);
    panel.show();
    PanelKey *stop = panel.messageBar()->key();
    Q_EMIT screens.at(0)->worked("on its way", 30);
    Q_EMIT screens.at(4)->worked("being checked", 10, "check");
    QVERIFY(panel.messageBar()->text().startsWith("being checked"));
    // It has just come in the place of the other one.
    QTest::mouseClick(stop, Qt::LeftButton);
    QCOMPARE(screens.at(0)->m_stops + screens.at(4)->m_stops, 0);
    QTRY_VERIFY(stop->isEnabled());
    QTest::mouseClick(stop, Qt::LeftButton);
    QCOMPARE(screens.at(4)->m_stops, 1);
    QCOMPARE(screens.at(4)->m_stopped, QString("check"));
    QVERIFY(!stop->isEnabled());
    // A word of the screen is none on work that has a name.
    Q_EMIT screens.at(4)->told("The stick is in.", Message::Information);
    QCOMPARE(panel.works()->count(), 2);
    Q_EMIT screens.at(4)->workEnded("check");
    panel.messages()->closeAll();
    QCOMPARE(panel.messageBar()->text(), QString("on its way"));
    Q_EMIT screens.at(0)->told("arrived", Message::Information);
    QVERIFY(!panel.messageBar()->isWorking());
    QCOMPARE(panel.works()->count(), 0);
}

void TestPanelWindow::panelIsShadedWhileADialogWaits()
{
    PanelWindow panel(QSize(800, 480));
    panel.addScreen(new FakeScreen, "Program", QIcon());
    panel.show();
    QVERIFY(TestCompat::waitForExposed(&panel));
    QWidget *shade = panel.findChild<QWidget *>("shade");
    QVERIFY(!shade->isVisible());
    bool shaded = false;
    ModalDriver driver;
    driver.then([&](QWidget *box) {
        shaded = shade->isVisible();
        box->close();
    });
    QMessageBox::information(nullptr, "Title", "Text");
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(shaded);
    QVERIFY(!shade->isVisible());
}

void TestPanelWindow::closingAsksEveryScreen()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    panel.addScreen(new FakeScreen, "Program", QIcon());
    panel.addScreen(screen, "Teach", QIcon());
    panel.show();
    QSignalSpy closes(&panel, SIGNAL(closed()));
    screen->m_mayClose = false;
    QVERIFY(!panel.close());
    QVERIFY(panel.isVisible());
    screen->m_mayClose = true;
    QVERIFY(panel.close());
    QCOMPARE(closes.size(), 1);
}

FILARIX_TEST_MAIN(TestPanelWindow)
#include "tst_panelwindow.moc"
