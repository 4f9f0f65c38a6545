// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/pickerfitting.h"
#include "programs/recentprograms.h"
#include "wfiledialog.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedPointer>
#include <QScrollBar>
#include <QTableWidget>
#include <QToolButton>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class TestPickerFitting : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dialogStaysTheLibrarysOwn();
    void partsStandSideBySide();
    void programsUsedLastComeFirst();
    void ordersFollowTheKeys();
    void numbersInNamesCountAsSuch();
    void partOfANameIsLookedFor();
    void partIsEnteredOnTheKeypad();
    void onlyOneLeftIsChosenForOpeningAlone_data();
    void onlyOneLeftIsChosenForOpeningAlone();
    void whatIsTypedIntoTheListIsLookedFor();
    void returnInTheFieldIsNoOk();
    void arrowKeysChoose();
    void listPagesByKeys();
    void nothingIsProposedForRemoval();
    void factsOfTheChosenProgram();
    void factsOfANameWithoutFile_data();
    void factsOfANameWithoutFile();
    void factsSayWhatIsWrong_data();
    void factsSayWhatIsWrong();
    void factsMoveOnWithTheChoice();
    void namesWithLineEnds();
    void readOnlyFolderIsToldWhereItMatters_data();
    void readOnlyFolderIsToldWhereItMatters();
    void thousandsOfPrograms();
    void closedWhileItReads();

private:
    void open(const QString &title = "Open file");
    QTableWidget *table() const { return m_dialog->findChild<QTableWidget *>(); }
    QLineEdit *field() const { return m_dialog->findChild<QLineEdit *>(); }
    QLineEdit *filter() const { return m_dialog->findChild<QLineEdit *>("pickerFilter"); }
    QString facts() const { return m_dialog->findChild<QLabel *>("pickerFacts")->text(); }
    QString count() const { return m_dialog->findChild<QLabel *>("pickerCount")->text(); }
    QStringList rows() const;
    void chooseOrder(const QString &text) const;
    void touchRow(int row) const;
    QList<QToolButton *> pageKeys() const
    {
        return m_dialog->findChildren<QToolButton *>("pickerPage");
    }
    static QString path(const QString &name) { return programDir() + "/" + name; }
    static void setDate(const QString &name, int second);

    QString m_folder;
    QScopedPointer<RecentPrograms> m_recent;
    QScopedPointer<WFileDialog> m_dialog;
};

void TestPickerFitting::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    m_folder = programDir();
    emptyFolder(programDir());
    writeFile(path("coil2.cnc"), "; Stator, 0.3 mm\nG01 X1\n");
    writeFile(path("coil10.cnc"), QByteArray(3000, 'x'));
    writeFile(path("Rotor.cnc"), "G01 X1\n");
    setDate("coil2.cnc", 300);
    setDate("coil10.cnc", 100);
    setDate("Rotor.cnc", 200);
    m_recent.reset(new RecentPrograms(QString()));
}

void TestPickerFitting::cleanup()
{
    m_dialog.reset();
    m_recent.reset();
    FilarixTest::cleanup();
}

void TestPickerFitting::setDate(const QString &name, int second)
{
    const struct timespec times[2] = {{second, 0}, {second, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path(name)).constData(), times, 0), 0);
}

void TestPickerFitting::open(const QString &title)
{
    const WindowDialogs::Picker picker = title == "Open file" ? WindowDialogs::OpenPicker
                                         : title == "Save as" ? WindowDialogs::SavePicker
                                                              : WindowDialogs::RemovePicker;
    m_dialog.reset(new WFileDialog(nullptr));
    m_dialog->setTitle(title);
    new PickerFitting(m_dialog.data(), picker, m_folder, MachineProfile::forSamples(),
                      m_recent.data());
    m_dialog->show();
    // The proposal for removal is over by then.
    QCoreApplication::processEvents();
}

QStringList TestPickerFitting::rows() const
{
    QStringList names;
    for (int row = 0; row < table()->rowCount(); ++row)
        names.append(table()->item(row, 0)->text());
    return names;
}

void TestPickerFitting::chooseOrder(const QString &text) const
{
    QToolButton *next = m_dialog->findChild<QToolButton *>("pickerNextOrder");
    const QList<QToolButton *> keys = m_dialog->findChildren<QToolButton *>("pickerOrder");
    for (QToolButton *key : keys) {
        if (key->text() != text)
            continue;
        if (key->isVisible())
            return key->click();
    }
    for (int i = 0; i < keys.size() && next->text() != text; ++i)
        next->click();
}

