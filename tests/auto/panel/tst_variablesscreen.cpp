// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "tlistwidget.h"
#include "variablesscreen.h"

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
    void brokenFileIsToldAndTheDefaultsStay();
    void fileMayNameOtherVariables();
    void closingWithChangesAsks();
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
    screen.resize(480, 640);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    DeviceLog::acceptWith("0.35 mm");
    QTest::mouseClick(screen.list()->itemAt(0)->findChild<ComboLineEdit *>(), Qt::LeftButton);
    QCOMPARE(screen.value("Wire"), QString("0.35 mm"));
    screen.refreshStatus();
    QVERIFY(screen.hasChanges());
    QVERIFY(screen.store());
    QVERIFY(!screen.hasChanges());

    VariablesScreen next(QSize(480, 800), home() + "/teach");
    QCOMPARE(next.value("Wire"), QString("0.35 mm"));
    QCOMPARE(next.value("Window"), QString("36.0 mm"));
    QVERIFY(!next.hasChanges());
}

void TestVariablesScreen::brokenFileIsToldAndTheDefaultsStay()
{
    writeFile(home() + "/teach/variables.txt", QByteArray("DataEditor\0\xff", 12));
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone)));
    screen.refreshStatus();
    screen.refreshStatus();
    QCOMPARE(told.size(), 1);
    QCOMPARE(screen.value("Layers"), QString("28"));
}

void TestVariablesScreen::fileMayNameOtherVariables()
{
    writeFile(home() + "/teach/variables.txt",
              "DataEditor\tN9\t\tLayers\t30\nDataEditor\tN1\t\tUnknown\t5\nshort\n");
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
    QCOMPARE(screen.value("Layers"), QString("30"));
    QVERIFY(screen.value("Unknown").isNull());
}

void TestVariablesScreen::closingWithChangesAsks()
{
    VariablesScreen screen(QSize(480, 800), home() + "/teach");
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

FILARIX_TEST_MAIN(TestVariablesScreen)
#include "tst_variablesscreen.moc"
