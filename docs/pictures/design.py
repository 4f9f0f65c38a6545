#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Filarix Module developers
# SPDX-License-Identifier: MIT
"""design.py

Draws the examples of docs/design.md into docs/images/design, in the colours of that page's own table.
A test holds the table against the code.
"""
import pathlib
import re

docs = pathlib.Path(__file__).resolve().parent.parent
looks = ["Light", "Dark", "High contrast"]
# Pixels at 96 dpi.
key_width, key_height, gap, margin = 96, 44, 4, 12
pixels_per_mm = 96 / 25.4


def roles():
    """The colours of each role, by look."""
    page = (docs / "design.md").read_text(encoding="utf-8")
    row = re.compile(r"^\| ([a-z ]+) \| `(#\w{6})` \| `(#\w{6})` \| `(#\w{6})` \|", re.M)
    return {match[1]: match.groups()[1:] for match in row.finditer(page)}


def rect(x, y, width, height, fill, line="none", corner=6, thickness=1):
    return (f'<rect x="{x:g}" y="{y:g}" width="{width:g}" height="{height:g}" rx="{corner}"'
            f' fill="{fill}" stroke="{line}" stroke-width="{thickness}"/>')


def text(x, y, words, fill, size=15, weight="normal", anchor="middle"):
    return (f'<text x="{x:g}" y="{y:g}" font-size="{size}" font-weight="{weight}" fill="{fill}"'
            f' text-anchor="{anchor}">{words}</text>')


def key(x, y, words, ground, ink, line="none"):
    return [rect(x, y, key_width, key_height, ground, line),
            text(x + key_width / 2, y + key_height / 2 + 5, words, ink)]


def picture(name, width, height, shapes):
    head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width:g}" height="{height:g}"'
            f' viewBox="0 0 {width:g} {height:g}" font-family="DejaVu Sans, sans-serif">')
    folder = docs / "images" / "design"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / name).write_text("\n".join([head, *shapes, "</svg>", ""]), encoding="utf-8")


def keys(colours):
    """The states of a key, a line a look."""
    states = [("At rest", "key", "text", "key line"), ("Pressed", "key pressed", "text", "key line"),
              ("Chosen", "accent", "on accent", "none"), ("Focus", "key", "text", "focus"),
              ("Off", "key off", "key faint", "key line")]
    width = 2 * margin + len(states) * (key_width + 2 * gap) - 2 * gap
    line_height = key_height + 2 * margin + 20
    shapes = []
    for look, name in enumerate(looks):
        of = {role: tones[look] for role, tones in colours.items()} | {"none": "none"}
        top = look * line_height
        shapes.append(rect(0, top, width, line_height, of["surface"], corner=0))
        shapes.append(text(margin, top + 20, name, of["text"], 14, "bold", "start"))
        for i, (words, ground, ink, line) in enumerate(states):
            x, y = margin + i * (key_width + 2 * gap), top + 20 + margin
            shapes += key(x, y, words, of[ground], of[ink], of[line])
            if line == "focus":
                shapes.append(rect(x, y, key_width, key_height, "none", of["focus line"], 2, 2))
                shapes.append(rect(x + 2, y + 2, key_width - 4, key_height - 4, "none", of["focus"], 2, 2))
    picture("keys.svg", width, len(looks) * line_height, shapes)


def palette(colours):
    """Each role as a patch, with its name in the text that it carries."""
    patch_width, patch_height, columns = 132, 32, 3
    shapes = []
    for i, (role, tones) in enumerate(colours.items()):
        y = i * (patch_height + gap)
        shapes.append(text(margin, y + 21, role, "#17202b", 14, "normal", "start"))
        for look in range(columns):
            x = 150 + look * (patch_width + gap)
            shapes.append(rect(x, y, patch_width, patch_height, tones[look], "#8e9ba8", 4))
            red, green, blue = (int(tones[look][j:j + 2], 16) for j in (1, 3, 5))
            ink = "#000000" if 0.3 * red + 0.59 * green + 0.11 * blue > 140 else "#ffffff"
            shapes.append(text(x + patch_width / 2, y + 21, tones[look], ink, 12))
    height = len(colours) * (patch_height + gap)
    ground = rect(0, 0, 150 + 3 * (patch_width + gap), height, "#ffffff", corner=0)
    picture("palette.svg", 150 + 3 * (patch_width + gap), height, [ground, *shapes])


def sizes(colours):
    """What a finger hits, and the grid, true to size at 96 dpi."""
    of = {role: tones[0] for role, tones in colours.items()}
    touch, stop = 9 * pixels_per_mm, 15 * pixels_per_mm
    shapes = [rect(0, 0, 420, 96, of["surface"], corner=0)]
    x = margin
    for side, words, ground, ink in ((40, "40 px", "key", "text"), (touch, "9 mm", "key", "text"),
                                     (stop, "15 mm", "alarm ground", "on accent")):
        shapes.append(rect(x, margin, side, side, of[ground], of["key line"]))
        shapes.append(text(x + side / 2, margin + side / 2 + 4, words, of[ink], 11))
        x += side + gap
    x += 32
    for step, words in ((4, "4"), (8, "8"), (12, "12")):
        shapes.append(rect(x, margin, 40, 40, of["raised"], corner=0))
        shapes.append(rect(x + 40, margin, step, 40, of["accent"], corner=0))
        shapes.append(rect(x + 40 + step, margin, 16, 40, of["raised"], corner=0))
        shapes.append(text(x + 40 + step / 2, margin + 58, words, of["text"], 12))
        x += 40 + step + 16 + 8
    picture("sizes.svg", 420, 96, shapes)


if __name__ == "__main__":
    table = roles()
    keys(table)
    palette(table)
    sizes(table)
