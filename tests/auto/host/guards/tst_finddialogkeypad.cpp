// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/finddialogkeypad.h"
#include "wfinddialog.h"

#include <QLineEdit>

class TestFindDialogKeypad : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void touchedFieldOfTheFindDialogTakesTheKeypadsText();
    void withoutATouchScreenNoKeypadOpens();
    void fieldsOfOtherDialogsAreLeftAlone();
};

void TestFindDialogKeypad::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestFindDialogKeypad::touchedFieldOfTheFindDialogTakesTheKeypadsText()
{
    FindDialogKeypad keypad(nullptr);
    WFindDialog dialog(nullptr);
    dialog.show();
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
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
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
