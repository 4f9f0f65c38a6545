// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelstyle.h"

#include "look/look.h"
#include "look/measures.h"

#include <QListView>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <qdrawutil.h>

namespace {

// 9 mm at 133 dpi: files are chosen to be deleted, too.
const int listRowHeight = 48;
// As the toolkit rounds the frames of its fields.
const int fieldRadius = 2;
// The toolkit makes the colour of a button lighter, and white letters need their contrast.
const int chosenDarker = 140;
const int focusPixels = 2;

bool isField(QStyle::PrimitiveElement element)
{
    return element == QStyle::PE_FrameLineEdit || element == QStyle::PE_IndicatorCheckBox;
}

/// Two colours, one of which shows on any ground.
void drawFocus(QPainter *painter, const QRect &place)
{
    const QRect inner = place.adjusted(focusPixels, focusPixels, -focusPixels, -focusPixels);
    qDrawPlainRect(painter, place, Look::focusEdge(), focusPixels);
    qDrawPlainRect(painter, inner, Look::focus(), focusPixels);
}

} // namespace

PanelStyle::PanelStyle() : QProxyStyle(QLatin1String("Fusion")) {}

QSize PanelStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                   const QWidget *widget) const
{
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        return own.expandedTo(QSize(2 * Measures::touch(), Measures::touch()));
    case CT_CheckBox:
    case CT_RadioButton:
    case CT_MenuItem:
    case CT_ComboBox:
        return own.expandedTo(QSize(0, Measures::touch()));
    case CT_LineEdit:
        // The cells of a list take the height of their row.
        if (widget && widget->inherits("ComboLineEdit"))
            return own;
        return own.expandedTo(QSize(0, Measures::touch()));
    case CT_ItemViewItem:
        // A table sets the heights of its rows itself.
        if (qobject_cast<const QListView *>(widget))
            return own.expandedTo(QSize(0, qMax(listRowHeight, Measures::touch())));
        return own;
    default:
        return own;
    }
}

int PanelStyle::focusWidth()
{
    return focusPixels;
}

// Dark around light: one of the two stands out from whatever lies beneath.
int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                            const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 24;
    case PM_ScrollBarExtent:
        return 30;
    case PM_SplitterWidth:
        return 3;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

/// The toolkit draws a chosen button a little darker only, which looks as if it were switched off.
void PanelStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    if (element == CE_FocusFrame)
        return drawFocus(painter, option->rect);
    const QStyleOptionButton *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    const bool isChosen = button && (button->state & State_On)
                          && (element == CE_PushButtonBevel || element == CE_PushButtonLabel);
    if (!isChosen)
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton chosen(*button);
    chosen.palette.setColor(QPalette::Button, Look::accent().darker(chosenDarker));
    chosen.palette.setColor(QPalette::ButtonText, chosen.palette.color(QPalette::HighlightedText));
    QProxyStyle::drawControl(element, &chosen, painter, widget);
}

/// The toolkit's edge is darker than the paper, and dark paper shows none. A field in focus has a
/// bright one already.
void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (Look::style() != Look::Dark || !isField(element) || (option->state & State_HasFocus))
        return;
    painter->save();
    painter->setPen(Look::edge());
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(option->rect.adjusted(0, 0, -1, -1), fieldRadius, fieldRadius);
    painter->restore();
}
