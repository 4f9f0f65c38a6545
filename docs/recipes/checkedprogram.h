// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CHECKEDPROGRAM_H
#define CHECKEDPROGRAM_H

#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <guards/checkmarks.h>
#include <guards/windowprogram.h>
#include <programs/checkeddownload.h>
#include <programs/windinginspection.h>

//! [checked program]
/// Checks the program of \a window by the rules of \a profile after each change, beside the event
/// loop. The lines concerned stay marked in the editor. CheckMarks::findings() says what is wrong
/// and what to do. The window owns what does so.
inline CheckMarks *checkWhileEdited(WMMainWindow *window, const MachineProfile &profile)
{
    CheckMarks *check = new CheckMarks(WindowProgram::editorOf(window), window);
    check->setProfile(profile);
    return check;
}
//! [checked program]

//! [checked download]
/// Has \a download check the very bytes that would be sent. The operator is told before the
/// question, and a program with errors takes a second one.
inline void checkBeforeDownload(CheckedDownload *download, const MachineProfile &profile)
{
    download->setInspector(WindingInspection::by(profile));
}
//! [checked download]

#endif // CHECKEDPROGRAM_H
