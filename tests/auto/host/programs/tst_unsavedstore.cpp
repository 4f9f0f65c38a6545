// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds KeptWork, too.

#include "base/hostcompat.h"
#include "filarixtest.h"
#include "programs/unsavedstore.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestUnsavedStore : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void textsComeBack_data();
    void textsComeBack();
    void rowsAndHeadComeBack();
    void changesComeBack();
    void manyChangesComeBack();
    void nothingIsMadeBeforeThereIsWork();
    void droppedWorkLeavesNothing();
    void journalWithoutItsFileCountsForNothing();
    void tornJournalLosesItsTornEnd();
    void anyFlippedBitIsFound();
    void tornFileIsBroken();
    void journalIsBounded();
    void changedFileIsSeen();
    void hostileFiles_data();
    void hostileFiles();
    void changeBeyondTheTextEndsTheJournal();
    void fullDiskIsReportedAndOvercome();
    void folderThatTakesNothing();
    void sessionsThatAreHeldAreNotLeft();
    void sessionOfAKilledProgramIsLeft();
    void emptySessionsAreClearedAway();
    void strangersStay();

private:
    KeptWork left(const QString &subject = QString("program"));
    QString onlySession() const;

    QString m_folder;
};

void TestUnsavedStore::init()
{
    FilarixTest::init();
    m_folder = home() + "/hmi/unsaved";
}

static KeptWork program(const QString &text)
{
    KeptWork work;
    work.subject = "program";
    work.head.path = FilarixTest::programDir() + "/coil.cnc";
    work.time = HostCompat::utcTime(Q_INT64_C(1700000000123));
    work.text = text;
    return work;
}

static TextChange change(int position, int removed, const QString &added)
{
    TextChange change;
    change.position = position;
    change.removed = removed;
    change.added = added;
    return change;
}

/// What the one session that nobody holds keeps.
KeptWork TestUnsavedStore::left(const QString &subject)
{
    KeptWork work;
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
    if (sessions.size() == 1)
        UnsavedStore::read(*sessions.first(), subject, &work);
    return work;
}

QString TestUnsavedStore::onlySession() const
{
    const QStringList names =
        QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    return names.size() == 1 ? m_folder + '/' + names.first() : QString();
}

void TestUnsavedStore::textsComeBack_data()
{
    QTest::addColumn<QString>("text");
    QString all;
    for (int i = 0; i < 0x10000; ++i)
        all += QChar(i);
    QTest::newRow("empty") << QString("");
    QTest::newRow("one line end") << QString("\n");
    QTest::newRow("program") << QString("G01 X1\nG01 X2\n");
    QTest::newRow("umlauts") << QString::fromUtf8("G04 F1 \u00fcben");
    QTest::newRow("surrogates") << QString::fromUtf8("\xf0\x9f\x98\x80\n\xf0\x9f\x98\x80");
    QTest::newRow("half a surrogate") << QString(QChar(0xd83d));
    QTest::newRow("line separators") << QString(QChar(0x2028)) + QChar(0x2029);
    QTest::newRow("nothing but NUL") << QString(3, QChar());
    QTest::newRow("carriage returns") << QString("G01\r\nG02\r");
    QTest::newRow("every character") << all;
    QTest::newRow("a long one") << QString("G01 X1 Y2\n").repeated(100000);
    QTest::newRow("a long one, wide at the end")
        << QString("G01 X1 Y2\n").repeated(100000) + QChar(0x4e2d);
}

void TestUnsavedStore::textsComeBack()
{
    QFETCH(QString, text);
    {
        UnsavedStore store(m_folder);
        QVERIFY2(store.keep(program(text)), qPrintable(store.errorString()));
        QVERIFY(store.append("program", KeptHead(), {change(0, 0, text.right(0x10000))}));
    }
    QVERIFY(left().text == text.right(0x10000) + text);
    QVERIFY(!left().text.isNull());
}

