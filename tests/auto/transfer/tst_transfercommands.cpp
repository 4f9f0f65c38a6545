// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds ImportManage: its command lines.

#include "managerfixture.h"
#include "modaldriver.h"
#include "shell.h"

#include <QDialog>
#include <QEvent>

namespace {

const qint64 limit = 31457280;
const qint64 fourGibibytes = Q_INT64_C(4294967296);

/// One direction of copying, or one side of deleting, as the operator and the shell see it.
struct Way
{
    const char *button;
    const char *title;
    /// The panel that is touched.
    bool fromHmi;
    const char *nothingSelected;
    const char *noStick;
    const char *coverQuestion;
};

const Way toUsb = {">>",
                   "Copy to Usb",
                   true,
                   "No file Selected!",
                   "Usb not found!",
                   " existed in Usb,\n do you want to cover it?"};
const Way toHmi = {"<<",
                   "Copy to Hmi",
                   false,
                   "No file Selected.",
                   "Usb not found.",
                   " existed in Hmi,\n do you want to cover it?"};
const Way delHmi = {">Del", "Hmi Delete", true, "No file Selected.", "", ""};
const Way delUsb = {"Del<", "Usb Delete", false, "No file Selected.", "", ""};

} // namespace

Q_DECLARE_METATYPE(const Way *)

class TestTransferCommands : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Shell::reset(); }
    void init();
    void cleanup();

    void copyPutsTheOptionsBehindTheOperands();
    void deleteEndsWithoutABlank();
    void toolsAreCalledInOrder();
    void charactersBeyondAsciiAreLost();
    void charactersBeyondAsciiFollowTheCodecForCStrings();
    void blankInANameSplitsTheOperand();
    void statusComesBackUndecoded_data();
    void statusComesBackUndecoded();
    void killedToolIsAFailure();
    void missingToolIsAFailure();
    void failingSyncIsNotNoticed();
    void deletingWhatIsGoneIsASuccess();
    void deletingADirectoryTakesAllThatIsInIt();
    void rootFolderIsNeverDeleted_data();
    void rootFolderIsNeverDeleted();
    void processingIsOnTheScreenBeforeTheCommandRuns();

    void nothingSelected_data() { addWays(true, true); }
    void nothingSelected();
    void missingStickRefusesACopy_data() { addWays(true, false); }
    void missingStickRefusesACopy();
    void mountWithoutMarkerPassesTheUsbTest_data() { addWays(true, false); }
    void mountWithoutMarkerPassesTheUsbTest();
    void fileIsCopied_data();
    void fileIsCopied();
    void failedCopyLeavesWhatItWrote_data() { addWays(true, false); }
    void failedCopyLeavesWhatItWrote();
    void namesDifferingInCaseAreTwoFiles_data() { addWays(true, false); }
    void namesDifferingInCaseAreTwoFiles();
    void hiddenTwinIsOverwrittenWithoutAQuestion_data() { addWays(true, false); }
    void hiddenTwinIsOverwrittenWithoutAQuestion();
    void directoryOfThatNameIsCoveredWithAllInIt_data() { addWays(true, false); }
    void directoryOfThatNameIsCoveredWithAllInIt();
    void directoryLargerThanTheUsedSpaceIsUnexpected();

    void directoryOnTheStickIsRefused();
    void limitOfThePanelSide_data();
    void limitOfThePanelSide();
    void copyToTheStickHasNoLimit();
    void refusedCoverKeepsTheOldFile();
    void goneCoverTargetIsUnexpected();
    void fileThatWrapsTheSumIsCopied();

    void fileIsDeleted_data();
    void fileIsDeleted();
    void deleteWithoutAStickOrASelectionNeverAsks();

    void selectionIsGoneAfterEachOperation_data() { addWays(true, true); }
    void selectionIsGoneAfterEachOperation();
    void itemOutsideTheDirectoryIsNoSelection_data() { addWays(true, true); }
    void itemOutsideTheDirectoryIsNoSelection();
    void directoryAnywhereInThePathIsASelection();
    void statusLineIsRestoredByEveryEnd_data() { addWays(true, true); }
    void statusLineIsRestoredByEveryEnd();

    void stickPulledAtTheQuestion_data() { addWays(true, true); }
    void stickPulledAtTheQuestion();
    void stickPulledBetweenTestAndCommand_data() { addWays(true, false); }
    void stickPulledBetweenTestAndCommand();

    void messagesAreTranslatedInTheClassesContext_data() { addWays(true, true); }
    void messagesAreTranslatedInTheClassesContext();
    void refusalsAreTranslatedInTheClassesContext();

    void everythingWithTheRealTools();

private:
    static void addWays(bool copies, bool deletes);
    static void answer(ModalDriver *driver, Manager *manager, const QByteArray &answers);
    static QString sourceDir(const Way *way) { return way->fromHmi ? programDir() : stickDir(); }
    static QString targetDir(const Way *way) { return way->fromHmi ? stickDir() : programDir(); }
    static QListView *source(const Manager &manager, const Way *way)
    {
        return way->fromHmi ? manager.hmiView : manager.usbView;
    }
    static bool select(const Manager &manager, const Way *way, const QString &name)
    {
        return Manager::select(source(manager, way), name);
    }
    /// The commands that are no "sync", each of which must have one behind it.
    static QList<QByteArray> commandsBeforeSync();
    static QByteArray cp(const Way *way, const char *name);
    static QByteArray rm(const QString &dir, const char *name);
    static void expectCritical(const ModalDriver::Box &box, const Way *way, const char *text,
                               const QWidget *parent);
};

