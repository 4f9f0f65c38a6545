// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADACCESS_H
#define KEYPADACCESS_H

#include <QString>

class QWidget;

/// What accessibility tools learn of a keypad, on both toolkits. Does nothing where a toolkit was
/// built without their support.
namespace KeypadAccess {

void setName(QWidget *widget, const QString &name);
void setDescription(QWidget *widget, const QString &description);
/// Has a screen reader say the name of \a widget now.
void announce(QWidget *widget);

/// Makes the labels of keypads static texts while there is one of these; one belongs to each.
class StaticText
{
public:
    StaticText();
    ~StaticText();

private:
    StaticText(const StaticText &) = delete;
    StaticText &operator=(const StaticText &) = delete;
};

} // namespace KeypadAccess

#endif // KEYPADACCESS_H
