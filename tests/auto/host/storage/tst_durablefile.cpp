// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/durablefile.h"

#include <QDir>
#include <QFileInfo>

#include <cstring>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs with a home of 256 KB, which CMakeLists.txt asks for.
class TestDurableFile : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bytesComeBack_data();
    void bytesComeBack();
    void oldFileStandsUntilTheCommit();
    void permissionsAreKept_data();
    void permissionsAreKept();
    void newFileIsAsReadableAsAnyOther();
    void ownerIsKept();
    void linkStaysALink();
    void fullDiskLeavesTheOldFile();
    void folderThatTakesNothing();
    void folderThatIsMissing();
    void placeThatIsAFolder();
    void longNames_data();
    void longNames();
    void refusedCommitChangesNothing();
    void questionComesAfterTheBytes();
    void whatWasNotCommittedGoes();
    void twoWritersDoNotMix();
    void temporaryNames_data();
    void temporaryNames();
    void killLeavesTheOldFileOrTheNew();

private:
    QStringList names() const;

    QString m_folder;
    QString m_path;
};

static bool replace(const QString &path, const QByteArray &bytes, QString *error)
{
    DurableFile file(path);
    const bool done = file.open() && file.write(bytes) && file.commit();
    *error = file.errorString();
    return done;
}

static mode_t rightsOf(const QString &path)
{
    struct stat info = {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

void TestDurableFile::init()
{
    FilarixTest::init();
    m_folder = home() + "/files";
    QVERIFY(QDir().mkpath(m_folder));
    m_path = m_folder + "/coil.cnc";
}

QStringList TestDurableFile::names() const
{
    return QDir(m_folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
}

void TestDurableFile::bytesComeBack_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray all;
    for (int i = 0; i < 256; ++i)
        all += char(i);
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("every byte there is") << all;
    QTest::newRow("long") << all.repeated(400);
}

void TestDurableFile::bytesComeBack()
{
    QFETCH(QByteArray, bytes);
    QString error;
    for (int i = 0; i < 2; ++i) {
        QVERIFY2(replace(m_path, bytes, &error), qPrintable(error));
        QCOMPARE(readFile(m_path), bytes);
        QCOMPARE(names(), QStringList("coil.cnc"));
    }
}

void TestDurableFile::oldFileStandsUntilTheCommit()
{
    writeFile(m_path, "old\n");
    DurableFile file(m_path);
    QVERIFY(file.open());
    QVERIFY(file.isOpen());
    QVERIFY(file.write("new"));
    QVERIFY(file.write("er\n"));
    QCOMPARE(readFile(m_path), QByteArray("old\n"));
    QVERIFY(file.commit());
    QVERIFY(!file.isOpen());
    QCOMPARE(readFile(m_path), QByteArray("newer\n"));
}

void TestDurableFile::permissionsAreKept_data()
{
    QTest::addColumn<int>("rights");
    QTest::newRow("for a group") << 0640;
    QTest::newRow("for the owner") << 0600;
    QTest::newRow("for all to write") << 0666;
    QTest::newRow("to read alone") << 0444;
}

void TestDurableFile::permissionsAreKept()
{
    QFETCH(int, rights);
    writeFile(m_path, "old\n");
    QCOMPARE(::chmod(QFile::encodeName(m_path).constData(), mode_t(rights)), 0);
    QString error;
    QVERIFY2(replace(m_path, "new\n", &error), qPrintable(error));
    QCOMPARE(int(rightsOf(m_path)), rights);
    QCOMPARE(readFile(m_path), QByteArray("new\n"));
}

void TestDurableFile::newFileIsAsReadableAsAnyOther()
{
    QString error;
    QVERIFY(replace(m_path, "new\n", &error));
    writeFile(m_folder + "/usual.cnc", "x");
    QCOMPARE(rightsOf(m_path), rightsOf(m_folder + "/usual.cnc"));
}

// Nobody here may give a file away; that it stays ours, in its group, is what can be seen.
void TestDurableFile::ownerIsKept()
{
    writeFile(m_path, "old\n");
    struct stat before = {};
    struct stat after = {};
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &before), 0);
    QString error;
    QVERIFY(replace(m_path, "new\n", &error));
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &after), 0);
    QCOMPARE(after.st_uid, before.st_uid);
    QCOMPARE(after.st_gid, before.st_gid);
    QVERIFY(after.st_ino != before.st_ino);
}