#define EXPECT_CRITICAL(box, way, text)                                                            \
    do {                                                                                           \
        expectCritical(box, way, text, &manager.dialog);                                           \
        if (QTest::currentTestFailed())                                                            \
            return;                                                                                \
    } while (0)

void TestTransferCommands::addWays(bool copies, bool deletes)
{
    QTest::addColumn<const Way *>("way");
    if (copies) {
        QTest::newRow("panel to stick") << &toUsb;
        QTest::newRow("stick to panel") << &toHmi;
    }
    if (deletes) {
        QTest::newRow("delete on the panel") << &delHmi;
        QTest::newRow("delete on the stick") << &delUsb;
    }
}

QList<QByteArray> TestTransferCommands::commandsBeforeSync()
{
    QList<QByteArray> result;
    const QList<QByteArray> all = Shell::commands();
    for (int i = 0; i < all.size(); i += 2) {
        result << all.at(i);
        if (all.value(i + 1) != "sync")
            result << "no sync!";
    }
    return result;
}

QByteArray TestTransferCommands::cp(const Way *way, const char *name)
{
    return "cp " + sourceDir(way).toLatin1() + '/' + name + ' ' + targetDir(way).toLatin1() + '/'
           + name + " -rf ";
}

QByteArray TestTransferCommands::rm(const QString &dir, const char *name)
{
    return "rm " + dir.toLatin1() + '/' + name + " -rf";
}

void TestTransferCommands::expectCritical(const ModalDriver::Box &box, const Way *way,
                                          const char *text, const QWidget *parent)
{
    QCOMPARE(box.title, QString(way->title));
    QCOMPARE(box.text, QString(text));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(int(box.buttons), int(QMessageBox::Ok));
    QCOMPARE(static_cast<const QWidget *>(box.parent), parent);
}

void TestTransferCommands::init()
{
    ManagerTest::init();
    Shell::reset();
    Shell::recordTool("cp");
    Shell::recordTool("rm");
    // The machine's own disks have nothing to do with these tests.
    Shell::standIn("sync", "echo sync >> /tmp/tools.log\n");
    plugStick();
}

void TestTransferCommands::cleanup()
{
    Shell::reset();
    ManagerTest::cleanup();
}

void TestTransferCommands::copyPutsTheOptionsBehindTheOperands()
{
    Manager manager;
    Shell::answerNext(0);
    QCOMPARE(manager.dialog.copyFile("/from", "a.cnc", "/to", "b.cnc"), 0);
    QCOMPARE(Shell::commands(), QList<QByteArray>() << "cp /from/a.cnc /to/b.cnc -rf "
                                                    << "sync");
}

void TestTransferCommands::deleteEndsWithoutABlank()
{
    Manager manager;
    Shell::answerNext(0);
    QCOMPARE(manager.dialog.deleteFile("/from", "a.cnc"), 0);
    QCOMPARE(Shell::commands(), QList<QByteArray>() << "rm /from/a.cnc -rf"
                                                    << "sync");
}

void TestTransferCommands::toolsAreCalledInOrder()
{
    writeFile(stickDir() + "/part.cnc", "G01\n");
    Manager manager;
    QCOMPARE(manager.dialog.copyFile(stickDir(), "part.cnc", programDir(), "copy.cnc"), 0);
    QCOMPARE(manager.dialog.deleteFile(stickDir(), "part.cnc"), 0);
    QCOMPARE(Shell::toolCalls(), QStringList()
                                     << "cp [/mnt/Storage/part.cnc] [/tmp/home/cnc/copy.cnc] [-rf]"
                                     << "sync"
                                     << "rm [/mnt/Storage/part.cnc] [-rf]"
                                     << "sync");
    QCOMPARE(readFile(programDir() + "/copy.cnc"), QByteArray("G01\n"));
    QVERIFY(!QFile::exists(stickDir() + "/part.cnc"));
}

/// A host of Qt 4 may choose that codec, and then the commands name the very files.
void TestTransferCommands::charactersBeyondAsciiFollowTheCodecForCStrings()
{
    const QByteArray name("\xe7\xbb\x95.cnc");
    const QString winding = QString::fromUtf8(name);
    Manager manager;
    writeFile(stickDir() + '/' + winding, "x");
    const bool isChosen = TestCompat::setUtf8ForCStrings(true);
    const int copied = manager.dialog.copyFile(stickDir(), winding, programDir(), winding);
    const int deleted = manager.dialog.deleteFile(stickDir(), winding);
    TestCompat::setUtf8ForCStrings(false);
    const QByteArray written = isChosen ? name : QByteArray("?.cnc");
    QCOMPARE(Shell::commands().value(0),
             "cp /mnt/Storage/" + written + " /tmp/home/cnc/" + written + " -rf ");
    QCOMPARE(Shell::commands().value(2), "rm /mnt/Storage/" + written + " -rf");
    QCOMPARE(deleted, 0);
    // What they name otherwise is another file, which is not there.
    QCOMPARE(copied == 0, isChosen);
    QCOMPARE(QFile::exists(programDir() + '/' + winding), isChosen);
    QCOMPARE(QFile::exists(stickDir() + '/' + winding), !isChosen);
}

