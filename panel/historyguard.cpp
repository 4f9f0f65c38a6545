// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "historyguard.h"

#include "importmanage.h"
#include "programhistory.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>

namespace {

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
           || type == QEvent::KeyPress || type == QEvent::Shortcut;
}

} // namespace

HistoryGuard::HistoryGuard(ProgramHistory *history, QObject *parent)
    : QObject(parent), m_history(history)
{
    qApp->installEventFilter(this);
}

bool HistoryGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && qobject_cast<QDialog *>(watched)) {
        m_history->scan();
        return false;
    }
    if (!isPress(event->type()))
        return false;
    const QAbstractButton *button = qobject_cast<QAbstractButton *>(watched);
    if (!button || !losesAVersion(button) || m_history->isSettled())
        return false;
    Q_EMIT told(tr("One moment: the history still takes in the programs. Touch once more."),
                Message::Information);
    return true;
}

// The program window's own commands are the ProgramGuard's.
bool HistoryGuard::losesAVersion(const QAbstractButton *button)
{
    QMessageBox *box = qobject_cast<QMessageBox *>(button->window());
    return box && qobject_cast<ImportManage *>(box->parentWidget())
           && box->standardButton(const_cast<QAbstractButton *>(button)) == QMessageBox::Yes;
}
