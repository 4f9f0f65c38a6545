// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/variabletable.h"

class TestVariableTable : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void sampleKeepsItsOwnRules();
    void fileOfTodayGivesValuesAlone();
    void fileMayDefineAVariableAnew();
    void fileMayDefineOneMore();
    void everyTypeIsRead_data();
    void everyTypeIsRead();
    void faultyDefinitionIsToldAndKept_data();
    void faultyDefinitionIsToldAndKept();
    void twoDefinitionsOfOneNameAreToldOnce();
    void thousandsOfDefinitionsAreBounded();
    void unknownRowsAndKeysAreKept();
    void clearedValuesKeepTheirRules();
};

namespace {

QList<QStringList> rowsOf(const char *line)
{
    return {QString::fromUtf8(line).split('|')};
}

} // namespace

void TestVariableTable::sampleKeepsItsOwnRules()
{
    const VariableTable table;
    QCOMPARE(table.faults(), QStringList());
    QVERIFY(table.count() >= 20);
    QSet<int> types;
    for (int i = 0; i < table.count(); ++i) {
        const MachineVariable &variable = table.at(i);
        QVERIFY2(!variable.value.isEmpty(), qPrintable(variable.name));
        QVERIFY2(variable.rule.refusal(variable.value).isEmpty(), qPrintable(variable.name));
        QCOMPARE(table.numberOf(variable.name), i);
        types.insert(variable.rule.type);
    }
    QCOMPARE(types.size(), 4);
    QCOMPARE(table.at(table.numberOf("Tension")).rule.limits(), QString("0.5 to 8.5 N"));
    QCOMPARE(table.listRows().size(), table.count());
    QCOMPARE(table.listRows().at(5), QStringList({"DataEditor", "N5", "", "Tension", "6.0"}));
    // What a first Store writes defines them all.
    QCOMPARE(table.otherRows().size(), table.count());
}

void TestVariableTable::fileOfTodayGivesValuesAlone()
{
    VariableTable table;
    table.read(
        {{"DataEditor", "N0", "", "Wire", "0.35 mm"}, {"DataEditor", "N23", "", "Shift", "late"}});
    QCOMPARE(table.faults(), QStringList());
    QCOMPARE(table.at(0).value, QString("0.35"));
    QCOMPARE(table.at(table.numberOf("Shift")).value, QString("late"));
    QCOMPARE(table.at(1).value, QString("36.0"));
    QCOMPARE(table.otherRows().size(), table.count());
}

void TestVariableTable::fileMayDefineAVariableAnew()
{
    VariableTable table;
    const QStringList definition{"Variable", "Tension",      "maximum=850",
                                 "unit=cN",  "type=integer", "minimum=50"};
    table.read({{"DataEditor", "N5", "", "Tension", "600 cN"}, definition});
    const MachineVariable &tension = table.at(5);
    QCOMPARE(tension.rule.limits(), QString("50 to 850 cN, whole"));
    QCOMPARE(tension.value, QString("600"));
    QCOMPARE(table.otherRows().size(), table.count());
    QCOMPARE(table.otherRows().first(), definition);
}

void TestVariableTable::fileMayDefineOneMore()
{
    VariableTable table;
    const int before = table.count();
    table.read({{"Variable", "Glue", "type=on/off"}, {"DataEditor", "N9", "", "Glue", "on"}});
    QCOMPARE(table.count(), before + 1);
    QCOMPARE(table.at(before).value, QString("on"));
    QCOMPARE(table.listRows().last(),
             QStringList({"DataEditor", QString("N%1").arg(before), "", "Glue", "on"}));
}

void TestVariableTable::everyTypeIsRead_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("limits");
    QTest::newRow("integer") << "Variable|A|type=integer|minimum=1|maximum=9"
                             << "1 to 9, whole";
    QTest::newRow("decimal") << "Variable|A|type=decimal|maximum=0.25|unit=mm"
                             << "-999999999 to 0.25 mm";
    QTest::newRow("no limit") << "Variable|A|type=integer"
                              << "-999999999 to 999999999, whole";
    QTest::newRow("text") << "Variable|A|type=text|maximum=12"
                          << "at most 12 letters";
    QTest::newRow("any text") << "Variable|A|type=text"
                              << "at most 200 letters";
    QTest::newRow("switch") << "Variable|A|type=on/off|unit=x"
                            << "on or off";
    QTest::newRow("blanks and a line end") << "Variable|A| type = decimal |minimum=1|maximum=2\r"
                                           << "1 to 2";
    QTest::newRow("of two the last") << "Variable|A|type=integer|type=decimal|minimum=1|maximum=2"
                                     << "1 to 2";
}

void TestVariableTable::everyTypeIsRead()
{
    QFETCH(QString, row);
    VariableTable table;
    table.read({row.split('|')});
    QCOMPARE(table.faults(), QStringList());
    QTEST(table.at(table.numberOf("A")).rule.limits(), "limits");
}

