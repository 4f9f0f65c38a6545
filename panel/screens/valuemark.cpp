// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/valuemark.h"

#include "look/look.h"
#include "look/tonemark.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>

namespace {

// Of a field's width.
const int unitPercent = 18;
const int wordPercent = 46;
// A word has no room in less. Its drawing says enough then.
const int leastWord = 110;
const QLatin1String longUnit("layers");

const int gap = 4;
const int corner = 4;
const int largestSign = 22;
const int largestSwitch = 20;

// Letters that do not fit become smaller, down to these.
const int smallestLetters = 10;

// Rows are black on white in both looks.
const QRgb rowText = 0xff000000;
const QRgb switchedOff = 0xff66727f;

/// The text with letters that have room; none where the smallest have not.
void drawWhole(QPainter *painter, const QRect &place, const QString &text)
{
    QFont font = painter->font();
    int pixels = QFontInfo(font).pixelSize();
    while (pixels > smallestLetters && QFontMetrics(font).horizontalAdvance(text) > place.width())
        font.setPixelSize(--pixels);
    if (QFontMetrics(font).horizontalAdvance(text) > place.width())
        return;
    const QFont before = painter->font();
    painter->setFont(font);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
    painter->setFont(before);
}

} // namespace

bool ValueMark::State::operator==(const State &other) const
{
    return drawing == other.drawing && unit == other.unit && word == other.word
           && tone == other.tone;
}

ValueMark::ValueMark(QLineEdit *field) : QWidget(field), m_field(field)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    field->installEventFilter(this);
    follow();
    show();
}

void ValueMark::setState(const State &state)
{
    if (state == m_state)
        return;
    m_state = state;
    QStringList said;
    for (const QString &text : {state.unit, state.word}) {
        if (!text.isEmpty())
            said.append(text);
    }
    setAccessibleName(said.join(QLatin1String(", ")));
    update();
}

bool ValueMark::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        follow();
    return QWidget::eventFilter(watched, event);
}

void ValueMark::follow()
{
    m_unitWidth = qMax(m_field->width() * unitPercent / 100,
                       fontMetrics().horizontalAdvance(longUnit) + 2 * gap);
    const int wordWidth = m_field->width() * wordPercent / 100;
    const int width = m_unitWidth + (wordWidth < leastWord ? largestSign + 3 * gap : wordWidth);
    setGeometry(m_field->width() - width, 0, width, m_field->height());
    m_field->setTextMargins(0, 0, width, 0);
}

void ValueMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect cell = rect();
    cell.setWidth(m_unitWidth);
    cell.adjust(gap, 1, -gap, -1);
    if (m_state.drawing != State::Unit) {
        paintSwitch(&painter, cell);
    } else {
        painter.setPen(QColor(rowText));
        drawWhole(&painter, cell, m_state.unit);
    }
    if (!m_state.word.isEmpty())
        paintWord(&painter, rect().adjusted(cell.right() + 2 * gap, 2, -gap, -2));
}

/// A switch lies to the right while it is on.
void ValueMark::paintSwitch(QPainter *painter, const QRect &cell) const
{
    const int height = qMin(largestSwitch, cell.height() - 2);
    const QRect slide(cell.left(), cell.center().y() - height / 2, 2 * height, height);
    const bool isOn = m_state.drawing == State::SwitchedOn;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isOn ? Look::ground(Message::Information) : QColor(switchedOff));
    painter->drawRoundedRect(slide, height / 2.0, height / 2.0);
    painter->setBrush(Qt::white);
    const QRect knob(isOn ? slide.right() - height + 1 : slide.left(), slide.top(), height, height);
    painter->drawEllipse(knob.adjusted(2, 2, -2, -2));
}

void ValueMark::paintWord(QPainter *painter, const QRect &cell) const
{
    const int side = qMin(largestSign, cell.height());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(Look::ground(m_state.tone));
    painter->drawRoundedRect(cell, corner, corner);
    const QRect sign(cell.left() + 1, cell.center().y() - side / 2, side, side);
    ToneMark::draw(painter, sign, m_state.tone);
    painter->setPen(Qt::white);
    const QRect words = cell.adjusted(side + gap, 0, -gap, 0);
    // Too narrow for the word, its sign says enough.
    drawWhole(painter, words, m_state.word);
}
