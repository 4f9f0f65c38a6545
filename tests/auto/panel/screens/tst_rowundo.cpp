// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/rowundo.h"

class TestRowUndo : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsComeBackLastOneFirst();
    void whatChangesNothingIsNoStep();
    void theRowThatWasCurrentBeforeTheChangeComesBack();
    void theOldestStepGoesFirst();
    void aHugeListHasOneStepAtLeast();
    void aRestartForgetsAll();
};

static RowUndo::State stateOf(const QStringList &texts, int current = 1)
{
    RowUndo::State state;
    for (const QString &text : texts)
        state.rows.append({"Oth", QString(), QString(), "Oth", text});
    state.current = current;
    return state;
}

static QStringList textsOf(const RowUndo::State &state)
{
    QStringList texts;
    for (const QStringList &row : state.rows)
        texts.append(row.last());
    return texts;
}

void TestRowUndo::stepsComeBackLastOneFirst()
{
    RowUndo undo;
    undo.restart(stateOf({"a"}));
    QVERIFY(!undo.isPossible());
    undo.note(stateOf({"a", "b"}));
    undo.note(stateOf({"a", "b", "c"}));
    QCOMPARE(textsOf(undo.takeBack()), (QStringList{"a", "b"}));
    QCOMPARE(textsOf(undo.takeBack()), QStringList("a"));
    QVERIFY(!undo.isPossible());
    // What is done after an undo is a step again.
    undo.note(stateOf({"x"}));
    QCOMPARE(textsOf(undo.takeBack()), QStringList("a"));
}

void TestRowUndo::whatChangesNothingIsNoStep()
{
    RowUndo undo;
    undo.restart(stateOf({"a"}));
    undo.note(stateOf({"a"}, 7));
    QVERIFY(!undo.isPossible());
}

void TestRowUndo::theRowThatWasCurrentBeforeTheChangeComesBack()
{
    RowUndo undo;
    undo.restart(stateOf({"a", "b"}, 1));
    undo.note(stateOf({"a", "b"}, 2));
    undo.note(stateOf({"a"}, 1));
    QCOMPARE(undo.takeBack().current, 2);
}

void TestRowUndo::theOldestStepGoesFirst()
{
    RowUndo undo;
    undo.restart(stateOf({"0"}));
    for (int i = 1; i <= RowUndo::mostSteps + 3; ++i)
        undo.note(stateOf({QString::number(i)}));
    int steps = 0;
    QStringList last;
    for (; undo.isPossible(); ++steps)
        last = textsOf(undo.takeBack());
    QCOMPARE(steps, int(RowUndo::mostSteps));
    QCOMPARE(last, QStringList("3"));
}

void TestRowUndo::aHugeListHasOneStepAtLeast()
{
    RowUndo::State huge = stateOf({"a"});
    const QStringList row = huge.rows.first();
    while (huge.rows.size() <= RowUndo::mostRows)
        huge.rows.append(row);
    RowUndo undo;
    undo.restart(stateOf({"small"}));
    undo.note(huge);
    RowUndo::State other = huge;
    other.rows.removeLast();
    undo.note(other);
    undo.note(huge);
    QVERIFY(undo.isPossible());
    QCOMPARE(undo.takeBack().rows.size(), other.rows.size());
    QVERIFY(!undo.isPossible());
    // Once the list is small, there is room for steps again.
    undo.note(stateOf({"x"}));
    undo.note(stateOf({"y"}));
    undo.note(stateOf({"z"}));
    QCOMPARE(textsOf(undo.takeBack()), QStringList("y"));
    QCOMPARE(textsOf(undo.takeBack()), QStringList("x"));
}

void TestRowUndo::aRestartForgetsAll()
{
    RowUndo undo;
    undo.restart(stateOf({"a"}));
    undo.note(stateOf({"b"}));
    undo.restart(stateOf({"c"}));
    QVERIFY(!undo.isPossible());
    undo.note(stateOf({"d"}));
    QCOMPARE(textsOf(undo.takeBack()), QStringList("c"));
}

FILARIX_TEST_MAIN(TestRowUndo)
#include "tst_rowundo.moc"
