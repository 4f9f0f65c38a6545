// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "managerfixture.h"
#include "modaldriver.h"
#include "shell.h"
#include "stick/transfernames.h"

#include <QCryptographicHash>
#include <QDirIterator>

#include <cstdio>
#include <random>

class TestTransferNames : public ManagerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Shell::reset(); }
    void init();
    void cleanup();

    void safeNames_data();
    void safeNames();
    void safeCharactersAreTheseAndNoOthers();
    void proposals_data();
    void proposals();
    void proposalOfAnyNameIsSafeAndFree();
    void proposalOfALongNameIsNoLonger();
    void unsafeInListsWhatTheManagerWould();
    void nameThatIsNoTextIsSeenByBothOrNeither();
    void renameNeverReplacesAFile();
    void renameTakesSafeNamesOnly();

    void nameReachesTheShellWithoutTheCheck();
    void blankAndStarReachTheWorkingDirectoryWithoutTheCheck();
    void behindTheCheckNothingElseIsTouched_data();
    void behindTheCheckNothingElseIsTouched();

private:
    static void makeSafe(const QString &dir);
    static QStringList everythingElse();
};

namespace {

QString umlaut()
{
    return QString::fromUtf8("\xc3\xbc-umlaut");
}

QStringList hostileNames()
{
    return QStringList() << "a b"
                         << "old *"
                         << "$(touch x)"
                         << "`touch x`"
                         << ";reboot"
                         << "a;reboot"
                         << "a&reboot"
                         << "a|reboot"
                         << "a\nreboot"
                         << "a>canary"
                         << "-rf" << umlaut() << "?"
                         << "[a-z]*"
                         << "it's"
                         << "say \"so\""
                         << "back\\slash"
                         << "~"
                         << "#"
                         << "<b>bold";
}

/// What lies in both lists of a test that never shows.
QStringList noNames()
{
    return QStringList();
}

} // namespace

void TestTransferNames::init()
{
    ManagerTest::init();
    Shell::reset();
    Shell::standIn("sync", "exit 0\n");
    plugStick();
    emptyFolder("/tmp/cwd");
    QDir().mkpath("/tmp/cwd");
    QVERIFY(QDir::setCurrent("/tmp/cwd"));
}

void TestTransferNames::cleanup()
{
    Shell::reset();
    QVERIFY(QDir::setCurrent("/tmp"));
    ManagerTest::cleanup();
}

void TestTransferNames::safeNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("safe");
    QTest::newRow("program") << "part.cnc" << true;
    QTest::newRow("digits") << "0815" << true;
    QTest::newRow("underscore first") << "_part" << true;
    QTest::newRow("hyphen and plus inside") << "a-b+c.v2.cnc" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("hidden") << ".part" << false;
    QTest::newRow("folder itself") << "." << false;
    QTest::newRow("hidden, nothing but dots") << "..." << false;
    QTest::newRow("parent folder") << ".." << false;
    QTest::newRow("option") << "-rf" << false;
    QTest::newRow("path") << "a/b" << false;
    QTest::newRow("letter beyond ASCII") << QString(QChar(0xe9)) << false;
    QTest::newRow("digit beyond ASCII") << QString(QChar(0x0663)) << false;
    QTest::newRow("NUL") << QString("a") + QChar(0) << false;
    Q_FOREACH (const QString &name, hostileNames())
        QTest::newRow(qPrintable("hostile " + name)) << name << false;
}

void TestTransferNames::safeNames()
{
    QFETCH(QString, name);
    QTEST(TransferNames::isSafe(name), "safe");
}

void TestTransferNames::safeCharactersAreTheseAndNoOthers()
{
    QString safe;
    for (int code = 0; code < 0x10000; ++code) {
        if (TransferNames::isSafe(QString("a") + QChar(code)))
            safe += QChar(code);
    }
    QCOMPARE(safe, QString("+-.0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz"));
}

void TestTransferNames::proposals_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("proposal");
    QTest::newRow("safe and free") << "part.cnc" << noNames() << "part.cnc";
    QTest::newRow("safe and taken") << "part.cnc" << QStringList("part.cnc") << "part_2.cnc";
    QTest::newRow("taken in other letters")
        << "part.cnc" << QStringList("PART.CNC") << "part_2.cnc";
    QTest::newRow("the second taken too") << "a b.cnc"
                                          << (QStringList() << "a_b.cnc"
                                                            << "a_b_2.cnc")
                                          << "a_b_3.cnc";
    QTest::newRow("blank") << "a b.cnc" << noNames() << "a_b.cnc";
    QTest::newRow("run of signs") << "a  (1) b.cnc" << noNames() << "a_1_b.cnc";
    QTest::newRow("star at the end") << "old *" << noNames() << "old";
    QTest::newRow("command") << "$(touch x)" << noNames() << "touch_x";
    QTest::newRow("semicolon") << ";reboot" << noNames() << "reboot";
    QTest::newRow("option") << "-rf" << noNames() << "rf";
    QTest::newRow("accent is dropped") << umlaut() << noNames() << "u-umlaut";
    QTest::newRow("several suffixes") << "a b.v2.cnc" << noNames() << "a_b.v2.cnc";
    QTest::newRow("unsafe suffix") << "part.c c" << noNames() << "part.c_c";
    QTest::newRow("suffix of signs") << "part.*" << noNames() << "part";
    QTest::newRow("nothing left") << "***" << noNames() << "program";
    QTest::newRow("nothing left but the suffix")
        << QString::fromUtf8("\xe7\xbb\x95.cnc") << noNames() << "program.cnc";
    QTest::newRow("empty") << "" << noNames() << "program";
}

