// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds InstructionRow, Problem and the other functions of filarixrows.h.

#include "filarixrows.h"

#include "dataeditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "mjline.h"
#include "rowfixture.h"
#include "rowprobe.h"
#include "rowview.h"
#include "tlistwidget.h"

#include <QSignalSpy>

#include <random>

using namespace FilarixRows;
using RowFixture::listSize;
using RowFixture::numbers;

/// The host's builder and checker of rows, held against what the widgets make of the rows.
class TestRowBuilder : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void everySetterHasItsPositions();
    void detailOutsideTheNineIsIgnored();
    void builtRowsAreWellFormed();
    void wellFormedRowsComeBackAsTheyWentIn();
    void checkerFindsWhatTheWidgetChanges();
    void everyFaultIsFoundAtItsPlace_data();
    void everyFaultIsFoundAtItsPlace();
    void everyFaultHasItsOwnWords();
    void everyWarningIsFoundAtItsPlace_data();
    void everyWarningIsFoundAtItsPlace();
    void onlyInstructionsThatAreWellFormedAreWarnedOf();
    void numbersWithALetterReadAsZeroInInstructionsOnly();
    void colonInTheFreeTextCutsItAtTheNextEdit();
    void noPageShowsATitleAmongTheRowsAgain();
    void tablesOfOtherLengthsLoseStrings();
    void otherRowsOfOneLengthMakeAList();
    void problemsAreEqualInAllThree();
    void colonInADetailCutsItAtTheNextEdit();
    void instructionNamedLikeATableIsHidden();
    void titleStandsAboveItsColumns();
    void otherRowIsEditedAmongInstructions();
    void tableRowsComeBackUnlessTwoStringsShareACell();
    void listsAreCheckedAsAWhole();
    void wellFormedListAnswersAsItself();
};

namespace {

typedef std::mt19937 Random;

QString randomText(Random &random, const QString &alphabet)
{
    QString text;
    for (int length = int(random() % 7); length > 0; --length)
        text += alphabet.at(int(random() % unsigned(alphabet.size())));
    return text;
}

const QString legal = QString::fromUtf8("abcXYZ019.-+_)äß↓<&\n\"\t");
const QString any = legal + QLatin1String(" :(");

InstructionRow randomInstruction(Random &random, const QString &alphabet)
{
    const auto text = [&random, &alphabet]() { return randomText(random, alphabet); };
    InstructionRow row(random() % 2 ? InstructionRow::Joint : InstructionRow::Linear, text());
    row.setJpos(text(), int(random())).setV(text(), int(random()));
    row.setZ(text(), text()).setT(text(), text()).setRes(randomText(random, any));
    for (int pair = 0; pair < detailCount; ++pair)
        row.setDetail(pair, text(), text());
    return row;
}

QStringList goodRow(int index)
{
    InstructionRow row(InstructionRow::Joint, QLatin1String("MOVJ"));
    row.setJpos(QLatin1String("P"), 3).setV(QLatin1String("V"), 1);
    row.setZ(QLatin1String("Z"), QLatin1String("0"));
    row.setT(QLatin1String("T"), QLatin1String("0.5")).setRes(QLatin1String("over the core"));
    for (int pair = 0; pair < detailCount; ++pair)
        row.setDetail(pair, QString(QLatin1Char('A' + pair)), QString::number(pair));
    return row.row(index);
}

QStringList titleTexts()
{
    return titleRow("Name", "Position", "Speed", "Zone", "Tool");
}

/// What comes back of a row whose widget was built for another one, kind first.
QStringList throughWidget(MJLine *line, const QStringList &row)
{
    QStringList inner = row.mid(1);
    line->setLineList(inner);
    return QStringList(row.first()) + line->GetLineList();
}

MJLine *newLine(const QStringList &row)
{
    QStringList inner = row.mid(1);
    return new MJLine(inner, listSize, nullptr);
}

/// Strings that make a row come back otherwise than it went in.
bool changesRow(Fault fault)
{
    return fault == ParenthesisInIns || fault == ColonInField || fault == AttMissing
           || fault == BlankInRes;
}

bool hasChangingFault(const QList<Problem> &problems)
{
    Q_FOREACH (const Problem &problem, problems) {
        // A colon in a detail shows at its first edit, not before.
        if (changesRow(problem.fault) && problem.position < FirstDetail)
            return true;
    }
    return false;
}

QByteArray words(const QList<Problem> &problems)
{
    QStringList texts;
    Q_FOREACH (const Problem &problem, problems)
        texts << describe(problem);
    return texts.join(QLatin1String("; ")).toUtf8();
}

} // namespace

