// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "dataeditor.h"
#include "filarixtest.h"
#include "mjline.h"
#include "rowfixture.h"
#include "rowview.h"

#include <random>

using namespace RowFixture;

/// How a list of strings becomes a row and a list again.
class TestRowFormat : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void positionsOfAFullRow();
    void builtRowComesBackEqual();
    void refilledRowComesBackEqual();
    void missingTailIsFilledWithEmptyStrings();
    void colonInAValueMovesWhatFollows();
    void bracketCutsTheInstructionName();
    void blanksOfTheFreeTextAreWrittenAsUnderscores();
    void attIsAlwaysWritten();
    void listIsBroughtToTheWorkingForm_data();
    void listIsBroughtToTheWorkingForm();
    void listOfTenToNineteenIsRefilledFurtherLeft();
    void shortListWithTitleIsNoTitleRow();
    void titleWordIsTakenFromATitleRow();
    void otherRowIsKnownByItsPosition_data();
    void otherRowIsKnownByItsPosition();
    void everyLengthAgreesWithTheSteps_data();
    void everyLengthAgreesWithTheSteps();
};

namespace {

typedef std::mt19937 Random;

/// Up to 8 characters; \a without are left out.
QString randomText(Random &random, const char *without = "")
{
    static const QString alphabet = QString::fromUtf8("abcXYZ019.-+_ _ :(()ä↓<&\n\"");
    const QString banned = QLatin1String(without);
    QString text;
    for (int length = int(random() % 9); length > 0; --length) {
        const QChar c = alphabet.at(int(random() % unsigned(alphabet.size())));
        if (!banned.contains(c))
            text += c;
    }
    return text;
}

QStringList randomList(Random &random, int length)
{
    QStringList list;
    for (int i = 0; i < length; ++i)
        list << randomText(random);
    if (length > 0 && random() % 5 == 0)
        list[0] = "Title";
    for (int i = 1; i < 3 && i < length; ++i) {
        if (random() % 5 == 0)
            list[i] = "Oth";
    }
    return list;
}

/// 30 strings that come back as they are but for "Att" and the blanks.
QStringList randomRow(Random &random)
{
    QStringList row;
    row << randomText(random) << randomText(random, "(");
    for (int i = 2; i < 10; ++i)
        row << randomText(random, ":");
    while (row.size() < 30)
        row << randomText(random);
    return row;
}

QStringList asWritten(QStringList row)
{
    row[10] = "Att";
    row[11].replace(' ', '_');
    return row;
}

/// An instruction row straight from the steps, sharing nothing with the class.
struct RowModel
{
    QString num, ins, jpos, v, z, t;
    QString resText, resField;
    QStringList detailList;
    QStringList detailFields;
    QStringList editor;
    bool isEditorShown;
    bool isExpanded;
    bool isBuilt;

    explicit RowModel(QStringList &list) : isExpanded(false), isBuilt(false)
    {
        bool isTitle = false;
        QStringList editorList;
        if (list.size() > 9) {
            list.insert(1, "");
            if (list[0] == "Title") {
                list[0] = "";
                isTitle = true;
                editorList = list;
            } else {
                editorList << list[2] << ""
                           << "Oth"
                           << "";
            }
        } else {
            editorList = list;
        }
        while (list.size() < 35)
            list.append("");
        isEditorShown = list[2] == "Oth" || isTitle;
        num = list[0];
        ins = list[2] + down;
        readFirstLine(list);
        readTail(list);
        ins = ins.split('(').first() + down;
        editor = editorData(isTitle, editorList);
    }

    void readFirstLine(const QStringList &list)
    {
        jpos = list[3] + ":" + list[4];
        v = list[5] + ":" + list[6];
        z = list[7] + ":" + list[8];
        t = list[9] + ":" + list[10];
    }

    void readTail(const QStringList &list)
    {
        resText = list[12];
        resText.replace("_", " ");
        detailList.clear();
        for (int i = 13; i <= 30; ++i)
            detailList << list[i];
    }

    static QStringList editorData(bool isTitle, const QStringList &list)
    {
        const int n = list.size();
        QStringList data;
        if (n < 2)
            return list;
        data << list[0];
        const bool isWide = isTitle && n > 8;
        int start = 2;
        if (n == 4 || isWide) {
            data << "" << (list[2].isEmpty() ? list[1] : list[2]);
            start = 3;
        } else {
            data << list[1];
        }
        for (int column = start; column < n; ++column) {
            const bool hasCell = column <= 31 && (!isWide || (column - start) % 2 == 0);
            data << (hasCell ? list[column] : QString(""));
        }
        return data;
    }

