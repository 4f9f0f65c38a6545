// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/machineprofile.h"

#include <QFile>

#include <sys/stat.h>

class TestMachineProfile : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void emptyOneKnowsNothing();
    void sampleTextHasNoFault();
    void samplesProfileKnowsTheirWords_data();
    void samplesProfileKnowsTheirWords();
    void samplesProfileHasNoOtherFunction();
    void axesHaveSlotsByRole();
    void aDwellMayShareTheFeedsLetter();
    void everyKeyIsRead();
    void wireByItsSize();
    void aDiameterOfItsOwnHoldsBesideTheSize();
    void sizesOfTheStandard_data();
    void sizesOfTheStandard();
    void wayOfWritingMakesNoDifference();
    void orderOfTheWiresKeysMakesNoDifference();
    void markOfTheEncodingIsSkipped();
    void manyToolsAndGroupsAreAllKnown();
    void nonsense_data();
    void nonsense();
    void allFaultsAreTold();
    void faultsHaveTheirLine();
    void oneFaultLeavesNothing();
    void halfAProfile();
    void fileThatIsNone();
    void fileIsRead();
};

/// The least that is a profile.
static QByteArray least()
{
    return "[axes]\nX = traverse, mm, 0, 40\n[bobbin]\ncore = 10\nwidth = 30\nflange = 40\n";
}

static MachineProfile read(const QByteArray &text)
{
    QStringList errors;
    const MachineProfile profile = MachineProfile::fromText(text, "p.ini", &errors);
    if (!errors.isEmpty())
        qWarning("%s", qPrintable(errors.join("\n")));
    return profile;
}

static QStringList errorsOf(const QByteArray &text)
{
    QStringList errors;
    MachineProfile::fromText(text, "p.ini", &errors);
    return errors;
}

void TestMachineProfile::emptyOneKnowsNothing()
{
    const MachineProfile profile;
    QVERIFY(!profile.isValid());
    QCOMPARE(int(profile.use('X')), int(MachineProfile::UnknownUse));
    QVERIFY(!profile.function('G', 0));
    QVERIFY(!profile.axis('X'));
    QVERIFY(!profile.axis(MachineAxis::Traverse));
    QCOMPARE(profile.groupName(0), QString());
    QCOMPARE(profile.groupName(1), QString());
}

void TestMachineProfile::sampleTextHasNoFault()
{
    QCOMPARE(errorsOf(MachineProfile::sampleText()), QStringList());
    QVERIFY(MachineProfile::forSamples().isValid());
    QCOMPARE(MachineProfile::forSamples().name(), QString("Sample machine"));
}

void TestMachineProfile::samplesProfileKnowsTheirWords_data()
{
    QTest::addColumn<char>("letter");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("group");
    QTest::newRow("G00") << 'G' << 0 << int(MachineFunction::RapidMotion) << "motion";
    QTest::newRow("G01") << 'G' << 10 << int(MachineFunction::FeedMotion) << "motion";
    QTest::newRow("G04") << 'G' << 40 << int(MachineFunction::Dwell) << "motion";
    QTest::newRow("G20") << 'G' << 200 << int(MachineFunction::Inches) << "units";
    QTest::newRow("G21") << 'G' << 210 << int(MachineFunction::Millimetres) << "units";
    QTest::newRow("G33") << 'G' << 330 << int(MachineFunction::SynchronousMotion) << "motion";
    QTest::newRow("G90") << 'G' << 900 << int(MachineFunction::Absolute) << "positions";
    QTest::newRow("G91") << 'G' << 910 << int(MachineFunction::Relative) << "positions";
    QTest::newRow("M00") << 'M' << 0 << int(MachineFunction::Pause) << "stop";
    QTest::newRow("M03") << 'M' << 30 << int(MachineFunction::SpindleForward) << "spindle";
    QTest::newRow("M04") << 'M' << 40 << int(MachineFunction::SpindleReverse) << "spindle";
    QTest::newRow("M05") << 'M' << 50 << int(MachineFunction::SpindleStop) << "spindle";
    QTest::newRow("M10") << 'M' << 100 << int(MachineFunction::ClampWire) << "wire";
    QTest::newRow("M12") << 'M' << 120 << int(MachineFunction::CutWire) << "wire";
    QTest::newRow("M30") << 'M' << 300 << int(MachineFunction::ProgramEnd) << "stop";
}

