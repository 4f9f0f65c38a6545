// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GLYPHS_H
#define GLYPHS_H

#include <QColor>
#include <QIcon>

/// The host's own line drawings: crisp at any size, in any colour.
namespace Glyphs {

enum Glyph {
    Program,
    Teach,
    Variables,
    Connections,
    Files,
    Menu,
    Find,
    Undo,
    Redo,
    More,
    Close,
    Load,
    Store,
    Clear,
    Select,
    Plug,
    Pull,
    Rename,
    Edit
};

QIcon icon(Glyph glyph, const QColor &color = Qt::white);

} // namespace Glyphs

#endif // GLYPHS_H
