// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds KeypadPlace and KeypadFace, by way of the keypads.

#include "keypadtest.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/numerickeypad.h>

/// A keypad leaves in view what it edits, where the screen has room for both.
class TestKeypadPlace : public KeypadTest
{
    Q_OBJECT

private Q_SLOTS:
    void editedRowStaysInView_data();
    void editedRowStaysInView();
    void withoutAPlaceItStandsAtTheBottom();
    void wishGivesWayToTheRow();
    void visibleFieldIsKeptInView();
    void windowIsNoRow();
    void rowThatLeavesNoRoomChangesNothing_data();
    void rowThatLeavesNoRoomChangesNothing();
    void lowScreenIsCoveredWhole();
    void nothingIsLeftForTheNextCaller();
    void flatKeysTypeAll();
    void otherKeypadsGoAboveTheRowToo_data();
    void otherKeypadsGoAboveTheRowToo();

private:
    static NumericKeypad *pad() { return NumericKeypad::instance(); }
    static int runPad(const std::function<void()> &step) { return run(pad(), step); }
    static QRect placeFor(const QRect &edited);
};

/// Where the numeric keypad goes, of the size that the library's fields wish.
QRect TestKeypadPlace::placeFor(const QRect &edited)
{
    Caller caller;
    caller.setProperty("hmiEditedRect", edited);
    pad()->setObject(&caller);
    pad()->resize(800, 480);
    QRect place;
    runPad([&] { place = pad()->geometry(); });
    return place;
}

void TestKeypadPlace::editedRowStaysInView_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("800x480") << QRect(0, 0, 800, 480);
    QTest::newRow("480x800") << QRect(0, 0, 480, 800);
    QTest::newRow("1024x600") << QRect(0, 0, 1024, 600);
    QTest::newRow("1280x800") << QRect(0, 0, 1280, 800);
    QTest::newRow("a panel's window on a desktop") << QRect(300, 120, 800, 480);
}

// Whatever row of a list it is.
void TestKeypadPlace::editedRowStaysInView()
{
    QFETCH(QRect, screen);
    setScreen(screen);
    const int rowHeight = 44;
    for (int top = 0; top + rowHeight <= screen.height(); top += 22) {
        const QRect row(screen.left(), screen.top() + top, screen.width(), rowHeight);
        Caller caller;
        caller.setProperty("hmiEditedRect", row);
        caller.setProperty("hmiName", QLatin1String("N5 Tension"));
        caller.setProperty("hmiMinimum", 0.5);
        caller.setProperty("hmiMaximum", 8.5);
        pad()->setObject(&caller);
        pad()->setText(QLatin1String("9"));
        pad()->resize(800, 480);
        runPad([&] {
            QVERIFY2(!pad()->geometry().intersects(row), QByteArray::number(top).constData());
            QCOMPARE(layoutFault(pad(), screen, 47), QString());
        });
    }
}

void TestKeypadPlace::withoutAPlaceItStandsAtTheBottom()
{
    setScreen(QRect(0, 0, 1280, 800));
    QCOMPARE(placeFor(QRect()), QRect(240, 320, 800, 480));
    // A row that it does not cover changes nothing.
    QCOMPARE(placeFor(QRect(0, 0, 1280, 320)), QRect(240, 320, 800, 480));
}

void TestKeypadPlace::wishGivesWayToTheRow()
{
    setScreen(QRect(0, 0, 1280, 800));
    // Above, as large as was wished.
    QCOMPARE(placeFor(QRect(0, 500, 1280, 50)), QRect(240, 0, 800, 480));
    // Lower below, where there is the most room.
    QCOMPARE(placeFor(QRect(0, 380, 1280, 20)), QRect(240, 400, 800, 400));
    QCOMPARE(placeFor(QRect(0, 420, 1280, 20)), QRect(240, 0, 800, 420));
}

void TestKeypadPlace::visibleFieldIsKeptInView()
{
    setScreen(QRect(0, 0, 800, 480));
    QWidget window;
    window.setGeometry(0, 0, 800, 480);
    QLineEdit field(&window);
    field.setGeometry(100, 400, 200, 40);
    window.show();
    const QRect place(field.mapToGlobal(QPoint(0, 0)), field.size());
    pad()->setObject(&field);
    pad()->resize(800, 480);
    runPad([&] { QVERIFY(!pad()->geometry().intersects(place)); });

    // What the host names has the first word.
    const QRect row(0, 0, 800, 60);
    field.setProperty("hmiEditedRect", row);
    pad()->setObject(&field);
    pad()->resize(800, 480);
    runPad([&] { QVERIFY(!pad()->geometry().intersects(row)); });

    field.setProperty("hmiEditedRect", QVariant());
    field.hide();
    pad()->setObject(&field);
    pad()->resize(800, 480);
    runPad([&] { QCOMPARE(pad()->geometry(), QRect(0, 0, 800, 480)); });
}

