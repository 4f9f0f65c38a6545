// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "filesscreen.h"
#include "importguard.h"
#include "modaldriver.h"
#include "panelkey.h"
#include "programhistory.h"
#include "stick.h"
#include "touchblock.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTableWidget>

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
    QVERIFY(stick.isPresent());
    QCOMPARE(moves.size(), 1);
    QVERIFY(!key(screen, "Plug")->isEnabled());
    QVERIFY(shows(screen, "In. Files: 1"));
    QTest::mouseClick(key(screen, "Pull"), Qt::LeftButton);
    QVERIFY(!stick.isPresent());
    QCOMPARE(moves.size(), 2);
    QVERIFY(shows(screen, "Out"));
}

void TestFilesScreen::arrivingStickIsCheckedOnce()
{
    writeFile(m_folder + "/a b.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    ModalDriver driver;
    driver.press(QMessageBox::No);
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(driver.boxes().last().text.contains("a b.cnc"));
    QVERIFY(shows(screen, "not safe: 1"));
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QVERIFY2(driver.finished(), driver.report());

    driver.press(QMessageBox::Yes);
    QTest::mouseClick(key(screen, "Rename"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(QDir(m_folder).entryList(QDir::Files), QStringList("a_b.cnc"));
    QVERIFY(!key(screen, "Rename")->isEnabled());
}

void TestFilesScreen::stickOfTheSystemIsSeenToComeAndGo()
{
    Stick stick;
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    writeFile(Stick::marker(), "in");
    // What is not known yet is no change.
    screen.showDevices(DeviceState());
    QCOMPARE(told.size(), 0);
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QCOMPARE(told.size(), 1);
    QVERIFY(shows(screen, "In. Files: 0"));
    QFile::remove(Stick::marker());
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QVERIFY(shows(screen, "Out"));
    QCOMPARE(told.size(), 1);
}

void TestFilesScreen::stickThatCannotBePluggedIsTold()
{
    writeFile("/mnt/Storage/real.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(key(screen, "Plug")->isEnabled());
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
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    const QList<TouchBlock *> blocks = screen.findChildren<TouchBlock *>();
    QCOMPARE(blocks.size(), 4);
    for (TouchBlock *block : blocks) {
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
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
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
