// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Holds WMMainWindow: opening, saving and removing files.

#include "filarixtest.h"
#include "marktranslator.h"
#include "modaldriver.h"
#include "openwindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTextDocument>

#include <sys/stat.h>

namespace {

const char stored[] = "G01 X1\nM2";

QString pathOf(const QString &name)
{
    return FilarixTest::programDir() + QLatin1Char('/') + name;
}

QString writeProgram(const QString &name, const QByteArray &bytes = stored)
{
    FilarixTest::writeFile(pathOf(name), bytes);
    return pathOf(name);
}

/// What the toolkit says of a file that cannot be opened.
QString openError(const QString &path, QIODevice::OpenMode mode)
{
    QFile file(path);
    return file.open(mode | QIODevice::Text) ? QString() : file.errorString();
}

typedef bool (*Command)(OpenWindow &);

bool runNew(OpenWindow &window)
{
    return QMetaObject::invokeMethod(&window, "newFile");
}
bool runOpen(OpenWindow &window)
{
    return QMetaObject::invokeMethod(&window, "open");
}
bool runDownload(OpenWindow &window)
{
    bool result = false;
    return QMetaObject::invokeMethod(&window, "download", Q_RETURN_ARG(bool, result)) && result;
}
bool runRemove(OpenWindow &window)
{
    return QMetaObject::invokeMethod(&window, "remove");
}
bool runSave(OpenWindow &window)
{
    bool result = false;
    return QMetaObject::invokeMethod(&window, "save", Q_RETURN_ARG(bool, result)) && result;
}
bool runSaveAs(OpenWindow &window)
{
    bool result = false;
    return QMetaObject::invokeMethod(&window, "saveAs", Q_RETURN_ARG(bool, result)) && result;
}

/// Everything that a command may change and that an operator or a host may see.
struct State
{
    explicit State(const OpenWindow &window)
        : text(window.documentText())
        , modified(window.isDocumentModified())
        , label(window.m_fileLabel->text())
        , title(window.windowTitle())
        , file(window.getCurrentFile())
        , openFile(window.m_curFile)
    {}

    bool operator==(const State &other) const
    {
        return text == other.text && modified == other.modified && label == other.label
               && title == other.title && file == other.file && openFile == other.openFile;
    }

    QString text;
    bool modified;
    QString label;
    QString title;
    QString file;
    QString openFile;
};

/// Answers a picker, and checks its title.
class Operator : public ModalDriver
{
public:
    void pick(const char *title, const QString &name)
    {
        then([this, title, name](QWidget *shown) {
            WFileDialog *dialog = checked(shown, title);
            if (!dialog)
                return;
            dialog->nameEdit->setText(name);
            dialog->applyButton->click();
        });
    }
    void pickNothing(const char *title)
    {
        then([this, title](QWidget *shown) {
            if (WFileDialog *dialog = checked(shown, title))
                dialog->cancelButton->click();
        });
    }

private:
    static WFileDialog *checked(QWidget *shown, const char *title)
    {
        WFileDialog *dialog = qobject_cast<WFileDialog *>(shown);
        if (!dialog || dialog->windowTitle() != QLatin1String(title) || dialog->parentWidget()) {
            qWarning("not the picker \"%s\": \"%s\"", title, qPrintable(shown->windowTitle()));
            shown->close();
            return nullptr;
        }
        return dialog;
    }
};

} // namespace

Q_DECLARE_METATYPE(Command)

// After a step that drives dialogs: all of them came up, and no other.
#define VERIFY_DONE(driver) QVERIFY2((driver).finished(), (driver).report())

// The one box that came up.
#define COMPARE_BOX(box, wantedIcon, wantedTitle, wantedText, wantedButtons, wantedDefault)        \
    do {                                                                                           \
        QCOMPARE((box).icon, wantedIcon);                                                          \
        QCOMPARE((box).title, QString(wantedTitle));                                               \
        QCOMPARE((box).text, QString(wantedText));                                                 \
        QCOMPARE(int((box).buttons), int(wantedButtons));                                          \
        QCOMPARE(int((box).defaultButton), int(wantedDefault));                                    \
        QVERIFY(!(box).parent);                                                                    \
    } while (0)

