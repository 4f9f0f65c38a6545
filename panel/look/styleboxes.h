// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLEBOXES_H
#define STYLEBOXES_H

#include <QRect>

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSpinBox;
class QWidget;

/// How the panel's style draws what is ticked, chosen and filled in, and the frames around it.
namespace StyleBoxes {

void drawTick(const QStyleOption &option, QPainter *painter);
void drawRadio(const QStyleOption &option, QPainter *painter);

/// A line to type in, with its edge; without one where it is part of something larger.
void drawField(const QStyleOption &option, QPainter *painter);
void drawFieldEdge(const QStyleOption &option, QPainter *painter);
/// Around a list, an editor or a group.
void drawFrame(const QStyleOption &option, QPainter *painter);

void drawCombo(const QStyleOptionComboBox &option, QPainter *painter, const QStyle *style,
               const QWidget *widget);
void drawSpin(const QStyleOptionSpinBox &option, QPainter *painter, const QStyle *style,
              const QWidget *widget);
/// The keys of a spin box side by side, so that a glove has room for one; the field before them.
QRect fewerKey(const QStyleOptionSpinBox &option);
QRect moreKey(const QStyleOptionSpinBox &option);
QRect spinField(const QStyleOptionSpinBox &option);

} // namespace StyleBoxes

#endif // STYLEBOXES_H
