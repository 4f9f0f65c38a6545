// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "heldfile.h"
#include "screens/taughtfolder.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QThread>

#include <memory>

#include <sys/stat.h>

class TestTaughtFolder : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aNameGetsItsSuffixOnce();
    void oldProgramsAreCopiedAndStay();
    void theProgramThatWasStoredLastComesFirst();
    void nothingElseIsCopied();
    void whatIsThereIsNotCovered_data();
    void whatIsThereIsNotCovered();
    void withoutOldProgramsNothingIsMade();
    void whatAKillLeftIsNoHindrance();
    void twoAtOnceLoseNothing();
    void aFullDiskIsToldAndTheOldFileIsRead();
    void aFolderThatCannotBeMadeIsTold();
    void aFileThatCannotBeReadIsTold();
    void whatIsGivenUpCopiesNothingMore();
    void aCopyThatHangsChangesNothingLater();

private:
    static QString earlier() { return home() + "/hmi"; }
    static QString folder() { return home() + "/hmi/taught"; }
    static QString first() { return folder() + "/program.teach"; }
};

static const QByteArray program("# Taught program\nOth\t1\t\tOth\tM05\n");

void TestTaughtFolder::aNameGetsItsSuffixOnce()
{
    QCOMPARE(TaughtFolder::pathOf("/f", "rotor"), QString("/f/rotor.teach"));
    QCOMPARE(TaughtFolder::pathOf("/f", "rotor.teach"), QString("/f/rotor.teach"));
    QCOMPARE(TaughtFolder::pathOf("/f", "rotor.TEACH"), QString("/f/rotor.TEACH"));
    QCOMPARE(TaughtFolder::pathOf("/f", "rotor.v2"), QString("/f/rotor.v2.teach"));
}

void TestTaughtFolder::oldProgramsAreCopiedAndStay()
{
    writeFile(earlier() + "/program.teach", program);
    writeFile(earlier() + "/rotor.teach", "# Taught program\n");
    QFile::setPermissions(earlier() + "/rotor.teach", QFileDevice::ReadOwner
                                                          | QFileDevice::WriteOwner
                                                          | QFileDevice::ReadGroup);
    const TaughtFolder::Adoption adoption = TaughtFolder::adopt(earlier(), folder());
    QCOMPARE(adoption.copied, (QStringList{"program.teach", "rotor.teach"}));
    QCOMPARE(adoption.error, QString());
    QCOMPARE(adoption.first, first());
    QCOMPARE(readFile(first()), program);
    QCOMPARE(readFile(earlier() + "/program.teach"), program);
    QCOMPARE(QFile::permissions(folder() + "/rotor.teach"),
             QFile::permissions(earlier() + "/rotor.teach"));
    // Once is enough.
    QCOMPARE(TaughtFolder::adopt(earlier(), folder()).copied, QStringList());
}

void TestTaughtFolder::theProgramThatWasStoredLastComesFirst()
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QStringList names{"program.teach", "rotor.teach", "stator.teach", "stator.teach.broken"};
    const int age[] = {30, 10, 20, 0};
    for (int i = 0; i < names.size(); ++i) {
        const QString path = folder() + '/' + names.at(i);
        writeFile(path, program);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(now.addSecs(-age[i]), QFileDevice::FileModificationTime));
    }
    QCOMPARE(TaughtFolder::adopt(QString(), folder()).first, folder() + "/rotor.teach");
    QCOMPARE(TaughtFolder::adopt(earlier(), folder()).first, folder() + "/rotor.teach");
}

void TestTaughtFolder::nothingElseIsCopied()
{
    for (const char *name : {"connections.ini", "program.teach.broken", ".hidden.teach", "teach"})
        writeFile(earlier() + '/' + name, "x");
    QVERIFY(QDir().mkpath(earlier() + "/folder.teach"));
    // Nobody writes into it: whoever reads it waits.
    QCOMPARE(::mkfifo(qPrintable(earlier() + "/pipe.teach"), 0600), 0);
    const TaughtFolder::Adoption adoption = TaughtFolder::adopt(earlier(), folder());
    QCOMPARE(adoption.copied, QStringList());
    QCOMPARE(adoption.error, QString());
    QVERIFY(!QFileInfo::exists(folder()));
}

void TestTaughtFolder::whatIsThereIsNotCovered_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the program") << "program.teach";
    // It was put aside, and is newer than the one in the old place.
    QTest::newRow("one put aside") << "program.teach.broken";
}

void TestTaughtFolder::whatIsThereIsNotCovered()
{
    QFETCH(QString, name);
    writeFile(earlier() + "/program.teach", program);
    writeFile(folder() + '/' + name, "newer");
    QCOMPARE(TaughtFolder::adopt(earlier(), folder()).copied, QStringList());
    QCOMPARE(readFile(folder() + '/' + name), QByteArray("newer"));
    QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList(name));
}

void TestTaughtFolder::withoutOldProgramsNothingIsMade()
{
    for (const QString &place : {earlier(), home() + "/nowhere"}) {
        const TaughtFolder::Adoption adoption = TaughtFolder::adopt(place, folder());
        QCOMPARE(adoption.first, first());
        QCOMPARE(adoption.error, QString());
    }
    QVERIFY(!QFileInfo::exists(folder()));
}

