// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLEBARS_H
#define STYLEBARS_H

class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionProgressBar;
class QStyleOptionSlider;
class QWidget;

/// How the panel's style draws what slides and what grows.
namespace StyleBars {

void drawScrollBar(const QStyleOptionSlider &option, QPainter *painter, const QStyle *style,
                   const QWidget *widget);
void drawSlider(const QStyleOptionSlider &option, QPainter *painter, const QStyle *style,
                const QWidget *widget);

/// How far it is; three blocks that stand still where nobody knows.
void drawProgressGroove(const QStyleOption &option, QPainter *painter);
void drawProgress(const QStyleOptionProgressBar &option, QPainter *painter);
/// In two colours, so that it is read upon either part.
void drawProgressText(const QStyleOptionProgressBar &option, QPainter *painter);

} // namespace StyleBars

#endif // STYLEBARS_H
