// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "heldfile.h"
#include "storage/rowfile.h"
#include "storage/rowkeeper.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSemaphore>

#include <sys/stat.h>

class TestRowKeeper : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void missingFileIsNoError();
    void storedRowsComeBack();
    void brokenFileIsPutAsideBeforeTheWrite_data();
    void brokenFileIsPutAsideBeforeTheWrite();
    void asideNamesAreNeverUsedTwice();
    void fileThatWasNeverReadIsPutAside();
    void fileThatWasReadIsReplaced();
    void missingFileBesideOneThatWasPutAsideIsNotNew();
    void linkStaysALink();
    void folderThatTakesNoNameRefusesTheStore();
    void hugeFileIsNotRead();
    void fileThatHangsStopsNothing();
    void storeThatHangsIsNotDoneLater();

private:
    RowKeeper::Loaded load();
    RowKeeper::Stored store(const QList<QStringList> &rows);

    const QList<QStringList> m_rows{{"a", "b"}};
    const QByteArray m_bytes = "# Rows\na\tb\n";
    QString m_folder;
    QString m_path;
    QScopedPointer<RowKeeper> m_keeper;
};

// Files of these tests begin with "#".
static bool readRows(const QString &path, QList<QStringList> *rows, QString *error)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly) && file.read(1) == "#")
        return RowFile::read(path, rows, error);
    *error = "broken";
    return false;
}

void TestRowKeeper::init()
{
    FilarixTest::init();
    m_folder = home() + "/hmi";
    m_path = m_folder + "/rows.txt";
    m_keeper.reset(new RowKeeper("Rows", readRows));
}

void TestRowKeeper::cleanup()
{
    m_keeper.reset();
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    FilarixTest::cleanup();
}

RowKeeper::Loaded TestRowKeeper::load()
{
    RowKeeper::Loaded answer;
    m_keeper->load(m_path, [&](const RowKeeper::Loaded &loaded) { answer = loaded; });
    m_keeper->wait();
    return answer;
}

RowKeeper::Stored TestRowKeeper::store(const QList<QStringList> &rows)
{
    RowKeeper::Stored answer;
    m_keeper->store(m_path, rows, [&](const RowKeeper::Stored &stored) { answer = stored; });
    m_keeper->wait();
    return answer;
}

void TestRowKeeper::missingFileIsNoError()
{
    const RowKeeper::Loaded loaded = load();
    QCOMPARE(loaded.state, RowKeeper::Loaded::Missing);
    QVERIFY(loaded.error.isEmpty());
}

void TestRowKeeper::storedRowsComeBack()
{
    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY2(stored.isStored, qPrintable(stored.error));
    QVERIFY(stored.asidePath.isEmpty());
    QCOMPARE(readFile(m_path), m_bytes);
    const RowKeeper::Loaded loaded = load();
    QCOMPARE(loaded.state, RowKeeper::Loaded::Read);
    QCOMPARE(loaded.rows, m_rows);
}

static void makeForbidden(const QString &path)
{
    FilarixTest::writeFile(path, "# mine\n");
    QFile::setPermissions(path, QFile::Permissions());
}

static void makePipe(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

typedef std::function<void(const QString &)> Make;
Q_DECLARE_METATYPE(Make)

void TestRowKeeper::brokenFileIsPutAsideBeforeTheWrite_data()
{
    QTest::addColumn<Make>("make");
    QTest::newRow("other bytes") << Make([](const QString &path) { writeFile(path, "G01 X1\n"); });
    QTest::newRow("no rights") << Make(makeForbidden);
    QTest::newRow("folder") << Make([](const QString &path) { QDir().mkpath(path + "/below"); });
    QTest::newRow("pipe") << Make(makePipe);
}

void TestRowKeeper::brokenFileIsPutAsideBeforeTheWrite()
{
    QFETCH(Make, make);
    make(m_path);
    const auto number = [](const QString &path) {
        struct stat info = {};
        ::stat(QFile::encodeName(path).constData(), &info);
        return info.st_ino;
    };
    const auto before = number(m_path);
    const RowKeeper::Loaded loaded = load();
    QCOMPARE(loaded.state, RowKeeper::Loaded::Broken);
    QVERIFY(!loaded.error.isEmpty());
    QVERIFY(loaded.rows.isEmpty());
    // Looking changes nothing.
    QCOMPARE(number(m_path), before);

    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY2(stored.isStored, qPrintable(stored.error));
    QCOMPARE(stored.asidePath, m_path + ".broken");
    QCOMPARE(number(stored.asidePath), before);
    QCOMPARE(readFile(m_path), m_bytes);
    QCOMPARE(load().state, RowKeeper::Loaded::Read);
    if (QFileInfo(stored.asidePath).isDir())
        emptyFolder(stored.asidePath);
}

void TestRowKeeper::asideNamesAreNeverUsedTwice()
{
    writeFile(m_path + ".broken", "first");
    QVERIFY(QFile::link("nowhere", m_path + ".broken.2"));
    writeFile(m_path, "third");
    const RowKeeper::Stored stored = store(m_rows);
    QCOMPARE(stored.asidePath, m_path + ".broken.3");
    QCOMPARE(readFile(m_path + ".broken"), QByteArray("first"));
    QCOMPARE(readFile(stored.asidePath), QByteArray("third"));
}

// Somebody has put it there since.
void TestRowKeeper::fileThatWasNeverReadIsPutAside()
{
    QCOMPARE(load().state, RowKeeper::Loaded::Missing);
    writeFile(m_path, "# theirs\n");
    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY(stored.isStored);
    QCOMPARE(readFile(stored.asidePath), QByteArray("# theirs\n"));
    QCOMPARE(readFile(m_path), m_bytes);
}

void TestRowKeeper::fileThatWasReadIsReplaced()
{
    writeFile(m_path, "# mine\n");
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
    QCOMPARE(load().state, RowKeeper::Loaded::Read);
    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY(stored.isStored);
    QVERIFY(stored.asidePath.isEmpty());
    QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden), QStringList("rows.txt"));
    QVERIFY(!(QFile::permissions(m_path) & QFile::ReadOther));
}

