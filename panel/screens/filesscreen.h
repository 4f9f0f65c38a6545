// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILESSCREEN_H
#define FILESSCREEN_H

#include "programs/programinspection.h"
#include "screens/programfolder.h"
#include "shell/panelscreen.h"
#include "shell/questiondialog.h"
#include "stick/devicewatch.h"
#include "stick/folderwatch.h"
#include "storage/filejob.h"
#include "storage/filetaskrunner.h"
#include "winding/machineprofile.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

class ElidedLabel;
class ImportGuard;
class PickerFacts;
class ProgramHistory;
class ProgramList;
class ProgramPicture;
class QGridLayout;
class QLabel;
class Stick;
class TapArea;

/// The programs of the panel, what is known of the chosen one, and what can be done with it.
/// Besides the stick that programs come from and go to.
///
/// What is known is facts and a picture of the coil; a small panel has room for the facts alone. A
/// program on the stick is looked at in the same way, by the library's path browser.
class FilesScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// How the screen looks at the folders, in threads.
    struct Looks
    {
        FolderWatch::Probe stick;
        FolderWatch::Probe programs;
        ProgramFolder::Probe list;
    };

    typedef std::function<std::shared_ptr<ProgramInspection>(const QString &path)> Inspector;

    /// \a stick and \a history must outlive the screen.
    FilesScreen(Stick *stick, ProgramHistory *history, QWidget *parent = nullptr);
    FilesScreen(Stick *stick, ProgramHistory *history, const Looks &looks,
                QWidget *parent = nullptr);
    ~FilesScreen() override;

    /// At the stick and the program directory themselves.
    static Looks usualLooks();

    /// By whose rules turns are counted; asked for each program. The samples' machine before.
    void setProfile(const std::function<MachineProfile()> &profile) { m_profile = profile; }
    /// What the key Check asks; without it the key is off.
    void setInspector(const Inspector &inspector);

    QString title() const override;
    bool isWorking() const override;
    /// The folders are looked at while the screen is up, and no longer; beside the event loop, as
    /// everything that asks for files here.
    void refreshStatus() override;

    ImportGuard *guard() const { return m_guard; }
    ProgramList *list() const { return m_list; }
    PickerFacts *facts() const { return m_facts; }
    /// Hidden where there is no room for it.
    ProgramPicture *picture() const { return m_picture; }
    /// Whether all that is to be seen of the chosen program is there.
    bool isUpToDate() const;
    /// Of the program that is looked at, on the panel or on the stick; empty for none.
    QString chosenPath() const;
    /// Looks at the program or the folder that was picked with the library's browser.
    void lookAt(const QString &path);

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
    /// The operator wants to have the program at \a path in the editor.
    void openWanted(const QString &path);
    /// The keys have plugged or pulled the stick.
    void stickMoved();

protected:
    void retranslate() override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    enum Shape { Wide, Upright, Small, Slim };

    static Shape shapeOf(const QSize &size);
    PanelKey *addKey(const QIcon &icon, const std::function<QString()> &text);
    void makeState();
    void connectParts();
    void layOut(Shape shape);
    void layOutKeys(int columns);
    void open();
    void check();
    void endCheck();
    void tellCheck(const QString &text, Message::Tone tone);
    void rename();
    void browse();
    void lookAtFolders();
    void takeFolder();
    void lookAtChosen();
    void tellFacts();
    void showReading(int percent);
    void showRead();
    void noteStick(bool isIn);
    void tellRefusal(const QString &reason);
    void tellStall();
    void showState();
    void showName();
    void enableKeys();
    QString stateInFull() const;
    QString stickInFull() const;
    QString stickState() const;
    QString programState() const;
    int unsafeNames() const;

    Stick *m_stick;
    ProgramHistory *m_history;
    DialogQuestioner m_questioner;
    ImportGuard *m_guard;
    FolderWatch *m_stickWatch;
    FolderWatch *m_programWatch;
    ProgramFolder *m_folder;
    FileJob m_stickJob;
    FileTaskRunner m_checker;
    std::shared_ptr<ProgramInspection> m_inspection;
    QString m_inspected;
    Inspector m_inspector;
    std::function<MachineProfile()> m_profile;
    QElapsedTimer m_checkedFor;
    QElapsedTimer m_readFor;
    /// In the place of the list's program: one on the stick, or elsewhere.
    QString m_foreign;

    Shape m_shape = Wide;
    QGridLayout *m_grid;
    QGridLayout *m_keyGrid;
    QWidget *m_keyPanel;
    ProgramList *m_list;
    QLabel *m_name;
    PickerFacts *m_facts;
    ProgramPicture *m_picture;
    TapArea *m_stateArea;
    ElidedLabel *m_state;
    QList<PanelKey *> m_keys;
    PanelKey *m_openKey;
    PanelKey *m_checkKey;
    PanelKey *m_historyKey;
    PanelKey *m_importKey;
    PanelKey *m_renameKey;
    PanelKey *m_browseKey;
    PanelKey *m_plugKey;
    PanelKey *m_pullKey;
    bool m_wasPresent = false;
};

#endif // FILESSCREEN_H
