// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/settingsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>

class TestSettingsFile : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingFileHasNoValues();
    void valuesComeBack();
    void emptyValueTakesItsKeyAway();
    void whatIsNoSettingsFileIsPutAside_data();
    void whatIsNoSettingsFileIsPutAside();
    void earlierOnesStay();
    void fileThatCannotBePutAsideIsNeverCovered();
    void fullDiskIsToldOnce();
    void changedLeavesAllElse_data();
    void changedLeavesAllElse();
    void settleWaitsForWhatWasBegun();

private:
    static QString path() { return home() + "/hmi/panel.ini"; }
    static QString aside() { return path() + ".broken"; }
};

static QMap<QString, QString> values(const QString &key, const QString &value)
{
    QMap<QString, QString> values;
    values.insert(key, value);
    return values;
}

void TestSettingsFile::missingFileHasNoValues()
{
    SettingsFile file(path());
    QVERIFY(!file.takeState().isRead);
    file.read();
    const SettingsFile::State state = file.takeState();
    QVERIFY(state.isRead);
    QVERIFY(state.values.isEmpty());
    QCOMPARE(int(state.trouble), int(SettingsFile::None));
    QVERIFY(!QFile::exists(path()));
}

void TestSettingsFile::valuesComeBack()
{
    SettingsFile file(path());
    file.read();
    file.store(values("colour", "red"));
    file.store(values("shape", "round"));
    SettingsFile other(path());
    other.read();
    const SettingsFile::State state = other.takeState();
    QCOMPARE(state.values.size(), 2);
    QCOMPARE(state.values.value("colour"), QString("red"));
    QCOMPARE(state.values.value("shape"), QString("round"));
}

void TestSettingsFile::emptyValueTakesItsKeyAway()
{
    writeFile(path(), "[General]\ncolour=red\nshape=round\n");
    SettingsFile file(path());
    file.read();
    file.store(values("colour", QString()));
    QCOMPARE(readFile(path()), QByteArray("[General]\nshape=round\n"));
}

void TestSettingsFile::whatIsNoSettingsFileIsPutAside_data()
{
    QTest::addColumn<QString>("what");
    const char *kinds[] = {"other bytes", "too large", "folder", "pipe", "link to nothing"};
    for (const char *kind : kinds)
        QTest::newRow(kind) << QString(kind);
}

void TestSettingsFile::whatIsNoSettingsFileIsPutAside()
{
    QFETCH(QString, what);
    QVERIFY(QDir().mkpath(home() + "/hmi"));
    const QByteArray name = QFile::encodeName(path());
    if (what == "other bytes")
        writeFile(path(), "no settings\n[\n");
    else if (what == "too large")
        writeFile(path(), "[General]\n" + QByteArray("colour=red\n").repeated(10000));
    else if (what == "folder")
        QVERIFY(QDir().mkdir(path()));
    else if (what == "pipe")
        QCOMPARE(::mkfifo(name.constData(), 0600), 0);
    else
        QCOMPARE(::symlink("/nowhere/at/all", name.constData()), 0);
    SettingsFile file(path());
    file.read();
    const SettingsFile::State state = file.takeState();
    QVERIFY(state.isRead);
    if (what == "link to nothing") {
        // It holds nothing that could be lost.
        QVERIFY(state.values.isEmpty());
        return;
    }
    QVERIFY(state.values.isEmpty());
    QCOMPARE(int(state.trouble), int(SettingsFile::PutAside));
    QCOMPARE(state.asidePath, aside());
    QVERIFY(!QFileInfo(path()).exists());
    // Told once.
    QCOMPARE(int(file.takeState().trouble), int(SettingsFile::None));
    file.store(values("colour", "red"));
    QVERIFY(readFile(path()).contains("colour=red"));
}

void TestSettingsFile::earlierOnesStay()
{
    writeFile(aside(), "first");
    writeFile(path(), "second\n[\n");
    SettingsFile file(path());
    file.read();
    QCOMPARE(file.takeState().asidePath, QString(aside() + ".2"));
    QCOMPARE(readFile(aside()), QByteArray("first"));
    QCOMPARE(readFile(aside() + ".2"), QByteArray("second\n[\n"));
}

void TestSettingsFile::fileThatCannotBePutAsideIsNeverCovered()
{
    writeFile(path(), "precious\n[\n");
    writeFile(aside(), QByteArray());
    for (int i = 2; i <= 99; ++i)
        writeFile(aside() + '.' + QString::number(i), QByteArray());
    SettingsFile file(path());
    file.read();
    QCOMPARE(int(file.takeState().trouble), int(SettingsFile::NotPutAside));
    file.store(values("colour", "red"));
    QCOMPARE(readFile(path()), QByteArray("precious\n[\n"));
}

void TestSettingsFile::fullDiskIsToldOnce()
{
    const QByteArray before("[General]\ncolour=red\n");
    writeFile(path(), before);
    SettingsFile file(path());
    file.read();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old = {};
    ::getrlimit(RLIMIT_FSIZE, &old);
    const rlimit none = {1, old.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &none), 0);
    file.store(values("colour", "green"));
    const SettingsFile::Trouble first = file.takeState().trouble;
    file.store(values("colour", "blue"));
    const SettingsFile::Trouble second = file.takeState().trouble;
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &old), 0);
    QCOMPARE(int(first), int(SettingsFile::NotStored));
    QCOMPARE(int(second), int(SettingsFile::None));
    QCOMPARE(readFile(path()), before);
}

void TestSettingsFile::changedLeavesAllElse_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("empty file") << QByteArray() << QByteArray("red")
                                << QByteArray("[General]\nkey=red\n");
    QTest::newRow("replaced") << QByteArray("[General]\na=1\nkey=blue\nb=2\n") << QByteArray("red")
                              << QByteArray("[General]\nkey=red\na=1\nb=2\n");
    QTest::newRow("before any section")
        << QByteArray("key=blue\n[later]\nkey=x\n") << QByteArray("red")
        << QByteArray("[General]\nkey=red\n[later]\nkey=x\n");
    QTest::newRow("removed") << QByteArray("[General]\nkey=blue\n; note\n") << QByteArray()
                             << QByteArray("[General]\n; note\n");
    QTest::newRow("section in other letters")
        << QByteArray("[gENERAL]\nkey=blue\n") << QByteArray("red")
        << QByteArray("[gENERAL]\nkey=red\n");
}

void TestSettingsFile::changedLeavesAllElse()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, after);
    QCOMPARE(SettingsFile::changed(before, "key", value), after);
}

void TestSettingsFile::settleWaitsForWhatWasBegun()
{
    SettingsFile file(path());
    QVERIFY(file.settle(0));
    file.begin();
    QVERIFY(!file.settle(10));
    std::thread other([&file] { file.end(); });
    QVERIFY(file.settle(patience(5000)));
    other.join();
}

FILARIX_TEST_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
