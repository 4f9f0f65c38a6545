// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILDRAWING_H
#define COILDRAWING_H

#include "base/filarixhostglobal.h"

#include <QByteArray>
#include <QColor>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QVector>

class QPainter;

/// A picture of a coil as a list of plain shapes, which know their role and no colour.
///
/// One list serves the screen, a picture file and a text of SVG. It needs no font to be made, and
/// so no application object. CoilPicture makes such drawings of a program.
///
///     drawing.paint(&painter, CoilDrawing::lightPalette());
///     file.write(drawing.svg(CoilDrawing::lightPalette()));
class FILARIX_HOST_EXPORT CoilDrawing
{
public:
    /// What a shape stands for.
    enum Role {
        NoRole, ///< Is not drawn.
        Paper,
        Ink,
        FaintInk, ///< Texts and lines of less weight.
        Grid,
        Bobbin,
        BobbinEdge,
        Wire, ///< Has a shade, 0 to 1, along the palette's scale.
        WireEdge,
        PaleWire, ///< A turn that is not wound yet.
        Traverse,
        Speed,
        Tension,
        Winding, ///< The guide's path while the wire is laid.
        Feed,
        Rapid,
        Mark ///< What belongs to the line in hand.
    };
    static const int roles = Mark + 1;

    /// Colours for the roles.
    struct FILARIX_HOST_EXPORT Palette
    {
        QColor colours[roles];
        /// The colours of the wire from shade 0 to shade 1, at equal distances; two at the least.
        QVector<QColor> scale;

        QColor colour(Role role, float shade = 0) const;
    };

    enum Kind { Box, Circle, Line, Area, Text, Clip };
    enum Anchor { AtLeft, InMiddle, AtRight };

    /// One shape. Lengths are pixels, from the picture's upper left corner.
    struct Shape
    {
        Kind kind = Box;
        Role fill = NoRole;
        Role edge = NoRole;
        Anchor anchor = AtLeft;
        bool isDashed = false;
        bool isBold = false;
        bool isTurned = false; ///< A text that is read from below.
        float shade = 0;       ///< Of a wire, see Palette.
        float width = 1;       ///< Of the edge or line; of a text, the height of its letters.
        QRectF box;            ///< Of a box or a circle. A text's base line begins at its corner.
        QPolygonF points;      ///< Of a line or an area.
        QString text;
    };

    explicit CoilDrawing(const QSizeF &size = QSizeF());

    /// Dark on light, for paper too.
    static Palette lightPalette();
    static Palette darkPalette();

    QSizeF size() const { return m_size; }
    bool isEmpty() const { return m_shapes.isEmpty(); }
    const QVector<Shape> &shapes() const { return m_shapes; }

    /// Places, lengths and heights of letters are pixels, see Shape; a shade is 0 to 1.
    void addBox(const QRectF &box, Role fill, Role edge = NoRole, float width = 1);
    void addCircle(const QPointF &centre, qreal radius, Role fill, float shade, Role edge = NoRole,
                   float width = 1);
    void addBar(const QRectF &box, float shade);
    void addLine(const QPolygonF &points, Role role, float width = 1, bool isDashed = false);
    void addArea(const QPolygonF &points, Role fill);
    void addText(const QPointF &base, const QString &text, float pixels, Role role = Ink,
                 Anchor anchor = AtLeft, bool isBold = false);
    /// A text that is read from below; \a base is where its base line begins, at its lower end.
    void addTurnedText(const QPointF &base, const QString &text, float pixels, Role role = Ink,
                       Anchor anchor = AtLeft);
    /// What is added from now on is cut at the edges of \a box; clips do not nest.
    void beginClip(const QRectF &box);
    void endClip();
    /// All shapes of another drawing, with its corner at \a place.
    void addDrawing(const CoilDrawing &drawing, const QPointF &place);

    /// Draws it with the family of the painter's font, whose state is as before afterwards.
    void paint(QPainter *painter, const Palette &palette) const;
    /// The drawing as a file of SVG 1.1.
    QByteArray svg(const Palette &palette) const;

    /// How wide a text of this height becomes at the most with the usual fonts.
    static qreal textWidth(const QString &text, float pixels, bool isBold = false);

private:
    QSizeF m_size;
    QVector<Shape> m_shapes;
};

#endif // COILDRAWING_H
