// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "devicelog.h"
#include "filarixrows.h"
#include "filarixtest.h"
#include "mjline.h"
#include "screens/machinedata.h"
#include "screens/movementlimits.h"
#include "screens/taughtprogram.h"
#include "tlistwidget.h"

#include <QSignalSpy>

#include <memory>

using namespace FilarixRows;

class TestMovementLimits : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void keypadLearnsTheLimitsOfItsField_data();
    void keypadLearnsTheLimitsOfItsField();
    void refusedNumberGoesBackToWhatWasThere();
    void numberWithinTheLimitsIsTaken();
    void freeTextAndCommandsAreLeftAlone();
    void otherFieldsAreLeftAlone();
    void fieldsAreNamedAfterThemselves();
    void rowThatIsNotThereOpensNothing();
    void faultThatWasThereBeforeIsNotTakenAway();
    void firstFaultIsFound();
    void sampleHasNoFault();

private:
    ComboLineEdit *field(int row, int nth) const;

    std::unique_ptr<TListWidget> m_list;
    MachineData m_machine;
};

void TestMovementLimits::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    QStringList title = TaughtProgram::titleRow();
    m_list.reset(new TListWidget(title, nullptr));
    QStringList rows[] = {
        TaughtProgram::movement("ML", 3, 1, m_machine),
        TaughtProgram::command("M05 stop"),
        TaughtProgram::movement("MJ", 1, 2, m_machine),
    };
    int number = 0;
    for (QStringList &row : rows) {
        row[Num] = QString::number(++number);
        m_list->addWidget(row, true, false);
    }
    m_list->resize(800, 600);
    m_list->show();
    QVERIFY(TestCompat::waitForExposed(m_list.get()));
}

void TestMovementLimits::cleanup()
{
    m_list.reset();
    FilarixTest::cleanup();
}

/// A field that is seen, in the order in which the row has them.
ComboLineEdit *TestMovementLimits::field(int row, int nth) const
{
    const QList<ComboLineEdit *> all =
        m_list->itemAt(m_list->getListPos(row))->findChildren<ComboLineEdit *>();
    for (ComboLineEdit *field : all) {
        if (field->isVisible() && nth-- == 0)
            return field;
    }
    return nullptr;
}

void TestMovementLimits::keypadLearnsTheLimitsOfItsField_data()
{
    QTest::addColumn<int>("nth");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("zone") << 0 << "Instruction 1, Zone Z" << 0.0 << 100.0 << false;
    QTest::newRow("tool") << 1 << "Instruction 1, Tool T" << 0.0 << 99.0 << true;
    QTest::newRow("X") << 2 << "Instruction 1, X" << -2000.0 << 2000.0 << false;
    QTest::newRow("W") << 7 << "Instruction 1, W" << -36000.0 << 36000.0 << false;
    QTest::newRow("speed") << 8 << "Instruction 1, Speed V" << 0.0 << 3000.0 << false;
    QTest::newRow("deceleration") << 10 << "Instruction 1, Speed D" << 0.0 << 1000.0 << false;
}

void TestMovementLimits::keypadLearnsTheLimitsOfItsField()
{
    MovementLimits limits(m_list.get());
    qobject_cast<MJLine *>(m_list->itemAt(m_list->getListPos(1)))->on_expand();
    QFETCH(int, nth);
    QTRY_VERIFY(field(1, nth));
    bool isAsked = false;
    DeviceLog::runThenCancel([&] {
        isAsked = true;
        const QObject *receiver = DeviceLog::object();
        QTEST(receiver->property("hmiName").toString(), "name");
        QTEST(receiver->property("hmiMinimum").toDouble(), "minimum");
        QTEST(receiver->property("hmiMaximum").toDouble(), "maximum");
        QTEST(receiver->property("hmiInteger").toBool(), "isWhole");
        QVERIFY(receiver->property("hmiEditedRect").toRect().isValid());
        QFETCH(double, maximum);
        QString text = QString::number(maximum + 1);
        int cursor = 0;
        QVERIFY(DeviceLog::validator()->validate(text, cursor) != QValidator::Acceptable);
        text = QString::number(maximum);
        QCOMPARE(DeviceLog::validator()->validate(text, cursor), QValidator::Acceptable);
    });
    QTest::mouseClick(field(1, nth), Qt::LeftButton);
    QVERIFY(isAsked);
}

// A panel's own keypad need not keep to the validator.
void TestMovementLimits::refusedNumberGoesBackToWhatWasThere()
{
    MovementLimits limits(m_list.get());
    QSignalSpy refused(&limits, SIGNAL(refused(QString)));
    const QStringList before = m_list->getContent(1);
    DeviceLog::acceptWith("999999999999");
    QTest::mouseClick(field(1, 1), Qt::LeftButton);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused.at(0).at(0).toString(),
             QString("Instruction 1: T is 999999999999. It must be 0 to 99, whole."));
    QCOMPARE(m_list->getContent(1), before);
    QCOMPARE(field(1, 1)->text(), QString("T:0"));
}