void TestVariableTable::faultyDefinitionIsToldAndKept_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("fault");
    QTest::newRow("no name") << "Variable"
                             << ": name empty, too long or not readable";
    QTest::newRow("blank name") << "Variable|  |type=text"
                                << "...: name empty, too long or not readable";
    QTest::newRow("endless name") << "Variable|" + QString(100000, 'x') + "|type=text"
                                  << QString(20, 'x') + "...: name empty, too long or not readable";
    QTest::newRow("unprintable name") << QString("Variable|a\x01|type=text")
                                      << QString("a?: name empty, too long or not readable");
    QTest::newRow("no type") << "Variable|Wire"
                             << "Wire: type unknown";
    QTest::newRow("other type") << "Variable|Wire|type=float"
                                << "Wire: type unknown";
    QTest::newRow("long unit") << "Variable|Wire|type=decimal|unit=millimetres"
                               << "Wire: unit too long or not readable";
    QTest::newRow("crossed") << "Variable|Wire|type=decimal|minimum=5|maximum=1"
                             << "Wire: minimum above maximum";
    QTest::newRow("above all") << "Variable|Wire|type=decimal|minimum=1000000000"
                               << "Wire: minimum above maximum";
    QTest::newRow("nan") << "Variable|Wire|type=decimal|minimum=nan"
                         << "Wire: limit not a number";
    QTest::newRow("inf") << "Variable|Wire|type=decimal|maximum=inf"
                         << "Wire: limit not a number";
    QTest::newRow("words") << "Variable|Wire|type=decimal|maximum=many"
                           << "Wire: limit not a number";
    QTest::newRow("huge") << "Variable|Wire|type=integer|maximum=99999999999"
                          << "Wire: limit too large";
    QTest::newRow("between") << "Variable|Wire|type=integer|minimum=1.2|maximum=1.8"
                             << "Wire: no whole number between the limits";
    QTest::newRow("long text") << "Variable|Wire|type=text|maximum=201"
                               << "Wire: limit too large";
}

void TestVariableTable::faultyDefinitionIsToldAndKept()
{
    QFETCH(QString, row);
    QFETCH(QString, fault);
    VariableTable table;
    const int before = table.count();
    table.read({row.split('|')});
    QCOMPARE(table.faults(), QStringList{fault});
    QCOMPARE(table.count(), before);
    QCOMPARE(table.at(0).rule.limits(), QString("0.02 to 5 mm"));
    QCOMPARE(table.otherRows().first(), row.split('|'));
    // No second definition of the name beside the faulty one.
    int wires = 0;
    for (const QStringList &other : table.otherRows())
        wires += other.value(1) == "Wire" ? 1 : 0;
    QCOMPARE(wires, 1);
}

void TestVariableTable::twoDefinitionsOfOneNameAreToldOnce()
{
    VariableTable table;
    table.read({{"Variable", "Wire", "type=integer", "maximum=4", "minimum=2"},
                {"Variable", "Wire", "type=text"}});
    QCOMPARE(table.faults(), QStringList{"Wire: there twice"});
    QCOMPARE(table.at(0).rule.limits(), QString("2 to 4, whole"));
}

void TestVariableTable::thousandsOfDefinitionsAreBounded()
{
    QList<QStringList> rows;
    for (int i = 0; i < 20000; ++i)
        rows.append({"Variable", QString("v%1").arg(i), "type=integer"});
    VariableTable table;
    table.read(rows);
    QCOMPARE(table.count(), int(VariableTable::mostVariables));
    QVERIFY(table.faults().size() > 19000);
    QVERIFY(table.faults().first().endsWith(": too many variables"));
    QCOMPARE(table.otherRows().mid(0, rows.size()), rows);
}

void TestVariableTable::unknownRowsAndKeysAreKept()
{
    const QList<QStringList> rows{
        {"Variable", "Wire", "type=decimal", "colour=red", "=", "x", "plc = DB1.DBW4 "},
        {"Recipe", "a", ""},
        {"DataEditor", "N1", "", "Unknown", "5"},
        {"DataEditor", "N2", "", "Wire"},
        {"short"}};
    VariableTable table;
    table.read(rows);
    QCOMPARE(table.faults(), QStringList());
    QCOMPARE(table.otherRows().mid(0, rows.size()), rows);
}

void TestVariableTable::clearedValuesKeepTheirRules()
{
    VariableTable table;
    table.read(rowsOf("Variable|Wire|type=integer|minimum=1|maximum=2"));
    table.clearValues();
    for (const QStringList &row : table.listRows())
        QVERIFY(row.last().isEmpty());
    QCOMPARE(table.at(0).rule.limits(), QString("1 to 2, whole"));
}

FILARIX_TEST_MAIN(TestVariableTable)
#include "tst_variabletable.moc"
