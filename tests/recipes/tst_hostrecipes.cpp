// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "checkedprogram.h"
#include "devicelog.h"
#include "editbuttons.h"
#include "filarixtest.h"
#include "guardedwindow.h"
#include "keptunsaved.h"
#include "lineafterline.h"
#include "markedlines.h"
#include "modaldriver.h"
#include "openedprogram.h"
#include "plcerror.h"
#include "programwindow.h"
#include "rowprobe.h"
#include "rowsforothers.h"
#include "safedownload.h"
#include "scriptquestioner.h"
#include "storedrows.h"
#include "watchedrows.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

QStringList title()
{
    return FilarixRows::titleRow("Instr.", "Point", "Speed", "Z", "T");
}

QList<QStringList> taught(int count)
{
    QList<QStringList> rows;
    for (int i = 1; i <= count; ++i) {
        FilarixRows::InstructionRow move(FilarixRows::InstructionRow::Linear, "Wind");
        move.setJpos("P", i % 8).setV("V", 1).setZ("Z", "1.5").setT("T", "0").setRes("one layer");
        rows.append(move.row(i));
    }
    return rows;
}

QString pathOf(const char *name)
{
    return FilarixTest::programDir() + QLatin1Char('/') + QLatin1String(name);
}

/// 600 lines: a comment before each 20 of code.
QByteArray longProgram()
{
    QByteArray program;
    for (int i = 1; i <= 600; ++i)
        program += i % 20 == 1 ? QByteArray("; layer\n") : "G01 X" + QByteArray::number(i) + "\n";
    return program;
}

/// A host with a guarded window and a history.
class GuardedHost
{
public:
    GuardedHost()
        : history(FilarixTest::programDir(), FilarixTest::home() + "/history")
        , guard(guardWindow(host.window(), &questioner, &history))
    {
        // The older toolkit's spies keep what they know by name.
        qRegisterMetaType<Message::Tone>("Message::Tone");
    }

    void open(const char *name)
    {
        ModalDriver driver;
        driver.then([name](QWidget *dialog) { ProgramWindow::pick(dialog, name); });
        host.press("Open");
        QTRY_COMPARE(host.window()->getCurrentFile(), pathOf(name));
        QTRY_VERIFY(!guard->isBusy());
        QVERIFY2(driver.finished(), driver.report());
    }

    ScriptQuestioner questioner;
    ProgramWindow host;
    ProgramHistory history;
    ProgramGuard *guard;
};

} // namespace

/// The recipes of the documentation that take the companion, run as hosts would.
class TestHostRecipes : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void guardKnowsHowTheProgramStands();
    void guardKeepsWhatASaveCovers();
    void programIsOpenedAtARow();
    void undoGoesBackToTheLoadedProgram_data();
    void undoGoesBackToTheLoadedProgram();
    void findOpensTheDialog();
    void plcErrorIsShown();
    void plcErrorOfAnotherProgramIsNotGuessed();
    void findingsStayMarkedAndAreGoneTo();
    void programIsCheckedWhileItIsEdited();
    void programIsCheckedBeforeADownload();
    void downloadSendsWhatWasAgreedTo();
    void downloadOfALongProgramSendsItsComments();
    void downloadThatIsRefusedSendsNothing();
    void ownTransferGetsTheStoredProgram();
    void ownTransferRefusesAProgramThatIsHalfLoaded();
    void ownTransferRefusesAProgramWithoutAFile();
    void ownTransferGivesTheButtonBackAfterAFailure();
    void unsavedWorkComesBack();
    void unsavedRowsComeBack();
    void linesAreEnteredOneAfterTheOther();
    void exportedRowsComeBack();
    void importRefusesRowsThatAListWouldTake();
    void importOfAMissingFileLeavesTheList();
    void exportThatFailsTellsWhy();
    void taughtListFillsItsPlaceAndTellsOfEdits();
    void spreadsheetsAndServersGetAndGiveRows();
};

void TestHostRecipes::guardKnowsHowTheProgramStands()
{
    writeFile(pathOf("long.cnc"), longProgram());
    GuardedHost host;
    host.open("long.cnc");
    QCOMPARE(int(host.guard->state().kind), int(ProgramState::Cleaned));
    QVERIFY(!host.guard->state().line().isEmpty());
}

