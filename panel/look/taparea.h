// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TAPAREA_H
#define TAPAREA_H

#include <QFrame>

/// Texts that together are large enough for a thumb: a touch on any of them counts as one.
/// While a finger is on it, its ground is that of a pressed key.
///
///     connect(block, &TapArea::touched, this, &Screen::tellInFull);
class TapArea : public QFrame
{
    Q_OBJECT

public:
    /// Reached by the keyboard, too, whose Return and Space count as a touch.
    explicit TapArea(QWidget *parent = nullptr);

    /// What one that is no higher than its texts has at the least: a finger's width.
    static int leastHeight();

Q_SIGNALS:
    void touched();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setDown(bool isDown);

    bool m_isDown = false;
};

#endif // TAPAREA_H
