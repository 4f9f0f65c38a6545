// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/stylebars.h"

#include "look/styleshades.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

const int barMargin = 4;
const int grooveHeight = 8;
const int handleEdge = 2;
const int progressEdge = 1;
const int busyBlocks = 3;

/// A part is pressed, and no other one.
bool isPressed(const QStyleOptionComplex &option, QStyle::SubControl part)
{
    return StyleShades::isDown(option) && (option.activeSubControls & part);
}

bool canMove(const QStyleOptionSlider &option)
{
    return option.maximum > option.minimum && !StyleShades::isOff(option);
}

QColor handleColour(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    return isPressed(option, part) ? option.palette.color(QPalette::Active, QPalette::Highlight)
                                   : StyleShades::edge(option);
}

void drawStep(const QStyleOptionSlider &option, QPainter *painter, QStyle::SubControl part,
              const QRect &place)
{
    if (place.isEmpty())
        return;
    QStyleOption key(option);
    key.rect = place;
    key.state.setFlag(QStyle::State_Sunken, isPressed(option, part));
    key.state.setFlag(QStyle::State_On, false);
    key.state.setFlag(QStyle::State_Enabled, canMove(option));
    const bool isBack = part == QStyle::SC_ScrollBarSubLine;
    const Qt::ArrowType upright = isBack ? Qt::UpArrow : Qt::DownArrow;
    const bool isMirrored = isBack != (option.direction == Qt::RightToLeft);
    const Qt::ArrowType sideways = isMirrored ? Qt::LeftArrow : Qt::RightArrow;
    StyleShades::fill(painter, place.adjusted(1, 1, -1, -1), StyleShades::key(key), QColor(), 0);
    StyleShades::drawArrow(painter, place, option.orientation == Qt::Vertical ? upright : sideways,
                           StyleShades::sign(key));
}

/// The part of the groove before the handle, which is behind it in an upright slider.
QRect grownPart(const QStyleOptionSlider &option, const QRect &groove, const QPoint &handle)
{
    QRect grown = groove;
    const bool isTurned = option.upsideDown;
    if (option.orientation == Qt::Horizontal)
        isTurned ? grown.setLeft(handle.x()) : grown.setRight(handle.x());
    else
        isTurned ? grown.setTop(handle.y()) : grown.setBottom(handle.y());
    return grown;
}

QRect narrowed(const QRect &groove, Qt::Orientation orientation)
{
    QRect narrow = groove;
    if (orientation == Qt::Horizontal)
        narrow.setHeight(grooveHeight);
    else
        narrow.setWidth(grooveHeight);
    narrow.moveCenter(groove.center());
    return narrow;
}

bool isBusy(const QStyleOptionProgressBar &option)
{
    return option.minimum == 0 && option.maximum == 0;
}

qreal doneOf(const QStyleOptionProgressBar &option)
{
    const qreal whole = qreal(option.maximum) - option.minimum;
    return whole <= 0 ? 0 : qBound<qreal>(0, (qreal(option.progress) - option.minimum) / whole, 1);
}

QRect doneRect(const QStyleOptionProgressBar &option)
{
    QRect done = option.rect;
    const bool isSideways = option.orientation == Qt::Horizontal;
    const int length = qRound((isSideways ? done.width() : done.height()) * doneOf(option));
    const bool isMirrored = isSideways && option.direction == Qt::RightToLeft;
    const bool isFromEnd = option.invertedAppearance != (isSideways ? isMirrored : true);
    if (isSideways)
        isFromEnd ? done.setLeft(done.right() - length + 1) : done.setWidth(length);
    else
        isFromEnd ? done.setTop(done.bottom() - length + 1) : done.setHeight(length);
    return done;
}

