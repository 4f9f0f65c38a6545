// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/knownrows.h"

class TestKnownRows : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void anyRowsAreReadAtFirst();
    void otherRowsThanTheKnownAreRefused();
    void fileThatCannotBeReadIsRefused();
};

void TestKnownRows::anyRowsAreReadAtFirst()
{
    writeFile(home() + "/rows.txt", "a\tb\n");
    QList<QStringList> rows;
    QString error;
    QVERIFY(KnownRows().read(home() + "/rows.txt", &rows, &error));
    QCOMPARE(rows, QList<QStringList>{QStringList({"a", "b"})});
}

void TestKnownRows::otherRowsThanTheKnownAreRefused()
{
    const QString path = home() + "/rows.txt";
    writeFile(path, "# a comment is no row\na\tb\n");
    KnownRows known;
    known.set({{"a", "b"}});
    QList<QStringList> rows;
    QString error;
    QVERIFY(known.read(path, &rows, &error));
    writeFile(path, "a\tc\n");
    QList<QStringList> others;
    QVERIFY(!known.read(path, &others, &error));
    QVERIFY(others.isEmpty());
    QCOMPARE(error, path + " was changed by somebody else.");
}

void TestKnownRows::fileThatCannotBeReadIsRefused()
{
    QList<QStringList> rows;
    QString error;
    QVERIFY(!KnownRows().read(home() + "/none", &rows, &error));
    QVERIFY(!error.isEmpty());
}

FILARIX_TEST_MAIN(TestKnownRows)
#include "tst_knownrows.moc"