void TestRowBuilder::everySetterHasItsPositions()
{
    InstructionRow row(InstructionRow::Linear, "MOVL");
    row.setJpos("Jkey", 4).setV("Vkey", -5).setZ("Zkey", "6").setT("Tkey", "7").setRes("a b");
    for (int pair = 0; pair < 9; ++pair)
        row.setDetail(pair, QString::fromLatin1("k%1").arg(pair),
                      QString::fromLatin1("v%1").arg(pair));
    const QStringList expected = QStringList() << "ML"
                                               << "12"
                                               << "MOVL"
                                               << "Jkey"
                                               << "4"
                                               << "Vkey"
                                               << "-5"
                                               << "Zkey"
                                               << "6"
                                               << "Tkey"
                                               << "7"
                                               << "Att"
                                               << "a_b"
                                               << "k0"
                                               << "v0"
                                               << "k1"
                                               << "v1"
                                               << "k2"
                                               << "v2"
                                               << "k3"
                                               << "v3"
                                               << "k4"
                                               << "v4"
                                               << "k5"
                                               << "v5"
                                               << "k6"
                                               << "v6"
                                               << "k7"
                                               << "v7"
                                               << "k8"
                                               << "v8";
    QCOMPARE(row.row(12), expected);
    QCOMPARE(InstructionRow(InstructionRow::Joint, QString()).row(0).first(), QString("MJ"));
}

void TestRowBuilder::detailOutsideTheNineIsIgnored()
{
    InstructionRow row(InstructionRow::Joint, "MOVJ");
    const QStringList before = row.row(0);
    row.setDetail(-1, "k", "v").setDetail(9, "k", "v");
    QCOMPARE(row.row(0), before);
}

void TestRowBuilder::builtRowsAreWellFormed()
{
    Random random(1);
    const int rows = scaled(100000);
    for (int i = 0; i < rows; ++i) {
        const QStringList row = randomInstruction(random, legal).row(i);
        const QList<Problem> problems = checkRow(row, i);
        QVERIFY2(problems.isEmpty(), words(problems));
        QVERIFY(checkRow(row, i + 1) == QList<Problem>() << Problem(i + 1, Num, NumIsNotIndex));
    }
}

void TestRowBuilder::wellFormedRowsComeBackAsTheyWentIn()
{
    Random random(2);
    const QScopedPointer<MJLine> closed(newLine(goodRow(0)));
    const QScopedPointer<MJLine> open(newLine(goodRow(0)));
    open->on_expand();
    const int rows = scaled(10000);
    for (int i = 0; i < rows; ++i) {
        const QStringList row = randomInstruction(random, legal).row(i);
        QCOMPARE(throughWidget(closed.data(), row), row);
        QCOMPARE(throughWidget(open.data(), row), row);
        if (i % 20 == 0) {
            const QScopedPointer<MJLine> built(newLine(row));
            QCOMPARE(QStringList(row.first()) + built->GetLineList(), row);
        }
    }
}

void TestRowBuilder::checkerFindsWhatTheWidgetChanges()
{
    Random random(3);
    const QScopedPointer<MJLine> line(newLine(goodRow(0)));
    const int rows = scaled(10000);
    int changed = 0;
    for (int i = 0; i < rows; ++i) {
        QStringList row = randomInstruction(random, legal).row(i);
        for (int spoilt = int(random() % 3); spoilt > 0; --spoilt)
            row[Ins + int(random() % (FirstDetail - Ins + 2))] = randomText(random, any);
        const bool isChanged = throughWidget(line.data(), row) != row;
        const QList<Problem> problems = checkRow(row, i);
        QVERIFY2(isChanged == hasChangingFault(problems), words(problems));
        changed += isChanged;
    }
    QVERIFY(changed > rows / 10 && changed < rows * 9 / 10);
}

