// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WFINDDIALOG_H
#define WFINDDIALOG_H

#include <QDialog>

class LineEdit;
class QCheckBox;
class QLabel;
class QPushButton;

/// The small dialog through which the operator searches the program and replaces one match at a
/// time. It only collects texts and options and keeps them between two uses; the search is the
/// editor's, which owns the dialog.
///
///     WFindDialog *dialog = new WFindDialog(nullptr);
///     connect(dialog, SIGNAL(findNext(QString,Qt::CaseSensitivity)), editor, SLOT(...));
///     dialog->setVisible(true);
class WFindDialog : public QDialog
{
    Q_OBJECT

public:
    /// Not modal: the program stays usable behind it.
    explicit WFindDialog(QWidget *parent);

Q_SIGNALS:
    /// Find \a str below the cursor. Never emitted with an empty text.
    void findNext(const QString &str, Qt::CaseSensitivity cs);
    /// Find \a str above the cursor. Never emitted with an empty text.
    void findPrevious(const QString &str, Qt::CaseSensitivity cs);
    /// Replace what the last search found. An empty \a str deletes it.
    void replaceTxt(const QString &str);

private Q_SLOTS:
    void findClicked();
    void enableFindButton(const QString &text);
    void replaceClicked();

private:
    QLabel *findLabel;
    QLabel *replaceLabel;
    LineEdit *findEdit;
    LineEdit *replaceEdit;
    QCheckBox *caseCheckBox;
    QCheckBox *backwardCheckBox;
    QPushButton *findButton;
    QPushButton *replaceButton;
    QPushButton *closeButton;
};

#endif // WFINDDIALOG_H