void TestMachineProfile::samplesProfileKnowsTheirWords()
{
    QFETCH(char, letter);
    QFETCH(int, code);
    QFETCH(int, action);
    QFETCH(QString, group);
    const MachineProfile profile = MachineProfile::forSamples();
    const MachineFunction *function = profile.function(letter, code);
    QVERIFY(function);
    QCOMPARE(int(function->action), action);
    QCOMPARE(profile.groupName(function->group), group);
    GCodeWord word;
    word.letter = letter;
    word.value = code / 10.0;
    QVERIFY(profile.function(word) == function);
}

void TestMachineProfile::samplesProfileHasNoOtherFunction()
{
    const MachineProfile profile = MachineProfile::forSamples();
    int known = 0;
    for (int code = -1; code <= 10000; ++code)
        known += bool(profile.function('G', code)) + bool(profile.function('M', code));
    QCOMPARE(known, int(profile.functions().size()));
    for (const char letter : QByteArray("ABCDEHIJLOPQRVW"))
        QCOMPARE(int(profile.use(letter)), int(MachineProfile::UnknownUse));
}

void TestMachineProfile::axesHaveSlotsByRole()
{
    const MachineProfile profile = read(least()
                                        + "[axes]\nA = other, deg, -360, 360\n"
                                          "U = tension, N, 0, 5\nB = other, mm, 0, 1\n");
    QCOMPARE(profile.axis('X')->slot, int(MachineAxis::Traverse));
    QCOMPARE(profile.axis('U')->slot, int(MachineAxis::Tension));
    QCOMPARE(profile.axis('A')->slot, int(MachineAxis::Other));
    QCOMPARE(profile.axis('B')->slot, int(MachineAxis::Other) + 1);
    QCOMPARE(profile.axis(MachineAxis::Tension)->letter, 'U');
    QVERIFY(!profile.axis(MachineAxis::GuideHeight));
    QVERIFY(profile.axis('A')->allows(-360));
    QVERIFY(!profile.axis('A')->allows(-360.5));
    QVERIFY(!profile.axis('A')->allows(360.5));
}

void TestMachineProfile::aDwellMayShareTheFeedsLetter()
{
    const MachineProfile samples = MachineProfile::forSamples();
    QCOMPARE(samples.dwellLetter(), 'F');
    QCOMPARE(int(samples.use('F')), int(MachineProfile::FeedUse));
    QCOMPARE(samples.dwellSeconds(), 1.0);
    const MachineProfile other =
        read(least() + "[functions]\nG4 = dwell\n[words]\ndwell = P\ndwell unit = ms\n");
    QCOMPARE(other.dwellLetter(), 'P');
    QCOMPARE(int(other.use('P')), int(MachineProfile::DwellUse));
    QCOMPARE(other.dwellSeconds(), 0.001);
}