void TestTransferCommands::charactersBeyondAsciiAreLost()
{
    Manager manager;
    const QString umlaut = QString::fromUtf8("\xc3\xbc.cnc");
    const QString winding = QString::fromUtf8("\xe7\xbb\x95.cnc");
    writeFile(stickDir() + '/' + umlaut, "x");
    writeFile(stickDir() + '/' + winding, "x");
    QVERIFY(manager.dialog.copyFile(stickDir(), umlaut, programDir(), umlaut) != 0);
    QVERIFY(manager.dialog.copyFile(stickDir(), winding, programDir(), "y") != 0);
    QCOMPARE(Shell::commands().value(0),
             QByteArray("cp /mnt/Storage/\xfc.cnc /tmp/home/cnc/\xfc.cnc -rf "));
    // The "?" is the shell's sign for any character.
    QCOMPARE(Shell::commands().value(2), QByteArray("cp /mnt/Storage/?.cnc /tmp/home/cnc/y -rf "));
    QCOMPARE(manager.dialog.deleteFile(stickDir(), umlaut), 0);
    QVERIFY(QFile::exists(stickDir() + '/' + umlaut));
}

void TestTransferCommands::blankInANameSplitsTheOperand()
{
    writeFile(stickDir() + "/a b", "x");
    writeFile(programDir() + "/a b", "old");
    Manager manager;
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    QVERIFY(Manager::select(manager.usbView, "a b"));
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(1), &toHmi, "Copy file failed!");
    QCOMPARE(Shell::toolCalls(), QStringList()
                                     << "rm [/tmp/home/cnc/a] [b] [-rf]"
                                     << "sync"
                                     << "cp [/mnt/Storage/a] [b] [/tmp/home/cnc/a] [b] [-rf]"
                                     << "sync");
    QCOMPARE(readFile(programDir() + "/a b"), QByteArray("old"));
}

void TestTransferCommands::statusComesBackUndecoded_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("status");
    QTest::newRow("success") << QByteArray("exit 0\n") << 0;
    QTest::newRow("exit status 1") << QByteArray("exit 1\n") << 0x100;
    QTest::newRow("exit status 3") << QByteArray("exit 3\n") << 0x300;
    QTest::newRow("exit status 255") << QByteArray("exit 255\n") << 0xff00;
}

void TestTransferCommands::statusComesBackUndecoded()
{
    QFETCH(QByteArray, script);
    Shell::standIn("cp", script);
    Shell::standIn("rm", script);
    Manager manager;
    QTEST(manager.dialog.copyFile("/from", "a", "/to", "a"), "status");
    QTEST(manager.dialog.deleteFile("/from", "a"), "status");
    // A shell that could not be started.
    Shell::answerNext(-1);
    QCOMPARE(manager.dialog.copyFile("/from", "a", "/to", "a"), -1);
    Shell::answerNext(-1);
    QCOMPARE(manager.dialog.deleteFile("/from", "a"), -1);
}

// Whether the shell became the tool or waited for it makes the status; it is never 0.
void TestTransferCommands::killedToolIsAFailure()
{
    Shell::standIn("cp", "kill -9 $$\n");
    Shell::standIn("rm", "kill -9 $$\n");
    Manager manager;
    const int copied = manager.dialog.copyFile("/from", "a", "/to", "a");
    QVERIFY2(copied == 9 || copied == 137 << 8, QByteArray::number(copied));
    const int deleted = manager.dialog.deleteFile("/from", "a");
    QVERIFY2(deleted == 9 || deleted == 137 << 8, QByteArray::number(deleted));
    QCOMPARE(commandsBeforeSync().size(), 2);
}

void TestTransferCommands::missingToolIsAFailure()
{
    Shell::hideTools();
    Manager manager;
    QCOMPARE(manager.dialog.copyFile("/from", "a", "/to", "a"), 127 << 8);
    QCOMPARE(manager.dialog.deleteFile("/from", "a"), 127 << 8);
    QCOMPARE(commandsBeforeSync().size(), 2);
}

void TestTransferCommands::failingSyncIsNotNoticed()
{
    writeFile(stickDir() + "/part.cnc", "x");
    Shell::standIn("sync", "exit 5\n");
    Manager manager;
    QCOMPARE(manager.dialog.copyFile(stickDir(), "part.cnc", programDir(), "part.cnc"), 0);
    QCOMPARE(manager.dialog.deleteFile(stickDir(), "part.cnc"), 0);
}

void TestTransferCommands::deletingWhatIsGoneIsASuccess()
{
    Manager manager;
    QCOMPARE(manager.dialog.deleteFile(stickDir(), "gone.cnc"), 0);
}

void TestTransferCommands::deletingADirectoryTakesAllThatIsInIt()
{
    writeFile(stickDir() + "/folder/deeper/part.cnc", "x");
    Manager manager;
    QCOMPARE(manager.dialog.deleteFile(stickDir(), "folder"), 0);
    QVERIFY(!QFile::exists(stickDir() + "/folder"));
}

void TestTransferCommands::rootFolderIsNeverDeleted_data()
{
    QTest::addColumn<QString>("dir");
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("its name") << "/"
                              << "";
    QTest::newRow("its name as a file's") << ""
                                          << "/";
    QTest::newRow("itself") << "/"
                            << ".";
    QTest::newRow("above a folder") << "/mnt"
                                    << "..";
}

