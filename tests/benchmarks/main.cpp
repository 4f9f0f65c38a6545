// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Measures the library beside a plain version of itself, the toolkit's bare widgets and
// what a user would pick instead, and compares with the targets.
//
//     filarix-bench [--quick] [--only load|edit|filter|rows|memory] [--csv FILE]
//
// Costs are CPU time; subjects take turns within one run. The status is 0 whatever the figures are:
// timings are no gate.

#include "contest.h"
#include "works.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <sys/resource.h>
#include <unistd.h>

namespace {

void discard(QtMsgType, const QMessageLogContext &, const QString &) {}

/// The plain line filter goes one call deeper with each line.
void allowDeepCalls(char **argv)
{
    const rlim_t wanted = 256u << 20;
    rlimit limit;
    if (getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = qMin(wanted, limit.rlim_max);
    if (limit.rlim_cur == wanted && setrlimit(RLIMIT_STACK, &limit) == 0)
        execv("/proc/self/exe", argv); // the limit counts from the program's start
}

} // namespace

int main(int argc, char **argv)
{
    allowDeepCalls(argv);
    QApplication application(argc, argv);
    qInstallMessageHandler(discard);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == QLatin1String("--peak"))
        return runForPeak(arguments.value(2), arguments.value(3).toInt());

    QCommandLineParser parser;
    const QCommandLineOption quick(QLatin1String("quick"), QLatin1String("Leave the largest out."));
    const QCommandLineOption only(QLatin1String("only"), QLatin1String("One part of it."),
                                  QLatin1String("load|edit|filter|rows|memory"));
    const QCommandLineOption csv(QLatin1String("csv"), QLatin1String("Write every figure there."),
                                 QLatin1String("file"));
    parser.addHelpOption();
    parser.addOption(quick);
    parser.addOption(only);
    parser.addOption(csv);
    parser.process(application);

    const Extent extent = {parser.isSet(quick)};
    const QString part = parser.value(only);
    Report report;
    const struct
    {
        const char *name;
        void (*measure)(Report &, const Extent &);
    } parts[] = {
        // The large programs last: they leave a heap in pieces.
        {"rows", measureRows},  {"filter", measureFilter}, {"edit", measureEdits},
        {"load", measureLoads}, {"memory", measureMemory},
    };
    for (const auto &entry : parts) {
        if (part.isEmpty() || part == QLatin1String(entry.name))
            entry.measure(report, extent);
    }

    report.print();
    const QStringList missed = report.missed();
    std::printf("\nTargets missed: %d\n", missed.size());
    Q_FOREACH (const QString &work, missed)
        std::printf("  %s\n", qPrintable(work));
    if (parser.isSet(csv) && !report.write(parser.value(csv))) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(parser.value(csv)));
        return 1;
    }
    return 0;
}
