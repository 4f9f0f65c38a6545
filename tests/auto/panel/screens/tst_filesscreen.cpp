// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "heldfile.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "modaldriver.h"
#include "programs/programhistory.h"
#include "screens/filesscreen.h"
#include "stick/importguard.h"
#include "stick/stick.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScopedPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTableWidget>
#include <QThread>

class TestFilesScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keysPlugAndPullTheStick();
    void arrivingStickIsCheckedOnce();
    void stickOfTheSystemIsSeenToComeAndGo();
    void stickThatCannotBePluggedIsTold();
    void pickedPathIsShown();
    void stateIsToldInFullByATouch();
    void cancelledPickKeepsThePath();
    void importKeyAsksTheHost();
    void panelsOwnStickHasNoKeys();
    void historyKeyBringsBackARemovedProgram();
    void closedHistoryBringsNothingBack();
    void foldersAreLookedAtWhileTheScreenIsUp();
    void stickThatHangsStopsNothing();
    void fits_data();
    void fits();

private:
    static PanelKey *key(const FilesScreen &screen, const QString &text);
    static bool shows(const FilesScreen &screen, const QString &text);

    QString m_folder;
    QScopedPointer<ProgramHistory> m_history;
};

void TestFilesScreen::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    programDir();
    m_folder = "/mnt/Storage.stick";
    QDir().mkpath(m_folder);
    QDir().mkdir(Stick::mountPoint());
    m_history.reset(new ProgramHistory(programDir(), home() + "/hmi/history"));
}

void TestFilesScreen::cleanup()
{
    m_history.reset();
    emptyFolder(m_folder);
    QFile::remove(Stick::marker());
    if (QFileInfo(Stick::mountPoint()).isSymLink())
        QFile::remove(Stick::mountPoint());
    QDir().mkdir(Stick::mountPoint());
    emptyFolder(Stick::mountPoint());
    FilarixTest::cleanup();
}

PanelKey *TestFilesScreen::key(const FilesScreen &screen, const QString &text)
{
    const QList<PanelKey *> keys = screen.findChildren<PanelKey *>();
    for (PanelKey *key : keys) {
        if (key->text() == text)
            return key;
    }
    return nullptr;
}

bool TestFilesScreen::shows(const FilesScreen &screen, const QString &text)
{
    const QList<QLabel *> labels = screen.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text().contains(text))
            return true;
    }
    return false;
}

