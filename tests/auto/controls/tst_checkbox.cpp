// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkbox.h"
#include "filarixtest.h"
#include "keyevents.h"

#include <QBoxLayout>
#include <QSignalSpy>

class TestCheckBox : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructorsSetTheText();
    void heldReturnTogglesOnceOnRelease_data();
    void heldReturnTogglesOnceOnRelease();
    void arrowsNeitherToggleNorMoveTheFocus_data();
    void arrowsNeitherToggleNorMoveTheFocus();
    void otherKeysGoToTheBase();
};

void TestCheckBox::constructorsSetTheText()
{
    QWidget window;
    CheckBox plain(&window);
    CheckBox text(QLatin1String("Coolant"), &window);
    QCOMPARE(plain.text(), QString());
    QCOMPARE(plain.parentWidget(), &window);
    QCOMPARE(text.text(), QString::fromLatin1("Coolant"));
    QCOMPARE(text.parentWidget(), &window);
}

void TestCheckBox::heldReturnTogglesOnceOnRelease_data()
{
    KeyEvents::addReturnRows();
}

void TestCheckBox::heldReturnTogglesOnceOnRelease()
{
    QFETCH(int, key);
    CheckBox box(nullptr);
    QSignalSpy toggled(&box, SIGNAL(toggled(bool)));
    KeyEvents::Counter counter(&box);

    QVERIFY(KeyEvents::press(&box, key));
    KeyEvents::repeat(&box, key, 5);
    QVERIFY(box.isDown());
    QVERIFY(!box.isChecked());
    QVERIFY(KeyEvents::release(&box, key));
    QVERIFY(box.isChecked());
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(counter.spaces, 0);

    KeyEvents::press(&box, key);
    KeyEvents::release(&box, key);
    QVERIFY(!box.isChecked());
    QCOMPARE(toggled.count(), 2);
}

void TestCheckBox::arrowsNeitherToggleNorMoveTheFocus_data()
{
    KeyEvents::addArrowRows();
}

void TestCheckBox::arrowsNeitherToggleNorMoveTheFocus()
{
    QFETCH(int, key);
    QWidget window;
    QVBoxLayout layout(&window);
    CheckBox first(QLatin1String("first"), &window);
    CheckBox second(QLatin1String("second"), &window);
    CheckBox third(QLatin1String("third"), &window);
    layout.addWidget(&first);
    layout.addWidget(&second);
    layout.addWidget(&third);
    window.show();
    QApplication::setActiveWindow(&window);
    second.setFocus();
    QTRY_VERIFY(second.hasFocus());

    QVERIFY(KeyEvents::press(&second, key));
    KeyEvents::repeat(&second, key, 2);
    QVERIFY(KeyEvents::release(&second, key));
    QVERIFY(second.hasFocus());
    QVERIFY(!second.isDown());
    QVERIFY(!second.isChecked());
}

void TestCheckBox::otherKeysGoToTheBase()
{
    CheckBox box(nullptr);
    QVERIFY(KeyEvents::press(&box, Qt::Key_Space));
    QVERIFY(box.isDown());
    QVERIFY(KeyEvents::release(&box, Qt::Key_Space));
    QVERIFY(box.isChecked());
    QVERIFY(!KeyEvents::press(&box, Qt::Key_A));
    QVERIFY(!KeyEvents::release(&box, Qt::Key_A));
    QVERIFY(box.isChecked());
}

FILARIX_TEST_MAIN(TestCheckBox)
#include "tst_checkbox.moc"
