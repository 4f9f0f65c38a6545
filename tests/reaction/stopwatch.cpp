// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "stopwatch.h"

#include "watchedapplication.h"

#include <QWindow>

#include <algorithm>
#include <cstdio>

namespace {

const int patienceMs = 3000;
const int mostPauseMs = 12;
const double longestMedianMs = 20;
const double longestMs = 100;
const int percentile = 99;
const int fewestSamples = 30;

} // namespace

Stopwatch::Stopwatch(WatchedApplication *application) : m_finger(&m_clock)
{
    m_clock.start();
    m_patience.setSingleShot(true);
    m_patience.setInterval(patienceMs);
    connect(&m_patience, &QTimer::timeout, this, &Stopwatch::giveUp);
    connect(application, &WatchedApplication::painted, this, &Stopwatch::takeSample);
    application->installEventFilter(this);
}

void Stopwatch::measure(const Chooser &choose, int touches, const Condition &goesOn)
{
    m_choose = choose;
    m_left = touches;
    m_goesOn = goesOn;
    touchOne();
}

void Stopwatch::touchOne()
{
    const bool goesOn = m_left > 0 && (!m_goesOn || m_goesOn());
    m_touch = goesOn ? (m_targets.*m_choose)() : Touch();
    if (!m_touch.shown) {
        m_left = 0;
        Q_EMIT measured();
        return;
    }
    m_patience.start();
    m_finger.touch(m_touch.shown->window()->windowHandle(), m_touch.point, m_touch.isTap,
                   m_targets.upTo(mostPauseMs));
}

bool Stopwatch::isAnswer(const QObject *painted) const
{
    if (!m_touch.shown || m_finger.touchedAt() < 0)
        return false;
    const QWidget *widget = qobject_cast<const QWidget *>(painted);
    const bool isShown = widget == m_touch.shown || m_touch.shown->isAncestorOf(widget);
    return isShown && m_touch.isAnswered();
}

bool Stopwatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && !m_isAnswered)
        m_isAnswered = isAnswer(watched);
    return false;
}

void Stopwatch::takeSample()
{
    // A later paint, before the touch has ended, tells nothing.
    if (!m_isAnswered || !m_patience.isActive())
        return;
    m_patience.stop();
    m_samples.append((m_clock.nsecsElapsed() - m_finger.touchedAt()) / 1e6);
    --m_left;
    // Not from within what has painted.
    QTimer::singleShot(0, this, &Stopwatch::endTouch);
}

/// What does not answer once would take the others' time, too. What has gone meanwhile, such as a
/// key of a message, was not touched.
void Stopwatch::giveUp()
{
    if (m_touch.shown && m_touch.isReachable()) {
        m_faults.append("no answer to a touch of " + m_touch.name);
        m_left = 0;
    }
    endTouch();
}

void Stopwatch::endTouch()
{
    if (m_touch.shown && !m_touch.isTap)
        Finger::slideOff(m_touch.shown->window()->windowHandle());
    m_touch = Touch();
    m_isAnswered = false;
    QTimer::singleShot(0, this, &Stopwatch::touchOne);
}

QStringList Stopwatch::judge(const QString &kind)
{
    std::sort(m_samples.begin(), m_samples.end());
    const int count = m_samples.size();
    const double median = m_samples.value(count / 2);
    const double late = m_samples.value(count * percentile / 100);
    std::printf("%-42s %4d touches, median %5.1f ms, 99th %5.1f ms, longest %5.1f ms\n",
                qPrintable(kind), count, median, late, m_samples.value(count - 1));
    std::fflush(stdout);
    if (count < fewestSamples)
        m_faults.append("too few: " + kind);
    if (median > longestMedianMs || late > longestMs)
        m_faults.append("too slow: " + kind);
    m_samples.clear();
    const QStringList faults = m_faults;
    m_faults.clear();
    return faults;
}
