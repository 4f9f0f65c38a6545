// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/hostcompat.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "filecalls.h"
#include "guards/programguard.h"
#include "heldfile.h"
#include "modaldriver.h"
#include "programwindow.h"
#include "scriptquestioner.h"
#include "signalhook.h"

#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolButton>

#include <atomic>
#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A file may not grow any more, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit small = {bytes, m_old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() { end(); }
    void end() { ::setrlimit(RLIMIT_FSIZE, &m_old); }

private:
    rlimit m_old;
};

// Files that hold something else by the time at which they are read back.
class DecayingDisk
{
public:
    explicit DecayingDisk(const QByteArray &first, const QByteArray &second = QByteArray())
    {
        FileCalls::beforeSync = [this, first, second](const QByteArray &path) {
            if (path == first || path == second)
                decay(path);
        };
    }
    ~DecayingDisk() { FileCalls::reset(); }

    int decays() const { return m_decays; }

private:
    Q_DISABLE_COPY(DecayingDisk)

    void decay(const QByteArray &path)
    {
        const int handle = ::open(path.constData(), O_WRONLY);
        m_decays += handle >= 0 && ::pwrite(handle, "X", 1, 0) == 1;
        ::close(handle);
    }

    std::atomic<int> m_decays{0};
};

QByteArray numbered(int lines, const QByteArray &end = "\n")
{
    QByteArray bytes;
    for (int i = 1; i <= lines; ++i)
        bytes += "G01 X" + QByteArray::number(i) + end;
    return bytes;
}

} // namespace

class TestProgramGuard : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void openingEndsWithNothingToUndo_data();
    void openingEndsWithNothingToUndo();
    void manyEditsAfterOpeningStayChanges();
    void openingTellsWhatIsLeftOut_data();
    void openingTellsWhatIsLeftOut();
    void firstSaveOverACleanedProgramAsks_data();
    void firstSaveOverACleanedProgramAsks();
    void otherNameLeavesTheCleanedFileAlone();
    void partOfAProgramIsNeverSavedNorSent();
    void partGetsANameOfItsOwn();
    void screenIsHeldWhileAProgramIsLoaded();
    void failedOpeningIsNoLeaveToEmptyTheFile();

    void successIsToldAfterReadingBack();
    void writeErrorIsToldAndTheDocumentIsModifiedAgain_data();
    void writeErrorIsToldAndTheDocumentIsModifiedAgain();
    void tryingAgainStoresAllOfIt();
    void whatIsWrittenAgainIsReadBack();
    void whatTheStickHoldsIsReadBack();
    void savingElsewhereLeavesTheDocumentModified();
    void stickThatWasPulledMeanwhileGetsNothing();
    void newCommandWaitsForAStoredSave_data();
    void newCommandWaitsForAStoredSave();
    void commandThatTheBarHidesIsGivenAllTheSame();
    void commandThatTheBarHidesWhileItWaitsIsGivenAllTheSame();
    void refusedFileIsTheLibrarysToTell();
    void saveOverAFileThatHasChangedAsks_data();
    void saveOverAFileThatHasChangedAsks();
    void fileThatIsGoneIsSavedUnasked();
    void replacedCharactersAreToldAfterTryingAgain();
    void hangingStorageIsToldAndTheScreenAnswers();

    void savingANewProgramProposesAFreeName();
    void savingAsProposesTheOwnName();
    void bareNameGetsASuffixProposed();
    void coveringAnotherProgramAsks_data();
    void coveringAnotherProgramAsks();
    void namesThatLeadElsewhereAreRefused_data();
    void namesThatLeadElsewhereAreRefused();

    void everyWayToAWriteWaitsForTheHistory_data();
    void everyWayToAWriteWaitsForTheHistory();
    void whatTheHistoryCannotKeepIsAskedAbout_data();
    void whatTheHistoryCannotKeepIsAskedAbout();
    void removingWithUnsavedChangesAsks();
    void failedRemovalIsTold();

private:
    QToolButton *button(const QString &text) const { return m_program->button(text); }
    void press(const QString &text) { m_program->press(text); }
    void open(const QString &name);
    static void pick(QWidget *dialog, const QString &name) { ProgramWindow::pick(dialog, name); }
    static QString hint(QWidget *dialog) { return dialog->findChild<QLabel *>("hint")->text(); }
    static void giveUp(QWidget *dialog) { static_cast<QDialog *>(dialog)->reject(); }
    QTextDocument *document() const { return m_program->document(); }
    QString path(const QString &name) const { return programDir() + '/' + name; }
    bool wasTold(const QString &part, Message::Tone tone) const;

    QScopedPointer<ProgramWindow> m_program;
    WMMainWindow *m_window = nullptr;
    QScopedPointer<ScriptQuestioner> m_questioner;
    QScopedPointer<ProgramGuard> m_guard;
    QScopedPointer<QSignalSpy> m_told;
};

