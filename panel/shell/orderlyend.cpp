// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/orderlyend.h"

#include "shell/questionkeeper.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTimer>

const int OrderlyEnd::patienceMs;

OrderlyEnd::OrderlyEnd(QObject *parent) : QObject(parent) {}

void OrderlyEnd::end()
{
    if (m_isEnding)
        return;
    m_isEnding = true;
    m_time.start();
    QTimer::singleShot(0, this, &OrderlyEnd::goOn);
}

/// One answer each time: whoever asked goes on between two answers, and may ask for more.
void OrderlyEnd::goOn()
{
    if (m_time.elapsed() < patienceMs && (abortLoading() || answerInnermost())) {
        QTimer::singleShot(0, this, &OrderlyEnd::goOn);
        return;
    }
    const QList<Step> steps = m_steps;
    m_steps.clear();
    for (const Step &step : steps)
        step();
    QCoreApplication::quit();
}

bool OrderlyEnd::answerInnermost()
{
    QWidget *waiting = QApplication::activePopupWidget();
    if (!waiting)
        waiting = QApplication::activeModalWidget();
    if (!waiting)
        return false;
    QDialog *dialog = qobject_cast<QDialog *>(waiting);
    if (dialog)
        answer(dialog);
    else
        waiting->close();
    return true;
}

void OrderlyEnd::answer(QDialog *dialog)
{
    const QMessageBox *box = qobject_cast<QMessageBox *>(dialog);
    dialog->done(box ? QuestionKeeper::harmlessResult(box) : int(QDialog::Rejected));
}

/// The editor takes long programs in piece by piece, and asks its progress dialog between them. The
/// dialog is there until the editor has come back.
bool OrderlyEnd::abortLoading()
{
    bool isLoading = false;
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    for (QWidget *widget : topLevels) {
        QProgressDialog *progress = qobject_cast<QProgressDialog *>(widget);
        if (progress && !progress->wasCanceled())
            progress->cancel();
        isLoading = isLoading || progress;
    }
    return isLoading;
}
