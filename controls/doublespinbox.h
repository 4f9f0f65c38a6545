// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_DOUBLESPINBOX_H
#define FILARIX_DOUBLESPINBOX_H

#include "filarixglobal.h"

#include <QDoubleSpinBox>

class LineEdit;
class QDoubleValidator;

/// A spin box for decimal numbers whose every step is a finished edit. editingFinished() comes with
/// each arrow press and each press on a step button, not only with Return and the loss of the
/// focus.
///
/// Otherwise a QDoubleSpinBox, owned by its parent. Its field is a LineEdit that takes any number
/// while typing; range, decimals and steps are the spin box's. On Qt 5 the field of a new spin box
/// is empty until the value first changes or the box is shown.
///
///     DoubleSpinBox *pitch = new DoubleSpinBox(this);
///     pitch->setRange(0.1, 12.5);
///     connect(pitch, SIGNAL(editingFinished()), this, SLOT(storePitch()));
class FILARIX_EXPORT DoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// Range and decimals are QDoubleSpinBox's: 0 to 99.99. \a parent may be null.
    explicit DoubleSpinBox(QWidget *parent);

    /// Steps, and reports a finished edit, even where the range left nothing to step.
    void stepBy(int steps) override;

private:
    QDoubleValidator *validator;
    /// Hides the base class's function of this name, which returns the same object.
    LineEdit *lineEdit;
};

#endif // FILARIX_DOUBLESPINBOX_H
