// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/glyphs.h"

#include "look/look.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QVector>

namespace {

const qreal grid = 24;

// On a grid of 24 by 24. The letters, each with the numbers behind it:
//   M  x y x y ...                     a line from point to point
//   E  x y rx ry                       an ellipse about a point
//   R  x y width height                a rectangle
//   S  x y width height angle          where an arc of that ellipse begins
//   A  x y width height angle sweep    on along that arc
//   L  x y                             on along a line
const struct
{
    Glyphs::Glyph glyph;
    const char *strokes;
} drawings[] = {
    {Glyphs::Program,
     "M 5 3 15 3 19 7 19 21 5 21 5 3 M 8.5 9 15.5 9 M 8.5 13 15.5 13 M 8.5 17 12.5 17"},
    {Glyphs::Teach,
     "M 3 21 21 21 M 6 21 6 13 14 8 E 6 12 2 2 E 16 7 2.5 2.5 M 16 12 16 16 M 14 14 18 14"},
    {Glyphs::Variables, "M 3 5 21 5 21 19 3 19 3 5 M 3 10 21 10 M 10 5 10 19 M 13 14.5 18 14.5"},
    {Glyphs::Connections, "R 9 3 6 5 R 3 16 6 5 R 15 16 6 5 M 12 8 12 12 M 6 16 6 12 18 12 18 16"},
    {Glyphs::Files, "M 3 19 3 5 9 5 11 8 21 8 21 19 3 19"},
    {Glyphs::Menu, "M 4 6 20 6 M 4 12 20 12 M 4 18 20 18"},
    {Glyphs::Find, "E 10 10 6 6 M 14.5 14.5 21 21"},
    {Glyphs::Undo, "M 5 9 14 9 A 9.5 9 10 10 90 -180 L 8 19 M 9.5 4 4.5 9 9.5 14"},
    {Glyphs::Redo, "M 19 9 10 9 A 4.5 9 10 10 90 180 L 16 19 M 14.5 4 19.5 9 14.5 14"},
    {Glyphs::More, "M 5 5 12 12 5 19 M 12 5 19 12 12 19"},
    {Glyphs::Close, "M 6 6 18 18 M 18 6 6 18"},
    {Glyphs::Load, "M 4 15 4 20 20 20 20 15 M 12 16 12 4 M 7 9 12 4 17 9"},
    {Glyphs::Store, "M 4 15 4 20 20 20 20 15 M 12 4 12 15 M 7 10 12 15 17 10"},
    {Glyphs::Clear,
     "M 4 6 20 6 M 9 6 9 3 15 3 15 6 M 6 6 7 21 17 21 18 6 M 10 10 10 17 M 14 10 14 17"},
    {Glyphs::Select,
     "M 11 5 21 5 M 11 12 21 12 M 11 19 21 19 M 3 5 5 7 8 3 M 3 12 5 14 8 10 M 3 19 5 21 8 17"},
    {Glyphs::Plug, "R 8 11 8 10 M 10 11 10 8 14 8 14 11 M 5 3 19 3 M 12 3 12 5"},
    {Glyphs::Pull, "R 8 11 8 10 M 10 11 10 8 14 8 14 11 M 9 5 12 2 15 5"},
    {Glyphs::Rename, "M 3 7 11 7 M 7 7 7 17 M 14 3 18 3 M 16 3 16 21 M 14 21 18 21"},
    {Glyphs::Edit, "M 4 20 5 15 16 4 20 8 9 19 4 20 M 13 7 17 11"},
    {Glyphs::Plc, "R 6 6 12 12 M 9 2 9 6 M 15 2 15 6 M 9 18 9 22 M 15 18 15 22 M 2 9 6 9 M 2 15 6 "
                  "15 M 18 9 22 9 "
                  "M 18 15 22 15"},
    {Glyphs::Stick, "R 7 9 10 12 M 9 9 9 3 15 3 15 9"},
    {Glyphs::Storage, "E 12 6 8 3 M 4 6 4 18 A 4 15 16 6 180 180 L 20 6"},
    {Glyphs::Style,
     "E 12 12 8 8 M 12 6 16.29150262 6 M 12 8 17.92820323 8 M 12 10 18.74596669 10 M 12 12 19 12 "
     "M 12 14 18.74596669 14 M 12 16 17.92820323 16 M 12 18 16.29150262 18"},
    {Glyphs::Language, "E 12 12 9 9 E 12 12 4 9 M 3.5 9 20.5 9 M 3.5 15 20.5 15"},
    {Glyphs::History,
     "S 4 4 16 16 180 A 4 4 16 16 180 -320 M 1 8.5 4 12.5 8 9.5 M 12 7.5 12 12.5 16 14.5"},
    {Glyphs::Preview,
     "M 5 3 5 21 M 19 3 19 21 M 5 8 19 8 M 5 16 19 16 M 9 8 8 16 M 13 8 12 16 M 17 8 16 16"},
    {Glyphs::Coil, "M 3 3 3 21 21 21 21 3 E 8 17 2.8 2.8 E 16 17 2.8 2.8 E 12 10.5 2.8 2.8"},
    {Glyphs::Path, "M 3 21 3 18 21 18 21 21 M 4 14 20 11 4 7 20 4"},
    {Glyphs::Curves, "M 4 3 4 20 21 20 M 7 16 11 9 15 12 20 5"},
    {Glyphs::Figures, "M 4 6 9 6 M 13 6 20 6 M 4 12 9 12 M 13 12 20 12 M 4 18 9 18 M 13 18 20 18"},
    {Glyphs::ZoomIn, "E 10 10 6 6 M 14.5 14.5 21 21 M 7.5 10 12.5 10 M 10 7.5 10 12.5"},
    {Glyphs::ZoomOut, "E 10 10 6 6 M 14.5 14.5 21 21 M 7.5 10 12.5 10"},
    {Glyphs::Fit, "M 4 9 4 4 9 4 M 15 4 20 4 20 9 M 20 15 20 20 15 20 M 9 20 4 20 4 15"},
    {Glyphs::Colours, "E 8 8.5 4 4 E 16 8.5 4 4 E 12 16 4 4"},
    {Glyphs::Clock, "E 12 12 9 9 M 12 7 12 12 15.5 14"},
    {Glyphs::Grow, "M 3 21 21 21 M 3 16.5 21 16.5 M 3 12 12 12 M 16 7 12 12 16 17"},
    {Glyphs::Export, "R 3 11 8 10 M 5 11 5 5 9 5 9 11 M 21 8 14 8 M 17 5 14 8 17 11"},
    {Glyphs::Check, "M 4 13 9.5 18.5 20 6"},
    {Glyphs::List, "M 9 5 21 5 M 9 12 21 12 M 9 19 21 19 M 4 5 4.3 5 M 4 12 4.3 12 M 4 19 4.3 19"},
    {Glyphs::Up, "M 5 15 12 8 19 15"},
    {Glyphs::Down, "M 5 9 12 16 19 9"},
    {Glyphs::ToLine, "M 10 5 21 5 M 10 12 21 12 M 10 19 21 19 M 2 12 7 12 M 4 9 7 12 4 15"},
    {Glyphs::Joint, "E 5 18 2 2 E 19 6 2 2 S 5 6 24 20 180 A 5 6 24 20 180 -90"},
    {Glyphs::Line, "E 5 18 2 2 E 19 6 2 2 M 6.5 16.5 17.5 7.5"},
    {Glyphs::StoreAs, "M 4 15 4 20 12 20 M 10 4 10 15 M 5 10 10 15 15 10 M 15 21 16 18 21 13"},
    {Glyphs::Gear, "M 9.9 5.1 10.3 2.1 13.7 2.1 14.1 5.1 15.4 5.7 17.8 3.8 20.2 6.2 18.3 8.6 18.9 "
                   "9.9 21.9 10.3 21.9 13.7 18.9 14.1 18.3 15.4 20.2 17.8 17.8 20.2 15.4 18.3 14.1 "
                   "18.9 13.7 21.9 10.3 21.9 9.9 18.9 8.6 18.3 6.2 20.2 3.8 17.8 5.7 15.4 5.1 14.1 "
                   "2.1 13.7 2.1 10.3 5.1 9.9 5.7 8.6 3.8 6.2 6.2 3.8 8.6 5.7 9.9 5.1 E 12 12 3 3"},
    {Glyphs::TextSize,
     "M 2 20 8.5 4 15 20 M 4.5 14.5 12.5 14.5 M 15.5 20 18.8 12 22 20 M 16.6 17.5 21 17.5"},
    {Glyphs::Sound, "M 3 9.5 7 9.5 12 5 12 19 7 14.5 3 14.5 3 9.5 S 10 8 8 8 60 A 10 8 8 8 60 -120 "
                    "S 8 4 15 16 55 A 8 4 15 16 55 -110"},
    {Glyphs::First, "M 5 4 19 4 M 12 21 12 8 M 6 14 12 8 18 14"},
    {Glyphs::Last, "M 5 20 19 20 M 12 3 12 16 M 6 10 12 16 18 10"},
    {Glyphs::PageUp, "M 5 12 12 5 19 12 M 5 19 12 12 19 19"},
    {Glyphs::PageDown, "M 5 5 12 12 19 5 M 5 12 12 19 19 12"},
    {Glyphs::Copy, "R 9 8 12 13 M 15 8 15 3 3 3 3 16 9 16"},
    {Glyphs::Paste, "M 8 5 4 5 4 21 20 21 20 5 16 5 R 8 3 8 4 M 8 12 16 12 M 8 16.5 16 16.5"},
    {Glyphs::Insert, "M 4 5 20 5 M 4 11 13 11 M 4 17 9 17 M 17 13 17 21 M 13 17 21 17"},
    {Glyphs::Remove, "M 4 5 20 5 M 4 11 11 11 M 4 17 9 17 M 14 13 21 20 M 21 13 14 20"},
    {Glyphs::Exchange, "M 8 20 8 4 M 4 8.5 8 4 12 8.5 M 16 4 16 20 M 12 15.5 16 20 20 15.5"},
    {Glyphs::Inform, "E 12 12 9 9 M 12 11 12 16.5 M 12 7 12 7.3"},
    {Glyphs::Warn, "M 12 3 22 20 2 20 12 3 M 12 9.5 12 13.5 M 12 16.8 12 17"},
    {Glyphs::Ask, "E 12 12 9 9 S 9 6.5 6 6 180 A 9 6.5 6 6 180 -225 L 12 14 M 12 17 12 17.2"},
    {Glyphs::Alarm, "M 8 2.5 16 2.5 21.5 8 21.5 16 16 21.5 8 21.5 2.5 16 2.5 8 8 2.5 M 12 7 12 13 "
                    "M 12 17 12 17.2"},
};

void addLine(QPainterPath *path, const qreal *at)
{
    path->lineTo(at[0], at[1]);
}

void addEllipse(QPainterPath *path, const qreal *at)
{
    path->addEllipse(QPointF(at[0], at[1]), at[2], at[3]);
}

void addRect(QPainterPath *path, const qreal *at)
{
    path->addRect(at[0], at[1], at[2], at[3]);
}

void moveToArc(QPainterPath *path, const qreal *at)
{
    path->arcMoveTo(at[0], at[1], at[2], at[3], at[4]);
}

void addArc(QPainterPath *path, const qreal *at)
{
    path->arcTo(at[0], at[1], at[2], at[3], at[4], at[5]);
}

void moveTo(QPainterPath *path, const qreal *at)
{
    path->moveTo(at[0], at[1]);
}

const struct Stroke
{
    char letter;
    int numbers;
    void (*add)(QPainterPath *path, const qreal *numbers);
} strokes[] = {
    {'M', 2, &moveTo},  {'L', 2, &addLine},   {'E', 4, &addEllipse},
    {'R', 4, &addRect}, {'S', 5, &moveToArc}, {'A', 6, &addArc},
};

const Stroke *strokeOf(char letter)
{
    for (const Stroke &stroke : strokes) {
        if (stroke.letter == letter)
            return &stroke;
    }
    return nullptr;
}

QPainterPath pathOf(const char *drawing)
{
    QPainterPath path;
    const Stroke *stroke = nullptr;
    QVector<qreal> numbers;
    const QList<QByteArray> words = QByteArray(drawing).split(' ');
    for (const QByteArray &word : words) {
        if (const Stroke *begun = strokeOf(word.at(0))) {
            stroke = begun;
            continue;
        }
        numbers.append(word.toDouble());
        if (!stroke || numbers.size() < stroke->numbers)
            continue;
        stroke->add(&path, numbers.constData());
        numbers.clear();
        // Behind its first point a line goes on.
        if (stroke->letter == 'M')
            stroke = strokeOf('L');
    }
    return path;
}

QPainterPath shape(Glyphs::Glyph glyph)
{
    for (const auto &drawing : drawings) {
        if (drawing.glyph == glyph)
            return pathOf(drawing.strokes);
    }
    return QPainterPath();
}

/// Draws when it is asked to, so that the colours are those of the moment.
class GlyphEngine : public QIconEngine
{
public:
    GlyphEngine(Glyphs::Glyph glyph, Glyphs::Ground ground) : m_glyph(glyph), m_ground(ground) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        Glyphs::draw(m_glyph, painter, rect, colour(mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new GlyphEngine(*this); }

private:
    QColor colour(QIcon::Mode mode, QIcon::State state) const
    {
        const bool disabled = mode == QIcon::Disabled;
        switch (m_ground) {
        case Glyphs::OnStrip:
            return disabled ? Look::stripFaint() : Look::stripText();
        case Glyphs::OnKey:
            // A key that is down for good has the accent for its ground.
            return disabled             ? Look::keyFaint()
                   : state == QIcon::On ? Look::stripText()
                                        : Look::keyText();
        case Glyphs::OnPaper:
            break;
        }
        return Look::palette().color(QPalette::Link);
    }

    const Glyphs::Glyph m_glyph;
    const Glyphs::Ground m_ground;
};

} // namespace

void Glyphs::draw(Glyph glyph, QPainter *painter, const QRect &rect, const QColor &colour)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / grid, rect.height() / grid);
    painter->setPen(QPen(colour, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(shape(glyph));
    painter->restore();
}

QIcon Glyphs::icon(Glyph glyph, Ground ground)
{
    return QIcon(new GlyphEngine(glyph, ground));
}