class TestFileCommands : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void unmodifiedDocumentIsNotAskedAbout_data();
    void unmodifiedDocumentIsNotAskedAbout();
    void modifiedDocumentIsAskedAbout_data();
    void modifiedDocumentIsAskedAbout();
    void escapeKeyIsCancel();
    void failedSaveStopsTheCommand_data();
    void failedSaveStopsTheCommand();

    void newFileEmptiesTheWindow();

    void openLoadsTheFile();
    void openGivenUpChangesNothing();
    void openOfAnEmptyNameBlanksTheLabelOnly();
    void openOfAFileThatCannotBeRead_data();
    void openOfAFileThatCannotBeRead();
    void nobodyWaitsForAPipeOrADevice_data();
    void nobodyWaitsForAPipeOrADevice();
    void openOfTheOpenFileAsks_data();
    void openOfTheOpenFileAsks();
    void openOfTheOpenFileThatIsGone();
    void openAfterDiscardBringsBackTheStoredText();
    void openReadsLineEndsAndCharacters_data();
    void openReadsLineEndsAndCharacters();

    void saveStoresTheOpenFile();
    void saveWithoutAFileIsSaveAs();
    void saveAsStoresUnderTheName();
    void saveAsReplacesWithoutAsking();
    void saveAsGivenUpChangesNothing();
    void saveAsWithEmptyNameChangesNothing();
    void saveIntoWhatIsNoFile_data();
    void saveIntoWhatIsNoFile();
    void saveWritesTheDocumentsText_data();
    void saveWritesTheDocumentsText();
    void saveWritesIntoTheFileItself();
    void fullStorageIsNotNoticed();
    void fileIsClosedWhenTheDocumentBecomesClean();

    void removeGivenUpChangesNothing();
    void removeOfWhatIsNotThere_data();
    void removeOfWhatIsNotThere();
    void removeAsksFirst_data();
    void removeAsksFirst();
    void removeOfAnotherFileLeavesTheDocument();
    void removeOfTheOpenFileEmptiesTheWindow();
    void windowMayGoDuringTheQuestionAboutAFile_data();
    void windowMayGoDuringTheQuestionAboutAFile();
    void failedRemovalOfTheOpenFileEmptiesTheWindowToo();
    void failedRemovalOfAnotherFileSaysNothing();

    void downloadOfANeverSavedDocumentCarriesNoPath();
    void downloadCarriesThePath();
    void downloadOfAModifiedDocument_data();
    void downloadOfAModifiedDocument();
    void downloadUnderWayAsksButSendsNothing();

    void messagesAreTranslated();
    void titleShowsTheBareName();

    void windowOpensAtItsDefaultPlace();
    void sizeAndPositionAreStoredOnDestruction();
    void settingsHoldNothingElse();
};

void TestFileCommands::unmodifiedDocumentIsNotAskedAbout_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<bool>("picks");
    QTest::newRow("new") << Command(runNew) << false;
    QTest::newRow("open") << Command(runOpen) << true;
    QTest::newRow("download") << Command(runDownload) << false;
}

void TestFileCommands::unmodifiedDocumentIsNotAskedAbout()
{
    QFETCH(Command, command);
    QFETCH(bool, picks);
    OpenWindow window;
    Operator person;
    if (picks)
        person.pickNothing("Open file");
    QVERIFY(command(window));
    VERIFY_DONE(person);
    QVERIFY(person.boxes().isEmpty());
}

void TestFileCommands::modifiedDocumentIsAskedAbout_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<bool>("picks");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("goesOn");
    const struct
    {
        const char *name;
        Command command;
        bool picks;
    } commands[] = {
        {"new", runNew, false}, {"open", runOpen, true}, {"download", runDownload, false}};
    const struct
    {
        const char *name;
        QMessageBox::StandardButton answer;
        bool goesOn;
    } answers[] = {{"Save", QMessageBox::Save, true},
                   {"Discard", QMessageBox::Discard, true},
                   {"Cancel", QMessageBox::Cancel, false},
                   {"closed", QMessageBox::NoButton, true}};
    for (const auto &command : commands) {
        for (const auto &answer : answers) {
            const QString name = QString::fromLatin1("%1, %2").arg(QLatin1String(command.name),
                                                                   QLatin1String(answer.name));
            QTest::newRow(qPrintable(name))
                << command.command << command.picks << int(answer.answer) << answer.goesOn;
        }
    }
}

void TestFileCommands::modifiedDocumentIsAskedAbout()
{
    QFETCH(Command, command);
    QFETCH(bool, picks);
    QFETCH(int, answer);
    QFETCH(bool, goesOn);
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("changed"));

    Operator person;
    if (answer == QMessageBox::NoButton)
        person.closeBox();
    else
        person.press(QMessageBox::StandardButton(answer));
    if (picks && goesOn)
        person.pickNothing("Open file");
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    QVERIFY(command(window));
    VERIFY_DONE(person);
    QCOMPARE(person.boxes().size(), 1);
    COMPARE_BOX(person.boxes().first(), QMessageBox::Warning, "Application",
                "The document has been modified.\nDo you want to save your changes?",
                QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);

    QCOMPARE(readFile(path), QByteArray(answer == QMessageBox::Save ? "changed" : stored));
    if (command == Command(runNew))
        QCOMPARE(window.documentText(), QString::fromLatin1(goesOn ? "" : "changed"));
    else
        QCOMPARE(window.documentText(), QString("changed"));
    QCOMPARE(downloads.count(), command == Command(runDownload) && goesOn ? 1 : 0);
}

void TestFileCommands::escapeKeyIsCancel()
{
    OpenWindow window;
    window.type(QLatin1String("changed"));
    Operator person;
    person.then([](QWidget *box) { QTest::keyClick(box, Qt::Key_Escape); });
    QVERIFY(runNew(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), QString("changed"));
}

