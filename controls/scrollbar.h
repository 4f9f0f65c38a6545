// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIX_SCROLLBAR_H
#define FILARIX_SCROLLBAR_H

#include "filarixglobal.h"

#include <QScrollBar>

/// A scroll bar wide enough for a gloved thumb: 30 pixels, with step buttons of 30 by 30.
///
/// A QScrollBar, owned by its parent or by the scroll area that takes it.
///
///     area->setVerticalScrollBar(new ScrollBar(Qt::Vertical, area));
class FILARIX_EXPORT ScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    /// \a orientation chooses the style sheet alone; a value that is no orientation sets none. The
    /// bar starts vertical, and whoever takes it, as a scroll area does, sets its orientation.
    ScrollBar(Qt::Orientation orientation, QWidget *parent);
    /// A vertical one: what a form made with Qt Designer asks for.
    explicit ScrollBar(QWidget *parent) : ScrollBar(Qt::Vertical, parent) {}

    /// In pixels, by the bar's current orientation().
    QSize sizeHint() const override;
};

#endif // FILARIX_SCROLLBAR_H
