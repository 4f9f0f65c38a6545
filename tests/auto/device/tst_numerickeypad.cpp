// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadtest.h"

#include <hmidevice/numerickeypad.h>

#include <QApplication>
#include <QClipboard>
#include <QDesktopWidget>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QPointer>
#include <QRegExpValidator>

#include <algorithm>
#include <memory>

Q_DECLARE_METATYPE(QValidator *)

class TestNumericKeypad : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void isOneDialog();
    void typingReplacesTheOldValue();
    void typingReplacesTheOldValueWithoutTheFocus();
    void opensAgainAtOnce();
    void opensThoughTakenForVisible();
    void textIsReturnedAsTyped_data();
    void textIsReturnedAsTyped();
    void unchangedTextIsWrittenToo();
    void cancelLeavesThePropertyAlone_data();
    void cancelLeavesThePropertyAlone();

    void validatorDecidesAndAWordSaysWhy_data();
    void validatorDecidesAndAWordSaysWhy();
    void pointIsAPointInEveryCountry_data();
    void pointIsAPointInEveryCountry();
    void addressIsTyped();
    void validatorSeesLettersToo();
    void withoutValidatorOnlyNumbersAreTyped();
    void withoutValidatorAnythingIsAccepted();
    void refusedTextCannotBeAccepted();

    void commaIsAPoint_data();
    void commaIsAPoint();
    void pastedTextFollowsTheSameRules();
    void pointCanBeTakenAway();
    void signIsToggled_data();
    void signIsToggled();
    void signBeforeDigitsReplacesTheOldNumber();
    void clearAndBackspace();
    void heldBackspaceRepeats();
    void cursorKeysMoveTheCursor();
    void keyboardWorks();

    void oldValueAndLimitsAreShown();
    void orderOfCallsDoesNotMatter();
    void nothingIsLeftForTheNextCaller();
    void setWhileOpenCounts();
    void languageOfAnOpenKeypadChanges();
    void sizeOfOneCallerIsNotTheNextOnes_data();
    void sizeOfOneCallerIsNotTheNextOnes();

    void callerMayVanish();
    void validatorMayVanish();
    void fieldTakesTheText();

    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void wishedSizeIsKeptWhereItFits();
    void withoutNamedScreenTheAvailableOneCounts();
    void hostsStyleSheetChangesNoSize();
    void pressedKeyLooksDifferent();

private:
    static NumericKeypad *pad() { return NumericKeypad::instance(); }
    static int runPad(const std::function<void()> &step) { return run(pad(), step); }
};

void TestNumericKeypad::isOneDialog()
{
    QVERIFY(pad());
    QCOMPARE(NumericKeypad::instance(), pad());
    QVERIFY(!pad()->isVisible());
}

void TestNumericKeypad::typingReplacesTheOldValue()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("12.5"));
    const int result = runPad([] {
        QCOMPARE(value(pad())->text(), QString("12.5"));
        QCOMPARE(value(pad())->selectedText(), QString("12.5"));
        click(pad(), "3 . 7 5 ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("3.75"));
    QCOMPARE(caller.writes, 1);
}

// News of the focus may come late and in any order, and touches don't wait for it.
void TestNumericKeypad::typingReplacesTheOldValueWithoutTheFocus()
{
    pad()->setText(QLatin1String("12.5"));
    runPad([] {
        QApplication::setActiveWindow(nullptr);
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(value(pad()), &activation);
        QApplication::processEvents();
        click(pad(), "3");
        QCOMPARE(value(pad())->text(), QString("3"));
    });
}

// Mostly before the windowing system has told of the last opening and closing.
void TestNumericKeypad::opensAgainAtOnce()
{
    for (int i = 0; i < 100; ++i) {
        const QString text = QString::number(i);
        pad()->setText(text);
        runPad([&] {
            QCOMPARE(value(pad())->text(), text);
            QCOMPARE(value(pad())->selectedText(), text);
        });
        QVERIFY(pad()->isHidden());
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(text));
    }
}

// So the older toolkit takes it on X11 once it was closed before the server had mapped it.
void TestNumericKeypad::opensThoughTakenForVisible()
{
    pad()->setAttribute(Qt::WA_WState_Visible);
    pad()->setText(QLatin1String("7"));
    runPad([] { QCOMPARE(value(pad())->text(), QString("7")); });
    QVERIFY(pad()->isHidden());
}

void TestNumericKeypad::textIsReturnedAsTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("leading zeros") << "0 0 7"
                                   << "007";
    QTest::newRow("trailing zeros") << "1 . 5 0"
                                    << "1.50";
    QTest::newRow("point first") << ". 5"
                                 << ".5";
    QTest::newRow("point last") << "5 ."
                                << "5.";
    QTest::newRow("minus nought") << "0 sign"
                                  << "-0";
}