void TestFileCommands::failedSaveStopsTheCommand_data()
{
    QTest::addColumn<Command>("command");
    QTest::newRow("new") << Command(runNew);
    QTest::newRow("open") << Command(runOpen);
    QTest::newRow("download") << Command(runDownload);
}

void TestFileCommands::failedSaveStopsTheCommand()
{
    QFETCH(Command, command);
    QVERIFY(QDir(programDir()).mkdir(QLatin1String("folder")));
    OpenWindow window;
    window.type(QLatin1String("changed"));
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    {
        // The document has no file: saving asks for a name, and that can be given up.
        Operator person;
        person.press(QMessageBox::Save);
        person.pickNothing("Save as");
        const State before(window);
        QVERIFY(command(window));
        VERIFY_DONE(person);
        QVERIFY(State(window) == before);
    }
    Operator person;
    person.press(QMessageBox::Save);
    person.pick("Save as", QLatin1String("folder"));
    person.press(QMessageBox::Ok);
    QVERIFY(command(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), QString("changed"));
    QVERIFY(window.isDocumentModified());
    QCOMPARE(downloads.count(), 0);
}

void TestFileCommands::newFileEmptiesTheWindow()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.m_fileLabel->setText(QLatin1String("a.cnc"));
    Operator person;
    QVERIFY(runNew(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), QString(""));
    QVERIFY(!window.isDocumentModified());
    QVERIFY(!window.m_editor->document()->isUndoAvailable());
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.windowTitle(), QString("untitled.cnc[*] - Application"));
    QVERIFY(!window.isWindowModified());
    QCOMPARE(window.getCurrentFile(), QString());
    QCOMPARE(window.m_curFile, QString());
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList() << "a.cnc");
}

void TestFileCommands::openLoadsTheFile()
{
    if (TestCompat::warnsOfUnmarkedTitles())
        StrictMessages::expect(QLatin1String("does not contain a '[*]' placeholder"));
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.setWindowModified(true);
    Operator person;
    person.pick("Open file", QLatin1String("a.cnc"));
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), QString(stored));
    QVERIFY(!window.isDocumentModified());
    QCOMPARE(window.m_fileLabel->text(), QString("a.cnc"));
    QCOMPARE(window.windowTitle(), QString("a.cnc[*] - Application"));
    QVERIFY(!window.isWindowModified());
    QCOMPARE(window.getCurrentFile(), path);
    QCOMPARE(window.m_curFile, path);
}

void TestFileCommands::openGivenUpChangesNothing()
{
    writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    const State before(window);
    Operator person;
    person.pickNothing("Open file");
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    QVERIFY(State(window) == before);
}

void TestFileCommands::openOfAnEmptyNameBlanksTheLabelOnly()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    State expected(window);
    expected.label = QString();
    Operator person;
    person.pick("Open file", QString());
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    QVERIFY(State(window) == expected);
}

void TestFileCommands::openOfAFileThatCannotBeRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder") << "folder";
    QTest::newRow("a file that is not there") << "none.cnc";
    QTest::newRow("a file without permission") << "secret.cnc";
}

void TestFileCommands::openOfAFileThatCannotBeRead()
{
    QFETCH(QString, name);
    QVERIFY(QDir(programDir()).mkdir(QLatin1String("folder")));
    QVERIFY(QFile::setPermissions(writeProgram(QLatin1String("secret.cnc")), QFile::WriteOwner));
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    Operator person;
    person.pick("Open file", name);
    person.press(QMessageBox::Ok);
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    const QString error = openError(pathOf(name), QIODevice::ReadOnly);
    QVERIFY(!error.isEmpty());
    COMPARE_BOX(person.boxes().first(), QMessageBox::Warning, "Application",
                QLatin1String("Cannot read file ") + pathOf(name) + QLatin1String(":\n") + error
                    + QLatin1String("."),
                QMessageBox::Ok, QMessageBox::Ok);
    QCOMPARE(window.documentText(), QString(""));
    QCOMPARE(window.getCurrentFile(), path);
    QCOMPARE(window.m_curFile, path);
    QCOMPARE(window.windowTitle(), QString("a.cnc[*] - Application"));
    QCOMPARE(window.m_fileLabel->text(), name);
}

void TestFileCommands::nobodyWaitsForAPipeOrADevice_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("a pipe to be read") << "pipe.cnc" << false;
    QTest::newRow("a pipe to be written") << "pipe.cnc" << true;
    QTest::newRow("a link to a pipe") << "link.cnc" << false;
    QTest::newRow("a device to be read") << "device.cnc" << false;
}

