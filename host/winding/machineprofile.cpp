// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "winding/machineprofile.h"

#include "base/hostcompat.h"

#include <QFile>
#include <QFileInfo>

namespace {

const int letters = 26;
const int codes = 10000;
const int mostErrors = 20;
const double copperDensity = 8.89;
const double copperResistivity = 0.017241;
const double aluminiumDensity = 2.703;
const double aluminiumResistivity = 0.028264;
// Wide enough for any machine, and narrow enough for sums to stay exact.
const double mostMillimetres = 100000;
const double mostLimit = 1000000;

const char sampleProfile[] = "; The machine that the sample programs are for.\n"
                             "[profile]\n"
                             "name = Sample machine\n"
                             "\n"
                             "[axes]\n"
                             "; letter = role, unit, minimum, maximum\n"
                             "X = traverse, mm, -10, 60\n"
                             "Y = guide distance, mm, 0, 80\n"
                             "Z = guide height, mm, -20, 40\n"
                             "U = tension, N, 0, 10\n"
                             "\n"
                             "[functions]\n"
                             "; word = action, modal group\n"
                             "G0 = rapid, motion\n"
                             "G1 = feed, motion\n"
                             "G4 = dwell, motion\n"
                             "G20 = inches, units\n"
                             "G21 = millimetres, units\n"
                             "G33 = synchronous, motion\n"
                             "G90 = absolute, positions\n"
                             "G91 = relative, positions\n"
                             "M0 = pause, stop\n"
                             "M2 = end, stop\n"
                             "M3 = spindle forward, spindle\n"
                             "M4 = spindle reverse, spindle\n"
                             "M5 = spindle stop, spindle\n"
                             "M6 = tool change\n"
                             "M10 = clamp wire, wire\n"
                             "M12 = cut wire, wire\n"
                             "M30 = end, stop\n"
                             "\n"
                             "[words]\n"
                             "F = feed\n"
                             "S = speed\n"
                             "K = pitch\n"
                             "T = tool\n"
                             "N = number\n"
                             "dwell = F\n"
                             "dwell unit = s\n"
                             "\n"
                             "[tools]\n"
                             "; number = bore of the guide tube, mm\n"
                             "1 = 0.25\n"
                             "2 = 0.60\n"
                             "\n"
                             "[wire]\n"
                             "; mm, or pitch: as wide as the first pitch of a program\n"
                             "diameter = pitch\n"
                             "metal = copper\n"
                             "\n"
                             "[bobbin]\n"
                             "core = 13\n"
                             "width = 38\n"
                             "left = 0\n"
                             "flange = 100\n"
                             "\n"
                             "[limits]\n"
                             "speed = 1000\n"
                             "tension = 8\n"
                             "tension jump = 6\n"
                             "pitch = 5\n"
                             "\n"
                             "[rules]\n"
                             "clamp = required\n"
                             "cut = required\n"
                             "end = required\n"
                             "errors = ask\n"
                             "\n"
                             "[motion]\n"
                             "rapid = 6000\n"
                             "spindle ramp = 600\n"
                             "\n"
                             "[layers]\n"
                             "growth = guide\n";

struct Choice
{
    const char *name;
    int value;
};

const Choice roles[] = {{"traverse", MachineAxis::Traverse},
                        {"guide distance", MachineAxis::GuideDistance},
                        {"guide height", MachineAxis::GuideHeight},
                        {"tension", MachineAxis::Tension},
                        {"other", MachineAxis::Other}};
const Choice units[] = {
    {"mm", MachineAxis::Millimetres}, {"deg", MachineAxis::Degrees}, {"N", MachineAxis::Newtons}};
const Choice actions[] = {{"ignored", MachineFunction::Ignored},
                          {"rapid", MachineFunction::RapidMotion},
                          {"feed", MachineFunction::FeedMotion},
                          {"synchronous", MachineFunction::SynchronousMotion},
                          {"dwell", MachineFunction::Dwell},
                          {"inches", MachineFunction::Inches},
                          {"millimetres", MachineFunction::Millimetres},
                          {"absolute", MachineFunction::Absolute},
                          {"relative", MachineFunction::Relative},
                          {"spindle forward", MachineFunction::SpindleForward},
                          {"spindle reverse", MachineFunction::SpindleReverse},
                          {"spindle stop", MachineFunction::SpindleStop},
                          {"clamp wire", MachineFunction::ClampWire},
                          {"cut wire", MachineFunction::CutWire},
                          {"pause", MachineFunction::Pause},
                          {"tool change", MachineFunction::ToolChange},
                          {"end", MachineFunction::ProgramEnd}};
const Choice uses[] = {{"feed", MachineProfile::FeedUse},      {"speed", MachineProfile::SpeedUse},
                       {"pitch", MachineProfile::PitchUse},    {"tool", MachineProfile::ToolUse},
                       {"number", MachineProfile::NumberUse},  {"dwell", MachineProfile::DwellUse},
                       {"ignored", MachineProfile::IgnoredUse}};
enum TimeUnit { Seconds, Milliseconds };
const Choice timeUnits[] = {{"s", Seconds}, {"ms", Milliseconds}};
enum Metal { Copper, Aluminium };
const Choice metals[] = {{"copper", Copper}, {"aluminium", Aluminium}};
/// Of the conductor: g/cm³, and ohm mm²/m at 20 °C.
struct MetalFacts
{
    double density;
    double resistivity;
};

// In the order of Metal.
const MetalFacts metalFacts[] = {{copperDensity, copperResistivity},
                                 {aluminiumDensity, aluminiumResistivity}};
const Choice demands[] = {{"required", true}, {"optional", false}};
const Choice answers[] = {{"ask", false}, {"forbid", true}};
const Choice growths[] = {{"guide", MachineLayers::ByGuide},
                          {"wire", MachineLayers::ByWire},
                          {"nested", MachineLayers::ByNesting}};

/// Round enamelled wires in mm: the conductor, and the largest outer diameter by grade.
struct IecWire
{
    double conductor;
    double grade1;
    double grade2;
};

const IecWire iecWires[] = {
    {0.018, 0.022, 0.024}, {0.020, 0.024, 0.027}, {0.022, 0.027, 0.030}, {0.025, 0.031, 0.034},
    {0.028, 0.034, 0.038}, {0.032, 0.039, 0.043}, {0.036, 0.044, 0.049}, {0.040, 0.049, 0.054},
    {0.045, 0.055, 0.061}, {0.050, 0.060, 0.066}, {0.056, 0.067, 0.074}, {0.063, 0.076, 0.083},
    {0.071, 0.084, 0.091}, {0.080, 0.094, 0.101}, {0.090, 0.105, 0.113}, {0.100, 0.117, 0.125},
    {0.112, 0.130, 0.139}, {0.125, 0.144, 0.154}, {0.140, 0.160, 0.171}, {0.160, 0.182, 0.194},
    {0.180, 0.204, 0.217}, {0.200, 0.226, 0.239}, {0.224, 0.252, 0.266}, {0.250, 0.281, 0.297},
    {0.280, 0.312, 0.329}, {0.315, 0.349, 0.367}, {0.355, 0.392, 0.411}, {0.40, 0.439, 0.459},
    {0.450, 0.491, 0.513}, {0.500, 0.544, 0.566}, {0.560, 0.606, 0.630}, {0.630, 0.679, 0.704},
    {0.710, 0.762, 0.789}, {0.800, 0.855, 0.884}, {0.900, 0.959, 0.989}, {1.000, 1.062, 1.094},
    {1.120, 1.184, 1.217}, {1.250, 1.316, 1.349}, {1.40, 1.468, 1.502},  {1.600, 1.670, 1.706},
    {1.800, 1.872, 1.909}, {2.000, 2.074, 2.112}, {2.240, 2.316, 2.355}, {2.500, 2.578, 2.618},
    {2.800, 2.880, 2.922}, {3.150, 3.233, 3.276}, {3.550, 3.635, 3.679}, {4.000, 4.088, 4.133},
    {4.500, 4.591, 4.637}, {5.000, 5.093, 5.141}};
// Sizes differ by more than that.
const double sizeTolerance = 1e-6;

/// As keys, sections and choices are compared: case and further blanks make no difference.
QString plain(const QString &text)
{
    return text.simplified().toLower();
}

QStringList parts(const QString &value)
{
    QStringList list = value.split(QLatin1Char(','));
    for (QString &part : list)
        part = part.simplified();
    return list;
}

/// The letter that a text consists of, as a large one; 0 for another text.
char letterOf(const QString &text)
{
    if (text.size() != 1)
        return 0;
    const ushort value = text.at(0).toUpper().unicode();
    return value >= 'A' && value <= 'Z' ? char(value) : 0;
}

/// Up to a ";" that begins the line or stands behind a blank.
QString withoutComment(const QString &line)
{
    for (int at = line.indexOf(QLatin1Char(';')); at >= 0;
         at = line.indexOf(QLatin1Char(';'), at + 1))
        if (at == 0 || line.at(at - 1).isSpace())
            return line.left(at);
    return line;
}

QString textOf(double number)
{
    const int digits = 10;
    return QString::number(number, 'g', digits);
}

/// Some editors begin a text in UTF-8 with a mark.
QByteArray withoutMark(const QByteArray &bytes)
{
    const QByteArray mark = "\xef\xbb\xbf";
    return bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
}

bool isText(const QByteArray &bytes)
{
    for (const char byte : bytes)
        if (uchar(byte) < ' ' && byte != '\t' && byte != '\r' && byte != '\n')
            return false;
    return QString::fromUtf8(bytes.constData(), bytes.size()).toUtf8() == bytes;
}

} // namespace