void TestDurableFile::linkStaysALink()
{
    writeFile(home() + "/elsewhere/real.cnc", "old\n");
    QVERIFY(QFile::link("../elsewhere/real.cnc", m_path));
    QString error;
    QVERIFY2(replace(m_path, "new\n", &error), qPrintable(error));
    QVERIFY(QFileInfo(m_path).isSymLink());
    QCOMPARE(readFile(home() + "/elsewhere/real.cnc"), QByteArray("new\n"));
    QCOMPARE(QDir(home() + "/elsewhere").entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestDurableFile::fullDiskLeavesTheOldFile()
{
    const QByteArray old(50000, 'o');
    writeFile(m_path, old);
    QString error;
    QVERIFY(!replace(m_path, QByteArray(300000, 'n'), &error));
    QCOMPARE(error, QString("No space left on device"));
    QCOMPARE(readFile(m_path), old);
    QCOMPARE(names(), QStringList("coil.cnc"));
    // What was written of the other one is free again.
    QVERIFY2(replace(m_path, QByteArray(100000, 'n'), &error), qPrintable(error));
}

void TestDurableFile::folderThatTakesNothing()
{
    writeFile(m_path, "old\n");
    QVERIFY(QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::ExeOwner));
    QString error;
    const bool isReplaced = replace(m_path, "new\n", &error);
    QVERIFY(
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(!isReplaced);
    QCOMPARE(error, QString("Permission denied"));
    QVERIFY(!replace("/usr/bin/coil.cnc", "new\n", &error));
    QCOMPARE(error, QString("Read-only file system"));
    QCOMPARE(readFile(m_path), QByteArray("old\n"));
}

void TestDurableFile::folderThatIsMissing()
{
    QString error;
    QVERIFY(!replace(home() + "/nowhere/coil.cnc", "new\n", &error));
    QCOMPARE(error, QString("No such file or directory"));
}

void TestDurableFile::placeThatIsAFolder()
{
    QVERIFY(QDir().mkpath(m_path + "/inside"));
    QString error;
    QVERIFY(!replace(m_path, "new\n", &error));
    QCOMPARE(error, QString("Is a directory"));
    QVERIFY(QFileInfo(m_path + "/inside").isDir());
    QVERIFY(names().isEmpty());
}

void TestDurableFile::longNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("255 bytes") << QString(251, 'x') + ".cnc";
    QTest::newRow("255 bytes in two each") << QString(125, QChar(0xe4)) + "x.cnc";
    QTest::newRow("a hidden one") << QString(".cnc");
    QTest::newRow("what a program would be asked by") << QString("-rf *?\n\"$'\\");
}

void TestDurableFile::longNames()
{
    QFETCH(QString, name);
    QString error;
    for (const char *bytes : {"old\n", "new\n"}) {
        QVERIFY2(replace(m_folder + '/' + name, bytes, &error), qPrintable(error));
        QCOMPARE(readFile(m_folder + '/' + name), QByteArray(bytes));
    }
    QCOMPARE(names(), QStringList(name));
}

void TestDurableFile::refusedCommitChangesNothing()
{
    writeFile(m_path, "old\n");
    DurableFile file(m_path);
    QVERIFY(file.open() && file.write("new\n"));
    QVERIFY(!file.commit([] { return false; }));
    QVERIFY(file.errorString().isEmpty());
    QCOMPARE(readFile(m_path), QByteArray("old\n"));
    QCOMPARE(names(), QStringList("coil.cnc"));
}

void TestDurableFile::questionComesAfterTheBytes()
{
    writeFile(m_path, "old\n");
    DurableFile file(m_path);
    QVERIFY(file.open() && file.write("new\n"));
    int questions = 0;
    QVERIFY(file.commit([&] {
        ++questions;
        return readFile(file.temporaryPath()) == "new\n" && readFile(m_path) == "old\n";
    }));
    QCOMPARE(questions, 1);
    QCOMPARE(readFile(m_path), QByteArray("new\n"));
    QVERIFY(file.temporaryPath().isEmpty());
}

void TestDurableFile::whatWasNotCommittedGoes()
{
    writeFile(m_path, "old\n");
    {
        DurableFile file(m_path);
        QVERIFY(file.open() && file.write("new\n"));
        QCOMPARE(names().size(), 2);
    }
    QCOMPARE(names(), QStringList("coil.cnc"));
    DurableFile file(m_path);
    QVERIFY(file.open() && file.write("new\n"));
    file.cancel();
    QVERIFY(!file.commit());
    QCOMPARE(names(), QStringList("coil.cnc"));
    QCOMPARE(readFile(m_path), QByteArray("old\n"));
}

void TestDurableFile::twoWritersDoNotMix()
{
    DurableFile one(m_path);
    DurableFile two(m_path);
    QVERIFY(one.open() && two.open());
    QVERIFY(one.temporaryPath() != two.temporaryPath());
    QVERIFY(one.write("one\n") && two.write("two\n"));
    QVERIFY(one.commit());
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    QVERIFY(two.commit());
    QCOMPARE(readFile(m_path), QByteArray("two\n"));
}

void TestDurableFile::temporaryNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTemporary");
    QTest::newRow("ours") << ".filarix-coil.cnc.abcdefgh0123" << true;
    QTest::newRow("a program") << "coil.cnc" << false;
    QTest::newRow("hidden") << ".filarix-coil.cnc" << false;
    QTest::newRow("another program's") << ".coil.cnc.abcdefgh0123" << false;
    QTest::newRow("too short an end") << ".filarix-coil.cnc.abcdefgh012" << false;
    QTest::newRow("capitals") << ".filarix-coil.cnc.ABCDEFGH0123" << false;
}

