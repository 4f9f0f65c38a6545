// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds KeypadDialog, KeypadFrame, KeypadLayout, KeypadLabel, KeypadCheck, KeyButton and ValueEdit,
// by way of the three keypads.

#include "keypadtest.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QIntValidator>

/// What an operator finds on each of the three keypads.
class TestKeypads : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void headStandsAboveTheKeys_data();
    void headStandsAboveTheKeys();
    void keysOfEditingAreThere_data();
    void keysOfEditingAreThere();
    void everyKeyShowsThatItIsPressed_data();
    void everyKeyShowsThatItIsPressed();
    void heldKeyRepeats_data();
    void heldKeyRepeats();
    void placeOfTypingStaysInView_data();
    void placeOfTypingStaysInView();
    void keyboardTypesAcceptsAndCancels_data();
    void keyboardTypesAcceptsAndCancels();
    void refusedTextMakesOkGreyAndAWordSaysWhy_data();
    void refusedTextMakesOkGreyAndAWordSaysWhy();

private:
    static const char *const kinds[];
    static QDialog *keypad(const QString &kind);
    static void setText(const QString &kind, const QString &text);
    static void addKinds();
    static void addKindsAndScreens();
    static bool isWhollyShown(QWidget *label);
    static bool isCursorInView(QLineEdit *edit);
};

const char *const TestKeypads::kinds[] = {"numeric", "character", "gcode"};

QDialog *TestKeypads::keypad(const QString &kind)
{
    if (kind == QLatin1String("numeric"))
        return NumericKeypad::instance();
    if (kind == QLatin1String("character"))
        return CharacterKeypad::instance();
    return GCodeKeypad::instance();
}

void TestKeypads::setText(const QString &kind, const QString &text)
{
    if (kind == QLatin1String("numeric"))
        NumericKeypad::instance()->setText(text);
    else if (kind == QLatin1String("character"))
        CharacterKeypad::instance()->setText(text);
    else
        GCodeKeypad::instance()->setText(text);
}

void TestKeypads::addKinds()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : kinds)
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestKeypads::addKindsAndScreens()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QRect>("screen");
    const QSize sizes[] = {QSize(480, 272), QSize(272, 480),  QSize(480, 800),
                           QSize(800, 480), QSize(1024, 600), QSize(1280, 800)};
    for (const char *kind : kinds) {
        for (const QSize &size : sizes) {
            const QString name = QString::fromLatin1("%1 %2x%3")
                                     .arg(QLatin1String(kind))
                                     .arg(size.width())
                                     .arg(size.height());
            QTest::newRow(qPrintable(name)) << QString::fromLatin1(kind) << QRect(QPoint(), size);
        }
    }
}

/// A text whose end is cut off looks like that with more behind it.
bool TestKeypads::isWhollyShown(QWidget *label)
{
    const QImage shown = TestCompat::grab(label).toImage();
    const QString text = label->property("text").toString();
    label->setProperty("text", text + text);
    const QImage longer = TestCompat::grab(label).toImage();
    label->setProperty("text", text);
    return longer != shown;
}

/// A line edit scrolls when it paints itself.
bool TestKeypads::isCursorInView(QLineEdit *edit)
{
    TestCompat::grab(edit);
    return edit->rect().contains(edit->inputMethodQuery(Qt::ImMicroFocus).toRect());
}

void TestKeypads::headStandsAboveTheKeys_data()
{
    addKindsAndScreens();
}

void TestKeypads::headStandsAboveTheKeys()
{
    QFETCH(QString, kind);
    QFETCH(QRect, screen);
    setScreen(screen);
    setText(kind, QLatin1String("1"));
    const QString limit = QLatin1String(" min:-120.5, max:500.25");
    const bool hasLimit = kind != QLatin1String("character");
    if (kind == QLatin1String("numeric"))
        NumericKeypad::instance()->setLimitToolTip(limit);
    else if (hasLimit)
        GCodeKeypad::instance()->setLimitToolTip(limit);
    QDialog *pad = keypad(kind);
    run(pad, [&] {
        QCOMPARE(layoutFault(pad, screen, 38), QString());
        QWidget *old = pad->findChild<QWidget *>(QLatin1String("oldValue"));
        QWidget *hint = pad->findChild<QWidget *>(QLatin1String("limit"));
        QVERIFY(old->isVisible());
        QVERIFY(old->geometry().bottom() < value(pad)->geometry().top());
        QCOMPARE(hint->isVisible(), hasLimit);
        if (hasLimit) {
            QCOMPARE(hint->geometry().top(), old->geometry().top());
            QVERIFY(isWhollyShown(hint));
        }
        Q_FOREACH (QAbstractButton *button, pad->findChildren<QAbstractButton *>())
            QVERIFY(!button->isVisible()
                    || button->geometry().top() > value(pad)->geometry().bottom());
    });
}

void TestKeypads::keysOfEditingAreThere_data()
{
    addKindsAndScreens();
}

