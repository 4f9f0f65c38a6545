// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICKERFACTS_H
#define PICKERFACTS_H

#include "base/filarixhostglobal.h"
#include "programs/programsummary.h"
#include "storage/filetaskrunner.h"

#include <QLabel>
#include <QStringList>
#include <QTimer>

#include <memory>

/// What is known of the program that was chosen in a list or a picker.
///
/// The file is read beside the event loop, a moment after it was chosen. When the choice moves on,
/// the reading ends. One reader at a time: of a disk that hangs, nothing else is asked until
/// the reader is given up.
///
///     PickerFacts *facts = new PickerFacts(folder, profile, false, parent);
///     connect(facts, SIGNAL(settled()), this, SLOT(showCoil())); // of facts->summary()
///     facts->tell("coil.cnc");
class FILARIX_HOST_EXPORT PickerFacts : public QLabel
{
    Q_OBJECT

public:
    enum Room { AllOfThem, AsManyAsFit, OneLine };

    /// Milliseconds from a choice to the reading: names that only pass by are not read.
    static const int restMs = 120;
    /// Milliseconds that a step of the reading may take.
    static const int stallMs = 4000;

    /// \a isForSaving has a name without a file called new.
    PickerFacts(const QString &folder, const MachineProfile &profile, bool isForSaving,
                QWidget *parent);

    /// Tells of the program of this bare name; none for an empty one.
    void tell(const QString &name);
    /// Where the next program is.
    void setFolder(const QString &folder) { m_folder = folder; }
    /// By whose rules the turns of the next program are counted.
    void setProfile(const MachineProfile &profile) { m_profile = profile; }
    /// Whether all facts are shown, or as many as there is room for, and then the time that the
    /// program runs, too. Those that matter come first. All at first.
    void setRoom(Room room);
    /// Ends the reading, and says so.
    void stop();
    /// Of the program that was told of; null before it was read, and when it could not be. To be
    /// looked at while the reading isSettled().
    std::shared_ptr<const ProgramSummary> summary() const { return m_summary; }
    /// Milliseconds in place of stallMs.
    void setStallTime(int ms) { m_runner.setStallTime(ms); }
    /// Whether nothing is read, and nothing waits to be.
    bool isSettled() const { return !m_rest.isActive() && !m_runner.isRunning(); }

Q_SIGNALS:
    /// How much of the program is read, 0 to 100.
    void progressed(int percent);
    /// All that can be said is said.
    void settled();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void begin();
    void showProgress();
    void showAll();
    void showStalled();

private:
    void display(const QStringList &facts);
    void say(const QString &words);
    void fit();
    bool fits(const QString &text) const;
    QStringList factsOf(const ProgramSummary &summary, bool isDone) const;
    QString missing() const;

    QString m_folder;
    MachineProfile m_profile;
    const bool m_isForSaving;
    Room m_room = AllOfThem;
    bool m_isStopped = false;
    QString m_name;
    /// What matters first comes first.
    QStringList m_shown;
    QTimer m_rest;
    std::shared_ptr<ProgramSummary> m_summary;
    FileTaskRunner m_runner;
};

#endif // PICKERFACTS_H
