// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/valuerule.h"

#include <QLineEdit>
#include <QValidator>

class TestValueRule : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsTakenOrRefused_data();
    void valueIsTakenOrRefused();
    void limitsSayWhatToEnter();
    void unitBehindANumberIsDropped_data();
    void unitBehindANumberIsDropped();
    void numbersArePlainAndFinite_data();
    void numbersArePlainAndFinite();
    void plainNumberIsWrittenInOneWay_data();
    void plainNumberIsWrittenInOneWay();
    void validatorIsOfOneMindWithTheRule();
    void receiverIsDescribed();
    void fieldIsPreparedOnceForEachRule();
};

namespace {

ValueRule textOf(int letters)
{
    ValueRule rule;
    rule.letters = letters;
    return rule;
}

ValueRule switchRule()
{
    ValueRule rule;
    rule.type = ValueRule::Switch;
    return rule;
}

} // namespace

Q_DECLARE_METATYPE(ValueRule)

void TestValueRule::valueIsTakenOrRefused_data()
{
    QTest::addColumn<ValueRule>("rule");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("refusal");
    const ValueRule tension = ValueRule::decimal(0.5, 8.5, "N");
    const ValueRule tool = ValueRule::integer(0, 99);
    QTest::newRow("least") << tension << "0.5"
                           << "";
    QTest::newRow("largest") << tension << "8.50"
                             << "";
    QTest::newRow("below") << tension << "0.49"
                           << "below 0.5";
    QTest::newRow("above") << tension << "9999"
                           << "above 8.5";
    QTest::newRow("words behind") << tension << "9999 banana"
                                  << "not a number";
    QTest::newRow("not entered") << tension << ""
                                 << "";
    QTest::newRow("not a number by name") << tension << "nan"
                                          << "not a number";
    QTest::newRow("whole") << tool << "12"
                           << "";
    QTest::newRow("a part") << tool << "1.5"
                            << "not whole";
    QTest::newRow("twelve digits") << tool << "999999999999"
                                   << "above 99";
    QTest::newRow("four hundred digits") << tool << QString(400, '9') << "not a number";
    QTest::newRow("on") << switchRule() << "on"
                        << "";
    QTest::newRow("off") << switchRule() << "off"
                         << "";
    QTest::newRow("neither") << switchRule() << "On"
                             << "not on or off";
    QTest::newRow("text") << textOf(5) << QString::fromUtf8("fr\u00fch 2").left(5) << "";
    QTest::newRow("long text") << textOf(5) << "second"
                               << "too long";
    QTest::newRow("two lines") << textOf(9) << "a\nb"
                               << "not readable";
}

void TestValueRule::valueIsTakenOrRefused()
{
    QFETCH(ValueRule, rule);
    QFETCH(QString, value);
    QTEST(rule.refusal(value), "refusal");
}

void TestValueRule::limitsSayWhatToEnter()
{
    QCOMPARE(ValueRule::decimal(0.5, 8.5, "N").limits(), QString("0.5 to 8.5 N"));
    QCOMPARE(ValueRule::integer(-3, 999999).limits(), QString("-3 to 999999, whole"));
    QCOMPARE(textOf(20).limits(), QString("at most 20 letters"));
    QCOMPARE(switchRule().limits(), QString("on or off"));
    QCOMPARE(ValueRule::integer(0, ValueRule::largestNumber).limits(),
             QString("0 to 999999999, whole"));
}

void TestValueRule::unitBehindANumberIsDropped_data()
{
    QTest::addColumn<ValueRule>("rule");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("bare");
    const ValueRule wire = ValueRule::decimal(0, 5, "mm");
    QTest::newRow("with a blank") << wire << "0.50 mm"
                                  << "0.50";
    QTest::newRow("without") << wire << "0.5mm"
                             << "0.5";
    QTest::newRow("blanks around") << wire << " 0.5\r"
                                   << "0.5";
    QTest::newRow("another unit") << wire << "0.5 in"
                                  << "0.5 in";
    QTest::newRow("no number") << wire << "comm"
                               << "comm";
    QTest::newRow("no unit") << ValueRule::integer(0, 9) << "5 mm"
                             << "5 mm";
    ValueRule text;
    text.unit = "mm";
    QTest::newRow("a text") << text << "5 mm"
                            << "5 mm";
}