/// Where the tool would not refuse. The rest goes as ever: the words on the screen, and the sync.
void TestTransferCommands::rootFolderIsNeverDeleted()
{
    QFETCH(QString, dir);
    QFETCH(QString, name);
    Shell::standIn("rm", "echo deleted >> /tmp/tools.log\n");
    Manager manager;
    QCOMPARE(manager.dialog.deleteFile(dir, name), 1 << 8);
    QCOMPARE(manager.status->text(), QString("Processing..."));
    QCOMPARE(Shell::toolCalls(), QStringList("sync"));
    // Below it everything is the caller's to say.
    QCOMPARE(manager.dialog.deleteFile(dir, "part.cnc"), 0);
    QCOMPARE(Shell::toolCalls(), QStringList() << "sync"
                                               << "deleted"
                                               << "sync");
}

namespace {

class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void TestTransferCommands::processingIsOnTheScreenBeforeTheCommandRuns()
{
    Manager manager;
    manager.dialog.show();
    QVERIFY(TestCompat::waitForExposed(&manager.dialog));
    QCoreApplication::processEvents();
    PaintCounter counter;
    manager.dialog.installEventFilter(&counter);
    QString text;
    int paints = 0;
    QImage seen;
    Shell::setBefore([&] {
        text = manager.status->text();
        paints = counter.paints;
        seen = TestCompat::onTheScreen(&manager.dialog);
    });
    const QImage before = TestCompat::onTheScreen(&manager.dialog);
    QVERIFY(!before.isNull());
    Shell::answerNext(0);
    manager.dialog.copyFile("/from", "a", "/to", "a");
    QCOMPARE(text, QString("Processing..."));
    QVERIFY(paints > 0);
    QVERIFY(seen != before);

    manager.dialog.init();
    QCoreApplication::processEvents();
    QCOMPARE(TestCompat::onTheScreen(&manager.dialog), before);
    counter.paints = 0;
    Shell::answerNext(0);
    manager.dialog.deleteFile("/from", "a");
    QCOMPARE(text, QString("Processing..."));
    QVERIFY(paints > 0);
    QVERIFY(seen != before);
}

void TestTransferCommands::nothingSelected()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "x");
    Manager manager;
    // What is selected on the other side does not count.
    writeFile(targetDir(way) + "/other.cnc", "x");
    manager.dialog.init();
    Manager::select(way->fromHmi ? manager.usbView : manager.hmiView, "other.cnc");
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), way, way->nothingSelected);
    QCOMPARE(Shell::commands(), QList<QByteArray>());
    // The end of every operation: both selections are gone.
    QVERIFY(!manager.usbView->currentIndex().isValid());
    QVERIFY(!manager.hmiView->currentIndex().isValid());
}

void TestTransferCommands::missingStickRefusesACopy()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "x");
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    pullStick();
    // The marker has no say here.
    writeFile(marker(), "");
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), way, way->noStick);
    QCOMPARE(Shell::commands(), QList<QByteArray>());
}

void TestTransferCommands::mountWithoutMarkerPassesTheUsbTest()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "G01\n");
    Manager manager;
    QFile::remove(marker());
    if (way->fromHmi)
        manager.dialog.init();
    QVERIFY(select(manager, way, "part.cnc"));
    manager.button(way->button)->click();
    QVERIFY(manager.status->text().endsWith(" Usb not found!"));
    QCOMPARE(readFile(targetDir(way) + "/part.cnc"), QByteArray("G01\n"));
}

/// Has the boxes to come answered by "y", "n" and "o" for their buttons, or by "c", which closes
/// box and dialog.
void TestTransferCommands::answer(ModalDriver *driver, Manager *manager, const QByteArray &answers)
{
    for (int i = 0; i < answers.size(); ++i) {
        switch (answers.at(i)) {
        case 'y':
            driver->press(QMessageBox::Yes);
            break;
        case 'n':
            driver->press(QMessageBox::No);
            break;
        case 'o':
            driver->press(QMessageBox::Ok);
            break;
        default:
            driver->then([manager](QWidget *) { manager->dialog.reject(); });
        }
    }
}

namespace {

/// A touch of a copying key, with what is there before, what goes wrong, what the operator answers,
/// and what there is afterwards.
struct Copying
{
    const char *name;
    const char *covered; // the file of that name on the other side
    const char *failing; // the tool that ends with 1
    const char *answers;
    const char *told; // in the last box, behind the question
    const char *tools;
    const char *result;
};

const Copying copyings[] = {
    {"a new file", nullptr, nullptr, "", nullptr, "cp", "new"},
    {"a new file, the copy fails", nullptr, "cp", "o", "Copy file failed!", "cp", nullptr},
    {"covered: no", "old", nullptr, "n", nullptr, "", "old"},
    {"covered: closed", "old", nullptr, "c", nullptr, "", "old"},
    {"covered: yes", "old", nullptr, "y", nullptr, "rm cp", "new"},
    {"covered, the deletion fails", "old", "rm", "yo", "Can't cover this file!", "rm", "old"},
    {"covered, the copy fails", "old", "cp", "yo", "Copy file failed!", "rm cp", nullptr},
};

} // namespace

Q_DECLARE_METATYPE(const Copying *)