void TestFileCommands::nobodyWaitsForAPipeOrADevice()
{
    QFETCH(QString, name);
    QFETCH(bool, isSaved);
    const QByteArray pipe = QFile::encodeName(pathOf("pipe.cnc"));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    QVERIFY(QFile::link(pathOf("pipe.cnc"), pathOf("link.cnc")));
    QVERIFY(QFile::link("/dev/null", pathOf("device.cnc")));
    OpenWindow window;
    if (isSaved)
        window.type("N1");
    Operator person;
    person.pick(isSaved ? "Save as" : "Open file", name);
    person.press(QMessageBox::Ok);
    QCOMPARE(isSaved ? runSaveAs(window) : runOpen(window), !isSaved);
    VERIFY_DONE(person);
    const QString expected = QString("Cannot %1 file %2:\nIt is a device or a pipe, not a file.")
                                 .arg(isSaved ? "write" : "read", pathOf(name));
    COMPARE_BOX(person.boxes().first(), QMessageBox::Warning, "Application", expected,
                QMessageBox::Ok, QMessageBox::Ok);
    QCOMPARE(window.getCurrentFile(), QString());
    QCOMPARE(window.isDocumentModified(), isSaved);
}

void TestFileCommands::openOfTheOpenFileAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("reloads");
    QTest::addColumn<QString>("label");
    QTest::newRow("Yes reloads and leaves the label") << int(QMessageBox::Yes) << true << "label";
    QTest::newRow("Cancel changes nothing") << int(QMessageBox::Cancel) << false << "label";
    QTest::newRow("closed sets the label only") << int(QMessageBox::NoButton) << false << "a.cnc";
}

void TestFileCommands::openOfTheOpenFileAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, reloads);
    QFETCH(QString, label);
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.m_fileLabel->setText(QLatin1String("label"));
    writeProgram(QLatin1String("a.cnc"), "newer");
    State expected(window);
    expected.label = label;
    if (reloads)
        expected.text = QLatin1String("newer");

    Operator person;
    person.pick("Open file", QLatin1String("a.cnc"));
    if (answer == QMessageBox::NoButton)
        person.closeBox();
    else
        person.press(QMessageBox::StandardButton(answer));
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    COMPARE_BOX(person.boxes().first(), QMessageBox::Warning, "Application",
                "The document has been existed.\nDo you want to open it again?",
                QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::NoButton);
    QVERIFY(State(window) == expected);
}

void TestFileCommands::openOfTheOpenFileThatIsGone()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.m_fileLabel->setText(QLatin1String("label"));
    QVERIFY(QFile::remove(path));
    Operator person;
    person.pick("Open file", QLatin1String("a.cnc"));
    person.press(QMessageBox::Yes);
    person.press(QMessageBox::Ok);
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), QString(""));
    QCOMPARE(window.m_fileLabel->text(), QString("label"));
    QCOMPARE(window.getCurrentFile(), path);
}

void TestFileCommands::openAfterDiscardBringsBackTheStoredText()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("changed"));
    Operator person;
    person.press(QMessageBox::Discard);
    person.pick("Open file", QLatin1String("a.cnc"));
    person.press(QMessageBox::Yes);
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), QString(stored));
    QVERIFY(!window.isDocumentModified());
}

void TestFileCommands::openReadsLineEndsAndCharacters_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray("") << "";
    QTest::newRow("no final line end") << QByteArray("a\nb") << "a\nb";
    QTest::newRow("final line end") << QByteArray("a\nb\n") << "a\nb\n";
    QTest::newRow("line ends of another system") << QByteArray("a\r\nb\r\n") << "a\nb\n";
    QTest::newRow("characters of the locale")
        << QByteArray(";\xc3\xa4\xe2\x82\xac") << QString::fromUtf8(";\xc3\xa4\xe2\x82\xac");
    QTest::newRow("comments stay in a short program") << QByteArray("a;c\n;d\n\n") << "a;c\n;d\n\n";
    QTest::newRow("a long program is cleaned")
        << QByteArray("a;c\n;d\n") + QByteArray(500, '\n') << "a";
}

void TestFileCommands::openReadsLineEndsAndCharacters()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    writeProgram(QLatin1String("a.cnc"), bytes);
    OpenWindow window;
    Operator person;
    person.pick("Open file", QLatin1String("a.cnc"));
    QVERIFY(runOpen(window));
    VERIFY_DONE(person);
    QCOMPARE(window.documentText(), text);
    QVERIFY(!window.isDocumentModified());
    // Reading touches nothing.
    QCOMPARE(readFile(pathOf(QLatin1String("a.cnc"))), bytes);
}

void TestFileCommands::saveStoresTheOpenFile()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.m_fileLabel->setText(QLatin1String("label"));
    window.type(QLatin1String("N1\nN2"));
    window.setWindowModified(true);
    Operator person;
    QVERIFY(runSave(window));
    VERIFY_DONE(person);
    QCOMPARE(readFile(path), QByteArray("N1\nN2"));
    QVERIFY(!window.isDocumentModified());
    QVERIFY(!window.isWindowModified());
    QCOMPARE(window.m_fileLabel->text(), QString("label"));
    QCOMPARE(window.windowTitle(), QString("a.cnc[*] - Application"));
    QVERIFY(!QApplication::overrideCursor());
}

