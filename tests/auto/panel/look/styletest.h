// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLETEST_H
#define STYLETEST_H

#include "contrast.h"
#include "filarixtest.h"
#include "look/look.h"

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QStyleOption>

/// What the tests of the style's drawings share: a picture of one drawing on the paper of a look.
class StyleTest : public FilarixTest
{
protected:
    const QStyle::State off = QStyle::State_None;
    const QStyle::State rest = QStyle::State_Enabled;
    const QStyle::State pressed = rest | QStyle::State_Sunken;
    const QStyle::State on = rest | QStyle::State_On;
    const QStyle::State focused = rest | QStyle::State_HasFocus;

    /// A row for each look.
    static void addLooks()
    {
        QTest::addColumn<int>("look");
        for (const QString &name : Look::names()) {
            Look::Style look = Look::Light;
            Look::read(name, &look);
            QTest::newRow(qPrintable(name)) << int(look);
        }
    }

    template<typename Option>
    static Option optionOf(const QSize &size, QStyle::State state)
    {
        Option option;
        option.rect = QRect(QPoint(), size);
        option.state = state;
        option.palette = Look::palette();
        return option;
    }

    template<typename Drawing>
    static QImage drawn(const QSize &size, const Drawing &drawing)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Look::palette().color(QPalette::Window));
        QPainter painter(&image);
        drawing(&painter);
        return image;
    }

    static QSet<QRgb> coloursIn(const QImage &image, const QRect &part)
    {
        QSet<QRgb> colours;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x)
                colours.insert(image.pixel(x, y));
        }
        return colours;
    }

    /// The best contrast of a pixel of \a part to \a ground.
    static double contrastIn(const QImage &image, const QRect &part, const QColor &ground)
    {
        double best = 1;
        for (QRgb colour : coloursIn(image, part))
            best = qMax(best, Contrast::ratio(QColor(colour), ground));
        return best;
    }

    static bool areAllDifferent(const QList<QImage> &images)
    {
        for (int i = 0; i < images.size(); ++i) {
            if (images.indexOf(images.at(i)) != i)
                return false;
        }
        return true;
    }

    void restoreLook()
    {
        Look::use(Look::Light);
        FilarixTest::cleanup();
    }
};

#endif // STYLETEST_H
