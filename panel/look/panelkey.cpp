// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/panelkey.h"

#include "look/livetext.h"
#include "look/look.h"

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
    key->setFocusPolicy(Qt::NoFocus);
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

QSize PanelKey::sizeHint() const
{
    return QToolButton::sizeHint().expandedTo(QSize(Look::smallestTouch + 4, Look::smallestTouch));
}

QSize PanelKey::minimumSizeHint() const
{
    return sizeHint();
}
