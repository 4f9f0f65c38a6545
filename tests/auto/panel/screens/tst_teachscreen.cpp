// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "heldfile.h"
#include "label.h"
#include "look/panelkey.h"
#include "modaldriver.h"
#include "screens/machinedata.h"
#include "screens/tablepicker.h"
#include "screens/taughtprogram.h"
#include "screens/teachscreen.h"
#include "tlistwidget.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QSignalSpy>
#include <QTableWidget>

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
    void clearShowsProgressAndAsksFirst();
    void insertAndDeleteInAnEmptyList();
    void chosenPointGoesToEveryRowThatNamesTheSame();
    void chosenSpeedGoesToEveryRowThatNamesTheSame();
    void cancelledTableChangesNothing();
    void rowWithoutAnIndexIsChangedAlone();
    void touchedRowSetsThePointThatTagCopies();
    void editOnTheKeypadIsStoredAndLoaded();
    void loadKeyPicksAFile();
    void fileThatIsNoneLeavesTheScreenAsItIs_data();
    void fileThatIsNoneLeavesTheScreenAsItIs();
    void missingFileShowsTheSample();
    void unreadableProgramIsToldAndPutAside_data();
    void unreadableProgramIsToldAndPutAside();
    void storeThatFailsIsAnAlarm();
    void screenIsUpWhileItsFileHangs();
    void storeAtTheEndWaitsForTheDisk();
    void closingWithChangesAsks();
    void rowsThatAreBroughtBackAreChanges();
    void rowsThatAreNoneAreNotBroughtBack();
    void refusedNumberIsToldAndNotTaken();
    void refusedNumberIsNeverStored();
    void refusedNumberOfAFileIsTold();

private:
    PanelKey *key(const QString &text, int nth = 0) const;
    QWidget *cell(int row, const char *className, int nth) const;
    QStringList firstStrings(int position) const;
    void choose(ModalDriver *driver, int number);

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
        QVERIFY(widget->height() >= 34);
        QVERIFY(widget->width() >= 34);
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
    QTest::mouseClick(key("Line"), Qt::LeftButton);
    QCOMPARE(m_list->count(), before + 1);
    QCOMPARE(m_list->getCurIndex(), 4);
    QCOMPARE(m_list->typeAt(4), QString("ML"));
    QCOMPARE(m_list->getJposIndex(4), 5);
    QTest::mouseClick(key("Joint"), Qt::LeftButton);
    QCOMPARE(m_list->typeAt(5), QString("MJ"));
    QTest::mouseClick(key("Other"), Qt::LeftButton);
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

void TestTeachScreen::clearShowsProgressAndAsksFirst()
{
    const int before = m_list->count();
    QSignalSpy progress(m_screen, SIGNAL(worked(QString, int)));
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
    QTest::mouseClick(key("Joint"), Qt::LeftButton);
    QTest::mouseClick(key("Other"), Qt::LeftButton);
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
    QCOMPARE(m_list->getContent(1), rows.first());
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
    for (PanelKey *key : all)
        QVERIFY2(key->isEnabled(), qPrintable(key->text()));
    QCOMPARE(screen.list()->count(), 1);
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));

    // The program that nobody has seen is not covered once the disk answers.
    held.letGo();
    screen.store();
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told.at(1).at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(readFile(path + ".broken"), program);
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

FILARIX_TEST_MAIN(TestTeachScreen)
#include "tst_teachscreen.moc"
