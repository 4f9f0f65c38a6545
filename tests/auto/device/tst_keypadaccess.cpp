// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds KeypadAccess, StaticText and KeyNames, by way of the keypads.

#include "keypadtest.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QIntValidator>

/// What a screen reader learns of the keypads.
class TestKeypadAccess : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPartHasANameAndARole_data();
    void everyPartHasANameAndARole();
    void keysAreCalledByWords_data();
    void keysAreCalledByWords();
    void stateOfTheKeysIsTold();
    void pagesAreTold();
    void linesAreRead();
    void namesGoWithTheLanguage();

private:
    static QString nameOf(QWidget *widget)
    {
        return TestCompat::accessibleText(widget, QAccessible::Name);
    }
};

void TestKeypadAccess::everyPartHasANameAndARole_data()
{
    QTest::addColumn<int>("keypad");
    QTest::addColumn<QString>("before");
    QTest::newRow("numbers") << 0 << QString();
    QTest::newRow("letters") << 1 << QString();
    QTest::newRow("symbols") << 1 << QString::fromLatin1("symbols");
    QTest::newRow("G-code") << 2 << QString();
    QTest::newRow("G-code, all letters") << 2 << QString::fromLatin1("page");
    QTest::newRow("G-code, small letters") << 2 << QString::fromLatin1("page small");
}

void TestKeypadAccess::everyPartHasANameAndARole()
{
    QFETCH(int, keypad);
    QFETCH(QString, before);
    QDialog *const keypads[] = {NumericKeypad::instance(), CharacterKeypad::instance(),
                                GCodeKeypad::instance()};
    QDialog *pad = keypads[keypad];
    run(pad, [&] {
        if (!before.isEmpty())
            click(pad, before.toLatin1());
        QVERIFY(!nameOf(pad).isEmpty());
        Q_FOREACH (QAbstractButton *button, pad->findChildren<QAbstractButton *>()) {
            const QString name = nameOf(button);
            // A letter, a digit, or words; never a sign, which a reader passes over.
            QVERIFY2(!name.isEmpty() && name.at(0).isLetterOrNumber(),
                     qPrintable(button->objectName()));
            if (TestCompat::widgetsHaveRoles())
                QCOMPARE(TestCompat::accessibleRole(button), QAccessible::PushButton);
        }
        QCOMPARE(nameOf(value(pad)), line(pad, "title"));
        QVERIFY(!nameOf(value(pad)).isEmpty());
        if (TestCompat::widgetsHaveRoles())
            QCOMPARE(TestCompat::accessibleRole(value(pad)), QAccessible::EditableText);
    });
}

void TestKeypadAccess::keysAreCalledByWords_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("name");
    QTest::newRow("digit") << "7"
                           << "7";
    QTest::newRow("backspace") << "back"
                               << "Backspace";
    QTest::newRow("cursor") << "left"
                            << "Cursor left";
    QTest::newRow("accept") << "ok"
                            << "OK";
    QTest::newRow("cancel") << "cancel"
                            << "Cancel";
    QTest::newRow("sign") << "sign"
                          << "Change the sign";
    QTest::newRow("point") << "."
                           << "Point";
}

void TestKeypadAccess::keysAreCalledByWords()
{
    QFETCH(QString, token);
    QFETCH(QString, name);
    QDialog *pad = NumericKeypad::instance();
    run(pad, [&] { QCOMPARE(nameOf(key(pad, token.toLatin1())), name); });
}