void TestRowBuilder::everyFaultIsFoundAtItsPlace_data()
{
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("fault");

    const auto spoilt = [](QStringList row, int position, const char *text) {
        row[position] = QString::fromLatin1(text);
        return row;
    };
    const QStringList good = goodRow(7);
    const int none = -1;
    QTest::newRow("well-formed") << good << none << none;
    QTest::newRow("no strings") << QStringList() << 0 << int(UnknownKind);
    QTest::newRow("unknown kind") << spoilt(good, Kind, "mj") << 0 << int(UnknownKind);
    QTest::newRow("30 strings") << QStringList(good.mid(0, 30)) << 30 << int(WrongLength);
    QTest::newRow("32 strings") << QStringList(good + QStringList("")) << 32 << int(WrongLength);
    QTest::newRow("other number") << spoilt(good, Num, "8") << 1 << int(NumIsNotIndex);
    QTest::newRow("no number") << spoilt(good, Num, "") << 1 << int(NumIsNotIndex);
    QTest::newRow("number with N") << spoilt(good, Num, "N7") << none << none;
    QTest::newRow("other number with N") << spoilt(good, Num, "N8") << 1 << int(NumIsNotIndex);
    QTest::newRow("N alone") << spoilt(good, Num, "N") << 1 << int(NumIsNotIndex);
    QTest::newRow("two letters") << spoilt(good, Num, "NN7") << 1 << int(NumIsNotIndex);
    QTest::newRow("bracket in the name") << spoilt(good, Ins, "A(1)") << 2 << int(ParenthesisInIns);
    QTest::newRow("name of a table") << spoilt(good, Ins, "Oth") << 2 << int(ReservedIns);
    QTest::newRow("name like a table's") << spoilt(good, Ins, "oth") << none << none;
    QTest::newRow("colon in the Jpos key") << spoilt(good, JposKey, "P:") << 3 << int(ColonInField);
    QTest::newRow("colon in the T value") << spoilt(good, TValue, ":1") << 10 << int(ColonInField);
    QTest::newRow("colon in the first detail")
        << spoilt(good, 13, "a:b") << 13 << int(ColonInField);
    QTest::newRow("colon in the last detail") << spoilt(good, 30, ":") << 30 << int(ColonInField);
    QTest::newRow("colon in the free text") << spoilt(good, Res, "a:b") << none << none;
    QTest::newRow("Jpos index in words")
        << spoilt(good, JposIndex, "a") << 4 << int(IndexIsNoInteger);
    QTest::newRow("V index with a point")
        << spoilt(good, VIndex, "1.0") << 6 << int(IndexIsNoInteger);
    QTest::newRow("no V index") << spoilt(good, VIndex, "") << none << none;
    QTest::newRow("no Att") << spoilt(good, Att, "att") << 11 << int(AttMissing);
    QTest::newRow("blank in the free text") << spoilt(good, Res, "a b") << 12 << int(BlankInRes);

    const QStringList note = otherRow(7, "M05");
    QTest::newRow("other") << note << none << none;
    QTest::newRow("other of four") << QStringList(note.mid(0, 4)) << none << none;
    QTest::newRow("other of ten") << QStringList(note + numbers(1, 5)) << none << none;
    QTest::newRow("other too short") << QStringList(note.mid(0, 3)) << 3 << int(WrongLength);
    QTest::newRow("other too long") << QStringList(note + numbers(1, 6)) << 11 << int(WrongLength);
    QTest::newRow("other's number with N") << spoilt(note, 1, "N7") << none << none;
    QTest::newRow("other's number") << spoilt(note, 1, "N8") << 1 << int(NumIsNotIndex);
    QTest::newRow("other of six, its second cell")
        << spoilt(QStringList(note + numbers(1, 1)), 2, "y") << none << none;
    QTest::newRow("other's shared cell") << spoilt(note, 2, "x") << 2 << int(SharedCell);
    QTest::newRow("other without mark") << spoilt(note, 3, "oth") << 3 << int(MarkMissing);

    QTest::newRow("title among the rows") << titleTexts() << 0 << int(TitleAmongRows);

    const QStringList data = dataRow(7, QStringList() << "a"
                                                      << "b");
    QTest::newRow("table") << data << none << none;
    QTest::newRow("table's number with N") << spoilt(data, 1, "N7") << none << none;
    QTest::newRow("table's other number") << spoilt(data, 1, "N8") << 1 << int(NumIsNotIndex);
    QTest::newRow("table of a number alone")
        << QStringList(data.mid(0, 2)) << 2 << int(WrongLength);
    QTest::newRow("table of 32 strings") << dataRow(7, numbers(1, 31)) << none << none;
    QTest::newRow("table of 33 strings") << dataRow(7, numbers(1, 32)) << 34 << int(WrongLength);
    QTest::newRow("table's shared cell") << dataRow(7, QStringList() << "a"
                                                                     << "b"
                                                                     << "c")
                                         << 2 << int(SharedCell);
}

