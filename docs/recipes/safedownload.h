// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAFEDOWNLOAD_H
#define SAFEDOWNLOAD_H

#include "guards/programguard.h"
#include "programs/checkeddownload.h"
#include "wmmainwindow.h"

//! [safe download]
/// The window's D/L button sends its program to the folder \a plcDir: the bytes that the operator
/// has agreed to and no others. The copy is compared at the end. \a copyDir is for private copies.
inline CheckedDownload *addDownload(ProgramGuard *guard, const QString &plcDir,
                                    const QString &copyDir, Questioner *questioner)
{
    CheckedDownload *download = new CheckedDownload(plcDir, copyDir, questioner, guard);
    guard->setDownload(download);
    return download;
}
//! [safe download]

//! [own transfer]
/// The same for a machine that takes no files: \a transfer carries a copy over that nobody changes
/// meanwhile, and says whether it went well. The button comes back however that ends.
class OwnTransfer : public QObject
{
    Q_OBJECT

public:
    typedef std::function<bool(const QString &copyPath, const ProgramFacts &facts)> Transfer;

    OwnTransfer(WMMainWindow *window, ProgramGuard *guard, const QString &copyDir,
                const Transfer &transfer)
        : QObject(guard), m_window(window), m_guard(guard), m_copy(copyDir), m_transfer(transfer)
    {
        connect(window, SIGNAL(signal_download(QString)), SLOT(copy(QString)));
        connect(&m_copy, SIGNAL(taken()), SLOT(send()));
        connect(&m_copy, SIGNAL(failed(QString)), SIGNAL(failed(QString)));
    }

Q_SIGNALS:
    void failed(const QString &reason);

private Q_SLOTS:
    void copy(const QString &path)
    {
        if (m_guard->mayDownload(path))
            m_copy.take(path);
    }
    void send()
    {
        m_window->setDownloading(true);
        const bool isTaken = m_transfer(m_copy.copyPath(), m_copy.facts());
        m_window->setDownloading(false);
        m_copy.drop();
        if (!isTaken)
            Q_EMIT failed(tr("The machine did not take the program."));
    }

private:
    WMMainWindow *m_window;
    ProgramGuard *m_guard;
    ProgramSnapshot m_copy;
    const Transfer m_transfer;
};
//! [own transfer]

#endif // SAFEDOWNLOAD_H
