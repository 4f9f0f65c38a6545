// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef REACTION_H
#define REACTION_H

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <functional>
#include <random>

class PanelWindow;
class QAbstractButton;
class QWindow;

/// Presses at instants of its own, as a finger does: whether the event loop is busy or not.
class Finger : public QThread
{
    Q_OBJECT

public:
    explicit Finger(QElapsedTimer *clock);
    ~Finger() override;

    /// Presses the left button at \a point of \a window after \a afterMs milliseconds.
    void press(QWindow *window, const QPoint &point, int afterMs);
    /// When it pressed, in nanoseconds of the clock; -1 before it did.
    qint64 pressedAt() const { return m_pressedAt; }

protected:
    void run() override;

private:
    QElapsedTimer *m_clock;
    QWindow *m_window = nullptr;
    QPoint m_point;
    int m_afterMs = 0;
    std::atomic<qint64> m_pressedAt{-1};
};

/// Measures how long the operator waits between a press and the first paint of what was pressed.
///
/// It takes the panel through its screens in several conditions and presses keys there; the finger
/// slides off before it is lifted, so that nothing is triggered.
class Reaction : public QObject
{
    Q_OBJECT

public:
    Reaction();

    /// Needs the application object, and ends its loop when all is measured.
    void start();
    /// What is too slow, or didn't work; a line each.
    QStringList faults() const { return m_faults; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    typedef std::function<void()> Step;
    typedef std::function<bool()> Condition;

    void findPanel();
    void planAll();
    void then(const Step &step);
    void waitFor(const QString &what, const Condition &condition);
    void clickTool(const QString &toolTip);
    void answer(const char *className, const QString &button);
    void open(const QString &name);
    void showEach(int presses, const Condition &goesOn = Condition());
    void measure(int presses, const Condition &goesOn);
    void evaluate(const QString &name);
    void next();

    void pressOne();
    void endPress();
    QAbstractButton *randomKey();

    QElapsedTimer m_clock;
    Finger m_finger;
    std::mt19937 m_random;
    PanelWindow *m_panel = nullptr;
    QTimer m_timer;
    QList<Step> m_steps;
    Step m_step;
    QElapsedTimer m_waiting;

    QPointer<QAbstractButton> m_key;
    int m_left = 0;
    Condition m_goesOn;
    QList<double> m_samples;
    QStringList m_faults;
};

#endif // REACTION_H
