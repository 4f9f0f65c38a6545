// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "label.h"

Label::Label(QWidget *parent) : QLabel(parent) {}

void Label::mousePressEvent(QMouseEvent *)
{
    Q_EMIT clicked();
}
