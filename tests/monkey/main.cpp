// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// filarix-monkey [--seed S] [--actions N | --minutes M] [PANEL OPTION ...]
//
// Runs the panel program with a monkey at its screen. The seed decides what the monkey does, and
// the size and the mounting of the panel where no option of the panel program does. It ends with 1
// and says why when the panel does not end as it should; a crash or a hang shows the seed and the
// number of the action.

#include "monkey.h"
#include "options.h"
#include "panelprogram.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {

extern "C" void noteHang(int)
{
    static const char text[] = "monkey: nothing has moved for minutes\n";
    if (write(STDERR_FILENO, text, sizeof text - 1) > 0)
        std::abort();
}

/// Takes the monkey's own options out of the command line.
Monkey::Plan takePlan(QStringList *arguments)
{
    Monkey::Plan plan;
    QStringList left;
    for (int i = 0; i < arguments->size(); ++i) {
        const QString option = arguments->at(i);
        const QString value = arguments->value(i + 1);
        if (option == QLatin1String("--seed"))
            plan.seed = value.toUInt();
        else if (option == QLatin1String("--actions"))
            plan.actions = value.toInt();
        else if (option == QLatin1String("--minutes"))
            plan.minutes = value.toInt();
        else {
            left.append(option);
            continue;
        }
        ++i;
    }
    *arguments = left;
    return plan;
}

/// What the seed decides of the panel, where no option of the panel program does.
void addOptions(QStringList *arguments, quint32 seed)
{
    const char *const shapes[][2] = {{"800x480", "0"},  {"480x272", "0"},    {"480x800", "90"},
                                     {"1024x600", "0"}, {"1280x800", "180"}, {"480x272", "180"},
                                     {"480x800", "270"}};
    const char *const languages[] = {"en", "de", "zh_CN", "it", "tr"};
    const char *const looks[] = {"dark", "light", "high-contrast"};
    const char *const *shape = shapes[seed % (sizeof shapes / sizeof shapes[0])];
    const auto add = [arguments](const char *option, const QString &value) {
        arguments->append(QLatin1String(option));
        arguments->append(value);
    };
    if (!arguments->contains(QLatin1String("--size"))) {
        add("--size", QLatin1String(shape[0]));
        add("--rotation", QLatin1String(shape[1]));
    }
    if (!arguments->contains(QLatin1String("--rotate")))
        add("--rotate", QString::number(seed % 4 * 90));
    if (!arguments->contains(QLatin1String("--language")))
        add("--language", QLatin1String(languages[seed % 5]));
    if (!arguments->contains(QLatin1String("--look")))
        add("--look", QLatin1String(looks[seed % 3]));
    if (!arguments->contains(QLatin1String("--stick")))
        add("--stick", QLatin1String("/mnt/Storage.stick"));
}

int runPanel(const QStringList &arguments)
{
    const Options options = Options::parse(arguments);
    if (options.outcome != Options::Run) {
        std::fprintf(stderr, "%s\n", qPrintable(options.text));
        return 2;
    }
    return PanelProgram(options, PanelProgram::translationFolders()).run();
}

} // namespace

int main(int argc, char **argv)
{
    if (qgetenv("FILARIX_SANDBOX").isEmpty()) {
        std::fprintf(stderr, "Run the monkey through tests/support/sandbox.sh: it writes to a home "
                             "and to fixed paths.\n");
        return 98;
    }
    QCoreApplication::setApplicationName(QLatin1String("filarix-panel"));
    QApplication application(argc, argv);
    QStringList arguments = application.arguments();
    const Monkey::Plan plan = takePlan(&arguments);
    addOptions(&arguments, plan.seed);
    std::printf("monkey: seed %u: %s\n", plan.seed,
                qPrintable(arguments.mid(1).join(QLatin1Char(' '))));
    std::fflush(stdout);

    Monkey monkey(plan);
    std::signal(SIGALRM, noteHang);
    monkey.start();
    const int status = runPanel(arguments);
    alarm(0);
    monkey.checkPrograms();

    std::printf("monkey: %s\n", qPrintable(monkey.report()));
    for (const QString &fault : monkey.faults())
        std::printf("monkey: FAULT: %s\n", qPrintable(fault));
    return status == 0 && monkey.faults().isEmpty() ? 0 : 1;
}
