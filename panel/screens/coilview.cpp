// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/coilview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

const qreal keyFactor = 1.6;
const qreal arrowPart = 0.2;
// A gloved finger never stands still.
const qreal slackPixels = 10;
const qreal wheelNotch = 120;
// Sums of fractions are never quite equal.
const qreal wholePart = 0.9999;
const qreal markWidth = 2.5;
const qreal rimWidth = 6;
const qreal smallestMark = 7;
const qreal wayWidth = 4;
const int tagPixels = 12;

} // namespace

CoilView::CoilView(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
}

void CoilView::setWhole(const QRectF &world, qreal least)
{
    m_whole = world;
    m_least = least;
    if (!m_isFitted)
        m_world = bounded(m_world);
    update();
}

bool CoilView::isWhole() const
{
    return m_world.width() >= m_whole.width() * wholePart;
}

void CoilView::showPicture(const QImage &picture, const CoilFrame &frame)
{
    m_picture = picture;
    m_frame = frame;
    if (m_isFitted)
        m_world = frame.world;
    update();
}

void CoilView::clear()
{
    m_picture = QImage();
    m_frame = CoilFrame();
    m_marked.clear();
    m_whole = QRectF();
    m_world = QRectF();
    m_isFitted = true;
    update();
}

// The picture's axes keep their places, so what lies between them does as well.
CoilFrame CoilView::frame() const
{
    CoilFrame frame = m_frame;
    if (!m_world.isEmpty())
        frame.world = m_world;
    return frame;
}

void CoilView::setMark(const QVector<QRectF> &places, const QString &text)
{
    m_marked = places;
    m_markText = text;
    update();
}

void CoilView::setNotice(const QString &notice)
{
    if (notice == m_notice)
        return;
    m_notice = notice;
    update();
}

void CoilView::setColours(const CoilDrawing::Palette &palette)
{
    m_palette = palette;
    update();
}

void CoilView::zoomIn()
{
    zoom(keyFactor, middle());
}

void CoilView::zoomOut()
{
    zoom(1 / keyFactor, middle());
}

// The keys keep the mark where it is, if it can be seen.
QPointF CoilView::middle() const
{
    const QRectF area = m_frame.area;
    if (m_marked.isEmpty())
        return area.center();
    const QPointF mark = frame().toPicture(m_marked.last().center());
    return area.contains(mark) ? mark : area.center();
}

void CoilView::fit()
{
    if (m_isFitted)
        return look(m_whole);
    m_isFitted = true;
    Q_EMIT wanted();
}

void CoilView::look(const QRectF &world)
{
    const QRectF next = bounded(world);
    if (next == m_world)
        return;
    m_world = next;
    m_isFitted = false;
    update();
    Q_EMIT wanted();
}

void CoilView::zoom(qreal factor, const QPointF &about)
{
    if (m_frame.isNull() || m_whole.isEmpty())
        return;
    const qreal width = qBound(m_least, m_world.width() / factor, m_whole.width());
    const qreal part = width / m_world.width();
    const QPointF centre = frame().toWorld(about);
    QRectF next = m_world;
    next.setLeft(centre.x() + (m_world.left() - centre.x()) * part);
    next.setWidth(width);
    if (m_zooming == BothWays) {
        next.setTop(centre.y() + (m_world.top() - centre.y()) * part);
        next.setHeight(m_world.height() * part);
    }
    look(next);
}

void CoilView::move(const QPointF &pixels)
{
    if (m_frame.isNull() || m_world.isEmpty())
        return;
    const CoilFrame now = frame();
    look(m_world.translated(-pixels.x() / now.xScale(),
                            m_zooming == BothWays ? pixels.y() / now.yScale() : 0));
}