void TestValueRule::unitBehindANumberIsDropped()
{
    QFETCH(ValueRule, rule);
    QFETCH(QString, value);
    QTEST(rule.bare(value), "bare");
}

void TestValueRule::numbersArePlainAndFinite_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::newRow("point") << "-1.25" << true;
    QTest::newRow("sign") << "+3" << true;
    for (const char *text :
         {"", "1e3", "nan", "inf", "-inf", "0x10", "1,5", " 1", "1 ", "--1", "."})
        QTest::newRow(text[0] ? text : "empty") << text << false;
    QTest::newRow("endless") << QString(400, '9') << false;
}

void TestValueRule::numbersArePlainAndFinite()
{
    QFETCH(QString, text);
    double number = 4711;
    QTEST(ValueRule::readNumber(text, &number), "isNumber");
    QFETCH(bool, isNumber);
    QCOMPARE(number == 4711, !isNumber);
}

// The keypad shows OK by the validator, and the screen takes by the rule.
void TestValueRule::plainNumberIsWrittenInOneWay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain");
    const char *const texts[][2] = {
        {"5", "5"},       {"+5", "5"},    {"007", "7"},      {"-007", "-7"}, {"-0", "0"},
        {"-0.0", "0.0"},  {".5", "0.5"},  {"-.5", "-0.5"},   {"5.", "5"},    {"0.50", "0.50"},
        {"00.5", "0.5"},  {"0", "0"},     {"000", "0"},      {"+-5", "+-5"}, {"", ""},
        {"coil", "coil"}, {"1e3", "1e3"}, {"-12.5", "-12.5"}};
    for (const auto &text : texts)
        QTest::newRow(text[0][0] ? text[0] : "empty") << text[0] << text[1];
}

void TestValueRule::plainNumberIsWrittenInOneWay()
{
    QFETCH(QString, text);
    QTEST(ValueRule::plain(text), "plain");
}

void TestValueRule::validatorIsOfOneMindWithTheRule()
{
    const QList<ValueRule> rules = {ValueRule::decimal(0.5, 8.5, "N"), ValueRule::decimal(-6, 2),
                                    ValueRule::integer(0, 99), textOf(5), switchRule()};
    int taken = 0;
    for (const ValueRule &rule : rules) {
        QObject parent;
        const QValidator *validator = rule.validator(&parent);
        QCOMPARE(validator->parent(), &parent);
        for (const char *text : {"1", "0.5", "8.5", "8.6", "99", "100", "-6", "on", "off", "abc",
                                 "second", "999999999999", "9999 banana", "1e1"}) {
            QString value = QString::fromLatin1(text);
            int cursor = 0;
            const bool isTaken = validator->validate(value, cursor) == QValidator::Acceptable;
            taken += isTaken ? 1 : 0;
            QVERIFY2(isTaken == rule.refusal(value).isEmpty(), text);
        }
    }
    QVERIFY(taken >= 12);
}

void TestValueRule::receiverIsDescribed()
{
    QObject receiver;
    ValueRule::decimal(0.5, 8.5, "N").describe(&receiver, "N5 Tension");
    QCOMPARE(receiver.property("hmiName").toString(), QString("N5 Tension"));
    QCOMPARE(receiver.property("hmiUnit").toString(), QString("N"));
    QCOMPARE(receiver.property("hmiMinimum").toDouble(), 0.5);
    QCOMPARE(receiver.property("hmiMaximum").toDouble(), 8.5);
    QCOMPARE(receiver.property("hmiInteger"), QVariant(false));
    textOf(5).describe(&receiver, "N23 Shift");
    QVERIFY(!receiver.property("hmiMinimum").isValid());
    QVERIFY(!receiver.property("hmiInteger").isValid());
}

void TestValueRule::fieldIsPreparedOnceForEachRule()
{
    QLineEdit field;
    ValueRule::integer(0, 99).prepare(&field, "T");
    ValueRule::decimal(-5, 5).prepare(&field, "Z");
    QCOMPARE(field.findChildren<QValidator *>().size(), 1);
    QVERIFY(field.validator()->inherits("QDoubleValidator"));
    QCOMPARE(field.property("hmiName").toString(), QString("Z"));
    QCOMPARE(field.property("hmiMaximum").toDouble(), 5.0);
}

FILARIX_TEST_MAIN(TestValueRule)
#include "tst_valuerule.moc"
