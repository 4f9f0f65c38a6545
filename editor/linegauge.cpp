// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "linegauge_p.h"

#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace {

const int notMeasured = -2;

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
    std::fill(m_steps[0], m_steps[0] + sizeof m_steps / sizeof m_steps[0][0], notMeasured);
}

int LineGauge::width(const QChar *text, int size)
{
    int sum = fraction; // the layout rounds in its own way
    int before = count;
    for (int i = 0; i < size; ++i) {
        const int at = int(text[i].unicode()) - first;
        if (at < 0 || at >= count)
            return unknown;
        int wider = m_steps[before][at];
        if (wider < 0)
            wider = step(before, at);
        if (wider < 0)
            return unknown;
        sum += wider;
        before = at;
    }
    return sum / fraction + 1;
}

int LineGauge::advance(int at) const
{
    const QChar character(first + at);
    const qreal advance = m_metrics.width(character);
    const bool addsUp = m_metrics.inFont(character) && advance >= 0;
    return addsUp ? int(std::ceil(advance * fraction)) : int(unknown);
}

/// That two characters come closer counts for nothing: between the colours of two words they do
/// not.
int LineGauge::step(int before, int at)
{
    int &step = m_steps[before][at];
    if (step != notMeasured)
        return step;
    step = advance(at);
    if (before == count || step == unknown)
        return step;
    const QString both = QString(QChar(first + before)) + QChar(first + at);
    const int width = int(std::ceil(m_metrics.width(both) * fraction));
    step = qMax(step, width - advance(before));
    return step;
}
