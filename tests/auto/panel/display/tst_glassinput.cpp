// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/glassinput.h"
#include "display/panelglass.h"
#include "filarixtest.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <qpa/qwindowsysteminterface.h>

namespace {

const QSize surface(480, 272);

/// Notes what reaches it.
class Paper : public QWidget
{
public:
    Paper() { setFixedSize(surface); }

    QList<QPoint> presses;
    QString typed;
    bool isClosed = false;

protected:
    void mousePressEvent(QMouseEvent *event) override { presses.append(event->pos()); }
    void keyPressEvent(QKeyEvent *event) override { typed += event->text(); }
    void closeEvent(QCloseEvent *) override { isClosed = true; }
};

void press(QWindow *window, const QPoint &place)
{
    QWindowSystemInterface::handleMouseEvent(window, place, place, Qt::LeftButton, Qt::LeftButton,
                                             QEvent::MouseButtonPress);
    QWindowSystemInterface::handleMouseEvent(window, place, place, Qt::NoButton, Qt::LeftButton,
                                             QEvent::MouseButtonRelease);
    QWindowSystemInterface::flushWindowSystemEvents();
}

} // namespace

/// The input that a PanelGlass installs. How each kind of input goes through each turn is
/// tst_panelglass's.
class TestGlassInput : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPressIsTurnedBack();
    void aKeyGoesToTheFocus();
    void closingTheGlassClosesTheMainWindow();
    void withoutTheGlassNothingIsTurned();
};

void TestGlassInput::aPressIsTurnedBack()
{
    PanelGlass glass(surface, 180);
    Paper paper;
    glass.present(&paper);
    QVERIFY(TestCompat::waitForExposed(&paper));
    press(&glass, QPoint(10, 20));
    QCOMPARE(paper.presses, QList<QPoint>{QPoint(469, 251)});
}

void TestGlassInput::aKeyGoesToTheFocus()
{
    PanelGlass glass(surface, 90);
    Paper paper;
    glass.present(&paper);
    paper.activateWindow();
    QTRY_COMPARE(QGuiApplication::focusWindow(), paper.windowHandle());
    QWindowSystemInterface::handleKeyEvent(&glass, QEvent::KeyPress, Qt::Key_G, Qt::NoModifier,
                                           "g");
    QWindowSystemInterface::flushWindowSystemEvents();
    QCOMPARE(paper.typed, QString("g"));
}

void TestGlassInput::closingTheGlassClosesTheMainWindow()
{
    PanelGlass glass(surface, 90);
    Paper paper;
    glass.present(&paper);
    QWindowSystemInterface::handleCloseEvent(&glass);
    QWindowSystemInterface::flushWindowSystemEvents();
    QVERIFY(paper.isClosed);
}

void TestGlassInput::withoutTheGlassNothingIsTurned()
{
    {
        const PanelGlass glass(surface, 180);
    }
    Paper paper;
    paper.show();
    QVERIFY(TestCompat::waitForExposed(&paper));
    press(paper.windowHandle(), QPoint(10, 20));
    QCOMPARE(paper.presses, QList<QPoint>{QPoint(10, 20)});
}

FILARIX_TEST_MAIN(TestGlassInput)
#include "tst_glassinput.moc"
