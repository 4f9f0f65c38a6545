// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADPLACE_H
#define KEYPADPLACE_H

#include <QRect>
#include <QSize>

/// Where a keypad of some size lies on a screen.
namespace KeypadPlace {

/// At the lower edge, in the middle.
QRect atTheBottom(const QRect &screen, const QSize &size);

/// At the lower or else the upper edge, so that \a edited stays in view. Where that takes it, the
/// keypad is lower than \a size, down to \a leastHeight. Empty if there is no such place.
QRect besides(const QRect &screen, const QRect &edited, const QSize &size, int leastHeight);

} // namespace KeypadPlace

#endif // KEYPADPLACE_H