void TestFileCommands::saveWithoutAFileIsSaveAs()
{
    OpenWindow window;
    window.type(QLatin1String("N1"));
    {
        Operator person;
        person.pickNothing("Save as");
        const State before(window);
        QVERIFY(!runSave(window));
        VERIFY_DONE(person);
        QVERIFY(State(window) == before);
    }
    Operator person;
    person.pick("Save as", QLatin1String("b"));
    QVERIFY(runSave(window));
    VERIFY_DONE(person);
    QCOMPARE(readFile(pathOf(QLatin1String("b"))), QByteArray("N1"));
    QCOMPARE(window.m_fileLabel->text(), QString("b"));
    QCOMPARE(window.getCurrentFile(), pathOf(QLatin1String("b")));
}

void TestFileCommands::saveAsStoresUnderTheName()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("N1"));
    Operator person;
    person.pick("Save as", QLatin1String("new name"));
    QVERIFY(runSaveAs(window));
    VERIFY_DONE(person);
    QVERIFY(person.boxes().isEmpty());
    // No extension is added.
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList() << "a.cnc"
                                                                      << "new name");
    QCOMPARE(readFile(pathOf(QLatin1String("new name"))), QByteArray("N1"));
    QCOMPARE(readFile(path), QByteArray(stored));
    QCOMPARE(window.m_fileLabel->text(), QString("new name"));
    QCOMPARE(window.windowTitle(), QString("new name[*] - Application"));
    QCOMPARE(window.getCurrentFile(), pathOf(QLatin1String("new name")));
    QVERIFY(!window.isDocumentModified());
}

void TestFileCommands::saveAsReplacesWithoutAsking()
{
    const QString path = writeProgram(QLatin1String("a.cnc"), "a long text that must go wholly");
    OpenWindow window;
    window.type(QLatin1String("N1"));
    Operator person;
    person.pick("Save as", QLatin1String("a.cnc"));
    QVERIFY(runSaveAs(window));
    VERIFY_DONE(person);
    QVERIFY(person.boxes().isEmpty());
    QCOMPARE(readFile(path), QByteArray("N1"));
}

void TestFileCommands::saveAsGivenUpChangesNothing()
{
    OpenWindow window;
    window.type(QLatin1String("N1"));
    const State before(window);
    Operator person;
    person.pickNothing("Save as");
    QVERIFY(!runSaveAs(window));
    VERIFY_DONE(person);
    QVERIFY(State(window) == before);
}

void TestFileCommands::saveAsWithEmptyNameChangesNothing()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("N1"));
    const State before(window);
    Operator person;
    person.pick("Save as", QString());
    QVERIFY(!runSaveAs(window));
    VERIFY_DONE(person);
    QVERIFY(State(window) == before);
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList() << "a.cnc");
    QCOMPARE(readFile(path), QByteArray(stored));
}

void TestFileCommands::saveIntoWhatIsNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder") << "folder";
    QTest::newRow("a folder that is not there") << "none/a.cnc";
    QTest::newRow("a file without permission") << "fixed.cnc";
}

void TestFileCommands::saveIntoWhatIsNoFile()
{
    QFETCH(QString, name);
    QVERIFY(QDir(programDir()).mkdir(QLatin1String("folder")));
    QVERIFY(QFile::setPermissions(writeProgram(QLatin1String("fixed.cnc")), QFile::ReadOwner));
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("N1"));
    State expected(window);
    // The label has the new name already.
    expected.label = name;
    Operator person;
    person.pick("Save as", name);
    person.press(QMessageBox::Ok);
    QVERIFY(!runSaveAs(window));
    VERIFY_DONE(person);
    const QString error = openError(pathOf(name), QIODevice::WriteOnly);
    QVERIFY(!error.isEmpty());
    COMPARE_BOX(person.boxes().first(), QMessageBox::Warning, "Application",
                QLatin1String("Cannot write file ") + pathOf(name) + QLatin1String(":\n") + error
                    + QLatin1String("."),
                QMessageBox::Ok, QMessageBox::Ok);
    QVERIFY(State(window) == expected);
    QVERIFY(window.isDocumentModified());
    QVERIFY(!QApplication::overrideCursor());
    QCOMPARE(readFile(path), QByteArray(stored));
    QCOMPARE(readFile(pathOf(QLatin1String("fixed.cnc"))), QByteArray(stored));
}

void TestFileCommands::saveWritesTheDocumentsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << "" << QByteArray("");
    QTest::newRow("no line end is added") << "a\nb" << QByteArray("a\nb");
    QTest::newRow("empty last line") << "a\nb\n" << QByteArray("a\nb\n");
    QTest::newRow("characters of the locale")
        << QString::fromUtf8(";\xc3\xa4\xe2\x82\xac") << QByteArray(";\xc3\xa4\xe2\x82\xac");
    QTest::newRow("soft line break") << QString("a") + QChar(0x2028) + "b" << QByteArray("a\nb");
    QTest::newRow("comments and blanks") << " a ;c\n\n;d" << QByteArray(" a ;c\n\n;d");
}

void TestFileCommands::saveWritesTheDocumentsText()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    OpenWindow window;
    window.type(text);
    Operator person;
    person.pick("Save as", QLatin1String("a.cnc"));
    QVERIFY(runSaveAs(window));
    VERIFY_DONE(person);
    QCOMPARE(readFile(pathOf(QLatin1String("a.cnc"))), bytes);
}

