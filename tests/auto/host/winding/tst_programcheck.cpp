// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "rightprogram.h"
#include "seededfault.h"
#include "winding/programcheck.h"

#include <QDir>

#include <algorithm>
#include <ctime>

class TestProgramCheck : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void lineByLine_data();
    void lineByLine();
    void columnAndLengthAreThoseOfTheWord();
    void sentencesNameTheWordAndTheLimit();
    void aStateIsMissedOnce();
    void profileSaysWhatIsDemanded();
    void aDwellsLetterIsItsTimeThere_data();
    void aDwellsLetterIsItsTimeThere();
    void commentsInAnyLanguageAreRight();
    void inchesAreCheckedInMillimetres();
    void findingsComeInOrder();
    void manyFindingsAreCounted();
    void emptyProgramHasNoEnd();
    void profileMayForbidSending();
    void samplesAreRight_data();
    void samplesAreRight();
    void rightProgramsAreRight();
    void seededFaultsAreFound();
    void millionLinesAreCheckedInTime();
};

static MachineProfile profileOf(const QByteArray &text)
{
    QStringList errors;
    const MachineProfile profile = MachineProfile::fromText(text, QString("test.ini"), &errors);
    if (!errors.isEmpty())
        qFatal("%s", qPrintable(errors.join("\n")));
    return profile;
}

static MachineProfile testProfile()
{
    return profileOf(RightProgram::profile());
}

static ProgramCheck checked(const QByteArray &program,
                            const MachineProfile &profile = testProfile())
{
    ProgramCheck check(profile);
    ProgramReading reading(profile, &check);
    reading.addBytes(program.constData(), program.size());
    reading.finish();
    return check;
}

/// "3 axis-limit, 5 no-end"
static QString told(const ProgramCheck &check)
{
    QStringList list;
    for (const Finding &finding : check.findings())
        list.append(QString::number(finding.line) + ' ' + Finding::name(finding.kind));
    return list.join(", ");
}

/// Around some lines, from line 4 on, what makes a right program of them.
static QByteArray framed(const QByteArray &lines)
{
    return "G21 G90\nM10\nG00 X1 Y8 U0\n" + lines + "\nM05\nM12\nM30\n";
}

