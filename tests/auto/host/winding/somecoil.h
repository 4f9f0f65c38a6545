// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SOMECOIL_H
#define SOMECOIL_H

#include "winding/windingreview.h"

#include <QByteArray>

/// Programs for the samples' machine, and their coils.
namespace SomeCoil {

const double pitch = 0.5;

/// Layers to and fro of so many turns each, at a tension that falls by 0.5 N a layer. The layer n,
/// from 0, is laid by line(n).
inline QByteArray program(int layers, int turns)
{
    QByteArray text = "G21\nG90\nT2\nG00 X0.25 Y14 U5\nM10\nS300 M03\n";
    for (int i = 0; i < layers; ++i) {
        const double end = 0.25 + (i % 2 == 0 ? turns * pitch : 0);
        text += "G01 Y" + QByteArray::number(14 + i * 0.5) + " U" + QByteArray::number(5 - i * 0.5)
                + " F400\n";
        text += "G33 X" + QByteArray::number(end) + " K" + QByteArray::number(pitch) + '\n';
    }
    return text + "M05\nG00 X-5 Y40\nM12\nM30\n";
}

inline int line(int layer)
{
    return 8 + 2 * layer;
}

inline WindingModel model(const QByteArray &text)
{
    ProgramReading reading(MachineProfile::forSamples());
    reading.addBytes(text.constData(), text.size());
    reading.finish();
    return reading.model();
}

inline WindingModel model(int layers, int turns)
{
    return model(program(layers, turns));
}

} // namespace SomeCoil

#endif // SOMECOIL_H
