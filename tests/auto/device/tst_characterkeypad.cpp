// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadtest.h"

#include <hmidevice/characterkeypad.h>

#include <QApplication>
#include <QClipboard>
#include <QRegExpValidator>

#include <memory>

class TestCharacterKeypad : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void isOneDialog();
    void textIsTypedAtTheEnd();
    void cancelLeavesThePropertyAlone();
    void keyTypesWhatItShows_data();
    void keyTypesWhatItShows();
    void hasTheSignsOfFileNames();
    void smallScreenHasThemOnTwoPages_data();
    void smallScreenHasThemOnTwoPages();
    void pageOfLettersComesBackWithoutSymbols();
    void shiftIsForOneLetter();
    void shiftTwiceStays();
    void symbolsStandOnTheLetterKeys();
    void spaceBarTypesABlank();
    void signsAreNotForLetters();
    void nothingIsLeftForTheNextCaller();
    void validatorDecides();
    void callerAndValidatorMayVanish();
    void keyboardWorks();
    void pastedLinesBecomeOne();
    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void lowScreenIsCoveredWhole();

private:
    static CharacterKeypad *pad() { return CharacterKeypad::instance(); }
    static int runPad(const std::function<void()> &step) { return run(pad(), step); }
    static QString allKeys();
};

/// What the typing keys of the page show, sorted.
QString TestCharacterKeypad::allKeys()
{
    QStringList shown;
    Q_FOREACH (QAbstractButton *button, pad()->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->text().length() == 1)
            shown.append(button->text());
    }
    shown.sort();
    return shown.join(QString());
}

void TestCharacterKeypad::isOneDialog()
{
    QVERIFY(pad());
    QCOMPARE(CharacterKeypad::instance(), pad());
}

void TestCharacterKeypad::textIsTypedAtTheEnd()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setValidator(nullptr);
    pad()->setText(QLatin1String("layer.cnc"));
    const int result = runPad([] {
        QVERIFY(!value(pad())->hasSelectedText());
        QCOMPARE(line(pad(), "oldValue"), QString("Was: layer.cnc"));
        click(pad(), "left left left left _ 0 7 ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("layer_07.cnc"));
    QCOMPARE(caller.writes, 1);
}

void TestCharacterKeypad::cancelLeavesThePropertyAlone()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("layer"));
    QCOMPARE(runPad([] { click(pad(), "a cancel"); }), 0);
    QCOMPARE(caller.writes, 0);
}

void TestCharacterKeypad::keyTypesWhatItShows_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("typing");
    const auto add = [](const QSize &size, double dotsPerInch, int typing) {
        const QByteArray name =
            QByteArray::number(size.width()) + (dotsPerInch > 0 ? ", coarse" : "");
        const QRect screen(QPoint(0, 0), size);
        QTest::newRow(("small, width " + name).constData())
            << screen << dotsPerInch << "" << typing;
        QTest::newRow(("large, width " + name).constData())
            << screen << dotsPerInch << "shift shift" << typing;
        QTest::newRow(("symbols, width " + name).constData())
            << screen << dotsPerInch << "symbols" << typing;
    };
    // 26 letters or symbols, ten digits, dash, underscore and point.
    add(QSize(800, 480), 0, 39);
    add(QSize(272, 480), 96, 39);
    // The letters alone, or with an underscore.
    add(QSize(480, 272), 0, 26);
    add(QSize(272, 480), 0, 27);
    // Digits and the signs of names.
    QTest::newRow("digits, lying") << QRect(0, 0, 480, 272) << 0.0 << "digits" << 25;
    QTest::newRow("digits, upright") << QRect(0, 0, 272, 480) << 0.0 << "digits" << 29;
}

void TestCharacterKeypad::keyTypesWhatItShows()
{
    QFETCH(QRect, screen);
    QFETCH(double, dotsPerInch);
    QFETCH(QString, before);
    QFETCH(int, typing);
    setScreen(screen, dotsPerInch);
    runPad([&] {
        if (!before.isEmpty())
            click(pad(), before.toLatin1());
        int typed = 0;
        Q_FOREACH (QAbstractButton *button, pad()->findChildren<QAbstractButton *>()) {
            if (!button->isVisible() || button->text().length() != 1)
                continue;
            click(pad(), "clear");
            QTest::mouseClick(button, Qt::LeftButton);
            QCOMPARE(value(pad())->text(), button->text());
            ++typed;
        }
        QCOMPARE(typed, typing);
    });
}

