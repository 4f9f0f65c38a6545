// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "options.h"
#include "panelprogram.h"
#include "temporaryhome.h"

#include <QApplication>
#include <QDir>

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

/// Where the build has them, and where they are installed; from the program's own folder.
QStringList translationFolders()
{
    QStringList folders;
    for (const char *folder : {FILARIX_BUILT_TRANSLATIONS, FILARIX_INSTALLED_TRANSLATIONS})
        folders.append(
            QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(folder)));
    return folders;
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
    if (hasArgument(argc, argv, {"--tour"}) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")
        && !hasArgument(argc, argv, {"-platform", "--platform"}))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    // Before anything looks into the home. The walk changes what it finds there.
    std::unique_ptr<TemporaryHome> home;
    if (hasArgument(argc, argv, {"--tour"}))
        home.reset(new TemporaryHome);
    if (home && !home->isValid()) {
        std::fputs("No home for the tour: the temporary folder cannot be written.\n", stderr);
        return PanelProgram::TourFailed;
    }

    QApplication application(argc, argv);
    const Options options = Options::parse(application.arguments());
    if (options.outcome != Options::Run)
        return answer(options);
    if (!options.programDir.isEmpty())
        qputenv("HOME", QFile::encodeName(options.home()));
    return PanelProgram(options, translationFolders()).run();
}
