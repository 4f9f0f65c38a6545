// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/filestamp.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

class TestFileStamp : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsNoFileHasNone_data();
    void whatIsNoFileHasNone();
    void openFileHasTheStampOfItsPath();
    void everyChangeShows_data();
    void everyChangeShows();
    void largeFileHasItsSize();
    void ageIsTheTimeSinceTheWrite();

private:
    static QString path() { return home() + "/some.file"; }
};

static void setModified(const QString &path, qint64 seconds, long nanoseconds)
{
    const struct timespec times[2] = {{time_t(seconds), nanoseconds},
                                      {time_t(seconds), nanoseconds}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
}

void TestFileStamp::whatIsNoFileHasNone_data()
{
    QTest::addColumn<QString>("what");
    const char *kinds[] = {"nothing", "folder", "pipe"};
    for (const char *kind : kinds)
        QTest::newRow(kind) << QString(kind);
}

void TestFileStamp::whatIsNoFileHasNone()
{
    QFETCH(QString, what);
    if (what == "folder")
        QVERIFY(QDir().mkpath(path()));
    if (what == "pipe")
        QCOMPARE(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    const FileStamp stamp = FileStamp::of(path());
    QVERIFY(!stamp.isValid());
    QVERIFY(stamp == FileStamp());
}

void TestFileStamp::openFileHasTheStampOfItsPath()
{
    writeFile(path(), "G01");
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const FileStamp stamp = FileStamp::of(file);
    QVERIFY(stamp.isValid());
    QCOMPARE(stamp.size, qint64(3));
    QVERIFY(stamp == FileStamp::of(path()));
    // What the file was, also when another one has its name.
    QVERIFY(QFile::rename(path(), path() + ".old"));
    writeFile(path(), "G01");
    QVERIFY(stamp != FileStamp::of(path()));
    QCOMPARE(FileStamp::of(file).inode, stamp.inode);
}

void TestFileStamp::everyChangeShows_data()
{
    QTest::addColumn<QString>("change");
    const char *changes[] = {"longer", "same size, later", "by a nanosecond", "replaced",
                             "renamed"};
    for (const char *change : changes)
        QTest::newRow(change) << QString(change);
}

void TestFileStamp::everyChangeShows()
{
    QFETCH(QString, change);
    writeFile(path(), "G01");
    setModified(path(), 1000000000, 5);
    const FileStamp before = FileStamp::of(path());
    QCOMPARE(before.modified, Q_INT64_C(1000000000000000005));
    if (change == "longer") {
        writeFile(path(), "G01 X1");
        setModified(path(), 1000000000, 5);
    } else if (change == "same size, later") {
        writeFile(path(), "G02");
    } else if (change == "by a nanosecond") {
        setModified(path(), 1000000000, 6);
    } else if (change == "replaced") {
        writeFile(path() + ".new", "G01");
        setModified(path() + ".new", 1000000000, 5);
        QCOMPARE(::rename(QFile::encodeName(path() + ".new").constData(),
                          QFile::encodeName(path()).constData()),
                 0);
    } else {
        // The clock that a change of the name goes by may stand still for some milliseconds.
        QTest::qWait(20);
        QVERIFY(QFile::rename(path(), path() + ".there"));
        QVERIFY(QFile::rename(path() + ".there", path()));
    }
    QVERIFY(before != FileStamp::of(path()));
    QVERIFY(FileStamp::of(path()) == FileStamp::of(path()));
}

// On 32 bits, too.
void TestFileStamp::largeFileHasItsSize()
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    const qint64 size = Q_INT64_C(3) * 1024 * 1024 * 1024;
    QVERIFY(file.resize(size));
    QCOMPARE(FileStamp::of(path()).size, size);
    QCOMPARE(FileStamp::of(file).size, size);
}

void TestFileStamp::ageIsTheTimeSinceTheWrite()
{
    writeFile(path(), "G01");
    QVERIFY(qAbs(FileStamp::of(path()).age()) < patience(5000));
    const qint64 now = QDateTime::currentMSecsSinceEpoch() / 1000;
    setModified(path(), now - 3600, 0);
    QVERIFY(qAbs(FileStamp::of(path()).age() - 3600 * 1000) < patience(5000));
    setModified(path(), now + 3600, 0);
    QVERIFY(FileStamp::of(path()).age() < 0);
}

FILARIX_TEST_MAIN(TestFileStamp)
#include "tst_filestamp.moc"
