// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COILCOLOURS_H
#define COILCOLOURS_H

#include "winding/coildrawing.h"

/// The colours of a coil's pictures in the look in use.
namespace CoilColours {

/// Paper, words and faint words are those of the screens.
CoilDrawing::Palette palette();

} // namespace CoilColours

#endif // COILCOLOURS_H
