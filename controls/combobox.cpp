// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combobox.h"

#include "lineedit.h"
#include "spacekey_p.h"

ComboBox::ComboBox(QWidget *parent, bool editable) : QComboBox(parent), popupToggle(false)
{
    if (editable)
        setLineEdit(new LineEdit(this));
}

void ComboBox::showPopup()
{
    QComboBox::showPopup();
    Q_EMIT showPop();
}

void ComboBox::hidePopup()
{
    QComboBox::hidePopup();
    setFocus(Qt::OtherFocusReason);
}

void ComboBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F4)
        return;
    if (!SpaceKey::isReturn(event) || event->isAutoRepeat()) {
        QComboBox::keyPressEvent(event);
        return;
    }
    popupToggle = !popupToggle;
    if (!popupToggle)
        return;
    QKeyEvent space = SpaceKey::insteadOf(event);
    QComboBox::keyPressEvent(&space);
}

void ComboBox::keyReleaseEvent(QKeyEvent *event)
{
    if (!SpaceKey::isReturn(event) || event->isAutoRepeat()) {
        QComboBox::keyReleaseEvent(event);
        return;
    }
    QKeyEvent space = SpaceKey::insteadOf(event);
    QComboBox::keyReleaseEvent(&space);
}
