// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "homelock.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString lockPath()
{
    return FilarixTest::home() + QLatin1String("/hmi/panel.lock");
}

} // namespace

class TestHomeLock : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aHomeIsForOnePanel();
    void anotherProcessIsSeenUntilItIsKilled();
    void commandsDoNotKeepIt();
    void aLinkIsNotFollowed();
    void whereNothingCanBeWrittenItIsImpossible();
};

void TestHomeLock::aHomeIsForOnePanel()
{
    HomeLock second(lockPath());
    {
        HomeLock first(lockPath());
        QCOMPARE(first.take(), HomeLock::Own);
        QCOMPARE(first.take(), HomeLock::Own);
        QCOMPARE(second.take(), HomeLock::Taken);
    }
    QCOMPARE(second.take(), HomeLock::Own);
}

void TestHomeLock::anotherProcessIsSeenUntilItIsKilled()
{
    int ready[2];
    QCOMPARE(pipe(ready), 0);
    const pid_t other = fork();
    if (other == 0) {
        HomeLock lock(lockPath());
        const char answer = lock.take() == HomeLock::Own ? 'y' : 'n';
        if (write(ready[1], &answer, 1) == 1)
            pause();
        _exit(0);
    }
    char answer = 0;
    QCOMPARE(read(ready[0], &answer, 1), ssize_t(1));
    QCOMPARE(answer, 'y');
    HomeLock lock(lockPath());
    QCOMPARE(lock.take(), HomeLock::Taken);
    QCOMPARE(kill(other, SIGKILL), 0);
    QCOMPARE(waitpid(other, nullptr, 0), other);
    QCOMPARE(lock.take(), HomeLock::Own);
    close(ready[0]);
    close(ready[1]);
}

void TestHomeLock::commandsDoNotKeepIt()
{
    HomeLock lock(lockPath());
    QCOMPARE(lock.take(), HomeLock::Own);
    int seen = 0;
    for (int handle = 0; handle < 100; ++handle) {
        const QString link = QString::fromLatin1("/proc/self/fd/%1").arg(handle);
        if (QFile::symLinkTarget(link) != lockPath())
            continue;
        ++seen;
        QVERIFY(fcntl(handle, F_GETFD) & FD_CLOEXEC);
    }
    QCOMPARE(seen, 1);
}

void TestHomeLock::aLinkIsNotFollowed()
{
    const QString elsewhere = home() + "/elsewhere";
    QVERIFY(QDir().mkpath(home() + "/hmi"));
    QVERIFY(QFile::link(elsewhere, lockPath()));
    HomeLock lock(lockPath());
    QCOMPARE(lock.take(), HomeLock::Impossible);
    QVERIFY(!QFileInfo::exists(elsewhere));
}

void TestHomeLock::whereNothingCanBeWrittenItIsImpossible()
{
    HomeLock lock("/etc/filarix/panel.lock");
    QCOMPARE(lock.take(), HomeLock::Impossible);
    QVERIFY(!lock.errorString().isEmpty());
}

FILARIX_TEST_MAIN(TestHomeLock)
#include "tst_homelock.moc"
