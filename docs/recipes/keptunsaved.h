// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEPTUNSAVED_H
#define KEPTUNSAVED_H

#include "guards/programguard.h"
#include "guards/unsavedlist.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedwork.h"

//! [kept unsaved]
/// Has \a work keep the program of \a guard, two seconds behind the operator. The offer is for what
/// a power cut left in \a folder, the one of \a work: it asks once start() is called. A save counts
/// once the guard has read it back.
inline UnsavedOffer *keepUnsaved(ProgramGuard *guard, const QString &folder, UnsavedWork *work,
                                 Questioner *questioner)
{
    UnsavedOffer *offer = new UnsavedOffer(folder, work, questioner, guard);
    guard->keepUnsaved(work, offer);
    return offer;
}
//! [kept unsaved]

//! [kept rows]
/// The same for the rows of \a list, which has a title. To be called before UnsavedOffer::start().
/// The host calls UnsavedList::noteStored() each time it has stored the rows. What is given back
/// must outlive \a work and \a offer, and the list must outlive all three.
inline UnsavedList *keepRows(TListWidget *list, UnsavedWork *work, UnsavedOffer *offer)
{
    UnsavedList *rows = new UnsavedList(list, 1, QObject::tr("Taught rows"));
    work->watchRows(QLatin1String("taught"), rows);
    offer->addRows(QLatin1String("taught"), rows);
    return rows;
}
//! [kept rows]

#endif // KEPTUNSAVED_H