void TestHostRecipes::guardKeepsWhatASaveCovers()
{
    writeFile(pathOf("part.cnc"), "G01 X1\nM2\n");
    GuardedHost host;
    host.open("part.cnc");
    host.host.editor()->insertLine("G01 X2");
    QSignalSpy saved(host.guard, SIGNAL(saveEnded(bool)));
    host.guard->save();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(saved.first().first().toBool());
    QTRY_COMPARE(host.history.versions().size(), 2);
    QVERIFY(readFile(host.history.versions().first().path).endsWith("G01 X1\nM2\n"));
}

void TestHostRecipes::programIsOpenedAtARow()
{
    writeFile(pathOf("part.cnc"), "G01 X1\nG01 X2\nM2\n");
    GuardedHost host;
    QVERIFY(openAt(host.host.window(), "part.cnc", 2, host.guard));
    QCOMPARE(host.host.window()->getCurrentFile(), pathOf("part.cnc"));
    QCOMPARE(host.host.editor()->getCurRowNumber(), 2);
    QVERIFY(!openAt(host.host.window(), "none.cnc", 1, host.guard));
    QCOMPARE(host.host.window()->getCurrentFile(), pathOf("part.cnc"));
}

void TestHostRecipes::undoGoesBackToTheLoadedProgram_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::newRow("short") << QByteArray("G01 X1\nM2");
    // Such a program is appended piece by piece, and each piece could be undone.
    QTest::newRow("long") << QByteArray("G01 X1\n").repeated(599) + "M2";
}

void TestHostRecipes::undoGoesBackToTheLoadedProgram()
{
    QFETCH(QByteArray, program);
    writeFile(pathOf("part.cnc"), program);
    GuardedHost host;
    addEditButtons(host.host.window());
    host.open("part.cnc");
    QToolButton *undo = host.host.button("Undo");
    QVERIFY(!undo->isEnabled());
    host.host.editor()->deleteLine();
    host.host.editor()->insertLine("M30");
    QVERIFY(undo->isEnabled());
    while (undo->isEnabled())
        undo->click();
    QCOMPARE(host.host.editor()->toPlainText(), QString::fromLatin1(program));
}

void TestHostRecipes::findOpensTheDialog()
{
    ProgramWindow host;
    addEditButtons(host.window());
    host.press("Find");
    QWidget *dialog = nullptr;
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets())
        if (widget->windowTitle() == QLatin1String("Find") && widget->isVisible())
            dialog = widget;
    QVERIFY(dialog);
    QVERIFY(dialog->findChild<QCheckBox *>());
}

void TestHostRecipes::plcErrorIsShown()
{
    writeFile(pathOf("long.cnc"), longProgram());
    GuardedHost host;
    QStatusBar bar;
    host.open("long.cnc");
    showPlcError(host.host.window(), &bar, 42, "X is out of range");
    QCOMPARE(host.host.editor()->curLineText(), QString("G01 X42"));
    QCOMPARE(bar.currentMessage(), QString("X is out of range"));
}

void TestHostRecipes::plcErrorOfAnotherProgramIsNotGuessed()
{
    writeFile(pathOf("part.cnc"), "G01 X1\nM2\n");
    GuardedHost host;
    QStatusBar bar;
    host.open("part.cnc");
    host.host.editor()->insertLine("G01 X2");
    const int row = host.host.editor()->getCurRowNumber();
    showPlcError(host.host.window(), &bar, 2, "X is out of range");
    QCOMPARE(host.host.editor()->getCurRowNumber(), row);
    QVERIFY(bar.currentMessage().contains("2") && bar.currentMessage().contains("out of range"));
}

void TestHostRecipes::findingsStayMarkedAndAreGoneTo()
{
    ProgramWindow host;
    WGCodeEditer *editor = host.editor();
    editor->setPlainText("G01 X1\nG01 X\nG01 X3\nG99\n");
    ErrorMarks marks(editor);
    QMap<int, QString> findings;
    findings.insert(2, "a number is missing");
    findings.insert(4, "unknown word");
    showFindings(&marks, findings);
    QCOMPARE(goToNextMark(&marks, editor, 0), QString("a number is missing"));
    QCOMPARE(editor->getCurRowNumber(), 2);
    editor->insertBefore();
    QCOMPARE(goToNextMark(&marks, editor, 3), QString("unknown word"));
    QCOMPARE(editor->getCurRowNumber(), 5);
    QCOMPARE(goToNextMark(&marks, editor, 5), QString("a number is missing"));
    QCOMPARE(editor->getCurRowNumber(), 3);
    showFindings(&marks, QMap<int, QString>());
    QCOMPARE(goToNextMark(&marks, editor, 0), QString());
    QCOMPARE(editor->getCurRowNumber(), 3);
}