void TestTransferCommands::fileIsCopied_data()
{
    QTest::addColumn<const Way *>("way");
    QTest::addColumn<const Copying *>("copying");
    for (const Copying &copying : copyings) {
        QTest::newRow(QByteArray("panel to stick, ") + copying.name) << &toUsb << &copying;
        QTest::newRow(QByteArray("stick to panel, ") + copying.name) << &toHmi << &copying;
    }
}

void TestTransferCommands::fileIsCopied()
{
    QFETCH(const Way *, way);
    QFETCH(const Copying *, copying);
    writeFile(sourceDir(way) + "/part.cnc", "new");
    if (copying->covered)
        writeFile(targetDir(way) + "/part.cnc", copying->covered);
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    if (copying->failing)
        Shell::standIn(copying->failing, "exit 1\n");
    ModalDriver driver;
    answer(&driver, &manager, copying->answers);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());

    QList<QByteArray> commands;
    Q_FOREACH (const QByteArray &tool, QByteArray(copying->tools).split(' ')) {
        if (!tool.isEmpty())
            commands << (tool == "rm" ? rm(targetDir(way), "part.cnc") : cp(way, "part.cnc"));
    }
    QCOMPARE(commandsBeforeSync(), commands);
    QCOMPARE(readFile(targetDir(way) + "/part.cnc"), QByteArray(copying->result));
    QCOMPARE(readFile(sourceDir(way) + "/part.cnc"), QByteArray("new"));
    QCOMPARE(Manager::shown(source(manager, way)), QStringList("part.cnc"));
    const QListView *const target = way->fromHmi ? manager.usbView : manager.hmiView;
    QCOMPARE(Manager::shown(target).size(), copying->result ? 1 : 0);
    if (copying->told)
        EXPECT_CRITICAL(driver.boxes().last(), way, copying->told);
    // A box that is closed with its dialog is not recorded.
    if (!copying->covered || QByteArray(copying->answers) == "c")
        return;
    const ModalDriver::Box box = driver.boxes().value(0);
    QCOMPARE(box.title, QString(way->title));
    QCOMPARE(box.text, QString("part.cnc") + way->coverQuestion);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(int(box.buttons), int(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(box.parent, static_cast<QWidget *>(&manager.dialog));
}

void TestTransferCommands::failedCopyLeavesWhatItWrote()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", QByteArray(3 * 1024 * 1024, 'x'));
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    Shell::standIn("cp", "head -c 2097152 \"$1\" > \"$2\"\nexit 1\n");
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(QFileInfo(targetDir(way) + "/part.cnc").size(), Q_INT64_C(2097152));
    QCOMPARE(Manager::shown(way->fromHmi ? manager.usbView : manager.hmiView),
             QStringList("part.cnc"));
    if (!way->fromHmi)
        QCOMPARE(manager.status->text(), QString("Used Space 2M.Left Space 28M."));
}

void TestTransferCommands::namesDifferingInCaseAreTwoFiles()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "new");
    writeFile(targetDir(way) + "/PART.CNC", "old");
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    manager.button(way->button)->click();
    QCOMPARE(readFile(targetDir(way) + "/part.cnc"), QByteArray("new"));
    QCOMPARE(readFile(targetDir(way) + "/PART.CNC"), QByteArray("old"));
}

void TestTransferCommands::hiddenTwinIsOverwrittenWithoutAQuestion()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/.part", "new");
    writeFile(targetDir(way) + "/.part", "old");
    Manager manager;
    // No panel shows a hidden file by itself.
    QDirModel *model = Manager::model(source(manager, way));
    model->setFilter(model->filter() | QDir::Hidden);
    manager.dialog.init();
    QVERIFY(select(manager, way, ".part"));
    manager.button(way->button)->click();
    QCOMPARE(commandsBeforeSync(), QList<QByteArray>() << cp(way, ".part"));
    QCOMPARE(readFile(targetDir(way) + "/.part"), QByteArray("new"));
}

void TestTransferCommands::directoryOfThatNameIsCoveredWithAllInIt()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part", "new");
    writeFile(targetDir(way) + "/part/deep/inner", "old");
    // On the panel side the directory's own size is credited, and has to be covered by files.
    writeFile(programDir() + "/others.cnc", QByteArray(100000, 'x'));
    Manager manager;
    QVERIFY(select(manager, way, "part"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(QFileInfo(targetDir(way) + "/part").isFile());
    QCOMPARE(readFile(targetDir(way) + "/part"), QByteArray("new"));
}

void TestTransferCommands::directoryLargerThanTheUsedSpaceIsUnexpected()
{
    writeFile(stickDir() + "/part", "new");
    writeFile(programDir() + "/part/inner", "old");
    QVERIFY(QFileInfo(programDir() + "/part").size() > 0);
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(1), &toHmi, "Unexpected error!");
    QCOMPARE(Shell::commands(), QList<QByteArray>());
    QCOMPARE(readFile(programDir() + "/part/inner"), QByteArray("old"));
}

