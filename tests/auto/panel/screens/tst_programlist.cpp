// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filarixtest.h"
#include "screens/programlist.h"

#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QScopedPointer>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>

class TestProgramList : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsNameSizeAndDate();
    void eachStateHasItsWords();
    void folderThatCannotBeReadIsTold();
    void folderThatHangsIsTold();
    void touchChoosesAProgram();
    void twoTouchesOpenIt();
    void chosenOneStaysWhileTheFolderChanges();
    void changeOfTheChosenOneIsTold();
    void chosenOneThatGoesIsTold();
    void nobodyChoosesWhatIsNotThere();
    void rowsKeepTheirPlaceWhenTheFolderChanges();
    void dateAndSizeMakeWayForTheName();
    void headsFollowTheLanguage();

private:
    void look();
    QString cell(int row, int column) const;
    QString words() const;

    QScopedPointer<ProgramFolder> m_folder;
    QScopedPointer<ProgramList> m_list;
};

void TestProgramList::init()
{
    FilarixTest::init();
    programDir();
    m_folder.reset(new ProgramFolder(programDir()));
    m_list.reset(new ProgramList(m_folder.data()));
    m_list->resize(500, 300);
    m_list->show();
}

void TestProgramList::cleanup()
{
    m_list.reset();
    m_folder.reset();
    FilarixTest::cleanup();
}

/// To be called when something is another than at the last look.
void TestProgramList::look()
{
    QSignalSpy changes(m_folder.data(), SIGNAL(changed()));
    m_folder->look();
    QTRY_VERIFY(!changes.isEmpty());
}

QString TestProgramList::cell(int row, int column) const
{
    return m_list->table()->item(row, column)->text();
}

QString TestProgramList::words() const
{
    const QLabel *label = m_list->findChild<QLabel *>("listWords");
    return label->isVisible() ? label->text() : QString();
}

void TestProgramList::showsNameSizeAndDate()
{
    writeFile(programDir() + "/coil10.cnc", "G01\n");
    writeFile(programDir() + "/coil2.cnc", QByteArray(3000, 'x'));
    look();
    QCOMPARE(m_list->table()->rowCount(), 2);
    QCOMPARE(cell(0, 0), QString("coil2.cnc"));
    QCOMPARE(cell(0, 1), QString("3 KB"));
    QCOMPARE(cell(1, 0), QString("coil10.cnc"));
    QCOMPARE(cell(1, 2).size(), int(strlen("2026-08-28 08:08")));
    QVERIFY(!m_list->table()->isColumnHidden(2));
    QVERIFY(m_list->table()->isVisible());
    QCOMPARE(m_list->firstName(), QString("coil2.cnc"));
    QCOMPARE(words(), QString());
}

void TestProgramList::eachStateHasItsWords()
{
    QCOMPARE(words(), QString("Reading the programs ..."));
    QVERIFY(!m_list->table()->isVisible());
    look();
    QVERIFY2(words().startsWith("No programs yet."), qPrintable(words()));
    writeFile(programDir() + "/coil.cnc", "G01\n");
    look();
    QCOMPARE(words(), QString());
    QVERIFY(QFile::remove(programDir() + "/coil.cnc"));
    look();
    QVERIFY2(words().startsWith("No programs yet."), qPrintable(words()));
}

void TestProgramList::folderThatCannotBeReadIsTold()
{
    writeFile(home() + "/file", "x");
    ProgramFolder folder(home() + "/file");
    ProgramList list(&folder);
    list.show();
    folder.look();
    QTRY_COMPARE(list.findChild<QLabel *>("listWords")->text(),
                 QString("The folder of the programs cannot be read: Not a directory."));
}

void TestProgramList::folderThatHangsIsTold()
{
    const std::shared_ptr<QSemaphore> gate = std::make_shared<QSemaphore>();
    const QString dir = programDir();
    ProgramFolder folder([gate, dir] {
        gate->acquire();
        return ProgramFolder::lookAt(dir);
    });
    folder.setPatience(30);
    ProgramList list(&folder);
    list.show();
    folder.look();
    const QLabel *label = list.findChild<QLabel *>("listWords");
    QTRY_VERIFY2(label->text().startsWith("The panel's storage does not answer."),
                 qPrintable(label->text()));
    gate->release();
    QTRY_VERIFY(label->text().startsWith("No programs yet."));
}

void TestProgramList::touchChoosesAProgram()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    writeFile(programDir() + "/b.cnc", "G01\n");
    look();
    QSignalSpy chosen(m_list.data(), SIGNAL(chosenChanged()));
    QTableWidget *table = m_list->table();
    const QPoint place = table->visualItemRect(table->item(1, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_list->chosen(), QString("b.cnc"));
    QCOMPARE(chosen.size(), 1);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(chosen.size(), 1);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Up);
    QCOMPARE(m_list->chosen(), QString("a.cnc"));
}

