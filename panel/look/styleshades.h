// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLESHADES_H
#define STYLESHADES_H

#include <QColor>
#include <QPalette>
#include <QRect>
#include <QStyleOption>

class QPainter;

/// The shades and the flat forms in which the panel's style draws. Each colour is mixed from a
/// palette, so that another look is another palette and nothing more.
namespace StyleShades {

/// Corners of keys, fields and bars, in pixels.
const int corner = 6;

bool isOff(const QStyleOption &option);
/// Pressed at this moment.
bool isDown(const QStyleOption &option);
/// Down for good, or checked.
bool isOn(const QStyleOption &option);

/// \a share of \a other, from 0 to 1, in \a one.
QColor mixed(const QColor &one, const QColor &other, qreal share);
/// Around what can be touched, and between what is read.
QColor edge(const QStyleOption &option);
/// Of an arrow, a mark or a handle.
QColor sign(const QStyleOption &option);
/// Of a key or a handle in the state of \a option.
QColor key(const QStyleOption &option);
/// Upon key().
QColor keyWords(const QStyleOption &option);
/// What something slides or grows in.
QColor groove(const QStyleOption &option);
/// Behind what is typed or ticked.
QColor field(const QStyleOption &option);

/// A rounded form without a gradient. The edge lies inside \a rect; a \a width of 0 has none.
void fill(QPainter *painter, const QRect &rect, const QColor &ground, const QColor &edge, int width,
          qreal radius = corner);
/// Two strokes that meet, in the middle of \a rect.
void drawArrow(QPainter *painter, const QRect &rect, Qt::ArrowType direction, const QColor &colour);

} // namespace StyleShades

#endif // STYLESHADES_H