void TestTransferCommands::directoryOnTheStickIsRefused()
{
    writeFile(stickDir() + "/part", "x");
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part"));
    // The panel was read when it was still a file.
    QVERIFY(QFile::remove(stickDir() + "/part"));
    writeFile(stickDir() + "/part/inner", "x");
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), &toHmi, "Font file can not be a Dir!");
    QCOMPARE(Shell::commands(), QList<QByteArray>());

    writeFile(programDir() + "/file", "old");
    writeFile(stickDir() + "/file", "new");
    manager.dialog.init();
    QVERIFY(Manager::select(manager.usbView, "file"));
    QVERIFY(QFile::remove(stickDir() + "/file"));
    writeFile(stickDir() + "/file/inner", "x");
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(2), &toHmi, "Font file can not be a Dir!");
    QCOMPARE(readFile(programDir() + "/file"), QByteArray("old"));
}

void TestTransferCommands::limitOfThePanelSide_data()
{
    QTest::addColumn<qint64>("others");
    QTest::addColumn<int>("old");
    QTest::addColumn<int>("source");
    QTest::addColumn<bool>("fits");
    QTest::newRow("new, one byte under") << limit - 101 << -1 << 100 << true;
    QTest::newRow("new, on the limit") << limit - 100 << -1 << 100 << true;
    QTest::newRow("new, one byte over") << limit - 99 << -1 << 100 << false;
    QTest::newRow("cover, one byte under") << limit - 201 << 100 << 200 << true;
    QTest::newRow("cover, on the limit") << limit - 200 << 100 << 200 << true;
    QTest::newRow("cover, one byte over") << limit - 199 << 100 << 200 << false;
}

void TestTransferCommands::limitOfThePanelSide()
{
    QFETCH(qint64, others);
    QFETCH(int, old);
    QFETCH(int, source);
    QFETCH(bool, fits);
    const QByteArray bytes(source, 'n');
    writeSparse(programDir() + "/others.cnc", others);
    if (old >= 0)
        writeFile(programDir() + "/part.cnc", QByteArray(old, 'o'));
    writeFile(stickDir() + "/part.cnc", bytes);
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    ModalDriver driver;
    if (old >= 0)
        driver.press(QMessageBox::Yes);
    if (!fits)
        driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    if (fits) {
        QCOMPARE(readFile(programDir() + "/part.cnc"), bytes);
        return;
    }
    EXPECT_CRITICAL(driver.boxes().last(), &toHmi, "Not enough Space!");
    QCOMPARE(Shell::commands(), QList<QByteArray>());
    QCOMPARE(readFile(programDir() + "/part.cnc"), old >= 0 ? QByteArray(old, 'o') : QByteArray());
}

void TestTransferCommands::copyToTheStickHasNoLimit()
{
    writeSparse(programDir() + "/part.cnc", limit + 1);
    writeSparse(stickDir() + "/others.cnc", limit + 1);
    Manager manager;
    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    manager.button(">>")->click();
    QCOMPARE(QFileInfo(stickDir() + "/part.cnc").size(), limit + 1);
}

void TestTransferCommands::refusedCoverKeepsTheOldFile()
{
    writeFile(programDir() + "/part.cnc", "old");
    writeSparse(stickDir() + "/part.cnc", limit + 1);
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(1), &toHmi, "Not enough Space!");
    QCOMPARE(readFile(programDir() + "/part.cnc"), QByteArray("old"));
}

void TestTransferCommands::goneCoverTargetIsUnexpected()
{
    writeFile(programDir() + "/part.cnc", "old");
    writeFile(stickDir() + "/part.cnc", "new");
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    ModalDriver driver;
    driver.then([](QWidget *widget) {
        QFile::remove(programDir() + "/part.cnc");
        static_cast<QDialog *>(widget)->done(QMessageBox::Yes);
    });
    driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), &toHmi, "Unexpected error!");
    QCOMPARE(Shell::commands(), QList<QByteArray>());
}

void TestTransferCommands::fileThatWrapsTheSumIsCopied()
{
    // What is pinned is the command: no file of that size has to be moved.
    Shell::standIn("cp", "exit 0\n");
    writeSparse(stickDir() + "/huge.cnc", fourGibibytes + 1000);
    writeSparse(stickDir() + "/large.cnc", fourGibibytes - 1);
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "huge.cnc"));
    manager.button("<<")->click();
    QCOMPARE(commandsBeforeSync(), QList<QByteArray>() << cp(&toHmi, "huge.cnc"));

    QVERIFY(Manager::select(manager.usbView, "large.cnc"));
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button("<<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), &toHmi, "Not enough Space!");
    QCOMPARE(commandsBeforeSync().size(), 1);
}

namespace {

/// The same of a deleting key.
struct Deleting
{
    const char *name;
    bool isGone; // before the touch already
    const char *failing;
    const char *answers;
    const char *told;
    bool isDeleted;
};

const Deleting deletings[] = {
    {"yes", false, nullptr, "y", nullptr, true},
    {"no", false, nullptr, "n", nullptr, false},
    {"closed with the dialog", false, nullptr, "c", nullptr, true},
    {"the deletion fails", false, "rm", "yo", "Can't delete this file.", true},
    {"a file that is gone", true, nullptr, "y", nullptr, true},
};

} // namespace

Q_DECLARE_METATYPE(const Deleting *)

void TestTransferCommands::fileIsDeleted_data()
{
    QTest::addColumn<const Way *>("way");
    QTest::addColumn<const Deleting *>("deleting");
    for (const Deleting &deleting : deletings) {
        QTest::newRow(QByteArray("on the panel, ") + deleting.name) << &delHmi << &deleting;
        QTest::newRow(QByteArray("on the stick, ") + deleting.name) << &delUsb << &deleting;
    }
}

