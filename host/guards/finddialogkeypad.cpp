// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/finddialogkeypad.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>

FindDialogKeypad::FindDialogKeypad(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool FindDialogKeypad::eventFilter(QObject *watched, QEvent *event)
{
    // On the release: on the press the field would still hold the mouse while the keypad is open.
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    QLineEdit *field = qobject_cast<QLineEdit *>(watched);
    if (!field || !field->isEnabled() || !field->window()->inherits("WFindDialog")
        || !HMIDeviceInfo::isTouchScreen())
        return false;
    CharacterKeypad *keypad = CharacterKeypad::instance();
    if (!keypad)
        return false;
    keypad->setObject(field);
    keypad->setValidator(nullptr);
    keypad->setText(field->text());
    keypad->setShowType(0);
    const QPointer<QLineEdit> watch(field);
    keypad->exec();
    return watch.isNull();
}
