// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINDDIALOGKEYPAD_H
#define FINDDIALOGKEYPAD_H

#include "base/filarixhostglobal.h"

#include <QObject>

/// Opens the character keypad on a touched field of the find dialog.
///
/// The library's other fields open a keypad by themselves; those of its find dialog are for keys,
/// and a panel may have none.
class FILARIX_HOST_EXPORT FindDialogKeypad : public QObject
{
    Q_OBJECT

public:
    /// Watches the application from now on.
    explicit FindDialogKeypad(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

#endif // FINDDIALOGKEYPAD_H
