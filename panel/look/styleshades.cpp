// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styleshades.h"

#include <QPainter>
#include <QPolygonF>

namespace {

// Half of the words' colour: at least 3 to 1 beside the paper of each look.
const qreal edgeShare = 0.5;
const qreal offEdgeShare = 0.2;
const qreal downShare = 0.35;
const qreal offShare = 0.5;
const qreal grooveShare = 0.12;
// Words upon a chosen key are light, and keep their contrast upon a darker one.
const int downDarker = 140;
const qreal penWidth = 2.2;
const qreal arrowPart = 0.5;
const qreal largestArrow = 14;

} // namespace

bool StyleShades::isOff(const QStyleOption &option)
{
    return !(option.state & QStyle::State_Enabled);
}

bool StyleShades::isDown(const QStyleOption &option)
{
    return !isOff(option) && (option.state & QStyle::State_Sunken);
}

bool StyleShades::isOn(const QStyleOption &option)
{
    return option.state & QStyle::State_On;
}

QColor StyleShades::mixed(const QColor &one, const QColor &other, qreal share)
{
    const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return QColor(part(one.red(), other.red()), part(one.green(), other.green()),
                  part(one.blue(), other.blue()));
}

QColor StyleShades::edge(const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    return mixed(palette.color(QPalette::Active, QPalette::Window),
                 palette.color(QPalette::Active, QPalette::WindowText),
                 isOff(option) ? offEdgeShare : edgeShare);
}

QColor StyleShades::sign(const QStyleOption &option)
{
    return isOff(option) ? option.palette.color(QPalette::Disabled, QPalette::ButtonText)
                         : option.palette.color(QPalette::Active, QPalette::ButtonText);
}

QColor StyleShades::key(const QStyleOption &option)
{
    const QPalette &palette = option.palette;
    const QColor rest = palette.color(QPalette::Active, QPalette::Button);
    const QColor chosen = palette.color(QPalette::Active, QPalette::Highlight);
    if (isOff(option))
        return mixed(rest, palette.color(QPalette::Active, QPalette::Window), offShare);
    if (isOn(option))
        return isDown(option) ? chosen.darker(downDarker) : chosen;
    return isDown(option) ? mixed(rest, chosen, downShare) : rest;
}

QColor StyleShades::keyWords(const QStyleOption &option)
{
    if (isOn(option) && !isOff(option))
        return option.palette.color(QPalette::Active, QPalette::HighlightedText);
    return sign(option);
}

QColor StyleShades::groove(const QStyleOption &option)
{
    return mixed(option.palette.color(QPalette::Active, QPalette::Window),
                 option.palette.color(QPalette::Active, QPalette::WindowText), grooveShare);
}

QColor StyleShades::field(const QStyleOption &option)
{
    const QColor base = option.palette.color(QPalette::Base);
    return isOff(option) ? mixed(base, option.palette.color(QPalette::Window), offShare) : base;
}

void StyleShades::fill(QPainter *painter, const QRect &rect, const QColor &ground,
                       const QColor &edge, int width, qreal radius)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(ground);
    painter->setPen(width > 0 ? QPen(edge, width) : QPen(Qt::NoPen));
    const qreal half = width / 2.0;
    const QRectF inside = QRectF(rect).adjusted(half, half, -half, -half);
    painter->drawRoundedRect(inside, radius, radius);
}

void StyleShades::drawArrow(QPainter *painter, const QRect &rect, Qt::ArrowType direction,
                            const QColor &colour)
{
    const qreal whole = qMin<qreal>(largestArrow, qMin(rect.width(), rect.height()) * arrowPart);
    const qreal quarter = whole / 4;
    const bool isUpright = direction == Qt::UpArrow || direction == Qt::DownArrow;
    const bool isBack = direction == Qt::UpArrow || direction == Qt::LeftArrow;
    QPolygonF strokes;
    for (int i = -1; i <= 1; ++i) {
        const qreal along = i * 2 * quarter;
        const qreal ahead = ((i == 0) != isBack) ? quarter : -quarter;
        strokes << QRectF(rect).center()
                       + (isUpright ? QPointF(along, ahead) : QPointF(ahead, along));
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(colour, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(strokes);
}
