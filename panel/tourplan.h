// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TOURPLAN_H
#define TOURPLAN_H

#include <QObject>
#include <QString>

class ConnectionsScreen;
class FilesScreen;
class ListScreen;
class PanelScreen;
class PanelWindow;
class PreviewScreen;
class ProgramScreen;
class SettingsScreen;
class TeachScreen;
class Tour;
class VariablesScreen;
class WMMainWindow;

/// Where a tour of the panel stops: each screen, and the dialogs that its keys open.
///
///     Tour tour(&panel, folder, &glass);
///     TourPlan *plan = new TourPlan(&panel, &tour);
///     plan->visitFilesScreen(files);
///     tour.start();
class TourPlan : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a tour.
    TourPlan(PanelWindow *panel, Tour *tour);

    /// The stops at each screen, in the order of the calls.
    void visitProgramScreen(ProgramScreen *screen);
    /// Of the program that is open by then, without the changes made since.
    void visitPreviewScreen(PreviewScreen *screen, ProgramScreen *programs);
    void visitTeachScreen(TeachScreen *screen);
    void visitVariablesScreen(VariablesScreen *screen);
    void visitConnectionsScreen(ConnectionsScreen *screen);
    /// Plugs the stick in if it is a simulated one that can be.
    void visitFilesScreen(FilesScreen *screen);
    /// By its key, and each of its sections.
    void visitSettingsScreen(SettingsScreen *screen);

private:
    void openProgram(ProgramScreen *screen);
    void checkProgram(ProgramScreen *screen);
    void changeProgram(ProgramScreen *screen);
    void turnToOtherKeys(WMMainWindow *window);
    void find();
    void download(ProgramScreen *screen);
    void saveDownload(int percent);
    void showMessages();
    void pressTool(QWidget *among, const QString &text);
    void openMenu();
    void showScreen(const PanelScreen *screen);
    void showCoil(PreviewScreen *screen, const QString &key, const QString &name);
    void pressKey(QWidget *among, const QString &text, int nth = 0);
    void pressCell(ListScreen *screen, int row, const char *className, int nth);
    void turnBar(QWidget *window);
    void turnKeypad(const QString &name);

    PanelWindow *m_panel;
    Tour *m_tour;
};

#endif // TOURPLAN_H