void TestRowBuilder::everyFaultIsFoundAtItsPlace()
{
    QFETCH(QStringList, row);
    QFETCH(int, position);
    QFETCH(int, fault);

    QList<Problem> expected;
    if (fault >= 0)
        expected << Problem(7, position, Fault(fault));
    const QList<Problem> problems = checkRow(row, 7);
    QVERIFY2(problems == expected, words(problems));
}

void TestRowBuilder::everyFaultHasItsOwnWords()
{
    QStringList seen;
    for (int fault = UnknownKind; fault <= ValueIsNoNumber; ++fault) {
        const QString text = describe(Problem(12, 4, Fault(fault)));
        QVERIFY2(text.startsWith("row 12, position 4: "), text.toUtf8());
        QVERIFY(text.size() > int(qstrlen("row 12, position 4: ")));
        QVERIFY(!seen.contains(text));
        seen << text;
    }
    // A fault of a later version.
    QCOMPARE(describe(Problem(12, 4, Fault(ValueIsNoNumber + 1))), QString("row 12, position 4: "));
}

void TestRowBuilder::everyWarningIsFoundAtItsPlace_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("warning");
    const int none = -1;
    QTest::newRow("number with N") << int(Num) << "N7" << int(NumReadsAsZero);
    QTest::newRow("number") << int(Num) << "7" << none;
    QTest::newRow("colon in the free text") << int(Res) << "a:b" << int(ColonInField);
    QTest::newRow("word in the free text") << int(Res) << "a_b" << none;
    QTest::newRow("word for Z") << int(ZValue) << "a" << int(ValueIsNoNumber);
    QTest::newRow("no Z") << int(ZValue) << "" << none;
    QTest::newRow("exponent for Z") << int(ZValue) << "-1.5e3" << none;
    QTest::newRow("blank for T") << int(TValue) << " " << int(ValueIsNoNumber);
    QTest::newRow("comma in the first detail") << detailValue(0) << "1,5" << int(ValueIsNoNumber);
    QTest::newRow("word for the last detail") << detailValue(8) << "x" << int(ValueIsNoNumber);
    QTest::newRow("word for a key") << detailKey(8) << "x" << none;
    QTest::newRow("word for the T key") << int(TKey) << "x" << none;
}

void TestRowBuilder::everyWarningIsFoundAtItsPlace()
{
    QFETCH(int, position);
    QFETCH(QString, text);
    QFETCH(int, warning);
    QStringList row = InstructionRow(InstructionRow::Joint, "MOVJ").row(7);
    row[position] = text;
    QVERIFY(checkRow(row, 7).isEmpty());
    QList<Problem> expected;
    if (warning >= 0)
        expected << Problem(7, position, Fault(warning));
    const QList<Problem> warnings = warningsFor(row, 7);
    QVERIFY2(warnings == expected, words(warnings));
}

void TestRowBuilder::onlyInstructionsThatAreWellFormedAreWarnedOf()
{
    QVERIFY(warningsFor(QStringList(), 0).isEmpty());
    QVERIFY(warningsFor(otherRow(1, "a:b"), 1).isEmpty());
    QStringList row = goodRow(1);
    row[Res] = "a:b";
    QVERIFY(!warningsFor(row, 1).isEmpty());
    row[Att] = "x";
    QVERIFY(warningsFor(row, 1).isEmpty());
}

