// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "shell/panelscreen.h"

namespace {

/// The least that a screen has to be.
class LeastScreen : public PanelScreen
{
public:
    QString title() const override { return "coil.cnc"; }

    int retranslations = 0;

protected:
    void retranslate() override { ++retranslations; }
};

} // namespace

class TestPanelScreen : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void aScreenThatSaysNothingHoldsUpNothing();
    void aChangeOfTheLanguageIsPassedOn();
};

void TestPanelScreen::aScreenThatSaysNothingHoldsUpNothing()
{
    LeastScreen screen;
    QVERIFY(!screen.hasChanges());
    QVERIFY(screen.keys().isEmpty());
    QVERIFY(screen.mayClose());
    QVERIFY(!screen.isWorking());
}

void TestPanelScreen::aChangeOfTheLanguageIsPassedOn()
{
    LeastScreen screen;
    QEvent font(QEvent::FontChange);
    QCoreApplication::sendEvent(&screen, &font);
    QCOMPARE(screen.retranslations, 0);
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&screen, &language);
    QCOMPARE(screen.retranslations, 1);
}

FILARIX_TEST_MAIN(TestPanelScreen)
#include "tst_panelscreen.moc"