void TestUnsavedStore::rowsAndHeadComeBack()
{
    KeptWork work;
    work.subject = "teach";
    work.head.path = "/somewhere/else";
    work.head.cursor = 77;
    work.head.state.insert("lines", "12");
    work.head.state.insert("", QString(QChar()));
    work.time = HostCompat::utcTime(Q_INT64_C(1700000000123));
    work.rows = {{"MJ", "1", "", QString::fromUtf8("\u00fc")}, {}, {"\t\n\\"}};
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01")));
        QVERIFY(store.keep(work));
    }
    const KeptWork kept = left("teach");
    QCOMPARE(kept.subject, QString("teach"));
    QVERIFY(kept.head == work.head);
    QCOMPARE(kept.time, work.time);
    QCOMPARE(kept.rows, work.rows);
    QCOMPARE(left().text, QString("G01"));
    QVERIFY(left("variables").subject.isEmpty());
}

void TestUnsavedStore::changesComeBack()
{
    {
        UnsavedStore store(m_folder);
        QVERIFY(!store.append("program", KeptHead(), {change(0, 0, "x")}));
        QVERIFY(store.errorString().isEmpty());
        QVERIFY(store.keep(program("one\ntwo\nthree")));
        QVERIFY(store.append("program", KeptHead(), {change(0, 3, "ONE"), change(13, 0, "\n4")}));
        KeptHead head;
        head.path = "/elsewhere";
        head.cursor = 3;
        QVERIFY(store.append("program", head, {change(4, 4, "")}));
    }
    const KeptWork kept = left();
    QCOMPARE(kept.text, QString("ONE\nthree\n4"));
    QCOMPARE(kept.head.path, QString("/elsewhere"));
    QCOMPARE(kept.head.cursor, 3);
    QVERIFY(qAbs(kept.time.msecsTo(QDateTime::currentDateTimeUtc())) < 60 * 1000);
}

// Against a text that is simply changed.
void TestUnsavedStore::manyChangesComeBack()
{
    unsigned seed = 1;
    const auto next = [&seed](int below) {
        seed = seed * 1103515245u + 12345u;
        return int(seed >> 16) % below;
    };
    QString text = QString("G01 X1 Y2\n").repeated(300);
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program(text)));
        for (int i = 0; i < 1000; ++i) {
            QList<TextChange> changes;
            for (int k = next(4); k >= 0; --k) {
                const int position = next(text.size() + 1);
                const int removed = next(qMin(40, text.size() - position + 1));
                const QString added = QString(QChar(next(0x300))).repeated(next(40));
                changes.append(change(position, removed, added));
                text.replace(position, removed, added);
            }
            QVERIFY(store.append("program", KeptHead(), changes));
        }
    }
    QCOMPARE(left().text, text);
}

void TestUnsavedStore::nothingIsMadeBeforeThereIsWork()
{
    UnsavedStore store(m_folder);
    QVERIFY(store.drop("program"));
    QVERIFY(!QFileInfo(m_folder).exists());
    QCOMPARE(store.bytesWritten(), qint64(0));
}

void TestUnsavedStore::droppedWorkLeavesNothing()
{
    UnsavedStore store(m_folder);
    QVERIFY(store.keep(program("G01")));
    QVERIFY(store.append("program", KeptHead(), {change(0, 0, "x")}));
    QVERIFY(!onlySession().isEmpty());
    QVERIFY(store.drop("program"));
    QVERIFY(onlySession().isEmpty());
    QVERIFY(!store.append("program", KeptHead(), {change(0, 0, "x")}));
    // And on with the next.
    QVERIFY(store.keep(program("G02")));
    QVERIFY(!onlySession().isEmpty());
}

