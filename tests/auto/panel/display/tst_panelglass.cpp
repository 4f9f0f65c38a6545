// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/panelglass.h"
#include "display/platform.h"
#include "display/primarysurface.h"
#include "filarixtest.h"
#include "modaldriver.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QComboBox>
#include <QDesktopWidget>
#include <QDialog>
#include <QDrag>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QToolTip>

#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

namespace {

const QSize surfaceSize(480, 272);

QPoint middle(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

/// A screen of four keys in the corners, each of which notes its name.
class Screen : public QWidget
{
    Q_OBJECT

public:
    Screen()
    {
        setFixedSize(surfaceSize);
        addKey("upper left", 0, 0);
        addKey("upper right", 380, 0);
        addKey("lower left", 0, 232);
        addKey("lower right", 380, 232);
    }

    QPushButton *key(const QString &text) const
    {
        Q_FOREACH (QPushButton *button, findChildren<QPushButton *>()) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }

    QStringList pressed;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(0, 0, width() / 3, height(), Qt::red);
        painter.fillRect(0, 0, width(), height() / 3, Qt::blue);
    }

private Q_SLOTS:
    void note() { pressed.append(qobject_cast<QPushButton *>(sender())->text()); }

private:
    void addKey(const char *text, int x, int y)
    {
        QPushButton *button = new QPushButton(text, this);
        button->setGeometry(x, y, 100, 40);
        connect(button, SIGNAL(clicked()), SLOT(note()));
    }
};

/// A glass with the screen on it, and what a finger or a mouse does to the glass.
struct Panel
{
    explicit Panel(int degrees) : glass(surfaceSize, degrees)
    {
        surface.reset(new PrimarySurface(&screen, true));
        glass.present(&screen);
        glass.requestActivate();
    }

    QPoint onGlass(const QPoint &onSurface) const { return glass.toGlass(onSurface).toPoint(); }

    /// As the platform reports it: QtTest's own functions would pass the glass by.
    void mouse(QEvent::Type type, const QPoint &onSurface)
    {
        if (type == QEvent::MouseButtonPress)
            buttons = Qt::LeftButton;
        else if (type == QEvent::MouseButtonRelease)
            buttons = Qt::NoButton;
        const QPoint place = onGlass(onSurface);
        QWindowSystemInterface::handleMouseEvent(
            &glass, place, glass.mapToGlobal(place), buttons,
            type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, type);
        QWindowSystemInterface::flushWindowSystemEvents();
        QCoreApplication::processEvents();
    }
    void click(const QPoint &onSurface)
    {
        mouse(QEvent::MouseMove, onSurface);
        mouse(QEvent::MouseButtonPress, onSurface);
        mouse(QEvent::MouseButtonRelease, onSurface);
    }
    void click(const QWidget *widget) { click(middle(widget)); }

    void key(int code, const QString &text = QString())
    {
        QWindowSystemInterface::handleKeyEvent(&glass, QEvent::KeyPress, code, Qt::NoModifier,
                                               text);
        QWindowSystemInterface::handleKeyEvent(&glass, QEvent::KeyRelease, code, Qt::NoModifier,
                                               text);
        QWindowSystemInterface::flushWindowSystemEvents();
        QCoreApplication::processEvents();
    }
    void type(const char *text)
    {
        for (; *text; ++text)
            key(QChar(*text).toUpper().unicode(), QString(QChar(*text)));
    }

    void touch(QWindow *window, Qt::TouchPointState state, const QPointF &place)
    {
        static QTouchDevice *const device = QTest::createTouchDevice();
        QWindowSystemInterface::TouchPoint point;
        point.area = QRectF(0, 0, 1, 1);
        point.area.moveCenter(place);
        point.state = state;
        QWindowSystemInterface::handleTouchEvent(
            window, device, QList<QWindowSystemInterface::TouchPoint>() << point);
        QWindowSystemInterface::flushWindowSystemEvents();
    }

    /// The pixels of the glass in the platform's window.
    QImage window() const
    {
        return glass.screen()->handle()->grabWindow(glass.winId(), 0, 0, -1, -1).toImage();
    }

