// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMSUMMARY_H
#define PROGRAMSUMMARY_H

#include "base/filarixhostglobal.h"
#include "storage/filetaskrunner.h"
#include "winding/programreading.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// What an operator tells a stored program by before it is opened: its first comment, its lines,
/// and the turns that it winds.
///
///     auto summary = std::make_shared<ProgramSummary>(path, MachineProfile::forSamples());
///     connect(&runner, SIGNAL(ended()), ...); // then summary->turns(), for one
///     runner.start(summary);
///
/// A file is read in pieces and up to mostBytes. Size and date are known behind the first step, the
/// comment behind the second one.
class FILARIX_HOST_EXPORT ProgramSummary : public FileTask
{
public:
    enum Kind {
        Unknown,    ///< No step has been made.
        Missing,    ///< There is no file.
        NoProgram,  ///< A folder, a pipe, a device.
        Unreadable, ///< error() says why.
        Program
    };

    /// Several times the longest program that a panel's editor is made for.
    static const qint64 mostBytes = qint64(8) * 1024 * 1024;

    ProgramSummary(const QString &path, const MachineProfile &profile);
    ~ProgramSummary() override;

    bool step() override;
    int percent() const override;
    void close() override;

    Kind kind() const { return m_kind; }
    /// The system's words: "Permission denied".
    QString error() const { return m_error; }
    /// Bytes of the whole file.
    qint64 size() const { return m_size; }
    /// In UTC; invalid for none.
    QDateTime written() const { return m_written; }
    /// The words of the first comment that has any, without the comment's signs; empty for none.
    QString comment() const { return m_comment; }
    /// Of what was read so far, as the editor counts.
    qint64 lines() const { return m_lines; }
    /// Whether all of the file was read, and not mostBytes of it.
    bool isWhole() const { return m_isRead && m_size <= mostBytes; }
    /// Of a whole program; 0 before, and for one that winds nothing.
    double turns() const;
    /// Likewise, in metres.
    double wireLength() const;
    /// Likewise, from the first line to the end.
    double seconds() const;
    /// The coil of what was read; of a whole program once there is no step left to do.
    const WindingModel &model() const { return m_reading.model(); }

private:
    bool open();
    bool readPiece();
    bool fail(Kind kind);

    const QString m_path;
    ProgramReading m_reading;
    int m_handle = -1;
    QByteArray m_piece;
    qint64 m_done = 0;
    Kind m_kind = Unknown;
    QString m_error;
    qint64 m_size = 0;
    QDateTime m_written;
    QString m_comment;
    qint64 m_lines = 0;
    bool m_isRead = false;
};

#endif // PROGRAMSUMMARY_H