void TestMachineProfile::everyKeyIsRead()
{
    const MachineProfile p = read(
        "[profile]\nname = Bench 4\n" + least()
        + "left = -2\n"
          "[words]\nF = feed\nS = speed\nK = pitch\nT = tool\nN = number\nD = ignored\nP = dwell\n"
          "[tools]\n1 = 0.3\n7 = 1.2\n"
          "[wire]\ndiameter = 0.5\nconductor = 0.45\ndensity = 9\nresistivity = 0.02\n"
          "[limits]\nspeed = 1500\ntension = 20\ntension jump = 3\npitch = 2\n"
          "[rules]\nclamp = required\ncut = required\nend = optional\nerrors = forbid\n"
          "[motion]\nrapid = 9000\nspindle ramp = 800\n"
          "[layers]\ngrowth = nested\n");
    QCOMPARE(p.name(), QString("Bench 4"));
    QCOMPARE(p.bobbin().coreDiameter, 10.0);
    QCOMPARE(p.bobbin().width, 30.0);
    QCOMPARE(p.bobbin().left, -2.0);
    QCOMPARE(p.bobbin().right(), 28.0);
    QCOMPARE(p.bobbin().flangeDiameter, 40.0);
    QCOMPARE(int(p.use('S')), int(MachineProfile::SpeedUse));
    QCOMPARE(int(p.use('K')), int(MachineProfile::PitchUse));
    QCOMPARE(int(p.use('T')), int(MachineProfile::ToolUse));
    QCOMPARE(int(p.use('N')), int(MachineProfile::NumberUse));
    QCOMPARE(int(p.use('D')), int(MachineProfile::IgnoredUse));
    QCOMPARE(int(p.use('P')), int(MachineProfile::DwellUse));
    QCOMPARE(int(p.use('X')), int(MachineProfile::AxisUse));
    QCOMPARE(int(p.use('G')), int(MachineProfile::FunctionUse));
    QVERIFY(p.hasTool(1) && p.hasTool(7) && !p.hasTool(2));
    QCOMPARE(p.tubeBore(7), 1.2);
    QCOMPARE(p.tubeBore(2), 0.0);
    QVERIFY(read(least()).hasTool(2));
    QCOMPARE(p.wire().outerDiameter, 0.5);
    QCOMPARE(p.wire().conductorDiameter, 0.45);
    QCOMPARE(p.wire().density, 9.0);
    QCOMPARE(p.wire().resistivity, 0.02);
    QCOMPARE(p.rules().speedLimit, 1500.0);
    QCOMPARE(p.rules().tensionLimit, 20.0);
    QCOMPARE(p.rules().tensionJumpLimit, 3.0);
    QCOMPARE(p.rules().pitchLimit, 2.0);
    QVERIFY(p.rules().mustClamp && p.rules().mustCut && !p.rules().mustEnd);
    QVERIFY(p.rules().forbidsSending);
    QCOMPARE(p.motion().rapidFeed, 9000.0);
    QCOMPARE(p.motion().spindleRamp, 800.0);
    QCOMPARE(int(p.layers().growth), int(MachineLayers::ByNesting));
}

void TestMachineProfile::wireByItsSize()
{
    const MachineProfile profile =
        read(least() + "[wire]\nsize = 0.250 grade 1\nmetal = aluminium");
    QCOMPARE(profile.wire().conductorDiameter, 0.25);
    QCOMPARE(profile.wire().outerDiameter, 0.281);
    QCOMPARE(profile.wire().density, 2.703);
    QCOMPARE(read(least()).wire().density, 8.89);
    QCOMPARE(read(least()).wire().outerDiameter, 0.0);
}

void TestMachineProfile::aDiameterOfItsOwnHoldsBesideTheSize()
{
    const QByteArray wire("[wire]\n");
    const QByteArray size("size = 0.250 grade 1\n");
    const QByteArray measured("diameter = 0.3\nconductor = 0.24\n");
    const QByteArray ofBoth[] = {wire + size + measured, wire + measured + size};
    for (const QByteArray &text : ofBoth) {
        const MachineProfile profile = read(least() + text);
        QCOMPARE(profile.wire().outerDiameter, 0.3);
        QCOMPARE(profile.wire().conductorDiameter, 0.24);
    }
    const QByteArray pitch("diameter = pitch\n");
    const QByteArray byPitch[] = {wire + size + pitch, wire + pitch + size};
    for (const QByteArray &text : byPitch) {
        const MachineProfile profile = read(least() + text);
        QCOMPARE(profile.wire().outerDiameter, 0.0);
        QCOMPARE(profile.wire().conductorDiameter, 0.25);
    }
}

void TestMachineProfile::sizesOfTheStandard_data()
{
    QTest::addColumn<double>("conductor");
    QTest::addColumn<int>("grade");
    QTest::addColumn<double>("outer");
    QTest::newRow("thinnest") << 0.018 << 1 << 0.022;
    QTest::newRow("0.1, grade 2") << 0.1 << 2 << 0.125;
    QTest::newRow("0.5, grade 1") << 0.5 << 1 << 0.544;
    QTest::newRow("thickest") << 5.0 << 2 << 5.141;
    QTest::newRow("between two") << 0.51 << 1 << 0.0;
    QTest::newRow("no such grade") << 0.5 << 3 << 0.0;
    QTest::newRow("none") << 0.0 << 1 << 0.0;
}