    QString pair(int k) const { return detailList[2 * k] + ":" + detailList[2 * k + 1]; }

    void expand()
    {
        if (!isExpanded) {
            if (!isBuilt) {
                isBuilt = true;
                for (int k = 0; k < 9; ++k)
                    detailFields << pair(k);
                resField = resText;
            }
            isExpanded = true;
            ins = ins.split('(').first() + up;
            resField = resText;
        } else {
            isExpanded = false;
            ins = ins.split('(').first() + down;
        }
    }

    void setGroup(const QStringList &l, int first, int count, QString *label)
    {
        if (l.size() < count)
            return;
        for (int k = first; k < first + count; ++k) {
            detailList[2 * k + 1] = l[k - first];
            if (isBuilt)
                detailFields[k] = pair(k);
        }
        if (l.size() == count + 1)
            *label = label->split(':').first() + ":" + l[count];
    }

    QStringList group(int first, int count) const
    {
        QStringList values;
        for (int k = first; k < first + count; ++k)
            values << detailList[2 * k + 1];
        return values;
    }

    void setLineList(QStringList &list)
    {
        if (list.size() > 19)
            list.insert(1, "");
        while (list.size() < 35)
            list.append("");
        num = list[0];
        ins = list[2] + (isExpanded ? up : down);
        readFirstLine(list);
        readTail(list);
        isExpanded = !isExpanded;
        expand();
        if (isBuilt) {
            setGroup(group(0, 6), 0, 6, &jpos);
            setGroup(group(6, 3), 6, 3, &v);
        }
    }

    QStringList lineList()
    {
        QStringList list;
        list << num << ins.split('(').first();
        list += jpos.split(':');
        list += v.split(':');
        list += z.split(':');
        list += t.split(':');
        list << "Att";
        resText.replace(' ', '_');
        list << resText;
        list += detailList;
        return list;
    }

    void editDetail(int k, const QString &text)
    {
        detailList[2 * k + 1] = text.split(':').last();
        detailFields[k] = text;
        QString &label = k == 6 || k == 7 ? v : jpos;
        label = label.split(':').first() + ":";
    }

    void editRes(const QString &text)
    {
        resField = text;
        resText = text;
    }

    /// Everything that can be seen.
    QStringList seen() const
    {
        QStringList all = QStringList() << num << ins << jpos << v << z << t;
        all << (isExpanded ? "open" : "closed") << (isEditorShown ? "editor" : "first line");
        all += group(0, 6) + group(6, 3) + editor;
        if (isBuilt)
            all << detailFields << resField;
        return all;
    }
};

QStringList seenOf(MJLine &row)
{
    const RowView view(&row);
    QStringList all;
    for (int i = RowView::Num; i <= RowView::T; ++i)
        all << view.text(RowView::Cell(i));
    all << (row.isExpanded() ? "open" : "closed");
    const bool showsEditor = !row.dataEditor()->isHidden();
    all << (showsEditor ? "editor" : "first line");
    // Before it is first shown, a widget is hidden anyway: what counts is that it was told to.
    const QWidget *firstLine = row.firstLine();
    if ((firstLine->isHidden() && firstLine->testAttribute(Qt::WA_WState_ExplicitShowHide))
        != showsEditor)
        all << "both or neither";
    all += row.getJpos() + row.getV() + row.dataEditor()->getData();
    if (view.isBuilt()) {
        for (int k = 0; k < 9; ++k)
            all << view.detailText(k);
        all << view.resText();
    }
    return all;
}

/// What a field does when its keypad was accepted.
void emitChanged(QWidget *field, const QString &text)
{
    QMetaObject::invokeMethod(field, "changed", Qt::DirectConnection, Q_ARG(QString, text));
}

/// One random operation on both.
void operate(Random &random, MJLine &row, RowModel &model)
{
    const RowView view(&row);
    switch (random() % 8) {
    case 0:
        row.on_expand();
        model.expand();
        break;
    case 1: {
        QStringList list = randomList(random, int(random() % 61));
        QStringList copy = list;
        row.setLineList(list);
        model.setLineList(copy);
        QCOMPARE(list, copy);
        break;
    }
    case 2:
        QCOMPARE(row.GetLineList(), model.lineList());
        break;
    case 3: {
        QStringList list = randomList(random, int(random() % 6));
        row.setV(list);
        model.setGroup(list, 6, 3, &model.v);
        break;
    }
    case 4: {
        QStringList list = randomList(random, int(random() % 9));
        row.setJpos(list);
        model.setGroup(list, 0, 6, &model.jpos);
        break;
    }
    case 5:
        if (view.isBuilt()) {
            const int k = int(random() % 9);
            const QString text = randomText(random);
            emitChanged(view.detail(k), text);
            model.editDetail(k, text);
        }
        break;
    case 6: {
        const QString text = randomText(random);
        const bool isZ = random() % 2;
        emitChanged(view.cell(isZ ? RowView::Z : RowView::T), text);
        (isZ ? model.z : model.t) = text;
        break;
    }
    default:
        if (view.isBuilt()) {
            const QString text = randomText(random);
            emitChanged(view.res(), text);
            model.editRes(text);
        }
    }
}

} // namespace