void TestCharacterKeypad::hasTheSignsOfFileNames()
{
    runPad([] {
        QCOMPARE(allKeys(), QString("-.0123456789_abcdefghijklmnopqrstuvwxyz"));
        click(pad(), "symbols");
        Q_FOREACH (QChar sign, QString::fromLatin1("-_.()+=@#&,~[]{}!%'"))
            QVERIFY2(allKeys().contains(sign), qPrintable(QString(sign)));
    });
}

void TestCharacterKeypad::smallScreenHasThemOnTwoPages_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("lying") << QRect(0, 0, 480, 272);
    QTest::newRow("upright") << QRect(0, 0, 272, 480);
}

void TestCharacterKeypad::smallScreenHasThemOnTwoPages()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("coil"));
    runPad([&] {
        QString all = allKeys();
        QCOMPARE(key(pad(), "digits")->text(), QString("123"));
        click(pad(), "digits");
        QCOMPARE(key(pad(), "digits")->text(), QString("abc"));
        // The same place: who errs goes back with a second touch.
        const QRect place = key(pad(), "digits")->geometry();
        all += allKeys();
        click(pad(), "digits");
        QCOMPARE(key(pad(), "digits")->geometry(), place);
        click(pad(), "symbols");
        all += allKeys();
        Q_FOREACH (QChar sign, QString("abcdefghijklmnopqrstuvwxyz0123456789-_.!#$%&()+=@[]{}~^"
                                       ",;':/\\?*<>"))
            QVERIFY2(all.contains(sign), qPrintable(QString(sign)));
        click(pad(), "symbols clear l a y e r digits _ 0 7 . digits c n c ok");
    });
    QCOMPARE(caller.text(), QString("layer_07.cnc"));
}

void TestCharacterKeypad::pageOfLettersComesBackWithoutSymbols()
{
    setScreen(QRect(0, 0, 480, 272));
    runPad([] {
        click(pad(), "symbols digits digits");
        QCOMPARE(key(pad(), "a")->text(), QString("a"));
        QVERIFY(key(pad(), "shift")->isEnabled());
        click(pad(), "shift shift a digits 1 digits b");
        QCOMPARE(value(pad())->text(), QString("A1B"));
        click(pad(), "digits");
    });
    // The next caller sees letters first.
    runPad([] {
        QVERIFY(key(pad(), "a")->isVisible());
        QVERIFY(!key(pad(), "7")->isVisible());
        QCOMPARE(key(pad(), "a")->text(), QString("a"));
    });
}

void TestCharacterKeypad::shiftIsForOneLetter()
{
    runPad([] {
        click(pad(), "shift 7 a b");
        QCOMPARE(value(pad())->text(), QString("7Ab"));
        QCOMPARE(key(pad(), "a")->text(), QString("a"));
    });
}

void TestCharacterKeypad::shiftTwiceStays()
{
    runPad([] {
        click(pad(), "shift shift a b c shift d");
        QCOMPARE(value(pad())->text(), QString("ABCd"));
    });
}

void TestCharacterKeypad::symbolsStandOnTheLetterKeys()
{
    runPad([] {
        QCOMPARE(key(pad(), "symbols")->text(), QString("#+="));
        click(pad(), "symbols");
        QCOMPARE(key(pad(), "symbols")->text(), QString("abc"));
        QCOMPARE(key(pad(), "y")->text(), QString("("));
        QVERIFY(!key(pad(), "shift")->isEnabled());
        click(pad(), "y 1 u symbols y");
        QCOMPARE(value(pad())->text(), QString("(1)y"));
        QVERIFY(key(pad(), "shift")->isEnabled());
    });
}

void TestCharacterKeypad::spaceBarTypesABlank()
{
    Caller caller;
    pad()->setObject(&caller);
    runPad([] { click(pad(), "space a space space ok"); });
    QCOMPARE(caller.text(), QString(" a  "));
}

