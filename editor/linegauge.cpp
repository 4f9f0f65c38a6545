// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "linegauge_p.h"

#include <QPaintDevice>

#include <cmath>

namespace {

const short notMeasured = -1;

} // namespace

LineGauge &LineGauge::of(const QFont &font, QPaintDevice *device)
{
    static LineGauge gauge;
    static bool isMeasured = false;
    if (!isMeasured || gauge.m_dpi != device->logicalDpiY() || !(gauge.m_font == font))
        gauge.measure(font, device);
    isMeasured = true;
    return gauge;
}

void LineGauge::measure(const QFont &font, QPaintDevice *device)
{
    m_font = font;
    m_dpi = device->logicalDpiY();
    m_metrics = QFontMetricsF(QFont(font, device));
    for (int i = 0; i < count; ++i) {
        const QChar character(first + i);
        const qreal advance = m_metrics.width(character);
        const bool addsUp = m_metrics.inFont(character) && advance >= 0;
        m_advances[i] = addsUp ? int(std::ceil(advance * fraction)) : int(unknown);
        for (int k = 0; k < count; ++k)
            m_pairs[i][k] = notMeasured;
    }
}

int LineGauge::width(const QChar *text, int size)
{
    int sum = fraction; // the layout rounds in its own way
    int before = -1;
    for (int i = 0; i < size; ++i) {
        const int at = int(text[i].unicode()) - first;
        if (at < 0 || at >= count || m_advances[at] == unknown)
            return unknown;
        sum += m_advances[at];
        if (before >= 0)
            sum += pair(before, at);
        before = at;
    }
    return sum / fraction + 1;
}

/// By how much two characters stand farther apart than they are wide. That they come closer counts
/// for nothing: between the colours of two words they do not.
int LineGauge::pair(int left, int right)
{
    short &wider = m_pairs[left][right];
    if (wider == notMeasured) {
        const QString both = QString(QChar(first + left)) + QChar(first + right);
        const qreal width = m_metrics.width(both) * fraction;
        wider = short(qMax(0, int(std::ceil(width)) - m_advances[left] - m_advances[right]));
    }
    return wider;
}
