// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/elidedlabel.h"

#include <QPainter>
#include <QTextLayout>

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int height = m_keptLines > 1 ? m_keptLines * fontMetrics().lineSpacing()
                                       : QLabel::minimumSizeHint().height();
    return QSize(fontMetrics().averageCharWidth() * 4, height);
}

QSize ElidedLabel::sizeHint() const
{
    return QLabel::sizeHint().expandedTo(minimumSizeHint());
}

void ElidedLabel::keepLines(int lines)
{
    m_keptLines = lines;
    updateGeometry();
}

void ElidedLabel::setLines(int lines)
{
    m_lines = lines;
    update();
}

void ElidedLabel::shrinkTo(int pixels)
{
    m_smallestPixels = pixels;
    update();
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QSize room = contentsRect().size();
    const QFont font = fittingFont(room);
    painter.setFont(font);
    painter.drawText(contentsRect(), int(alignment()),
                     linesIn(font, room).texts.join(QLatin1Char('\n')));
}

bool ElidedLabel::isWholeIn(const QSize &room) const
{
    return linesIn(fittingFont(room), room).isWhole;
}

/// The largest one in which the whole text has room.
QFont ElidedLabel::fittingFont(const QSize &room) const
{
    if (m_smallestPixels <= 0 || linesIn(font(), room).isWhole)
        return font();
    QFont smaller = font();
    for (int pixels = font().pixelSize() - 1; pixels >= m_smallestPixels; --pixels) {
        smaller.setPixelSize(pixels);
        // Thin letters are narrower.
        smaller.setBold(false);
        if (linesIn(smaller, room).isWhole)
            break;
    }
    return smaller;
}

/// The last one holds all that is left.
ElidedLabel::Lines ElidedLabel::linesIn(const QFont &font, const QSize &room) const
{
    const QFontMetrics metrics(font);
    // The two are rounded each on its own, and lines that are kept must be filled, too.
    const int lineHeight = qMin(metrics.height(), metrics.lineSpacing());
    QString rest = text();
    rest.replace(QLatin1Char('\n'), QLatin1Char(' '));
    QStringList lines;
    const int most = qMin(m_lines, qMax(1, room.height() / lineHeight));
    while (lines.size() + 1 < most && metrics.horizontalAdvance(rest) > room.width()) {
        QTextLayout layout(rest, font);
        // The name of a file may be one word that is longer than a line.
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(room.width());
        layout.endLayout();
        lines.append(rest.left(line.textLength()).trimmed());
        rest = rest.mid(line.textLength());
    }
    const bool isWhole = metrics.horizontalAdvance(rest) <= room.width();
    lines.append(metrics.elidedText(rest, Qt::ElideRight, room.width()));
    return {lines, isWhole};
}
