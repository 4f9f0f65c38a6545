// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "waqp.h"

#include <QDir>
#include <QFileInfo>

class TestWaqp : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void programDirectoryLiesUnderTheHomeAndIsMade();
    void homeEndingInASlashGetsNoSecondOne();
    void backslashOfTheHomeBecomesASlash();
    void programDirectoryThatCannotBeMadeIsNamedAllTheSame();
    void fontHasFamilySizeAndWeight_data();
    void fontHasFamilySizeAndWeight();
    void chunkSizes_data();
    void chunkSizes();
    void chunkSizesOfNoPartsAreNone();

private:
    QByteArray m_home = qgetenv("HOME");
};

void TestWaqp::cleanup()
{
    qputenv("HOME", m_home);
    FilarixTest::cleanup();
}

void TestWaqp::programDirectoryLiesUnderTheHomeAndIsMade()
{
    QVERIFY(!QFileInfo(home() + "/cnc").exists());
    QCOMPARE(WAQP::getCncDir(), home() + "/cnc");
    QVERIFY(QFileInfo(home() + "/cnc").isDir());
    QCOMPARE(WAQP::getCncDir(), home() + "/cnc");
}

// The toolkit itself takes the slash off every home but the root.
void TestWaqp::homeEndingInASlashGetsNoSecondOne()
{
    qputenv("HOME", "/");
    QCOMPARE(QDir::homePath(), QString("/"));
    QCOMPARE(WAQP::getCncDir(), QString("/cnc"));
}

void TestWaqp::backslashOfTheHomeBecomesASlash()
{
    QVERIFY(QDir().mkpath(home() + "/a\\b"));
    qputenv("HOME", m_home + "/a\\b");
    QCOMPARE(WAQP::getCncDir(), QString(m_home) + "/a/b/cnc");
    // It is made under the home as it is named, not under the name with slashes.
    QVERIFY(QFileInfo(QString(m_home) + "/a\\b/cnc").isDir());
}

void TestWaqp::programDirectoryThatCannotBeMadeIsNamedAllTheSame()
{
    qputenv("HOME", "/proc");
    QCOMPARE(WAQP::getCncDir(), QString("/proc/cnc"));
    QVERIFY(!QFileInfo("/proc/cnc").exists());
}

void TestWaqp::fontHasFamilySizeAndWeight_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("weight");
    QTest::newRow("bold is 75") << "Arial" << 10 << true << 75;
    QTest::newRow("not bold is 50") << "Courier" << 6 << false << 50;
}

void TestWaqp::fontHasFamilySizeAndWeight()
{
    QFETCH(QString, family);
    QFETCH(int, pointSize);
    QFETCH(bool, bold);
    const QFont font = WAQP::setFont(family, pointSize, bold);
    QCOMPARE(font.family(), family);
    QCOMPARE(font.pointSize(), pointSize);
    QTEST(int(font.weight()), "weight");

    QFont reference;
    reference.setFamily(family);
    reference.setPointSize(pointSize);
    reference.setWeight(bold ? 75 : 50);
    QCOMPARE(font, reference);
}

void TestWaqp::chunkSizes_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("parts");
    QTest::addColumn<QVector<int>>("sizes");
    QTest::newRow("one part is the total") << 523 << 1 << QVector<int>(1, 523);
    QTest::newRow("500 in 50") << 500 << 50 << QVector<int>(50, 10);
    QTest::newRow("523 in 50") << 523 << 50 << (QVector<int>(23, 11) + QVector<int>(27, 10));
    QTest::newRow("total below parts") << 3 << 5 << (QVector<int>(3, 1) + QVector<int>(2, 0));
    QTest::newRow("total 0") << 0 << 4 << QVector<int>(4, 0);
}

void TestWaqp::chunkSizes()
{
    QFETCH(int, total);
    QFETCH(int, parts);
    QTEST(WAQP::chunkSizes(total, parts), "sizes");
}

void TestWaqp::chunkSizesOfNoPartsAreNone()
{
    QVERIFY(WAQP::chunkSizes(10, 0).isEmpty());
}

FILARIX_TEST_MAIN(TestWaqp)
#include "tst_waqp.moc"
