// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CHECKREPORT_H
#define CHECKREPORT_H

#include <QByteArray>
#include <QString>

#include <cstdio>

class ProgramCheck;
class WindingModel;
struct Finding;

/// Writes what was found in some programs, file by file: as lines that editors jump by, or as one
/// JSON document. The manual page describes both.
class CheckReport
{
public:
    enum Format { Lines, Json };

    CheckReport(std::FILE *output, Format format) : m_output(output), m_format(format) {}

    void begin(const QString &profile);
    void add(const QByteArray &file, const ProgramCheck &check, const WindingModel &model);
    /// The file could not be read. Lines don't say so: the standard error does.
    void addUnread(const QByteArray &file, const QByteArray &reason);
    void end();

    /// For a terminal, where a control character in a file's name may do anything.
    static QByteArray shown(QByteArray name);

private:
    void addLines(const QByteArray &file, const ProgramCheck &check);
    void addObject(const QByteArray &file, const ProgramCheck &check, const WindingModel &model);
    void beginObject(const QByteArray &file);
    void write(const QByteArray &text);

    std::FILE *m_output;
    Format m_format;
    int m_files = 0;
};

#endif // CHECKREPORT_H
