// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "dataeditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "heldfile.h"
#include "modaldriver.h"
#include "screens/rowdetails.h"
#include "screens/valuemark.h"
#include "screens/variablesscreen.h"
#include "tlistwidget.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>

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
    void numberIsEnteredOnTheNumericKeypad();
    void refusedValueIsToldAndNotTaken_data();
    void refusedValueIsToldAndNotTaken();
    void switchTurnsByATouch();
    void textOfManyColonsIsTakenWhole();
    void rowsThatComeMeanwhileKeepTheAnswer();
    void touchOfACancelledKeypadChoosesTheRow();
    void programMayEndAtTheKeypad();
    void valuesOfOlderFilesLoseTheirUnits();
    void refusedValueOfAFileIsShownAndTold();
    void refusedValueIsNeverStored();
    void refusedValueThatIsBroughtBackIsMarked();
    void valueOfNoVariableIsToldAtBringingBack();
    void faultyDefinitionIsTold();
    void fileDefinesAVariable();
    void hostileFileIsTold_data();
    void hostileFileIsTold();
    void marksTellWhatStoreDid();
    void marksFollowTheirRows();
    void failedStoreLeavesTheChangesMarked();
    void fileChangedMeanwhileIsPutAside();
    void readOnlyFolderIsToldAndNothingIsLost();
    void fullDiskIsToldAndNothingIsLost();
    void secondStoreAddsNothing();
    void detailsAreThereWhereTheyHaveRoom_data();
    void detailsAreThereWhereTheyHaveRoom();
    void detailsFollowTheChosenVariable();
    void touchedDetailOpensTheKeypad();
    void touchedDetailTurnsASwitch();

private:
    static void show(VariablesScreen *screen);
    static DataEditor *shownRow(const VariablesScreen &screen, const QString &name);
    static void touch(const VariablesScreen &screen, const QString &name);
    static QString markOf(const VariablesScreen &screen, const QString &name);
};

void TestVariablesScreen::show(VariablesScreen *screen)
{
    QTRY_VERIFY(!screen->isLoading());
    screen->resize(800, 420);
    screen->show();
    QVERIFY(TestCompat::waitForExposed(screen));
}

/// The variable's widget on the page; null if it is on another.
DataEditor *TestVariablesScreen::shownRow(const VariablesScreen &screen, const QString &name)
{
    const QList<DataEditor *> rows = screen.list()->findChildren<DataEditor *>();
    for (DataEditor *row : rows) {
        if (row->isVisible() && row->getData().value(2) == name)
            return row;
    }
    return nullptr;
}

void TestVariablesScreen::touch(const VariablesScreen &screen, const QString &name)
{
    DataEditor *row = shownRow(screen, name);
    QVERIFY2(row, qPrintable(name));
    QTest::mouseClick(row->findChild<ComboLineEdit *>(), Qt::LeftButton);
}

QString TestVariablesScreen::markOf(const VariablesScreen &screen, const QString &name)
{
    const DataEditor *row = shownRow(screen, name);
    const ValueMark *mark = row ? row->findChild<ValueMark *>() : nullptr;
    return mark ? mark->state().word : QString("no mark");
}

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
    QTest::newRow("272x480") << QSize(272, 480);
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
    DeviceLog::acceptWith("0.35");
    QTest::mouseClick(screen.list()->itemAt(0)->findChild<ComboLineEdit *>(), Qt::LeftButton);
    QCOMPARE(screen.value("Wire"), QString("0.35"));
    screen.refreshStatus();
    QVERIFY(screen.hasChanges());
    screen.store();
    QTRY_VERIFY(!screen.hasChanges());

    VariablesScreen next(QSize(480, 800), home() + "/teach");
    QTRY_VERIFY(!next.isLoading());
    QCOMPARE(next.value("Wire"), QString("0.35"));
    QCOMPARE(next.value("Window"), QString("36.0"));
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
    row[4] = "1.00";
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
    rows[3].last() = "471";
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