void TestHostRecipes::programIsCheckedWhileItIsEdited()
{
    ProgramWindow host;
    CheckMarks *check = checkWhileEdited(host.window(), MachineProfile::forSamples());
    host.editor()->setPlainText("G21\nT1 Q1\nM30\n");
    QTRY_VERIFY(check->isCurrent());
    QCOMPARE(check->findings().size(), 1);
    QCOMPARE(goToNextMark(check->marks(), host.editor(), 0), check->findings().first().text());
    QCOMPARE(host.editor()->getCurRowNumber(), 2);
}

void TestHostRecipes::programIsCheckedBeforeADownload()
{
    writeFile(pathOf("part.cnc"), "Q1\nM30\n");
    QVERIFY(QDir(home()).mkdir("plc"));
    GuardedHost host;
    host.questioner.answers << 1;
    CheckedDownload *download =
        addDownload(host.guard, home() + "/plc", home() + "/outgoing", &host.questioner);
    checkBeforeDownload(download, MachineProfile::forSamples());
    host.open("part.cnc");
    QSignalSpy ended(download, SIGNAL(ended()));
    host.host.press("D/L");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(download->facts().verdict.errors, 1);
    QCOMPARE(host.questioner.asked.size(), 2);
    QVERIFY(QDir(home() + "/plc").entryList(QDir::Files | QDir::Hidden).isEmpty());
}

void TestHostRecipes::downloadSendsWhatWasAgreedTo()
{
    writeFile(pathOf("part.cnc"), "G01 X1\nM2\n");
    QVERIFY(QDir(home()).mkdir("plc"));
    GuardedHost host;
    host.questioner.answers << 1;
    CheckedDownload *download =
        addDownload(host.guard, home() + "/plc", home() + "/outgoing", &host.questioner);
    host.open("part.cnc");
    QSignalSpy ended(download, SIGNAL(ended()));
    host.host.press("D/L");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(readFile(home() + "/plc/part.cnc"), QByteArray("G01 X1\nM2\n"));
    QCOMPARE(host.questioner.asked.size(), 1);
    QVERIFY(!host.questioner.asked.first().plainText().isEmpty());
    QTRY_VERIFY(!host.host.window()->isDownloading());
}

void TestHostRecipes::downloadOfALongProgramSendsItsComments()
{
    writeFile(pathOf("long.cnc"), longProgram());
    QVERIFY(QDir(home()).mkdir("plc"));
    GuardedHost host;
    host.questioner.answers << 1;
    CheckedDownload *download =
        addDownload(host.guard, home() + "/plc", home() + "/outgoing", &host.questioner);
    host.open("long.cnc");
    QSignalSpy ended(download, SIGNAL(ended()));
    host.host.press("D/L");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(readFile(home() + "/plc/long.cnc"), longProgram());
}

void TestHostRecipes::downloadThatIsRefusedSendsNothing()
{
    writeFile(pathOf("part.cnc"), "M2\n");
    QVERIFY(QDir(home()).mkdir("plc"));
    GuardedHost host;
    CheckedDownload *download =
        addDownload(host.guard, home() + "/plc", home() + "/outgoing", &host.questioner);
    host.open("part.cnc");
    QSignalSpy ended(download, SIGNAL(ended()));
    host.host.press("D/L");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(host.questioner.asked.size(), 1);
    QVERIFY(QDir(home() + "/plc").entryList(QDir::Files | QDir::Hidden).isEmpty());
}

/// What a machine got. To be looked at while nothing is sent.
struct Machine
{
    QString refusal;
    QList<QByteArray> taken;
    QList<qint64> lines;
};

static OwnTransfer *addMachine(const GuardedHost &host, Machine *machine)
{
    return addTransfer(host.host.window(), FilarixTest::home() + "/outgoing",
                       [machine](const QString &copy, const ProgramFacts &facts) {
                           machine->taken.append(FilarixTest::readFile(copy));
                           machine->lines.append(facts.lines);
                           return machine->refusal;
                       });
}

void TestHostRecipes::ownTransferGetsTheStoredProgram()
{
    writeFile(pathOf("long.cnc"), longProgram());
    GuardedHost host;
    Machine machine;
    QSignalSpy told(addMachine(host, &machine), SIGNAL(told(QString, Message::Tone, QString)));
    host.open("long.cnc");
    host.host.press("D/L");
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(machine.taken.size(), 1);
    QCOMPARE(machine.taken.first(), longProgram());
    QCOMPARE(machine.lines.first(), qint64(601));
    QVERIFY(!host.host.window()->isDownloading());
}

