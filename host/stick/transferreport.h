// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TRANSFERREPORT_H
#define TRANSFERREPORT_H

#include "base/filarixhostglobal.h"
#include "storage/filestamp.h"

#include <QString>

/// What a command of the import manager has come to, judged by what lies in the folders before and
/// after: the manager tells nobody. ImportGuard does this by itself.
///
///     TransferReport report(TransferReport::CopyToPanel, programDir, stickDir, "coil.cnc");
///     report.lookBefore();
///     runTheCommand();
///     if (report.judge() == TransferReport::Different)
///         tell("The copy is not what was to be copied.");
class FILARIX_HOST_EXPORT TransferReport
{
public:
    enum Command { CopyToStick, CopyToPanel, DeleteFromPanel, DeleteFromStick };
    enum Outcome {
        /// Everything is as it was: the operator said no, or the manager told why not.
        Nothing,
        /// The copy was compared, byte by byte.
        Copied,
        Deleted,
        /// There is no copy, nor was there one before.
        NotCopied,
        /// What was to be covered is gone, and there is no copy.
        Lost,
        /// The copy is not what was to be copied.
        Different
    };

    /// Reports a \a command for the file \a name, a bare name, between the two folders.
    TransferReport(Command command, const QString &programDir, const QString &stickDir,
                   const QString &name);

    Command command() const { return m_command; }
    QString name() const { return m_name; }
    /// Whether the command makes no sense without a stick.
    bool needsStick() const { return m_command != DeleteFromPanel; }
    /// Whether the command may cover or take away a program of the panel.
    bool changesPrograms() const
    {
        return m_command == CopyToPanel || m_command == DeleteFromPanel;
    }

    /// Takes note of what is there. May wait for the stick.
    void lookBefore();
    /// What became of the command since lookBefore(). May wait for the stick, and reads both files.
    Outcome judge() const;

private:
    QString source() const;
    /// What the command writes or deletes.
    QString target() const;

    Command m_command;
    QString m_programDir;
    QString m_stickDir;
    QString m_name;
    FileStamp m_before;
};

#endif // TRANSFERREPORT_H
