// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/coilpicture.h"

#include "winding/coilaxes.h"
#include "winding/coilfigures.h"
#include "winding/coilplots.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace {

typedef CoilDrawing D;

// Parts of the letters' height.
const qreal upperRoom = 2.0;
const qreal sideRoom = 0.8;
const qreal legendWidth = 6;
const int legendSteps = 24;
// Circles below these many pixels are no more than noise.
const qreal smallestCircle = 2.2;
const qreal edgedCircle = 5;
const qreal edgePart = 0.16;
// Parts of the bobbin.
const qreal flangePart = 0.045;
const qreal corePart = 0.45;
const qreal airPart = 0.05;
const qreal nearPart = 0.4;
const int tensionPoints = 1024;
const int pathPoints = 4096;
// Lines so dense that thin ones show more.
const int manyPoints = 800;
// Still exact in a double.
const double mostTurns = 1e15;
// Wires side by side that may fill a view.
const int leastWires = 6;
const int searchSteps = 60;

QString millimetres()
{
    return QLatin1String("mm");
}

QString diameterUnit()
{
    return QString(QChar(0xd8)) + QLatin1Char(' ') + millimetres();
}

qreal part(double value, double low, double high)
{
    return high > low ? qreal((value - low) / (high - low)) : 0;
}

/// The bobbin as far as the profile has it, and otherwise as the coil needs it.
struct Bobbin
{
    explicit Bobbin(const WindingModel &model);

    qreal left = 0;
    qreal right = 0;
    qreal core = 0; ///< All three are radii.
    qreal flange = 0;
    qreal top = 0;
    qreal wire = 0;

    qreal thickness() const { return qMax(qreal(0.5), (right - left) * flangePart); }
};

Bobbin::Bobbin(const WindingModel &model)
{
    const MachineBobbin &bobbin = model.profile().bobbin();
    wire = qreal(model.totals().wireDiameter);
    if (!(wire > 0))
        wire = 0.5;
    left = qreal(bobbin.left);
    right = qreal(bobbin.right());
    core = qreal(bobbin.coreDiameter / 2);
    const QVector<WindingLayer> &layers = model.layers();
    if (!(right > left) && !layers.isEmpty()) {
        left = qreal(layers.first().left) - wire / 2;
        right = qreal(layers.first().right) + wire / 2;
    }
    if (!(right > left))
        right = left + 10;
    if (!(core > 0))
        core = layers.isEmpty() ? 5 : qMax(wire, qreal(layers.first().diameter) / 2 - wire / 2);
    top = qMax(core + 2 * wire, qreal(model.outerDiameter() / 2));
    flange = qreal(bobbin.flangeDiameter / 2);
    if (!(flange > core))
        flange = top + wire;
    top = qMax(top, flange);
}

/// Widens a part until it has the shape of the area.
QRectF shaped(const QRectF &world, const QSizeF &area)
{
    if (world.isEmpty() || area.isEmpty())
        return world;
    QRectF result = world;
    const qreal wanted = area.width() / area.height();
    if (world.width() < world.height() * wanted)
        result.setWidth(world.height() * wanted);
    else
        result.setHeight(world.width() / wanted);
    result.moveLeft(world.center().x() - result.width() / 2);
    // What is low stays at the foot.
    result.moveTop(world.top());
    return result;
}

/// The tension at each turn, for colours.
class TensionScale
{
public:
    explicit TensionScale(const WindingModel &model)
        : m_points(model.plot(WindingModel::Tension, WindingModel::Turns, tensionPoints))
    {
        if (m_points.isEmpty())
            return;
        m_low = m_points.first().low;
        m_high = m_points.first().high;
        for (const WindingPlotPoint &point : m_points) {
            m_low = qMin(m_low, point.low);
            m_high = qMax(m_high, point.high);
        }
    }

    double low() const { return m_low; }
    double high() const { return m_high; }