void TestProgramGuard::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    programDir();
    m_program.reset(new ProgramWindow);
    m_window = m_program->window();
    m_questioner.reset(new ScriptQuestioner);
    m_guard.reset(new ProgramGuard(m_window, programDir(), m_questioner.data()));
    m_told.reset(new QSignalSpy(m_guard.data(), SIGNAL(told(QString, Message::Tone, QString))));
    m_window->show();
}

void TestProgramGuard::cleanup()
{
    m_told.reset();
    m_guard.reset();
    m_program.reset();
    FilarixTest::cleanup();
}

void TestProgramGuard::open(const QString &name)
{
    ModalDriver driver;
    driver.then([name](QWidget *dialog) { pick(dialog, name); });
    press("Open");
    QTRY_COMPARE(m_window->getCurrentFile(), path(name));
    QTRY_VERIFY(!m_guard->isBusy());
    QVERIFY2(driver.finished(), driver.report());
}

bool TestProgramGuard::wasTold(const QString &part, Message::Tone tone) const
{
    for (const QList<QVariant> &message : *m_told) {
        if (message.at(0).toString().contains(part) && message.at(1).value<Message::Tone>() == tone)
            return true;
    }
    return false;
}

void TestProgramGuard::openingEndsWithNothingToUndo_data()
{
    QTest::addColumn<int>("lines");
    QTest::newRow("short") << 20;
    QTest::newRow("long") << 620;
}

// 501 lines became 491, and the next save stored that.
void TestProgramGuard::openingEndsWithNothingToUndo()
{
    QFETCH(int, lines);
    writeFile(path("coil.cnc"), numbered(lines));
    open("coil.cnc");
    const QString shown = document()->toPlainText();
    QVERIFY(!document()->isUndoAvailable());
    QVERIFY(!document()->isModified());
    document()->undo();
    QCOMPARE(document()->toPlainText(), shown);
    m_window->insertLine("G99");
    document()->undo();
    document()->undo();
    QCOMPARE(document()->toPlainText(), shown);
    QVERIFY(!document()->isModified());
}

// The loader's 50 steps are gone; 50 steps of the operator must not count as none.
void TestProgramGuard::manyEditsAfterOpeningStayChanges()
{
    writeFile(path("coil.cnc"), numbered(620));
    open("coil.cnc");
    for (int i = 0; i < 120; ++i) {
        m_window->insertLine("G99");
        QVERIFY2(document()->isModified(), qPrintable(QString::number(i)));
    }
}

void TestProgramGuard::openingTellsWhatIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("line");
    QTest::newRow("short") << QByteArray("; head\n\nG01\n") << int(ProgramState::Plain)
                           << QString();
    QTest::newRow("long and clean") << numbered(700) << int(ProgramState::Plain) << QString();
    QTest::newRow("long with comments")
        << QByteArray("; head\n\n") + numbered(600, " ; tail\n") << int(ProgramState::Cleaned)
        << "603 lines in the file, 600 shown: no comments, no empty lines";
    QTest::newRow("characters that are shown as others")
        << QByteArray("G01\xc2\xa0X1\n") << int(ProgramState::Different)
        << "Not as in the file: it has characters that cannot be shown, or has changed";
}

void TestProgramGuard::openingTellsWhatIsLeftOut()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, kind);
    QFETCH(QString, line);
    writeFile(path("coil.cnc"), bytes);
    open("coil.cnc");
    QCOMPARE(int(m_guard->state().kind), kind);
    QCOMPARE(m_guard->state().line(), line);
}

void TestProgramGuard::firstSaveOverACleanedProgramAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("cancel") << 0 << false;
    QTest::newRow("without them") << 1 << true;
}

void TestProgramGuard::firstSaveOverACleanedProgramAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, isWritten);
    const QByteArray bytes = numbered(600, " ; tail\n");
    writeFile(path("coil.cnc"), bytes);
    open("coil.cnc");
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    m_questioner->answers = {answer};
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(ended.at(0).at(0).toBool(), isWritten);
    QCOMPARE(m_questioner->asked.size(), 1);
    QVERIFY(m_questioner->asked.at(0).text.contains("600 are shown"));
    QCOMPARE(readFile(path("coil.cnc")) == bytes, !isWritten);
    QCOMPARE(int(m_guard->state().kind),
             int(isWritten ? ProgramState::Plain : ProgramState::Cleaned));
    if (!isWritten)
        return;
    // Not again.
    press("Save");
    QTRY_COMPARE(ended.size(), 2);
    QCOMPARE(m_questioner->asked.size(), 1);
}