void TestFileCommands::saveWritesIntoTheFileItself()
{
    const QString target = writeProgram(QLatin1String("target"));
    const QString path = pathOf(QLatin1String("a.cnc"));
    QVERIFY(QFile::link(target, path));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("N1"));
    QVERIFY(runSave(window));
    QVERIFY(QFileInfo(path).isSymLink());
    QCOMPARE(readFile(target), QByteArray("N1"));
}

void TestFileCommands::fullStorageIsNotNoticed()
{
    QVERIFY(QFile::link(QLatin1String("/dev/full"), pathOf(QLatin1String("full.cnc"))));
    OpenWindow window;
    window.type(QLatin1String("N1"));
    Operator person;
    person.pick("Save as", QLatin1String("full.cnc"));
    QVERIFY(runSaveAs(window));
    VERIFY_DONE(person);
    QVERIFY(person.boxes().isEmpty());
    QVERIFY(!window.isDocumentModified());
    QCOMPARE(window.getCurrentFile(), pathOf(QLatin1String("full.cnc")));
}

namespace {

/// Reads a file at the moment when a document becomes clean.
class Reader : public QObject
{
    Q_OBJECT

public:
    explicit Reader(const QString &path) : m_path(path) {}

    QByteArray bytes;

public Q_SLOTS:
    void read(bool modified)
    {
        if (!modified)
            bytes = FilarixTest::readFile(m_path);
    }

private:
    QString m_path;
};

} // namespace

void TestFileCommands::fileIsClosedWhenTheDocumentBecomesClean()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("N1"));
    Reader reader(path);
    connect(window.m_editor->document(), SIGNAL(modificationChanged(bool)), &reader,
            SLOT(read(bool)));
    QVERIFY(runSave(window));
    QCOMPARE(reader.bytes, QByteArray("N1"));
}

void TestFileCommands::removeGivenUpChangesNothing()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("changed"));
    const State before(window);
    Operator person;
    // No question about the changes comes first.
    person.pickNothing("Remove file");
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);
    QVERIFY(State(window) == before);
    QVERIFY(QFile::exists(path));
}

void TestFileCommands::removeOfWhatIsNotThere_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such file") << "none.cnc";
    QTest::newRow("empty name") << "";
    QTest::newRow("the open file, gone meanwhile") << "a.cnc";
}

void TestFileCommands::removeOfWhatIsNotThere()
{
    QFETCH(QString, name);
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    QVERIFY(QFile::remove(path));
    const State before(window);
    Operator person;
    person.pick("Remove file", name);
    person.press(QMessageBox::Yes);
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);
    COMPARE_BOX(person.boxes().first(), QMessageBox::Warning, "Remove file",
                "The file does not exist!", QMessageBox::Yes, QMessageBox::NoButton);
    QVERIFY(State(window) == before);
}

void TestFileCommands::removeAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("closed") << int(QMessageBox::NoButton);
}

void TestFileCommands::removeAsksFirst()
{
    QFETCH(int, answer);
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    const State before(window);
    Operator person;
    person.pick("Remove file", QLatin1String("a.cnc"));
    if (answer == QMessageBox::NoButton)
        person.closeBox();
    else
        person.press(QMessageBox::StandardButton(answer));
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);
    COMPARE_BOX(person.boxes().first(), QMessageBox::Question, "Remove file", "Remove a.cnc?",
                QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    QVERIFY(State(window) == before);
    QCOMPARE(readFile(path), QByteArray(stored));
}

void TestFileCommands::removeOfAnotherFileLeavesTheDocument()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    writeProgram(QLatin1String("b.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.m_fileLabel->setText(QLatin1String("a.cnc"));
    window.type(QLatin1String("changed"));
    const State before(window);
    Operator person;
    person.pick("Remove file", QLatin1String("b.cnc"));
    person.press(QMessageBox::Yes);
    person.press(QMessageBox::Yes);
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);
    QCOMPARE(person.boxes().size(), 2);
    COMPARE_BOX(person.boxes().at(0), QMessageBox::Question, "Remove file", "Remove b.cnc?",
                QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    COMPARE_BOX(person.boxes().at(1), QMessageBox::Information, "Remove file",
                "Success to remove file.", QMessageBox::Yes, QMessageBox::NoButton);
    QVERIFY(State(window) == before);
    QCOMPARE(QDir(programDir()).entryList(QDir::Files), QStringList() << "a.cnc");
}

void TestFileCommands::windowMayGoDuringTheQuestionAboutAFile_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<bool>("stays");
    QTest::newRow("open again") << QByteArray("open") << QByteArray("Open file") << true;
    QTest::newRow("remove") << QByteArray("remove") << QByteArray("Remove file") << false;
}

