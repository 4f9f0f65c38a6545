// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "filecalls.h"
#include "heldfile.h"
#include "programs/programhistory.h"
#include "signalhook.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSemaphore>
#include <QSignalSpy>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>

class TestProgramHistory : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void programsOfTheStartAreKept();
    void savesAreKept();
    void whatIsNoProgramIsNotKept();
    void overwrittenVersionComesBack();
    void removedProgramComesBack();
    void restoreKeepsWhatIsThereFirst();
    void restoreThatCannotKeepWhatIsThereIsRefused();
    void longRestoreTellsItsProgressAndStops();
    void restoreIsStoppedBeforeItBegins();
    void damagedVersionIsNotBroughtBack();
    void versionThatWentMeanwhileIsTold();
    void restoreIntoAFolderThatTakesNothing();
    void halfRestoredFileOfAKilledProgramGoes();
    void historyThatCannotBeKeptIsToldOnce();
    void storageThatHangsIsTold();
    void settledOnlyWhenAllIsKept();
    void waiterIsCalledWhenAllOfThatMomentIsKept();
    void waiterIsCalledWhenAProgramCannotBeKept();
    void waiterIsCalledWhenTheStorageIsLost();
    void waiterIsCalledWhenAWriterDoesNotEnd();
    void lookThatNobodyWaitedForKeepsNothing();
    void waiterThatIsGoneIsNotCalled();
    void restoreKeepsThePermissions();
    void saveRightBeforeTheRenameIsKept_data();
    void saveRightBeforeTheRenameIsKept();
    void saveThatGoesOnIsKept();
    void saveWithoutEndIsLeftInPlace();
    void programThatComesBackMeanwhileIsKept();
    void linkIsNotReplaced();
    void whatAKilledRestoreHeldIsTakenIn();
    void stalledSyncBringsNothingBack();
    void renameThatHangsIsToldAsNotKnown();
    void nobodyWaitsForStorageThatHangs();
    void causeEndsWhenTheProgramIsKeptOrGone_data();
    void causeEndsWhenTheProgramIsKeptOrGone();

private:
    void start(const HistoryStore::Limits &limits = HistoryStore::Limits());
    bool isKept(int versions);
    bool keep(std::initializer_list<const char *> versions);
    QByteArray lastContent() const;
    ProgramVersion versionOf(const QByteArray &bytes) const;
    QString lastTold() const;
    QStringList hidden() const;
    void save(const QByteArray &bytes) const;
    void saveInPlace(const QByteArray &bytes) const;
    Message::Tone lastTone() const;

    QString m_folder;
    QString m_path;
    QScopedPointer<ProgramHistory> m_history;
    QScopedPointer<QSignalSpy> m_told;
};

/// On a busy machine a writer may pause for longer than the history waits for one, and leave a
/// version that is half of one. So the program is there all at once.
static void putInPlace(const QString &written, const QString &path)
{
    if (std::rename(QFile::encodeName(written).constData(), QFile::encodeName(path).constData())
        != 0)
        qWarning("cannot rename %s", qPrintable(written));
}

/// Written long ago, as far as the history can tell.
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

void TestProgramHistory::init()
{
    FilarixTest::init();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_folder = home() + "/hmi/history";
    m_path = programDir() + "/coil.cnc";
}

void TestProgramHistory::cleanup()
{
    m_told.reset();
    m_history.reset();
    FileCalls::reset();
    FilarixTest::cleanup();
}

void TestProgramHistory::start(const HistoryStore::Limits &limits)
{
    m_history.reset(new ProgramHistory(programDir(), m_folder, limits));
    m_told.reset(new QSignalSpy(m_history.data(), SIGNAL(told(QString, Message::Tone, QString))));
}

// Everything is kept, and that makes so many versions.
bool TestProgramHistory::isKept(int versions)
{
    m_history->scan();
    return TestCompat::waitFor([this] { return m_history->isSettled(); })
           && m_history->versions().size() == versions;
}

/// Starts a history, and saves the program's versions for it one after the other.
bool TestProgramHistory::keep(std::initializer_list<const char *> versions)
{
    int saves = 0;
    for (const char *version : versions) {
        save(version);
        if (saves == 0)
            start();
        if (!isKept(++saves))
            return false;
    }
    return true;
}