    float shade(double turn) const
    {
        const auto behind = std::upper_bound(
            m_points.constBegin(), m_points.constEnd(), turn,
            [](double wanted, const WindingPlotPoint &point) { return wanted < point.at; });
        if (behind == m_points.constBegin())
            return 0;
        const WindingPlotPoint &point = *(behind - 1);
        // Between two layers it may drop while nothing is wound.
        return float(part(point.high, m_low, m_high));
    }

private:
    QVector<WindingPlotPoint> m_points;
    double m_low = 0;
    double m_high = 0;
};

/// Turns that are wound when a line has been performed.
double turnsUpTo(const WindingModel &model, int line)
{
    double low = 0;
    double high = model.totals().turns;
    if (high <= 0 || model.lineAtTurn(0) > line)
        return 0;
    for (int i = 0; i < searchSteps; ++i) {
        const double middle = (low + high) / 2;
        const int there = model.lineAtTurn(middle);
        (there > 0 && there <= line ? low : high) = middle;
    }
    return high;
}

/// A turn of a layer, cut by the picture's plane.
struct Cut
{
    Cut(const WindingLayer &layer, double count)
        : m_start(layer.direction < 0 ? layer.right : layer.left)
        , m_step(((layer.direction < 0 ? layer.left : layer.right) - m_start) / count)
        , m_last(count - 1)
    {}

    qreal x(qint64 index) const { return qreal(m_start + (double(index) + 0.5) * m_step); }
    /// Of the turns from \a left to \a right, or one before it.
    qint64 first(qreal left, qreal right) const
    {
        return qint64(qBound(0.0, std::floor(qMin(index(left), index(right))), m_last));
    }
    qint64 last(qreal left, qreal right) const
    {
        return qint64(qBound(0.0, std::ceil(qMax(index(left), index(right))), m_last));
    }

private:
    /// All turns of a layer without a width are in one place.
    double index(qreal x) const { return m_step == 0 ? 0 : (x - m_start) / m_step - 0.5; }

    double m_start;
    double m_step;
    double m_last;
};

/// Whole ones. A program may ask for more than an int holds.
double turnsOf(const WindingLayer &layer)
{
    return qBound(1.0, std::floor(layer.turns + 0.5), mostTurns);
}

QPointF pointOf(const GuidePoint &point)
{
    return QPointF(qreal(point.x), qreal(point.distance));
}

D::Role roleOf(const GuidePoint &point)
{
    return point.isWinding ? D::Winding : point.isRapid ? D::Rapid : D::Feed;
}

QRectF around(const QPointF &one, const QPointF &other)
{
    return QRectF(one, other).normalized();
}

qreal distanceToWay(const QPointF &from, const QPointF &to, const QPointF &point)
{
    const QPointF way = to - from;
    const QPointF beside = point - from;
    const qreal square = way.x() * way.x() + way.y() * way.y();
    const qreal along = square > 0 ? (beside.x() * way.x() + beside.y() * way.y()) / square : 0;
    return QLineF(beside, way * qBound(qreal(0), along, qreal(1))).length();
}

} // namespace

bool CoilScene::operator==(const CoilScene &other) const
{
    return kind == other.kind && size == other.size && qFuzzyCompare(letters, other.letters)
           && world == other.world && colours == other.colours && isOverTime == other.isOverTime
           && coil == other.coil && wantedLine == other.wantedLine;
}

/// Draws one scene.
class CoilPicture::Maker
{
public:
    Maker(CoilPicture *picture, const WindingModel &model, const CoilScene &scene)
        : m_picture(picture)
        , m_drawing(&picture->m_drawing)
        , m_model(model)
        , m_scene(scene)
        , m_bobbin(model)
    {}