    PanelGlass glass;
    Screen screen;
    Qt::MouseButtons buttons;
    QScopedPointer<PrimarySurface> surface;
};

QImage turned(const QImage &picture, int degrees)
{
    return picture.transformed(QTransform().rotate(degrees)).convertToFormat(QImage::Format_RGB32);
}

} // namespace

class TestPanelGlass : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void corners_data();
    void corners();
    void surfaceIsTheScreen_data() { rotations(); }
    void surfaceIsTheScreen();
    void screenOfTheDesktopStaysAside();
    void glassShowsTheSurfaceTurned_data() { rotations(); }
    void glassShowsTheSurfaceTurned();
    void changeOfTheSurfaceIsShown_data() { rotations(); }
    void changeOfTheSurfaceIsShown();
    void clickPressesTheKeyBelow_data() { rotations(); }
    void clickPressesTheKeyBelow();
    void keyThatIsPressedKeepsTheMouse_data() { rotations(); }
    void keyThatIsPressedKeepsTheMouse();
    void modalDialogsGetTheClicksAndNobodyElse_data() { rotations(); }
    void modalDialogsGetTheClicksAndNobodyElse();
    void comboPopup_data() { rotations(); }
    void comboPopup();
    void popupBesideTheSurfaceIsBroughtOntoIt_data() { rotations(); }
    void popupBesideTheSurfaceIsBroughtOntoIt();
    void keypad_data();
    void keypad();
    void keysReachTheFocus_data() { rotations(); }
    void keysReachTheFocus();
    void pressActivatesTheWindowBelow_data() { rotations(); }
    void pressActivatesTheWindowBelow();
    void wheel_data() { rotations(); }
    void wheel();
    void touch_data() { rotations(); }
    void touch();
    void touchOfADisplayOfItsOwn_data() { rotations(); }
    void touchOfADisplayOfItsOwn();
    void mouseOfAViewer_data() { rotations(); }
    void mouseOfAViewer();
    void pointerTakesTheShapeAskedFor();
    void keyUnderThePointerKnows();
    void textIsDropped_data() { rotations(); }
    void textIsDropped();
    void glassTakesTheTitle();
    void closingTheGlassClosesTheMainWindow();
    void windowsAreThePlatformsAgainAfterwards();

private:
    static void rotations();
};

void TestPanelGlass::rotations()
{
    QTest::addColumn<int>("degrees");
    QTest::newRow("not turned") << 0;
    QTest::newRow("clockwise") << 90;
    QTest::newRow("upside down") << 180;
    QTest::newRow("anticlockwise") << 270;
}

void TestPanelGlass::corners_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPointF>("upperLeft");
    QTest::addColumn<QPointF>("lowerRight");
    QTest::newRow("not turned") << 0 << QSize(480, 272) << QPointF(0, 0) << QPointF(479, 271);
    QTest::newRow("clockwise") << 90 << QSize(272, 480) << QPointF(271, 0) << QPointF(0, 479);
    QTest::newRow("upside down") << 180 << QSize(480, 272) << QPointF(479, 271) << QPointF(0, 0);
    QTest::newRow("anticlockwise") << 270 << QSize(272, 480) << QPointF(0, 479) << QPointF(271, 0);
}

void TestPanelGlass::corners()
{
    QFETCH(int, degrees);
    QFETCH(QSize, size);
    QFETCH(QPointF, upperLeft);
    QFETCH(QPointF, lowerRight);
    const PanelGlass glass(surfaceSize, degrees);
    QCOMPARE(glass.size(), size);
    QCOMPARE(glass.toGlass(QPointF(0, 0)), upperLeft);
    QCOMPARE(glass.toGlass(QPointF(479, 271)), lowerRight);
    QCOMPARE(glass.toSurface(upperLeft), QPointF(0, 0));
    QCOMPARE(glass.toSurface(lowerRight), QPointF(479, 271));
    QCOMPARE(glass.toSurface(glass.toGlass(QPointF(100, 30))), QPointF(100, 30));
    // Off the glass, as in a drag.
    QCOMPARE(glass.toSurface(glass.toGlass(QPointF(-20, 30))), QPointF(0, 30));
    QCOMPARE(glass.toSurface(glass.toGlass(QPointF(100, 300))), QPointF(100, 271));
}