void TestMachineProfile::sizesOfTheStandard()
{
    QFETCH(double, conductor);
    QFETCH(int, grade);
    QFETCH(double, outer);
    QCOMPARE(MachineProfile::iecOuterDiameter(conductor, grade), outer);
}

void TestMachineProfile::wayOfWritingMakesNoDifference()
{
    const MachineProfile profile =
        read("# a remark\r\n; another\r\n\r\n[ AXES ]\r\nx=Traverse,MM,0,40 ; behind\r\n"
             "[Bobbin]\r\nCORE=10\r\n  Width =  30\r\nflange = 40\r\n"
             "[Functions]\r\ng01 = FEED\r\nm030 =  end ,  stop\r\n[limits]\r\nTension   Jump=2");
    QCOMPARE(profile.axes().size(), 1);
    QVERIFY(profile.function('G', 10));
    QVERIFY(profile.function('M', 300));
    QCOMPARE(profile.rules().tensionJumpLimit, 2.0);
}

void TestMachineProfile::orderOfTheWiresKeysMakesNoDifference()
{
    const MachineProfile own = read(least() + "[wire]\ndensity = 5\nmetal = aluminium\n");
    QCOMPARE(own.wire().density, 5.0);
    QCOMPARE(own.wire().resistivity, 0.028264);
    const MachineProfile other = read(least() + "[wire]\nmetal = copper\nresistivity = 0.02\n");
    QCOMPARE(other.wire().density, 8.89);
    QCOMPARE(other.wire().resistivity, 0.02);
    QCOMPARE(read(least() + "[wire]\nresistivity = 0.02\nmetal = copper\n").wire().resistivity,
             0.02);
}

/// Editors of some systems put it in front of each text in UTF-8.
void TestMachineProfile::markOfTheEncodingIsSkipped()
{
    QCOMPARE(read("\xef\xbb\xbf" + least()).axes().size(), 1);
}

void TestMachineProfile::manyToolsAndGroupsAreAllKnown()
{
    const int count = 2000;
    QByteArray text = least() + "[tools]\n";
    for (int i = 1; i <= count; ++i)
        text += QByteArray::number(i) + "=1\n";
    text += "[functions]\n";
    for (int i = 1; i < 1000; ++i)
        text += 'G' + QByteArray::number(i) + "=ignored,a" + QByteArray::number(i) + '\n';
    const MachineProfile profile = read(text);
    QVERIFY(profile.hasTool(count));
    QVERIFY(!profile.hasTool(count + 1));
    QCOMPARE(profile.groupName(profile.function('G', 9990)->group), QString("a999"));
}