void TestPickerFitting::touchRow(int row) const
{
    const QRect place = table()->visualItemRect(table()->item(row, 0));
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
}

void TestPickerFitting::partsStandSideBySide()
{
    open();
    const QWidget *strip = m_dialog->findChild<QWidget *>("pickerStrip");
    QVERIFY(strip->isVisible());
    QCOMPARE(strip->width(), m_dialog->width());
    QCOMPARE(strip->y(), 0);
    QVERIFY(table()->geometry().top() > strip->geometry().bottom());
    QVERIFY(field()->geometry().top() > table()->geometry().bottom());
    const QWidget *facts = m_dialog->findChild<QLabel *>("pickerFacts");
    QVERIFY(facts->width() > 100);
    QVERIFY(!facts->geometry().intersects(table()->geometry()));
    QVERIFY(m_dialog->rect().contains(facts->geometry()));
}

/// What a host, a guard or the library itself looks for is found as before.
void TestPickerFitting::dialogStaysTheLibrarysOwn()
{
    open();
    QCOMPARE(m_dialog->findChild<QLineEdit *>()->objectName(), QString());
    QCOMPARE(m_dialog->findChildren<QPushButton *>().size(), 2);
    QCOMPARE(m_dialog->findChildren<QPushButton *>().first()->text(), QString("OK"));
    QCOMPARE(m_dialog->windowTitle(), QString("Open file"));
    touchRow(0);
    QCOMPARE(field()->text(), rows().first());
    m_dialog->findChildren<QPushButton *>().first()->click();
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->fileName, rows().first());
}

void TestPickerFitting::programsUsedLastComeFirst()
{
    m_recent->note("coil10.cnc");
    m_recent->note("gone.cnc");
    m_recent->note("Rotor.cnc");
    open();
    QCOMPARE(rows(), QStringList() << "Rotor.cnc"
                                   << "coil10.cnc"
                                   << "coil2.cnc");
    // The library proposes its first row.
    QCOMPARE(field()->text(), QString("Rotor.cnc"));
    QCOMPARE(table()->currentRow(), 0);
    // A file with the names comes when it comes.
    m_recent->note("coil2.cnc");
    QCOMPARE(rows().first(), QString("coil2.cnc"));
    QCOMPARE(table()->currentRow(), 1);
}

void TestPickerFitting::ordersFollowTheKeys()
{
    m_recent->note("Rotor.cnc");
    open();
    chooseOrder("Name");
    QCOMPARE(rows(), QStringList() << "coil2.cnc"
                                   << "coil10.cnc"
                                   << "Rotor.cnc");
    chooseOrder("Date");
    QTRY_COMPARE(rows(), QStringList() << "coil2.cnc"
                                       << "Rotor.cnc"
                                       << "coil10.cnc");
    chooseOrder("Size");
    QTRY_COMPARE(rows(), QStringList() << "coil10.cnc"
                                       << "coil2.cnc"
                                       << "Rotor.cnc");
    QCOMPARE(table()->item(0, 1)->text(), QString("3 KB"));
    chooseOrder("Last used");
    QCOMPARE(rows().first(), QString("Rotor.cnc"));
    // The choice stays marked, wherever it stands now.
    QCOMPARE(table()->item(table()->currentRow(), 0)->text(), field()->text());
}

void TestPickerFitting::numbersInNamesCountAsSuch()
{
    emptyFolder(programDir());
    const QStringList wanted = QStringList() << "a.cnc"
                                             << "A1.cnc"
                                             << "a2.cnc"
                                             << "a010.cnc"
                                             << "a10b.cnc"
                                             << "a11.cnc"
                                             << "b.cnc";
    for (const QString &name : wanted)
        writeFile(path(name), "G01\n");
    open();
    QCOMPARE(rows(), wanted);
}

void TestPickerFitting::partOfANameIsLookedFor()
{
    open("Save as");
    QCOMPARE(count(), QString("Programs: 3"));
    filter()->setText("COIL");
    QCOMPARE(rows(), QStringList() << "coil2.cnc"
                                   << "coil10.cnc");
    QCOMPARE(count(), QString("2 of 3 programs"));
    QCOMPARE(table()->rowHeight(0), 50);
    filter()->setText("nothing");
    QCOMPARE(table()->rowCount(), 0);
    QCOMPARE(count(), QString("0 of 3 programs"));
    filter()->clear();
    QCOMPARE(table()->rowCount(), 3);
    QCOMPARE(table()->rowHeight(2), 50);
    QVERIFY(!(table()->item(2, 0)->flags() & Qt::ItemIsEditable));
    QCOMPARE(table()->item(0, 1)->text(), QString("1 KB"));
}

