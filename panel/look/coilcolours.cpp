// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/coilcolours.h"

#include "look/look.h"

CoilDrawing::Palette CoilColours::palette()
{
    CoilDrawing::Palette palette =
        Look::style() == Look::Dark ? CoilDrawing::darkPalette() : CoilDrawing::lightPalette();
    const QPalette screens = Look::palette();
    palette.colours[CoilDrawing::Paper] = screens.color(QPalette::Base);
    palette.colours[CoilDrawing::Ink] = screens.color(QPalette::Text);
    palette.colours[CoilDrawing::FaintInk] = screens.color(QPalette::PlaceholderText);
    palette.colours[CoilDrawing::WireEdge] = screens.color(QPalette::Base);
    return palette;
}
