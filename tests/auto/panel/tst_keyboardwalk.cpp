// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds PanelProgram with all its screens and dialogs: whether a keyboard reaches what can be
// touched, and whether the operator sees where.

#include "contrast.h"
#include "filarixtest.h"
#include "look/keyboardway.h"
#include "look/look.h"
#include "look/panelkey.h"
#include "look/spokennames.h"
#include "panelprogram.h"
#include "screens/connectionsscreen.h"
#include "shell/panelwindow.h"
#include "stick/devicewatch.h"
#include "stick/stick.h"
#include "tour.h"

#include <QHeaderView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

/// Presses Tab, and F6 in the editor, until it has been everywhere.
class TestKeyboardWalk : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void whatIsNotReachedIsFound();
    void whatIsNotSeenIsFound();
    void everythingIsReached_data();
    void everythingIsReached();
};

namespace {

/// Where a stick's folder has to be, for its files to count as the stick's.
const char stickFolder[] = "/mnt/Storage.stick";
const int mostStops = 300;
const double frameContrast = 3;

/// What the library makes takes the focus as its design says, and its dialogs are left alone.
const char *const libraryParts[] = {"TListWidget", "MJLine",       "ConnEditor",  "ImportManage",
                                    "FileDialog",  "WFileDialog",  "WFindDialog", "WCopyDialog",
                                    "KeypadFrame", "KeypadDialog", "GCodeKeypad"};

bool isOfLibrary(const QWidget *widget)
{
    for (const QWidget *around = widget; around; around = around->parentWidget()) {
        for (const char *part : libraryParts) {
            if (around->inherits(part))
                return true;
        }
    }
    return false;
}

/// The arrows of the list or the area itself move it.
bool isPartOfAnother(const QWidget *widget)
{
    return qobject_cast<const QScrollBar *>(widget) || qobject_cast<const QHeaderView *>(widget);
}

/// What the operator could touch in a window.
QWidgetList wanted(const QWidget *window)
{
    QWidgetList found;
    const QWidgetList all = window->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const bool isSeen = widget->isVisible() && !widget->visibleRegion().isEmpty();
        if (isSeen && widget->isEnabled() && SpokenNames::isInteractive(widget)
            && !isPartOfAnother(widget) && !isOfLibrary(widget))
            found.append(widget);
    }
    return found;
}

QString nameOf(const QWidget *widget)
{
    return QString("%1 %2 \"%3\" in %4")
        .arg(widget->metaObject()->className(), widget->objectName(),
             widget->property("text").toString().left(20),
             widget->parentWidget()->metaObject()->className());
}

/// Pixels that stand out from what is there without the focus.
int pixelsThatTell(const QImage &with, const QImage &without)
{
    int count = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            const QRgb one = with.pixel(x, y);
            const QRgb other = without.pixel(x, y);
            count += one != other && Contrast::ratio(QColor(one), QColor(other)) >= frameContrast;
        }
    }
    return count;
}

/// Where the focus is drawn: the seen part of a widget and two pixels around.
QRect placeOf(const QWidget *widget)
{
    const QRect seen = widget->visibleRegion().boundingRect();
    return QRect(widget->mapTo(widget->window(), seen.topLeft()), seen.size())
               .adjusted(-2, -2, 2, 2)
           & widget->window()->rect();
}

void step(QWidget *focus)
{
    const bool isEditor = qobject_cast<QPlainTextEdit *>(focus);
    QTest::keyClick(focus, isEditor ? Qt::Key_F6 : Qt::Key_Tab);
    QCoreApplication::processEvents();
}

/// What a walk through the window does not reach, or reaches without a sign of it.
QStringList faults(QWidget *window)
{
    QWidgetList missing = wanted(window);
    if (missing.isEmpty())
        return QStringList();
    QApplication::setActiveWindow(window);
    const QPointer<QWidget> before = window->focusWidget();
    QStringList found;
    QWidgetList seen;
    if (!QApplication::focusWidget())
        missing.first()->setFocus();
    step(QApplication::focusWidget() ? QApplication::focusWidget() : window);
    for (QWidget *focus = QApplication::focusWidget();
         focus && !seen.contains(focus) && seen.size() < mostStops;
         focus = QApplication::focusWidget()) {
        seen.append(focus);
        const bool isWanted = missing.removeOne(focus);
        const QRect place = placeOf(focus);
        const QImage with = window->grab(place).toImage();
        step(focus);
        if (!isWanted || QApplication::focusWidget() == focus)
            continue;
        // Either of the longer sides would do.
        const QImage without = window->grab(place).toImage();
        const int needed = 2 * qMax(place.width(), place.height());
        if (pixelsThatTell(with, without) < needed)
            found.append(nameOf(focus) + ": nobody sees that it has the focus");
    }
    for (const QWidget *widget : qAsConst(missing))
        found.append(nameOf(widget) + ": no Tab leads there");
    if (before)
        before->setFocus();
    return found;
}

