// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GLYPHS_H
#define GLYPHS_H

#include <QColor>
#include <QIcon>
#include <QRect>

class QPainter;

/// The host's own line drawings: crisp at any size, in the colours of the look in use. An icon that
/// is shown already follows when the look changes.
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
    Edit,
    Plc,
    Stick,
    Storage,
    Style,
    Language,
    History,
    Preview,
    Coil,
    Path,
    Curves,
    Figures,
    ZoomIn,
    ZoomOut,
    Fit,
    Colours,
    Clock,
    Grow,
    Export,
    Check,
    List,
    Up,
    Down,
    ToLine,
    Joint,
    Line,
    StoreAs,
    Gear,
    TextSize,
    Sound,
    First,
    Last,
    PageUp,
    PageDown,
    Copy,
    Paste,
    Insert,
    Remove,
    Exchange,
    Inform,
    Warn,
    Ask,
    Alarm
};

/// What an icon stands on.
enum Ground {
    OnStrip, ///< A key of a strip.
    OnKey,   ///< A key beside a screen's content.
    OnPaper  ///< A bar of the library.
};

/// Draws one by hand, for a widget that paints itself.
void draw(Glyph glyph, QPainter *painter, const QRect &rect, const QColor &colour);
QIcon icon(Glyph glyph, Ground ground = OnStrip);

} // namespace Glyphs

#endif // GLYPHS_H
