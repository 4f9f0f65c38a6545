// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HMIDEVICE_CHARACTERKEYPAD_H
#define HMIDEVICE_CHARACTERKEYPAD_H

#include <QDialog>

class QValidator;

/// The on-screen keyboard for names and free text.
///
/// One modal dialog for the whole process, owned by the device library. Every caller sets the
/// keypad up in full and runs exec(). 1 means that the operator accepted the text. The text then
/// stands in the property `text` of the object given by setObject(). The keypad keeps neither that
/// object nor the validator alive, and forgets either when it goes.
class Q_DECL_EXPORT CharacterKeypad : public QDialog
{
public:
    /// The one keypad; never null on a panel.
    static CharacterKeypad *instance();

    /// Names the object whose property `text` receives the accepted text. Not owned.
    void setObject(QObject *object);
    /// The check that a text has to pass before it can be accepted; null means none. Not owned.
    void setValidator(const QValidator *validator);
    /// The text to edit.
    void setText(const QString &text);
    /// Selects one of the keypad's faces; the numbers are the device library's own.
    void setShowType(int type);

protected:
    explicit CharacterKeypad(QWidget *parent = nullptr);
    ~CharacterKeypad() override;
};

#endif // HMIDEVICE_CHARACTERKEYPAD_H