void TestRowFormat::positionsOfAFullRow()
{
    // As a host writes it, behind the kind.
    const QStringList full = QStringList() << "7"
                                           << "MOVJ"
                                           << "P"
                                           << "3"
                                           << "V"
                                           << "2"
                                           << "Z"
                                           << "0.5"
                                           << "T"
                                           << "1.25"
                                           << "Att"
                                           << "to_the_left"
                                           << "X"
                                           << "1"
                                           << "Y"
                                           << "2"
                                           << "Z"
                                           << "3"
                                           << "A"
                                           << "4"
                                           << "B"
                                           << "5"
                                           << "C"
                                           << "6"
                                           << "Vl"
                                           << "7"
                                           << "Va"
                                           << "8"
                                           << "Vd"
                                           << "9";
    QStringList list = full;
    MJLine row(list, listSize, nullptr);
    row.on_expand();
    const RowView view(&row);
    QCOMPARE(view.text(RowView::Num), QString("7"));
    QCOMPARE(view.text(RowView::Ins), "MOVJ" + up);
    QCOMPARE(view.text(RowView::Jpos), QString("P:3"));
    QCOMPARE(view.text(RowView::V), QString("V:2"));
    QCOMPARE(view.text(RowView::Z), QString("Z:0.5"));
    QCOMPARE(view.text(RowView::T), QString("T:1.25"));
    QCOMPARE(view.resText(), QString("to the left"));
    const QStringList details = QStringList() << "X:1"
                                              << "Y:2"
                                              << "Z:3"
                                              << "A:4"
                                              << "B:5"
                                              << "C:6"
                                              << "Vl:7"
                                              << "Va:8"
                                              << "Vd:9";
    for (int k = 0; k < 9; ++k)
        QCOMPARE(view.detailText(k), details.at(k));
    QCOMPARE(row.getJpos(), QStringList() << "1"
                                          << "2"
                                          << "3"
                                          << "4"
                                          << "5"
                                          << "6");
    QCOMPARE(row.getV(), QStringList() << "7"
                                       << "8"
                                       << "9");
    QCOMPARE(row.GetLineList(), full);
}

void TestRowFormat::builtRowComesBackEqual()
{
    Random random(1);
    for (int round = scaled(300); round > 0; --round) {
        const QStringList row = randomRow(random);
        QStringList list = row;
        MJLine line(list, listSize, nullptr);
        QCOMPARE(line.GetLineList(), asWritten(row));
    }
}

void TestRowFormat::refilledRowComesBackEqual()
{
    Random random(2);
    QStringList first = randomRow(random);
    MJLine line(first, listSize, nullptr);
    const int rounds = scaled(10000);
    for (int round = 0; round < rounds; ++round) {
        const QStringList row = randomRow(random);
        QStringList list = row;
        line.setLineList(list);
        QCOMPARE(line.GetLineList(), asWritten(row));
        if (round % (rounds / 10) == 0)
            line.on_expand();
    }
}

void TestRowFormat::missingTailIsFilledWithEmptyStrings()
{
    QStringList list = QStringList() << "7"
                                     << "MOVJ"
                                     << "P"
                                     << "3"
                                     << "V"
                                     << "2"
                                     << "Z"
                                     << "0.5"
                                     << "T"
                                     << "1.25";
    MJLine row(list, listSize, nullptr);
    row.on_expand();
    const RowView view(&row);
    QCOMPARE(view.text(RowView::T), QString("T:1.25"));
    QCOMPARE(view.resText(), QString());
    for (int k = 0; k < 9; ++k)
        QCOMPARE(view.detailText(k), QString(":"));
    QCOMPARE(row.GetLineList().size(), 30);
}