void TestFileCommands::windowMayGoDuringTheQuestionAboutAFile()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, title);
    QFETCH(bool, stays);
    const QString path = writeProgram(QLatin1String("a.cnc"));
    QPointer<OpenWindow> window(new OpenWindow);
    window->loadFile(path);
    Operator person;
    person.pick(title.constData(), QLatin1String("a.cnc"));
    person.then([&window](QWidget *question) {
        delete window;
        qobject_cast<QMessageBox *>(question)->button(QMessageBox::Yes)->click();
    });
    if (!stays)
        person.press(QMessageBox::Yes);
    QVERIFY(QMetaObject::invokeMethod(window, command.constData()));
    VERIFY_DONE(person);
    QVERIFY(!window);
    QCOMPARE(QFile::exists(path), stays);
}

void TestFileCommands::removeOfTheOpenFileEmptiesTheWindow()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.m_fileLabel->setText(QLatin1String("a.cnc"));
    window.type(QLatin1String("changed"));
    Operator person;
    person.pick("Remove file", QLatin1String("a.cnc"));
    person.press(QMessageBox::Yes);
    person.press(QMessageBox::Yes);
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);
    QVERIFY(!QFile::exists(path));
    QCOMPARE(window.documentText(), QString(""));
    QVERIFY(!window.isDocumentModified());
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.windowTitle(), QString("untitled.cnc[*] - Application"));
    QCOMPARE(window.getCurrentFile(), QString());
}

void TestFileCommands::failedRemovalOfTheOpenFileEmptiesTheWindowToo()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("changed"));
    Operator person;
    person.pick("Remove file", QLatin1String("a.cnc"));
    person.press(QMessageBox::Yes);
    QVERIFY(QFile::setPermissions(programDir(), QFile::ReadOwner | QFile::ExeOwner));
    const bool ran = runRemove(window);
    QVERIFY(QFile::setPermissions(programDir(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(ran);
    VERIFY_DONE(person);
    QCOMPARE(person.boxes().size(), 1);
    QCOMPARE(readFile(path), QByteArray(stored));
    QCOMPARE(window.documentText(), QString(""));
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.getCurrentFile(), QString());
}

void TestFileCommands::failedRemovalOfAnotherFileSaysNothing()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    QVERIFY(QDir(programDir()).mkdir(QLatin1String("folder")));
    OpenWindow window;
    window.loadFile(path);
    const State before(window);
    Operator person;
    person.pick("Remove file", QLatin1String("folder"));
    person.press(QMessageBox::Yes);
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);
    QCOMPARE(person.boxes().size(), 1);
    QVERIFY(QFileInfo(pathOf(QLatin1String("folder"))).isDir());
    QVERIFY(State(window) == before);
}

void TestFileCommands::downloadOfANeverSavedDocumentCarriesNoPath()
{
    OpenWindow window;
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    Operator person;
    QVERIFY(runDownload(window));
    VERIFY_DONE(person);
    QCOMPARE(downloads.count(), 1);
    QCOMPARE(downloads.first().first().toString(), QString());
}

void TestFileCommands::downloadCarriesThePath()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    Operator person;
    QVERIFY(runDownload(window));
    VERIFY_DONE(person);
    QCOMPARE(downloads.count(), 1);
    QCOMPARE(downloads.first().first().toString(), path);
    // The library only hands the path over.
    QVERIFY(!window.isDownloading());
    QVERIFY(window.m_downloadBtn->isEnabled());
}

void TestFileCommands::downloadOfAModifiedDocument_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("sends");
    QTest::addColumn<QByteArray>("onDisk");
    QTest::newRow("Save sends the new version")
        << int(QMessageBox::Save) << true << QByteArray("N1");
    QTest::newRow("Discard sends the stored version")
        << int(QMessageBox::Discard) << true << QByteArray(stored);
    QTest::newRow("Cancel sends nothing")
        << int(QMessageBox::Cancel) << false << QByteArray(stored);
}

void TestFileCommands::downloadOfAModifiedDocument()
{
    QFETCH(int, answer);
    QFETCH(bool, sends);
    QFETCH(QByteArray, onDisk);
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.type(QLatin1String("N1"));
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    Operator person;
    person.press(QMessageBox::StandardButton(answer));
    QVERIFY(runDownload(window));
    VERIFY_DONE(person);
    QCOMPARE(downloads.count(), sends ? 1 : 0);
    if (sends)
        QCOMPARE(downloads.first().first().toString(), path);
    QCOMPARE(readFile(path), onDisk);
    // Discarded changes stay on the screen.
    QCOMPARE(window.documentText(), QString("N1"));
    QCOMPARE(window.isDocumentModified(), answer != QMessageBox::Save);
}

void TestFileCommands::downloadUnderWayAsksButSendsNothing()
{
    const QString path = writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.loadFile(path);
    window.setDownloading(true);
    QSignalSpy downloads(&window, SIGNAL(signal_download(QString)));
    Operator person;
    QVERIFY(runDownload(window));
    VERIFY_DONE(person);
    window.type(QLatin1String("N1"));
    person.press(QMessageBox::Save);
    QVERIFY(runDownload(window));
    VERIFY_DONE(person);
    QCOMPARE(downloads.count(), 0);
    QCOMPARE(readFile(path), QByteArray("N1"));
    window.setDownloading(false);
    QVERIFY(runDownload(window));
    QCOMPARE(downloads.count(), 1);
}