void TestMachineProfile::nonsense_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    const QByteArray l = least();
    QTest::newRow("section") << l + "[axles]"
                             << "p.ini, line 7: There is no section [axles].";
    QTest::newRow("no key") << l + "core"
                            << "p.ini, line 7: A line is a [section] or a key = value.";
    QTest::newRow("key before a section")
        << "core = 1\n" + l << "p.ini, line 1: A key stands before the first section.";
    QTest::newRow("unknown key") << l + "height = 3"
                                 << "p.ini, line 7: There is no key \"height\" in [bobbin].";
    QTest::newRow("twice") << l + "core = 12"
                           << "p.ini, line 7: \"core\" stands there twice.";
    QTest::newRow("no number") << l + "left = wide"
                               << "p.ini, line 7: \"wide\" is no number from -100000 to 100000.";
    QTest::newRow("not a number") << l + "left = nan"
                                  << "p.ini, line 7: \"nan\" is no number from -100000 to 100000.";
    QTest::newRow("endless") << l + "left = inf"
                             << "p.ini, line 7: \"inf\" is no number from -100000 to 100000.";
    QTest::newRow("below nothing") << l + "[limits]\nspeed = -1"
                                   << "p.ini, line 8: \"-1\" is no number from 0 to 1000000.";
    QTest::newRow("action") << l + "[functions]\nG5 = spline"
                            << "p.ini, line 8: \"spline\" is none of: ignored, rapid, feed, "
                               "synchronous, dwell, inches, millimetres, absolute, relative, "
                               "spindle forward, spindle reverse, spindle stop, clamp wire, cut "
                               "wire, pause, tool change, end.";
    const QString functionForm =
        "p.ini, line 8: A function is: G or M with a number = action, modal group.";
    QTest::newRow("function") << l + "[functions]\nX5 = feed" << functionForm;
    QTest::newRow("two functions") << l + "[functions]\nG1G2 = feed" << functionForm;
    QTest::newRow("no code") << l + "[functions]\nG1.25 = feed" << functionForm;
    QTest::newRow("code too large") << l + "[functions]\nG1000 = feed" << functionForm;
    QTest::newRow("two groups") << l + "[functions]\nG1 = feed, a, b" << functionForm;
    QTest::newRow("no name of a group") << l + "[functions]\nG1 = feed," << functionForm;
    QTest::newRow("same function") << l + "[functions]\nG1 = feed\nG01 = rapid"
                                   << "p.ini, line 9: \"g01\" stands there twice.";
    const QString axisForm = "p.ini, line 8: An axis is: letter = role, unit, minimum, maximum.";
    QTest::newRow("axis") << l + "[axes]\nY = other, mm, 0" << axisForm;
    QTest::newRow("axis of two letters") << l + "[axes]\nYY = other, mm, 0, 1" << axisForm;
    QTest::newRow("axis of no letter") << l + "[axes]\n1 = other, mm, 0, 1" << axisForm;
    QTest::newRow("role") << l + "[axes]\nY = left, mm, 0, 1"
                          << "p.ini, line 8: \"left\" is none of: traverse, guide distance, guide "
                             "height, tension, other.";
    QTest::newRow("unit") << l + "[axes]\nY = other, in, 0, 1"
                          << "p.ini, line 8: \"in\" is none of: mm, deg, N.";
    QTest::newRow("unit of a length") << l + "[axes]\nY = guide distance, deg, 0, 1"
                                      << "p.ini, line 8: The unit of this axis is mm.";
    QTest::newRow("unit of a tension") << l + "[axes]\nY = tension, mm, 0, 1"
                                       << "p.ini, line 8: The unit of this axis is N.";
    QTest::newRow("range the wrong way") << l + "[axes]\nY = other, mm, 5, 1"
                                         << "p.ini, line 8: \"1\" is no number from 5 to 1000000.";
    QTest::newRow("two traverses") << l + "[axes]\nY = traverse, mm, 0, 1"
                                   << "p.ini, line 8: Another axis is the traverse already.";
    QTest::newRow("letter of a function") << l + "[axes]\nG = other, mm, 0, 1"
                                          << "p.ini, line 8: The letter G means something already.";
    QTest::newRow("letter twice") << l + "[words]\nX = feed"
                                  << "p.ini, line 8: The letter X means something already.";
    QTest::newRow("too many axes")
        << l
               + "[axes]\nA=other,mm,0,1\nB=other,mm,0,1\nC=other,mm,0,1\nD=other,mm,0,1\n"
                 "E=other,mm,0,1\nF=other,mm,0,1"
        << "p.ini, line 13: There are too many axes.";
    QTest::newRow("word") << l + "[words]\nfeed = F"
                          << "p.ini, line 8: There is no key \"feed\" in [words].";
    QTest::newRow("dwell's letter") << l + "[words]\ndwell = 4"
                                    << "p.ini, line 8: \"4\" is no letter.";
    QTest::newRow("dwell by an axis") << l + "[words]\ndwell = X"
                                      << "p.ini: the letter of the dwell means something already.";
    QTest::newRow("dwell without a word") << l + "[functions]\nG4 = dwell"
                                          << "p.ini: a dwell needs \"dwell = letter\" in [words].";
    QTest::newRow("size") << l + "[wire]\nsize = 0.251 grade 1"
                          << "p.ini, line 8: \"0.251 grade 1\" is no size of IEC 60317, as \"0.250 "
                             "grade 1\" is.";
    QTest::newRow("size without grade")
        << l + "[wire]\nsize = 0.25"
        << "p.ini, line 8: \"0.25\" is no size of IEC 60317, as \"0.250 grade 1\" is.";
    QTest::newRow("conductor in no wire") << l + "[wire]\ndiameter = 0.5\nconductor = 0.6"
                                          << "p.ini: the conductor is wider than the wire.";
    QTest::newRow("tool")
        << l + "[tools]\n1.5 = 2"
        << "p.ini, line 8: \"1.5\" is no number of a tool, or stands there twice.";
    QTest::newRow("same tool") << l + "[tools]\n1 = 2\n01 = 3"
                               << "p.ini, line 9: \"01\" is no number of a tool, or stands there "
                                  "twice.";
    QTest::newRow("demand") << l + "[rules]\nclamp = maybe"
                            << "p.ini, line 8: \"maybe\" is none of: required, optional.";
    QTest::newRow("growth") << l + "[layers]\ngrowth = fast"
                            << "p.ini, line 8: \"fast\" is none of: guide, wire, nested.";
    QTest::newRow("no text") << l + QByteArray("\0", 1)
                             << "p.ini is no text, and so no machine profile.";
    QTest::newRow("no UTF-8") << l + "\xff"
                              << "p.ini is no text, and so no machine profile.";
    QTest::newRow("too large") << QByteArray(MachineProfile::mostBytes + 1, ';')
                               << "p.ini is too large for a machine profile.";
    QTest::newRow("flange in the core") << QByteArray(l).replace("flange = 40", "flange = 4")
                                        << "p.ini: the flange is narrower than the core.";
}

