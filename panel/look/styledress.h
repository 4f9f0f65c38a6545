// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLEDRESS_H
#define STYLEDRESS_H

#include "look/look.h"

#include <QSize>

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionToolButton;
class QWidget;

/// How the panel's style draws what Look::dress() has dressed: the grounds of strips and of
/// messages, and the keys upon them and beside a screen's content.
namespace StyleDress {

/// The ground of \a widget itself; of one that isn't dressed nothing.
void drawGround(const QStyleOption &option, QPainter *painter, const QWidget *widget);

/// Whether the keys in \a widget are drawn here.
bool hasKeys(const QWidget *widget);
/// With the edge and the room that a key has around its \a contents.
QSize sizeOfKey(const QSize &contents, const QWidget *widget);
/// A key with all that is on it. Its focus lies around it, see KeyboardWay.
void drawKey(const QStyleOptionToolButton &option, QPainter *painter, const QStyle *style,
             const QWidget *widget);

} // namespace StyleDress

#endif // STYLEDRESS_H
