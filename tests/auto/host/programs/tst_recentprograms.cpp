// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "programs/recentprograms.h"

#include <QDir>
#include <QFile>
#include <QScopedPointer>
#include <QSignalSpy>

#include <sys/stat.h>

class TestRecentPrograms : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void lastOneComesFirst();
    void tenAreKept();
    void namesOutliveTheProgram();
    void anyNameIsKept_data();
    void anyNameIsKept();
    void noneForAnEmptyPath();
    void whatIsNotedBeforeTheFileComesIsFirst();
    void forgottenStaysForgotten();
    void whatIsNoListIsPutAside();
    void pipeHoldsNobodyUp();
    void withoutADiskNamesLastForTheRun();

private:
    // Each test its own: Qt 4 takes a file of the same size and second for the one that it has
    // read.
    static QString path() { return home() + "/own/" + QTest::currentTestFunction() + ".ini"; }
    QStringList stored() const
    {
        RecentPrograms recent(path());
        return recent.settle(patience(5000)) ? recent.names() : QStringList("not settled");
    }
};

void TestRecentPrograms::init()
{
    FilarixTest::init();
    QDir().mkpath(home() + "/own");
    emptyFolder(home() + "/own");
}

void TestRecentPrograms::lastOneComesFirst()
{
    RecentPrograms recent((QString()));
    QSignalSpy changed(&recent, SIGNAL(changed()));
    recent.note("a.cnc");
    recent.note("b.cnc");
    recent.note("b.cnc");
    recent.note("a.cnc");
    recent.note(QString());
    QCOMPARE(recent.names(), QStringList() << "a.cnc"
                                           << "b.cnc");
    QCOMPARE(changed.count(), 3);
}

void TestRecentPrograms::tenAreKept()
{
    RecentPrograms recent((QString()));
    for (int i = 0; i < 12; ++i)
        recent.note(QString::number(i));
    QCOMPARE(recent.names().size(), int(RecentPrograms::most));
    QCOMPARE(recent.names().last(), QString("2"));
}

void TestRecentPrograms::namesOutliveTheProgram()
{
    {
        RecentPrograms recent(path());
        QVERIFY(recent.settle(patience(5000)));
        recent.note("a.cnc");
        recent.note("b.cnc");
    }
    QCOMPARE(stored(), QStringList() << "b.cnc"
                                     << "a.cnc");
}

void TestRecentPrograms::anyNameIsKept_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("line ends") << "two\nlines\r.cnc";
    QTest::newRow("the file's signs") << " a=b;c,\"d\"[e]\\ ";
    QTest::newRow("percent") << "100%20.cnc";
    QTest::newRow("other letters") << QString::fromUtf8("M\xc3\xbchle \xe7\xba\xbf.cnc");
}

void TestRecentPrograms::anyNameIsKept()
{
    QFETCH(QString, name);
    {
        RecentPrograms recent(path());
        recent.note(name);
    }
    QCOMPARE(stored(), QStringList(name));
}

void TestRecentPrograms::noneForAnEmptyPath()
{
    RecentPrograms recent((QString()));
    recent.note("a.cnc");
    QVERIFY(recent.settle(0));
    QVERIFY(QDir(home() + "/own").entryList(QDir::Files).isEmpty());
}

void TestRecentPrograms::whatIsNotedBeforeTheFileComesIsFirst()
{
    writeFile(path(), "[General]\nprogram01=a.cnc\nprogram02=b.cnc\n");
    RecentPrograms recent(path());
    recent.note("b.cnc");
    recent.forget("a.cnc");
    QVERIFY(recent.settle(patience(5000)));
    QCOMPARE(recent.names(), QStringList("b.cnc"));
    QCOMPARE(stored(), QStringList("b.cnc"));
}

void TestRecentPrograms::forgottenStaysForgotten()
{
    {
        RecentPrograms recent(path());
        recent.note("a.cnc");
        recent.note("b.cnc");
        recent.forget("b.cnc");
        recent.forget("never.cnc");
        QCOMPARE(recent.names(), QStringList("a.cnc"));
    }
    QCOMPARE(stored(), QStringList("a.cnc"));
}

void TestRecentPrograms::whatIsNoListIsPutAside()
{
    writeFile(path(), "[broken\n");
    QCOMPARE(stored(), QStringList());
    QVERIFY(!QFile::exists(path()));
    QVERIFY(QFile::exists(path() + ".broken"));
}

void TestRecentPrograms::pipeHoldsNobodyUp()
{
    QCOMPARE(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    QCOMPARE(stored(), QStringList());
}

void TestRecentPrograms::withoutADiskNamesLastForTheRun()
{
    // No folder can be made below a file.
    writeFile(home() + "/own/file", "x");
    RecentPrograms recent(home() + "/own/file/recent.ini");
    recent.note("a.cnc");
    QVERIFY(recent.settle(patience(5000)));
    QCOMPARE(recent.names(), QStringList("a.cnc"));
}

FILARIX_TEST_MAIN(TestRecentPrograms)
#include "tst_recentprograms.moc"
