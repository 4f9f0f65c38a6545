// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/windingmodel.h"

#include <algorithm>
#include <cmath>

namespace {

const double pi = 3.14159265358979323846;
const double secondsPerMinute = 60;
const double mmPerMetre = 1000;
// Round wires in the grooves of the layer below lie so much higher, in diameters: half the root
// of 3.
const double nestedHeight = 0.86602540378443865;
// In diameters: a layer that is lower lies in grooves, and one that is lower still is none.
const double squareHeight = (1 + nestedHeight) / 2;
const double leastHeight = 0.5;
// A coil begins anew where the guide is back at the core up to so many diameters.
const double coreTolerance = 0.25;
// A pass back over the layer is a tie where its pitch is wider than the layer's by this factor.
const double tieFactor = 1.5;
// With a wider pitch, in diameters, a feed motion only brings the guide to its place.
const double widestLay = 3;
// The first pitch is none of a wire where it is wider, in mm.
const double widestWire = 5.1;
// A nested layer has its last turn beside the flange, if the guide waits there for that.
const double closingTurn = 1;
const double leastStanding = 0.5;
// What sums of the guide's ways may be off by, in mm.
const double rounding = 1e-6;
// At one distance of the guide; more are layers of their own.
const int mostPasses = 4096;

double sumOfSquares(const WindingStep &step, const QVector<MachineAxis> &axes, bool isLength)
{
    double sum = 0;
    for (const MachineAxis &axis : axes) {
        if ((axis.unit == MachineAxis::Millimetres) != isLength)
            continue;
        const double way = step.to[axis.slot] - step.from[axis.slot];
        sum += way * way;
    }
    return sum;
}

/// Turns while the speed changes evenly, whatever the direction. Speeds are in 1/min.
double turnsOfRamp(double from, double to, double seconds)
{
    if ((from < 0) == (to < 0) || from == 0 || to == 0)
        return (std::fabs(from) + std::fabs(to)) / 2 * seconds / secondsPerMinute;
    const double part = std::fabs(from) / (std::fabs(from) + std::fabs(to));
    return (std::fabs(from) * part + std::fabs(to) * (1 - part)) / 2 * seconds / secondsPerMinute;
}

/// Seconds or turns in which a spindle comes from one speed to another, by so much each second.
double lengthOfRamp(double from, double to, double ramp, WindingModel::Over over)
{
    const double seconds = ramp > 0 ? std::fabs(to - from) / ramp : 0;
    return over == WindingModel::Time ? seconds : turnsOfRamp(from, to, seconds);
}

double lengthOfTurns(const WindingLayer &layer, double turns)
{
    return turns * std::sqrt(pi * layer.diameter * pi * layer.diameter + layer.pitch * layer.pitch);
}

double conductorArea(double diameter)
{
    return pi / 4 * diameter * diameter;
}

/// The least and the most of a course in stretches of equal length.
class Plot
{
public:
    Plot(double whole, int count) : m_whole(whole), m_points(count), m_isSet(count)
    {
        for (int i = 0; i < count; ++i)
            m_points[i].at = whole * i / count;
    }

    void addValue(double at, double value) { addAt(stretchOf(at), value); }
    void addLine(double from, double fromValue, double to, double toValue);
    QVector<WindingPlotPoint> points() const { return m_points; }

private:
    int stretchOf(double at) const
    {
        return qBound(0, int(at / m_whole * m_points.size()), m_points.size() - 1);
    }
    void addAt(int stretch, double value);

    const double m_whole;
    QVector<WindingPlotPoint> m_points;
    QVector<bool> m_isSet;
};

void Plot::addLine(double from, double fromValue, double to, double toValue)
{
    const int first = stretchOf(from);
    const int last = stretchOf(to);
    addAt(first, fromValue);
    for (int i = first + 1; i <= last; ++i) {
        const double value =
            fromValue + (toValue - fromValue) * (m_points.at(i).at - from) / (to - from);
        addAt(i - 1, value);
        addAt(i, value);
    }
    addAt(last, toValue);
}

void Plot::addAt(int stretch, double value)
{
    WindingPlotPoint &point = m_points[stretch];
    point.low = m_isSet.at(stretch) ? std::min(point.low, value) : value;
    point.high = m_isSet.at(stretch) ? std::max(point.high, value) : value;
    m_isSet[stretch] = true;
}

} // namespace

