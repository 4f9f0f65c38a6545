// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILAXES_H
#define COILAXES_H

#include "winding/coildrawing.h"
#include "winding/coilframe.h"

#include <QString>
#include <QVector>

/// The scales around a picture of a coil, and the lines of its grid.
///
///     CoilAxes axes(&drawing, frame, letters);
///     axes.drawAcross(QLatin1String("mm"));
class CoilAxes
{
public:
    /// Round numbers within from and to, at most so many, at equal distances.
    static QVector<double> ticks(double from, double to, int most);
    /// A tick as a text, with as many decimals as its distance to the next one needs.
    static QString text(double tick, double distance);

    /// \a letters is the height of letters, in pixels.
    CoilAxes(CoilDrawing *drawing, const CoilFrame &frame, float letters);

    /// The room that a scale needs beside the frame's area.
    static qreal roomAtLeft(float letters);
    static qreal roomBelow(float letters);

    /// The lower scale; its numbers are the world's by \a factor. \a unit stands at its end.
    void drawAcross(const QString &unit, double factor = 1);
    /// The scale at the left, its unit above it.
    void drawUp(const QString &unit, double factor = 1);

private:
    CoilDrawing *m_drawing;
    CoilFrame m_frame;
    float m_letters;
};

#endif // COILAXES_H
