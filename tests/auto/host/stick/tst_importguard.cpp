// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/clickgate.h"
#include "filarixtest.h"
#include "importmanage.h"
#include "modaldriver.h"
#include "programs/programhistory.h"
#include "scriptquestioner.h"
#include "stick/importguard.h"

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
    void questionShowsEachNameBesideItsProposal();
    void newStickIsSettledOnce();
    void guardMayGoWhileItAsks();
    void chosenNameOfAStickThatHasGoneIsRefused();
    void keysPressedByAKeyboardAreGuardedToo();
    void returnInAListIsGuardedToo();
    void escapeLeavesWithoutAQuestion();
    void quitIsNeverHeldBack();
    void renamingThatFailsIsTold();
    void programDirectoryWithABlankIsRefused();
    void withoutAStickNothingIsTransferred();
    void programIsDeletedWithoutAStick();
    void whatWasDoneIsTold();
    void answeredNoIsNothingToTell();
    void copyThatDoesNotFitIsAnAlarm();
    void copyThatFailsIsTold();
    void coverThatLosesTheOldOneIsAnAlarm();
    void coverWaitsForTheHistory();
    void programThatTheHistoryCannotKeepGoesOnlyAfterAQuestion();
    void pressWaitsBesideTheEventLoop();

private:
    static ImportGuard::Settled settle(ImportGuard *guard);
    static bool isIdle(const ImportGuard &guard, const ImportManage &manager);
    static void chooseOnPanel(ImportManage *manager, const QString &name);
    static QPushButton *button(ImportManage *manager, const QString &text);
    static void chooseOnStick(ImportManage *manager, const QString &name);

    ScriptQuestioner m_questioner;
};

/// The guard goes while its question stands.
class LeavingQuestioner : public Questioner
{
public:
    int ask(const Question &) override
    {
        delete guard.data();
        return 1;
    }

    QPointer<ImportGuard> guard;
};

/// Takes files away while its question stands, and goes on.
class TakingQuestioner : public Questioner
{
public:
    int ask(const Question &) override
    {
        while (!paths.isEmpty())
            QFile::remove(paths.takeFirst());
        return 1;
    }

    QStringList paths;
};

void TestImportGuard::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    programDir();
    QDir().mkdir("/mnt/Storage");
    emptyFolder("/mnt/Storage");
    writeFile("/tmp/udiskattach", "");
    writeFile(home() + "/canary", "alive");
    QDir::setCurrent(home());
    m_questioner.asked.clear();
    m_questioner.answers.clear();
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

ImportGuard::Settled TestImportGuard::settle(ImportGuard *guard)
{
    int result = -1;
    guard->settle([&result](ImportGuard::Settled settled) { result = settled; });
    if (!TestCompat::waitFor([&result] { return result >= 0; }))
        qFatal("The guard does not answer.");
    return ImportGuard::Settled(result);
}

// Whether no press of the manager's waits any more.
bool TestImportGuard::isIdle(const ImportGuard &guard, const ImportManage &manager)
{
    const QList<ClickGate *> gates = manager.findChildren<ClickGate *>();
    for (ClickGate *gate : gates) {
        if (gate->isHolding())
            return false;
    }
    return !gates.isEmpty() && !guard.isBusy();
}

void TestImportGuard::chooseOnPanel(ImportManage *manager, const QString &name)
{
    QListView *view = manager->findChildren<QListView *>().first();
    view->setCurrentIndex(
        static_cast<QDirModel *>(view->model())->index(programDir() + '/' + name));
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
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QCOMPARE(settle(&guard), ImportGuard::WereSafe);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G01\n"));
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
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, name);

    m_questioner.answers.append(1);
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(m_questioner.asked.size(), 1);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Information);
    QVERIFY(QDir(programDir()).entryList(QDir::Files).isEmpty());
    const QStringList names = QDir("/mnt/Storage").entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(names.size(), 1);
    QVERIFY(names.first() != name);

    // The new name goes through, there and back out.
    chooseOnStick(&manager, names.first());
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(readFile(programDir() + '/' + names.first()), QByteArray("G01\n"));
    QTRY_VERIFY(!guard.isBusy());
    chooseOnStick(&manager, names.first());
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, "Del<"), Qt::LeftButton);
    QTRY_VERIFY2(driver.finished(), driver.report());
    QTRY_VERIFY(QDir("/mnt/Storage").entryList(QDir::Files | QDir::Hidden).isEmpty());
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
    QCOMPARE(QDir(home()).entryList(QDir::AllEntries | QDir::Hidden), before);
}

