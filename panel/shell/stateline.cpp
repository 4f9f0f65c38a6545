// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/stateline.h"

#include "look/elidedlabel.h"
#include "look/look.h"

#include <QEvent>
#include <QHBoxLayout>

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
}

void StateLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        colour();
    TapArea::changeEvent(event);
}

void StateLine::colour()
{
    const QString sheet = QString::fromLatin1("color: %1;").arg(Look::onStrip(m_tone).name());
    if (m_label->styleSheet() != sheet)
        m_label->setStyleSheet(sheet);
}