void TestNumericKeypad::textIsReturnedAsTyped()
{
    QFETCH(QString, keys);
    QFETCH(QString, text);
    Caller caller;
    QDoubleValidator validator;
    pad()->setObject(&caller);
    pad()->setValidator(&validator);
    const int result = runPad([&] {
        click(pad(), keys.toLatin1());
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), text);
}

void TestNumericKeypad::unchangedTextIsWrittenToo()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String(" 4,20 mm"));
    QCOMPARE(runPad([] { click(pad(), "ok"); }), 1);
    QCOMPARE(caller.text(), QString(" 4,20 mm"));
    QCOMPARE(caller.writes, 1);
}

void TestNumericKeypad::cancelLeavesThePropertyAlone_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("the key") << 0;
    QTest::newRow("Escape") << 1;
    QTest::newRow("the window is closed") << 2;
    QTest::newRow("the window is hidden") << 3;
}

void TestNumericKeypad::cancelLeavesThePropertyAlone()
{
    QFETCH(int, way);
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("1"));
    const int result = runPad([&] {
        click(pad(), "2");
        if (way == 0)
            click(pad(), "cancel");
        else if (way == 1)
            QTest::keyClick(value(pad()), Qt::Key_Escape);
        else if (way == 2)
            pad()->close();
        else
            pad()->hide();
    });
    QCOMPARE(result, 0);
    QCOMPARE(caller.writes, 0);
}

void TestNumericKeypad::validatorDecidesAndAWordSaysWhy_data()
{
    QTest::addColumn<QValidator *>("validator");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");

    QValidator *count = new QIntValidator(1, 20, this);
    QTest::newRow("whole: inside") << count << "20"
                                   << "";
    QTest::newRow("whole: lowest") << count << "1"
                                   << "";
    QTest::newRow("whole: above") << count << "21"
                                  << "At most 20";
    QTest::newRow("whole: far above") << count << "99999999999"
                                      << "At most 20";
    QTest::newRow("whole: nought below") << count << "0"
                                         << "At least 1";
    QTest::newRow("whole: negative below") << count << "-5"
                                           << "At least 1";
    QTest::newRow("whole: with a point") << count << "1.5"
                                         << "Not a whole number";
    QTest::newRow("whole: empty") << count << ""
                                  << "Nothing entered";
    QTest::newRow("whole: a word") << count << "ten"
                                   << "Not a number";

    QValidator *teens = new QIntValidator(10, 19, this);
    QTest::newRow("whole: first digit") << teens << "1"
                                        << "At least 10";

    QValidator *offset = new QIntValidator(-5, 5, this);
    QTest::newRow("whole: sign alone") << offset << "-"
                                       << "Not complete";

    QValidator *length = new QDoubleValidator(-10, 10, 2, this);
    QTest::newRow("real: inside") << length << "-9.99"
                                  << "";
    QTest::newRow("real: above") << length << "10.5"
                                 << "At most 10";
    QTest::newRow("real: too fine") << length << "1.234"
                                    << "Too many decimals";
    QTest::newRow("real: sign alone") << length << "-"
                                      << "Not complete";
    QTest::newRow("real: two points") << length << "1.2.3"
                                      << "Not a number";
    QTest::newRow("real: empty") << length << ""
                                 << "Nothing entered";

    QDoubleValidator *plain = new QDoubleValidator(-10, 10, 2, this);
    plain->setNotation(QDoubleValidator::StandardNotation);
    QTest::newRow("real: exponent where none is wanted")
        << static_cast<QValidator *>(plain) << "1e0"
        << "Not allowed";

    QValidator *name = new QRegExpValidator(QRegExp(QLatin1String("[A-C][0-9]{2}")), this);
    QTest::newRow("pattern: fits") << name << "B07"
                                   << "";
    QTest::newRow("pattern: begun") << name << "B0"
                                    << "Not complete";
    QTest::newRow("pattern: broken") << name << "X"
                                     << "Not allowed";
    QTest::newRow("pattern: empty") << name << ""
                                    << "Nothing entered";
}

