// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "lineedit.h"

LineEdit::LineEdit(QWidget *parent) : QLineEdit(parent) {}

void LineEdit::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
}
