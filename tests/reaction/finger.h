// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FINGER_H
#define FINGER_H

#include <QElapsedTimer>
#include <QEvent>
#include <QPoint>
#include <QThread>

#include <atomic>

class QWindow;

/// Touches at instants of its own, as a finger does: whether the event loop is busy or not.
class Finger : public QThread
{
    Q_OBJECT

public:
    explicit Finger(QElapsedTimer *clock);
    ~Finger() override;

    /// Touches \a point of \a window after \a afterMs milliseconds. A tap leaves the glass at once;
    /// otherwise the finger rests until slideOff().
    void touch(QWindow *window, const QPoint &point, bool isTap, int afterMs);
    /// From the main thread: off the window before it leaves the glass, so nothing is triggered.
    static void slideOff(QWindow *window);
    /// When it touched, in nanoseconds of the clock; -1 before it did.
    qint64 touchedAt() const { return m_touchedAt; }

protected:
    void run() override;

private:
    static void send(QWindow *window, const QPoint &point, QEvent::Type type,
                     Qt::MouseButtons buttons);

    QElapsedTimer *m_clock;
    QWindow *m_window = nullptr;
    QPoint m_point;
    bool m_isTap = false;
    int m_afterMs = 0;
    std::atomic<qint64> m_touchedAt{-1};
};

#endif // FINGER_H
