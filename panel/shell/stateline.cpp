// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/stateline.h"

#include "filarixpanel.h"
#include "look/elidedlabel.h"
#include "look/look.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QRegExp>
#include <QScreen>

namespace {

const int textPixels = 14;
const int smallestPixels = 12;
const int lineHeight = 24;
const int sideMargin = 10;

} // namespace

StateLine::StateLine(QWidget *parent) : TapArea(parent), m_label(new ElidedLabel)
{
    setObjectName(QLatin1String("strip"));
    setAttribute(Qt::WA_StyledBackground);
    Look::dress(this, Look::Strip);
    setFixedHeight(lineHeight);
    m_label->setObjectName(QLatin1String("stateLine"));
    m_label->shrinkTo(smallestPixels);
    QFont font = m_label->font();
    font.setPixelSize(textPixels);
    font.setBold(true);
    m_label->setFont(font);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(sideMargin, 0, sideMargin, 0);
    row->addWidget(m_label);
    m_label->installEventFilter(this);
    hide();
}

void StateLine::show(const QString &text, Message::Tone tone)
{
    m_tone = tone;
    m_text = text;
    colour();
    setVisible(!text.isEmpty());
    fit();
}

void StateLine::setLeastHeight(int height)
{
    m_leastHeight = height;
    fit();
}

// Whoever makes the letters larger asks at once how high the line is with them.
bool StateLine::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_label && event->type() == QEvent::FontChange)
        fit();
    return TapArea::eventFilter(watched, event);
}

void StateLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        colour();
    TapArea::changeEvent(event);
}

void StateLine::resizeEvent(QResizeEvent *event)
{
    TapArea::resizeEvent(event);
    fit();
}

/// A text that is too long for one line has two, except on a panel that has no height for it.
void StateLine::fit()
{
    const int panel = QGuiApplication::primaryScreen()->availableSize().height();
    const bool isHigh = panel >= FilarixPanel::smallBelow;
    const QFontMetrics metrics = m_label->fontMetrics();
    const int room = width() - 2 * sideMargin;
    const int lines = isHigh && metrics.horizontalAdvance(m_text) > room ? 2 : 1;
    const QRect needed =
        metrics.boundingRect(QRect(0, 0, room, QWIDGETSIZE_MAX), Qt::TextWordWrap, m_text);
    const bool isWhole = needed.height() <= lines * qMax(metrics.height(), metrics.lineSpacing())
                         && needed.width() <= room;
    m_label->setText(isWhole ? m_text : head());
    m_label->setLines(lines);
    m_label->keepLines(lines);
    const int high = qMax(lineHeight, metrics.height()) + (lines - 1) * metrics.lineSpacing();
    setFixedHeight(qMax(m_leastHeight, high));
}

/// The whole text where it has no colon.
QString StateLine::head() const
{
    // The second one is China's.
    const int colon = m_text.indexOf(QRegExp(QString::fromUtf8(": |\uff1a")));
    return m_text.left(colon);
}

void StateLine::colour()
{
    QPalette colours;
    colours.setColor(QPalette::WindowText, Look::onStrip(m_tone));
    m_label->setPalette(colours);
}
