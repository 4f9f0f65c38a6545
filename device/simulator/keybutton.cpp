// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keybutton.h"

#include "keypadlook.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

const int smallestText = 9;
const char widestCharacter[] = "W";
const int textFlags = Qt::AlignCenter | Qt::TextWordWrap;

struct KeyColours
{
    QRgb face;
    QRgb edge;
    QRgb text;
};

// By role, in the order of the enum; by look.
const KeyColours roleColours[][4] = {{
                                         {0xffffffff, 0xff8c96a0, 0xff10161c}, // typing
                                         {0xffc3ccd5, 0xff7d8892, 0xff10161c}, // editing
                                         {0xff1b7a3a, 0xff0f5727, 0xffffffff}, // accept
                                         {0xff4c5763, 0xff333c45, 0xffffffff}, // cancel
                                     },
                                     {
                                         {0xff37434f, 0xff566473, 0xffeef2f6},
                                         {0xff232c35, 0xff566473, 0xffeef2f6},
                                         {0xff1b7a3a, 0xff2f9a53, 0xffffffff},
                                         {0xff4c5763, 0xff6b7885, 0xffffffff},
                                     },
                                     {
                                         {0xffffffff, 0xff000000, 0xff000000},
                                         {0xffe0e0e0, 0xff000000, 0xff000000},
                                         {0xff0f5a26, 0xff000000, 0xffffffff},
                                         {0xff2b2b2b, 0xff000000, 0xffffffff},
                                     }};
const KeyColours pressedColours = {0xffffb000, 0xffa06a00, 0xff10161c};
const KeyColours disabledColours[] = {{0xffc3cad1, 0xffa3abb3, 0xff47505a},
                                      {0xff1b222a, 0xff333c45, 0xff9aa3ac},
                                      {0xffe6e6e6, 0xff454545, 0xff454545}};

QFont lettersOf(int pixels)
{
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPixelSize(pixels);
    return font;
}

// The glyphs are drawn in a square from -1 to 1.

QPainterPath backspacePath()
{
    QPainterPath path;
    path.moveTo(-1.2, 0);
    path.lineTo(-0.5, -0.75);
    path.lineTo(1.1, -0.75);
    path.lineTo(1.1, 0.75);
    path.lineTo(-0.5, 0.75);
    path.closeSubpath();
    path.moveTo(-0.1, -0.35);
    path.lineTo(0.6, 0.35);
    path.moveTo(0.6, -0.35);
    path.lineTo(-0.1, 0.35);
    return path;
}

QPainterPath arrowPath(int direction)
{
    QPainterPath path;
    path.moveTo(-0.4 * direction, -0.8);
    path.lineTo(0.5 * direction, 0);
    path.lineTo(-0.4 * direction, 0.8);
    return path;
}

QPainterPath spacePath()
{
    QPainterPath path;
    path.moveTo(-1.4, 0);
    path.lineTo(-1.4, 0.5);
    path.lineTo(1.4, 0.5);
    path.lineTo(1.4, 0);
    return path;
}

QPainterPath shiftPath(bool locked)
{
    QPainterPath path;
    path.moveTo(0, -1);
    path.lineTo(1, 0);
    path.lineTo(0.45, 0);
    path.lineTo(0.45, 0.6);
    path.lineTo(-0.45, 0.6);
    path.lineTo(-0.45, 0);
    path.lineTo(-1, 0);
    path.closeSubpath();
    if (locked) {
        path.moveTo(-0.6, 1);
        path.lineTo(0.6, 1);
    }
    return path;
}

QPainterPath glyphPath(KeyButton::Glyph glyph)
{
    switch (glyph) {
    case KeyButton::BackspaceGlyph:
        return backspacePath();
    case KeyButton::LeftGlyph:
        return arrowPath(-1);
    case KeyButton::RightGlyph:
        return arrowPath(1);
    case KeyButton::SpaceGlyph:
        return spacePath();
    case KeyButton::ShiftGlyph:
    case KeyButton::ShiftOnceGlyph:
        return shiftPath(false);
    case KeyButton::ShiftLockGlyph:
        return shiftPath(true);
    case KeyButton::NoGlyph:
        break;
    }
    return QPainterPath();
}

void paintGlyph(QPainter *painter, const QRect &rect, KeyButton::Glyph glyph, const QColor &colour)
{
    const qreal scale = qBound(7.0, qMin(rect.width(), rect.height()) * 0.22, 16.0);
    const bool filled = glyph == KeyButton::ShiftOnceGlyph || glyph == KeyButton::ShiftLockGlyph;
    painter->translate(QRectF(rect).center());
    painter->scale(scale, scale);
    painter->setPen(
        QPen(colour, qMax(2.0, scale * 0.18) / scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(filled ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter->drawPath(glyphPath(glyph));
}

} // namespace

KeyButton::KeyButton(const QString &token, QWidget *parent)
    : QAbstractButton(parent), m_token(token), m_letters(smallestText)
{
    setObjectName(QLatin1String("key_") + token);
    setFocusPolicy(Qt::NoFocus);
}

void KeyButton::setRole(Role role)
{
    m_role = role;
    update();
}

void KeyButton::setGlyph(Glyph glyph)
{
    m_glyph = glyph;
    update();
}

QSize KeyButton::sizeHint() const
{
    return QSize(KeypadLook::fingerSize, KeypadLook::fingerSize);
}

bool KeyButton::event(QEvent *event)
{
    // The toolkit takes the presses of a disabled button, and says nothing.
    if (event->type() == QEvent::MouseButtonPress && !isEnabled())
        Q_EMIT pressedInVain();
    return QAbstractButton::event(event);
}

void KeyButton::paintEvent(QPaintEvent *)
{
    const KeypadLook::Look look = KeypadLook::look();
    const KeyColours &colours = !isEnabled() ? disabledColours[look]
                                : isDown()   ? pressedColours
                                             : roleColours[look][m_role];
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(colours.edge));
    painter.setBrush(QColor(colours.face));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);

    if (m_glyph != NoGlyph) {
        paintGlyph(&painter, rect(), m_glyph, QColor(colours.text));
        return;
    }
    painter.setPen(QColor(colours.text));
    painter.setFont(lettersOf(m_letters));
    painter.drawText(textRoom(), textFlags, text());
}

QRect KeyButton::textRoom() const
{
    const int margin = isWord() ? 4 : 3;
    return rect().adjusted(margin, 0, -margin, 0);
}

int KeyButton::fittingLetters() const
{
    const int wanted = isWord() ? height() * 36 / 100 : qMin(height() * 50, width() * 70) / 100;
    int size = isWord() ? qBound(12, KeypadLook::letters(wanted), KeypadLook::letters(24))
                        : qBound(14, KeypadLook::letters(wanted), KeypadLook::letters(38));
    const QString shown = isWord() ? text() : QString::fromLatin1(widestCharacter);
    const QRect room = textRoom();
    // Words in two lines are read more easily than small ones.
    while (size > smallestText
           && !room.contains(QFontMetrics(lettersOf(size)).boundingRect(room, textFlags, shown)))
        --size;
    return size;
}

void KeyButton::setLetters(int pixels)
{
    m_letters = pixels;
    update();
}
