// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILPICTURE_H
#define COILPICTURE_H

#include "base/filarixhostglobal.h"
#include "winding/coildrawing.h"
#include "winding/coilframe.h"
#include "winding/windingmodel.h"

#include <QCoreApplication>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVector>

/// What is to be seen of a coil.
struct FILARIX_HOST_EXPORT CoilScene
{
    enum Kind {
        Section, ///< Through one side of the bobbin, each turn a circle.
        Path,    ///< Of the guide, over the bobbin.
        Plots    ///< Traverse, speed and tension.
    };
    enum Colours { ByLayer, ByTension };

    Kind kind = Section;
    /// Of the picture, in pixels.
    QSizeF size;
    /// Of letters, in pixels.
    float letters = 12;
    /// The part to be seen, as CoilFrame::world; an empty one for what is wound or driven, with the
    /// bobbin's near sides.
    QRectF world;
    Colours colours = ByLayer;
    /// Plots go over time, not over turns.
    bool isOverTime = false;
    /// Which of several coils, from 0.
    int coil = 0;
    /// Turns behind this line are not wound yet; 0 for a coil that is ready.
    int wantedLine = 0;

    bool operator==(const CoilScene &other) const;
    bool operator!=(const CoilScene &other) const { return !(*this == other); }
};

/// A drawing of a coil, and what its places mean.
///
///     const CoilPicture picture(model, scene);
///     picture.drawing().paint(&painter, palette);
///     editor->gotoLine(picture.lineAt(finger));
///
/// Made in any thread, and without an application object but for the language of its texts. However
/// many turns there are, a drawing has some ten thousand shapes at the most. Turns too small to be
/// told apart are drawn as layers.
class FILARIX_HOST_EXPORT CoilPicture
{
    Q_DECLARE_TR_FUNCTIONS(CoilPicture)

public:
    /// Circles in one drawing; more turns are drawn as bars.
    static const int mostCircles = 8000;

    CoilPicture() = default;
    CoilPicture(const WindingModel &model, const CoilScene &scene);

    const CoilDrawing &drawing() const { return m_drawing; }
    const CoilFrame &frame() const { return m_frame; }
    /// All that there is to be seen, in the shape of the frame's area: the bobbin with its flanges.
    QRectF whole() const { return m_whole; }
    /// How narrow a part may become, by the wire.
    qreal leastWidth() const { return m_leastWidth; }

    /// The line that is seen at a point of the world, at most \a reach away; 0 for none.
    static int lineAt(const WindingModel &model, const CoilScene &scene, const QPointF &point,
                      qreal reach);
    /// Where a line is seen, in the world; nothing where it can't be seen. Of a Path, from the
    /// upper left corner to the lower right one, whichever lies where.
    static QVector<QRectF> placesOf(const WindingModel &model, const CoilScene &scene, int line);
    /// The coil that is being wound at this line, from 0.
    static int coilAt(const WindingModel &model, int line);

    /// All pictures and figures of a coil on one sheet, for paper or a file.
    static CoilDrawing sheet(const WindingModel &model, const QString &title);

private:
    class Maker;

    CoilDrawing m_drawing;
    CoilFrame m_frame;
    QRectF m_whole;
    qreal m_leastWidth = 0;
};

#endif // COILPICTURE_H
