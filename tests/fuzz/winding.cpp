// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "winding/programcheck.h"

#include <cmath>

namespace {

/// What a block may be, whatever the line was.
class Inspector : public BlockListener
{
public:
    explicit Inspector(const MachineProfile &profile) : m_check(profile) {}

    void add(const GCodeBlock &block, const WindingStep &step, const WindingModel &model) override
    {
        m_check.add(block, step, model);
        FUZZ_REQUIRE(block.line == ++m_lines && step.line == block.line);
        int behind = 1;
        for (const GCodeWord &word : block) {
            FUZZ_REQUIRE(word.letter >= 'A' && word.letter <= 'Z');
            FUZZ_REQUIRE(word.column >= behind && word.length >= 2);
            FUZZ_REQUIRE(std::fabs(word.value) <= GCodeBlock::largestValue);
            behind = word.column + word.length;
        }
        for (int i = 0; i < block.faultCount; ++i)
            FUZZ_REQUIRE(block.faults[i].column >= 1 && block.faults[i].length >= 1);
        FUZZ_REQUIRE((step.usedWords & step.unknownWords) == 0);
        for (int slot = 0; slot < MachineAxis::slotCount; ++slot)
            FUZZ_REQUIRE(std::isfinite(step.to[slot]));
    }
    void finish(const WindingModel &model) override
    {
        m_check.finish(model);
        m_isFinished = true;
    }

    int lines() const { return m_lines; }
    bool isFinished() const { return m_isFinished; }

