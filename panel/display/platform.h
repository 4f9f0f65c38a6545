// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLATFORM_H
#define PLATFORM_H

/// What the platform does with the windows of the program.
namespace Platform {

/// Whether it shows windows on a desktop, rather than one program on a display.
bool isDesktop();
/// Whether something places and frames the windows: a desktop does, a display that is the program's
/// alone does not, nor does a PanelGlass.
bool hasWindowManager();
/// Whether QApplication::beep() asks the platform for a sound. Whether one is heard is up to the
/// display and its loudspeaker.
bool hasBell();

} // namespace Platform

#endif // PLATFORM_H