    void make();

private:
    void frame(const QRectF &whole, const QRectF &fitted, const QRectF &area);
    QRectF area() const;
    void makeSection();
    QRectF sectionWhole() const;
    QRectF coilPart() const;
    void drawBobbin();
    void drawTurns();
    bool areTurnsSeen() const;
    void drawCircles(const WindingLayer &layer, double wound, const TensionScale &scale);
    void drawBar(const WindingLayer &layer, double wound, const TensionScale &scale);
    float shade(const WindingLayer &layer, double turn, const TensionScale &scale) const;
    bool isSeen(const WindingLayer &layer) const;
    void drawScaleLegend();
    void makePath();
    QRectF pathWhole() const;
    QRectF pathPart(const QVector<GuidePoint> &points) const;
    void drawPathBobbin();
    void drawPath(const QVector<GuidePoint> &points);
    void drawPathLegend();
    void makePlots();

    CoilPicture *m_picture;
    CoilDrawing *m_drawing;
    const WindingModel &m_model;
    const CoilScene &m_scene;
    const Bobbin m_bobbin;
    int m_levels = 1;
};

void CoilPicture::Maker::make()
{
    *m_drawing = CoilDrawing(m_scene.size);
    m_drawing->addBox(QRectF(QPointF(), m_scene.size), D::Paper);
    m_picture->m_leastWidth = m_bobbin.wire * leastWires;
    switch (m_scene.kind) {
    case CoilScene::Section:
        return makeSection();
    case CoilScene::Path:
        return makePath();
    case CoilScene::Plots:
        return makePlots();
    }
}

QRectF CoilPicture::Maker::area() const
{
    const qreal letters = qreal(m_scene.letters);
    return QRectF(QPointF(), m_scene.size)
        .adjusted(CoilAxes::roomAtLeft(m_scene.letters), upperRoom * letters, -sideRoom * letters,
                  -CoilAxes::roomBelow(m_scene.letters));
}

void CoilPicture::Maker::frame(const QRectF &whole, const QRectF &fitted, const QRectF &area)
{
    const QRectF best = fitted.isEmpty() ? whole : fitted;
    m_picture->m_whole = shaped(whole | best, area.size());
    m_picture->m_frame.area = area;
    m_picture->m_frame.world = shaped(m_scene.world.isEmpty() ? best : m_scene.world, area.size());
}

void CoilPicture::Maker::makeSection()
{
    const QVector<WindingLayer> &layers = m_model.layers();
    for (const WindingLayer &layer : layers) {
        if (layer.coil == m_scene.coil)
            m_levels = qMax(m_levels, layer.level + 1);
    }
    frame(sectionWhole(), coilPart(), area());
    CoilAxes axes(m_drawing, m_picture->m_frame, m_scene.letters);
    axes.drawAcross(millimetres());
    axes.drawUp(diameterUnit(), 2);
    m_drawing->beginClip(m_picture->m_frame.area);
    drawBobbin();
    drawTurns();
    m_drawing->endClip();
    drawScaleLegend();
}

QRectF CoilPicture::Maker::sectionWhole() const
{
    const qreal side = m_bobbin.thickness() * qreal(1.6);
    const qreal low = qMax(qreal(0), m_bobbin.core - corePart * (m_bobbin.top - m_bobbin.core));
    const qreal high = m_bobbin.top + airPart * (m_bobbin.top - low);
    return QRectF(m_bobbin.left - side, low, m_bobbin.right - m_bobbin.left + 2 * side, high - low);
}

QRectF CoilPicture::Maker::coilPart() const
{
    QRectF part;
    const QVector<WindingLayer> &layers = m_model.layers();
    for (const WindingLayer &layer : layers) {
        if (layer.coil != m_scene.coil)
            continue;
        const qreal radius = qreal(layer.diameter / 2);
        part |= around(QPointF(qreal(layer.left), radius), QPointF(qreal(layer.right), radius))
                    .adjusted(-m_bobbin.wire, -m_bobbin.wire, m_bobbin.wire, m_bobbin.wire);
    }
    if (part.isEmpty())
        return part;
    // With the bobbin's near sides, so that a coil is seen to lie on something.
    const qreal side = m_bobbin.thickness() * qreal(1.6);
    const qreal air = airPart * qMax(part.width(), part.height());
    const qreal near = nearPart * part.width();
    part.setLeft(part.left() - m_bobbin.left < near ? m_bobbin.left - side : part.left() - air);
    part.setRight(m_bobbin.right - part.right() < near ? m_bobbin.right + side
                                                       : part.right() + air);
    part.setTop(qMin(part.top(), m_bobbin.core - side) - air / 2);
    part.setBottom(part.bottom() + air);
    return part;
}

