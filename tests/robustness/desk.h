// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef DESK_H
#define DESK_H

/// A host that comes and goes with the library: makes one of each thing, uses it and deletes it;
/// \a shown, in sight of the operator.
extern "C" __attribute__((visibility("default"))) void useDesk(bool shown);

#endif // DESK_H
