// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEPTUNSAVED_H
#define KEPTUNSAVED_H

#include "guards/programguard.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedwork.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

//! [kept unsaved]
/// Keeps what is not saved in \a folder, two seconds behind the operator. Offers at the next start
/// what a power cut left there. A save counts once the guard has read it back.
inline UnsavedOffer *keepUnsaved(WMMainWindow *window, ProgramGuard *guard, const QString &folder,
                                 UnsavedWork *work, Questioner *questioner)
{
    work->watchProgram(
        window->findChild<WGCodeEditer *>()->document(),
        [=] {
            const bool isPart = guard->state().kind == ProgramState::Incomplete;
            return UnsavedOffer::headOf(window, isPart);
        },
        [=] { return !guard->isBusy(); });
    UnsavedOffer::Program program;
    program.window = window;
    program.isBusy = [=] { return guard->isBusy(); };
    program.noteNew = [=] { guard->noteNewProgram(); };
    UnsavedOffer *offer = new UnsavedOffer(folder, work, questioner, guard);
    offer->setProgram(program);
    offer->start();
    return offer;
}
//! [kept unsaved]

#endif // KEPTUNSAVED_H