// What a list without a title makes of its rows is no fault of theirs.
void TestRowBuilder::numbersWithALetterReadAsZeroInInstructionsOnly()
{
    QStringList noTitle;
    TListWidget list(noTitle, nullptr);
    for (int i = 0; i < 4; ++i) {
        QStringList row = i % 2 ? otherRow(i, "x") : goodRow(i);
        list.addWidget(row, true, false);
    }
    list.removeWidget(0, true);
    QList<QStringList> rows;
    for (int i = 0; i < list.count(); ++i)
        rows << list.getContent(i);
    QCOMPARE(rows.at(1).at(Num), QString("N1"));
    QVERIFY2(checkRows(rows, 0).isEmpty(), words(checkRows(rows, 0)));
    QVERIFY(warningsFor(rows.at(0), 0).isEmpty());
    QVERIFY(warningsFor(rows.at(1), 1).contains(Problem(1, Num, NumReadsAsZero)));
    QVERIFY(warningsFor(rows.at(2), 2).isEmpty());
    // Read as 0, the number of the first row is right.
    QStringList first = InstructionRow(InstructionRow::Joint, "MOVJ").row(0);
    first[Num] = "N0";
    QVERIFY(checkRow(first, 0).isEmpty());
    QVERIFY(warningsFor(first, 0).isEmpty());

    // A list with a title writes no letter, so there it is a wrong number.
    QList<QStringList> titled;
    titled << goodRow(1) << otherRow(2, "x");
    titled[0][Num] = "N1";
    titled[1][Num] = "N2";
    QVERIFY(checkRows(titled, 1) == QList<Problem>() << Problem(1, Num, NumIsNotIndex));
}

void TestRowBuilder::colonInTheFreeTextCutsItAtTheNextEdit()
{
    QStringList row = goodRow(0);
    row[Res] = "at_12:30:00_sharp";
    QVERIFY(checkRow(row, 0).isEmpty());
    QVERIFY(warningsFor(row, 0).contains(Problem(0, Res, ColonInField)));
    const QScopedPointer<MJLine> line(newLine(row));
    line->on_expand();
    DeviceLog::reset();
    DeviceLog::acceptWith("40");
    RowProbe::tap(RowView(line.data()).res());
    QCOMPARE(line->GetLineList().at(Res - 1), QString("at_12:40"));
}

void TestRowBuilder::noPageShowsATitleAmongTheRowsAgain()
{
    QStringList noTitle;
    TListWidget list(noTitle, nullptr);
    QList<QStringList> rows;
    rows << titleTexts() << goodRow(1) << titleTexts();
    for (int i = 0; i < rows.size(); ++i) {
        QStringList row = rows.at(i);
        list.addWidget(row, true, false);
    }
    const QList<Problem> expected = QList<Problem>() << Problem(0, Kind, TitleAmongRows)
                                                     << Problem(2, Kind, TitleAmongRows);
    QVERIFY2(checkRows(rows, 0) == expected, words(checkRows(rows, 0)));
    // The constructor's own is row 0 by itself.
    QVERIFY(checkRow(titleTexts(), 0).isEmpty());
    QVERIFY(checkRow(titleTexts().mid(0, 10), 0)
            == QList<Problem>() << Problem(0, 10, WrongLength));
    QStringList unmarked = titleTexts();
    unmarked[1].clear();
    QVERIFY(checkRow(unmarked, 0) == QList<Problem>() << Problem(0, 1, MarkMissing));

    DataEditor *cells = static_cast<MJLine *>(list.itemAt(2))->dataEditor();
    QStringList other = titleTexts();
    other[3] = "Other";
    list.setContent(2, other);
    QStringList shown;
    for (int i = 0; i < cells->layout()->count(); ++i)
        shown << RowView::text(RowProbe::tableCell(cells, i));
    QVERIFY(!shown.contains("Other"));
}

void TestRowBuilder::tablesOfOtherLengthsLoseStrings()
{
    for (int strings = 2; strings <= 40; ++strings) {
        QStringList cells = numbers(1, strings - 1);
        if (strings == 4)
            cells.first().clear(); // shares its place with the second
        const QStringList row = dataRow(7, cells);
        QStringList inner = row.mid(1);
        DataEditor editor(false, inner, listSize, nullptr, false);
        const bool comesBack = editor.getData() == row.mid(1);
        QVERIFY2(comesBack == checkRow(row, 7).isEmpty(), words(checkRow(row, 7)));
        QCOMPARE(comesBack, strings <= 32);
    }
}