/// Reads the text of a profile.
class MachineProfileText
{
    Q_DECLARE_TR_FUNCTIONS(MachineProfile)

public:
    explicit MachineProfileText(const QString &name) : m_name(name) {}

    MachineProfile read(const QByteArray &text, QStringList *errors);

private:
    /// A key with one number.
    struct Number
    {
        const char *section;
        const char *key;
        double minimum;
        double maximum;
        double *target;
    };
    /// A key with one of two words.
    struct Demand
    {
        const char *key;
        const Choice *choices;
        bool *target;
    };

    void readLine(const QString &line);
    void openSection(const QString &name);
    void readValue(const QString &key, const QString &value);
    bool readNumberKey(const QString &key, const QString &value);
    bool readDemand(const QString &key, const QString &value);
    void readOther(const QString &key, const QString &value);
    void readAxis(const QString &key, const QString &value);
    void readFunction(const QString &key, const QString &value);
    void readWord(const QString &key, const QString &value);
    void readDwell(const QString &value);
    void readTool(const QString &key, const QString &value);
    void readWire(const QString &key, const QString &value);
    void readSize(const QString &value);
    void useLetter(char letter, MachineProfile::Use use);
    int groupOf(const QString &name);
    bool number(const QString &text, double minimum, double maximum, double *target);
    template<int count>
    bool choice(const QString &text, const Choice (&choices)[count], int *target);
    bool oneOf(const QString &text, const Choice *choices, int count, int *target);
    void takeMetal();
    void checkWhole();
    void checkDwell();
    void failKey(const QString &key);
    void fail(const QString &reason);
    void failWhole(const QString &reason);