void TestImportGuard::withoutRenamingNothingIsTransferred()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/a b.cnc", "G01\n");
    writeFile("/mnt/Storage/coil.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(m_questioner.asked.size(), 1);
    QTRY_VERIFY(isIdle(guard, manager));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
    QVERIFY(QDir(programDir()).entryList(QDir::Files).isEmpty());
    QCOMPARE(QDir("/mnt/Storage").entryList(QDir::Files).size(), 2);
}

void TestImportGuard::newStickIsSettledOnce()
{
    writeFile("/mnt/Storage/a b.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    DeviceState out;
    out.isKnown = true;
    DeviceState in = out;
    in.stickIn = true;
    guard.settleNewStick(out);
    QVERIFY(!guard.isBusy());
    guard.settleNewStick(in);
    QTRY_VERIFY(!guard.isBusy());
    QCOMPARE(m_questioner.asked.size(), 1);
    in.freeBytes = 1;
    guard.settleNewStick(in);
    QVERIFY(!guard.isBusy());
    guard.settleNewStick(out);
    guard.settleNewStick(in);
    QTRY_VERIFY(!guard.isBusy());
    QCOMPARE(m_questioner.asked.size(), 2);
}

void TestImportGuard::questionShowsEachNameBesideItsProposal()
{
    const QString longName = QString(100, 'a') + " the end";
    for (const QString &name : {QString("a b.cnc"), QString("c d\n.cnc"), longName})
        writeFile(programDir() + '/' + name, "G01\n");
    writeFile("/mnt/Storage/e f", "G01\n");
    writeFile("/mnt/Storage/g h", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QCOMPARE(settle(&guard), ImportGuard::NotSettled);
    QCOMPARE(m_questioner.asked.size(), 1);
    const Question question = m_questioner.asked.first();
    QCOMPARE(question.title, QString("File names"));
    QCOMPARE(question.answers, QStringList() << "Leave them"
                                             << "Rename");
    QCOMPARE(question.things.size(), 4);
    const QString arrow = QString::fromUtf8(" \u2192 ");
    QVERIFY(question.things.contains("a b.cnc" + arrow + "a_b.cnc"));
    QVERIFY(question.things.contains("c d .cnc" + arrow + "c_d.cnc"));
    // Short enough for a line, with its end.
    QVERIFY(
        question.things.contains("aaaaaaaaaaa...aa the end" + arrow + "aaaaaaaaaaa...aa_the_end"));
    QCOMPARE(question.things.last(), QString("and 2 more"));
}

void TestImportGuard::guardMayGoWhileItAsks()
{
    writeFile(programDir() + "/a b.cnc", "G01\n");
    LeavingQuestioner questioner;
    questioner.guard = new ImportGuard(programDir(), "/mnt/Storage", &questioner);
    bool isAnswered = false;
    questioner.guard->settle([&isAnswered](ImportGuard::Settled) { isAnswered = true; });
    QTRY_VERIFY(!questioner.guard);
    QVERIFY(!isAnswered);
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList("a b.cnc"));
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
    manager.hide();
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    manager.show();
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_VERIFY(isIdle(guard, manager));
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
}

void TestImportGuard::keysPressedByAKeyboardAreGuardedToo()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/$(rm canary)", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "$(rm canary)");
    QTest::keyClick(button(&manager, "<<"), Qt::Key_Space);
    QTRY_COMPARE(m_questioner.asked.size(), 1);
    QTRY_VERIFY(isIdle(guard, manager));
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
}

