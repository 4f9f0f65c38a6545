// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "devicelog.h"
#include "filarixtest.h"
#include "guards/programguard.h"
#include "look/panelkey.h"
#include "modaldriver.h"
#include "programs/programopener.h"
#include "programs/unsavedoffer.h"
#include "programs/unsavedstore.h"
#include "programs/unsavedwork.h"
#include "screens/machinedata.h"
#include "screens/programscreen.h"
#include "screens/taughtprogram.h"
#include "screens/teachscreen.h"
#include "screens/unsavedquestion.h"
#include "screens/variablesscreen.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTextDocument>
#include <QTimer>

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
    void laterIsOfferedAgain_data();
    void laterIsOfferedAgain();
    void thrownAwayOnlyWhenAskedTwice_data();
    void thrownAwayOnlyWhenAskedTwice();
    void programWhoseFileIsGone();
    void programWhoseFileHasChanged();
    void frontPartOfAProgramBecomesANewOne();
    void programWithoutAFile();
    void newProgramHasNothingOfTheLastOne();
    void operatorsOwnChangesStay();
    void programThatIsLoadedComesFirst();
    void savedProgramIsNotOffered();
    void newestSessionComesFirst();
    void workThatCannotBeReadIsToldAndPutAside();
    void rowsThatAreNoneAreRefused();
    void hangingFolderHoldsNothingUp();

private:
    void keep(const QList<KeptWork> &works);
    void offer();
    QStringList sessions() const;
    QString text() const;

    QString m_folder;
    MachineData *m_machine = nullptr;
    ProgramScreen *m_program = nullptr;
    TeachScreen *m_teach = nullptr;
    VariablesScreen *m_variables = nullptr;
    UnsavedWork *m_work = nullptr;
    QScopedPointer<UnsavedOffer> m_offer;
    QStringList m_told;
};

void TestUnsavedOffer::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    qRegisterMetaType<Message::Tone>("Message::Tone");
    const QString own = home() + "/hmi";
    m_folder = own + "/unsaved";
    QVERIFY(QDir().mkpath(home() + "/plc"));
    m_machine = new MachineData;
    m_program = new ProgramScreen(90, home() + "/plc", own, m_machine);
    m_teach = new TeachScreen(QSize(480, 800), own, m_machine);
    m_variables = new VariablesScreen(QSize(480, 800), own);
    m_work = new UnsavedWork(m_folder);
    m_work->setDelay(50);
    m_work->watchProgram(m_program->editor()->document(),
                         [this] { return UnsavedOffer::headOf(m_program); });
    m_work->watchRows("teach", m_teach, [this] {
        KeptHead head;
        head.path = m_teach->filePath();
        return head;
    });
    m_work->watchRows("variables", m_variables, [] { return KeptHead(); });
    m_told.clear();
    QTRY_VERIFY(!m_teach->isLoading());
    QTRY_VERIFY(!m_variables->isLoading());
}

void TestUnsavedOffer::cleanup()
{
    m_offer.reset();
    delete m_work;
    delete m_variables;
    delete m_teach;
    delete m_program;
    delete m_machine;
    FilarixTest::cleanup();
}

/// As a run of the program that was killed left it.
void TestUnsavedOffer::keep(const QList<KeptWork> &works)
{
    UnsavedStore store(m_folder);
    for (const KeptWork &work : works)
        QVERIFY2(store.keep(work), qPrintable(store.errorString()));
}

/// Looks and asks; back when all was answered.
void TestUnsavedOffer::offer()
{
    m_offer.reset(new UnsavedOffer(m_folder, {m_program, m_teach, m_variables}, m_work));
    connect(m_offer.data(), &UnsavedOffer::told, this,
            [this](const QString &text) { m_told.append(text); });
    QSignalSpy ended(m_offer.data(), SIGNAL(ended()));
    m_offer->start();
    QTRY_COMPARE(ended.size(), 1);
}

