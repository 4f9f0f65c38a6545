// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programguard.h"
#include "modaldriver.h"
#include "programs/programopener.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedstore.h"
#include "programs/unsavedwork.h"
#include "programwindow.h"
#include "scriptquestioner.h"
#include "somerows.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSignalSpy>

#include <sys/stat.h>

class TestUnsavedOffer : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nothingIsAskedWithoutWork();
    void workComesBack();
    void undoGoesNoFurtherThanTheFile();
    void laterIsOfferedAgain();
    void answerThatIsNoneMeansLater();
    void thrownAwayOnlyWhenAskedTwice_data();
    void thrownAwayOnlyWhenAskedTwice();
    void slippedThrowAwayAsksTheFirstQuestionAgain();
    void programWhoseFileIsGone();
    void programWhoseFileHasChanged();
    void frontPartOfAProgramBecomesANewOne();
    void headOfAFrontPartSaysSo();
    void programWithoutAFile();
    void newProgramHasNothingOfTheLastOne();
    void operatorsOwnChangesStay();
    void operatorsOwnRowsStay();
    void programThatIsLoadedComesFirst();
    void busyHostIsNotAsked();
    void rowsThatAreLoadedComeFirst();
    void savedProgramIsNotOffered();
    void newestSessionComesFirst();
    void workThatCannotBeReadIsToldAndPutAside();
    void rowsThatAreNoneAreRefused();
    void workOfAListThatIsNotHereStays();
    void hangingFolderHoldsNothingUp();

public Q_SLOTS:
    /// Begins to offer while a program is loaded.
    void startWhenLongEnough();

private:
    void keep(const KeptWork &work);
    void keep(const QList<KeptWork> &works);
    void makeOffer();
    void offer();
    void answer(int first, int second = 0, int third = 0);
    QStringList lines(int question = 0) const;
    QStringList sessions() const;
    QString told(int number) const;
    QString text() const { return m_program->text(); }
    bool isModified() const { return m_program->isModified(); }
    QString openFile() const { return m_program->window()->getCurrentFile(); }

    QString m_folder;
    QScopedPointer<ProgramWindow> m_program;
    QScopedPointer<SomeRows> m_teach;
    QScopedPointer<SomeRows> m_variables;
    QScopedPointer<UnsavedWork> m_work;
    QScopedPointer<ScriptQuestioner> m_questioner;
    QScopedPointer<UnsavedOffer> m_offer;
    QScopedPointer<QSignalSpy> m_told;
    QScopedPointer<QSignalSpy> m_ended;
    bool m_isBusy = false;
    int m_newPrograms = 0;
};

enum Answer { Later, BringBack, ThrowAway };

void TestUnsavedOffer::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    m_folder = home() + "/hmi/unsaved";
    m_isBusy = false;
    m_newPrograms = 0;
    m_program.reset(new ProgramWindow);
    m_teach.reset(new SomeRows);
    m_teach->path = home() + "/hmi/program.teach";
    m_variables.reset(new SomeRows);
    m_variables->show(QStringList() << "one"
                                    << "two");
    m_variables->store();
    m_questioner.reset(new ScriptQuestioner);
    m_work.reset(new UnsavedWork(m_folder));
    m_work->setDelay(50);
    m_work->watchProgram(m_program->document(),
                         [this] { return UnsavedOffer::headOf(m_program->window(), false); });
    m_work->watchRows("teach", m_teach.data());
    m_work->watchRows("variables", m_variables.data());
}

void TestUnsavedOffer::cleanup()
{
    m_offer.reset();
    m_work.reset();
    m_program.reset();
    FilarixTest::cleanup();
}

/// As a run of the program that was killed left it.
void TestUnsavedOffer::keep(const QList<KeptWork> &works)
{
    UnsavedStore store(m_folder);
    for (const KeptWork &work : works)
        QVERIFY2(store.keep(work), qPrintable(store.errorString()));
}

void TestUnsavedOffer::keep(const KeptWork &work)
{
    keep(QList<KeptWork>() << work);
}

