// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dialog.h"

#include <QApplication>
#include <QDesktopWidget>

Dialog::Dialog(QWidget *parent) : QDialog(parent, Qt::WindowFlags()) {}

void Dialog::setTitle(const QString &title)
{
    setWindowTitle(title);
}

QString Dialog::getTitle() const
{
    return windowTitle();
}

void Dialog::showEvent(QShowEvent *event)
{
    const int w = width();
    const int h = height();
    int x;
    int y;
    const QWidget *above = parentWidget();
    if (above && above->rect().isValid()) {
        // The parent's own position is left out: panels show it at the screen's origin.
        x = above->width() / 2 - w / 2;
        y = above->height() / 2 - h / 2;
    } else {
        const QRect screen = QApplication::desktop()->screenGeometry(-1);
        x = (screen.left() + screen.right()) / 2 - w / 2;
        y = (screen.top() + screen.bottom()) / 2 - h / 2;
    }
    setGeometry(x, y, w, h);
    QDialog::showEvent(event);
}
