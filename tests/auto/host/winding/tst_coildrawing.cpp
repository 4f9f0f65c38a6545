// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "filarixtest.h"
#include "winding/coildrawing.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QXmlStreamReader>

typedef CoilDrawing D;

class TestCoilDrawing : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void shapesArePaintedInTheColoursOfTheirRoles();
    void whatHasNoRoleIsNotPainted();
    void aClipEnds();
    void aTurnedTextStands();
    void thePainterIsAsBefore();
    void shadesGoAlongTheScale();
    void svgHasEachShape();
    void svgIsWellFormedWhateverATextHolds();
    void svgNumbersAreShort();
    void aDrawingWithinADrawingIsShifted();
    void textWidthIsNeverTooSmall();
    void wordsStandOutInBothPalettes();
};

namespace {

QImage painted(const CoilDrawing &drawing, const D::Palette &palette)
{
    QImage image(drawing.size().toSize(), QImage::Format_RGB32);
    image.fill(QColor(Qt::white).rgb());
    QPainter painter(&image);
    drawing.paint(&painter, palette);
    return image;
}

/// The elements of a document by name; "broken" when it is none.
QStringList elements(const QByteArray &svg)
{
    QStringList names;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            names.append(reader.name().toString());
    }
    if (reader.hasError())
        names.append(QLatin1String("broken"));
    return names;
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

void TestCoilDrawing::shapesArePaintedInTheColoursOfTheirRoles()
{
    CoilDrawing drawing(QSizeF(100, 100));
    drawing.addBox(QRectF(0, 0, 20, 20), D::Bobbin);
    drawing.addCircle(QPointF(50, 50), 10, D::Wire, 1);
    drawing.addBar(QRectF(80, 80, 20, 20), 0);
    drawing.addLine(QPolygonF() << QPointF(0, 90) << QPointF(60, 90), D::Mark, 6);
    drawing.addArea(QPolygonF() << QPointF(80, 0) << QPointF(100, 0) << QPointF(100, 40)
                                << QPointF(80, 40),
                    D::Speed);
    const D::Palette palette = D::lightPalette();
    const QImage image = painted(drawing, palette);
    QCOMPARE(QColor(image.pixel(10, 10)).name(), palette.colour(D::Bobbin).name());
    QCOMPARE(QColor(image.pixel(50, 50)).name(), palette.colour(D::Wire, 1).name());
    QCOMPARE(QColor(image.pixel(62, 50)).name(), QColor(Qt::white).name());
    QCOMPARE(QColor(image.pixel(90, 90)).name(), palette.colour(D::Wire, 0).name());
    QCOMPARE(QColor(image.pixel(30, 90)).name(), palette.colour(D::Mark).name());
    QCOMPARE(QColor(image.pixel(90, 20)).name(), palette.colour(D::Speed).name());
}

void TestCoilDrawing::whatHasNoRoleIsNotPainted()
{
    CoilDrawing drawing(QSizeF(20, 20));
    drawing.addBox(QRectF(2, 2, 16, 16), D::NoRole);
    const QImage image = painted(drawing, D::darkPalette());
    QCOMPARE(inkIn(image, image.rect()), 0);
}

void TestCoilDrawing::aClipEnds()
{
    CoilDrawing drawing(QSizeF(100, 100));
    drawing.beginClip(QRectF(0, 0, 50, 50));
    drawing.addBox(QRectF(0, 0, 100, 100), D::Ink);
    drawing.endClip();
    drawing.addBox(QRectF(80, 80, 10, 10), D::Ink);
    const QImage image = painted(drawing, D::lightPalette());
    QCOMPARE(inkIn(image, QRect(0, 0, 50, 50)), 2500);
    QCOMPARE(inkIn(image, QRect(50, 0, 50, 50)), 0);
    QCOMPARE(inkIn(image, QRect(80, 80, 10, 10)), 100);
}

void TestCoilDrawing::aTurnedTextStands()
{
    CoilDrawing lying(QSizeF(120, 120));
    lying.addText(QPointF(60, 60), "WWWWWW", 14, D::Ink, D::InMiddle);
    const QImage flat = painted(lying, D::lightPalette());
    CoilDrawing standing(QSizeF(120, 120));
    standing.addTurnedText(QPointF(60, 60), "WWWWWW", 14, D::Ink, D::InMiddle);
    const QImage turned = painted(standing, D::lightPalette());
    // Before and behind the middle alike.
    QVERIFY(inkIn(flat, QRect(30, 40, 30, 25)) > 20);
    QVERIFY(inkIn(flat, QRect(60, 40, 30, 25)) > 20);
    QVERIFY(inkIn(turned, QRect(40, 30, 25, 30)) > 20);
    QVERIFY(inkIn(turned, QRect(40, 60, 25, 30)) > 20);
    QCOMPARE(inkIn(turned, QRect(70, 0, 50, 120)), 0);
}

void TestCoilDrawing::thePainterIsAsBefore()
{
    QImage image(50, 50, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    CoilDrawing drawing(QSizeF(50, 50));
    drawing.beginClip(QRectF(0, 0, 5, 5));
    drawing.addText(QPointF(0, 20), "x", 30);
    drawing.paint(&painter, D::lightPalette());
    QCOMPARE(painter.pen().color(), QColor(Qt::red));
    QVERIFY(!painter.hasClipping());
}

void TestCoilDrawing::shadesGoAlongTheScale()
{
    const D::Palette palette = D::lightPalette();
    QCOMPARE(palette.colour(D::Wire, 0), palette.scale.first());
    QCOMPARE(palette.colour(D::Wire, 1), palette.scale.last());
    QCOMPARE(palette.colour(D::Wire, -3), palette.scale.first());
    QCOMPARE(palette.colour(D::Wire, 9), palette.scale.last());
    QCOMPARE(palette.colour(D::Wire, 0.5f).name(), palette.scale.at(2).name());
    QVERIFY(!palette.colour(D::NoRole).isValid());
    // Without a scale wires have a colour all the same.
    QVERIFY(D::Palette().colour(D::Wire, 0.5f) == QColor());
}

void TestCoilDrawing::svgHasEachShape()
{
    CoilDrawing drawing(QSizeF(200, 100));
    drawing.addBox(QRectF(1, 2, 3, 4), D::Bobbin, D::BobbinEdge);
    drawing.addCircle(QPointF(5, 5), 2, D::Wire, 0.3f);
    drawing.beginClip(QRectF(0, 0, 10, 10));
    drawing.addLine(QPolygonF() << QPointF(0, 0) << QPointF(1, 1), D::Rapid, 2, true);
    drawing.endClip();
    drawing.addArea(QPolygonF() << QPointF(0, 0) << QPointF(1, 1) << QPointF(1, 0), D::Feed);
    drawing.addText(QPointF(3, 4), "28", 12, D::Ink, D::AtRight, true);
    const QByteArray svg = drawing.svg(D::lightPalette());
    QCOMPARE(elements(svg), QStringList() << "svg"
                                          << "rect"
                                          << "circle"
                                          << "clipPath"
                                          << "rect"
                                          << "g"
                                          << "polyline"
                                          << "polygon"
                                          << "text");
    QVERIFY(svg.contains("width=\"200\" height=\"100\""));
    QVERIFY(svg.contains("<circle cx=\"5\" cy=\"5\" r=\"2\""));
    QVERIFY(svg.contains("stroke-dasharray"));
    QVERIFY(svg.contains("text-anchor=\"end\" font-weight=\"bold\""));
    QVERIFY(svg.contains(D::lightPalette().colour(D::Bobbin).name().toLatin1()));
}

void TestCoilDrawing::svgIsWellFormedWhateverATextHolds()
{
    CoilDrawing drawing(QSizeF(10, 10));
    drawing.beginClip(QRectF(0, 0, 10, 10));
    drawing.addText(QPointF(0, 0), QString::fromUtf8("a<b>&\"c\" \xc3\x98 \xe7\xba\xbf"), 12);
    drawing.addTurnedText(QPointF(0, 0), "up", 12);
    // A file system takes any name; a document of this kind does not take all characters.
    drawing.addText(QPointF(0, 0), QString("a\x01\x1b\x7f.cnc") + QChar(0xfffe) + QChar(0xd800),
                    12);
    drawing.addText(QPointF(0, 0), QString::fromUtf8("\xf0\x9f\xa7\xb5"), 12);
    // The clip that nobody ended is ended.
    const QByteArray svg = drawing.svg(D::darkPalette());
    QCOMPARE(elements(svg), QStringList() << "svg"
                                          << "clipPath"
                                          << "rect"
                                          << "g"
                                          << "text"
                                          << "text"
                                          << "text"
                                          << "text");
    QVERIFY(svg.contains(">a\xef\xbf\xbd\xef\xbf\xbd"));
    QVERIFY(svg.contains(">\xf0\x9f\xa7\xb5<"));
    QVERIFY(svg.contains("a&lt;b&gt;&amp;\"c\""));
    QVERIFY(svg.contains("rotate(-90 0 0)"));
}

void TestCoilDrawing::svgNumbersAreShort()
{
    CoilDrawing drawing(QSizeF(10, 10));
    drawing.addBox(QRectF(-0.001, 1.0 / 3, 2.5, -7.05), D::Ink);
    QVERIFY2(drawing.svg(D::lightPalette())
                 .contains("x=\"0\" y=\"0.33\" width=\"2.5\" height=\"-7.05\""),
             drawing.svg(D::lightPalette()).constData());
}

void TestCoilDrawing::aDrawingWithinADrawingIsShifted()
{
    CoilDrawing inner(QSizeF(10, 10));
    inner.beginClip(QRectF(0, 0, 5, 10));
    inner.addBox(QRectF(0, 0, 10, 10), D::Ink);
    inner.endClip();
    inner.addLine(QPolygonF() << QPointF(8, 0) << QPointF(8, 10), D::Ink, 2);
    CoilDrawing outer(QSizeF(60, 60));
    outer.addDrawing(inner, QPointF(40, 20));
    const QImage image = painted(outer, D::lightPalette());
    QCOMPARE(inkIn(image, QRect(40, 20, 5, 10)), 50);
    QCOMPARE(inkIn(image, QRect(47, 20, 2, 10)), 20);
    QCOMPARE(inkIn(image, image.rect()), 70);
}

// What is laid out by the guess never runs into its neighbour.
void TestCoilDrawing::textWidthIsNeverTooSmall()
{
    const QStringList texts = QStringList()
                              << "28"
                              << "0.25"
                              << "-100"
                              << "Layer 1"
                              << "Tension 6.5"
                              << "6 N"
                              << "winding"
                              << "moving"
                              << "rapid"
                              << "Wicklung"
                              << "avvolgimento"
                              << "mm"
                              << "1/min"
                              << "turns"
                              << "Coil 12 of 120" << QString::fromUtf8("\xe5\xb1\x82 1")
                              << QString(QChar(0xd8));
    for (int bold = 0; bold < 2; ++bold) {
        for (int pixels = 10; pixels <= 24; ++pixels) {
            QFont font("DejaVu Sans");
            font.setPixelSize(pixels);
            font.setBold(bold);
            const QFontMetricsF metrics(font);
            for (int i = 0; i < texts.size(); ++i)
                QVERIFY2(D::textWidth(texts.at(i), float(pixels), bold)
                             >= metrics.width(texts.at(i)) - 1,
                         qPrintable(QString("%1 %2").arg(texts.at(i)).arg(pixels)));
        }
    }
}

void TestCoilDrawing::wordsStandOutInBothPalettes()
{
    const D::Palette palettes[] = {D::lightPalette(), D::darkPalette()};
    const D::Role words[] = {D::Ink, D::FaintInk, D::Traverse, D::Speed, D::Tension, D::Mark};
    for (int i = 0; i < 2; ++i) {
        const QColor paper = palettes[i].colour(D::Paper);
        for (int word = 0; word < 6; ++word)
            QVERIFY2(Contrast::ratio(palettes[i].colour(words[word]), paper)
                         >= Contrast::textContrast,
                     qPrintable(QString::number(words[word])));
        // A wire of any shade is seen on the paper.
        for (int shade = 0; shade <= 20; ++shade)
            QVERIFY2(Contrast::ratio(palettes[i].colour(D::Wire, shade / 20.0f), paper) >= 1.8,
                     qPrintable(QString::number(shade)));
    }
}

FILARIX_TEST_MAIN(TestCoilDrawing)
#include "tst_coildrawing.moc"