void TestProgramGuard::otherNameLeavesTheCleanedFileAlone()
{
    const QByteArray bytes = numbered(600, " ; tail\n");
    writeFile(path("coil.cnc"), bytes);
    open("coil.cnc");
    m_questioner->answers = {2};
    ModalDriver driver;
    driver.then([](QWidget *dialog) { pick(dialog, "other.cnc"); });
    press("Save");
    QTRY_VERIFY(wasTold("other.cnc saved, 600 lines.", Message::Information));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(path("coil.cnc")), bytes);
    QCOMPARE(readFile(path("other.cnc")).count('\n'), 599);
}

// 799,944 lines became 175,989.
void TestProgramGuard::partOfAProgramIsNeverSavedNorSent()
{
    const QByteArray bytes = numbered(1000);
    writeFile(path("coil.cnc"), bytes);
    open("coil.cnc");
    // What an abort leaves: whole pieces of the front part, and a clean document.
    WGCodeEditer *editor = m_window->findChild<WGCodeEditer *>();
    QScopedPointer<SignalHook> abort(
        new SignalHook(editor, SIGNAL(blockCountChanged(int)), [](int count) {
            const QWidgetList topLevels = QApplication::topLevelWidgets();
            for (QWidget *widget : topLevels) {
                QProgressDialog *progress = qobject_cast<QProgressDialog *>(widget);
                if (progress && count > 100)
                    progress->cancel();
            }
        }));
    ModalDriver driver;
    driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
    driver.press(QMessageBox::Yes);
    press("Open");
    QTRY_COMPARE(int(m_guard->state().kind), int(ProgramState::Incomplete));
    abort.reset();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(document()->blockCount() < 500);
    QVERIFY(!document()->isUndoAvailable());
    QVERIFY(m_guard->state().line().startsWith("Incomplete: 1001 lines in the file"));

    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    QSignalSpy sent(m_window, SIGNAL(signal_download(QString)));
    m_window->insertLine("G99");
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(wasTold("Only a part of coil.cnc is here", Message::Warning));
    m_told->clear();
    press("D/L");
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(wasTold("Only a part of coil.cnc is here", Message::Warning));
    QVERIFY(!m_guard->mayDownload(path("coil.cnc")));
    // Nor by the Save of a question.
    driver.press(QMessageBox::Save);
    press("New");
    QTRY_COMPARE(ended.size(), 2);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(sent.size(), 0);
    QCOMPARE(readFile(path("coil.cnc")), bytes);
    QCOMPARE(m_window->getCurrentFile(), path("coil.cnc"));

    // Opened anew it is whole.
    document()->setModified(false);
    driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
    driver.press(QMessageBox::Yes);
    press("Open");
    QTRY_COMPARE(int(m_guard->state().kind), int(ProgramState::Plain));
    QCOMPARE(document()->blockCount(), 1000);
}

void TestProgramGuard::partGetsANameOfItsOwn()
{
    writeFile(path("coil.cnc"), "G01\n");
    writeFile(path("coil-part.cnc"), "G02\n");
    open("coil.cnc");
    // The file has grown meanwhile, the reading of it fails.
    QFile::remove(path("coil.cnc"));
    ::mkdir(QFile::encodeName(path("coil.cnc")), 0700);
    ModalDriver driver;
    driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    press("Open");
    QTRY_COMPARE(int(m_guard->state().kind), int(ProgramState::Incomplete));
    QVERIFY2(driver.finished(), driver.report());
    ::rmdir(QFile::encodeName(path("coil.cnc")));
    writeFile(path("coil.cnc"), "G01\n");
    QString proposed;
    driver.then([&](QWidget *dialog) {
        QTRY_COMPARE(dialog->findChild<QLineEdit *>()->text(), QString("coil-part_2.cnc"));
        // The whole file is covered by the part only if the operator says so.
        pick(dialog, "coil.cnc");
        QTRY_COMPARE(m_questioner->asked.size(), 1);
        giveUp(dialog);
    });
    press("SaveAs");
    QTRY_VERIFY(!m_guard->isBusy());
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_COMPARE(readFile(path("coil.cnc")), QByteArray("G01\n"));
}

void TestProgramGuard::screenIsHeldWhileAProgramIsLoaded()
{
    const QByteArray bytes = numbered(1000);
    writeFile(path("coil.cnc"), bytes);
    bool isPressed = false;
    QSignalSpy sent(m_window, SIGNAL(signal_download(QString)));
    const SignalHook hook(m_window->findChild<WGCodeEditer *>(), SIGNAL(blockCountChanged(int)),
                          [&](int count) {
                              if (isPressed || count < 100)
                                  return;
                              isPressed = true;
                              for (const char *key : {"New", "Open", "RM", "Save", "SaveAs", "D/L"})
                                  press(key);
                          });
    open("coil.cnc");
    QVERIFY(isPressed);
    QCOMPARE(m_told->size(), 6);
    QVERIFY(wasTold("is being loaded", Message::Warning));
    QCOMPARE(sent.size(), 0);
    QCOMPARE(document()->blockCount(), 1000);
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::Plain));
    QCOMPARE(readFile(path("coil.cnc")), bytes);
}

