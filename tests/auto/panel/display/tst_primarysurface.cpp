// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/primarysurface.h"
#include "filarixtest.h"

#include <QDesktopWidget>

class TestPrimarySurface : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void screenOfTheToolkitIsTheWindow();
    void screenFollowsTheWindow();
    void deviceLibraryIsToldTheTouchScreen();
};

void TestPrimarySurface::screenOfTheToolkitIsTheWindow()
{
    QWidget window;
    window.setFixedSize(480, 272);
    PrimarySurface surface(&window, true);
    window.show();
    // The window takes its place while it is shown.
    QTRY_COMPARE(QApplication::desktop()->availableGeometry(-1),
                 QRect(window.mapToGlobal(QPoint(0, 0)), QSize(480, 272)));
    const QRect expected(window.mapToGlobal(QPoint(0, 0)), QSize(480, 272));
    QCOMPARE(QApplication::desktop()->screenGeometry(-1), expected);
    QCOMPARE(qApp->property("hmiScreen").toRect(), expected);
}

void TestPrimarySurface::screenFollowsTheWindow()
{
    QWidget window;
    window.setFixedSize(800, 480);
    PrimarySurface surface(&window, true);
    window.show();
    window.move(120, 90);
    const QPoint corner = window.mapToGlobal(QPoint(0, 0));
    QTRY_COMPARE(QApplication::desktop()->availableGeometry(-1), QRect(corner, QSize(800, 480)));
    QCOMPARE(qApp->property("hmiScreen").toRect(), QRect(corner, QSize(800, 480)));
}

void TestPrimarySurface::deviceLibraryIsToldTheTouchScreen()
{
    QWidget window;
    {
        PrimarySurface surface(&window, false);
        QCOMPARE(qApp->property("hmiTouchScreen").toBool(), false);
    }
    PrimarySurface surface(&window, true);
    QCOMPARE(qApp->property("hmiTouchScreen").toBool(), true);
}

FILARIX_TEST_MAIN(TestPrimarySurface)
#include "tst_primarysurface.moc"