void TestKeypadAccess::stateOfTheKeysIsTold()
{
    QDialog *pad = CharacterKeypad::instance();
    run(pad, [&] {
        QCOMPARE(nameOf(key(pad, "shift")), QString("Shift"));
        QCOMPARE(nameOf(key(pad, "_")), QString("Underscore"));
        click(pad, "shift");
        QCOMPARE(nameOf(key(pad, "shift")), QString("Shift, for one letter"));
        QCOMPARE(nameOf(key(pad, "q")), QString("Q"));
        click(pad, "shift");
        QCOMPARE(nameOf(key(pad, "shift")), QString("Shift, locked"));
        click(pad, "shift symbols");
        QCOMPARE(nameOf(key(pad, "symbols")), QString("Letters"));
        QCOMPARE(nameOf(key(pad, "q")), QString("Exclamation mark"));
        click(pad, "symbols");
        QCOMPARE(nameOf(key(pad, "symbols")), QString("Symbols"));
        QCOMPARE(nameOf(key(pad, "q")), QString("q"));
    });
}

void TestKeypadAccess::pagesAreTold()
{
    Caller caller;
    caller.setProperty("hmiNextLine", true);
    GCodeKeypad *pad = GCodeKeypad::instance();
    pad->setObject(&caller);
    run(pad, [&] {
        QCOMPARE(nameOf(key(pad, "page")), QString("Letters"));
        QCOMPARE(nameOf(key(pad, "next")), QString("OK, next line"));
        click(pad, "page");
        QCOMPARE(nameOf(key(pad, "page")), QString("Words of a line"));
        QCOMPARE(nameOf(key(pad, "small")), QString("Small letters"));
        click(pad, "small");
        QCOMPARE(nameOf(key(pad, "small")), QString("Capitals"));
        QCOMPARE(nameOf(key(pad, "Q")), QString("q"));
    });
    setScreen(QRect(0, 0, 480, 272));
    run(CharacterKeypad::instance(), [] {
        QDialog *characters = CharacterKeypad::instance();
        QCOMPARE(nameOf(key(characters, "digits")), QString("Digits and signs"));
        click(characters, "digits");
        QCOMPARE(nameOf(key(characters, "digits")), QString("Letters"));
        QCOMPARE(nameOf(key(characters, "(")), QString("Left parenthesis"));
    });
}

void TestKeypadAccess::linesAreRead()
{
    Caller caller;
    caller.setProperty("hmiName", QLatin1String("Turns"));
    caller.setProperty("hmiMaximum", 20);
    caller.setProperty("hmiHint", QLatin1String("of the first layer"));
    NumericKeypad *pad = NumericKeypad::instance();
    pad->setObject(&caller);
    pad->setText(QLatin1String("99"));
    pad->setLimitToolTip(QLatin1String("see the wire"));
    run(pad, [&] {
        const struct
        {
            const char *part;
            const char *text;
        } parts[] = {{"title", "Turns, at most 20"},
                     {"hint", "of the first layer"},
                     {"oldValue", "Was: 99"},
                     {"limit", "see the wire"},
                     {"reason", "At most 20"}};
        for (const auto &part : parts) {
            QWidget *label = pad->findChild<QWidget *>(QLatin1String(part.part));
            QCOMPARE(nameOf(label), QString(part.text));
            QCOMPARE(TestCompat::accessibleRole(label), QAccessible::StaticText);
        }
        QCOMPARE(value(pad)->accessibleDescription(), QString("At most 20"));
        click(pad, "7");
        QCOMPARE(value(pad)->accessibleDescription(), QString());
        QCOMPARE(nameOf(pad), QString("Turns, at most 20"));
    });
}

void TestKeypadAccess::namesGoWithTheLanguage()
{
    QDialog *pad = NumericKeypad::instance();
    run(pad, [&] {
        const TestCompat::MarkingTranslator frame("KeypadFrame");
        const TestCompat::MarkingTranslator names("KeyNames");
        QApplication::processEvents();
        QCOMPARE(nameOf(key(pad, "back")), QString("Backspace*"));
        QCOMPARE(nameOf(key(pad, "sign")), QString("Change the sign*"));
        QCOMPARE(nameOf(key(pad, ".")), QString("Point*"));
        QCOMPARE(nameOf(value(pad)), QString("Number*"));
    });
}

FILARIX_TEST_MAIN(TestKeypadAccess)

#include "tst_keypadaccess.moc"