QStringList TestUnsavedOffer::sessions() const
{
    return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

QString TestUnsavedOffer::text() const
{
    return m_program->editor()->document()->toRawText().replace(QChar::ParagraphSeparator, '\n');
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

static void press(ModalDriver *driver, const char *key, QStringList *lines = nullptr)
{
    driver->then([key, lines](QWidget *dialog) {
        const QList<QLabel *> labels = dialog->findChildren<QLabel *>("work");
        for (QLabel *label : labels) {
            if (lines)
                lines->append(label->text());
        }
        QTest::mouseClick(dialog->findChild<QPushButton *>(key), Qt::LeftButton);
    });
}

/// The same for the question alone: the program is opened through a dialog that nobody sees, and a
/// ModalDriver would answer that one, too.
static void pressOnce(QObject *owner, const char *key, QStringList *lines = nullptr)
{
    QTimer *timer = new QTimer(owner);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, key, lines] {
        UnsavedQuestion *question =
            qobject_cast<UnsavedQuestion *>(QApplication::activeModalWidget());
        if (!question)
            return;
        timer->deleteLater();
        timer->stop();
        const QList<QLabel *> labels = question->findChildren<QLabel *>("work");
        for (QLabel *label : labels) {
            if (lines)
                lines->append(label->text());
        }
        QTest::mouseClick(question->findChild<QPushButton *>(key), Qt::LeftButton);
    });
    timer->start(1);
}

void TestUnsavedOffer::nothingIsAskedWithoutWork()
{
    ModalDriver driver;
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(!QFileInfo(m_folder).exists());
    QVERIFY(m_told.isEmpty());
}

void TestUnsavedOffer::workComesBack()
{
    writeFile(programDir() + "/coil.cnc", "G01 X1\nG01 X2\n");
    KeptWork taught = work("teach", m_teach->filePath());
    taught.rows = TaughtProgram::sample(*m_machine).mid(0, 5);
    KeptWork variables = work("variables", QString());
    variables.rows = m_variables->rows();
    variables.rows[3].last() = "4711";
    keep({program("G01 X1\nG04\nG01 X2\n"), taught, variables});
    const QString old = sessions().first();
    QStringList lines;
    pressOnce(this, "bringBack", &lines);
    offer();
    QCOMPARE(lines, QStringList() << "coil.cnc, 2026-03-04 12:31, lines: 4"
                                  << "program.teach, 2026-03-04 12:31, instructions: 5"
                                  << QString("Variables, 2026-03-04 12:31, values: %1")
                                         .arg(variables.rows.size()));
    QCOMPARE(text(), QString("G01 X1\nG04\nG01 X2\n"));
    QCOMPARE(m_program->programWindow()->getCurrentFile(), programDir() + "/coil.cnc");
    QCOMPARE(m_program->title(), QString("coil.cnc"));
    QVERIFY(m_program->hasChanges());
    QCOMPARE(m_program->editor()->textCursor().position(), 2);
    QCOMPARE(m_teach->rows(), taught.rows);
    QVERIFY(m_teach->hasChanges());
    QCOMPARE(m_variables->rows(), variables.rows);
    QVERIFY(m_variables->hasChanges());
    QCOMPARE(m_told.size(), 3);
    // Kept by this run, and by this run alone.
    QCOMPARE(sessions().size(), 1);
    QVERIFY(!sessions().contains(old));
    QCOMPARE(QDir(m_folder + '/' + sessions().first()).entryList({"*.kept"}).size(), 3);
    // The files are as they were.
    QCOMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G01 X1\nG01 X2\n"));
    QVERIFY(!QFileInfo(m_teach->filePath()).exists());
}

void TestUnsavedOffer::undoGoesNoFurtherThanTheFile()
{
    writeFile(programDir() + "/coil.cnc", QByteArray("G01 X1\n").repeated(600));
    const QString text = QString("G01 X1\n").repeated(599);
    keep({program(text + "M30\n")});
    pressOnce(this, "bringBack");
    offer();
    QCOMPARE(this->text(), text + "M30\n");
    for (int i = 0; i < 100; ++i)
        m_program->editor()->undo();
    QVERIFY(this->text().startsWith(text));
}

void TestUnsavedOffer::laterIsOfferedAgain_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"key", "closed", "Return"})
        QTest::newRow(how) << QString(how);
}

void TestUnsavedOffer::laterIsOfferedAgain()
{
    QFETCH(QString, how);
    keep({program("G01\n")});
    for (int i = 0; i < 2; ++i) {
        ModalDriver driver;
        driver.then([how](QWidget *dialog) {
            if (how == "key")
                QTest::mouseClick(dialog->findChild<QPushButton *>("later"), Qt::LeftButton);
            else if (how == "closed")
                dialog->close();
            else
                QTest::keyClick(dialog, Qt::Key_Return);
        });
        offer();
        QVERIFY2(driver.finished(), driver.report());
        QCOMPARE(sessions().size(), 1);
        QCOMPARE(text(), QString());
    }
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
    keep({program("G01\n")});
    ModalDriver driver;
    driver.then([](QWidget *dialog) {
        QTimer::singleShot(0, dialog->findChild<QPushButton *>("throwAway"), &QPushButton::click);
    });
    driver.press(isMeant ? QMessageBox::Yes : QMessageBox::No);
    if (!isMeant)
        driver.reject();
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(driver.boxes().first().defaultButton, QMessageBox::No);
    if (isMeant)
        QTRY_VERIFY(sessions().isEmpty());
    else
        QCOMPARE(sessions().size(), 1);
    QCOMPARE(text(), QString());
}

