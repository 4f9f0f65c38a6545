// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "panelprogram.h"

#include "display/panelglass.h"
#include "display/platform.h"
#include "display/primarysurface.h"
#include "guards/finddialogkeypad.h"
#include "guards/programguard.h"
#include "guards/programpickers.h"
#include "look/fingerscroll.h"
#include "look/glyphs.h"
#include "look/keyboardway.h"
#include "look/look.h"
#include "look/measures.h"
#include "look/panelstyle.h"
#include "look/spokennames.h"
#include "programs/programdirectory.h"
#include "programs/programhistory.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedwork.h"
#include "screens/coilpreview.h"
#include "screens/connectionsscreen.h"
#include "screens/filesscreen.h"
#include "screens/previewpane.h"
#include "screens/previewscreen.h"
#include "screens/programreview.h"
#include "screens/programscreen.h"
#include "screens/settingsscreen.h"
#include "screens/stickcover.h"
#include "screens/teachscreen.h"
#include "screens/variablesscreen.h"
#include "shell/dialogfitter.h"
#include "shell/messagelog.h"
#include "shell/panelwindow.h"
#include "shell/statusstrip.h"
#include "stick/devicewatch.h"
#include "tour.h"
#include "tourplan.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QScreen>

#include <cstdio>

#include <malloc.h>

namespace {

const int tidyMs = 60 * 1000;
const int flushMs = 1000;
const int startPatienceMs = 300;
const int fontPixels = 15;
const int readingPatienceMs = 2000;
// Long enough to be read, and nobody has to answer it.
const int occupiedMs = 6 * 1000;

QSize surfaceSize(const Options &options)
{
    if (Platform::isDesktop())
        return options.surfaceSize();
    return options.surfaceOn(QGuiApplication::primaryScreen()->size());
}

} // namespace

PanelProgram::PanelProgram(const Options &options, const QStringList &translationFolders)
    : m_options(options)
    , m_folders(settleFolders(options))
    , m_startUp(m_folders)
    // The pictures of a tour are the same wherever they are made.
    , m_settings(isTour() ? QString() : ownPath("panel.ini"))
    , m_languages(translationFolders, &m_settings)
    , m_stick(options.stickDir)
{
    connect(&m_signals, &TerminationSignals::received, &m_orderlyEnd, &OrderlyEnd::end);
}

PanelProgram::~PanelProgram() = default;

// From the program's own folder, so that an installed tree can be moved.
QStringList PanelProgram::translationFolders()
{
    const QDir own(QCoreApplication::applicationDirPath());
    return {own.filePath(QLatin1String(FILARIX_BUILT_TRANSLATIONS)),
            own.filePath(QLatin1String(FILARIX_INSTALLED_TRANSLATIONS))};
}

void PanelProgram::setUpStyle()
{
    QApplication::setStyle(new PanelStyle);
    QFont font = QApplication::font();
    font.setPixelSize(fontPixels);
    QApplication::setFont(font);
}

StartUp::Folders PanelProgram::settleFolders(const Options &options)
{
    // The library has no other way to be told the directory.
    if (!options.programDir.isEmpty())
        qputenv("HOME", QFile::encodeName(options.home()));
    StartUp::Folders folders;
    folders.programs = ProgramDirectory::path();
    folders.areProgramsAskedFor = !options.programDir.isEmpty();
    folders.own = QDir::home().filePath(QLatin1String("hmi"));
    if (options.plcDir.isEmpty())
        folders.plc = options.plcFolder();
    folders.stick = options.stickDir;
    return folders;
}

QString PanelProgram::ownPath(const char *name) const
{
    return QDir(m_folders.own).filePath(QLatin1String(name));
}

PanelProgram::Status PanelProgram::start()
{
    setUpStyle();
    takeMeasures();
    chooseLook();
    chooseLanguage();
    chooseSounds();
    const StartUp::Outcome outcome = m_startUp.wait(startPatienceMs);
    if (outcome == StartUp::Occupied || outcome == StartUp::NoProgramDir)
        return refuse(outcome);
    makeWindow();
    makeScreens();
    addScreens();
    connectWindow();
    connectScreens();
    connectStartUp();
    watchDevices();
    // A tour makes the pictures of a panel on which nothing was left.
    if (!isTour())
        offerUnsavedWork();
    tidyNowAndThen();
    show();
    if (m_offer)
        m_offer->start();
    return Started;
}

