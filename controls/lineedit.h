// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_LINEEDIT_H
#define FILARIX_LINEEDIT_H

#include "filarixglobal.h"

#include <QLineEdit>
#include <QString>

/// The kit's line edit: the field of the spin boxes, of an editable combo box and of the find
/// dialog. A panel's own treatment of a touch on a field would go here and nowhere else.
///
/// A QLineEdit, owned by its parent.
///
///     LineEdit *name = new LineEdit(this);
///     name->setMaxLength(20);
///     layout->addWidget(name);
class FILARIX_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// Empty. \a parent may be null.
    explicit LineEdit(QWidget *parent);

protected:
    /// The base class's, so far.
    void mousePressEvent(QMouseEvent *event) override;

private:
    /// Unread; part of the exported class's layout.
    QString reserved;
};

#endif // FILARIX_LINEEDIT_H
