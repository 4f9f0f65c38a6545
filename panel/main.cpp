// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "connectionsscreen.h"
#include "devicewatch.h"
#include "dialogkeeper.h"
#include "fieldkeypad.h"
#include "filesscreen.h"
#include "glyphs.h"
#include "historyguard.h"
#include "languages.h"
#include "look.h"
#include "machinedata.h"
#include "options.h"
#include "orderlyend.h"
#include "panelglass.h"
#include "panelstyle.h"
#include "panelsurface.h"
#include "panelwindow.h"
#include "programguard.h"
#include "programhistory.h"
#include "programscreen.h"
#include "questionkeeper.h"
#include "samples.h"
#include "settings.h"
#include "statusstrip.h"
#include "stick.h"
#include "teachscreen.h"
#include "terminationsignals.h"
#include "tour.h"
#include "unsavedoffer.h"
#include "unsavedwork.h"
#include "variablesscreen.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <memory>

#include <malloc.h>

namespace {

const int kTidyMs = 60 * 1000;
const int kFlushMs = 1000;

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

/// The import manager's commands run in the shell, and a file name can reach what is at hand there:
/// so there is little. \a emptyFolder becomes the working directory.
void limitShell(const QString &emptyFolder)
{
    QFile::setPermissions(emptyFolder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    QDir::setCurrent(emptyFolder);
    qputenv("PATH", "/usr/bin:/bin");
}

void setUpLook(Look::Style style)
{
    QApplication::setStyle(new PanelStyle);
    Look::use(style);
    QFont font = QApplication::font();
    font.setPixelSize(15);
    QApplication::setFont(font);
}

QSize surfaceSize(const Options &options)
{
    if (PanelSurface::isDesktop())
        return options.surfaceSize();
    return options.surfaceOn(QGuiApplication::primaryScreen()->size());
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

/// Keeps what the operator has not saved, from now on.
void keepUnsaved(UnsavedWork *unsaved, const UnsavedOffer::Screens &screens)
{
    const ProgramScreen *program = screens.program;
    // A save is one once the guard has read it back.
    unsaved->watchProgram(
        program->editor()->document(), [program] { return UnsavedOffer::headOf(program); },
        [program] { return !program->guard()->isBusy(); });
    const TeachScreen *teach = screens.teach;
    unsaved->watchRows(UnsavedOffer::teach(), screens.teach, [teach] {
        KeptHead head;
        head.path = teach->filePath();
        return head;
    });
    unsaved->watchRows(UnsavedOffer::variables(), screens.variables, [] { return KeptHead(); });
}

int runPanel(const Options &options)
{
    if (!options.programDir.isEmpty()) {
        if (!QDir().mkpath(options.programDir)) {
            std::fprintf(stderr, "The program directory %s cannot be made.\n",
                         qPrintable(options.programDir));
            return 2;
        }
        qputenv("HOME", QFile::encodeName(options.home()));
    }
    Samples::install(Samples::programDir());
    const QString plcDir =
        options.plcDir.isEmpty() ? QDir::home().filePath(QLatin1String("plc")) : options.plcDir;
    // A folder that cannot be made is a PLC that is away, and the panel says so.
    QDir().mkpath(plcDir);

    const QTemporaryDir emptyFolder;
    if (emptyFolder.isValid())
        limitShell(emptyFolder.path());
    Stick stick(options.stickDir);
    if (stick.isSimulated() && QDir().mkpath(stick.folder()))
        Samples::fillStick(stick.folder());

    const QString ownDir = QDir::home().filePath(QLatin1String("hmi"));
    // The pictures of a tour are the same wherever they are made.
    const bool isTour = !options.tourDir.isEmpty();
    Settings settings(isTour ? QString() : ownDir + QLatin1String("/panel.ini"));
    Look::Style style = Look::Light;
    Look::read(options.look.isEmpty() ? settings.choice(Look::settingsKey(), Look::names())
                                      : options.look,
               &style);
    setUpLook(style);
    Languages languages(translationFolders(), &settings);
    const QString wanted = !options.language.isEmpty() ? options.language
                           : isTour                    ? languages.current()
                                                       : languages.preferred();
    if (!languages.use(wanted))
        std::fprintf(stderr, "The translation for %s is not installed.\n", qPrintable(wanted));
    const QSize surface = surfaceSize(options);
    std::unique_ptr<PanelGlass> glass;
    // The tour's pictures are those of a display, with all that stands on it.
    if (options.turn != 0 || isTour)
        glass.reset(new PanelGlass(surface, options.turn));
    PanelWindow panel(surface);
    new PanelSurface(&panel, options.touch);
    new FieldKeypad(&panel);
    new DialogKeeper(&panel);
    const QuestionKeeper questionKeeper;
    MachineData machine;
    ProgramHistory history(Samples::programDir(), ownDir + QLatin1String("/history"));
    HistoryGuard historyGuard(&history);
    ProgramScreen *programs = new ProgramScreen(options.rotation, plcDir, ownDir, &machine);
    programs->setHistory(&history);
    // A save shows in the title or in its mark.
    QObject::connect(programs, &PanelScreen::titleChanged, &history, &ProgramHistory::scan);
    panel.addScreen(
        programs, [] { return PanelWindow::tr("Program"); }, Glyphs::icon(Glyphs::Program));
    TeachScreen *teach = new TeachScreen(panel.size(), ownDir, &machine);
    panel.addScreen(
        teach, [] { return PanelWindow::tr("Teach"); }, Glyphs::icon(Glyphs::Teach));
    VariablesScreen *variables = new VariablesScreen(panel.size(), ownDir);
    panel.addScreen(
        variables, [] { return PanelWindow::tr("Variables"); }, Glyphs::icon(Glyphs::Variables));
    ConnectionsScreen *connections =
        new ConnectionsScreen(ownDir + QLatin1String("/connections.ini"));
    panel.addScreen(
        connections, [] { return PanelWindow::tr("Connections"); },
        Glyphs::icon(Glyphs::Connections));
    FilesScreen *files = new FilesScreen(&stick, &history);
    QObject::connect(&historyGuard, &HistoryGuard::told, files, [files](const QString &text) {
        Q_EMIT files->told(text, Message::Information);
    });
    panel.addScreen(
        files, [] { return PanelWindow::tr("Files"); }, Glyphs::icon(Glyphs::Files));
    QObject::connect(files, &FilesScreen::importWanted, programs->programWindow(), [programs] {
        QMetaObject::invokeMethod(programs->programWindow(), "importExport");
    });
    panel.setLanguages(&languages);
    panel.setSettings(&settings);
    const QString programDir = Samples::programDir();
    DeviceWatch watch([plcDir, programDir] { return DeviceWatch::lookAt(plcDir, programDir); });
    QObject::connect(&watch, &DeviceWatch::changed, &panel, &PanelWindow::showDevices);
    QObject::connect(&watch, &DeviceWatch::changed, files, &FilesScreen::showDevices);
    QObject::connect(files, &FilesScreen::stickMoved, &watch, &DeviceWatch::lookNow);
    panel.status()->follow(programs->transfer());
    const QString unsavedDir = ownDir + QLatin1String("/unsaved");
    const UnsavedOffer::Screens screens = {programs, teach, variables};
    UnsavedWork unsaved(unsavedDir);
    UnsavedOffer unsavedOffer(unsavedDir, screens, &unsaved);
    QObject::connect(&unsaved, &UnsavedWork::told, programs, &PanelScreen::told);
    QObject::connect(&unsaved, &UnsavedWork::causeEnded, programs, &PanelScreen::causeEnded);
    QObject::connect(&unsavedOffer, &UnsavedOffer::told, programs, &PanelScreen::told);
    // The operator was asked about each of them.
    QObject::connect(&panel, &PanelWindow::closed, &unsaved,
                     [&unsaved] { unsaved.giveUp(kFlushMs); });
    // Not by the last window: the find dialog may be open, and it has no parent.
    QObject::connect(&panel, &PanelWindow::closed, qApp, &QApplication::quit);
    TerminationSignals signals;
    OrderlyEnd orderlyEnd;
    QObject::connect(&signals, &TerminationSignals::received, &orderlyEnd, &OrderlyEnd::end);
    orderlyEnd.beforeEnd([&unsaved] { unsaved.flush(kFlushMs); });
    // A panel is on for months: what dialogs and long programs left as gaps in the heap goes back
    // to the system, in a millisecond at most.
    QTimer tidying;
    QObject::connect(&tidying, &QTimer::timeout, qApp, [] { malloc_trim(0); });
    tidying.start(kTidyMs);
    if (glass)
        glass->present(&panel);
    else
        panel.show();

    if (!isTour) {
        keepUnsaved(&unsaved, screens);
        unsavedOffer.start();
        return QApplication::exec();
    }
    Tour tour(&panel, options.tourDir, glass.get());
    tour.visitProgramScreen(programs);
    tour.visitTeachScreen(teach);
    tour.visitVariablesScreen(variables);
    tour.visitConnectionsScreen(connections);
    tour.visitFilesScreen(files);
    tour.visitLanguages();
    QObject::connect(&tour, &Tour::finished, qApp, &QApplication::quit);
    tour.start();
    QApplication::exec();
    if (tour.error().isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(tour.error()));
    return 1;
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

    QApplication application(argc, argv);
    const Options options = Options::parse(application.arguments());
    return options.outcome == Options::Run ? runPanel(options) : answer(options);
}
