// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_CHECKBOX_H
#define FILARIX_CHECKBOX_H

#include "filarixglobal.h"

#include <QCheckBox>

/// A check box for panels with few keys: Return and Enter toggle it as Space does, on release, and
/// the arrow keys leave it alone and the focus where it is.
///
/// Otherwise a QCheckBox, owned by its parent.
///
///     CheckBox *coolant = new CheckBox(tr("Coolant"), this);
///     connect(coolant, SIGNAL(toggled(bool)), this, SLOT(setCoolant(bool)));
class FILARIX_EXPORT CheckBox : public QCheckBox
{
    Q_OBJECT

public:
    /// Without a text. \a parent may be null.
    explicit CheckBox(QWidget *parent);
    /// With \a text beside the box; a "&" in it marks the letter of the shortcut.
    CheckBox(const QString &text, QWidget *parent);

protected:
    /// A held Return toggles once: its repeats are swallowed, here and on release.
    void keyPressEvent(QKeyEvent *event) override;
    /// The release that toggles.
    void keyReleaseEvent(QKeyEvent *event) override;
};

#endif // FILARIX_CHECKBOX_H
