// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PANELPROGRAM_H
#define PANELPROGRAM_H

#include "options.h"
#include "screens/machinedata.h"
#include "shell/languages.h"
#include "shell/orderlyend.h"
#include "shell/questionkeeper.h"
#include "shell/settings.h"
#include "startup.h"
#include "stick/stick.h"
#include "terminationsignals.h"

#include <QObject>
#include <QTimer>

#include <memory>

class ConnectionsScreen;
class DeviceWatch;
class FilesScreen;
class PanelGlass;
class PanelScreen;
class PanelWindow;
class ProgramHistory;
class ProgramScreen;
class TeachScreen;
class UnsavedOffer;
class UnsavedWork;
class VariablesScreen;

/// The panel program: its window and screens, what they share, and how they start and end.
class PanelProgram : public QObject
{
    Q_OBJECT

public:
    /// What run() gives where the panel did not start.
    enum Status { TourFailed = 1, NoProgramDir = 2, HomeOccupied = 3 };

    /// Needs the application object. \a translationFolders are looked through in order.
    PanelProgram(const Options &options, const QStringList &translationFolders);
    ~PanelProgram() override;

    /// Runs until the operator or the system ends it. Returns the exit status.
    int run();

private:
    static StartUp::Folders foldersOf(const Options &options);
    bool isTour() const { return !m_options.tourDir.isEmpty(); }
    void makeWindow();
    void makeScreens();
    void connectScreens();
    void watchDevices();
    void watchUnsavedWork();
    void show();
    void chooseLook();
    void chooseLanguage();
    int walk();
    int refuse(int outcome);
    void tellOccupied();

    const Options m_options;
    const StartUp::Folders m_folders;
    TerminationSignals m_signals;
    OrderlyEnd m_orderlyEnd;
    QuestionKeeper m_questionKeeper;
    StartUp m_startUp;
    Settings m_settings;
    Languages m_languages;
    Stick m_stick;
    MachineData m_machine;
    std::unique_ptr<PanelGlass> m_glass;
    std::unique_ptr<PanelWindow> m_panel;
    std::unique_ptr<ProgramHistory> m_history;
    std::unique_ptr<DeviceWatch> m_watch;
    // The window's own.
    ProgramScreen *m_programs = nullptr;
    TeachScreen *m_teach = nullptr;
    VariablesScreen *m_variables = nullptr;
    ConnectionsScreen *m_connections = nullptr;
    FilesScreen *m_files = nullptr;
    // They look at the screens.
    std::unique_ptr<UnsavedWork> m_unsaved;
    std::unique_ptr<UnsavedOffer> m_offer;
    QTimer m_tidying;
};

#endif // PANELPROGRAM_H
