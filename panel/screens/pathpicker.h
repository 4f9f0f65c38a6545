// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PATHPICKER_H
#define PATHPICKER_H

#include <QString>

/// The library's path browser, at a size for thumbs on any panel.
namespace PathPicker {

/// Lets the operator pick a file or a directory, from the entries of \a folder on. Empty when that
/// was cancelled.
QString pick(const QString &title, const QString &folder);

} // namespace PathPicker

#endif // PATHPICKER_H
