// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/hostcompat.h"
#include "base/sha256.h"
#include "filarixtest.h"
#include "programs/historystore.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestHistoryStore : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void versionsOfAProgramAreKept();
    void oddNamesAndBytes_data();
    void oddNamesAndBytes();
    void fileThatWasJustWrittenWaits();
    void fileThatWasNotTouchedIsNotReadAgain();
    void versionsAreThereTheNextTime();
    void orderIsThatOfStoringWhateverTheClock();
    void countIsBounded();
    void bytesAreBounded();
    void newestOfEachNameOutlivesTheCount();
    void newestGoesWhenTheBytesAskForIt();
    void tooLargeProgramIsNeverKnown();
    void whatIsNoVersionIsLeftAlone();
    void halfVersionOfAKilledProgramGoes();
    void whatWasPushedOutIsNotHeld();
    void folderThatCannotBeMade();
    void folderThatTakesNothing();
    void killLosesNoVersionThatWasReported();

private:
    HistoryStore::Outcome put(HistoryStore *store, const QString &name, const QByteArray &bytes);

    QString m_folder;
};

// So long ago that the file counts as complete.
static void age(const QString &path)
{
    const struct timespec times[2] = {{1000000000, 0}, {1000000000, 0}};
    ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
}

static QByteArray contentOf(const ProgramVersion &version)
{
    QFile file(version.path);
    return file.open(QIODevice::ReadOnly) && file.seek(version.offset) ? file.readAll()
                                                                       : QByteArray();
}

static QList<QByteArray> contents(const HistoryStore &store)
{
    QList<QByteArray> all;
    const QList<ProgramVersion> versions = store.versions();
    for (const ProgramVersion &version : versions)
        all.append(contentOf(version));
    return all;
}

void TestHistoryStore::init()
{
    FilarixTest::init();
    m_folder = home() + "/hmi/history";
}

HistoryStore::Outcome TestHistoryStore::put(HistoryStore *store, const QString &name,
                                            const QByteArray &bytes)
{
    const QString path = programDir() + '/' + name;
    writeFile(path, bytes);
    age(path);
    QString error;
    const HistoryStore::Outcome outcome = store->store(path, &error);
    return error.isEmpty() ? outcome : HistoryStore::Failed;
}

void TestHistoryStore::versionsOfAProgramAreKept()
{
    HistoryStore store(m_folder, HistoryStore::Limits());
    QString error;
    QVERIFY(store.open(&error));
    QVERIFY(store.versions().isEmpty());
    QCOMPARE(put(&store, "coil.cnc", "one\n"), HistoryStore::Stored);
    QCOMPARE(put(&store, "coil.cnc", "two\n"), HistoryStore::Stored);
    QCOMPARE(put(&store, "coil.cnc", "two\n"), HistoryStore::Known);
    QCOMPARE(put(&store, "other.cnc", "two\n"), HistoryStore::Stored);
    // Back to what it was is a version again: the last one is what the program is.
    QCOMPARE(put(&store, "coil.cnc", "one\n"), HistoryStore::Stored);
    QCOMPARE(contents(store), QList<QByteArray>() << "one\n"
                                                  << "two\n"
                                                  << "two\n"
                                                  << "one\n");
    const ProgramVersion version = store.versions().at(2);
    QCOMPARE(version.name, QString("other.cnc"));
    QCOMPARE(version.bytes, qint64(4));
    QCOMPARE(version.hash, Sha256::hash("two\n"));
    QVERIFY(qAbs(version.stored.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    QCOMPARE(version.stored.timeSpec(), Qt::UTC);
}

void TestHistoryStore::oddNamesAndBytes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QByteArray allBytes;
    for (int i = 0; i < 256; ++i)
        allBytes += char(i);
    QTest::newRow("empty program") << "coil.cnc" << QByteArray("");
    QTest::newRow("every byte there is") << "coil.cnc" << allBytes;
    QTest::newRow("looks like a head") << "coil.cnc" << QByteArray("filarix-history 1\nname x\n\n");
    QTest::newRow("blanks") << "a  coil .cnc" << QByteArray("x");
    QTest::newRow("umlauts") << QString::fromUtf8("spule-\u00fc\u00df.cnc") << QByteArray("x");
    QTest::newRow("percent and line end") << "50%0A\ncoil.cnc" << QByteArray("x");
    QTest::newRow("longest") << QString("n").repeated(255) << QByteArray("x");
    QTest::newRow("longest in bytes") << QString(QChar(0x4e2d)).repeated(85) << QByteArray("x");
}

void TestHistoryStore::oddNamesAndBytes()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QString error;
    {
        HistoryStore store(m_folder, HistoryStore::Limits());
        QVERIFY(store.open(&error));
        QCOMPARE(put(&store, name, bytes), HistoryStore::Stored);
        QCOMPARE(contentOf(store.versions().first()), bytes);
    }
    HistoryStore store(m_folder, HistoryStore::Limits());
    QVERIFY(store.open(&error));
    QCOMPARE(store.versions().size(), 1);
    QCOMPARE(store.versions().first().name, name);
    QCOMPARE(contentOf(store.versions().first()), bytes);
}

