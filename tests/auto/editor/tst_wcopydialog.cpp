// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "marktranslator.h"
#include "wcopydialog.h"

#include <QBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedPointer>

#include <limits>

class TestWCopyDialog : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void threeRows();
    void wordsAreTranslatedAndSignsAreNot();
    void isPlacedAsEveryDialogWhenShown();
    void returnIsTheAnswer();
    void showsTheCurrentLine();
    void aRangeStartsTheCountAtOne();
    void minusAndPlusStopAtTheLimits();
    void aRangeOfOneLeavesTheCountAlone();
    void aCountThatIsNoNumberIsZero();
    void nothingStepsBeforeARangeIsSet();
    void stepsAtTheEndsOfTheIntegers();
    void okAcceptsAndCancelRejects();
    void theKeypadIsSetUpInOrder();
    void anAcceptedCountInTheRangeIsTaken_data();
    void anAcceptedCountInTheRangeIsTaken();
    void aCancelledKeypadChangesNothing();
    void onlyAPressIntoTheCountOpensTheKeypad();
    void aRightPressOpensNothing();
    void worksWithoutATouchScreenToo();
    void withoutAKeypadNothingHappens();
    void theKeypadsValidatorGoesWithTheDialog();
    void aNullObjectIsNotFiltered();
    void theTextIsARealProperty();
};

namespace {

/// Opens up the event filter.
class OpenDialog : public WCopyDialog
{
public:
    OpenDialog() : WCopyDialog(nullptr) {}
    using WCopyDialog::eventFilter;
};

QLineEdit *countOf(const QWidget &dialog)
{
    return dialog.findChild<QLineEdit *>();
}

QPushButton *button(const QWidget &dialog, const char *text)
{
    Q_FOREACH (QPushButton *candidate, dialog.findChildren<QPushButton *>()) {
        if (candidate->text() == QLatin1String(text))
            return candidate;
    }
    return nullptr;
}

void tap(QWidget *widget, Qt::MouseButton mouseButton = Qt::LeftButton)
{
    QTest::mouseClick(widget, mouseButton, Qt::NoModifier, widget->rect().center());
}

QStringList setUpCalls(const QString &limits, const QString &text)
{
    return QStringList() << QLatin1String("NumericKeypad.setObject(WCopyDialog)")
                         << QLatin1String("NumericKeypad.setEditMode(10)")
                         << QLatin1String("NumericKeypad.setDecimalPointEnabled(false)")
                         << QLatin1String("NumericKeypad.setValidator(QIntValidator)")
                         << QString::fromLatin1("NumericKeypad.setLimitToolTip(%1)").arg(limits)
                         << QString::fromLatin1("NumericKeypad.setText(%1)").arg(text)
                         << QLatin1String("NumericKeypad.exec");
}

} // namespace

void TestWCopyDialog::init()
{
    FilarixTest::init();
    DeviceLog::reset();
}

