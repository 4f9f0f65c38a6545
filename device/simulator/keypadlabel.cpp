// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadlabel.h"

#include "keypadlook.h"

#include <QApplication>
#include <QPainter>

namespace {

const int smallestText = 9;
const int smallestLine = 11;
const int largestText = 18;
const QRgb markedText = 0xff10161c;
const int markRounding = 4;

QFont sized(int pixels, bool bold)
{
    QFont font = QApplication::font();
    font.setBold(bold);
    font.setPixelSize(pixels);
    return font;
}

} // namespace

KeypadLabel::KeypadLabel(const QString &objectName, Overflow overflow, QWidget *parent)
    : QWidget(parent), m_overflow(overflow), m_colour(Qt::white)
{
    setObjectName(objectName);
}

void KeypadLabel::setText(const QString &text)
{
    m_text = text;
    KeypadAccess::setName(this, text);
    update();
}

void KeypadLabel::setColour(const QColor &colour)
{
    m_colour = colour;
    update();
}

void KeypadLabel::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    update();
}

void KeypadLabel::setBold(bool isBold)
{
    m_isBold = isBold;
    update();
}

void KeypadLabel::setMarked(bool isMarked)
{
    m_isMarked = isMarked;
    update();
}

int KeypadLabel::neededWidth(int height) const
{
    // Eliding measures in fractions of a pixel and may find the rounded width too narrow.
    return m_text.isEmpty() ? 0 : QFontMetrics(lineFont(height)).width(m_text) + 2;
}

int KeypadLabel::leastWidth() const
{
    return m_text.isEmpty() ? 0 : QFontMetrics(sized(smallestLine, m_isBold)).width(m_text) + 2;
}

void KeypadLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_isMarked) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_colour);
        painter.drawRoundedRect(rect(), markRounding, markRounding);
    }
    painter.setPen(m_isMarked ? QColor(markedText) : m_colour);
    if (m_overflow == Elide)
        paintElided(&painter);
    else
        paintWrapped(&painter);
}

QFont KeypadLabel::lineFont(int height) const
{
    return sized(qBound(smallestText, height * 78 / 100, KeypadLook::letters(largestText)),
                 m_isBold);
}

void KeypadLabel::paintElided(QPainter *painter)
{
    // Smaller letters first: the end of a limit is as much of it as its beginning.
    QFont font = lineFont(height());
    while (font.pixelSize() > smallestLine && QFontMetrics(font).width(m_text) + 2 > width())
        font.setPixelSize(font.pixelSize() - 1);
    painter->setFont(font);
    const QString shown = painter->fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    painter->drawText(rect(), m_alignment, shown);
}

void KeypadLabel::paintWrapped(QPainter *painter)
{
    const int flags = int(m_alignment) | Qt::TextWordWrap;
    int size = qBound(smallestText, height() * 38 / 100, KeypadLook::letters(largestText));
    painter->setFont(sized(size, true));
    while (size > smallestText && !rect().contains(painter->boundingRect(rect(), flags, m_text)))
        painter->setFont(sized(--size, true));
    painter->drawText(rect(), flags, m_text);
}