// A copy that a kill interrupts has not got its name, so the next start copies once more.
void TestTaughtFolder::whatAKillLeftIsNoHindrance()
{
    writeFile(earlier() + "/program.teach", program);
    writeFile(folder() + "/.filarix-program.teach.1", program.left(7));
    QCOMPARE(TaughtFolder::adopt(earlier(), folder()).copied, QStringList("program.teach"));
    QCOMPARE(readFile(first()), program);
}

void TestTaughtFolder::twoAtOnceLoseNothing()
{
    for (int round = 0; round < 20; ++round) {
        const QString to = folder() + QString::number(round);
        writeFile(earlier() + "/program.teach", program);
        TaughtFolder::Adoption other;
        const QString from = earlier();
        std::unique_ptr<QThread> thread(
            QThread::create([&] { other = TaughtFolder::adopt(from, to); }));
        thread->start();
        const TaughtFolder::Adoption own = TaughtFolder::adopt(from, to);
        QVERIFY(thread->wait(patience(10000)));
        QCOMPARE(own.error + other.error, QString());
        QVERIFY(own.copied.size() + other.copied.size() >= 1);
        QCOMPARE(readFile(to + "/program.teach"), program);
        QCOMPARE(QDir(to).entryList(QDir::Files | QDir::Hidden), QStringList("program.teach"));
    }
}

// The test's home has room for a megabyte.
void TestTaughtFolder::aFullDiskIsToldAndTheOldFileIsRead()
{
    const QByteArray large = program + QByteArray("Oth\t2\t\tOth\tM05\n").repeated(20000);
    writeFile(earlier() + "/program.teach", large);
    writeFile(home() + "/filler", QByteArray(600 * 1024, 'x'));
    const TaughtFolder::Adoption adoption = TaughtFolder::adopt(earlier(), folder());
    QVERIFY2(adoption.error.contains("No space left on device"), qPrintable(adoption.error));
    QCOMPARE(adoption.copied, QStringList());
    QCOMPARE(adoption.first, earlier() + "/program.teach");
    QCOMPARE(readFile(adoption.first), large);
    QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestTaughtFolder::aFolderThatCannotBeMadeIsTold()
{
    writeFile(earlier() + "/program.teach", program);
    writeFile(folder(), "a file where the folder should be");
    const TaughtFolder::Adoption adoption = TaughtFolder::adopt(earlier(), folder());
    QVERIFY2(adoption.error.contains("Not a directory"), qPrintable(adoption.error));
    QCOMPARE(adoption.first, earlier() + "/program.teach");
}

void TestTaughtFolder::aFileThatCannotBeReadIsTold()
{
    writeFile(earlier() + "/a.teach", program);
    writeFile(earlier() + "/b.teach", program);
    QFile::setPermissions(earlier() + "/a.teach", QFileDevice::Permissions());
    const TaughtFolder::Adoption adoption = TaughtFolder::adopt(earlier(), folder());
    QVERIFY2(adoption.error.contains("a.teach") && adoption.error.contains("Permission denied"),
             qPrintable(adoption.error));
    QCOMPARE(adoption.copied, QStringList("b.teach"));
    QFile::setPermissions(earlier() + "/a.teach", QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void TestTaughtFolder::whatIsGivenUpCopiesNothingMore()
{
    for (const char *name : {"/a.teach", "/b.teach", "/c.teach"})
        writeFile(earlier() + name, program);
    TaughtFolder::Adopting task(earlier(), folder());
    QVERIFY(task.step());
    QVERIFY(!QDir(folder()).exists());
    QVERIFY(task.step());
    task.giveUp();
    QVERIFY(!task.step());
    QVERIFY(!task.isUncertain());
    QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList("a.teach"));
    QCOMPARE(task.adoption().copied, QStringList("a.teach"));
    // The next start does the rest.
    QCOMPARE(TaughtFolder::adopt(earlier(), folder()).copied, (QStringList{"b.teach", "c.teach"}));
}

void TestTaughtFolder::aCopyThatHangsChangesNothingLater()
{
    writeFile(earlier() + "/a.teach", program);
    writeFile(earlier() + "/b.teach", program);
    HeldFile held(earlier() + "/a.teach");
    QVERIFY(held.isHeld());
    std::shared_ptr<TaughtFolder::Adopting> task =
        std::make_shared<TaughtFolder::Adopting>(earlier(), folder());
    const std::weak_ptr<TaughtFolder::Adopting> running = task;
    {
        FileTaskRunner runner;
        runner.setStallTime(100);
        QSignalSpy stalled(&runner, SIGNAL(stalled()));
        runner.start(task);
        QTRY_COMPARE(stalled.size(), 1);
    }
    task.reset();
    QVERIFY(!running.expired());
    held.letGo();
    // The thread keeps the task for as long as it works on it.
    QTRY_VERIFY(running.expired());
    QCOMPARE(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

FILARIX_TEST_MAIN(TestTaughtFolder)
#include "tst_taughtfolder.moc"
