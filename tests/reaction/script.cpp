// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "script.h"

namespace {

const int tickMs = 5;
const int patienceMs = 30000;

} // namespace

Script::Script()
{
    m_timer.setInterval(tickMs);
    connect(&m_timer, &QTimer::timeout, this, &Script::next);
}

void Script::then(const Step &step)
{
    waitFor(QString(), [step] {
        step();
        return true;
    });
}

void Script::waitFor(const QString &what, const Condition &condition)
{
    m_waits.insert(m_end++, {what, condition});
}

void Script::next()
{
    if (m_waits.isEmpty()) {
        end();
        Q_EMIT finished();
        return;
    }
    if (!m_waiting.isValid())
        m_waiting.start();
    const Wait wait = m_waits.takeFirst();
    m_end = 0;
    if (wait.condition())
        return m_waiting.invalidate();
    if (m_waiting.elapsed() < patienceMs)
        return m_waits.prepend(wait);
    end();
    Q_EMIT givenUp(wait.what);
}

void Script::end()
{
    m_timer.stop();
    m_waits.clear();
}
