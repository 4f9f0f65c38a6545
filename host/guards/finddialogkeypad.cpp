// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/finddialogkeypad.h"

#include "base/hostcompat.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/hmideviceinfo.h>

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegExp>
#include <QScopedValueRollback>

namespace {

const char dialogClass[] = "WFindDialog";

/// Some languages have the letter of the shortcut in brackets behind the words.
QString withoutShortcut(QString text)
{
    return text.remove(QRegExp(QLatin1String("\\(&[^)]\\)"))).remove(QLatin1Char('&'));
}

/// What the field is for: its label, without the mark of the shortcut and the colon.
QString nameOf(const QLineEdit *field)
{
    Q_FOREACH (const QLabel *label, field->window()->findChildren<QLabel *>()) {
        if (label->buddy() == field)
            return withoutShortcut(label->text()).remove(QLatin1Char(':'));
    }
    return QString();
}

/// False if the field went while the keypad was open.
bool edit(QLineEdit *field)
{
    CharacterKeypad *keypad =
        HMIDeviceInfo::isTouchScreen() ? CharacterKeypad::instance() : nullptr;
    // A touch may have opened it before. One that is closed may wait for a message that came up
    // over it, and must not be opened until that is over.
    static bool isOpen = false;
    if (!keypad || isOpen || !keypad->isHidden())
        return true;
    field->setProperty("hmiName", nameOf(field));
    keypad->setObject(field);
    keypad->setValidator(nullptr);
    keypad->setText(field->text());
    keypad->setShowType(0);
    const QPointer<QLineEdit> watch(field);
    const QScopedValueRollback<bool> end(isOpen);
    isOpen = true;
    keypad->exec();
    return !watch.isNull();
}

} // namespace

FindDialogKeypad::FindDialogKeypad(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool FindDialogKeypad::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous() && watched->inherits(dialogClass))
        openSoon(static_cast<QWidget *>(watched));
    // On the release: on the press the field would still hold the mouse while the keypad is open.
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    QLineEdit *field = qobject_cast<QLineEdit *>(watched);
    if (!field || !field->isEnabled() || !field->window()->inherits(dialogClass))
        return false;
    return !edit(field);
}

/// Once whoever shows the dialog has placed it.
void FindDialogKeypad::openSoon(QWidget *dialog)
{
    // The first one is the text to find.
    const QPointer<QLineEdit> field(dialog->findChild<QLineEdit *>());
    HostCompat::callLater(this, [field] {
        if (field && field->isVisible())
            edit(field);
    });
}