// The half above the axis. Its tube is as thick as the flanges.
void CoilPicture::Maker::drawBobbin()
{
    const CoilFrame &frame = m_picture->m_frame;
    const qreal side = m_bobbin.thickness();
    const qreal bore = qMax(qreal(0), m_bobbin.core - side);
    const auto box = [&](qreal left, qreal low, qreal right, qreal high) {
        m_drawing->addBox(frame.toPicture(around(QPointF(left, low), QPointF(right, high))),
                          D::Bobbin, D::BobbinEdge);
    };
    box(m_bobbin.left - side, bore, m_bobbin.right + side, m_bobbin.core);
    box(m_bobbin.left - side, bore, m_bobbin.left, m_bobbin.flange);
    box(m_bobbin.right, bore, m_bobbin.right + side, m_bobbin.flange);
    const qreal axis = frame.toPicture(QPointF(0, 0)).y();
    m_drawing->addLine(QPolygonF()
                           << QPointF(frame.area.left(), axis) << QPointF(frame.area.right(), axis),
                       D::FaintInk, 1, true);
}

bool CoilPicture::Maker::isSeen(const WindingLayer &layer) const
{
    const QRectF &world = m_picture->m_frame.world;
    const qreal radius = qreal(layer.diameter / 2);
    return layer.coil == m_scene.coil && radius > world.top() - m_bobbin.wire
           && radius < world.bottom() + m_bobbin.wire;
}

bool CoilPicture::Maker::areTurnsSeen() const
{
    const CoilFrame &frame = m_picture->m_frame;
    if (m_bobbin.wire * frame.xScale() < smallestCircle)
        return false;
    double count = 0;
    const QVector<WindingLayer> &layers = m_model.layers();
    for (const WindingLayer &layer : layers) {
        if (!isSeen(layer))
            continue;
        const double length = qMax(layer.right - layer.left, 1e-6);
        // As far as the circles are drawn: a wire beyond what is in view.
        const double seen = qMin(layer.right, double(frame.world.right()) + m_bobbin.wire)
                            - qMax(layer.left, double(frame.world.left()) - m_bobbin.wire);
        count += turnsOf(layer) * qBound(0.0, seen / length, 1.0);
    }
    return count <= mostCircles;
}

void CoilPicture::Maker::drawTurns()
{
    const TensionScale scale(m_model);
    const bool areCircles = areTurnsSeen();
    const double wound = m_scene.wantedLine > 0 ? turnsUpTo(m_model, m_scene.wantedLine) : HUGE_VAL;
    const QVector<WindingLayer> &layers = m_model.layers();
    qreal lastY = -1;
    for (const WindingLayer &layer : layers) {
        if (!isSeen(layer))
            continue;
        if (areCircles) {
            drawCircles(layer, wound, scale);
            continue;
        }
        // Many layers may share a row of pixels.
        const qreal y = m_picture->m_frame.toPicture(QPointF(0, qreal(layer.diameter / 2))).y();
        if (qAbs(y - lastY) < qreal(0.5))
            continue;
        lastY = y;
        drawBar(layer, wound, scale);
    }
}

float CoilPicture::Maker::shade(const WindingLayer &layer, double turn,
                                const TensionScale &scale) const
{
    if (m_scene.colours == CoilScene::ByTension)
        return scale.shade(turn);
    return float(part(layer.level, 0, m_levels - 1));
}