void TestTransferNames::proposals()
{
    QFETCH(QString, name);
    QFETCH(QStringList, taken);
    QTEST(TransferNames::proposal(name, taken), "proposal");
}

void TestTransferNames::proposalOfAnyNameIsSafeAndFree()
{
    std::mt19937 random(20260101);
    const QString alphabet =
        QString::fromUtf8("abZ09._-+ *?[]{}()<>|&;$`'\"\\\n\t~#!\xc3\xbc\xe7\xbb\x95\xcc\x88");
    QStringList taken;
    for (int i = scaled(20000); i > 0; --i) {
        QString name;
        for (int length = int(random() % 12); length > 0; --length)
            name += alphabet.at(int(random() % uint(alphabet.size())));
        const QString proposal = TransferNames::proposal(name, taken);
        QVERIFY2(TransferNames::isSafe(proposal), qPrintable(name + " -> " + proposal));
        QVERIFY2(!taken.contains(proposal, Qt::CaseInsensitive), qPrintable(proposal));
        if (taken.size() < 100)
            taken << proposal;
    }
}

void TestTransferNames::proposalOfALongNameIsNoLonger()
{
    const QString name = QString(250, 'x') + " y.cnc";
    const QString proposal = TransferNames::proposal(name, noNames());
    QVERIFY(proposal.size() <= 255);
    QVERIFY(proposal.startsWith("xxx") && proposal.endsWith(".cnc"));
    QVERIFY(TransferNames::proposal("a." + QString(250, 'y') + '*', noNames()).size() <= 255);
}

void TestTransferNames::unsafeInListsWhatTheManagerWould()
{
    QCOMPARE(TransferNames::unsafeIn(stickDir()), noNames());
    writeFile(stickDir() + "/part.cnc", "x");
    writeFile(stickDir() + "/b c", "x");
    writeFile(stickDir() + "/a b", "x");
    writeFile(stickDir() + "/.hidden one", "x");
    writeFile(stickDir() + "/a folder/x y", "x");
    QVERIFY(QFile::link(stickDir() + "/part.cnc", stickDir() + "/a link"));
    QCOMPARE(TransferNames::unsafeIn(stickDir()), QStringList() << "a b"
                                                                << "b c");
    QCOMPARE(TransferNames::unsafeIn(stickDir() + "/nowhere"), noNames());
}

// A stick written in another encoding: the check sees what can be selected, and no more.
void TestTransferNames::nameThatIsNoTextIsSeenByBothOrNeither()
{
    std::FILE *file = std::fopen("/mnt/Storage/\xff.cnc", "w");
    QVERIFY(file);
    std::fclose(file);
    const QStringList unsafe = TransferNames::unsafeIn(stickDir());
    QStringList shown;
    {
        Manager manager;
        shown = Manager::shown(manager.usbView);
    }
    QCOMPARE(std::remove("/mnt/Storage/\xff.cnc"), 0);
    QCOMPARE(unsafe, shown);
    // The embedded toolkit puts a mark in the place of what is no text.
#if defined(Q_WS_QWS)
    QCOMPARE(shown.size(), 1);
#else
    QCOMPARE(shown, noNames());
#endif
}

void TestTransferNames::renameNeverReplacesAFile()
{
    writeFile(stickDir() + "/a b", "new");
    writeFile(stickDir() + "/a_b", "old");
    QVERIFY(!TransferNames::rename(stickDir(), "a b", "a_b"));
    QCOMPARE(readFile(stickDir() + "/a_b"), QByteArray("old"));
    QVERIFY(TransferNames::rename(stickDir(), "a b", "a_b_2"));
    QCOMPARE(readFile(stickDir() + "/a_b_2"), QByteArray("new"));
    QVERIFY(!QFile::exists(stickDir() + "/a b"));
}

void TestTransferNames::renameTakesSafeNamesOnly()
{
    writeFile(stickDir() + "/a b", "x");
    QVERIFY(!TransferNames::rename(stickDir(), "a b", "c d"));
    QVERIFY(!TransferNames::rename(stickDir(), "a b", "../a"));
    QVERIFY(QFile::exists(stickDir() + "/a b"));
}