void TestUnsavedOffer::makeOffer()
{
    m_offer.reset(new UnsavedOffer(m_folder, m_work.data(), m_questioner.data()));
    UnsavedOffer::Program program;
    program.window = m_program->window();
    program.isBusy = [this] { return m_isBusy; };
    program.noteNew = [this] { ++m_newPrograms; };
    m_offer->setProgram(program);
    m_offer->addRows("teach", m_teach.data());
    m_offer->addRows("variables", m_variables.data());
    m_told.reset(new QSignalSpy(m_offer.data(), SIGNAL(told(QString, Message::Tone, QString))));
    m_ended.reset(new QSignalSpy(m_offer.data(), SIGNAL(ended())));
}

/// Looks and asks; back when all was answered.
void TestUnsavedOffer::offer()
{
    makeOffer();
    m_offer->start();
    QTRY_COMPARE(m_ended->size(), 1);
}

void TestUnsavedOffer::answer(int first, int second, int third)
{
    m_questioner->answers = QList<int>() << first << second << third;
}

QStringList TestUnsavedOffer::lines(int question) const
{
    return m_questioner->asked.value(question).things;
}

QStringList TestUnsavedOffer::sessions() const
{
    return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

QString TestUnsavedOffer::told(int number) const
{
    return m_told->value(number).value(0).toString();
}

static KeptWork work(const QString &subject, const QString &path)
{
    KeptWork work;
    work.subject = subject;
    work.head.path = path;
    work.time = QDateTime(QDate(2026, 3, 4), QTime(12, 31));
    return work;
}

static KeptWork program(const QString &text, const QString &name = QString("coil.cnc"))
{
    KeptWork kept =
        work("program", name.isEmpty() ? QString() : FilarixTest::programDir() + '/' + name);
    kept.text = text;
    kept.head.cursor = 2;
    return kept;
}

static KeptWork rows(const QString &subject, const QString &path, const QStringList &values)
{
    SomeRows some;
    some.show(values);
    KeptWork kept = work(subject, path);
    kept.rows = some.rows();
    return kept;
}

void TestUnsavedOffer::nothingIsAskedWithoutWork()
{
    offer();
    QVERIFY(m_questioner->asked.isEmpty());
    QVERIFY(!QFileInfo(m_folder).exists());
    QVERIFY(m_told->isEmpty());
}

void TestUnsavedOffer::workComesBack()
{
    writeFile(programDir() + "/coil.cnc", "G01 X1\nG01 X2\n");
    const QString taughtPath = home() + "/hmi/other.teach";
    const KeptWork taught = rows("teach", taughtPath,
                                 QStringList() << "1"
                                               << "2"
                                               << "3");
    const KeptWork variables = rows("variables", QString(), QStringList() << "4711");
    keep(QList<KeptWork>() << program("G01 X1\nG04\nG01 X2\n") << taught << variables);
    const QString old = sessions().first();
    answer(BringBack);
    offer();
    QCOMPARE(m_questioner->asked.size(), 1);
    QCOMPARE(m_questioner->asked.first().answers.size(), 3);
    QCOMPARE(lines(), QStringList() << "coil.cnc, 2026-03-04 12:31, lines: 4"
                                    << "other.teach, 2026-03-04 12:31, rows: 3"
                                    << "New program, 2026-03-04 12:31, rows: 1");
    QCOMPARE(text(), QString("G01 X1\nG04\nG01 X2\n"));
    QCOMPARE(openFile(), QString(programDir() + "/coil.cnc"));
    QVERIFY(isModified());
    QCOMPARE(m_program->editor()->textCursor().position(), 2);
    QVERIFY(m_teach->rows() == taught.rows);
    QCOMPARE(m_teach->path, taughtPath);
    QVERIFY(m_variables->rows() == variables.rows);
    QCOMPARE(m_told->size(), 3);
    QCOMPARE(m_newPrograms, 0);
    // Kept by this run, and by this run alone.
    QCOMPARE(sessions().size(), 1);
    QVERIFY(!sessions().contains(old));
    QCOMPARE(QDir(m_folder + '/' + sessions().first()).entryList(QStringList("*.kept")).size(), 3);
    // The file is as it was.
    QCOMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G01 X1\nG01 X2\n"));
}

void TestUnsavedOffer::undoGoesNoFurtherThanTheFile()
{
    writeFile(programDir() + "/coil.cnc", QByteArray("G01 X1\n").repeated(600));
    const QString text = QString("G01 X1\n").repeated(599);
    keep(program(text + "M30\n"));
    answer(BringBack);
    offer();
    QCOMPARE(this->text(), QString(text + "M30\n"));
    for (int i = 0; i < 100; ++i)
        m_program->editor()->undo();
    QVERIFY(this->text().startsWith(text));
}

void TestUnsavedOffer::laterIsOfferedAgain()
{
    keep(program("G01\n"));
    for (int i = 1; i <= 2; ++i) {
        offer();
        QCOMPARE(m_questioner->asked.size(), i);
        QCOMPARE(sessions().size(), 1);
        QCOMPARE(text(), QString());
    }
}

void TestUnsavedOffer::answerThatIsNoneMeansLater()
{
    keep(program("G01\n"));
    answer(7);
    offer();
    QCOMPARE(sessions().size(), 1);
    QCOMPARE(text(), QString());
}

void TestUnsavedOffer::thrownAwayOnlyWhenAskedTwice_data()
{
    QTest::addColumn<bool>("isMeant");
    QTest::newRow("meant") << true;
    QTest::newRow("slipped") << false;
}

void TestUnsavedOffer::thrownAwayOnlyWhenAskedTwice()
{
    QFETCH(bool, isMeant);
    keep(program("G01\n"));
    answer(ThrowAway, isMeant ? 1 : 0, Later);
    offer();
    QVERIFY(m_questioner->asked.at(1).text.contains("for good"));
    if (isMeant)
        QTRY_VERIFY(sessions().isEmpty());
    else
        QCOMPARE(sessions().size(), 1);
    QCOMPARE(text(), QString());
}

void TestUnsavedOffer::slippedThrowAwayAsksTheFirstQuestionAgain()
{
    keep(program("G01\n"));
    answer(ThrowAway, 0, BringBack);
    offer();
    QCOMPARE(m_questioner->asked.size(), 3);
    QCOMPARE(lines(2), lines(0));
    QCOMPARE(text(), QString("G01\n"));
}

void TestUnsavedOffer::programWhoseFileIsGone()
{
    keep(program("G01\n"));
    answer(BringBack);
    offer();
    QCOMPARE(text(), QString("G01\n"));
    QVERIFY(isModified());
    QVERIFY(openFile().isEmpty());
    QCOMPARE(m_newPrograms, 1);
    QCOMPARE(m_told->size(), 1);
    QVERIFY(told(0).contains("coil.cnc is not there any more"));
    QVERIFY(!QFileInfo(programDir() + "/coil.cnc").exists());
}

void TestUnsavedOffer::programWhoseFileHasChanged()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    keep(program("G02\n"));
    writeFile(programDir() + "/coil.cnc", "G03 by somebody else\n");
    answer(BringBack);
    offer();
    QCOMPARE(text(), QString("G02\n"));
    QVERIFY(isModified());
    QVERIFY(told(0).contains("The file has changed"));
    QCOMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G03 by somebody else\n"));
}

