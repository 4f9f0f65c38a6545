// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_SPINBOX_H
#define FILARIX_SPINBOX_H

#include "filarixglobal.h"

#include <QSpinBox>

class LineEdit;
class QIntValidator;

/// A spin box whose every step is a finished edit. editingFinished() comes with each arrow press
/// and each press on a step button, not only with Return and the loss of the focus.
///
/// Otherwise a QSpinBox, owned by its parent. Its field is a LineEdit that takes any integer while
/// typing; range and steps are the spin box's. On Qt 5 the field of a new spin box is empty until
/// the value first changes or the box is shown.
///
///     SpinBox *turns = new SpinBox(this);
///     turns->setRange(1, 500);
///     connect(turns, SIGNAL(editingFinished()), this, SLOT(storeTurns()));
class FILARIX_EXPORT SpinBox : public QSpinBox
{
    Q_OBJECT

public:
    /// The range is QSpinBox's: 0 to 99. \a parent may be null.
    explicit SpinBox(QWidget *parent);

    /// Steps, and reports a finished edit, even where the range left nothing to step.
    void stepBy(int steps) override;

private:
    QIntValidator *validator;
    /// Hides the base class's function of this name, which returns the same object.
    LineEdit *lineEdit;
};

#endif // FILARIX_SPINBOX_H
