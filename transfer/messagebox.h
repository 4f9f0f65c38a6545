// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_MESSAGEBOX_H
#define FILARIX_MESSAGEBOX_H

#include "filarixglobal.h"

#include <QMessageBox>

/// A message box that closes with its parent dialog.
///
/// The static functions show a box modally and come back when it is closed; the box deletes
/// itself. An empty title becomes "About Corvane".
///
///     if (MessageBox::warning(this, tr("Delete"), tr("Sure?"),
///                             QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes)
///         ...
class FILARIX_EXPORT MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /// The box is rejected when \a parent emits rejected(). A parent that is no dialog has no such
    /// signal: the toolkit then prints a warning, and the box works on without it. \a parent may
    /// be null.
    explicit MessageBox(QWidget *parent);

    /// A box with an Ok button and no icon.
    static void about(QWidget *parent, const QString &title, const QString &text);

    /// A box with an Ok button and the critical icon. \a buttons and \a defaultButton are ignored.
    static void critical(QWidget *parent, const QString &title, const QString &text,
                         QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                         QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

    /// A box with \a buttons and the warning icon. \a defaultButton has no effect: the toolkit
    /// chooses the default.
    /// \returns the button pressed, or 0 when the box was closed by its parent.
    static int warning(QWidget *parent, const QString &title, const QString &text,
                       QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                       QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

private:
    static MessageBox *create(QWidget *parent, const QString &title, const QString &text);
};

#endif // FILARIX_MESSAGEBOX_H
