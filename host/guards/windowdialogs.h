// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWDIALOGS_H
#define WINDOWDIALOGS_H

#include "base/filarixhostglobal.h"

#include <QObject>

class QDialog;
class QMessageBox;

/// Sees the dialogs that the library's program window opens for its file commands. The dialogs have
/// no parent, so each is found when it is shown, by its class, title and buttons.
///
/// A signal comes before the dialog itself handles that it is shown. The dialogs stay the library's
/// own. A dialog of another program part counts only if class, title and buttons are the same.
///
///     WindowDialogs dialogs;
///     connect(&dialogs, SIGNAL(failed()), ...);
class FILARIX_HOST_EXPORT WindowDialogs : public QObject
{
    Q_OBJECT

public:
    enum Picker { OpenPicker, SavePicker, RemovePicker };

    /// Watches the application from now on.
    explicit WindowDialogs(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A program is to be picked: to be opened, to be written to, or to be removed.
    void pickerShown(QDialog *dialog, WindowDialogs::Picker picker);
    /// \a box asks whether changes are to be saved first.
    void saveQuestionShown(QMessageBox *box);
    /// \a box asks whether the program that is open is to be read again.
    void reloadQuestionShown(QMessageBox *box);
    /// \a box asks whether a program is to be removed.
    void removeQuestionShown(QMessageBox *box);
    /// The program was removed.
    void removed();
    /// A file could not be opened, for reading or for writing; the library's box says why.
    void failed();
    /// The operator gave up a long program while the window loaded it.
    void loadAborted();

private:
    void seeBox(QMessageBox *box);
    void seeQuestion(QMessageBox *box);
};

#endif // WINDOWDIALOGS_H