void CoilPicture::Maker::drawCircles(const WindingLayer &layer, double wound,
                                     const TensionScale &scale)
{
    const CoilFrame &frame = m_picture->m_frame;
    const double count = turnsOf(layer);
    const Cut cut(layer, count);
    const qreal radius = m_bobbin.wire / 2 * frame.xScale();
    const D::Role edge = 2 * radius >= edgedCircle ? D::WireEdge : D::NoRole;
    const float edgeWidth = float(qBound(qreal(0.5), radius * edgePart, qreal(1.2)));
    const qreal y = qreal(layer.diameter / 2);
    const qreal left = frame.world.left() - m_bobbin.wire;
    const qreal right = frame.world.right() + m_bobbin.wire;
    const qint64 last = cut.last(left, right);
    for (qint64 i = cut.first(left, right); i <= last; ++i) {
        const qreal x = cut.x(i);
        if (x < left || x > right)
            continue;
        const double turn = layer.firstTurn + layer.turns * (double(i) + 0.5) / count;
        m_drawing->addCircle(frame.toPicture(QPointF(x, y)), radius,
                             turn <= wound ? D::Wire : D::PaleWire, shade(layer, turn, scale), edge,
                             edgeWidth);
    }
}

void CoilPicture::Maker::drawBar(const WindingLayer &layer, double wound, const TensionScale &scale)
{
    const CoilFrame &frame = m_picture->m_frame;
    const qreal y = qreal(layer.diameter / 2);
    const qreal half = m_bobbin.wire / 2;
    QRectF box = frame.toPicture(around(QPointF(qreal(layer.left) - half, y - half),
                                        QPointF(qreal(layer.right) + half, y + half)));
    // Without a gap to the next one.
    box.setHeight(qMax(box.height(), qreal(1)) + qreal(0.5));
    const double middle = layer.firstTurn + layer.turns / 2;
    if (middle <= wound)
        m_drawing->addBar(box, shade(layer, middle, scale));
    else
        m_drawing->addBox(box, D::PaleWire);
}

void CoilPicture::Maker::drawScaleLegend()
{
    if (m_model.layers().isEmpty())
        return;
    const TensionScale scale(m_model);
    const bool isTension = m_scene.colours == CoilScene::ByTension;
    const QString low =
        isTension ? tr("Tension %1").arg(CoilFigures::number(scale.low(), 1)) : tr("Layer 1");
    const QString high = isTension ? CoilFigures::number(scale.high(), 1) + QLatin1String(" N")
                                   : QString::number(m_levels);
    const float letters = m_scene.letters;
    const qreal base = qreal(letters) * qreal(1.25);
    const qreal gap = qreal(letters) / 2;
    const int coils = m_model.totals().coils;
    const QString coil =
        coils > 1 ? tr("Coil %1 of %2").arg(m_scene.coil + 1).arg(coils) : QString();
    const QRectF area = m_picture->m_frame.area;
    qreal x = area.right();
    m_drawing->addText(QPointF(x, base), high, letters, D::Ink, D::AtRight);
    x -= D::textWidth(high, letters) + gap;
    // The colours give way to the words.
    const qreal words =
        D::textWidth(coil, letters) + D::textWidth(low, letters) + 2 * qreal(letters);
    const qreal room = x - gap - area.left() - words;
    const qreal step = qBound(qreal(0), room, legendWidth * qreal(letters)) / legendSteps;
    for (int i = 0; i < legendSteps; ++i)
        m_drawing->addBar(QRectF(x - (legendSteps - i) * step, base - qreal(letters) * qreal(0.8),
                                 step + qreal(0.5), qreal(letters) * qreal(0.9)),
                          float(i) / (legendSteps - 1));
    x -= legendSteps * step + gap;
    m_drawing->addText(QPointF(x, base), low, letters, D::Ink, D::AtRight);
    if (!coil.isEmpty())
        m_drawing->addText(QPointF(area.left() + qreal(letters), base), coil, letters);
}