void TestNumericKeypad::validatorDecidesAndAWordSaysWhy()
{
    QFETCH(QValidator *, validator);
    QFETCH(QString, text);
    QFETCH(QString, reason);
    pad()->setValidator(validator);
    pad()->setText(text);
    runPad([&] {
        QCOMPARE(line(pad(), "reason"), reason);
        QCOMPARE(key(pad(), "ok")->isEnabled(), reason.isEmpty());
        // The same text, typed.
        click(pad(), "clear");
        QTest::keyClicks(value(pad()), text);
        QCOMPARE(value(pad())->text(), text);
        QCOMPARE(line(pad(), "reason"), reason);
        QCOMPARE(key(pad(), "ok")->isEnabled(), reason.isEmpty());
    });
}

void TestNumericKeypad::pointIsAPointInEveryCountry_data()
{
    QTest::addColumn<QLocale>("country");
    QTest::newRow("none") << QLocale::c();
    QTest::newRow("China") << QLocale(QLocale::Chinese);
    QTest::newRow("France") << QLocale(QLocale::French);
    QTest::newRow("Germany") << QLocale(QLocale::German);
    QTest::newRow("Turkey") << QLocale(QLocale::Turkish);
    QTest::newRow("United States") << QLocale(QLocale::English, QLocale::UnitedStates);
}