// A part never leaves the whole, so nobody gets lost beside it.
QRectF CoilView::bounded(QRectF world) const
{
    if (m_whole.isEmpty())
        return world;
    const qreal shape = m_whole.height() / m_whole.width();
    world.setWidth(qBound(m_least, world.width(), m_whole.width()));
    world.setHeight(m_zooming == BothWays ? world.width() * shape : m_whole.height());
    world.moveLeft(qBound(m_whole.left(), world.left(), m_whole.right() - world.width()));
    world.moveTop(qBound(m_whole.top(), world.top(), m_whole.bottom() - world.height()));
    return world;
}

void CoilView::press(const QPointF &point)
{
    m_isPressed = true;
    m_isDragged = false;
    m_pressedAt = point;
    m_last = point;
}

void CoilView::dragTo(const QPointF &point)
{
    if (!m_isPressed)
        return;
    if (!m_isDragged && (point - m_pressedAt).manhattanLength() <= slackPixels)
        return;
    m_isDragged = true;
    move(point - m_last);
    m_last = point;
}

void CoilView::release(const QPointF &point)
{
    const bool isTouch = m_isPressed && !m_isDragged;
    m_isPressed = false;
    if (isTouch && !m_frame.isNull() && m_frame.area.contains(point))
        Q_EMIT touched(frame().toWorld(point));
}

// What lay under the fingers stays there.
void CoilView::pinch(const QTouchEvent::TouchPoint &one, const QTouchEvent::TouchPoint &other)
{
    const QLineF before(one.lastPos(), other.lastPos());
    const QLineF now(one.pos(), other.pos());
    move(now.center() - before.center());
    if (before.length() > slackPixels && now.length() > slackPixels)
        zoom(now.length() / before.length(), now.center());
}

bool CoilView::touchEvent(QTouchEvent *event)
{
    const QList<QTouchEvent::TouchPoint> &points = event->touchPoints();
    if (event->type() == QEvent::TouchBegin)
        m_isPinched = false;
    if (event->type() == QEvent::TouchCancel) {
        m_isPressed = false;
        return true;
    }
    if (points.size() >= 2) {
        // The second finger ends what the first one began.
        m_isPinched = true;
        m_isPressed = false;
        pinch(points.at(0), points.at(1));
        return true;
    }
    if (m_isPinched || points.isEmpty())
        return true;
    const QPointF point = points.first().pos();
    if (event->type() == QEvent::TouchBegin)
        press(point);
    else if (event->type() == QEvent::TouchUpdate)
        dragTo(point);
    else
        release(point);
    return true;
}

bool CoilView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        event->accept();
        return touchEvent(static_cast<QTouchEvent *>(event));
    default:
        return QWidget::event(event);
    }
}

void CoilView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        press(event->localPos());
}

void CoilView::mouseMoveEvent(QMouseEvent *event)
{
    dragTo(event->localPos());
}

void CoilView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        release(event->localPos());
}

void CoilView::wheelEvent(QWheelEvent *event)
{
    zoom(std::pow(keyFactor, event->angleDelta().y() / wheelNotch), event->position());
    event->accept();
}

void CoilView::keyPressEvent(QKeyEvent *event)
{
    const qreal across = arrowPart * m_frame.area.width();
    const qreal up = arrowPart * m_frame.area.height();
    switch (event->key()) {
    case Qt::Key_Plus:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return fit();
    case Qt::Key_Left:
        return move(QPointF(across, 0));
    case Qt::Key_Right:
        return move(QPointF(-across, 0));
    case Qt::Key_Up:
        return move(QPointF(0, up));
    case Qt::Key_Down:
        return move(QPointF(0, -up));
    default:
        QWidget::keyPressEvent(event);
    }
}

void CoilView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Q_EMIT wanted();
}

void CoilView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_palette.colour(CoilDrawing::Paper));
    if (m_picture.isNull())
        return;
    painter.drawImage(0, 0, m_picture);
    const CoilFrame now = frame();
    if (now.isNull())
        return;
    if (now.world != m_frame.world) {
        // The axes come with the next picture.
        painter.setClipRect(m_frame.area);
        painter.fillRect(m_frame.area, m_palette.colour(CoilDrawing::Paper));
        painter.drawImage(now.toPicture(m_frame.world), m_picture, m_frame.area);
    }
    painter.setClipRect(m_frame.area);
    paintMark(&painter);
    paintNotice(&painter);
}