// Save must not put the front part in the place of the whole.
void TestUnsavedOffer::frontPartOfAProgramBecomesANewOne()
{
    writeFile(programDir() + "/coil.cnc", "G01\nG02\nG03\n");
    KeptWork kept = program("G01\nx");
    kept.head.state = UnsavedOffer::headOf(m_program->window(), true).state;
    keep(kept);
    answer(BringBack);
    offer();
    QCOMPARE(text(), QString("G01\nx"));
    QVERIFY(openFile().isEmpty());
    QVERIFY(told(0).contains("had not been loaded whole"));
}

void TestUnsavedOffer::headOfAFrontPartSaysSo()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    QVERIFY(ProgramOpener(m_program->window()).open(programDir() + "/coil.cnc"));
    m_program->editor()->moveCursor(QTextCursor::End);
    const KeptHead whole = UnsavedOffer::headOf(m_program->window(), false);
    QCOMPARE(whole.path, QString(programDir() + "/coil.cnc"));
    QCOMPARE(whole.cursor, 4);
    QVERIFY(whole.state.isEmpty());
    QVERIFY(!UnsavedOffer::headOf(m_program->window(), true).state.isEmpty());
}

void TestUnsavedOffer::programWithoutAFile()
{
    keep(program("G01\n", QString()));
    answer(BringBack);
    offer();
    QVERIFY(lines().first().startsWith("New program, "));
    QCOMPARE(text(), QString("G01\n"));
    QVERIFY(isModified());
}