void CoilPicture::Maker::makePath()
{
    const QVector<GuidePoint> points = m_model.path(pathPoints);
    frame(pathWhole(), pathPart(points), area());
    CoilAxes axes(m_drawing, m_picture->m_frame, m_scene.letters);
    axes.drawAcross(millimetres());
    axes.drawUp(millimetres());
    m_drawing->beginClip(m_picture->m_frame.area);
    drawPathBobbin();
    drawPath(points);
    m_drawing->endClip();
    drawPathLegend();
}

QRectF CoilPicture::Maker::pathWhole() const
{
    const qreal side = m_bobbin.thickness() * qreal(1.6);
    const qreal height = m_bobbin.top - m_bobbin.core;
    return QRectF(m_bobbin.left - side, -2 * side, m_bobbin.right - m_bobbin.left + 2 * side,
                  height * qreal(1.1) + 2 * side);
}

// All ways of the guide, and the bobbin as far as it is beside them.
QRectF CoilPicture::Maker::pathPart(const QVector<GuidePoint> &points) const
{
    if (points.isEmpty())
        return QRectF();
    const QRectF bobbin = pathWhole();
    QRectF part(bobbin.left(), bobbin.top(), bobbin.width(), 1);
    for (const GuidePoint &point : points)
        part |= QRectF(qreal(point.x) - 1, qreal(point.distance) - 1, 2, 2);
    return part;
}

// The distance counts from the core.
void CoilPicture::Maker::drawPathBobbin()
{
    const CoilFrame &frame = m_picture->m_frame;
    const qreal side = m_bobbin.thickness();
    const auto box = [&](qreal left, qreal low, qreal right, qreal high, D::Role role) {
        m_drawing->addBox(frame.toPicture(around(QPointF(left, low), QPointF(right, high))), role,
                          D::BobbinEdge);
    };
    const qreal flange = m_bobbin.flange - m_bobbin.core;
    box(m_bobbin.left - side, -side, m_bobbin.right + side, 0, D::Bobbin);
    box(m_bobbin.left - side, -side, m_bobbin.left, flange, D::Bobbin);
    box(m_bobbin.right, -side, m_bobbin.right + side, flange, D::Bobbin);
    qreal left = m_bobbin.right;
    qreal right = m_bobbin.left;
    const QVector<WindingLayer> &layers = m_model.layers();
    for (const WindingLayer &layer : layers) {
        left = qMin(left, qreal(layer.left) - m_bobbin.wire / 2);
        right = qMax(right, qreal(layer.right) + m_bobbin.wire / 2);
    }
    if (right > left)
        box(left, 0, right, qreal(m_model.outerDiameter() / 2) - m_bobbin.core, D::PaleWire);
}

void CoilPicture::Maker::drawPath(const QVector<GuidePoint> &points)
{
    const CoilFrame &frame = m_picture->m_frame;
    QPolygonF line;
    for (int i = 1; i < points.size(); ++i) {
        const D::Role role = roleOf(points.at(i));
        if (line.isEmpty())
            line.append(frame.toPicture(pointOf(points.at(i - 1))));
        line.append(frame.toPicture(pointOf(points.at(i))));
        if (i + 1 < points.size() && roleOf(points.at(i + 1)) == role)
            continue;
        m_drawing->addLine(line, role,
                           points.size() > manyPoints ? 0.8f
                           : role == D::Winding       ? 1.8f
                                                      : 1.4f,
                           role == D::Rapid);
        line.clear();
    }
    if (points.isEmpty())
        return;
    m_drawing->addCircle(frame.toPicture(pointOf(points.first())), 4, D::Feed, 0, D::WireEdge);
}

