// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STARTUP_H
#define STARTUP_H

#include "base/message.h"
#include "storage/filethread.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

/// Brings about what the panel needs on its disks. The panel needs the lock of its home, the
/// program directory with the samples, the PLC's folder, the stick's samples, and an empty working
/// directory.
///
/// All of it is done beside the event loop. A disk that does not answer holds up the start for a
/// moment, and the running panel never.
///
///     StartUp startUp(folders);
///     if (startUp.wait(300) == StartUp::Occupied)
///         return occupied();
class StartUp : public QObject
{
    Q_OBJECT

public:
    enum Outcome {
        Waiting,      ///< The disks have not answered yet.
        Ready,        ///< The panel may work.
        Occupied,     ///< Another panel works on the same home.
        NoProgramDir, ///< The program directory that was asked for cannot be made.
    };

    struct Folders
    {
        QString programs;
        /// Whether the panel must not start without `programs`.
        bool areProgramsAskedFor = false;
        /// Where the panel keeps its own files.
        QString own;
        /// Made if it is missing; empty for a PLC that is somebody else's to make.
        QString plc;
        /// What stands in for a stick; empty for none.
        QString stick;
    };

    /// Milliseconds after which the operator is told what the panel waits for.
    static const int patienceMs = 1500;

    /// Begins. The PLC's folder is made once the programs are there, the stick's apart from both.
    explicit StartUp(const Folders &folders, QObject *parent = nullptr);
    ~StartUp() override;

    Outcome outcome() const { return m_outcome; }
    /// Waits \a ms at the most, and gives what is known by then.
    Outcome wait(int ms);

Q_SIGNALS:
    /// The panel must not go on: \a outcome came after the wait.
    void refused(int outcome);
    void told(const QString &text, Message::Tone tone, const QString &cause = QString());
    void causeEnded(const QString &cause);

private:
    struct Work;

    void takeIn();
    void tellWaiting();

    std::shared_ptr<Work> m_work;
    FileThread m_home;
    FileThread m_stick;
    QTimer m_patience;
    Outcome m_outcome = Waiting;
    bool m_isWaited = false;
    bool m_isWaitTold = false;
};

#endif // STARTUP_H
