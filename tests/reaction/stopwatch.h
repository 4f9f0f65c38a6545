// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STOPWATCH_H
#define STOPWATCH_H

#include "finger.h"
#include "targets.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class WatchedApplication;

/// Measures how long the operator waits between a touch and the moment at which the answer is on
/// the screen.
///
///     Stopwatch watch(&application);
///     watch.targets()->setWindow(panel);
///     watch.measure(&Targets::key, 100);
///     // once measured() is told:
///     watch.judge("keys");
class Stopwatch : public QObject
{
    Q_OBJECT

public:
    typedef Touch (Targets::*Chooser)();
    typedef std::function<bool()> Condition;

    explicit Stopwatch(WatchedApplication *application);

    Targets *targets() { return &m_targets; }
    /// Touches, one thing after the other, what \a choose finds, as long as \a goesOn says so.
    void measure(const Chooser &choose, int touches, const Condition &goesOn = Condition());
    /// Prints what was measured since the last kind, and holds it against the limits. What is too
    /// slow, or didn't answer; a line each.
    QStringList judge(const QString &kind);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void measured();

private:
    void touchOne();
    bool isAnswer(const QObject *painted) const;
    void takeSample();
    void giveUp();
    void endTouch();

    QElapsedTimer m_clock;
    Finger m_finger;
    Targets m_targets;
    QTimer m_patience;
    Touch m_touch;
    bool m_isAnswered = false;
    Chooser m_choose = nullptr;
    int m_left = 0;
    Condition m_goesOn;
    QList<double> m_samples;
    QStringList m_faults;
};

#endif // STOPWATCH_H
