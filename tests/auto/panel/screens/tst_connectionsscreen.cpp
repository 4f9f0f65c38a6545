// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "conneditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "heldfile.h"
#include "look/panelkey.h"
#include "modaldriver.h"
#include "screens/connectionsscreen.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

#include <functional>

#include <sys/stat.h>

class TestConnectionsScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void missingFileIsMade();
    void presentFileIsLeftAsItIs();
    void changedAddressIsStoredAndTold();
    void editedAddressLeavesTheOthersAsTheyWere();
    void editedAddressKeepsItsPortAndIsToldWithIt();
    void defaultIsStoredOnceItWasEntered();
    void cancelledEditorChangesNothing();
    void fullDiskIsToldAndTheDiskIsShown();
    void readOnlyFolderIsTold();
    void fileThatWasChangedMeanwhileIsKept();
    void fileThatSaysTooManyIsBounded();
    void fileThatCannotBeReadIsAnAlarm_data();
    void fileThatCannotBeReadIsAnAlarm();
    void screenIsUpWhileItsFileHangs();

private:
    static void change(
        const ConnectionsScreen &screen, ModalDriver *driver, const QString &address,
        const std::function<void()> &meanwhile = [] {}, int row = 1);

    QString m_file;
};

void TestConnectionsScreen::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_file = home() + "/hmi/connections.ini";
}

// Types the address into a row, that of the second connection if none is named, and presses OK.
void TestConnectionsScreen::change(const ConnectionsScreen &screen, ModalDriver *driver,
                                   const QString &address, const std::function<void()> &meanwhile,
                                   int row)
{
    DeviceLog::acceptWith(address);
    driver->then([meanwhile, row](QWidget *dialog) {
        QTest::mouseClick(dialog->findChildren<ComboLineEdit *>().at(row), Qt::LeftButton);
        meanwhile();
        static_cast<ConnEditor *>(dialog)->on_save_clicked();
    });
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QTRY_VERIFY2(driver->finished(), driver->report());
    QTRY_VERIFY(!screen.isBusy());
    QCOMPARE(DeviceLog::answersLeft(), 0);
}

void TestConnectionsScreen::missingFileIsMade()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    QVERIFY(screen.addresses().size() >= 4);
    QCOMPARE(screen.findChild<QTableWidget *>()->rowCount(), screen.addresses().size());
    QVERIFY(readFile(m_file).contains("connect%20count=5"));
}

void TestConnectionsScreen::presentFileIsLeftAsItIs()
{
    const QByteArray bytes = "[General]\nconnect%20count=1\nConnect%200=Only\n";
    writeFile(m_file, bytes);
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    QCOMPARE(screen.addresses().size(), 1);
    QCOMPARE(screen.addresses().at(0).first, QString("Only"));
    QCOMPARE(readFile(m_file), bytes);
}

void TestConnectionsScreen::changedAddressIsStoredAndTold()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    change(screen, &driver, "10.0.0.7");
    QCOMPARE(screen.addresses().at(1).second, QString("10.0.0.7"));
    QVERIFY(!told.isEmpty());
    QVERIFY(told.last().at(0).toString().contains("10.0.0.7"));
    QCOMPARE(told.last().at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(screen.findChild<QTableWidget *>()->item(1, 3)->text(), QString("10.0.0.7"));
    QVERIFY(readFile(m_file).contains("10.0.0.7"));
}

// The library's table cuts ports, and stores what it shows in each row.
void TestConnectionsScreen::editedAddressLeavesTheOthersAsTheyWere()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    QList<QPair<QString, QString>> expected = screen.addresses();
    QCOMPARE(expected.at(3).second, QString("192.168.1.23:4001"));
    QCOMPARE(expected.at(4).second, QString());
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    change(screen, &driver, "10.0.0.7");
    expected[1].second = "10.0.0.7";
    QCOMPARE(screen.addresses(), expected);
    QVERIFY(readFile(m_file).contains("192.168.1.23:4001"));
    QCOMPARE(told.last().at(0).toString(), QString("Stored: Spindle drive: 10.0.0.7."));
}

void TestConnectionsScreen::editedAddressKeepsItsPortAndIsToldWithIt()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    change(
        screen, &driver, "10.0.0.7", [] {}, 3);
    QCOMPARE(screen.addresses().at(3).second, QString("10.0.0.7:4001"));
    QCOMPARE(told.last().at(0).toString(), QString("Stored: Tension unit: 10.0.0.7:4001."));
}

void TestConnectionsScreen::defaultIsStoredOnceItWasEntered()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    ModalDriver driver;
    change(
        screen, &driver, "192.168.1.5", [] {}, 4);
    QCOMPARE(screen.addresses().at(4).second, QString("192.168.1.5"));
}

void TestConnectionsScreen::cancelledEditorChangesNothing()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    const QString before = screen.addresses().at(1).second;
    const QByteArray bytes = readFile(m_file);
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(!screen.isBusy());
    QCOMPARE(readFile(m_file), bytes);
    QCOMPARE(screen.addresses().at(1).second, before);
    QCOMPARE(told.size(), 0);
}