void TestUnsavedOffer::newProgramHasNothingOfTheLastOne()
{
    ScriptQuestioner none;
    ProgramGuard guard(m_program->window(), programDir(), &none);
    writeFile(programDir() + "/coil.cnc", QByteArray("G01 X1 ; comment\n\n").repeated(600));
    ProgramOpener opener(m_program->window(), [&guard] { return guard.isBusy(); });
    QVERIFY(opener.open(programDir() + "/coil.cnc"));
    QCOMPARE(int(guard.state().kind), int(ProgramState::Cleaned));
    keep(program("G99\n", QString()));
    answer(BringBack);
    makeOffer();
    UnsavedOffer::Program program;
    program.window = m_program->window();
    program.isBusy = [&guard] { return guard.isBusy(); };
    program.noteNew = [&guard] { guard.noteNewProgram(); };
    m_offer->setProgram(program);
    m_offer->start();
    QTRY_COMPARE(m_ended->size(), 1);
    QCOMPARE(text(), QString("G99\n"));
    QCOMPARE(int(guard.state().kind), int(ProgramState::Plain));
    m_offer.reset();
}

// The operator was faster than the question, and does not want to lose that.
void TestUnsavedOffer::operatorsOwnChangesStay()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    QVERIFY(ProgramOpener(m_program->window()).open(programDir() + "/coil.cnc"));
    keep(program("G02\n"));
    m_program->window()->insertLine("G99");
    const QString own = text();
    answer(BringBack);
    ModalDriver driver;
    driver.press(QMessageBox::Cancel);
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(text(), own);
    QVERIFY(m_program->document()->isUndoAvailable());
    QVERIFY(told(0).contains("coil.cnc was not brought back"));
    m_offer.reset();
    // Both are there: this run's, and the one of before.
    QTRY_COMPARE(sessions().size(), 2);
}

void TestUnsavedOffer::operatorsOwnRowsStay()
{
    keep(rows("variables", QString(), QStringList("4711")));
    m_variables->show(QStringList("own"));
    const QList<QStringList> own = m_variables->rows();
    answer(BringBack);
    offer();
    QVERIFY(m_variables->rows() == own);
    QVERIFY(told(0).contains("was not brought back"));
}

void TestUnsavedOffer::startWhenLongEnough()
{
    if (m_program->document()->blockCount() < 1000)
        return;
    disconnect(m_program->document(), SIGNAL(contentsChanged()), this, nullptr);
    m_offer->start();
}

// What is brought back into a program that is being loaded would be mixed with it, and dropped.
void TestUnsavedOffer::programThatIsLoadedComesFirst()
{
    writeFile(programDir() + "/long.cnc", QByteArray("G01 X1\n").repeated(100000));
    keep(program("G99\n", QString()));
    makeOffer();
    connect(m_program->document(), SIGNAL(contentsChanged()), this, SLOT(startWhenLongEnough()));
    answer(BringBack);
    ProgramOpener(m_program->window()).open(programDir() + "/long.cnc");
    QTRY_COMPARE(m_ended->size(), 1);
    QCOMPARE(text(), QString("G99\n"));
    QVERIFY(isModified());
    QVERIFY(openFile().isEmpty());
}

void TestUnsavedOffer::busyHostIsNotAsked()
{
    keep(program("G01\n"));
    m_isBusy = true;
    makeOffer();
    m_offer->start();
    // Longer than it takes to look, and to look again.
    QTest::qWait(400);
    QVERIFY(m_questioner->asked.isEmpty());
    m_isBusy = false;
    QTRY_COMPARE(m_ended->size(), 1);
    QCOMPARE(m_questioner->asked.size(), 1);
}