void TestMovementLimits::numberWithinTheLimitsIsTaken()
{
    MovementLimits limits(m_list.get());
    QSignalSpy refused(&limits, SIGNAL(refused(QString)));
    DeviceLog::acceptWith("12");
    QTest::mouseClick(field(3, 1), Qt::LeftButton);
    QCOMPARE(refused.size(), 0);
    QCOMPARE(m_list->getContent(3).at(TValue), QString("12"));
}

void TestMovementLimits::freeTextAndCommandsAreLeftAlone()
{
    MovementLimits limits(m_list.get());
    QSignalSpy refused(&limits, SIGNAL(refused(QString)));
    DeviceLog::acceptWith("999999999999");
    QTest::mouseClick(field(2, 0), Qt::LeftButton);
    QCOMPARE(m_list->getContent(2).at(4), QString("999999999999"));
    qobject_cast<MJLine *>(m_list->itemAt(m_list->getListPos(1)))->on_expand();
    QTRY_VERIFY(field(1, 11));
    DeviceLog::acceptWith("a note");
    QTest::mouseClick(field(1, 11), Qt::LeftButton);
    QCOMPARE(m_list->getContent(1).at(Res), QString("a_note"));
    QCOMPARE(refused.size(), 0);
}

void TestMovementLimits::otherFieldsAreLeftAlone()
{
    MovementLimits limits(m_list.get());
    QLineEdit other;
    QTest::mouseClick(&other, Qt::LeftButton);
    QVERIFY(!other.validator());
    QVERIFY(!other.property("hmiName").isValid());
}

// The next label beside a field is that of another value.
void TestMovementLimits::fieldsAreNamedAfterThemselves()
{
    MovementLimits limits(m_list.get());
    m_list->update();
    QTRY_COMPARE(field(1, 0)->accessibleName(), QString("Instruction 1, Zone Z"));
    QCOMPARE(field(1, 1)->accessibleName(), QString("Instruction 1, Tool T"));
    QTRY_COMPARE(field(2, 0)->accessibleName(), QString("Instruction 2, text"));
    qobject_cast<MJLine *>(m_list->itemAt(m_list->getListPos(3)))->on_expand();
    QTRY_VERIFY(field(3, 11));
    QTRY_COMPARE(field(3, 11)->accessibleName(), QString("Instruction 3, remark"));
    QCOMPARE(field(3, 2)->accessibleName(), QString("Instruction 3, X"));
    QCOMPARE(field(3, 10)->accessibleName(), QString("Instruction 3, Speed D"));
    // The same widgets show other rows then.
    m_list->removeWidget(1, true);
    QTRY_COMPARE(field(2, 0)->accessibleName(), QString("Instruction 2, Zone Z"));
    DeviceLog::runThenCancel([] {
        QCOMPARE(DeviceLog::object()->property("hmiName").toString(),
                 QString("Instruction 1, text"));
    });
    QTest::mouseClick(field(1, 0), Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 0);
}

void TestMovementLimits::rowThatIsNotThereOpensNothing()
{
    MovementLimits limits(m_list.get());
    limits.open(40, ZValue, QRect(0, 0, 10, 10));
    limits.open(1, HostLength, QRect(0, 0, 10, 10));
    QVERIFY(DeviceLog::keypadCalls().isEmpty());
}

void TestMovementLimits::faultThatWasThereBeforeIsNotTakenAway()
{
    QStringList row = m_list->getContent(1);
    row[ZValue] = "4711";
    m_list->setContent(1, row);
    MovementLimits limits(m_list.get());
    QSignalSpy refused(&limits, SIGNAL(refused(QString)));
    DeviceLog::acceptWith("7");
    QTest::mouseClick(field(1, 1), Qt::LeftButton);
    QCOMPARE(refused.size(), 0);
    QCOMPARE(m_list->getContent(1).at(ZValue), QString("4711"));
    QCOMPARE(m_list->getContent(1).at(TValue), QString("7"));
}

void TestMovementLimits::firstFaultIsFound()
{
    QList<QStringList> rows;
    for (int i = 0; i < 5; ++i)
        rows.append(TaughtProgram::movement("ML", 3, 1, m_machine));
    rows.insert(1, TaughtProgram::command("999999999999"));
    QCOMPARE(MovementLimits::firstFault(rows).row, -1);
    rows[4][TValue] = "1.5";
    QCOMPARE(MovementLimits::firstFault(rows).row, 4);
    QCOMPARE(MovementLimits::firstFault(rows).text,
             QString("Instruction 5: T is 1.5. It must be 0 to 99, whole."));
    rows[3][detailValue(0)] = QString(5000, '9');
    QCOMPARE(MovementLimits::firstFault(rows).row, 3);
    QVERIFY(MovementLimits::firstFault(rows).text.size() < 100);
    rows[2] = QStringList{"ML", "3"};
    rows[3][detailValue(0)] = "nan";
    QCOMPARE(MovementLimits::firstFault(rows).row, 3);
}

void TestMovementLimits::sampleHasNoFault()
{
    QCOMPARE(MovementLimits::firstFault(TaughtProgram::sample(m_machine)).row, -1);
}

FILARIX_TEST_MAIN(TestMovementLimits)
#include "tst_movementlimits.moc"
