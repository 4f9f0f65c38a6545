// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "display/panelglass.h"

#include "display/glassinput.h"
#include "display/platform.h"
#include "display/turnedplatform.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace {

const QPointF halfPixel(0.5, 0.5);

/// Turns the surface about its corner and moves it back to 0,0.
QTransform turnOf(const QSize &surface, int degrees)
{
    const QTransform turn = QTransform().rotate(degrees);
    const QPoint corner = turn.mapRect(QRect(QPoint(0, 0), surface)).topLeft();
    return turn * QTransform::fromTranslate(-corner.x(), -corner.y());
}

} // namespace

PanelGlass::PanelGlass(const QSize &surface, int degrees)
    : m_surface(surface)
    , m_turn(turnOf(surface, degrees))
    , m_platform(new TurnedPlatform(surface, this))
    , m_input(new GlassInput(this, m_platform.get()))
{
    m_platform->onRedraw([this](const QRegion &region) {
        // A window may lie beside the surface in part, and no platform is asked to show that.
        update(m_turn.map(region & QRect(QPoint(0, 0), m_surface)));
    });
    setMinimumSize(turnedSize());
    setMaximumSize(turnedSize());
    resize(turnedSize());
}

PanelGlass::~PanelGlass()
{
    // While the platform still knows it for the glass.
    destroy();
}

void PanelGlass::present(QWidget *main)
{
    main->show();
    QWindow *window = main->windowHandle();
    m_input->setMainWindow(window);
    setTitle(window->title());
    connect(window, &QWindow::windowTitleChanged, this, &QWindow::setTitle);
    if (Platform::isDesktop())
        show();
    else
        showFullScreen();
}

QImage PanelGlass::picture() const
{
    return m_platform->picture().transformed(m_turn);
}

QSize PanelGlass::turnedSize() const
{
    return m_turn.mapRect(QRect(QPoint(0, 0), m_surface)).size();
}

QPointF PanelGlass::toSurface(const QPointF &onGlass) const
{
    const QPointF point = m_turn.inverted().map(onGlass + halfPixel) - halfPixel;
    return QPointF(qBound(0.0, point.x(), m_surface.width() - 1.0),
                   qBound(0.0, point.y(), m_surface.height() - 1.0));
}

QPointF PanelGlass::toGlass(const QPointF &onSurface) const
{
    return m_turn.map(onSurface + halfPixel) - halfPixel;
}

void PanelGlass::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    painter.setTransform(m_turn);
    const QImage &picture = m_platform->picture();
    const qreal scale = qreal(picture.width()) / m_surface.width();
    for (const QRect &rect : m_turn.inverted().map(event->region())) {
        const QRectF part = rect & QRect(QPoint(0, 0), m_surface);
        painter.drawImage(part, picture, QRectF(part.topLeft() * scale, part.size() * scale));
    }
}
