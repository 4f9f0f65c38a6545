// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WINDINGMODEL_H
#define WINDINGMODEL_H

#include "base/filarixhostglobal.h"
#include "winding/programinterpreter.h"

#include <QMetaType>
#include <QVector>

/// One layer of a coil. Lengths in mm, positions along the bobbin as the traverse has them.
struct FILARIX_HOST_EXPORT WindingLayer
{
    /// The program's lines of the first and the last move that lay it, from 1.
    int firstLine = 0;
    int lastLine = 0;
    /// A program may wind one coil after another: which one, from 0.
    int coil = 0;
    /// Within the coil, from 0 at the core.
    int level = 0;
    /// The way the guide goes first: 1 for up, -1 for down.
    int direction = 1;
    /// Turns that lie below, of this coil and those before.
    double firstTurn = 0;
    double turns = 0;
    /// Of the wire's middle, at the layer's two ends.
    double left = 0;
    double right = 0;
    /// From wire to wire, of the layer's first move.
    double pitch = 0;
    /// Of the guide, when the layer began.
    double guideDistance = 0;
    /// Of the wire's middle round the coil.
    double diameter = 0;
    /// In mm like all of these, where WindingTotals has metres.
    double wireLength = 0;
    /// The wires lie in the grooves of the layer below, or bear one that lies so.
    bool isNested = false;

    double lastTurn() const { return firstTurn + turns; }
};

/// A coil in figures.
struct FILARIX_HOST_EXPORT WindingTotals
{
    int layers = 0;
    int coils = 0;
    double turns = 0;
    /// Turns of the spindle that lay no layer: while the guide stands, ties a wire off, or runs
    /// in haste.
    double looseTurns = 0;
    /// Of all layers, in metres.
    double wireLength = 0;
    /// Of the conductor, in grams.
    double mass = 0;
    /// Of the conductor at 20 °C, in ohm.
    double resistance = 0;
    /// From the first block to the end. Waiting for the operator is not counted.
    double seconds = 0;
    /// The conductor's part of the space between core and flanges, 0 to 1, of the fullest coil.
    double fillFactor = 0;
    /// Of the thickest coil, in mm.
    double outerDiameter = 0;
    /// In mm, as reckoned with: the profile's, or else the first pitch.
    double wireDiameter = 0;
    double conductorDiameter = 0;
    /// In newtons.
    double highestTension = 0;
    /// Of the spindle, in 1/min.
    double highestSpeed = 0;
    /// The first line that winds beyond the flange; 0 for none.
    int overfullLine = 0;
    /// Lines of the program.
    int lines = 0;
};

/// A stretch of the run, from one point on.
struct FILARIX_HOST_EXPORT WindingPlotPoint
{
    /// Turn or second where it begins.
    double at = 0;
    /// The least and the most within, in the unit of the quantity.
    double low = 0;
    double high = 0;
};

/// A place on the guide's path.
struct FILARIX_HOST_EXPORT GuidePoint
{
    /// Traverse and guide's distance, in mm.
    double x = 0;
    double distance = 0;
    /// The line of the move that ends here; the first line of several that were drawn together.
    int line = 0;
    /// The move winds, or went in haste.
    bool isWinding = false;
    bool isRapid = false;
};

/// What one line winds.
struct FILARIX_HOST_EXPORT WindingPlace
{
    /// False for a line that moves nothing and lets no time pass.
    bool isValid = false;
    /// Index in WindingModel::layers(); -1 when the line lays no wire.
    int layer = -1;
    /// The guide's way, in mm.
    double xFrom = 0;
    double xTo = 0;
    double distanceFrom = 0;
    double distanceTo = 0;
    /// Turns that are wound before the line, and behind it.
    double firstTurn = 0;
    double lastTurn = 0;
    /// Since the beginning, in seconds.
    double begin = 0;
    double end = 0;
};

/// The coil that a program winds, and how it is wound.
///
///     WindingModel model(profile);
///     for each line: model.add(interpreter.add(reader.read(line)));
///     model.finish();
///
/// A value: a copy costs next to nothing and may go to another thread. The memory of a model is
/// bounded, however long the program is: beyond mostRecords moves, neighbours are kept together. A
/// place found by line, and a line found by place, are then off by as many moves at most. Totals
/// stay exact. Layers beyond mostLayers are in the totals alone.
class FILARIX_HOST_EXPORT WindingModel
{
public:
    static const int mostRecords = 1 << 18;
    static const int mostLayers = 1 << 16;

    enum Quantity {
        TraversePosition, ///< mm
        GuideDistance,    ///< mm
        Speed,            ///< Of the spindle, in 1/min, with its ramps.
        Tension           ///< N
    };

    enum Over { Turns, Time };

    WindingModel();
    explicit WindingModel(const MachineProfile &profile);

    const MachineProfile &profile() const { return m_profile; }

    /// The next block. Nothing happens in one behind the program's end.
    void add(const WindingStep &step);
    /// There are no more blocks: the last layer is closed. Nothing may be added any more.
    void finish();