void TestTransferNames::makeSafe(const QString &dir)
{
    Q_FOREACH (const QString &name, TransferNames::unsafeIn(dir)) {
        const QStringList taken = QDir(dir).entryList(QDir::AllEntries | QDir::Hidden);
        QVERIFY(TransferNames::rename(dir, name, TransferNames::proposal(name, taken)));
    }
    QCOMPARE(TransferNames::unsafeIn(dir), noNames());
}

/// All that a command could reach but the two directories: path, and digest of the content.
QStringList TestTransferNames::everythingElse()
{
    QStringList entries;
    Q_FOREACH (const QString &root, QStringList() << "/tmp"
                                                  << "/mnt"
                                                  << "/run/user"
                                                  << "/usr/share/qt") {
        QDirIterator iterator(root, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                              QDirIterator::Subdirectories);
        while (iterator.hasNext()) {
            const QString path = iterator.next();
            if (path.startsWith(programDir() + '/') || path.startsWith(stickDir() + '/'))
                continue;
            // The embedded toolkit's own cache of letters.
            if (path.startsWith("/tmp/qtembedded-"))
                continue;
            const QByteArray digest =
                QCryptographicHash::hash(readFile(path), QCryptographicHash::Md5);
            entries << path + ' ' + QLatin1String(digest.toHex());
        }
    }
    entries.sort();
    return entries;
}

void TestTransferNames::nameReachesTheShellWithoutTheCheck()
{
    Shell::standIn("reboot", "echo reboot >> /tmp/tools.log\n");
    writeFile(stickDir() + "/;reboot", "x");
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, ";reboot"));
    // The last command of the line decides: nothing is reported.
    manager.button("<<")->click();
    QVERIFY(Shell::toolCalls().contains("reboot"));
}

void TestTransferNames::blankAndStarReachTheWorkingDirectoryWithoutTheCheck()
{
    writeFile("/tmp/cwd/canary", "x");
    writeFile(stickDir() + "/old *", "x");
    Manager manager;
    QVERIFY(Manager::select(manager.usbView, "old *"));
    ModalDriver driver;
    driver.press(QMessageBox::Yes);
    manager.button("Del<")->click();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!QFile::exists("/tmp/cwd/canary"));
    QVERIFY(QFile::exists(stickDir() + "/old *"));
}

void TestTransferNames::behindTheCheckNothingElseIsTouched_data()
{
    QTest::addColumn<QStringList>("names");
    Q_FOREACH (const QString &name, hostileNames().mid(0, 5))
        QTest::newRow(qPrintable(name)) << QStringList(name);
    QTest::newRow("all of them") << hostileNames();
    QTest::newRow("two that become one") << (QStringList() << "a b"
                                                           << "a*b"
                                                           << "a_b");
}

void TestTransferNames::behindTheCheckNothingElseIsTouched()
{
    QFETCH(QStringList, names);
    writeFile("/tmp/cwd/canary", "x");
    writeFile("/tmp/cwd/b", "x");
    writeFile(home() + "/canary", "x");
    writeFile(stickDir() + "/bystander", "stick");
    writeFile(programDir() + "/bystander", "panel");
    const char *const commands[] = {"reboot", "touch", "slash", "so"};
    for (const char *command : commands)
        Shell::standIn(command, "echo called >> /tmp/tools.log\n");
    int files = 0;
    Q_FOREACH (const QString &name, names)
        writeFile(stickDir() + '/' + name, "content of " + name.toUtf8());
    makeSafe(stickDir());
    const QStringList before = everythingElse();

    Manager manager;
    const QStringList safe = Manager::shown(manager.usbView);
    Q_FOREACH (const QString &name, safe) {
        if (name == "bystander")
            continue;
        ++files;
        const QByteArray content = readFile(stickDir() + '/' + name);
        ModalDriver driver;
        QVERIFY(Manager::select(manager.usbView, name));
        manager.button("<<")->click();
        QCOMPARE(readFile(programDir() + '/' + name), content);
        QVERIFY(Manager::select(manager.usbView, name));
        driver.press(QMessageBox::Yes);
        manager.button("<<")->click();
        QVERIFY(Manager::select(manager.hmiView, name));
        driver.press(QMessageBox::Yes);
        manager.button(">>")->click();
        QCOMPARE(readFile(stickDir() + '/' + name), content);
        QVERIFY(Manager::select(manager.usbView, name));
        driver.press(QMessageBox::Yes);
        manager.button("Del<")->click();
        QVERIFY(Manager::select(manager.hmiView, name));
        driver.press(QMessageBox::Yes);
        manager.button(">Del")->click();
        QVERIFY2(driver.finished(), driver.report());
    }
    QVERIFY(files > 0);
    QCOMPARE(everythingElse(), before);
    QCOMPARE(Shell::toolCalls(), noNames());
    QCOMPARE(Manager::shown(manager.usbView), QStringList("bystander"));
    QCOMPARE(readFile(stickDir() + "/bystander"), QByteArray("stick"));
    QCOMPARE(readFile(programDir() + "/bystander"), QByteArray("panel"));
}

FILARIX_TEST_MAIN(TestTransferNames)
#include "tst_transfernames.moc"
