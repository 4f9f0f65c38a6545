// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef RECOLOUR_H
#define RECOLOUR_H

#include "look/look.h"

#include <QGraphicsEffect>
#include <QRegion>

class QImage;

/// Brings the editor, the lists and the rows of the library into the look in use.
///
/// The words and sheets of these have fixed colours, made for light paper, and hosts read them. So
/// all of that stays, and what is drawn is changed on its way to the screen. Each lightness has its
/// counterpart in the look, and hues stay. Only what is painted anew is changed, in its place.
/// Scroll bars have the colours of the look itself.
///
/// Look::use() calls follow(). In the light look the editor is drawn as it is, and of the lists and
/// rows no more is changed than the ground of the row in hand. In the look for glare, too, that
/// ground is light blue in place of cyan.
class Recolour : public QGraphicsEffect
{
    Q_OBJECT

public:
    /// What is written on.
    enum Paper { Editor, Rows };

    /// Covers what the library has made and will make, in the look in use.
    static void follow();
    /// Behind the current line of the editor, before it is changed. In light each word that has a
    /// contrast of 4.5 on white has it there.
    static QColor lineMark(Look::Style style);
    /// What becomes of a colour of the editor in a look.
    static QColor drawn(const QColor &colour, Look::Style style);
    /// Changes the pixels of a part of an image of 32 or 16 bits a pixel.
    static void change(QImage *image, const QRect &part, Look::Style style, Paper paper = Editor);

protected:
    void draw(QPainter *painter) override;

private:
    explicit Recolour(QWidget *widget);

    static void cover(QWidget *widget);
    static void uncover(QWidget *widget);
    friend class RecolourWatch;

    void note(QWidget *widget, const QRegion &region);
    Paper paper() const;
    QRegion ownPart(const QRegion &part) const;
    void repairAbove();
    bool drawInPlace(QPainter *painter);
    void drawByPicture(QPainter *painter);

    /// The one that the toolkit paints; null at other times.
    static Recolour *drawing;

    QWidget *const m_widget;
    QRegion m_painted;
    QRect m_repaired;
};

#endif // RECOLOUR_H
