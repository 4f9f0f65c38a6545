// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadtest.h"

#include <hmidevice/gcodekeypad.h>

#include <QRegExpValidator>

#include <memory>

namespace {

/// Notes whether the next line was asked for when the text came.
class LineCaller : public Caller
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE take)

public:
    LineCaller() { setProperty("hmiNextLine", true); }
    void take(const QString &text)
    {
        wasAskedFor = property("hmiNextLineChosen").toBool();
        setText(text);
    }

    bool wasAskedFor = false;
};

} // namespace

class TestGCodeKeypad : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void isOneDialog();
    void hasTheKeysOfALine_data();
    void hasTheKeysOfALine();
    void everyLetterIsOnTheSecondPage_data();
    void everyLetterIsOnTheSecondPage();
    void pageKeyKeepsItsPlace_data();
    void pageKeyKeepsItsPlace();
    void commentIsTypedOnTheSecondPage_data();
    void commentIsTypedOnTheSecondPage();
    void pageIsTheFirstOneAgain();
    void lineIsEdited();
    void wordsStandApart_data();
    void wordsStandApart();
    void nextLineIsThereWhereItIsAllowed_data();
    void nextLineIsThereWhereItIsAllowed();
    void nextLineIsToldBeforeTheText();
    void nextLineIsGreyWhileTheTextIsRefused();
    void unchangedLineIsWrittenToo();
    void cancelLeavesThePropertyAlone();
    void emptyLineWithEmptyHint();
    void hintThatIsTheLineIsShownOnce();
    void otherHintIsShown();
    void longLineIsMadeSmaller();
    void commentIsTypedOnTheKeyboard();
    void validatorDecides();
    void nothingIsLeftForTheNextCaller();
    void callerMayVanish();
    void staysOnTheScreen_data();
    void staysOnTheScreen();

private:
    static void addPages();
    static GCodeKeypad *pad() { return GCodeKeypad::instance(); }
    static int runPad(const std::function<void()> &step) { return run(pad(), step); }
};

void TestGCodeKeypad::isOneDialog()
{
    QVERIFY(pad());
    QCOMPARE(GCodeKeypad::instance(), pad());
}

void TestGCodeKeypad::hasTheKeysOfALine_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<QString>("typing");
    const QString all = QLatin1String("GMXYZUVWIJKFSTN0123456789-.; ");
    // Keys for a glove leave no room for rare words; the blank between words comes by itself.
    const QString few = QLatin1String("GMXYZIJKFST0123456789-.;");
    QTest::newRow("wide") << QRect(0, 0, 800, 480) << 0.0 << all;
    QTest::newRow("wide and coarse") << QRect(0, 0, 480, 272) << 60.0 << all;
    QTest::newRow("narrow and coarse") << QRect(0, 0, 272, 480) << 96.0 << all;
    QTest::newRow("small") << QRect(0, 0, 480, 272) << 0.0 << few;
    QTest::newRow("small and narrow") << QRect(0, 0, 272, 480) << 0.0 << all;
}

void TestGCodeKeypad::hasTheKeysOfALine()
{
    QFETCH(QRect, screen);
    QFETCH(double, dotsPerInch);
    QFETCH(QString, typing);
    setScreen(screen, dotsPerInch);
    runPad([&] {
        const bool hasSpace = typing.endsWith(QLatin1Char(' '));
        Q_FOREACH (QChar sign, typing.trimmed()) {
            click(pad(), "clear");
            click(pad(), QByteArray(1, sign.toLatin1()));
            QCOMPARE(value(pad())->text(), QString(sign));
            QCOMPARE(key(pad(), QByteArray(1, sign.toLatin1()))->text(), QString(sign));
        }
        click(pad(), hasSpace ? "clear space" : "clear page space");
        QCOMPARE(value(pad())->text(), QString(" "));
    });
}

void TestGCodeKeypad::addPages()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<double>("dotsPerInch");
    QTest::addColumn<QString>("second");
    const QString letters = QLatin1String("ABCDEFGHIJKLMNOPQRSTUVWXYZ,");
    const QString all = letters + QLatin1String("0123456789-.;");
    QTest::newRow("wide and coarse") << QRect(0, 0, 480, 272) << 60.0 << all;
    QTest::newRow("narrow and coarse") << QRect(0, 0, 272, 480) << 96.0 << all;
    QTest::newRow("large") << QRect(0, 0, 1024, 600) << 0.0 << all;
    // Digits and signs have room on the first page alone.
    QTest::newRow("small") << QRect(0, 0, 480, 272) << 0.0 << letters;
    QTest::newRow("small and narrow") << QRect(0, 0, 272, 480) << 0.0 << letters;
}

