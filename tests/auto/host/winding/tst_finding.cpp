// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "winding/finding.h"

#include <QSet>
#include <QStringList>

class TestFinding : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachKindHasItsNameAndSentences();
    void argumentsStandInTheSentences();
    void whatLooksLikeAPlaceHolderStays();
    void sentencesSpeakTheLanguageOfTheMoment();
};

void TestFinding::eachKindHasItsNameAndSentences()
{
    QStringList names;
    for (int i = 0; i < Finding::kindCount; ++i) {
        Finding finding;
        finding.kind = Finding::Kind(i);
        names.append(Finding::name(finding.kind));
        QVERIFY2(QRegExp("[a-z]+(-[a-z]+)*").exactMatch(names.last()), qPrintable(names.last()));
        QVERIFY(finding.text().endsWith('.') && finding.advice().endsWith('.'));
        QVERIFY(!finding.text().contains('%') && !finding.advice().contains('%'));
    }
    QCOMPARE(names.toSet().size(), names.size());
}

static Finding axisLimit()
{
    Finding finding;
    finding.kind = Finding::AxisLimit;
    finding.arguments << "X"
                      << "41 mm"
                      << "40 mm";
    return finding;
}

void TestFinding::argumentsStandInTheSentences()
{
    QCOMPARE(axisLimit().text(), QString("X goes to 41 mm, beyond the axis: its end is 40 mm."));
}

void TestFinding::whatLooksLikeAPlaceHolderStays()
{
    Finding finding = axisLimit();
    finding.arguments[0] = "%2%%";
    QCOMPARE(finding.text(), QString("%2%% goes to 41 mm, beyond the axis: its end is 40 mm."));
}

void TestFinding::sentencesSpeakTheLanguageOfTheMoment()
{
    const Finding finding = axisLimit();
    const QString advice = finding.advice();
    {
        TestCompat::MarkingTranslator translator("Finding");
        QCOMPARE(finding.advice(), advice + '*');
    }
    QCOMPARE(finding.advice(), advice);
}

FILARIX_TEST_MAIN(TestFinding)
#include "tst_finding.moc"