    const QString m_name;
    MachineProfile m_profile;
    QStringList m_errors;
    QStringList m_seen;
    QString m_section;
    int m_line = 0;
    int m_metal = Copper;
};

MachineProfile MachineProfileText::read(const QByteArray &text, QStringList *errors)
{
    const QByteArray lines = withoutMark(text);
    if (text.size() > MachineProfile::mostBytes)
        failWhole(tr("%1 is too large for a machine profile.").arg(m_name));
    else if (!isText(lines))
        failWhole(tr("%1 is no text, and so no machine profile.").arg(m_name));
    else
        for (const QString &line :
             QString::fromUtf8(lines.constData(), lines.size()).split(QLatin1Char('\n')))
            readLine(line);
    takeMetal();
    if (m_errors.isEmpty())
        checkWhole();
    *errors = m_errors;
    return m_errors.isEmpty() ? m_profile : MachineProfile();
}

void MachineProfileText::readLine(const QString &line)
{
    ++m_line;
    const QString content = withoutComment(line).trimmed();
    if (content.isEmpty() || content.startsWith(QLatin1Char('#')))
        return;
    if (content.startsWith(QLatin1Char('[')) && content.endsWith(QLatin1Char(']'))) {
        openSection(plain(content.mid(1, content.size() - 2)));
        return;
    }
    const int equals = content.indexOf(QLatin1Char('='));
    if (equals <= 0) {
        fail(tr("A line is a [section] or a key = value."));
        return;
    }
    readValue(plain(content.left(equals)), content.mid(equals + 1).simplified());
}