// The toolkit's settings say that they hold the new address, whatever the disk does.
void TestConnectionsScreen::fullDiskIsToldAndTheDiskIsShown()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    const QByteArray before = readFile(m_file);
    QFile filler(home() + "/filler");
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    // The home of this program is a small file system of its own; see CMakeLists.txt.
    const QByteArray piece(4096, 'x');
    int pieces = 0;
    while (filler.write(piece) == piece.size())
        QVERIFY(++pieces < 4096);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    change(screen, &driver, "10.9.8.7");
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY2(told.at(0).at(0).toString().contains("No space left on device"),
             qPrintable(told.at(0).at(0).toString()));
    QCOMPARE(readFile(m_file), before);
    QCOMPARE(screen.addresses().at(1).second, QString("192.168.1.21"));
    QCOMPARE(screen.findChild<QTableWidget *>()->item(1, 3)->text(), QString("192.168.1.21"));

    // Nothing of it is written later, and with room the same edit goes through.
    QSignalSpy ended(&screen, SIGNAL(causeEnded(QString)));
    QVERIFY(filler.remove());
    driver.reject();
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(!screen.isBusy());
    QCOMPARE(readFile(m_file), before);
    change(screen, &driver, "10.9.8.7");
    QVERIFY(readFile(m_file).contains("10.9.8.7"));
    QVERIFY(ended.contains(QVariantList{told.at(0).at(2)}));
}

void TestConnectionsScreen::readOnlyFolderIsTold()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    const QByteArray before = readFile(m_file);
    QFile::setPermissions(home() + "/hmi", QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    change(screen, &driver, "10.9.8.7");
    QFile::setPermissions(home() + "/hmi",
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(told.at(0).at(0).toString().contains("Permission denied"));
    QCOMPARE(readFile(m_file), before);
}

void TestConnectionsScreen::fileThatWasChangedMeanwhileIsKept()
{
    ConnectionsScreen screen(m_file);
    QTRY_VERIFY(!screen.isBusy());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    const QByteArray theirs = "[General]\nconnect%20count=1\nConnect%200=Only\n";
    ModalDriver driver;
    change(screen, &driver, "10.9.8.7", [&] { writeFile(m_file, theirs); });
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(readFile(m_file), theirs);
    QCOMPARE(screen.addresses().size(), 1);
}

void TestConnectionsScreen::fileThatSaysTooManyIsBounded()
{
    writeFile(m_file, "[General]\nconnect%20count=2000000000\nConnect%200=Only\n");
    QElapsedTimer start;
    start.start();
    ConnectionsScreen screen(m_file);
    QVERIFY(start.elapsed() < patience(1000));
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    LoopPulse pulse;
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(told.at(0).at(0).toString().contains("2000000000"));
    QCOMPARE(screen.addresses().size(), ConnectionFile::mostConnections);
    QCOMPARE(screen.addresses().at(0).first, QString("Only"));
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    writeFile(m_file, "[General]\nconnect%20count=-5\n");
    ConnectionsScreen none(m_file);
    QTRY_VERIFY(!none.isBusy());
    QVERIFY(none.addresses().isEmpty());
}

typedef std::function<void(const QString &)> Make;
Q_DECLARE_METATYPE(Make)

void TestConnectionsScreen::fileThatCannotBeReadIsAnAlarm_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("no rights") << Make([](const QString &path) {
        writeFile(path, "[General]\n");
        QFile::setPermissions(path, QFileDevice::Permissions());
    });
    QTest::newRow("folder") << Make([](const QString &path) { QDir().mkpath(path); });
    QTest::newRow("pipe") << Make([](const QString &path) {
        QDir().mkpath(QFileInfo(path).path());
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    });
    QTest::newRow("no place") << Make(
        [](const QString &path) { writeFile(QFileInfo(path).path(), "a file"); });
}

void TestConnectionsScreen::fileThatCannotBeReadIsAnAlarm()
{
    QFETCH(Make, make);
    make(m_file);
    ConnectionsScreen screen(m_file);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(told.at(0).at(0).toString().contains(m_file));
    QVERIFY(screen.addresses().isEmpty());
    // No editor over nothing, whose OK would cover what stands there.
    screen.show();
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(1), told.at(0));
}

void TestConnectionsScreen::screenIsUpWhileItsFileHangs()
{
    writeFile(m_file, "[General]\nconnect%20count=1\nConnect%200=Only\n");
    HeldFile held(m_file);
    QVERIFY(held.isHeld());
    ConnectionsScreen screen(m_file);
    screen.setStallTime(300);
    screen.show();
    LoopPulse pulse;
    QTableWidget *table = screen.findChild<QTableWidget *>();
    QCOMPARE(table->item(0, 0)->text(), QString("Loading ..."));
    QVERIFY(!screen.findChild<PanelKey *>()->isEnabled());
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QTRY_COMPARE(table->rowCount(), 0);
    QVERIFY(screen.findChild<PanelKey *>()->isEnabled());
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    held.letGo();
    screen.setStallTime(patience(10000));
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QCOMPARE(screen.addresses().size(), 1);
}

FILARIX_TEST_MAIN(TestConnectionsScreen)
#include "tst_connectionsscreen.moc"