// Killed between putting aside and writing, say.
void TestRowKeeper::missingFileBesideOneThatWasPutAsideIsNotNew()
{
    writeFile(m_path + ".broken", "first");
    const RowKeeper::Loaded loaded = load();
    QCOMPARE(loaded.state, RowKeeper::Loaded::Broken);
    QVERIFY2(loaded.error.contains("rows.txt.broken"), qPrintable(loaded.error));
}

void TestRowKeeper::linkStaysALink()
{
    const QString target = home() + "/elsewhere/rows.txt";
    writeFile(target, "broken");
    QDir().mkpath(m_folder);
    QVERIFY(QFile::link(target, m_path));
    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY2(stored.isStored, qPrintable(stored.error));
    QCOMPARE(QFile::symLinkTarget(m_path), target);
    QCOMPARE(readFile(target), m_bytes);
    QCOMPARE(readFile(target + ".broken"), QByteArray("broken"));
}

void TestRowKeeper::folderThatTakesNoNameRefusesTheStore()
{
    writeFile(m_path, "broken");
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::ExeOwner);
    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY(!stored.isStored);
    QVERIFY2(stored.error.contains("Permission denied"), qPrintable(stored.error));
    QCOMPARE(readFile(m_path), QByteArray("broken"));
}

void TestRowKeeper::hugeFileIsNotRead()
{
    writeFile(m_path, "#");
    QVERIFY(QFile::resize(m_path, qint64(1) << 34));
    const RowKeeper::Loaded loaded = load();
    QCOMPARE(loaded.state, RowKeeper::Loaded::Broken);
    QVERIFY2(loaded.error.contains("too large"), qPrintable(loaded.error));
}

void TestRowKeeper::fileThatHangsStopsNothing()
{
    writeFile(m_path, "# mine\n");
    HeldFile held(m_path);
    QVERIFY(held.isHeld());
    m_keeper->setStallTime(200);
    LoopPulse pulse;
    RowKeeper::Loaded answer;
    m_keeper->load(m_path, [&](const RowKeeper::Loaded &loaded) { answer = loaded; });
    QTRY_COMPARE(answer.state, RowKeeper::Loaded::Stalled);
    QVERIFY2(answer.error.contains("does not answer"), qPrintable(answer.error));
    QVERIFY2(pulse.longest() < patience(2000), qPrintable(QString::number(pulse.longest())));
    held.letGo();
    m_keeper->setStallTime(patience(10000));
    QCOMPARE(load().state, RowKeeper::Loaded::Read);
}

// What was told stays so: the store that was given up finds nobody who waits for it.
void TestRowKeeper::storeThatHangsIsNotDoneLater()
{
    writeFile(m_path, "# mine\n");
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>(1);
    m_keeper.reset(new RowKeeper(
        "Rows", [gate](const QString &path, QList<QStringList> *rows, QString *error) {
            gate->acquire();
            return readRows(path, rows, error);
        }));
    QCOMPARE(load().state, RowKeeper::Loaded::Read);
    // Ours, and the one of the function that the keeper reads with.
    const long idle = 2;
    QTRY_COMPARE(gate.use_count(), idle);
    m_keeper->setStallTime(100);
    const RowKeeper::Stored stored = store(m_rows);
    QVERIFY(!stored.isStored);
    QVERIFY2(stored.error.contains("not stored"), qPrintable(stored.error));
    gate->release();
    // Whoever hung there has let go of everything.
    QTRY_COMPARE(gate.use_count(), idle);
    QCOMPARE(readFile(m_path), QByteArray("# mine\n"));
    QCOMPARE(QDir(m_folder).entryList(QDir::Files | QDir::Hidden), QStringList("rows.txt"));
}

FILARIX_TEST_MAIN(TestRowKeeper)
#include "tst_rowkeeper.moc"