void MachineProfileText::openSection(const QString &name)
{
    static const char *const sections[] = {"profile", "axes",   "functions", "words",
                                           "tools",   "wire",   "bobbin",    "limits",
                                           "rules",   "motion", "layers"};
    m_section.clear();
    for (const char *section : sections)
        if (name == QLatin1String(section))
            m_section = name;
    if (m_section.isEmpty())
        fail(tr("There is no section [%1].").arg(name));
}

void MachineProfileText::readValue(const QString &key, const QString &value)
{
    // Of a section that is none, one error is enough.
    if (m_section.isEmpty()) {
        if (m_errors.isEmpty())
            fail(tr("A key stands before the first section."));
        return;
    }
    const QString whole = m_section + QLatin1Char('/') + key;
    if (m_seen.contains(whole)) {
        fail(tr("\"%1\" stands there twice.").arg(key));
        return;
    }
    m_seen.append(whole);
    if (!readNumberKey(key, value) && !readDemand(key, value))
        readOther(key, value);
}

bool MachineProfileText::readNumberKey(const QString &key, const QString &value)
{
    MachineProfile &p = m_profile;
    const Number numbers[] = {
        {"wire", "density", 0.1, 50, &p.m_wire.density},
        {"wire", "resistivity", 0.001, 10, &p.m_wire.resistivity},
        {"bobbin", "core", 0.1, mostMillimetres, &p.m_bobbin.coreDiameter},
        {"bobbin", "width", 0.1, mostMillimetres, &p.m_bobbin.width},
        {"bobbin", "left", -mostMillimetres, mostMillimetres, &p.m_bobbin.left},
        {"bobbin", "flange", 0.1, mostMillimetres, &p.m_bobbin.flangeDiameter},
        {"limits", "speed", 0, mostLimit, &p.m_rules.speedLimit},
        {"limits", "tension", 0, mostLimit, &p.m_rules.tensionLimit},
        {"limits", "tension jump", 0, mostLimit, &p.m_rules.tensionJumpLimit},
        {"limits", "pitch", 0, mostMillimetres, &p.m_rules.pitchLimit},
        {"motion", "rapid", 0, mostLimit, &p.m_motion.rapidFeed},
        {"motion", "spindle ramp", 0, mostLimit, &p.m_motion.spindleRamp}};
    for (const Number &entry : numbers) {
        if (m_section == QLatin1String(entry.section) && key == QLatin1String(entry.key)) {
            number(value, entry.minimum, entry.maximum, entry.target);
            return true;
        }
    }
    return false;
}

bool MachineProfileText::readDemand(const QString &key, const QString &value)
{
    MachineRules &rules = m_profile.m_rules;
    const Demand all[] = {{"clamp", demands, &rules.mustClamp},
                          {"cut", demands, &rules.mustCut},
                          {"end", demands, &rules.mustEnd},
                          {"errors", answers, &rules.forbidsSending}};
    if (m_section != QLatin1String("rules"))
        return false;
    for (const Demand &entry : all) {
        int wanted = 0;
        if (key != QLatin1String(entry.key))
            continue;
        if (oneOf(value, entry.choices, 2, &wanted))
            *entry.target = wanted;
        return true;
    }
    return false;
}

void MachineProfileText::readOther(const QString &key, const QString &value)
{
    int growth = 0;
    if (m_section == QLatin1String("axes"))
        readAxis(key, value);
    else if (m_section == QLatin1String("functions"))
        readFunction(key, value);
    else if (m_section == QLatin1String("words"))
        readWord(key, value);
    else if (m_section == QLatin1String("tools"))
        readTool(key, value);
    else if (m_section == QLatin1String("wire"))
        readWire(key, value);
    else if (m_section == QLatin1String("profile") && key == QLatin1String("name"))
        m_profile.m_name = value;
    else if (m_section != QLatin1String("layers") || key != QLatin1String("growth"))
        failKey(key);
    else if (choice(value, growths, &growth))
        m_profile.m_layers.growth = MachineLayers::Growth(growth);
}

