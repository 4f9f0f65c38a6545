// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combobox.h"
#include "filarixtest.h"
#include "keyevents.h"
#include "lineedit.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QSignalSpy>

class TestComboBox : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void editableGetsTheKitsLineEdit();
    void upAndDownChangeTheCurrentItem();
    void leftAndRightGoToTheBase();
    void f4DoesNotOpenTheList();
    void returnOpensTheList_data();
    void returnOpensTheList();
    void returnAfterAClosedListOnlyFlipsTheFlag();
    void repeatsOfReturnGoToTheBase_data();
    void repeatsOfReturnGoToTheBase();
    void returnOnAnEditableOneOpensNothing();
    void theFocusComesBackWhenTheListCloses();
    void showPopComesWithEachOpening();
};

namespace {

struct Screen
{
    explicit Screen(bool editable = false)
    {
        QVBoxLayout *layout = new QVBoxLayout(&window);
        above = new LineEdit(&window);
        combo = new ComboBox(&window, editable);
        combo->addItems(QStringList()
                        << QLatin1String("X") << QLatin1String("Y") << QLatin1String("Z"));
        combo->setCurrentIndex(1);
        layout->addWidget(above);
        layout->addWidget(combo);
        window.show();
        QApplication::setActiveWindow(&window);
        combo->setFocus();
    }
    bool listIsOpen() const { return combo->view()->isVisible(); }

    QWidget window;
    LineEdit *above;
    ComboBox *combo;
};

} // namespace

void TestComboBox::editableGetsTheKitsLineEdit()
{
    ComboBox fixed(nullptr, false);
    QVERIFY(!fixed.isEditable());
    QVERIFY(!fixed.lineEdit());
    ComboBox editable(nullptr, true);
    QVERIFY(editable.isEditable());
    QVERIFY(qobject_cast<LineEdit *>(editable.lineEdit()));
    QCOMPARE(editable.lineEdit()->parentWidget(), static_cast<QWidget *>(&editable));
}

void TestComboBox::upAndDownChangeTheCurrentItem()
{
    Screen screen;
    QVERIFY(KeyEvents::press(screen.combo, Qt::Key_Down));
    QCOMPARE(screen.combo->currentIndex(), 2);
    KeyEvents::press(screen.combo, Qt::Key_Up);
    KeyEvents::press(screen.combo, Qt::Key_Up);
    QCOMPARE(screen.combo->currentIndex(), 0);
}

void TestComboBox::leftAndRightGoToTheBase()
{
    ComboBox combo(nullptr, false);
    QComboBox plain;
    Q_FOREACH (int key, QList<int>() << Qt::Key_Left << Qt::Key_Right << Qt::Key_A) {
        QCOMPARE(KeyEvents::press(&combo, key), KeyEvents::press(&plain, key));
        QCOMPARE(KeyEvents::release(&combo, key), KeyEvents::release(&plain, key));
    }
}

void TestComboBox::f4DoesNotOpenTheList()
{
    Screen screen;
    QSignalSpy shown(screen.combo, SIGNAL(showPop()));
    QVERIFY(KeyEvents::press(screen.combo, Qt::Key_F4));
    QVERIFY(!screen.listIsOpen());
    QCOMPARE(shown.count(), 0);
    // The release goes to the base.
    QCOMPARE(KeyEvents::release(screen.combo, Qt::Key_F4), TestCompat::comboBoxTakesReleases());
}

void TestComboBox::returnOpensTheList_data()
{
    KeyEvents::addReturnRows();
}

void TestComboBox::returnOpensTheList()
{
    QFETCH(int, key);
    Screen screen;
    QSignalSpy shown(screen.combo, SIGNAL(showPop()));
    KeyEvents::Counter counter(screen.combo);
    QVERIFY(KeyEvents::press(screen.combo, key));
    QVERIFY(screen.listIsOpen());
    QCOMPARE(shown.count(), 1);
    // The base ignores the Space; the received event stays as it was.
    QVERIFY(KeyEvents::release(screen.combo, key));
    QVERIFY(screen.listIsOpen());
    QCOMPARE(counter.spaces, 0);
    screen.combo->hidePopup();
}

void TestComboBox::returnAfterAClosedListOnlyFlipsTheFlag()
{
    Screen screen;
    for (int round = 0; round < 3; ++round) {
        KeyEvents::press(screen.combo, Qt::Key_Return);
        KeyEvents::release(screen.combo, Qt::Key_Return);
        QVERIFY(screen.listIsOpen());

        // This press goes to the list, which takes its current item and closes.
        QTest::keyClick(screen.combo->view(), Qt::Key_Return);
        QTRY_VERIFY(!screen.listIsOpen());

        KeyEvents::press(screen.combo, Qt::Key_Return);
        KeyEvents::release(screen.combo, Qt::Key_Return);
        QVERIFY(!screen.listIsOpen());
    }
}

void TestComboBox::repeatsOfReturnGoToTheBase_data()
{
    KeyEvents::addReturnRows();
}

void TestComboBox::repeatsOfReturnGoToTheBase()
{
    QFETCH(int, key);
    Screen screen;
    QVERIFY(!KeyEvents::send(screen.combo, QEvent::KeyPress, key, true));
    QCOMPARE(KeyEvents::send(screen.combo, QEvent::KeyRelease, key, true),
             TestCompat::comboBoxTakesReleases());
    QVERIFY(!screen.listIsOpen());
    // They left the flag alone: the next press opens the list.
    KeyEvents::press(screen.combo, key);
    QVERIFY(screen.listIsOpen());
    screen.combo->hidePopup();
}

void TestComboBox::returnOnAnEditableOneOpensNothing()
{
    Screen screen(true);
    screen.combo->lineEdit()->setText(QLatin1String("W"));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(KeyEvents::press(screen.combo, Qt::Key_Return));
        QVERIFY(KeyEvents::release(screen.combo, Qt::Key_Return));
        QVERIFY(!screen.listIsOpen());
    }
    // The Space carries no text, so the field takes none; nor is the text added to the list.
    QCOMPARE(screen.combo->lineEdit()->text(), QString::fromLatin1("W"));
    QCOMPARE(screen.combo->count(), 3);
}

void TestComboBox::theFocusComesBackWhenTheListCloses()
{
    Screen screen;
    screen.combo->showPopup();
    QVERIFY(screen.listIsOpen());
    screen.above->setFocus();
    screen.combo->hidePopup();
    QVERIFY(!screen.listIsOpen());
    QTRY_VERIFY(screen.combo->hasFocus());
}

void TestComboBox::showPopComesWithEachOpening()
{
    Screen screen;
    QSignalSpy shown(screen.combo, SIGNAL(showPop()));
    for (int i = 1; i <= 3; ++i) {
        screen.combo->showPopup();
        QVERIFY(screen.listIsOpen());
        QCOMPARE(shown.count(), i);
        screen.combo->hidePopup();
        QCOMPARE(shown.count(), i);
    }
}

FILARIX_TEST_MAIN(TestComboBox)
#include "tst_combobox.moc"
