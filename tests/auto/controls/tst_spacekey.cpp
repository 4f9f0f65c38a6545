// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "keyevents.h"
#include "spacekey_p.h"

class TestSpaceKey : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSpaceStandsForReturn_data();
    void aSpaceStandsForReturn();
    void tellsTheKeysApart();
};

void TestSpaceKey::aSpaceStandsForReturn_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("repeat");
    QTest::newRow("press") << int(QEvent::KeyPress) << false;
    QTest::newRow("release") << int(QEvent::KeyRelease) << false;
    QTest::newRow("repeated press") << int(QEvent::KeyPress) << true;
}

void TestSpaceKey::aSpaceStandsForReturn()
{
    QFETCH(int, type);
    QFETCH(bool, repeat);
    const QKeyEvent received(QEvent::Type(type), Qt::Key_Return, Qt::ShiftModifier,
                             QLatin1String("\r"), repeat, 3);
    const QKeyEvent space = SpaceKey::insteadOf(&received);
    QCOMPARE(int(space.type()), type);
    QCOMPARE(space.key(), int(Qt::Key_Space));
    QCOMPARE(int(space.modifiers()), int(Qt::KeypadModifier));
    QCOMPARE(space.text(), QString());
    QCOMPARE(space.isAutoRepeat(), false);
    QCOMPARE(space.count(), 1);
}

void TestSpaceKey::tellsTheKeysApart()
{
    const int keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Left,  Qt::Key_Up,
                        Qt::Key_Right,  Qt::Key_Down,  Qt::Key_Space, Qt::Key_F4};
    QString kinds;
    for (int key : keys) {
        const QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        kinds += QLatin1Char(SpaceKey::isReturn(&event)  ? 'r'
                             : SpaceKey::isArrow(&event) ? 'a'
                                                         : '-');
    }
    QCOMPARE(kinds, QString::fromLatin1("rraaaa--"));
}

FILARIX_TEST_MAIN(TestSpaceKey)
#include "tst_spacekey.moc"
