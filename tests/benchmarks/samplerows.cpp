// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "samplerows.h"

QStringList sampleRow(int number)
{
    // From bytes each time, as a host reads its files: no two rows share a string by themselves.
    const auto text = [](const char *bytes) { return QString::fromLatin1(bytes); };
    QStringList row;
    row << text("MJ") << QString::fromLatin1("N%1").arg(number) << text("MOVJ") << text("P")
        << QString::number(number % 40) << text("V") << text("3") << text("Z")
        << QString::number(number % 100) << text("T") << text("0.50") << text("Att")
        << text("wire_left");
    for (int pair = 0; pair < 9; ++pair)
        row << text("J") + QString::number(pair + 1)
            << (pair < 3 ? QString::number(number * 7 % 3600 / 10.0, 'f', 1) : text("120.5"));
    return row;
}
