// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "scrollbar.h"

namespace {

const char verticalSheet[] =
    "QScrollBar::Vertical {border:0px;margin: 30px 0px 30px 0px;} "
    "QScrollBar::add-line:Vertical {width: 30px;height:30px;subcontrol-position: "
    "bottom;subcontrol-origin: margin;} "
    "QScrollBar::sub-line:Vertical {width: 30px;height:30px;subcontrol-position: "
    "top;subcontrol-origin: margin;}";

const char horizontalSheet[] =
    "QScrollBar::Horizontal {border:0px;margin: 0px 30px 0px 30px;} "
    "QScrollBar::add-line:Horizontal {width: 30px;height:30px;subcontrol-position: "
    "right;subcontrol-origin: margin;} "
    "QScrollBar::sub-line:Horizontal {width: 30px;height:30px;subcontrol-position: "
    "left;subcontrol-origin: margin;}";

const int thickness = 30;
const int shortestLength = 69;

} // namespace

ScrollBar::ScrollBar(Qt::Orientation orientation, QWidget *parent) : QScrollBar(parent)
{
    if (orientation == Qt::Vertical)
        setStyleSheet(QLatin1String(verticalSheet));
    else if (orientation == Qt::Horizontal)
        setStyleSheet(QLatin1String(horizontalSheet));
}

QSize ScrollBar::sizeHint() const
{
    if (orientation() == Qt::Horizontal)
        return QSize(shortestLength, thickness);
    if (orientation() == Qt::Vertical)
        return QSize(thickness, shortestLength);
    return QScrollBar::sizeHint();
}
