// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICTUREMAKER_H
#define PICTUREMAKER_H

#include "storage/filethread.h"
#include "winding/coilpicture.h"

#include <QFont>
#include <QImage>
#include <QObject>

#include <functional>

/// Draws pictures of a coil in a thread of its own, so that the screen never waits for one.
///
/// One is drawn at a time. Of those that are ordered meanwhile the last one counts.
class PictureMaker : public QObject
{
    Q_OBJECT

public:
    struct Order
    {
        WindingModel model;
        CoilScene scene;
        CoilDrawing::Palette palette;
        QFont font;
    };

    struct Picture
    {
        CoilScene scene;
        QImage image;
        CoilFrame frame;
        QRectF whole;
        qreal leastWidth = 0;
    };

    using QObject::QObject;

    bool isRunning() const { return m_isRunning; }
    void order(const Order &order);
    /// Nothing that was ordered comes any more.
    void cancel();

    /// In any thread.
    static Picture draw(const Order &order);

Q_SIGNALS:
    void made(const PictureMaker::Picture &picture);

private:
    void begin(const Order &order);
    void end(const Picture &picture, int round);

    Order m_next;
    bool m_hasNext = false;
    bool m_isRunning = false;
    int m_round = 0;
    /// Last, so that what runs in it ends first.
    FileThread m_thread;
};

#endif // PICTUREMAKER_H