void TestPickerFitting::partIsEnteredOnTheKeypad()
{
    open();
    DeviceLog::acceptWith("rot");
    QTest::mouseClick(filter(), Qt::LeftButton);
    QCOMPARE(rows(), QStringList("Rotor.cnc"));
    QCOMPARE(DeviceLog::answersLeft(), 0);
    DeviceLog::setTouchScreen(false);
    QTest::mouseClick(filter(), Qt::LeftButton);
    DeviceLog::setTouchScreen(true);
    DeviceLog::setInstanceAvailable(false);
    QTest::mouseClick(filter(), Qt::LeftButton);
    QCOMPARE(filter()->text(), QString("rot"));
}

void TestPickerFitting::onlyOneLeftIsChosenForOpeningAlone_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("open") << "Open file"
                          << "Rotor.cnc";
    QTest::newRow("save as") << "Save as"
                             << "mine.cnc";
    QTest::newRow("remove") << "Remove file"
                            << "mine.cnc";
}

void TestPickerFitting::onlyOneLeftIsChosenForOpeningAlone()
{
    QFETCH(QString, title);
    QFETCH(QString, chosen);
    open(title);
    field()->setText("mine.cnc");
    filter()->setText("rot");
    QCOMPARE(field()->text(), chosen);
}

void TestPickerFitting::whatIsTypedIntoTheListIsLookedFor()
{
    open();
    table()->setFocus();
    QTest::keyClicks(table(), "r");
    QTest::keyClicks(filter(), "ot");
    QCOMPARE(rows(), QStringList("Rotor.cnc"));
}

void TestPickerFitting::returnInTheFieldIsNoOk()
{
    open();
    filter()->setText("coil");
    QTest::keyClick(filter(), Qt::Key_Return);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(field()->text(), rows().at(table()->currentRow()));
}

void TestPickerFitting::arrowKeysChoose()
{
    open("Save as");
    field()->setText("mine.cnc");
    // That alone is no choice.
    table()->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(field()->text(), QString("mine.cnc"));
    field()->setText(rows().first());
    QTest::keyClick(table(), Qt::Key_Down);
    QCOMPARE(field()->text(), rows().at(1));
}

void TestPickerFitting::listPagesByKeys()
{
    for (int i = 0; i < 40; ++i)
        writeFile(path(QString("many%1.cnc").arg(i)), "G01\n");
    open();
    QCOMPARE(pageKeys().size(), 2);
    QTRY_VERIFY(pageKeys().last()->isEnabled());
    QVERIFY(!pageKeys().first()->isEnabled());
    const int before = table()->verticalScrollBar()->value();
    pageKeys().last()->click();
    QCOMPARE(table()->verticalScrollBar()->value(),
             before + table()->verticalScrollBar()->pageStep());
    QVERIFY(pageKeys().first()->isEnabled());
    pageKeys().first()->click();
    QCOMPARE(table()->verticalScrollBar()->value(), before);
    filter()->setText("rotor");
    QTRY_VERIFY(!pageKeys().last()->isEnabled());
    const QList<QToolButton *> keys = m_dialog->findChildren<QToolButton *>();
    for (const QToolButton *key : keys) {
        QVERIFY(key->height() >= 48);
        QVERIFY(key->width() >= 48);
    }
}

void TestPickerFitting::nothingIsProposedForRemoval()
{
    m_recent->note("Rotor.cnc");
    open("Remove file");
    QCOMPARE(field()->text(), QString());
    touchRow(1);
    QCOMPARE(field()->text(), rows().at(1));
}

void TestPickerFitting::factsOfTheChosenProgram()
{
    open();
    field()->setText("coil2.cnc");
    QTRY_VERIFY(facts().contains("3 lines"));
    QVERIFY(facts().contains("Stator, 0.3 mm"));
    QVERIFY(facts().contains("1 KB"));
    QVERIFY(facts().contains("1970-01-01"));
    field()->clear();
    QTRY_COMPARE(facts(), QString());
}

void TestPickerFitting::factsOfANameWithoutFile_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    QTest::newRow("open") << "Open file"
                          << "mine.cnc"
                          << "There is no program of this name.";
    QTest::newRow("save as") << "Save as"
                             << "mine.cnc"
                             << "A new program.";
    QTest::newRow("save over") << "Save as"
                               << "coil2.cnc"
                               << "It is there already.";
}

void TestPickerFitting::factsOfANameWithoutFile()
{
    QFETCH(QString, title);
    QFETCH(QString, name);
    QFETCH(QString, words);
    open(title);
    field()->setText(name);
    QTRY_COMPARE(facts().section("\n", 0, 0), words);
}

