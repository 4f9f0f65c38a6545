// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/finddialogkeypad.h"
#include "wfinddialog.h"

#include <hmidevice/characterkeypad.h>

#include <QLabel>
#include <QLineEdit>

class TestFindDialogKeypad : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void touchedFieldOfTheFindDialogTakesTheKeypadsText();
    void withoutATouchScreenNoKeypadOpens();
    void keypadOpensThoughTakenForVisible();
    void shownDialogOpensTheKeypadAtOnce();
    void dialogThatGoesFirstOpensNothing();
    void keypadThatHasNotEndedIsNotOpenedAgain();
    void keypadIsToldWhatTheFieldIsFor();
    void fieldsOfOtherDialogsAreLeftAlone();
};

void TestFindDialogKeypad::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestFindDialogKeypad::touchedFieldOfTheFindDialogTakesTheKeypadsText()
{
    WFindDialog dialog(nullptr);
    dialog.show();
    FindDialogKeypad keypad(nullptr);
    QLineEdit *field = dialog.findChild<QLineEdit *>();
    field->setText("G00");
    DeviceLog::acceptWith("X10");
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(field->text(), QString("X10"));
    QVERIFY(DeviceLog::keypadCalls().contains("CharacterKeypad.setText(G00)"));
    QVERIFY(DeviceLog::keypadCalls().contains("CharacterKeypad.setValidator(null)"));

    DeviceLog::cancel();
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(field->text(), QString("X10"));
}

void TestFindDialogKeypad::withoutATouchScreenNoKeypadOpens()
{
    FindDialogKeypad keypad(nullptr);
    DeviceLog::setTouchScreen(false);
    WFindDialog dialog(nullptr);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QLineEdit *>(), Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

// So the older toolkit takes it on X11 once it was closed before the server had mapped it.
void TestFindDialogKeypad::keypadOpensThoughTakenForVisible()
{
    WFindDialog dialog(nullptr);
    dialog.show();
    FindDialogKeypad keypad(nullptr);
    CharacterKeypad::instance()->setAttribute(Qt::WA_WState_Visible);
    DeviceLog::acceptWith("X10");
    QLineEdit *field = dialog.findChild<QLineEdit *>();
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(field->text(), QString("X10"));
}

void TestFindDialogKeypad::shownDialogOpensTheKeypadAtOnce()
{
    FindDialogKeypad keypad(nullptr);
    WFindDialog dialog(nullptr);
    QLineEdit *field = dialog.findChild<QLineEdit *>();
    DeviceLog::acceptWith("S450");
    dialog.show();
    // Whoever shows the dialog places it first.
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
    QTRY_COMPARE(field->text(), QString("S450"));
    QCOMPARE(DeviceLog::answersLeft(), 0);

    // Each time anew, with the text that is there.
    dialog.hide();
    DeviceLog::cancel();
    dialog.show();
    QTRY_COMPARE(DeviceLog::answersLeft(), 0);
    QVERIFY(DeviceLog::keypadCalls().contains("CharacterKeypad.setText(S450)"));
    QCOMPARE(field->text(), QString("S450"));
    QVERIFY(dialog.isVisible());
}

void TestFindDialogKeypad::dialogThatGoesFirstOpensNothing()
{
    FindDialogKeypad keypad(nullptr);
    {
        WFindDialog dialog(nullptr);
        dialog.show();
    }
    WFindDialog dialog(nullptr);
    dialog.show();
    dialog.hide();
    QCoreApplication::processEvents();
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

// It is hidden, but what came up over it, a message that nothing was found say, has still to end.
void TestFindDialogKeypad::keypadThatHasNotEndedIsNotOpenedAgain()
{
    WFindDialog dialog(nullptr);
    dialog.show();
    FindDialogKeypad keypad(nullptr);
    QLineEdit *field = dialog.findChild<QLineEdit *>();
    DeviceLog::runThenCancel([&] { QTest::mouseClick(field, Qt::LeftButton); });
    DeviceLog::cancel();
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 1);
    QTest::mouseClick(field, Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 0);
}

void TestFindDialogKeypad::keypadIsToldWhatTheFieldIsFor()
{
    WFindDialog dialog(nullptr);
    dialog.show();
    FindDialogKeypad keypad(nullptr);
    QStringList names;
    const auto touchEach = [&] {
        Q_FOREACH (QLineEdit *field, dialog.findChildren<QLineEdit *>()) {
            DeviceLog::runThenCancel(
                [&] { names.append(DeviceLog::object()->property("hmiName").toString()); });
            QTest::mouseClick(field, Qt::LeftButton);
        }
    };
    touchEach();
    QCOMPARE(names, QStringList() << "Find what"
                                  << "Replace what");
    // As in Chinese.
    Q_FOREACH (QLabel *label, dialog.findChildren<QLabel *>())
        label->setText(QLatin1String("Text(&N):"));
    names.clear();
    touchEach();
    QCOMPARE(names, QStringList() << "Text"
                                  << "Text");
}

void TestFindDialogKeypad::fieldsOfOtherDialogsAreLeftAlone()
{
    FindDialogKeypad keypad(nullptr);
    QLineEdit field;
    field.show();
    QTest::mouseClick(&field, Qt::LeftButton);
    QVERIFY(DeviceLog::calls().isEmpty());
}

FILARIX_TEST_MAIN(TestFindDialogKeypad)
#include "tst_finddialogkeypad.moc"
