// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/glyphs.h"

#include "look/look.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace {

// All paths lie on a grid of 24 by 24.
const qreal kGrid = 24;

QPainterPath lines(std::initializer_list<std::initializer_list<QPointF>> strokes)
{
    QPainterPath path;
    for (const std::initializer_list<QPointF> &stroke : strokes) {
        const QPointF *point = stroke.begin();
        path.moveTo(*point);
        while (++point != stroke.end())
            path.lineTo(*point);
    }
    return path;
}

// A half turn with an arrow head at its left end.
QPainterPath turn()
{
    QPainterPath path;
    path.moveTo(5, 9);
    path.lineTo(14, 9);
    path.arcTo(QRectF(9.5, 9, 10, 10), 90, -180);
    path.lineTo(8, 19);
    path.addPath(lines({{{9.5, 4}, {4.5, 9}, {9.5, 14}}}));
    return path;
}

QPainterPath shape(Glyphs::Glyph glyph)
{
    QPainterPath path;
    switch (glyph) {
    case Glyphs::Program:
        path = lines({{{5, 3}, {15, 3}, {19, 7}, {19, 21}, {5, 21}, {5, 3}},
                      {{8.5, 9}, {15.5, 9}},
                      {{8.5, 13}, {15.5, 13}},
                      {{8.5, 17}, {12.5, 17}}});
        break;
    case Glyphs::Teach:
        path = lines({{{3, 21}, {21, 21}}, {{6, 21}, {6, 13}, {14, 8}}});
        path.addEllipse(QPointF(6, 12), 2, 2);
        path.addEllipse(QPointF(16, 7), 2.5, 2.5);
        path.addPath(lines({{{16, 12}, {16, 16}}, {{14, 14}, {18, 14}}}));
        break;
    case Glyphs::Variables:
        path = lines({{{3, 5}, {21, 5}, {21, 19}, {3, 19}, {3, 5}},
                      {{3, 10}, {21, 10}},
                      {{10, 5}, {10, 19}}});
        path.addPath(lines({{{13, 14.5}, {18, 14.5}}}));
        break;
    case Glyphs::Connections:
        path.addRect(9, 3, 6, 5);
        path.addRect(3, 16, 6, 5);
        path.addRect(15, 16, 6, 5);
        path.addPath(lines({{{12, 8}, {12, 12}}, {{6, 16}, {6, 12}, {18, 12}, {18, 16}}}));
        break;
    case Glyphs::Files:
        path = lines({{{3, 19}, {3, 5}, {9, 5}, {11, 8}, {21, 8}, {21, 19}, {3, 19}}});
        break;
    case Glyphs::Menu:
        path = lines({{{4, 6}, {20, 6}}, {{4, 12}, {20, 12}}, {{4, 18}, {20, 18}}});
        break;
    case Glyphs::Find:
        path.addEllipse(QPointF(10, 10), 6, 6);
        path.addPath(lines({{{14.5, 14.5}, {21, 21}}}));
        break;
    case Glyphs::Undo:
        path = turn();
        break;
    case Glyphs::Redo:
        path = QTransform(-1, 0, 0, 1, kGrid, 0).map(turn());
        break;
    case Glyphs::More:
        path = lines({{{5, 5}, {12, 12}, {5, 19}}, {{12, 5}, {19, 12}, {12, 19}}});
        break;
    case Glyphs::Load:
        path = lines({{{4, 15}, {4, 20}, {20, 20}, {20, 15}},
                      {{12, 16}, {12, 4}},
                      {{7, 9}, {12, 4}, {17, 9}}});
        break;
    case Glyphs::Store:
        path = lines({{{4, 15}, {4, 20}, {20, 20}, {20, 15}},
                      {{12, 4}, {12, 15}},
                      {{7, 10}, {12, 15}, {17, 10}}});
        break;
    case Glyphs::Clear:
        path = lines({{{4, 6}, {20, 6}},
                      {{9, 6}, {9, 3}, {15, 3}, {15, 6}},
                      {{6, 6}, {7, 21}, {17, 21}, {18, 6}},
                      {{10, 10}, {10, 17}},
                      {{14, 10}, {14, 17}}});
        break;
    case Glyphs::Select:
        path = lines({{{11, 5}, {21, 5}},
                      {{11, 12}, {21, 12}},
                      {{11, 19}, {21, 19}},
                      {{3, 5}, {5, 7}, {8, 3}},
                      {{3, 12}, {5, 14}, {8, 10}},
                      {{3, 19}, {5, 21}, {8, 17}}});
        break;
    case Glyphs::Plug:
    case Glyphs::Pull:
        path.addRect(8, 11, 8, 10);
        path.addPath(lines({{{10, 11}, {10, 8}, {14, 8}, {14, 11}}}));
        path.addPath(glyph == Glyphs::Plug ? lines({{{5, 3}, {19, 3}}, {{12, 3}, {12, 5}}})
                                           : lines({{{9, 5}, {12, 2}, {15, 5}}}));
        break;
    case Glyphs::Rename:
        path = lines({{{3, 7}, {11, 7}},
                      {{7, 7}, {7, 17}},
                      {{14, 3}, {18, 3}},
                      {{16, 3}, {16, 21}},
                      {{14, 21}, {18, 21}}});
        break;
    case Glyphs::Edit:
        path = lines({{{4, 20}, {5, 15}, {16, 4}, {20, 8}, {9, 19}, {4, 20}}, {{13, 7}, {17, 11}}});
        break;
    case Glyphs::Language:
        path.addEllipse(QPointF(12, 12), 9, 9);
        path.addEllipse(QPointF(12, 12), 4, 9);
        path.addPath(lines({{{3.5, 9}, {20.5, 9}}, {{3.5, 15}, {20.5, 15}}}));
        break;
    case Glyphs::History:
        path.arcMoveTo(QRectF(4, 4, 16, 16), 180);
        path.arcTo(QRectF(4, 4, 16, 16), 180, -320);
        path.addPath(lines({{{1, 8.5}, {4, 12.5}, {8, 9.5}}, {{12, 7.5}, {12, 12.5}, {16, 14.5}}}));
        break;
    case Glyphs::Inform:
        path.addEllipse(QPointF(12, 12), 9, 9);
        path.addPath(lines({{{12, 11}, {12, 16.5}}, {{12, 7}, {12, 7.3}}}));
        break;
    case Glyphs::Warn:
        path = lines({{{12, 3}, {22, 20}, {2, 20}, {12, 3}},
                      {{12, 9.5}, {12, 13.5}},
                      {{12, 16.8}, {12, 17}}});
        break;
    case Glyphs::Alarm:
        path = lines({{{8, 2.5},
                       {16, 2.5},
                       {21.5, 8},
                       {21.5, 16},
                       {16, 21.5},
                       {8, 21.5},
                       {2.5, 16},
                       {2.5, 8},
                       {8, 2.5}},
                      {{12, 7}, {12, 13}},
                      {{12, 17}, {12, 17.2}}});
        break;
    case Glyphs::Close:
        path = lines({{{6, 6}, {18, 18}}, {{18, 6}, {6, 18}}});
        break;
    case Glyphs::Plc:
        path.addRect(6, 6, 12, 12);
        path.addPath(lines({{{9, 2}, {9, 6}},
                            {{15, 2}, {15, 6}},
                            {{9, 18}, {9, 22}},
                            {{15, 18}, {15, 22}},
                            {{2, 9}, {6, 9}},
                            {{2, 15}, {6, 15}},
                            {{18, 9}, {22, 9}},
                            {{18, 15}, {22, 15}}}));
        break;
    case Glyphs::Stick:
        path.addRect(7, 9, 10, 12);
        path.addPath(lines({{{9, 9}, {9, 3}, {15, 3}, {15, 9}}}));
        break;
    case Glyphs::Storage:
        path.addEllipse(QRectF(4, 3, 16, 6));
        path.moveTo(4, 6);
        path.lineTo(4, 18);
        path.arcTo(QRectF(4, 15, 16, 6), 180, 180);
        path.lineTo(20, 6);
        break;
    case Glyphs::Style:
        path.addEllipse(QPointF(12, 12), 8, 8);
        for (int y = 6; y <= 18; y += 2) {
            const qreal half = std::sqrt(64.0 - (y - 12) * (y - 12)) - 1;
            path.addPath(lines({{QPointF(12, y), QPointF(12 + half, y)}}));
        }
        break;
    }
    return path;
}

/// Draws when it is asked to, so that the colours are those of the moment.
class GlyphEngine : public QIconEngine
{
public:
    GlyphEngine(Glyphs::Glyph glyph, Glyphs::Ground ground) : m_glyph(glyph), m_ground(ground) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        Glyphs::draw(m_glyph, painter, rect, color(mode, state));
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
    QColor color(QIcon::Mode mode, QIcon::State state) const
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

void Glyphs::draw(Glyph glyph, QPainter *painter, const QRect &rect, const QColor &color)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kGrid, rect.height() / kGrid);
    painter->setPen(QPen(color, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(shape(glyph));
    painter->restore();
}

QIcon Glyphs::icon(Glyph glyph, Ground ground)
{
    return QIcon(new GlyphEngine(glyph, ground));
}
