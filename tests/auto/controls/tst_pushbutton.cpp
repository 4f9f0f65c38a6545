// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "keyevents.h"
#include "pushbutton.h"

#include <QBoxLayout>
#include <QImage>
#include <QPainter>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>

class TestPushButton : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructorsSetTextAndIcon();
    void heldReturnClicksOnce_data();
    void heldReturnClicksOnce();
    void returnLeavesTheAcceptStateAlone_data();
    void returnLeavesTheAcceptStateAlone();
    void arrowsNeitherClickNorMoveTheFocus_data();
    void arrowsNeitherClickNorMoveTheFocus();
    void otherKeysGoToTheBase();
    void focusFrameShowsHoweverTheFocusCame_data();
    void focusFrameShowsHoweverTheFocusCame();
};

namespace {

struct Row
{
    Row()
    {
        QHBoxLayout *layout = new QHBoxLayout(&window);
        left = new PushButton(QLatin1String("left"), &window);
        middle = new PushButton(QLatin1String("middle"), &window);
        right = new PushButton(QLatin1String("right"), &window);
        layout->addWidget(left);
        layout->addWidget(middle);
        layout->addWidget(right);
    }
    QWidget window;
    PushButton *left;
    PushButton *middle;
    PushButton *right;
};

QImage picture(QWidget *widget)
{
    return TestCompat::grab(widget).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

void TestPushButton::constructorsSetTextAndIcon()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    QWidget window;
    PushButton plain(&window);
    PushButton text(QLatin1String("Start"), &window);
    PushButton icon(QIcon(pixmap), QLatin1String("Stop"), &window);
    QCOMPARE(plain.text(), QString());
    QCOMPARE(plain.parentWidget(), &window);
    QCOMPARE(text.text(), QString::fromLatin1("Start"));
    QCOMPARE(text.parentWidget(), &window);
    QCOMPARE(icon.text(), QString::fromLatin1("Stop"));
    QVERIFY(!icon.icon().isNull());
    QCOMPARE(icon.parentWidget(), &window);
}

void TestPushButton::heldReturnClicksOnce_data()
{
    KeyEvents::addReturnRows();
}

void TestPushButton::heldReturnClicksOnce()
{
    QFETCH(int, key);
    PushButton button(nullptr);
    QSignalSpy pressed(&button, SIGNAL(pressed()));
    QSignalSpy released(&button, SIGNAL(released()));
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    KeyEvents::Counter counter(&button);

    QVERIFY(KeyEvents::press(&button, key));
    QVERIFY(button.isDown());
    QCOMPARE(pressed.count(), 1);
    KeyEvents::repeat(&button, key, 5);
    QVERIFY(button.isDown());
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 0);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(KeyEvents::release(&button, key));
    QVERIFY(!button.isDown());
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(clicked.count(), 1);

    // The Space goes straight to the handler: no event filter sees it.
    QCOMPARE(counter.returns, 12);
    QCOMPARE(counter.spaces, 0);
}

void TestPushButton::returnLeavesTheAcceptStateAlone_data()
{
    KeyEvents::addReturnRows();
}

void TestPushButton::returnLeavesTheAcceptStateAlone()
{
    QFETCH(int, key);
    PushButton button(nullptr);
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    Q_FOREACH (bool accepted, QList<bool>() << true << false) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        press.setAccepted(accepted);
        QApplication::sendEvent(&button, &press);
        QCOMPARE(press.isAccepted(), accepted);
        QCOMPARE(press.key(), key);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        release.setAccepted(accepted);
        QApplication::sendEvent(&button, &release);
        QCOMPARE(release.isAccepted(), accepted);
    }
    QCOMPARE(clicked.count(), 2);
}

void TestPushButton::arrowsNeitherClickNorMoveTheFocus_data()
{
    KeyEvents::addArrowRows();
}

void TestPushButton::arrowsNeitherClickNorMoveTheFocus()
{
    QFETCH(int, key);
    Row row;
    row.window.show();
    QApplication::setActiveWindow(&row.window);
    row.middle->setFocus();
    QTRY_VERIFY(row.middle->hasFocus());
    QSignalSpy pressed(row.middle, SIGNAL(pressed()));

    QVERIFY(KeyEvents::press(row.middle, key));
    KeyEvents::repeat(row.middle, key, 2);
    QVERIFY(KeyEvents::release(row.middle, key));
    QVERIFY(row.middle->hasFocus());
    QCOMPARE(pressed.count(), 0);
}

void TestPushButton::otherKeysGoToTheBase()
{
    PushButton button(nullptr);
    QSignalSpy clicked(&button, SIGNAL(clicked()));
    QVERIFY(KeyEvents::press(&button, Qt::Key_Space));
    QVERIFY(button.isDown());
    QVERIFY(KeyEvents::release(&button, Qt::Key_Space));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!KeyEvents::press(&button, Qt::Key_A));
    QVERIFY(!KeyEvents::release(&button, Qt::Key_A));
    QCOMPARE(clicked.count(), 1);
}

void TestPushButton::focusFrameShowsHoweverTheFocusCame_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("framesKeyboardFocusOnly");
    QTest::addColumn<int>("reason");
    const QString windows = QLatin1String("windows");
    QTest::newRow("windows, touched") << windows << false << int(Qt::MouseFocusReason);
    QTest::newRow("windows, by the program") << windows << false << int(Qt::OtherFocusReason);
    const QString fusion = QLatin1String("fusion");
    if (!QStyleFactory::keys().contains(fusion, Qt::CaseInsensitive))
        return; // Qt 4 has no such style.
    QTest::newRow("fusion, touched") << fusion << true << int(Qt::MouseFocusReason);
    QTest::newRow("fusion, by the program") << fusion << true << int(Qt::OtherFocusReason);
}

void TestPushButton::focusFrameShowsHoweverTheFocusCame()
{
    QFETCH(QString, style);
    QFETCH(bool, framesKeyboardFocusOnly);
    QFETCH(int, reason);
    const QScopedPointer<QStyle> styling(QStyleFactory::create(style));
    QWidget window;
    PushButton button(QLatin1String("Start"), &window);
    button.setStyle(styling.data());
    button.setGeometry(10, 10, 120, 50);
    QPushButton plain(QLatin1String("Start"), &window);
    plain.setStyle(styling.data());
    plain.setGeometry(150, 10, 120, 50);
    window.resize(280, 70);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(TestCompat::waitForExposed(&window));
    window.setAttribute(Qt::WA_KeyboardFocusChange, false);

    plain.setFocus(Qt::FocusReason(reason));
    QTRY_VERIFY(plain.hasFocus());
    const QImage away = picture(&button);
    const QImage plainFocused = picture(&plain);
    button.setFocus(Qt::FocusReason(reason));
    QTRY_VERIFY(button.hasFocus());
    const QImage focused = picture(&button);
    const QImage plainAway = picture(&plain);

    QVERIFY(away == plainAway);
    QVERIFY(focused != away);
    QCOMPARE(focused != plainFocused, framesKeyboardFocusOnly);

    // It is the very picture that the base class gives when the focus came by a key.
    window.setAttribute(Qt::WA_KeyboardFocusChange, true);
    plain.setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(plain.hasFocus());
    QVERIFY(focused == picture(&plain));
}

FILARIX_TEST_MAIN(TestPushButton)
#include "tst_pushbutton.moc"
