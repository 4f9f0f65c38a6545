// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "heldfile.h"
#include "label.h"
#include "look/measures.h"
#include "look/panelkey.h"
#include "mjline.h"
#include "modaldriver.h"
#include "screens/machinedata.h"
#include "screens/movementlimits.h"
#include "screens/rowdetails.h"
#include "screens/tablepicker.h"
#include "screens/taughtprogram.h"
#include "screens/teachscreen.h"
#include "tlistwidget.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTableWidget>
#include <QToolButton>

#include <memory>

class TestTeachScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fits_data();
    void fits();
    void pagingKeysTurnPages();
    void insertedRowFollowsTheCurrentOne();
    void deleteTakesTheCurrentRow();
    void deleteTakesTheSelection();
    void rowsShowTheWordsOfAnOperator_data();
    void rowsShowTheWordsOfAnOperator();
    void everyRowShowsItsKindAtOnce();
    void keysAreLargeEnoughForGloves_data();
    void keysAreLargeEnoughForGloves();
    void rowsFollowTheScreen_data();
    void rowsFollowTheScreen();
    void copiedRowIsPastedBelowTheCurrentOne();
    void copiedRowsArePastedIntoAnotherProgram();
    void pasteAndUndoAreOffWithNothingToDo();
    void movedRowStaysCurrent_data();
    void movedRowStaysCurrent();
    void movedSelectionStaysSelected();
    void rowAtTheEndIsNotMovedOn();
    void everyChangeIsTakenBackStepByStep();
    void editOnTheKeypadIsTakenBack();
    void chosenPointIsTakenBack();
    void clearedProgramIsTakenBack();
    void undoShowsTheRowItBringsBack();
    void loadForgetsWhatCouldBeTakenBack();
    void openRowIsClosedByAChange();
    void clearShowsProgressAndAsksFirst();
    void insertAndDeleteInAnEmptyList();
    void chosenPointGoesToEveryRowThatNamesTheSame();
    void chosenSpeedGoesToEveryRowThatNamesTheSame();
    void cancelledTableChangesNothing();
    void rowWithoutAnIndexIsChangedAlone();
    void touchedRowSetsThePointThatTagCopies();
    void editOnTheKeypadIsStoredAndLoaded();
    void loadKeyPicksAFile();
    void storeAsGivesTheProgramItsName();
    void storeWaitsForTheNewName();
    void storeAsWithoutANameChangesNothing();
    void storeAsRefusesANameThatIsNone_data();
    void storeAsRefusesANameThatIsNone();
    void storeAsAsksBeforeItCovers_data();
    void storeAsAsksBeforeItCovers();
    void storeAsPutsAsideWhatNobodyCanRead_data();
    void storeAsPutsAsideWhatNobodyCanRead();
    void storeAsThatFailsKeepsTheName_data();
    void storeAsThatFailsKeepsTheName();
    void storeAsOnAHungDiskIsGivenUp();
    void withoutATouchScreenTheNameIsTyped();
    void storeBehindARefusedStoreAsCoversItsOwnFile();
    void programsOfTheOldPlaceAreFound();
    void programThatCannotBeCopiedIsReadInItsOldPlace();
    void fileThatIsNoneLeavesTheScreenAsItIs_data();
    void fileThatIsNoneLeavesTheScreenAsItIs();
    void missingFileShowsTheSample();
    void unreadableProgramIsToldAndPutAside_data();
    void unreadableProgramIsToldAndPutAside();
    void storeThatFailsIsAnAlarm();
    void screenIsUpWhileItsFileHangs();
    void oldPlaceThatHangsIsTold();
    void storeAtTheEndWaitsForTheDisk();
    void closingWithChangesAsks();
    void rowsThatAreBroughtBackAreChanges();
    void rowsOfTheOldPlaceAreBroughtBackInTheNewOne();
    void rowsOfAnotherPlaceCoverNothingHere();
    void rowsThatAreNoneAreNotBroughtBack();
    void refusedNumberIsToldAndNotTaken();
    void undoNeverBringsARefusedNumber();
    void refusedNumberIsNeverStored();
    void refusedNumberOfAFileIsTold();
    void detailsAreThereWhereTheyHaveRoom_data();
    void detailsAreThereWhereTheyHaveRoom();
    void detailsFollowTheChosenRow();
    void detailsFollowEveryChange();
    void detailsSayWhyThereAreNone();
    void touchedDetailOpensTheKeypadOfItsField_data();
    void touchedDetailOpensTheKeypadOfItsField();
    void touchedDetailKeepsTheLimits();
    void touchedDetailOfAnotherPageTurnsToItsRow();
    void touchedDetailChoosesPointAndSpeed();
    void programMayEndAtTheKeypadOfADetail();

private:
    PanelKey *key(const QString &text, int nth = 0) const;
    QWidget *cell(int row, const char *className, int nth) const;
    QStringList firstStrings(int position) const;
    void choose(ModalDriver *driver, int number);
    void storeAs(const QString &name);
    std::unique_ptr<TeachScreen> wideScreen();

    MachineData *m_machine = nullptr;
    TeachScreen *m_screen = nullptr;
    TListWidget *m_list = nullptr;
    QList<PanelKey *> m_keys;
};

void TestTeachScreen::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_machine = new MachineData;
    m_screen = new TeachScreen(QSize(480, 800), home() + "/teach", m_machine);
    m_keys = m_screen->keys();
    for (PanelKey *key : m_keys)
        key->setParent(m_screen);
    m_screen->resize(480, 640);
    m_screen->show();
    QVERIFY(TestCompat::waitForExposed(m_screen));
    m_list = m_screen->list();
    QTRY_VERIFY(!m_screen->isLoading());
}

void TestTeachScreen::cleanup()
{
    delete m_screen;
    delete m_machine;
    FilarixTest::cleanup();
}

PanelKey *TestTeachScreen::key(const QString &text, int nth) const
{
    const QList<PanelKey *> all = m_screen->findChildren<PanelKey *>();
    for (PanelKey *key : all) {
        if (key->text() == text && nth-- == 0)
            return key;
    }
    return nullptr;
}

// The nth visible cell of a class in a row of the page.
QWidget *TestTeachScreen::cell(int row, const char *className, int nth) const
{
    const QWidgetList all = m_list->itemAt(m_list->getListPos(row))->findChildren<QWidget *>();
    for (QWidget *cell : all) {
        if (cell->isVisible() && cell->inherits(className) && nth-- == 0)
            return cell;
    }
    return nullptr;
}

QStringList TestTeachScreen::firstStrings(int position) const
{
    QStringList strings;
    for (int row = 1; row < m_list->count(); ++row)
        strings.append(m_list->getContent(row).value(position));
    return strings;
}

void TestTeachScreen::choose(ModalDriver *driver, int number)
{
    driver->then([number](QWidget *dialog) {
        dialog->findChild<QTableWidget *>()->selectRow(number - 1);
        static_cast<TablePicker *>(dialog)->accept();
    });
}

static void fillDisk(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray piece(512, 'x');
    while (file.write(piece) == piece.size()) {
    }
}

static QStringList numbers(int count)
{
    QStringList numbers;
    for (int i = 1; i <= count; ++i)
        numbers.append(QString::number(i));
    return numbers;
}

void TestTeachScreen::fits_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<QSize>("screen");
    QTest::newRow("480x272") << QSize(480, 272) << QSize(480, 230);
    QTest::newRow("272x480") << QSize(272, 480) << QSize(272, 374);
    QTest::newRow("480x800") << QSize(480, 800) << QSize(480, 670);
    QTest::newRow("800x480") << QSize(800, 480) << QSize(800, 405);
    QTest::newRow("1024x600") << QSize(1024, 600) << QSize(1024, 525);
}