    const ProgramCheck &check() const { return m_check; }

private:
    ProgramCheck m_check;
    int m_lines = 0;
    bool m_isFinished = false;
};

void checkLayers(const WindingModel &model)
{
    const WindingTotals totals = model.totals();
    double turns = 0;
    for (const WindingLayer &layer : model.layers()) {
        FUZZ_REQUIRE(layer.firstLine >= 1 && layer.lastLine >= layer.firstLine);
        FUZZ_REQUIRE(layer.lastLine <= totals.lines);
        FUZZ_REQUIRE(layer.left <= layer.right && layer.turns >= 0);
        FUZZ_REQUIRE(layer.coil >= 0 && layer.coil < totals.coils && layer.level >= 0);
        FUZZ_REQUIRE(std::isfinite(layer.diameter) && std::isfinite(layer.wireLength));
        FUZZ_REQUIRE(layer.firstTurn >= turns * (1 - 1e-9));
        turns += layer.turns;
    }
    FUZZ_REQUIRE(std::fabs(turns - totals.turns) <= 1e-6 * (1 + totals.turns));
}

void checkTotals(const WindingTotals &totals)
{
    for (const double value : {totals.turns, totals.looseTurns, totals.wireLength, totals.mass,
                               totals.resistance, totals.seconds, totals.fillFactor,
                               totals.outerDiameter, totals.wireDiameter, totals.highestSpeed})
        FUZZ_REQUIRE(std::isfinite(value));
    FUZZ_REQUIRE(totals.turns >= 0 && totals.seconds >= 0 && totals.wireDiameter >= 0);
    FUZZ_REQUIRE(totals.looseTurns >= -1e-6);
}

void checkQueries(const WindingModel &model)
{
    const WindingTotals totals = model.totals();
    const int points = 50;
    for (int line = 0; line <= qMin(totals.lines, 100) + 1; ++line) {
        const WindingPlace place = model.place(line);
        FUZZ_REQUIRE(!place.isValid || (line >= 1 && line <= totals.lines));
        FUZZ_REQUIRE(place.layer >= -1 && place.layer < model.layers().size());
        FUZZ_REQUIRE(place.firstTurn <= place.lastTurn && place.begin <= place.end);
    }
    for (int layer = -1; layer <= qMin<int>(model.layers().size(), 20); ++layer)
        FUZZ_REQUIRE(model.lineAt(layer, 5) <= totals.lines);
    FUZZ_REQUIRE(model.lineAtTurn(totals.turns / 2) <= totals.lines);
    FUZZ_REQUIRE(model.lineAtTime(totals.seconds / 2) <= totals.lines);
    FUZZ_REQUIRE(model.path(points).size() <= points);
    FUZZ_REQUIRE(model.plot(WindingModel::Speed, WindingModel::Time, points).size() <= points);
    FUZZ_REQUIRE(model.plot(WindingModel::Tension, WindingModel::Turns, points).size() <= points);
}

void checkFindings(const ProgramCheck &check, int lines)
{
    FUZZ_REQUIRE(check.leftOut() >= 0);
    int before = 0;
    for (const Finding &finding : check.findings()) {
        FUZZ_REQUIRE(finding.line >= qMax(1, before) && finding.line <= qMax(1, lines));
        FUZZ_REQUIRE(finding.column >= 1 && finding.length >= 0);
        FUZZ_REQUIRE(finding.severity == Finding::severityOf(finding.kind));
        FUZZ_REQUIRE(!finding.text().isEmpty() && !finding.advice().isEmpty());
        before = finding.line;
    }
}

MachineProfile profileOf(QByteArray *bytes)
{
    enum Source { Samples, Prompt, ByWire, Nested, OwnProfile, Count };
    QByteArray text = MachineProfile::sampleText();
    switch (Fuzz::takeNumber(bytes, Count)) {
    case Prompt:
        text.replace("ramp = 600", "ramp = 0");
        break;
    case ByWire:
        text.replace("growth = guide", "growth = wire");
        text.replace("diameter = pitch", "size = 0.250 grade 1");
        break;
    case Nested:
        text.replace("growth = guide", "growth = nested");
        break;
    case OwnProfile:
        text = Fuzz::takePart(bytes, '\0');
    }
    QStringList errors;
    return MachineProfile::fromText(text, QLatin1String("profile"), &errors);
}

/// Reads \a program in pieces of so many bytes.
WindingModel read(const MachineProfile &profile, const QByteArray &program, int pieceBytes)
{
    Inspector inspector(profile);
    ProgramReading reading(profile, &inspector);
    for (int at = 0; at < program.size(); at += pieceBytes)
        reading.addBytes(program.constData() + at, qMin(pieceBytes, program.size() - at));
    reading.finish();
    FUZZ_REQUIRE(inspector.isFinished() && inspector.lines() == reading.lines());
    checkFindings(inspector.check(), reading.lines());
    return reading.model();
}

bool isAscii(const QByteArray &bytes)
{
    for (const char byte : bytes)
        if (uchar(byte) >= 0x80)
            return false;
    return true;
}

} // namespace

// A profile by a number, or up to the first zero byte, the size of pieces, and a program.
void Fuzz::tryInput(QByteArray bytes)
{
    const MachineProfile profile = profileOf(&bytes);
    const int pieceBytes = 1 + takeNumber(&bytes, 64);
    const WindingModel model = read(profile, bytes, qMax(1, bytes.size()));
    checkTotals(model.totals());
    checkLayers(model);
    checkQueries(model);

    const WindingModel byPieces = read(profile, bytes, pieceBytes);
    FUZZ_REQUIRE(byPieces.totals().turns == model.totals().turns);
    FUZZ_REQUIRE(byPieces.totals().seconds == model.totals().seconds);
    FUZZ_REQUIRE(byPieces.totals().lines == model.totals().lines);

    if (!isAscii(bytes))
        return;
    ProgramReading ofText(profile);
    ofText.addLines(QString::fromLatin1(bytes.constData(), bytes.size()) + QLatin1Char('\n'));
    ofText.finish();
    FUZZ_REQUIRE(ofText.model().totals().turns == model.totals().turns);
    FUZZ_REQUIRE(ofText.model().totals().seconds == model.totals().seconds);
}
