// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/coildrawing.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

namespace {

const qreal dashPixels = 5;
const int longLine = 64;

// In the order of CoilDrawing::Role, without the first one.
const QRgb lightColours[CoilDrawing::roles - 1] = {
    0xffffffff, 0xff17202b, 0xff5c6874, 0xffdde3ea, 0xffc9d1da, 0xff66727f, 0xff40308f, 0xffffffff,
    0xffd5dbe2, 0xff1659a8, 0xff23753a, 0xffa8480c, 0xff1659a8, 0xff23753a, 0xff8b98a6, 0xff00695c};
const QRgb darkColours[CoilDrawing::roles - 1] = {
    0xff12171c, 0xffe8edf2, 0xff9eabb8, 0xff27313b, 0xff3b4855, 0xff8e9ba8, 0xff7d6cf0, 0xff12171c,
    0xff36414d, 0xff8ec3ff, 0xff7ddb98, 0xffffb066, 0xff8ec3ff, 0xff7ddb98, 0xff71808e, 0xff5dffe0};
// From the first layer, or the least tension, to the last.
const QRgb lightScale[] = {0xff40308f, 0xff8e3a9d, 0xffcc4a6e, 0xffe87d3e, 0xffe3b023};
const QRgb darkScale[] = {0xff7566e0, 0xffb364cc, 0xffe8708c, 0xffff9d57, 0xffffdc6b};

template<int count>
CoilDrawing::Palette paletteOf(const QRgb (&colours)[CoilDrawing::roles - 1],
                               const QRgb (&scale)[count])
{
    CoilDrawing::Palette palette;
    for (int i = 1; i < CoilDrawing::roles; ++i)
        palette.colours[i] = QColor(colours[i - 1]);
    for (QRgb colour : scale)
        palette.scale.append(QColor(colour));
    return palette;
}

QColor between(const QColor &one, const QColor &other, qreal part)
{
    return QColor::fromRgbF(one.redF() + (other.redF() - one.redF()) * part,
                            one.greenF() + (other.greenF() - one.greenF()) * part,
                            one.blueF() + (other.blueF() - one.blueF()) * part);
}

/// What no document of this kind may hold: a name of a file may.
bool isForbidden(QChar character)
{
    const ushort value = character.unicode();
    const bool isBlank = value == '\t' || value == '\n' || value == '\r';
    return (value < ' ' && !isBlank) || value >= 0xfffe;
}

/// Writes numbers and names as the text of a file wants them: short, and the same in each language.
class SvgWriter
{
public:
    explicit SvgWriter(const CoilDrawing::Palette &palette) : m_palette(palette) {}

    void begin(const QSizeF &size);
    void add(const CoilDrawing::Shape &shape);
    QByteArray end();

private:
    void number(qreal value);
    void attribute(const char *name, qreal value);
    void colour(const char *name, CoilDrawing::Role role, float shade);
    void style(const CoilDrawing::Shape &shape);
    void points(const QPolygonF &points);
    void box(const CoilDrawing::Shape &shape);
    void circle(const CoilDrawing::Shape &shape);
    void line(const CoilDrawing::Shape &shape);
    void text(const CoilDrawing::Shape &shape);
    void clip(const CoilDrawing::Shape &shape);