void TestTransferCommands::fileIsDeleted()
{
    QFETCH(const Way *, way);
    QFETCH(const Deleting *, deleting);
    const QString path = sourceDir(way) + "/part.cnc";
    writeFile(path, "x");
    writeFile(targetDir(way) + "/part.cnc", "x");
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    if (deleting->isGone)
        QVERIFY(QFile::remove(path));
    if (deleting->failing)
        Shell::standIn(deleting->failing, "exit 1\n");
    ModalDriver driver;
    answer(&driver, &manager, deleting->answers);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());

    QList<QByteArray> commands;
    if (deleting->isDeleted)
        commands << rm(sourceDir(way), "part.cnc");
    QCOMPARE(commandsBeforeSync(), commands);
    const bool isLeft = !deleting->isDeleted || deleting->failing;
    QCOMPARE(QFile::exists(path), isLeft);
    QVERIFY(QFile::exists(targetDir(way) + "/part.cnc"));
    QCOMPARE(Manager::shown(source(manager, way)).size(), isLeft ? 1 : 0);
    if (deleting->told)
        EXPECT_CRITICAL(driver.boxes().last(), way, deleting->told);
    if (QByteArray(deleting->answers) == "c")
        return;
    const ModalDriver::Box box = driver.boxes().value(0);
    QCOMPARE(box.title, QString(way->title));
    QCOMPARE(box.text, QString("Are you sure to delete part.cnc?"));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(int(box.buttons), int(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(box.parent, static_cast<QWidget *>(&manager.dialog));
}

void TestTransferCommands::deleteWithoutAStickOrASelectionNeverAsks()
{
    pullStick();
    Manager manager;
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button("Del<")->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), &delUsb, "No file Selected.");
}

void TestTransferCommands::selectionIsGoneAfterEachOperation()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "x");
    writeFile(sourceDir(way) + "/second.cnc", "x");
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    ModalDriver driver;
    if (!*way->coverQuestion)
        driver.press(QMessageBox::Yes);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().last(), way, way->nothingSelected);
    QCOMPARE(commandsBeforeSync().size(), 1);
}

// A panel without a root shows the top level.
void TestTransferCommands::itemOutsideTheDirectoryIsNoSelection()
{
    QFETCH(const Way *, way);
    Manager manager;
    if (way->fromHmi)
        QVERIFY(QDir().rmdir(home() + "/cnc"));
    else
        pullStick();
    manager.dialog.init();
    QVERIFY(select(manager, way, "/"));
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), way, way->nothingSelected);
    QCOMPARE(Shell::commands(), QList<QByteArray>());
}

void TestTransferCommands::directoryAnywhereInThePathIsASelection()
{
    writeFile(home() + "/mnt/Storage/part.cnc", "elsewhere");
    writeFile(stickDir() + "/part.cnc", "stick");
    Manager manager;
    QDirModel *model = Manager::model(manager.usbView);
    manager.usbView->setRootIndex(model->index(home() + "/mnt/Storage"));
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    manager.button("<<")->click();
    // The name counts, in the stick's directory.
    QCOMPARE(readFile(programDir() + "/part.cnc"), QByteArray("stick"));
}

void TestTransferCommands::statusLineIsRestoredByEveryEnd()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "x");
    Manager manager;
    const QString before = manager.status->text();
    const char *const scripts[] = {"exit 1\n", "exit 0\n"};
    for (const char *script : scripts) {
        Shell::standIn("cp", script);
        Shell::standIn("rm", script);
        QVERIFY(select(manager, way, "part.cnc"));
        QString during;
        Shell::setBefore([&] { during = manager.status->text(); });
        ModalDriver driver;
        if (!*way->coverQuestion)
            driver.press(QMessageBox::Yes);
        if (QByteArray(script) == "exit 1\n")
            driver.press(QMessageBox::Ok);
        manager.button(way->button)->click();
        QVERIFY2(driver.finished(), driver.report());
        QCOMPARE(during, QString("Processing..."));
        QCOMPARE(manager.status->text(), before);
    }
}

void TestTransferCommands::stickPulledAtTheQuestion()
{
    QFETCH(const Way *, way);
    writeFile(programDir() + "/part.cnc", "panel");
    writeFile(stickDir() + "/part.cnc", "stick");
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    ModalDriver driver;
    driver.then([](QWidget *widget) {
        pullStick();
        static_cast<QDialog *>(widget)->done(QMessageBox::Yes);
    });
    // The delete finds nothing to do on the stick; the copy fails.
    const bool copies = *way->coverQuestion;
    if (copies)
        driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    if (copies)
        EXPECT_CRITICAL(driver.boxes().value(0), way, "Copy file failed!");
    // A cover from the stick has lost the old file by then.
    QCOMPARE(QFile::exists(programDir() + "/part.cnc"), way == &toUsb || way == &delUsb);
    QVERIFY(manager.status->text().endsWith(" Usb not found!"));
    QVERIFY(!QFile::exists(stickDir()));
}

