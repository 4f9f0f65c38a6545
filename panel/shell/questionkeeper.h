// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef QUESTIONKEEPER_H
#define QUESTIONKEEPER_H

#include <QObject>

class QMessageBox;

/// Sees to it that a question which no button answered got its harmless answer.
///
/// A message box that is hidden, rejected by its parent or left because the program ends gives its
/// caller 0 otherwise. The library's delete box goes on at any answer but No, so 0 deletes.
///
/// A question of the panel's own goes on at the one answer that confirms it, and at no other.
class QuestionKeeper : public QObject
{
    Q_OBJECT

public:
    /// Watches all message boxes of the application from now on. One for each program.
    explicit QuestionKeeper(QObject *parent = nullptr);

    /// What exec() of \a box is to give when nobody pressed a button: No where there is one. The
    /// library's own boxes, which hand the result on as it is, give Cancel. All others give -1,
    /// from which the toolkit's static functions make Cancel.
    static int harmlessResult(const QMessageBox *box);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void settle(int result);
};

#endif // QUESTIONKEEPER_H