void CoilPicture::Maker::drawPathLegend()
{
    const struct
    {
        D::Role role;
        QString words;
    } entries[] = {{D::Winding, tr("winding")}, {D::Feed, tr("moving")}, {D::Rapid, tr("rapid")}};
    float letters = m_scene.letters;
    qreal width = 0;
    for (const auto &entry : entries)
        width += D::textWidth(entry.words, letters) + qreal(letters) * 3;
    const QRectF area = m_picture->m_frame.area;
    if (width > area.width())
        letters *= float(area.width() / width);
    const qreal base = qreal(m_scene.letters) * qreal(1.25);
    qreal x = qMax(area.left(), area.right() - width);
    for (const auto &entry : entries) {
        const qreal y = base - qreal(letters) * qreal(0.35);
        m_drawing->addLine(QPolygonF() << QPointF(x, y) << QPointF(x + qreal(letters) * 2, y),
                           entry.role, 2.4f, entry.role == D::Rapid);
        x += qreal(letters) * qreal(2.3);
        m_drawing->addText(QPointF(x, base), entry.words, letters);
        x += D::textWidth(entry.words, letters) + qreal(letters) * qreal(0.7);
    }
}

void CoilPicture::Maker::makePlots()
{
    CoilPlots plots(m_model, m_scene);
    plots.draw(m_drawing);
    m_picture->m_frame = plots.frame();
    m_picture->m_whole = plots.whole();
    m_picture->m_leastWidth = plots.leastWidth();
}

CoilPicture::CoilPicture(const WindingModel &model, const CoilScene &scene)
{
    Maker(this, model, scene).make();
}

int CoilPicture::coilAt(const WindingModel &model, int line)
{
    int coil = 0;
    const QVector<WindingLayer> &layers = model.layers();
    for (const WindingLayer &layer : layers) {
        if (layer.firstLine > line)
            break;
        coil = layer.coil;
    }
    return coil;
}

namespace {

int sectionLine(const WindingModel &model, int coil, const QPointF &point, qreal reach)
{
    const qreal wire = Bobbin(model).wire;
    const QVector<WindingLayer> &layers = model.layers();
    int found = -1;
    qreal best = qMax(reach, wire);
    for (int i = 0; i < layers.size(); ++i) {
        const WindingLayer &layer = layers.at(i);
        const qreal beside = qMax(qreal(layer.left) - point.x(), point.x() - qreal(layer.right));
        const qreal away = qMax(qAbs(qreal(layer.diameter / 2) - point.y()), beside);
        if (layer.coil != coil || away > best)
            continue;
        best = away;
        found = i;
    }
    return found < 0 ? 0 : model.lineAt(found, double(point.x()));
}

int pathLine(const WindingModel &model, const QPointF &point, qreal reach)
{
    const QVector<GuidePoint> points = model.path(pathPoints);
    int line = 0;
    qreal best = reach;
    for (int i = 1; i < points.size(); ++i) {
        const qreal away = distanceToWay(pointOf(points.at(i - 1)), pointOf(points.at(i)), point);
        if (away > best)
            continue;
        best = away;
        line = points.at(i).line;
    }
    return line;
}

} // namespace

int CoilPicture::lineAt(const WindingModel &model, const CoilScene &scene, const QPointF &point,
                        qreal reach)
{
    switch (scene.kind) {
    case CoilScene::Section:
        return sectionLine(model, scene.coil, point, reach);
    case CoilScene::Path:
        return pathLine(model, point, reach);
    case CoilScene::Plots:
        return scene.isOverTime ? model.lineAtTime(double(point.x()))
                                : model.lineAtTurn(double(point.x()));
    }
    return 0;
}

namespace {

QVector<QRectF> sectionPlaces(const WindingModel &model, const WindingPlace &place)
{
    const Bobbin bobbin(model);
    const qreal half = bobbin.wire / 2;
    const QVector<WindingLayer> &layers = model.layers();
    const qreal from = qreal(place.xFrom);
    const qreal to = qreal(place.xTo);
    if (place.layer < 0 || place.layer >= layers.size())
        return QVector<QRectF>() << around(QPointF(to, bobbin.core), QPointF(to, bobbin.top));
    const qreal radius = qreal(layers.at(place.layer).diameter / 2);
    return QVector<QRectF>() << around(QPointF(from, radius - half), QPointF(to, radius + half))
                                    .adjusted(-half, 0, half, 0);
}

} // namespace