void TestPickerFitting::factsSayWhatIsWrong_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("words");
    QTest::newRow("pipe") << "pipe"
                          << "This is no program file.";
    QTest::newRow("folder") << "folder"
                            << "This is no program file.";
    QTest::newRow("unreadable") << "unreadable"
                                << "It cannot be read: ";
}

void TestPickerFitting::factsSayWhatIsWrong()
{
    QFETCH(QString, what);
    QFETCH(QString, words);
    const QByteArray file = QFile::encodeName(path("odd.cnc"));
    if (what == "pipe")
        QCOMPARE(::mkfifo(file.constData(), 0600), 0);
    else if (what == "folder")
        QCOMPARE(::mkdir(file.constData(), 0700), 0);
    else
        // Also for one who may read everything.
        QCOMPARE(::symlink("odd.cnc", file.constData()), 0);
    open();
    field()->setText("odd.cnc");
    QTRY_VERIFY2(facts().startsWith(words), qPrintable(facts()));
}

void TestPickerFitting::factsMoveOnWithTheChoice()
{
    writeFile(path("long.cnc"), QByteArray("G01 X1 Y2 Z3\n").repeated(scaled(300000)));
    open();
    field()->setText("long.cnc");
    QTRY_VERIFY(facts().contains("%"));
    field()->setText("coil2.cnc");
    QCOMPARE(facts(), QString());
    QTRY_VERIFY(facts().contains("Stator"));
    // The file goes while it is read, and nobody hears of it.
    field()->setText("long.cnc");
    QTRY_VERIFY(facts().contains("%"));
    QVERIFY(QFile::remove(path("long.cnc")));
    field()->setText("Rotor.cnc");
    QTRY_VERIFY(facts().contains("2 lines"));
    field()->setText("long.cnc");
    QTRY_COMPARE(facts(), QString("There is no program of this name."));
}

void TestPickerFitting::namesWithLineEnds()
{
    const QString odd("two\nlines.cnc");
    writeFile(path(odd), "; odd\nG01\n");
    m_recent->note(odd);
    open();
    QCOMPARE(rows().first(), odd);
    touchRow(0);
    QTRY_VERIFY(facts().contains("odd"));
    filter()->setText("lines");
    QCOMPARE(rows(), QStringList(odd));
}

void TestPickerFitting::readOnlyFolderIsToldWhereItMatters_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("words");
    QTest::newRow("open") << "Open file"
                          << "Programs: 3";
    QTest::newRow("save as") << "Save as"
                             << "The folder is read-only.";
    QTest::newRow("remove") << "Remove file"
                            << "The folder is read-only.";
}

void TestPickerFitting::readOnlyFolderIsToldWhereItMatters()
{
    QFETCH(QString, title);
    QFETCH(QString, words);
    // Read-only also for one who may write everywhere.
    m_folder = "/usr";
    open(title);
    QTRY_COMPARE(count(), words);
    chooseOrder("Name");
    QCOMPARE(count(), words);
}

/// Measured beside the library's own listing, which takes what it takes.
void TestPickerFitting::thousandsOfPrograms()
{
    const int many = scaled(10000, 1000);
    for (int i = 0; i < many; ++i)
        writeFile(path(QString("part-%1.cnc").arg(i)), QByteArray());
    open();
    QTRY_COMPARE(count(), QString("Programs: %1").arg(many + 3));
    QElapsedTimer clock;
    clock.start();
    chooseOrder("Size");
    QVERIFY2(clock.elapsed() < patience(1500), qPrintable(QString::number(clock.elapsed())));
    QTRY_COMPARE(rows().first(), QString("coil10.cnc"));
    clock.start();
    filter()->setText(QString("part-%1.").arg(many - 1));
    QVERIFY2(clock.elapsed() < patience(500), qPrintable(QString::number(clock.elapsed())));
    QCOMPARE(rows(), QStringList(QString("part-%1.cnc").arg(many - 1)));
    filter()->clear();
    QCOMPARE(table()->rowCount(), many + 3);
}

void TestPickerFitting::closedWhileItReads()
{
    writeFile(path("long.cnc"), QByteArray("G01 X1 Y2 Z3\n").repeated(scaled(300000)));
    open();
    field()->setText("long.cnc");
    QTRY_VERIFY(facts().contains("%"));
    m_dialog.reset();
    open();
    QCOMPARE(rows().size(), 4);
}

FILARIX_TEST_MAIN(TestPickerFitting)
#include "tst_pickerfitting.moc"