void CoilView::paintMark(QPainter *painter) const
{
    if (m_marked.isEmpty())
        return;
    const CoilFrame now = frame();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    for (const QRectF &marked : m_marked) {
        if (m_marking == Ways) {
            paintWay(painter, marked);
            continue;
        }
        QRectF place = now.toPicture(marked.normalized());
        const QPointF centre = place.center();
        place.setWidth(qMax(place.width(), smallestMark));
        place.setHeight(qMax(place.height(), smallestMark));
        place.moveCenter(centre);
        // A rim of paper, so that it stands out from wires of any colour.
        for (const qreal width : {rimWidth, markWidth}) {
            painter->setPen(
                QPen(m_palette.colour(width == rimWidth ? CoilDrawing::Paper : CoilDrawing::Mark),
                     width));
            painter->drawRoundedRect(place, 3, 3);
        }
    }
    const QRectF last = now.toPicture(m_marked.last().normalized());
    // What is out of sight has no words, either.
    if (last.adjusted(-1, -1, 1, 1).intersects(m_frame.area))
        paintTag(painter, last);
}

void CoilView::paintWay(QPainter *painter, const QRectF &marked) const
{
    const CoilFrame now = frame();
    const QPointF end = now.toPicture(marked.bottomRight());
    const QColor colour = m_palette.colour(CoilDrawing::Mark);
    painter->setPen(
        QPen(m_palette.colour(CoilDrawing::Paper), 2 * wayWidth, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(now.toPicture(marked.topLeft()), end);
    painter->setPen(QPen(colour, wayWidth, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(now.toPicture(marked.topLeft()), end);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawEllipse(end, wayWidth, wayWidth);
    painter->setBrush(Qt::NoBrush);
}

// Beside the mark, wherever there is room for the words.
void CoilView::paintTag(QPainter *painter, const QRectF &place) const
{
    if (m_markText.isEmpty())
        return;
    QFont font = painter->font();
    font.setPixelSize(tagPixels);
    font.setBold(true);
    painter->setFont(font);
    const QFontMetricsF metrics(font);
    QRectF tag(0, 0, metrics.horizontalAdvance(m_markText) + 10, metrics.height() + 2);
    const QRectF area = m_frame.area.adjusted(2, 2, -2, -2);
    tag.moveCenter(QPointF(place.center().x(), place.top() - tag.height() / 2 - 4));
    if (tag.top() < area.top())
        tag.moveTop(qMin(place.bottom() + 4, area.bottom() - tag.height()));
    tag.moveLeft(qBound(area.left(), tag.left(), qMax(area.left(), area.right() - tag.width())));
    tag.moveTop(qBound(area.top(), tag.top(), qMax(area.top(), area.bottom() - tag.height())));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_palette.colour(CoilDrawing::Mark));
    painter->drawRoundedRect(tag, 4, 4);
    painter->setPen(m_palette.colour(CoilDrawing::Paper));
    painter->drawText(tag, Qt::AlignCenter, m_markText);
}

void CoilView::paintNotice(QPainter *painter) const
{
    if (m_notice.isEmpty())
        return;
    QFont font = painter->font();
    font.setPixelSize(tagPixels);
    font.setBold(false);
    painter->setFont(font);
    const QRectF place = m_frame.area.adjusted(6, 4, -6, -4);
    const QRectF words = painter->boundingRect(place, Qt::AlignLeft | Qt::AlignTop, m_notice);
    painter->fillRect(words.adjusted(-4, -2, 4, 2), m_palette.colour(CoilDrawing::Paper));
    painter->setPen(m_palette.colour(CoilDrawing::Ink));
    painter->drawText(words, Qt::AlignCenter, m_notice);
}
