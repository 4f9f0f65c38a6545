// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDINGINSPECTION_H
#define WINDINGINSPECTION_H

#include "programs/programinspection.h"
#include "winding/programcheck.h"

#include <QFile>

#include <functional>
#include <memory>

/// Checks a program by a machine's profile before it goes to that machine.
///
///     download.setInspector(WindingInspection::by(profile));
class FILARIX_HOST_EXPORT WindingInspection : public ProgramInspection
{
public:
    /// Reads the file at \a path when it runs. By a profile that knows nothing all words would be
    /// errors. The verdict is Unfinished then, as it is for a file that cannot be read.
    WindingInspection(const QString &path, const MachineProfile &profile);

    /// Makes one of each program, for CheckedDownload::setInspector().
    static std::function<std::shared_ptr<ProgramInspection>(const QString &path)>
    by(const MachineProfile &profile);

    bool step() override;
    int percent() const override;
    void close() override;

    ProgramVerdict verdict() const override;

private:
    bool end(ProgramVerdict::State state);

    QFile m_file;
    const bool m_hasProfile;
    ProgramCheck m_check;
    ProgramReading m_reading;
    QByteArray m_piece;
    ProgramVerdict::State m_state = ProgramVerdict::Unfinished;
    std::atomic<int> m_percent{0};
};

#endif // WINDINGINSPECTION_H
