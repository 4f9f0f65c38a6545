// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/picturemaker.h"

#include <QPainter>

#include <memory>

void PictureMaker::order(const Order &order)
{
    if (!m_isRunning)
        return begin(order);
    m_next = order;
    m_hasNext = true;
}

void PictureMaker::cancel()
{
    ++m_round;
    m_hasNext = false;
    m_next = Order();
}

PictureMaker::Picture PictureMaker::draw(const Order &order)
{
    const CoilPicture drawn(order.model, order.scene);
    Picture picture;
    picture.scene = order.scene;
    picture.frame = drawn.frame();
    picture.whole = drawn.whole();
    picture.leastWidth = drawn.leastWidth();
    picture.image = QImage(order.scene.size.toSize(), QImage::Format_RGB32);
    QPainter painter(&picture.image);
    painter.setFont(order.font);
    drawn.drawing().paint(&painter, order.palette);
    return picture;
}

void PictureMaker::begin(const Order &order)
{
    m_isRunning = true;
    const int round = m_round;
    const std::shared_ptr<Picture> picture = std::make_shared<Picture>();
    m_thread.post([order, picture] { *picture = draw(order); },
                  [this, picture, round] { end(*picture, round); });
}

void PictureMaker::end(const Picture &picture, int round)
{
    m_isRunning = false;
    if (m_hasNext) {
        const Order next = m_next;
        m_hasNext = false;
        m_next = Order();
        begin(next);
    }
    if (round == m_round)
        Q_EMIT made(picture);
}
