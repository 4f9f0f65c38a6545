// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/pickerguard.h"
#include "programwindow.h"
#include "wfiledialog.h"

#include <QLabel>
#include <QScopedPointer>
#include <QTableWidget>

class TestPickerGuard : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nameIsHeldUntilItPasses();
    void nameThatWasChangedMeanwhileIsHeldAnew();
    void nameStaysInTheMomentBeforeTheClick();
    void returnIsHeldAsAPressIs();
    void droppedNameLeavesTheDialogOpen();
    void namesThatCanBeNoneAreRefused_data();
    void namesThatCanBeNoneAreRefused();
    void hintGoesWithTheNextGoodName();
    void nameIsProposedForSaving();
    void suffixIsProposedForSavingAlone_data();
    void suffixIsProposedForSavingAlone();
    void suffixTakenAwayAgainIsLetBe();
    void bareNameOfTheListIsLetBe();
    void listedNamesAreThoseOfTheDirectory();
    void dialogMayGoWhileItsNameIsHeld();

private:
    void type(const QString &name) const { ProgramWindow::pick(m_dialog.data(), name); }
    QString typed() const { return m_dialog->findChild<QLineEdit *>()->text(); }
    QLabel *hint() const { return m_dialog->findChild<QLabel *>("hint"); }

    QScopedPointer<WFileDialog> m_dialog;
    PickerGuard *m_guard = nullptr;
    QStringList m_held;
};

void TestPickerGuard::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_held.clear();
    writeFile(programDir() + "/coil.cnc", "G01\n");
    writeFile(programDir() + "/rotor", "G01\n");
    m_dialog.reset(new WFileDialog(nullptr));
    m_guard = new PickerGuard(m_dialog.data());
    m_guard->onName([this](const QString &name) { m_held.append(name); });
    m_dialog->show();
}

void TestPickerGuard::cleanup()
{
    m_dialog.reset();
    FilarixTest::cleanup();
}

void TestPickerGuard::nameIsHeldUntilItPasses()
{
    type("stator.cnc");
    QTRY_COMPARE(m_held, QStringList("stator.cnc"));
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_dialog->fileName.isEmpty());
    QVERIFY(!hint()->isVisible());
    m_guard->pass();
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->fileName, QString("stator.cnc"));
}

// What the host found out about the first name says nothing about the second.
void TestPickerGuard::nameThatWasChangedMeanwhileIsHeldAnew()
{
    type("stator.cnc");
    QTRY_COMPARE(m_held, QStringList("stator.cnc"));
    m_dialog->findChild<QLineEdit *>()->setText("coil.cnc");
    m_guard->pass();
    QVERIFY(m_dialog->isVisible());
    QTRY_COMPARE(m_held, QStringList() << "stator.cnc"
                                       << "coil.cnc");
    QVERIFY(m_dialog->fileName.isEmpty());
    m_guard->pass();
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->fileName, QString("coil.cnc"));
}

void TestPickerGuard::nameStaysInTheMomentBeforeTheClick()
{
    type("stator.cnc");
    QTRY_COMPARE(m_held, QStringList("stator.cnc"));
    QLineEdit *field = m_dialog->findChild<QLineEdit *>();
    QTableWidget *table = m_dialog->findChild<QTableWidget *>();
    m_guard->pass();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                      table->visualItemRect(table->item(0, 0)).center());
    QTest::keyClicks(field, "x");
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->fileName, QString("stator.cnc"));
    // The dialog may be shown once more.
    QTRY_VERIFY(!field->isReadOnly());
    QVERIFY(!table->signalsBlocked());
}

void TestPickerGuard::returnIsHeldAsAPressIs()
{
    QLineEdit *field = m_dialog->findChild<QLineEdit *>();
    field->setText("stator.cnc");
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(m_held, QStringList("stator.cnc"));
    QVERIFY(m_dialog->isVisible());
}