void TestPanelGlass::surfaceIsTheScreen()
{
    QFETCH(int, degrees);
    const QRect before = QGuiApplication::primaryScreen()->geometry();
    const int screens = QGuiApplication::screens().size();
    const QRect surface(QPoint(0, 0), surfaceSize);
    {
        const Panel panel(degrees);
        QCOMPARE(QGuiApplication::primaryScreen()->geometry(), surface);
        QCOMPARE(QApplication::desktop()->availableGeometry(-1), surface);
        QCOMPARE(QApplication::desktop()->screenGeometry(-1), surface);
        QCOMPARE(panel.screen.geometry(), surface);
        QCOMPARE(qApp->property("hmiScreen").toRect(), surface);
        QVERIFY(!Platform::hasWindowManager());
    }
    QVERIFY(Platform::hasWindowManager());
    QCOMPARE(QGuiApplication::primaryScreen()->geometry(), before);
    QCOMPARE(QGuiApplication::screens().size(), screens);
}

void TestPanelGlass::screenOfTheDesktopStaysAside()
{
    Panel panel(90);
    QWindowSystemInterface::handlePrimaryScreenChanged(panel.glass.screen()->handle());
    QCOMPARE(QGuiApplication::primaryScreen()->size(), surfaceSize);
    QDialog dialog(&panel.screen);
    dialog.resize(100, 50);
    dialog.show();
    QVERIFY(QRect(QPoint(0, 0), surfaceSize).contains(dialog.geometry()));
    panel.click(&dialog);
}

void TestPanelGlass::glassShowsTheSurfaceTurned()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QDialog dialog(&panel.screen);
    dialog.setPalette(QPalette(Qt::yellow));
    dialog.setGeometry(60, 100, 230, 90);
    QLineEdit field(&dialog);
    field.setText("12.5");
    field.setFocusPolicy(Qt::NoFocus); // no cursor that blinks
    dialog.show();

    QImage surface = TestCompat::grab(&panel.screen).toImage();
    QPainter(&surface).drawImage(60, 100, TestCompat::grab(&dialog).toImage());
    QTRY_COMPARE(panel.glass.picture(), turned(surface, degrees));
    QTRY_COMPARE(panel.window().convertToFormat(QImage::Format_RGB32), turned(surface, degrees));
}

void TestPanelGlass::changeOfTheSurfaceIsShown()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QTRY_COMPARE(panel.window().convertToFormat(QImage::Format_RGB32), panel.glass.picture());
    const QImage before = panel.glass.picture();
    panel.screen.key("upper right")->setText("X");
    QTRY_VERIFY(panel.glass.picture() != before);
    QTRY_COMPARE(panel.window().convertToFormat(QImage::Format_RGB32), panel.glass.picture());
    QVERIFY(panel.window().convertToFormat(QImage::Format_RGB32) != before);
}

void TestPanelGlass::clickPressesTheKeyBelow()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    const QStringList keys = QStringList() << "upper right"
                                           << "lower left"
                                           << "upper left"
                                           << "lower right";
    Q_FOREACH (const QString &key, keys)
        panel.click(panel.screen.key(key));
    QCOMPARE(panel.screen.pressed, keys);
    // To the pixel: the last one of a key, and the first beside it.
    panel.click(QPoint(99, 39));
    QCOMPARE(panel.screen.pressed.size(), 5);
    QCOMPARE(panel.screen.pressed.last(), QString("upper left"));
    panel.click(QPoint(100, 39));
    panel.click(QPoint(99, 40));
    QCOMPARE(panel.screen.pressed.size(), 5);
}

void TestPanelGlass::keyThatIsPressedKeepsTheMouse()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QDialog dialog(&panel.screen);
    dialog.setGeometry(200, 0, 200, 200);
    QPushButton key("dialog", &dialog);
    dialog.show();
    const QPushButton *pressed = panel.screen.key("upper left");
    panel.mouse(QEvent::MouseButtonPress, middle(pressed));
    QVERIFY(pressed->isDown());
    // Over the dialog, off the glass and back.
    panel.mouse(QEvent::MouseMove, QPoint(300, 100));
    QVERIFY(!pressed->isDown());
    panel.mouse(QEvent::MouseMove, QPoint(300, 5000));
    panel.mouse(QEvent::MouseMove, QPoint(20, 20));
    QVERIFY(pressed->isDown());
    panel.mouse(QEvent::MouseMove, middle(&key));
    panel.mouse(QEvent::MouseButtonRelease, middle(&key));
    QVERIFY(!pressed->isDown());
    QCOMPARE(panel.screen.pressed, QStringList());
    panel.click(pressed);
    QCOMPARE(panel.screen.pressed, QStringList("upper left"));
}