void MachineProfileText::readAxis(const QString &key, const QString &value)
{
    enum Part { Role, Unit, Minimum, Maximum, Count };
    const QStringList list = parts(value);
    int role = 0;
    int unit = 0;
    MachineAxis axis;
    axis.letter = letterOf(key);
    if (!axis.letter || list.size() != Count) {
        fail(tr("An axis is: letter = role, unit, minimum, maximum."));
        return;
    }
    if (!choice(list.at(Role), roles, &role) || !choice(list.at(Unit), units, &unit)
        || !number(list.at(Minimum), -mostLimit, mostLimit, &axis.minimum)
        || !number(list.at(Maximum), axis.minimum, mostLimit, &axis.maximum))
        return;
    axis.role = MachineAxis::Role(role);
    axis.unit = MachineAxis::Unit(unit);
    const bool isLength = axis.role <= MachineAxis::GuideHeight;
    if (axis.role != MachineAxis::Other && m_profile.axis(axis.role))
        fail(tr("Another axis is the %1 already.").arg(list.at(Role)));
    else if (isLength && axis.unit != MachineAxis::Millimetres)
        fail(tr("The unit of this axis is mm."));
    else if (axis.role == MachineAxis::Tension && axis.unit != MachineAxis::Newtons)
        fail(tr("The unit of this axis is N."));
    else if (!m_profile.addAxis(axis))
        fail(tr("There are too many axes."));
    else
        useLetter(axis.letter, MachineProfile::AxisUse);
}

void MachineProfileText::readFunction(const QString &key, const QString &value)
{
    BlockReader reader;
    const GCodeBlock &block = reader.read(key);
    const QStringList list = parts(value);
    const GCodeWord &word = block.words[0];
    const bool isWord = block.wordCount == 1 && block.faultCount == 0 && block.commentColumn == 0
                        && (word.letter == 'G' || word.letter == 'M') && word.code() >= 0;
    if (!isWord || list.size() > 2 || list.last().isEmpty()) {
        fail(tr("A function is: G or M with a number = action, modal group."));
        return;
    }
    int action = 0;
    if (!choice(list.at(0), actions, &action))
        return;
    MachineFunction function;
    function.letter = word.letter;
    function.code = word.code();
    function.action = MachineFunction::Action(action);
    function.group = list.size() == 2 ? groupOf(list.at(1)) : 0;
    if (m_profile.function(function.letter, function.code))
        fail(tr("\"%1\" stands there twice.").arg(key));
    else
        m_profile.addFunction(function);
}

void MachineProfileText::readWord(const QString &key, const QString &value)
{
    int choiceOf = 0;
    if (key == QLatin1String("dwell")) {
        readDwell(value);
    } else if (key == QLatin1String("dwell unit")) {
        if (choice(value, timeUnits, &choiceOf))
            m_profile.m_dwellSeconds = choiceOf == Milliseconds ? 0.001 : 1;
    } else if (!letterOf(key)) {
        failKey(key);
    } else if (choice(value, uses, &choiceOf)) {
        useLetter(letterOf(key), MachineProfile::Use(choiceOf));
    }
}

void MachineProfileText::readDwell(const QString &value)
{
    m_profile.m_dwellLetter = letterOf(value);
    if (!m_profile.m_dwellLetter)
        fail(tr("\"%1\" is no letter.").arg(value));
}

void MachineProfileText::readTool(const QString &key, const QString &value)
{
    double wanted = 0;
    MachineProfile::Tool tool;
    if (!number(key, 0, mostLimit, &wanted) || !number(value, 0, mostMillimetres, &tool.bore))
        return;
    tool.number = int(wanted);
    if (tool.number != wanted || m_profile.hasListedTool(tool.number))
        fail(tr("\"%1\" is no number of a tool, or stands there twice.").arg(key));
    else
        m_profile.m_tools.append(tool);
}

void MachineProfileText::readWire(const QString &key, const QString &value)
{
    MachineWire &wire = m_profile.m_wire;
    if (key == QLatin1String("size")) {
        readSize(value);
    } else if (key == QLatin1String("diameter")) {
        if (plain(value) == QLatin1String("pitch"))
            wire.outerDiameter = 0;
        else
            number(value, 0.001, mostMillimetres, &wire.outerDiameter);
    } else if (key == QLatin1String("conductor")) {
        number(value, 0.001, mostMillimetres, &wire.conductorDiameter);
    } else if (key != QLatin1String("metal")) {
        failKey(key);
    } else {
        choice(value, metals, &m_metal);
    }
}