// Killed between a new file and its journal, a session has the journal of the file before.
void TestUnsavedStore::journalWithoutItsFileCountsForNothing()
{
    QByteArray journal;
    QString path;
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01")));
        QVERIFY(store.append("program", KeptHead(), {change(0, 0, "x")}));
        path = onlySession() + "/program.changes";
        journal = readFile(path);
        QVERIFY(!journal.isEmpty());
        QVERIFY(store.keep(program("xG01")));
        QVERIFY(readFile(path).isEmpty());
    }
    writeFile(path, journal);
    QCOMPARE(left().text, QString("xG01"));
}

void TestUnsavedStore::tornJournalLosesItsTornEnd()
{
    QList<int> ends{0};
    QStringList texts{"G01\n"};
    QString path;
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program(texts.first())));
        path = onlySession() + "/program.changes";
        for (int i = 0; i < 5; ++i) {
            QVERIFY(store.append("program", KeptHead(), {change(i, 0, QString::number(i))}));
            texts.append(QString(texts.last()).insert(i, QString::number(i)));
            ends.append(readFile(path).size());
        }
    }
    const QByteArray journal = readFile(path);
    for (int size = journal.size(); size >= 0; --size) {
        writeFile(path, journal.left(size));
        int whole = 0;
        while (whole + 1 < ends.size() && ends.at(whole + 1) <= size)
            ++whole;
        QCOMPARE(left().text, texts.at(whole));
        // What some file systems leave of a write that a power cut took: zeros.
        writeFile(path, journal.left(size) + QByteArray(journal.size() - size, '\0'));
        QVERIFY(texts.contains(left().text));
        QVERIFY(texts.indexOf(left().text) >= whole);
    }
}

void TestUnsavedStore::anyFlippedBitIsFound()
{
    QString session;
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01 X1\n")));
        QVERIFY(store.append("program", KeptHead(), {change(0, 0, "x")}));
        session = onlySession();
    }
    const QByteArray kept = readFile(session + "/program.kept");
    for (int bit = 0; bit < kept.size() * 8; ++bit) {
        QByteArray flipped = kept;
        flipped[bit / 8] = char(flipped.at(bit / 8) ^ (1 << bit % 8));
        writeFile(session + "/program.kept", flipped);
        KeptWork work;
        const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
        QCOMPARE(sessions.size(), 1);
        QCOMPARE(UnsavedStore::read(*sessions.first(), "program", &work), UnsavedStore::Broken);
        QVERIFY(work.text.isEmpty());
    }
    writeFile(session + "/program.kept", kept);
    const QByteArray journal = readFile(session + "/program.changes");
    for (int bit = 0; bit < journal.size() * 8; ++bit) {
        QByteArray flipped = journal;
        flipped[bit / 8] = char(flipped.at(bit / 8) ^ (1 << bit % 8));
        writeFile(session + "/program.changes", flipped);
        QCOMPARE(left().text, QString("G01 X1\n"));
    }
}

void TestUnsavedStore::tornFileIsBroken()
{
    QString path;
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01 X1\n")));
        path = onlySession() + "/program.kept";
    }
    const QByteArray kept = readFile(path);
    for (int size = 0; size < kept.size(); ++size) {
        writeFile(path, kept.left(size));
        const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
        KeptWork work;
        QCOMPARE(UnsavedStore::read(*sessions.first(), "program", &work), UnsavedStore::Broken);
    }
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
    const QString aside = UnsavedStore::putAside(*sessions.first(), "program");
    KeptWork work;
    QCOMPARE(UnsavedStore::read(*sessions.first(), "program", &work), UnsavedStore::Nothing);
    QCOMPARE(readFile(aside), kept.left(kept.size() - 1));
    // Nobody has seen it yet.
    QVERIFY(!sessions.first()->remove());
    QCOMPARE(readFile(aside), kept.left(kept.size() - 1));
}

