// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "base/clickgate.h"
#include "filarixtest.h"
#include "modaldriver.h"
#include "signalhook.h"

#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

class TestClickGate : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void holdsEachWayToPress_data();
    void holdsEachWayToPress();
    void fingerThatSlidesOffIsNoClick();
    void lostFocusIsNoClick();
    void letsThroughWithoutAHolder();
    void clicksWhileHoldingCountForNothing();
    void droppedClickNeverWas();
    void disabledButtonDoesNotPass();
    void clickInsideAPassingOneIsHeld();
    void buttonMayGoWhileItIsHeld();
    void holdsTheButtonsOfMessageBoxes();
    void clickWaitsForTheDialogAboveIt();
};

typedef void (*Press)(QDialog *dialog, QPushButton *button);
Q_DECLARE_METATYPE(Press)

void TestClickGate::holdsEachWayToPress_data()
{
    QTest::addColumn<Press>("press");
    QTest::newRow("touch") << Press(
        [](QDialog *, QPushButton *button) { QTest::mouseClick(button, Qt::LeftButton); });
    QTest::newRow("Return in a field") << Press([](QDialog *dialog, QPushButton *) {
        QTest::keyClick(dialog->findChild<QLineEdit *>(), Qt::Key_Return);
    });
    QTest::newRow("Space on the button")
        << Press([](QDialog *, QPushButton *button) { QTest::keyClick(button, Qt::Key_Space); });
    QTest::newRow("shortcut") << Press([](QDialog *dialog, QPushButton *) {
        QTest::keyClick(dialog, Qt::Key_K, Qt::AltModifier);
    });
    QTest::newRow("program") << Press([](QDialog *, QPushButton *button) { button->click(); });
    QTest::newRow("animated") << Press(
        [](QDialog *, QPushButton *button) { button->animateClick(1); });
}

void TestClickGate::holdsEachWayToPress()
{
    QFETCH(Press, press);
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    QLineEdit field;
    QPushButton button("O&K");
    layout.addWidget(&field);
    layout.addWidget(&button);
    button.setDefault(true);
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    ClickGate *gate = new ClickGate(&button);
    QSignalSpy passed(gate, SIGNAL(passed()));
    int held = 0;
    gate->onClick([&held] { ++held; });
    dialog.show();
    QVERIFY(TestCompat::waitForExposed(&dialog));
    dialog.activateWindow();
    QTRY_VERIFY(dialog.isActiveWindow());

    press(&dialog, &button);
    QTRY_COMPARE(held, 1);
    QVERIFY(gate->isHolding());
    QCOMPARE(clicked.count(), 0);

    gate->pass();
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(passed.count(), 1);
    QVERIFY(!gate->isHolding());

    // And the next one is held again.
    press(&dialog, &button);
    QTRY_COMPARE(held, 2);
    QCOMPARE(clicked.count(), 1);
}

void TestClickGate::fingerThatSlidesOffIsNoClick()
{
    QPushButton button("OK");
    button.resize(80, 40);
    ClickGate *gate = new ClickGate(&button);
    int held = 0;
    gate->onClick([&held] { ++held; });
    button.show();
    QVERIFY(TestCompat::waitForExposed(&button));
    QSignalSpy released(&button, SIGNAL(released()));
    QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(40, 20));
    QMouseEvent away(QEvent::MouseMove, QPoint(300, 300), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&button, &away);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(300, 300));
    QCoreApplication::processEvents();
    QCOMPARE(held, 0);
    QVERIFY(!button.signalsBlocked());

    QTest::mouseClick(&button, Qt::LeftButton);
    QTRY_COMPARE(held, 1);
}

void TestClickGate::lostFocusIsNoClick()
{
    QPushButton button("OK");
    ClickGate *gate = new ClickGate(&button);
    int held = 0;
    gate->onClick([&held] { ++held; });
    button.show();
    QTest::keyPress(&button, Qt::Key_Space);
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(&button, &out);
    QCoreApplication::processEvents();
    QCOMPARE(held, 0);
    // A click right behind it is one.
    button.click();
    QTRY_COMPARE(held, 1);
}

void TestClickGate::letsThroughWithoutAHolder()
{
    QPushButton button("OK");
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    new ClickGate(&button);
    button.click();
    QCOMPARE(clicked.count(), 1);
}

