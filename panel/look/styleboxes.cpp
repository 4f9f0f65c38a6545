// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/styleboxes.h"

#include "look/glyphs.h"
#include "look/styleshades.h"

#include <QPainter>
#include <QStyleOption>

namespace {

const int tickCorner = 4;
const int tickEdge = 2;
const int usualEdge = 1;
const int focusEdge = 2;
const int markMargin = 3;
// The part of a spin box that both its keys may take.
const int keysPart = 3;

/// Ticked or not, an edge of at least 3 to 1 tells where to touch.
QColor tickEdgeOf(const QStyleOption &option, bool isMarked)
{
    if (isMarked && !StyleShades::isOff(option))
        return option.palette.color(QPalette::Active, QPalette::Highlight);
    return StyleShades::edge(option);
}

QColor markGround(const QStyleOption &option)
{
    return StyleShades::isOff(option) ? StyleShades::edge(option) : StyleShades::key(option);
}

/// What is empty and under a finger.
QColor emptyGround(const QStyleOption &option)
{
    QStyleOption key(option);
    key.palette.setColor(QPalette::Button, StyleShades::field(option));
    return StyleShades::isDown(option) ? StyleShades::key(key) : StyleShades::field(option);
}

QColor markColour(const QStyleOption &option)
{
    return StyleShades::isOff(option)
               ? option.palette.color(QPalette::Active, QPalette::Window)
               : option.palette.color(QPalette::Active, QPalette::HighlightedText);
}

int edgeWidth(const QStyleOption &option)
{
    return option.state & QStyle::State_HasFocus ? focusEdge : usualEdge;
}

QColor fieldEdge(const QStyleOption &option)
{
    return option.state & QStyle::State_HasFocus
               ? option.palette.color(QPalette::Active, QPalette::Highlight)
               : StyleShades::edge(option);
}

int spinKeyWidth(const QStyleOptionSpinBox &option)
{
    const bool hasKeys = option.buttonSymbols != QAbstractSpinBox::NoButtons;
    return hasKeys ? qMin(option.rect.height(), option.rect.width() / keysPart) : 0;
}

/// What the control shows in the state of one of its parts.
template<typename Option>
Option partOf(const Option &option, const QRect &place, QStyle::SubControl part, bool isEnabled)
{
    Option key(option);
    key.rect = place;
    key.state.setFlag(QStyle::State_On, false);
    key.state.setFlag(QStyle::State_Enabled, isEnabled && !StyleShades::isOff(option));
    key.state.setFlag(QStyle::State_Sunken,
                      (option.state & QStyle::State_Sunken) && option.activeSubControls == part);
    return key;
}

void drawSpinKey(const QStyleOptionSpinBox &key, QPainter *painter, bool isMore)
{
    StyleShades::fill(painter, key.rect.adjusted(1, 1, -1, -1), StyleShades::key(key), QColor(), 0);
    if (key.buttonSymbols == QAbstractSpinBox::UpDownArrows)
        return StyleShades::drawArrow(painter, key.rect, isMore ? Qt::UpArrow : Qt::DownArrow,
                                      StyleShades::sign(key));
    const QPoint middle = key.rect.center();
    const int half = key.rect.height() / 5;
    painter->setPen(QPen(StyleShades::sign(key), focusEdge));
    painter->drawLine(middle - QPoint(half, 0), middle + QPoint(half, 0));
    if (isMore)
        painter->drawLine(middle - QPoint(0, half), middle + QPoint(0, half));
}

} // namespace

void StyleBoxes::drawTick(const QStyleOption &option, QPainter *painter)
{
    const bool isPart = option.state & QStyle::State_NoChange;
    const bool isMarked = isPart || StyleShades::isOn(option);
    QStyleOption box(option);
    box.state.setFlag(QStyle::State_On, isMarked);
    StyleShades::fill(painter, option.rect, isMarked ? markGround(box) : emptyGround(option),
                      tickEdgeOf(option, isMarked), tickEdge, tickCorner);
    const QRect inside = option.rect.adjusted(markMargin, markMargin, -markMargin, -markMargin);
    if (isPart)
        painter->fillRect(inside.adjusted(2, inside.height() / 2 - 1, -2, -inside.height() / 2 + 1),
                          markColour(option));
    else if (isMarked)
        Glyphs::draw(Glyphs::Check, painter, inside, markColour(option));
}

