// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SCREENS_H
#define SCREENS_H

class QStringList;

/// Opens each screen of the library and presses all that there is to press on it. Somebody else has
/// to close the dialogs. What did not go as it should is noted in \a troubles.
extern "C" __attribute__((visibility("default"))) void walkScreens(QStringList *troubles);

#endif // SCREENS_H
