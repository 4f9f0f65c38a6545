// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LABEL_H
#define LABEL_H

#include <QLabel>

/// A label that reports a tap. Owned by its parent.
///
///     Label *label = new Label(row);
///     connect(label, SIGNAL(clicked()), this, SLOT(openTable()));
class Label : public QLabel
{
    Q_OBJECT

public:
    explicit Label(QWidget *parent);

Q_SIGNALS:
    /// A press with any button, as it goes down.
    void clicked();

protected:
    /// Keeps the press: the widget below does not see it.
    void mousePressEvent(QMouseEvent *event) override;
};

#endif // LABEL_H