void TestNumericKeypad::pointIsAPointInEveryCountry()
{
    QFETCH(QLocale, country);
    Caller caller;
    QDoubleValidator length(0, 10, 2, nullptr);
    length.setLocale(country);
    pad()->setObject(&caller);
    pad()->setValidator(&length);
    const int result = runPad([] {
        click(pad(), "1 . 2 3 4");
        QCOMPARE(line(pad(), "reason"), QString("Too many decimals"));
        click(pad(), "clear 1 . 2");
        QCOMPARE(line(pad(), "reason"), QString(""));
        click(pad(), "clear");
        QTest::keyClicks(value(pad()), QLatin1String("2,5"));
        QCOMPARE(line(pad(), "reason"), QString(""));
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("2.5"));

    QIntValidator count(1, 5000, nullptr);
    count.setLocale(country);
    pad()->setValidator(&count);
    runPad([] {
        click(pad(), "1 . 2 3 4");
        QCOMPARE(line(pad(), "reason"), QString("Not a whole number"));
        click(pad(), "clear 1 2 3 4");
        QVERIFY(key(pad(), "ok")->isEnabled());
    });
}

void TestNumericKeypad::addressIsTyped()
{
    const QString byte = QLatin1String("(25[0-5]|2[0-4][0-9]|1[0-9]{2}|[1-9]?[0-9])");
    QRegExpValidator validator(QRegExp(byte + QLatin1String("(\\.") + byte + QLatin1String("){3}")),
                               nullptr);
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("127.0.0.1"));
    pad()->setValidator(&validator);
    const int result = runPad([] {
        click(pad(), "1 9 2 . 1 6 8 . 1 .");
        QCOMPARE(line(pad(), "reason"), QString("Not complete"));
        QVERIFY(!key(pad(), "ok")->isEnabled());
        click(pad(), "3 0 0");
        QCOMPARE(line(pad(), "reason"), QString("Not allowed"));
        click(pad(), "back");
        QVERIFY(key(pad(), "ok")->isEnabled());
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("192.168.1.30"));
}

void TestNumericKeypad::validatorSeesLettersToo()
{
    QRegExpValidator hex(QRegExp(QLatin1String("[0-9A-F]+")), nullptr);
    Caller caller;
    pad()->setObject(&caller);
    pad()->setValidator(&hex);
    QCOMPARE(runPad([] {
                 QTest::keyClicks(value(pad()), QLatin1String("1F"));
                 click(pad(), "ok");
             }),
             1);
    QCOMPARE(caller.text(), QString("1F"));
}

void TestNumericKeypad::withoutValidatorOnlyNumbersAreTyped()
{
    runPad([] {
        QTest::keyClicks(value(pad()), QLatin1String("-1a2 .x3+e"));
        QCOMPARE(value(pad())->text(), QString("-12.3+"));
    });
}

void TestNumericKeypad::withoutValidatorAnythingIsAccepted()
{
    pad()->setText(QLatin1String("n/a"));
    runPad([] {
        QVERIFY(key(pad(), "ok")->isEnabled());
        click(pad(), "clear");
        QVERIFY(key(pad(), "ok")->isEnabled());
        QVERIFY(line(pad(), "reason").isNull());
    });
}

void TestNumericKeypad::refusedTextCannotBeAccepted()
{
    Caller caller;
    QIntValidator validator(1, 20, nullptr);
    pad()->setObject(&caller);
    pad()->setValidator(&validator);
    pad()->setText(QLatin1String("5"));
    const int result = runPad([] {
        click(pad(), "9 9 ok");
        QVERIFY(pad()->isVisible());
        QTest::keyClick(value(pad()), Qt::Key_Return);
        QVERIFY(pad()->isVisible());
        pad()->accept();
        QVERIFY(pad()->isVisible());
    });
    QCOMPARE(result, 0);
    QCOMPARE(caller.writes, 0);
}

void TestNumericKeypad::commaIsAPoint_data()
{
    QTest::addColumn<int>("modifiers");
    QTest::newRow("main block") << int(Qt::NoModifier);
    QTest::newRow("number block") << int(Qt::KeypadModifier);
}

void TestNumericKeypad::commaIsAPoint()
{
    QFETCH(int, modifiers);
    Caller caller;
    QDoubleValidator validator(0, 10, 2, nullptr);
    pad()->setObject(&caller);
    pad()->setValidator(&validator);
    const int result = runPad([&] {
        QTest::keyClick(value(pad()), '2');
        QTest::keyClick(value(pad()), Qt::Key_Comma, Qt::KeyboardModifiers(modifiers));
        QTest::keyClick(value(pad()), '5');
        QCOMPARE(value(pad())->text(), QString("2.5"));
        QTest::keyClick(value(pad()), Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("2.5"));
}

void TestNumericKeypad::pastedTextFollowsTheSameRules()
{
    QApplication::clipboard()->setText(QLatin1String("1,5\n mm"));
    runPad([] {
        QTest::keyClick(value(pad()), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(value(pad())->text(), QString("1.5"));
    });
}

void TestNumericKeypad::pointCanBeTakenAway()
{
    QIntValidator validator(1, 500, nullptr);
    pad()->setDecimalPointEnabled(false);
    pad()->setValidator(&validator);
    pad()->setText(QLatin1String("1.5"));
    runPad([] {
        QVERIFY(!key(pad(), ".")->isEnabled());
        QCOMPARE(value(pad())->text(), QString("1.5"));
        click(pad(), "1 . 2");
        QTest::keyClicks(value(pad()), QLatin1String(".,3"));
        QCOMPARE(value(pad())->text(), QString("123"));
    });
    runPad([] { QVERIFY(key(pad(), ".")->isEnabled()); });
}

void TestNumericKeypad::signIsToggled_data()
{
    QTest::addColumn<QString>("old");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("of an empty value") << ""
                                       << "sign"
                                       << "-";
    QTest::newRow("twice") << ""
                           << "sign sign"
                           << "";
    QTest::newRow("of the old value") << "5"
                                      << "sign"
                                      << "-5";
    QTest::newRow("of a negative old value") << "-5"
                                             << "sign"
                                             << "5";
    QTest::newRow("while typing") << ""
                                  << "1 2 sign 3"
                                  << "-123";
    QTest::newRow("in the middle") << ""
                                   << "1 2 left sign 3"
                                   << "-132";
    QTest::newRow("cursor in front") << ""
                                     << "1 left sign sign 2"
                                     << "21";
}

void TestNumericKeypad::signIsToggled()
{
    QFETCH(QString, old);
    QFETCH(QString, keys);
    QFETCH(QString, text);
    pad()->setText(old);
    runPad([&] {
        click(pad(), keys.toLatin1());
        QCOMPARE(value(pad())->text(), text);
    });
}

void TestNumericKeypad::signBeforeDigitsReplacesTheOldNumber()
{
    pad()->setText(QLatin1String("12.5"));
    runPad([] {
        click(pad(), "sign 3");
        QCOMPARE(value(pad())->text(), QString("-3"));
    });
    pad()->setText(QLatin1String("-12.5"));
    runPad([] {
        click(pad(), "sign sign 4");
        QCOMPARE(value(pad())->text(), QString("-4"));
    });
}

void TestNumericKeypad::clearAndBackspace()
{
    pad()->setText(QLatin1String("123"));
    runPad([] {
        click(pad(), "right back");
        QCOMPARE(value(pad())->text(), QString("12"));
        click(pad(), "left back");
        QCOMPARE(value(pad())->text(), QString("2"));
        click(pad(), "clear");
        QCOMPARE(value(pad())->text(), QString(""));
        click(pad(), "back");
        QCOMPARE(value(pad())->text(), QString(""));
    });
    pad()->setText(QLatin1String("123"));
    runPad([] {
        click(pad(), "back");
        QCOMPARE(value(pad())->text(), QString(""));
    });
}

void TestNumericKeypad::heldBackspaceRepeats()
{
    pad()->setText(QLatin1String("123456"));
    runPad([] {
        click(pad(), "right");
        QAbstractButton *back = key(pad(), "back");
        QTest::mousePress(back, Qt::LeftButton);
        QTRY_VERIFY(value(pad())->text().length() <= 3);
        QTest::mouseRelease(back, Qt::LeftButton);
    });

    // One that is still held when the keypad goes must not eat the next caller's text.
    pad()->setText(QLatin1String("1"));
    runPad([] {
        QTest::mousePress(key(pad(), "back"), Qt::LeftButton);
        QTest::keyClick(value(pad()), Qt::Key_Escape);
    });
    pad()->setText(QLatin1String("123456"));
    runPad([] { QVERIFY(!key(pad(), "back")->isDown()); });
}

void TestNumericKeypad::cursorKeysMoveTheCursor()
{
    pad()->setText(QLatin1String("123"));
    runPad([] {
        click(pad(), "left");
        QVERIFY(!value(pad())->hasSelectedText());
        click(pad(), "left left left 9 right 8");
        QCOMPARE(value(pad())->text(), QString("91823"));
    });
}

void TestNumericKeypad::keyboardWorks()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("1"));
    const int result = runPad([] {
        // Keys go where the focus is, which no press on a key may move.
        click(pad(), "1");
        QTRY_COMPARE(pad()->focusWidget(), static_cast<QWidget *>(value(pad())));
        QTest::keyClicks(value(pad()), QLatin1String("23"));
        QTest::keyClick(value(pad()), Qt::Key_Backspace);
        QTest::keyClick(value(pad()), Qt::Key_Enter, Qt::KeypadModifier);
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("12"));
}

void TestNumericKeypad::oldValueAndLimitsAreShown()
{
    pad()->setText(QLatin1String("7"));
    pad()->setLimitToolTip(QLatin1String(" min:1, max:20"));
    runPad([] {
        click(pad(), "8");
        QCOMPARE(line(pad(), "oldValue"), QString("Was: 7"));
        QCOMPARE(line(pad(), "limit"), QString(" min:1, max:20"));
    });
    runPad([] {
        QCOMPARE(line(pad(), "oldValue"), QString("Was empty"));
        QVERIFY(line(pad(), "limit").isNull());
    });
}

void TestNumericKeypad::orderOfCallsDoesNotMatter()
{
    Caller caller;
    QIntValidator validator(1, 20, nullptr);
    int order[] = {0, 1, 2, 3, 4};
    do {
        for (int call : order) {
            if (call == 0)
                pad()->setObject(&caller);
            else if (call == 1)
                pad()->setValidator(&validator);
            else if (call == 2)
                pad()->setText(QLatin1String("30"));
            else if (call == 3)
                pad()->setLimitToolTip(QLatin1String("limits"));
            else
                pad()->setDecimalPointEnabled(false);
        }
        caller.setText(QString());
        const int result = runPad([] {
            QCOMPARE(value(pad())->selectedText(), QString("30"));
            QCOMPARE(line(pad(), "reason"), QString("At most 20"));
            QCOMPARE(line(pad(), "limit"), QString("limits"));
            QVERIFY(!key(pad(), ".")->isEnabled());
            click(pad(), "7 ok");
        });
        QCOMPARE(result, 1);
        QCOMPARE(caller.text(), QString("7"));
    } while (std::next_permutation(order, order + 5));
}

void TestNumericKeypad::nothingIsLeftForTheNextCaller()
{
    Caller caller;
    QIntValidator validator(1, 20, nullptr);
    Q_FOREACH (const char *ending, QList<const char *>() << "ok"
                                                         << "cancel") {
        pad()->setObject(&caller);
        pad()->setValidator(&validator);
        pad()->setText(QLatin1String("5"));
        pad()->setLimitToolTip(QLatin1String(" min:1, max:20"));
        pad()->setShowType(3);
        pad()->setEditMode(10);
        pad()->setDecimalPointEnabled(false);
        runPad([&] { click(pad(), ending); });

        caller.writes = 0;
        const int result = runPad([] {
            QCOMPARE(value(pad())->text(), QString(""));
            QCOMPARE(line(pad(), "oldValue"), QString("Was empty"));
            QVERIFY(line(pad(), "limit").isNull());
            QVERIFY(line(pad(), "reason").isNull());
            QVERIFY(key(pad(), ".")->isEnabled());
            click(pad(), "9 9 ok");
        });
        QCOMPARE(result, 1);
        QCOMPARE(caller.writes, 0);
    }
}

void TestNumericKeypad::setWhileOpenCounts()
{
    Caller caller;
    QIntValidator validator(1, 20, nullptr);
    pad()->setText(QLatin1String("5"));
    const int result = runPad([&] {
        pad()->setObject(&caller);
        pad()->setText(QLatin1String("21"));
        QCOMPARE(value(pad())->text(), QString("21"));
        QVERIFY(key(pad(), "ok")->isEnabled());
        pad()->setValidator(&validator);
        QVERIFY(!key(pad(), "ok")->isEnabled());
        pad()->setValidator(nullptr);
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("21"));
}

void TestNumericKeypad::languageOfAnOpenKeypadChanges()
{
    const QIntValidator validator(1, 20, nullptr);
    pad()->setValidator(&validator);
    pad()->setText(QLatin1String("5"));
    const int result = runPad([&] {
        click(pad(), "1 2 3");
        {
            const TestCompat::MarkingTranslator frame("KeypadFrame");
            const TestCompat::MarkingTranslator check("KeypadCheck");
            QApplication::processEvents();
            QCOMPARE(key(pad(), "clear")->text(), QString("Clear*"));
            QCOMPARE(key(pad(), "7")->text(), QString("7"));
            QCOMPARE(line(pad(), "oldValue"), QString("Was: 5*"));
            QCOMPARE(line(pad(), "reason"), QString("At most 20*"));
            QCOMPARE(value(pad())->text(), QString("123"));
        }
        QApplication::processEvents();
        QCOMPARE(key(pad(), "clear")->text(), QString("Clear"));
        QCOMPARE(line(pad(), "oldValue"), QString("Was: 5"));
        click(pad(), "cancel");
    });
    QCOMPARE(result, 0);
    // A closed one follows too.
    const TestCompat::MarkingTranslator frame("KeypadFrame");
    QApplication::processEvents();
    QCOMPARE(key(pad(), "clear")->text(), QString("Clear*"));
}

void TestNumericKeypad::sizeOfOneCallerIsNotTheNextOnes_data()
{
    QTest::addColumn<bool>("fixed");
    QTest::newRow("resized") << false;
    QTest::newRow("fixed") << true;
}

void TestNumericKeypad::sizeOfOneCallerIsNotTheNextOnes()
{
    QFETCH(bool, fixed);
    setScreen(QRect(0, 0, 1024, 600));
    QSize own;
    runPad([&] { own = pad()->size(); });
    if (fixed)
        pad()->setFixedSize(480, 272);
    else
        pad()->resize(480, 272);
    runPad([] { QCOMPARE(pad()->size(), QSize(480, 272)); });
    runPad([&] { QCOMPARE(pad()->size(), own); });
}

void TestNumericKeypad::callerMayVanish()
{
    std::unique_ptr<Caller> before(new Caller);
    pad()->setObject(before.get());
    before.reset();
    QCOMPARE(runPad([] { click(pad(), "1 ok"); }), 1);

    std::unique_ptr<Caller> during(new Caller);
    pad()->setObject(during.get());
    QCOMPARE(runPad([&] {
                 click(pad(), "1");
                 during.reset();
                 click(pad(), "ok");
             }),
             1);
}

void TestNumericKeypad::validatorMayVanish()
{
    std::unique_ptr<QValidator> before(new QIntValidator(1, 20, nullptr));
    pad()->setText(QLatin1String("30"));
    pad()->setValidator(before.get());
    before.reset();
    runPad([] { QVERIFY(key(pad(), "ok")->isEnabled()); });

    std::unique_ptr<QValidator> during(new QIntValidator(1, 20, nullptr));
    pad()->setText(QLatin1String("30"));
    pad()->setValidator(during.get());
    const int result = runPad([&] {
        QVERIFY(!key(pad(), "ok")->isEnabled());
        during.reset();
        QVERIFY(key(pad(), "ok")->isEnabled());
        QVERIFY(line(pad(), "reason").isEmpty());
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);

    // One that a former caller gave has no say any more, and its end is no news.
    std::unique_ptr<QValidator> former(new QIntValidator(1, 20, nullptr));
    QIntValidator present(1, 5, nullptr);
    pad()->setValidator(former.get());
    pad()->setValidator(&present);
    pad()->setText(QLatin1String("9"));
    runPad([&] {
        former.reset();
        QVERIFY(!key(pad(), "ok")->isEnabled());
    });
}

void TestNumericKeypad::fieldTakesTheText()
{
    QLineEdit field(QLatin1String("X:1.5"));
    pad()->setObject(&field);
    pad()->setText(QLatin1String("1.5"));
    QCOMPARE(runPad([] { click(pad(), "2 ok"); }), 1);
    QCOMPARE(field.text(), QString("2"));
}

void TestNumericKeypad::staysOnTheScreen_data()
{
    addScreens();
}

void TestNumericKeypad::staysOnTheScreen()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    QIntValidator validator(1, 20, nullptr);
    Q_FOREACH (const QSize &wish, QList<QSize>() << QSize() << QSize(800, 480) << QSize(480, 272)
                                                 << QSize(9, 9) << QSize(9999, 9999)) {
        if (wish.isValid())
            pad()->resize(wish);
        pad()->setText(QLatin1String("99"));
        pad()->setLimitToolTip(QLatin1String(" min:1, max:20"));
        pad()->setValidator(&validator);
        runPad([&] { QCOMPARE(layoutFault(pad(), screen, 38), QString()); });
    }
}

void TestNumericKeypad::wishedSizeIsKeptWhereItFits()
{
    setScreen(QRect(0, 0, 1280, 800));
    pad()->resize(800, 480);
    runPad([] {
        QCOMPARE(pad()->size(), QSize(800, 480));
        // At the lower edge, in the middle.
        QCOMPARE(pad()->geometry().bottom(), 799);
        QCOMPARE(pad()->geometry().left(), 240);
    });
    setScreen(QRect(0, 0, 480, 272));
    pad()->resize(800, 480);
    runPad([] { QCOMPARE(pad()->geometry(), QRect(0, 0, 480, 272)); });
}

void TestNumericKeypad::withoutNamedScreenTheAvailableOneCounts()
{
    qApp->setProperty("hmiScreen", QVariant());
    QWidget window;
    window.show();
    pad()->setObject(&window);
    const QRect available = QApplication::desktop()->availableGeometry(&window);
    pad()->resize(9999, 9999);
    runPad([&] { QCOMPARE(layoutFault(pad(), available, 38), QString()); });
    runPad([&] { QCOMPARE(layoutFault(pad(), available, 38), QString()); });
}

void TestNumericKeypad::hostsStyleSheetChangesNoSize()
{
    setScreen(QRect(0, 0, 480, 272));
    qApp->setStyleSheet(QLatin1String(
        "QPushButton, QLineEdit, QLabel { min-height: 90px; padding: 20px; margin: 9px; }"
        " QWidget { font-size: 40px; }"));
    runPad([] { QCOMPARE(layoutFault(pad(), QRect(0, 0, 480, 272), 38), QString()); });
    qApp->setStyleSheet(QString());
}

void TestNumericKeypad::pressedKeyLooksDifferent()
{
    runPad([] {
        QAbstractButton *seven = key(pad(), "7");
        const QImage released = TestCompat::grab(seven).toImage();
        QTest::mousePress(seven, Qt::LeftButton);
        const QImage pressed = TestCompat::grab(seven).toImage();
        QTest::mouseRelease(seven, Qt::LeftButton);
        const QPoint face(seven->width() / 2, 5);
        QVERIFY(released.pixel(face) != pressed.pixel(face));
        QCOMPARE(TestCompat::grab(seven).toImage(), released);
    });
}

FILARIX_TEST_MAIN(TestNumericKeypad)

#include "tst_numerickeypad.moc"
