// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CONTRAST_H
#define CONTRAST_H

#include "testcompat.h"

#include <QColor>
#include <QHash>
#include <QImage>

#include <cmath>

/// How well a text stands out from its ground, as the accessibility guidelines count it: 1 for
/// equal colours, 21 for black on white. A text of usual size needs 4.5.
namespace Contrast {

const double textContrast = 4.5;
/// For what is disabled, and so says that it can't be pressed.
const double disabledContrast = 3;

inline double luminance(const QColor &color)
{
    const double parts[] = {color.redF(), color.greenF(), color.blueF()};
    const double weights[] = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (int i = 0; i < 3; ++i) {
        const double part = parts[i];
        sum +=
            weights[i] * (part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

inline double ratio(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

/// The contrast of what is drawn within \a part of a widget, which holds one text on one ground:
/// that of the ground, the colour of most pixels, to the pixel that differs most from it.
inline double drawn(QWidget *widget, const QRect &part)
{
    const QImage image = TestCompat::grab(widget).toImage().copy(part);
    QHash<QRgb, int> counts;
    QRgb ground = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (++counts[pixel] > counts.value(ground))
                ground = pixel;
        }
    }
    double best = 1;
    for (QHash<QRgb, int>::const_iterator it = counts.constBegin(); it != counts.constEnd(); ++it)
        best = qMax(best, ratio(QColor(it.key()), QColor(ground)));
    return best;
}

} // namespace Contrast

#endif // CONTRAST_H