void TestPickerGuard::droppedNameLeavesTheDialogOpen()
{
    type("stator.cnc");
    QTRY_COMPARE(m_held.size(), 1);
    m_guard->drop("The panel's storage does not answer.");
    QVERIFY(hint()->isVisible());
    QCOMPARE(hint()->text(), QString("The panel's storage does not answer."));
    QVERIFY(m_dialog->isVisible());
    // Without a reason what is said stays.
    type("stator.cnc");
    QTRY_COMPARE(m_held.size(), 2);
    m_guard->drop();
    QVERIFY(!hint()->isVisible());
    QVERIFY(m_dialog->isVisible());
}

void TestPickerGuard::namesThatCanBeNoneAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("blanks") << "   ";
    QTest::newRow("a path") << "../hmi/program.teach";
    QTest::newRow("an absolute path") << "/etc/passwd";
    QTest::newRow("the folder above") << "..";
    QTest::newRow("hidden") << ".coil.cnc";
}

void TestPickerGuard::namesThatCanBeNoneAreRefused()
{
    QFETCH(QString, name);
    type(name);
    QTRY_VERIFY(hint()->isVisible());
    QVERIFY(!hint()->text().isEmpty());
    QVERIFY(m_held.isEmpty());
    QVERIFY(m_dialog->isVisible());
}

void TestPickerGuard::hintGoesWithTheNextGoodName()
{
    type("../coil.cnc");
    QTRY_VERIFY(hint()->isVisible());
    type("coil.cnc");
    QTRY_COMPARE(m_held, QStringList("coil.cnc"));
    QVERIFY(!hint()->isVisible());
}

void TestPickerGuard::nameIsProposedForSaving()
{
    // As it is shown, before it makes a proposal of its own.
    m_dialog.reset(new WFileDialog(nullptr));
    m_guard = new PickerGuard(m_dialog.data());
    m_guard->proposeForSaving("program.cnc");
    m_dialog->show();
    QCOMPARE(typed(), QString("coil.cnc"));
    QTRY_COMPARE(typed(), QString("program.cnc"));
}

void TestPickerGuard::suffixIsProposedForSavingAlone_data()
{
    QTest::addColumn<bool>("isForSaving");
    QTest::newRow("saving") << true;
    QTest::newRow("opening") << false;
}

void TestPickerGuard::suffixIsProposedForSavingAlone()
{
    QFETCH(bool, isForSaving);
    if (isForSaving) {
        m_guard->proposeForSaving("program.cnc");
        QTRY_COMPARE(typed(), QString("program.cnc"));
    }
    type("stator");
    QTRY_COMPARE(typed(), QString(isForSaving ? "stator.cnc" : "stator"));
    QTRY_COMPARE(hint()->isVisible(), isForSaving);
    QTRY_COMPARE(m_held.size(), isForSaving ? 0 : 1);
}

void TestPickerGuard::suffixTakenAwayAgainIsLetBe()
{
    m_guard->proposeForSaving("program.cnc");
    QTRY_COMPARE(typed(), QString("program.cnc"));
    type("stator");
    QTRY_COMPARE(typed(), QString("stator.cnc"));
    type("stator");
    QTRY_COMPARE(m_held, QStringList("stator"));
    // Another name is another one.
    m_guard->drop();
    type("shaft");
    QTRY_COMPARE(typed(), QString("shaft.cnc"));
}

void TestPickerGuard::bareNameOfTheListIsLetBe()
{
    m_guard->proposeForSaving("program.cnc");
    QTRY_COMPARE(typed(), QString("program.cnc"));
    type("rotor");
    QTRY_COMPARE(m_held, QStringList("rotor"));
}

void TestPickerGuard::listedNamesAreThoseOfTheDirectory()
{
    QStringList names = m_guard->listedNames();
    names.sort();
    QCOMPARE(names, QStringList() << "coil.cnc"
                                  << "rotor");
}

void TestPickerGuard::dialogMayGoWhileItsNameIsHeld()
{
    type("stator.cnc");
    QTRY_COMPARE(m_held.size(), 1);
    m_guard->pass();
    m_dialog.reset();
    QCoreApplication::processEvents();
    QCOMPARE(m_held.size(), 1);
}

FILARIX_TEST_MAIN(TestPickerGuard)
#include "tst_pickerguard.moc"