QVector<QRectF> CoilPicture::placesOf(const WindingModel &model, const CoilScene &scene, int line)
{
    const WindingPlace place = model.place(line);
    if (!place.isValid)
        return QVector<QRectF>();
    switch (scene.kind) {
    case CoilScene::Section:
        return sectionPlaces(model, place);
    case CoilScene::Path:
        // Its corners may be exchanged: they are where the way begins and where it ends.
        return QVector<QRectF>() << QRectF(QPointF(qreal(place.xFrom), qreal(place.distanceFrom)),
                                           QPointF(qreal(place.xTo), qreal(place.distanceTo)));
    case CoilScene::Plots:
        break;
    }
    const double from = scene.isOverTime ? place.begin : place.firstTurn;
    const double to = scene.isOverTime ? place.end : place.lastTurn;
    return QVector<QRectF>() << around(QPointF(qreal(from), 0), QPointF(qreal(to), 1));
}

namespace {

const QSizeF sheetSize(1240, 1240);
const qreal sheetMargin = 30;
const float sheetLetters = 14;
const float titleLetters = 24;
const qreal titleRoom = 44;
const qreal sectionHeight = 560;
const qreal figuresWidth = 320;
const qreal figureRow = 30;

void drawFigures(CoilDrawing *sheet, const WindingModel &model, const QRectF &place)
{
    qreal base = place.top() + figureRow;
    const QVector<CoilFigure> figures = CoilFigures::of(model);
    for (const CoilFigure &figure : figures) {
        sheet->addText(QPointF(place.left(), base), figure.name, sheetLetters, D::FaintInk);
        sheet->addText(QPointF(place.right(), base), figure.text, sheetLetters + 2, D::Ink,
                       D::AtRight, true);
        sheet->addLine(QPolygonF()
                           << QPointF(place.left(), base + 8) << QPointF(place.right(), base + 8),
                       D::Grid);
        base += figureRow;
    }
}

CoilDrawing drawn(const WindingModel &model, CoilScene::Kind kind, const QSizeF &size)
{
    CoilScene scene;
    scene.kind = kind;
    scene.size = size;
    scene.letters = sheetLetters;
    return CoilPicture(model, scene).drawing();
}

} // namespace

CoilDrawing CoilPicture::sheet(const WindingModel &model, const QString &title)
{
    const qreal width = sheetSize.width() - 2 * sheetMargin;
    const qreal top = sheetMargin + titleRoom;
    const QSizeF section(width - figuresWidth - sheetMargin, sectionHeight);
    const qreal lower = top + sectionHeight + sheetMargin;
    const QSizeF half((width - sheetMargin) / 2, sheetSize.height() - lower - sheetMargin);
    CoilDrawing sheet(sheetSize);
    sheet.addBox(QRectF(QPointF(), sheetSize), D::Paper);
    sheet.addText(QPointF(sheetMargin, sheetMargin + qreal(titleLetters)), title, titleLetters,
                  D::Ink, D::AtLeft, true);
    sheet.addDrawing(drawn(model, CoilScene::Section, section), QPointF(sheetMargin, top));
    drawFigures(
        &sheet, model,
        QRectF(sheetSize.width() - sheetMargin - figuresWidth, top, figuresWidth, sectionHeight));
    sheet.addDrawing(drawn(model, CoilScene::Path, half), QPointF(sheetMargin, lower));
    sheet.addDrawing(drawn(model, CoilScene::Plots, half),
                     QPointF(2 * sheetMargin + half.width(), lower));
    return sheet;
}