void TestDurableFile::temporaryNames()
{
    QFETCH(QString, name);
    QTEST(DurableFile::isTemporary(name), "isTemporary");
    DurableFile file(m_path);
    QVERIFY(file.open());
    QVERIFY(DurableFile::isTemporary(QFileInfo(file.temporaryPath()).fileName()));
}

void TestDurableFile::killLeavesTheOldFileOrTheNew()
{
    const QByteArray old = QByteArray("old\n").repeated(1000);
    const QByteArray fresh = QByteArray("new\n").repeated(2000);
    enum { OpenOnly, HalfWritten, Written, BeforeTheRename, Done, Steps };
    for (int step = 0; step < Steps; ++step) {
        writeFile(m_path, old);
        const pid_t child = ::fork();
        if (child == 0) {
            DurableFile file(m_path);
            const bool opened = file.open();
            if (step >= HalfWritten)
                file.write(fresh.left(4000));
            if (step >= Written)
                file.write(fresh.mid(4000));
            if (step >= BeforeTheRename)
                file.commit([step] {
                    if (step == BeforeTheRename)
                        ::_exit(0);
                    return true;
                });
            ::_exit(opened ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
        QCOMPARE(readFile(m_path), step == Done ? fresh : old);
        const QStringList left = names();
        for (const QString &name : left) {
            QVERIFY(name == "coil.cnc" || DurableFile::isTemporary(name));
            if (name != "coil.cnc")
                QVERIFY(QFile::remove(m_folder + '/' + name));
        }
        QCOMPARE(left.size(), step == Done ? 1 : 2);
    }
}

FILARIX_TEST_MAIN(TestDurableFile)
#include "tst_durablefile.moc"