void TestMachineProfile::nonsense()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    QCOMPARE(errorsOf(text), QStringList(error));
}

void TestMachineProfile::allFaultsAreTold()
{
    QCOMPARE(errorsOf(least() + "height = 3\nleft = a\n[x]\n").size(), 3);
    // A program, or any other file, gives no list without an end.
    const int most = errorsOf(QByteArray("G01 X5\n").repeated(1000)).size();
    QVERIFY(most > 1 && most <= 20);
}

void TestMachineProfile::faultsHaveTheirLine()
{
    const QStringList errors = errorsOf("\n" + least() + "\r\n; remark\r\nheight = 3\r\n");
    QCOMPARE(errors, QStringList("p.ini, line 10: There is no key \"height\" in [bobbin]."));
}

void TestMachineProfile::oneFaultLeavesNothing()
{
    QStringList errors;
    const MachineProfile profile = MachineProfile::fromText(
        MachineProfile::sampleText() + "growht = guide\n", "p.ini", &errors);
    QCOMPARE(errors.size(), 1);
    QVERIFY(!profile.isValid());
    QCOMPARE(profile.name(), QString());
    QVERIFY(!profile.function('G', 0));
    QCOMPARE(profile.bobbin().coreDiameter, 0.0);
}

void TestMachineProfile::halfAProfile()
{
    QCOMPARE(errorsOf(QByteArray()), QStringList()
                                         << "p.ini: no axis is the traverse."
                                         << "p.ini: the bobbin needs a core and a width.");
}

void TestMachineProfile::fileThatIsNone()
{
    QStringList errors;
    QVERIFY(!MachineProfile::fromFile(home() + "/none.ini", &errors).isValid());
    QCOMPARE(errors.size(), 1);
    QVERIFY(errors.first().startsWith(home() + "/none.ini cannot be read: "));
    QVERIFY(!MachineProfile::fromFile(home(), &errors).isValid());
    QCOMPARE(errors, QStringList(home() + " is no file."));
    // A pipe that nobody writes to would be waited for.
    const QString pipe = home() + "/pipe";
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!MachineProfile::fromFile(pipe, &errors).isValid());
    QCOMPARE(errors, QStringList(pipe + " is no file."));
}

void TestMachineProfile::fileIsRead()
{
    writeFile(home() + "/machine.ini", MachineProfile::sampleText());
    QStringList errors("from before");
    const MachineProfile profile = MachineProfile::fromFile(home() + "/machine.ini", &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(profile.axes().size(), 4);
}

FILARIX_TEST_MAIN(TestMachineProfile)
#include "tst_machineprofile.moc"
