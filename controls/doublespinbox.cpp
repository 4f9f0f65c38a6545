// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "doublespinbox.h"

#include "lineedit.h"

#include <QDoubleValidator>

DoubleSpinBox::DoubleSpinBox(QWidget *parent) : QDoubleSpinBox(parent)
{
    lineEdit = new LineEdit(this);
    validator = new QDoubleValidator(this);
    lineEdit->setValidator(validator);
    setLineEdit(lineEdit);
}

void DoubleSpinBox::stepBy(int steps)
{
    QAbstractSpinBox::stepBy(steps);
    Q_EMIT editingFinished();
}