QByteArray TestProgramHistory::lastContent() const
{
    return contentOf(m_history->versions().last());
}

ProgramVersion TestProgramHistory::versionOf(const QByteArray &bytes) const
{
    const QList<ProgramVersion> versions = m_history->versions();
    for (const ProgramVersion &version : versions) {
        if (contentOf(version) == bytes)
            return version;
    }
    return ProgramVersion();
}

QString TestProgramHistory::lastTold() const
{
    return m_told->isEmpty() ? QString() : m_told->last().at(0).toString();
}

// What lies in the program directory beside the programs.
QStringList TestProgramHistory::hidden() const
{
    QStringList names =
        QDir(programDir())
            .entryList(QDir::Dirs | QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
    return names.filter(QRegExp("^\\."));
}

// A while ago, so that the history takes it in without waiting for a writer to end.
void TestProgramHistory::save(const QByteArray &bytes) const
{
    const QString written = home() + "/written";
    writeFile(written, bytes);
    age(written);
    putInPlace(written, m_path);
}

// As the library does: into the file that has the name. For any thread.
void TestProgramHistory::saveInPlace(const QByteArray &bytes) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qWarning("the save failed");
}

Message::Tone TestProgramHistory::lastTone() const
{
    return m_told->last().at(1).value<Message::Tone>();
}

void TestProgramHistory::programsOfTheStartAreKept()
{
    writeFile(m_path, "one\n");
    writeFile(programDir() + "/other.cnc", "two\n");
    start();
    QVERIFY(!m_history->isSettled());
    QTRY_VERIFY(m_history->isSettled());
    QCOMPARE(m_history->versions().size(), 2);
    // At the next start they are known.
    start();
    QTRY_VERIFY(m_history->isSettled());
    QCOMPARE(m_history->versions().size(), 2);
    QCOMPARE(m_told->size(), 0);
}

void TestProgramHistory::savesAreKept()
{
    start();
    m_history->setLookInterval(50);
    // Nobody says that something changed: the history looks by itself.
    for (const char *bytes : {"one\n", "two\n"}) {
        writeFile(m_path, bytes);
        QTRY_VERIFY(!m_history->versions().isEmpty() && lastContent() == bytes);
    }
    QCOMPARE(m_history->versions().size(), 2);
}

void TestProgramHistory::whatIsNoProgramIsNotKept()
{
    writeFile(programDir() + "/.hidden", "x");
    writeFile(programDir() + "/folder/coil.cnc", "x");
    writeFile(home() + "/elsewhere.cnc", "x");
    QVERIFY(QFile::link(home() + "/elsewhere.cnc", programDir() + "/link.cnc"));
    start();
    QVERIFY(isKept(0));
}

void TestProgramHistory::overwrittenVersionComesBack()
{
    QVERIFY(keep({"the good one\n", "saved over it\n"}));
    m_history->restore(versionOf("the good one\n"));
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(lastTone(), Message::Information);
    QVERIFY(lastTold().contains("coil.cnc is back"));
    QCOMPARE(readFile(m_path), QByteArray("the good one\n"));
    // Any save made the file as readable as this one.
    writeFile(programDir() + "/usual.cnc", "x");
    QCOMPARE(QFile::permissions(m_path), QFile::permissions(programDir() + "/usual.cnc"));
    QVERIFY(QFile::remove(programDir() + "/usual.cnc"));
    // The one saved over it can be had again, too.
    m_history->restore(versionOf("saved over it\n"));
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(readFile(m_path), QByteArray("saved over it\n"));
}

void TestProgramHistory::removedProgramComesBack()
{
    QVERIFY(keep({"one\n"}));
    QVERIFY(QFile::remove(m_path));
    QVERIFY(isKept(1));
    // And the directory with it.
    QVERIFY(QDir().rmdir(programDir()));
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::restoreKeepsWhatIsThereFirst()
{
    QVERIFY(keep({"one\n"}));
    // Saved a moment ago, and nobody has looked since.
    writeFile(m_path, "two\n");
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    QCOMPARE(versionOf("two\n").name, QString("coil.cnc"));
}

void TestProgramHistory::restoreThatCannotKeepWhatIsThereIsRefused()
{
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    save("one\n");
    start(limits);
    QVERIFY(isKept(1));
    const QByteArray large(501, 'x');
    save(large);
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 2);
    QVERIFY(m_told->first().at(0).toString().contains("too large"));
    QCOMPARE(m_told->first().at(1).value<Message::Tone>(), Message::Alarm);
    QCOMPARE(m_told->first().at(2).toString(), QString("history:coil.cnc"));
    QVERIFY(lastTold().contains("not brought back"));
    QCOMPARE(lastTone(), Message::Warning);
    QCOMPARE(readFile(m_path), large);
}

