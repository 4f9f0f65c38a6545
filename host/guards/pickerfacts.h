// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICKERFACTS_H
#define PICKERFACTS_H

#include "programs/programsummary.h"
#include "storage/filetaskrunner.h"

#include <QLabel>
#include <QTimer>

#include <memory>

/// What is known of the program that a picker is about to take.
///
/// The file is read beside the event loop, a moment after it was chosen. When the choice moves on,
/// the reading ends. One reader at a time: of a disk that hangs, nothing else is asked until
/// the reader is given up.
class PickerFacts : public QLabel
{
    Q_OBJECT

public:
    /// Milliseconds from a choice to the reading: names that only pass by are not read.
    static const int restMs = 120;
    /// Milliseconds that a step of the reading may take.
    static const int stallMs = 4000;

    /// \a isForSaving has a name without a file called new.
    PickerFacts(const QString &folder, const MachineProfile &profile, bool isForSaving,
                QWidget *parent);

    /// Tells of the program of this bare name; none for an empty one.
    void tell(const QString &name);
    void setStallTime(int ms) { m_runner.setStallTime(ms); }
    /// Whether nothing is read, and nothing waits to be.
    bool isSettled() const { return !m_rest.isActive() && !m_runner.isRunning(); }

private Q_SLOTS:
    void begin();
    void showProgress();
    void showAll();
    void showStalled();

private:
    QString linesOf(const ProgramSummary &summary, bool isDone) const;
    QString missing() const;

    const QString m_folder;
    const MachineProfile m_profile;
    const bool m_isForSaving;
    QString m_name;
    QTimer m_rest;
    std::shared_ptr<ProgramSummary> m_summary;
    FileTaskRunner m_runner;
};

#endif // PICKERFACTS_H
