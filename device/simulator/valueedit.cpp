// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "valueedit.h"

#include "keypadlook.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

namespace {

const int padding = 6;
const int border = 2;
const int smallestText = 14;
const int largestText = 34;

// Every property that a host's sheet might have for line edits has its value here.
const char *const sheet =
    "QLineEdit { color: %4; background: %5; border: %1px solid #ffb000;"
    " border-radius: 4px; margin: 0px; padding: 0px %2px; font-size: %3px;"
    " font-weight: normal; min-width: 0px; min-height: 0px; max-width: 9999px;"
    " max-height: 9999px; selection-color: #ffffff;"
    " selection-background-color: %6; }";
// By look.
const struct
{
    const char *text;
    const char *ground;
    const char *selection;
} colours[] = {
    {"#10161c", "#ffffff", "#1f5fa8"},
    {"#eef2f6", "#12171c", "#1f5fa8"},
    {"#000000", "#ffffff", "#003f9e"},
};

} // namespace

ValueEdit::ValueEdit(QWidget *parent) : QLineEdit(parent)
{
    setObjectName(QLatin1String("value"));
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    connect(this, SIGNAL(textChanged(QString)), SLOT(fitFont()));
}

void ValueEdit::type(const QString &typed)
{
    const QString text = permitted(typed);
    if (!text.isEmpty())
        insert(text);
}

void ValueEdit::press(Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QLineEdit::keyPressEvent(&event);
}

void ValueEdit::toggleSign()
{
    const int oldSign = text().startsWith(QLatin1Char('-')) ? 1 : 0;
    const int newSign = 1 - oldSign;
    const QString digits = text().mid(oldSign);
    const bool wasWhole = !digits.isEmpty() && selectedText().endsWith(digits);
    const int cursor = cursorPosition() - oldSign + newSign;

    setText(newSign ? QLatin1Char('-') + digits : digits);
    if (wasWhole)
        setSelection(newSign, digits.length());
    else
        setCursorPosition(qMax(0, cursor));
}

// A field without the focus drops its selection when its window is activated. The windowing system
// may say so late, between two losses of the focus, and a digit would go behind the old number.
bool ValueEdit::event(QEvent *event)
{
    if (event->type() != QEvent::WindowActivate)
        return QLineEdit::event(event);
    update();
    return true;
}

void ValueEdit::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString typed = event->text();
    if (event->matches(QKeySequence::Paste))
        type(QApplication::clipboard()->text());
    else if (!typed.isEmpty() && typed.at(0).isPrint() && !(event->modifiers() & commands))
        type(typed);
    else
        QLineEdit::keyPressEvent(event);
}

void ValueEdit::showEvent(QShowEvent *event)
{
    QLineEdit::showEvent(event);
    fitFont();
}

void ValueEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    fitFont();
}

void ValueEdit::fitFont()
{
    const int size = fittingSize();
    const int look = KeypadLook::look();
    if (size == m_fontSize && look == m_look)
        return;
    m_fontSize = size;
    m_look = look;
    setStyleSheet(QString::fromLatin1(sheet).arg(border).arg(padding).arg(size).arg(
        QLatin1String(colours[look].text), QLatin1String(colours[look].ground),
        QLatin1String(colours[look].selection)));
}

QString ValueEdit::permitted(const QString &typed) const
{
    QString text = typed;
    if (m_rules.commaIsPoint)
        text.replace(QLatin1Char(','), QLatin1Char('.'));
    if (!m_rules.pointEnabled)
        text.remove(QLatin1Char('.'));
    for (int i = text.length() - 1; i >= 0; --i) {
        const bool allowed = m_rules.allowed.isEmpty() || m_rules.allowed.contains(text.at(i));
        if (!allowed || !text.at(i).isPrint())
            text.remove(i, 1);
    }
    return text;
}

int ValueEdit::fittingSize() const
{
    // Two pixels on either side are the line edit's own, two more are the cursor's.
    const int room = width() - 2 * (padding + border) - 6;
    QFont font = QApplication::font();
    int size = qBound(smallestText, height() * 60 / 100, KeypadLook::letters(largestText));
    font.setPixelSize(size);
    while (size > smallestText && QFontMetrics(font).width(text()) > room)
        font.setPixelSize(--size);
    return size;
}