void TestWCopyDialog::threeRows()
{
    WCopyDialog dialog(nullptr);
    QCOMPARE(dialog.getTitle(), QString::fromLatin1("Copy"));
    QVBoxLayout *rows = qobject_cast<QVBoxLayout *>(dialog.layout());
    QVERIFY(rows);
    QCOMPARE(rows->count(), 3);
    QList<QHBoxLayout *> row;
    for (int i = 0; i < 3; ++i) {
        row << qobject_cast<QHBoxLayout *>(rows->itemAt(i)->layout());
        QVERIFY(row.last());
    }

    QCOMPARE(row[0]->count(), 3);
    QCOMPARE(qobject_cast<QLabel *>(row[0]->itemAt(0)->widget())->text(),
             QString::fromLatin1("Current line:"));
    QVERIFY(qobject_cast<QLabel *>(row[0]->itemAt(1)->widget()));
    QVERIFY(row[0]->itemAt(2)->spacerItem());
    QCOMPARE(row[0]->stretch(2), 1);

    QCOMPARE(row[1]->count(), 4);
    QCOMPARE(qobject_cast<QLabel *>(row[1]->itemAt(0)->widget())->text(),
             QString::fromLatin1("Copy count:"));
    QCOMPARE(row[1]->itemAt(1)->widget(), static_cast<QWidget *>(countOf(dialog)));
    QCOMPARE(row[1]->itemAt(2)->widget(), static_cast<QWidget *>(button(dialog, "-")));
    QCOMPARE(row[1]->itemAt(3)->widget(), static_cast<QWidget *>(button(dialog, "+")));
    for (int i = 1; i < 4; ++i) {
        QCOMPARE(row[1]->itemAt(i)->widget()->minimumWidth(), 48);
        QCOMPARE(row[1]->itemAt(i)->widget()->maximumWidth(), 48);
    }

    QCOMPARE(row[2]->count(), 3);
    QVERIFY(row[2]->itemAt(0)->spacerItem());
    QCOMPARE(row[2]->stretch(0), 1);
    QCOMPARE(row[2]->itemAt(1)->widget(), static_cast<QWidget *>(button(dialog, "OK")));
    QCOMPARE(row[2]->itemAt(2)->widget(), static_cast<QWidget *>(button(dialog, "Cancel")));
}

void TestWCopyDialog::wordsAreTranslatedAndSignsAreNot()
{
    const MarkTranslator translator(QLatin1String("#"));
    const WCopyDialog dialog(nullptr);
    QCOMPARE(dialog.getTitle(), QString::fromLatin1("#Copy"));
    QStringList labels;
    Q_FOREACH (const QLabel *label, dialog.findChildren<QLabel *>())
        labels << label->text();
    QVERIFY(labels.contains(QLatin1String("#Current line:")));
    QVERIFY(labels.contains(QLatin1String("#Copy count:")));
    QVERIFY(button(dialog, "#OK"));
    QVERIFY(button(dialog, "#Cancel"));
    QVERIFY(button(dialog, "-"));
    QVERIFY(button(dialog, "+"));
}

void TestWCopyDialog::isPlacedAsEveryDialogWhenShown()
{
    QWidget parent;
    parent.setGeometry(150, 70, 800, 480);
    WCopyDialog dialog(&parent);
    dialog.show();
    QCOMPARE(dialog.geometry().topLeft(),
             QPoint(400 - dialog.width() / 2, 240 - dialog.height() / 2));
}

void TestWCopyDialog::returnIsTheAnswer()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 9);
    dialog.show();
    countOf(dialog)->setText(QLatin1String("3"));
    QTest::keyClick(countOf(dialog), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.count(), 3);
}

void TestWCopyDialog::showsTheCurrentLine()
{
    WCopyDialog dialog(nullptr);
    dialog.setCurrentLine(1234567);
    const QHBoxLayout *row = qobject_cast<QHBoxLayout *>(dialog.layout()->itemAt(0)->layout());
    QCOMPARE(qobject_cast<QLabel *>(row->itemAt(1)->widget())->text(),
             QString::fromLatin1("1234567"));
}

void TestWCopyDialog::aRangeStartsTheCountAtOne()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 40);
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
    QCOMPARE(dialog.count(), 1);
    const QIntValidator *first = qobject_cast<const QIntValidator *>(countOf(dialog)->validator());
    QVERIFY(first);
    QCOMPARE(first->bottom(), 1);
    QCOMPARE(first->top(), 40);
    QCOMPARE(first->parent(), static_cast<QObject *>(&dialog));

    countOf(dialog)->setText(QLatin1String("12"));
    dialog.setRange(2, 5);
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
    const QIntValidator *second = qobject_cast<const QIntValidator *>(countOf(dialog)->validator());
    QVERIFY(second != first);
    QCOMPARE(second->bottom(), 2);
    QCOMPARE(second->top(), 5);
}