void TestUnsavedOffer::programWhoseFileIsGone()
{
    keep({program("G01\n")});
    ModalDriver driver;
    press(&driver, "bringBack");
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(text(), QString("G01\n"));
    QVERIFY(m_program->hasChanges());
    QVERIFY(m_program->programWindow()->getCurrentFile().isEmpty());
    QCOMPARE(m_told.size(), 1);
    QVERIFY(m_told.first().contains("coil.cnc is not there any more"));
    QVERIFY(!QFileInfo(programDir() + "/coil.cnc").exists());
}

void TestUnsavedOffer::programWhoseFileHasChanged()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    keep({program("G02\n")});
    writeFile(programDir() + "/coil.cnc", "G03 by somebody else\n");
    pressOnce(this, "bringBack");
    offer();
    QCOMPARE(text(), QString("G02\n"));
    QVERIFY(m_program->hasChanges());
    QVERIFY(m_told.first().contains("The file has changed"));
    QCOMPARE(readFile(programDir() + "/coil.cnc"), QByteArray("G03 by somebody else\n"));
}

// Save must not put the front part in the place of the whole.
void TestUnsavedOffer::frontPartOfAProgramBecomesANewOne()
{
    writeFile(programDir() + "/coil.cnc", "G01\nG02\nG03\n");
    KeptWork kept = program("G01\nx");
    kept.head.state.insert("incomplete", QString());
    keep({kept});
    ModalDriver driver;
    press(&driver, "bringBack");
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(text(), QString("G01\nx"));
    QVERIFY(m_program->programWindow()->getCurrentFile().isEmpty());
    QVERIFY(m_told.first().contains("had not been loaded whole"));
}

void TestUnsavedOffer::programWithoutAFile()
{
    keep({program("G01\n", QString())});
    QStringList lines;
    ModalDriver driver;
    press(&driver, "bringBack", &lines);
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(lines.first().startsWith("New program, "));
    QCOMPARE(text(), QString("G01\n"));
    QVERIFY(m_program->hasChanges());
}

void TestUnsavedOffer::newProgramHasNothingOfTheLastOne()
{
    writeFile(programDir() + "/coil.cnc", QByteArray("G01 X1 ; comment\n\n").repeated(600));
    ProgramOpener opener(m_program->programWindow(),
                         [this] { return m_program->guard()->isBusy(); });
    QVERIFY(opener.open(programDir() + "/coil.cnc"));
    QCOMPARE(int(m_program->guard()->state().kind), int(ProgramState::Cleaned));
    keep({program("G99\n", QString())});
    pressOnce(this, "bringBack");
    offer();
    QCOMPARE(text(), QString("G99\n"));
    QCOMPARE(int(m_program->guard()->state().kind), int(ProgramState::Plain));
}

// The operator was faster than the question, and does not want to lose that.
void TestUnsavedOffer::operatorsOwnChangesStay()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    ProgramOpener opener(m_program->programWindow(),
                         [this] { return m_program->guard()->isBusy(); });
    QVERIFY(opener.open(programDir() + "/coil.cnc"));
    keep({program("G02\n")});
    m_program->programWindow()->insertLine("G99");
    const QString own = text();
    ModalDriver driver;
    press(&driver, "bringBack");
    driver.press(QMessageBox::Cancel);
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(text(), own);
    QVERIFY(m_program->editor()->document()->isUndoAvailable());
    QVERIFY(m_told.first().contains("coil.cnc was not brought back"));
    m_offer.reset();
    // Both are there: this run's, and the one of before.
    QTRY_COMPARE(sessions().size(), 2);
}

