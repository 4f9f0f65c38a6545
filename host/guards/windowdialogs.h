// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWDIALOGS_H
#define WINDOWDIALOGS_H

#include "base/filarixhostglobal.h"

#include <QObject>

class QDialog;
class QMessageBox;

/// Sees the dialogs that the library's program window opens for its file commands. They have no
/// parent, so they are found as they are shown.
///
/// The signals come before the dialog's own handling of its showing.
class FILARIX_HOST_EXPORT WindowDialogs : public QObject
{
    Q_OBJECT

public:
    enum Picker { OpenPicker, SavePicker, RemovePicker };

    explicit WindowDialogs(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void pickerShown(QDialog *dialog, WindowDialogs::Picker picker);
    /// Asks whether changes are to be saved first.
    void saveQuestionShown(QMessageBox *box);
    /// Asks whether the program that is open is to be read again.
    void reloadQuestionShown(QMessageBox *box);
    void removeQuestionShown(QMessageBox *box);
    /// The file was removed.
    void removed();
    /// A file could not be opened, to be read or to be written; the box says why.
    void failed();
    /// A long program was given up while it was loaded.
    void loadAborted();

private:
    void seeBox(QMessageBox *box);
    void seeQuestion(QMessageBox *box);
};

#endif // WINDOWDIALOGS_H