void TestTransferCommands::stickPulledBetweenTestAndCommand()
{
    QFETCH(const Way *, way);
    writeFile(sourceDir(way) + "/part.cnc", "x");
    Manager manager;
    QVERIFY(select(manager, way, "part.cnc"));
    Shell::setBefore([] { pullStick(); });
    ModalDriver driver;
    driver.press(QMessageBox::Ok);
    manager.button(way->button)->click();
    QVERIFY2(driver.finished(), driver.report());
    EXPECT_CRITICAL(driver.boxes().value(0), way, "Copy file failed!");
    QCOMPARE(commandsBeforeSync(), QList<QByteArray>() << cp(way, "part.cnc"));
    QCOMPARE(QFile::exists(programDir() + "/part.cnc"), way->fromHmi);
}

// A file's name and the question mark behind it are no text of ours.
void TestTransferCommands::messagesAreTranslatedInTheClassesContext()
{
    QFETCH(const Way *, way);
    const bool copies = *way->coverQuestion;
    writeFile(sourceDir(way) + "/part.cnc", "x");
    const TestCompat::MarkingTranslator translator("ImportManage");
    Manager manager;
    QPushButton *button = manager.button(QByteArray(way->button) + '*');
    QVERIFY(button);
    Shell::standIn("cp", "exit 1\n");
    Shell::standIn("rm", "exit 1\n");
    QString during;
    Shell::setBefore([&] { during = manager.status->text(); });
    ModalDriver driver;
    QStringList texts;

    texts << QString(way->nothingSelected) + '*';
    driver.press(QMessageBox::Ok);
    button->click();
    if (copies) {
        texts << "Copy file failed!*";
        QVERIFY(select(manager, way, "part.cnc"));
        driver.press(QMessageBox::Ok);
        button->click();

        texts << QString("part.cnc") + way->coverQuestion + '*' << "Can't cover this file!*";
        writeFile(targetDir(way) + "/part.cnc", "old");
        QVERIFY(select(manager, way, "part.cnc"));
        driver.press(QMessageBox::Yes);
        driver.press(QMessageBox::Ok);
        button->click();

        texts << QString(way->noStick) + '*';
        QVERIFY(select(manager, way, "part.cnc"));
        pullStick();
        driver.press(QMessageBox::Ok);
        button->click();
    } else {
        texts << "Are you sure to delete *part.cnc?"
              << "Can't delete this file.*";
        QVERIFY(select(manager, way, "part.cnc"));
        driver.press(QMessageBox::Yes);
        driver.press(QMessageBox::Ok);
        button->click();
    }
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(during, QString("Processing...*"));
    QStringList shown;
    Q_FOREACH (const ModalDriver::Box &box, driver.boxes()) {
        QCOMPARE(box.title, QString(way->title) + '*');
        shown << box.text;
    }
    QCOMPARE(shown, texts);
}

void TestTransferCommands::refusalsAreTranslatedInTheClassesContext()
{
    writeSparse(stickDir() + "/huge.cnc", limit + 1);
    writeFile(stickDir() + "/folder", "new");
    writeFile(programDir() + "/folder/inner", "old");
    writeFile(stickDir() + "/part", "x");
    const TestCompat::MarkingTranslator translator("ImportManage");
    Manager manager;
    ModalDriver driver;

    QVERIFY(Manager::select(manager.usbView, "huge.cnc"));
    driver.press(QMessageBox::Ok);
    manager.button("<<*")->click();
    // The folder's own size is more than all that the files use.
    QVERIFY(Manager::select(manager.usbView, "folder"));
    driver.press(QMessageBox::Yes);
    driver.press(QMessageBox::Ok);
    manager.button("<<*")->click();
    QVERIFY(Manager::select(manager.usbView, "part"));
    QVERIFY(QFile::remove(stickDir() + "/part"));
    writeFile(stickDir() + "/part/inner", "x");
    driver.press(QMessageBox::Ok);
    manager.button("<<*")->click();

    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().value(0).text, QString("Not enough Space!*"));
    QCOMPARE(driver.boxes().value(2).text, QString("Unexpected error!*"));
    QCOMPARE(driver.boxes().value(3).text, QString("Font file can not be a Dir!*"));
}

void TestTransferCommands::everythingWithTheRealTools()
{
    Shell::reset();
    QByteArray program;
    for (int line = 0; line < 5000; ++line)
        program += "N" + QByteArray::number(10 * line) + " G01 X" + QByteArray::number(line) + '\n';
    writeFile(stickDir() + "/part.cnc", program);
    Manager manager;
    ModalDriver driver;

    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    manager.button("<<")->click();
    QCOMPARE(readFile(programDir() + "/part.cnc"), program);

    writeFile(stickDir() + "/part.cnc", "M30\n");
    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    driver.press(QMessageBox::Yes);
    manager.button("<<")->click();
    QCOMPARE(readFile(programDir() + "/part.cnc"), QByteArray("M30\n"));

    QVERIFY(Manager::select(manager.usbView, "part.cnc"));
    driver.press(QMessageBox::Yes);
    manager.button("Del<")->click();
    QCOMPARE(Manager::shown(manager.usbView), QStringList());

    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    manager.button(">>")->click();
    QCOMPARE(readFile(stickDir() + "/part.cnc"), QByteArray("M30\n"));

    QVERIFY(Manager::select(manager.hmiView, "part.cnc"));
    driver.press(QMessageBox::Yes);
    manager.button(">Del")->click();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(Manager::shown(manager.hmiView), QStringList());
    QCOMPARE(Manager::shown(manager.usbView), QStringList("part.cnc"));
}

FILARIX_TEST_MAIN(TestTransferCommands)
#include "tst_transfercommands.moc"