void TestKeypads::keysOfEditingAreThere()
{
    QFETCH(QString, kind);
    QFETCH(QRect, screen);
    setScreen(screen);
    QDialog *pad = keypad(kind);
    Caller caller;
    if (kind == QLatin1String("numeric"))
        NumericKeypad::instance()->setObject(&caller);
    else if (kind == QLatin1String("character"))
        CharacterKeypad::instance()->setObject(&caller);
    else
        GCodeKeypad::instance()->setObject(&caller);
    setText(kind, QLatin1String("9"));
    const int result = run(pad, [&] {
        clickOnAnyPage(pad, "clear 1 2 3 left left 4 right 5 back 6 right right right back");
        QCOMPARE(value(pad)->text(), QString("1426"));
        click(pad, "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("1426"));
    QCOMPARE(run(pad, [&] { clickOnAnyPage(pad, "1 cancel"); }), 0);
    QCOMPARE(caller.writes, 1);
}

void TestKeypads::everyKeyShowsThatItIsPressed_data()
{
    addKinds();
}

void TestKeypads::everyKeyShowsThatItIsPressed()
{
    QFETCH(QString, kind);
    QDialog *pad = keypad(kind);
    run(pad, [&] {
        Q_FOREACH (QAbstractButton *button, pad->findChildren<QAbstractButton *>()) {
            const QImage released = TestCompat::grab(button).toImage();
            button->setDown(true);
            const QImage pressed = TestCompat::grab(button).toImage();
            button->setDown(false);
            const QPoint face(button->width() / 2, 5);
            QVERIFY2(pressed.pixel(face) != released.pixel(face), qPrintable(button->objectName()));
        }
    });
}

void TestKeypads::heldKeyRepeats_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("held");
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("cursor");
    QTest::newRow("backspace of the character keypad") << "character"
                                                       << "back" << 3 << 3;
    QTest::newRow("backspace of the G-code keypad") << "gcode"
                                                    << "back" << 3 << 3;
    QTest::newRow("cursor of the G-code keypad") << "gcode"
                                                 << "left" << 6 << 3;
    QTest::newRow("blank of the character keypad") << "character"
                                                   << "space" << 9 << 9;
}

void TestKeypads::heldKeyRepeats()
{
    QFETCH(QString, kind);
    QFETCH(QString, held);
    QFETCH(int, text);
    QFETCH(int, cursor);
    QDialog *pad = keypad(kind);
    setText(kind, QLatin1String("123456"));
    run(pad, [&] {
        QAbstractButton *button = key(pad, held.toLatin1());
        QTest::mousePress(button, Qt::LeftButton);
        QTRY_VERIFY(value(pad)->text().length() == text && value(pad)->cursorPosition() == cursor);
        QTest::mouseRelease(button, Qt::LeftButton);
    });
}

void TestKeypads::placeOfTypingStaysInView_data()
{
    addKindsAndScreens();
}

// However long the text is and wherever in it the operator types.
void TestKeypads::placeOfTypingStaysInView()
{
    QFETCH(QString, kind);
    QFETCH(QRect, screen);
    setScreen(screen);
    QDialog *pad = keypad(kind);
    setText(kind, QString(200, QLatin1Char('8')));
    run(pad, [&] {
        QLineEdit *edit = value(pad);
        clickOnAnyPage(pad, "right 1");
        QVERIFY(isCursorInView(edit));
        for (int i = 0; i < 120; ++i) {
            click(pad, "left");
            QVERIFY(isCursorInView(edit));
        }
        click(pad, "7");
        QVERIFY(isCursorInView(edit));
    });
}

void TestKeypads::keyboardTypesAcceptsAndCancels_data()
{
    addKinds();
}

void TestKeypads::keyboardTypesAcceptsAndCancels()
{
    QFETCH(QString, kind);
    QDialog *pad = keypad(kind);
    int result = run(pad, [&] {
        // To whatever has the focus, which a touch of a key leaves where it is.
        click(pad, "1");
        QWidget *focus = pad->focusWidget();
        QTest::keyClicks(focus, QLatin1String("-2.3"));
        QTest::keyClick(focus, Qt::Key_Home);
        QTest::keyClick(focus, Qt::Key_Delete);
        QTest::keyClick(focus, Qt::Key_End);
        QTest::keyClick(focus, Qt::Key_Backspace);
        QCOMPARE(value(pad)->text(), QString("-2."));
        QTest::keyClick(focus, Qt::Key_Return);
    });
    QCOMPARE(result, 1);
    result = run(pad, [&] { QTest::keyClick(pad->focusWidget(), Qt::Key_Escape); });
    QCOMPARE(result, 0);
}

void TestKeypads::refusedTextMakesOkGreyAndAWordSaysWhy_data()
{
    addKindsAndScreens();
}

void TestKeypads::refusedTextMakesOkGreyAndAWordSaysWhy()
{
    QFETCH(QString, kind);
    QFETCH(QRect, screen);
    setScreen(screen);
    QDialog *pad = keypad(kind);
    QIntValidator validator(1, 20, nullptr);
    if (kind == QLatin1String("numeric"))
        NumericKeypad::instance()->setValidator(&validator);
    else if (kind == QLatin1String("character"))
        CharacterKeypad::instance()->setValidator(&validator);
    else
        GCodeKeypad::instance()->setValidator(&validator);
    setText(kind, QLatin1String("99"));
    run(pad, [&] {
        QVERIFY(!key(pad, "ok")->isEnabled());
        QCOMPARE(line(pad, "reason"), QString("At most 20"));
        QCOMPARE(layoutFault(pad, screen, 38), QString());
        const QImage grey = TestCompat::grab(key(pad, "ok")).toImage();
        clickOnAnyPage(pad, "clear 9");
        QVERIFY(key(pad, "ok")->isEnabled());
        QCOMPARE(line(pad, "reason"), QString(""));
        QVERIFY(TestCompat::grab(key(pad, "ok")).toImage() != grey);
    });
}

FILARIX_TEST_MAIN(TestKeypads)

#include "tst_keypads.moc"
