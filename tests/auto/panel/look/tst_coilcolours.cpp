// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "filarixtest.h"
#include "look/coilcolours.h"
#include "look/look.h"

typedef CoilDrawing D;

class TestCoilColours : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theyAreThoseOfTheScreens();
    void wordsAreReadable();
    void theMarkStandsOutFromTheWire();
};

void TestCoilColours::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

void TestCoilColours::theyAreThoseOfTheScreens()
{
    Look::use(Look::Light);
    const D::Palette light = CoilColours::palette();
    Look::use(Look::Dark);
    const D::Palette dark = CoilColours::palette();
    QCOMPARE(dark.colour(D::Paper), Look::palette().color(QPalette::Base));
    QVERIFY(dark.colour(D::Paper) != light.colour(D::Paper));
    QVERIFY(dark.scale != light.scale);
}

void TestCoilColours::wordsAreReadable()
{
    for (Look::Style style : {Look::Light, Look::Dark, Look::HighContrast}) {
        Look::use(style);
        const D::Palette palette = CoilColours::palette();
        for (D::Role role : {D::Ink, D::FaintInk, D::Traverse, D::Speed, D::Tension, D::Mark})
            QVERIFY2(Contrast::ratio(palette.colour(role), palette.colour(D::Paper))
                         >= Look::leastContrast(style),
                     qPrintable(QString("%1 %2").arg(style).arg(role)));
    }
}

// By its hue where not by its light: it has a rim of paper, too.
void TestCoilColours::theMarkStandsOutFromTheWire()
{
    for (Look::Style style : {Look::Light, Look::Dark, Look::HighContrast}) {
        Look::use(style);
        const D::Palette palette = CoilColours::palette();
        for (int i = 0; i <= 20; ++i) {
            const int away = qAbs(palette.colour(D::Wire, float(i) / 20).hsvHue()
                                  - palette.colour(D::Mark).hsvHue());
            QVERIFY2(qMin(away, 360 - away) > 40, qPrintable(QString::number(i)));
        }
    }
}

FILARIX_TEST_MAIN(TestCoilColours)
#include "tst_coilcolours.moc"
