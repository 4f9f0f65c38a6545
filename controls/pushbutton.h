// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_PUSHBUTTON_H
#define FILARIX_PUSHBUTTON_H

#include "filarixglobal.h"

#include <QPushButton>

/// A push button for panels with few keys. Return and Enter click the button as Space does; the
/// arrow keys leave button and focus alone. The focus frame shows however the focus came, by a
/// touch too.
///
/// Otherwise a QPushButton, owned by its parent.
///
///     PushButton *start = new PushButton(tr("Start"), this);
///     connect(start, SIGNAL(clicked()), this, SLOT(start()));
class FILARIX_EXPORT PushButton : public QPushButton
{
    Q_OBJECT

public:
    /// Without a text. \a parent may be null.
    explicit PushButton(QWidget *parent);
    /// With \a text; a "&" in it marks the letter of the shortcut.
    PushButton(const QString &text, QWidget *parent);
    /// With \a icon before \a text.
    PushButton(const QIcon &icon, const QString &text, QWidget *parent);

protected:
    /// A held Return clicks once: its repeats are swallowed, here and on release.
    void keyPressEvent(QKeyEvent *event) override;
    /// The release that clicks.
    void keyReleaseEvent(QKeyEvent *event) override;
    /// Paints by our initStyleOption(); the base class would take its own.
    void paintEvent(QPaintEvent *event) override;

    /// Hides the base class's: the same, with a focus frame whenever the button has the focus.
    void initStyleOption(QStyleOptionButton *option) const;
};

#endif // FILARIX_PUSHBUTTON_H