void TestWCopyDialog::minusAndPlusStopAtTheLimits()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 3);
    button(dialog, "-")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
    button(dialog, "+")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("2"));
    button(dialog, "+")->click();
    button(dialog, "+")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("3"));
    button(dialog, "-")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("2"));

    // The slots are what a host may connect too.
    dialog.slot_plus();
    QCOMPARE(dialog.count(), 3);
    dialog.slot_minus();
    QCOMPARE(dialog.count(), 2);
}

void TestWCopyDialog::aRangeOfOneLeavesTheCountAlone()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 1);
    button(dialog, "+")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
    button(dialog, "-")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
}

void TestWCopyDialog::aCountThatIsNoNumberIsZero()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 3);
    countOf(dialog)->setText(QLatin1String("12x"));
    QCOMPARE(dialog.count(), 0);
    button(dialog, "-")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("12x"));
    button(dialog, "+")->click();
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
    countOf(dialog)->clear();
    QCOMPARE(dialog.count(), 0);
}

void TestWCopyDialog::nothingStepsBeforeARangeIsSet()
{
    WCopyDialog dialog(nullptr);
    QCOMPARE(dialog.count(), 0);
    dialog.slot_plus();
    dialog.slot_minus();
    QCOMPARE(countOf(dialog)->text(), QString());
}

void TestWCopyDialog::stepsAtTheEndsOfTheIntegers()
{
    WCopyDialog dialog(nullptr);
    const int smallest = std::numeric_limits<int>::min();
    const int largest = std::numeric_limits<int>::max();
    dialog.setRange(smallest, largest);
    countOf(dialog)->setText(QString::number(largest));
    dialog.slot_plus();
    QCOMPARE(dialog.count(), largest);
    countOf(dialog)->setText(QString::number(smallest));
    dialog.slot_minus();
    QCOMPARE(dialog.count(), smallest);
}

void TestWCopyDialog::okAcceptsAndCancelRejects()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 3);
    dialog.show();
    button(dialog, "OK")->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.show();
    button(dialog, "Cancel")->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestWCopyDialog::theKeypadIsSetUpInOrder()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 20);
    countOf(dialog)->setText(QLatin1String("7"));
    dialog.show();
    DeviceLog::cancel();
    tap(countOf(dialog));
    QCOMPARE(DeviceLog::keypadCalls(),
             setUpCalls(QLatin1String(" min:1, max:20"), QLatin1String("7")));
    QCOMPARE(DeviceLog::object().data(), static_cast<QObject *>(&dialog));
    const QIntValidator *validator = qobject_cast<QIntValidator *>(DeviceLog::validator().data());
    QVERIFY(validator);
    QCOMPARE(validator->bottom(), 1);
    QCOMPARE(validator->top(), 20);
    QCOMPARE(validator->parent(), static_cast<QObject *>(&dialog));
    QVERIFY(validator != countOf(dialog)->validator());
}

void TestWCopyDialog::anAcceptedCountInTheRangeIsTaken_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("count");
    QTest::newRow("inside") << "5"
                            << "5";
    QTest::newRow("smallest") << "1"
                              << "1";
    QTest::newRow("largest") << "20"
                             << "20";
    QTest::newRow("above the largest") << "21"
                                       << "7";
    QTest::newRow("below the smallest") << "0"
                                        << "7";
    QTest::newRow("negative") << "-3"
                              << "7";
    QTest::newRow("no number") << "many"
                               << "7";
    QTest::newRow("a fraction") << "2.5"
                                << "7";
    QTest::newRow("empty") << ""
                           << "7";
    QTest::newRow("beyond the integers") << "99999999999"
                                         << "7";
    QTest::newRow("the text itself is kept") << "05"
                                             << "05";
}

void TestWCopyDialog::anAcceptedCountInTheRangeIsTaken()
{
    QFETCH(QString, entered);
    QFETCH(QString, count);
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 20);
    countOf(dialog)->setText(QLatin1String("7"));
    dialog.show();
    DeviceLog::acceptWith(entered);
    tap(countOf(dialog));
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(countOf(dialog)->text(), count);
    QCOMPARE(dialog.text(), entered);
}