void TestGCodeKeypad::everyLetterIsOnTheSecondPage_data()
{
    addPages();
}

void TestGCodeKeypad::everyLetterIsOnTheSecondPage()
{
    QFETCH(QRect, screen);
    QFETCH(double, dotsPerInch);
    QFETCH(QString, second);
    setScreen(screen, dotsPerInch);
    runPad([&] {
        const QSize size = pad()->size();
        QCOMPARE(key(pad(), "page")->text(), QString("ABC"));
        click(pad(), "page");
        QCOMPARE(key(pad(), "page")->text(), QString("GXY"));
        QCOMPARE(pad()->size(), size);
        QCOMPARE(layoutFault(pad(), screen, 38), QString());
        Q_FOREACH (QChar sign, second) {
            click(pad(), QByteArray(1, sign.toLatin1()));
            QCOMPARE(value(pad())->text(), QString(sign));
            click(pad(), "back");
        }
        click(pad(), "space back H");
        clickOnAnyPage(pad(), "2");
        if (key(pad(), "H")->isVisible())
            click(pad(), "page");
        click(pad(), "X 1");
        QCOMPARE(value(pad())->text(), QString("H2 X1"));
        QCOMPARE(layoutFault(pad(), screen, 38), QString());
    });
}

void TestGCodeKeypad::pageKeyKeepsItsPlace_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("lying") << QRect(0, 0, 480, 272);
    QTest::newRow("upright") << QRect(0, 0, 272, 480);
}

// On a small screen one goes forth and back often.
void TestGCodeKeypad::pageKeyKeepsItsPlace()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    runPad([] {
        const QRect first = key(pad(), "page")->geometry();
        click(pad(), "page");
        QCOMPARE(key(pad(), "page")->geometry(), first);
    });
}

void TestGCodeKeypad::commentIsTypedOnTheSecondPage_data()
{
    addScreens();
}

void TestGCodeKeypad::commentIsTypedOnTheSecondPage()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText("G21");
    runPad([] {
        click(pad(), "; page space L small");
        QCOMPARE(key(pad(), "A")->text(), QString("a"));
        QCOMPARE(key(pad(), "small")->text(), QString("ABC"));
        click(pad(), "A Y E R");
        // Where the digits are on the first page, the second one shows capitals again.
        clickOnAnyPage(pad(), "2");
        if (!key(pad(), "A")->isVisible())
            click(pad(), "page small");
        click(pad(), "A small");
        clickOnAnyPage(pad(), "- B ok");
    });
    // Of what a comment says nothing is a word.
    QCOMPARE(caller.text(), QString("G21 ; Layer2a-B"));
}

void TestGCodeKeypad::pageIsTheFirstOneAgain()
{
    runPad([] { click(pad(), "page small A"); });
    runPad([] {
        QVERIFY(key(pad(), "7")->isVisible());
        QVERIFY(!key(pad(), "A")->isVisible());
        click(pad(), "G");
        QCOMPARE(value(pad())->text(), QString("G"));
    });
}

void TestGCodeKeypad::wordsStandApart_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("after");
    QTest::newRow("behind a digit") << ""
                                    << "G 0 1 X 1 0 Y - 2 . 5"
                                    << "G01 X10 Y-2.5";
    QTest::newRow("behind a point") << "X1."
                                    << "F 2"
                                    << "X1. F2";
    QTest::newRow("a blank that was typed is the one") << ""
                                                       << "G 1 space X 1"
                                                       << "G1 X1";
    QTest::newRow("a comment") << "G21"
                               << ";"
                               << "G21 ;";
    QTest::newRow("behind a letter") << "G"
                                     << "X"
                                     << "GX";
    QTest::newRow("in a comment") << "; 2"
                                  << "X"
                                  << "; 2X";
    QTest::newRow("in a comment with brackets") << "(2"
                                                << "X"
                                                << "(2X";
    QTest::newRow("in front of the line") << "X1"
                                          << "left left G 1"
                                          << "G1X1";
}

void TestGCodeKeypad::wordsStandApart()
{
    QFETCH(QString, before);
    QFETCH(QString, keys);
    QFETCH(QString, after);
    pad()->setText(before);
    runPad([&] {
        click(pad(), keys.toLatin1());
        QCOMPARE(value(pad())->text(), after);
    });
}