// The library leaves an empty editor under the old name.
void TestProgramGuard::failedOpeningIsNoLeaveToEmptyTheFile()
{
    writeFile(path("coil.cnc"), "G01\n");
    writeFile(path("locked.cnc"), "G02\n");
    ::chmod(QFile::encodeName(path("locked.cnc")), 0);
    open("coil.cnc");
    ModalDriver driver;
    driver.then([](QWidget *dialog) { pick(dialog, "locked.cnc"); });
    driver.press(QMessageBox::Ok);
    press("Open");
    QTRY_COMPARE(int(m_guard->state().kind), int(ProgramState::Incomplete));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_window->getCurrentFile(), path("coil.cnc"));
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(readFile(path("coil.cnc")), QByteArray("G01\n"));
}

void TestProgramGuard::successIsToldAfterReadingBack()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    press("Save");
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(wasTold("coil.cnc saved, 3 lines.", Message::Information));
    QVERIFY(!document()->isModified());
    QVERIFY(m_questioner->asked.isEmpty());
}

void TestProgramGuard::writeErrorIsToldAndTheDocumentIsModifiedAgain_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("save") << "Save";
    QTest::newRow("save as") << "SaveAs";
}

void TestProgramGuard::writeErrorIsToldAndTheDocumentIsModifiedAgain()
{
    QFETCH(QString, command);
    writeFile(path("coil.cnc"), numbered(2000));
    open("coil.cnc");
    m_window->insertLine("G99");
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    {
        const FullDisk full(8192);
        ModalDriver driver;
        if (command == "SaveAs")
            driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
        press(command);
        QTRY_COMPARE(ended.size(), 1);
    }
    QVERIFY(!ended.at(0).at(0).toBool());
    QVERIFY(document()->isModified());
    QVERIFY(wasTold("coil.cnc is not stored: File too large.", Message::Alarm));
    QVERIFY(!wasTold("saved", Message::Information));
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::NotStored));
    QCOMPARE(m_questioner->asked.size(), 1);
    QCOMPARE(m_questioner->asked.at(0).answers.size(), 2);
    // What the disk holds is not for the machine.
    QVERIFY(!m_guard->mayDownload(path("coil.cnc")));
}

void TestProgramGuard::tryingAgainStoresAllOfIt()
{
    writeFile(path("coil.cnc"), numbered(2000));
    open("coil.cnc");
    m_window->insertLine("G99");
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    FullDisk full(8192);
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    // On the full disk, what is left of the file is not written to once more.
    press("Save");
    QTRY_COMPARE(ended.size(), 2);
    full.end();
    m_told->clear();
    press("Save");
    QTRY_COMPARE(ended.size(), 3);
    QVERIFY(ended.at(2).at(0).toBool());
    QCOMPARE(QString::fromUtf8(readFile(path("coil.cnc"))), document()->toPlainText());
    QVERIFY(!document()->isModified());
    QVERIFY(wasTold("coil.cnc saved, 2001 lines.", Message::Information));
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::Plain));
}

// A disk that keeps other bytes than it was given, and says nothing of it.
void TestProgramGuard::whatIsWrittenAgainIsReadBack()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    const QByteArray target = QFile::encodeName(path("coil.cnc"));
    const DecayingDisk disk(target);
    m_questioner->answers = {1, 1, 0};
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(!ended.first().first().toBool());
    // Once as the library wrote it, and twice by the answer.
    QCOMPARE(disk.decays(), 3);
    QCOMPARE(m_questioner->asked.size(), 3);
    for (const Question &question : m_questioner->asked)
        QVERIFY2(question.plainText().contains("the file holds something else than the editor"),
                 qPrintable(question.plainText()));
    QVERIFY(document()->isModified());
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::NotStored));
    QVERIFY(!wasTold("saved", Message::Information));
    QVERIFY(!m_guard->mayDownload(path("coil.cnc")));
}

void TestProgramGuard::whatTheStickHoldsIsReadBack()
{
    const QString stick = home() + "/stick";
    QVERIFY(QDir().mkpath(stick));
    m_guard->setOtherPlace([stick] { return stick; });
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    const DecayingDisk disk(QFile::encodeName(path("coil.cnc")),
                            QFile::encodeName(stick + "/coil.cnc"));
    m_questioner->answers = {2, 0};
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(!ended.first().first().toBool());
    QCOMPARE(disk.decays(), 2);
    QCOMPARE(m_questioner->asked.size(), 2);
    QVERIFY2(m_questioner->asked.last().plainText().contains(
                 "neither here nor on the stick, whose file differs"),
             qPrintable(m_questioner->asked.last().text));
    QVERIFY(document()->isModified());
    QVERIFY(!wasTold("is on the stick", Message::Warning));
}