WindingModel::WindingModel() = default;

WindingModel::WindingModel(const MachineProfile &profile)
    : m_profile(profile), m_wire(profile.wire().outerDiameter)
{}

void WindingModel::add(const WindingStep &step)
{
    m_totals.lines = step.line;
    if (step.isBehindEnd)
        return;
    const double secondsBefore = m_totals.seconds;
    const double speedBefore = m_speed;
    followSpindle(step);
    if (step.dwellSeconds > 0)
        turnLoose(spin(step.dwellSeconds));
    const bool isWinding = step.motion != MachineFunction::Ignored && makeMove(step);
    if (step.motion != MachineFunction::Ignored || m_totals.seconds > secondsBefore)
        record(step, speedBefore, isWinding);
}

void WindingModel::finish()
{
    closeHeight(0);
}

void WindingModel::followSpindle(const WindingStep &step)
{
    m_target = step.state.turning();
    // Nothing else happens before the spindle stands.
    if (step.does(MachineFunction::SpindleStop))
        turnLoose(rampTo(m_target));
    if (m_profile.motion().spindleRamp <= 0)
        m_speed = m_target;
}

/// Brings the spindle to a speed; gives back the turns until then.
double WindingModel::rampTo(double speed)
{
    const double ramp = m_profile.motion().spindleRamp;
    const double seconds = ramp > 0 ? std::fabs(speed - m_speed) / ramp : 0;
    const double turns = turnsOfRamp(m_speed, speed, seconds);
    m_totals.seconds += seconds;
    m_speed = speed;
    return turns;
}

/// Lets time pass; gives back the turns.
double WindingModel::spin(double seconds)
{
    const double ramp = m_profile.motion().spindleRamp;
    const double change = m_target - m_speed;
    const double needed = ramp > 0 ? std::fabs(change) / ramp : 0;
    if (needed > seconds)
        return rampTo(m_speed + change * seconds / needed);
    const double turns = rampTo(m_target);
    m_totals.seconds += seconds - needed;
    return turns + std::fabs(m_target) / secondsPerMinute * (seconds - needed);
}

/// Lets so many turns pass, up to which the spindle follows its ramp; gives back the seconds. The
/// spindle is told to turn.
double WindingModel::spinFor(double turns)
{
    const double before = m_totals.seconds;
    if ((m_speed < 0) != (m_target < 0))
        turnLoose(rampTo(0));
    const double ramp = m_profile.motion().spindleRamp;
    const double target = std::fabs(m_target);
    const double speed = std::fabs(m_speed);
    const double squares = target * target - speed * speed;
    // Of an even ramp: twice the turns by the change of speed each minute.
    const double rampTurns = ramp > 0 ? std::fabs(squares) / (2 * ramp * secondsPerMinute) : 0;
    if (rampTurns > turns) {
        const double reached =
            std::sqrt(std::max(0.0, speed * speed + squares * turns / rampTurns));
        rampTo(m_target < 0 ? -reached : reached);
    } else {
        rampTo(m_target);
        m_totals.seconds += (turns - rampTurns) * secondsPerMinute / target;
    }
    return m_totals.seconds - before;
}

void WindingModel::turnLoose(double turns)
{
    m_totals.looseTurns += turns;
    if (m_stands)
        m_standing += turns;
}

double WindingModel::feedLength(const WindingStep &step) const
{
    const double lengths = sumOfSquares(step, m_profile.axes(), true);
    return std::sqrt(lengths > 0 ? lengths : sumOfSquares(step, m_profile.axes(), false));
}

double WindingModel::secondsOfMove(const WindingStep &step) const
{
    const double feed =
        step.motion == MachineFunction::RapidMotion ? m_profile.motion().rapidFeed : step.feed;
    return feed > 0 ? feedLength(step) / feed * secondsPerMinute : 0;
}

