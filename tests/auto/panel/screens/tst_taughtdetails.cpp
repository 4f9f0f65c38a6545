// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixrows.h"
#include "filarixtest.h"
#include "screens/machinedata.h"
#include "screens/taughtdetails.h"
#include "screens/taughtprogram.h"

using namespace FilarixRows;

class TestTaughtDetails : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void movementHasItsValuesByName();
    void entryThatIsGoneIsANumber_data();
    void entryThatIsGoneIsANumber();
    void refusedNumberSaysWhy();
    void remarkHasBlanks();
    void textHasItsText();
    void rowThatIsNoneHasNothing();

private:
    QStringList movement(const QString &kind) const;

    const MachineData m_machine;
};

QStringList TestTaughtDetails::movement(const QString &kind) const
{
    QStringList row = TaughtProgram::movement(kind, 2, 4, m_machine);
    row[Num] = "7";
    return row;
}

static QStringList texts(const QList<TaughtDetails::Field> &fields)
{
    QStringList texts;
    for (const TaughtDetails::Field &field : fields)
        texts.append(QStringList{field.detail.name, field.detail.value, field.detail.note}.join(
            QLatin1Char('|')));
    return texts;
}

void TestTaughtDetails::movementHasItsValuesByName()
{
    const QStringList row = movement("MJ");
    QCOMPARE(TaughtDetails::headingOf(row), QString("Instruction 7: MoveJ"));
    QCOMPARE(TaughtDetails::headingOf(movement("ML")), QString("Instruction 7: MoveL"));
    const QList<TaughtDetails::Field> fields = TaughtDetails::fieldsOf(row, m_machine);
    const QString degrees = QString::fromUtf8("\u00b0|-36000 to 36000");
    const QString ramp = QString::fromUtf8("200 mm/s\u00b2|0 to 1000");
    QCOMPARE(texts(fields),
             (QStringList{"Point|2 Start pin|", "Speed|4 Rapid|", "X|-6 mm|-2000 to 2000",
                          "Y|14 mm|-2000 to 2000", "Z|0 mm|-2000 to 2000", "U|1.5 " + degrees,
                          "V|0 " + degrees, "W|0 " + degrees, "Speed V|1500 mm/min|0 to 3000",
                          "Speed A|" + ramp, "Speed D|" + ramp, "Zone Z|0 mm|0 to 100",
                          "Tool T|0|0 to 99", "Remark||"}));
    const int positions[] = {JposIndex,      VIndex,
                             detailValue(0), detailValue(1),
                             detailValue(2), detailValue(3),
                             detailValue(4), detailValue(5),
                             detailValue(6), detailValue(7),
                             detailValue(8), ZValue,
                             TValue,         Res};
    for (int i = 0; i < fields.size(); ++i) {
        QCOMPARE(fields.at(i).position, positions[i]);
        QVERIFY(fields.at(i).detail.isKey);
        QVERIFY(fields.at(i).detail.tone == Message::Information);
    }
}

void TestTaughtDetails::entryThatIsGoneIsANumber_data()
{
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("value");
    QTest::newRow("edited by hand") << ""
                                    << "own values";
    QTest::newRow("none") << "0"
                          << "own values";
    QTest::newRow("behind the table") << "900"
                                      << "900";
    QTest::newRow("no number") << "x"
                               << "own values";
}

void TestTaughtDetails::entryThatIsGoneIsANumber()
{
    QFETCH(QString, index);
    QStringList row = movement("MJ");
    row[JposIndex] = index;
    QTEST(TaughtDetails::fieldsOf(row, m_machine).at(0).detail.value, "value");
}

void TestTaughtDetails::refusedNumberSaysWhy()
{
    QStringList row = movement("ML");
    row[TValue] = "999";
    row[detailValue(0)] = "banana";
    const QList<TaughtDetails::Field> fields = TaughtDetails::fieldsOf(row, m_machine);
    QCOMPARE(fields.at(12).detail.note, QString("above 99"));
    QVERIFY(fields.at(12).detail.tone == Message::Alarm);
    QCOMPARE(fields.at(2).detail.note, QString("not a number"));
    QVERIFY(fields.at(2).detail.tone == Message::Alarm);
    QVERIFY(fields.at(3).detail.tone == Message::Information);
}

void TestTaughtDetails::remarkHasBlanks()
{
    QStringList row = movement("ML");
    row[Res] = "over_the_core";
    const RowDetails::Detail remark = TaughtDetails::fieldsOf(row, m_machine).last().detail;
    QCOMPARE(remark.value, QString("over the core"));
    QVERIFY(remark.isWide);
}

void TestTaughtDetails::textHasItsText()
{
    QStringList row = TaughtProgram::command("M10 clamp the wire");
    row[Num] = "3";
    QCOMPARE(TaughtDetails::headingOf(row), QString("Instruction 3: Text"));
    const QList<TaughtDetails::Field> fields = TaughtDetails::fieldsOf(row, m_machine);
    QCOMPARE(texts(fields), QStringList("Text|M10 clamp the wire|"));
    QVERIFY(fields.at(0).detail.isKey && fields.at(0).detail.isWide);
}

void TestTaughtDetails::rowThatIsNoneHasNothing()
{
    QVERIFY(TaughtDetails::fieldsOf(QStringList(), m_machine).isEmpty());
    QVERIFY(TaughtDetails::fieldsOf({"MJ", "1"}, m_machine).isEmpty());
}

FILARIX_TEST_MAIN(TestTaughtDetails)
#include "tst_taughtdetails.moc"