void TestPanelGlass::modalDialogsGetTheClicksAndNobodyElse()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    ModalDriver driver;
    QDialog outer(&panel.screen);
    outer.setGeometry(200, 60, 250, 150);
    QPushButton open("open", &outer);
    QObject::connect(&open, &QPushButton::clicked, &outer, [&outer] {
        QMessageBox::warning(&outer, "Warning", "Remove?", QMessageBox::Yes | QMessageBox::No);
    });
    driver.then([&](QWidget *) {
        panel.click(panel.screen.key("upper left"));
        QCOMPARE(panel.screen.pressed, QStringList());
        QTimer::singleShot(0, &outer, [&] { panel.click(&open); });
    });
    driver.then([&](QWidget *box) {
        panel.click(&open);
        QCOMPARE(QApplication::activeModalWidget(), box);
        panel.click(qobject_cast<QMessageBox *>(box)->button(QMessageBox::No));
        QVERIFY(!box->isVisible());
        panel.click(panel.screen.key("upper left"));
        QCOMPARE(panel.screen.pressed, QStringList());
        panel.key(Qt::Key_Escape);
    });
    QCOMPARE(outer.exec(), int(QDialog::Rejected));
    QVERIFY2(driver.finished(), driver.report());
    panel.click(panel.screen.key("upper left"));
    QCOMPARE(panel.screen.pressed, QStringList("upper left"));
}

void TestPanelGlass::comboPopup()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QComboBox combo(&panel.screen);
    combo.addItems(QStringList() << "Wind"
                                 << "Move"
                                 << "Press");
    combo.setGeometry(180, 100, 120, 40);
    combo.show();
    panel.click(&combo);
    QTRY_VERIFY(combo.view()->isVisible());
    const QAbstractItemView *view = combo.view();
    const QPoint third = view->visualRect(combo.model()->index(2, 0)).center();
    panel.click(view->viewport()->mapToGlobal(third));
    QTRY_VERIFY(!combo.view()->isVisible());
    QCOMPARE(combo.currentText(), QString("Press"));

    panel.click(&combo);
    QTRY_VERIFY(combo.view()->isVisible());
    panel.click(QPoint(20, 200));
    QTRY_VERIFY(!combo.view()->isVisible());
    QCOMPARE(combo.currentText(), QString("Press"));
}

void TestPanelGlass::popupBesideTheSurfaceIsBroughtOntoIt()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QMenu menu(&panel.screen);
    const QAction *copy = menu.addAction("Copy");
    menu.addAction("Paste");
    QSignalSpy triggered(copy, SIGNAL(triggered()));
    // On the platform's own screen there would be room.
    menu.popup(QPoint(600, 400));
    QTRY_VERIFY(menu.isVisible());
    QVERIFY(QRect(QPoint(0, 0), surfaceSize).contains(menu.geometry()));
    panel.click(menu.mapToGlobal(menu.actionGeometry(menu.actions().constFirst()).center()));
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!menu.isVisible());
    QToolTip::showText(QPoint(700, 90), "A tip", &panel.screen);
    QTRY_VERIFY(QToolTip::isVisible());
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestPanelGlass::keypad_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("keypad");
    QTest::addColumn<QString>("keys");
    QTest::newRow("numeric, clockwise") << 90 << "numeric"
                                        << "705";
    QTest::newRow("characters, upside down") << 180 << "character"
                                             << "coil";
    QTest::newRow("G-code, anticlockwise") << 270 << "gcode"
                                           << "G01";
}

