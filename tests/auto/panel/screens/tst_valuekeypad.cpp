// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "screens/valuekeypad.h"
#include "screens/valuerule.h"

class TestValueKeypad : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numberIsAskedOnTheNumericKeypad();
    void wholeNumberHasNoPoint();
    void numberIsStoredPlain();
    void textIsAskedOnTheLetters();
    void cancelledKeypadGivesNothing();
    void withoutAKeypadNothingIsAsked();
};

void TestValueKeypad::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestValueKeypad::numberIsAskedOnTheNumericKeypad()
{
    const ValueRule rule = ValueRule::decimal(0.5, 8.5, "N");
    ValueKeypad keypad(rule, "N5 Tension");
    keypad.setEditedRect(QRect(1, 2, 30, 4));
    DeviceLog::acceptWith("7.5");
    QVERIFY(keypad.ask("6.0"));
    QCOMPARE(keypad.text(), QString("7.5"));
    const QStringList calls = DeviceLog::keypadCalls();
    for (const char *call :
         {"NumericKeypad.setLimitToolTip(0.5 to 8.5 N)", "NumericKeypad.setText(6.0)",
          "NumericKeypad.setObject(ValueKeypad)", "NumericKeypad.setDecimalPointEnabled(true)",
          "NumericKeypad.setValidator(QDoubleValidator)"})
        QVERIFY2(calls.contains(call), qPrintable(calls.join('\n')));
    QCOMPARE(calls.mid(calls.indexOf("NumericKeypad.exec")),
             QStringList({"NumericKeypad.exec", "NumericKeypad.setDecimalPointEnabled(true)",
                          "NumericKeypad.setLimitToolTip()"}));
    QCOMPARE(keypad.property("hmiName").toString(), QString("N5 Tension"));
    QCOMPARE(keypad.property("hmiEditedRect").toRect(), QRect(1, 2, 30, 4));
    // The validator goes with the question.
    QVERIFY(!DeviceLog::validator());
}

void TestValueKeypad::wholeNumberHasNoPoint()
{
    const ValueRule rule = ValueRule::integer(1, 99);
    ValueKeypad keypad(rule, "N3 Layers");
    DeviceLog::acceptWith("3");
    QVERIFY(keypad.ask("28"));
    const QStringList calls = DeviceLog::keypadCalls();
    const int off = calls.indexOf("NumericKeypad.setDecimalPointEnabled(false)");
    QVERIFY(off >= 0);
    // The next field of whoever has one.
    QVERIFY(calls.lastIndexOf("NumericKeypad.setDecimalPointEnabled(true)") > off);
}

void TestValueKeypad::numberIsStoredPlain()
{
    const ValueRule rule = ValueRule::decimal(-5, 99);
    ValueKeypad keypad(rule, "N3 Layers");
    DeviceLog::acceptWith("+007.50");
    QVERIFY(keypad.ask("28"));
    QCOMPARE(keypad.text(), QString("7.50"));
}

void TestValueKeypad::textIsAskedOnTheLetters()
{
    const ValueRule rule;
    ValueKeypad keypad(rule, "N23 Shift");
    DeviceLog::acceptWith("a:b:c");
    QVERIFY(keypad.ask("first"));
    QCOMPARE(keypad.text(), QString("a:b:c"));
    QCOMPARE(DeviceLog::keypadCalls().last(), QString("CharacterKeypad.exec"));
}

void TestValueKeypad::cancelledKeypadGivesNothing()
{
    const ValueRule rule;
    ValueKeypad keypad(rule, "N23 Shift");
    DeviceLog::cancel();
    QVERIFY(!keypad.ask("first"));
    QVERIFY(keypad.text().isEmpty());
}

void TestValueKeypad::withoutAKeypadNothingIsAsked()
{
    DeviceLog::setInstanceAvailable(false);
    const ValueRule text;
    const ValueRule number = ValueRule::integer(1, 2);
    QVERIFY(!ValueKeypad(text, "a").ask("b"));
    QVERIFY(!ValueKeypad(number, "a").ask("1"));
    QCOMPARE(DeviceLog::keypadCalls(), QStringList());
}

FILARIX_TEST_MAIN(TestValueKeypad)
#include "tst_valuekeypad.moc"
