// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDINGPROGRAM_H
#define WINDINGPROGRAM_H

#include "winding/windingmodel.h"

#include <QByteArray>
#include <QString>

/// Programs for the tests of coils.
namespace WindingProgram {

/// The samples' profile with other lines behind it: a key comes twice then, so \a from gives way
/// first.
inline MachineProfile profileWith(const char *from, const char *to)
{
    QStringList errors;
    QByteArray text = MachineProfile::sampleText();
    if (!text.contains(from))
        qFatal("The samples' profile has no \"%s\".", from);
    text.replace(from, to);
    const MachineProfile profile = MachineProfile::fromText(text, QLatin1String("test"), &errors);
    if (!errors.isEmpty())
        qFatal("%s", qPrintable(errors.join(QLatin1String("\n"))));
    return profile;
}

/// The samples' profile, in which nothing takes time to speed up and no time is lost in haste.
inline MachineProfile promptProfile()
{
    return profileWith("rapid = 6000\nspindle ramp = 600", "rapid = 0\nspindle ramp = 0");
}

/// The coil of a program, finished.
inline WindingModel modelOf(const QByteArray &program,
                            const MachineProfile &profile = MachineProfile::forSamples())
{
    BlockReader reader;
    ProgramInterpreter interpreter(profile);
    WindingModel model(profile);
    int begin = 0;
    while (begin < program.size()) {
        const int found = program.indexOf('\n', begin);
        const int end = found < 0 ? program.size() : found;
        model.add(interpreter.add(reader.read(program.constData() + begin, end - begin)));
        begin = end + 1;
    }
    model.finish();
    return model;
}

} // namespace WindingProgram

#endif // WINDINGPROGRAM_H