void TestPanelGlass::keypad()
{
    QFETCH(int, degrees);
    QFETCH(QString, keypad);
    QFETCH(QString, keys);
    Panel panel(degrees);
    QLineEdit field(&panel.screen);
    field.setGeometry(180, 10, 120, 34);
    field.show();
    ModalDriver driver;
    driver.then([&](QWidget *pad) {
        allowTopLevel(pad);
        QVERIFY(QRect(QPoint(0, 0), surfaceSize).contains(pad->geometry()));
        Q_FOREACH (const QChar &key, keys)
            panel.click(pad->findChild<QWidget *>(QLatin1String("key_") + key));
        panel.click(pad->findChild<QWidget *>("key_ok"));
    });
    int result = 0;
    if (keypad == "numeric") {
        NumericKeypad::instance()->setObject(&field);
        result = NumericKeypad::instance()->exec();
    } else if (keypad == "character") {
        CharacterKeypad::instance()->setObject(&field);
        result = CharacterKeypad::instance()->exec();
    } else {
        GCodeKeypad::instance()->setObject(&field);
        result = GCodeKeypad::instance()->exec();
    }
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(result, 1);
    QCOMPARE(field.text(), keys);
}

void TestPanelGlass::keysReachTheFocus()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QLineEdit first(&panel.screen);
    first.setGeometry(120, 0, 100, 34);
    first.show();
    QLineEdit second(&panel.screen);
    second.setGeometry(240, 0, 100, 34);
    second.show();
    panel.click(&second);
    panel.type("g01 x5");
    QCOMPARE(second.text(), QString("g01 x5"));
    panel.click(&first);
    panel.type("7");
    QCOMPARE(first.text(), QString("7"));

    QDialog dialog(&panel.screen);
    QLineEdit inside(&dialog);
    dialog.setModal(true);
    dialog.show();
    panel.type("8");
    QCOMPARE(inside.text(), QString("8"));
    dialog.close();
    panel.type("9");
    QCOMPARE(first.text(), QString("79"));
}

void TestPanelGlass::pressActivatesTheWindowBelow()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QLineEdit field(&panel.screen);
    field.setGeometry(120, 0, 100, 34);
    field.show();
    QDialog find(&panel.screen);
    find.setGeometry(300, 100, 150, 100);
    QLineEdit what(&find);
    find.show();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(&find));
    panel.click(&field);
    panel.type("1");
    QCOMPARE(field.text(), QString("1"));
    // It still lies on top.
    panel.click(&what);
    panel.type("2");
    QCOMPARE(what.text(), QString("2"));

    // Another program comes to the front, and goes.
    QWindowSystemInterface::handleWindowActivated(nullptr);
    QTRY_VERIFY(!QApplication::activeWindow());
    QWindowSystemInterface::handleWindowActivated(&panel.glass);
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(&find));
}

void TestPanelGlass::wheel()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QListWidget list(&panel.screen);
    for (int i = 0; i < 100; ++i)
        list.addItem(QString::number(i));
    list.setGeometry(200, 60, 100, 150);
    list.show();
    const QPoint place = panel.onGlass(middle(&list));
    QWindowSystemInterface::handleWheelEvent(&panel.glass, place, panel.glass.mapToGlobal(place),
                                             QPoint(), QPoint(0, -120));
    QTRY_VERIFY(list.verticalScrollBar()->value() > 0);
}

void TestPanelGlass::touch()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    const QPushButton *key = panel.screen.key("lower left");
    const QPoint place = panel.glass.mapToGlobal(panel.onGlass(middle(key)));
    panel.touch(&panel.glass, Qt::TouchPointPressed, place);
    QVERIFY(key->isDown());
    panel.touch(&panel.glass, Qt::TouchPointReleased, place);
    QCOMPARE(panel.screen.pressed, QStringList("lower left"));
}

// Its driver stretches what it measures over the toolkit's screen, which it takes for the display.
void TestPanelGlass::touchOfADisplayOfItsOwn()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    const QPointF onGlass = panel.glass.toGlass(middle(panel.screen.key("lower left")));
    const QPointF place(onGlass.x() * surfaceSize.width() / panel.glass.width(),
                        onGlass.y() * surfaceSize.height() / panel.glass.height());
    panel.touch(nullptr, Qt::TouchPointPressed, place);
    panel.touch(nullptr, Qt::TouchPointReleased, place);
    QCOMPARE(panel.screen.pressed, QStringList("lower left"));
}

