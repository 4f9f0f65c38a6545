// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLEKEYS_H
#define STYLEKEYS_H

#include <QPalette>
#include <QRect>

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionToolButton;
class QWidget;

/// How the panel's style draws what is pressed: flat keys, whose ground tells their state.
namespace StyleKeys {

/// Pixels of either of the two colours of focus.
const int focusWidth = 2;

/// At rest, pressed, checked, off; the default key has an edge of its own.
void drawGround(const QStyleOption &option, QPainter *painter);
/// For the words that the toolkit draws upon the ground.
QPalette wordsOn(const QStyleOption &option);
/// Where the toolkit shall draw icon and words. By itself it leaves the icon at the upper edge of a
/// high key, far from the words.
QRect labelOn(const QStyleOptionToolButton &option);
/// A tool button with all that is on it, a strip of the library's included.
void drawToolKey(const QStyleOptionToolButton &option, QPainter *painter, const QStyle *style,
                 const QWidget *widget);
/// Inside \a rect, along its edge. One of the two colours shows on any ground.
void drawFocus(const QRect &rect, QPainter *painter);
/// The same around something that has the focus.
void drawFocusFrame(const QRect &rect, QPainter *painter);

} // namespace StyleKeys

#endif // STYLEKEYS_H
