// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PROGRAMREADBACK_H
#define PROGRAMREADBACK_H

#include "storage/filestamp.h"
#include "storage/filetaskrunner.h"

#include <QString>

/// Finds out whether a program that was just saved is on the disk. Forces the file there, reads it
/// back, and compares the bytes with those of the document's text.
class ProgramReadback : public FileTask
{
public:
    ProgramReadback(const QString &path, const QString &text);

    bool step() override;

    bool isStored() const { return m_isStored; }
    /// Why not, in the system's words; empty when the system has none.
    QString reason() const { return m_reason; }
    /// Whether the encoding of the files has all characters of the text.
    bool isFaithful() const { return m_isFaithful; }
    /// The stamp of the file that was read back.
    FileStamp stamp() const { return m_stamp; }

private:
    bool readsBack(const QByteArray &bytes);
    void probe(const QByteArray &bytes);

    const QString m_path;
    const QString m_text;
    bool m_isStored = false;
    bool m_isFaithful = true;
    FileStamp m_stamp;
    QString m_reason;
};

#endif // PROGRAMREADBACK_H
