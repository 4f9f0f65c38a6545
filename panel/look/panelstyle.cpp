// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelstyle.h"

#include "look/measures.h"

#include <QListView>
#include <QWidget>

namespace {

// 9 mm at 133 dpi: files are chosen to be deleted, too.
const int listRowHeight = 48;

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