void TestUnsavedStore::journalIsBounded()
{
    UnsavedStore store(m_folder);
    QVERIFY(store.keep(program("G01")));
    const QString piece(100 * 1024, 'x');
    int count = 0;
    while (store.append("program", KeptHead(), {change(0, 0, piece)}))
        QVERIFY(++count < 20);
    QVERIFY(count >= 9);
    QVERIFY(store.errorString().isEmpty());
    QVERIFY(QFileInfo(onlySession() + "/program.changes").size() <= UnsavedStore::longestJournal);
    QVERIFY(store.keep(program("G02")));
    QVERIFY(store.append("program", KeptHead(), {change(0, 0, piece)}));
}

void TestUnsavedStore::changedFileIsSeen()
{
    const QString path = programDir() + "/coil.cnc";
    writeFile(path, "G01\n");
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G02")));
    }
    QVERIFY(!left().isFileChanged);
    QVERIFY(left().isFileThere);
    writeFile(path, "G01 X1\n");
    QVERIFY(left().isFileChanged);
    QVERIFY(left().isFileThere);
    QVERIFY(QFile::remove(path));
    QVERIFY(left().isFileChanged);
    QVERIFY(!left().isFileThere);
}

void TestUnsavedStore::hostileFiles_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"pipe", "folder", "link", "huge", "unreadable", "text"})
        QTest::newRow(kind) << QString(kind);
}

void TestUnsavedStore::hostileFiles()
{
    QFETCH(QString, kind);
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01")));
    }
    const QString path = onlySession() + "/program.kept";
    const QByteArray raw = QFile::encodeName(path);
    if (kind != "unreadable")
        QVERIFY(QFile::remove(path));
    if (kind == "pipe")
        QCOMPARE(::mkfifo(raw.constData(), 0600), 0);
    else if (kind == "folder")
        QVERIFY(QDir().mkpath(path));
    else if (kind == "link")
        QCOMPARE(::symlink("/dev/zero", raw.constData()), 0);
    else if (kind == "unreadable")
        QCOMPARE(::chmod(raw.constData(), 0), 0);
    else
        writeFile(path, "filarix-unsaved 1\nand nothing more");
    if (kind == "huge")
        QCOMPARE(::truncate(raw.constData(), off_t(1) << 30), 0);
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
    QCOMPARE(sessions.size(), 1);
    KeptWork work;
    QCOMPARE(UnsavedStore::read(*sessions.first(), "program", &work), UnsavedStore::Broken);
    UnsavedStore::putAside(*sessions.first(), "program");
    QCOMPARE(UnsavedStore::read(*sessions.first(), "program", &work), UnsavedStore::Nothing);
}

void TestUnsavedStore::changeBeyondTheTextEndsTheJournal()
{
    for (const TextChange &wrong :
         {change(5, 0, "x"), change(-1, 0, "x"), change(0, 5, ""), change(2, INT_MAX, "x"),
          change(INT_MAX, 1, "x"), change(0, -1, "x")}) {
        {
            UnsavedStore store(m_folder);
            QVERIFY(store.keep(program("G01\n")));
            QVERIFY(store.append("program", KeptHead(), {change(0, 1, "")}));
            QVERIFY(store.append("program", KeptHead(), {wrong}));
        }
        QCOMPARE(left().text, QString("01\n"));
        QVERIFY(UnsavedSession::left(m_folder).first()->remove());
    }
}

/// Lets no file grow beyond \a bytes for as long as it lives, as a full disk does.
class FileLimit
{
public:
    explicit FileLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before = {};
};

