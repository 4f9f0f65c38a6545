// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_DIALOG_H
#define FILARIX_DIALOG_H

#include "filarixglobal.h"

#include <QDialog>

/// A dialog that centres itself each time it is shown.
///
/// Base of the program picker and the copy dialog; a host may derive from it too. Ownership is the
/// widget tree's.
///
///     Dialog question(nullptr);
///     question.setTitle(tr("Speed"));
///     if (question.exec() == QDialog::Accepted) ...
class FILARIX_EXPORT Dialog : public QDialog
{
    Q_OBJECT

public:
    /// \a parent may be null: the dialog is then centred on the screen.
    explicit Dialog(QWidget *parent);

    /// The title is the window title: each of the two reads what the other wrote.
    void setTitle(const QString &title);
    /// The window title.
    QString getTitle() const;

protected:
    /// Places the dialog before it is shown. With a parent the dialog is centred on a box of the
    /// parent's size at the origin. A parent that stands elsewhere does not move the dialog.
    void showEvent(QShowEvent *event) override;
};

#endif // FILARIX_DIALOG_H
