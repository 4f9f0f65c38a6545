// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/turnedplatform.h"
#include "filarixtest.h"

#include <QScopedPointer>
#include <QScreen>
#include <QWindow>

class TestTurnedPlatform : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void itsScreenIsThePrimaryOne();
    void windowsAreInItsPicture();
    void whatChangesIsTold();
    void theTopmostWindowIsTheLastOneShown();
    void whatIsNotAboutWindowsComesFromThePlatformBehind();

private:
    QScopedPointer<QWindow> m_glass;
    QScopedPointer<TurnedPlatform> m_platform;
};

namespace {

const QRect surface(0, 0, 320, 200);

QWidget *makeWindow(const QRect &place, Qt::GlobalColor colour)
{
    QWidget *window = new QWidget;
    window->setPalette(QPalette(colour));
    window->setGeometry(place);
    window->show();
    return window;
}

} // namespace

void TestTurnedPlatform::init()
{
    FilarixTest::init();
    m_glass.reset(new QWindow);
    m_platform.reset(new TurnedPlatform(surface.size(), m_glass.data()));
}

void TestTurnedPlatform::cleanup()
{
    m_platform.reset();
    m_glass.reset();
    FilarixTest::cleanup();
}

void TestTurnedPlatform::itsScreenIsThePrimaryOne()
{
    QCOMPARE(m_platform->surface(), surface);
    QCOMPARE(QGuiApplication::primaryScreen()->geometry(), surface);
    const QScreen *own = QGuiApplication::primaryScreen();
    m_platform.reset();
    QVERIFY(QGuiApplication::primaryScreen() != own);
    QVERIFY(QGuiApplication::primaryScreen()->geometry() != surface);
}

void TestTurnedPlatform::windowsAreInItsPicture()
{
    const QScopedPointer<QWidget> window(makeWindow(QRect(20, 30, 100, 50), Qt::red));
    QVERIFY(TestCompat::waitForExposed(window.data()));
    QTRY_COMPARE(m_platform->picture().pixelColor(60, 60), QColor(Qt::red));
    QVERIFY(m_platform->picture().pixelColor(200, 150) != QColor(Qt::red));
    QCOMPARE(m_platform->picture().size(), surface.size());
}

void TestTurnedPlatform::whatChangesIsTold()
{
    QRegion changed;
    m_platform->onRedraw([&changed](const QRegion &region) { changed += region; });
    const QScopedPointer<QWidget> window(makeWindow(QRect(20, 30, 100, 50), Qt::red));
    QTRY_VERIFY(changed.contains(QRect(20, 30, 100, 50)));
    changed = QRegion();
    window->move(150, 30);
    QTRY_VERIFY(changed.contains(QRect(20, 30, 100, 50)));
    QVERIFY(changed.contains(QRect(150, 30, 100, 50)));
    m_platform->onRedraw([](const QRegion &) {});
}

void TestTurnedPlatform::theTopmostWindowIsTheLastOneShown()
{
    const QScopedPointer<QWidget> first(makeWindow(QRect(0, 0, 100, 50), Qt::red));
    QTRY_COMPARE(m_platform->topWindow(), first->windowHandle());
    const QScopedPointer<QWidget> second(makeWindow(QRect(50, 0, 100, 50), Qt::blue));
    QTRY_COMPARE(m_platform->topWindow(), second->windowHandle());
}

void TestTurnedPlatform::whatIsNotAboutWindowsComesFromThePlatformBehind()
{
    const QPlatformFontDatabase *const fonts = m_platform->fontDatabase();
    QVERIFY(fonts);
    QVERIFY(m_platform->services());
    QVERIFY(!m_platform->hasCapability(QPlatformIntegration::WindowManagement));
    QVERIFY(m_platform->hasCapability(QPlatformIntegration::MultipleWindows));
}

FILARIX_TEST_MAIN(TestTurnedPlatform)
#include "tst_turnedplatform.moc"
