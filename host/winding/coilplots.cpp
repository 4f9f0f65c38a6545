// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/coilplots.h"

#include "winding/coilaxes.h"
#include "winding/coilpicture.h"

namespace {

typedef CoilDrawing D;

const int courses = 3;
// Parts of the letters' height.
const qreal upperRoom = 1.6;
const qreal sideRoom = 0.8;
const qreal betweenRoom = 1.7;
const float curveWidth = 1.5f;
const qreal airPart = 0.06;
const int mostPoints = 1 << 15;
const double secondsPerMinute = 60;
// From here on a scale in seconds is hard to read.
const qreal minutesFrom = 300;
const qreal leastTurns = 4;
const qreal leastSeconds = 2;

} // namespace

struct CoilPlots::Course
{
    WindingModel::Quantity quantity;
    D::Role role;
    QString name;
    QString unit;
    QVector<WindingPlotPoint> points;
    double low = 0;
    double high = 1;
};

CoilPlots::CoilPlots(const WindingModel &model, const CoilScene &scene)
    : m_model(model), m_scene(scene)
{
    const WindingTotals totals = model.totals();
    const double length = scene.isOverTime ? totals.seconds : totals.turns;
    m_whole = QRectF(0, 0, qMax(qreal(length), qreal(1e-3)), 1);
    const qreal letters = qreal(scene.letters);
    m_frame.area = QRectF(QPointF(), scene.size)
                       .adjusted(CoilAxes::roomAtLeft(scene.letters), upperRoom * letters,
                                 -sideRoom * letters, -CoilAxes::roomBelow(scene.letters));
    m_frame.world = scene.world.isEmpty() ? m_whole : scene.world;
}

qreal CoilPlots::leastWidth() const
{
    return qMin(m_whole.width(), m_scene.isOverTime ? leastSeconds : leastTurns);
}

// Of the whole: as many as there are pixels in the part that is seen.
int CoilPlots::points() const
{
    const qreal all = m_frame.area.width() * m_whole.width() / m_frame.world.width();
    return int(qBound(qreal(16), all, qreal(mostPoints)));
}

CoilPlots::Course CoilPlots::course(int index) const
{
    const struct
    {
        WindingModel::Quantity quantity;
        D::Role role;
        QString name;
        const char *unit;
    } all[courses] = {
        {WindingModel::TraversePosition, D::Traverse, tr("Traverse"), "mm"},
        {WindingModel::Speed, D::Speed, tr("Speed"), "1/min"},
        {WindingModel::Tension, D::Tension, tr("Tension"), "N"},
    };
    Course course;
    course.quantity = all[index].quantity;
    course.role = all[index].role;
    course.name = all[index].name;
    course.unit = QLatin1String(all[index].unit);
    course.points = m_model.plot(
        course.quantity, m_scene.isOverTime ? WindingModel::Time : WindingModel::Turns, points());
    if (course.points.isEmpty())
        return course;
    course.low = course.points.first().low;
    course.high = course.points.first().high;
    for (const WindingPlotPoint &point : course.points) {
        course.low = qMin(course.low, point.low);
        course.high = qMax(course.high, point.high);
    }
    // Speed and tension begin at nothing.
    if (course.quantity != WindingModel::TraversePosition)
        course.low = qMin(course.low, 0.0);
    const double air = qMax(course.high - course.low, 1e-3) * double(airPart);
    course.low -= course.low < 0 || course.quantity == WindingModel::TraversePosition ? air : 0;
    course.high += air;
    return course;
}

QRectF CoilPlots::strip(int index) const
{
    const qreal between = betweenRoom * qreal(m_scene.letters);
    const qreal height = (m_frame.area.height() - (courses - 1) * between) / courses;
    return QRectF(m_frame.area.left(), m_frame.area.top() + index * (height + between),
                  m_frame.area.width(), qMax(height, qreal(1)));
}

void CoilPlots::draw(CoilDrawing *drawing)
{
    m_drawing = drawing;
    for (int i = 0; i < courses; ++i)
        drawCourse(course(i), strip(i));
    CoilFrame lowest = m_frame;
    lowest.area = strip(courses - 1);
    const bool isInMinutes = m_scene.isOverTime && m_frame.world.right() > minutesFrom;
    const QString unit = !m_scene.isOverTime ? tr("turns")
                         : isInMinutes       ? QString(QLatin1String("min"))
                                             : QString(QLatin1Char('s'));
    CoilAxes(m_drawing, lowest, m_scene.letters)
        .drawAcross(unit, isInMinutes ? 1 / secondsPerMinute : 1);
}

void CoilPlots::drawCourse(const Course &course, const QRectF &strip)
{
    CoilFrame frame;
    frame.area = strip;
    frame.world = QRectF(m_frame.world.left(), qreal(course.low), m_frame.world.width(),
                         qreal(course.high - course.low));
    const float letters = m_scene.letters;
    CoilAxes(m_drawing, frame, letters).drawUp(QString());
    m_drawing->addLine(QPolygonF() << strip.bottomLeft() << strip.bottomRight(), D::FaintInk);
    m_drawing->addText(strip.topLeft() - QPointF(0, qreal(letters) * qreal(0.35)),
                       course.name + QLatin1String("  ") + course.unit, letters, course.role,
                       D::AtLeft, true);
    if (course.points.isEmpty())
        return;
    m_drawing->beginClip(strip);
    m_drawing->addLine(curve(course, frame), course.role, curveWidth);
    m_drawing->endClip();
}

// A stretch in which the quantity goes up and down is a stroke from its least to its most.
QPolygonF CoilPlots::curve(const Course &course, const CoilFrame &frame) const
{
    QPolygonF line;
    // What is left out is as it was before.
    const double stretch = 1.5 * double(m_whole.width()) / points();
    double last = course.points.first().low;
    double lastAt = course.points.first().at;
    for (const WindingPlotPoint &point : course.points) {
        if (point.at - lastAt > stretch)
            line.append(frame.toPicture(QPointF(qreal(point.at), qreal(last))));
        lastAt = point.at;
        const bool isRising = qAbs(point.low - last) <= qAbs(point.high - last);
        const double first = isRising ? point.low : point.high;
        const double second = isRising ? point.high : point.low;
        line.append(frame.toPicture(QPointF(qreal(point.at), qreal(first))));
        if (point.low != point.high)
            line.append(frame.toPicture(QPointF(qreal(point.at), qreal(second))));
        last = second;
    }
    line.append(frame.toPicture(QPointF(m_whole.right(), qreal(last))));
    return line;
}