void TestProgramCheck::lineByLine_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *lines, const char *expected) {
        QTest::newRow(name) << QByteArray(lines) << QString(expected);
    };
    row("nothing", "", "");
    row("comments", "; G99\n(X999)\n\n   ", "");
    row("winding", "S300 M03\nG33 X10 K0.25", "");
    row("speed in the block that winds", "M03\nG33 X10 K0.25 S300", "");
    row("block numbers", "N10 S300 M03\nN20 G33 X10 K0.25", "");
    row("small letters", "s300 m3\ng33 x10 k.25", "");
    row("feed before", "F100\nG01 Y9\nY10", "");
    row("dwell, and its time is no feed", "G04 F0.5\nG01 Y9", "5 no-feed");
    row("tape marks", "%", "");

    row("letter", "G00 Q5", "4 unknown-word");
    row("number of a function", "G35 X5 K1", "4 unknown-word, 4 idle-word");
    row("part of a function", "G33.1 X5", "4 unknown-word");
    row("no function has that number", "M1000000", "4 unknown-word");
    row("tool", "T9", "4 unknown-tool");
    row("half a tool", "T1.5", "4 unknown-tool");
    row("axis twice", "G00 X1 X2", "4 double-word");
    row("same function twice", "G00 G0 X2", "4 double-word");
    row("three times", "G00 X1 X2 X3", "4 double-word, 4 double-word");
    row("two of a group", "G00 G01 X2 F5", "4 group-clash");
    row("two of a group that are no motions", "G20 G21", "4 group-clash");
    row("two of different groups", "G21 G90 G00 X2", "");
    row("pitch without winding", "G00 X2 K1", "4 idle-word");
    row("negative speed", "S-300", "4 negative-value");
    row("negative feed", "G01 F-300", "4 negative-value");
    row("negative pitch", "S300 M03\nG33 X5 K-1", "5 negative-value");
    row("negative dwell", "G04 F-1", "4 negative-value");

    row("no feed", "G01 Y9", "4 no-feed");
    row("feed of nothing", "G01 Y9 F0", "4 no-feed");
    row("no pitch", "S300 M03\nG33 X5", "5 no-pitch");
    row("pitch of nothing", "S300 M03\nG33 X5 K0", "5 no-pitch");
    row("pitch of the line before", "S300 M03\nG33 X5 K0.25\nX6", "6 no-pitch");
    row("no dwell time", "G04", "4 no-dwell-time");
    row("no spindle", "S300\nG33 X5 K0.25", "5 spindle-stands");
    row("no speed", "M03\nG33 X5 K0.25", "5 spindle-stands");
    row("spindle stopped", "S300 M03\nG33 X5 K0.25\nM05\nG33 X6 K0.25", "7 spindle-stands");

    row("beyond an axis", "G00 X41", "4 axis-limit");
    row("before an axis", "G00 Y-1", "4 axis-limit");
    row("at the ends of an axis", "G00 X40\nG00 X-10", "");
    row("beyond by steps", "G91\nG00 X30\nX20\nG90", "6 axis-limit");
    row("two axes", "G00 X41 Y99", "4 axis-limit, 4 axis-limit");
    row("speed", "S2001", "4 speed-limit");
    row("highest speed", "S2000", "");
    row("pitch", "S300 M03\nG33 X15 K2.5", "5 pitch-limit");
    row("tension", "G01 F100\nU2\nU4\nU6\nU8\nU9\nS300 M03", "10 tension-limit");
    row("tension while the spindle stands", "G01 F100\nU2\nU4\nU6\nU8\nU9", "");
    row("tension rises while it turns", "G01 F100\nU2\nU4\nU6\nU8\nS300 M03\nU9\nU8\nU8.5\nG04 F1",
        "10 tension-limit, 12 tension-limit");
    row("tension jumps", "G01 U2.5 F100", "4 tension-jump");
    row("tension falls", "G01 F100\nU2\nU4\nU1", "7 tension-jump");
    row("beside the bobbin", "S300 M03\nG33 X20.5 K0.25", "5 outside-bobbin");
    row("at the flange", "S300 M03\nG33 X20 K0.25", "");
    row("back from beside the bobbin", "G00 X-2\nS300 M03\nG33 X5 K0.25", "6 outside-bobbin");
    row("beside the bobbin in haste", "S300 M03\nG00 X30", "");
    row("beside the bobbin with a feed, while the spindle stands", "G01 X30 F500", "");
    row("beside the bobbin with a feed, while it turns", "S300 M03\nG01 X30 F500",
        "5 outside-bobbin");
    row("turns round a pin", "G00 X-5\nS300 M03\nG04 F2", "");
    row("overfull", "S300 M03\nG33 X15 K0.25\nG01 Y50 F100\nG33 X5 K0.25", "7 overfull");
    row("full", "S300 M03\nG33 X15 K0.25\nG01 Y27 F100\nG33 X5 K0.25", "");

    row("control character", "G00\aX5", "4 control-character");
    row("control character in a comment", "; \x1b[31m", "4 control-character");
    row("letter of another alphabet",
        "G00 \xd0\xa5"
        "5",
        "4 non-ascii, 4 stray-character");
    row("comment in German", "; f\xc3\xbcnf", "4 non-ascii-in-comment");
    row("comma", "G00 X12,5", "4 stray-character");
    row("letter alone", "G00 X", "4 number-missing");
    row("two points", "G00 X1.2.3", "4 number-malformed");
    row("too large", "G00 X1234567890123", "4 number-too-large");
    row("comment not closed", "G00 X5 (tape", "4 comment-not-closed");
}

void TestProgramCheck::lineByLine()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, expected);
    QCOMPARE(told(checked(framed(lines))), expected);
}

