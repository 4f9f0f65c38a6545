// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DOWNLOADSOURCE_H
#define DOWNLOADSOURCE_H

#include <QCoreApplication>
#include <QFile>
#include <QString>

/// The program file that a download reads, and in words for the operator why it can't.
///
/// All calls but name() and stoppedText() ask for files, and belong into a thread.
class DownloadSource
{
    Q_DECLARE_TR_FUNCTIONS(DownloadSource)

public:
    /// Reads the file at \a path, or the one at \a copyPath in its place. The operator knows the
    /// program by the name in \a path; an empty path is a program that was never saved.
    explicit DownloadSource(const QString &path, const QString &copyPath = QString());

    /// The program's name, without its folder.
    QString name() const { return m_name; }
    /// The file, closed at first.
    QFile &file() { return m_file; }

    /// Why no program can be read there; empty where a file is.
    QString reasonMissing() const;
    /// Why the last call to the file failed.
    QString reasonUnread() const;
    /// That the operator has ended a download before anything of it reached the PLC.
    static QString stoppedText();

private:
    Q_DISABLE_COPY(DownloadSource)

    const QString m_path;
    const QString m_name;
    QFile m_file;
};

#endif // DOWNLOADSOURCE_H
