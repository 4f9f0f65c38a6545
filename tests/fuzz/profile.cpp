// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "winding/machineprofile.h"

#include <cmath>

namespace {

bool isIn(double value, double minimum, double maximum)
{
    return std::isfinite(value) && value >= minimum && value <= maximum;
}

void checkValues(const MachineProfile &profile)
{
    const MachineBobbin &bobbin = profile.bobbin();
    FUZZ_REQUIRE(bobbin.coreDiameter > 0 && bobbin.width > 0);
    FUZZ_REQUIRE(isIn(bobbin.flangeDiameter, bobbin.coreDiameter, 1e6));
    FUZZ_REQUIRE(isIn(profile.wire().density, 0.1, 50));
    FUZZ_REQUIRE(isIn(profile.wire().resistivity, 0.001, 10));
    FUZZ_REQUIRE(isIn(profile.wire().outerDiameter, 0, 1e6));
    FUZZ_REQUIRE(isIn(profile.motion().rapidFeed, 0, 1e6));
    FUZZ_REQUIRE(isIn(profile.motion().spindleRamp, 0, 1e6));
    FUZZ_REQUIRE(isIn(profile.rules().speedLimit, 0, 1e6));
}

void checkWords(const MachineProfile &profile)
{
    quint32 slots = 0;
    for (const MachineAxis &axis : profile.axes()) {
        FUZZ_REQUIRE(axis.slot >= 0 && axis.slot < MachineAxis::slotCount);
        FUZZ_REQUIRE(!(slots & (1u << axis.slot)));
        slots |= 1u << axis.slot;
        FUZZ_REQUIRE(axis.minimum <= axis.maximum);
        FUZZ_REQUIRE(profile.axis(axis.letter) == &axis);
        FUZZ_REQUIRE(profile.use(axis.letter) == MachineProfile::AxisUse);
    }
    for (const MachineFunction &function : profile.functions()) {
        FUZZ_REQUIRE(profile.function(function.letter, function.code) == &function);
        FUZZ_REQUIRE(function.group == 0 || !profile.groupName(function.group).isNull());
    }
    FUZZ_REQUIRE(profile.axis(MachineAxis::Traverse));
}

} // namespace

// The text of a profile: it is whole and makes sense, or it is told what is wrong and gives
// nothing.
void Fuzz::tryInput(QByteArray bytes)
{
    QStringList errors;
    const MachineProfile profile =
        MachineProfile::fromText(bytes, QLatin1String("profile"), &errors);
    FUZZ_REQUIRE(profile.isValid() == errors.isEmpty());
    for (const QString &error : errors)
        FUZZ_REQUIRE(!error.isEmpty());
    if (!profile.isValid()) {
        FUZZ_REQUIRE(profile.functions().isEmpty() && profile.name().isEmpty());
        return;
    }
    checkValues(profile);
    checkWords(profile);
}
