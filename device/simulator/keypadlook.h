// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADLOOK_H
#define KEYPADLOOK_H

#include <QApplication>
#include <QPalette>

/// Whether the keypads are light or dark. They go with the host, whose palette tells.
namespace KeypadLook {

inline bool isDark()
{
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness()
           < palette.color(QPalette::WindowText).lightness();
}

} // namespace KeypadLook

#endif // KEYPADLOOK_H
