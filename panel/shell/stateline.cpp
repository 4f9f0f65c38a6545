// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/stateline.h"

#include "filarixpanel.h"
#include "look/elidedlabel.h"
#include "look/look.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>

namespace {

const int textPixels = 14;
const int lineHeight = 26;
const int sideMargin = 10;

} // namespace

StateLine::StateLine(QWidget *parent) : TapArea(parent), m_label(new ElidedLabel)
{
    setObjectName(QLatin1String("strip"));
    setAttribute(Qt::WA_StyledBackground);
    Look::dress(this, Look::Strip);
    setFixedHeight(lineHeight);
    m_label->setObjectName(QLatin1String("stateLine"));
    QFont font = m_label->font();
    font.setPixelSize(textPixels);
    font.setBold(true);
    m_label->setFont(font);
    QHBoxLayout *row = new QHBoxLayout(this);
    row->setContentsMargins(sideMargin, 0, sideMargin, 0);
    row->addWidget(m_label);
    hide();
}

QString StateLine::text() const
{
    return m_label->text();
}

void StateLine::show(const QString &text, Message::Tone tone)
{
    m_tone = tone;
    m_label->setText(text);
    colour();
    setVisible(!text.isEmpty());
    fit();
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
    const int needed = m_label->fontMetrics().horizontalAdvance(text());
    const int lines = isHigh && needed > width() - 2 * sideMargin ? 2 : 1;
    m_label->setLines(lines);
    m_label->keepLines(lines);
    setFixedHeight(lineHeight + (lines - 1) * m_label->fontMetrics().lineSpacing());
}

void StateLine::colour()
{
    const QString sheet = QString::fromLatin1("color: %1;").arg(Look::onStrip(m_tone).name());
    if (m_label->styleSheet() != sheet)
        m_label->setStyleSheet(sheet);
}
