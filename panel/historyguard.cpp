// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "historyguard.h"

#include "importmanage.h"
#include "programhistory.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QToolButton>

namespace {

// The library's texts; not written into tr(), which would have them translated once more for us.
const char kSave[] = "Save";
const char kSaveAs[] = "Save as";
const char kRemove[] = "Remove file";

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
    Q_EMIT told(tr("One moment: the history still takes in the programs. Touch once more."));
    return true;
}

// The commands of the library that write over a program or take it away.
bool HistoryGuard::losesAVersion(const QAbstractButton *button)
{
    QWidget *window = button->window();
    if (QMessageBox *box = qobject_cast<QMessageBox *>(window)) {
        QAbstractButton *pressed = const_cast<QAbstractButton *>(button);
        switch (box->standardButton(pressed)) {
        case QMessageBox::Save:
            return true;
        case QMessageBox::Yes:
            return qobject_cast<ImportManage *>(box->parentWidget())
                   || box->windowTitle() == WMMainWindow::tr(kRemove);
        default:
            return false;
        }
    }
    if (window->inherits("WFileDialog"))
        return window->windowTitle() == WMMainWindow::tr(kSaveAs);
    const QToolButton *key = qobject_cast<const QToolButton *>(button);
    const WMMainWindow *program = nullptr;
    for (const QObject *above = key; above && !program; above = above->parent())
        program = qobject_cast<const WMMainWindow *>(above);
    return program && key->text() == WMMainWindow::tr(kSave);
}
