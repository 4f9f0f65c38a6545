// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "heldfile.h"
#include "modaldriver.h"
#include "screens/variablesscreen.h"
#include "tlistwidget.h"

#include <QLabel>
#include <QSignalSpy>

class TestVariablesScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyVariableHasItsRow();
    void namesFitTheirCells_data();
    void namesFitTheirCells();
    void changedValueIsStoredAndLoaded();
    void brokenFileIsToldAndPutAside();
    void fileMayNameOtherVariables();
    void screenIsUpWhileItsFileHangs();
    void failedStoreIsAnAlarm();
    void closingWithChangesAsks();
    void rowsThatAreBroughtBackAreChanges();
    void rowsThatAreNoneAreNotBroughtBack();
};

void TestVariablesScreen::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
}

void TestVariablesScreen::everyVariableHasItsRow()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    QVERIFY(screen.list()->count() >= 20);
    for (int row = 0; row < screen.list()->count(); ++row) {
        QCOMPARE(screen.list()->typeAt(row), QString("DataEditor"));
        QCOMPARE(screen.list()->getContent(row).at(1), QString("N%1").arg(row));
    }
    QCOMPARE(screen.value("Layers"), QString("28"));
    QVERIFY(screen.value("none of these").isNull());
}

void TestVariablesScreen::namesFitTheirCells_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::newRow("480x272") << QSize(480, 272);
    QTest::newRow("480x800") << QSize(480, 800);
    QTest::newRow("800x480") << QSize(800, 480);
    QTest::newRow("1024x600") << QSize(1024, 600);
}

void TestVariablesScreen::namesFitTheirCells()
{
    QFETCH(QSize, panel);
    VariablesScreen screen(panel, home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    screen.resize(panel - QSize(0, 60));
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    int names = 0;
    for (int row = 0; row < screen.list()->count(); ++row) {
        screen.list()->nextLine();
        const QList<QLabel *> cells = screen.list()->findChildren<QLabel *>();
        for (QLabel *cell : cells) {
            if (!cell->isVisible())
                continue;
            ++names;
            QVERIFY2(cell->fontMetrics().boundingRect(cell->text()).width() < cell->width(),
                     qPrintable(cell->text()));
        }
    }
    QVERIFY(names > 20);
}

void TestVariablesScreen::changedValueIsStoredAndLoaded()
{
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    screen.resize(480, 640);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    DeviceLog::acceptWith("0.35 mm");
    QTest::mouseClick(screen.list()->itemAt(0)->findChild<ComboLineEdit *>(), Qt::LeftButton);
    QCOMPARE(screen.value("Wire"), QString("0.35 mm"));
    screen.refreshStatus();
    QVERIFY(screen.hasChanges());
    screen.store();
    QTRY_VERIFY(!screen.hasChanges());

    VariablesScreen next(QSize(480, 800), home() + "/teach");
    QTRY_VERIFY(!next.isLoading());
    QCOMPARE(next.value("Wire"), QString("0.35 mm"));
    QCOMPARE(next.value("Window"), QString("36.0 mm"));
    QVERIFY(!next.hasChanges());
}

// The values of a new machine would look as if they were this one's.
void TestVariablesScreen::brokenFileIsToldAndPutAside()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray bytes("DataEditor\0\xff", 12);
    writeFile(path, bytes);
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(told.at(0).at(0).toString().contains("variables.txt"));
    screen.refreshStatus();
    QCOMPARE(told.size(), 1);
    QVERIFY(!screen.hasChanges());
    QCOMPARE(screen.value("Layers"), QString());
    QVERIFY(screen.list()->count() >= 20);
    QCOMPARE(readFile(path), bytes);

    QSignalSpy ended(&screen, SIGNAL(causeEnded(QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(1).at(1).value<Message::Tone>(), Message::Information);
    QVERIFY(told.at(1).at(0).toString().contains("variables.txt.broken"));
    QVERIFY(ended.contains(QVariantList{told.at(0).at(2)}));
    QCOMPARE(readFile(path + ".broken"), bytes);
}

void TestVariablesScreen::fileMayNameOtherVariables()
{
    const QString path = home() + "/teach/variables.txt";
    writeFile(path, "DataEditor\tN9\t\tLayers\t30\nDataEditor\tN1\t\tUnknown\t5\nshort\n");
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    QCOMPARE(screen.value("Layers"), QString("30"));
    QVERIFY(screen.value("Unknown").isNull());
    // What the machine has no variable for is kept for the one that has.
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(readFile(path).contains("\nDataEditor\tN1\t\tUnknown\t5\nshort\n"));
}

void TestVariablesScreen::screenIsUpWhileItsFileHangs()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray bytes = "DataEditor\tN9\t\tLayers\t30\n";
    writeFile(path, bytes);
    HeldFile held(path);
    QVERIFY(held.isHeld());
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    screen.setStallTime(300);
    screen.show();
    LoopPulse pulse;
    QVERIFY(screen.isLoading());
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(!screen.isLoading());
    QCOMPARE(screen.value("Layers"), QString());
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    held.letGo();
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(readFile(path + ".broken"), bytes);
}

void TestVariablesScreen::failedStoreIsAnAlarm()
{
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    writeFile(home() + "/teach", "a file where the folder should be");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(told.at(0).at(0).toString().contains("Not a directory"));
}

void TestVariablesScreen::closingWithChangesAsks()
{
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    QVERIFY(screen.mayClose());
    QStringList row = screen.list()->getContent(0);
    row[4] = "1.00 mm";
    screen.list()->setContent(0, row);
    ModalDriver driver;
    driver.press(QMessageBox::Cancel);
    QVERIFY(!screen.mayClose());
    driver.press(QMessageBox::Discard);
    QVERIFY(screen.mayClose());
    QVERIFY2(driver.finished(), driver.report());
}

void TestVariablesScreen::rowsThatAreBroughtBackAreChanges()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    QList<QStringList> rows = screen.rows();
    rows[3].last() = "4711";
    QVERIFY(screen.bringBack(QString(), rows));
    QCOMPARE(screen.rows(), rows);
    QVERIFY(screen.hasChanges());
    QVERIFY(screen.lookForChanges());
    QVERIFY(screen.filePath().isEmpty());
    QCOMPARE(screen.describe(screen.nameOf(QString()), "12:31", rows.size()),
             QString("Variables, 12:31, values: %1").arg(rows.size()));
}

void TestVariablesScreen::rowsThatAreNoneAreNotBroughtBack()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    const QList<QStringList> before = screen.rows();
    QVERIFY(!screen.bringBack(QString(), {{}, {"DataEditor", "1", "", "no such variable", "1"}}));
    QCOMPARE(screen.rows(), before);
    QVERIFY(!screen.lookForChanges());
}

FILARIX_TEST_MAIN(TestVariablesScreen)
#include "tst_variablesscreen.moc"