/// An operator who ends the loading in its middle.
class Abort : public QObject
{
    Q_OBJECT

public:
    explicit Abort(WGCodeEditer *editor)
    {
        connect(editor, SIGNAL(blockCountChanged(int)), SLOT(cancel(int)));
    }

private Q_SLOTS:
    void cancel(int lines)
    {
        Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
            QProgressDialog *progress = qobject_cast<QProgressDialog *>(widget);
            if (progress && lines > 100)
                progress->cancel();
        }
    }
};

void TestHostRecipes::ownTransferRefusesAProgramThatIsHalfLoaded()
{
    writeFile(pathOf("long.cnc"), QByteArray("G01 X1\n").repeated(9999));
    GuardedHost host;
    Machine machine;
    addMachine(host, &machine);
    QSignalSpy told(host.guard, SIGNAL(told(QString, Message::Tone, QString)));
    const Abort abort(host.host.editor());
    ModalDriver driver;
    driver.then([](QWidget *dialog) { ProgramWindow::pick(dialog, "long.cnc"); });
    host.host.press("Open");
    QTRY_COMPARE(int(host.guard->state().kind), int(ProgramState::Incomplete));
    QTRY_VERIFY(!host.guard->isBusy());
    told.clear();
    host.host.press("D/L");
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(machine.taken.size(), 0);
}

void TestHostRecipes::ownTransferRefusesAProgramWithoutAFile()
{
    GuardedHost host;
    Machine machine;
    QSignalSpy told(addMachine(host, &machine), SIGNAL(told(QString, Message::Tone, QString)));
    host.host.press("D/L");
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(machine.taken.size(), 0);
}

void TestHostRecipes::ownTransferGivesTheButtonBackAfterAFailure()
{
    writeFile(pathOf("part.cnc"), "M2\n");
    GuardedHost host;
    Machine machine;
    machine.refusal = "The machine is winding.";
    QSignalSpy told(addMachine(host, &machine), SIGNAL(told(QString, Message::Tone, QString)));
    host.open("part.cnc");
    host.host.press("D/L");
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), machine.refusal);
    QVERIFY(!host.host.window()->isDownloading());
}

void TestHostRecipes::unsavedWorkComesBack()
{
    writeFile(pathOf("part.cnc"), "M2\n");
    const QString folder = home() + "/unsaved";
    {
        GuardedHost host;
        UnsavedWork work(folder);
        keepUnsaved(host.guard, folder, &work, &host.questioner);
        host.open("part.cnc");
        host.host.editor()->insertLine("G01 X7");
        QVERIFY(work.flush(10000));
        QCOMPARE(host.questioner.asked.size(), 0);
    }
    GuardedHost host;
    host.questioner.answers << 1;
    UnsavedWork work(folder);
    UnsavedOffer *offer = keepUnsaved(host.guard, folder, &work, &host.questioner);
    QSignalSpy ended(offer, SIGNAL(ended()));
    offer->start();
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(host.questioner.asked.size(), 1);
    QVERIFY(host.host.text().contains("G01 X7"));
    QVERIFY(host.host.isModified());
}

void TestHostRecipes::unsavedRowsComeBack()
{
    const QString folder = home() + "/unsaved";
    for (int run = 0; run < 2; ++run) {
        GuardedHost host;
        QStringList titleRow = title();
        TListWidget list(titleRow, nullptr);
        QScopedPointer<UnsavedList> rows;
        UnsavedWork work(folder);
        QScopedPointer<UnsavedOffer> offer(
            keepUnsaved(host.guard, folder, &work, &host.questioner));
        rows.reset(keepRows(&list, &work, offer.data()));
        QSignalSpy ended(offer.data(), SIGNAL(ended()));
        host.questioner.answers << 1;
        offer->start();
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(host.questioner.asked.size(), run);
        if (run == 0)
            fillRows(&list, taught(3));
        QVERIFY(work.flush(10000));
        QCOMPARE(rows->rows(), taught(3));
    }
}

void TestHostRecipes::linesAreEnteredOneAfterTheOther()
{
    DeviceLog::reset();
    ProgramWindow host;
    enterLineAfterLine(host.window(), MachineProfile::forSamples());
    host.window()->show();
    DeviceLog::acceptForNextLine("G90 G01 F200");
    DeviceLog::acceptWith("X10");
    host.press("Edit");
    QTRY_COMPARE(host.text(), QString("G90 G01 F200\nX10\n"));
    QCOMPARE(host.window()->property("hmiHint").toString(), QString("G90 G01 F200"));
}