// What is brought back into a program that is being loaded would be mixed with it, and dropped.
void TestUnsavedOffer::programThatIsLoadedComesFirst()
{
    writeFile(programDir() + "/long.cnc", QByteArray("G01 X1\n").repeated(100000));
    keep({program("G99\n", QString())});
    m_offer.reset(new UnsavedOffer(m_folder, {m_program, m_teach, m_variables}, m_work));
    QSignalSpy ended(m_offer.data(), SIGNAL(ended()));
    QTextDocument *document = m_program->editor()->document();
    QMetaObject::Connection loading;
    loading = connect(document, &QTextDocument::contentsChanged, this, [&] {
        if (document->blockCount() < 1000)
            return;
        disconnect(loading);
        m_offer->start();
    });
    pressOnce(this, "bringBack");
    ProgramOpener opener(m_program->programWindow(),
                         [this] { return m_program->guard()->isBusy(); });
    opener.open(programDir() + "/long.cnc");
    QTRY_COMPARE(ended.size(), 1);
    QCOMPARE(text(), QString("G99\n"));
    QVERIFY(m_program->hasChanges());
    QVERIFY(m_program->programWindow()->getCurrentFile().isEmpty());
}

void TestUnsavedOffer::savedProgramIsNotOffered()
{
    writeFile(programDir() + "/coil.cnc", "G01\n");
    keep({program("G01\n")});
    ModalDriver driver;
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(sessions().isEmpty());
}

void TestUnsavedOffer::newestSessionComesFirst()
{
    keep({program("G01\n", "one.cnc")});
    QTest::qWait(5);
    keep({program("G02\n", "two.cnc")});
    QCOMPARE(sessions().size(), 2);
    QStringList lines;
    ModalDriver driver;
    press(&driver, "later", &lines);
    press(&driver, "bringBack", &lines);
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(lines.first().startsWith("two.cnc"));
    QCOMPARE(text(), QString("G01\n"));
    // The one that waits, and the one that this run keeps.
    QCOMPARE(sessions().size(), 2);
}

void TestUnsavedOffer::workThatCannotBeReadIsToldAndPutAside()
{
    KeptWork variables = work("variables", QString());
    variables.rows = m_variables->rows();
    variables.rows[0].last() = "4711";
    keep({program("G01\n"), variables});
    const QString path = m_folder + '/' + sessions().first() + "/program.kept";
    QByteArray bytes = readFile(path);
    bytes[bytes.size() / 2] = char(~bytes.at(bytes.size() / 2));
    writeFile(path, bytes);
    ModalDriver driver;
    press(&driver, "bringBack");
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_told.size(), 2);
    QVERIFY(m_told.first().contains("program.unreadable"));
    QCOMPARE(readFile(QString(path).replace(".kept", ".unreadable")), bytes);
    QVERIFY(m_variables->hasChanges());
    // Told once.
    m_told.clear();
    ModalDriver second;
    offer();
    QVERIFY2(second.finished(), second.report());
    QVERIFY(m_told.isEmpty());
}

void TestUnsavedOffer::rowsThatAreNoneAreRefused()
{
    KeptWork taught = work("teach", "/etc/passwd");
    taught.rows = {{"MJ"}};
    KeptWork variables = work("variables", QString());
    variables.rows = {{}, {"DataEditor", "1", "", "no such variable", "1"}};
    keep({taught, variables});
    const QList<QStringList> before = m_teach->rows();
    ModalDriver driver;
    press(&driver, "bringBack");
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_teach->rows(), before);
    QVERIFY(!m_teach->hasChanges());
    QVERIFY(!m_variables->hasChanges());
    QCOMPARE(m_told.size(), 2);
    QCOMPARE(sessions().size(), 1);
}

// A pipe in the place of the folder, and one in the place of a file.
void TestUnsavedOffer::hangingFolderHoldsNothingUp()
{
    keep({program("G01\n")});
    const QByteArray path =
        QFile::encodeName(m_folder + '/' + sessions().first() + "/program.kept");
    QVERIFY(QFile::remove(QFile::decodeName(path)));
    QCOMPARE(::mkfifo(path.constData(), 0600), 0);
    ModalDriver driver;
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QCOMPARE(m_told.size(), 1);
    m_offer.reset();
    QVERIFY(QDir(m_folder).removeRecursively());
    QCOMPARE(::mkfifo(QFile::encodeName(m_folder).constData(), 0600), 0);
    m_told.clear();
    offer();
    QVERIFY2(driver.finished(), driver.report());
    QVERIFY(m_told.isEmpty());
}

FILARIX_TEST_MAIN(TestUnsavedOffer)
#include "tst_unsavedoffer.moc"
