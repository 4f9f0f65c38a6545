// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/windowdialogs.h"

#include "wmmainwindow.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QProgressDialog>

namespace {

// The library's texts; not written into tr(), which would have them translated once more for us.
const char openTitle[] = "Open file";
const char saveTitle[] = "Save as";
const char removeTitle[] = "Remove file";
const char questionTitle[] = "Application";
const char loadingText[] = "Load Files:";

bool isTitled(const QWidget *window, const char *title)
{
    return window->windowTitle() == WMMainWindow::tr(title);
}

} // namespace

WindowDialogs::WindowDialogs(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool WindowDialogs::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return false;
    QDialog *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || dialog->parent())
        return false;
    if (QMessageBox *box = qobject_cast<QMessageBox *>(dialog))
        seeBox(box);
    if (QProgressDialog *progress = qobject_cast<QProgressDialog *>(dialog)) {
        if (progress->labelText() == QLatin1String(loadingText))
            connect(progress, SIGNAL(canceled()), this, SIGNAL(loadAborted()),
                    Qt::UniqueConnection);
    }
    if (!dialog->inherits("WFileDialog"))
        return false;
    if (isTitled(dialog, openTitle))
        Q_EMIT pickerShown(dialog, OpenPicker);
    else if (isTitled(dialog, saveTitle))
        Q_EMIT pickerShown(dialog, SavePicker);
    else if (isTitled(dialog, removeTitle))
        Q_EMIT pickerShown(dialog, RemovePicker);
    return false;
}

void WindowDialogs::seeBox(QMessageBox *box)
{
    if (isTitled(box, questionTitle))
        return seeQuestion(box);
    if (!isTitled(box, removeTitle))
        return;
    if (box->standardButtons() == (QMessageBox::Yes | QMessageBox::No))
        Q_EMIT removeQuestionShown(box);
    else if (box->icon() == QMessageBox::Information)
        Q_EMIT removed();
}

void WindowDialogs::seeQuestion(QMessageBox *box)
{
    const QMessageBox::StandardButtons buttons = box->standardButtons();
    if (buttons == (QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel))
        Q_EMIT saveQuestionShown(box);
    else if (buttons == (QMessageBox::Yes | QMessageBox::Cancel))
        Q_EMIT reloadQuestionShown(box);
    else if (buttons == QMessageBox::Ok)
        Q_EMIT failed();
}
