// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "connectionsscreen.h"
#include "devicewatch.h"
#include "dialogkeeper.h"
#include "fieldkeypad.h"
#include "filarixtest.h"
#include "filesscreen.h"
#include "glyphs.h"
#include "languages.h"
#include "look.h"
#include "machinedata.h"
#include "panelstyle.h"
#include "panelsurface.h"
#include "panelwindow.h"
#include "programhistory.h"
#include "programscreen.h"
#include "samples.h"
#include "settings.h"
#include "statusstrip.h"
#include "stick.h"
#include "teachscreen.h"
#include "textfit.h"
#include "tour.h"
#include "variablesscreen.h"
#include "wmmainwindow.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

/// Walks all screens, keypads and dialogs and measures every text there.
class TestTextFit : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void whatDoesNotFitIsFound();
    void everyTextFits_data();
    void everyTextFits();
};

namespace {

/// Where a stick's folder has to be, for its files to count as the stick's.
const char kStick[] = "/mnt/Storage.stick";

/// A text that the machine could bring, longer than any of our own.
DeviceState widestState()
{
    DeviceState state;
    state.isKnown = true;
    state.stickIn = false;
    state.freeBytes = qint64(99) * 1024 * 1024 * 1024;
    return state;
}

} // namespace

void TestTextFit::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
    QFont font = QApplication::font();
    font.setPixelSize(15);
    QApplication::setFont(font);
    Look::use(Look::Light);
}

void TestTextFit::cleanup()
{
    QFile::remove(Stick::marker());
    emptyFolder(kStick);
    FilarixTest::cleanup();
}

void TestTextFit::whatDoesNotFitIsFound()
{
    QWidget window;
    window.setGeometry(0, 0, 300, 200);
    QLabel *narrow = new QLabel("wide", &window);
    narrow->setGeometry(0, 0, 10, 20);
    QLabel *beside = new QLabel("x", &window);
    beside->setGeometry(5, 0, 60, 20);
    QPushButton *low = new QPushButton("OK", &window);
    low->setGeometry(100, 20, 80, 20);
    QPushButton *outside = new QPushButton("x", &window);
    outside->setGeometry(280, 100, 40, 40);
    window.show();
    const QString found = TextFit::faults(window.geometry()).join('\n');
    QVERIFY2(found.contains("\"wide\" needs"), qPrintable(found));
    QVERIFY2(found.contains("QLabel in QWidget overlap by 5x20"), qPrintable(found));
    QVERIFY2(found.contains("80x20 is too small for a thumb"), qPrintable(found));
    QVERIFY2(found.contains("goes beyond QWidget of 300x200"), qPrintable(found));
    QCOMPARE(found.count('\n'), 3);
    QVERIFY(TextFit::faults(window.geometry().adjusted(0, 0, -1, 0))
                .join('\n')
                .contains("leaves the screen"));
    for (const QString &exception : TextFit::exceptions())
        QVERIFY2(exception.section(": ", 1).size() > 10, qPrintable(exception));
}

void TestTextFit::everyTextFits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("longest");
    for (const QSize &size :
         {QSize(480, 272), QSize(480, 800), QSize(800, 480), QSize(1024, 600), QSize(1280, 800),
          QSize(272, 480), QSize(600, 1024), QSize(800, 1280)}) {
        const QString name = QString("%1x%2").arg(size.width()).arg(size.height());
        QTest::newRow(qPrintable(name + " English")) << size << false;
        QTest::newRow(qPrintable(name + " longest")) << size << true;
    }
}

void TestTextFit::everyTextFits()
{
    QFETCH(QSize, size);
    QFETCH(bool, longest);
    LongestTranslator translator(QLatin1String(FILARIX_TRANSLATIONS));
    if (longest) {
        QVERIFY(translator.isComplete());
        QCoreApplication::installTranslator(&translator);
    }

    QDir().mkpath(kStick);
    Samples::install(programDir());
    Samples::fillStick(kStick);
    QDir().mkpath(home() + "/plc");
    Stick stick((QLatin1String(kStick)));
    Settings settings((QString()));
    Languages languages(QStringList(), &settings);
    MachineData machine;
    PanelWindow panel(size);
    PanelSurface surface(&panel, true);
    FieldKeypad fieldKeypad(&panel);
    DialogKeeper keeper(&panel);
    const bool isUpright = size.width() < size.height();
    ProgramScreen *programs =
        new ProgramScreen(isUpright ? 90 : 0, home() + "/plc", home() + "/hmi", &machine);
    panel.addScreen(
        programs, [] { return PanelWindow::tr("Program"); }, Glyphs::icon(Glyphs::Program));
    TeachScreen *teach = new TeachScreen(size, home() + "/hmi", &machine);
    panel.addScreen(
        teach, [] { return PanelWindow::tr("Teach"); }, Glyphs::icon(Glyphs::Teach));
    VariablesScreen *variables = new VariablesScreen(size, home() + "/hmi");
    panel.addScreen(
        variables, [] { return PanelWindow::tr("Variables"); }, Glyphs::icon(Glyphs::Variables));
    ConnectionsScreen *connections = new ConnectionsScreen(home() + "/hmi/connections.ini");
    panel.addScreen(
        connections, [] { return PanelWindow::tr("Connections"); },
        Glyphs::icon(Glyphs::Connections));
    ProgramHistory history(programDir(), home() + "/hmi/history");
    FilesScreen *files = new FilesScreen(&stick, &history);
    panel.addScreen(
        files, [] { return PanelWindow::tr("Files"); }, Glyphs::icon(Glyphs::Files));
    connect(files, &FilesScreen::importWanted, programs->programWindow(),
            [programs] { QMetaObject::invokeMethod(programs->programWindow(), "importExport"); });
    panel.setLanguages(&languages);
    panel.status()->follow(programs->transfer());
    panel.status()->showDevices(widestState());
    panel.show();

    Tour tour(&panel);
    tour.visitProgramScreen(programs);
    tour.visitTeachScreen(teach);
    tour.visitVariablesScreen(variables);
    tour.visitConnectionsScreen(connections);
    tour.visitFilesScreen(files);
    tour.visitLanguages();
    // The import manager has a connection to nothing, and no window system is at hand.
    StrictMessages::expect("Parentheses expected");
    StrictMessages::expect("This plugin does not support");
    QStringList faults;
    int stops = 0;
    connect(&tour, &Tour::arrived, this, [&](const QString &name) {
        ++stops;
        const QRect screen(panel.mapToGlobal(QPoint(0, 0)), panel.size());
        for (const QString &fault : TextFit::faults(screen)) {
            if (!faults.filter(fault).isEmpty())
                continue;
            faults.append(name + ": " + fault);
        }
    });
    QSignalSpy finished(&tour, SIGNAL(finished()));
    tour.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty(), 100000);
    QVERIFY2(tour.error().isEmpty(), qPrintable(tour.error()));
    QVERIFY2(stops >= 30, qPrintable(QString::number(stops)));
    // A failure's own message has no room for all.
    for (const QString &fault : qAsConst(faults))
        qDebug("%s", qPrintable(fault));
    QCOMPARE(faults.size(), 0);
}

FILARIX_TEST_MAIN(TestTextFit)
#include "tst_textfit.moc"
