// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/variabledetails.h"

class TestVariableDetails : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachTypeHasItsFacts_data();
    void eachTypeHasItsFacts();
    void valueAloneIsAKey();
    void refusedValueSaysWhy();
};

static MachineVariable variable(const ValueRule &rule)
{
    MachineVariable variable;
    variable.name = "Tension";
    variable.rule = rule;
    return variable;
}

static QStringList texts(const QList<RowDetails::Detail> &details)
{
    QStringList texts;
    for (const RowDetails::Detail &detail : details)
        texts.append(detail.name + QLatin1Char('|') + detail.value);
    return texts;
}

void TestVariableDetails::eachTypeHasItsFacts_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("facts");
    QTest::newRow("decimal") << int(ValueRule::Decimal) << "N"
                             << "6.0"
                             << QStringList{"Value|7 N", "In the file|6.0 N", "Type|number",
                                            "Unit|N",    "Minimum|0.5 N",     "Maximum|8.5 N"};
    QTest::newRow("integer") << int(ValueRule::Integer) << ""
                             << "6"
                             << QStringList{"Value|7",   "In the file|6", "Type|whole number",
                                            "Unit|none", "Minimum|0.5",   "Maximum|8.5"};
    QTest::newRow("text") << int(ValueRule::Text) << "" << QString()
                          << QStringList{"Value|7", "In the file|nothing", "Type|text",
                                         "Length|at most 200 letters"};
    QTest::newRow("switch") << int(ValueRule::Switch) << ""
                            << "on" << QStringList{"Value|7", "In the file|on", "Type|on or off"};
}

void TestVariableDetails::eachTypeHasItsFacts()
{
    QFETCH(int, type);
    QFETCH(QString, unit);
    QFETCH(QString, stored);
    ValueRule rule = ValueRule::decimal(0.5, 8.5, unit);
    rule.type = ValueRule::Type(type);
    QTEST(texts(VariableDetails::of(variable(rule), "7", stored, ValueMark::State())), "facts");
}

void TestVariableDetails::valueAloneIsAKey()
{
    const QList<RowDetails::Detail> all =
        VariableDetails::of(variable(ValueRule::decimal(0, 9)), "7", "7", ValueMark::State());
    for (int i = 0; i < all.size(); ++i)
        QCOMPARE(all.at(i).isKey, i == 0);
}

void TestVariableDetails::refusedValueSaysWhy()
{
    ValueMark::State state;
    state.word = "above 8.5";
    state.tone = Message::Alarm;
    const RowDetails::Detail value =
        VariableDetails::of(variable(ValueRule::decimal(0, 8.5)), "99", "99", state).first();
    QCOMPARE(value.note, QString("above 8.5"));
    QVERIFY(value.tone == Message::Alarm);
}

FILARIX_TEST_MAIN(TestVariableDetails)
#include "tst_variabledetails.moc"
