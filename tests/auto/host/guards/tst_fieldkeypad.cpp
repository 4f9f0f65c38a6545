// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/fieldkeypad.h"
#include "wfinddialog.h"

#include <QLineEdit>

class TestFieldKeypad : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void touchedFieldOfTheFindDialogTakesTheKeypadsText();
    void withoutATouchScreenNoKeypadOpens();
    void fieldsOfOtherDialogsAreLeftAlone();
};

void TestFieldKeypad::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestFieldKeypad::touchedFieldOfTheFindDialogTakesTheKeypadsText()
{
    FieldKeypad keypad(nullptr);
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

void TestFieldKeypad::withoutATouchScreenNoKeypadOpens()
{
    FieldKeypad keypad(nullptr);
    DeviceLog::setTouchScreen(false);
    WFindDialog dialog(nullptr);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QLineEdit *>(), Qt::LeftButton);
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

void TestFieldKeypad::fieldsOfOtherDialogsAreLeftAlone()
{
    FieldKeypad keypad(nullptr);
    QLineEdit field;
    field.show();
    QTest::mouseClick(&field, Qt::LeftButton);
    QVERIFY(DeviceLog::calls().isEmpty());
}

FILARIX_TEST_MAIN(TestFieldKeypad)
#include "tst_fieldkeypad.moc"
