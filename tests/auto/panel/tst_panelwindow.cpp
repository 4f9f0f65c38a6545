// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "glyphs.h"
#include "look.h"
#include "messagebar.h"
#include "modaldriver.h"
#include "panelkey.h"
#include "panelwindow.h"

#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>

class FakeScreen : public PanelScreen
{
    Q_OBJECT

public:
    QString title() const override { return m_title; }
    bool hasChanges() const override { return m_changed; }
    QList<PanelKey *> keys() override { return {m_key = new PanelKey("Do")}; }
    bool mayClose() override { return m_mayClose; }
    void stopWork() override { ++m_stops; }
    void refreshStatus() override { Q_EMIT statusChanged("PLC", m_state); }

    QString m_title = "coil.cnc";
    QString m_state = "ready";
    bool m_changed = false;
    bool m_mayClose = true;
    int m_stops = 0;
    PanelKey *m_key = nullptr;
};

class TestPanelWindow : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void touchTargets_data();
    void touchTargets();
    void tabShowsItsScreenAndKeys();
    void menuKeyOfASmallPanelShowsTheTabs();
    void titleCarriesTheMarkOfChanges();
    void statusLineTellsTheDevices();
    void messagesAndProgressOfAScreenAreShown();
    void panelIsShadedWhileADialogWaits();
    void closingAsksEveryScreen();
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
    // The screens keep what the strips leave, and that is most of the panel.
    QVERIFY(screens.first()->height() >= size.height() - 124);
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

void TestPanelWindow::statusLineTellsTheDevices()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    panel.addScreen(screen, "Program", QIcon());
    QVERIFY(label(panel, "status").contains("PLC ready"));
    Q_EMIT screen->statusChanged("Stick", "away");
    QVERIFY(label(panel, "status").contains("PLC ready"));
    QVERIFY(label(panel, "status").contains("Stick away"));
    screen->m_state = "gone";
    QTRY_VERIFY(label(panel, "status").contains("PLC gone"));
    QVERIFY(!label(panel, "status").contains("PLC ready"));
}

void TestPanelWindow::messagesAndProgressOfAScreenAreShown()
{
    PanelWindow panel(QSize(800, 480));
    FakeScreen *screen = new FakeScreen;
    panel.addScreen(screen, "Program", QIcon());
    panel.show();
    Q_EMIT screen->worked("on its way", 30);
    QCOMPARE(panel.messageBar()->text(), QString("on its way"));
    QTest::mouseClick(panel.messageBar()->findChild<PanelKey *>(), Qt::LeftButton);
    QCOMPARE(screen->m_stops, 1);
    Q_EMIT screen->told("arrived", PanelScreen::Good);
    QCOMPARE(panel.messageBar()->text(), QString("arrived"));
    QVERIFY(label(panel, "lastMessage").endsWith("arrived"));
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
