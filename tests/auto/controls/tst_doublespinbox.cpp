// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "doublespinbox.h"
#include "filarixtest.h"
#include "keyevents.h"
#include "lineedit.h"

#include <QDoubleValidator>
#include <QSignalSpy>

class TestDoubleSpinBox : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldIsTheKitsLineEdit();
    void theValidatorHasNoRangeOfItsOwn();
    void theFieldFillsWithTheFirstChangeOrShowing();
    void eachArrowPressIsAFinishedEdit();
    void aStepThatChangesNothingIsAFinishedEditToo();
};

void TestDoubleSpinBox::theFieldIsTheKitsLineEdit()
{
    DoubleSpinBox box(nullptr);
    const QList<QLineEdit *> fields = box.findChildren<QLineEdit *>();
    QCOMPARE(fields.size(), 1);
    QVERIFY(qobject_cast<LineEdit *>(fields.first()));
    QCOMPARE(fields.first()->parentWidget(), static_cast<QWidget *>(&box));
}

void TestDoubleSpinBox::theValidatorHasNoRangeOfItsOwn()
{
    DoubleSpinBox box(nullptr);
    const QDoubleValidator *validator =
        qobject_cast<const QDoubleValidator *>(box.findChild<LineEdit *>()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), static_cast<QObject *>(&box));
    const QDoubleValidator rangeless(nullptr);
    QVERIFY(validator->bottom() == rangeless.bottom());
    QVERIFY(validator->top() == rangeless.top());
    QCOMPARE(validator->decimals(), rangeless.decimals());
}

void TestDoubleSpinBox::theFieldFillsWithTheFirstChangeOrShowing()
{
    DoubleSpinBox changed(nullptr);
    DoubleSpinBox shown(nullptr);
    if (TestCompat::givenFieldStartsEmpty()) {
        QCOMPARE(changed.findChild<LineEdit *>()->text(), QString());
        QCOMPARE(shown.findChild<LineEdit *>()->text(), QString());
    }
    changed.setValue(1.5);
    QCOMPARE(changed.findChild<LineEdit *>()->text(), changed.textFromValue(1.5));
    shown.show();
    QCOMPARE(shown.findChild<LineEdit *>()->text(), shown.textFromValue(0));
}

void TestDoubleSpinBox::eachArrowPressIsAFinishedEdit()
{
    DoubleSpinBox box(nullptr);
    box.setSingleStep(0.25);
    box.show();
    QApplication::setActiveWindow(&box);
    box.setFocus();
    QTRY_VERIFY(box.hasFocus());
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    KeyEvents::press(&box, Qt::Key_Up);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(box.value(), 0.25);
    QVERIFY(box.hasFocus());
    KeyEvents::press(&box, Qt::Key_Down);
    QCOMPARE(finished.count(), 2);
    QCOMPARE(box.value(), 0.0);
}

void TestDoubleSpinBox::aStepThatChangesNothingIsAFinishedEditToo()
{
    DoubleSpinBox box(nullptr);
    box.setRange(0, 3);
    box.setValue(3);
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    box.stepBy(1);
    QCOMPARE(box.value(), 3.0);
    QCOMPARE(finished.count(), 1);
}

FILARIX_TEST_MAIN(TestDoubleSpinBox)
#include "tst_doublespinbox.moc"