/// Whether wire is laid.
bool WindingModel::makeMove(const WindingStep &step)
{
    const bool isWinding = step.isWinding();
    if (isWinding && step.motion == MachineFunction::SynchronousMotion)
        return step.pitch > 0 && windInStep(step);
    if (step.motion == MachineFunction::SynchronousMotion)
        return false;
    if (isWinding && step.feed > 0)
        return windByFeed(step);
    const double turns = spin(secondsOfMove(step));
    if (step.moves(MachineAxis::Traverse))
        m_stands = false;
    turnLoose(turns);
    return false;
}

bool WindingModel::windInStep(const WindingStep &step)
{
    const double way = step.to[MachineAxis::Traverse] - step.from[MachineAxis::Traverse];
    const double turns = std::fabs(way) / step.pitch;
    spinFor(turns);
    return lay(step, turns, step.pitch);
}

bool WindingModel::windByFeed(const WindingStep &step)
{
    const double way = step.to[MachineAxis::Traverse] - step.from[MachineAxis::Traverse];
    const double seconds = secondsOfMove(step);
    const double turns = spin(seconds);
    // What the program means: the wire lies wider only until the spindle has come up to its speed.
    const double steady = std::fabs(m_target) / secondsPerMinute * seconds;
    const double pitch = steady > 0 ? std::fabs(way) / steady : 0;
    const bool isPlacing = m_wire > 0 ? pitch > widestLay * m_wire : pitch > widestWire;
    if (pitch > 0 && !isPlacing)
        return lay(step, turns, pitch);
    m_stands = false;
    turnLoose(turns);
    return false;
}

bool WindingModel::lay(const WindingStep &step, double turns, double pitch)
{
    if (m_wire <= 0 && pitch <= widestWire)
        m_wire = pitch;
    const bool isBack = turnsBack(step);
    m_isTying = m_wire <= 0 || isTie(step, pitch, isBack);
    if (m_isTying) {
        m_stands = false;
        turnLoose(turns);
        return false;
    }
    placePass(step, isBack);
    if (m_passes.isEmpty() || isBack)
        beginPass(step, pitch);
    WindingLayer &pass = m_passes.last();
    const double from = step.from[MachineAxis::Traverse];
    const double to = step.to[MachineAxis::Traverse];
    pass.left = std::min(pass.left, std::min(from, to));
    pass.right = std::max(pass.right, std::max(from, to));
    pass.turns += turns;
    pass.lastLine = step.line;
    m_totals.turns += turns;
    m_lastX = to;
    m_direction = to > from ? 1 : -1;
    m_standing = 0;
    m_stands = true;
    return true;
}

/// A few wide turns over the layer, at its distance: they hold the end of the wire, and make no
/// layer.
bool WindingModel::isTie(const WindingStep &step, double pitch, bool turnsBack) const
{
    if (m_passes.isEmpty() || (!turnsBack && !m_isTying))
        return false;
    const double growth = step.from[MachineAxis::GuideDistance] - m_heightDistance;
    return pitch >= tieFactor * m_passes.first().pitch && growth < leastHeight * m_wire;
}

/// Whether the wire goes back over what was laid last: by a guide that goes the other way, or that
/// was brought back.
bool WindingModel::turnsBack(const WindingStep &step) const
{
    if (m_passes.isEmpty())
        return false;
    const double from = step.from[MachineAxis::Traverse];
    const int direction = step.to[MachineAxis::Traverse] > from ? 1 : -1;
    return direction != m_direction || (m_lastX - from) * direction > leastHeight * m_wire;
}

/// Closes the height below where the guide has drawn back from it, or has come back to the core.
void WindingModel::placePass(const WindingStep &step, bool turnsBack)
{
    const double distance = step.from[MachineAxis::GuideDistance];
    if (m_totals.coils == 0) {
        beginCoil(distance);
        return;
    }
    if (!turnsBack)
        return;
    const double growth = distance - m_heightDistance;
    const bool isAtCore = distance <= m_coreDistance + coreTolerance * m_wire;
    if (growth <= -leastHeight * m_wire && isAtCore) {
        closeHeight(0);
        beginCoil(distance);
    } else if (growth >= leastHeight * m_wire) {
        closeHeight(growth);
        beginHeight(distance);
    } else if (m_profile.layers().growth != MachineLayers::ByGuide
               || m_passes.size() >= mostPasses) {
        closeHeight(0);
    }
}

