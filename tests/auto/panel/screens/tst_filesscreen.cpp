// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "guards/pickerfacts.h"
#include "heldfile.h"
#include "look/panelkey.h"
#include "look/taparea.h"
#include "modaldriver.h"
#include "programs/programhistory.h"
#include "screens/coilview.h"
#include "screens/filesscreen.h"
#include "screens/programlist.h"
#include "screens/programpicture.h"
#include "somecoil.h"
#include "stick/importguard.h"
#include "stick/stick.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScopedPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTableWidget>
#include <QThread>

class TestFilesScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keysPlugAndPullTheStick();
    void arrivingStickIsCheckedOnce();
    void stickOfTheSystemIsSeenToComeAndGo();
    void stickThatCannotBePluggedIsTold();
    void firstProgramIsLookedAtAtOnce();
    void chosenProgramIsShownWithFactsAndPicture();
    void programWithoutWireHasWords();
    void programThatIsTooLongHasWords();
    void programThatGoesIsTold();
    void openAsksTheHost();
    void checkTellsWhatItFound_data();
    void checkTellsWhatItFound();
    void checkIsShownAndStopped();
    void checkOfADiskThatHangsIsGivenUp();
    void readingIsShownAndStopped();
    void worksAtOnceAreStoppedOneByOne();
    void programOnTheStickIsLookedAt();
    void ownProgramThatIsPickedIsChosen();
    void folderThatIsPickedIsNoProgram();
    void stateIsToldInFullByATouch();
    void cancelledPickChangesNothing();
    void importKeyAsksTheHost();
    void panelsOwnStickHasNoKeys();
    void historyKeyBringsBackARemovedProgram();
    void closedHistoryBringsNothingBack();
    void foldersAreLookedAtWhileTheScreenIsUp();
    void stickThatHangsStopsNothing();
    void fits_data();
    void fits();

private:
    static PanelKey *key(const FilesScreen &screen, const QString &text);
    static bool shows(const FilesScreen &screen, const QString &text);
    static QString pictureWords(const FilesScreen &screen);
    static void pick(FilesScreen *screen, const QString &name);

    QString m_folder;
    QScopedPointer<ProgramHistory> m_history;
};

void TestFilesScreen::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    programDir();
    m_folder = "/mnt/Storage.stick";
    QDir().mkpath(m_folder);
    QDir().mkdir(Stick::mountPoint());
    m_history.reset(new ProgramHistory(programDir(), home() + "/hmi/history"));
}

void TestFilesScreen::cleanup()
{
    m_history.reset();
    emptyFolder(m_folder);
    QFile::remove(Stick::marker());
    if (QFileInfo(Stick::mountPoint()).isSymLink())
        QFile::remove(Stick::mountPoint());
    QDir().mkdir(Stick::mountPoint());
    emptyFolder(Stick::mountPoint());
    FilarixTest::cleanup();
}

PanelKey *TestFilesScreen::key(const FilesScreen &screen, const QString &text)
{
    const QList<PanelKey *> keys = screen.findChildren<PanelKey *>();
    for (PanelKey *key : keys) {
        if (key->text() == text)
            return key;
    }
    return nullptr;
}

bool TestFilesScreen::shows(const FilesScreen &screen, const QString &text)
{
    const QList<QLabel *> labels = screen.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text().contains(text))
            return true;
    }
    return false;
}