Options optionsFor(const QSize &size, const QString &look)
{
    Options options;
    options.size = size;
    options.rotation = size.width() < size.height() ? 90 : 0;
    options.look = look;
    options.language = QLatin1String("en");
    options.stickDir = QLatin1String(stickFolder);
    return options;
}

} // namespace

void TestKeyboardWalk::initTestCase()
{
    PanelProgram::setUpStyle();
    Look::use(Look::Light);
}

void TestKeyboardWalk::cleanup()
{
    QFile::remove(Stick::marker());
    emptyFolder(stickFolder);
    FilarixTest::cleanup();
}

void TestKeyboardWalk::whatIsNotReachedIsFound()
{
    KeyboardWay way(nullptr);
    QWidget window;
    QVBoxLayout *column = new QVBoxLayout(&window);
    for (const char *name : {"one", "two", "three"})
        column->addWidget(new PanelKey(QLatin1String(name)));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(faults(&window), QStringList());
    PanelKey *lost = new PanelKey(QLatin1String("lost"));
    lost->setFocusPolicy(Qt::NoFocus);
    column->addWidget(lost);
    QCoreApplication::processEvents();
    const QStringList found = faults(&window);
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains("\"lost\" in QWidget: no Tab"), qPrintable(found.first()));
}

void TestKeyboardWalk::whatIsNotSeenIsFound()
{
    QWidget window;
    QVBoxLayout *column = new QVBoxLayout(&window);
    for (const char *name : {"one", "two", "three"})
        column->addWidget(new PanelKey(QLatin1String(name)));
    window.setStyleSheet("PanelKey { background: white; border: 0; }");
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QStringList found = faults(&window);
    QCOMPARE(found.size(), 3);
    QCOMPARE(found.filter("nobody sees").size(), 3);
    KeyboardWay way(nullptr);
    QCOMPARE(faults(&window), QStringList());
}

void TestKeyboardWalk::everythingIsReached_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("look");
    QTest::newRow("480x272 light") << QSize(480, 272) << "light";
    QTest::newRow("480x800 dark") << QSize(480, 800) << "dark";
    QTest::newRow("1024x600 light") << QSize(1024, 600) << "light";
    QTest::newRow("272x480 dark") << QSize(272, 480) << "dark";
    QTest::newRow("800x480 dark") << QSize(800, 480) << "dark";
}

void TestKeyboardWalk::everythingIsReached()
{
    QFETCH(QSize, size);
    QFETCH(QString, look);
    PanelProgram program(optionsFor(size, look), QStringList());
    QCOMPARE(program.start(), PanelProgram::Started);
    PanelWindow &panel = *program.window();
    // In the place of what this machine's devices are.
    program.deviceWatch()->disconnect();
    Tour tour(&panel);
    program.plan(&tour);
    // The import manager has a connection to nothing, and no window system is at hand.
    StrictMessages::expect("Parentheses expected");
    StrictMessages::expect("This plugin does not support");
    QStringList all;
    int stops = 0;
    int walked = 0;
    connect(&tour, &Tour::arrived, this, [&](const QString &name) {
        ++stops;
        QWidget *modal = QApplication::activeModalWidget();
        QWidget *window = modal ? modal : &panel;
        walked += wanted(window).isEmpty() ? 0 : 1;
        QStringList found = faults(window);
        // A key may have been off while what it works with was read beside the walk.
        if (!found.isEmpty())
            found = faults(window);
        for (const QString &fault : qAsConst(found)) {
            if (all.filter(fault).isEmpty())
                all.append(name + ": " + fault);
        }
    });
    QSignalSpy finished(&tour, SIGNAL(finished()));
    tour.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(!finished.isEmpty(), 100000);
    QVERIFY2(tour.error().isEmpty(), qPrintable(tour.error()));
    QVERIFY2(stops >= 45, qPrintable(QString::number(stops)));
    QVERIFY2(walked >= 30, qPrintable(QString::number(walked)));
    for (const QString &fault : qAsConst(all))
        qDebug("%s", qPrintable(fault));
    QCOMPARE(all.size(), 0);
}

FILARIX_TEST_MAIN(TestKeyboardWalk)
#include "tst_keyboardwalk.moc"