int PanelProgram::run()
{
    const Status status = start();
    if (status != Started)
        return status;
    return isTour() ? walk() : QApplication::exec();
}

void PanelProgram::chooseLook()
{
    const QString wanted = m_options.look.isEmpty()
                               ? m_settings.choice(Look::settingsKey(), Look::names())
                               : m_options.look;
    Look::Style style = Look::Light;
    Look::read(wanted, &style);
    Look::use(style);
    const QString textSize =
        m_options.textSize.isEmpty()
            ? m_settings.choice(Measures::textSizeKey(), Measures::textSizeNames())
            : m_options.textSize;
    Measures::useTextSize(textSize.isEmpty() ? Measures::textSizes().first() : textSize.toInt());
}

void PanelProgram::takeMeasures()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    qreal dotsPerInch = m_options.dotsPerInch;
    if (dotsPerInch <= 0)
        dotsPerInch = isTour() ? Measures::usualDotsPerInch
                               : Measures::dotsPerInchOf(screen->size(), screen->physicalSize());
    Measures::use(dotsPerInch, surfaceSize(m_options));
}

void PanelProgram::chooseLanguage()
{
    QString wanted = m_options.language;
    if (wanted.isEmpty())
        wanted = isTour() ? m_languages.current() : m_languages.preferred();
    if (!m_languages.use(wanted))
        std::fprintf(stderr, "The translation for %s is not installed.\n", qPrintable(wanted));
}

void PanelProgram::chooseSounds()
{
    const QString wanted = m_settings.choice(TouchSound::settingsKey(), TouchSound::names());
    m_sounds.setOn(wanted == TouchSound::nameOf(true));
}

void PanelProgram::makeWindow()
{
    const QSize surface = surfaceSize(m_options);
    // The tour's pictures are those of a display, with all that stands on it.
    if (m_options.turn != 0 || isTour())
        m_glass.reset(new PanelGlass(surface, m_options.turn));
    m_window.reset(new PanelWindow(surface));
    new PrimarySurface(m_window.get(), m_options.touch);
    new FindDialogKeypad(m_window.get());
    new DialogFitter(m_window.get());
    new FingerScroll(m_window.get());
    new KeyboardWay(m_window.get());
    m_names.reset(new SpokenNames(qApp));
}

void PanelProgram::makeScreens()
{
    const QSize surface = m_window->size();
    m_history.reset(new ProgramHistory(m_folders.programs, ownPath("history")));
    m_programs =
        new ProgramScreen(m_options.rotation, m_options.plcFolder(), m_folders.own, &m_machine);
    m_programs->setHistory(m_history.get());
    makePreview();
    m_teach = new TeachScreen(surface, ownPath("taught"), &m_machine, m_folders.own);
    m_variables = new VariablesScreen(surface, m_folders.own);
    m_connections = new ConnectionsScreen(ownPath("connections.ini"));
    m_files = new FilesScreen(&m_stick, m_history.get());
    m_settingsScreen =
        new SettingsScreen(surface, m_folders.own, &m_languages, &m_settings, &m_sounds);
}

void PanelProgram::makePreview()
{
    m_preview.reset(new CoilPreview(m_programs->editor()->document()));
    m_previewScreen = new PreviewScreen(m_preview.get(), m_window->size(),
                                        [this] { return m_programs->title(); });
    if (PreviewScreen::hasRoomBeside(m_window->size()))
        m_programs->setBeside(m_previewScreen->paneBeside());
    makeReview();
    m_programs->pickers()->setProfile([this] { return m_preview->profile(); });
    if (m_options.profile.isEmpty())
        m_preview->readProfile(ownPath("machine.ini"));
    else
        m_preview->readProfile(m_options.profile, true);
}

void PanelProgram::makeReview()
{
    m_review.reset(new ProgramReview(m_preview.get(), m_programs->editor()));
    m_programs->setReview(m_review.get());
}