void TestHostRecipes::exportedRowsComeBack()
{
    QStringList titleRow = title();
    TListWidget list(titleRow, nullptr);
    QList<QStringList> rows = taught(30);
    rows[4][FilarixRows::Ins] = QString::fromUtf8("tab\tand\nline\r\n \\t end ä");
    fillRows(&list, rows);
    const QString path = home() + "/taught.rows";
    QCOMPARE(exportRows(&list, 1, path), QString());
    QCOMPARE(QDir(home()).entryList(QStringList("*taught*"), QDir::Files | QDir::Hidden),
             QStringList("taught.rows"));

    QStringList otherTitle = title();
    TListWidget other(otherTitle, nullptr);
    QStringList old = taught(1).first();
    other.addWidget(old, true, false);
    QCOMPARE(importRows(&other, 1, path), QString());
    QCOMPARE(other.count(), 31);
    for (int i = 1; i < other.count(); ++i)
        QCOMPARE(other.getContent(i), rows.at(i - 1));
}

void TestHostRecipes::importRefusesRowsThatAListWouldTake()
{
    QStringList titleRow = title();
    TListWidget list(titleRow, nullptr);
    QList<QStringList> rows = taught(3);
    rows[1][FilarixRows::ZValue] = "1:5";
    fillRows(&list, rows);
    const QString path = home() + "/taught.rows";
    QCOMPARE(exportRows(&list, 1, path), QString());

    QStringList otherTitle = title();
    TListWidget other(otherTitle, nullptr);
    QStringList old = taught(1).first();
    other.addWidget(old, true, false);
    QVERIFY(importRows(&other, 1, path).contains("row 2, position 8"));
    QCOMPARE(other.count(), 2);
}

void TestHostRecipes::importOfAMissingFileLeavesTheList()
{
    QStringList titleRow = title();
    TListWidget list(titleRow, nullptr);
    fillRows(&list, taught(3));
    QVERIFY(!importRows(&list, 1, home() + "/none.rows").isEmpty());
    QCOMPARE(list.count(), 4);
}

void TestHostRecipes::exportThatFailsTellsWhy()
{
    QStringList titleRow = title();
    TListWidget list(titleRow, nullptr);
    QVERIFY(!exportRows(&list, 1, home() + "/none/taught.rows").isEmpty());
    const QString folder = home() + "/taught.rows";
    QVERIFY(QDir().mkdir(folder)); // no file can take this name
    QVERIFY(!exportRows(&list, 1, folder).isEmpty());
    QCOMPARE(QDir(home()).entryList(QStringList("*taught*"),
                                    QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList("taught.rows"));
}

/// A host that wants to know what its operator edits.
class RowHost : public QWidget
{
    Q_OBJECT

public:
    QList<int> edited;
    QStringList content;

public Q_SLOTS:
    void rowEdited(int row, const QStringList &rowContent)
    {
        edited.append(row);
        content = rowContent;
    }
};

void TestHostRecipes::taughtListFillsItsPlaceAndTellsOfEdits()
{
    DeviceLog::reset();
    RowHost screen;
    TListWidget *list = addTaughtList(new QVBoxLayout(&screen), taught(10), &screen);
    screen.resize(620, 300);
    screen.show();
    QVERIFY(TestCompat::waitForExposed(&screen));
    QTRY_VERIFY(list->width() > 560);
    QCoreApplication::processEvents();
    DeviceLog::acceptWith("2.5");
    RowProbe::tap(RowView(qobject_cast<MJLine *>(list->itemAt(3))).cell(RowView::Z));
    QCOMPARE(screen.edited, QList<int>() << 3);
    QCOMPARE(screen.content.at(FilarixRows::ZValue), QString("2.5"));
}

void TestHostRecipes::spreadsheetsAndServersGetAndGiveRows()
{
    const QString path = home() + "/taught.csv";
    QCOMPARE(writeCsv(path, taught(2)), QString());
    QCOMPARE(readFile(path), RowText::toCsv(taught(2)));
    QVERIFY(!writeCsv(home() + "/none/taught.csv", taught(2)).isEmpty());

    QString error;
    QCOMPARE(rowsFromServer(RowText::toJson(taught(3)), 1, &error), taught(3));
    QCOMPARE(error, QString());
    QVERIFY(rowsFromServer(RowText::toJson(taught(3)), 0, &error).isEmpty());
    QVERIFY(!error.isEmpty());
    QVERIFY(rowsFromServer("{}", 1, &error).isEmpty());
    QVERIFY(error.contains("JSON"));
}

FILARIX_TEST_MAIN(TestHostRecipes)
#include "tst_hostrecipes.moc"
