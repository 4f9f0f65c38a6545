// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "spinbox.h"

#include "lineedit.h"

#include <QIntValidator>

SpinBox::SpinBox(QWidget *parent) : QSpinBox(parent)
{
    lineEdit = new LineEdit(this);
    validator = new QIntValidator(this);
    lineEdit->setValidator(validator);
    setLineEdit(lineEdit);
}

void SpinBox::stepBy(int steps)
{
    QAbstractSpinBox::stepBy(steps);
    Q_EMIT editingFinished();
}
