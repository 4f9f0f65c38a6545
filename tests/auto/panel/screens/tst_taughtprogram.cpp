// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/machinedata.h"
#include "screens/taughtprogram.h"

class TestTaughtProgram : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void sampleHasSixtyInstructionsOfEveryKind();
    void movementCarriesTheValuesOfItsTables();
    void storedProgramComesBackRenumbered();
    void fileWithAnotherRowIsRefused_data();
    void fileWithAnotherRowIsRefused();
};

void TestTaughtProgram::sampleHasSixtyInstructionsOfEveryKind()
{
    const MachineData machine;
    const QList<QStringList> rows = TaughtProgram::sample(machine);
    QVERIFY(rows.size() >= 60);
    QSet<QString> kinds;
    for (int i = 0; i < rows.size(); ++i) {
        QVERIFY(TaughtProgram::isValid(rows.at(i)));
        QCOMPARE(rows.at(i).at(1), QString::number(i + 1));
        kinds.insert(rows.at(i).at(0));
    }
    QCOMPARE(kinds, (QSet<QString>{"MJ", "ML", "Oth"}));
}

void TestTaughtProgram::movementCarriesTheValuesOfItsTables()
{
    const MachineData machine;
    const QStringList row = TaughtProgram::movement("ML", "Wind", 2, 3, machine);
    QCOMPARE(row.size(), 31);
    QCOMPARE(row.at(4), QString("2"));
    QCOMPARE(row.at(6), QString("3"));
    for (int i = 0; i < 6; ++i)
        QCOMPARE(row.at(14 + 2 * i), machine.points().at(1).values.at(i));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(row.at(26 + 2 * i), machine.speeds().at(2).values.at(i));
}

void TestTaughtProgram::storedProgramComesBackRenumbered()
{
    const MachineData machine;
    QList<QStringList> rows = TaughtProgram::sample(machine);
    rows[0][1] = "77";
    QString error;
    QVERIFY2(TaughtProgram::store(home() + "/a.teach", rows, &error), qPrintable(error));
    QList<QStringList> read;
    QVERIFY2(TaughtProgram::load(home() + "/a.teach", &read, &error), qPrintable(error));
    rows[0][1] = "1";
    QCOMPARE(read, rows);
}

void TestTaughtProgram::fileWithAnotherRowIsRefused_data()
{
    QTest::addColumn<QByteArray>("line");
    const QByteArray filler = QByteArray("\tx").repeated(29);
    QTest::newRow("unknown kind") << QByteArray("MX\t1") + filler;
    QTest::newRow("title") << QByteArray("Title\tTitle") + filler;
    QTest::newRow("a string short") << QByteArray("MJ") + filler;
    QTest::newRow("a string over") << QByteArray("MJ\t1\t2") + filler;
    QTest::newRow("command without its mark") << QByteArray("Oth\t1\t\tM05\t");
    QTest::newRow("lower case") << QByteArray("mj\t1") + filler;
    QTest::newRow("words") << QByteArray("G01 X10");
}

void TestTaughtProgram::fileWithAnotherRowIsRefused()
{
    QFETCH(QByteArray, line);
    writeFile(home() + "/a.teach", "Oth\t1\t\tOth\tM05\n" + line + '\n');
    QList<QStringList> rows{{"kept"}};
    QString error;
    QVERIFY(!TaughtProgram::load(home() + "/a.teach", &rows, &error));
    QVERIFY2(error.contains("row 2"), qPrintable(error));
    QCOMPARE(rows.size(), 1);
}

FILARIX_TEST_MAIN(TestTaughtProgram)
#include "tst_taughtprogram.moc"