void WindingModel::beginCoil(double distance)
{
    ++m_totals.coils;
    m_coreDistance = m_baseDistance = distance;
    m_level = 0;
    m_coilTurns = 0;
    m_isNestedAbove = false;
    beginHeight(distance);
}

void WindingModel::beginHeight(double distance)
{
    m_heightDistance = distance;
}

void WindingModel::beginPass(const WindingStep &step, double pitch)
{
    WindingLayer pass;
    pass.firstLine = step.line;
    pass.coil = m_totals.coils - 1;
    pass.left = pass.right = step.from[MachineAxis::Traverse];
    pass.direction = step.to[MachineAxis::Traverse] > pass.left ? 1 : -1;
    pass.firstTurn = m_totals.turns;
    pass.pitch = pitch;
    pass.guideDistance = step.from[MachineAxis::GuideDistance];
    m_passes.append(pass);
}

/// Makes layers of the passes at one height. \a growth is how far the guide has drawn back since,
/// in mm; 0 where nothing tells.
void WindingModel::closeHeight(double growth)
{
    if (m_passes.isEmpty())
        return;
    const int passes = m_passes.size();
    const int count = layersOfHeight(growth);
    const double step = layerStep(growth, count);
    const double diameter = diameterAt(m_heightDistance, m_level);
    const bool isNestedBelow = m_isNestedAbove;
    const bool isAlwaysNested = m_profile.layers().growth == MachineLayers::ByNesting;
    m_isNestedAbove = growth > 0 && step < squareHeight * m_wire;
    if (growth > 0)
        m_passesPerLayer = double(passes) / count;
    joinPasses(count);
    for (int i = 0; i < count; ++i) {
        WindingLayer &layer = m_passes[i];
        layer.level = m_level++;
        layer.diameter = diameter + 2 * i * step;
        layer.isNested = m_isNestedAbove || isNestedBelow || isAlwaysNested;
        if (i == count - 1)
            addClosingTurn(&layer);
        layer.wireLength = lengthOfTurns(layer, layer.turns);
        closeLayer(layer);
    }
    // Where nothing tells, the coil goes on where the passes end.
    if (growth <= 0)
        m_baseDistance -= count * step;
    m_passes.clear();
}

int WindingModel::layersOfHeight(double growth) const
{
    const int passes = m_passes.size();
    double count = passes;
    if (growth > 0)
        count = growth / (squareHeight * m_wire);
    else if (m_passesPerLayer > 0)
        count = passes / m_passesPerLayer;
    return qBound(1, int(std::floor(std::min(count, double(passes)) + 0.5)), passes);
}

/// From the middle of one layer to the next, in mm.
double WindingModel::layerStep(double growth, int count) const
{
    if (m_profile.layers().growth == MachineLayers::ByNesting)
        return nestedHeight * m_wire;
    const bool isByGuide = m_profile.layers().growth == MachineLayers::ByGuide;
    return isByGuide && growth > 0 ? growth / count : m_wire;
}

double WindingModel::diameterAt(double distance, int level) const
{
    const double first = m_profile.bobbin().coreDiameter + m_wire;
    switch (m_profile.layers().growth) {
    case MachineLayers::ByWire:
        return first + 2 * level * m_wire;
    case MachineLayers::ByNesting:
        return first + 2 * level * nestedHeight * m_wire;
    case MachineLayers::ByGuide:
        break;
    }
    return first + 2 * (distance - m_baseDistance);
}

