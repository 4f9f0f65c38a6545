// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELPROGRAM_H
#define PANELPROGRAM_H

#include "options.h"
#include "screens/machinedata.h"
#include "shell/languages.h"
#include "shell/orderlyend.h"
#include "shell/questiondialog.h"
#include "shell/questionkeeper.h"
#include "shell/settings.h"
#include "shell/touchsound.h"
#include "startup.h"
#include "stick/stick.h"
#include "terminationsignals.h"

#include <QObject>
#include <QTimer>

#include <memory>

class CoilPreview;
class ConnectionsScreen;
class DeviceWatch;
class FilesScreen;
class ListScreen;
class PanelGlass;
class PanelScreen;
class PanelWindow;
class PreviewScreen;
class ProgramHistory;
class ProgramReview;
class ProgramScreen;
class SettingsScreen;
class SpokenNames;
class TeachScreen;
class Tour;
class UnsavedOffer;
class UnsavedWork;
class VariablesScreen;

/// The panel program: its window and screens, what they share, and how they start and end.
///
///     PanelProgram program(options, PanelProgram::translationFolders());
///     return program.run();
///
/// Whoever works a panel by hand, as a test does, calls start() in the place of run().
class PanelProgram : public QObject
{
    Q_OBJECT

public:
    /// What start() and run() give.
    enum Status { Started = 0, TourFailed = 1, NoProgramDir = 2, HomeOccupied = 3 };

    /// Needs the application object. \a translationFolders are looked through in order. With a
    /// program directory of its own among \a options the process has another home from now on.
    PanelProgram(const Options &options, const QStringList &translationFolders);
    ~PanelProgram() override;

    /// Where the build has the translations, and where they are installed.
    static QStringList translationFolders();
    /// Gives the application the style and the letters of a panel.
    static void setUpStyle();

    /// Shows the panel. Anything but Started is why it did not; the operator knows by then.
    Status start();
    /// The same, and runs until the operator or the system ends it. Returns the exit status.
    int run();
    /// Plans the stops of \a tour at all screens.
    void plan(Tour *tour) const;

    /// The panel's parts exist once it has started.
    PanelWindow *window() const { return m_window.get(); }
    /// Of a tour, or of a picture that is turned; else nullptr.
    const PanelGlass *glass() const { return m_glass.get(); }
    ProgramScreen *programScreen() const { return m_programs; }
    PreviewScreen *previewScreen() const { return m_previewScreen; }
    CoilPreview *coilPreview() const { return m_preview.get(); }
    ProgramReview *programReview() const { return m_review.get(); }
    TeachScreen *teachScreen() const { return m_teach; }
    VariablesScreen *variablesScreen() const { return m_variables; }
    ConnectionsScreen *connectionsScreen() const { return m_connections; }
    FilesScreen *filesScreen() const { return m_files; }
    SettingsScreen *settingsScreen() const { return m_settingsScreen; }
    DeviceWatch *deviceWatch() const { return m_watch.get(); }
    Languages *languages() { return &m_languages; }

private:
    static StartUp::Folders settleFolders(const Options &options);
    QString ownPath(const char *name) const;
    bool isTour() const { return !m_options.tourDir.isEmpty(); }
    void takeMeasures();
    void chooseLook();
    void chooseLanguage();
    void chooseSounds();
    void makeWindow();
    void makeScreens();
    void makePreview();
    void makeReview();
    void addScreens();
    void connectWindow();
    void connectScreens();
    void connectPreview();
    void connectReading();
    void connectReview();
    void connectStartUp();
    void watchDevices();
    void offerUnsavedWork();
    void keepUnsavedRows(const char *subject, ListScreen *screen);
    void keepUnsavedWork();
    void tidyNowAndThen();
    void show();
    int walk();
    Status refuse(int outcome);
    void tellOccupied();

    const Options m_options;
    const StartUp::Folders m_folders;
    TerminationSignals m_signals;
    OrderlyEnd m_orderlyEnd;
    QuestionKeeper m_questionKeeper;
    StartUp m_startUp;
    Settings m_settings;
    Languages m_languages;
    TouchSound m_sounds;
    Stick m_stick;
    MachineData m_machine;
    std::unique_ptr<PanelGlass> m_glass;
    std::unique_ptr<SpokenNames> m_names;
    // The panes of the window look at it to their end.
    std::unique_ptr<CoilPreview> m_preview;
    std::unique_ptr<ProgramReview> m_review;
    std::unique_ptr<PanelWindow> m_window;
    std::unique_ptr<ProgramHistory> m_history;
    std::unique_ptr<DeviceWatch> m_watch;
    // The window's own.
    ProgramScreen *m_programs = nullptr;
    PreviewScreen *m_previewScreen = nullptr;
    TeachScreen *m_teach = nullptr;
    VariablesScreen *m_variables = nullptr;
    ConnectionsScreen *m_connections = nullptr;
    FilesScreen *m_files = nullptr;
    SettingsScreen *m_settingsScreen = nullptr;
    DialogQuestioner m_questioner;
    // These two look at the screens.
    std::unique_ptr<UnsavedWork> m_unsaved;
    std::unique_ptr<UnsavedOffer> m_offer;
    QTimer m_tidying;
};

#endif // PANELPROGRAM_H