void TestFilesScreen::keysPlugAndPullTheStick()
{
    writeFile(m_folder + "/coil.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy moves(&screen, SIGNAL(stickMoved()));
    QVERIFY(!key(screen, "Pull")->isEnabled());
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QTRY_COMPARE(moves.size(), 1);
    QVERIFY(stick.isPresent());
    QTRY_VERIFY(shows(screen, "In. Files: 1"));
    QVERIFY(!key(screen, "Plug")->isEnabled());
    QTRY_VERIFY(!screen.guard()->isBusy());
    QTest::mouseClick(key(screen, "Pull"), Qt::LeftButton);
    QTRY_COMPARE(moves.size(), 2);
    QVERIFY(!stick.isPresent());
    QTRY_VERIFY(shows(screen, "Out"));
}

void TestFilesScreen::arrivingStickIsCheckedOnce()
{
    writeFile(m_folder + "/a b.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    ModalDriver driver;
    driver.then([](QWidget *question) {
        QVERIFY(question->findChild<QLabel *>("thing")->text().contains("a b.cnc"));
        QTest::mouseClick(question->findChild<QPushButton *>("answer0"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(shows(screen, "not safe: 1"));
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QTRY_VERIFY(!screen.guard()->isBusy());
    QVERIFY2(driver.finished(), driver.report());

    driver.then([](QWidget *question) {
        QTest::mouseClick(question->findChild<QPushButton *>("answer1"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "Rename"), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(QDir(m_folder).entryList(QDir::Files), QStringList("a_b.cnc"));
    QTRY_VERIFY(!key(screen, "Rename")->isEnabled());
}

void TestFilesScreen::stickOfTheSystemIsSeenToComeAndGo()
{
    Stick stick;
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QVERIFY(QDir().rmdir(Stick::mountPoint()));
    QVERIFY(QFile::link(m_folder, Stick::mountPoint()));
    writeFile(Stick::marker(), "in");
    // What is not known yet is no change.
    screen.showDevices(DeviceState());
    QCOMPARE(told.size(), 0);
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QTRY_COMPARE(told.size(), 1);
    QTRY_VERIFY(shows(screen, "In. Files: 0"));
    QFile::remove(Stick::marker());
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QTRY_VERIFY(shows(screen, "Out"));
    QCOMPARE(told.size(), 1);
}

void TestFilesScreen::stickThatCannotBePluggedIsTold()
{
    writeFile("/mnt/Storage/real.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    const QString text = told.at(0).at(0).toString();
    QVERIFY2(text.contains("/mnt/Storage") && text.contains("./run --stick"), qPrintable(text));
    QTRY_VERIFY(key(screen, "Plug")->isEnabled());
}

void TestFilesScreen::pickedPathIsShown()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        const QWidgetList all = dialog->findChildren<QWidget *>();
        for (QWidget *widget : all) {
            QLabel *line = qobject_cast<QLabel *>(widget);
            if (line && line->text() == "coil.cnc")
                QTest::mouseClick(line, Qt::LeftButton);
        }
        static_cast<QDialog *>(dialog)->accept();
    });
    QTest::mouseClick(key(screen, "Pick"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(screen.pickedPath(), programDir() + "/coil.cnc");
    QVERIFY(shows(screen, programDir() + "/coil.cnc"));
}

void TestFilesScreen::stateIsToldInFullByATouch()
{
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(300, 220);
    screen.show();
    QSignalSpy told(&screen, SIGNAL(explained(QString)));
    const QList<TapArea *> blocks = screen.findChildren<TapArea *>();
    QCOMPARE(blocks.size(), 4);
    for (TapArea *block : blocks) {
        QVERIFY(block->height() >= 34);
        QTest::mouseClick(block->findChild<QLabel *>("fileState"), Qt::LeftButton);
        QCOMPARE(told.takeLast().at(0).toString(), block->findChild<QLabel *>("fileState")->text());
    }
    // A finger that slides off changes its mind.
    QTest::mousePress(blocks.first(), Qt::LeftButton);
    QTest::mouseRelease(blocks.first(), Qt::LeftButton, Qt::NoModifier, QPoint(-9, 0));
    QVERIFY(told.isEmpty());
}

void TestFilesScreen::cancelledPickKeepsThePath()
{
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(key(screen, "Pick"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(screen.pickedPath(), QString());
}

void TestFilesScreen::importKeyAsksTheHost()
{
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy wanted(&screen, SIGNAL(importWanted()));
    QTest::mouseClick(key(screen, "I/E"), Qt::LeftButton);
    QCOMPARE(wanted.size(), 1);
}

void TestFilesScreen::panelsOwnStickHasNoKeys()
{
    Stick stick;
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QVERIFY(!key(screen, "Plug")->isVisible());
    QVERIFY(!key(screen, "Pull")->isVisible());
}

void TestFilesScreen::historyKeyBringsBackARemovedProgram()
{
    const QString path = programDir() + "/coil.cnc";
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QVERIFY(!key(screen, "History")->isEnabled());
    writeFile(path, "G01\n");
    QTRY_VERIFY(key(screen, "History")->isEnabled());
    QVERIFY(QFile::remove(path));
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        dialog->findChild<QTableWidget *>()->selectRow(0);
        QTest::mouseClick(dialog->findChild<QPushButton *>("restore"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "History"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(readFile(path), QByteArray("G01\n"));
}

void TestFilesScreen::closedHistoryBringsNothingBack()
{
    const QString path = programDir() + "/coil.cnc";
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    writeFile(path, "G01\n");
    QTRY_VERIFY(key(screen, "History")->isEnabled());
    QVERIFY(QFile::remove(path));
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        dialog->findChild<QTableWidget *>()->selectRow(0);
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "History"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    m_history->scan();
    QTRY_VERIFY(m_history->isSettled());
    QVERIFY(!QFileInfo(path).exists());
}

void TestFilesScreen::foldersAreLookedAtWhileTheScreenIsUp()
{
    const std::shared_ptr<QAtomicInt> looks = std::make_shared<QAtomicInt>();
    FilesScreen::Looks counted = FilesScreen::usualLooks();
    const FolderWatch::Probe usual = counted.programs;
    counted.programs = [looks, usual] {
        // Never in the thread of the screen.
        if (QThread::currentThread() == qApp->thread())
            looks->fetchAndAddOrdered(1000);
        looks->ref();
        return usual();
    };
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data(), counted);
    QSignalSpy versions(m_history.data(), SIGNAL(versionsChanged()));
    writeFile(programDir() + "/coil.cnc", "G01\n");
    m_history->scan();
    QTRY_VERIFY(!versions.isEmpty());
    screen.refreshStatus();
    QCoreApplication::processEvents();
    QCOMPARE(looks->loadAcquire(), 0);
    screen.show();
    QTRY_VERIFY(shows(screen, "Files: 1, "));
    const int before = looks->loadAcquire();
    QVERIFY(before >= 1 && before < 1000);
    screen.refreshStatus();
    QTRY_COMPARE(looks->loadAcquire(), before + 1);
    screen.hide();
    screen.refreshStatus();
    versions.clear();
    writeFile(programDir() + "/coil.cnc", "G02\n");
    m_history->scan();
    QTRY_VERIFY(!versions.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(looks->loadAcquire(), before + 1);
}

void TestFilesScreen::stickThatHangsStopsNothing()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    FilesScreen::Looks hung = FilesScreen::usualLooks();
    hung.stick = [gate] {
        gate->acquire();
        FolderState state;
        state.isKnown = true;
        state.isThere = true;
        state.files = 7;
        return state;
    };
    writeFile(programDir() + "/coil.cnc", "G01\n");
    Stick stick(m_folder);
    LoopPulse pulse;
    FilesScreen screen(&stick, m_history.data(), hung);
    screen.setPatience(200);
    screen.show();
    QVERIFY(shows(screen, "Loading ..."));
    // What can be known is shown.
    QTRY_VERIFY(shows(screen, "Files: 1, "));
    QTRY_VERIFY(shows(screen, "Does not answer"));
    for (int i = 0; i < 20; ++i)
        screen.refreshStatus();
    screen.hide();
    screen.show();
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    gate->release(100);
    QTRY_VERIFY(shows(screen, "In. Files: 7"));
    QVERIFY(!shows(screen, "Does not answer"));
}

void TestFilesScreen::fits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("480x272") << QSize(480, 228);
    QTest::newRow("480x800") << QSize(480, 670);
    QTest::newRow("800x480") << QSize(800, 405);
}

void TestFilesScreen::fits()
{
    QFETCH(QSize, size);
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(size);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    QCOMPARE(screen.size(), size);
    const QList<PanelKey *> keys = screen.findChildren<PanelKey *>();
    for (PanelKey *key : keys) {
        QVERIFY(screen.rect().contains(key->geometry()));
        QVERIFY(key->height() >= 34);
    }
}

FILARIX_TEST_MAIN(TestFilesScreen)
#include "tst_filesscreen.moc"
