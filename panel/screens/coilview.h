// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILVIEW_H
#define COILVIEW_H

#include "winding/coildrawing.h"
#include "winding/coilframe.h"

#include <QImage>
#include <QTimer>
#include <QTouchEvent>
#include <QWidget>

/// A picture that is made elsewhere, for fingers: one drags it, two zoom it, a touch asks what is
/// there. The wheel and the keys plus, minus, Home and the arrows do the same.
///
/// What is to be seen is told by wanted(). Until its picture comes by showPicture(), the last
/// picture is shown shifted and stretched, and so follows the finger at once.
class CoilView : public QWidget
{
    Q_OBJECT

public:
    /// How two directions zoom.
    enum Zooming {
        BothWays, ///< By the same factor, as a drawing of a thing.
        Across    ///< From left to right alone, as a curve over time.
    };

    /// How a mark is drawn: around a place, or from its one corner to the other.
    enum Marking { Frames, Ways };

    explicit CoilView(QWidget *parent = nullptr);

    void setZooming(Zooming zooming) { m_zooming = zooming; }
    /// What there is to be seen as a whole; further out there is no zoom. \a least is the width of
    /// the smallest part that may fill the view.
    void setWhole(const QRectF &world, qreal least);
    QRectF whole() const { return m_whole; }

    /// The picture of what wanted() asked for, or the first one.
    void showPicture(const QImage &picture, const CoilFrame &frame);
    /// Nothing is shown from now on.
    void clear();
    bool hasPicture() const { return !m_picture.isNull(); }
    QImage picture() const { return m_picture; }
    /// How what is seen at this moment lies on the view.
    CoilFrame frame() const;
    /// The part that is seen.
    QRectF world() const { return m_world; }
    bool isWhole() const;
    /// Whether the picture's maker chooses what is seen: until the operator zooms or drags.
    bool isFitted() const { return m_isFitted; }

    /// Marks places of the world, in front of the picture, and says so by the text. A place may
    /// have no width, and its corners may be exchanged.
    void setMark(const QVector<QRectF> &places, const QString &text);
    /// A few words in the picture's upper corner; none for an empty text.
    void setNotice(const QString &notice);
    void setMarking(Marking marking) { m_marking = marking; }
    /// The colours of the mark and of what lies beside a dragged picture.
    void setColours(const CoilDrawing::Palette &palette);

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    /// What fits best by the picture's maker; when that is seen already, the whole.
    void fit();
    void look(const QRectF &world);

Q_SIGNALS:
    /// Another part is to be seen, or the view has another size.
    void wanted();
    /// A finger touched this point of the world.
    void touched(const QPointF &point);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool touchEvent(QTouchEvent *event);
    void press(const QPointF &point);
    void dragTo(const QPointF &point);
    void release(const QPointF &point);
    void pinch(const QTouchEvent::TouchPoint &one, const QTouchEvent::TouchPoint &other);
    QPointF middle() const;
    void zoom(qreal factor, const QPointF &about);
    void move(const QPointF &pixels);
    QRectF bounded(QRectF world) const;
    void paintMark(QPainter *painter) const;
    void paintWay(QPainter *painter, const QRectF &marked) const;
    void paintTag(QPainter *painter, const QRectF &place) const;
    void paintNotice(QPainter *painter) const;

    Zooming m_zooming = BothWays;
    Marking m_marking = Frames;
    QRectF m_whole;
    qreal m_least = 0;
    QRectF m_world;
    QImage m_picture;
    CoilFrame m_frame;
    QVector<QRectF> m_marked;
    QString m_markText;
    QString m_notice;
    CoilDrawing::Palette m_palette;
    QPointF m_pressedAt;
    QPointF m_last;
    bool m_isFitted = true;
    bool m_isPressed = false;
    bool m_isDragged = false;
    bool m_isPinched = false;
};

#endif // COILVIEW_H
