// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STYLEICONS_H
#define STYLEICONS_H

#include <QIcon>
#include <QStyle>

/// The pictures that the toolkit asks its style for, drawn like all others of the panel: a message
/// box's subject, a file, a folder.
namespace StyleIcons {

/// Null where the toolkit's own is not replaced. It follows the look when it is drawn.
QIcon icon(QStyle::StandardPixmap which);

} // namespace StyleIcons

#endif // STYLEICONS_H
