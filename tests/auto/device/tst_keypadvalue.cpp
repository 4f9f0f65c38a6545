// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds KeypadValue and KeypadLimits, by way of the keypads.

#include "keypadtest.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QDoubleValidator>
#include <QIntValidator>

#include <limits>
#include <memory>

/// A keypad names the value that it edits, and takes none outside the limits.
class TestKeypadValue : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void titleTellsTheProperties_data();
    void titleTellsTheProperties();
    void everyKeypadHasATitle();
    void showTypeTellsNothing();
    void titleIsToldFromTheCaller_data();
    void titleIsToldFromTheCaller();
    void titleTellsTheValidatorsLimits();
    void hintIsShown();
    void longHintIsSeenWhole_data();
    void longHintIsSeenWhole();
    void titleGoesWithTheLanguage();
    void titleStaysWithoutItsObject();

    void limitsDecide_data();
    void limitsDecide();
    void limitsHoldOnTheOtherKeypadsToo();
    void limitsOfTheHintDecide();
    void hintWithoutLimitsDecidesNothing();
    void limitsAndValidatorBothDecide();
    void wrongLimitsAreNone_data();
    void wrongLimitsAreNone();
    void wholeNumbersHaveNoPoint();
    void touchOnGreyOkSaysWhy();
    void returnOnARefusedTextSaysWhy();
    void nothingIsLeftForTheNextCaller();
    void everythingIsSeen_data();
    void everythingIsSeen();

private:
    static NumericKeypad *pad() { return NumericKeypad::instance(); }
    static int runPad(const std::function<void()> &step) { return run(pad(), step); }
    static QString title() { return line(pad(), "title"); }
    static void setTension(QObject *object);
    static bool isMarked();
};

void TestKeypadValue::setTension(QObject *object)
{
    object->setProperty("hmiName", QLatin1String("N5 Tension"));
    object->setProperty("hmiUnit", QLatin1String("N"));
    object->setProperty("hmiMinimum", 0.5);
    object->setProperty("hmiMaximum", 8.5);
}

bool TestKeypadValue::isMarked()
{
    const QWidget *reason = pad()->findChild<QWidget *>(QLatin1String("reason"));
    const QImage seen = TestCompat::grab(pad()).toImage().copy(
        QRect(reason->mapTo(pad(), QPoint()), reason->size()));
    // A marked one stands on its own colour.
    return QColor(seen.pixel(seen.width() / 2, 2)).red() > 200;
}

void TestKeypadValue::titleTellsTheProperties_data()
{
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<QString>("title");

    QVariantMap all;
    all["hmiName"] = "N5 Tension";
    all["hmiUnit"] = "N";
    all["hmiMinimum"] = 0.5;
    all["hmiMaximum"] = 8.5;
    QTest::newRow("all") << all << "N5 Tension, N, 0.5 to 8.5";

    QVariantMap name;
    name["hmiName"] = " N5\nTension ";
    QTest::newRow("name alone, in one line") << name << "N5 Tension";

    QVariantMap least = name;
    least["hmiMinimum"] = -3;
    QTest::newRow("least") << least << "N5 Tension, at least -3";

    QVariantMap most = name;
    most["hmiMaximum"] = 1250000;
    QTest::newRow("most") << most << "N5 Tension, at most 1250000";

    QVariantMap texts;
    texts["hmiMinimum"] = "0.1";
    texts["hmiMaximum"] = "0.3";
    QTest::newRow("limits as texts") << texts << "Number, 0.1 to 0.3";

    QVariantMap unit;
    unit["hmiUnit"] = "rpm";
    QTest::newRow("unit alone") << unit << "Number, rpm";
}

void TestKeypadValue::titleTellsTheProperties()
{
    QFETCH(QVariantMap, properties);
    QFETCH(QString, title);
    Caller caller;
    for (QVariantMap::const_iterator i = properties.constBegin(); i != properties.constEnd(); ++i)
        caller.setProperty(i.key().toLatin1(), i.value());
    pad()->setObject(&caller);
    runPad([&] { QCOMPARE(TestKeypadValue::title(), title); });
}