void TestVariablesScreen::numberIsEnteredOnTheNumericKeypad()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QObject *receiver = nullptr;
    QVariant name;
    QRect edited;
    DeviceLog::runThenCancel([&] {
        receiver = DeviceLog::object();
        name = receiver->property("hmiName");
        edited = receiver->property("hmiEditedRect").toRect();
        QCOMPARE(receiver->property("hmiMaximum").toDouble(), 8.5);
    });
    touch(screen, "Tension");
    QVERIFY(receiver);
    QCOMPARE(name.toString(), QString("N5 Tension"));
    const QWidget *field = shownRow(screen, "Tension")->findChild<ComboLineEdit *>();
    QCOMPARE(edited, QRect(field->mapToGlobal(QPoint()), field->size()));
    QVERIFY(DeviceLog::keypadCalls().contains("NumericKeypad.setText(6.0)"));
    QCOMPARE(screen.value("Tension"), QString("6.0"));

    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    QCOMPARE(screen.value("Tension"), QString("7.5"));
    QVERIFY(screen.hasChanges());
    QCOMPARE(screen.list()->getCurIndex(), 5);
}

void TestVariablesScreen::refusedValueIsToldAndNotTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("told");
    QTest::newRow("words") << "Tension"
                           << "9999 banana"
                           << "Tension is 9999 banana. It must be 0.5 to 8.5 N.";
    QTest::newRow("a part of a turn") << "Turns"
                                      << "3.5"
                                      << "Turns is 3.5. It must be 1 to 999999, whole.";
    QTest::newRow("twelve digits") << "Turns"
                                   << "999999999999"
                                   << "Turns is 999999999999. It must be 1 to 999999, whole.";
    QTest::newRow("nothing") << "Tension"
                             << ""
                             << "Tension is empty. It must be 0.5 to 8.5 N.";
    QTest::newRow("endless") << "Wire" << QString(5000, '1')
                             << "Wire is " + QString(20, '1') + ".... It must be 0.02 to 5 mm.";
}

// A panel's own keypad need not keep to the validator.
void TestVariablesScreen::refusedValueIsToldAndNotTaken()
{
    QFETCH(QString, name);
    QFETCH(QString, entered);
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    const QString before = screen.value(name);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    DeviceLog::acceptWith(entered);
    touch(screen, name);
    QCOMPARE(told.size(), 1);
    QTEST(told.at(0).at(0).toString(), "told");
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QCOMPARE(screen.value(name), before);
    QVERIFY(!screen.lookForChanges());

    // The message goes once the operator has entered what may be.
    QSignalSpy ended(&screen, SIGNAL(causeEnded(QString)));
    DeviceLog::acceptWith("3");
    touch(screen, name);
    QCOMPARE(screen.value(name), QString("3"));
    QVERIFY(ended.contains(QVariantList{told.at(0).at(2)}));
}

void TestVariablesScreen::switchTurnsByATouch()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    screen.list()->end();
    QCOMPARE(screen.value("Air"), QString("on"));
    touch(screen, "Air");
    QCOMPARE(screen.value("Air"), QString("off"));
    const ValueMark *mark = shownRow(screen, "Air")->findChild<ValueMark *>();
    QCOMPARE(int(mark->state().drawing), int(ValueMark::State::SwitchedOff));
    QVERIFY(screen.hasChanges());
    touch(screen, "Air");
    QCOMPARE(screen.value("Air"), QString("on"));
    QVERIFY(!screen.hasChanges());
    QCOMPARE(DeviceLog::keypadCalls(), QStringList());
    // The second half of a double touch is none of its own.
    QWidget *field = shownRow(screen, "Air")->findChild<ComboLineEdit *>();
    QTest::mouseClick(field, Qt::LeftButton);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                       Qt::NoModifier);
    QCoreApplication::sendEvent(field, &second);
    QCOMPARE(screen.value("Air"), QString("off"));
}

void TestVariablesScreen::textOfManyColonsIsTakenWhole()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    screen.list()->end();
    DeviceLog::acceptWith("6:00 to 14:00");
    touch(screen, "Shift");
    QCOMPARE(screen.value("Shift"), QString("6:00 to 14:00"));
    DeviceLog::acceptWith("a text of more than twenty letters");
    touch(screen, "Shift");
    QCOMPARE(screen.value("Shift"), QString("6:00 to 14:00"));
}

void TestVariablesScreen::rowsThatComeMeanwhileKeepTheAnswer()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QList<QStringList> rows = screen.rows();
    rows[0].last() = "0.8";
    DeviceLog::runThenCancel([&] {
        QVERIFY(screen.bringBack(QString(), rows));
        DeviceLog::object()->setProperty("text", "7.5");
    });
    touch(screen, "Tension");
    QCOMPARE(screen.value("Wire"), QString("0.8"));
    QCOMPARE(screen.value("Tension"), QString("6.0"));
}