void TestUnsavedOffer::rowsThatAreLoadedComeFirst()
{
    keep(rows("teach", home() + "/hmi/program.teach", QStringList("1")));
    m_teach->isToCome = true;
    makeOffer();
    m_offer->start();
    QTest::qWait(400);
    QVERIFY(m_questioner->asked.isEmpty());
    m_teach->isToCome = false;
    QTRY_COMPARE(m_ended->size(), 1);
    QCOMPARE(m_questioner->asked.size(), 1);
}

void TestUnsavedOffer::savedProgramIsNotOffered()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    keep(program("G01\n"));
    offer();
    QVERIFY(m_questioner->asked.isEmpty());
    QVERIFY(sessions().isEmpty());
}

void TestUnsavedOffer::newestSessionComesFirst()
{
    keep(program("G01\n", "one.cnc"));
    // Sessions are told apart by the millisecond.
    QTest::qWait(5);
    keep(program("G02\n", "two.cnc"));
    QCOMPARE(sessions().size(), 2);
    answer(Later, BringBack);
    offer();
    QVERIFY(lines().first().startsWith("two.cnc"));
    QCOMPARE(text(), QString("G01\n"));
    // The one that waits, and the one that this run keeps.
    QCOMPARE(sessions().size(), 2);
}

void TestUnsavedOffer::workThatCannotBeReadIsToldAndPutAside()
{
    const KeptWork variables = rows("variables", QString(), QStringList("4711"));
    keep(QList<KeptWork>() << program("G01\n") << variables);
    const QString path = m_folder + '/' + sessions().first() + "/program.kept";
    QByteArray bytes = readFile(path);
    bytes[bytes.size() / 2] = char(~bytes.at(bytes.size() / 2));
    writeFile(path, bytes);
    answer(BringBack);
    offer();
    QCOMPARE(m_told->size(), 2);
    QVERIFY(told(0).contains("program.unreadable"));
    QCOMPARE(readFile(QString(path).replace(".kept", ".unreadable")), bytes);
    QVERIFY(m_variables->rows() == variables.rows);
    // Told once.
    offer();
    QVERIFY(m_told->isEmpty());
}

void TestUnsavedOffer::rowsThatAreNoneAreRefused()
{
    KeptWork taught = work("teach", "/etc/passwd");
    taught.rows << QStringList();
    keep(taught);
    const QString path = m_teach->path;
    answer(BringBack);
    offer();
    QVERIFY(m_teach->rows().isEmpty());
    QCOMPARE(m_teach->path, path);
    QCOMPARE(m_told->size(), 1);
    QCOMPARE(sessions().size(), 1);
}

// A host that has another program started in its place must not lose what that one keeps.
void TestUnsavedOffer::workOfAListThatIsNotHereStays()
{
    keep(QList<KeptWork>() << program("G01\n") << rows("elsewhere", QString(), QStringList("1")));
    answer(ThrowAway, 1);
    offer();
    QCOMPARE(lines().size(), 1);
    const QString folder = m_folder + '/' + sessions().first();
    QTRY_VERIFY(!QFileInfo(folder + "/program.kept").exists());
    QVERIFY(QFileInfo(folder + "/elsewhere.kept").exists());
    m_questioner->asked.clear();
    offer();
    QVERIFY(m_questioner->asked.isEmpty());
    QVERIFY(QFileInfo(folder + "/elsewhere.kept").exists());
}

// A pipe in the place of the folder, and one in the place of a file.
void TestUnsavedOffer::hangingFolderHoldsNothingUp()
{
    keep(program("G01\n"));
    const QByteArray path =
        QFile::encodeName(m_folder + '/' + sessions().first() + "/program.kept");
    QVERIFY(QFile::remove(QFile::decodeName(path)));
    QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    offer();
    QCOMPARE(m_told->size(), 1);
    m_offer.reset();
    emptyFolder(m_folder);
    QVERIFY(QDir().rmdir(m_folder));
    QCOMPARE(::mkfifo(QFile::encodeName(m_folder).constData(), 0600), 0);
    offer();
    QVERIFY(m_questioner->asked.isEmpty());
    QVERIFY(m_told->isEmpty());
}

FILARIX_TEST_MAIN(TestUnsavedOffer)
#include "tst_unsavedoffer.moc"
