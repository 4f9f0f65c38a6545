// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LINEGAUGE_P_H
#define LINEGAUGE_P_H

#include <QFont>
#include <QFontMetricsF>
#include <QString>

/// Tells how wide lines of text come out at the most, without laying them out.
///
/// A layout of a line takes some ten microseconds; adding up what its characters take, a tenth of
/// one. Only what adds up is told: printable ASCII that the font itself has.
class LineGauge
{
public:
    /// A gauge for \a font on \a device. The one of the last call is kept: it has measured pairs.
    static LineGauge &of(const QFont &font, QPaintDevice *device);

    /// At least the width of a line, in pixels; unknown when something in it does not add up.
    enum { unknown = -1 };
    int width(const QChar *text, int size);

private:
    enum { first = 0x20, last = 0x7e, count = last - first + 1, fraction = 64 };

    LineGauge() : m_metrics(QFont()) {}
    void measure(const QFont &font, QPaintDevice *device);
    int advance(int at) const;
    int step(int before, int at);

    QFont m_font;
    QFontMetricsF m_metrics;
    int m_dpi;
    /// By how much a character makes a line longer, in parts of a pixel: by the one before it, or,
    /// in the last row, as the first of the line.
    int m_steps[count + 1][count];
};

#endif // LINEGAUGE_P_H