/// The first passes become one where there are more than layers.
void WindingModel::joinPasses(int count)
{
    const int joined = m_passes.size() - count;
    WindingLayer &first = m_passes.first();
    for (int i = 1; i <= joined; ++i) {
        const WindingLayer &pass = m_passes.at(i);
        first.lastLine = pass.lastLine;
        first.turns += pass.turns;
        first.left = std::min(first.left, pass.left);
        first.right = std::max(first.right, pass.right);
    }
    m_passes.erase(m_passes.begin() + 1, m_passes.begin() + 1 + joined);
}

/// In grooves the guide makes no way in the last turn: the wire lies beside the flange and climbs.
void WindingModel::addClosingTurn(WindingLayer *layer)
{
    if (!layer->isNested || m_standing < leastStanding)
        return;
    layer->turns += closingTurn;
    m_totals.turns += closingTurn;
    m_totals.looseTurns -= std::min(closingTurn, m_standing);
    // The move that came last has wound the turn, at the latest.
    if (!m_records.isEmpty())
        m_records.last().turns = m_totals.turns;
}

void WindingModel::closeLayer(const WindingLayer &layer)
{
    const double outer = layer.diameter + m_wire;
    ++m_totals.layers;
    m_totals.wireLength += layer.wireLength / mmPerMetre;
    m_totals.outerDiameter = std::max(m_totals.outerDiameter, outer);
    m_coilTurns += layer.turns;
    m_fullestTurns = std::max(m_fullestTurns, m_coilTurns);
    if (outer > m_profile.bobbin().flangeDiameter + rounding && m_totals.overfullLine == 0)
        m_totals.overfullLine = layer.firstLine;
    if (m_layers.size() < mostLayers)
        m_layers.append(layer);
}

WindingTotals WindingModel::totals() const
{
    WindingTotals totals = m_totals;
    const MachineWire &wire = m_profile.wire();
    const MachineBobbin &bobbin = m_profile.bobbin();
    totals.wireDiameter = m_wire;
    totals.conductorDiameter = wire.conductorDiameter > 0 ? wire.conductorDiameter : m_wire;
    totals.outerDiameter = outerDiameter();
    const double area = conductorArea(totals.conductorDiameter);
    const double space = bobbin.width * (bobbin.flangeDiameter - bobbin.coreDiameter) / 2;
    totals.mass = totals.wireLength * area * wire.density;
    totals.resistance = area > 0 ? totals.wireLength * wire.resistivity / area : 0;
    totals.fillFactor = space > 0 ? m_fullestTurns * area / space : 0;
    return totals;
}

double WindingModel::outerDiameter() const
{
    const double below = std::max(m_totals.outerDiameter, m_profile.bobbin().coreDiameter);
    if (m_passes.isEmpty())
        return below;
    return std::max(below, diameterAt(m_heightDistance, m_level) + m_wire);
}

void WindingModel::record(const WindingStep &step, double speedBefore, bool isWinding)
{
    const double speed = std::fabs(m_speed);
    const double before = std::fabs(speedBefore);
    const double xFrom = step.from[MachineAxis::Traverse];
    const double xTo = step.to[MachineAxis::Traverse];
    const double tensionFrom = step.from[MachineAxis::Tension];
    const double tensionTo = step.to[MachineAxis::Tension];
    Record record;
    record.turns = m_totals.turns;
    record.seconds = m_totals.seconds;
    record.x = float(xTo);
    record.distance = float(step.to[MachineAxis::GuideDistance]);
    record.tension = float(tensionTo);
    record.speed = float(speed);
    record.lowestX = float(std::min(xFrom, xTo));
    record.highestX = float(std::max(xFrom, xTo));
    record.lowestTension = float(std::min(tensionFrom, tensionTo));
    record.highestTension = float(std::max(tensionFrom, tensionTo));
    record.lowestSpeed = float(std::min(before, speed));
    record.highestSpeed = float(std::max(before, speed));
    record.line = step.line;
    record.moves = 1;
    record.isWinding = isWinding;
    record.isRapid = step.motion == MachineFunction::RapidMotion;
    m_totals.highestTension = std::max(m_totals.highestTension, std::max(tensionFrom, tensionTo));
    m_totals.highestSpeed = std::max(m_totals.highestSpeed, std::max(before, speed));
    append(record);
}

