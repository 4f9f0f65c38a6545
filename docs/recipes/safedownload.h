// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAFEDOWNLOAD_H
#define SAFEDOWNLOAD_H

#include "guards/owntransfer.h"
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
/// For a machine that takes no files: \a send, the host's own, carries a private copy over. It runs
/// in a thread, and gives why the machine refused, or nothing. The guard of the window keeps back
/// what is not whole. The window owns the transfer, whose told() says what came of it.
inline OwnTransfer *addTransfer(WMMainWindow *window, const QString &copyDir,
                                const OwnTransfer::Send &send)
{
    return new OwnTransfer(window, copyDir, send, window);
}
//! [own transfer]

#endif // SAFEDOWNLOAD_H
