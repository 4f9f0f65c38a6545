// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSCREEN_H
#define PROGRAMSCREEN_H

#include "programs/programsnapshot.h"
#include "shell/panelscreen.h"

#include <QElapsedTimer>
#include <QScopedPointer>
#include <QSet>

class MachineData;
class PlcTransfer;
class ProgramGuard;
class ProgramHistory;
class Questioner;
class StateLine;
class QToolButton;
class WGCodeEditer;
class WMMainWindow;

/// The G-code screen: the library's window as a host uses it.
///
/// The host's part is the download, the line that Tag copies, the modified mark, keys for what no
/// bar of the window holds, and a ProgramGuard, whose word on the program stays in view above it.
///
/// A download goes in three steps, each beside the event loop: a private copy of the program is
/// taken, the operator is asked whether it is the right one, and the copy is sent. In the end the
/// operator is told if the program itself has become another one meanwhile.
class ProgramScreen : public PanelScreen
{
    Q_OBJECT

public:
    /// Programs go to the folder \a plcDir; their copies wait below \a ownDir, the host's own.
    /// \a machine must outlive the screen.
    ProgramScreen(int rotation, const QString &plcDir, const QString &ownDir,
                  const MachineData *machine, QWidget *parent = nullptr);
    ~ProgramScreen() override;

    /// What a save replaces is kept there first. \a history must outlive the screen.
    void setHistory(ProgramHistory *history);

    QString title() const override;
    bool hasChanges() const override;
    QList<PanelKey *> keys() override;
    bool mayClose() override;
    bool isWorking() const override;

    /// The library's window.
    WMMainWindow *programWindow() const { return m_window; }
    WGCodeEditer *editor() const { return m_editor; }
    PlcTransfer *transfer() const { return m_transfer; }
    ProgramSnapshot *snapshot() const { return m_snapshot; }
    ProgramGuard *guard() const { return m_guard; }

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void stopWork() override;

protected:
    void retranslate() override;

private:
    void startDownload(const QString &path);
    void askForDownload();
    void showCopying(int percent);
    void showSending(int percent);
    void endSent(ProgramSnapshot::Verdict verdict);
    void endFailed(const QString &reason);
    void endStopped(const QString &text);
    void endDownload(const QString &text, Message::Tone tone, const QString &cause = QString());
    void insertTaughtPoint();
    void find();
    void showState();
    bool save();
    bool waitForGuard();

    const MachineData *m_machine;
    QSet<QToolButton *> m_spareButtons;
    WMMainWindow *m_window;
    WGCodeEditer *m_editor;
    PlcTransfer *m_transfer;
    ProgramSnapshot *m_snapshot;
    const QScopedPointer<Questioner> m_questioner;
    ProgramGuard *m_guard;
    StateLine *m_stateLine;
    QElapsedTimer m_copyingFor;
};

#endif // PROGRAMSCREEN_H