void TestHistoryStore::fileThatWasJustWrittenWaits()
{
    HistoryStore store(m_folder, HistoryStore::Limits());
    QString error;
    QVERIFY(store.open(&error));
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, "half of i");
    // Whoever writes may not be done.
    struct timespec times[2];
    ::clock_gettime(CLOCK_REALTIME, &times[0]);
    times[1] = times[0];
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    QCOMPARE(store.store(path, &error), HistoryStore::Restless);
    QVERIFY(!store.holds(path));
    QTRY_VERIFY(store.store(path, &error) != HistoryStore::Restless);
    QVERIFY(store.holds(path));
    QCOMPARE(contents(store), QList<QByteArray>() << "half of i");
    QVERIFY(store.holds(programDir() + "/none.cnc"));
}

void TestHistoryStore::fileThatWasNotTouchedIsNotReadAgain()
{
    HistoryStore store(m_folder, HistoryStore::Limits());
    QString error;
    QVERIFY(store.open(&error));
    QCOMPARE(put(&store, "coil.cnc", "one\n"), HistoryStore::Stored);
    const QString path = programDir() + "/coil.cnc";
    QCOMPARE(store.store(path, &error), HistoryStore::Known);
    // A file that cannot be read would tell.
    QVERIFY(QFile::setPermissions(path, QFile::Permissions()));
    age(path);
    QCOMPARE(store.store(path, &error), HistoryStore::Failed);
    QVERIFY(error.contains("cannot read"));
}

void TestHistoryStore::versionsAreThereTheNextTime()
{
    QString error;
    {
        HistoryStore store(m_folder, HistoryStore::Limits());
        QVERIFY(store.open(&error));
        for (int i = 0; i < 20; ++i)
            QCOMPARE(put(&store, "coil.cnc", QByteArray::number(i)), HistoryStore::Stored);
    }
    HistoryStore store(m_folder, HistoryStore::Limits());
    QVERIFY(store.open(&error));
    QCOMPARE(store.versions().size(), 20);
    for (int i = 0; i < 20; ++i)
        QCOMPARE(contentOf(store.versions().at(i)), QByteArray::number(i));
    QCOMPARE(put(&store, "coil.cnc", "19"), HistoryStore::Known);
    QCOMPARE(put(&store, "coil.cnc", "20"), HistoryStore::Stored);
    QCOMPARE(store.versions().last().number, qint64(21));
}

void TestHistoryStore::orderIsThatOfStoringWhateverTheClock()
{
    QString error;
    HistoryStore store(m_folder, HistoryStore::Limits());
    QVERIFY(store.open(&error));
    QCOMPARE(put(&store, "coil.cnc", "one"), HistoryStore::Stored);
    QCOMPARE(put(&store, "coil.cnc", "two"), HistoryStore::Stored);
    // The clock stood a century ahead when the first was kept.
    const QString path = store.versions().first().path;
    QByteArray bytes = readFile(path);
    const int year = bytes.indexOf("stored ") + 7;
    bytes.replace(year, 4, "2126");
    writeFile(path, bytes);
    HistoryStore again(m_folder, HistoryStore::Limits());
    QVERIFY(again.open(&error));
    QCOMPARE(contents(again), QList<QByteArray>() << "one"
                                                  << "two");
    QCOMPARE(again.versions().first().stored.date().year(), 2126);
}

void TestHistoryStore::countIsBounded()
{
    HistoryStore::Limits limits;
    limits.versions = 3;
    HistoryStore store(m_folder, limits);
    QString error;
    QVERIFY(store.open(&error));
    for (const char *bytes : {"1", "2", "3", "4", "5"})
        QCOMPARE(put(&store, "coil.cnc", bytes), HistoryStore::Stored);
    QCOMPARE(contents(store), QList<QByteArray>() << "3"
                                                  << "4"
                                                  << "5");
    QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

void TestHistoryStore::bytesAreBounded()
{
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    HistoryStore store(m_folder, limits);
    QString error;
    QVERIFY(store.open(&error));
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(put(&store, "coil.cnc", QByteArray(300, char('0' + i))), HistoryStore::Stored);
        qint64 bytes = 0;
        const QList<ProgramVersion> versions = store.versions();
        for (const ProgramVersion &version : versions)
            bytes += version.bytes;
        QVERIFY(bytes <= limits.bytes);
    }
    QCOMPARE(store.versions().size(), 3);
    QCOMPARE(contentOf(store.versions().last()), QByteArray(300, '9'));
}