void TestProgramCheck::columnAndLengthAreThoseOfTheWord()
{
    const ProgramCheck check = checked(framed("  G00  X2  Y 100.5 ; far"));
    QCOMPARE(told(check), QString("4 axis-limit"));
    const Finding finding = check.findings().first();
    QCOMPARE(finding.column, 12);
    QCOMPARE(finding.length, 7);
    QVERIFY(finding.severity == Finding::Error);
}

void TestProgramCheck::sentencesNameTheWordAndTheLimit()
{
    const Finding finding = checked(framed("G00 X41.25")).findings().first();
    QCOMPARE(finding.text(), QString("X goes to 41.25 mm, beyond the axis: its end is 40 mm."));
    QCOMPARE(finding.advice(), QString("Correct the number or the position before."));
    QCOMPARE(checked(framed("G35")).findings().first().text(),
             QString("G35 is unknown to this profile."));
    QCOMPARE(checked(framed("G00 g1 X1 F5")).findings().first().text(),
             QString("G00 and G01 in one line contradict each other."));
    QCOMPARE(checked(framed("G01 Y9")).findings().first().advice(),
             QString("Add F with the feed."));
    QCOMPARE(checked("G21").findings().first().advice(), QString("Add M30 as the last line."));
    QCOMPARE(checked(framed("S300\nG33 X5 K1")).findings().first().advice(),
             QString("Start the spindle before, by M03 and a speed."));
}

/// A program that lacks one word at its beginning has one fault, not one in each line.
void TestProgramCheck::aStateIsMissedOnce()
{
    QCOMPARE(told(checked("G21 G90\nM10\nX1\nX2\nM10\nX3\nM12\nM30\n")), QString("3 no-motion"));
    QCOMPARE(told(checked(framed("G01 Y9\nY10\nY11\nF100\nY12"))), QString("4 no-feed"));
    QCOMPARE(told(checked(framed("G33 X5 K1\nX6 K1\nS300 M03\nX7 K1\nM05\nX8 K1"))),
             QString("4 spindle-stands, 9 spindle-stands"));
    QCOMPARE(told(checked("G00 X1 Y8\nS300 M03\nG33 X5 K1\nX6 K1\nM10\nX7 K1\nM12\nX8 K1\nM30\n")),
             QString("3 not-clamped, 8 not-clamped, 9 not-cut"));
}

void TestProgramCheck::profileSaysWhatIsDemanded()
{
    const QByteArray program = "G00 X1 Y8\nS300 M03\nG33 X50 K3\nG00 U5\n";
    QCOMPARE(told(checked(program)), QString("3 not-clamped, 3 axis-limit, 3 outside-bobbin, 3 "
                                             "pitch-limit, 4 no-end, 4 not-cut, 4 tension-jump"));
    QByteArray profile = RightProgram::profile();
    profile.replace("= required", "= optional").replace("-10, 40", "-10, 60");
    profile.replace("width = 20", "width = 60").replace("pitch = 2\n", "");
    QCOMPARE(told(checked(program, profileOf(profile))), QString("4 tension-jump"));
}

void TestProgramCheck::aDwellsLetterIsItsTimeThere_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("dwell");
    QTest::addColumn<QString>("expected");
    QTest::newRow("speed") << QByteArray("dwell = S") << QByteArray("G04 S2500") << QString();
    QTest::newRow("pitch") << QByteArray("dwell = K") << QByteArray("G04 K2.5") << QString();
    QTest::newRow("tool") << QByteArray("dwell = T") << QByteArray("G04 T2.5") << QString();
    QTest::newRow("negative") << QByteArray("dwell = T") << QByteArray("G04 T-1")
                              << QString("4 negative-value");
    QTest::newRow("elsewhere") << QByteArray("dwell = S") << QByteArray("S2500")
                               << QString("4 speed-limit");
}

