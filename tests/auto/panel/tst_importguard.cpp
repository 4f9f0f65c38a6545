// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "importguard.h"
#include "importmanage.h"
#include "modaldriver.h"

#include <QDir>
#include <QDirModel>
#include <QFileInfo>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>

class TestImportGuard : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void safeNamesPassWithoutAQuestion();
    void hostileNamesAreRenamedAndTouchNothing_data();
    void hostileNamesAreRenamedAndTouchNothing();
    void withoutRenamingNothingIsTransferred();
    void chosenNameOfAStickThatHasGoneIsRefused();
    void keysPressedByAKeyboardAreGuardedToo();
    void returnInAListIsGuardedToo();
    void escapeLeavesWithoutAQuestion();
    void quitIsNeverHeldBack();
    void renamingThatFailsIsTold();
    void programDirectoryWithABlankIsRefused();

private:
    static QPushButton *button(ImportManage *manager, const QString &text);
    static void chooseOnStick(ImportManage *manager, const QString &name);
    QByteArray canary() const;
};

void TestImportGuard::init()
{
    FilarixTest::init();
    programDir();
    QDir().mkdir("/mnt/Storage");
    emptyFolder("/mnt/Storage");
    writeFile("/tmp/udiskattach", "");
    writeFile(home() + "/canary", "alive");
    QDir::setCurrent(home());
}

void TestImportGuard::cleanup()
{
    QFile::remove("/tmp/udiskattach");
    emptyFolder("/mnt/Storage");
    FilarixTest::cleanup();
}

QPushButton *TestImportGuard::button(ImportManage *manager, const QString &text)
{
    const QList<QPushButton *> buttons = manager->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

void TestImportGuard::chooseOnStick(ImportManage *manager, const QString &name)
{
    const QList<QListView *> views = manager->findChildren<QListView *>();
    for (QListView *view : views) {
        const QModelIndex index =
            static_cast<QDirModel *>(view->model())->index("/mnt/Storage/" + name);
        if (index.isValid() && view->rootIndex() == index.parent())
            view->setCurrentIndex(index);
    }
}

void TestImportGuard::safeNamesPassWithoutAQuestion()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/coil.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage");
    QVERIFY(guard.unsafeFiles().isEmpty());
    QVERIFY(guard.settle());
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QCOMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G01\n"));
}

void TestImportGuard::hostileNamesAreRenamedAndTouchNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << "a canary";
    QTest::newRow("star") << "old *";
    QTest::newRow("command substitution") << "$(touch x)";
    QTest::newRow("second command") << ";rm canary;";
    QTest::newRow("option") << "-rf";
    QTest::newRow("umlaut") << QString::fromUtf8("u\u0308.cnc");
    QTest::newRow("line end") << "a\nrm canary";
    QTest::newRow("redirection") << "a >canary";
}

void TestImportGuard::hostileNamesAreRenamedAndTouchNothing()
{
    StrictMessages::expect("slot_checkUSB");
    QFETCH(QString, name);
    writeFile("/mnt/Storage/" + name, "G01\n");
    const QStringList before = QDir(home()).entryList(QDir::AllEntries | QDir::Hidden);
    ImportGuard guard(programDir(), "/mnt/Storage");
    QSignalSpy told(&guard, SIGNAL(told(QString, bool)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, name);

    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).toBool(), true);
    QVERIFY(QDir(programDir()).entryList(QDir::Files).isEmpty());
    const QStringList names = QDir("/mnt/Storage").entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(names.size(), 1);
    QVERIFY(names.first() != name);

    // The new name goes through, there and back out.
    chooseOnStick(&manager, names.first());
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QCOMPARE(readFile(programDir() + '/' + names.first()), QByteArray("G01\n"));
    chooseOnStick(&manager, names.first());
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, "Del<"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(QDir("/mnt/Storage").entryList(QDir::Files | QDir::Hidden).isEmpty());
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
    QCOMPARE(QDir(home()).entryList(QDir::AllEntries | QDir::Hidden), before);
}

void TestImportGuard::withoutRenamingNothingIsTransferred()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/a b.cnc", "G01\n");
    writeFile("/mnt/Storage/coil.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage");
    QSignalSpy told(&guard, SIGNAL(told(QString, bool)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::No);
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.at(0).at(1).toBool(), false);
    QVERIFY(QDir(programDir()).entryList(QDir::Files).isEmpty());
    QCOMPARE(QDir("/mnt/Storage").entryList(QDir::Files).size(), 2);
}

void TestImportGuard::chosenNameOfAStickThatHasGoneIsRefused()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/$(rm canary)", "G01\n");
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "$(rm canary)");
    // The next stick has no such file, but the manager still shows the first one's names.
    emptyFolder("/mnt/Storage");
    ImportGuard guard(programDir(), "/mnt/Storage");
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
}

void TestImportGuard::keysPressedByAKeyboardAreGuardedToo()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/$(rm canary)", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage");
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "$(rm canary)");
    ModalDriver driver;
    driver.press(QMessageBox::No);
    QTest::keyClick(button(&manager, "<<"), Qt::Key_Space);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
}

// Return in a list presses the manager's default button, the first.
void TestImportGuard::returnInAListIsGuardedToo()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/$(rm canary)", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage");
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    manager.activateWindow();
    QListView *programs = manager.findChildren<QListView *>().first();
    programs->setCurrentIndex(
        static_cast<QDirModel *>(programs->model())->index(programDir() + "/$(rm canary)"));
    programs->setFocus();
    ModalDriver driver;
    driver.press(QMessageBox::No);
    QTest::keyClick(programs, Qt::Key_Return);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
}

void TestImportGuard::escapeLeavesWithoutAQuestion()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/a b.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage");
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    QTest::keyClick(button(&manager, "<<"), Qt::Key_Tab);
    QTest::keyClick(button(&manager, "<<"), Qt::Key_Escape);
    QVERIFY(!manager.isVisible());
}

void TestImportGuard::quitIsNeverHeldBack()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/a b.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage");
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    QTest::mouseClick(button(&manager, "Quit"), Qt::LeftButton);
    QVERIFY(!manager.isVisible());
}

void TestImportGuard::programDirectoryWithABlankIsRefused()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/coil.cnc", "G01\n");
    ImportGuard guard(home() + "/a b/cnc", "/mnt/Storage");
    QSignalSpy told(&guard, SIGNAL(told(QString, bool)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QVERIFY(QDir(programDir()).entryList(QDir::Files).isEmpty());
}

void TestImportGuard::renamingThatFailsIsTold()
{
    writeFile(programDir() + "/a b.cnc", "G01\n");
    QFile::setPermissions(programDir(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    ImportGuard guard(programDir(), "/mnt/Storage");
    QSignalSpy told(&guard, SIGNAL(told(QString, bool)));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    const bool settled = guard.settle();
    QFile::setPermissions(programDir(),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!settled);
    QCOMPARE(told.at(0).at(1).toBool(), false);
}

FILARIX_TEST_MAIN(TestImportGuard)
#include "tst_importguard.moc"