void TestFileCommands::messagesAreTranslated()
{
    writeProgram(QLatin1String("a.cnc"));
    OpenWindow window;
    window.type(QLatin1String("changed"));
    const MarkTranslator translator(QLatin1String("#"));
    Operator person;
    person.press(QMessageBox::Discard);
    person.pick("#Open file", QLatin1String("none.cnc"));
    person.press(QMessageBox::Ok);
    QVERIFY(runOpen(window));
    person.pick("#Open file", QLatin1String("a.cnc"));
    QVERIFY(runOpen(window));
    QCOMPARE(window.windowTitle(), QString("#a.cnc[*] - #Application"));
    person.pick("#Open file", QLatin1String("a.cnc"));
    person.press(QMessageBox::Cancel);
    QVERIFY(runOpen(window));
    person.pick("#Save as", QLatin1String("none/b.cnc"));
    person.press(QMessageBox::Ok);
    QVERIFY(!runSaveAs(window));
    person.pick("#Remove file", QLatin1String("none.cnc"));
    person.press(QMessageBox::Yes);
    QVERIFY(runRemove(window));
    person.pick("#Remove file", QLatin1String("a.cnc"));
    person.press(QMessageBox::Yes);
    person.press(QMessageBox::Yes);
    QVERIFY(runRemove(window));
    VERIFY_DONE(person);

    QStringList titles;
    QStringList texts;
    Q_FOREACH (const ModalDriver::Box &box, person.boxes()) {
        titles << box.title;
        texts << box.text.section(QLatin1Char('\n'), 0, 0);
    }
    QCOMPARE(titles, QStringList() << "#Application"
                                   << "#Application"
                                   << "#Application"
                                   << "#Application"
                                   << "#Remove file"
                                   << "#Remove file"
                                   << "#Remove file");
    QCOMPARE(texts, QStringList() << "#The document has been modified."
                                  << QString("#Cannot read file %1:").arg(pathOf("none.cnc"))
                                  << "#The document has been existed."
                                  << QString("#Cannot write file %1:").arg(pathOf("none/b.cnc"))
                                  << "#The file does not exist!"
                                  << "#Remove a.cnc?"
                                  << "#Success to remove file.");
    // These two names are the same in every language.
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.windowTitle(), QString("#untitled.cnc[*] - #Application"));
    QVERIFY(!translator.asked("WMMainWindow").contains(QLatin1String("Untitled")));
    QVERIFY(!translator.asked("WMMainWindow").contains(QLatin1String("untitled.cnc")));
}

void TestFileCommands::titleShowsTheBareName()
{
    OpenWindow window;
    QCOMPARE(window.strippedName(QLatin1String("/a/b c/d.e.cnc")), QString("d.e.cnc"));
    QCOMPARE(window.strippedName(QString()), QString());
    window.setCurrentFile(QLatin1String("/elsewhere/x.cnc"));
    QCOMPARE(window.windowTitle(), QString("x.cnc[*] - Application"));
    QCOMPARE(window.m_fileLabel->text(), QString("Untitled"));
    QCOMPARE(window.m_curFile, QString("/elsewhere/x.cnc"));
    QCOMPARE(window.m_downloadFile, QString("/elsewhere/x.cnc"));
}

void TestFileCommands::windowOpensAtItsDefaultPlace()
{
    const OpenWindow window;
    QCOMPARE(window.size(), QSize(1000, 600));
    QCOMPARE(window.pos(), QPoint(200, 200));
}

void TestFileCommands::sizeAndPositionAreStoredOnDestruction()
{
    {
        OpenWindow window;
        window.resize(480, 272);
        window.move(7, -9);
        QVERIFY(QSettings("Corvane Soft", "G Code").allKeys().isEmpty());
    }
    const QSettings settings("Corvane Soft", "G Code");
    QCOMPARE(settings.value(QLatin1String("MainWindow/size")).toSize(), QSize(480, 272));
    QCOMPARE(settings.value(QLatin1String("MainWindow/pos")).toPoint(), QPoint(7, -9));
    const OpenWindow window;
    QCOMPARE(window.size(), QSize(480, 272));
    QCOMPARE(window.pos(), QPoint(7, -9));
}

void TestFileCommands::settingsHoldNothingElse()
{
    writeProgram(QLatin1String("a.cnc"));
    {
        OpenWindow window;
        window.loadFile(pathOf(QLatin1String("a.cnc")));
    }
    QStringList keys = QSettings("Corvane Soft", "G Code").allKeys();
    keys.sort();
    QCOMPARE(keys, QStringList() << "MainWindow/pos"
                                 << "MainWindow/size");
    QVERIFY(QFile::exists(home() + TestCompat::settingsFolder()
                          + QLatin1String("/Corvane Soft/G Code.conf")));
}

FILARIX_TEST_MAIN(TestFileCommands)
#include "tst_filecommands.moc"
