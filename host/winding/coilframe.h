// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILFRAME_H
#define COILFRAME_H

#include "base/filarixhostglobal.h"

#include <QPointF>
#include <QRectF>

/// How the things of a picture lie on its pixels: \a world, whose y grows upwards, fills \a area.
///
///     const QPointF millimetres = frame.toWorld(finger);
struct FILARIX_HOST_EXPORT CoilFrame
{
    /// The part of the picture in which things are drawn; around it stand the axes.
    QRectF area;
    /// Millimetres, or turns or seconds across.
    QRectF world;

    bool isNull() const { return area.isEmpty() || world.isEmpty(); }
    qreal xScale() const { return area.width() / world.width(); }
    qreal yScale() const { return area.height() / world.height(); }

    QPointF toPicture(const QPointF &point) const
    {
        return QPointF(area.left() + (point.x() - world.left()) * xScale(),
                       area.bottom() - (point.y() - world.top()) * yScale());
    }
    QPointF toWorld(const QPointF &pixel) const
    {
        return QPointF(world.left() + (pixel.x() - area.left()) / xScale(),
                       world.top() + (area.bottom() - pixel.y()) / yScale());
    }
    QRectF toPicture(const QRectF &rect) const
    {
        return QRectF(toPicture(rect.topLeft()), toPicture(rect.bottomRight())).normalized();
    }
};

#endif // COILFRAME_H
