// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/unsavedsession.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestUnsavedSession : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void folderIsMadeForItsOwnerAlone();
    void twoSessionsHaveFoldersOfTheirOwn();
    void heldSessionIsNotLeft();
    void newestIsFirst();
    void noMoreThanAnOperatorWouldLookThrough();
    void emptyOnesAreClearedAway();
    void othersAreNoSessions_data();
    void othersAreNoSessions();
    void removeTakesWhatTheProgramKeeps();
    void removeLeavesStrangersAlone();
    void sessionOfAKilledProgramIsLeft();
    void placeThatTakesNothingHasItsReason();

private:
    QStringList names() const;
    QString makeOld(const QString &name) const;

    QString m_folder;
};

void TestUnsavedSession::init()
{
    FilarixTest::init();
    m_folder = home() + "/hmi/unsaved";
}

QStringList TestUnsavedSession::names() const
{
    return QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// As an earlier run left it, with a file.
QString TestUnsavedSession::makeOld(const QString &name) const
{
    const QString path = m_folder + '/' + name;
    writeFile(path + "/program.kept", "some work");
    return path;
}

void TestUnsavedSession::folderIsMadeForItsOwnerAlone()
{
    const UnsavedSession::Pointer session = UnsavedSession::make(m_folder);
    QVERIFY(session != nullptr);
    QCOMPARE(QFileInfo(session->path()).path(), m_folder);
    QCOMPARE(session->filePath("program.kept"), QString(session->path() + "/program.kept"));
    struct stat facts = {};
    QCOMPARE(::stat(QFile::encodeName(session->path()).constData(), &facts), 0);
    QCOMPARE(int(facts.st_mode & 0777), 0700);
}

void TestUnsavedSession::twoSessionsHaveFoldersOfTheirOwn()
{
    const UnsavedSession::Pointer first = UnsavedSession::make(m_folder);
    const UnsavedSession::Pointer second = UnsavedSession::make(m_folder);
    QVERIFY(first && second);
    QVERIFY(first->path() != second->path());
}

void TestUnsavedSession::heldSessionIsNotLeft()
{
    UnsavedSession::Pointer session = UnsavedSession::make(m_folder);
    writeFile(session->filePath("program.kept"), "some work");
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    session.reset();
    const QList<UnsavedSession::Pointer> left = UnsavedSession::left(m_folder);
    QCOMPARE(left.size(), 1);
    // Whoever found it holds it.
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
}

void TestUnsavedSession::newestIsFirst()
{
    const QString first = makeOld("20260101-080000-000-77-0");
    const QString last = makeOld("20260304-123100-500-12-0");
    const QString middle = makeOld("20260304-123100-499-99-0");
    const QList<UnsavedSession::Pointer> left = UnsavedSession::left(m_folder);
    QCOMPARE(left.size(), 3);
    QCOMPARE(left.at(0)->path(), last);
    QCOMPARE(left.at(1)->path(), middle);
    QCOMPARE(left.at(2)->path(), first);
}

void TestUnsavedSession::noMoreThanAnOperatorWouldLookThrough()
{
    for (int i = 0; i < 30; ++i)
        makeOld(QString("20260304-1231%1-000-1-0").arg(i, 2, 10, QChar('0')));
    QCOMPARE(UnsavedSession::left(m_folder).size(), 20);
    // The others wait.
    QCOMPARE(names().size(), 30);
}

void TestUnsavedSession::emptyOnesAreClearedAway()
{
    QVERIFY(QDir().mkpath(m_folder + "/20260101-080000-000-77-0"));
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    QVERIFY(names().isEmpty());
}

void TestUnsavedSession::othersAreNoSessions_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("another name") << QString("backup");
    QTest::newRow("more behind it") << QString("20260101-080000-000-77-0.old");
    QTest::newRow("less") << QString("20260101-080000-000-77");
}

void TestUnsavedSession::othersAreNoSessions()
{
    QFETCH(QString, name);
    makeOld(name);
    QVERIFY(QDir().mkpath(m_folder + "/empty"));
    QVERIFY(QFile::link("/tmp", m_folder + "/20260101-080000-000-77-1"));
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    QCOMPARE(names().size(), 3);
}

void TestUnsavedSession::removeTakesWhatTheProgramKeeps()
{
    const UnsavedSession::Pointer session = UnsavedSession::make(m_folder);
    writeFile(session->filePath("program.kept"), "some work");
    writeFile(session->filePath("program.changes"), "more");
    writeFile(session->filePath(".filarix-program.kept.abcdefghijkl"), "half of it");
    QVERIFY(session->remove());
    QVERIFY(names().isEmpty());
    QVERIFY(session->remove());
}

void TestUnsavedSession::removeLeavesStrangersAlone()
{
    const UnsavedSession::Pointer session = UnsavedSession::make(m_folder);
    writeFile(session->filePath("program.kept"), "some work");
    writeFile(session->filePath("program.unreadable"), "put aside");
    QVERIFY(!session->remove());
    QCOMPARE(QDir(session->path()).entryList(QDir::Files), QStringList("program.unreadable"));
}

void TestUnsavedSession::sessionOfAKilledProgramIsLeft()
{
    int pipe[2];
    QCOMPARE(::pipe(pipe), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const UnsavedSession::Pointer session = UnsavedSession::make(m_folder);
        const bool isMade = session && QDir(session->path()).mkdir("work");
        const ssize_t told = ::write(pipe[1], isMade ? "y" : "n", 1);
        for (;;)
            ::pause();
        ::_exit(int(told));
    }
    char isMade = 'n';
    QCOMPARE(int(::read(pipe[0], &isMade, 1)), 1);
    QCOMPARE(isMade, 'y');
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    QCOMPARE(::kill(child, SIGKILL), 0);
    QCOMPARE(::waitpid(child, nullptr, 0), child);
    QCOMPARE(UnsavedSession::left(m_folder).size(), 1);
    ::close(pipe[0]);
    ::close(pipe[1]);
}

void TestUnsavedSession::placeThatTakesNothingHasItsReason()
{
    writeFile(home() + "/hmi", "no folder");
    errno = 0;
    QVERIFY(UnsavedSession::make(m_folder) == nullptr);
    QCOMPARE(errno, ENOTDIR);
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
}

FILARIX_TEST_MAIN(TestUnsavedSession)
#include "tst_unsavedsession.moc"