void TestTeachScreen::fits()
{
    QFETCH(QSize, panel);
    QFETCH(QSize, screen);
    TeachScreen teach(panel, home() + "/teach", m_machine);
    teach.resize(screen);
    teach.show();
    QVERIFY(TestCompat::waitForExposed(&teach));
    QTRY_VERIFY(!teach.isLoading());
    QCOMPARE(teach.size(), screen);

    const QWidgetList all = teach.findChildren<QWidget *>();
    int rows = 0;
    for (QWidget *widget : all) {
        if (!widget->isVisible())
            continue;
        const bool isKey = widget->inherits("PanelKey");
        const bool isRow = widget->parentWidget() == teach.list();
        if (!isKey && !isRow)
            continue;
        const QRect place(widget->mapTo(&teach, QPoint(0, 0)), widget->size());
        QVERIFY(teach.rect().contains(place));
        // Rows have the library's height.
        QVERIFY(widget->height() >= (isKey ? 48 : 34));
        QVERIFY(widget->width() >= (isKey ? 48 : 34));
        rows += isRow;
    }
    // The title and four instructions at least.
    QVERIFY(rows >= 5);
}

void TestTeachScreen::pagingKeysTurnPages()
{
    const auto firstShown = [this] {
        for (int row = 1; row < m_list->count(); ++row) {
            if (m_list->getListPos(row) == 1)
                return row;
        }
        return -1;
    };
    QCOMPARE(firstShown(), 1);
    QTest::mouseClick(key("Page", 1), Qt::LeftButton);
    const int second = firstShown();
    QVERIFY(second > 5);
    QTest::mouseClick(key("Page", 0), Qt::LeftButton);
    QCOMPARE(firstShown(), 1);
    QTest::mouseClick(key("Last"), Qt::LeftButton);
    QCOMPARE(firstShown(), m_list->count() - (second - 1));
    QTest::mouseClick(key("First"), Qt::LeftButton);
    QCOMPARE(firstShown(), 1);
}

void TestTeachScreen::insertedRowFollowsTheCurrentOne()
{
    const int before = m_list->count();
    m_list->setCurIndex(3, false);
    m_machine->setCurrentPoint(5);
    QTest::mouseClick(key("MoveL"), Qt::LeftButton);
    QCOMPARE(m_list->count(), before + 1);
    QCOMPARE(m_list->getCurIndex(), 4);
    QCOMPARE(m_list->typeAt(4), QString("ML"));
    QCOMPARE(m_list->getJposIndex(4), 5);
    QTest::mouseClick(key("MoveJ"), Qt::LeftButton);
    QCOMPARE(m_list->typeAt(5), QString("MJ"));
    QTest::mouseClick(key("Text"), Qt::LeftButton);
    QCOMPARE(m_list->typeAt(6), QString("Oth"));
    QCOMPARE(firstStrings(1), numbers(before + 2));
    QVERIFY(m_screen->hasChanges());
}

void TestTeachScreen::deleteTakesTheCurrentRow()
{
    const int before = m_list->count();
    const QString next = m_list->getContent(4).at(4);
    m_list->setCurIndex(3, false);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QCOMPARE(m_list->count(), before - 1);
    QCOMPARE(m_list->getContent(3).at(4), next);
    QCOMPARE(firstStrings(1), numbers(before - 2));
}

void TestTeachScreen::deleteTakesTheSelection()
{
    const int before = m_list->count();
    const QStringList after = m_list->getContent(7);
    m_list->setCurIndex(6, false);
    QTest::mouseClick(key("Select"), Qt::LeftButton);
    QVERIFY(m_list->isMultiSelect());
    m_list->setCurIndex(2, false);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QCOMPARE(m_list->count(), before - 5);
    QCOMPARE(m_list->getContent(2).mid(2), after.mid(2));
    QVERIFY(!m_list->isMultiSelect());
    QVERIFY(!key("Select")->isChecked());
    QCOMPARE(firstStrings(1), numbers(before - 6));
}

void TestTeachScreen::rowsShowTheWordsOfAnOperator_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<QString>("joint");
    QTest::addColumn<QString>("line");
    QTest::newRow("narrow") << QSize(272, 480) << "MovJ"
                            << "MovL";
    QTest::newRow("wide") << QSize(480, 272) << "MoveJ"
                          << "MoveL";
}

void TestTeachScreen::rowsShowTheWordsOfAnOperator()
{
    QFETCH(QSize, panel);
    QFETCH(QString, joint);
    QFETCH(QString, line);
    TeachScreen screen(panel, home() + "/teach", m_machine);
    QTRY_VERIFY(!screen.isLoading());
    QStringList words;
    for (int row = 1; row < screen.list()->count(); ++row) {
        const QStringList shown = screen.list()->getContent(row);
        words.append(shown.at(0) == "Oth" ? shown.at(3) : shown.at(2));
        QCOMPARE(words.last(), shown.at(0) == "Oth"  ? QString("Text")
                               : shown.at(0) == "MJ" ? joint
                                                     : line);
    }
    QVERIFY(words.contains(joint) && words.contains(line) && words.contains("Text"));
    // Files have the words of no screen.
    QCOMPARE(screen.rows(), TaughtProgram::sample(*m_machine));
}

// A row's widget that is new shows its row by the words, one that is used again by the kind.
void TestTeachScreen::everyRowShowsItsKindAtOnce()
{
    m_list->clear();
    for (int i = 0; i < 4; ++i) {
        QTest::mouseClick(key("Text"), Qt::LeftButton);
        QTest::mouseClick(key("MoveJ"), Qt::LeftButton);
    }
    for (int row = 1; row < m_list->count(); ++row) {
        const bool isText = m_list->typeAt(row) == "Oth";
        QVERIFY2(cell(row, "DataEditor", 0) ? isText : !isText, qPrintable(QString::number(row)));
        QCOMPARE(static_cast<QLabel *>(cell(row, "QLabel", 1))->text(),
                 QString(isText ? "Text" : "MoveJ(\u2193)"));
    }
}

void TestTeachScreen::keysAreLargeEnoughForGloves_data()
{
    fits_data();
}

// Each key of each turn.
void TestTeachScreen::keysAreLargeEnoughForGloves()
{
    QFETCH(QSize, panel);
    QFETCH(QSize, screen);
    TeachScreen teach(panel, home() + "/teach", m_machine);
    teach.resize(screen);
    teach.show();
    QVERIFY(TestCompat::waitForExposed(&teach));
    QTRY_VERIFY(!teach.isLoading());
    const QList<PanelKey *> keys = teach.findChildren<PanelKey *>();
    QStringList seen;
    for (int turn = 0; turn < 2; ++turn) {
        PanelKey *more = nullptr;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (PanelKey *key : keys) {
            if (!key->isVisible())
                continue;
            seen.append(key->text());
            QVERIFY2(key->width() >= 48 && key->height() >= 48, qPrintable(key->text()));
            QVERIFY2(teach.rect().contains(QRect(key->mapTo(&teach, QPoint(0, 0)), key->size())),
                     qPrintable(key->text()));
            if (key->text() == "More")
                more = key;
        }
        if (more)
            QTest::mouseClick(more, Qt::LeftButton);
    }
    for (const char *name : {"First", "Last", "MoveJ", "MoveL", "Text", "Copy", "Paste", "Up",
                             "Down", "Delete", "Undo", "Select", "Clear"})
        QVERIFY2(seen.contains(name), name);
}

void TestTeachScreen::rowsFollowTheScreen_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<int>("height");
    QTest::newRow("a PC") << QSize(800, 480) << 96 << 34;
    QTest::newRow("7 inch, 9 mm") << QSize(800, 480) << 133 << 48;
    QTest::newRow("7 inch, fine") << QSize(1024, 600) << 170 << 60;
    QTest::newRow("4.3 inch, low") << QSize(480, 272) << 128 << 34;
    QTest::newRow("4.3 inch, upright") << QSize(272, 480) << 128 << 46;
}

void TestTeachScreen::rowsFollowTheScreen()
{
    QFETCH(QSize, panel);
    QFETCH(int, dpi);
    const auto back = qScopeGuard([] { Measures::use(Measures::usualDotsPerInch); });
    Measures::use(dpi, panel);
    TeachScreen screen(panel, home() + "/teach", m_machine);
    QTRY_VERIFY(!screen.isLoading());
    QTEST(screen.list()->itemAt(0)->minimumHeight(), "height");
    QTEST(screen.list()->itemAt(1)->minimumHeight(), "height");
}