void TestProgramGuard::savingElsewhereLeavesTheDocumentModified()
{
    // A folder takes the file's place after the library wrote it: the panel's own place is lost.
    const QString stick = home() + "/stick";
    QVERIFY(QDir().mkpath(stick));
    writeFile(stick + "/coil.cnc", "another\n");
    m_guard->setOtherPlace([stick] { return stick; });
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    const SignalHook hook(document(), SIGNAL(modificationChanged(bool)), [this](int isModified) {
        if (isModified)
            return;
        QFile::remove(path("coil.cnc"));
    });
    m_questioner->answers = {2};
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(!ended.at(0).at(0).toBool());
    QCOMPARE(m_questioner->asked.at(0).answers.size(), 3);
    QCOMPARE(readFile(stick + "/coil.cnc"), QByteArray("another\n"));
    QCOMPARE(QString::fromUtf8(readFile(stick + "/coil_2.cnc")), document()->toPlainText());
    QVERIFY(document()->isModified());
    QVERIFY(wasTold("coil.cnc is on the stick as coil_2.cnc.", Message::Warning));
}

// The mount point stays behind, on the panel's own disk.
void TestProgramGuard::stickThatWasPulledMeanwhileGetsNothing()
{
    const QString stick = home() + "/stick";
    QVERIFY(QDir().mkpath(stick));
    std::atomic<int> looks{0};
    m_guard->setOtherPlace([stick, &looks] { return looks++ == 0 ? stick : QString(); });
    writeFile(path("coil.cnc"), numbered(2000));
    open("coil.cnc");
    m_window->insertLine("G99");
    m_questioner->answers = {2, 0};
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    {
        const FullDisk full(8192);
        press("Save");
        QTRY_COMPARE(ended.size(), 1);
    }
    QVERIFY(QDir(stick).entryList(QDir::Files | QDir::Hidden).isEmpty());
    QCOMPARE(m_questioner->asked.size(), 2);
    QVERIFY(m_questioner->asked.last().plainText().contains("the stick, which is out"));
    QVERIFY(document()->isModified());
    m_guard->setOtherPlace(std::function<QString()>());
}

void TestProgramGuard::newCommandWaitsForAStoredSave_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::newRow("stored") << false;
    QTest::newRow("full disk") << true;
}

// The library would clear the editor before anybody knew that the file holds nothing.
void TestProgramGuard::newCommandWaitsForAStoredSave()
{
    QFETCH(bool, isFull);
    writeFile(path("coil.cnc"), numbered(2000));
    open("coil.cnc");
    m_window->insertLine("G99");
    const QString text = document()->toPlainText();
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    FullDisk full(isFull ? 8192 : RLIM_INFINITY);
    ModalDriver driver;
    driver.press(QMessageBox::Save);
    press("New");
    QTRY_COMPARE(ended.size(), 1);
    QTRY_VERIFY(!m_guard->isBusy());
    QVERIFY2(driver.finished(), driver.report());
    if (isFull) {
        QCOMPARE(document()->toPlainText(), text);
        QVERIFY(document()->isModified());
    } else {
        QTRY_VERIFY(m_window->getCurrentFile().isEmpty());
        QVERIFY(document()->isEmpty());
        QCOMPARE(QString::fromUtf8(readFile(path("coil.cnc"))), text);
    }
}

// On a small panel the bar shows some of its buttons only, and the others are off.
void TestProgramGuard::commandThatTheBarHidesIsGivenAllTheSame()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    m_program->hideButton("Save");
    QVERIFY(!button("Save")->isEnabled());
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    m_guard->save();
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(ended.at(0).at(0).toBool());
    QVERIFY(!button("Save")->isEnabled());
    QCOMPARE(QString::fromUtf8(readFile(path("coil.cnc"))), document()->toPlainText());
}

void TestProgramGuard::refusedFileIsTheLibrarysToTell()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    ::chmod(QFile::encodeName(path("coil.cnc")), 0400);
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(document()->isModified());
    QCOMPARE(m_told->size(), 0);
}

// The bar was turned to its next page while the history took in what stood there.
void TestProgramGuard::commandThatTheBarHidesWhileItWaitsIsGivenAllTheSame()
{
    writeFile(path("coil.cnc"), "G01\n");
    m_guard->setHistory([this](const QString &, const ProgramKeeper::Kept &kept) {
        m_program->hideButton("Save");
        HostCompat::callLater(this, [kept] { kept(QString()); });
    });
    open("coil.cnc");
    m_window->insertLine("G99");
    press("Save");
    QTRY_VERIFY(wasTold("coil.cnc saved, 3 lines.", Message::Information));
    QVERIFY(!button("Save")->isEnabled());
}

void TestProgramGuard::saveOverAFileThatHasChangedAsks_data()
{
    QTest::addColumn<bool>("isReplaced");
    QTest::addColumn<int>("answer");
    for (bool isReplaced : {false, true}) {
        QTest::newRow(isReplaced ? "cancel, another file" : "cancel, the same file")
            << isReplaced << 0;
        QTest::newRow(isReplaced ? "as shown, another file" : "as shown, the same file")
            << isReplaced << 1;
    }
}