void TestGCodeKeypad::nextLineIsThereWhereItIsAllowed_data()
{
    addPages();
}

void TestGCodeKeypad::nextLineIsThereWhereItIsAllowed()
{
    QFETCH(QRect, screen);
    QFETCH(double, dotsPerInch);
    setScreen(screen, dotsPerInch);
    Caller plain;
    pad()->setObject(&plain);
    QRect ok;
    runPad([&] { ok = key(pad(), "ok")->geometry(); });
    LineCaller caller;
    pad()->setObject(&caller);
    runPad([&] {
        QVERIFY(key(pad(), "next")->isVisible());
        QCOMPARE(key(pad(), "next")->text(), QString("OK, next line"));
        // OK keeps its corner.
        QCOMPARE(key(pad(), "ok")->geometry().bottomRight(), ok.bottomRight());
        QVERIFY(ok.contains(key(pad(), "next")->geometry()));
        QCOMPARE(layoutFault(pad(), screen, 38), QString());
        click(pad(), "page");
        QVERIFY(key(pad(), "next")->isVisible());
        QCOMPARE(layoutFault(pad(), screen, 38), QString());
    });
    pad()->setObject(&plain);
    runPad([&] {
        QVERIFY(!key(pad(), "next")->isVisible());
        QCOMPARE(key(pad(), "ok")->geometry(), ok);
    });
}

void TestGCodeKeypad::nextLineIsToldBeforeTheText()
{
    LineCaller caller;
    pad()->setObject(&caller);
    QCOMPARE(runPad([] { click(pad(), "G 1 next"); }), 1);
    QCOMPARE(caller.text(), QString("G1"));
    QVERIFY(caller.wasAskedFor);

    caller.setProperty("hmiNextLineChosen", false);
    pad()->setObject(&caller);
    QCOMPARE(runPad([] { click(pad(), "ok"); }), 1);
    QVERIFY(!caller.wasAskedFor);
    QCOMPARE(caller.writes, 2);

    pad()->setObject(&caller);
    QCOMPARE(runPad([] { click(pad(), "cancel"); }), 0);
    QVERIFY(!caller.property("hmiNextLineChosen").toBool());
    QCOMPARE(caller.writes, 2);
}

void TestGCodeKeypad::nextLineIsGreyWhileTheTextIsRefused()
{
    LineCaller caller;
    QRegExpValidator validator(QRegExp(QLatin1String("[GM][0-9]+")), nullptr);
    pad()->setObject(&caller);
    pad()->setValidator(&validator);
    runPad([] {
        QVERIFY(!key(pad(), "next")->isEnabled());
        click(pad(), "G 0");
        QVERIFY(key(pad(), "next")->isEnabled());
    });
}

void TestGCodeKeypad::lineIsEdited()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setValidator(nullptr);
    pad()->setText(QLatin1String("G01 X10 Y5"));
    pad()->setLimitToolTip(QLatin1String("G01 X10 Y5"));
    const int result = runPad([] {
        QCOMPARE(value(pad())->text(), QString("G01 X10 Y5"));
        QVERIFY(!value(pad())->hasSelectedText());
        QCOMPARE(value(pad())->cursorPosition(), 10);
        click(pad(), "back - 2 . 5 space F 3 0 0");
        click(pad(), "left left left left left left left left left back Z right");
        QCOMPARE(value(pad())->cursorPosition(), 10);
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("G01 X10 Z-2.5 F300"));
    QCOMPARE(caller.writes, 1);
}

void TestGCodeKeypad::unchangedLineIsWrittenToo()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("  g1 x1 (a)  "));
    QCOMPARE(runPad([] { click(pad(), "ok"); }), 1);
    QCOMPARE(caller.text(), QString("  g1 x1 (a)  "));
    QCOMPARE(caller.writes, 1);
}

void TestGCodeKeypad::cancelLeavesThePropertyAlone()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("G01"));
    QCOMPARE(runPad([] { click(pad(), "clear cancel"); }), 0);
    QCOMPARE(runPad([] { QTest::keyClick(value(pad()), Qt::Key_Escape); }), 0);
    QCOMPARE(caller.writes, 0);
}