void TestCharacterKeypad::signsAreNotForLetters()
{
    // A comma is a comma here, and no character is refused.
    runPad([] {
        QTest::keyClicks(value(pad()), QLatin1String("1,5 mm;"));
        QCOMPARE(value(pad())->text(), QString("1,5 mm;"));
    });
}

void TestCharacterKeypad::nothingIsLeftForTheNextCaller()
{
    Caller caller;
    QRegExpValidator validator(QRegExp(QLatin1String("[a-z]+")), nullptr);
    pad()->setObject(&caller);
    pad()->setValidator(&validator);
    pad()->setText(QLatin1String("abc"));
    pad()->setShowType(2);
    runPad([] { click(pad(), "shift shift ok"); });
    caller.writes = 0;
    const int result = runPad([] {
        QCOMPARE(value(pad())->text(), QString(""));
        QVERIFY(line(pad(), "limit").isNull());
        QVERIFY(line(pad(), "reason").isNull());
        QCOMPARE(key(pad(), "a")->text(), QString("a"));
        click(pad(), "symbols y ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.writes, 0);
    runPad([] { QCOMPARE(key(pad(), "y")->text(), QString("y")); });
}

void TestCharacterKeypad::validatorDecides()
{
    Caller caller;
    QRegExpValidator validator(QRegExp(QLatin1String("[a-z]{3}")), nullptr);
    pad()->setValidator(&validator);
    pad()->setObject(&caller);
    const int result = runPad([] {
        QCOMPARE(line(pad(), "reason"), QString("Nothing entered"));
        click(pad(), "a b ok");
        QVERIFY(pad()->isVisible());
        QCOMPARE(line(pad(), "reason"), QString("Not complete"));
        click(pad(), "1");
        QCOMPARE(line(pad(), "reason"), QString("Not allowed"));
        click(pad(), "back c ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("abc"));
}

void TestCharacterKeypad::callerAndValidatorMayVanish()
{
    std::unique_ptr<Caller> caller(new Caller);
    std::unique_ptr<QValidator> validator(
        new QRegExpValidator(QRegExp(QLatin1String("[0-9]+")), nullptr));
    pad()->setObject(caller.get());
    pad()->setValidator(validator.get());
    pad()->setText(QLatin1String("abc"));
    const int result = runPad([&] {
        QVERIFY(!key(pad(), "ok")->isEnabled());
        caller.reset();
        validator.reset();
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
}

void TestCharacterKeypad::keyboardWorks()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("a"));
    const int result = runPad([] {
        QTest::keyClicks(value(pad()), QLatin1String("B c"));
        QTest::keyClick(value(pad()), Qt::Key_Left);
        QTest::keyClick(value(pad()), Qt::Key_Backspace);
        QTest::keyClick(value(pad()), Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("aBc"));
}

void TestCharacterKeypad::pastedLinesBecomeOne()
{
    QApplication::clipboard()->setText(QLatin1String("one\ttwo\nthree"));
    runPad([] {
        QTest::keyClick(value(pad()), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(value(pad())->text(), QString("onetwothree"));
    });
}

void TestCharacterKeypad::staysOnTheScreen_data()
{
    addScreens();
}

void TestCharacterKeypad::staysOnTheScreen()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    Q_FOREACH (const QSize &wish, QList<QSize>() << QSize() << screen.size() << QSize(480, 272)
                                                 << QSize(800, 480) << QSize(9999, 9999)) {
        if (wish.isValid())
            pad()->resize(wish);
        pad()->setText(QLatin1String("layer_07.cnc"));
        runPad([&] { QCOMPARE(layoutFault(pad(), screen, 38), QString()); });
    }
}

void TestCharacterKeypad::lowScreenIsCoveredWhole()
{
    setScreen(QRect(0, 0, 800, 390));
    pad()->resize(480, 272);
    runPad([] { QCOMPARE(pad()->geometry(), QRect(0, 0, 800, 390)); });
    setScreen(QRect(0, 0, 480, 800));
    runPad([] {
        QCOMPARE(pad()->width(), 480);
        QCOMPARE(pad()->geometry().bottom(), 799);
        QVERIFY(pad()->height() < 600);
    });
}

FILARIX_TEST_MAIN(TestCharacterKeypad)

#include "tst_characterkeypad.moc"
