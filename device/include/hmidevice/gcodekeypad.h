// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HMIDEVICE_GCODEKEYPAD_H
#define HMIDEVICE_GCODEKEYPAD_H

#include <QDialog>

class QValidator;

/// The on-screen keypad for one line of G-code.
///
/// One modal dialog for the whole process, owned by the device library. Every caller sets the
/// keypad up in full and runs exec(). 1 means that the operator accepted the text. The text then
/// stands in the property `text` of the object given by setObject(). The keypad keeps neither that
/// object nor the validator alive, and forgets either when it goes.
class Q_DECL_EXPORT GCodeKeypad : public QDialog
{
public:
    /// The one keypad; never null on a panel.
    static GCodeKeypad *instance();

    /// Names the object whose property `text` receives the accepted text. Not owned.
    void setObject(QObject *object);
    /// The check that a text has to pass before it can be accepted; null means none. Not owned.
    void setValidator(const QValidator *validator);
    /// The text to edit.
    void setText(const QString &text);
    /// The hint that tells the limits, shown while the keypad is open. Empty shows none.
    void setLimitToolTip(const QString &toolTip);

protected:
    explicit GCodeKeypad(QWidget *parent = nullptr);
    ~GCodeKeypad() override;
};

#endif // HMIDEVICE_GCODEKEYPAD_H
