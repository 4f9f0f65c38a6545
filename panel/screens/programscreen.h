// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSCREEN_H
#define PROGRAMSCREEN_H

#include "shell/panelscreen.h"

#include <QPointer>
#include <QScopedPointer>
#include <QSet>

class CheckedDownload;
class FindDialogGuide;
class FindingsBar;
class LineEntry;
class LoadProgress;
class MachineData;
class PlcTransfer;
class ProgramGuard;
class ProgramHistory;
class ProgramPickers;
class ProgramReview;
class ProgramWalk;
class Questioner;
class RecentPrograms;
class StateLine;
class WalkKeys;
class QGridLayout;
class QLabel;
class QToolButton;
class WGCodeEditer;
class WMMainWindow;

/// The G-code screen: the library's window as a host uses it.
///
/// The host's part is a CheckedDownload, the line that Tag copies, the modified mark, and keys for
/// what no bar of the window holds. A ProgramGuard is part of it, too: its word on the program
/// stays in view above the window.
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

    /// Shows what \a review says of the program, and has downloads checked by the same rules.
    /// \a review must outlive the screen. Before keys().
    void setReview(const ProgramReview *review);
    const ProgramReview *review() const { return m_review; }
    FindingsBar *findingsBar() const { return m_findings; }

    /// Puts \a pane at the side of the window, and takes it over. A key hides and shows it.
    void setBeside(QWidget *pane);

    QString title() const override;
    bool hasChanges() const override;
    QString stateWord() const override;
    QList<PanelKey *> keys() override;
    bool mayClose() override;
    bool isWorking() const override;

    /// The library's window.
    WMMainWindow *programWindow() const { return m_window; }
    WGCodeEditer *editor() const { return m_editor; }
    CheckedDownload *download() const { return m_download; }
    PlcTransfer *transfer() const;
    ProgramGuard *guard() const { return m_guard; }
    /// What Open, SaveAs and RM ask with.
    ProgramPickers *pickers() const { return m_pickers; }

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Has the program at \a path in the editor, as its operator would: what the window asks about
    /// unsaved work is asked first.
    void open(const QString &path);
    void stopWork(const QString &work = QString()) override;
    /// Shows the findings of the check below the program, or hides them. A small panel has no room
    /// for the state of the program meanwhile.
    void showFindings(bool isWanted = true);
    /// Puts the cursor there, both from 1, in the middle of the editor.
    void goTo(int line, int column);

protected:
    void retranslate() override;

private:
    void insertTaughtPoint();
    void find();
    void makeWalk();
    void connectLoad();
    void nameUnnamed();
    bool passToState(const QEvent *event);
    bool isOnName(const QPoint &point) const;
    void showState();
    void showCheck();
    void listFindings();
    void followCursor();
    bool save();
    bool waitForGuard();

    const MachineData *m_machine;
    QSet<QToolButton *> m_spareButtons;
    WMMainWindow *m_window;
    WGCodeEditer *m_editor;
    const QScopedPointer<Questioner> m_questioner;
    CheckedDownload *m_download;
    ProgramGuard *m_guard;
    LineEntry *m_lineEntry;
    LoadProgress *m_load;
    ProgramWalk *m_walk;
    WalkKeys *m_walkKeys;
    FindDialogGuide *m_findGuide;
    /// The library's, with the program's name. The label goes with the window, before the screen
    /// does.
    QPointer<QLabel> m_fileLabel;
    QString m_unnamed;
    RecentPrograms *m_recent;
    ProgramPickers *m_pickers;
    StateLine *m_stateLine;
    /// A finger that came down below it counts for it.
    bool m_isOnState = false;
    QGridLayout *m_layout;
    QWidget *m_beside = nullptr;
    const ProgramReview *m_review = nullptr;
    FindingsBar *m_findings = nullptr;
    /// In the key's place where there is no room for one.
    StateLine *m_checkLine = nullptr;
    PanelKey *m_checkKey = nullptr;
    bool m_isOpening = false;
};

#endif // PROGRAMSCREEN_H
