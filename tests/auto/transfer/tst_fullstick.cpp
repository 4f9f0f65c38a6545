// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds ImportManage: a stick that is full.

#include "managerfixture.h"
#include "modaldriver.h"

/// Transfers with a stick that holds 256 KiB.
class TestFullStick : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fileThatFitsIsCopied();
    void newFileThatDoesNotFitStaysInPart();
    void coverThatDoesNotFitLosesTheOldFile();
    void fullStickCanBeEmptied();
};

void TestFullStick::init()
{
    ManagerTest::init();
    writeFile(marker(), "");
}

void TestFullStick::fileThatFitsIsCopied()
{
    writeFile(programDir() + "/part.cnc", QByteArray(100000, 'x'));
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    manager.button(">>")->click();
    QCOMPARE(QFileInfo(stickDir() + "/part.cnc").size(), Q_INT64_C(100000));
}

void TestFullStick::newFileThatDoesNotFitStaysInPart()
{
    writeFile(programDir() + "/part.cnc", QByteArray(400000, 'x'));
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(">>")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(0).text, QString("Copy file failed!"));
    const qint64 part = QFileInfo(stickDir() + "/part.cnc").size();
    QVERIFY2(part > 0 && part <= 262144, QByteArray::number(part));
    QCOMPARE(Manager::shown(manager.usbView), QStringList("part.cnc"));
    QCOMPARE(QFileInfo(programDir() + "/part.cnc").size(), Q_INT64_C(400000));
}

void TestFullStick::coverThatDoesNotFitLosesTheOldFile()
{
    writeFile(stickDir() + "/others.cnc", QByteArray(200000, 'x'));
    writeFile(stickDir() + "/part.cnc", "old");
    writeFile(programDir() + "/part.cnc", QByteArray(400000, 'x'));
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button(">>")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(1).text, QString("Copy file failed!"));
    QVERIFY(readFile(stickDir() + "/part.cnc") != "old");
    QCOMPARE(QFileInfo(stickDir() + "/others.cnc").size(), Q_INT64_C(200000));
}

void TestFullStick::fullStickCanBeEmptied()
{
    QFile file(stickDir() + "/part.cnc");
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (file.write(QByteArray(4096, 'x')) == 4096) {
    }
    file.close();
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    manager.button("Del<")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(Manager::shown(manager.usbView), QStringList());
}

FILARIX_TEST_MAIN(TestFullStick)
#include "tst_fullstick.moc"
