// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/questionkeeper.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>

namespace {

// What the toolkit's static functions turn into Cancel.
const int closedResult = -1;

/// Whether a button was pressed that was added by a text alone: such a button gives 0, too.
bool pressedItsOwnButton(const QMessageBox *box)
{
    QAbstractButton *clicked = box->clickedButton();
    return clicked && box->standardButton(clicked) == QMessageBox::NoButton;
}

} // namespace

QuestionKeeper::QuestionKeeper(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

int QuestionKeeper::harmlessResult(const QMessageBox *box)
{
    if (box->button(QMessageBox::No))
        return QMessageBox::No;
    if (box->inherits("MessageBox") && box->button(QMessageBox::Cancel))
        return QMessageBox::Cancel;
    return closedResult;
}

bool QuestionKeeper::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    QMessageBox *box = qobject_cast<QMessageBox *>(watched);
    if (!box)
        return false;
    // By now exec() has set the result to 0. The loop of exec() may end without a word to the box.
    box->setResult(harmlessResult(box));
    connect(box, &QMessageBox::finished, this, &QuestionKeeper::settle, Qt::UniqueConnection);
    return false;
}

void QuestionKeeper::settle(int result)
{
    QMessageBox *box = qobject_cast<QMessageBox *>(sender());
    if (box && result == 0 && !pressedItsOwnButton(box))
        box->setResult(harmlessResult(box));
}
