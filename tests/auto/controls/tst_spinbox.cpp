// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "keyevents.h"
#include "lineedit.h"
#include "spinbox.h"

#include <QIntValidator>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSpinBox>

class TestSpinBox : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void theFieldIsTheKitsLineEdit();
    void theValidatorHasNoRangeOfItsOwn();
    void theFieldFillsWithTheFirstChangeOrShowing();
    void eachArrowPressIsAFinishedEdit();
    void eachPressOnAStepButtonIsAFinishedEdit();
    void aStepThatChangesNothingIsAFinishedEditToo();
};

void TestSpinBox::theFieldIsTheKitsLineEdit()
{
    SpinBox box(nullptr);
    const QList<QLineEdit *> fields = box.findChildren<QLineEdit *>();
    QCOMPARE(fields.size(), 1);
    QVERIFY(qobject_cast<LineEdit *>(fields.first()));
    QCOMPARE(fields.first()->parentWidget(), static_cast<QWidget *>(&box));
}

void TestSpinBox::theValidatorHasNoRangeOfItsOwn()
{
    SpinBox box(nullptr);
    const QIntValidator *validator =
        qobject_cast<const QIntValidator *>(box.findChild<LineEdit *>()->validator());
    QVERIFY(validator);
    QCOMPARE(validator->parent(), static_cast<QObject *>(&box));
    const QIntValidator rangeless(nullptr);
    QCOMPARE(validator->bottom(), rangeless.bottom());
    QCOMPARE(validator->top(), rangeless.top());
}

void TestSpinBox::theFieldFillsWithTheFirstChangeOrShowing()
{
    SpinBox changed(nullptr);
    SpinBox shown(nullptr);
    if (TestCompat::givenFieldStartsEmpty()) {
        QCOMPARE(changed.findChild<LineEdit *>()->text(), QString());
        QCOMPARE(shown.findChild<LineEdit *>()->text(), QString());
    }
    changed.setValue(7);
    QCOMPARE(changed.findChild<LineEdit *>()->text(), QString::fromLatin1("7"));
    shown.show();
    QCOMPARE(shown.findChild<LineEdit *>()->text(), QString::fromLatin1("0"));
}

void TestSpinBox::eachArrowPressIsAFinishedEdit()
{
    SpinBox box(nullptr);
    box.show();
    QApplication::setActiveWindow(&box);
    box.setFocus();
    QTRY_VERIFY(box.hasFocus());
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    KeyEvents::press(&box, Qt::Key_Up);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(box.value(), 1);
    QVERIFY(box.hasFocus());
    KeyEvents::release(&box, Qt::Key_Up);
    QCOMPARE(finished.count(), 1);
    KeyEvents::press(&box, Qt::Key_Up);
    KeyEvents::press(&box, Qt::Key_Down);
    QCOMPARE(finished.count(), 3);
    QCOMPARE(box.value(), 1);
}

void TestSpinBox::eachPressOnAStepButtonIsAFinishedEdit()
{
    SpinBox box(nullptr);
    box.show();
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    QStyleOptionSpinBox option;
    option.initFrom(&box);
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
    option.frame = true;
    const QRect up =
        box.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &box);
    QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, up.center());
    QCOMPARE(box.value(), 1);
    QCOMPARE(finished.count(), 1);
    QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, up.center());
}

void TestSpinBox::aStepThatChangesNothingIsAFinishedEditToo()
{
    SpinBox box(nullptr);
    box.setRange(0, 3);
    box.setValue(3);
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    box.stepBy(1);
    QCOMPARE(box.value(), 3);
    QCOMPARE(finished.count(), 1);
    box.stepBy(-2);
    QCOMPARE(box.value(), 1);
    QCOMPARE(finished.count(), 2);
}

FILARIX_TEST_MAIN(TestSpinBox)
#include "tst_spinbox.moc"