// Brought back from the history, imported or written by another machine while it was open.
void TestProgramGuard::saveOverAFileThatHasChangedAsks()
{
    QFETCH(bool, isReplaced);
    QFETCH(int, answer);
    const QByteArray others = "G02\nG03\nG04\n";
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    writeFile(path(isReplaced ? "new.cnc" : "coil.cnc"), others);
    if (isReplaced)
        QCOMPARE(::rename(QFile::encodeName(path("new.cnc")), QFile::encodeName(path("coil.cnc"))),
                 0);
    m_questioner->answers = {answer};
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(m_questioner->asked.size(), 1);
    QVERIFY(m_questioner->asked.first().text.contains("otherwise than the file"));
    QCOMPARE(readFile(path("coil.cnc")) == others, answer == 0);
    QCOMPARE(ended.first().first().toBool(), answer == 1);
    if (answer == 0) {
        QVERIFY(m_guard->state().line().contains("4 lines there, 3 shown"));
        return;
    }
    // Its own bytes are no change.
    m_window->insertLine("G98");
    press("Save");
    QTRY_COMPARE(ended.size(), 2);
    QCOMPARE(m_questioner->asked.size(), 1);
}

void TestProgramGuard::fileThatIsGoneIsSavedUnasked()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    QVERIFY(QFile::remove(path("coil.cnc")));
    press("Save");
    QTRY_VERIFY(wasTold("coil.cnc saved, 3 lines.", Message::Information));
    QVERIFY(m_questioner->asked.isEmpty());
    QVERIFY(QFileInfo(path("coil.cnc")).exists());
}

void TestProgramGuard::replacedCharactersAreToldAfterTryingAgain()
{
    writeFile(path("coil.cnc"), numbered(2000));
    open("coil.cnc");
    m_window->insertLine("G99");
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    {
        const FullDisk full(8192);
        press("Save");
        QTRY_COMPARE(ended.size(), 1);
    }
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::NotStored));
    m_window->insertLine(QString("G04 ") + QChar(0xd800));
    press("Save");
    QTRY_COMPARE(ended.size(), 2);
    QVERIFY(wasTold("has characters that the file cannot hold", Message::Warning));
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::Different));
}

// From the moment on at which the library has written the file.
void TestProgramGuard::hangingStorageIsToldAndTheScreenAnswers()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_guard->setStallTime(300);
    QScopedPointer<HeldFile> held;
    QScopedPointer<SignalHook> hang(
        new SignalHook(document(), SIGNAL(modificationChanged(bool)), [&](int isModified) {
            if (!isModified && !held)
                held.reset(new HeldFile(path("coil.cnc")));
        }));
    m_window->insertLine("G99");
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    LoopPulse pulse;
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(held && held->isHeld());
    QVERIFY(!ended.first().first().toBool());
    QVERIFY(
        wasTold("coil.cnc is not stored: the panel's storage stopped answering", Message::Alarm));
    QVERIFY(document()->isModified());
    QCOMPARE(int(m_guard->state().kind), int(ProgramState::NotStored));
    // The next one does not hang either.
    press("Save");
    QTRY_COMPARE(ended.size(), 2);
    QVERIFY(wasTold("The panel's storage does not answer.", Message::Warning));
    QVERIFY(pulse.longest() < 250);
    hang.reset();
    held.reset();
    press("Save");
    QTRY_COMPARE(ended.size(), 3);
    QVERIFY(ended.last().first().toBool());
    QVERIFY(!document()->isModified());
    QVERIFY(readFile(path("coil.cnc")).contains("G99"));
}

// The first program of the list was proposed: New, Edit, Save, OK covered it.
void TestProgramGuard::savingANewProgramProposesAFreeName()
{
    writeFile(path("coil5.cnc"), "G01\n");
    writeFile(path("Program.cnc"), "G01\n");
    m_window->insertLine("G99");
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QTRY_COMPARE(dialog->findChild<QLineEdit *>()->text(), QString("program_2.cnc"));
        dialog->findChildren<QPushButton *>().first()->click();
    });
    press("Save");
    QTRY_VERIFY(wasTold("program_2.cnc saved, 1 lines.", Message::Information));
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(readFile(path("program_2.cnc")), QByteArray("G99"));
    QVERIFY(m_questioner->asked.isEmpty());
}

void TestProgramGuard::savingAsProposesTheOwnName()
{
    writeFile(path("a.cnc"), "G01\n");
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QTRY_COMPARE(dialog->findChild<QLineEdit *>()->text(), QString("coil.cnc"));
        dialog->findChildren<QPushButton *>().first()->click();
    });
    press("SaveAs");
    QTRY_VERIFY(wasTold("coil.cnc saved, 2 lines.", Message::Information));
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(m_questioner->asked.isEmpty());
}

