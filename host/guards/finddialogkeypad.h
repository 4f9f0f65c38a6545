// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDDIALOGKEYPAD_H
#define FINDDIALOGKEYPAD_H

#include "base/filarixhostglobal.h"

#include <QObject>

class QWidget;

/// Opens the character keypad on a touched field of the library's find dialog. As soon as the
/// dialog is shown, it opens the keypad on the text to find.
///
/// The library's other fields open a keypad by themselves. The fields of the find dialog are made
/// for keys, and a panel may have no keys. One serves all windows of the application: a second one
/// would open the keypad twice.
///
///     new FindDialogKeypad(qApp);
class FILARIX_HOST_EXPORT FindDialogKeypad : public QObject
{
    Q_OBJECT

public:
    /// Watches all find dialogs of the application until it is deleted, mostly by \a parent.
    explicit FindDialogKeypad(QObject *parent);

    /// Takes nothing away from the field, unless the field went while the keypad was open.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openSoon(QWidget *dialog);
};

#endif // FINDDIALOGKEYPAD_H
