// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMWRITE_H
#define PROGRAMWRITE_H

#include "storage/filestamp.h"
#include "storage/filetaskrunner.h"
#include "storage/writeleave.h"

#include <QString>

/// Writes a program as a whole: what stood at its path is replaced only by all of it.
class ProgramWrite : public FileTask
{
public:
    enum Place {
        Exactly,  ///< At the path, over what is there.
        BesideAll ///< In the path's folder under a name that is free.
    };

    ProgramWrite(const QString &path, const QString &text, Place place = Exactly);

    bool step() override;

    /// From now on nothing is replaced any more; false when that has just been done. May be called
    /// from any thread, at any time.
    bool abandon() { return m_leave.withdraw(); }

    /// Whether the file holds the program; the file was read back.
    bool isStored() const { return m_isStored; }
    /// See ProgramReadback.
    bool isFaithful() const { return m_isFaithful; }
    FileStamp stamp() const { return m_stamp; }
    QString reason() const { return m_reason; }
    QString path() const { return m_path; }

private:
    void readBack();

    QString m_path;
    const QString m_text;
    const Place m_place;
    WriteLeave m_leave;
    bool m_isStored = false;
    bool m_isFaithful = true;
    FileStamp m_stamp;
    QString m_reason;
};

#endif // PROGRAMWRITE_H
