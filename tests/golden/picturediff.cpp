// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "picturediff.h"

#include <QPainter>

#include <algorithm>

namespace {

// Of 255, after the blur: what a stroke of a letter may be lighter or darker.
const int smoothing = 34;
// Of 255: what an even ground may vary, which quantised pictures need.
const int evenness = 3;
/// Sides of the square within which pixels are together, and how many of them are no fault.
const int square = 12;
const int tolerated = 3;
/// How far around a pixel the comparison looks.
const int reach = 2;
const QRgb mark = 0xffd00000;

struct Range
{
    int least[3];
    int most[3];
};

void split(QRgb colour, int *parts)
{
    parts[0] = qRed(colour);
    parts[1] = qGreen(colour);
    parts[2] = qBlue(colour);
}

QRgb pixelAt(const QImage &image, int x, int y)
{
    const int row = qBound(0, y, image.height() - 1);
    const int column = qBound(0, x, image.width() - 1);
    return reinterpret_cast<const QRgb *>(image.constScanLine(row))[column];
}

/// Each pixel the mean of itself and those around it.
QImage blurred(const QImage &image, const QRect &part)
{
    QImage result = image;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = part.left(); x <= part.right(); ++x) {
            int sums[3] = {4, 4, 4};
            for (int i = 0; i < 9; ++i) {
                int parts[3];
                split(pixelAt(image, x + i % 3 - 1, y + i / 3 - 1), parts);
                for (int channel = 0; channel < 3; ++channel)
                    sums[channel] += parts[channel];
            }
            line[x] = qRgb(sums[0] / 9, sums[1] / 9, sums[2] / 9);
        }
    }
    return result;
}

Range rangeAround(const QImage &image, int x, int y)
{
    Range range = {{255, 255, 255}, {0, 0, 0}};
    for (int i = 0; i < 9; ++i) {
        int parts[3];
        split(pixelAt(image, x + i % 3 - 1, y + i / 3 - 1), parts);
        for (int channel = 0; channel < 3; ++channel) {
            range.least[channel] = qMin(range.least[channel], parts[channel]);
            range.most[channel] = qMax(range.most[channel], parts[channel]);
        }
    }
    return range;
}

bool isWithin(QRgb colour, const Range &range, int tolerance)
{
    int parts[3];
    split(colour, parts);
    for (int channel = 0; channel < 3; ++channel) {
        if (parts[channel] < range.least[channel] - tolerance
            || parts[channel] > range.most[channel] + tolerance)
            return false;
    }
    return true;
}

bool isEven(const Range &range)
{
    for (int channel = 0; channel < 3; ++channel) {
        if (range.most[channel] - range.least[channel] > evenness)
            return false;
    }
    return true;
}

/// What differs at all, with what the comparison looks at around it.
QRect differingPart(const QImage &one, const QImage &other)
{
    QRect part;
    for (int y = 0; y < one.height(); ++y) {
        const QRgb *a = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const QRgb *b = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        if (std::equal(a, a + one.width(), b))
            continue;
        int first = 0;
        while (a[first] == b[first])
            ++first;
        int last = one.width() - 1;
        while (a[last] == b[last])
            --last;
        part |= QRect(QPoint(first, y), QPoint(last, y));
    }
    return part.isEmpty() ? part
                          : part.adjusted(-reach, -reach, reach, reach).intersected(one.rect());
}

} // namespace

PictureDiff::PictureDiff(const QImage &expected, const QImage &found)
    : m_expected(expected.convertToFormat(QImage::Format_RGB32))
    , m_found(found.convertToFormat(QImage::Format_RGB32))
    , m_marks(m_found.size(), QImage::Format_Grayscale8)
{
    if (m_expected.size() != m_found.size()) {
        m_marks.fill(1);
        m_pixels = m_found.width() * m_found.height();
        m_together = tolerated + 1;
        m_place = m_found.rect();
        return;
    }
    m_marks.fill(0);
    const QRect part = differingPart(m_expected, m_found);
    if (part.isEmpty())
        return;
    compare(part);
    findPlace();
}

bool PictureDiff::isSame() const
{
    return m_together <= tolerated;
}

void PictureDiff::compare(const QRect &part)
{
    const QRect around = part.adjusted(-1, -1, 1, 1).intersected(m_found.rect());
    const QImage softExpected = blurred(m_expected, around);
    const QImage softFound = blurred(m_found, around);
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            const Range expected = rangeAround(m_expected, x, y);
            const Range found = rangeAround(m_found, x, y);
            const bool isGround = isEven(expected) && isEven(found);
            const bool isAlike =
                isGround
                    ? isWithin(m_found.pixel(x, y), expected, evenness)
                    : isWithin(softFound.pixel(x, y), rangeAround(softExpected, x, y), smoothing)
                          && isWithin(softExpected.pixel(x, y), rangeAround(softFound, x, y),
                                      smoothing);
            if (isAlike)
                continue;
            m_marks.scanLine(y)[x] = 1;
            ++m_pixels;
        }
    }
}

// Squares that overlap by half: what lies together is within one of them.
void PictureDiff::findPlace()
{
    for (int top = 0; m_pixels > 0 && top < m_marks.height(); top += square / 2) {
        for (int left = 0; left < m_marks.width(); left += square / 2) {
            const QRect place = QRect(left, top, square, square).intersected(m_marks.rect());
            int count = 0;
            for (int y = place.top(); y <= place.bottom(); ++y) {
                const uchar *line = m_marks.constScanLine(y);
                for (int x = place.left(); x <= place.right(); ++x)
                    count += line[x];
            }
            if (count <= m_together)
                continue;
            m_together = count;
            m_place = place;
        }
    }
}

QImage PictureDiff::drawn() const
{
    QImage result = m_found;
    QPainter painter(&result);
    painter.fillRect(result.rect(), QColor(255, 255, 255, 160));
    for (int y = 0; y < m_marks.height(); ++y) {
        const uchar *line = m_marks.constScanLine(y);
        for (int x = 0; x < m_marks.width(); ++x) {
            if (line[x])
                painter.fillRect(x, y, 1, 1, QColor(mark));
        }
    }
    painter.setPen(QColor(mark));
    painter.drawRect(m_place.adjusted(-3, -3, 2, 2));
    return result;
}
