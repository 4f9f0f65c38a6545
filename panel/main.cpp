// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "options.h"
#include "panelprogram.h"
#include "temporaryhome.h"

#include <QApplication>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {

bool hasArgument(int argc, char **argv, std::initializer_list<const char *> names)
{
    for (int i = 1; i < argc; ++i) {
        for (const char *name : names) {
            const size_t length = std::strlen(name);
            if (!std::strncmp(argv[i], name, length)
                && (argv[i][length] == '\0' || argv[i][length] == '='))
                return true;
        }
    }
    return false;
}

/// The outcome of a command line that shows no panel: the exit status.
int answer(const Options &options)
{
    const bool refused = options.outcome == Options::Refuse;
    std::fputs(options.text.toLocal8Bit().constData(), refused ? stderr : stdout);
    if (refused)
        std::fputc('\n', stderr);
    return refused ? 2 : 0;
}

/// A tour makes pictures and needs no display, unless it is asked to be seen.
void goWithoutDisplay(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
        && !hasArgument(argc, argv, {"-platform", "--platform"}))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int refuseTour()
{
    std::fputs("No home for the tour: the temporary folder cannot be written.\n", stderr);
    return PanelProgram::TourFailed;
}

/// Runs what \a arguments ask for.
int run(const QStringList &arguments)
{
    const Options options = Options::parse(arguments);
    if (options.outcome != Options::Run)
        return answer(options);
    return PanelProgram(options, PanelProgram::translationFolders()).run();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QLatin1String("filarix-panel"));
    QCoreApplication::setApplicationVersion(QLatin1String(FILARIX_VERSION));
    if (hasArgument(argc, argv, {"--help", "-h", "--version", "-v"})) {
        // No display is needed to read on.
        QCoreApplication application(argc, argv);
        return answer(Options::parse(application.arguments()));
    }
    // Before anything looks into the home. The walk changes what it finds there.
    std::unique_ptr<TemporaryHome> home;
    if (hasArgument(argc, argv, {"--tour"})) {
        goWithoutDisplay(argc, argv);
        home.reset(new TemporaryHome);
        if (!home->isValid())
            return refuseTour();
    }
    QApplication application(argc, argv);
    return run(application.arguments());
}
