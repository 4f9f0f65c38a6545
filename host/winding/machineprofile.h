// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MACHINEPROFILE_H
#define MACHINEPROFILE_H

#include "base/filarixhostglobal.h"
#include "winding/blockreader.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

/// One axis of a machine.
struct FILARIX_HOST_EXPORT MachineAxis
{
    /// What the axis is to a coil. The first four stand once in a machine, and their numbers are
    /// their slots.
    enum Role {
        Traverse,      ///< The guide along the bobbin.
        GuideDistance, ///< The guide from the core.
        GuideHeight,   ///< The guide across both.
        Tension,       ///< The pull on the wire.
        Other
    };

    enum Unit { Millimetres, Degrees, Newtons };

    /// Of all slots: the four roles and five axes besides.
    static const int slotCount = 9;

    /// From 'A' to 'Z'.
    char letter = 0;
    Role role = Other;
    Unit unit = Millimetres;
    /// In the unit; both are allowed.
    double minimum = 0;
    double maximum = 0;
    /// The axis's place in WindingStep::from and WindingStep::to.
    int slot = 0;

    bool allows(double position) const { return position >= minimum && position <= maximum; }
};

/// What one G or M word does.
struct FILARIX_HOST_EXPORT MachineFunction
{
    enum Action {
        Ignored, ///< Known, and nothing to the coil.
        RapidMotion,
        FeedMotion,
        SynchronousMotion, ///< In step with the spindle, by a pitch.
        Dwell,
        Inches,
        Millimetres,
        Absolute,
        Relative,
        SpindleForward,
        SpindleReverse,
        SpindleStop,
        ClampWire,
        CutWire,
        Pause, ///< Waits for the operator.
        ToolChange,
        ProgramEnd
    };

    static const int actionCount = ProgramEnd + 1;

    /// 'G' or 'M'.
    char letter = 0;
    /// The number times ten, as GCodeWord::code().
    int code = 0;
    Action action = Ignored;
    /// Two of one group in a block contradict each other. From 1; 0 for none.
    int group = 0;

    bool isMotion() const { return action >= RapidMotion && action <= SynchronousMotion; }
};

/// The wire. Lengths in mm.
struct FILARIX_HOST_EXPORT MachineWire
{
    /// With its insulation; 0: as wide as the program's first pitch.
    double outerDiameter = 0;
    /// Of the bare conductor; 0: the outer one.
    double conductorDiameter = 0;
    /// In g/cm³.
    double density = 0;
    /// In ohm mm²/m, at 20 °C.
    double resistivity = 0;
};

/// What the coil is wound on. Lengths in mm.
struct FILARIX_HOST_EXPORT MachineBobbin
{
    double coreDiameter = 0;
    /// Between the flanges.
    double width = 0;
    /// The traverse's position at the inner side of the left flange.
    double left = 0;
    double flangeDiameter = 0;

    double right() const { return left + width; }
};

/// What a machine forbids, and what its maker demands of a program.
struct FILARIX_HOST_EXPORT MachineRules
{
    /// Of the spindle, in 1/min; 0 for none.
    double speedLimit = 0;
    /// In newtons, while the spindle turns; 0 for none. The axis has its own limits besides.
    double tensionLimit = 0;
    /// The most that the tension may change from one block to the next, in newtons; 0 for none.
    double tensionJumpLimit = 0;
    /// Of the pitch, in mm; 0 for none.
    double pitchLimit = 0;
    bool mustClamp = false;
    bool mustCut = false;
    bool mustEnd = true;
    /// A program with errors must not be sent, not even after a question.
    bool forbidsSending = false;
};

/// How a machine moves, for the time that a program takes.
struct FILARIX_HOST_EXPORT MachineMotion
{
    /// In mm/min; 0: it takes no time.
    double rapidFeed = 0;
    /// Of the spindle, up and down, in 1/min each second; 0: it takes no time.
    double spindleRamp = 0;
};

/// What the layers of a coil are told by.
struct FILARIX_HOST_EXPORT MachineLayers
{
    /// By what a layer's diameter grows over the one below.
    enum Growth {
        ByGuide,  ///< Twice what the guide drew back; the wire's height where it stood.
        ByWire,   ///< Always twice the wire's diameter.
        ByNesting ///< Always twice 0.866 of it: wires lie in the grooves of the layer below.
    };

    Growth growth = ByGuide;
};

