// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "canonicalmotions.h"

#include "winding/programinterpreter.h"

#include <QList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const double mmPerInch = 25.4;

/// "NAME(1.0, 2.0)": the numbers; empty for another name.
QVector<double> argumentsOf(const QByteArray &line, const QByteArray &name)
{
    QVector<double> arguments;
    const int begin = line.indexOf(' ' + name + '(');
    if (begin < 0)
        return arguments;
    const int open = begin + name.size() + 2;
    for (const QByteArray &number : line.mid(open, line.indexOf(')', open) - open).split(','))
        arguments.append(number.trimmed().toDouble());
    return arguments;
}

} // namespace

CanonicalMotions motionsOfOracle(const QByteArray &answer)
{
    CanonicalMotions motions;
    double pitch = 0;
    int line = 0;
    for (const QByteArray &text : answer.split('\n')) {
        ++line;
        if (text.contains("STOP_SPEED_FEED_SYNCH"))
            pitch = 0;
        const QVector<double> synchronised = argumentsOf(text, "START_SPEED_FEED_SYNC");
        if (!synchronised.isEmpty())
            pitch = synchronised.first();
        const QVector<double> traverse = argumentsOf(text, "STRAIGHT_TRAVERSE");
        const QVector<double> ends =
            traverse.isEmpty() ? argumentsOf(text, "STRAIGHT_FEED") : traverse;
        if (ends.size() < 3)
            continue;
        CanonicalMotion motion;
        motion.kind = !traverse.isEmpty() ? CanonicalMotion::Rapid
                      : pitch > 0         ? CanonicalMotion::Synchronous
                                          : CanonicalMotion::Feed;
        motion.pitch = pitch;
        motion.line = line;
        std::copy(ends.constBegin(), ends.constBegin() + 3, motion.end);
        motions.append(motion);
    }
    return motions;
}

CanonicalMotions motionsOfProgram(const QByteArray &program)
{
    const MachineProfile profile = MachineProfile::forSamples();
    const int places[] = {profile.axis('X')->slot, profile.axis('Y')->slot,
                          profile.axis('Z')->slot};
    BlockReader reader;
    ProgramInterpreter interpreter(profile);
    CanonicalMotions motions;
    for (const QByteArray &line : program.split('\n')) {
        const WindingStep &step = interpreter.add(reader.read(line.constData(), line.size()));
        if (step.motion == MachineFunction::Ignored)
            continue;
        const double unit = step.state.isInches ? mmPerInch : 1;
        CanonicalMotion motion;
        motion.kind = step.motion == MachineFunction::RapidMotion  ? CanonicalMotion::Rapid
                      : step.motion == MachineFunction::FeedMotion ? CanonicalMotion::Feed
                                                                   : CanonicalMotion::Synchronous;
        motion.pitch = step.pitch / unit;
        motion.line = step.line;
        for (int axis = 0; axis < 3; ++axis)
            motion.end[axis] = step.to[places[axis]] / unit;
        motions.append(motion);
    }
    return motions;
}

double distanceOf(const CanonicalMotion &one, const CanonicalMotion &other)
{
    if (one.kind != other.kind)
        return std::numeric_limits<double>::infinity();
    double farthest = std::fabs(one.pitch - other.pitch);
    for (int axis = 0; axis < 3; ++axis)
        farthest = std::fmax(farthest, std::fabs(one.end[axis] - other.end[axis]));
    return farthest;
}
