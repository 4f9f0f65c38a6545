// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/panelglass.h"
#include "display/platform.h"
#include "filarixtest.h"

class TestPlatform : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowsWithoutADisplayAreThoseOfADesktop();
    void aGlassHasNoWindowManager();
};

void TestPlatform::windowsWithoutADisplayAreThoseOfADesktop()
{
    QCOMPARE(QGuiApplication::platformName(), QString("offscreen"));
    QVERIFY(Platform::isDesktop());
    QVERIFY(Platform::hasWindowManager());
}

void TestPlatform::aGlassHasNoWindowManager()
{
    {
        const PanelGlass glass(QSize(480, 272), 90);
        QVERIFY(!Platform::hasWindowManager());
        // The platform behind it is the same.
        QVERIFY(Platform::isDesktop());
    }
    QVERIFY(Platform::hasWindowManager());
}

FILARIX_TEST_MAIN(TestPlatform)
#include "tst_platform.moc"
