// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "canonicalmotions.h"
#include "filarixtest.h"
#include "oracleprogram.h"

#include <cmath>

/// What the comparison with the oracle rests on, where there is no oracle.
class TestCanonicalMotions : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void bothSidesReadTheSame();
    void differencesAreSeen_data();
    void differencesAreSeen();
    void generatedProgramsWind();
};

static const char program[] = "G21 G90\nG00 X1 Y2 Z3\nF200 S300 M03\nG01 X2.5\nG91\n"
                              "G33 X-1 K0.25\nG20\nG01 Y0.5\nM05\nM30\n";

static const char answer[] =
    "    7 N..... USE_LENGTH_UNITS(CANON_UNITS_MM)\n"
    "    8 N..... STRAIGHT_TRAVERSE(1.0000, 2.0000, 3.0000, 0.0000, 0.0000, 0.0000)\n"
    "   11 N..... SET_FEED_RATE(200.0000)\n"
    "   12 N..... STRAIGHT_FEED(2.5000, 2.0000, 3.0000, 0.0000, 0.0000, 0.0000)\n"
    "   13 N..... START_SPEED_FEED_SYNC(0.250000,0)\n"
    "   14 N..... STRAIGHT_FEED(1.5000, 2.0000, 3.0000, 0.0000, 0.0000, 0.0000)\n"
    "   15 N..... STOP_SPEED_FEED_SYNCH()\n"
    "   20 N..... USE_LENGTH_UNITS(CANON_UNITS_INCHES)\n"
    "   22 N..... STRAIGHT_FEED(0.0591, 0.5787, 0.1181, 0.0000, 0.0000, 0.0000)\n"
    "   36 N..... PROGRAM_END()\n";

void TestCanonicalMotions::bothSidesReadTheSame()
{
    const CanonicalMotions ours = motionsOfProgram(program);
    const CanonicalMotions theirs = motionsOfOracle(answer);
    QCOMPARE(int(ours.size()), 4);
    QCOMPARE(int(theirs.size()), 4);
    for (int i = 0; i < ours.size(); ++i)
        QVERIFY2(distanceOf(ours.at(i), theirs.at(i)) <= 1e-4, qPrintable(QString::number(i)));
    QVERIFY(ours.at(2).kind == CanonicalMotion::Synchronous);
    QCOMPARE(ours.at(2).pitch, 0.25);
    QCOMPARE(ours.at(3).line, 8);
    QCOMPARE(theirs.at(3).line, 9);
}

void TestCanonicalMotions::differencesAreSeen_data()
{
    QTest::addColumn<QByteArray>("here");
    QTest::addColumn<QByteArray>("there");
    QTest::newRow("end") << QByteArray("(1.5000,") << QByteArray("(1.5002,");
    QTest::newRow("third axis") << QByteArray("0.1181") << QByteArray("0.1183");
    QTest::newRow("pitch") << QByteArray("0.250000") << QByteArray("0.251000");
    QTest::newRow("kind") << QByteArray("TRAVERSE") << QByteArray("FEED");
    QTest::newRow("not in step") << QByteArray("START_SPEED_FEED_SYNC") << QByteArray("NOTHING");
}

void TestCanonicalMotions::differencesAreSeen()
{
    QFETCH(QByteArray, here);
    QFETCH(QByteArray, there);
    const CanonicalMotions ours = motionsOfProgram(program);
    const CanonicalMotions theirs = motionsOfOracle(QByteArray(answer).replace(here, there));
    QCOMPARE(int(theirs.size()), int(ours.size()));
    int differences = 0;
    for (int i = 0; i < ours.size(); ++i)
        differences += distanceOf(ours.at(i), theirs.at(i)) > 1e-4;
    QCOMPARE(differences, 1);
}

/// Otherwise the oracle would be asked about nothing.
void TestCanonicalMotions::generatedProgramsWind()
{
    int kinds[3] = {};
    int lines = 0;
    for (int seed = 1; seed <= 200; ++seed) {
        const QByteArray text = OracleProgram::text(quint32(seed));
        QCOMPARE(text, OracleProgram::text(quint32(seed)));
        for (const CanonicalMotion &motion : motionsOfProgram(text))
            ++kinds[motion.kind];
        lines += int(text.count('\n'));
    }
    QVERIFY(lines > 5000);
    for (const int count : kinds)
        QVERIFY2(count > lines / 10, qPrintable(QString::number(count)));
}

FILARIX_TEST_MAIN(TestCanonicalMotions)
#include "tst_canonicalmotions.moc"
