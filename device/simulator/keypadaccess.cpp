// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadaccess.h"

#include <QWidget>

#ifndef QT_NO_ACCESSIBILITY

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
typedef QAccessibleWidget WidgetInterface;
#else
typedef QAccessibleWidgetEx WidgetInterface;
#endif

int staticTexts = 0;

/// The toolkit knows the keys and the value by their base classes, and nothing of the labels.
QAccessibleInterface *labelInterface(const QString &className, QObject *object)
{
    QWidget *widget = qobject_cast<QWidget *>(object);
    if (!widget || className != QLatin1String("KeypadLabel"))
        return nullptr;
    return new WidgetInterface(widget, QAccessible::StaticText);
}

} // namespace

void KeypadAccess::setName(QWidget *widget, const QString &name)
{
    if (widget->accessibleName() != name)
        widget->setAccessibleName(name);
}

void KeypadAccess::setDescription(QWidget *widget, const QString &description)
{
    if (widget->accessibleDescription() != description)
        widget->setAccessibleDescription(description);
}

void KeypadAccess::announce(QWidget *widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QAccessibleEvent event(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
#else
    QAccessible::updateAccessibility(widget, 0, QAccessible::Alert);
#endif
}

KeypadAccess::StaticText::StaticText()
{
    if (staticTexts++ == 0)
        QAccessible::installFactory(labelInterface);
}

KeypadAccess::StaticText::~StaticText()
{
    // The function goes with this library, which a program may unload.
    if (--staticTexts == 0)
        QAccessible::removeFactory(labelInterface);
}

#else

void KeypadAccess::setName(QWidget *, const QString &) {}
void KeypadAccess::setDescription(QWidget *, const QString &) {}
void KeypadAccess::announce(QWidget *) {}
KeypadAccess::StaticText::StaticText() = default;
KeypadAccess::StaticText::~StaticText() = default;

#endif
