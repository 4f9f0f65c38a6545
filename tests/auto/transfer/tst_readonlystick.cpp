// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds ImportManage: a stick that is write-protected.

#include "managerfixture.h"
#include "modaldriver.h"

/// Transfers with a write-protected stick that holds "cover.cnc" and "part.cnc".
class TestReadOnlyStick : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isReadLikeAnyOther();
    void newFileCannotBeCopiedOntoIt();
    void coverStopsAtTheDelete();
    void deleteFails();
};

void TestReadOnlyStick::init()
{
    ManagerTest::init();
    writeFile(marker(), "");
}

void TestReadOnlyStick::isReadLikeAnyOther()
{
    Manager manager;
    QCOMPARE(Manager::shown(manager.usbView), QStringList() << "cover.cnc"
                                                            << "part.cnc");
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    manager.button("<<")->click();
    QVERIFY(!readFile(stickDir() + "/part.cnc").isEmpty());
    QCOMPARE(readFile(programDir() + "/part.cnc"), readFile(stickDir() + "/part.cnc"));
}

void TestReadOnlyStick::newFileCannotBeCopiedOntoIt()
{
    writeFile(programDir() + "/new.cnc", "x");
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "new.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(">>")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(0).text, QString("Copy file failed!"));
    QCOMPARE(Manager::shown(manager.usbView), QStringList() << "cover.cnc"
                                                            << "part.cnc");
}

void TestReadOnlyStick::coverStopsAtTheDelete()
{
    writeFile(programDir() + "/cover.cnc", "x");
    const QByteArray before = readFile(stickDir() + "/cover.cnc");
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "cover.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button(">>")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(1).text, QString("Can't cover this file!"));
    QCOMPARE(readFile(stickDir() + "/cover.cnc"), before);
}

void TestReadOnlyStick::deleteFails()
{
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button("Del<")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(1).text, QString("Can't delete this file."));
    QVERIFY(QFile::exists(stickDir() + "/part.cnc"));
}

FILARIX_TEST_MAIN(TestReadOnlyStick)
#include "tst_readonlystick.moc"