void TestRowFormat::colonInAValueMovesWhatFollows()
{
    QStringList list = numbered(30);
    list[3] = "a:b";
    MJLine row(list, listSize, nullptr);
    QStringList expected = asWritten(numbered(30));
    expected.removeAt(3);
    expected.insert(3, "b");
    expected.insert(3, "a");
    QCOMPARE(row.GetLineList(), expected);

    // A detail pair is not split, so it moves nothing.
    QStringList detail = numbered(30);
    detail[13] = "a:b";
    const QStringList full = asWritten(detail);
    row.setLineList(detail);
    QCOMPARE(row.GetLineList(), full);
}

void TestRowFormat::bracketCutsTheInstructionName()
{
    QStringList list = numbered(30);
    list[1] = "MOV(J)";
    MJLine row(list, listSize, nullptr);
    QCOMPARE(row.getIns(), QString("MOV"));
    QCOMPARE(row.GetLineList().at(1), QString("MOV"));
    QStringList again = numbered(30);
    again[1] = "(";
    row.setLineList(again);
    QCOMPARE(row.GetLineList().at(1), QString());
    QCOMPARE(RowView(&row).text(RowView::Ins), down);
}

void TestRowFormat::blanksOfTheFreeTextAreWrittenAsUnderscores()
{
    QStringList list = numbered(30);
    list[11] = "a b_c";
    MJLine row(list, listSize, nullptr);
    QCOMPARE(row.GetLineList().at(11), QString("a_b_c"));
}

void TestRowFormat::attIsAlwaysWritten()
{
    QStringList list = numbered(30);
    MJLine row(list, listSize, nullptr);
    QCOMPARE(row.GetLineList().at(10), QString("Att"));
}

void TestRowFormat::listIsBroughtToTheWorkingForm_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("insertedWhenBuilt");
    QTest::addColumn<bool>("insertedWhenRefilled");
    QTest::addColumn<int>("lengthBuilt");
    QTest::addColumn<int>("lengthRefilled");
    QTest::newRow("empty") << 0 << false << false << 35 << 35;
    QTest::newRow("nine") << 9 << false << false << 35 << 35;
    QTest::newRow("ten") << 10 << true << false << 35 << 35;
    QTest::newRow("nineteen") << 19 << true << false << 35 << 35;
    QTest::newRow("twenty") << 20 << true << true << 35 << 35;
    QTest::newRow("full") << 30 << true << true << 35 << 35;
    QTest::newRow("thirty-four") << 34 << true << true << 35 << 35;
    QTest::newRow("thirty-five") << 35 << true << true << 36 << 36;
    QTest::newRow("sixty") << 60 << true << true << 61 << 61;
}

void TestRowFormat::listIsBroughtToTheWorkingForm()
{
    QFETCH(int, length);
    QFETCH(bool, insertedWhenBuilt);
    QFETCH(bool, insertedWhenRefilled);
    QFETCH(int, lengthBuilt);
    QFETCH(int, lengthRefilled);
    const auto workingForm = [length](bool inserted, int size) {
        QStringList list = numbered(length);
        if (inserted)
            list.insert(1, QString());
        while (list.size() < size)
            list << QString();
        return list;
    };
    QStringList built = numbered(length);
    MJLine row(built, listSize, nullptr);
    QCOMPARE(built, workingForm(insertedWhenBuilt, lengthBuilt));
    QStringList refilled = numbered(length);
    row.setLineList(refilled);
    QCOMPARE(refilled, workingForm(insertedWhenRefilled, lengthRefilled));
}

void TestRowFormat::listOfTenToNineteenIsRefilledFurtherLeft()
{
    QStringList list = numbered(15);
    MJLine row(list, listSize, nullptr);
    QCOMPARE(row.getIns(), QString("s1"));
    QCOMPARE(RowView(&row).text(RowView::Jpos), QString("s2:s3"));
    list = numbered(15);
    row.setLineList(list);
    QCOMPARE(row.getIns(), QString("s2"));
    QCOMPARE(RowView(&row).text(RowView::Jpos), QString("s3:s4"));
}

