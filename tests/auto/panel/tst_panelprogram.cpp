// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "homelock.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "modaldriver.h"
#include "panelprogram.h"
#include "samples.h"
#include "screens/choicepage.h"
#include "screens/connectionsscreen.h"
#include "screens/filesscreen.h"
#include "screens/previewpane.h"
#include "screens/previewscreen.h"
#include "screens/programscreen.h"
#include "screens/settingsscreen.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/panelwindow.h"
#include "shell/settings.h"
#include "shell/statusstrip.h"
#include "wgcodeediter.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <csignal>

class TestPanelProgram : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aStartedPanelHasItsScreens();
    void theEditorHasTheFocusAtFirst();
    void itLooksAsTheOperatorChose();
    void theDevicesReachTheStrip();
    void anOccupiedHomeIsRefused();
    void withoutTheProgramsThatWereAskedForItDoesNotStart();
    void aClosedPanelEndsTheProgram();
    void whatASignalEndsIsOfferedAtTheNextStart();
    void translationsLieBesideTheProgram();

private:
    QByteArray m_home;
};

namespace {

Options english()
{
    Options options;
    options.size = QSize(800, 480);
    options.language = QLatin1String("en");
    return options;
}

QString lockPath()
{
    return FilarixTest::home() + "/hmi/panel.lock";
}

} // namespace

void TestPanelProgram::initTestCase()
{
    m_home = qgetenv("HOME");
}

void TestPanelProgram::init()
{
    FilarixTest::init();
    // The threads of the panel before may still hold it.
    QTRY_COMPARE(HomeLock(lockPath()).take(), HomeLock::Own);
}

void TestPanelProgram::cleanup()
{
    qputenv("HOME", m_home);
    QDir::setCurrent("/tmp");
    Look::use(Look::Light);
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        // The program window leaves the buttons that no bar takes to nobody.
        if (qobject_cast<QToolButton *>(widget))
            delete widget;
    }
    FilarixTest::cleanup();
}

void TestPanelProgram::aStartedPanelHasItsScreens()
{
    PanelProgram program(english(), QStringList());
    QVERIFY(!program.window());
    QCOMPARE(program.start(), PanelProgram::Started);
    QVERIFY(program.window()->isVisible());
    QCOMPARE(program.window()->size(), QSize(800, 480));
    const QList<PanelScreen *> screens{program.programScreen(),     program.previewScreen(),
                                       program.teachScreen(),       program.variablesScreen(),
                                       program.connectionsScreen(), program.filesScreen(),
                                       program.settingsScreen()};
    for (int i = 0; i < screens.size(); ++i) {
        program.window()->showScreen(i);
        QCOMPARE(program.window()->currentScreen(), screens.at(i));
    }
    QVERIFY(program.window()->findChild<PanelKey *>("settingsKey"));
    for (const QString &name : Samples::names())
        QTRY_VERIFY(QFileInfo(programDir() + '/' + name).isFile());
}

void TestPanelProgram::theEditorHasTheFocusAtFirst()
{
    for (const QSize &size : {QSize(480, 272), QSize(800, 480)}) {
        Options options = english();
        options.size = size;
        PanelProgram program(options, QStringList());
        QCOMPARE(program.start(), PanelProgram::Started);
        QApplication::setActiveWindow(program.window());
        QTRY_VERIFY(program.programScreen()->editor()->hasFocus());
    }
}

void TestPanelProgram::itLooksAsTheOperatorChose()
{
    writeFile(home() + "/hmi/panel.ini", "[General]\nlook=dark\ntextsize=125\nsounds=on\n");
    {
        PanelProgram program(english(), QStringList());
        QCOMPARE(program.start(), PanelProgram::Started);
        QTRY_COMPARE(Look::style(), Look::Dark);
        QCOMPARE(Measures::textSize(), 125);
        const auto marked = [&program](const char *page) {
            return program.settingsScreen()->findChild<ChoicePage *>(page)->marked();
        };
        QTRY_COMPARE(marked("page_sounds"), QString("on"));
        QCOMPARE(marked("page_look"), QString("dark"));
        QCOMPARE(marked("page_textsize"), QString("125"));
    }
    QTRY_COMPARE(HomeLock(lockPath()).take(), HomeLock::Own);
    Options options = english();
    options.look = "light";
    options.textSize = "100";
    options.dotsPerInch = 130;
    PanelProgram program(options, QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    QCOMPARE(Look::style(), Look::Light);
    QCOMPARE(Measures::textSize(), 100);
    QCOMPARE(Measures::dotsPerInch(), 130.0);
    Measures::use(Measures::usualDotsPerInch);
}

void TestPanelProgram::theDevicesReachTheStrip()
{
    PanelProgram program(english(), QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    QTRY_COMPARE(program.window()->status()->plc(), StatusStrip::PlcReady);
    QVERIFY(QDir(home()).rmdir("plc"));
    QTRY_COMPARE(program.window()->status()->plc(), StatusStrip::PlcAway);
}

void TestPanelProgram::anOccupiedHomeIsRefused()
{
    HomeLock other(lockPath());
    QCOMPARE(other.take(), HomeLock::Own);
    ModalDriver driver;
    QString text;
    driver.then([&text](QWidget *box) {
        text = box->property("text").toString();
        static_cast<QDialog *>(box)->accept();
    });
    PanelProgram program(english(), QStringList());
    QCOMPARE(program.start(), PanelProgram::HomeOccupied);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY2(text.contains("Another panel"), qPrintable(text));
    QVERIFY(!program.window());
}

void TestPanelProgram::withoutTheProgramsThatWereAskedForItDoesNotStart()
{
    const QString own = home();
    writeFile(own + "/file", QByteArray());
    Options options = english();
    options.programDir = own + "/file/cnc";
    PanelProgram program(options, QStringList());
    QCOMPARE(QDir::homePath(), own + "/file");
    QCOMPARE(program.start(), PanelProgram::NoProgramDir);
    QVERIFY(!program.window());
}

void TestPanelProgram::aClosedPanelEndsTheProgram()
{
    PanelProgram program(english(), QStringList());
    QTimer::singleShot(0, this, [&program] { program.window()->close(); });
    QCOMPARE(program.run(), 0);
}

void TestPanelProgram::whatASignalEndsIsOfferedAtTheNextStart()
{
    {
        PanelProgram program(english(), QStringList());
        QTimer::singleShot(0, this, [&program] {
            program.programScreen()->editor()->insertPlainText("G01 X4711\n");
            std::raise(SIGTERM);
        });
        QCOMPARE(program.run(), 0);
    }
    QTRY_COMPARE(HomeLock(lockPath()).take(), HomeLock::Own);
    ModalDriver driver;
    driver.then([](QWidget *question) {
        QVERIFY(question->inherits("QuestionDialog"));
        question->findChild<QPushButton *>("answer1")->click();
    });
    PanelProgram program(english(), QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(program.programScreen()->editor()->toPlainText(), QString("G01 X4711\n"));
}

void TestPanelProgram::translationsLieBesideTheProgram()
{
    const QStringList folders = PanelProgram::translationFolders();
    QCOMPARE(folders.size(), 2);
    for (const QString &folder : folders)
        QVERIFY2(folder.startsWith(QCoreApplication::applicationDirPath() + "/.."),
                 qPrintable(folder));
}

FILARIX_TEST_MAIN(TestPanelProgram)
#include "tst_panelprogram.moc"