void TestProgramGuard::bareNameGetsASuffixProposed()
{
    m_window->insertLine("G99");
    ModalDriver driver;
    driver.then([this](QWidget *dialog) {
        QLineEdit *field = dialog->findChild<QLineEdit *>();
        QTRY_COMPARE(field->text(), QString("program.cnc"));
        pick(dialog, "rotor");
        QTRY_COMPARE(field->text(), QString("rotor.cnc"));
        QVERIFY(dialog->isVisible());
        QVERIFY(hint(dialog).startsWith(".cnc is now at the end of the name."));
        // Taken away again, it is let be.
        pick(dialog, "rotor");
        QTRY_VERIFY(!dialog->isVisible());
    });
    press("SaveAs");
    QTRY_VERIFY(wasTold("rotor saved", Message::Information));
    QVERIFY2(driver.finished(), driver.report());
    driver.then([this](QWidget *dialog) {
        QTRY_COMPARE(dialog->findChild<QLineEdit *>()->text(), QString("rotor"));
        pick(dialog, "stator");
        QTRY_COMPARE(dialog->findChild<QLineEdit *>()->text(), QString("stator.cnc"));
        QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
    });
    press("SaveAs");
    QTRY_VERIFY(wasTold("stator.cnc saved", Message::Information));
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList() << "rotor"
                                                                      << "stator.cnc");
}

void TestProgramGuard::coveringAnotherProgramAsks_data()
{
    QTest::addColumn<bool>("byReturn");
    QTest::addColumn<int>("answer");
    QTest::newRow("touch, cancel") << false << 0;
    QTest::newRow("Return, cancel") << true << 0;
    QTest::newRow("touch, write") << false << 1;
    QTest::newRow("Return, write") << true << 1;
}

void TestProgramGuard::coveringAnotherProgramAsks()
{
    QFETCH(bool, byReturn);
    QFETCH(int, answer);
    writeFile(path("coil5.cnc"), "G01\nG02\n");
    m_window->insertLine("G99");
    m_questioner->answers = {answer};
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        QLineEdit *field = dialog->findChild<QLineEdit *>();
        QTRY_COMPARE(field->text(), QString("program.cnc"));
        field->setText("coil5.cnc");
        if (byReturn)
            QTest::keyClick(field, Qt::Key_Return);
        else
            dialog->findChildren<QPushButton *>().first()->click();
        QTRY_COMPARE(m_questioner->asked.size(), 1);
        if (answer == 0) {
            QTRY_VERIFY(!m_guard->state().refusesSave());
            QVERIFY(dialog->isVisible());
            giveUp(dialog);
        }
    });
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    const QString text = m_questioner->asked.at(0).plainText();
    QVERIFY2(text.contains("3 lines") && text.contains("1 lines")
                 && text.contains(QDate::currentDate().toString("yyyy-MM-dd")),
             qPrintable(text));
    QCOMPARE(readFile(path("coil5.cnc")), QByteArray(answer ? "G99" : "G01\nG02\n"));
}

void TestProgramGuard::namesThatLeadElsewhereAreRefused_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("word");
    for (const char *command : {"SaveAs", "Open", "RM"}) {
        const QString row = QString(command) + ": ";
        QTest::newRow(qPrintable(row + "path")) << command << "../hmi/program.teach"
                                                << "holds no \"/\"";
        QTest::newRow(qPrintable(row + "folder above")) << command << ".."
                                                        << "dot";
        QTest::newRow(qPrintable(row + "hidden")) << command << ".coil.cnc"
                                                  << "dot";
        QTest::newRow(qPrintable(row + "blanks")) << command << "  "
                                                  << "Give the program a name";
    }
    QTest::newRow("SaveAs: link") << "SaveAs"
                                  << "link.cnc"
                                  << "not a program file";
    QTest::newRow("SaveAs: folder") << "SaveAs"
                                    << "folder.cnc"
                                    << "not a program file";
}

// Save As to "../hmi/program.teach" covered the taught program.
void TestProgramGuard::namesThatLeadElsewhereAreRefused()
{
    QFETCH(QString, command);
    QFETCH(QString, name);
    QFETCH(QString, word);
    QVERIFY(QDir().mkpath(home() + "/hmi"));
    writeFile(home() + "/hmi/program.teach", "taught\n");
    QVERIFY(QFile::link(home() + "/hmi/program.teach", path("link.cnc")));
    QVERIFY(QDir().mkpath(path("folder.cnc")));
    m_window->insertLine("G99");
    document()->setModified(false);
    ModalDriver driver;
    driver.then([&](QWidget *dialog) {
        pick(dialog, name);
        QTRY_VERIFY2(hint(dialog).contains(word), qPrintable(hint(dialog)));
        QVERIFY(dialog->isVisible());
        giveUp(dialog);
    });
    press(command);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(!m_guard->isBusy());
    QCOMPARE(readFile(home() + "/hmi/program.teach"), QByteArray("taught\n"));
    QCOMPARE(document()->toPlainText(), QString("G99"));
}

