// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELSTYLE_H
#define PANELSTYLE_H

#include <QProxyStyle>

/// The panel's look of everything that the toolkit draws: flat keys, boxes, bars, tables, tabs and
/// progress. There are no bevels, dotted lines, mnemonics or a desktop's icons. Makes what the
/// toolkit sizes for a mouse large enough for a glove, too. Sizes that the library fixes stay as
/// they are.
///
/// All colours are the palette's, and what is drawn where stands in StyleKeys, StyleBoxes,
/// StyleBars, StyleTables and StyleIcons. StyleDress draws strips, messages and their keys by the
/// roles of the look.
///
/// Draws the frame around what has the focus, too; see KeyboardWay.
class PanelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    PanelStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    /// Without the letter of a shortcut that some languages put in brackets behind the words.
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool isEnabled, const QString &text, QPalette::ColorRole role) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                       const QWidget *widget) const override;
    QPixmap standardPixmap(StandardPixmap which, const QStyleOption *option,
                           const QWidget *widget) const override;

    /// Pixels of either of the two colours of the frame.
    static int focusWidth();
};

#endif // PANELSTYLE_H
