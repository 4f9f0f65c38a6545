// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/stylekeys.h"

#include "look/look.h"
#include "look/styleshades.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <qdrawutil.h>

namespace {

const int usualEdge = 1;
const int defaultEdge = 2;
// Keys of a bar stand side by side without a space.
const int gapInBar = 1;
const int arrowSide = 12;
// As the toolkit has it.
const int betweenIconAndWords = 4;
// A key that is this much higher than what is on it has both in its middle.
const int roomyFrom = 16;

bool isDefault(const QStyleOption &option)
{
    const QStyleOptionButton *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button && (button->features & QStyleOptionButton::DefaultButton);
}

QColor edgeOf(const QStyleOption &option)
{
    const bool isMarked =
        isDefault(option) || StyleShades::isOn(option) || StyleShades::isDown(option);
    if (isMarked && !StyleShades::isOff(option))
        return option.palette.color(QPalette::Active, QPalette::Highlight);
    return StyleShades::edge(option);
}

bool hasMenu(const QStyleOptionToolButton &option)
{
    return option.features
           & (QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu);
}

/// In the corner, where no word is.
void drawMenuSign(const QStyleOptionToolButton &option, QPainter *painter)
{
    const QRect corner(option.rect.bottomRight() - QPoint(arrowSide, arrowSide),
                       QSize(arrowSide, arrowSide));
    StyleShades::drawArrow(painter, corner, Qt::DownArrow, StyleShades::keyWords(option));
}

} // namespace

void StyleKeys::drawGround(const QStyleOption &option, QPainter *painter)
{
    const bool isMarked = isDefault(option) || StyleShades::isDown(option);
    StyleShades::fill(painter, option.rect, StyleShades::key(option), edgeOf(option),
                      isMarked ? defaultEdge : usualEdge);
}

QPalette StyleKeys::wordsOn(const QStyleOption &option)
{
    QPalette palette = option.palette;
    palette.setColor(QPalette::ButtonText, StyleShades::keyWords(option));
    return palette;
}

QRect StyleKeys::labelOn(const QStyleOptionToolButton &option)
{
    if (option.toolButtonStyle != Qt::ToolButtonTextUnderIcon || option.icon.isNull())
        return option.rect;
    const int words = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).height();
    const int height = option.iconSize.height() + betweenIconAndWords + words;
    if (option.rect.height() - height < roomyFrom)
        return option.rect;
    QRect label = option.rect;
    label.setHeight(height);
    label.moveCenter(option.rect.center());
    return label;
}

void StyleKeys::drawToolKey(const QStyleOptionToolButton &option, QPainter *painter,
                            const QStyle *style, const QWidget *widget)
{
    QStyleOptionToolButton key(option);
    if (option.state & QStyle::State_AutoRaise)
        key.rect.adjust(gapInBar, gapInBar, -gapInBar, -gapInBar);
    // The toolkit shows a checked key pressed.
    style->drawPrimitive(QStyle::PE_PanelButtonTool, &key, painter, widget);
    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(key);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, widget);
    }
    if (hasMenu(option))
        drawMenuSign(key, painter);
    key.palette = wordsOn(option);
    key.rect = labelOn(key);
    style->drawControl(QStyle::CE_ToolButtonLabel, &key, painter, widget);
}

void StyleKeys::drawFocus(const QRect &rect, QPainter *painter)
{
    const QRect inner = rect.adjusted(focusWidth, focusWidth, -focusWidth, -focusWidth);
    qDrawPlainRect(painter, rect, Look::focus(), focusWidth);
    qDrawPlainRect(painter, inner, Look::focusEdge(), 1);
}

void StyleKeys::drawFocusFrame(const QRect &rect, QPainter *painter)
{
    const QRect inner = rect.adjusted(focusWidth, focusWidth, -focusWidth, -focusWidth);
    qDrawPlainRect(painter, rect, Look::focusEdge(), focusWidth);
    qDrawPlainRect(painter, inner, Look::focus(), focusWidth);
}
