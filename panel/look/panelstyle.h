// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELSTYLE_H
#define PANELSTYLE_H

#include <QProxyStyle>

/// Makes what the toolkit sizes for a mouse large enough for a glove: the buttons of message
/// boxes, check boxes, entry fields, menus. Sizes that the library fixes stay as they are.
class PanelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    PanelStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
};

#endif // PANELSTYLE_H