void TestKeypadValue::everyKeypadHasATitle()
{
    runPad([] { QCOMPARE(title(), QString("Number")); });
    CharacterKeypad *characters = CharacterKeypad::instance();
    run(characters, [&] { QCOMPARE(line(characters, "title"), QString("Text")); });
    GCodeKeypad *gcode = GCodeKeypad::instance();
    run(gcode, [&] { QCOMPARE(line(gcode, "title"), QString("Line")); });

    Caller caller;
    caller.setProperty("hmiName", QLatin1String("Line 12"));
    gcode->setObject(&caller);
    run(gcode, [&] { QCOMPARE(line(gcode, "title"), QString("Line 12")); });
    characters->setObject(&caller);
    run(characters, [&] { QCOMPARE(line(characters, "title"), QString("Line 12")); });
}

// The library gives all its texts the same one.
void TestKeypadValue::showTypeTellsNothing()
{
    CharacterKeypad *characters = CharacterKeypad::instance();
    for (int type = -1; type < 4; ++type) {
        pad()->setShowType(type);
        pad()->setEditMode(type);
        runPad([] { QCOMPARE(title(), QString("Number")); });
        characters->setShowType(type);
        run(characters, [&] { QCOMPARE(line(characters, "title"), QString("Text")); });
        // Whatever is known tells more.
        Caller caller;
        caller.setProperty("hmiName", QLatin1String("N5 Tension"));
        pad()->setObject(&caller);
        pad()->setShowType(type);
        runPad([] { QCOMPARE(title(), QString("N5 Tension")); });
    }
}

void TestKeypadValue::titleIsToldFromTheCaller_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("title");
    QTest::newRow("key and value") << "Z:1.5"
                                   << "1.5"
                                   << "Z";
    QTest::newRow("key without a value") << "Z:"
                                         << ""
                                         << "Z";
    QTest::newRow("value alone") << "1.5"
                                 << "1.5"
                                 << "Number";
    QTest::newRow("address and port") << "192.168.1.23:4001"
                                      << "4001"
                                      << "Number";
    QTest::newRow("another value") << "Z:1.5"
                                   << "2.5"
                                   << "Number";
}

void TestKeypadValue::titleIsToldFromTheCaller()
{
    QFETCH(QString, shown);
    QFETCH(QString, value);
    QFETCH(QString, title);
    QLineEdit field(shown);
    pad()->setObject(&field);
    pad()->setText(value);
    runPad([&] { QCOMPARE(TestKeypadValue::title(), title); });
    field.setText(QString());
    field.setAccessibleName(QLatin1String("Width"));
    pad()->setObject(&field);
    runPad([] { QCOMPARE(TestKeypadValue::title(), QString("Width")); });

    QDialog dialog;
    dialog.setWindowTitle(QLatin1String("Copy[*]"));
    pad()->setObject(&dialog);
    runPad([] { QCOMPARE(TestKeypadValue::title(), QString("Copy")); });
}

void TestKeypadValue::titleTellsTheValidatorsLimits()
{
    const QIntValidator count(1, 20, nullptr);
    pad()->setValidator(&count);
    runPad([] { QCOMPARE(title(), QString("Number, 1 to 20")); });

    const QDoubleValidator any(nullptr);
    pad()->setValidator(&any);
    runPad([] { QCOMPARE(title(), QString("Number")); });
    const QIntValidator whole(nullptr);
    pad()->setValidator(&whole);
    runPad([] { QCOMPARE(title(), QString("Number")); });

    // What the caller says of the limits is shown once.
    pad()->setValidator(&count);
    pad()->setLimitToolTip(QLatin1String(" min:1, max:20"));
    runPad([] {
        QCOMPARE(title(), QString("Number"));
        QCOMPARE(line(pad(), "limit"), QString(" min:1, max:20"));
    });
    QObject tension;
    tension.setProperty("hmiName", QString("N5 Tension"));
    tension.setProperty("hmiMinimum", 0.5);
    tension.setProperty("hmiMaximum", 8.5);
    pad()->setObject(&tension);
    pad()->setLimitToolTip(QLatin1String("0.5 to 8.5 N"));
    runPad([] {
        QCOMPARE(title(), QString("N5 Tension, 0.5 to 8.5"));
        QVERIFY(line(pad(), "limit").isNull());
    });

    runPad([&] {
        QCOMPARE(title(), QString("Number"));
        pad()->setValidator(&count);
        QCOMPARE(title(), QString("Number, 1 to 20"));
    });
}