void TestRowFormat::shortListWithTitleIsNoTitleRow()
{
    QStringList list = numbered(9);
    list[0] = "Title";
    MJLine row(list, listSize, nullptr);
    QVERIFY(!row.dataEditor()->isTitle());
    QVERIFY(row.dataEditor()->isHidden());
    QCOMPARE(row.getNum(), QString("Title"));
    QCOMPARE(list.first(), QString("Title"));
}

void TestRowFormat::titleWordIsTakenFromATitleRow()
{
    QStringList list = numbered(10);
    list[0] = "Title";
    MJLine row(list, listSize, nullptr);
    QVERIFY(row.dataEditor()->isTitle());
    QVERIFY(!row.dataEditor()->isHidden());
    QVERIFY(row.firstLine()->isHidden());
    QCOMPARE(row.getNum(), QString());
    QCOMPARE(list.first(), QString());
    QCOMPARE(list.size(), 35);
    // The editor was given the list before it was filled up: 11 strings, every second one shown.
    QCOMPARE(row.dataEditor()->getData(), QStringList() << ""
                                                        << ""
                                                        << "s1"
                                                        << "s2"
                                                        << ""
                                                        << "s4"
                                                        << ""
                                                        << "s6"
                                                        << ""
                                                        << "s8"
                                                        << "");
}

void TestRowFormat::otherRowIsKnownByItsPosition_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("isOther");
    QTest::addColumn<QStringList>("editor");
    QTest::newRow("long, where the name stands") << 30 << 1 << true
                                                 << (QStringList() << "Oth"
                                                                   << ""
                                                                   << "Oth"
                                                                   << "");
    QTest::newRow("long, one further") << 30 << 2 << false
                                       << (QStringList() << "s1"
                                                         << ""
                                                         << "Oth"
                                                         << "");
    QTest::newRow("short, where the name stands") << 4 << 1 << false
                                                  << (QStringList() << "s0"
                                                                    << ""
                                                                    << "s2"
                                                                    << "s3");
    QTest::newRow("short, one further") << 4 << 2 << true
                                        << (QStringList() << "s0"
                                                          << ""
                                                          << "Oth"
                                                          << "s3");
    QTest::newRow("three strings") << 3 << 2 << true
                                   << (QStringList() << "s0"
                                                     << "s1"
                                                     << "Oth");
    QTest::newRow("ten strings are long") << 10 << 1 << true
                                          << (QStringList() << "Oth"
                                                            << ""
                                                            << "Oth"
                                                            << "");
}

void TestRowFormat::otherRowIsKnownByItsPosition()
{
    QFETCH(int, length);
    QFETCH(int, position);
    QFETCH(bool, isOther);
    QFETCH(QStringList, editor);
    QStringList list = numbered(length);
    list[position] = "Oth";
    MJLine row(list, listSize, nullptr);
    QCOMPARE(!row.dataEditor()->isHidden(), isOther);
    QVERIFY(!row.dataEditor()->isTitle());
    QCOMPARE(row.dataEditor()->getData(), editor);
    row.show();
    QCOMPARE(row.firstLine()->isHidden(), isOther);
    QCOMPARE(!row.dataEditor()->isHidden(), isOther);
    row.hide();
}

void TestRowFormat::everyLengthAgreesWithTheSteps_data()
{
    QTest::addColumn<int>("length");
    for (int length = 0; length <= 60; ++length)
        QTest::newRow(QByteArray::number(length).constData()) << length;
}

void TestRowFormat::everyLengthAgreesWithTheSteps()
{
    QFETCH(int, length);
    Random random(unsigned(100 + length));
    for (int round = scaled(8, 2); round > 0; --round) {
        const QStringList given = randomList(random, length);
        QStringList list = given;
        QStringList copy = given;
        MJLine row(list, listSize, nullptr);
        RowModel model(copy);
        QCOMPARE(list, copy);
        QCOMPARE(seenOf(row), model.seen());
        for (int step = 0; step < 40; ++step) {
            operate(random, row, model);
            QCOMPARE(seenOf(row), model.seen());
            QCOMPARE(row.height(),
                     row.isExpanded() ? int(3 * 800 * 1.04 / 24.0) : int(800 * 1.04 / 24.0));
        }
        QCOMPARE(row.GetLineList(), model.lineList());
    }
}

FILARIX_TEST_MAIN(TestRowFormat)
#include "tst_rowformat.moc"