void TestProgramHistory::longRestoreTellsItsProgressAndStops()
{
    const QByteArray bytes = QByteArray("G01 X1.5 Y-2\n").repeated(100000);
    save(bytes);
    start();
    QVERIFY(isKept(1));
    save("saved over it\n");
    QVERIFY(isKept(2));
    QSignalSpy worked(m_history.data(), SIGNAL(worked(QString, int)));
    const ProgramVersion version = m_history->versions().first();
    m_history->restore(version);
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(worked.size() > 10);
    QCOMPARE(worked.last().at(1).toInt(), 100);
    QCOMPARE(readFile(m_path), bytes);

    save("saved over it again\n");
    const SignalHook hook(m_history.data(), SIGNAL(worked(QString, int)),
                          [this] { m_history->stopRestoring(); });
    m_history->restore(version);
    QTRY_COMPARE(m_told->size(), 2);
    QVERIFY(lastTold().contains("Stopped"));
    QCOMPARE(readFile(m_path), QByteArray("saved over it again\n"));
    QTRY_COMPARE(hidden(), QStringList());
}

// It waits for the program's last version to be kept.
void TestProgramHistory::restoreIsStoppedBeforeItBegins()
{
    QVERIFY(keep({"one\n", "two\n"}));
    const ProgramVersion version = m_history->versions().first();
    m_history->restore(version);
    QVERIFY(m_history->isRestoring());
    m_history->stopRestoring();
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(lastTold(), QString("Stopped. coil.cnc is as it was."));
    QVERIFY(!m_history->isRestoring());
    QCOMPARE(readFile(m_path), QByteArray("two\n"));
    m_history->restore(version);
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
}