void TestProgramCheck::aDwellsLetterIsItsTimeThere()
{
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, dwell);
    QFETCH(QString, expected);
    QByteArray profile = RightProgram::profile();
    QVERIFY(profile.contains("dwell = F"));
    profile.replace("dwell = F", words);
    QCOMPARE(told(checked(framed(dwell), profileOf(profile))), expected);
}

void TestProgramCheck::commentsInAnyLanguageAreRight()
{
    const ProgramCheck check = checked(framed("; " + QByteArray("\xc3\xbc a ").repeated(50)));
    QCOMPARE(check.count(Finding::Error), 0);
    QCOMPARE(check.count(Finding::Warning), 0);
    QVERIFY(check.count(Finding::Note) > 0);
    QCOMPARE(check.leftOut(), 0);
}

void TestProgramCheck::inchesAreCheckedInMillimetres()
{
    QCOMPARE(told(checked(framed("G20\nG00 X1.5"))), QString());
    QCOMPARE(told(checked(framed("G20\nG00 X1.6"))), QString("5 axis-limit"));
    QCOMPARE(told(checked(framed("G20\nS300 M03\nG33 X0.5 K0.07\nX0.6 K0.08"))),
             QString("7 pitch-limit"));
    // Newtons are no length.
    QCOMPARE(told(checked(framed("G20\nG01 U2 F100"))), QString());
}

void TestProgramCheck::findingsComeInOrder()
{
    const ProgramCheck check = checked("G00 X1 Q5 X99\nG00 Y99 X98\n");
    QCOMPARE(
        told(check),
        QString(
            "1 double-word, 1 unknown-word, 1 axis-limit, 2 no-end, 2 axis-limit, 2 axis-limit"));
    int before = 0;
    for (const Finding &finding : check.findings()) {
        const int place = finding.line * 1000 + finding.column;
        QVERIFY(place >= before);
        before = place;
    }
}

void TestProgramCheck::manyFindingsAreCounted()
{
    const int many = ProgramCheck::mostKept + 500;
    QByteArray lines;
    for (int i = 0; i < many; ++i)
        lines += "G00 X99 ; \xc3\xbc\nG00 X1 K1\n";
    const ProgramCheck check = checked(framed(lines));
    QCOMPARE(check.count(Finding::Error), many);
    QCOMPARE(check.count(Finding::Warning), many);
    QCOMPARE(check.count(Finding::Note), many);
    QCOMPARE(check.count(), 3 * many);
    QCOMPARE(int(check.findings().size()), 3 * ProgramCheck::mostKept);
    QCOMPARE(check.leftOut(), 3 * 500);
    QCOMPARE(check.findings().last().line, 4 + 2 * ProgramCheck::mostKept - 1);
}

void TestProgramCheck::emptyProgramHasNoEnd()
{
    QCOMPARE(told(checked("")), QString("1 no-end"));
    QCOMPARE(told(checked("; nothing\n\n")), QString("2 no-end"));
    QCOMPARE(told(checked("M30")), QString());
    QCOMPARE(told(checked("%\nM30\n%\n\n; notes\n")), QString());
    QCOMPARE(told(checked("M30\n; f\xc3\xbc\nG00 X5\nG00 X6\n")), QString("3 behind-end"));
    QCOMPARE(told(checked("M30\n; \xc3\xbc\n  @\nX\n")), QString("3 behind-end"));
    QCOMPARE(checked("M30\n  @\n").findings().first().column, 3);
    QCOMPARE(told(checked(QByteArray("M30\n") + QByteArray(512, '\0'))), QString("2 behind-end"));
}

void TestProgramCheck::profileMayForbidSending()
{
    QVERIFY(checked("G00 X99\nM30").forbidsSending());
    QVERIFY(!checked("G00 X9\nM30\nG00 X9").forbidsSending());
    QByteArray profile = RightProgram::profile();
    profile.replace("errors = forbid", "errors = ask");
    QVERIFY(!checked("G00 X99\nM30", profileOf(profile)).forbidsSending());
}