void TestVariablesScreen::touchOfACancelledKeypadChoosesTheRow()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QSignalSpy clicked(screen.list(), SIGNAL(clicked(int)));
    DeviceLog::cancel();
    touch(screen, "Core");
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(screen.list()->getCurIndex(), 2);
}

void TestVariablesScreen::programMayEndAtTheKeypad()
{
    VariablesScreen *screen = new VariablesScreen(QSize(800, 480), home() + "/teach");
    show(screen);
    const QPointer<QWidget> field = shownRow(*screen, "Tension")->findChild<ComboLineEdit *>();
    DeviceLog::runThenCancel([screen] { delete screen; });
    QTest::mousePress(field, Qt::LeftButton);
    QVERIFY(!field);
}

void TestVariablesScreen::valuesOfOlderFilesLoseTheirUnits()
{
    const QString path = home() + "/teach/variables.txt";
    writeFile(path, "# Machine variables\nDataEditor\tN0\t\tWire\t0.35 mm\n"
                    "DataEditor\tN16\t\tTape\t4 layers\r\nDataEditor\tN23\t\tShift\tlate\n");
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    show(&screen);
    QCOMPARE(screen.value("Wire"), QString("0.35"));
    QCOMPARE(screen.value("Tape"), QString("4"));
    QCOMPARE(screen.value("Shift"), QString("late"));
    QCOMPARE(told.size(), 0);
    QVERIFY(!screen.lookForChanges());
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Variables stored: %1.").arg(screen.list()->count()));
    QVERIFY(readFile(path).contains("\nDataEditor\tN0\t\tWire\t0.35\n"));
    QVERIFY(readFile(path).contains("\nVariable\tWire\ttype=decimal\tunit=mm\t"));
    QVERIFY(!QFile::exists(path + ".broken"));
}

void TestVariablesScreen::refusedValueOfAFileIsShownAndTold()
{
    const QString path = home() + "/teach/variables.txt";
    writeFile(path, "DataEditor\tN5\t\tTension\t9999 banana\n");
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    show(&screen);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Tension is 9999 banana. It must be 0.5 to 8.5 N."));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QCOMPARE(screen.value("Tension"), QString("9999 banana"));
    QCOMPARE(screen.refusal("Tension"), QString("not a number"));
    QTRY_COMPARE(markOf(screen, "Tension"), QString("not a number"));
    QCOMPARE(shownRow(screen, "Tension")->findChild<ValueMark *>()->state().tone, Message::Alarm);
    QTRY_COMPARE(markOf(screen, "Wire"), QString());

    writeFile(path, "DataEditor\tN5\t\tTension\t12\nDataEditor\tN4\t\tTurns\t1e9\n");
    VariablesScreen next(QSize(800, 480), home() + "/teach");
    QSignalSpy toldNext(&next, SIGNAL(told(QString, Message::Tone, QString)));
    show(&next);
    QCOMPARE(toldNext.size(), 1);
    QVERIFY(toldNext.at(0).at(0).toString().startsWith("Variables out of limits: 2."));
    QTRY_COMPARE(markOf(next, "Tension"), QString("above 8.5"));
}

void TestVariablesScreen::refusedValueIsNeverStored()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray bytes = "DataEditor\tN22\t\tScrap\t999999999999\n";
    writeFile(path, bytes);
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    DeviceLog::acceptWith("0.7");
    touch(screen, "Wire");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Not stored. Scrap must be 0 to 9999999, whole."));
    QVERIFY(screen.hasChanges());
    QCOMPARE(readFile(path), bytes);
    // The operator is where there is something to do.
    QCOMPARE(screen.list()->getCurIndex(), 22);
    QVERIFY(shownRow(screen, "Scrap"));

    ModalDriver driver;
    driver.press(QMessageBox::Save);
    QVERIFY(!screen.mayClose());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(path), bytes);

    DeviceLog::acceptWith("7");
    touch(screen, "Scrap");
    told.clear();
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("Variables stored: 25, changed ones: 2."));
    QVERIFY(readFile(path).contains("\tScrap\t7\n"));
}