void PanelProgram::addScreens()
{
    const struct
    {
        PanelScreen *screen;
        const char *name;
        Glyphs::Glyph glyph;
    } screens[] = {
        {m_programs, QT_TRANSLATE_NOOP("PanelWindow", "Program"), Glyphs::Program},
        {m_previewScreen, QT_TRANSLATE_NOOP("PanelWindow", "Preview"), Glyphs::Preview},
        {m_teach, QT_TRANSLATE_NOOP("PanelWindow", "Teach"), Glyphs::Teach},
        {m_variables, QT_TRANSLATE_NOOP("PanelWindow", "Variables"), Glyphs::Variables},
        {m_connections, QT_TRANSLATE_NOOP("PanelWindow", "Connections"), Glyphs::Connections},
        {m_files, QT_TRANSLATE_NOOP("PanelWindow", "Files"), Glyphs::Files},
    };
    for (const auto &entry : screens) {
        const char *const name = entry.name;
        m_window->addScreen(
            entry.screen, [name] { return PanelWindow::tr(name); }, Glyphs::icon(entry.glyph));
    }
    m_window->addSettings(m_settingsScreen);
    m_window->setSettings(&m_settings);
}

void PanelProgram::connectWindow()
{
    connect(&m_settings, &Settings::arrived, this, &PanelProgram::chooseLook);
    connect(&m_settings, &Settings::arrived, this, &PanelProgram::chooseLanguage);
    connect(&m_settings, &Settings::arrived, this, &PanelProgram::chooseSounds);
    // Not by the last window: the find dialog may be open, and it has no parent.
    connect(m_window.get(), &PanelWindow::closed, qApp, &QApplication::quit);
}

void PanelProgram::connectScreens()
{
    WMMainWindow *const programWindow = m_programs->programWindow();
    // A save shows in the title or in its mark.
    connect(m_programs, &PanelScreen::titleChanged, m_history.get(), &ProgramHistory::scan);
    connect(m_files, &FilesScreen::importWanted, programWindow,
            [programWindow] { QMetaObject::invokeMethod(programWindow, "importExport"); });
    m_files->setProfile([this] { return m_preview->profile(); });
    m_files->setInspector([this](const QString &path) { return m_review->inspect(path); });
    connect(m_files, &FilesScreen::openWanted, this, [this](const QString &path) {
        m_window->showScreen(m_programs);
        m_programs->open(path);
    });
    m_window->status()->follow(m_programs->transfer());
    connectPreview();
    connectReading();
    connectReview();
}

void PanelProgram::connectReview()
{
    StatusStrip *const status = m_window->status();
    const auto show = [this, status] {
        const bool isChecked = m_review->state() == ProgramReview::Checked;
        status->showCheck(isChecked ? StatusStrip::Checked : StatusStrip::CheckUnknown,
                          m_review->errors(), m_review->warnings());
    };
    connect(m_review.get(), &ProgramReview::changed, status, show);
    show();
    connect(status, &StatusStrip::checkTouched, this, [this] {
        m_window->showScreen(m_programs);
        m_programs->showFindings();
    });
}

// A touch on the coil leads to its line, and the line at the cursor is marked in the coil.
void PanelProgram::connectPreview()
{
    WGCodeEditer *const editor = m_programs->editor();
    connect(m_programs, &PanelScreen::titleChanged, m_previewScreen, &PanelScreen::titleChanged);
    connect(m_previewScreen, &PreviewScreen::lineWanted, this, [this, editor](int line) {
        m_window->showScreen(m_programs);
        m_programs->goTo(line, 1);
    });
    const auto follow = [this, editor] {
        m_previewScreen->setLine(editor->textCursor().blockNumber() + 1);
    };
    connect(editor, &QPlainTextEdit::cursorPositionChanged, m_previewScreen, follow);
    follow();
}

// Each change begins a reading, so a bar that came at once would come and go with the keys.
void PanelProgram::connectReading()
{
    CoilPreview *const preview = m_preview.get();
    connect(preview, &CoilPreview::progressed, this, [this, preview](int percent) {
        if (preview->readingFor() < readingPatienceMs)
            return;
        m_window->works()->report(
            preview, QString(),
            tr("%1 is read and checked: %2 %").arg(m_programs->title()).arg(percent), percent,
            [preview] { preview->stop(); });
    });
    const auto end = [this, preview] { m_window->works()->end(preview, QString()); };
    connect(preview, &CoilPreview::settled, this, end);
    connect(preview, &CoilPreview::halted, this, end);
}

void PanelProgram::connectStartUp()
{
    m_window->messages()->listenTo(&m_startUp);
    connect(&m_startUp, &StartUp::refused, this,
            [this](int outcome) { QApplication::exit(refuse(outcome)); });
}