    const CoilDrawing::Palette &m_palette;
    QByteArray m_out;
    int m_clips = 0;
    bool m_isClipped = false;
};

void SvgWriter::begin(const QSizeF &size)
{
    m_out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\"";
    attribute("width", size.width());
    attribute("height", size.height());
    m_out += " viewBox=\"0 0 ";
    number(size.width());
    m_out += ' ';
    number(size.height());
    m_out += "\" font-family=\"DejaVu Sans, Arial, sans-serif\">\n";
}

QByteArray SvgWriter::end()
{
    if (m_isClipped)
        m_out += "</g>\n";
    return m_out + "</svg>\n";
}

// A hundredth of a pixel is finer than anything that can be seen.
void SvgWriter::number(qreal value)
{
    const qint64 hundredths = qRound64(value * 100);
    const qint64 size = qAbs(hundredths);
    if (hundredths < 0)
        m_out += '-';
    m_out += QByteArray::number(size / 100);
    const int rest = int(size % 100);
    if (rest == 0)
        return;
    m_out += '.';
    m_out += char('0' + rest / 10);
    if (rest % 10 != 0)
        m_out += char('0' + rest % 10);
}

void SvgWriter::attribute(const char *name, qreal value)
{
    m_out += ' ';
    m_out += name;
    m_out += "=\"";
    number(value);
    m_out += '"';
}

void SvgWriter::colour(const char *name, CoilDrawing::Role role, float shade)
{
    m_out += ' ';
    m_out += name;
    m_out += "=\"";
    m_out += role == CoilDrawing::NoRole ? "none" : m_palette.colour(role, shade).name().toLatin1();
    m_out += '"';
}

void SvgWriter::style(const CoilDrawing::Shape &shape)
{
    colour("fill", shape.fill, shape.shade);
    if (shape.edge == CoilDrawing::NoRole)
        return;
    colour("stroke", shape.edge, shape.shade);
    attribute("stroke-width", qreal(shape.width));
    if (shape.isDashed)
        attribute("stroke-dasharray", dashPixels);
}

void SvgWriter::add(const CoilDrawing::Shape &shape)
{
    switch (shape.kind) {
    case CoilDrawing::Box:
        return box(shape);
    case CoilDrawing::Circle:
        return circle(shape);
    case CoilDrawing::Line:
    case CoilDrawing::Area:
        return line(shape);
    case CoilDrawing::Text:
        return text(shape);
    case CoilDrawing::Clip:
        return clip(shape);
    }
}

void SvgWriter::box(const CoilDrawing::Shape &shape)
{
    m_out += "<rect";
    attribute("x", shape.box.x());
    attribute("y", shape.box.y());
    attribute("width", shape.box.width());
    attribute("height", shape.box.height());
    style(shape);
    m_out += "/>\n";
}

void SvgWriter::circle(const CoilDrawing::Shape &shape)
{
    m_out += "<circle";
    attribute("cx", shape.box.center().x());
    attribute("cy", shape.box.center().y());
    attribute("r", shape.box.width() / 2);
    style(shape);
    m_out += "/>\n";
}

void SvgWriter::line(const CoilDrawing::Shape &shape)
{
    m_out += shape.kind == CoilDrawing::Area ? "<polygon points=\"" : "<polyline points=\"";
    points(shape.points);
    m_out += '"';
    style(shape);
    m_out += "/>\n";
}

void SvgWriter::points(const QPolygonF &points)
{
    for (int i = 0; i < points.size(); ++i) {
        if (i > 0)
            m_out += ' ';
        number(points.at(i).x());
        m_out += ',';
        number(points.at(i).y());
    }
}

void SvgWriter::text(const CoilDrawing::Shape &shape)
{
    static const char *const anchors[] = {"start", "middle", "end"};
    m_out += "<text";
    attribute("x", shape.box.x());
    attribute("y", shape.box.y());
    attribute("font-size", qreal(shape.width));
    m_out += QByteArray(" text-anchor=\"") + anchors[shape.anchor] + '"';
    if (shape.isBold)
        m_out += " font-weight=\"bold\"";
    if (shape.isTurned) {
        m_out += " transform=\"rotate(-90 ";
        number(shape.box.x());
        m_out += ' ';
        number(shape.box.y());
        m_out += ")\"";
    }
    colour("fill", shape.fill, shape.shade);
    QString escaped = shape.text;
    for (QChar &character : escaped)
        if (isForbidden(character))
            character = QChar(QChar::ReplacementCharacter);
    escaped.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    escaped.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    escaped.replace(QLatin1Char('>'), QLatin1String("&gt;"));
    m_out += '>' + escaped.toUtf8() + "</text>\n";
}

void SvgWriter::clip(const CoilDrawing::Shape &shape)
{
    if (m_isClipped)
        m_out += "</g>\n";
    m_isClipped = !shape.box.isNull();
    if (!m_isClipped)
        return;
    const QByteArray name = "clip" + QByteArray::number(++m_clips);
    m_out += "<clipPath id=\"" + name + "\"><rect";
    attribute("x", shape.box.x());
    attribute("y", shape.box.y());
    attribute("width", shape.box.width());
    attribute("height", shape.box.height());
    m_out += "/></clipPath>\n<g clip-path=\"url(#" + name + ")\">\n";
}

/// Sets pen, brush and font only where they change: a coil has thousands of like shapes.
class ShapePainter
{
public:
    ShapePainter(QPainter *painter, const CoilDrawing::Palette &palette)
        : m_painter(painter), m_palette(palette), m_font(painter->font())
    {}