void TestHistoryStore::newestOfEachNameOutlivesTheCount()
{
    HistoryStore::Limits limits;
    limits.versions = 3;
    HistoryStore store(m_folder, limits);
    QString error;
    QVERIFY(store.open(&error));
    for (const char *name : {"a.cnc", "b.cnc", "c.cnc", "d.cnc"})
        QCOMPARE(put(&store, name, name), HistoryStore::Stored);
    // More names than versions: none is lost.
    QCOMPARE(contents(store), QList<QByteArray>() << "a.cnc"
                                                  << "b.cnc"
                                                  << "c.cnc"
                                                  << "d.cnc");
    // Another version of one of them takes the place of its own last.
    QCOMPARE(put(&store, "d.cnc", "changed"), HistoryStore::Stored);
    QCOMPARE(contents(store), QList<QByteArray>() << "a.cnc"
                                                  << "b.cnc"
                                                  << "c.cnc"
                                                  << "changed");
}

void TestHistoryStore::newestGoesWhenTheBytesAskForIt()
{
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    HistoryStore store(m_folder, limits);
    QString error;
    QVERIFY(store.open(&error));
    for (const char *name : {"a.cnc", "b.cnc", "c.cnc"})
        QCOMPARE(put(&store, name, QByteArray(400, *name)), HistoryStore::Stored);
    QCOMPARE(contents(store), QList<QByteArray>() << QByteArray(400, 'b') << QByteArray(400, 'c'));
}

void TestHistoryStore::tooLargeProgramIsNeverKnown()
{
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    HistoryStore store(m_folder, limits);
    QString error;
    QVERIFY(store.open(&error));
    QCOMPARE(put(&store, "small.cnc", QByteArray(500, 'x')), HistoryStore::Stored);
    QCOMPARE(put(&store, "large.cnc", QByteArray(501, 'x')), HistoryStore::Failed);
    const QString path = programDir() + "/large.cnc";
    error.clear();
    QCOMPARE(store.store(path, &error), HistoryStore::Failed);
    QVERIFY(error.contains("too large"));
    QVERIFY(!store.holds(path));
    QCOMPARE(store.versions().size(), 1);
    // It is asked about again when it is another one.
    QCOMPARE(put(&store, "large.cnc", QByteArray(499, 'x')), HistoryStore::Stored);
    QVERIFY(store.holds(path));
}

void TestHistoryStore::whatIsNoVersionIsLeftAlone()
{
    QString error;
    {
        HistoryStore store(m_folder, HistoryStore::Limits());
        QVERIFY(store.open(&error));
        QCOMPARE(put(&store, "coil.cnc", "one\n"), HistoryStore::Stored);
    }
    const QByteArray whole = readFile(m_folder + "/0000000001.version");
    writeFile(m_folder + "/notes.txt", "by hand");
    writeFile(m_folder + "/0000000002.version", "");
    writeFile(m_folder + "/0000000003.version", whole.left(whole.size() - 1));
    writeFile(m_folder + "/0000000004.version", whole + "x");
    writeFile(m_folder + "/0000000005.version",
              QByteArray(whole).replace("name coil", "name ..%2Fcoil"));
    writeFile(m_folder + "/0000000006.version",
              QByteArray(whole).replace("history 1", "history 2"));
    writeFile(m_folder + "/0000000007.version", QByteArray(whole).replace("\nsha256", "\nsha255"));
    HistoryStore store(m_folder, HistoryStore::Limits());
    QVERIFY(store.open(&error));
    QCOMPARE(contents(store), QList<QByteArray>() << "one\n");
    QCOMPARE(QDir(m_folder).entryList(QDir::Files).size(), 8);
    // And is not written over.
    QCOMPARE(put(&store, "coil.cnc", "two\n"), HistoryStore::Stored);
    QCOMPARE(store.versions().last().number, qint64(8));
}

void TestHistoryStore::halfVersionOfAKilledProgramGoes()
{
    writeFile(m_folder + "/0000000009.version.aBc123", "filarix-his");
    writeFile(m_folder + "/.filarix-0000000009.version.abcdef012345", "filarix-his");
    HistoryStore store(m_folder, HistoryStore::Limits());
    QString error;
    QVERIFY(store.open(&error));
    QVERIFY(QDir(m_folder).entryList(QDir::Files | QDir::Hidden).isEmpty());
    QVERIFY(store.versions().isEmpty());
}

