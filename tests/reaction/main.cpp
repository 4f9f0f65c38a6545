// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// filarix-reaction [PANEL OPTION ...]
//
// Runs the panel program, presses its keys and prints how soon they are painted. It ends with 1
// when that is too late. Started by reaction.sh.

#include "reaction.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

int panelMain(int argc, char **argv);

namespace {

Reaction *reaction = nullptr;

void begin()
{
    if (reaction)
        reaction->start();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(begin)

int main(int argc, char **argv)
{
    if (qgetenv("FILARIX_SANDBOX").isEmpty()) {
        std::fprintf(stderr, "Run it through tests/support/sandbox.sh: it writes to a home and to "
                             "fixed paths.\n");
        return 98;
    }
    Reaction measured;
    reaction = &measured;
    const int status = panelMain(argc, argv);
    reaction = nullptr;
    for (const QString &fault : measured.faults())
        std::printf("FAULT: %s\n", qPrintable(fault));
    return status == 0 && measured.faults().isEmpty() ? 0 : 1;
}