void TestUnsavedStore::fullDiskIsReportedAndOvercome()
{
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01\n")));
        QVERIFY(store.append("program", KeptHead(), {change(0, 0, "one ")}));
        {
            const FileLimit limit(400);
            // The second one is torn off.
            QVERIFY(store.append("program", KeptHead(), {change(0, 0, "two ")}));
            QVERIFY(!store.append("program", KeptHead(), {change(0, 0, QString(400, 'x'))}));
            QVERIFY(!store.errorString().isEmpty());
            QVERIFY(!store.append("program", KeptHead(), {change(0, 0, "y")}));
            QVERIFY(!store.keep(program(QString(4000, 'x'))));
            QVERIFY(!store.errorString().isEmpty());
        }
        // What was kept is there, and nothing half-made.
        QCOMPARE(QDir(onlySession()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }
    QCOMPARE(left().text, QString("two one G01\n"));
    QVERIFY(UnsavedSession::left(m_folder).first()->remove());
    {
        UnsavedStore store(m_folder);
        {
            const FileLimit limit(400);
            QVERIFY(!store.keep(program(QString(4000, 'x'))));
        }
        QVERIFY(store.keep(program("later\n")));
        QVERIFY(store.errorString().isEmpty());
        QVERIFY(store.append("program", KeptHead(), {change(0, 0, "still ")}));
    }
    QCOMPARE(left().text, QString("still later\n"));
}

void TestUnsavedStore::folderThatTakesNothing()
{
    QVERIFY(QDir().mkpath(home() + "/hmi"));
    QCOMPARE(::chmod(QFile::encodeName(home() + "/hmi").constData(), 0500), 0);
    {
        UnsavedStore store(m_folder);
        QVERIFY(!store.keep(program("G01")));
        QVERIFY(!store.errorString().isEmpty());
        QVERIFY(UnsavedSession::left(m_folder).isEmpty());
        QCOMPARE(::chmod(QFile::encodeName(home() + "/hmi").constData(), 0700), 0);
        QVERIFY(store.keep(program("G01")));
    }
    QCOMPARE(left().text, QString("G01"));
}

void TestUnsavedStore::sessionsThatAreHeldAreNotLeft()
{
    UnsavedStore first(m_folder);
    {
        UnsavedStore second(m_folder);
        QVERIFY(first.keep(program("first")));
        QVERIFY(second.keep(program("second")));
        QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    }
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
    QCOMPARE(sessions.size(), 1);
    KeptWork work;
    QCOMPARE(UnsavedStore::read(*sessions.first(), "program", &work), UnsavedStore::Whole);
    QCOMPARE(work.text, QString("second"));
    // Who found it holds it.
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    QVERIFY(sessions.first()->remove());
}

void TestUnsavedStore::sessionOfAKilledProgramIsLeft()
{
    int ends[2];
    QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        UnsavedStore store(m_folder);
        const char done = store.keep(program("of the child")) ? 'y' : 'n';
        if (::write(ends[1], &done, 1) == 1)
            ::pause();
        ::_exit(0);
    }
    QVERIFY(child > 0);
    char done = 0;
    QCOMPARE(::read(ends[0], &done, 1), ssize_t(1));
    QCOMPARE(done, 'y');
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);
    QCOMPARE(left().text, QString("of the child"));
}

void TestUnsavedStore::emptySessionsAreClearedAway()
{
    for (int i = 0; i < 3; ++i)
        QVERIFY(bool(UnsavedSession::make(m_folder)));
    QCOMPARE(QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 3);
    QVERIFY(UnsavedSession::left(m_folder).isEmpty());
    QVERIFY(QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
}

void TestUnsavedStore::strangersStay()
{
    writeFile(m_folder + "/notes/a.txt", "x");
    writeFile(m_folder + "/20260101-000000-000-1-0", "a file");
    {
        UnsavedStore store(m_folder);
        QVERIFY(store.keep(program("G01")));
    }
    const QList<UnsavedSession::Pointer> sessions = UnsavedSession::left(m_folder);
    QCOMPARE(sessions.size(), 1);
    writeFile(sessions.first()->path() + "/notes.txt", "x");
    QVERIFY(!sessions.first()->remove());
    QCOMPARE(QDir(sessions.first()->path()).entryList(QDir::Files), QStringList("notes.txt"));
    QCOMPARE(readFile(m_folder + "/notes/a.txt"), QByteArray("x"));
    QCOMPARE(readFile(m_folder + "/20260101-000000-000-1-0"), QByteArray("a file"));
}

FILARIX_TEST_MAIN(TestUnsavedStore)
#include "tst_unsavedstore.moc"