// Return in a list presses the manager's default button, the first.
void TestImportGuard::returnInAListIsGuardedToo()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/$(rm canary)", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    manager.activateWindow();
    QListView *programs = manager.findChildren<QListView *>().first();
    programs->setCurrentIndex(
        static_cast<QDirModel *>(programs->model())->index(programDir() + "/$(rm canary)"));
    programs->setFocus();
    QTest::keyClick(programs, Qt::Key_Return);
    QTRY_COMPARE(m_questioner.asked.size(), 1);
    QTRY_VERIFY(isIdle(guard, manager));
    QCOMPARE(readFile(home() + "/canary"), QByteArray("alive"));
}

void TestImportGuard::escapeLeavesWithoutAQuestion()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/a b.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
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
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
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
    ImportGuard guard(home() + "/a b/cnc", "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QTRY_VERIFY(isIdle(guard, manager));
    QVERIFY(QDir(programDir()).entryList(QDir::Files).isEmpty());
}

void TestImportGuard::renamingThatFailsIsTold()
{
    writeFile(programDir() + "/a b.cnc", "G01\n");
    QFile::setPermissions(programDir(), QFile::ReadOwner | QFile::ExeOwner);
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    m_questioner.answers.append(1);
    const ImportGuard::Settled settled = settle(&guard);
    QFile::setPermissions(programDir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(m_questioner.asked.size(), 1);
    QCOMPARE(settled, ImportGuard::NotSettled);
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
}

void TestImportGuard::withoutAStickNothingIsTransferred()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/coil.cnc", "G01\n");
    writeFile(programDir() + "/own.cnc", "G02\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    for (const char *key : {">>", "<<", "Del<"}) {
        ImportManage manager(nullptr);
        manager.init();
        manager.show();
        chooseOnStick(&manager, "coil.cnc");
        chooseOnPanel(&manager, "own.cnc");
        // Pulled while the manager is up.
        QFile::remove("/tmp/udiskattach");
        QTest::mouseClick(button(&manager, key), Qt::LeftButton);
        QTRY_COMPARE(told.size(), 1);
        QCOMPARE(told.takeFirst().at(1).value<Message::Tone>(), Message::Warning);
        QTRY_VERIFY(isIdle(guard, manager));
        writeFile("/tmp/udiskattach", "");
    }
    QCOMPARE(QDir("/mnt/Storage").entryList(QDir::Files), QStringList("coil.cnc"));
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList("own.cnc"));
}

void TestImportGuard::programIsDeletedWithoutAStick()
{
    StrictMessages::expect("slot_checkUSB");
    QFile::remove("/tmp/udiskattach");
    writeFile(programDir() + "/own.cnc", "G02\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnPanel(&manager, "own.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, ">Del"), Qt::LeftButton);
    QTRY_VERIFY(!QFileInfo(programDir() + "/own.cnc").exists());
    QTRY_VERIFY2(driver.finished(), driver.report());
}

