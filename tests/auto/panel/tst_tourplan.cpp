// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "panelprogram.h"
#include "screens/settingsscreen.h"
#include "screens/variablesscreen.h"
#include "shell/panelwindow.h"
#include "tour.h"
#include "tourplan.h"

#include <QSignalSpy>
#include <QToolButton>

/// The stops of the tour, with the stand-in's keypads. That every stop is reached on every surface
/// is tst_textfit's.
class TestTourPlan : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void stopsComeInTheOrderOfTheVisits();
    void aKeyThatIsGoneEndsTheTour();

private:
    static Options options();
    static QStringList stops(Tour *tour);
};

Options TestTourPlan::options()
{
    Options options;
    options.size = QSize(480, 272);
    options.language = QLatin1String("en");
    return options;
}

void TestTourPlan::cleanup()
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        // The program window leaves the buttons that no bar takes to nobody.
        if (qobject_cast<QToolButton *>(widget))
            delete widget;
    }
    FilarixTest::cleanup();
}

QStringList TestTourPlan::stops(Tour *tour)
{
    QStringList names;
    QSignalSpy finished(tour, SIGNAL(finished()));
    connect(tour, &Tour::arrived, tour, [&names](const QString &name) { names.append(name); });
    tour->start(10);
    if (!TestCompat::waitFor([&finished] { return !finished.isEmpty(); }, patience(60000)))
        names.append("never finished");
    return names;
}

void TestTourPlan::stopsComeInTheOrderOfTheVisits()
{
    StrictMessages::expect("This plugin does not support");
    PanelProgram program(options(), QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    QTRY_VERIFY(!program.variablesScreen()->isLoading());
    Tour tour(program.window());
    TourPlan *plan = new TourPlan(program.window(), &tour);
    plan->visitVariablesScreen(program.variablesScreen());
    plan->visitConnectionsScreen(program.connectionsScreen());
    plan->visitSettingsScreen(program.settingsScreen());
    QCOMPARE(stops(&tour),
             QStringList({"variables", "variables-keypad", "connections", "connect-table",
                          "address-keypad", "settings", "settings-look", "settings-textsize",
                          "settings-sounds", "settings-clock", "settings-about"}));
    QCOMPARE(tour.error(), QString());
}

void TestTourPlan::aKeyThatIsGoneEndsTheTour()
{
    PanelProgram program(options(), QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    delete program.window()->findChild<QWidget *>("settingsKey");
    Tour tour(program.window());
    TourPlan *plan = new TourPlan(program.window(), &tour);
    plan->visitSettingsScreen(program.settingsScreen());
    QCOMPARE(stops(&tour), QStringList());
    QVERIFY2(tour.error().contains("not on the screen"), qPrintable(tour.error()));
}

FILARIX_TEST_MAIN(TestTourPlan)
#include "tst_tourplan.moc"
