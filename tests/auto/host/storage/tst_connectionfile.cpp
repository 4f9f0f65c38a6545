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
    void portIsWhatFollowsTheColon();
    void whatWasNotChangedStaysWithItsPort();
    void changedAddressKeepsItsPort();
    void connectionsOfOneNameGetTheAddressThatWasEntered();
    void nothingChangedLeavesTheBytes();
    void editKeepsWhatItDoesNotKnow();
    void nothingIsLeftInTheTemporaryFolder();

private:
    static QString path() { return home() + "/hmi/connections.ini"; }
    static ConnectionFile::Contents fourConnections();
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
    QCOMPARE(made.connections.at(1).baud, QString("115200"));
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

void TestConnectionFile::portIsWhatFollowsTheColon()
{
    QCOMPARE(ConnectionFile::portOf("192.168.1.23:4001"), QString(":4001"));
    QCOMPARE(ConnectionFile::portOf("192.168.1.23"), QString());
    QCOMPARE(ConnectionFile::portOf(QString()), QString());
}

// An address with a port, one without, none at all, and the first one's name once more.
ConnectionFile::Contents TestConnectionFile::fourConnections()
{
    ConnectionFile::Contents contents;
    contents.count = 4;
    contents.bytes = "[General]\nConnect%200=Tension\nConnect%201=Guide\nConnect%202=Printer\n"
                     "Connect%203=Tension\nConnect%200%20cid=7\nGuidenew%20IP=10.0.0.2\n"
                     "Tensionnew%20IP=10.0.0.1:4001\nsomebody=\"else's, too\"\n"
                     "connect%20count=4\n";
    writeFile(home() + "/four.ini", contents.bytes);
    return ConnectionFile::read(home() + "/four.ini");
}

void TestConnectionFile::whatWasNotChangedStaysWithItsPort()
{
    const ConnectionFile::Contents before = fourConnections();
    QMap<int, QString> changes;
    changes.insert(1, "10.0.0.9");
    const QStringList wanted = ConnectionFile::changedAddresses(before, changes);
    QCOMPARE(wanted, QStringList() << "10.0.0.1:4001"
                                   << "10.0.0.9"
                                   << ""
                                   << "10.0.0.1:4001");
    writeFile(path(), before.bytes);
    QCOMPARE(ConnectionFile::store(path(), before.bytes,
                                   ConnectionFile::withAddresses(before, wanted), wanted, always),
             QString());
    const QByteArray stored = readFile(path());
    QVERIFY(stored.contains("10.0.0.1:4001"));
    QVERIFY(stored.contains("10.0.0.9"));
    QVERIFY(!stored.contains("Printernew"));
}

void TestConnectionFile::changedAddressKeepsItsPort()
{
    const ConnectionFile::Contents before = fourConnections();
    QMap<int, QString> changes;
    changes.insert(0, "10.0.0.9");
    QCOMPARE(ConnectionFile::changedAddresses(before, changes).first(), QString("10.0.0.9:4001"));
    changes.clear();
    changes.insert(2, "10.0.0.5");
    QCOMPARE(ConnectionFile::changedAddresses(before, changes).at(2), QString("10.0.0.5"));
}

void TestConnectionFile::connectionsOfOneNameGetTheAddressThatWasEntered()
{
    const ConnectionFile::Contents before = fourConnections();
    QMap<int, QString> changes;
    changes.insert(0, "10.0.0.9");
    const QStringList wanted = ConnectionFile::changedAddresses(before, changes);
    QCOMPARE(wanted.at(3), QString("10.0.0.9:4001"));
    changes.insert(3, "10.0.0.8");
    QCOMPARE(ConnectionFile::changedAddresses(before, changes).at(0), QString("10.0.0.8:4001"));
}

void TestConnectionFile::nothingChangedLeavesTheBytes()
{
    ConnectionFile::Contents before = fourConnections();
    before.bytes.prepend("; a remark\n");
    const QStringList wanted = ConnectionFile::changedAddresses(before, QMap<int, QString>());
    QCOMPARE(ConnectionFile::withAddresses(before, wanted), before.bytes);
}

void TestConnectionFile::editKeepsWhatItDoesNotKnow()
{
    const ConnectionFile::Contents before = fourConnections();
    QMap<int, QString> changes;
    changes.insert(1, "10.0.0.9");
    const QByteArray bytes =
        ConnectionFile::withAddresses(before, ConnectionFile::changedAddresses(before, changes));
    QVERIFY2(bytes.contains("somebody=\"else's, too\""), bytes.constData());
    QVERIFY(bytes.contains("Connect%200%20cid=7"));
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