void TestVariablesScreen::refusedValueThatIsBroughtBackIsMarked()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QList<QStringList> rows = screen.rows();
    rows[5].last() = "9999 banana";
    rows[0].last() = "0.9 mm";
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QVERIFY(screen.bringBack(QString(), rows));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Tension is 9999 banana. It must be 0.5 to 8.5 N."));
    QTRY_COMPARE(markOf(screen, "Tension"), QString("not a number"));
    QTRY_COMPARE(markOf(screen, "Wire"), QString("changed"));
    QCOMPARE(screen.value("Wire"), QString("0.9"));
}

void TestVariablesScreen::valueOfNoVariableIsToldAtBringingBack()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QVERIFY(screen.bringBack(QString(), {{"DataEditor", "N5", "", "Tension", "7.5"},
                                         {"DataEditor", "N6", "", "no such variable", "1"},
                                         {"DataEditor"}}));
    QCOMPARE(screen.value("Tension"), QString("7.5"));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Values that are no variable's now, not brought back: 2."));
}

void TestVariablesScreen::faultyDefinitionIsTold()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray line = "Variable\tWire\ttype=decimal\tminimum=5\tmaximum=nan\n";
    writeFile(path, line);
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    show(&screen);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("variables.txt, lines not used: 1. Wire: limit not a number."));
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QVERIFY(readFile(path).contains('\n' + line));
}

void TestVariablesScreen::fileDefinesAVariable()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray definition =
        "Variable\tGlue\tplc=DB1.4\ttype=integer\tunit=drops\tminimum=1\tmaximum=9\n";
    writeFile(path, definition + "DataEditor\tN99\t\tGlue\t4\n");
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    show(&screen);
    QCOMPARE(screen.value("Glue"), QString("4"));
    QCOMPARE(told.size(), 0);
    screen.list()->end();
    DeviceLog::acceptWith("9");
    touch(screen, "Glue");
    QCOMPARE(shownRow(screen, "Glue")->findChild<ValueMark *>()->state().unit, QString("drops"));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(readFile(path).contains('\n' + definition));
    QVERIFY(readFile(path).contains("\nDataEditor\tN25\t\tGlue\t9\n"));
    QCOMPARE(readFile(path).count("Glue"), 2);
}

void TestVariablesScreen::hostileFileIsTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("tone");
    QTest::newRow("a null") << QByteArray("DataEditor\tN0\t\tWire\t0.\0005\n", 25)
                            << int(Message::Alarm);
    QTest::newRow("not UTF-8") << QByteArray("DataEditor\tN0\t\tWire\t\xff\xfe\n")
                               << int(Message::Alarm);
    QTest::newRow("huge") << QByteArray(17 * 1024 * 1024, '\n') << int(Message::Alarm);
    QTest::newRow("an endless value")
        << "DataEditor\tN5\t\tTension\t" + QByteArray(2000000, '7') + '\n'
        << int(Message::Warning);
    QByteArray definitions;
    for (int i = 0; i < 20000; ++i)
        definitions += "Variable\tv" + QByteArray::number(i) + "\ttype=integer\n";
    QTest::newRow("twenty thousand variables") << definitions << int(Message::Warning);
    QTest::newRow("an endless row") << "Variable" + QByteArray(500000, '\t') + '\n'
                                    << int(Message::Warning);
}

void TestVariablesScreen::hostileFileIsTold()
{
    QFETCH(QByteArray, bytes);
    const QString path = home() + "/teach/variables.txt";
    writeFile(path, bytes);
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    show(&screen);
    QCOMPARE(told.size(), 1);
    QTEST(int(told.at(0).at(1).value<Message::Tone>()), "tone");
    QVERIFY2(told.at(0).at(0).toString().size() < 200, qPrintable(told.at(0).at(0).toString()));
    screen.list()->end();
    screen.list()->home();
    QCOMPARE(readFile(path), bytes);
}

void TestVariablesScreen::marksTellWhatStoreDid()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    DeviceLog::acceptWith("0.7");
    touch(screen, "Wire");
    QCOMPARE(markOf(screen, "Tension"), QString("changed"));
    QCOMPARE(markOf(screen, "Window"), QString());
    // A value that is as it was needs no Store.
    DeviceLog::acceptWith("0.50");
    touch(screen, "Wire");
    QCOMPARE(markOf(screen, "Wire"), QString());
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("Variables stored: 25, changed ones: 1."));
    QCOMPARE(markOf(screen, "Tension"), QString("stored"));
    QCOMPARE(markOf(screen, "Wire"), QString());
    DeviceLog::acceptWith("7.6");
    touch(screen, "Tension");
    QCOMPARE(markOf(screen, "Tension"), QString("changed"));
}

