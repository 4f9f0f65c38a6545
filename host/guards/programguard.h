// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMGUARD_H
#define PROGRAMGUARD_H

#include "base/filarixhostglobal.h"
#include "base/message.h"
#include "guards/windowcommands.h"
#include "guards/windowdialogs.h"
#include "programs/programkeeper.h"
#include "programs/programondisk.h"
#include "programs/programstate.h"
#include "programs/storecheck.h"
#include "storage/filetaskqueue.h"

#include <QObject>
#include <QPointer>

class CheckedDownload;
class PickerGuard;
class ProgramComparison;
class ProgramHistory;
class QMessageBox;
class QPlainTextEdit;
class Questioner;
class UnsavedOffer;
class UnsavedWork;
class WMMainWindow;

/// Shields an operator from what the library's program window loses without a word.
///
/// The guard compares the editor with the file after each opening and each save, and knows the
/// state. A command that would lose something is held until the operator has agreed. What a save
/// replaces is kept before. The guard touches no file in the caller's thread.
///
///     ProgramGuard guard(window, "/home/hmi/cnc", &questioner);
///     guard.setHistory(...);
///     connect(&guard, SIGNAL(told(QString,Message::Tone,QString)), ...);
class FILARIX_HOST_EXPORT ProgramGuard : public QObject
{
    Q_OBJECT

public:
    /// \a window was made just now, and is given to one guard at the most. \a programDir is where
    /// the library keeps its programs, ProgramDirectory::path(). \a window and \a questioner must
    /// outlive the guard.
    ProgramGuard(WMMainWindow *window, const QString &programDir, Questioner *questioner,
                 QObject *parent = nullptr);
    ~ProgramGuard() override;

    /// Before a write, what stands there is kept in \a history, which must outlive the guard.
    void setHistory(ProgramHistory *history);
    /// Likewise, in a \a history of the host's own.
    void setHistory(const ProgramKeeper::History &history) { m_keeper.setHistory(history); }
    /// See StoreCheck::setOtherPlace().
    void setOtherPlace(const std::function<QString()> &folder) { m_check.setOtherPlace(folder); }
    /// The window's Download key leads to \a download, and is off while one runs. The question is
    /// told what the editor shows. \a download must outlive the guard.
    void setDownload(CheckedDownload *download);
    /// Has \a work keep the program while it is not saved, and \a offer bring it back. A save
    /// counts once it was read back. To be called before UnsavedOffer::start(); the guard must
    /// outlive both.
    void keepUnsaved(UnsavedWork *work, UnsavedOffer *offer);
    /// Milliseconds after which the panel's storage counts as one that does not answer.
    void setStallTime(int ms) { m_jobs.setStallTime(ms); }

    /// How the editor stands to the program's file.
    const ProgramState &state() const { return m_state; }
    /// Whether a command is under way, or its outcome is still being looked at.
    bool isBusy() const;
    /// Whether a program is being loaded.
    bool isLoading() const { return m_commands.running() == WindowCommands::Open; }
    /// Whether the program at \a path may be sent to the PLC. If not, told() says why.
    bool mayDownload(const QString &path);
    /// To be called after the window's newFile(), which comes by no key that the guard would see.
    void noteNewProgram();
    /// Saves as the Save key does, with all questions. Ends in one saveEnded(), from the event
    /// loop. To be called while nothing else isBusy().
    void save();

Q_SIGNALS:
    /// \a text is for the operator. The causes are "program state" and "program refused".
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);
    /// state() gives something else now.
    void stateChanged();
    /// A save came to its end. \a isStored: the disk was read back and holds the document.
    void saveEnded(bool isStored);

private Q_SLOTS:
    void end(WindowCommands::Command command);
    void giveSaveUp();
    void tellStored(StoreCheck::Outcome outcome);
    void tellMissed();
    void guardPicker(QDialog *dialog, WindowDialogs::Picker picker);
    void guardSaveQuestion(QMessageBox *box);
    void guardRemoveQuestion(QMessageBox *box);
    void watchReloadQuestion(QMessageBox *box);
    void noteReloadAnswer(int answer);
    void noteFailure();
    void noteAbort();
    void noteRemoval();
    void startDownload(const QString &path);
    void endDownload();

private:
    typedef WindowCommands::Command Command;

    void hold(Command command);
    void refuse(Command command, const QString &reason);
    void pass(Command command);
    void holdSave();
    void noteFile(const ProgramOnDisk &file);
    void askAndSave();
    bool mayReplaceOwnFile();
    void goOn();
    void setState(const ProgramState &state);
    QString text() const;
    QString programPath(const QString &name) const;

    void endOpen();
    void compare();
    void judge(const QString &path, const std::shared_ptr<ProgramComparison> &comparison,
               bool wasAborted);

    void endSave();
    void finishSave(bool isStored);

    QString proposal(const PickerGuard *picker) const;
    void holdTarget(const QPointer<PickerGuard> &picker, const QString &name);
    void askForTarget(const QPointer<PickerGuard> &picker, const QString &name,
                      const ProgramOnDisk &there);
    bool mayCover(const QString &name, const ProgramOnDisk &there);
    bool mayDropChanges(const QString &name);
    void endRemove();

    const QString m_programDir;
    WMMainWindow *m_window;
    QPlainTextEdit *m_editor;
    Questioner *m_questioner;
    CheckedDownload *m_download = nullptr;
    WindowCommands m_commands;
    WindowDialogs m_dialogs;
    FileTaskQueue m_jobs;
    ProgramKeeper m_keeper;
    StoreCheck m_check;
    ProgramState m_state;
    /// Of the program's file when it was last compared with what is shown.
    FileStamp m_stamp;
    QList<Command> m_waiting;
    /// Bare name that a picker took for the command that runs.
    QString m_picked;
    /// Where the command that runs writes.
    QString m_target;
    bool m_isHoldingSave = false;
    bool m_hasFailed = false;
    bool m_wasAborted = false;
    bool m_isReloadRefused = false;
    bool m_isRemovalPassed = false;
    bool m_wasRemoved = false;
    /// Changes are to be saved before this command; then it comes once more.
    bool m_wantsSave = false;
    Command m_afterSave = WindowCommands::None;
};

#endif // PROGRAMGUARD_H
