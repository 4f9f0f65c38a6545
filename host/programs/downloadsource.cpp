// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "programs/downloadsource.h"

#include <QFileInfo>

DownloadSource::DownloadSource(const QString &path, const QString &copyPath)
    : m_path(path), m_name(QFileInfo(path).fileName()), m_file(copyPath.isEmpty() ? path : copyPath)
{}

QString DownloadSource::reasonMissing() const
{
    if (m_path.isEmpty())
        return tr("There is no program to download yet. Save it under a name first.");
    const QFileInfo info(m_file.fileName());
    if (!info.exists())
        return tr("The program %1 is gone from the panel. Save it again, then download.")
            .arg(m_name);
    if (!info.isFile())
        return tr("%1 is not a program file.").arg(m_name);
    return QString();
}

QString DownloadSource::reasonUnread() const
{
    return tr("The program %1 cannot be read: %2.").arg(m_name, m_file.errorString());
}

QString DownloadSource::stoppedText()
{
    return tr("The download was stopped. The PLC keeps what it had.");
}
