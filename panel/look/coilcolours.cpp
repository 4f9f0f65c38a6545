// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/coilcolours.h"

#include "look/look.h"
#include "look/recolour.h"

CoilDrawing::Palette CoilColours::palette()
{
    CoilDrawing::Palette palette =
        Look::style() == Look::Dark ? CoilDrawing::darkPalette() : CoilDrawing::lightPalette();
    const QPalette screens = Look::palette();
    palette.colours[CoilDrawing::Paper] = screens.color(QPalette::Base);
    palette.colours[CoilDrawing::Ink] = screens.color(QPalette::Text);
    palette.colours[CoilDrawing::FaintInk] = screens.color(QPalette::PlaceholderText);
    palette.colours[CoilDrawing::WireEdge] = screens.color(QPalette::Base);
    if (Look::style() != Look::HighContrast)
        return palette;
    // Curves and the mark are drawn for light paper, and glare asks for more.
    for (CoilDrawing::Role role :
         {CoilDrawing::Traverse, CoilDrawing::Speed, CoilDrawing::Tension, CoilDrawing::Mark})
        palette.colours[role] = Recolour::drawn(palette.colours[role], Look::HighContrast);
    return palette;
}
