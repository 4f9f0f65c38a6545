// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TOUR_H
#define TOUR_H

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class PanelGlass;
class PanelWindow;
class ConnectionsScreen;
class FilesScreen;
class ListScreen;
class ProgramScreen;
class TeachScreen;
class VariablesScreen;

/// Walks the panel's screens and dialogs without an operator and leaves a numbered PNG of each.
///
/// One step a tick of a timer, so the steps go on while a modal dialog waits: a step that opens
/// one only posts the touch that does.
class Tour : public QObject
{
    Q_OBJECT

public:
    /// Pictures are what \a glass shows, and go to \a folder, which is made if it is missing.
    /// Without the two none are made.
    Tour(PanelWindow *panel, const QString &folder = QString(), const PanelGlass *glass = nullptr,
         QObject *parent = nullptr);

    /// The stops at each screen, in the order of the calls.
    void visitProgramScreen(ProgramScreen *screen);
    void visitTeachScreen(TeachScreen *screen);
    void visitVariablesScreen(VariablesScreen *screen);
    void visitConnectionsScreen(ConnectionsScreen *screen);
    /// Plugs the stick in if it is a simulated one that can be.
    void visitFilesScreen(FilesScreen *screen);
    void visitLanguages();

    /// \a tickMs is the time that each step has.
    void start(int tickMs = 60);
    /// What went wrong; empty when every step found what it touches and every picture was written.
    QString error() const { return m_error; }

Q_SIGNALS:
    /// What there is to see at the stop \a name is on the screen.
    void arrived(const QString &name);
    void finished();

private:
    typedef std::function<void()> Step;

    void visitMessages();
    void then(const Step &step);
    void waitUntil(const std::function<bool()> &condition);
    void picture(const QString &name);
    void press(const std::function<QWidget *()> &target);
    void pressTool(QWidget *among, const QString &text);
    void openMenu();
    void showScreen(int index);
    void pressKey(QWidget *among, const QString &text, int nth = 0);
    void pressCell(ListScreen *screen, int row, const char *className, int nth);
    void turnBar(QWidget *window);
    void closeDialog();
    void fail(const QString &error);
    void next();
    void saveDownload(int percent);
    void save(const QString &name);

    PanelWindow *m_panel;
    const PanelGlass *m_glass;
    const QString m_folder;
    QList<Step> m_steps;
    Step m_lastStep;
    QTimer m_timer;
    int m_step = 0;
    int m_pictures = 0;
    QString m_error;
};

#endif // TOUR_H
