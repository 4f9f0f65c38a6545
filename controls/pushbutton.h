// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_PUSHBUTTON_H
#define FILARIX_PUSHBUTTON_H

#include "filarixglobal.h"

#include <QPushButton>

/// A push button for panels with few keys: Return and Enter click it as Space does, the arrow keys
/// leave it alone and the focus where it is, and the focus frame shows however the focus came,
/// a touch included.
///
/// Otherwise a QPushButton, owned by its parent.
///
///     PushButton *start = new PushButton(tr("Start"), this);
///     connect(start, SIGNAL(clicked()), this, SLOT(start()));
class FILARIX_EXPORT PushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit PushButton(QWidget *parent);
    PushButton(const QString &text, QWidget *parent);
    PushButton(const QIcon &icon, const QString &text, QWidget *parent);

protected:
    /// A held Return clicks once: its repeats are swallowed, here and on release.
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /// Hides the base class's: the same, with a focus frame whenever the button has the focus.
    void initStyleOption(QStyleOptionButton *option) const;
};

#endif // FILARIX_PUSHBUTTON_H