void TestKeypadValue::hintIsShown()
{
    Caller caller;
    caller.setProperty("hmiHint", QLatin1String("G01 G90 F300"));
    GCodeKeypad *gcode = GCodeKeypad::instance();
    gcode->setObject(&caller);
    run(gcode, [&] { QCOMPARE(line(gcode, "hint"), QString("G01 G90 F300")); });
    run(gcode, [&] { QVERIFY(line(gcode, "hint").isNull()); });
}

// The words in force are long, and so is the line before it was changed.
void TestKeypadValue::longHintIsSeenWhole_data()
{
    addScreens();
}

void TestKeypadValue::longHintIsSeenWhole()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    Caller caller;
    caller.setProperty("hmiName", QLatin1String("Line 270"));
    caller.setProperty("hmiHint", QLatin1String("G90 G33 F400 S360 M03 G21 T2"));
    GCodeKeypad *gcode = GCodeKeypad::instance();
    gcode->setObject(&caller);
    gcode->setText(QLatin1String("X18.50"));
    run(gcode, [&] {
        QFont font = QApplication::font();
        font.setPixelSize(11);
        Q_FOREACH (const char *name, QList<const char *>() << "title"
                                                           << "hint"
                                                           << "oldValue") {
            const QWidget *label = gcode->findChild<QWidget *>(QLatin1String(name));
            QVERIFY2(QFontMetrics(font).width(line(gcode, name)) <= label->width(), name);
        }
    });
}

void TestKeypadValue::titleGoesWithTheLanguage()
{
    Caller caller;
    caller.setProperty("hmiMaximum", 5);
    pad()->setObject(&caller);
    runPad([] {
        const TestCompat::MarkingTranslator frame("KeypadFrame");
        const TestCompat::MarkingTranslator limits("KeypadLimits");
        QApplication::processEvents();
        QCOMPARE(title(), QString("Number*, at most 5*"));
    });
}

void TestKeypadValue::titleStaysWithoutItsObject()
{
    std::unique_ptr<Caller> caller(new Caller);
    setTension(caller.get());
    pad()->setObject(caller.get());
    pad()->setText(QLatin1String("9"));
    runPad([&] {
        caller.reset();
        QCOMPARE(title(), QString("N5 Tension, N, 0.5 to 8.5"));
        click(pad(), "9 9");
        QVERIFY(!key(pad(), "ok")->isEnabled());
        click(pad(), "clear 8 . 5 ok");
    });
    QVERIFY(pad()->isHidden());
}

void TestKeypadValue::limitsDecide_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("least") << "0.5"
                           << "";
    QTest::newRow("most") << "8.5"
                          << "";
    QTest::newRow("inside") << "6.25"
                            << "";
    QTest::newRow("just below") << "0.49"
                                << "At least 0.5";
    QTest::newRow("just above") << "8.51"
                                << "At most 8.5";
    QTest::newRow("negative") << "-6"
                              << "At least 0.5";
    QTest::newRow("far above") << "999999999999"
                               << "At most 8.5";
    QTest::newRow("a number and a word") << "9999 banana"
                                         << "Not a number";
    QTest::newRow("a number in the limits and a word") << "6 banana"
                                                       << "Not a number";
    QTest::newRow("a number and its unit") << "6.0 N"
                                           << "Not a number";
    QTest::newRow("not a number") << "nan"
                                  << "Not a number";
    QTest::newRow("infinity") << "inf"
                              << "Not a number";
    QTest::newRow("empty") << ""
                           << "Nothing entered";
    QTest::newRow("blank") << " "
                           << "Nothing entered";
    QTest::newRow("sign") << "-"
                          << "Not complete";
    QTest::newRow("point") << "-."
                           << "Not complete";
}

