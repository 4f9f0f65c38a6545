// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELSTYLE_H
#define PANELSTYLE_H

#include <QProxyStyle>

/// Makes what the toolkit sizes for a mouse large enough for a glove: the buttons of message
/// boxes, check boxes, entry fields, menus. Sizes that the library fixes stay as they are. A button
/// that is chosen stands out, and on dark paper fields and boxes have an edge that can be seen.
///
/// Draws the frame around what has the focus, too; see KeyboardWay.
class PanelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    PanelStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;

    /// Pixels of either of the two colours of the frame.
    static int focusWidth();
};

#endif // PANELSTYLE_H