void TestProgramGuard::everyWayToAWriteWaitsForTheHistory_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way :
         {"save", "touch in Save as", "Return in Save as", "save first", "remove"})
        QTest::newRow(way) << way;
}

void TestProgramGuard::everyWayToAWriteWaitsForTheHistory()
{
    QFETCH(QString, way);
    const QByteArray bytes = "G01\n";
    writeFile(path("coil.cnc"), bytes);
    open("coil.cnc");
    QList<ProgramKeeper::Kept> waiting;
    QStringList paths;
    m_guard->setHistory([&](const QString &path, const ProgramKeeper::Kept &kept) {
        paths.append(path);
        waiting.append(kept);
    });
    const auto seeThatItWaits = [&] {
        QTRY_COMPARE(waiting.size(), 1);
        QCOMPARE(paths, QStringList() << path("coil.cnc"));
        // Told only to those who had to wait.
        QVERIFY(!wasTold("One moment", Message::Information));
        QTRY_VERIFY(wasTold("One moment", Message::Information));
        QCOMPARE(readFile(path("coil.cnc")), bytes);
        waiting.takeFirst()(QString());
    };
    m_window->insertLine("G99");
    m_questioner->answers = {1};
    ModalDriver driver;
    if (way == "save") {
        press("Save");
        seeThatItWaits();
    } else if (way == "save first") {
        driver.press(QMessageBox::Save);
        press("New");
        seeThatItWaits();
    } else if (way == "remove") {
        driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
        driver.then([&](QWidget *box) {
            static_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click();
            seeThatItWaits();
        });
        driver.press(QMessageBox::Yes);
        press("RM");
    } else {
        driver.then([&](QWidget *dialog) {
            QTRY_COMPARE(dialog->findChild<QLineEdit *>()->text(), QString("coil.cnc"));
            if (way.startsWith("Return"))
                QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
            else
                dialog->findChildren<QPushButton *>().first()->click();
            seeThatItWaits();
        });
        press("SaveAs");
    }
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(readFile(path("coil.cnc")) != bytes);
    QTRY_VERIFY(!m_guard->isBusy());
    QCOMPARE(wasTold("coil.cnc saved", Message::Information), way != "remove");
    QCOMPARE(QFileInfo(path("coil.cnc")).exists(), way != "remove");
}

void TestProgramGuard::whatTheHistoryCannotKeepIsAskedAbout_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("cancel") << 0;
    QTest::newRow("write") << 1;
}

void TestProgramGuard::whatTheHistoryCannotKeepIsAskedAbout()
{
    QFETCH(int, answer);
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_guard->setHistory([this](const QString &, const ProgramKeeper::Kept &kept) {
        HostCompat::callLater(this, [kept] { kept("It is too large."); });
    });
    m_window->insertLine("G99");
    m_questioner->answers = {answer};
    QSignalSpy ended(m_guard.data(), SIGNAL(saveEnded(bool)));
    press("Save");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(m_questioner->asked.size(), 1);
    QVERIFY(m_questioner->asked.at(0).plainText().contains("It is too large."));
    QCOMPARE(readFile(path("coil.cnc")) == "G01\n", answer == 0);
    QCOMPARE(document()->isModified(), answer == 0);
}

void TestProgramGuard::removingWithUnsavedChangesAsks()
{
    writeFile(path("coil.cnc"), "G01\n");
    open("coil.cnc");
    m_window->insertLine("G99");
    ModalDriver driver;
    driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
    driver.then([this](QWidget *box) {
        static_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click();
        QTRY_COMPARE(m_questioner->asked.size(), 1);
        static_cast<QMessageBox *>(box)->button(QMessageBox::No)->click();
    });
    press("RM");
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(!m_guard->isBusy());
    QVERIFY(QFileInfo(path("coil.cnc")).exists());
    QVERIFY(document()->toPlainText().contains("G99"));
}

void TestProgramGuard::failedRemovalIsTold()
{
    writeFile(path("coil.cnc"), "G01\n");
    ::chmod(QFile::encodeName(programDir()), 0500);
    ModalDriver driver;
    driver.then([](QWidget *dialog) { pick(dialog, "coil.cnc"); });
    driver.press(QMessageBox::Yes);
    press("RM");
    QTRY_VERIFY(wasTold("coil.cnc could not be removed", Message::Warning));
    QTRY_VERIFY2(driver.finished(), driver.report());
    ::chmod(QFile::encodeName(programDir()), 0700);
    QVERIFY(QFileInfo(path("coil.cnc")).exists());
}

FILARIX_TEST_MAIN(TestProgramGuard)
#include "tst_programguard.moc"