void TestKeypadPlace::windowIsNoRow()
{
    setScreen(QRect(0, 0, 1024, 600));
    QWidget window;
    window.setGeometry(0, 0, 1024, 600);
    window.show();
    QRect own;
    runPad([&] { own = pad()->geometry(); });
    pad()->setObject(&window);
    runPad([&] { QCOMPARE(pad()->geometry(), own); });
}

void TestKeypadPlace::rowThatLeavesNoRoomChangesNothing_data()
{
    QTest::addColumn<QRect>("edited");
    QTest::newRow("all of the screen") << QRect(0, 0, 800, 480);
    QTest::newRow("most of it") << QRect(0, 100, 800, 300);
    QTest::newRow("beyond it") << QRect(-100, -100, 2000, 2000);
    QTest::newRow("elsewhere") << QRect(0, 900, 800, 40);
}

void TestKeypadPlace::rowThatLeavesNoRoomChangesNothing()
{
    QFETCH(QRect, edited);
    setScreen(QRect(0, 0, 800, 480));
    QCOMPARE(placeFor(edited), QRect(0, 0, 800, 480));
}

void TestKeypadPlace::lowScreenIsCoveredWhole()
{
    setScreen(QRect(0, 0, 480, 272));
    Caller caller;
    caller.setProperty("hmiEditedRect", QRect(0, 0, 480, 40));
    caller.setProperty("hmiName", QLatin1String("N5 Tension"));
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("6.0"));
    runPad([] {
        QCOMPARE(pad()->geometry(), QRect(0, 0, 480, 272));
        // What the row would say.
        QCOMPARE(line(pad(), "title"), QString("N5 Tension"));
        QCOMPARE(line(pad(), "oldValue"), QString("Was: 6.0"));
        QCOMPARE(value(pad())->text(), QString("6.0"));
    });
}

void TestKeypadPlace::nothingIsLeftForTheNextCaller()
{
    setScreen(QRect(0, 0, 800, 480));
    QRect own;
    runPad([&] { own = pad()->geometry(); });
    QVERIFY(placeFor(QRect(0, 210, 800, 40)) != own);
    runPad([&] {
        QCOMPARE(pad()->geometry(), own);
        QCOMPARE(layoutFault(pad(), QRect(0, 0, 800, 480), 48), QString());
    });
}

void TestKeypadPlace::flatKeysTypeAll()
{
    setScreen(QRect(0, 0, 800, 480));
    Caller caller;
    caller.setProperty("hmiEditedRect", QRect(0, 210, 800, 40));
    pad()->setObject(&caller);
    pad()->setText(QLatin1String("1"));
    const int result = runPad([] {
        QVERIFY(pad()->height() <= 240);
        click(pad(), "clear 1 2 3 4 5 6 7 8 9 . 0 left back right sign");
        QCOMPARE(value(pad())->text(), QString("-1234567890"));
        click(pad(), "ok");
    });
    QCOMPARE(result, 1);
    QCOMPARE(caller.text(), QString("-1234567890"));
}

void TestKeypadPlace::otherKeypadsGoAboveTheRowToo_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("row");
    QTest::newRow("low row") << QRect(0, 0, 800, 480) << QRect(0, 430, 800, 44);
    QTest::newRow("upright") << QRect(0, 0, 480, 800) << QRect(0, 700, 480, 44);
    QTest::newRow("high row") << QRect(0, 0, 800, 480) << QRect(0, 60, 800, 44);
}

void TestKeypadPlace::otherKeypadsGoAboveTheRowToo()
{
    QFETCH(QRect, screen);
    QFETCH(QRect, row);
    setScreen(screen);
    Caller caller;
    caller.setProperty("hmiEditedRect", row);
    CharacterKeypad::instance()->setObject(&caller);
    CharacterKeypad::instance()->resize(screen.size());
    GCodeKeypad::instance()->setObject(&caller);
    Q_FOREACH (QDialog *keypad, QList<QDialog *>()
                                    << CharacterKeypad::instance() << GCodeKeypad::instance()) {
        run(keypad, [&] {
            QVERIFY(!keypad->geometry().intersects(row));
            QCOMPARE(layoutFault(keypad, screen, 38), QString());
        });
    }
}

FILARIX_TEST_MAIN(TestKeypadPlace)

#include "tst_keypadplace.moc"