void TestVariablesScreen::marksFollowTheirRows()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    screen.list()->nextLine();
    screen.list()->nextLine();
    QTRY_COMPARE(markOf(screen, "Tension"), QString("changed"));
    for (const char *name : {"Core", "Turns", "T. step"})
        QTRY_COMPARE(markOf(screen, name), QString());
    QTRY_COMPARE(shownRow(screen, "Slow")->findChild<ValueMark *>()->state().unit,
                 QString("1/min"));
    screen.list()->end();
    QTRY_COMPARE(shownRow(screen, "Oil")->findChild<ValueMark *>()->state().unit, QString("min"));
    // Who can't see the row hears the same.
    const ComboLineEdit *field = shownRow(screen, "Oil")->findChild<ComboLineEdit *>();
    QCOMPARE(field->accessibleName(), QString("Oil"));
    QCOMPARE(field->accessibleDescription(), QString("1 to 9999 min, whole"));
}

void TestVariablesScreen::failedStoreLeavesTheChangesMarked()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    writeFile(home() + "/teach", "a file where the folder should be");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(markOf(screen, "Tension"), QString("changed"));
    QVERIFY(screen.hasChanges());
}

// Somebody at the commissioning writes limits while the panel runs.
void TestVariablesScreen::fileChangedMeanwhileIsPutAside()
{
    const QString path = home() + "/teach/variables.txt";
    writeFile(path, "DataEditor\tN5\t\tTension\t6.5\n");
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    const QByteArray others = "DataEditor\tN5\t\tTension\t3.5\n";
    writeFile(path, others);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains("variables.txt.broken"));
    QCOMPARE(readFile(path + ".broken"), others);
    QVERIFY(readFile(path).contains("\tTension\t6.5\n"));
}

void TestVariablesScreen::readOnlyFolderIsToldAndNothingIsLost()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray bytes = "DataEditor\tN5\t\tTension\t6.5\n";
    writeFile(path, bytes);
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QVERIFY(QFile::setPermissions(home() + "/teach", QFile::ReadOwner | QFile::ExeOwner));
    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QFile::setPermissions(home() + "/teach",
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(readFile(path), bytes);
    QCOMPARE(markOf(screen, "Tension"), QString("changed"));
}

void TestVariablesScreen::fullDiskIsToldAndNothingIsLost()
{
    const QString path = home() + "/teach/variables.txt";
    const QByteArray bytes = "DataEditor\tN5\t\tTension\t6.5\n";
    writeFile(path, bytes);
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    QFile filler(home() + "/filler");
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    // The home of this program is a small file system of its own; see CMakeLists.txt.
    const QByteArray piece(4096, 'x');
    int pieces = 0;
    while (filler.write(piece) == piece.size())
        QVERIFY(++pieces < 10000);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(readFile(path), bytes);
    QCOMPARE(markOf(screen, "Tension"), QString("changed"));

    QVERIFY(filler.remove());
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QVERIFY(readFile(path).contains("\tTension\t7.5\n"));
    QCOMPARE(markOf(screen, "Tension"), QString("stored"));
}

void TestVariablesScreen::secondStoreAddsNothing()
{
    const QString path = home() + "/teach/variables.txt";
    writeFile(path, "Variable\tWire\ttype=integer\tmaximum=4\tminimum=0\tkey=value\nnone\n"
                    "DataEditor\tN0\t\tWire\t1\n");
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    screen.store();
    QTRY_COMPARE(told.size(), 1);
    const QByteArray first = readFile(path);
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(readFile(path), first);
    VariablesScreen next(QSize(800, 480), home() + "/teach");
    show(&next);
    QSignalSpy toldNext(&next, SIGNAL(told(QString, Message::Tone, QString)));
    next.store();
    QTRY_COMPARE(toldNext.size(), 1);
    // The values come first, then what was read, then what the file did not have.
    QCOMPARE(readFile(path), first);
    QCOMPARE(first.count("\nVariable\tWire\t"), 1);
    QVERIFY(!QFile::exists(path + ".broken"));
}