void drawBusy(const QStyleOptionProgressBar &option, QPainter *painter, const QColor &colour)
{
    const bool isSideways = option.orientation == Qt::Horizontal;
    const QRect all = option.rect;
    const int length = (isSideways ? all.width() : all.height()) / (2 * busyBlocks);
    for (int i = 0; i < busyBlocks; ++i) {
        const int from = length / 2 + 2 * i * length;
        painter->fillRect(isSideways ? QRect(all.left() + from, all.top(), length, all.height())
                                     : QRect(all.left(), all.top() + from, all.width(), length),
                          colour);
    }
}

} // namespace

void StyleBars::drawScrollBar(const QStyleOptionSlider &option, QPainter *painter,
                              const QStyle *style, const QWidget *widget)
{
    const auto rectOf = [&](QStyle::SubControl part) {
        return style->subControlRect(QStyle::CC_ScrollBar, &option, part, widget);
    };
    painter->fillRect(option.rect, StyleShades::groove(option));
    for (QStyle::SubControl part : {QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine})
        drawStep(option, painter, part, rectOf(part));
    const QRect handle =
        rectOf(QStyle::SC_ScrollBarSlider).adjusted(barMargin, barMargin, -barMargin, -barMargin);
    if (canMove(option) && handle.isValid())
        StyleShades::fill(painter, handle, handleColour(option, QStyle::SC_ScrollBarSlider),
                          QColor(), 0);
}

void StyleBars::drawSlider(const QStyleOptionSlider &option, QPainter *painter, const QStyle *style,
                           const QWidget *widget)
{
    const auto rectOf = [&](QStyle::SubControl part) {
        return style->subControlRect(QStyle::CC_Slider, &option, part, widget);
    };
    const QRect handle = rectOf(QStyle::SC_SliderHandle);
    const QRect groove = narrowed(rectOf(QStyle::SC_SliderGroove), option.orientation);
    const QColor chosen = option.palette.color(QPalette::Highlight);
    StyleShades::fill(painter, groove, StyleShades::groove(option), StyleShades::edge(option), 1,
                      grooveHeight / 2.0);
    if (!StyleShades::isOff(option))
        StyleShades::fill(painter, grownPart(option, groove, handle.center()), chosen, QColor(), 0,
                          grooveHeight / 2.0);
    QStyleOption key(option);
    key.state.setFlag(QStyle::State_On, false);
    key.state.setFlag(QStyle::State_Sunken, isPressed(option, QStyle::SC_SliderHandle));
    StyleShades::fill(painter, handle, StyleShades::key(key), handleColour(option, QStyle::SC_None),
                      handleEdge);
}

void StyleBars::drawProgressGroove(const QStyleOption &option, QPainter *painter)
{
    StyleShades::fill(painter, option.rect, StyleShades::groove(option), StyleShades::edge(option),
                      progressEdge);
}

void StyleBars::drawProgress(const QStyleOptionProgressBar &option, QPainter *painter)
{
    const QColor colour = StyleShades::isOff(option) ? StyleShades::edge(option)
                                                     : option.palette.color(QPalette::Highlight);
    if (isBusy(option))
        return drawBusy(option, painter, colour);
    const QRect done = doneRect(option);
    if (done.isEmpty())
        return;
    // What is hardly begun has no room for the corners, and is as rounded as the whole.
    painter->setClipRect(done, Qt::IntersectClip);
    StyleShades::fill(painter, option.rect, colour, QColor(), 0);
}

void StyleBars::drawProgressText(const QStyleOptionProgressBar &option, QPainter *painter)
{
    if (!option.textVisible || option.orientation != Qt::Horizontal)
        return;
    const QRect done = isBusy(option) ? QRect() : doneRect(option);
    const auto draw = [&](const QRegion &where, QPalette::ColorRole role) {
        painter->setClipRegion(where);
        painter->setPen(option.palette.color(role));
        painter->drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine, option.text);
    };
    draw(QRegion(option.rect) - done, QPalette::WindowText);
    draw(done, QPalette::HighlightedText);
}