void TestWCopyDialog::aCancelledKeypadChangesNothing()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 20);
    dialog.setText(QLatin1String("9"));
    dialog.show();
    DeviceLog::cancel();
    tap(countOf(dialog));
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
    QCOMPARE(dialog.text(), QString::fromLatin1("9"));
}

void TestWCopyDialog::onlyAPressIntoTheCountOpensTheKeypad()
{
    OpenDialog dialog;
    dialog.setRange(1, 20);
    dialog.show();
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(3, 3), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, QPoint(3, 3), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QLineEdit other;
    QVERIFY(!dialog.eventFilter(&other, &press));
    QVERIFY(!dialog.eventFilter(button(dialog, "OK"), &press));
    QVERIFY(!dialog.eventFilter(countOf(dialog), &release));
    QCOMPARE(DeviceLog::calls(), QStringList());

    DeviceLog::cancel();
    QVERIFY(!dialog.eventFilter(countOf(dialog), &press));
    QCOMPARE(DeviceLog::keypadCalls().size(), 7);
    // The press then reaches the field: the middle button, too, opens the keypad.
    DeviceLog::reset();
    DeviceLog::cancel();
    QTest::mousePress(countOf(dialog), Qt::MiddleButton);
    QCOMPARE(DeviceLog::keypadCalls().size(), 7);
}

void TestWCopyDialog::aRightPressOpensNothing()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 20);
    dialog.show();
    QTest::mousePress(countOf(dialog), Qt::RightButton);
    QCOMPARE(DeviceLog::calls(), QStringList());
}

void TestWCopyDialog::worksWithoutATouchScreenToo()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 20);
    dialog.show();
    DeviceLog::setTouchScreen(false);
    DeviceLog::acceptWith(QLatin1String("4"));
    tap(countOf(dialog));
    QCOMPARE(dialog.count(), 4);
    QVERIFY(!DeviceLog::calls().contains(QLatin1String("HMIDeviceInfo.isTouchScreen")));
}

void TestWCopyDialog::withoutAKeypadNothingHappens()
{
    WCopyDialog dialog(nullptr);
    dialog.setRange(1, 20);
    dialog.show();
    DeviceLog::setInstanceAvailable(false);
    tap(countOf(dialog));
    QCOMPARE(DeviceLog::keypadCalls(), QStringList());
    QCOMPARE(countOf(dialog)->text(), QString::fromLatin1("1"));
}

void TestWCopyDialog::theKeypadsValidatorGoesWithTheDialog()
{
    QScopedPointer<WCopyDialog> dialog(new WCopyDialog(nullptr));
    dialog->setRange(1, 20);
    dialog->show();
    DeviceLog::cancel();
    tap(countOf(*dialog));
    QVERIFY(DeviceLog::validator());
    DeviceLog::cancel();
    const QPointer<QValidator> first = DeviceLog::validator();
    tap(countOf(*dialog));
    QVERIFY(first);
    QVERIFY(DeviceLog::validator() != first);
    dialog.reset();
    QVERIFY(!first);
    QVERIFY(!DeviceLog::validator());
}

void TestWCopyDialog::aNullObjectIsNotFiltered()
{
    OpenDialog dialog;
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(3, 3), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(!dialog.eventFilter(nullptr, &press));
    QCOMPARE(DeviceLog::calls(), QStringList());
}

void TestWCopyDialog::theTextIsARealProperty()
{
    WCopyDialog dialog(nullptr);
    QVERIFY(dialog.setProperty("text", QString::fromLatin1("12")));
    QCOMPARE(dialog.text(), QString::fromLatin1("12"));
    dialog.setText(QLatin1String("13"));
    QCOMPARE(dialog.property("text").toString(), QString::fromLatin1("13"));
}

FILARIX_TEST_MAIN(TestWCopyDialog)
#include "tst_wcopydialog.moc"