void TestClickGate::clicksWhileHoldingCountForNothing()
{
    QPushButton button("OK");
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    ClickGate *gate = new ClickGate(&button);
    int held = 0;
    gate->onClick([&held] { ++held; });
    button.click();
    button.click();
    QTRY_COMPARE(held, 1);
    button.click();
    QCoreApplication::processEvents();
    gate->pass();
    gate->pass();
    QTRY_COMPARE(clicked.count(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(held, 1);
    QCOMPARE(clicked.count(), 1);
}

void TestClickGate::droppedClickNeverWas()
{
    QPushButton button("OK");
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    ClickGate *gate = new ClickGate(&button);
    gate->onClick([gate] { gate->drop(); });
    button.click();
    QTRY_VERIFY(!gate->isHolding());
    gate->pass();
    QCoreApplication::processEvents();
    QCOMPARE(clicked.count(), 0);
}

void TestClickGate::disabledButtonDoesNotPass()
{
    QPushButton button("OK");
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    ClickGate *gate = new ClickGate(&button);
    QSignalSpy passed(gate, SIGNAL(passed()));
    gate->onClick([gate, &button] {
        button.setEnabled(false);
        gate->pass();
    });
    button.click();
    QTRY_VERIFY(!gate->isHolding());
    QCoreApplication::processEvents();
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(passed.count(), 0);
    // The click that could not pass lets no other one through.
    button.setEnabled(true);
    gate->onClick([] {});
    button.click();
    QTRY_VERIFY(gate->isHolding());
    QCOMPARE(clicked.count(), 0);
}

void TestClickGate::clickInsideAPassingOneIsHeld()
{
    QPushButton button("OK");
    int clicks = 0;
    SignalHook hook(&button, SIGNAL(clicked()), [&] {
        ++clicks;
        button.click();
        QCoreApplication::processEvents();
    });
    ClickGate *gate = new ClickGate(&button);
    int held = 0;
    gate->onClick([&] {
        if (++held == 1)
            gate->pass();
    });
    button.click();
    QTRY_COMPARE(held, 2);
    QCOMPARE(clicks, 1);
    QVERIFY(gate->isHolding());
}

void TestClickGate::buttonMayGoWhileItIsHeld()
{
    QScopedPointer<QPushButton> button(new QPushButton("OK"));
    ClickGate *gate = new ClickGate(button.data());
    gate->onClick([gate] { gate->pass(); });
    button->click();
    QTRY_VERIFY(gate->isHolding());
    button.reset();
    QCoreApplication::processEvents();

    // Or by its own click.
    button.reset(new QPushButton("OK"));
    gate = new ClickGate(button.data());
    gate->onClick([gate] { gate->pass(); });
    QPushButton *const own = button.data();
    bool gone = false;
    SignalHook hook(own, SIGNAL(clicked()), [&] {
        button.reset();
        gone = true;
    });
    own->click();
    QTRY_VERIFY(gone);
}

void TestClickGate::holdsTheButtonsOfMessageBoxes()
{
    ModalDriver driver;
    driver.then([](QWidget *widget) {
        QMessageBox *box = qobject_cast<QMessageBox *>(widget);
        ClickGate *gate = new ClickGate(box->button(QMessageBox::Yes));
        gate->onClick([] {});
        QTest::mouseClick(gate->button(), Qt::LeftButton);
        QCoreApplication::processEvents();
        QVERIFY(box->isVisible());
        QVERIFY(gate->isHolding());
        gate->pass();
    });
    QCOMPARE(
        QMessageBox::question(nullptr, "Remove", "Remove a?", QMessageBox::Yes | QMessageBox::No),
        QMessageBox::Yes);
}

// What a click does would open another dialog over it, and the keypad of one over its own.
void TestClickGate::clickWaitsForTheDialogAboveIt()
{
    QPushButton button("Open");
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    ClickGate *gate = new ClickGate(&button);
    int held = 0;
    gate->onClick([&held] { ++held; });
    button.show();
    button.click();
    QTRY_COMPARE(held, 1);
    QTimer looks;
    int turns = 0;
    QDialog dialog;
    const SignalHook hook(&looks, SIGNAL(timeout()), [&] {
        if (++turns == 10)
            dialog.accept();
    });
    gate->pass();
    looks.start(20);
    dialog.exec();
    QCOMPARE(turns, 10);
    QCOMPARE(clicked.size(), 0);
    QCOMPARE(held, 1);
    // What the dialog changed is seen to first.
    QTRY_COMPARE(held, 2);
    QCOMPARE(clicked.size(), 0);
    gate->pass();
    QTRY_COMPARE(clicked.size(), 1);
    QVERIFY(!gate->isHolding());
}

FILARIX_TEST_MAIN(TestClickGate)
#include "tst_clickgate.moc"
