// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TOUCHBLOCK_H
#define TOUCHBLOCK_H

#include <QWidget>

/// Texts that together are large enough for a thumb: a touch on any of them counts as one.
///
///     connect(block, &TouchBlock::touched, this, &Screen::tellInFull);
class TouchBlock : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    void touched();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

#endif // TOUCHBLOCK_H
