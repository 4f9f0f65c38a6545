// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "connectionsscreen.h"
#include "conneditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "panelkey.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>

class TestConnectionsScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void missingFileIsMade();
    void presentFileIsLeftAsItIs();
    void changedAddressIsStoredAndTold();
    void cancelledEditorChangesNothing();

private:
    QString m_file;
};

void TestConnectionsScreen::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_file = home() + "/hmi/connections.ini";
}

void TestConnectionsScreen::missingFileIsMade()
{
    ConnectionsScreen screen(m_file);
    QVERIFY(screen.addresses().size() >= 4);
    QCOMPARE(screen.findChild<QTableWidget *>()->rowCount(), screen.addresses().size());
    QVERIFY(readFile(m_file).contains("connect%20count=5"));
}

void TestConnectionsScreen::presentFileIsLeftAsItIs()
{
    const QByteArray bytes = "[General]\nconnect%20count=1\nConnect%200=Only\n";
    writeFile(m_file, bytes);
    ConnectionsScreen screen(m_file);
    QCOMPARE(screen.addresses().size(), 1);
    QCOMPARE(screen.addresses().at(0).first, QString("Only"));
    QCOMPARE(readFile(m_file), bytes);
}

void TestConnectionsScreen::changedAddressIsStoredAndTold()
{
    ConnectionsScreen screen(m_file);
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    ModalDriver driver;
    DeviceLog::acceptWith("10.0.0.7");
    driver.then([](QWidget *dialog) {
        // The row of the second connection.
        QTest::mouseClick(dialog->findChildren<ComboLineEdit *>().at(1), Qt::LeftButton);
        static_cast<ConnEditor *>(dialog)->on_save_clicked();
    });
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(screen.addresses().at(1).second, QString("10.0.0.7"));
    QVERIFY(!told.isEmpty());
    QVERIFY(told.last().at(0).toString().contains("10.0.0.7"));
    QCOMPARE(screen.findChild<QTableWidget *>()->item(1, 3)->text(), QString("10.0.0.7"));
}

void TestConnectionsScreen::cancelledEditorChangesNothing()
{
    ConnectionsScreen screen(m_file);
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    const QString before = screen.addresses().at(1).second;
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(screen.findChild<PanelKey *>(), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(screen.addresses().at(1).second, before);
    QCOMPARE(told.size(), 0);
}

FILARIX_TEST_MAIN(TestConnectionsScreen)
#include "tst_connectionsscreen.moc"
