// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

class TestWholeFile : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void newFileHasTheUsualPermissions();
    void fileIsReplacedWithItsPermissions();
    void linkStaysALink();
    void fullDiskChangesNothing();
    void whatCannotBeWrittenStays_data();
    void whatCannotBeWrittenStays();
    void deviceIsWrittenTo();
    void oneFileHasManyNames();
};

static QByteArray pathTo(const char *name)
{
    return QFile::encodeName(FilarixTest::home() + '/' + name);
}

/// Why it failed; empty where it did not.
static QByteArray write(const QByteArray &path, const QByteArray &bytes)
{
    QByteArray error;
    const bool isDone = WholeFile::write(path, bytes, &error);
    return isDone ? QByteArray() : error.isEmpty() ? QByteArray("no reason") : error;
}

static mode_t modeOf(const QByteArray &path)
{
    struct stat facts;
    return ::stat(path.constData(), &facts) == 0 ? facts.st_mode & 07777 : 0;
}

static QStringList filesAtHome()
{
    return QDir(FilarixTest::home()).entryList(QDir::Files | QDir::Hidden);
}

void TestWholeFile::newFileHasTheUsualPermissions()
{
    const mode_t mask = ::umask(027);
    const QByteArray error = write(pathTo("a.svg"), "<svg/>");
    ::umask(mask);
    QCOMPARE(error, QByteArray());
    QCOMPARE(readFile(home() + "/a.svg"), QByteArray("<svg/>"));
    QCOMPARE(modeOf(pathTo("a.svg")), mode_t(0640));
    QCOMPARE(filesAtHome(), QStringList("a.svg"));
}

void TestWholeFile::fileIsReplacedWithItsPermissions()
{
    writeFile(home() + "/a.svg", "before");
    QCOMPARE(::chmod(pathTo("a.svg").constData(), 0604), 0);
    QCOMPARE(write(pathTo("a.svg"), ""), QByteArray());
    QCOMPARE(readFile(home() + "/a.svg"), QByteArray(""));
    QCOMPARE(modeOf(pathTo("a.svg")), mode_t(0604));
    QCOMPARE(filesAtHome(), QStringList("a.svg"));
}

void TestWholeFile::linkStaysALink()
{
    QVERIFY(QDir(home()).mkdir("pictures"));
    writeFile(home() + "/pictures/a.svg", "before");
    QVERIFY(QFile::link(home() + "/pictures/a.svg", home() + "/a.svg"));
    QCOMPARE(write(pathTo("a.svg"), "after"), QByteArray());
    QVERIFY(QFileInfo(home() + "/a.svg").isSymLink());
    QCOMPARE(readFile(home() + "/pictures/a.svg"), QByteArray("after"));
}

/// The home has 256 KB.
void TestWholeFile::fullDiskChangesNothing()
{
    writeFile(home() + "/a.svg", "before");
    QCOMPARE(write(pathTo("a.svg"), QByteArray(1 << 20, 'x')), QByteArray(std::strerror(ENOSPC)));
    QCOMPARE(readFile(home() + "/a.svg"), QByteArray("before"));
    QCOMPARE(write(pathTo("b.svg"), QByteArray(1 << 20, 'x')), QByteArray(std::strerror(ENOSPC)));
    QCOMPARE(filesAtHome(), QStringList("a.svg"));
}

void TestWholeFile::whatCannotBeWrittenStays_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<int>("reason");
    QTest::newRow("folder") << pathTo("") << EISDIR;
    QTest::newRow("in no folder") << pathTo("missing/a.svg") << ENOENT;
    QTest::newRow("in a file") << pathTo("closed.svg/a.svg") << ENOTDIR;
    QTest::newRow("read-only") << pathTo("closed.svg") << EACCES;
    QTest::newRow("full device") << QByteArray("/dev/full") << ENOSPC;
}

void TestWholeFile::whatCannotBeWrittenStays()
{
    QFETCH(QByteArray, path);
    QFETCH(int, reason);
    writeFile(home() + "/closed.svg", "before");
    QCOMPARE(::chmod(pathTo("closed.svg").constData(), 0400), 0);
    QCOMPARE(write(path, "after"), QByteArray(std::strerror(reason)));
    QCOMPARE(readFile(home() + "/closed.svg"), QByteArray("before"));
    QCOMPARE(filesAtHome(), QStringList("closed.svg"));
}

void TestWholeFile::deviceIsWrittenTo()
{
    QCOMPARE(write("/dev/null", "gone"), QByteArray());
    struct stat facts;
    QCOMPARE(::stat("/dev/null", &facts), 0);
    QVERIFY(S_ISCHR(facts.st_mode));
}

void TestWholeFile::oneFileHasManyNames()
{
    writeFile(home() + "/a.cnc", "G21");
    writeFile(home() + "/b.cnc", "G21");
    QVERIFY(QFile::link(home() + "/a.cnc", home() + "/soft.cnc"));
    QCOMPARE(::link(pathTo("a.cnc").constData(), pathTo("hard.cnc").constData()), 0);
    QVERIFY(WholeFile::isSame(pathTo("a.cnc"), pathTo("a.cnc")));
    QVERIFY(WholeFile::isSame(pathTo("./a.cnc"), pathTo("soft.cnc")));
    QVERIFY(WholeFile::isSame(pathTo("hard.cnc"), pathTo("a.cnc")));
    QVERIFY(!WholeFile::isSame(pathTo("a.cnc"), pathTo("b.cnc")));
    QVERIFY(!WholeFile::isSame(pathTo("a.cnc"), pathTo("none.cnc")));
    QVERIFY(!WholeFile::isSame(pathTo("none.cnc"), pathTo("none.cnc")));
    QVERIFY(!WholeFile::isSame("/dev/null", "/dev/null"));
}

FILARIX_TEST_MAIN(TestWholeFile)
#include "tst_wholefile.moc"