/// "0.250 grade 1". A diameter with a key of its own holds, in front of the size and behind it.
void MachineProfileText::readSize(const QString &value)
{
    const QStringList words = plain(value).split(QLatin1Char(' '));
    const bool hasGrade = words.size() == 3 && words.at(1) == QLatin1String("grade");
    const double conductor = words.at(0).toDouble();
    const double outer =
        hasGrade ? MachineProfile::iecOuterDiameter(conductor, words.at(2).toInt()) : 0;
    if (outer <= 0) {
        fail(tr("\"%1\" is no size of IEC 60317, as \"0.250 grade 1\" is.").arg(value));
        return;
    }
    if (!m_seen.contains(QLatin1String("wire/conductor")))
        m_profile.m_wire.conductorDiameter = conductor;
    if (!m_seen.contains(QLatin1String("wire/diameter")))
        m_profile.m_wire.outerDiameter = outer;
}

void MachineProfileText::useLetter(char letter, MachineProfile::Use use)
{
    if (m_profile.use(letter) != MachineProfile::UnknownUse)
        fail(tr("The letter %1 means something already.").arg(QLatin1Char(letter)));
    else
        m_profile.m_uses[letter - 'A'] = use;
}

int MachineProfileText::groupOf(const QString &name)
{
    int index = m_profile.m_groups.indexOf(plain(name));
    if (index < 0) {
        index = m_profile.m_groups.size();
        m_profile.m_groups.append(plain(name));
    }
    return index + 1;
}

bool MachineProfileText::number(const QString &text, double minimum, double maximum, double *target)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (isNumber && value >= minimum && value <= maximum) {
        *target = value;
        return true;
    }
    fail(tr("\"%1\" is no number from %2 to %3.").arg(text, textOf(minimum), textOf(maximum)));
    return false;
}

template<int count>
bool MachineProfileText::choice(const QString &text, const Choice (&choices)[count], int *target)
{
    return oneOf(text, choices, count, target);
}

bool MachineProfileText::oneOf(const QString &text, const Choice *choices, int count, int *target)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QLatin1String(choices[i].name));
        if (plain(text) == plain(names.last())) {
            *target = choices[i].value;
            return true;
        }
    }
    fail(tr("\"%1\" is none of: %2.").arg(text, names.join(QLatin1String(", "))));
    return false;
}

/// The figures of the metal, where the profile has none of its own.
void MachineProfileText::takeMetal()
{
    MachineWire &wire = m_profile.m_wire;
    if (wire.density <= 0)
        wire.density = metalFacts[m_metal].density;
    if (wire.resistivity <= 0)
        wire.resistivity = metalFacts[m_metal].resistivity;
}

void MachineProfileText::checkWhole()
{
    const MachineBobbin &bobbin = m_profile.m_bobbin;
    const MachineWire &wire = m_profile.m_wire;
    if (!m_profile.axis(MachineAxis::Traverse))
        failWhole(tr("%1: no axis is the traverse.").arg(m_name));
    if (bobbin.coreDiameter <= 0 || bobbin.width <= 0)
        failWhole(tr("%1: the bobbin needs a core and a width.").arg(m_name));
    if (bobbin.flangeDiameter < bobbin.coreDiameter)
        failWhole(tr("%1: the flange is narrower than the core.").arg(m_name));
    if (wire.outerDiameter > 0 && wire.conductorDiameter > wire.outerDiameter)
        failWhole(tr("%1: the conductor is wider than the wire.").arg(m_name));
    checkDwell();
}

void MachineProfileText::checkDwell()
{
    bool dwells = false;
    for (const MachineFunction &function : HostCompat::readOnly(m_profile.m_functions))
        dwells = dwells || function.action == MachineFunction::Dwell;
    const char letter = m_profile.m_dwellLetter;
    if (dwells && !letter)
        failWhole(tr("%1: a dwell needs \"dwell = letter\" in [words].").arg(m_name));
    if (!letter)
        return;
    quint8 &use = m_profile.m_uses[letter - 'A'];
    if (use == MachineProfile::UnknownUse)
        use = MachineProfile::DwellUse;
    if (use == MachineProfile::FunctionUse || use == MachineProfile::AxisUse)
        failWhole(tr("%1: the letter of the dwell means something already.").arg(m_name));
}