void TestVariablesScreen::detailsAreThereWhereTheyHaveRoom_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<bool>("areThere");
    QTest::newRow("480x272") << QSize(480, 272) << false;
    QTest::newRow("272x480") << QSize(272, 480) << false;
    QTest::newRow("480x800") << QSize(480, 800) << false;
    QTest::newRow("800x480") << QSize(800, 480) << true;
    QTest::newRow("1024x600") << QSize(1024, 600) << true;
}

void TestVariablesScreen::detailsAreThereWhereTheyHaveRoom()
{
    QFETCH(QSize, panel);
    VariablesScreen screen(panel, home() + "/teach");
    QTRY_VERIFY(!screen.isLoading());
    QTEST(screen.findChild<RowDetails *>() != nullptr, "areThere");
}

static QToolButton *valueKey(const VariablesScreen &screen)
{
    return screen.findChild<RowDetails *>()->findChild<QToolButton *>();
}

static QString heading(const VariablesScreen &screen)
{
    return screen.findChild<RowDetails *>()->findChild<QLabel *>()->text();
}

void TestVariablesScreen::detailsFollowTheChosenVariable()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    QCOMPARE(heading(screen), QString("N0 Wire"));
    QCOMPARE(valueKey(screen)->accessibleName(), QString("Value, 0.50 mm"));
    screen.list()->on_line_clicked(5);
    QCOMPARE(heading(screen), QString("N5 Tension"));
    DeviceLog::acceptWith("7.5");
    touch(screen, "Tension");
    QCOMPARE(valueKey(screen)->accessibleName(), QString("Value, 7.5 N, changed"));
    QStringList texts;
    for (const QLabel *label : screen.findChild<RowDetails *>()->findChildren<QLabel *>())
        texts.append(label->text());
    QVERIFY(texts.contains("6.0 N") && texts.contains("0.5 N") && texts.contains("8.5 N"));
    screen.store();
    QTRY_COMPARE(valueKey(screen)->accessibleName(), QString("Value, 7.5 N, stored"));
    QList<QStringList> rows = screen.rows();
    rows[5].last() = "9999";
    QVERIFY(screen.bringBack(QString(), rows));
    screen.list()->on_line_clicked(5);
    QCOMPARE(valueKey(screen)->accessibleName(), QString("Value, 9999 N, above 8.5"));
    screen.list()->setCurIndex(900, true);
    screen.list()->clicked(900);
    QCOMPARE(heading(screen), QString("No variable is chosen. Touch one."));
}

void TestVariablesScreen::touchedDetailOpensTheKeypad()
{
    VariablesScreen screen(QSize(800, 480), home() + "/teach");
    show(&screen);
    screen.list()->on_line_clicked(5);
    const QRect key(valueKey(screen)->mapToGlobal(QPoint()), valueKey(screen)->size());
    QRect place;
    DeviceLog::runThenCancel(
        [&place] { place = DeviceLog::object()->property("hmiEditedRect").toRect(); });
    QTest::mouseClick(valueKey(screen), Qt::LeftButton);
    QCOMPARE(place, key);
    DeviceLog::acceptWith("7.25");
    QTest::mouseClick(valueKey(screen), Qt::LeftButton);
    QCOMPARE(screen.value("Tension"), QString("7.25"));
    // The row may be on another page.
    screen.list()->end();
    DeviceLog::acceptWith("7.5");
    QTest::mouseClick(valueKey(screen), Qt::LeftButton);
    QCOMPARE(screen.value("Tension"), QString("7.5"));
    DeviceLog::acceptWith("9999");
    QTest::mouseClick(valueKey(screen), Qt::LeftButton);
    QCOMPARE(screen.value("Tension"), QString("7.5"));
}

void TestVariablesScreen::touchedDetailTurnsASwitch()
{
    VariablesScreen screen(QSize(1024, 600), home() + "/teach");
    show(&screen);
    for (int row = 0; row < screen.list()->count(); ++row) {
        const QString name = screen.list()->getContent(row).at(3);
        if (screen.value(name) != "on" && screen.value(name) != "off")
            continue;
        const QString before = screen.value(name);
        screen.list()->on_line_clicked(row);
        QTest::mouseClick(valueKey(screen), Qt::LeftButton);
        QVERIFY(screen.value(name) != before);
        QTest::mouseClick(valueKey(screen), Qt::LeftButton);
        QCOMPARE(screen.value(name), before);
        return;
    }
    QFAIL("no switch");
}

FILARIX_TEST_MAIN(TestVariablesScreen)
#include "tst_variablesscreen.moc"