    void add(const CoilDrawing::Shape &shape);

private:
    void dress(const CoilDrawing::Shape &shape);
    void line(const CoilDrawing::Shape &shape);
    void text(const CoilDrawing::Shape &shape);

    QPainter *m_painter;
    const CoilDrawing::Palette &m_palette;
    QFont m_font;
    QColor m_fill;
    QColor m_edge;
    float m_width = -1;
    bool m_isDashed = false;
    bool m_isDressed = false;
};

void ShapePainter::dress(const CoilDrawing::Shape &shape)
{
    const QColor fill = m_palette.colour(shape.fill, shape.shade);
    const QColor edge = m_palette.colour(shape.edge, shape.shade);
    if (!m_isDressed || fill != m_fill)
        m_painter->setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    if (!m_isDressed || edge != m_edge || shape.width != m_width || shape.isDashed != m_isDashed) {
        QPen pen(edge, qreal(shape.width), edge.isValid() ? Qt::SolidLine : Qt::NoPen, Qt::FlatCap,
                 Qt::RoundJoin);
        if (edge.isValid() && shape.isDashed)
            pen.setDashPattern(QVector<qreal>(2, dashPixels / qreal(shape.width)));
        m_painter->setPen(pen);
    }
    m_fill = fill;
    m_edge = edge;
    m_width = shape.width;
    m_isDashed = shape.isDashed;
    m_isDressed = true;
}

void ShapePainter::add(const CoilDrawing::Shape &shape)
{
    if (shape.kind == CoilDrawing::Clip) {
        m_painter->setClipRect(shape.box, shape.box.isNull() ? Qt::NoClip : Qt::ReplaceClip);
        return;
    }
    if (shape.kind == CoilDrawing::Text)
        return text(shape);
    dress(shape);
    if (shape.kind == CoilDrawing::Box)
        m_painter->drawRect(shape.box);
    else if (shape.kind == CoilDrawing::Circle)
        m_painter->drawEllipse(shape.box);
    else if (shape.kind == CoilDrawing::Line)
        line(shape);
    else
        m_painter->drawPolygon(shape.points);
}

// A long curve as one outline costs the painter many times as much.
void ShapePainter::line(const CoilDrawing::Shape &shape)
{
    if (shape.isDashed || shape.points.size() < longLine)
        return m_painter->drawPolyline(shape.points);
    QVector<QLineF> parts;
    parts.reserve(shape.points.size());
    for (int i = 1; i < shape.points.size(); ++i)
        parts.append(QLineF(shape.points.at(i - 1), shape.points.at(i)));
    m_painter->drawLines(parts);
}

void ShapePainter::text(const CoilDrawing::Shape &shape)
{
    m_isDressed = false;
    m_font.setPixelSize(qMax(1, qRound(shape.width)));
    m_font.setBold(shape.isBold);
    m_painter->setFont(m_font);
    m_painter->setPen(m_palette.colour(shape.fill, shape.shade));
    const qreal width = QFontMetricsF(m_font).width(shape.text);
    const qreal before = shape.anchor == CoilDrawing::AtLeft     ? 0
                         : shape.anchor == CoilDrawing::InMiddle ? width / 2
                                                                 : width;
    if (!shape.isTurned) {
        m_painter->drawText(shape.box.topLeft() - QPointF(before, 0), shape.text);
        return;
    }
    m_painter->save();
    m_painter->translate(shape.box.topLeft());
    m_painter->rotate(-90);
    m_painter->drawText(QPointF(-before, 0), shape.text);
    m_painter->restore();
}

} // namespace

