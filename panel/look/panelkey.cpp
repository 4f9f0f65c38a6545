// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelkey.h"

#include "look/livetext.h"
#include "look/look.h"
#include "look/measures.h"

#include <QEvent>

namespace {

const int iconSide = 22;
const int fontPixels = 11;

void setUp(PanelKey *key, const QString &text)
{
    QFont font = key->font();
    font.setPixelSize(fontPixels);
    font.setBold(true);
    key->setFont(font);
    key->setText(text);
    // By the keyboard alone: a touch leaves the focus to the editor.
    key->setFocusPolicy(Qt::TabFocus);
    key->setIconSize(QSize(iconSide, iconSide));
}

} // namespace

PanelKey::PanelKey(const QIcon &icon, const QString &text, QWidget *parent) : QToolButton(parent)
{
    setUp(this, text);
    setIcon(icon);
    setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
}

PanelKey::PanelKey(const QIcon &icon, const std::function<QString()> &text, QWidget *parent)
    : PanelKey(icon, text(), parent)
{
    new LiveText(this, text);
}

PanelKey::PanelKey(const QString &text, QWidget *parent) : QToolButton(parent)
{
    setUp(this, text);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
}

void PanelKey::setLeastWidth(int width)
{
    m_leastWidth = width;
    updateGeometry();
}

QSize PanelKey::sizeHint() const
{
    // A little wider than high, where that costs no other key its place.
    const int width = qMax(qMax(Look::smallestTouch + 4, Measures::touch()), m_leastWidth);
    return QToolButton::sizeHint().expandedTo(QSize(width, Measures::touch()));
}

QSize PanelKey::minimumSizeHint() const
{
    return sizeHint();
}

// Of keys that exclude each other the toolkit leaves Tab a single one.
void PanelKey::focusInEvent(QFocusEvent *event)
{
    QToolButton::focusInEvent(event);
    if (!autoExclusive() || !parentWidget())
        return;
    for (PanelKey *key :
         parentWidget()->findChildren<PanelKey *>(QString(), Qt::FindDirectChildrenOnly))
        key->setFocusPolicy(Qt::TabFocus);
}

// Larger letters take their room from the picture: a strip of keys keeps its height. So does a word
// that is hidden at the moment, and comes back at any size of letters.
void PanelKey::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        const int height = fontMetrics().height();
        const bool isOverWord = !icon().isNull() && !text().isEmpty();
        if (m_letterHeight > 0 && isOverWord)
            setIconSize(iconSize() - QSize(height - m_letterHeight, height - m_letterHeight));
        m_letterHeight = height;
    }
    QToolButton::changeEvent(event);
}