void TestProgramHistory::damagedVersionIsNotBroughtBack()
{
    QVERIFY(keep({"one\n", "two\n"}));
    const ProgramVersion version = m_history->versions().first();
    writeFile(version.path, readFile(version.path).replace("one", "ono"));
    m_history->restore(version);
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(lastTold().contains("damaged"));
    QCOMPARE(readFile(m_path), QByteArray("two\n"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::versionThatWentMeanwhileIsTold()
{
    QVERIFY(keep({"one\n"}));
    const ProgramVersion version = m_history->versions().first();
    QVERIFY(QFile::remove(version.path));
    m_history->restore(version);
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(lastTold().contains("not in the history any more"));
    // The next one is not held up by it.
    save("two\n");
    QVERIFY(isKept(2));
    m_history->restore(m_history->versions().last());
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(lastTone(), Message::Information);
}

void TestProgramHistory::restoreIntoAFolderThatTakesNothing()
{
    QVERIFY(keep({"one\n"}));
    const QFile::Permissions usual = QFile::permissions(programDir());
    QVERIFY(QFile::setPermissions(programDir(), QFile::ReadOwner | QFile::ExeOwner));
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(lastTold().contains("cannot be written"));
    QVERIFY(QFile::setPermissions(programDir(), usual));
}

void TestProgramHistory::halfRestoredFileOfAKilledProgramGoes()
{
    writeFile(programDir() + "/.filarix-restored.aBc123", "half");
    writeFile(programDir() + "/.filarix-restored", "whole, but without its name");
    const QString half = ".filarix-coil.cnc.abcdef012345";
    writeFile(programDir() + '/' + half, "half");
    age(programDir() + '/' + half);
    writeFile(programDir() + "/.filarix-restored-12/" + half, "half");
    // Somebody may be writing that one.
    const QString young = ".filarix-coil.cnc.abcdef012346";
    writeFile(programDir() + '/' + young, "half");
    start();
    QVERIFY(isKept(0));
    QCOMPARE(hidden(), QStringList(young));
}

void TestProgramHistory::historyThatCannotBeKeptIsToldOnce()
{
    writeFile(home() + "/hmi", "a file where the folder should be");
    save("one\n");
    start();
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(lastTold().contains(m_folder));
    QCOMPARE(lastTone(), Message::Alarm);
    QCOMPARE(m_told->first().at(2).toString(), QString("history"));
    QVERIFY(isKept(0));
    QCOMPARE(m_told->size(), 1);
    // It goes on by itself once it can.
    m_history->setLookInterval(50);
    QVERIFY(QFile::remove(home() + "/hmi"));
    QTRY_COMPARE(m_history->versions().size(), 1);
}

void TestProgramHistory::storageThatHangsIsTold()
{
    save("one\n");
    const HeldFile held(m_path);
    QVERIFY(held.isHeld());
    m_history.reset(new ProgramHistory(programDir(), m_folder));
    m_history->setStallTime(200);
    m_told.reset(new QSignalSpy(m_history.data(), SIGNAL(told(QString, Message::Tone, QString))));
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(lastTold().contains("stopped answering"));
    // Nobody is kept from working by it.
    QVERIFY(m_history->isSettled());
    m_history->scan();
    QVERIFY(m_history->isSettled());
}

void TestProgramHistory::settledOnlyWhenAllIsKept()
{
    start();
    QTRY_VERIFY(m_history->isSettled());
    const QString written = home() + "/written";
    for (int i = 0; i < 20; ++i) {
        writeFile(written, QByteArray(10000, 'x'));
        putInPlace(written, programDir() + QString("/%1.cnc").arg(i));
    }
    m_history->scan();
    QVERIFY(!m_history->isSettled());
    QTRY_VERIFY(m_history->isSettled());
    QCOMPARE(m_history->versions().size(), 20);
}

void TestProgramHistory::waiterIsCalledWhenAllOfThatMomentIsKept()
{
    start();
    QTRY_VERIFY(m_history->isSettled());
    // In the middle of a look that has listed the directory already, too.
    for (int i = 0; i < 8; ++i) {
        const QByteArray bytes = QByteArray::number(i);
        m_history->scan();
        save(bytes);
        int calls = 0;
        QByteArray kept;
        m_history->whenSettled(this, [&] {
            ++calls;
            kept = lastContent();
        });
        QCOMPARE(calls, 0);
        QTRY_COMPARE(calls, 1);
        QCOMPARE(kept, bytes);
        QVERIFY(m_history->isKept("coil.cnc"));
    }
}

void TestProgramHistory::waiterIsCalledWhenAProgramCannotBeKept()
{
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    start(limits);
    writeFile(m_path, QByteArray(501, 'x'));
    writeFile(programDir() + "/small.cnc", "one\n");
    bool isTold = false;
    bool isKept = true;
    int calls = 0;
    m_history->whenSettled(this, [&] {
        ++calls;
        isTold = m_told->size() == 1;
        isKept = m_history->isKept("coil.cnc");
    });
    QTRY_COMPARE(calls, 1);
    QVERIFY(isTold);
    QVERIFY(!isKept);
    QVERIFY(m_history->isKept("small.cnc"));
    QVERIFY(m_history->isKept("never-there.cnc"));
}

void TestProgramHistory::waiterIsCalledWhenTheStorageIsLost()
{
    save("one\n");
    const HeldFile held(m_path);
    QVERIFY(held.isHeld());
    m_history.reset(new ProgramHistory(programDir(), m_folder));
    m_history->setStallTime(200);
    int calls = 0;
    m_history->whenSettled(this, [&] { ++calls; });
    QTRY_COMPARE(calls, 1);
    QVERIFY(!m_history->isKept("coil.cnc"));
    m_history->whenSettled(this, [&] { ++calls; });
    QCOMPARE(calls, 1);
    QTRY_COMPARE(calls, 2);
}

void TestProgramHistory::waiterIsCalledWhenAWriterDoesNotEnd()
{
    start();
    QVERIFY(!m_history->isKept("coil.cnc"));
    QTRY_VERIFY(m_history->isSettled());
    QVERIFY(m_history->isKept("coil.cnc"));
    m_history->setPatience(250);
    QTimer writer;
    QByteArray bytes;
    const SignalHook hook(&writer, SIGNAL(timeout()),
                          [&] { writeFile(m_path, bytes += "more\n"); });
    writeFile(m_path, "more\n");
    writer.start(10);
    QElapsedTimer timer;
    timer.start();
    int calls = 0;
    m_history->whenSettled(this, [&] { ++calls; });
    QTRY_COMPARE(calls, 1);
    QVERIFY(timer.elapsed() >= 249);
    QVERIFY(!m_history->isKept("coil.cnc"));
    writer.stop();
    m_history->whenSettled(this, [&] { ++calls; });
    QTRY_COMPARE(calls, 2);
    QVERIFY(m_history->isKept("coil.cnc"));
}

// A disk may be so slow that patience ends before the look at what stands there.
void TestProgramHistory::lookThatNobodyWaitedForKeepsNothing()
{
    const QString slow = programDir() + "/slow.cnc";
    writeFile(slow, "before\n");
    age(slow);
    start();
    QTRY_VERIFY(m_history->isSettled());
    QVERIFY(m_history->isKept("coil.cnc"));
    m_history->setPatience(150);
    m_history->setStallTime(60000);
    writeFile(slow, "more\n");
    age(slow);
    HeldFile held(slow);
    QVERIFY(held.isHeld());
    int calls = 0;
    m_history->whenSettled(this, [&] { ++calls; });
    QTRY_COMPARE(calls, 1);
    writeFile(m_path, "changed while the history waits for its disk\n");
    m_history->whenSettled(this, [&] { ++calls; });
    QTRY_COMPARE(calls, 2);
    QVERIFY(!m_history->isKept("coil.cnc"));
    QVERIFY(m_history->reasonNotKept("coil.cnc").contains("has not taken in coil.cnc yet"));
    held.letGo();
    QTRY_VERIFY(m_history->isKept("coil.cnc"));
    QTRY_VERIFY(m_history->isSettled());
}

void TestProgramHistory::waiterThatIsGoneIsNotCalled()
{
    start();
    int gone = 0;
    int calls = 0;
    QScopedPointer<QObject> context(new QObject);
    m_history->whenSettled(context.data(), [&] { ++gone; });
    m_history->whenSettled(this, [&] { ++calls; });
    context.reset();
    QTRY_COMPARE(calls, 1);
    QCOMPARE(gone, 0);
}

void TestProgramHistory::causeEndsWhenTheProgramIsKeptOrGone_data()
{
    QTest::addColumn<QByteArray>("later");
    QTest::newRow("kept") << QByteArray("short");
    QTest::newRow("gone") << QByteArray();
}

void TestProgramHistory::causeEndsWhenTheProgramIsKeptOrGone()
{
    QFETCH(QByteArray, later);
    HistoryStore::Limits limits;
    limits.bytes = 1000;
    save(QByteArray(501, 'x'));
    start(limits);
    QSignalSpy ends(m_history.data(), SIGNAL(causeEnded(QString)));
    QVERIFY(isKept(0));
    QVERIFY(isKept(0));
    QCOMPARE(m_told->size(), 1);
    QCOMPARE(ends.size(), 0);
    m_history->setLookInterval(50);
    if (later.isNull())
        QVERIFY(QFile::remove(m_path));
    else
        save(later);
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(ends.first().first().toString(), QString("history:coil.cnc"));
    QCOMPARE(m_told->size(), 1);
    QVERIFY(m_history->isKept("coil.cnc"));
}

void TestProgramHistory::restoreKeepsThePermissions()
{
    QVERIFY(keep({"one\n"}));
    save("two\n");
    QCOMPARE(::chmod(QFile::encodeName(m_path).constData(), 0640), 0);
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    struct stat info = {};
    QCOMPARE(::stat(QFile::encodeName(m_path).constData(), &info), 0);
    QCOMPARE(int(info.st_mode & 07777), 0640);
}

void TestProgramHistory::saveRightBeforeTheRenameIsKept_data()
{
    QTest::addColumn<bool>("isRightBefore");
    QTest::addColumn<bool>("canExchange");
    QTest::newRow("after the first look") << false << true;
    QTest::newRow("after the first look, on an old system") << false << false;
    QTest::newRow("after the last look") << true << true;
}

void TestProgramHistory::saveRightBeforeTheRenameIsKept()
{
    QFETCH(bool, isRightBefore);
    QFETCH(bool, canExchange);
    QVERIFY(keep({"one\n", "two\n"}));
    std::atomic<int> saves{0};
    // Of each two, the first asks for an exchange.
    int renames = 0;
    const auto save = [this, &saves] {
        if (saves++ == 0)
            saveInPlace("saved in the last moment\n");
        QTest::qSleep(22);
    };
    FileCalls::beforeSync = [&](const QByteArray &path) {
        if (!isRightBefore && path.contains(".filarix-restored"))
            save();
    };
    FileCalls::beforeRename = [&](const QByteArray &, const QByteArray &to) {
        if (to != QFile::encodeName(m_path))
            return 0;
        if (isRightBefore)
            save();
        return canExchange || ++renames % 2 == 0 ? 0 : EINVAL;
    };
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(saves > 0);
    QVERIFY2(lastTold().contains("is back"), qPrintable(lastTold()));
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    QTRY_COMPARE(versionOf("saved in the last moment\n").name, QString("coil.cnc"));
    QTRY_COMPARE(lastContent(), QByteArray("one\n"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::saveThatGoesOnIsKept()
{
    QVERIFY(keep({"one\n", "two\n"}));
    std::thread saving;
    QByteArray saved;
    for (int i = 0; i < 20; ++i)
        saved += "line " + QByteArray::number(i) + '\n';
    FileCalls::beforeRename = [&](const QByteArray &, const QByteArray &to) {
        if (to != QFile::encodeName(m_path) || saving.joinable())
            return 0;
        // The file is opened under its name, and written to after it has lost that.
        const int handle = ::open(to.constData(), O_WRONLY | O_TRUNC);
        saving = std::thread([handle, &saved] {
            for (const QByteArray &line : saved.split('\n').mid(0, 20)) {
                const QByteArray bytes = line + '\n';
                if (::write(handle, bytes.constData(), size_t(bytes.size())) < 0)
                    qWarning("the save failed");
                QTest::qSleep(20);
            }
            ::close(handle);
        });
        return 0;
    };
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    saving.join();
    QVERIFY2(lastTold().contains("is back"), qPrintable(lastTold()));
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    QTRY_COMPARE(versionOf(saved).name, QString("coil.cnc"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::saveWithoutEndIsLeftInPlace()
{
    QVERIFY(keep({"one\n", "two\n"}));
    std::thread saving;
    std::atomic<bool> isEnough{false};
    m_history->setWriterPatience(400);
    FileCalls::beforeRename = [&](const QByteArray &, const QByteArray &to) {
        if (to != QFile::encodeName(m_path) || saving.joinable())
            return 0;
        const int handle = ::open(to.constData(), O_WRONLY | O_TRUNC);
        saving = std::thread([handle, &isEnough] {
            while (!isEnough && ::write(handle, "more\n", 5) == 5)
                QTest::qSleep(10);
            ::close(handle);
        });
        return 0;
    };
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE_WITH_TIMEOUT(m_told->size(), 1, 10000);
    isEnough = true;
    saving.join();
    QVERIFY2(lastTold().contains("is being written"), qPrintable(lastTold()));
    QCOMPARE(lastTone(), Message::Warning);
    QVERIFY(readFile(m_path).startsWith("more\nmore\n"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::programThatComesBackMeanwhileIsKept()
{
    QVERIFY(keep({"one\n"}));
    QVERIFY(QFile::remove(m_path));
    QVERIFY(isKept(1));
    int calls = 0;
    // There was nothing to exchange with, and there is something by now.
    FileCalls::beforeRename = [&](const QByteArray &, const QByteArray &to) {
        if (to == QFile::encodeName(m_path) && ++calls == 2)
            saveInPlace("saved in between\n");
        return 0;
    };
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(calls > 2);
    QCOMPARE(readFile(m_path), QByteArray("one\n"));
    QTRY_COMPARE(versionOf("saved in between\n").name, QString("coil.cnc"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::linkIsNotReplaced()
{
    QVERIFY(keep({"one\n"}));
    QVERIFY(QFile::remove(m_path));
    writeFile(home() + "/elsewhere.cnc", "theirs\n");
    QVERIFY(QFile::link(home() + "/elsewhere.cnc", m_path));
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QVERIFY(lastTold().contains("not brought back"));
    QVERIFY(QFileInfo(m_path).isSymLink());
    QCOMPARE(readFile(home() + "/elsewhere.cnc"), QByteArray("theirs\n"));
    QTRY_COMPARE(hidden(), QStringList());
}

void TestProgramHistory::whatAKilledRestoreHeldIsTakenIn()
{
    save("one\n");
    const QString held = programDir() + "/.filarix-restored-1a2b/coil.cnc";
    writeFile(held, "saved in the last moment\n");
    age(held);
    start();
    QVERIFY(isKept(2));
    QCOMPARE(versionOf("saved in the last moment\n").name, QString("coil.cnc"));
    QCOMPARE(lastContent(), QByteArray("one\n"));
    QCOMPARE(hidden(), QStringList());
}

void TestProgramHistory::stalledSyncBringsNothingBack()
{
    QVERIFY(keep({"one\n", "two\n", "three\n"}));
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const std::shared_ptr<std::atomic<bool>> hangs = std::make_shared<std::atomic<bool>>(false);
    FileCalls::beforeSync = [gate, hangs](const QByteArray &path) {
        if (path.contains(".filarix-restored") && !hangs->exchange(true))
            gate->acquire();
    };
    m_history->setStallTime(150);
    m_history->restore(versionOf("one\n"));
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(lastTone(), Message::Alarm);
    QVERIFY2(lastTold().contains("was not brought back"), qPrintable(lastTold()));
    m_history->setStallTime(FileTaskRunner::stallMs);
    m_history->restore(versionOf("two\n"));
    QTRY_COMPARE(m_told->size(), 2);
    QCOMPARE(lastTone(), Message::Information);
    QCOMPARE(readFile(m_path), QByteArray("two\n"));
    // The first one's bytes reach the disk after all: it takes away what it had made, no more.
    QCOMPARE(hidden().size(), 1);
    gate->release();
    QTRY_COMPARE(hidden(), QStringList());
    QCOMPARE(readFile(m_path), QByteArray("two\n"));
}

void TestProgramHistory::renameThatHangsIsToldAsNotKnown()
{
    QVERIFY(keep({"one\n", "two\n"}));
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const QByteArray program = QFile::encodeName(m_path);
    const std::shared_ptr<std::atomic<bool>> hangs = std::make_shared<std::atomic<bool>>(false);
    FileCalls::beforeRename = [gate, hangs, program](const QByteArray &, const QByteArray &to) {
        if (to == program && !hangs->exchange(true))
            gate->acquire();
        return 0;
    };
    m_history->setStallTime(150);
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 1);
    QCOMPARE(lastTone(), Message::Alarm);
    QVERIFY2(lastTold().contains("is not known"), qPrintable(lastTold()));
    m_history->setStallTime(FileTaskRunner::stallMs);
    m_history->restore(m_history->versions().first());
    QTRY_COMPARE(m_told->size(), 2);
    QVERIFY2(lastTold().contains("last restore has not ended yet"), qPrintable(lastTold()));
    QCOMPARE(readFile(m_path), QByteArray("two\n"));
    gate->release();
    // The one of before comes to its end; what stood there is kept, wherever it is.
    QTRY_COMPARE(readFile(m_path), QByteArray("one\n"));
    QCOMPARE(versionOf("two\n").name, QString("coil.cnc"));
}

static volatile std::sig_atomic_t leaseIsWanted = 0;

void TestProgramHistory::nobodyWaitsForStorageThatHangs()
{
    save("one\n");
    leaseIsWanted = 0;
    std::signal(SIGIO, [](int) { leaseIsWanted = 1; });
    QFile leased(m_path);
    QVERIFY(leased.open(QIODevice::ReadWrite));
    QCOMPARE(::fcntl(leased.handle(), F_SETLEASE, F_WRLCK), 0);
    QElapsedTimer timer;
    QScopedPointer<ProgramHistory> history(new ProgramHistory(programDir(), m_folder));
    QTRY_VERIFY(leaseIsWanted);
    timer.start();
    history->scan();
    history->whenSettled(this, [] {});
    QVERIFY(!history->isSettled());
    QVERIFY(history->versions().isEmpty());
    history->restore(ProgramVersion());
    history->stopRestoring();
    history.reset();
    QVERIFY2(timer.elapsed() < patience(500), qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(::fcntl(leased.handle(), F_SETLEASE, F_UNLCK), 0);
}

FILARIX_TEST_MAIN(TestProgramHistory)
#include "tst_programhistory.moc"
