// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "terminationsignals.h"

#include <QSocketNotifier>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

const int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};

// The handler may do next to nothing; a byte in a pipe wakes the event loop.
int wakeUp[2] = {-1, -1};

extern "C" void noteSignal(int)
{
    const char byte = 1;
    if (write(wakeUp[1], &byte, 1) < 0)
        return; // The pipe is full of signals already.
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (pipe2(wakeUp, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    QSocketNotifier *notifier = new QSocketNotifier(wakeUp[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::drain);
    for (int number : endingSignals)
        std::signal(number, noteSignal);
}

TerminationSignals::~TerminationSignals()
{
    for (int number : endingSignals)
        std::signal(number, SIG_DFL);
    close(wakeUp[0]);
    close(wakeUp[1]);
}

void TerminationSignals::drain()
{
    char bytes[16];
    while (read(wakeUp[0], bytes, sizeof bytes) > 0) {
    }
    Q_EMIT received();
}
