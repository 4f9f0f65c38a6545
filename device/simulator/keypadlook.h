// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADLOOK_H
#define KEYPADLOOK_H

#include <QApplication>
#include <QPalette>
#include <QVariant>

#include <cmath>

/// What the keypads take over from the host: whether they are light, dark or of high contrast,
/// which its palette tells, and by properties of the application how large things are.
namespace KeypadLook {

/// Wide enough for a finger on a small screen: 10 mm at 96 dpi.
const int fingerSize = 38;
/// What a glove needs to touch one key and no other.
const double gloveMm = 9;
const double mmPerInch = 25.4;
/// That of most panels, for a host that tells none.
const double usualDotsPerInch = 133;
const double fewestDotsPerInch = 50;
const double mostDotsPerInch = 400;
/// In percent.
const int usualTextSize = 100;
const int largestTextSize = 150;

/// In the order in which the tables of colours have them.
enum Look { Light, Dark, HighContrast };

/// Black on white is what a host chooses for glare; any other light palette is for usual light.
inline Look look()
{
    const QPalette palette = QApplication::palette();
    const QColor &ground = palette.color(QPalette::Window);
    const QColor &text = palette.color(QPalette::WindowText);
    if (ground.lightness() < text.lightness())
        return Dark;
    return ground == QColor(Qt::white) && text == QColor(Qt::black) ? HighContrast : Light;
}

/// The smallest side in pixels of a key for a glove, by the property hmiDotsPerInch.
inline int gloveSize()
{
    const double named = qApp->property("hmiDotsPerInch").toDouble();
    const bool isSensible = named >= fewestDotsPerInch && named <= mostDotsPerInch;
    const double dotsPerInch = isSensible ? named : usualDotsPerInch;
    return qMax(fingerSize, int(std::ceil(gloveMm / mmPerInch * dotsPerInch)));
}

/// \a pixels of a letter at the size of texts that the property hmiTextSize names in percent.
inline int letters(int pixels)
{
    const int named = qApp->property("hmiTextSize").toInt();
    return pixels * qBound(usualTextSize, named, largestTextSize) / usualTextSize;
}

} // namespace KeypadLook

#endif // KEYPADLOOK_H