void TestImportGuard::whatWasDoneIsTold()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/own.cnc", "G02\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    const auto isTold = [&](const char *words) {
        return told.size() == 1 && told.at(0).at(1).value<Message::Tone>() == Message::Information
               && told.at(0).at(0).toString().contains(words);
    };
    chooseOnPanel(&manager, "own.cnc");
    QTest::mouseClick(button(&manager, ">>"), Qt::LeftButton);
    QTRY_VERIFY(isTold("own.cnc is copied to the stick, and compared"));
    QCOMPARE(readFile("/mnt/Storage/own.cnc"), QByteArray("G02\n"));
    QTRY_VERIFY(isIdle(guard, manager));
    told.clear();

    // Over the one that is there, which differs.
    writeFile("/mnt/Storage/own.cnc", "G0333\n");
    chooseOnStick(&manager, "own.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_VERIFY(isTold("own.cnc is copied to the panel, and compared"));
    QCOMPARE(readFile(programDir() + "/own.cnc"), QByteArray("G0333\n"));
    QTRY_VERIFY(isIdle(guard, manager));
    told.clear();

    chooseOnStick(&manager, "own.cnc");
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, "Del<"), Qt::LeftButton);
    QTRY_VERIFY(isTold("own.cnc is deleted from the stick"));
    QTRY_VERIFY(isIdle(guard, manager));
    told.clear();

    chooseOnPanel(&manager, "own.cnc");
    driver.press(QMessageBox::Yes);
    QTest::mouseClick(button(&manager, ">Del"), Qt::LeftButton);
    QTRY_VERIFY(isTold("own.cnc is deleted from the panel"));
    QVERIFY(!QFileInfo(programDir() + "/own.cnc").exists());
    QVERIFY2(driver.finished(), driver.report());
}

void TestImportGuard::answeredNoIsNothingToTell()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/own.cnc", "G02\n");
    writeFile("/mnt/Storage/own.cnc", "G03\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    ModalDriver driver;
    for (const char *key : {">>", "<<", ">Del", "Del<"}) {
        chooseOnPanel(&manager, "own.cnc");
        chooseOnStick(&manager, "own.cnc");
        driver.press(QMessageBox::No);
        QTest::mouseClick(button(&manager, key), Qt::LeftButton);
        QTRY_VERIFY2(driver.finished(), driver.report());
        QTRY_VERIFY(isIdle(guard, manager));
    }
    // A word that was still to come would have come before this one.
    QCOMPARE(settle(&guard), ImportGuard::WereSafe);
    QCOMPARE(told.size(), 0);
    QCOMPARE(readFile(programDir() + "/own.cnc"), QByteArray("G02\n"));
    QCOMPARE(readFile("/mnt/Storage/own.cnc"), QByteArray("G03\n"));
}

// The stick of these tests holds a megabyte; see CMakeLists.txt.
void TestImportGuard::copyThatDoesNotFitIsAnAlarm()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/long.cnc", QByteArray(2 * 1024 * 1024, 'G'));
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnPanel(&manager, "long.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::Ok); // the library says that the copy failed, not what it left
    QTest::mouseClick(button(&manager, ">>"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
    QVERIFY(told.at(0).at(0).toString().contains("long.cnc"));
    QCOMPARE(told.at(0).at(2).toString(), QString("stick"));
}

void TestImportGuard::copyThatFailsIsTold()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/own.cnc", "G02\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnPanel(&manager, "own.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::Ok); // the library says that the copy failed
    QTest::mouseClick(button(&manager, ">>"), Qt::LeftButton);
    // Taken away while the guard looks at the folders.
    QVERIFY(QFile::remove(programDir() + "/own.cnc"));
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(told.at(0).at(0).toString(), QString("own.cnc was not copied."));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Warning);
}

// Both files go while the operator is asked about a program that the history cannot keep.
void TestImportGuard::coverThatLosesTheOldOneIsAnAlarm()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile(programDir() + "/own.cnc", "G02\n");
    QFile::setPermissions(programDir() + "/own.cnc", QFile::Permissions());
    writeFile("/mnt/Storage/own.cnc", "G03\n");
    ProgramHistory history(programDir(), home() + "/hmi/history");
    TakingQuestioner questioner;
    questioner.paths << programDir() + "/own.cnc"
                     << "/mnt/Storage/own.cnc";
    ImportGuard guard(programDir(), "/mnt/Storage", &questioner, &history);
    QSignalSpy told(&guard, SIGNAL(told(QString, Message::Tone, QString)));
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "own.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok); // the library says that the copy failed
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(told.size(), 1);
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(questioner.paths.isEmpty());
    const QString text = told.at(0).at(0).toString();
    QVERIFY2(text.contains("bring it back from the history"), qPrintable(text));
    QCOMPARE(told.at(0).at(1).value<Message::Tone>(), Message::Alarm);
}

