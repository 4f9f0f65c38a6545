// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "filarixtest.h"
#include "look/keyboardway.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "look/panelstyle.h"
#include "look/taparea.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>

class TestKeyboardWay : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aTouchLeavesTheFocusToTheEditor();
    void theEditorIsLeftByF6();
    void theEditorTakesTab();
    void theFrameComesWithTheKeysAndGoesWithATouch();
    void theFrameFollowsAndStaysInTheWindow();
    void theFrameStandsOut_data();
    void theFrameStandsOut();
    void returnAndSpacePress_data();
    void returnAndSpacePress();
    void aKeyThatIsHeldPressesOnce();
    void aFirstReturnShowsTheFrameAlone();
    void aWindowThatGoesTakesItsFrame();

private:
    QWidget *frame() const { return m_window->findChild<QWidget *>("focusFrame"); }

    QScopedPointer<KeyboardWay> m_way;
    QScopedPointer<QWidget> m_window;
    PanelKey *m_first = nullptr;
    QPlainTextEdit *m_editor = nullptr;
    PanelKey *m_last = nullptr;
};

void TestKeyboardWay::initTestCase()
{
    QApplication::setStyle(new PanelStyle);
}

void TestKeyboardWay::init()
{
    m_way.reset(new KeyboardWay(nullptr));
    m_window.reset(new QWidget);
    QHBoxLayout *row = new QHBoxLayout(m_window.data());
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_first = new PanelKey("First"));
    row->addWidget(m_editor = new QPlainTextEdit);
    row->addWidget(m_last = new PanelKey("Last"));
    m_window->resize(300, 100);
    m_window->show();
    QApplication::setActiveWindow(m_window.data());
    QVERIFY(TestCompat::waitForExposed(m_window.data()));
    m_editor->setFocus();
    QTRY_VERIFY(m_editor->hasFocus());
}

void TestKeyboardWay::cleanup()
{
    m_window.reset();
    m_way.reset();
    FilarixTest::cleanup();
}

void TestKeyboardWay::aTouchLeavesTheFocusToTheEditor()
{
    QTest::mouseClick(m_first, Qt::LeftButton);
    QVERIFY(m_editor->hasFocus());
    QVERIFY(!m_way->isShown());
}

void TestKeyboardWay::theEditorIsLeftByF6()
{
    QTest::keyClick(m_editor, Qt::Key_F6);
    QVERIFY(m_last->hasFocus());
    QTest::keyClick(m_last, Qt::Key_F6, Qt::ShiftModifier);
    QVERIFY(m_editor->hasFocus());
    QTest::keyClick(m_editor, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(m_first->hasFocus());
    QTest::keyClick(m_first, Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(m_editor->hasFocus());
    QCOMPARE(m_editor->toPlainText(), QString());
}

void TestKeyboardWay::theEditorTakesTab()
{
    QTest::keyClick(m_editor, Qt::Key_Tab);
    QVERIFY(m_editor->hasFocus());
    QCOMPARE(m_editor->toPlainText(), QString("\t"));
    QVERIFY(!m_way->isShown());
}

void TestKeyboardWay::theFrameComesWithTheKeysAndGoesWithATouch()
{
    QVERIFY(!frame());
    m_last->setFocus();
    QVERIFY(!frame());
    QTest::keyClick(m_last, Qt::Key_Tab);
    QVERIFY(m_first->hasFocus());
    QVERIFY(frame() && frame()->isVisible());
    QSignalSpy clicked(m_first, SIGNAL(clicked()));
    QTest::mouseClick(m_first, Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(!frame());
}

void TestKeyboardWay::theFrameFollowsAndStaysInTheWindow()
{
    QTest::keyClick(m_editor, Qt::Key_F6);
    const int width = KeyboardWay::frameWidth();
    const QRect around = m_last->geometry().adjusted(-width, -width, width, width);
    QCOMPARE(frame()->geometry(), around & m_window->rect());
    QVERIFY(frame()->geometry() != around);
    const QRect before = frame()->geometry();
    m_window->resize(400, 100);
    QTRY_VERIFY(frame()->geometry() != before);
    QCOMPARE(frame()->geometry().right(), 399);
}

void TestKeyboardWay::theFrameStandsOut_data()
{
    QTest::addColumn<QColor>("ground");
    for (int part = 0; part <= 255; part += 51)
        QTest::newRow(qPrintable(QString("grey %1").arg(part))) << QColor(part, part, part);
    QTest::newRow("accent") << Look::accent();
    QTest::newRow("the frame's own") << Look::focus();
    QTest::newRow("changed") << Look::changed();
    QTest::newRow("alarm") << Look::ground(Message::Alarm);
}

void TestKeyboardWay::theFrameStandsOut()
{
    QFETCH(QColor, ground);
    const double best =
        qMax(Contrast::ratio(Look::focus(), ground), Contrast::ratio(Look::focusEdge(), ground));
    QVERIFY2(best >= 3, qPrintable(QString::number(best)));
}

void TestKeyboardWay::returnAndSpacePress_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void TestKeyboardWay::returnAndSpacePress()
{
    QFETCH(int, key);
    QPushButton *push = new QPushButton("Push", m_window.data());
    push->show();
    TapArea *area = new TapArea(m_window.data());
    area->resize(50, 50);
    area->show();
    QSignalSpy ofLast(m_last, SIGNAL(clicked()));
    QSignalSpy ofPush(push, SIGNAL(clicked()));
    QSignalSpy ofArea(area, SIGNAL(touched()));
    QTest::keyClick(m_editor, Qt::Key_F6);
    QTest::keyClick(m_last, Qt::Key(key));
    QCOMPARE(ofLast.size(), 1);
    push->setFocus();
    QTest::keyClick(push, Qt::Key(key));
    QCOMPARE(ofPush.size(), 1);
    area->setFocus();
    QTest::keyClick(area, Qt::Key(key));
    QCOMPARE(ofArea.size(), 1);
}

void TestKeyboardWay::aKeyThatIsHeldPressesOnce()
{
    QTest::keyClick(m_editor, Qt::Key_F6);
    QSignalSpy clicked(m_last, SIGNAL(clicked()));
    QTest::keyPress(m_last, Qt::Key_Return);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(m_last, &up);
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(m_last, &down);
    }
    QTest::keyRelease(m_last, Qt::Key_Return);
    QCOMPARE(clicked.size(), 1);
}

void TestKeyboardWay::aFirstReturnShowsTheFrameAlone()
{
    m_last->setFocus();
    QSignalSpy clicked(m_last, SIGNAL(clicked()));
    QTest::keyClick(m_last, Qt::Key_Return);
    QCOMPARE(clicked.size(), 0);
    QVERIFY(m_way->isShown());
    QTest::keyClick(m_last, Qt::Key_Return);
    QCOMPARE(clicked.size(), 1);
}

void TestKeyboardWay::aWindowThatGoesTakesItsFrame()
{
    QTest::keyClick(m_editor, Qt::Key_F6);
    const QPointer<QWidget> old = frame();
    QVERIFY(old);
    m_window.reset();
    QVERIFY(!old);
}

FILARIX_TEST_MAIN(TestKeyboardWay)
#include "tst_keyboardway.moc"