void TestTeachScreen::copiedRowIsPastedBelowTheCurrentOne()
{
    const QList<QStringList> before = m_screen->rows();
    m_list->setCurIndex(3, false);
    QTest::mouseClick(key("Copy"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
    m_list->setCurIndex(5, false);
    QTest::mouseClick(key("Paste"), Qt::LeftButton);
    QCOMPARE(m_list->count() - 1, before.size() + 1);
    QCOMPARE(m_list->getCurIndex(), 6);
    QCOMPARE(m_screen->rows().at(5).mid(2), before.at(2).mid(2));
    QCOMPARE(firstStrings(1), numbers(before.size() + 1));
    QVERIFY(m_screen->hasChanges());
    // As often as wanted.
    QTest::mouseClick(key("Paste"), Qt::LeftButton);
    QCOMPARE(m_screen->rows().at(6).mid(2), before.at(2).mid(2));
}

void TestTeachScreen::copiedRowsArePastedIntoAnotherProgram()
{
    const QList<QStringList> before = m_screen->rows();
    m_list->setCurIndex(4, false);
    QTest::mouseClick(key("Select"), Qt::LeftButton);
    m_list->setCurIndex(2, false);
    QTest::mouseClick(key("Copy"), Qt::LeftButton);
    QVERIFY(!key("Select")->isChecked());
    writeFile(home() + "/teach/other.teach", "# Taught program\nOth\t1\t\tOth\tM05\n");
    m_screen->load(home() + "/teach/other.teach");
    QTRY_VERIFY(!m_screen->isLoading());
    QCOMPARE(m_list->count(), 2);
    QTest::mouseClick(key("Paste"), Qt::LeftButton);
    QCOMPARE(m_list->count(), 5);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(m_screen->rows().at(1 + i).mid(2), before.at(1 + i).mid(2));
    QCOMPARE(m_list->getCurIndex(), 4);
}

void TestTeachScreen::pasteAndUndoAreOffWithNothingToDo()
{
    QVERIFY(!key("Paste")->isEnabled());
    QVERIFY(!key("Undo")->isEnabled());
    QTest::mouseClick(key("Copy"), Qt::LeftButton);
    QVERIFY(key("Paste")->isEnabled());
    QTest::mouseClick(key("Paste"), Qt::LeftButton);
    QVERIFY(key("Undo")->isEnabled());
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QVERIFY(!key("Undo")->isEnabled());
    // What was copied stays copied, and an empty list has nothing to copy.
    QVERIFY(key("Paste")->isEnabled());
    m_list->clear();
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(key("Copy"), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QTest::mouseClick(key("Paste"), Qt::LeftButton);
    QCOMPARE(m_list->count(), 2);
}

void TestTeachScreen::movedRowStaysCurrent_data()
{
    QTest::addColumn<QString>("move");
    QTest::addColumn<int>("to");
    QTest::newRow("up") << "Up" << 4;
    QTest::newRow("down") << "Down" << 6;
}

void TestTeachScreen::movedRowStaysCurrent()
{
    QFETCH(QString, move);
    QFETCH(int, to);
    const QList<QStringList> before = m_screen->rows();
    m_list->setCurIndex(5, false);
    QTest::mouseClick(key(move), Qt::LeftButton);
    QCOMPARE(m_list->getCurIndex(), to);
    QCOMPARE(m_list->count() - 1, before.size());
    QCOMPARE(m_screen->rows().at(to - 1).mid(2), before.at(4).mid(2));
    QCOMPARE(m_screen->rows().at(4).mid(2), before.at(to - 1).mid(2));
    QCOMPARE(firstStrings(1), numbers(before.size()));
    QVERIFY(m_screen->hasChanges());
    QTest::mouseClick(key(move == "Up" ? "Down" : "Up"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
    QVERIFY(!m_screen->hasChanges());
}

void TestTeachScreen::movedSelectionStaysSelected()
{
    const QList<QStringList> before = m_screen->rows();
    m_list->setCurIndex(3, false);
    QTest::mouseClick(key("Select"), Qt::LeftButton);
    m_list->setCurIndex(5, false);
    QTest::mouseClick(key("Down"), Qt::LeftButton);
    QTest::mouseClick(key("Down"), Qt::LeftButton);
    QVERIFY(key("Select")->isChecked());
    QVERIFY(m_list->isMultiSelect());
    QCOMPARE(m_list->getLastIndex(), 5);
    QCOMPARE(m_list->getCurIndex(), 7);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(m_screen->rows().at(4 + i).mid(2), before.at(2 + i).mid(2));
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
}

void TestTeachScreen::rowAtTheEndIsNotMovedOn()
{
    const QList<QStringList> before = m_screen->rows();
    m_list->setCurIndex(1, false);
    QTest::mouseClick(key("Up"), Qt::LeftButton);
    m_list->setCurIndex(m_list->count() - 1, false);
    QTest::mouseClick(key("Down"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
    QVERIFY(!key("Undo")->isEnabled());
}

void TestTeachScreen::everyChangeIsTakenBackStepByStep()
{
    QList<QList<QStringList>> steps;
    const auto press = [&](const char *name) {
        steps.append(m_screen->rows());
        QTest::mouseClick(key(name), Qt::LeftButton);
        QVERIFY2(m_screen->rows() != steps.last(), name);
    };
    m_list->setCurIndex(2, false);
    press("MoveJ");
    press("MoveL");
    press("Text");
    m_list->setCurIndex(4, false);
    QTest::mouseClick(key("Copy"), Qt::LeftButton);
    m_list->setCurIndex(6, false);
    press("Paste");
    press("Up");
    press("Up");
    press("Down");
    press("Delete");
    while (!steps.isEmpty()) {
        QTest::mouseClick(key("Undo"), Qt::LeftButton);
        QCOMPARE(m_screen->rows(), steps.takeLast());
    }
    QVERIFY(!m_screen->hasChanges());
    QVERIFY(!key("Undo")->isEnabled());
    QCOMPARE(m_list->getCurIndex(), 2);
}

// A step behind the edit must not take the edit with it.
void TestTeachScreen::editOnTheKeypadIsTakenBack()
{
    const QList<QStringList> before = m_screen->rows();
    DeviceLog::acceptWith("12.5");
    QTest::mouseClick(cell(1, "ComboLineEdit", 0), Qt::LeftButton);
    const QList<QStringList> edited = m_screen->rows();
    QCOMPARE(edited.at(0).at(8), QString("12.5"));
    QVERIFY(key("Undo")->isEnabled());
    m_list->setCurIndex(5, false);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), edited);
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
    QCOMPARE(static_cast<QLineEdit *>(cell(1, "ComboLineEdit", 0))->text(), QString("Z:0"));
}

void TestTeachScreen::chosenPointIsTakenBack()
{
    const QList<QStringList> before = m_screen->rows();
    ModalDriver driver;
    choose(&driver, 6);
    QTest::mouseClick(cell(2, "Label", 1), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(m_screen->rows() != before);
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
}

void TestTeachScreen::clearedProgramIsTakenBack()
{
    const QList<QStringList> before = m_screen->rows();
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(key("Clear"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_list->count(), 1);
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_screen->rows(), before);
    QVERIFY(!m_screen->hasChanges());
}

void TestTeachScreen::undoShowsTheRowItBringsBack()
{
    m_list->setCurIndex(40, false);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QTest::mouseClick(key("First"), Qt::LeftButton);
    QVERIFY(m_list->getListPos(40) > 20);
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_list->getCurIndex(), 40);
    const QWidget *row = m_list->itemAt(m_list->getListPos(40));
    QVERIFY(row && row->isVisible() && m_list->getListPos(40) >= 1);
    // And the other way.
    m_list->setCurIndex(2, true);
    QTest::mouseClick(key("MoveJ"), Qt::LeftButton);
    QVERIFY(m_list->getListPos(3) >= 1 && m_list->itemAt(m_list->getListPos(3))->isVisible());
}

void TestTeachScreen::loadForgetsWhatCouldBeTakenBack()
{
    writeFile(home() + "/teach/other.teach", "# Taught program\nOth\t1\t\tOth\tM05\n");
    QTest::mouseClick(key("MoveJ"), Qt::LeftButton);
    QVERIFY(key("Undo")->isEnabled());
    m_screen->load(home() + "/teach/other.teach");
    QTRY_VERIFY(!m_screen->isLoading());
    QVERIFY(!key("Undo")->isEnabled());
    // A store is none of the changes: what came before it can still be taken back.
    QTest::mouseClick(key("MoveJ"), Qt::LeftButton);
    m_screen->store();
    QTRY_VERIFY(!m_screen->hasChanges());
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QVERIFY(m_screen->hasChanges());
    QCOMPARE(m_list->count(), 2);
}

void TestTeachScreen::openRowIsClosedByAChange()
{
    MJLine *row = qobject_cast<MJLine *>(m_list->itemAt(1));
    QTest::mouseClick(cell(1, "Label", 0), Qt::LeftButton);
    QVERIFY(row->isExpanded());
    QTest::mouseClick(key("Down"), Qt::LeftButton);
    QVERIFY(!row->isExpanded());
}

void TestTeachScreen::clearShowsProgressAndAsksFirst()
{
    const int before = m_list->count();
    QSignalSpy progress(m_screen, SIGNAL(worked(QString, int)));
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    driver.press(QMessageBox::No);
    QTest::mouseClick(key("Clear"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_list->count(), before);
    QCOMPARE(progress.size(), 0);

    driver.press(QMessageBox::Yes);
    QTest::mouseClick(key("Clear"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_list->count(), 1);
    QCOMPARE(progress.size(), before);
    QCOMPARE(progress.last().at(1).toInt(), 100);
    // Nothing was ever stored: there is nothing that Load could bring.
    QVERIFY2(told.last().at(0).toString().contains("Undo brings them back"),
             qPrintable(told.last().at(0).toString()));
    for (int i = 1; i < progress.size(); ++i)
        QVERIFY(progress.at(i).at(1).toInt() >= progress.at(i - 1).at(1).toInt());
    QVERIFY(m_screen->hasChanges());
}

void TestTeachScreen::insertAndDeleteInAnEmptyList()
{
    m_list->setCurIndex(20, false);
    m_list->clear();
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QCOMPARE(m_list->count(), 1);
    QCOMPARE(told.size(), 1);
    QTest::mouseClick(key("MoveJ"), Qt::LeftButton);
    QTest::mouseClick(key("Text"), Qt::LeftButton);
    QCOMPARE(firstStrings(0), (QStringList{"MJ", "Oth"}));
    QCOMPARE(firstStrings(1), numbers(2));
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QCOMPARE(m_list->count(), 1);
}

void TestTeachScreen::chosenPointGoesToEveryRowThatNamesTheSame()
{
    QList<int> sharing;
    for (int row = 1; row < m_list->count(); ++row) {
        if (m_list->getJposIndex(row) == 2)
            sharing.append(row);
    }
    // Make a second row share point 2, so that more than the touched row has to change.
    QStringList values = m_machine->points().at(1).values;
    values.append("2");
    m_list->setJpos(m_list->count() - 1, values);
    sharing.append(m_list->count() - 1);
    QVERIFY(sharing.size() >= 2);
    const int others = firstStrings(4).count("4");

    ModalDriver driver;
    choose(&driver, 6);
    QTest::mouseClick(cell(sharing.first(), "Label", 1), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    for (int row : sharing) {
        QCOMPARE(m_list->getJposIndex(row), 6);
        QCOMPARE(m_list->getJpos(row), m_machine->points().at(5).values);
    }
    QCOMPARE(firstStrings(4).count("4"), others);
    QCOMPARE(static_cast<QLabel *>(cell(sharing.first(), "Label", 1))->text(), QString("P:6"));
    QCOMPARE(m_machine->currentPoint(), 6);
}

void TestTeachScreen::chosenSpeedGoesToEveryRowThatNamesTheSame()
{
    QList<int> sharing;
    for (int row = 1; row < m_list->count(); ++row) {
        if (m_list->getVIndex(row) == 4)
            sharing.append(row);
    }
    QVERIFY(sharing.size() >= 3);
    ModalDriver driver;
    choose(&driver, 1);
    QTest::mouseClick(cell(1, "Label", 2), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    for (int row : sharing) {
        QCOMPARE(m_list->getVIndex(row), 1);
        QCOMPARE(m_list->getV(row), m_machine->speeds().at(0).values);
    }
    QCOMPARE(static_cast<QLabel *>(cell(1, "Label", 2))->text(), QString("V:1"));
}

void TestTeachScreen::cancelledTableChangesNothing()
{
    const QStringList before = m_list->getContent(1);
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(cell(1, "Label", 1), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_list->getContent(1), before);
    QVERIFY(!m_screen->hasChanges());
}

void TestTeachScreen::rowWithoutAnIndexIsChangedAlone()
{
    // Values entered by hand belong to no entry, in two rows.
    QStringList values = m_machine->points().at(0).values;
    values.append(QString());
    m_list->setJpos(1, values);
    m_list->setJpos(2, values);
    m_list->reshow();
    ModalDriver driver;
    choose(&driver, 3);
    QTest::mouseClick(cell(1, "Label", 1), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_list->getJposIndex(1), 3);
    QCOMPARE(m_list->getContent(2).at(4), QString());
}

void TestTeachScreen::touchedRowSetsThePointThatTagCopies()
{
    QCOMPARE(m_list->getJposIndex(2), 2);
    QTest::mouseClick(cell(2, "Label", 0), Qt::LeftButton);
    QCOMPARE(m_machine->currentPoint(), 2);
}

void TestTeachScreen::editOnTheKeypadIsStoredAndLoaded()
{
    QVERIFY(!m_screen->hasChanges());
    DeviceLog::acceptWith("12.5");
    QTest::mouseClick(cell(1, "ComboLineEdit", 0), Qt::LeftButton);
    QCOMPARE(m_list->getContent(1).at(8), QString("12.5"));
    m_screen->refreshStatus();
    QVERIFY(m_screen->hasChanges());
    QTest::mouseClick(key("Store"), Qt::LeftButton);
    QTRY_VERIFY(!m_screen->hasChanges());

    m_list->setCurIndex(1, false);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QVERIFY(m_list->getContent(1).at(8) != "12.5");
    m_screen->load(m_screen->filePath());
    QTRY_VERIFY(!m_screen->isLoading());
    QCOMPARE(m_list->getContent(1).at(8), QString("12.5"));
    QVERIFY(!m_screen->hasChanges());

    // The next start of the program shows what was stored.
    TeachScreen next(QSize(480, 800), home() + "/teach", m_machine);
    QTRY_VERIFY(!next.isLoading());
    QCOMPARE(next.list()->getContent(1), m_list->getContent(1));
    QCOMPARE(next.list()->count(), m_list->count());
}

void TestTeachScreen::loadKeyPicksAFile()
{
    QString error;
    QList<QStringList> rows{TaughtProgram::command("M05")};
    rows[0][1] = "1";
    writeFile(home() + "/teach/keep", "");
    QVERIFY(TaughtProgram::store(home() + "/teach/other.teach", rows, &error));
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(key("Load"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(m_list->count() > 2);

    driver.then([](QWidget *dialog) {
        const QList<Label *> lines = dialog->findChildren<Label *>();
        for (Label *line : lines) {
            if (line->text() == "other.teach")
                QTest::mouseClick(line, Qt::LeftButton);
        }
        static_cast<QDialog *>(dialog)->accept();
    });
    QTest::mouseClick(key("Load"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(m_screen->title(), QString("other.teach"));
    QCOMPARE(m_screen->list()->count(), 2);
    QCOMPARE(m_screen->rows(), rows);
}

// The operator enters \a name on the keypad.
void TestTeachScreen::storeAs(const QString &name)
{
    DeviceLog::acceptWith(name);
    QTest::mouseClick(key("Store as"), Qt::LeftButton);
}

void TestTeachScreen::storeAsGivesTheProgramItsName()
{
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    storeAs("rotor");
    QTRY_COMPARE(m_screen->title(), QString("rotor.teach"));
    QVERIFY(DeviceLog::keypadCalls().contains("CharacterKeypad.setText(program)"));
    QVERIFY(!m_screen->hasChanges());
    QCOMPARE(m_screen->filePath(), home() + "/teach/rotor.teach");
    QVERIFY(!QFileInfo::exists(home() + "/teach/program.teach"));
    // The next start shows the program that was stored last.
    TeachScreen next(QSize(480, 800), home() + "/teach", m_machine);
    QTRY_VERIFY(!next.isLoading());
    QCOMPARE(next.title(), QString("rotor.teach"));
    QCOMPARE(next.rows(), m_screen->rows());
    QVERIFY(!next.hasChanges());
    // From now on Store means that file.
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    m_screen->store();
    QTRY_VERIFY(!m_screen->hasChanges());
    QList<QStringList> rows;
    QString error;
    QVERIFY2(TaughtProgram::load(home() + "/teach/rotor.teach", &rows, &error), qPrintable(error));
    QCOMPARE(rows, m_screen->rows());
    QCOMPARE(QDir(home() + "/teach").entryList(QDir::Files | QDir::Hidden),
             QStringList("rotor.teach"));
}

// The program's old file is not covered while the program goes into the new one.
void TestTeachScreen::storeWaitsForTheNewName()
{
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    storeAs("rotor");
    QTest::mouseClick(key("Store"), Qt::LeftButton);
    QTRY_COMPARE(m_screen->title(), QString("rotor.teach"));
    QVERIFY(QFileInfo::exists(home() + "/teach/rotor.teach"));
    QVERIFY(!QFileInfo::exists(home() + "/teach/program.teach"));
}

void TestTeachScreen::storeAsWithoutANameChangesNothing()
{
    DeviceLog::cancel();
    QTest::mouseClick(key("Store as"), Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(m_screen->title(), QString("program.teach"));
    QVERIFY(!QFileInfo::exists(home() + "/teach"));
}

void TestTeachScreen::storeAsRefusesANameThatIsNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << " ";
    QTest::newRow("with a path") << "../connections";
    QTest::newRow("hidden") << ".rotor";
}

void TestTeachScreen::storeAsRefusesANameThatIsNone()
{
    QFETCH(QString, name);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    storeAs(name);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QCOMPARE(m_screen->title(), QString("program.teach"));
    QVERIFY(!QFileInfo::exists(home() + "/teach"));
}

void TestTeachScreen::storeAsAsksBeforeItCovers_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("yes") << int(QMessageBox::Yes);
    QTest::newRow("no") << int(QMessageBox::No);
}

void TestTeachScreen::storeAsAsksBeforeItCovers()
{
    QFETCH(int, answer);
    const QByteArray there("# Taught program\nOth\t1\t\tOth\tM05\n");
    writeFile(home() + "/teach/rotor.teach", there);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    ModalDriver driver;
    driver.then([answer](QWidget *dialog) {
        QMessageBox *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY2(box->text().contains("rotor.teach") && box->text().contains("1"),
                 qPrintable(box->text()));
        // Whoever closes it covers nothing.
        QCOMPARE(box->standardButton(box->defaultButton()), QMessageBox::No);
        box->button(QMessageBox::StandardButton(answer))->click();
    });
    storeAs("rotor");
    QTRY_VERIFY2(driver.finished(), driver.report());
    if (answer == QMessageBox::No) {
        QCOMPARE(m_screen->title(), QString("program.teach"));
        QVERIFY(m_screen->hasChanges());
        QCOMPARE(readFile(home() + "/teach/rotor.teach"), there);
        return;
    }
    QTRY_COMPARE(m_screen->title(), QString("rotor.teach"));
    QVERIFY(!m_screen->hasChanges());
    QVERIFY(readFile(home() + "/teach/rotor.teach") != there);
    QCOMPARE(QDir(home() + "/teach").entryList(QDir::Files | QDir::Hidden),
             QStringList("rotor.teach"));
}

void TestTeachScreen::storeAsPutsAsideWhatNobodyCanRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no instructions") << QByteArray("G01 X10\n");
    QTest::newRow("no text") << QByteArray("MJ\0\xff", 4);
    QTest::newRow("nothing but a kind") << QByteArray("# Taught program\nMJ\n");
}

void TestTeachScreen::storeAsPutsAsideWhatNobodyCanRead()
{
    QFETCH(QByteArray, bytes);
    const QString path = home() + "/teach/rotor.teach";
    writeFile(path, bytes);
    ModalDriver driver;
    driver.press(QMessageBox::No);
    storeAs("rotor");
    QTRY_VERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(path), bytes);
    driver.press(QMessageBox::Yes);
    storeAs("rotor");
    QTRY_COMPARE(m_screen->title(), QString("rotor.teach"));
    QCOMPARE(readFile(path + ".broken"), bytes);
    QVERIFY(readFile(path).contains("M05"));
}

void TestTeachScreen::storeAsThatFailsKeepsTheName_data()
{
    QTest::addColumn<QString>("trouble");
    QTest::addColumn<QString>("reason");
    QTest::newRow("full") << "full"
                          << "No space left on device";
    QTest::newRow("read-only") << "read-only"
                               << "Permission denied";
    QTest::newRow("a file in the folder's place") << "file"
                                                  << "Not a directory";
}

// The test's home has room for a megabyte.
void TestTeachScreen::storeAsThatFailsKeepsTheName()
{
    QFETCH(QString, trouble);
    QFETCH(QString, reason);
    const QString folder = home() + "/teach";
    if (trouble == "file")
        writeFile(folder, QByteArray());
    else
        QVERIFY(QDir().mkpath(folder));
    if (trouble == "read-only")
        QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    if (trouble == "full")
        fillDisk(home() + "/filler");
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    storeAs("rotor");
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY2(told.at(0).at(0).toString().contains(reason), qPrintable(told.at(0).at(0).toString()));
    QCOMPARE(m_screen->title(), QString("program.teach"));
    QVERIFY(m_screen->hasChanges());
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList());

    // Once the trouble is over, so is the alarm.
    QSignalSpy ended(m_screen, SIGNAL(causeEnded(QString)));
    QFile::setPermissions(folder,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    if (trouble == "file")
        QVERIFY(QFile::remove(folder));
    QFile::remove(home() + "/filler");
    storeAs("rotor");
    QTRY_COMPARE(m_screen->title(), QString("rotor.teach"));
    QVERIFY(ended.contains(QVariantList{told.at(0).at(2)}));
}

void TestTeachScreen::storeAsOnAHungDiskIsGivenUp()
{
    const QString path = home() + "/teach/rotor.teach";
    const QByteArray there("# Taught program\nOth\t1\t\tOth\tM05\n");
    writeFile(path, there);
    HeldFile held(path);
    QVERIFY(held.isHeld());
    m_screen->setStallTime(300);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    LoopPulse pulse;
    storeAs("rotor");
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    held.letGo();
    QCOMPARE(readFile(path), there);
    QCOMPARE(m_screen->title(), QString("program.teach"));
    // What was given up is over: another name goes.
    storeAs("stator");
    QTRY_COMPARE(m_screen->title(), QString("stator.teach"));
}

void TestTeachScreen::withoutATouchScreenTheNameIsTyped()
{
    DeviceLog::setTouchScreen(false);
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QLineEdit *field = dialog->findChild<QLineEdit *>();
        QCOMPARE(field->text(), QString("program"));
        field->setText("rotor");
        static_cast<QDialog *>(dialog)->accept();
    });
    QTest::mouseClick(key("Store as"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(m_screen->title(), QString("rotor.teach"));
    QCOMPARE(DeviceLog::keypadCalls(), QStringList());
}

void TestTeachScreen::storeBehindARefusedStoreAsCoversItsOwnFile()
{
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    m_screen->store();
    QTRY_COMPARE(told.size(), 1);
    writeFile(home() + "/teach/rotor.teach", "# Taught program\nOth\t1\t\tOth\tM05\n");
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    ModalDriver driver;
    driver.press(QMessageBox::No);
    storeAs("rotor");
    QTRY_VERIFY2(driver.finished(), driver.report());
    m_screen->store();
    QTRY_VERIFY(!m_screen->hasChanges());
    // Nothing had to be put aside.
    QCOMPARE(QDir(home() + "/teach").entryList(QDir::Files | QDir::Hidden),
             (QStringList{"program.teach", "rotor.teach"}));
}

void TestTeachScreen::programsOfTheOldPlaceAreFound()
{
    const QByteArray program("# Taught program\nOth\t1\t\tOth\tM05\n");
    writeFile(home() + "/old/program.teach", program);
    TeachScreen screen(QSize(480, 800), home() + "/old/taught", m_machine, home() + "/old");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_VERIFY(!screen.isLoading());
    QCOMPARE(screen.rows().size(), 1);
    QVERIFY(!screen.hasChanges());
    QCOMPARE(screen.filePath(), home() + "/old/taught/program.teach");
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.at(0).at(0).toString().contains("/old/taught"),
             qPrintable(told.at(0).at(0).toString()));
    QCOMPARE(readFile(home() + "/old/program.teach"), program);
    QCOMPARE(readFile(home() + "/old/taught/program.teach"), program);
}

void TestTeachScreen::programThatCannotBeCopiedIsReadInItsOldPlace()
{
    const QByteArray program("# Taught program\nOth\t1\t\tOth\tM05\n");
    writeFile(home() + "/old/program.teach", program);
    writeFile(home() + "/old/taught", "a file where the folder should be");
    TeachScreen screen(QSize(480, 800), home() + "/old/taught", m_machine, home() + "/old");
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_VERIFY(!screen.isLoading());
    QCOMPARE(screen.rows().size(), 1);
    // In the new place it is not stored yet.
    QVERIFY(screen.hasChanges());
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QCOMPARE(readFile(home() + "/old/program.teach"), program);
}

void TestTeachScreen::fileThatIsNoneLeavesTheScreenAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("broken") << "broken.teach";
    QTest::newRow("missing") << "missing.teach";
}

void TestTeachScreen::fileThatIsNoneLeavesTheScreenAsItIs()
{
    QFETCH(QString, name);
    const int before = m_list->count();
    writeFile(home() + "/broken.teach", "G01 X10\n");
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    m_screen->load(home() + '/' + name);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY(told.at(0).at(0).toString().contains(name));
    QCOMPARE(m_list->count(), before);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QCOMPARE(m_screen->title(), QString("program.teach"));
}

void TestTeachScreen::missingFileShowsTheSample()
{
    QCOMPARE(m_list->count() - 1, TaughtProgram::sample(*m_machine).size());
    QVERIFY(!m_screen->hasChanges());
}

void TestTeachScreen::unreadableProgramIsToldAndPutAside_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isForbidden");
    QTest::newRow("no instructions") << QByteArray("G01 X10\n") << false;
    QTest::newRow("no text") << QByteArray("MJ\0\xff", 4) << false;
    QTest::newRow("no rights") << QByteArray("# Taught program\nOth\t1\t\tOth\tM05\n") << true;
}

void TestTeachScreen::unreadableProgramIsToldAndPutAside()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isForbidden);
    const QString path = home() + "/broken/program.teach";
    writeFile(path, bytes);
    if (isForbidden)
        QFile::setPermissions(path, QFileDevice::Permissions());
    TeachScreen screen(QSize(480, 800), home() + "/broken", m_machine);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QSignalSpy ended(&screen, SIGNAL(causeEnded(QString)));
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(told.at(0).at(0).toString().contains(path), qPrintable(told.at(0).at(0).toString()));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    const QString cause = told.at(0).at(2).toString();
    QVERIFY(!cause.isEmpty());
    // No sample, which would look as if that were the program.
    QCOMPARE(screen.list()->count(), 1);
    QVERIFY(!screen.hasChanges());
    QCOMPARE(QDir(home() + "/broken").entryList(QDir::Files), QStringList("program.teach"));

    QStringList row = TaughtProgram::command("M05");
    screen.list()->insertWidget(1, row, true, false);
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(1).at(1).value<Message::Tone>(), Message::Information);
    QVERIFY(told.at(1).at(0).toString().contains("program.teach.broken"));
    QVERIFY(ended.contains(QVariantList{cause}));
    QFile::setPermissions(path + ".broken", QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QCOMPARE(readFile(path + ".broken"), bytes);
    QVERIFY(readFile(path).contains("M05"));
}

void TestTeachScreen::storeThatFailsIsAnAlarm()
{
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    writeFile(home() + "/teach", "a file where the folder should be");
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(key("Store"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY2(told.at(0).at(0).toString().contains("Not a directory"),
             qPrintable(told.at(0).at(0).toString()));
    QVERIFY(m_screen->hasChanges());
    // Once there is a place, the trouble is over.
    QSignalSpy ended(m_screen, SIGNAL(causeEnded(QString)));
    QVERIFY(QFile::remove(home() + "/teach"));
    QTest::mouseClick(key("Store"), Qt::LeftButton);
    QTRY_VERIFY(!m_screen->hasChanges());
    QVERIFY(ended.contains(QVariantList{told.at(0).at(2)}));
}

void TestTeachScreen::screenIsUpWhileItsFileHangs()
{
    const QString path = home() + "/hung/program.teach";
    const QByteArray program = "# Taught program\nOth\t1\t\tOth\tM05\n";
    writeFile(path, program);
    HeldFile held(path);
    QVERIFY(held.isHeld());
    QElapsedTimer start;
    start.start();
    TeachScreen screen(QSize(480, 800), home() + "/hung", m_machine);
    screen.setStallTime(500);
    const QList<PanelKey *> keys = screen.keys();
    for (PanelKey *key : keys)
        key->setParent(&screen);
    screen.resize(480, 640);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    QVERIFY(start.elapsed() < patience(2000));
    LoopPulse pulse;
    QVERIFY(screen.isLoading());
    const QList<PanelKey *> all = screen.findChildren<PanelKey *>();
    for (PanelKey *key : all)
        QVERIFY2(!key->isEnabled(), qPrintable(key->text()));
    const auto notice = [&screen] {
        const QList<QLabel *> labels = screen.findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == "Loading ..." && label->isVisible())
                return true;
        }
        return false;
    };
    QVERIFY(notice());

    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(!screen.isLoading());
    QVERIFY(!notice());
    // Nothing is copied yet, and nothing is done that could be taken back.
    for (PanelKey *key : all)
        QCOMPARE(key->isEnabled(), key->text() != "Paste" && key->text() != "Undo");
    QCOMPARE(screen.list()->count(), 1);
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));

    // The program that nobody has seen is not covered once the disk answers.
    held.letGo();
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(1).at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(readFile(path + ".broken"), program);
}

void TestTeachScreen::oldPlaceThatHangsIsTold()
{
    writeFile(home() + "/old/program.teach", "# Taught program\nOth\t1\t\tOth\tM05\n");
    HeldFile held(home() + "/old/program.teach");
    QVERIFY(held.isHeld());
    TeachScreen screen(QSize(480, 800), home() + "/old/taught", m_machine, home() + "/old");
    screen.setStallTime(200);
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_VERIFY(!screen.isLoading());
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.at(0).at(0).toString().contains(home() + "/old may be missing"),
             qPrintable(told.at(0).at(0).toString()));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(screen.filePath(), home() + "/old/taught/program.teach");
}

void TestTeachScreen::storeAtTheEndWaitsForTheDisk()
{
    const QString path = m_screen->filePath();
    QSignalSpy stored(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    m_screen->store();
    QTRY_COMPARE(stored.size(), 1);
    const QByteArray before = readFile(path);
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    HeldFile held(path);
    QVERIFY(held.isHeld());
    m_screen->setStallTime(300);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    LoopPulse pulse;
    ModalDriver driver;
    driver.press(QMessageBox::Save);
    QVERIFY(!m_screen->mayClose());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    held.letGo();
    QCOMPARE(readFile(path), before);
    driver.press(QMessageBox::Save);
    QVERIFY(m_screen->mayClose());
    QVERIFY(readFile(path) != before);
}

void TestTeachScreen::closingWithChangesAsks()
{
    QVERIFY(m_screen->mayClose());
    QTest::mouseClick(key("Delete"), Qt::LeftButton);
    ModalDriver driver;
    driver.press(QMessageBox::Cancel);
    QVERIFY(!m_screen->mayClose());
    driver.press(QMessageBox::Save);
    QVERIFY(m_screen->mayClose());
    QVERIFY(m_screen->mayClose());
    QVERIFY2(driver.finished(), driver.report());
}

void TestTeachScreen::rowsThatAreBroughtBackAreChanges()
{
    const QList<QStringList> rows = TaughtProgram::sample(*m_machine).mid(0, 5);
    const QString path = home() + "/teach/other.teach";
    QVERIFY(m_screen->bringBack(path, rows));
    QCOMPARE(m_screen->rows(), rows);
    QCOMPARE(m_screen->filePath(), path);
    QVERIFY(m_screen->hasChanges());
    QVERIFY(m_screen->lookForChanges());
    const QString name = m_screen->nameOf(path);
    QCOMPARE(name, QString("other.teach"));
    QCOMPARE(m_screen->describe(name, "12:31", 5), QString("other.teach, 12:31, instructions: 5"));
}

void TestTeachScreen::rowsOfTheOldPlaceAreBroughtBackInTheNewOne()
{
    TeachScreen screen(QSize(480, 800), home() + "/old/taught", m_machine, home() + "/old");
    QTRY_VERIFY(!screen.isLoading());
    QList<QStringList> rows = TaughtProgram::sample(*m_machine).mid(0, 2);
    rows[0][2] = "Wind";
    QVERIFY(screen.bringBack(home() + "/old/rotor.teach", rows));
    QCOMPARE(screen.filePath(), home() + "/old/taught/rotor.teach");
    QVERIFY(screen.hasChanges());
    QCOMPARE(screen.rows().at(0).at(2), QString("MoveJ"));
    QCOMPARE(screen.rows().at(0).at(12), QString("Wind"));
}

void TestTeachScreen::rowsOfAnotherPlaceCoverNothingHere()
{
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    m_screen->store();
    QTRY_COMPARE(told.size(), 1);
    const QByteArray program = readFile(m_screen->filePath());
    const QByteArray there("# Taught program\nOth\t1\t\tOth\tM05\n");
    writeFile(home() + "/teach/rotor.teach", there);
    const QList<QStringList> rows = TaughtProgram::sample(*m_machine).mid(0, 2);
    QVERIFY(m_screen->bringBack("/mnt/Storage/../rotor.teach", rows));
    QCOMPARE(m_screen->filePath(), home() + "/teach/rotor.teach");
    m_screen->store();
    QTRY_VERIFY(!m_screen->hasChanges());
    QVERIFY(told.last().at(0).toString().contains("rotor.teach.broken"));
    QCOMPARE(readFile(home() + "/teach/rotor.teach.broken"), there);
    QCOMPARE(readFile(home() + "/teach/program.teach"), program);
}

void TestTeachScreen::rowsThatAreNoneAreNotBroughtBack()
{
    const QList<QStringList> before = m_screen->rows();
    const QString path = m_screen->filePath();
    QVERIFY(!m_screen->bringBack("/etc/passwd", {{"MJ"}}));
    QCOMPARE(m_screen->rows(), before);
    QCOMPARE(m_screen->filePath(), path);
    QVERIFY(!m_screen->lookForChanges());
}

void TestTeachScreen::refusedNumberIsToldAndNotTaken()
{
    const QString before = m_list->getContent(1).at(10);
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    DeviceLog::acceptWith("999999999999");
    QTest::mouseClick(cell(1, "ComboLineEdit", 1), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Instruction 1: T is 999999999999. It must be 0 to 99, whole."));
    QCOMPARE(m_list->getContent(1).at(10), before);
    QVERIFY(!m_screen->lookForChanges());
    QVERIFY(!key("Undo")->isEnabled());
}

void TestTeachScreen::undoNeverBringsARefusedNumber()
{
    const QString before = m_list->getContent(1).at(10);
    DeviceLog::acceptWith("7");
    QTest::mouseClick(cell(1, "ComboLineEdit", 1), Qt::LeftButton);
    QCOMPARE(m_list->getContent(1).at(10), QString("7"));
    DeviceLog::acceptWith("999999999999");
    QTest::mouseClick(cell(1, "ComboLineEdit", 1), Qt::LeftButton);
    QCOMPARE(m_list->getContent(1).at(10), QString("7"));
    QTest::mouseClick(key("Undo"), Qt::LeftButton);
    QCOMPARE(m_list->getContent(1).at(10), before);
    QVERIFY(!key("Undo")->isEnabled());
}

void TestTeachScreen::refusedNumberIsNeverStored()
{
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(key("Store"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    const QByteArray before = readFile(m_screen->filePath());
    QStringList row = m_list->getContent(40);
    QVERIFY(row.at(0) != "Oth");
    row[10] = "999999999999";
    m_list->setContent(40, row);
    QTest::mouseClick(key("Store"), Qt::LeftButton);
    QCOMPARE(told.size(), 2);
    QVERIFY2(told.last().at(0).toString().startsWith("Not stored. Instruction 40: T is 99"),
             qPrintable(told.last().at(0).toString()));
    QCOMPARE(told.last().at(1).value<Message::Tone>(), Message::Warning);
    QCOMPARE(readFile(m_screen->filePath()), before);
    QVERIFY(m_screen->lookForChanges());
    QCOMPARE(m_list->getCurIndex(), 40);
    QVERIFY(cell(40, "ComboLineEdit", 1));
}

void TestTeachScreen::refusedNumberOfAFileIsTold()
{
    QList<QStringList> rows = m_screen->rows();
    rows[0][10] = "9 bananas";
    QString error;
    QVERIFY(QDir().mkpath(QFileInfo(m_screen->filePath()).path()));
    QVERIFY(TaughtProgram::store(m_screen->filePath(), rows, &error));
    QSignalSpy told(m_screen, SIGNAL(told(QString, Message::Tone, QString)));
    m_screen->load(m_screen->filePath());
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(1).at(0).toString(),
             QString("Instruction 1: T is 9 bananas. It must be 0 to 99, whole."));
    QCOMPARE(m_list->getContent(1).at(10), QString("9 bananas"));
}

std::unique_ptr<TeachScreen> TestTeachScreen::wideScreen()
{
    std::unique_ptr<TeachScreen> screen(
        new TeachScreen(QSize(1024, 600), home() + "/wide", m_machine));
    for (PanelKey *key : screen->keys())
        key->setParent(screen.get());
    screen->resize(1024, 525);
    screen->show();
    while (screen->isLoading())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return screen;
}

/// The value of that name beside the list; null for none.
static QToolButton *detail(const TeachScreen &screen, const QString &name)
{
    for (QToolButton *key : screen.findChild<RowDetails *>()->findChildren<QToolButton *>()) {
        const QString said = key->accessibleName();
        if (key->isVisible() && (said == name || said.startsWith(name + ", ")))
            return key;
    }
    return nullptr;
}

/// All that is said of it.
static QString said(const TeachScreen &screen, const QString &name)
{
    const QToolButton *key = detail(screen, name);
    return key ? key->accessibleName() : QString();
}

static QString heading(const TeachScreen &screen)
{
    return screen.findChild<RowDetails *>()->findChild<QLabel *>()->text();
}

void TestTeachScreen::detailsAreThereWhereTheyHaveRoom_data()
{
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<bool>("areThere");
    QTest::newRow("480x272") << QSize(480, 272) << false;
    QTest::newRow("272x480") << QSize(272, 480) << false;
    QTest::newRow("800x480") << QSize(800, 480) << false;
    QTest::newRow("1024x600") << QSize(1024, 600) << true;
    QTest::newRow("1280x800") << QSize(1280, 800) << true;
}

void TestTeachScreen::detailsAreThereWhereTheyHaveRoom()
{
    QFETCH(QSize, panel);
    TeachScreen screen(panel, home() + "/teach", m_machine);
    QTRY_VERIFY(!screen.isLoading());
    QTEST(screen.findChild<RowDetails *>() != nullptr, "areThere");
}

void TestTeachScreen::detailsFollowTheChosenRow()
{
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    QCOMPARE(heading(*screen), QString("Instruction 1: MoveJ"));
    QCOMPARE(said(*screen, "Point"), QString("Point, 1 Home"));
    QCOMPARE(said(*screen, "Y"), QString("Y, 60 mm, -2000 to 2000"));
    screen->list()->on_line_clicked(3);
    QCOMPARE(heading(*screen), QString("Instruction 3: Text"));
    QCOMPARE(said(*screen, "Text"), QString("Text, M10 clamp the wire"));
    QVERIFY(!detail(*screen, "Point"));
    // A table that is opened and cancelled has chosen the row as well.
    ModalDriver driver;
    driver.then([](QWidget *dialog) { static_cast<QDialog *>(dialog)->reject(); });
    screen->list()->on_jpos_update(2);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(heading(*screen), QString("Instruction 2: MoveJ"));
    // The list turns its page, and the row stays chosen.
    screen->list()->end();
    QCOMPARE(heading(*screen), QString("Instruction 2: MoveJ"));
}

void TestTeachScreen::detailsFollowEveryChange()
{
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    screen->list()->on_line_clicked(2);
    const auto press = [&screen](const QString &text) {
        for (PanelKey *key : screen->findChildren<PanelKey *>()) {
            if (key->text() == text)
                return QTest::mouseClick(key, Qt::LeftButton);
        }
        QFAIL(qPrintable(text));
    };
    DeviceLog::acceptWith("12.5");
    MJLine *line = qobject_cast<MJLine *>(screen->list()->itemAt(2));
    QTest::mouseClick(line->findChild<ComboLineEdit *>(), Qt::LeftButton);
    QCOMPARE(said(*screen, "Zone Z"), QString("Zone Z, 12.5 mm, 0 to 100"));
    press("Undo");
    // The step before had another row.
    QCOMPARE(heading(*screen), QString("Instruction 1: MoveJ"));
    screen->list()->on_line_clicked(2);
    QCOMPARE(said(*screen, "Zone Z"), QString("Zone Z, 0 mm, 0 to 100"));
    press("Delete");
    QCOMPARE(heading(*screen), QString("Instruction 2: Text"));
    press("MoveL");
    QCOMPARE(heading(*screen), QString("Instruction 3: MoveL"));
    press("Up");
    QCOMPARE(heading(*screen), QString("Instruction 2: MoveL"));
}

void TestTeachScreen::detailsSayWhyThereAreNone()
{
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    screen->list()->on_line_clicked(5);
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    for (PanelKey *key : screen->findChildren<PanelKey *>()) {
        if (key->text() == "Clear")
            QTest::mouseClick(key, Qt::LeftButton);
    }
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(heading(*screen), QString("No instruction yet. MoveJ, MoveL and Text make one."));
    QVERIFY(!detail(*screen, "Point"));
    QVERIFY(screen->bringBack(screen->filePath(), TaughtProgram::sample(*m_machine)));
    QCOMPARE(heading(*screen), QString("Instruction 1: MoveJ"));
    screen->list()->setCurIndex(900, true);
    screen->list()->clicked(900);
    QCOMPARE(heading(*screen), QString("No instruction is chosen. Touch one."));
}

void TestTeachScreen::touchedDetailOpensTheKeypadOfItsField_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("hmiName");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("entered");
    QTest::newRow("zone") << 2 << "Zone Z"
                          << "Instruction 2, Zone Z"
                          << "NumericKeypad.setText(0)" << 8 << "12";
    QTest::newRow("coordinate of a closed row") << 2 << "X"
                                                << "Instruction 2, X"
                                                << "NumericKeypad.setText(-6)" << 14 << "12";
    QTest::newRow("ramp") << 2 << "Speed D"
                          << "Instruction 2, Speed D"
                          << "NumericKeypad.setText(200)" << 30 << "12";
    QTest::newRow("remark") << 8 << "Remark"
                            << "Instruction 8, remark"
                            << "CharacterKeypad.setText(Wind it)" << 12 << "loose";
    QTest::newRow("text") << 3 << "Text"
                          << "Instruction 3, text"
                          << "CharacterKeypad.setText(M10 clamp the wire)" << 4 << "M11";
}

void TestTeachScreen::touchedDetailOpensTheKeypadOfItsField()
{
    QFETCH(int, row);
    QFETCH(QString, name);
    QFETCH(QString, entered);
    QFETCH(int, position);
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    // The pooled row has been opened before, for another remark.
    MJLine *line = qobject_cast<MJLine *>(screen->list()->itemAt(row));
    line->on_expand();
    line->on_expand();
    QList<QStringList> rows = screen->rows();
    rows[7][12] = "Wind_it";
    QVERIFY(screen->bringBack(screen->filePath(), rows));
    screen->list()->on_line_clicked(row);
    DeviceLog::reset();
    QString receiver;
    QRect place;
    DeviceLog::runThenCancel([&] {
        receiver = DeviceLog::object()->property("hmiName").toString();
        place = DeviceLog::object()->property("hmiEditedRect").toRect();
    });
    QTest::mouseClick(detail(*screen, name), Qt::LeftButton);
    QTEST(receiver, "hmiName");
    QCOMPARE(place.center(),
             detail(*screen, name)->mapToGlobal(detail(*screen, name)->rect().center()));
    QFETCH(QString, opened);
    QVERIFY2(DeviceLog::calls().contains(opened), qPrintable(DeviceLog::calls().join(' ')));
    DeviceLog::acceptWith(entered);
    QTest::mouseClick(detail(*screen, name), Qt::LeftButton);
    QCOMPARE(screen->rows().at(row - 1).at(position), entered);
    QVERIFY2(said(*screen, name).startsWith(name + ", " + entered),
             qPrintable(said(*screen, name)));
    QVERIFY(!line->isExpanded());
    QCOMPARE(DeviceLog::answersLeft(), 0);
}

void TestTeachScreen::touchedDetailKeepsTheLimits()
{
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    QSignalSpy told(screen.get(), SIGNAL(told(QString, Message::Tone, QString)));
    DeviceLog::acceptWith("999");
    QTest::mouseClick(detail(*screen, "Tool T"), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(),
             QString("Instruction 1: T is 999. It must be 0 to 99, whole."));
    QCOMPARE(said(*screen, "Tool T"), QString("Tool T, 0, 0 to 99"));
    // One that a file has is marked.
    QList<QStringList> rows = screen->rows();
    rows[0][10] = "100";
    QVERIFY(screen->bringBack(screen->filePath(), rows));
    QCOMPARE(said(*screen, "Tool T"), QString("Tool T, 100, above 99"));
}

void TestTeachScreen::touchedDetailOfAnotherPageTurnsToItsRow()
{
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    screen->list()->on_line_clicked(2);
    screen->list()->end();
    QVERIFY(screen->list()->getListPos(2) < 0);
    DeviceLog::acceptWith("7.5");
    QTest::mouseClick(detail(*screen, "X"), Qt::LeftButton);
    QCOMPARE(screen->rows().at(1).at(14), QString("7.5"));
    QVERIFY(screen->list()->getListPos(2) > 0);
    QCOMPARE(said(*screen, "X"), QString("X, 7.5 mm, -2000 to 2000"));
    // The values are no longer those of the table.
    QCOMPARE(said(*screen, "Point"), QString("Point, own values"));
}

void TestTeachScreen::touchedDetailChoosesPointAndSpeed()
{
    const std::unique_ptr<TeachScreen> screen = wideScreen();
    ModalDriver driver;
    choose(&driver, 6);
    QTest::mouseClick(detail(*screen, "Point"), Qt::LeftButton);
    choose(&driver, 2);
    QTest::mouseClick(detail(*screen, "Speed"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(said(*screen, "Point"), QString("Point, 6 Tape"));
    QCOMPARE(said(*screen, "Y"), QString("Y, 34 mm, -2000 to 2000"));
    QCOMPARE(said(*screen, "Speed"), QString("Speed, 2 Lay"));
}

void TestTeachScreen::programMayEndAtTheKeypadOfADetail()
{
    std::unique_ptr<TeachScreen> screen = wideScreen();
    DeviceLog::runThenCancel([&screen] { screen.reset(); });
    MovementLimits *limits = screen->findChild<MovementLimits *>();
    limits->open(1, 8, QRect(0, 0, 10, 10));
    QVERIFY(!screen);
}

FILARIX_TEST_MAIN(TestTeachScreen)
#include "tst_teachscreen.moc"