void TestGCodeKeypad::emptyLineWithEmptyHint()
{
    Caller caller;
    pad()->setObject(&caller);
    pad()->setText(QString());
    pad()->setLimitToolTip(QString());
    const int result = runPad([] {
        QCOMPARE(line(pad(), "oldValue"), QString("Was empty"));
        QVERIFY(line(pad(), "limit").isNull());
        click(pad(), "M 3 0 ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("M30"));
}

void TestGCodeKeypad::hintThatIsTheLineIsShownOnce()
{
    pad()->setLimitToolTip(QLatin1String("G01 X10"));
    pad()->setText(QLatin1String("G01 X10"));
    runPad([] {
        QCOMPARE(line(pad(), "oldValue"), QString("Was: G01 X10"));
        QVERIFY(line(pad(), "limit").isNull());
    });
}

void TestGCodeKeypad::otherHintIsShown()
{
    pad()->setLimitToolTip(QLatin1String("X 0 to 400"));
    pad()->setText(QLatin1String("G01 X10"));
    runPad([] { QCOMPARE(line(pad(), "limit"), QString("X 0 to 400")); });
}

void TestGCodeKeypad::longLineIsMadeSmaller()
{
    pad()->setText(QLatin1String("G01"));
    int large = 0;
    runPad([&] { large = value(pad())->fontMetrics().height(); });
    pad()->setText(QLatin1String("G01 X120.5 Y-33.25 Z4 F1200 ; layer 3 of 12, guide left"));
    runPad([&] {
        const QFontMetrics metrics = value(pad())->fontMetrics();
        QVERIFY(metrics.height() < large);
        QVERIFY(metrics.width(value(pad())->text()) < value(pad())->width());
        // Readable it stays, and then the line scrolls.
        value(pad())->setText(QString(500, QLatin1Char('X')));
        QVERIFY(value(pad())->fontMetrics().height() >= 14);
        click(pad(), "clear G");
        QCOMPARE(value(pad())->fontMetrics().height(), large);
    });
}

void TestGCodeKeypad::commentIsTypedOnTheKeyboard()
{
    Caller caller;
    pad()->setObject(&caller);
    const int result = runPad([] {
        QTest::keyClicks(value(pad()), QLatin1String("g1 x1,5 ; (slow)"));
        QTest::keyClick(value(pad()), Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("g1 x1,5 ; (slow)"));
}

void TestGCodeKeypad::validatorDecides()
{
    QRegExpValidator validator(QRegExp(QLatin1String("[GM][0-9]+")), nullptr);
    pad()->setValidator(&validator);
    runPad([] {
        QVERIFY(!key(pad(), "ok")->isEnabled());
        click(pad(), "G");
        QCOMPARE(line(pad(), "reason"), QString("Not complete"));
        click(pad(), "0");
        QVERIFY(key(pad(), "ok")->isEnabled());
        QCOMPARE(line(pad(), "reason"), QString(""));
    });
}

void TestGCodeKeypad::nothingIsLeftForTheNextCaller()
{
    Caller caller;
    QRegExpValidator validator(QRegExp(QLatin1String("[GM][0-9]+")), nullptr);
    pad()->setObject(&caller);
    pad()->setValidator(&validator);
    pad()->setText(QLatin1String("G1"));
    pad()->setLimitToolTip(QLatin1String("a G or an M"));
    runPad([] { click(pad(), "cancel"); });
    const int result = runPad([] {
        QCOMPARE(value(pad())->text(), QString(""));
        QVERIFY(line(pad(), "limit").isNull());
        QVERIFY(line(pad(), "reason").isNull());
        click(pad(), "X ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.writes, 0);
}

void TestGCodeKeypad::callerMayVanish()
{
    std::unique_ptr<Caller> caller(new Caller);
    pad()->setObject(caller.get());
    pad()->setText(QLatin1String("G01"));
    QCOMPARE(runPad([&] {
                 caller.reset();
                 click(pad(), "ok");
             }),
             1);
}

void TestGCodeKeypad::staysOnTheScreen_data()
{
    addScreens();
}

void TestGCodeKeypad::staysOnTheScreen()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    const QString text = QLatin1String("G01 X120.5 Y-33.25 Z4 F1200 ; layer 3 of 12, guide left");
    QRegExpValidator validator(QRegExp(QLatin1String("G.*")), nullptr);
    Q_FOREACH (const QString &hint, QStringList()
                                        << text << QLatin1String("X 0 to 400") << text + text) {
        pad()->setText(text);
        pad()->setLimitToolTip(hint);
        pad()->setValidator(&validator);
        runPad([&] { QCOMPARE(layoutFault(pad(), screen, 38), QString()); });
    }
}

FILARIX_TEST_MAIN(TestGCodeKeypad)

#include "tst_gcodekeypad.moc"