void TestRowBuilder::otherRowsOfOneLengthMakeAList()
{
    for (int length = 4; length <= 10; ++length) {
        QStringList noTitle;
        TListWidget list(noTitle, nullptr);
        QList<QStringList> rows;
        for (int i = 0; i < 20; ++i) {
            QStringList row = QStringList() << other << QString::number(i) << QString() << other;
            while (row.size() < length)
                row << QString("%1 %2").arg(i).arg(row.size());
            rows << row;
            list.addWidget(row, false, false);
        }
        QVERIFY2(checkRows(rows, 0).isEmpty(), words(checkRows(rows, 0)));
        list.home();
        list.nextPage(); // each widget shows a row that another one was made for
        for (int slot = 0; slot < 6; ++slot) {
            MJLine *const line = static_cast<MJLine *>(list.itemAt(slot));
            const int i = slot - list.getListPos(0);
            QCOMPARE(QStringList(other) + line->dataEditor()->getData(), rows.at(i));
        }
        // One of another length stays unseen, and so does any but five strings among instructions.
        QList<QStringList> odd = rows;
        odd[3] =
            length == 4 ? QStringList(rows.at(3) + numbers(1, 1)) : rows.at(3).mid(0, length - 1);
        QVERIFY(checkRows(odd, 0) == QList<Problem>() << Problem(3, odd.at(3).size(), WrongLength));
        // One that no list shows is found once, and does not decide for the others.
        odd = rows;
        odd[0] = rows.at(0) + numbers(1, 7);
        QVERIFY(checkRows(odd, 0) == QList<Problem>() << Problem(0, odd.at(0).size(), WrongLength));
        rows[0] = goodRow(0);
        QCOMPARE(checkRows(rows, 0).size(), length == 5 ? 0 : 19);
    }
}

void TestRowBuilder::problemsAreEqualInAllThree()
{
    const Problem problem(12, 4, ColonInField);
    QVERIFY(problem == Problem(12, 4, ColonInField));
    QVERIFY(!(problem == Problem(13, 4, ColonInField)));
    QVERIFY(!(problem == Problem(12, 5, ColonInField)));
    QVERIFY(!(problem == Problem(12, 4, AttMissing)));
}

void TestRowBuilder::colonInADetailCutsItAtTheNextEdit()
{
    QStringList row = goodRow(0);
    row[detailValue(2)] = "12:30";
    QVERIFY(checkRow(row, 0) == QList<Problem>() << Problem(0, detailValue(2), ColonInField));

    const QScopedPointer<MJLine> line(newLine(row));
    line->on_expand();
    QWidget *field = RowView(line.data()).detail(2);
    QVERIFY(QMetaObject::invokeMethod(field, "changed", Q_ARG(QString, RowView::text(field))));
    QStringList expected = row;
    expected[detailValue(2)] = "30";
    expected[JposIndex].clear(); // as after every edit of a Jpos value
    QCOMPARE(QStringList(row.first()) + line->GetLineList(), expected);
}

void TestRowBuilder::instructionNamedLikeATableIsHidden()
{
    QStringList row = goodRow(0);
    const QScopedPointer<MJLine> plain(newLine(row));
    QVERIFY(!plain->firstLine()->isHidden());
    row[Ins] = "Oth";
    const QScopedPointer<MJLine> hidden(newLine(row));
    QVERIFY(hidden->firstLine()->isHidden());
}

void TestRowBuilder::titleStandsAboveItsColumns()
{
    QStringList title = titleTexts();
    TListWidget list(title, nullptr);
    DataEditor *cells = static_cast<MJLine *>(list.itemAt(0))->dataEditor();
    QVERIFY(!cells->isHidden());
    QStringList shown;
    for (int i = 0; i < cells->layout()->count(); ++i)
        shown << RowView::text(RowProbe::tableCell(cells, i));
    QCOMPARE(shown, QStringList() << ""
                                  << "Name"
                                  << "Position"
                                  << "Speed"
                                  << "Zone"
                                  << "Tool");
}