void WindingModel::append(const Record &record)
{
    if (m_records.isEmpty() || m_records.last().moves >= m_movesPerRecord) {
        if (m_records.size() == mostRecords)
            joinRecords();
        m_records.append(record);
        return;
    }
    m_records.last() = joined(m_records.last(), record);
}

/// Makes room by keeping each two neighbours together.
void WindingModel::joinRecords()
{
    const int half = m_records.size() / 2;
    for (int i = 0; i < half; ++i)
        m_records[i] = joined(m_records.at(2 * i), m_records.at(2 * i + 1));
    m_records.resize(half);
    m_movesPerRecord *= 2;
}

WindingModel::Record WindingModel::joined(const Record &first, const Record &second)
{
    Record record = second;
    record.line = first.line;
    record.moves = first.moves + second.moves;
    record.lowestX = std::min(first.lowestX, second.lowestX);
    record.highestX = std::max(first.highestX, second.highestX);
    record.lowestTension = std::min(first.lowestTension, second.lowestTension);
    record.highestTension = std::max(first.highestTension, second.highestTension);
    record.lowestSpeed = std::min(first.lowestSpeed, second.lowestSpeed);
    record.highestSpeed = std::max(first.highestSpeed, second.highestSpeed);
    record.isWinding = first.isWinding || second.isWinding;
    record.isRapid = first.isRapid && second.isRapid;
    return record;
}

WindingModel::Span WindingModel::spanOf(const Record &record, Quantity quantity)
{
    switch (quantity) {
    case TraversePosition:
        return {record.x, record.lowestX, record.highestX};
    case GuideDistance:
        return {record.distance, record.distance, record.distance};
    case Speed:
        return {record.speed, record.lowestSpeed, record.highestSpeed};
    case Tension:
        break;
    }
    return {record.tension, record.lowestTension, record.highestTension};
}

double WindingModel::placeOf(const Record &record, Over over)
{
    return over == Turns ? record.turns : record.seconds;
}

QVector<WindingPlotPoint> WindingModel::plot(Quantity quantity, Over over, int points) const
{
    const double whole = m_records.isEmpty() ? 0 : placeOf(m_records.last(), over);
    if (whole <= 0 || points <= 0)
        return QVector<WindingPlotPoint>();
    Plot plot(whole, points);
    const double ramp = m_profile.motion().spindleRamp;
    double before = 0;
    // The spindle stands at first.
    double value = quantity == Speed ? 0 : spanOf(m_records.first(), quantity).end;
    for (const Record &record : m_records) {
        const Span span = spanOf(record, quantity);
        const double at = placeOf(record, over);
        double bend = at;
        // A long move is wound at one speed, once the spindle has come up to it.
        if (quantity == Speed && record.moves == 1)
            bend = std::min(at, before + lengthOfRamp(value, span.end, ramp, over));
        plot.addLine(before, value, bend, span.end);
        if (bend < at)
            plot.addLine(bend, span.end, at, span.end);
        // What is kept together has its least and its most somewhere between; one move has them at
        // its ends, where the line is.
        if (record.moves > 1) {
            plot.addValue(at, span.low);
            plot.addValue(at, span.high);
        }
        before = at;
        value = span.end;
    }
    return plot.points();
}

QVector<GuidePoint> WindingModel::path(int points) const
{
    QVector<GuidePoint> path;
    if (points <= 0)
        return path;
    // Two points stand for a group: the guide's least and highest position.
    const int size = m_records.size();
    const int group = size <= points ? 1 : 2 * (size / points + 1);
    for (int i = 0; i < size; i += group) {
        if (group == 1)
            path.append(pointOf(m_records.at(i), m_records.at(i).x));
        else
            appendGroup(i, qMin(size, i + group), &path);
    }
    return path;
}

GuidePoint WindingModel::pointOf(const Record &record, double x)
{
    GuidePoint point;
    point.x = x;
    point.distance = record.distance;
    point.line = record.line;
    point.isWinding = record.isWinding;
    point.isRapid = record.isRapid;
    return point;
}

