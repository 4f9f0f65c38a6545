// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

#include <QLabel>

/// A line of text that gives way: where it doesn't fit it ends in three dots.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif // ELIDEDLABEL_H
