// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/coilaxes.h"

#include "winding/coilfigures.h"

#include <cmath>

namespace {

// Parts of the letters' height.
const qreal leftRoom = 3.4;
const qreal lowerRoom = 1.7;
const qreal lineBelow = 1.2;
const qreal tickRoom = 5;
const qreal rowRoom = 2.6;
const qreal gap = 4;
const int mostTicks = 12;
const double rounding = 1e-9;
// Ticks of larger numbers, counted from 0, could not be told from one another.
const double farthestTick = 1e12;

double niceStep(double span, int most)
{
    const double least = span / qMax(1, most);
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    for (double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least)
            return factor * power;
    }
    return 10 * power;
}

double distanceOf(const QVector<double> &ticks)
{
    return ticks.size() > 1 ? ticks.at(1) - ticks.at(0) : 1;
}

} // namespace

QVector<double> CoilAxes::ticks(double from, double to, int most)
{
    QVector<double> ticks;
    if (!(to > from) || most < 1)
        return ticks;
    double step = niceStep(to - from, most);
    // Both ends may be ticks, which is one more.
    if (std::floor(to / step + rounding) - std::ceil(from / step - rounding) >= most)
        step = niceStep(step * most * (1 + 2 * rounding), most);
    if (qMax(std::fabs(from), std::fabs(to)) > farthestTick * step)
        return ticks;
    const double slack = step * rounding;
    for (double number = std::ceil((from - slack) / step); number * step <= to + slack; ++number)
        ticks.append(number * step);
    return ticks;
}

QString CoilAxes::text(double tick, double distance)
{
    const int decimals = qBound(0, int(std::ceil(-std::log10(distance) - rounding)), 6);
    return CoilFigures::number(tick, decimals);
}

CoilAxes::CoilAxes(CoilDrawing *drawing, const CoilFrame &frame, float letters)
    : m_drawing(drawing), m_frame(frame), m_letters(letters)
{}

qreal CoilAxes::roomAtLeft(float letters)
{
    return leftRoom * qreal(letters);
}

qreal CoilAxes::roomBelow(float letters)
{
    return lowerRoom * qreal(letters);
}

void CoilAxes::drawAcross(const QString &unit, double factor)
{
    const QRectF area = m_frame.area;
    const int most = qBound(1, int(area.width() / (tickRoom * qreal(m_letters))), mostTicks);
    const QVector<double> all =
        ticks(double(m_frame.world.left()) * factor, double(m_frame.world.right()) * factor, most);
    const qreal base = area.bottom() + lineBelow * qreal(m_letters);
    const qreal end = area.right() - CoilDrawing::textWidth(unit, m_letters) - gap;
    for (double tick : all) {
        const qreal x = m_frame.toPicture(QPointF(qreal(tick / factor), 0)).x();
        m_drawing->addLine(QPolygonF() << QPointF(x, area.top()) << QPointF(x, area.bottom()),
                           CoilDrawing::Grid);
        const QString words = text(tick, distanceOf(all));
        if (x + CoilDrawing::textWidth(words, m_letters) / 2 < end)
            m_drawing->addText(QPointF(x, base), words, m_letters, CoilDrawing::FaintInk,
                               CoilDrawing::InMiddle);
    }
    m_drawing->addText(QPointF(area.right(), base), unit, m_letters, CoilDrawing::FaintInk,
                       CoilDrawing::AtRight);
}

void CoilAxes::drawUp(const QString &unit, double factor)
{
    const QRectF area = m_frame.area;
    const int most = qBound(3, int(area.height() / (rowRoom * qreal(m_letters))), mostTicks);
    const QVector<double> all =
        ticks(double(m_frame.world.top()) * factor, double(m_frame.world.bottom()) * factor, most);
    const qreal half = qreal(m_letters) * qreal(0.36);
    for (double tick : all) {
        const qreal y = m_frame.toPicture(QPointF(0, qreal(tick / factor))).y();
        m_drawing->addLine(QPolygonF() << QPointF(area.left(), y) << QPointF(area.right(), y),
                           CoilDrawing::Grid);
        // The lowest and the highest would stand in the way of the other scale and of the unit.
        if (y <= area.bottom() - half + 1 && (unit.isEmpty() || y > area.top() + half))
            m_drawing->addText(QPointF(area.left() - gap, y + half), text(tick, distanceOf(all)),
                               m_letters, CoilDrawing::FaintInk, CoilDrawing::AtRight);
    }
    const qreal room = area.left() - gap - CoilDrawing::textWidth(unit, m_letters);
    m_drawing->addText(QPointF(qMax(room, qreal(1)), area.top() - half - 1), unit, m_letters,
                       CoilDrawing::FaintInk);
}
