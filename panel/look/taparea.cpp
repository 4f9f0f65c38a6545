// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/taparea.h"

#include "look/measures.h"
#include "look/styleshades.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

// Of the colour of what is chosen: the texts keep their contrast on strips, paper and messages.
const qreal downShare = 0.35;

} // namespace

TapArea::TapArea(QWidget *parent) : QFrame(parent)
{
    setFocusPolicy(Qt::TabFocus);
}

int TapArea::leastHeight()
{
    return qMin(Measures::pixels(Measures::touchMm), Measures::touch());
}

void TapArea::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return QFrame::keyPressEvent(event);
    if (!event->isAutoRepeat())
        Q_EMIT touched();
}

void TapArea::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    setDown(true);
}

void TapArea::mouseMoveEvent(QMouseEvent *event)
{
    setDown(rect().contains(event->pos()));
}

void TapArea::mouseReleaseEvent(QMouseEvent *event)
{
    setDown(false);
    if (rect().contains(event->pos()))
        Q_EMIT touched();
}

/// Whoever hides it under a finger gets no release.
void TapArea::hideEvent(QHideEvent *event)
{
    setDown(false);
    QFrame::hideEvent(event);
}

void TapArea::setDown(bool isDown)
{
    if (m_isDown == isDown)
        return;
    m_isDown = isDown;
    update();
}

void TapArea::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!m_isDown)
        return;
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlphaF(downShare);
    QPainter painter(this);
    StyleShades::fill(&painter, rect(), ground, QColor(), 0);
}
