// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "storage/connectionfile.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

class TestConnectionFile : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void missingFileIsMadeWithTypicalOnes();
    void whatTheFileSaysIsRead();
    void noMoreThanTheTableShowsAreRead();
    void whatCannotBeReadIsTold_data();
    void whatCannotBeReadIsTold();
    void folderThatTakesNothingIsTold();
    void storeReplacesTheFile();
    void changeOfSomebodyElseIsNotCovered();
    void storeThatWasGivenUpChangesNothing();
    void editThatWasNotWrittenIsNoStore();
    void nothingIsLeftInTheTemporaryFolder();

private:
    static QString path() { return home() + "/hmi/connections.ini"; }
};

static QByteArray oneConnection(const QByteArray &address)
{
    return "[General]\nConnect%200=Spindle\nConnect%200%20cid=7\nConnect%200%20baud=19200\n"
           "Spindlenew%20IP="
           + address + "\nconnect%20count=1\n";
}

static bool always()
{
    return true;
}

static bool never()
{
    return false;
}

void TestConnectionFile::missingFileIsMadeWithTypicalOnes()
{
    const ConnectionFile::Contents made = ConnectionFile::read(path());
    QVERIFY2(made.error.isEmpty(), qPrintable(made.error));
    QVERIFY(made.isThere);
    QCOMPARE(made.count, 5);
    QCOMPARE(made.connections.size(), 5);
    QCOMPARE(made.connections.at(1).name, QString("Spindle drive"));
    QCOMPARE(made.connections.at(1).baud, QString("187600"));
    QCOMPARE(made.connections.at(1).address, QString("192.168.1.21"));
    QCOMPARE(made.bytes, readFile(path()));
    const ConnectionFile::Contents again = ConnectionFile::read(path());
    QCOMPARE(again.bytes, made.bytes);
    QCOMPARE(again.connections.size(), 5);
}

void TestConnectionFile::whatTheFileSaysIsRead()
{
    writeFile(path(), oneConnection("10.0.0.1"));
    const ConnectionFile::Contents contents = ConnectionFile::read(path());
    QCOMPARE(contents.count, 1);
    QCOMPARE(contents.connections.first().name, QString("Spindle"));
    QCOMPARE(contents.connections.first().cid, QString("7"));
    QCOMPARE(contents.connections.first().baud, QString("19200"));
    QCOMPARE(contents.connections.first().address, QString("10.0.0.1"));
}

void TestConnectionFile::noMoreThanTheTableShowsAreRead()
{
    writeFile(path(), "[General]\nconnect%20count=2000000000\n");
    const ConnectionFile::Contents contents = ConnectionFile::read(path());
    QCOMPARE(contents.count, 2000000000);
    QCOMPARE(contents.connections.size(), int(ConnectionFile::mostConnections));
}

void TestConnectionFile::whatCannotBeReadIsTold_data()
{
    QTest::addColumn<QString>("what");
    const char *kinds[] = {"folder", "pipe", "too large", "no right"};
    for (const char *kind : kinds)
        QTest::newRow(kind) << QString(kind);
}

void TestConnectionFile::whatCannotBeReadIsTold()
{
    QFETCH(QString, what);
    QVERIFY(QDir().mkpath(home() + "/hmi"));
    if (what == "folder")
        QVERIFY(QDir().mkdir(path()));
    else if (what == "pipe")
        QCOMPARE(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    else if (what == "too large")
        writeFile(path(), QByteArray(5 * 1024 * 1024, '\n'));
    else
        writeFile(path(), oneConnection("10.0.0.1"));
    if (what == "no right")
        QCOMPARE(::chmod(QFile::encodeName(path()).constData(), 0), 0);
    const ConnectionFile::Contents contents = ConnectionFile::read(path());
    QVERIFY(contents.isThere);
    QVERIFY(contents.connections.isEmpty());
    QVERIFY2(contents.error.contains(path()), qPrintable(contents.error));
}

void TestConnectionFile::folderThatTakesNothingIsTold()
{
    writeFile(home() + "/hmi", "no folder");
    const ConnectionFile::Contents contents = ConnectionFile::read(path());
    QVERIFY(!contents.isThere);
    QVERIFY(contents.error.contains("cannot be made"));
}

void TestConnectionFile::storeReplacesTheFile()
{
    const QByteArray before = oneConnection("10.0.0.1");
    const QByteArray after = oneConnection("10.0.0.2");
    writeFile(path(), before);
    QCOMPARE(ConnectionFile::store(path(), before, after, QStringList("10.0.0.2"), always),
             QString());
    QCOMPARE(readFile(path()), after);
}

void TestConnectionFile::changeOfSomebodyElseIsNotCovered()
{
    const QByteArray others = oneConnection("10.0.0.3");
    writeFile(path(), others);
    const QString error =
        ConnectionFile::store(path(), oneConnection("10.0.0.1"), oneConnection("10.0.0.2"),
                              QStringList("10.0.0.2"), always);
    QVERIFY2(error.contains("changed meanwhile"), qPrintable(error));
    QCOMPARE(readFile(path()), others);
}

void TestConnectionFile::storeThatWasGivenUpChangesNothing()
{
    const QByteArray before = oneConnection("10.0.0.1");
    writeFile(path(), before);
    QVERIFY(!ConnectionFile::store(path(), before, oneConnection("10.0.0.2"),
                                   QStringList("10.0.0.2"), never)
                 .isEmpty());
    QCOMPARE(readFile(path()), before);
    QCOMPARE(QDir(home() + "/hmi").entryList(QDir::Files | QDir::Hidden).size(), 1);
}

// What was to be stored is not in the bytes: the editor could not write them.
void TestConnectionFile::editThatWasNotWrittenIsNoStore()
{
    const QByteArray before = oneConnection("10.0.0.1");
    writeFile(path(), before);
    QVERIFY(
        !ConnectionFile::store(path(), before, before, QStringList("10.0.0.2"), always).isEmpty());
    QCOMPARE(readFile(path()), before);
}

void TestConnectionFile::nothingIsLeftInTheTemporaryFolder()
{
    const QStringList before = QDir::temp().entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    const ConnectionFile::Contents made = ConnectionFile::read(path());
    ConnectionFile::store(path(), made.bytes, made.bytes, QStringList(), always);
    QCOMPARE(QDir::temp().entryList(QDir::NoDotAndDotDot | QDir::AllEntries), before);
}

FILARIX_TEST_MAIN(TestConnectionFile)
#include "tst_connectionfile.moc"