    /// From the first one wound. Before finish(), without what is wound at the guide's last
    /// distance from the core: only the next one tells how many layers that makes.
    const QVector<WindingLayer> &layers() const { return m_layers; }
    WindingTotals totals() const;
    /// Of what is wound so far, over the wire, in mm; the core's when nothing is.
    double outerDiameter() const;

    /// The course of \a quantity in \a points stretches of equal length. Empty for a program that
    /// winds nothing (Turns) or takes no time.
    QVector<WindingPlotPoint> plot(Quantity quantity, Over over, int points) const;
    /// The guide's path in at most \a points, from where the guide stands first. Of a longer one,
    /// neighbours are drawn together.
    QVector<GuidePoint> path(int points) const;

    /// \a line is from 1.
    WindingPlace place(int line) const;
    /// The line that lays wire at \a x, in mm, in the layer of this index, or the nearest such
    /// line. The result is 0 when there is no such layer.
    int lineAt(int layer, double x) const;
    /// The line that lays the turn, from 0 on as in WindingLayer::firstTurn; 0 for one that is
    /// none.
    int lineAtTurn(double turn) const;
    /// The line that is at work after so many seconds; 0 for none.
    int lineAtTime(double seconds) const;
    /// Index of the layer to which a turn belongs; -1 for none.
    int layerAtTurn(double turn) const;

private:
    /// Where things stand behind a move, or behind several that are kept together.
    struct Record
    {
        double turns;
        double seconds;
        float x;
        float distance;
        float tension;
        float speed;
        float lowestX;
        float highestX;
        float lowestTension;
        float highestTension;
        float lowestSpeed;
        float highestSpeed;
        int line;
        /// How many moves are kept together, and what they do.
        int moves;
        bool isWinding;
        bool isRapid;
    };

    /// Of one quantity within a record: behind it, and the least and the most.
    struct Span
    {
        double end;
        double low;
        double high;
    };

    double feedLength(const WindingStep &step) const;
    double secondsOfMove(const WindingStep &step) const;
    void followSpindle(const WindingStep &step);
    double spin(double seconds);
    double spinFor(double turns);
    double rampTo(double speed);
    void turnLoose(double turns);
    bool makeMove(const WindingStep &step);
    bool windInStep(const WindingStep &step);
    bool windByFeed(const WindingStep &step);
    bool lay(const WindingStep &step, double turns, double pitch);
    bool isTie(const WindingStep &step, double pitch, bool turnsBack) const;
    bool turnsBack(const WindingStep &step) const;
    void placePass(const WindingStep &step, bool turnsBack);
    void beginCoil(double distance);
    void beginHeight(double distance);
    void beginPass(const WindingStep &step, double pitch);
    void closeHeight(double growth);
    int layersOfHeight(double growth) const;
    double layerStep(double growth, int count) const;
    void joinPasses(int count);
    void addClosingTurn(WindingLayer *layer);
    void closeLayer(const WindingLayer &layer);
    double diameterAt(double distance, int level) const;
    void record(const WindingStep &step, double speedBefore, bool isWinding);
    void append(const Record &record);
    void joinRecords();
    static Record joined(const Record &first, const Record &second);
    static Span spanOf(const Record &record, Quantity quantity);
    static double placeOf(const Record &record, Over over);
    static GuidePoint pointOf(const Record &record, double x);
    void appendGroup(int begin, int end, QVector<GuidePoint> *path) const;
    int recordOfLine(int line) const;

    MachineProfile m_profile;
    QVector<WindingLayer> m_layers;
    QVector<Record> m_records;
    /// Moves that one record keeps together.
    int m_movesPerRecord = 1;
    WindingTotals m_totals;

    /// Of the spindle in 1/min: as it turns, and as it is told to; negative in reverse.
    double m_speed = 0;
    double m_target = 0;

    /// 0 until the first pitch says it.
    double m_wire = 0;
    /// The passes of the guide at the height that is being wound.
    QVector<WindingLayer> m_passes;
    /// Where the last wire was laid, and the way there.
    double m_lastX = 0;
    int m_direction = 0;
    /// Turns while the guide stood where it laid the last wire.
    double m_standing = 0;
    bool m_stands = false;
    bool m_isTying = false;
    /// Distances of the guide: where this coil's first layer and this height began. The last one is
    /// where the height would have begun had the guide drawn back for each layer.
    double m_coreDistance = 0;
    double m_heightDistance = 0;
    double m_baseDistance = 0;
    /// In this coil: layers that are closed, and their turns.
    int m_level = 0;
    double m_coilTurns = 0;
    double m_fullestTurns = 0;
    /// Passes that made one layer at the last height whose growth was seen; 0 before.
    double m_passesPerLayer = 0;
    /// The layer below was nested, or bears one that is.
    bool m_isNestedAbove = false;
};

Q_DECLARE_METATYPE(WindingModel)

#endif // WINDINGMODEL_H