void WindingModel::appendGroup(int begin, int end, QVector<GuidePoint> *path) const
{
    int lowest = begin;
    int highest = begin;
    for (int i = begin + 1; i < end; ++i) {
        if (m_records.at(i).lowestX < m_records.at(lowest).lowestX)
            lowest = i;
        if (m_records.at(i).highestX > m_records.at(highest).highestX)
            highest = i;
    }
    const Record &low = m_records.at(lowest);
    const Record &high = m_records.at(highest);
    const bool isLowFirst = lowest < highest || (lowest == highest && high.x > low.lowestX);
    path->append(isLowFirst ? pointOf(low, low.lowestX) : pointOf(high, high.highestX));
    path->append(isLowFirst ? pointOf(high, high.highestX) : pointOf(low, low.lowestX));
}

/// Index of the record that keeps the line; -1 for none.
int WindingModel::recordOfLine(int line) const
{
    const auto behind =
        std::upper_bound(m_records.constBegin(), m_records.constEnd(), line,
                         [](int wanted, const Record &record) { return wanted < record.line; });
    const int index = int(behind - m_records.constBegin()) - 1;
    if (index < 0)
        return -1;
    const Record &record = m_records.at(index);
    return record.line == line || record.moves > 1 ? index : -1;
}

WindingPlace WindingModel::place(int line) const
{
    WindingPlace place;
    const int index = recordOfLine(line);
    if (index < 0)
        return place;
    const Record &record = m_records.at(index);
    const Record before = index > 0 ? m_records.at(index - 1) : Record();
    place.isValid = true;
    place.xFrom = before.x;
    place.xTo = record.x;
    place.distanceFrom = before.distance;
    place.distanceTo = record.distance;
    place.firstTurn = before.turns;
    place.lastTurn = record.turns;
    place.begin = before.seconds;
    place.end = record.seconds;
    if (record.isWinding)
        place.layer = layerAtTurn((before.turns + record.turns) / 2);
    return place;
}

int WindingModel::lineAt(int layer, double x) const
{
    if (layer < 0 || layer >= m_layers.size())
        return 0;
    const WindingLayer &wanted = m_layers.at(layer);
    int line = wanted.firstLine;
    double nearest = -1;
    for (int i = qMax(0, recordOfLine(wanted.firstLine)); i < m_records.size(); ++i) {
        const Record &record = m_records.at(i);
        if (record.line > wanted.lastLine)
            break;
        if (!record.isWinding)
            continue;
        const double off = std::max(0.0, std::max(record.lowestX - x, x - record.highestX));
        if (nearest < 0 || off < nearest) {
            nearest = off;
            line = record.line;
        }
    }
    return line;
}

int WindingModel::lineAtTurn(double turn) const
{
    if (turn < 0 || turn > m_totals.turns)
        return 0;
    auto record = std::upper_bound(m_records.constBegin(), m_records.constEnd(), turn,
                                   [](double wanted, const Record &r) { return wanted < r.turns; });
    // The closing turns of a layer belong to the move before.
    if (record == m_records.constEnd() || !record->isWinding)
        while (record != m_records.constBegin() && (--record)->isWinding == false)
            continue;
    return record != m_records.constEnd() && record->isWinding ? record->line : 0;
}

int WindingModel::lineAtTime(double seconds) const
{
    if (seconds < 0)
        return 0;
    const auto record =
        std::upper_bound(m_records.constBegin(), m_records.constEnd(), seconds,
                         [](double wanted, const Record &r) { return wanted < r.seconds; });
    return record != m_records.constEnd() ? record->line : 0;
}

int WindingModel::layerAtTurn(double turn) const
{
    const auto behind =
        std::upper_bound(m_layers.constBegin(), m_layers.constEnd(), turn,
                         [](double wanted, const WindingLayer &l) { return wanted < l.firstTurn; });
    const int index = int(behind - m_layers.constBegin()) - 1;
    return index >= 0 && turn <= m_layers.at(index).lastTurn() ? index : -1;
}
