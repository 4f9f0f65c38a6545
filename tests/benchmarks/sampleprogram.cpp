// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "sampleprogram.h"

QString sampleProgram(int lines)
{
    QString text;
    text.reserve(lines * 36);
    unsigned seed = 12345;
    const auto random = [&seed](int below) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 8) % unsigned(below));
    };
    const auto millimetres = [&random]() {
        return QString::number(random(200000) / 1000.0 - 100, 'f', 3);
    };
    for (int i = 0; i < lines; ++i) {
        if (i > 0)
            text += QLatin1Char('\n');
        text += QLatin1Char('N') + QString::number(i * 10 % 100000);
        text += QLatin1String(i % 7 ? " G01" : " G00");
        text += QLatin1String(" X") + millimetres() + QLatin1String(" Y") + millimetres();
        if (i % 3 == 0)
            text += QLatin1String(" Z") + millimetres();
        if (i % 5 == 0)
            text += QLatin1String(" F") + QString::number(random(3000));
        if (i % 50 == 0)
            text += QLatin1String(" M03 S1200");
        if (i % 97 == 0)
            text += QLatin1String(" ; next turn");
    }
    return text;
}