void TestRowBuilder::otherRowIsEditedAmongInstructions()
{
    QStringList title = titleTexts();
    TListWidget list(title, nullptr);
    QStringList none;
    for (int i = 1; i <= 40; ++i) {
        QStringList row = i % 3 ? goodRow(i) : otherRow(i, QString::fromLatin1("M%1").arg(i));
        list.addWidget(row, false, false);
    }
    list.addWidget(none, true, true);
    list.home(); // every row goes into a widget that was made for another one
    for (int i = 3; i <= 12; i += 3) {
        DataEditor *cells = static_cast<MJLine *>(list.itemAt(list.getListPos(i)))->dataEditor();
        QWidget *text = RowProbe::tableCell(cells, 2);
        QCOMPARE(RowView::text(text), QString::fromLatin1("M%1").arg(i));
        static_cast<QLineEdit *>(text)->setText("G4");
        QVERIFY(QMetaObject::invokeMethod(text, "changed", Q_ARG(QString, QString("G4"))));
        QCOMPARE(list.getContent(i), otherRow(i, "G4"));
    }
}

void TestRowBuilder::tableRowsComeBackUnlessTwoStringsShareACell()
{
    Random random(4);
    for (int cells = 1; cells <= 12; ++cells) {
        QStringList first = dataRow(0, QVector<QString>(cells).toList()).mid(1);
        DataEditor editor(false, first, listSize, nullptr, false);
        for (int i = 0; i < 200; ++i) {
            QStringList content;
            while (content.size() < cells)
                content << randomText(random, any);
            if (cells == 3 && random() % 2)
                content.first().clear();
            const QStringList row = dataRow(i, content);
            QStringList inner = row.mid(1);
            editor.setData(inner);
            const bool comesBack = editor.getData() == row.mid(1);
            const QList<Problem> problems = checkRow(row, i);
            QVERIFY2(comesBack == problems.isEmpty(), words(problems));
            QVERIFY(cells == 3 || comesBack);
        }
    }
}

void TestRowBuilder::listsAreCheckedAsAWhole()
{
    QList<QStringList> rows;
    QVERIFY(checkRows(rows, 0).isEmpty());
    rows << goodRow(1) << otherRow(2, "x") << goodRow(3);
    QVERIFY(checkRows(rows, 1).isEmpty());
    QCOMPARE(checkRows(rows, 0).size(), 3); // as for a list without a title: every number is off
    rows << dataRow(4, QStringList("a"));
    QVERIFY(checkRows(rows, 1) == QList<Problem>() << Problem(4, Kind, MixedFamilies));

    QList<QStringList> tables;
    tables << dataRow(0, QStringList("a")) << dataRow(1, QStringList("b"));
    QVERIFY(checkRows(tables, 0).isEmpty());
    tables << dataRow(2, QStringList() << "a"
                                       << "b");
    QVERIFY(checkRows(tables, 0) == QList<Problem>() << Problem(2, 4, WrongLength));
    tables[2] = goodRow(2);
    QVERIFY(checkRows(tables, 0) == QList<Problem>() << Problem(2, Kind, MixedFamilies));
}

void TestRowBuilder::wellFormedListAnswersAsItself()
{
    Random random(5);
    QStringList title = titleTexts();
    TListWidget list(title, nullptr);
    QList<QStringList> rows;
    for (int i = 1; i <= 60; ++i) {
        QStringList row = randomInstruction(random, legal).row(i);
        rows << row;
        list.addWidget(row, false, false);
    }
    QVERIFY(checkRows(rows, 1).isEmpty());
    list.home();
    list.reshow();

    QSignalSpy clicked(&list, SIGNAL(clicked(int)));
    for (int page = 0; page < 4; ++page) {
        for (int slot = 1; slot < list.ListWidget::count(); ++slot) {
            MJLine *line = static_cast<MJLine *>(list.itemAt(slot));
            const int index = line->getNum().toInt();
            QCOMPARE(list.getListPos(index), slot);
            clicked.clear();
            QVERIFY(QMetaObject::invokeMethod(line, "clicked", Q_ARG(int, index)));
            QCOMPARE(clicked.count(), 1);
            QCOMPARE(list.getCurIndex(), index);
            QVERIFY(QMetaObject::invokeMethod(line, "sg_content_change", Q_ARG(int, index)));
            QCOMPARE(list.getContent(index), rows.at(index - 1));
        }
        list.nextPage();
    }
}

FILARIX_TEST_MAIN(TestRowBuilder)
#include "tst_rowbuilder.moc"
