// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// filarix-reaction [PANEL OPTION ...]
//
// Runs the panel program, touches its keys, keypads, rows, lines and pages, and prints how soon the
// answers are painted. It ends with 1 when that is too late. Started by reaction.sh.

#include "options.h"
#include "panelprogram.h"
#include "reaction.h"
#include "watchedapplication.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    if (qgetenv("FILARIX_SANDBOX").isEmpty()) {
        std::fprintf(stderr, "Run it through tests/support/sandbox.sh: it writes to a home and to "
                             "fixed paths.\n");
        return 98;
    }
    QCoreApplication::setApplicationName(QLatin1String("filarix-panel"));
    WatchedApplication application(argc, argv);
    PanelProgram program(Options::parse(application.arguments()),
                         PanelProgram::translationFolders());
    Reaction measured(&application);
    measured.start();
    const int status = program.run();
    for (const QString &fault : measured.faults())
        std::printf("FAULT: %s\n", qPrintable(fault));
    return status == 0 && measured.faults().isEmpty() ? 0 : 1;
}