void TestProgramList::twoTouchesOpenIt()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    look();
    QSignalSpy opened(m_list.data(), SIGNAL(openWanted()));
    m_list->choose("a.cnc");
    QTableWidget *table = m_list->table();
    QTest::keyClick(table, Qt::Key_Return);
    QCOMPARE(opened.size(), 1);
    const QPoint place = table->visualItemRect(table->item(0, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(opened.size(), 1);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(opened.size(), 2);
}

void TestProgramList::chosenOneStaysWhileTheFolderChanges()
{
    writeFile(programDir() + "/b.cnc", "G01\n");
    look();
    m_list->choose("b.cnc");
    QSignalSpy chosen(m_list.data(), SIGNAL(chosenChanged()));
    writeFile(programDir() + "/a.cnc", "G01\n");
    look();
    QCOMPARE(m_list->table()->rowCount(), 2);
    QCOMPARE(m_list->table()->currentRow(), 1);
    QCOMPARE(m_list->chosen(), QString("b.cnc"));
    QCOMPARE(chosen.size(), 0);
}

void TestProgramList::changeOfTheChosenOneIsTold()
{
    writeFile(programDir() + "/b.cnc", "G01\n");
    look();
    m_list->choose("b.cnc");
    QSignalSpy chosen(m_list.data(), SIGNAL(chosenChanged()));
    writeFile(programDir() + "/b.cnc", "G01 X10\n");
    look();
    QCOMPARE(chosen.size(), 1);
}

void TestProgramList::chosenOneThatGoesIsTold()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    writeFile(programDir() + "/b.cnc", "G01\n");
    look();
    m_list->choose("b.cnc");
    QSignalSpy chosen(m_list.data(), SIGNAL(chosenChanged()));
    QVERIFY(QFile::remove(programDir() + "/b.cnc"));
    look();
    QCOMPARE(chosen.size(), 1);
    // Nobody has chosen another one.
    QCOMPARE(m_list->chosen(), QString("b.cnc"));
    QVERIFY(m_list->table()->selectedItems().isEmpty());
}

void TestProgramList::nobodyChoosesWhatIsNotThere()
{
    writeFile(programDir() + "/a.cnc", "G01\n");
    look();
    m_list->choose("a.cnc");
    m_list->choose("nowhere.cnc");
    QCOMPARE(m_list->chosen(), QString());
    m_list->choose(QString());
    QCOMPARE(m_list->chosen(), QString());
}

void TestProgramList::rowsKeepTheirPlaceWhenTheFolderChanges()
{
    for (int i = 0; i < 60; ++i)
        writeFile(programDir() + QString("/coil%1.cnc").arg(i), "G01\n");
    look();
    m_list->choose("coil0.cnc");
    QScrollBar *bar = m_list->table()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 20);
    bar->setValue(20);
    writeFile(programDir() + "/zzz.cnc", "G01\n");
    look();
    QCOMPARE(bar->value(), 20);
}

void TestProgramList::dateAndSizeMakeWayForTheName()
{
    writeFile(programDir() + "/a-rather-long-name.cnc", "G01\n");
    QFont font = m_list->table()->font();
    font.setPixelSize(12);
    m_list->table()->setFont(font);
    look();
    const QTableWidget *table = m_list->table();
    QVERIFY(!table->isColumnHidden(1) && !table->isColumnHidden(2));
    m_list->resize(300, 300);
    QTRY_VERIFY(table->isColumnHidden(2));
    QVERIFY(!table->isColumnHidden(1));
    m_list->resize(200, 300);
    QTRY_VERIFY(table->isColumnHidden(1));
    m_list->resize(500, 300);
    QTRY_VERIFY(!table->isColumnHidden(2));
    // Larger letters take the room of the date.
    font.setPixelSize(26);
    m_list->table()->setFont(font);
    QTRY_VERIFY(table->isColumnHidden(2));
    m_list->showHeads(false);
    QVERIFY(!table->horizontalHeader()->isVisible());
}

void TestProgramList::headsFollowTheLanguage()
{
    look();
    QTableWidget *table = m_list->table();
    table->setHorizontalHeaderLabels({"x", "y", "z"});
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_list.data(), &language);
    QCOMPARE(table->horizontalHeaderItem(0)->text(), QString("Name"));
    QCOMPARE(table->accessibleName(), QString("Programs"));
}

FILARIX_TEST_MAIN(TestProgramList)
#include "tst_programlist.moc"