/// What the words of a machine's programs mean, what it winds on, and what it forbids.
///
///     QStringList errors;
///     const MachineProfile profile = MachineProfile::fromFile(path, &errors);
///     if (!errors.isEmpty())
///         ...; // each is a sentence with its line
///
/// A value: copies share their data, and may go to other threads. What a profile doesn't name is
/// unknown to it, and nobody guesses. The page about winding has the file's keys and their units.
class FILARIX_HOST_EXPORT MachineProfile
{
    Q_DECLARE_TR_FUNCTIONS(MachineProfile)

public:
    /// What a word's letter stands for.
    enum Use {
        UnknownUse,
        FunctionUse, ///< G and M.
        AxisUse,
        FeedUse,
        SpeedUse,
        PitchUse,
        ToolUse,
        NumberUse, ///< Of the block. No machine acts upon it.
        DwellUse,  ///< For a dwell alone; see dwellLetter().
        IgnoredUse
    };

    /// A file larger than this is no profile.
    static const int mostBytes = 65536;

    /// Knows nothing; every word is unknown to it.
    MachineProfile();

    /// The machine that the sample programs are for.
    static MachineProfile forSamples();
    /// The profile of a file in the INI format. With a fault in it, all faults come in \a errors,
    /// as sentences for the operator, and what is given back knows nothing. Reads the file in the
    /// calling thread.
    static MachineProfile fromFile(const QString &path, QStringList *errors);
    /// The same from a file's bytes. \a name stands in the sentences.
    static MachineProfile fromText(const QByteArray &text, const QString &name,
                                   QStringList *errors);
    /// The text of the built-in profile, to begin one's own with.
    static QByteArray sampleText();

    /// As an operator knows the machine.
    QString name() const { return m_name; }
    /// Whether it knows any word at all.
    bool isValid() const { return !m_axes.isEmpty(); }

    /// \a letter is from 'A' to 'Z'.
    Use use(char letter) const;
    /// The letter of a dwell's time, which it is in a dwell's block alone: the same may be the
    /// feed's elsewhere. 0 for none.
    char dwellLetter() const { return m_dwellLetter; }
    /// Of one unit of the dwell's word.
    double dwellSeconds() const { return m_dwellSeconds; }

    const QVector<MachineAxis> &axes() const { return m_axes; }
    /// Null for none.
    const MachineAxis *axis(char letter) const;
    /// Null for none. For Other the first one.
    const MachineAxis *axis(MachineAxis::Role role) const;
    /// What "G33" does: 'G' and 330. Null for one that is unknown.
    const MachineFunction *function(char letter, int code) const;
    const MachineFunction *function(const GCodeWord &word) const;
    const QVector<MachineFunction> &functions() const { return m_functions; }
    /// The name of a modal group, as the profile has it; empty for 0.
    QString groupName(int group) const;
    /// Whether a program may ask for the tool; every one where the profile lists none.
    bool hasTool(int number) const;
    /// Bore of a guide tube in mm; 0 where the profile has none.
    double tubeBore(int number) const;

    const MachineWire &wire() const { return m_wire; }
    const MachineBobbin &bobbin() const { return m_bobbin; }
    const MachineRules &rules() const { return m_rules; }
    const MachineMotion &motion() const { return m_motion; }
    const MachineLayers &layers() const { return m_layers; }

    /// The largest outer diameter that IEC 60317-0-1 allows an enamelled round wire, for a nominal
    /// conductor diameter and grade 1 or 2. Both diameters in mm. The result is 0 for a size that
    /// the standard does not have.
    static double iecOuterDiameter(double conductorDiameter, int grade);

private:
    friend class MachineProfileText;

    struct Tool
    {
        int number = 0;
        double bore = 0;
    };

    void addFunction(const MachineFunction &function);
    bool addAxis(MachineAxis axis);
    bool hasListedTool(int number) const;

    QString m_name;
    QVector<MachineAxis> m_axes;
    QVector<MachineFunction> m_functions;
    QStringList m_groups;
    QVector<Tool> m_tools;
    /// By letter, from 'A'.
    QVector<quint8> m_uses;
    /// By code, G before M: 1 and up for the place in m_functions.
    QVector<quint16> m_functionAt;
    char m_dwellLetter = 0;
    double m_dwellSeconds = 1;
    MachineWire m_wire;
    MachineBobbin m_bobbin;
    MachineRules m_rules;
    MachineMotion m_motion;
    MachineLayers m_layers;
};

Q_DECLARE_METATYPE(MachineProfile)

#endif // MACHINEPROFILE_H
