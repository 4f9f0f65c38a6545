// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/tonemark.h"

#include "look/glyphs.h"
#include "look/look.h"

#include <QPainter>
#include <QVariant>

namespace {

const int side = 22;
const int corner = 4;
const int aroundGlyph = 2;

Glyphs::Glyph glyphOf(Message::Tone tone)
{
    switch (tone) {
    case Message::Information:
        break;
    case Message::Warning:
        return Glyphs::Warn;
    case Message::Alarm:
        return Glyphs::Alarm;
    }
    return Glyphs::Inform;
}

void drawGlyph(QPainter *painter, const QRect &rect, Message::Tone tone)
{
    Glyphs::draw(glyphOf(tone), painter,
                 rect.adjusted(aroundGlyph, aroundGlyph, -aroundGlyph, -aroundGlyph),
                 Look::stripText());
}

void putName(QWidget *widget, const char *name)
{
    const QString wanted = QString::fromLatin1(name);
    if (widget->property("tone").toString() == wanted)
        return;
    widget->setProperty("tone", wanted);
    Look::dressAgain(widget);
}

} // namespace

ToneMark::ToneMark(QWidget *parent) : QWidget(parent)
{
    setFixedSize(side, side);
}

void ToneMark::setTone(Message::Tone tone)
{
    m_isClear = false;
    m_isQuiet = false;
    m_tone = tone;
    update();
}

void ToneMark::setQuiet(Message::Tone tone)
{
    setTone(tone);
    m_isQuiet = true;
}

void ToneMark::clear()
{
    m_isClear = true;
    update();
}

void ToneMark::put(QWidget *widget, Message::Tone tone)
{
    putName(widget, tone == Message::Alarm     ? "alarm"
                    : tone == Message::Warning ? "warning"
                                               : "information");
}

void ToneMark::putNone(QWidget *widget)
{
    putName(widget, "none");
}

void ToneMark::paintEvent(QPaintEvent *)
{
    if (m_isClear)
        return;
    QPainter painter(this);
    if (m_isQuiet)
        return drawGlyph(&painter, rect(), m_tone);
    draw(&painter, rect(), m_tone);
}

void ToneMark::draw(QPainter *painter, const QRect &rect, Message::Tone tone)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Look::ground(tone));
    painter->drawRoundedRect(rect, corner, corner);
    drawGlyph(painter, rect, tone);
}
