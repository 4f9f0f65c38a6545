// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "groupbox.h"
#include "keyevents.h"

#include <QSignalSpy>

class TestGroupBox : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructorsSetTheTitle();
    void returnTogglesOnReleaseAsSpaceDoes_data();
    void returnTogglesOnReleaseAsSpaceDoes();
    void eachRepeatOfReturnIsASpaceToo_data();
    void eachRepeatOfReturnIsASpaceToo();
    void theResultIsTheBaseClasss();
    void otherKeysGoToTheBase_data();
    void otherKeysGoToTheBase();
};

void TestGroupBox::constructorsSetTheTitle()
{
    QWidget window;
    GroupBox plain(&window);
    GroupBox titled(QLatin1String("Options"), &window);
    QCOMPARE(plain.title(), QString());
    QCOMPARE(plain.parentWidget(), &window);
    QCOMPARE(titled.title(), QString::fromLatin1("Options"));
    QCOMPARE(titled.parentWidget(), &window);
}

void TestGroupBox::returnTogglesOnReleaseAsSpaceDoes_data()
{
    KeyEvents::addReturnRows();
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void TestGroupBox::returnTogglesOnReleaseAsSpaceDoes()
{
    QFETCH(int, key);
    GroupBox box(QLatin1String("Options"), nullptr);
    box.setCheckable(true);
    box.setChecked(false);
    QSignalSpy toggled(&box, SIGNAL(toggled(bool)));
    KeyEvents::press(&box, key);
    QVERIFY(!box.isChecked());
    KeyEvents::release(&box, key);
    QVERIFY(box.isChecked());
    QCOMPARE(toggled.count(), 1);
}

void TestGroupBox::eachRepeatOfReturnIsASpaceToo_data()
{
    KeyEvents::addReturnRows();
}

void TestGroupBox::eachRepeatOfReturnIsASpaceToo()
{
    QFETCH(int, key);
    GroupBox box(QLatin1String("Options"), nullptr);
    box.setCheckable(true);
    box.setChecked(false);
    QSignalSpy toggled(&box, SIGNAL(toggled(bool)));
    KeyEvents::Counter counter(&box);
    // Each pair of a repeated release and press toggles once, and the last release once more.
    KeyEvents::press(&box, key);
    KeyEvents::repeat(&box, key, 3);
    QCOMPARE(toggled.count(), 3);
    KeyEvents::release(&box, key);
    QCOMPARE(toggled.count(), 4);
    QVERIFY(!box.isChecked());
    QCOMPARE(counter.spaces, 0);

    // A repeat of Space itself is the base class's, which swallows none and toggles nothing.
    KeyEvents::press(&box, Qt::Key_Space);
    KeyEvents::repeat(&box, Qt::Key_Space, 3);
    QCOMPARE(toggled.count(), 4);
    KeyEvents::release(&box, Qt::Key_Space);
    QCOMPARE(toggled.count(), 5);
}

void TestGroupBox::theResultIsTheBaseClasss()
{
    GroupBox box(QLatin1String("Options"), nullptr);
    box.setCheckable(true);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(QCoreApplication::sendEvent(&box, &press));
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(QCoreApplication::sendEvent(&box, &release));
}

void TestGroupBox::otherKeysGoToTheBase_data()
{
    KeyEvents::addArrowRows();
    QTest::newRow("a letter") << int(Qt::Key_A);
}

void TestGroupBox::otherKeysGoToTheBase()
{
    QFETCH(int, key);
    GroupBox box(QLatin1String("Options"), nullptr);
    box.setCheckable(true);
    QGroupBox plain(QLatin1String("Options"));
    plain.setCheckable(true);
    QCOMPARE(KeyEvents::press(&box, key), KeyEvents::press(&plain, key));
    QCOMPARE(KeyEvents::release(&box, key), KeyEvents::release(&plain, key));
    QVERIFY(box.isChecked());
}

FILARIX_TEST_MAIN(TestGroupBox)
#include "tst_groupbox.moc"
