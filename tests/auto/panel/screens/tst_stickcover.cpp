// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "managerfixture.h"
#include "screens/stickcover.h"

#include <QApplication>

class TestStickCover : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void pulledStickCoversItsFilesAtOnce();
    void coveredFileIsNotChosenAnyMore();
    void programsStayAsTheyWere();
    void stickThatComesIsShown();
    void managerThatOpensWithoutAStickIsCovered();
    void whatNobodyKnowsChangesNothing();
    void coverFillsTheList();
    void everyWordFitsANarrowList();
    void nextManagerIsCoveredToo();

private:
    static DeviceState state(bool isIn);
    static QLabel *coverOf(const Manager &manager);
};

DeviceState TestStickCover::state(bool isIn)
{
    DeviceState state;
    state.isKnown = true;
    state.stickIn = isIn;
    return state;
}

QLabel *TestStickCover::coverOf(const Manager &manager)
{
    return manager.usbView->findChild<QLabel *>("stickCover");
}

void TestStickCover::pulledStickCoversItsFilesAtOnce()
{
    plugStick();
    writeFile(stickDir() + "/job.cnc", "G00\n");
    StickCover cover;
    cover.showDevices(state(true));
    Manager manager;
    manager.dialog.show();
    QVERIFY(coverOf(manager));
    QVERIFY(!coverOf(manager)->isVisible());
    pullStick();
    cover.showDevices(state(false));
    QVERIFY(coverOf(manager)->isVisible());
    QVERIFY(coverOf(manager)->text().contains("The stick is out"));
}

void TestStickCover::coveredFileIsNotChosenAnyMore()
{
    plugStick();
    writeFile(stickDir() + "/job.cnc", "G00\n");
    StickCover cover;
    cover.showDevices(state(true));
    Manager manager;
    manager.dialog.show();
    manager.usbView->setCurrentIndex(
        manager.usbView->model()->index(0, 0, manager.usbView->rootIndex()));
    QVERIFY(manager.usbView->currentIndex().isValid());
    cover.showDevices(state(false));
    QVERIFY(!manager.usbView->currentIndex().isValid());
    QVERIFY(manager.usbView->selectionModel()->selectedIndexes().isEmpty());
}

void TestStickCover::programsStayAsTheyWere()
{
    plugStick();
    writeFile(programDir() + "/mine.cnc", "G00\n");
    StickCover cover;
    cover.showDevices(state(true));
    Manager manager;
    manager.dialog.show();
    const QModelIndex mine = manager.hmiView->model()->index(0, 0, manager.hmiView->rootIndex());
    manager.hmiView->setCurrentIndex(mine);
    cover.showDevices(state(false));
    QCOMPARE(manager.hmiView->currentIndex(), mine);
    QVERIFY(!manager.hmiView->findChild<QLabel *>("stickCover"));
}

void TestStickCover::stickThatComesIsShown()
{
    StickCover cover;
    cover.showDevices(state(false));
    Manager manager;
    manager.dialog.show();
    QVERIFY(coverOf(manager)->isVisible());
    plugStick();
    writeFile(stickDir() + "/new.cnc", "G00\n");
    cover.showDevices(state(true));
    QVERIFY(!coverOf(manager)->isVisible());
    const QModelIndex root = manager.usbView->rootIndex();
    QCOMPARE(manager.usbView->model()->rowCount(root), 1);
    QCOMPARE(manager.usbView->model()->index(0, 0, root).data().toString(), QString("new.cnc"));
    QVERIFY(!manager.status->text().contains("Usb not found!"));
}

void TestStickCover::managerThatOpensWithoutAStickIsCovered()
{
    StickCover cover;
    cover.showDevices(state(false));
    Manager manager;
    QVERIFY(!coverOf(manager));
    manager.dialog.show();
    QVERIFY(coverOf(manager)->isVisible());
}

void TestStickCover::whatNobodyKnowsChangesNothing()
{
    plugStick();
    StickCover cover;
    Manager manager;
    manager.dialog.show();
    QVERIFY(!coverOf(manager)->isVisible());
    cover.showDevices(state(false));
    cover.showDevices(DeviceState());
    QVERIFY(coverOf(manager)->isVisible());
}

void TestStickCover::coverFillsTheList()
{
    StickCover cover;
    cover.showDevices(state(false));
    Manager manager;
    manager.dialog.show();
    for (const QSize &size : {QSize(300, 200), QSize(640, 440)}) {
        manager.dialog.setFixedSize(size);
        QTRY_COMPARE(coverOf(manager)->geometry(), manager.usbView->contentsRect());
    }
}

void TestStickCover::everyWordFitsANarrowList()
{
    StickCover cover;
    cover.showDevices(state(false));
    Manager manager;
    manager.dialog.show();
    manager.usbView->setFixedWidth(90);
    QTRY_COMPARE(coverOf(manager)->width(), manager.usbView->contentsRect().width());
    const QLabel *label = coverOf(manager);
    for (const QString &word : label->text().split(' '))
        QVERIFY2(label->fontMetrics().horizontalAdvance(word)
                     <= label->width() - 2 * label->margin(),
                 qPrintable(word));
    QVERIFY(label->font().pixelSize() >= 10);
}

void TestStickCover::nextManagerIsCoveredToo()
{
    StickCover cover;
    cover.showDevices(state(false));
    for (int i = 0; i < 2; ++i) {
        StrictMessages::expect(
            QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
        Manager manager;
        manager.dialog.show();
        QVERIFY(coverOf(manager)->isVisible());
    }
}

FILARIX_TEST_MAIN(TestStickCover)
#include "tst_stickcover.moc"