void TestImportGuard::coverWaitsForTheHistory()
{
    StrictMessages::expect("slot_checkUSB");
    writeFile("/mnt/Storage/coil.cnc", "G01 from the stick\n");
    writeFile(programDir() + "/coil.cnc", "G01 before\n");
    ProgramHistory history(programDir(), home() + "/hmi/history");
    QTRY_VERIFY(history.isSettled());
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner, &history);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "coil.cnc");
    ModalDriver driver;
    driver.then([](QWidget *box) {
        // Saved by somebody else, while the question stands.
        writeFile(programDir() + "/coil.cnc", "G01 saved just now\n");
        QTest::keyClick(static_cast<QMessageBox *>(box)->button(QMessageBox::Yes), Qt::Key_Space);
    });
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_COMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G01 from the stick\n"));
    QVERIFY2(driver.finished(), driver.report());
    bool isKept = false;
    const QList<ProgramVersion> versions = history.versions();
    for (const ProgramVersion &version : versions)
        isKept |= version.bytes == qint64(sizeof "G01 saved just now\n" - 1);
    QVERIFY(isKept);
}

void TestImportGuard::programThatTheHistoryCannotKeepGoesOnlyAfterAQuestion()
{
    StrictMessages::expect("slot_checkUSB");
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, "G01\n");
    // Nobody can read it, so nobody can keep it; to delete it takes no more than the folder's
    // rights.
    QFile::setPermissions(path, QFile::Permissions());
    ProgramHistory history(programDir(), home() + "/hmi/history");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner, &history);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    m_questioner.answers << 0 << 1;
    ModalDriver driver;
    driver.then([&](QWidget *box) {
        QPushButton *yes =
            qobject_cast<QPushButton *>(static_cast<QMessageBox *>(box)->button(QMessageBox::Yes));
        QTest::mouseClick(yes, Qt::LeftButton);
        QTRY_COMPARE(m_questioner.asked.size(), 1);
        QTRY_VERIFY(!guard.isBusy());
        // The library's own question stays open after a Cancel of ours.
        QVERIFY(box->isVisible());
        QVERIFY(QFileInfo(path).exists());
        QTest::mouseClick(yes, Qt::LeftButton);
    });
    chooseOnPanel(&manager, "coil.cnc");
    QTest::mouseClick(button(&manager, ">Del"), Qt::LeftButton);
    QTRY_VERIFY(!QFileInfo(path).exists());
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_questioner.asked.size(), 2);
    for (const Question &question : m_questioner.asked) {
        QCOMPARE(question.text, QString("What coil.cnc is now would be lost."));
        QCOMPARE(question.things, QStringList()
                                      << "The history cannot read coil.cnc: Permission denied.");
        QCOMPARE(question.answers, QStringList() << "Cancel"
                                                 << "All the same");
    }
}

void TestImportGuard::pressWaitsBesideTheEventLoop()
{
    StrictMessages::expect("slot_checkUSB");
    for (int i = 0; i < 2000; ++i)
        writeFile(programDir() + QString("/coil-%1.cnc").arg(i), "G01\n");
    writeFile("/mnt/Storage/a.cnc", "G01\n");
    ImportGuard guard(programDir(), "/mnt/Storage", &m_questioner);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    chooseOnStick(&manager, "a.cnc");
    ClickGate *gate = button(&manager, "<<")->findChild<ClickGate *>();
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QVERIFY(!QFileInfo(programDir() + "/a.cnc").exists());
    QTRY_VERIFY(gate->isHolding());
    // A second press of an impatient finger counts for nothing.
    QTest::mouseClick(button(&manager, "<<"), Qt::LeftButton);
    QTRY_VERIFY(QFileInfo(programDir() + "/a.cnc").exists());
    QTRY_VERIFY(isIdle(guard, manager));
}

FILARIX_TEST_MAIN(TestImportGuard)
#include "tst_importguard.moc"