void TestKeypadValue::limitsDecide()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    Caller caller;
    setTension(&caller);
    pad()->setObject(&caller);
    pad()->setText(text);
    const int result = runPad([&] {
        QCOMPARE(line(pad(), "reason"), reason);
        QCOMPARE(key(pad(), "ok")->isEnabled(), reason.isEmpty());
        click(pad(), "ok");
        if (pad()->isVisible())
            QTest::keyClick(value(pad()), Qt::Key_Return);
        if (pad()->isVisible())
            pad()->accept();
        QCOMPARE(pad()->isVisible(), !reason.isEmpty());
    });
    QCOMPARE(result, reason.isEmpty() ? 1 : 0);
    QCOMPARE(caller.writes, reason.isEmpty() ? 1 : 0);
}

void TestKeypadValue::limitsHoldOnTheOtherKeypadsToo()
{
    Caller caller;
    setTension(&caller);
    CharacterKeypad *characters = CharacterKeypad::instance();
    characters->setObject(&caller);
    characters->setText(QLatin1String("9999 banana"));
    const int result = run(characters, [&] {
        click(characters, "ok");
        QVERIFY(characters->isVisible());
        click(characters, "clear 9");
        QCOMPARE(line(characters, "reason"), QString("At most 8.5"));
        click(characters, "back 7 ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("7"));
}

void TestKeypadValue::limitsOfTheHintDecide()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setLimitToolTip(QLatin1String(" min:-1.5, max:20"));
    pad()->setText(QLatin1String("9999 banana"));
    const int result = runPad([] {
        QCOMPARE(line(pad(), "reason"), QString("Not a number"));
        click(pad(), "2 1");
        QCOMPARE(line(pad(), "reason"), QString("At most 20"));
        click(pad(), "clear 2 sign");
        QCOMPARE(line(pad(), "reason"), QString("At least -1.5"));
        click(pad(), "clear 2 ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("2"));
}

void TestKeypadValue::hintWithoutLimitsDecidesNothing()
{
    pad()->setLimitToolTip(QLatin1String("between admin: and climax: 5"));
    pad()->setText(QLatin1String("n/a"));
    runPad([] { QVERIFY(key(pad(), "ok")->isEnabled()); });

    // The line itself, which may hold anything.
    GCodeKeypad *gcode = GCodeKeypad::instance();
    gcode->setText(QLatin1String("G01 X1 ; max: 5"));
    gcode->setLimitToolTip(QLatin1String("G01 X1 ; max: 5"));
    run(gcode, [&] { QVERIFY(key(gcode, "ok")->isEnabled()); });
}

void TestKeypadValue::limitsAndValidatorBothDecide()
{
    Caller caller;
    setTension(&caller);
    QDoubleValidator wide(0, 100, 1, nullptr);
    pad()->setObject(&caller);
    pad()->setValidator(&wide);
    runPad([] {
        QCOMPARE(title(), QString("N5 Tension, N, 0.5 to 8.5"));
        click(pad(), "9 9");
        QCOMPARE(line(pad(), "reason"), QString("At most 8.5"));
        click(pad(), "clear 8 . 2 5");
        QCOMPARE(line(pad(), "reason"), QString("Too many decimals"));
        click(pad(), "back");
        QVERIFY(key(pad(), "ok")->isEnabled());
    });
}

void TestKeypadValue::wrongLimitsAreNone_data()
{
    QTest::addColumn<QVariant>("minimum");
    QTest::addColumn<QVariant>("maximum");
    QTest::newRow("the wrong way round") << QVariant(8) << QVariant(1);
    QTest::newRow("words") << QVariant("low") << QVariant("high");
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN())
                                  << QVariant();
}

void TestKeypadValue::wrongLimitsAreNone()
{
    QFETCH(QVariant, minimum);
    QFETCH(QVariant, maximum);
    Caller caller;
    caller.setProperty("hmiMinimum", minimum);
    caller.setProperty("hmiMaximum", maximum);
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("99"));
    runPad([] {
        QCOMPARE(title(), QString("Number"));
        QVERIFY(key(pad(), "ok")->isEnabled());
    });
}

void TestKeypadValue::wholeNumbersHaveNoPoint()
{
    Caller caller;
    caller.setProperty("hmiInteger", true);
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("1.5"));
    const int result = runPad([] {
        QCOMPARE(line(pad(), "reason"), QString("Not a whole number"));
        QVERIFY(!key(pad(), ".")->isEnabled());
        click(pad(), "clear 1 . 2");
        QTest::keyClicks(value(pad()), QLatin1String(",3"));
        QCOMPARE(value(pad())->text(), QString("123"));
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("123"));
}

void TestKeypadValue::touchOnGreyOkSaysWhy()
{
    Caller caller;
    setTension(&caller);
    pad()->setObject(&caller);
    runPad([] {
        click(pad(), "9");
        QVERIFY(!isMarked());
        click(pad(), "7");
        click(pad(), "ok");
        QVERIFY(isMarked());
        QVERIFY(pad()->isVisible());
        // Another key is no question.
        click(pad(), "back");
        QVERIFY(!isMarked());
        click(pad(), "left");
        QVERIFY(!isMarked());
    });
}

void TestKeypadValue::returnOnARefusedTextSaysWhy()
{
    Caller caller;
    setTension(&caller);
    pad()->setObject(&caller);
    runPad([] {
        click(pad(), "9");
        QTest::keyClick(value(pad()), Qt::Key_Return);
        QVERIFY(isMarked());
        click(pad(), "clear 5");
        QVERIFY(!isMarked());
    });
}

void TestKeypadValue::nothingIsLeftForTheNextCaller()
{
    Caller caller;
    setTension(&caller);
    caller.setProperty("hmiHint", QLatin1String("of the wire"));
    caller.setProperty("hmiInteger", true);
    pad()->setObject(&caller);
    runPad([] { click(pad(), "9 ok cancel"); });
    runPad([] {
        QCOMPARE(title(), QString("Number"));
        QVERIFY(line(pad(), "hint").isNull());
        QVERIFY(line(pad(), "reason").isNull());
        QVERIFY(key(pad(), ".")->isEnabled());
        click(pad(), "9 9");
        QVERIFY(key(pad(), "ok")->isEnabled());
    });
}

void TestKeypadValue::everythingIsSeen_data()
{
    addScreens();
}

void TestKeypadValue::everythingIsSeen()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    Caller caller;
    setTension(&caller);
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("9"));
    runPad([&] {
        QCOMPARE(layoutFault(pad(), screen, 38), QString());
        QCOMPARE(line(pad(), "oldValue"), QString("Was: 9"));
        QCOMPARE(line(pad(), "reason"), QString("At most 8.5"));
        // Wide enough at the least size of its letters.
        const QWidget *label = pad()->findChild<QWidget *>(QLatin1String("title"));
        QFont font = QApplication::font();
        font.setBold(true);
        font.setPixelSize(11);
        QVERIFY(QFontMetrics(font).width(title()) <= label->width());
    });

    // However much there is to say.
    caller.setProperty("hmiName",
                       QString(QLatin1String("A name that is far too long ")).repeated(4));
    caller.setProperty("hmiHint", QString(QLatin1String("a hint that is no shorter ")).repeated(4));
    pad()->setObject(&caller);
    pad()->setText(QString(90, QLatin1Char('9')));
    pad()->setLimitToolTip(QString(QLatin1String("limits that are long, too ")).repeated(4));
    runPad([&] { QCOMPARE(layoutFault(pad(), screen, 38), QString()); });
}

FILARIX_TEST_MAIN(TestKeypadValue)

#include "tst_keypadvalue.moc"
