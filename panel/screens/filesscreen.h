// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILESSCREEN_H
#define FILESSCREEN_H

#include "shell/panelscreen.h"
#include "shell/questiondialog.h"
#include "stick/devicewatch.h"
#include "stick/folderwatch.h"
#include "storage/filejob.h"

#include <functional>

class ElidedLabel;
class ImportGuard;
class ProgramHistory;
class QGridLayout;
class Stick;

/// Where files are: the stick, the program directory with its history, and a path picked with the
/// library's browser.
class FilesScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// How the screen looks at the two folders, in threads.
    struct Looks
    {
        FolderWatch::Probe stick;
        FolderWatch::Probe programs;
    };

    /// \a stick and \a history must outlive the screen.
    FilesScreen(Stick *stick, ProgramHistory *history, QWidget *parent = nullptr);
    FilesScreen(Stick *stick, ProgramHistory *history, const Looks &looks,
                QWidget *parent = nullptr);

    /// At the stick and the program directory themselves.
    static Looks usualLooks();

    QString title() const override;
    /// The folders are looked at while the screen is up, and no longer; beside the event loop, as
    /// everything that asks for files here.
    void refreshStatus() override;

    ImportGuard *guard() const { return m_guard; }
    /// The path that was picked last; empty when none was.
    QString pickedPath() const { return m_pickedPath; }

    /// Milliseconds after which a folder that has not answered is shown as one that does not.
    void setPatience(int ms);

    /// Whether there is a key Plug: a folder stands in for the stick.
    bool mayPlug() const;
    /// What the keys Plug and Pull do.
    void plug();
    void pull();
    /// What the key History does.
    void showHistory();

public Q_SLOTS:
    void stopWork(const QString &work = QString()) override;
    /// Takes note of a stick that has come or gone: when one comes, its names are checked.
    void showDevices(const DeviceState &state);

Q_SIGNALS:
    /// The operator wants the import manager.
    void importWanted();
    /// The keys have plugged or pulled the stick.
    void stickMoved();

protected:
    void retranslate() override;
    void showEvent(QShowEvent *event) override;

private:
    ElidedLabel *addLine(const std::function<QString()> &heading, const QList<PanelKey *> &keys);
    void rename();
    void pick();
    void lookAtFolders();
    void noteStick(bool isIn);
    void tellRefusal(const QString &reason);
    void tellStall();
    void showState();
    void showStick();
    void showNames();
    void showPrograms();

    Stick *m_stick;
    ProgramHistory *m_history;
    DialogQuestioner m_questioner;
    ImportGuard *m_guard;
    FolderWatch *m_stickWatch;
    FolderWatch *m_programWatch;
    FileJob m_stickJob;
    QGridLayout *m_grid;
    ElidedLabel *m_stickState;
    ElidedLabel *m_nameState;
    ElidedLabel *m_storageState;
    ElidedLabel *m_pathState;
    PanelKey *m_plugKey;
    PanelKey *m_pullKey;
    PanelKey *m_renameKey;
    PanelKey *m_historyKey;
    QString m_pickedPath;
    bool m_wasPresent = false;
};

#endif // FILESSCREEN_H