// It stands there as it was seen, and yet nothing could bring it back.
void TestHistoryStore::whatWasPushedOutIsNotHeld()
{
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    HistoryStore store(m_folder, limits);
    QString error;
    QVERIFY(store.open(&error));
    for (const char *name : {"a.cnc", "b.cnc", "c.cnc"})
        QCOMPARE(put(&store, name, QByteArray(400, *name)), HistoryStore::Stored);
    const QString path = programDir() + "/a.cnc";
    QCOMPARE(store.versions().size(), 2);
    QVERIFY(!store.holds(path));
    QCOMPARE(store.store(path, &error), HistoryStore::Failed);
    QVERIFY(error.contains("no room for a.cnc"));
    // Nor does the next look push out the others.
    QCOMPARE(store.versions().size(), 2);
    QVERIFY(store.holds(programDir() + "/b.cnc"));
}

void TestHistoryStore::folderThatCannotBeMade()
{
    writeFile(home() + "/hmi", "a file");
    HistoryStore store(m_folder, HistoryStore::Limits());
    QString error;
    QVERIFY(!store.open(&error));
    QVERIFY(error.contains(m_folder));
    QVERIFY(!store.isOpen());
}

void TestHistoryStore::folderThatTakesNothing()
{
    HistoryStore store(m_folder, HistoryStore::Limits());
    QString error;
    QVERIFY(store.open(&error));
    QVERIFY(QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::ExeOwner));
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, "one\n");
    age(path);
    QCOMPARE(store.store(path, &error), HistoryStore::Failed);
    QCOMPARE(error, QString("The history cannot keep coil.cnc: Permission denied."));
    QVERIFY(!store.holds(path));
    QVERIFY(
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    // What could not be kept is tried again.
    QCOMPARE(store.store(path, &error), HistoryStore::Stored);
}

/// A program that saves and saves, and reports each version once it is kept: number and hash.
static int saveForEver(const QString &folder, const QString &path)
{
    HistoryStore store(folder, HistoryStore::Limits());
    QString error;
    if (!store.open(&error))
        return 1;
    for (int i = 0;; ++i) {
        QFile file(path);
        const QByteArray bytes = QByteArray::number(::getpid()) + '/' + QByteArray::number(i) + '\n'
                                 + QByteArray("G01 X1.5 Y-2\n").repeated(1000);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return 2;
        file.close();
        age(path);
        if (store.store(path, &error) != HistoryStore::Stored)
            return 3;
        const ProgramVersion kept = store.versions().last();
        const QByteArray report = QByteArray::number(kept.number) + ' ' + kept.hash.toHex() + '\n';
        // In one piece, as a pipe takes it: what is there of a report is all of it.
        if (::write(STDOUT_FILENO, report.constData(), size_t(report.size())) != report.size())
            return 4;
    }
}

/// Lets that program run until it has reported \a reports versions, kills it some microseconds
/// later, and gives back all that it had reported.
static QList<QByteArray> reportsUntilTheKill(const QString &folder, const QString &path,
                                             int reports, unsigned microseconds)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return QList<QByteArray>();
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::_exit(saveForEver(folder, path));
    }
    ::close(ends[1]);
    QByteArray all;
    char buffer[4096];
    ssize_t count = 0;
    while (child > 0 && all.count('\n') < reports
           && (count = ::read(ends[0], buffer, sizeof buffer)) > 0)
        all.append(buffer, int(count));
    if (child > 0) {
        ::usleep(microseconds);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        while ((count = ::read(ends[0], buffer, sizeof buffer)) > 0)
            all.append(buffer, int(count));
    }
    ::close(ends[0]);
    QList<QByteArray> lines = all.split('\n');
    lines.removeLast();
    return lines;
}

void TestHistoryStore::killLosesNoVersionThatWasReported()
{
    const QString path = programDir() + "/coil.cnc";
    QList<QByteArray> reported;
    unsigned seed = 1;
    for (int kill = 0; reported.size() < 200; ++kill) {
        seed = seed * 1103515245u + 12345u;
        const int reports = 1 + int(seed >> 16) % 16;
        const QList<QByteArray> more =
            reportsUntilTheKill(m_folder, path, reports, (seed >> 8) % 2000);
        QVERIFY2(more.size() >= reports, qPrintable(QString::number(kill)));
        reported += more;

        HistoryStore store(m_folder, HistoryStore::Limits());
        QString error;
        QVERIFY2(store.open(&error), qPrintable(error));
        QList<QByteArray> kept;
        const QList<ProgramVersion> versions = store.versions();
        for (const ProgramVersion &version : versions) {
            QCOMPARE(Sha256::hash(contentOf(version)), version.hash);
            kept.append(QByteArray::number(version.number) + ' ' + version.hash.toHex());
        }
        for (const QByteArray &report : HostCompat::readOnly(reported))
            QVERIFY2(kept.contains(report), report.constData());
        // One that was kept and not reported any more is no fault; anything half-made is.
        QVERIFY(kept.size() <= reported.size() + kill + 1);
        QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden).size(), kept.size());
    }
    QVERIFY(reported.size() < 400);
}

FILARIX_TEST_MAIN(TestHistoryStore)
#include "tst_historystore.moc"