void TestFilesScreen::keysPlugAndPullTheStick()
{
    writeFile(m_folder + "/coil.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy moves(&screen, SIGNAL(stickMoved()));
    QVERIFY(!key(screen, "Pull")->isEnabled());
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QTRY_COMPARE(moves.size(), 1);
    QVERIFY(stick.isPresent());
    QTRY_VERIFY(shows(screen, "Stick: in, files: 1"));
    QVERIFY(!key(screen, "Plug")->isEnabled());
    QTRY_VERIFY(!screen.guard()->isBusy());
    QTest::mouseClick(key(screen, "Pull"), Qt::LeftButton);
    QTRY_COMPARE(moves.size(), 2);
    QVERIFY(!stick.isPresent());
    QTRY_VERIFY(shows(screen, "Stick: out"));
}

void TestFilesScreen::arrivingStickIsCheckedOnce()
{
    writeFile(m_folder + "/a b.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    ModalDriver driver;
    driver.then([](QWidget *question) {
        QVERIFY(question->findChild<QLabel *>("thing")->text().contains("a b.cnc"));
        QTest::mouseClick(question->findChild<QPushButton *>("answer0"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(shows(screen, "Unsafe names: 1"));
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QTRY_VERIFY(!screen.guard()->isBusy());
    QVERIFY2(driver.finished(), driver.report());

    driver.then([](QWidget *question) {
        QTest::mouseClick(question->findChild<QPushButton *>("answer1"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "Rename"), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(QDir(m_folder).entryList(QDir::Files), QStringList("a_b.cnc"));
    QTRY_VERIFY(!key(screen, "Rename")->isEnabled());
}

void TestFilesScreen::stickOfTheSystemIsSeenToComeAndGo()
{
    Stick stick;
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QVERIFY(QDir().rmdir(Stick::mountPoint()));
    QVERIFY(QFile::link(m_folder, Stick::mountPoint()));
    writeFile(Stick::marker(), "in");
    // What is not known yet is no change.
    screen.showDevices(DeviceState());
    QCOMPARE(told.size(), 0);
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QTRY_COMPARE(told.size(), 1);
    QTRY_VERIFY(shows(screen, "Stick: in, files: 0"));
    QFile::remove(Stick::marker());
    screen.showDevices(DeviceWatch::lookAt(home(), programDir()));
    QTRY_VERIFY(shows(screen, "Stick: out"));
    QCOMPARE(told.size(), 1);
}

void TestFilesScreen::stickThatCannotBePluggedIsTold()
{
    writeFile("/mnt/Storage/real.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTest::mouseClick(key(screen, "Plug"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    const QString text = told.at(0).at(0).toString();
    QVERIFY2(text.contains("/mnt/Storage") && text.contains("./run --stick"), qPrintable(text));
    QTRY_VERIFY(key(screen, "Plug")->isEnabled());
}

QString TestFilesScreen::pictureWords(const FilesScreen &screen)
{
    const QLabel *words = screen.picture()->findChild<QLabel *>("pictureWords");
    return words->isVisible() ? words->text() : QString();
}

/// By the library's browser, which lists the folder that the screen begins with.
void TestFilesScreen::pick(FilesScreen *screen, const QString &name)
{
    ModalDriver driver;
    driver.then([name](QWidget *dialog) {
        const QWidgetList all = dialog->findChildren<QWidget *>();
        for (QWidget *widget : all) {
            QLabel *line = qobject_cast<QLabel *>(widget);
            if (line && line->text() == name)
                QTest::mouseClick(line, Qt::LeftButton);
        }
        static_cast<QDialog *>(dialog)->accept();
    });
    QTest::mouseClick(key(*screen, "Browse"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
}

void TestFilesScreen::firstProgramIsLookedAtAtOnce()
{
    writeFile(programDir() + "/b.cnc", "G01\n");
    writeFile(programDir() + "/a.cnc", "; First\nG01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    QVERIFY(!key(screen, "Open")->isEnabled());
    screen.resize(1024, 500);
    screen.show();
    QVERIFY(pictureWords(screen).startsWith("Touch a program"));
    QTRY_COMPARE(screen.list()->chosen(), QString("a.cnc"));
    QCOMPARE(screen.chosenPath(), programDir() + "/a.cnc");
    QTRY_VERIFY(screen.facts()->text().startsWith("First\n3 lines"));
    QVERIFY(shows(screen, "a.cnc"));
    QVERIFY(key(screen, "Open")->isEnabled());
    // Without anybody who can check there is nothing to press.
    QVERIFY(!key(screen, "Check")->isEnabled());
}

void TestFilesScreen::chosenProgramIsShownWithFactsAndPicture()
{
    writeFile(programDir() + "/coil.cnc", SomeCoil::program(4, 40));
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    int asked = 0;
    screen.setProfile([&asked] {
        ++asked;
        return MachineProfile::forSamples();
    });
    screen.resize(1024, 500);
    screen.show();
    QTRY_VERIFY(screen.isUpToDate() && screen.picture()->view()->hasPicture());
    QVERIFY(asked > 0);
    QVERIFY2(screen.facts()->text().contains("160 turns"), qPrintable(screen.facts()->text()));
    QVERIFY2(screen.facts()->text().contains("Runs for"), qPrintable(screen.facts()->text()));
    QCOMPARE(pictureWords(screen), QString());
    // A small panel has the facts in a line, and the list for itself.
    screen.resize(480, 228);
    QTRY_VERIFY(!screen.picture()->isVisible());
    QTRY_VERIFY(!screen.facts()->text().contains('\n'));
    QVERIFY(screen.facts()->fontMetrics().horizontalAdvance(screen.facts()->text())
            <= screen.facts()->width());
}

void TestFilesScreen::programWithoutWireHasWords()
{
    writeFile(programDir() + "/a.cnc", "G00 X1\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(1024, 500);
    screen.show();
    QTRY_COMPARE(pictureWords(screen), QString("This program winds no wire."));
}

void TestFilesScreen::programThatIsTooLongHasWords()
{
    QFile file(programDir() + "/long.cnc");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(ProgramSummary::mostBytes + 1));
    file.close();
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(1024, 500);
    screen.show();
    QTRY_VERIFY2(pictureWords(screen).startsWith("Too long"), qPrintable(pictureWords(screen)));
    QVERIFY(key(screen, "Open")->isEnabled());
}

void TestFilesScreen::programThatGoesIsTold()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(1024, 500);
    screen.show();
    QTRY_VERIFY(key(screen, "Open")->isEnabled());
    QVERIFY(QFile::remove(programDir() + "/a.cnc"));
    screen.refreshStatus();
    QTRY_VERIFY(!key(screen, "Open")->isEnabled());
    QTRY_COMPARE(screen.facts()->text(), QString("There is no program of this name."));
    QVERIFY(shows(screen, "No programs yet."));
    QSignalSpy opened(&screen, SIGNAL(openWanted(QString)));
    Q_EMIT screen.list()->openWanted();
    QCOMPARE(opened.size(), 0);
}

void TestFilesScreen::openAsksTheHost()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy opened(&screen, SIGNAL(openWanted(QString)));
    QTRY_VERIFY(key(screen, "Open")->isEnabled());
    QTest::mouseClick(key(screen, "Open"), Qt::LeftButton);
    QTest::keyClick(screen.list()->table(), Qt::Key_Return);
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened.last().at(0).toString(), programDir() + "/a.cnc");
}

namespace {

/// A check of so many steps; each but the first two waits at the gate.
class GatedCheck : public ProgramInspection
{
public:
    GatedCheck(const ProgramVerdict &verdict, const std::shared_ptr<QSemaphore> &gate, int steps)
        : m_verdict(verdict), m_gate(gate), m_steps(steps)
    {}

    bool step() override
    {
        ++m_done;
        if (m_done > 2)
            m_gate->acquire();
        return m_done < m_steps;
    }
    int percent() const override { return 100 * m_done / m_steps; }
    ProgramVerdict verdict() const override { return m_verdict; }

private:
    const ProgramVerdict m_verdict;
    const std::shared_ptr<QSemaphore> m_gate;
    const int m_steps;
    int m_done = 0;
};

FilesScreen::Inspector gatedInspector(const std::shared_ptr<QSemaphore> &gate, int steps,
                                      const ProgramVerdict &verdict = ProgramVerdict())
{
    return [=](const QString &) { return std::make_shared<GatedCheck>(verdict, gate, steps); };
}

} // namespace

void TestFilesScreen::checkTellsWhatItFound_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("errors");
    QTest::addColumn<int>("warnings");
    QTest::addColumn<int>("tone");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << int(ProgramVerdict::Checked) << 0 << 0 << int(Message::Information)
                             << "a.cnc: nothing found.";
    QTest::newRow("errors") << int(ProgramVerdict::Checked) << 2 << 1 << int(Message::Alarm)
                            << "a.cnc: Errors: 2, warnings: 1. Open it to see where.";
    QTest::newRow("warnings") << int(ProgramVerdict::Checked) << 0 << 1 << int(Message::Warning)
                              << "a.cnc: Errors: 0, warnings: 1. Open it to see where.";
    QTest::newRow("no end") << int(ProgramVerdict::Unfinished) << 0 << 0 << int(Message::Warning)
                            << "a.cnc could not be checked to its end.";
}

void TestFilesScreen::checkTellsWhatItFound()
{
    QFETCH(int, state);
    QFETCH(int, errors);
    QFETCH(int, warnings);
    QFETCH(int, tone);
    QFETCH(QString, text);
    ProgramVerdict verdict;
    verdict.state = ProgramVerdict::State(state);
    verdict.errors = errors;
    verdict.warnings = warnings;
    writeFile(programDir() + "/a.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.setInspector(gatedInspector(std::make_shared<QSemaphore>(), 2, verdict));
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_VERIFY(key(screen, "Check")->isEnabled());
    QTest::mouseClick(key(screen, "Check"), Qt::LeftButton);
    QVERIFY(!key(screen, "Check")->isEnabled());
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), text);
    QCOMPARE(int(told.at(0).at(1).value<Message::Tone>()), tone);
    QVERIFY(key(screen, "Check")->isEnabled());
}

void TestFilesScreen::checkIsShownAndStopped()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.setInspector(gatedInspector(gate, 1000));
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QSignalSpy worked(&screen, SIGNAL(worked(QString, int, QString)));
    QSignalSpy ended(&screen, SIGNAL(workEnded(QString)));
    QTRY_VERIFY(key(screen, "Check")->isEnabled());
    QTest::mouseClick(key(screen, "Check"), Qt::LeftButton);
    // What is over soon is not worth a look.
    const auto goesOn = [&] {
        gate->release();
        return !worked.isEmpty();
    };
    QTRY_VERIFY(goesOn());
    QCOMPARE(worked.last().at(2).toString(), QString("check"));
    QVERIFY2(worked.last().at(0).toString().startsWith("a.cnc is checked: "),
             qPrintable(worked.last().at(0).toString()));
    screen.stopWork("check");
    gate->release(2000);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("The check of a.cnc was stopped."));
    QCOMPARE(ended.last().at(0).toString(), QString("check"));
    QVERIFY(key(screen, "Check")->isEnabled());
}

void TestFilesScreen::checkOfADiskThatHangsIsGivenUp()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.setInspector(gatedInspector(gate, 1000));
    screen.setPatience(200);
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_VERIFY(key(screen, "Check")->isEnabled());
    LoopPulse pulse;
    QTest::mouseClick(key(screen, "Check"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(told.at(0).at(0).toString().contains("does not answer"),
             qPrintable(told.at(0).at(0).toString()));
    QVERIFY(key(screen, "Check")->isEnabled());
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    gate->release(2000);
}

void TestFilesScreen::readingIsShownAndStopped()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(1024, 500);
    screen.show();
    QTRY_VERIFY(screen.isUpToDate() && !screen.chosenPath().isEmpty());
    QSignalSpy worked(&screen, SIGNAL(worked(QString, int, QString)));
    QSignalSpy ended(&screen, SIGNAL(workEnded(QString)));
    // As a disk that takes its time would have it.
    const auto goesOn = [&] {
        Q_EMIT screen.facts()->progressed(40);
        return !worked.isEmpty();
    };
    QVERIFY(!goesOn());
    QTRY_VERIFY(goesOn());
    QCOMPARE(worked.last().at(0).toString(), QString("a.cnc is read: 40 %"));
    QCOMPARE(worked.last().at(1).toInt(), 40);
    const QString work = worked.last().at(2).toString();
    Q_EMIT screen.facts()->settled();
    QCOMPARE(ended.last().at(0).toString(), work);
    // A program of 8 MB is stopped in its midst.
    writeFile(programDir() + "/a.cnc", QByteArray("G01 X1 Y2 Z3\n").repeated(600000));
    screen.facts()->tell("a.cnc");
    const QMetaObject::Connection stopping =
        connect(screen.facts(), &PickerFacts::progressed, &screen,
                [&screen, work] { screen.stopWork(work); });
    QTRY_COMPARE(screen.facts()->text(), QString("Not read to its end: it was stopped."));
    disconnect(stopping);
    QCOMPARE(pictureWords(screen), QString());
}

void TestFilesScreen::worksAtOnceAreStoppedOneByOne()
{
    const QString path = programDir() + "/a.cnc";
    writeFile(path, QByteArray("G01 X1\n").repeated(200000));
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.setInspector(gatedInspector(gate, 5));
    screen.show();
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    QTRY_VERIFY(key(screen, "Check")->isEnabled() && !m_history->versions().isEmpty());
    QTest::mouseClick(key(screen, "Check"), Qt::LeftButton);
    m_history->restore(m_history->versions().first());
    QVERIFY(screen.isWorking());
    screen.stopWork();
    QTRY_VERIFY(!screen.isWorking());
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(0).toString(), QString("Stopped. a.cnc is as it was."));
    // The check goes on.
    QVERIFY(!key(screen, "Check")->isEnabled());
    gate->release(10);
    QTRY_COMPARE(told.size(), 2);
    QVERIFY(key(screen, "Check")->isEnabled());
}

void TestFilesScreen::programOnTheStickIsLookedAt()
{
    writeFile(m_folder + "/theirs.cnc", SomeCoil::program(4, 40));
    writeFile(programDir() + "/own.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.setInspector(gatedInspector(std::make_shared<QSemaphore>(), 2));
    screen.resize(1024, 500);
    screen.show();
    screen.plug();
    QTRY_VERIFY(shows(screen, "Stick: in, files: 1"));
    QTRY_VERIFY(!screen.guard()->isBusy());
    pick(&screen, "theirs.cnc");
    QCOMPARE(screen.chosenPath(), Stick::mountPoint() + "/theirs.cnc");
    QVERIFY(shows(screen, Stick::mountPoint() + "/theirs.cnc"));
    QTRY_VERIFY2(screen.facts()->text().contains("160 turns"), qPrintable(screen.facts()->text()));
    QTRY_VERIFY(screen.picture()->view()->hasPicture());
    // What is on the stick goes through the import, with its questions.
    QVERIFY(!key(screen, "Open")->isEnabled());
    QVERIFY(key(screen, "Check")->isEnabled());
    QVERIFY(screen.list()->table()->selectedItems().isEmpty());
    screen.pull();
    QTRY_COMPARE(screen.facts()->text(), QString("There is no program of this name."));
    QVERIFY(!screen.picture()->view()->hasPicture());
    screen.list()->choose("own.cnc");
    QCOMPARE(screen.chosenPath(), programDir() + "/own.cnc");
    QTRY_VERIFY(screen.facts()->text().startsWith("2 lines"));
}

void TestFilesScreen::ownProgramThatIsPickedIsChosen()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    writeFile(programDir() + "/coil.cnc", "G01\nG01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(1024, 500);
    screen.show();
    QTRY_COMPARE(screen.list()->chosen(), QString("a.cnc"));
    pick(&screen, "coil.cnc");
    QCOMPARE(screen.list()->chosen(), QString("coil.cnc"));
    QCOMPARE(screen.chosenPath(), programDir() + "/coil.cnc");
    QVERIFY(key(screen, "Open")->isEnabled());
}

void TestFilesScreen::folderThatIsPickedIsNoProgram()
{
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(1024, 500);
    screen.show();
    screen.lookAt(home());
    QTRY_COMPARE(screen.facts()->text(), QString("This is no program file."));
    QVERIFY(!key(screen, "Open")->isEnabled());
}

void TestFilesScreen::stateIsToldInFullByATouch()
{
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(480, 228);
    screen.show();
    QTRY_VERIFY(shows(screen, "Stick: out"));
    QTRY_VERIFY(shows(screen, "Programs: 0, "));
    QSignalSpy told(&screen, SIGNAL(explained(QString)));
    TapArea *state = screen.findChild<TapArea *>();
    QTest::mouseClick(state->findChild<QLabel *>("fileState"), Qt::LeftButton);
    QCOMPARE(told.size(), 1);
    const QString text = told.takeLast().at(0).toString();
    for (const QString &part : {QString("Programs: 0, "), programDir(), QString("Stick: out"),
                                m_folder, QString("All names are safe")})
        QVERIFY2(text.contains(part), qPrintable(text));
    writeFile(programDir() + "/a b.cnc", "G01\n");
    screen.refreshStatus();
    QTRY_VERIFY(shows(screen, "Unsafe names: 1"));
    QTest::mouseClick(state, Qt::LeftButton);
    QVERIFY(told.takeLast().at(0).toString().contains("not safe: 1"));
    // A finger that slides off changes its mind.
    QTest::mousePress(state, Qt::LeftButton);
    QTest::mouseRelease(state, Qt::LeftButton, Qt::NoModifier, QPoint(-9, 0));
    QVERIFY(told.isEmpty());
}

void TestFilesScreen::cancelledPickChangesNothing()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QTRY_COMPARE(screen.list()->chosen(), QString("a.cnc"));
    ModalDriver driver;
    driver.reject();
    QTest::mouseClick(key(screen, "Browse"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(screen.chosenPath(), programDir() + "/a.cnc");
}

void TestFilesScreen::importKeyAsksTheHost()
{
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QSignalSpy wanted(&screen, SIGNAL(importWanted()));
    QTest::mouseClick(key(screen, "I/E"), Qt::LeftButton);
    QCOMPARE(wanted.size(), 1);
}

void TestFilesScreen::panelsOwnStickHasNoKeys()
{
    Stick stick;
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QVERIFY(!key(screen, "Plug")->isVisible());
    QVERIFY(!key(screen, "Pull")->isVisible());
}

void TestFilesScreen::historyKeyBringsBackARemovedProgram()
{
    const QString path = programDir() + "/coil.cnc";
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    QVERIFY(!key(screen, "History")->isEnabled());
    writeFile(path, "G01\n");
    QTRY_VERIFY(key(screen, "History")->isEnabled());
    QVERIFY(QFile::remove(path));
    QSignalSpy told(&screen, SIGNAL(told(QString, Message::Tone, QString)));
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        dialog->findChild<QTableWidget *>()->selectRow(0);
        QTest::mouseClick(dialog->findChild<QPushButton *>("restore"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "History"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Information);
    QCOMPARE(readFile(path), QByteArray("G01\n"));
}

void TestFilesScreen::closedHistoryBringsNothingBack()
{
    const QString path = programDir() + "/coil.cnc";
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.show();
    writeFile(path, "G01\n");
    QTRY_VERIFY(key(screen, "History")->isEnabled());
    QVERIFY(QFile::remove(path));
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        dialog->findChild<QTableWidget *>()->selectRow(0);
        QTest::mouseClick(dialog->findChild<QPushButton *>("close"), Qt::LeftButton);
    });
    QTest::mouseClick(key(screen, "History"), Qt::LeftButton);
    QVERIFY2(driver.finished(), driver.report());
    m_history->scan();
    QTRY_VERIFY(m_history->isSettled());
    QVERIFY(!QFileInfo(path).exists());
}

void TestFilesScreen::foldersAreLookedAtWhileTheScreenIsUp()
{
    const std::shared_ptr<QAtomicInt> looks = std::make_shared<QAtomicInt>();
    FilesScreen::Looks counted = FilesScreen::usualLooks();
    const FolderWatch::Probe usual = counted.programs;
    counted.programs = [looks, usual] {
        // Never in the thread of the screen.
        if (QThread::currentThread() == qApp->thread())
            looks->fetchAndAddOrdered(1000);
        looks->ref();
        return usual();
    };
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data(), counted);
    QSignalSpy versions(m_history.data(), SIGNAL(versionsChanged()));
    writeFile(programDir() + "/coil.cnc", "G01\n");
    m_history->scan();
    QTRY_VERIFY(!versions.isEmpty());
    screen.refreshStatus();
    QCoreApplication::processEvents();
    QCOMPARE(looks->loadAcquire(), 0);
    screen.show();
    QTRY_VERIFY(shows(screen, "Programs: 1, "));
    const int before = looks->loadAcquire();
    QVERIFY(before >= 1 && before < 1000);
    screen.refreshStatus();
    QTRY_COMPARE(looks->loadAcquire(), before + 1);
    screen.hide();
    screen.refreshStatus();
    versions.clear();
    writeFile(programDir() + "/coil.cnc", "G02\n");
    m_history->scan();
    QTRY_VERIFY(!versions.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(looks->loadAcquire(), before + 1);
}

void TestFilesScreen::stickThatHangsStopsNothing()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    FilesScreen::Looks hung = FilesScreen::usualLooks();
    hung.stick = [gate] {
        gate->acquire();
        FolderState state;
        state.isKnown = true;
        state.isThere = true;
        state.files = 7;
        return state;
    };
    writeFile(programDir() + "/coil.cnc", "G01\n");
    Stick stick(m_folder);
    LoopPulse pulse;
    FilesScreen screen(&stick, m_history.data(), hung);
    screen.setPatience(200);
    screen.show();
    QVERIFY(shows(screen, "Stick: looking ..."));
    // What can be known is shown.
    QTRY_VERIFY(shows(screen, "Programs: 1, "));
    QTRY_VERIFY(shows(screen, "The stick does not answer."));
    for (int i = 0; i < 20; ++i)
        screen.refreshStatus();
    screen.hide();
    screen.show();
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    gate->release(100);
    QTRY_VERIFY(shows(screen, "Stick: in, files: 7"));
    QVERIFY(!shows(screen, "does not answer"));
}

void TestFilesScreen::fits_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("480x272") << QSize(480, 228);
    QTest::newRow("272x480") << QSize(272, 360);
    QTest::newRow("1024x600") << QSize(1024, 520);
    QTest::newRow("480x800") << QSize(480, 670);
    QTest::newRow("800x480") << QSize(800, 405);
}

void TestFilesScreen::fits()
{
    QFETCH(QSize, size);
    Stick stick(m_folder);
    FilesScreen screen(&stick, m_history.data());
    screen.resize(size);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    QCOMPARE(screen.size(), size);
    const QList<PanelKey *> keys = screen.findChildren<PanelKey *>();
    for (PanelKey *key : keys) {
        QVERIFY(screen.rect().contains(QRect(key->mapTo(&screen, QPoint(0, 0)), key->size())));
        QVERIFY(key->height() >= 34);
    }
    // Three programs can be seen at once.
    QVERIFY(screen.list()->height() >= 3 * 34);
    QCOMPARE(screen.picture()->isVisible(), size.height() >= 400);
}

FILARIX_TEST_MAIN(TestFilesScreen)
#include "tst_filesscreen.moc"