void MachineProfileText::failKey(const QString &key)
{
    fail(tr("There is no key \"%1\" in [%2].").arg(key, m_section));
}

void MachineProfileText::fail(const QString &reason)
{
    failWhole(tr("%1, line %2: %3").arg(m_name, QString::number(m_line), reason));
}

void MachineProfileText::failWhole(const QString &reason)
{
    if (m_errors.size() < mostErrors)
        m_errors.append(reason);
}

MachineProfile::MachineProfile() : m_uses(letters), m_functionAt(2 * codes)
{
    m_uses['G' - 'A'] = FunctionUse;
    m_uses['M' - 'A'] = FunctionUse;
}

MachineProfile MachineProfile::forSamples()
{
    QStringList errors;
    return fromText(sampleText(), QString(), &errors);
}

QByteArray MachineProfile::sampleText()
{
    return QByteArray(sampleProfile);
}

MachineProfile MachineProfile::fromFile(const QString &path, QStringList *errors)
{
    // To open a pipe would be to wait for whoever writes to it.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        *errors = QStringList(tr("%1 is no file.").arg(path));
        return MachineProfile();
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        // One byte more tells that there are too many.
        const QByteArray text = file.read(mostBytes + 1);
        if (file.error() == QFile::NoError)
            return fromText(text, path, errors);
    }
    *errors = QStringList(tr("%1 cannot be read: %2.").arg(path, file.errorString()));
    return MachineProfile();
}

MachineProfile MachineProfile::fromText(const QByteArray &text, const QString &name,
                                        QStringList *errors)
{
    return MachineProfileText(name).read(text, errors);
}

MachineProfile::Use MachineProfile::use(char letter) const
{
    return Use(m_uses.at(letter - 'A'));
}

const MachineAxis *MachineProfile::axis(char letter) const
{
    for (const MachineAxis &axis : m_axes)
        if (axis.letter == letter)
            return &axis;
    return nullptr;
}

const MachineAxis *MachineProfile::axis(MachineAxis::Role role) const
{
    for (const MachineAxis &axis : m_axes)
        if (axis.role == role)
            return &axis;
    return nullptr;
}

const MachineFunction *MachineProfile::function(char letter, int code) const
{
    if (code < 0 || code >= codes)
        return nullptr;
    const int at = m_functionAt.at(code + (letter == 'G' ? 0 : codes));
    return at > 0 ? &m_functions.at(at - 1) : nullptr;
}

const MachineFunction *MachineProfile::function(const GCodeWord &word) const
{
    return word.letter == 'G' || word.letter == 'M' ? function(word.letter, word.code()) : nullptr;
}

QString MachineProfile::groupName(int group) const
{
    return m_groups.value(group - 1);
}

bool MachineProfile::hasTool(int number) const
{
    return m_tools.isEmpty() || hasListedTool(number);
}

bool MachineProfile::hasListedTool(int number) const
{
    for (const Tool &tool : m_tools)
        if (tool.number == number)
            return true;
    return false;
}

double MachineProfile::tubeBore(int number) const
{
    for (const Tool &tool : m_tools)
        if (tool.number == number)
            return tool.bore;
    return 0;
}

double MachineProfile::iecOuterDiameter(double conductorDiameter, int grade)
{
    for (const IecWire &wire : iecWires)
        if (qAbs(wire.conductor - conductorDiameter) < sizeTolerance)
            return grade == 1 ? wire.grade1 : grade == 2 ? wire.grade2 : 0;
    return 0;
}

void MachineProfile::addFunction(const MachineFunction &function)
{
    m_functions.append(function);
    m_functionAt[function.code + (function.letter == 'G' ? 0 : codes)] =
        quint16(m_functions.size());
}

/// False when there is no slot left.
bool MachineProfile::addAxis(MachineAxis axis)
{
    int others = 0;
    for (const MachineAxis &known : HostCompat::readOnly(m_axes))
        others += known.role == MachineAxis::Other;
    axis.slot = axis.role == MachineAxis::Other ? MachineAxis::Other + others : int(axis.role);
    if (axis.slot >= MachineAxis::slotCount)
        return false;
    m_axes.append(axis);
    return true;
}
