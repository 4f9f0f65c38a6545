// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILPLOTS_H
#define COILPLOTS_H

#include "winding/coildrawing.h"
#include "winding/coilframe.h"
#include "winding/windingmodel.h"

#include <QCoreApplication>

struct CoilScene;

/// Traverse, speed and tension of a program, one below the other, over turns or time.
///
/// The frame's world is turns or seconds across, and 0 to 1 upwards for all three together.
class CoilPlots
{
    Q_DECLARE_TR_FUNCTIONS(CoilPicture)

public:
    CoilPlots(const WindingModel &model, const CoilScene &scene);

    void draw(CoilDrawing *drawing);
    const CoilFrame &frame() const { return m_frame; }
    QRectF whole() const { return m_whole; }
    /// A few turns, or seconds.
    qreal leastWidth() const;

private:
    struct Course;

    Course course(int index) const;
    QRectF strip(int index) const;
    void drawCourse(const Course &course, const QRectF &strip);
    QPolygonF curve(const Course &course, const CoilFrame &frame) const;
    int points() const;

    const WindingModel &m_model;
    const CoilScene &m_scene;
    CoilDrawing *m_drawing = nullptr;
    CoilFrame m_frame;
    QRectF m_whole;
};

#endif // COILPLOTS_H
