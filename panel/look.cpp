// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look.h"

QColor Look::ink()
{
    return QColor(0x17, 0x20, 0x2b);
}

QColor Look::paper()
{
    return QColor(0xee, 0xf1, 0xf5);
}

QColor Look::accent()
{
    return QColor(0x1f, 0x7a, 0xe0);
}

QColor Look::alert()
{
    return QColor(0xc9, 0x2a, 0x2a);
}

QColor Look::good()
{
    return QColor(0x2b, 0x8a, 0x3e);
}

QColor Look::changed()
{
    return QColor(0xff, 0xc0, 0x4d);
}

QPalette Look::palette()
{
    QPalette palette(paper());
    palette.setColor(QPalette::Base, Qt::white);
    // The editor marks the current line with it, so it has to differ from the paper in bright
    // light.
    palette.setColor(QPalette::AlternateBase, QColor(0xcf, 0xe3, 0xfb));
    palette.setColor(QPalette::Text, ink());
    palette.setColor(QPalette::WindowText, ink());
    palette.setColor(QPalette::ButtonText, ink());
    palette.setColor(QPalette::Button, QColor(0xdf, 0xe5, 0xec));
    palette.setColor(QPalette::Highlight, accent());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x8a, 0x96, 0xa3));
    return palette;
}

QString Look::stripSheet()
{
    return QLatin1String("#strip { background: #17202b; }"
                         "QLabel, ElidedLabel { color: #ffffff; background: transparent; }"
                         "PanelKey { color: #ffffff; background: #2b3a4a; border: 0;"
                         "  border-radius: 6px; padding: 1px; }"
                         "PanelKey:checked { background: #1f7ae0; }"
                         "PanelKey:pressed { background: #5aa5f5; }"
                         "PanelKey:disabled { color: #7b8b9c; background: #1f2a36; }");
}

QString Look::keyPanelSheet()
{
    return QLatin1String("PanelKey { color: #17202b; background: #ffffff; border: 1px solid"
                         "  #9fb0c2; border-radius: 6px; padding: 1px; }"
                         "PanelKey:checked { color: #ffffff; background: #1f7ae0; }"
                         "PanelKey:pressed { background: #b7d7fb; }"
                         "PanelKey:disabled { color: #9aa6b3; background: #e6ebf0;"
                         "  border-color: #c9d2dc; }");
}
