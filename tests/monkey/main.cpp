// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// filarix-monkey [--seed S] [--actions N | --minutes M] [PANEL OPTION ...]
//
// Runs the panel program with a monkey at its screen. The seed decides what the monkey does, and
// the size and the mounting of the panel where no option of the panel program does. It ends with 1
// and says why when the panel does not end as it should; a crash or a hang shows the seed and the
// number of the action.

#include "monkey.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <unistd.h>

int panelMain(int argc, char **argv);

namespace {

Monkey *monkey = nullptr;

void release()
{
    if (monkey)
        monkey->start();
}

extern "C" void noteHang(int)
{
    static const char text[] = "monkey: nothing has moved for minutes\n";
    if (write(STDERR_FILENO, text, sizeof text - 1) > 0)
        std::abort();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(release)

int main(int argc, char **argv)
{
    if (qgetenv("FILARIX_SANDBOX").isEmpty()) {
        std::fprintf(stderr, "Run the monkey through tests/support/sandbox.sh: it writes to a home "
                             "and to fixed paths.\n");
        return 98;
    }
    Monkey::Plan plan;
    QList<QByteArray> arguments{argv[0]};
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (hasValue && !std::strcmp(argv[i], "--seed"))
            plan.seed = QByteArray(argv[++i]).toUInt();
        else if (hasValue && !std::strcmp(argv[i], "--actions"))
            plan.actions = QByteArray(argv[++i]).toInt();
        else if (hasValue && !std::strcmp(argv[i], "--minutes"))
            plan.minutes = QByteArray(argv[++i]).toInt();
        else
            arguments.append(argv[i]);
    }

    const char *const shapes[][2] = {{"800x480", "0"},  {"480x272", "0"},    {"480x800", "90"},
                                     {"1024x600", "0"}, {"1280x800", "180"}, {"480x272", "180"},
                                     {"480x800", "270"}};
    const int shape = int(plan.seed % (sizeof shapes / sizeof shapes[0]));
    if (!arguments.contains("--size"))
        arguments << "--size" << shapes[shape][0] << "--rotation" << shapes[shape][1];
    if (!arguments.contains("--rotate"))
        arguments << "--rotate" << QByteArray::number(plan.seed % 4 * 90);
    const char *const languages[] = {"en", "de", "zh_CN", "it", "tr"};
    if (!arguments.contains("--language"))
        arguments << "--language" << languages[plan.seed % 5];
    if (!arguments.contains("--look"))
        arguments << "--look" << (plan.seed % 2 ? "light" : "dark");
    if (!arguments.contains("--stick"))
        arguments << "--stick"
                  << "/mnt/Storage.stick";
    std::printf("monkey: seed %u:", plan.seed);
    for (const QByteArray &argument : arguments.mid(1))
        std::printf(" %s", argument.constData());
    std::printf("\n");
    std::fflush(stdout);

    Monkey atWork(plan);
    monkey = &atWork;
    std::signal(SIGALRM, noteHang);
    std::vector<char *> panelArguments;
    for (QByteArray &argument : arguments)
        panelArguments.push_back(argument.data());
    panelArguments.push_back(nullptr);
    const int status = panelMain(int(panelArguments.size()) - 1, panelArguments.data());
    alarm(0);
    monkey = nullptr;
    atWork.checkPrograms();

    std::printf("monkey: %s\n", qPrintable(atWork.report()));
    for (const QString &fault : atWork.faults())
        std::printf("monkey: FAULT: %s\n", qPrintable(fault));
    return status == 0 && atWork.faults().isEmpty() ? 0 : 1;
}
