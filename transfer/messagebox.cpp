// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "messagebox.h"

MessageBox::MessageBox(QWidget *parent) : QMessageBox(parent)
{
    if (parent)
        connect(parent, SIGNAL(rejected()), this, SLOT(reject()));
}

void MessageBox::about(QWidget *parent, const QString &title, const QString &text)
{
    create(parent, title, text)->exec();
}

void MessageBox::critical(QWidget *parent, const QString &title, const QString &text,
                          QMessageBox::StandardButtons buttons,
                          QMessageBox::StandardButton defaultButton)
{
    Q_UNUSED(buttons);
    Q_UNUSED(defaultButton);
    MessageBox *box = create(parent, title, text);
    box->setIcon(QMessageBox::Critical);
    box->exec();
}

int MessageBox::warning(QWidget *parent, const QString &title, const QString &text,
                        QMessageBox::StandardButtons buttons,
                        QMessageBox::StandardButton defaultButton)
{
    MessageBox *box = create(parent, title, text);
    // In this order the default is named before its button exists, and so the toolkit chooses. A
    // thumb on Return never answers Yes because a caller preferred Yes.
    box->setDefaultButton(defaultButton);
    box->setStandardButtons(buttons);
    box->setIcon(QMessageBox::Warning);
    // exec() deletes the box.
    return box->exec();
}

MessageBox *MessageBox::create(QWidget *parent, const QString &title, const QString &text)
{
    MessageBox *box = new MessageBox(parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title.isEmpty() ? tr("About Corvane") : title);
    box->setText(text);
    return box;
}