void PanelProgram::watchDevices()
{
    const QString plcDir = m_options.plcFolder();
    const QString programDir = m_folders.programs;
    m_watch.reset(
        new DeviceWatch([plcDir, programDir] { return DeviceWatch::lookAt(plcDir, programDir); }));
    connect(m_watch.get(), &DeviceWatch::changed, m_window.get(), &PanelWindow::showDevices);
    connect(m_watch.get(), &DeviceWatch::changed, m_files, &FilesScreen::showDevices);
    connect(m_watch.get(), &DeviceWatch::changed, m_settingsScreen, &SettingsScreen::showDevices);
    connect(m_watch.get(), &DeviceWatch::changed, new StickCover(m_window.get()),
            &StickCover::showDevices);
    connect(m_files, &FilesScreen::stickMoved, m_watch.get(), &DeviceWatch::lookNow);
}

void PanelProgram::offerUnsavedWork()
{
    const QString folder = ownPath("unsaved");
    m_unsaved.reset(new UnsavedWork(folder));
    m_offer.reset(new UnsavedOffer(folder, m_unsaved.get(), &m_questioner));
    m_window->messages()->listenTo(m_unsaved.get());
    m_window->messages()->listenTo(m_offer.get());
    m_programs->guard()->keepUnsaved(m_unsaved.get(), m_offer.get());
    keepUnsavedRows("teach", m_teach);
    keepUnsavedRows("variables", m_variables);
    keepUnsavedWork();
}

void PanelProgram::keepUnsavedRows(const char *subject, ListScreen *screen)
{
    m_unsaved->watchRows(QLatin1String(subject), screen);
    m_offer->addRows(QLatin1String(subject), screen);
}

// From a signal on, what is not saved is kept; an operator who closes the panel was asked about it.
void PanelProgram::keepUnsavedWork()
{
    connect(m_window.get(), &PanelWindow::closed, m_unsaved.get(),
            [this] { m_unsaved->giveUp(flushMs); });
    m_orderlyEnd.beforeEnd([this] { m_unsaved->flush(flushMs); });
}

// A panel is on for months. Dialogs and long programs leave gaps in the heap, which go back to the
// system here, in a millisecond at most.
void PanelProgram::tidyNowAndThen()
{
    connect(&m_tidying, &QTimer::timeout, this, [] { malloc_trim(0); });
    m_tidying.start(tidyMs);
}

void PanelProgram::show()
{
    // Else the toolkit gives it to the first key.
    m_programs->editor()->setFocus();
    if (m_glass)
        m_glass->present(m_window.get());
    else
        m_window->show();
}

void PanelProgram::plan(Tour *tour) const
{
    TourPlan *plan = new TourPlan(m_window.get(), tour);
    plan->visitProgramScreen(m_programs);
    plan->visitPreviewScreen(m_previewScreen, m_programs);
    plan->visitTeachScreen(m_teach);
    plan->visitVariablesScreen(m_variables);
    plan->visitConnectionsScreen(m_connections);
    plan->visitFilesScreen(m_files);
    plan->visitSettingsScreen(m_settingsScreen);
}

int PanelProgram::walk()
{
    Tour tour(m_window.get(), m_options.tourDir, m_glass.get());
    plan(&tour);
    connect(&tour, &Tour::finished, qApp, &QApplication::quit);
    tour.start();
    QApplication::exec();
    if (tour.error().isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(tour.error()));
    return TourFailed;
}

PanelProgram::Status PanelProgram::refuse(int outcome)
{
    if (outcome == StartUp::NoProgramDir) {
        std::fprintf(stderr, "The program directory %s cannot be made.\n",
                     qPrintable(m_folders.programs));
        return NoProgramDir;
    }
    std::fprintf(stderr, "Another panel works on %s. This one does not start.\n",
                 qPrintable(m_folders.programs));
    tellOccupied();
    return HomeOccupied;
}

// A touch ends it, and so does time: whatever started the program waits for its end.
void PanelProgram::tellOccupied()
{
    QMessageBox box(QMessageBox::Warning, tr("Panel"),
                    tr("Another panel works on the same programs. This one does not start."),
                    QMessageBox::Ok, m_window.get());
    QTimer::singleShot(occupiedMs, &box, &QMessageBox::accept);
    box.exec();
}
