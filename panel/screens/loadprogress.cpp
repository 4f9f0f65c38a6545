// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/loadprogress.h"

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QTextDocument>

namespace {

// A load that takes less is over before anybody has read that it goes on.
const int patienceMs = 300;
const int wholePercent = 100;

/// The library has no other such dialog, and this one is there before it is seen.
QProgressDialog *loadDialog()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (QProgressDialog *dialog = qobject_cast<QProgressDialog *>(widget))
            return dialog;
    }
    return nullptr;
}

} // namespace

LoadProgress::LoadProgress(QTextDocument *document, QObject *parent) : QObject(parent)
{
    // Each piece of a program is a change.
    connect(document, &QTextDocument::contentsChanged, this, &LoadProgress::look);
}

bool LoadProgress::isLoading() const
{
    return !m_dialog.isNull();
}

void LoadProgress::look()
{
    if (!m_dialog) {
        m_dialog = loadDialog();
        if (!m_dialog)
            return;
        connect(m_dialog, &QObject::destroyed, this, &LoadProgress::end);
        m_loadedFor.start();
    }
    const int pieces = m_dialog->maximum() - m_dialog->minimum();
    if (pieces <= 0 || m_loadedFor.elapsed() < patienceMs)
        return;
    Q_EMIT worked(wholePercent * (m_dialog->value() - m_dialog->minimum()) / pieces);
}

void LoadProgress::end()
{
    m_dialog.clear();
    Q_EMIT ended();
}

/// Whoever listens for an abort knows the dialog once it was shown.
void LoadProgress::stop()
{
    if (!m_dialog)
        return;
    m_dialog->show();
    if (QPushButton *abort = m_dialog->findChild<QPushButton *>())
        abort->click();
}
