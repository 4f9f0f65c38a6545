// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/workprogress.h"

#include <QElapsedTimer>

const int WorkProgress::lengthUnknown;

namespace {

const int tickMs = 500;
const int secondsPerMinute = 60;
const int exactSeconds = 10;
const int coarseSeconds = 5;

int roundedUp(int value, int step)
{
    return (value + step - 1) / step * step;
}

WorkProgress::Clock ownClock()
{
    QElapsedTimer clock;
    clock.start();
    return [clock] { return clock.elapsed(); };
}

} // namespace

WorkProgress::WorkProgress(QObject *parent) : WorkProgress(ownClock(), parent) {}

WorkProgress::WorkProgress(const Clock &clock, QObject *parent) : QObject(parent), m_clock(clock)
{
    // The time that is left runs on between two reports, and goes when none comes any more.
    m_tick.setInterval(tickMs);
    connect(&m_tick, &QTimer::timeout, this, &WorkProgress::changed);
}

int WorkProgress::indexOf(const QObject *owner, const QString &name) const
{
    for (int i = 0; i < m_works.size(); ++i) {
        if (m_works.at(i).owner == owner && m_works.at(i).name == name)
            return i;
    }
    return -1;
}

void WorkProgress::report(const QObject *owner, const QString &name, const QString &text,
                          int percent, const std::function<void()> &stop)
{
    int index = indexOf(owner, name);
    if (index < 0) {
        index = m_works.size();
        m_works.append({owner, name, QString(), 0, stop, false, ++m_lastNumber, WorkEstimate()});
    }
    Work &work = m_works[index];
    work.text = text;
    work.percent = percent;
    if (percent != lengthUnknown)
        work.estimate.note(percent, m_clock());
    m_tick.start();
    Q_EMIT changed();
}

void WorkProgress::end(const QObject *owner, const QString &name)
{
    const int index = indexOf(owner, name);
    if (index < 0)
        return;
    m_works.removeAt(index);
    if (m_works.isEmpty())
        m_tick.stop();
    Q_EMIT changed();
}

void WorkProgress::stop()
{
    if (m_works.isEmpty() || m_works.last().isStopping)
        return;
    m_works.last().isStopping = true;
    // By value: the work may end at once.
    const std::function<void()> stop = m_works.last().stop;
    Q_EMIT changed();
    stop();
}

QString WorkProgress::text() const
{
    if (m_works.isEmpty())
        return QString();
    if (isStopping())
        return tr("Stopping ...");
    return m_works.size() == 1
               ? m_works.last().text
               : tr("%1 (more work: %2)").arg(m_works.last().text).arg(m_works.size() - 1);
}

int WorkProgress::percent() const
{
    return m_works.isEmpty() ? 0 : m_works.last().percent;
}

QString WorkProgress::left() const
{
    if (m_works.isEmpty() || isStopping())
        return QString();
    return timeText(m_works.last().estimate.secondsLeft(m_clock()));
}

bool WorkProgress::isStopping() const
{
    return !m_works.isEmpty() && m_works.last().isStopping;
}

int WorkProgress::number() const
{
    return m_works.isEmpty() ? 0 : m_works.last().number;
}

QString WorkProgress::timeText(int seconds)
{
    if (seconds == WorkEstimate::unknown)
        return QString();
    const int shown = seconds <= exactSeconds ? seconds : roundedUp(seconds, coarseSeconds);
    if (shown < secondsPerMinute)
        return tr("%1 s left").arg(shown);
    return tr("%1 min left").arg(roundedUp(seconds, secondsPerMinute) / secondsPerMinute);
}