// It names no window, and tells pixels of the display.
void TestPanelGlass::mouseOfAViewer()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    const QPointF place = panel.glass.toGlass(middle(panel.screen.key("lower left")));
    QWindowSystemInterface::handleMouseEvent(nullptr, place, place, Qt::LeftButton, Qt::LeftButton,
                                             QEvent::MouseButtonPress);
    QWindowSystemInterface::handleMouseEvent(nullptr, place, place, Qt::NoButton, Qt::LeftButton,
                                             QEvent::MouseButtonRelease);
    QTRY_COMPARE(panel.screen.pressed, QStringList("lower left"));
}

void TestPanelGlass::pointerTakesTheShapeAskedFor()
{
    Panel panel(90);
    QLineEdit field(&panel.screen);
    field.setGeometry(120, 0, 100, 34);
    field.show();
    panel.mouse(QEvent::MouseMove, QPoint(10, 10));
    QTRY_COMPARE(panel.glass.cursor().shape(), Qt::ArrowCursor);
    panel.mouse(QEvent::MouseMove, middle(&field));
    QTRY_COMPARE(panel.glass.cursor().shape(), Qt::IBeamCursor);
    panel.mouse(QEvent::MouseMove, QPoint(10, 10));
    QTRY_COMPARE(panel.glass.cursor().shape(), Qt::ArrowCursor);
}

void TestPanelGlass::keyUnderThePointerKnows()
{
    Panel panel(90);
    QDialog dialog(&panel.screen);
    dialog.setGeometry(200, 0, 150, 100);
    QPushButton key("dialog", &dialog);
    dialog.show();
    const QPushButton *below = panel.screen.key("upper left");
    panel.mouse(QEvent::MouseMove, middle(below));
    QTRY_VERIFY(below->underMouse());
    panel.mouse(QEvent::MouseMove, middle(&key));
    QTRY_VERIFY(key.underMouse());
    QVERIFY(!below->underMouse());
    QWindowSystemInterface::handleLeaveEvent(&panel.glass);
    QTRY_VERIFY(!key.underMouse());
}

void TestPanelGlass::textIsDropped()
{
    QFETCH(int, degrees);
    Panel panel(degrees);
    QLineEdit field(&panel.screen);
    field.setGeometry(240, 100, 100, 34);
    field.show();
    panel.mouse(QEvent::MouseButtonPress, QPoint(20, 20));
    // The drag waits in an event loop of its own.
    QTimer::singleShot(0, &panel.glass, [&] {
        panel.mouse(QEvent::MouseMove, middle(&field) - QPoint(5, 0));
        panel.mouse(QEvent::MouseMove, middle(&field));
        panel.mouse(QEvent::MouseButtonRelease, middle(&field));
    });
    QDrag *drag = new QDrag(&panel.screen);
    drag->setMimeData(new QMimeData);
    drag->mimeData()->setText("stator");
    QCOMPARE(drag->exec(Qt::CopyAction), Qt::CopyAction);
    QCOMPARE(field.text(), QString("stator"));
}

void TestPanelGlass::glassTakesTheTitle()
{
    Panel panel(90);
    panel.screen.setWindowTitle("coil[*] - Winding panel");
    QCOMPARE(panel.glass.title(), QString("coil - Winding panel"));
    panel.screen.setWindowModified(true);
    QCOMPARE(panel.glass.title(), QString("coil* - Winding panel"));
}

void TestPanelGlass::closingTheGlassClosesTheMainWindow()
{
    Panel panel(90);
    QDialog dialog(&panel.screen);
    dialog.setModal(true);
    dialog.show();
    QWindowSystemInterface::handleCloseEvent(&panel.glass);
    QWindowSystemInterface::flushWindowSystemEvents();
    QVERIFY2(panel.screen.isVisible(), "a question waits for its answer");
    dialog.close();
    QWindowSystemInterface::handleCloseEvent(&panel.glass);
    QTRY_VERIFY(!panel.screen.isVisible());
}

void TestPanelGlass::windowsAreThePlatformsAgainAfterwards()
{
    QWidget survivor;
    survivor.resize(100, 100);
    {
        Panel panel(90);
        survivor.winId();
    }
    QWidget widget;
    widget.resize(120, 80);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QVERIFY(widget.frameGeometry() != widget.geometry());
    QTest::mouseClick(widget.windowHandle(), Qt::LeftButton);
}

FILARIX_TEST_MAIN(TestPanelGlass)
#include "tst_panelglass.moc"