QColor CoilDrawing::Palette::colour(Role role, float shade) const
{
    if (role != Wire || scale.size() < 2)
        return colours[role];
    const qreal place = qBound(qreal(0), qreal(shade), qreal(1)) * (scale.size() - 1);
    const int step = qMin(int(place), scale.size() - 2);
    return between(scale.at(step), scale.at(step + 1), place - step);
}

CoilDrawing::CoilDrawing(const QSizeF &size) : m_size(size) {}

CoilDrawing::Palette CoilDrawing::lightPalette()
{
    return paletteOf(lightColours, lightScale);
}

CoilDrawing::Palette CoilDrawing::darkPalette()
{
    return paletteOf(darkColours, darkScale);
}

void CoilDrawing::addBox(const QRectF &box, Role fill, Role edge, float width)
{
    Shape shape;
    shape.fill = fill;
    shape.edge = edge;
    shape.width = width;
    shape.box = box;
    m_shapes.append(shape);
}

void CoilDrawing::addBar(const QRectF &box, float shade)
{
    addBox(box, Wire);
    m_shapes.last().shade = shade;
}

void CoilDrawing::addCircle(const QPointF &centre, qreal radius, Role fill, float shade, Role edge,
                            float width)
{
    Shape shape;
    shape.kind = Circle;
    shape.fill = fill;
    shape.shade = shade;
    shape.edge = edge;
    shape.width = width;
    shape.box = QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    m_shapes.append(shape);
}

void CoilDrawing::addLine(const QPolygonF &points, Role role, float width, bool isDashed)
{
    Shape shape;
    shape.kind = Line;
    shape.edge = role;
    shape.width = width;
    shape.isDashed = isDashed;
    shape.points = points;
    m_shapes.append(shape);
}

void CoilDrawing::addArea(const QPolygonF &points, Role fill)
{
    Shape shape;
    shape.kind = Area;
    shape.fill = fill;
    shape.points = points;
    m_shapes.append(shape);
}

void CoilDrawing::addText(const QPointF &base, const QString &text, float pixels, Role role,
                          Anchor anchor, bool isBold)
{
    Shape shape;
    shape.kind = Text;
    shape.fill = role;
    shape.anchor = anchor;
    shape.width = pixels;
    shape.isBold = isBold;
    shape.box = QRectF(base, QSizeF());
    shape.text = text;
    m_shapes.append(shape);
}

void CoilDrawing::addTurnedText(const QPointF &base, const QString &text, float pixels, Role role,
                                Anchor anchor)
{
    addText(base, text, pixels, role, anchor);
    m_shapes.last().isTurned = true;
}

void CoilDrawing::beginClip(const QRectF &box)
{
    Shape shape;
    shape.kind = Clip;
    shape.box = box;
    m_shapes.append(shape);
}

void CoilDrawing::endClip()
{
    beginClip(QRectF());
}

void CoilDrawing::addDrawing(const CoilDrawing &drawing, const QPointF &place)
{
    m_shapes.reserve(m_shapes.size() + drawing.m_shapes.size());
    for (Shape shape : drawing.m_shapes) {
        if (shape.kind != Clip || !shape.box.isNull())
            shape.box.translate(place);
        shape.points.translate(place);
        m_shapes.append(shape);
    }
}

void CoilDrawing::paint(QPainter *painter, const Palette &palette) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    ShapePainter shapes(painter, palette);
    for (const Shape &shape : m_shapes)
        shapes.add(shape);
    painter->restore();
}

QByteArray CoilDrawing::svg(const Palette &palette) const
{
    SvgWriter writer(palette);
    writer.begin(m_size);
    for (const Shape &shape : m_shapes)
        writer.add(shape);
    return writer.end();
}

// Parts of the height, from the widest of the usual fonts.
qreal CoilDrawing::textWidth(const QString &text, float pixels, bool isBold)
{
    const ushort firstWide = 0x2e80;
    const QString broad = QLatin1String("mwMW");
    qreal width = 0;
    for (const QChar letter : text) {
        if (letter.unicode() >= firstWide || broad.contains(letter))
            width += 1.0;
        else if (letter.isUpper())
            width += 0.8;
        else if (letter.isSpace() || letter.isPunct())
            width += 0.42;
        else
            width += 0.66;
    }
    return width * qreal(pixels) * (isBold ? 1.12 : 1.0);
}
