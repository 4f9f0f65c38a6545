// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "look/glyphs.h"
#include "look/look.h"

#include <QImage>
#include <QPainter>
#include <QSet>

class TestGlyphs : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyDrawingIsOneOfItsOwn();
    void aDrawingStaysInItsPlace();
    void redoIsUndoSeenInAMirror();
    void whatLeadsBackIsWhatLeadsOnUpsideDown();
    void anIconFollowsTheLook();
    void aKeyThatIsOffIsFaint();
};

namespace {

const int last = Glyphs::Alarm;
const int side = 48;

QImage drawn(int glyph, const QRect &place = QRect(0, 0, side, side))
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    Glyphs::draw(Glyphs::Glyph(glyph), &painter, place, Qt::black);
    return image;
}

int inkIn(const QImage &image, const QRect &place)
{
    int ink = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            ink += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
    }
    return ink;
}

} // namespace

void TestGlyphs::cleanup()
{
    Look::use(Look::Light);
    FilarixTest::cleanup();
}

void TestGlyphs::everyDrawingIsOneOfItsOwn()
{
    QList<QImage> all;
    for (int glyph = 0; glyph <= last; ++glyph) {
        const QImage image = drawn(glyph);
        QVERIFY2(inkIn(image, image.rect()) > 50, qPrintable(QString::number(glyph)));
        QVERIFY2(!all.contains(image), qPrintable(QString::number(glyph)));
        all.append(image);
    }
}

void TestGlyphs::aDrawingStaysInItsPlace()
{
    for (int glyph = 0; glyph <= last; ++glyph) {
        const QRect place(12, 12, 24, 24);
        const QImage image = drawn(glyph, place);
        const int ink = inkIn(image, image.rect());
        QVERIFY(ink > 0);
        // The pen may stand out by half its width.
        QCOMPARE(inkIn(image, place.adjusted(-1, -1, 1, 1)), ink);
    }
}

void TestGlyphs::redoIsUndoSeenInAMirror()
{
    const QImage undo = drawn(Glyphs::Undo).mirrored(true, false);
    const QImage redo = drawn(Glyphs::Redo);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            QVERIFY(qAbs(qGray(undo.pixel(x, y)) - qGray(redo.pixel(x, y))) < 16);
    }
}

void TestGlyphs::whatLeadsBackIsWhatLeadsOnUpsideDown()
{
    const QPair<Glyphs::Glyph, Glyphs::Glyph> pairs[] = {{Glyphs::First, Glyphs::Last},
                                                         {Glyphs::PageUp, Glyphs::PageDown}};
    for (const QPair<Glyphs::Glyph, Glyphs::Glyph> &pair : pairs) {
        const QImage back = drawn(pair.first).mirrored(false, true);
        const QImage on = drawn(pair.second);
        int different = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                different += qAbs(qGray(back.pixel(x, y)) - qGray(on.pixel(x, y))) < 16 ? 0 : 1;
        }
        // Where two strokes meet, a pixel may be another.
        QVERIFY2(different <= 4, qPrintable(QString::number(different)));
    }
}

void TestGlyphs::anIconFollowsTheLook()
{
    const QIcon icon = Glyphs::icon(Glyphs::Files, Glyphs::OnKey);
    Look::use(Look::Light);
    const QImage light = icon.pixmap(side, side).toImage();
    Look::use(Look::Dark);
    QVERIFY(icon.pixmap(side, side).toImage() != light);
    Look::use(Look::Light);
    QCOMPARE(icon.pixmap(side, side).toImage(), light);
}

void TestGlyphs::aKeyThatIsOffIsFaint()
{
    for (Glyphs::Ground ground : {Glyphs::OnStrip, Glyphs::OnKey}) {
        const QIcon icon = Glyphs::icon(Glyphs::Files, ground);
        QVERIFY(icon.pixmap(side, side, QIcon::Disabled).toImage()
                != icon.pixmap(side, side, QIcon::Normal).toImage());
    }
}

FILARIX_TEST_MAIN(TestGlyphs)
#include "tst_glyphs.moc"
