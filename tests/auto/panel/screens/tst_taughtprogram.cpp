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
    void kindsAreShownByTheWordsOfAnOperator();
    void whatIsShownIsStoredAsItWas();
    void aNameOfItsOwnBecomesTheRemark_data();
    void aNameOfItsOwnBecomesTheRemark();
    void storedProgramComesBackRenumbered();
    void aFileOfEarlierPanelsGetsTheWords();
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
    const QStringList row = TaughtProgram::movement("ML", 2, 3, machine);
    QCOMPARE(row.size(), 31);
    QCOMPARE(row.at(4), QString("2"));
    QCOMPARE(row.at(6), QString("3"));
    for (int i = 0; i < 6; ++i)
        QCOMPARE(row.at(14 + 2 * i), machine.points().at(1).values.at(i));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(row.at(26 + 2 * i), machine.speeds().at(2).values.at(i));
}

void TestTaughtProgram::kindsAreShownByTheWordsOfAnOperator()
{
    const MachineData machine;
    const QStringList joint = TaughtProgram::movement("MJ", 1, 1, machine);
    const QStringList line = TaughtProgram::movement("ML", 1, 1, machine);
    QCOMPARE(TaughtProgram::shown(joint, false).at(2), QString("MoveJ"));
    QCOMPARE(TaughtProgram::shown(line, false).at(2), QString("MoveL"));
    QCOMPARE(TaughtProgram::shown(joint, true).at(2), QString("MovJ"));
    QCOMPARE(TaughtProgram::shown(line, true).at(2), QString("MovL"));
    // The cells of a row's text: the first names the kind, the second is the text.
    const QStringList text = TaughtProgram::shown(TaughtProgram::command("M05"), false);
    QCOMPARE(text.mid(3), (QStringList{"Text", "M05"}));
    // The kind itself is the list's, and none of the words that it shows is.
    for (const QStringList &row : TaughtProgram::sample(machine))
        QVERIFY(!TaughtProgram::shown(row, false).mid(1).contains("Oth"));
}

void TestTaughtProgram::whatIsShownIsStoredAsItWas()
{
    const MachineData machine;
    for (const QStringList &row : TaughtProgram::sample(machine)) {
        for (bool isNarrow : {false, true})
            QCOMPARE(TaughtProgram::stored(TaughtProgram::shown(row, isNarrow)), row);
    }
}

void TestTaughtProgram::aNameOfItsOwnBecomesTheRemark_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("remark");
    QTest::newRow("a name") << "Wind"
                            << ""
                            << "Wind";
    QTest::newRow("with a blank") << "left pin"
                                  << ""
                                  << "left_pin";
    QTest::newRow("with a remark") << "Wind"
                                   << "slow"
                                   << "Wind_slow";
    QTest::newRow("none") << ""
                          << "slow"
                          << "slow";
    QTest::newRow("the former one") << "Move"
                                    << ""
                                    << "";
    QTest::newRow("its word") << "MoveL"
                              << "slow"
                              << "slow";
    QTest::newRow("the other kind's word") << "MoveJ"
                                           << ""
                                           << "";
}

void TestTaughtProgram::aNameOfItsOwnBecomesTheRemark()
{
    QFETCH(QString, name);
    QFETCH(QString, before);
    QFETCH(QString, remark);
    QStringList row = TaughtProgram::movement("ML", 1, 1, MachineData());
    row[2] = name;
    row[12] = before;
    const QStringList stored = TaughtProgram::stored(row);
    QCOMPARE(stored.at(2), QString("MoveL"));
    QCOMPARE(stored.at(12), remark);
    row[2] = stored.at(2);
    row[12] = stored.at(12);
    QCOMPARE(stored, row);
    QCOMPARE(TaughtProgram::stored(stored), stored);
}

void TestTaughtProgram::aFileOfEarlierPanelsGetsTheWords()
{
    const MachineData machine;
    QStringList row = TaughtProgram::movement("MJ", 4, 1, machine);
    row[1] = "1";
    row[2] = "Press";
    writeFile(home() + "/a.teach", "# Taught program\n" + row.join('\t').toUtf8() + '\n');
    QList<QStringList> rows;
    QString error;
    QVERIFY2(TaughtProgram::load(home() + "/a.teach", &rows, &error), qPrintable(error));
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.at(0).at(2), QString("MoveJ"));
    QCOMPARE(rows.at(0).at(12), QString("Press"));
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
