// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WCOPYDIALOG_H
#define WCOPYDIALOG_H

#include "dialog.h"

#include <QString>

class QLabel;
class QLineEdit;

/// Asks how many lines to copy, counted from the current one. The count is typed, stepped by "-"
/// and "+", or entered on the numeric keypad, which a press into the field opens.
///
///     WCopyDialog dialog(nullptr);
///     dialog.setCurrentLine(12);
///     dialog.setRange(1, 40);
///     if (dialog.exec() == QDialog::Accepted) take(dialog.count());
class WCopyDialog : public Dialog
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit WCopyDialog(QWidget *parent);

    /// Shows \a line, counted from 1, as the line that the copy starts with.
    void setCurrentLine(int line);

    /// The counts allowed, both bounds included. Starts the count anew at "1".
    void setRange(int minimum, int maximum);

    /// The count as it stands in the field; a text that is no number counts as 0.
    int count() const;

    /// Where the keypad leaves its result; the count takes it over only if it lies in the range.
    QString text() const;
    void setText(const QString &text);

public Q_SLOTS:
    void slot_minus();
    void slot_plus();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void editCountOnKeypad();

    QLabel *currentLineLabel;
    QLineEdit *countEdit;
    QString keypadText;
    int minimum;
    int maximum;
};

#endif // WCOPYDIALOG_H
