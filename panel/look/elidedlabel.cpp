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

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    const QStringList lines = linesIn(area.width());
    painter.drawText(area, int(alignment()), lines.join(QLatin1Char('\n')));
}

/// The two are rounded each on its own, and lines that are kept must be filled, too.
int ElidedLabel::lineHeight() const
{
    return qMin(fontMetrics().height(), fontMetrics().lineSpacing());
}

/// The last one holds all that is left.
QStringList ElidedLabel::linesIn(int width) const
{
    QString rest = text();
    rest.replace(QLatin1Char('\n'), QLatin1Char(' '));
    QStringList lines;
    const int most = qMin(m_lines, qMax(1, contentsRect().height() / lineHeight()));
    while (lines.size() + 1 < most && fontMetrics().horizontalAdvance(rest) > width) {
        QTextLayout layout(rest, font());
        // The name of a file may be one word that is longer than a line.
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(width);
        layout.endLayout();
        lines.append(rest.left(line.textLength()).trimmed());
        rest = rest.mid(line.textLength());
    }
    lines.append(fontMetrics().elidedText(rest, Qt::ElideRight, width));
    return lines;
}