void TestProgramCheck::samplesAreRight_data()
{
    QTest::addColumn<QString>("path");
    const QDir samples(FILARIX_SAMPLES);
    for (const QString &name : samples.entryList(QStringList("*.cnc"), QDir::Files))
        QTest::newRow(qPrintable(name)) << samples.filePath(name);
}

void TestProgramCheck::samplesAreRight()
{
    QFETCH(QString, path);
    const QByteArray program = readFile(path);
    QVERIFY(!program.isEmpty());
    QCOMPARE(told(checked(program, MachineProfile::forSamples())), QString());
}

void TestProgramCheck::rightProgramsAreRight()
{
    const MachineProfile profile = testProfile();
    int longest = 0;
    for (int i = 0; i < scaled(100, 10); ++i) {
        const ProgramLines program = RightProgram::lines(i, i % 4 == 0 ? 20000 : 50 << (i % 8));
        longest = qMax(longest, int(program.size()));
        const ProgramCheck check = checked(RightProgram::text(program), profile);
        QVERIFY2(check.count() == 0, qPrintable(QString("program %1: %2").arg(i).arg(told(check))));
    }
    QVERIFY2(longest > 10000 && longest <= 20000, qPrintable(QString::number(longest)));
}

void TestProgramCheck::seededFaultsAreFound()
{
    const MachineProfile profile = testProfile();
    const int wanted = 500;
    int planted = 0;
    int found = 0;
    int named = 0;
    QVector<int> ofKind(SeededFault::kindCount());
    for (quint32 seed = 1; planted < wanted; ++seed) {
        QVERIFY2(seed < 10 * quint32(wanted), "a kind of fault finds no place");
        // The kind that was planted least.
        const int kind = int(std::min_element(ofKind.begin(), ofKind.end()) - ofKind.begin());
        const SeededFault fault = SeededFault::plant(kind, RightProgram::lines(seed, 1500), seed);
        if (fault.line == 0)
            continue;
        ++planted;
        ++ofKind[kind];
        const ProgramCheck check = checked(fault.text, profile);
        bool isFound = false;
        bool isNamed = false;
        for (const Finding &finding : check.findings()) {
            const bool isThere = finding.line == fault.line && finding.severity >= Finding::Warning;
            isFound = isFound || isThere;
            isNamed = isNamed || (isThere && finding.kind == fault.kind);
        }
        found += isFound;
        named += isNamed;
        if (!isNamed)
            qDebug("%s in line %d of program %u: %s", SeededFault::nameOf(kind), fault.line, seed,
                   qPrintable(told(check).left(200)));
    }
    qDebug("%d faults of %d kinds: %d found on their line, %d of them by the right name", planted,
           SeededFault::kindCount(), found, named);
    QVERIFY(found * 100 >= planted * 98);
    QVERIFY(named * 100 >= planted * 98);
}

/// Read, wound and checked: the processor's time, which no other program adds to.
void TestProgramCheck::millionLinesAreCheckedInTime()
{
    const MachineProfile profile = MachineProfile::forSamples();
    QByteArray sample = readFile(FILARIX_SAMPLES "/endurance-run.cnc");
    sample.replace("M30\n", "M05\n");
    const int lines = 20000;
    for (const int count : {100000, 1000000}) {
        const int wanted = scaled(count, lines);
        const std::clock_t begin = std::clock();
        ProgramCheck check(profile);
        ProgramReading reading(profile, &check);
        while (reading.lines() < wanted)
            reading.addBytes(sample.constData(), sample.size());
        reading.finish();
        const double ms = 1000.0 * double(std::clock() - begin) / CLOCKS_PER_SEC;
        const int limit = count == 100000 ? 120 : 1000;
        qDebug("%d lines in %.0f ms", reading.lines(), ms);
        QVERIFY2(ms <= patience(limit), qPrintable(QString::number(ms)));
        QCOMPARE(told(check), QString("%1 no-end").arg(reading.lines()));
    }
}

FILARIX_TEST_MAIN(TestProgramCheck)
#include "tst_programcheck.moc"