void StyleBoxes::drawRadio(const QStyleOption &option, QPainter *painter)
{
    const bool isMarked = StyleShades::isOn(option);
    const int radius = option.rect.height() / 2;
    StyleShades::fill(painter, option.rect, isMarked ? markGround(option) : emptyGround(option),
                      tickEdgeOf(option, isMarked), tickEdge, radius);
    if (!isMarked)
        return;
    const int third = option.rect.height() / 3;
    const QRect dot = option.rect.adjusted(third, third, -third, -third);
    StyleShades::fill(painter, dot, markColour(option), QColor(), 0, dot.height() / 2.0);
}

void StyleBoxes::drawField(const QStyleOption &option, QPainter *painter)
{
    const QStyleOptionFrame *frame = qstyleoption_cast<const QStyleOptionFrame *>(&option);
    if (!frame || frame->lineWidth <= 0)
        return painter->fillRect(option.rect, option.palette.brush(QPalette::Base));
    StyleShades::fill(painter, option.rect, StyleShades::field(option), fieldEdge(option),
                      edgeWidth(option));
}

void StyleBoxes::drawFieldEdge(const QStyleOption &option, QPainter *painter)
{
    StyleShades::fill(painter, option.rect, Qt::transparent, fieldEdge(option), edgeWidth(option));
}

void StyleBoxes::drawFrame(const QStyleOption &option, QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(StyleShades::edge(option));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void StyleBoxes::drawCombo(const QStyleOptionComboBox &option, QPainter *painter,
                           const QStyle *style, const QWidget *widget)
{
    const QRect arrow =
        style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, widget);
    QStyleOptionComboBox box(option);
    // The list is open, which is no choice.
    box.state.setFlag(QStyle::State_Sunken,
                      option.state & (QStyle::State_Sunken | QStyle::State_On));
    box.state.setFlag(QStyle::State_On, false);
    if (option.frame || !option.editable)
        StyleShades::fill(painter, option.rect,
                          option.editable ? StyleShades::field(box) : StyleShades::key(box),
                          fieldEdge(option), edgeWidth(option));
    StyleShades::drawArrow(painter, arrow, Qt::DownArrow, StyleShades::sign(option));
}

void StyleBoxes::drawSpin(const QStyleOptionSpinBox &option, QPainter *painter, const QStyle *style,
                          const QWidget *widget)
{
    if (option.frame)
        StyleShades::fill(painter, option.rect, StyleShades::field(option), fieldEdge(option),
                          edgeWidth(option));
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const auto key = [&](QStyle::SubControl part, QAbstractSpinBox::StepEnabledFlag step) {
        return partOf(option, style->subControlRect(QStyle::CC_SpinBox, &option, part, widget),
                      part, option.stepEnabled & step);
    };
    drawSpinKey(key(QStyle::SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled), painter, false);
    drawSpinKey(key(QStyle::SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled), painter, true);
}

QRect StyleBoxes::fewerKey(const QStyleOptionSpinBox &option)
{
    return moreKey(option).translated(-spinKeyWidth(option), 0);
}

QRect StyleBoxes::moreKey(const QStyleOptionSpinBox &option)
{
    const int width = spinKeyWidth(option);
    return QRect(option.rect.right() - width + 1, option.rect.top(), width, option.rect.height());
}

QRect StyleBoxes::spinField(const QStyleOptionSpinBox &option)
{
    const int frame = option.frame ? focusEdge + 1 : 0;
    return option.rect.adjusted(frame, frame, -frame - 2 * spinKeyWidth(option), -frame);
}
