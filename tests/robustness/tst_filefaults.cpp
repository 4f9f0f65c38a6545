// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "conneditor.h"
#include "devicelog.h"
#include "filarixtest.h"
#include "filedialog.h"
#include "importmanage.h"
#include "label.h"
#include "modaldriver.h"
#include "openwindow.h"
#include "tlistwidget.h"
#include "waqp.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QListView>
#include <QSettings>
#include <QTableWidget>

#include <sys/stat.h>

namespace {

/// What is wrong with a folder.
enum FolderFault { Sound, Unreadable, Closed, ReadOnly, IsAFile, CannotBeMade, FaultCount };

/// What comes of it: whether the names in the folder are seen, and whether its files can be read
/// and new ones written.
struct FolderFaultFacts
{
    const char *name;
    mode_t mode;
    bool isListed;
    bool isRead;
    bool isWritten;
};

const FolderFaultFacts folderFaults[FaultCount] = {
    {"sound", 0700, true, true, true},          {"unreadable", 0300, false, true, true},
    {"closed", 0600, true, false, false}, // its names can be read, and nothing else
    {"read-only", 0500, true, true, false},     {"a file in its place", 0, false, false, false},
    {"cannot be made", 0, false, false, false},
};

void setMode(const QString &path, mode_t mode)
{
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qWarning("cannot change the mode of %s", qPrintable(path));
}

QString programPath(const QString &name)
{
    return FilarixTest::home() + QLatin1String("/cnc/") + name;
}

const char stored[] = "G01 X1\nM2";
const char stick[] = "/mnt/Storage";

/// A folder below the home with a file in it, and then what is wrong with it.
void makeFolder(const QString &folder, const QString &file, const QByteArray &bytes,
                FolderFault fault)
{
    if (fault == CannotBeMade) {
        setMode(FilarixTest::home(), 0500);
    } else if (fault == IsAFile) {
        FilarixTest::writeFile(folder, bytes);
    } else {
        FilarixTest::writeFile(folder + QLatin1Char('/') + file, bytes);
        setMode(folder, folderFaults[fault].mode);
    }
}

/// The program directory with "a.cnc" in it.
void makeProgramFolder(FolderFault fault)
{
    makeFolder(FilarixTest::home() + QLatin1String("/cnc"), QLatin1String("a.cnc"), stored, fault);
}

/// The toolkit's words for why a file cannot be opened; null if it can.
QString openError(const QString &path, QIODevice::OpenMode mode)
{
    QFile file(path);
    return file.open(mode) ? QString() : file.errorString();
}

/// Enters a name into the picker that comes up, and presses OK.
void pick(ModalDriver &person, const QString &name,
          const std::function<void()> &meanwhile = std::function<void()>())
{
    person.then([name, meanwhile](QWidget *dialog) {
        WFileDialog *const picker = qobject_cast<WFileDialog *>(dialog);
        if (!picker)
            return;
        picker->nameEdit->setText(name);
        if (meanwhile)
            meanwhile();
        picker->applyButton->click();
    });
}

/// A file that cannot be opened, and how it came to that.
struct BadFile
{
    QString name;
    std::function<void()> make;
    bool isReadable;
    bool isWritable;
};

QString named(const char *name)
{
    return QLatin1String(name);
}

QList<BadFile> badFiles()
{
    const QString path = programPath(named("bad.cnc"));
    return QList<BadFile>()
           << BadFile{named("bad.cnc"), [] {}, false, true}
           << BadFile{named("bad.cnc"), [path] { QDir().mkpath(path); }, false, false}
           << BadFile{named("bad.cnc"),
                      [path] {
                          FilarixTest::writeFile(path, "G1");
                          setMode(path, 0);
                      },
                      false, false}
           << BadFile{named("bad.cnc"),
                      [path] {
                          FilarixTest::writeFile(path, "G1");
                          setMode(path, 0400);
                      },
                      true, false}
           << BadFile{named("bad.cnc"), [path] { QFile::link(named("/nowhere/x"), path); }, false,
                      false}
           << BadFile{named("bad.cnc"), [path] { QFile::link(path, path); }, false, false}
           << BadFile{QString(300, QLatin1Char('n')), [] {}, false, false}
           << BadFile{named("no/such/folder.cnc"), [] {}, false, false}
           << BadFile{named("a.cnc/under-a-file"), [] {}, false, false}
           << BadFile{named(".."), [] {}, false, false} << BadFile{named("."), [] {}, false, false}
           << BadFile{named("/"), [] {}, false, false};
}

const char *const badFileNames[] = {
    "missing",          "a folder in its place",       "unreadable",
    "read-only",        "a link to nowhere",           "a link to itself",
    "name too long",    "in a folder that is missing", "below a file",
    "the folder above", "the folder itself",           "a slash"};

QPushButton *button(const QWidget &dialog, const char *text)
{
    Q_FOREACH (QPushButton *candidate, dialog.findChildren<QPushButton *>()) {
        if (candidate->text() == QLatin1String(text))
            return candidate;
    }
    return nullptr;
}

/// Presses a key of the import manager and answers the boxes that come up: what the last one says,
/// or what went otherwise.
QString pressed(const ImportManage &manager, const char *key,
                const QList<QMessageBox::StandardButton> &answers)
{
    ModalDriver person;
    Q_FOREACH (QMessageBox::StandardButton answer, answers)
        person.press(answer);
    button(manager, key)->click();
    if (!person.finished())
        return QLatin1String(person.report());
    return answers.isEmpty() ? QString() : person.boxes().last().text;
}

const QList<QMessageBox::StandardButton> noBox;
const QList<QMessageBox::StandardButton> ok = QList<QMessageBox::StandardButton>()
                                              << QMessageBox::Ok;

/// Touches the first line of a panel of the import manager; whether there is one.
bool selectFirst(const ImportManage &manager, int panel)
{
    QListView *const view = manager.findChildren<QListView *>().value(panel);
    const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
    view->setCurrentIndex(first);
    return first.isValid() && !view->isRowHidden(0);
}

} // namespace

/// Folders and files that are not there, not to be read or written, or something else: each class
/// that touches files says what it is meant to say, or nothing, and goes on.
class TestFileFaults : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void programFolder_data() { addFolderFaults(); }
    void programFolder();
    void programFile_data();
    void programFile();
    void programVanishesWhileItIsPicked();
    void programVanishesBeforeItIsRemoved();
    void programFolderVanishesUnderAnOpenProgram();
    void homeThatIsMissing_data();
    void homeThatIsMissing();
    void windowSettings_data() { addFolderFaults(); }
    void windowSettings();
    void pathBrowser_data() { addFolderFaults(); }
    void pathBrowser();
    void pathBrowserFolderVanishes();
    void connectionFile_data();
    void connectionFile();
    void connectionFileVanishesBeforeItIsStored();
    void deviceFile_data();
    void deviceFile();
    void importFromAndToABadProgramFolder_data() { addFolderFaults(); }
    void importFromAndToABadProgramFolder();
    void importFromAndToABadStick_data();
    void importFromAndToABadStick();
    void importedFileVanishes();

private:
    static void addFolderFaults();
};

void TestFileFaults::addFolderFaults()
{
    QTest::addColumn<int>("fault");
    for (int fault = 0; fault < FaultCount; ++fault)
        QTest::newRow(folderFaults[fault].name) << fault;
}

/// Makes everything below a folder accessible again, so that it can be emptied.
static void openUp(const QString &folder)
{
    setMode(folder, 0700);
    Q_FOREACH (const QFileInfo &entry,
               QDir(folder).entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (!entry.isSymLink())
            openUp(entry.absoluteFilePath());
    }
}

void TestFileFaults::init()
{
    FilarixTest::init();
    DeviceLog::reset();
    StrictMessages::expect(named("Parentheses expected, slot ImportManage::slot_checkUSB"));
    QFile::remove(named(stick));
    QDir().mkpath(named(stick));
    emptyFolder(named(stick));
    writeFile(named("/tmp/udiskattach"), "");
}

void TestFileFaults::cleanup()
{
    qputenv("HOME", "/tmp/home");
    openUp(home());
    if (QFileInfo(named(stick)).isDir())
        openUp(named(stick));
    FilarixTest::cleanup();
}

void TestFileFaults::programFolder()
{
    QFETCH(int, fault);
    const bool isListed = folderFaults[fault].isListed;
    makeProgramFolder(FolderFault(fault));
    const QString program = programPath(named("a.cnc"));
    const QString readError = openError(program, QIODevice::ReadOnly);
    const bool isThere = QFileInfo(program).exists();

    QCOMPARE(WAQP::getCncDir(), home() + "/cnc");
    QCOMPARE(WFileDialog(nullptr).filesTable->rowCount(), isListed ? 1 : 0);

    OpenWindow window;
    {
        ModalDriver person;
        pick(person, named("a.cnc"));
        if (!readError.isNull())
            person.press(QMessageBox::Ok);
        QVERIFY(QMetaObject::invokeMethod(&window, "open"));
        QVERIFY2(person.finished(), person.report());
        if (!readError.isNull())
            QCOMPARE(person.boxes().first().text,
                     QString("Cannot read file %1:\n%2.").arg(program, readError));
        QCOMPARE(window.documentText(), QString(readError.isNull() ? stored : ""));
        QCOMPARE(window.getCurrentFile(), readError.isNull() ? program : QString());
    }
    window.type(named("G01 X2"));
    {
        const QString target = programPath(named("b.cnc"));
        const QString writeError = openError(target, QIODevice::WriteOnly);
        QFile::remove(target);
        ModalDriver person;
        pick(person, named("b.cnc"));
        if (!writeError.isNull())
            person.press(QMessageBox::Ok);
        bool isSaved = false;
        QVERIFY(QMetaObject::invokeMethod(&window, "saveAs", Q_RETURN_ARG(bool, isSaved)));
        QVERIFY2(person.finished(), person.report());
        QCOMPARE(isSaved, writeError.isNull());
        if (!isSaved)
            QCOMPARE(person.boxes().first().text,
                     QString("Cannot write file %1:\n%2.").arg(target, writeError));
        QCOMPARE(window.isDocumentModified(), !isSaved);
        QCOMPARE(window.documentText(), QString("G01 X2"));
    }
    {
        const bool isRemovable = fault == Sound || fault == Unreadable;
        ModalDriver person;
        pick(person, named("a.cnc"));
        person.press(QMessageBox::Yes);
        if (isRemovable)
            person.press(QMessageBox::Yes);
        QVERIFY(QMetaObject::invokeMethod(&window, "remove"));
        QVERIFY2(person.finished(), person.report());
        QCOMPARE(person.boxes().first().text,
                 QString(isThere ? "Remove a.cnc?" : "The file does not exist!"));
        if (isRemovable)
            QCOMPARE(person.boxes().last().text, QString("Success to remove file."));
    }
}

void TestFileFaults::programFile_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < badFiles().size(); ++i)
        QTest::newRow(badFileNames[i]) << i;
}

void TestFileFaults::programFile()
{
    QFETCH(int, index);
    const BadFile file = badFiles().at(index);
    writeFile(programPath(named("a.cnc")), stored);
    file.make();
    const QString path = programPath(file.name);
    const QString readError = openError(path, QIODevice::ReadOnly);
    QCOMPARE(readError.isNull(), file.isReadable);
    OpenWindow window;
    window.loadFile(programPath(named("a.cnc")));

    {
        ModalDriver reader;
        pick(reader, file.name);
        if (!file.isReadable)
            reader.press(QMessageBox::Ok);
        QVERIFY(QMetaObject::invokeMethod(&window, "open"));
        QVERIFY2(reader.finished(), reader.report());
        QCOMPARE(window.documentText(), QString(file.isReadable ? "G1" : ""));
        QCOMPARE(window.getCurrentFile(), file.isReadable ? path : programPath(named("a.cnc")));
        QCOMPARE(window.m_fileLabel->text(), file.name);
        if (!file.isReadable)
            QCOMPARE(reader.boxes().first().text,
                     QString("Cannot read file %1:\n%2.").arg(path, readError));
    }
    window.type(named("G01 X3"));
    {
        ModalDriver writer;
        pick(writer, file.name);
        if (!file.isWritable)
            writer.press(QMessageBox::Ok);
        bool isSaved = false;
        QVERIFY(QMetaObject::invokeMethod(&window, "saveAs", Q_RETURN_ARG(bool, isSaved)));
        QVERIFY2(writer.finished(), writer.report());
        QCOMPARE(isSaved, file.isWritable);
        QCOMPARE(window.isDocumentModified(), !file.isWritable);
        if (file.isWritable)
            QCOMPARE(readFile(path), QByteArray("G01 X3"));
        else
            QCOMPARE(writer.boxes().first().text,
                     QString("Cannot write file %1:\n%2.")
                         .arg(path, openError(path, QIODevice::WriteOnly)));
    }

    // The good one is as it was, and can be opened.
    QCOMPARE(readFile(programPath(named("a.cnc"))), QByteArray(stored));
    window.loadFile(programPath(named("a.cnc")));
    QCOMPARE(window.documentText(), QString(stored));
}

void TestFileFaults::programVanishesWhileItIsPicked()
{
    const QString path = programPath(named("a.cnc"));
    writeFile(path, stored);
    OpenWindow window;
    ModalDriver person;
    pick(person, named("a.cnc"), [path] { QFile::remove(path); });
    person.press(QMessageBox::Ok);
    QVERIFY(QMetaObject::invokeMethod(&window, "open"));
    QVERIFY2(person.finished(), person.report());
    QCOMPARE(person.boxes().first().text,
             QString("Cannot read file %1:\n%2.").arg(path, openError(path, QIODevice::ReadOnly)));
    QCOMPARE(window.documentText(), QString());
    QCOMPARE(window.getCurrentFile(), QString());
    QCOMPARE(window.m_fileLabel->text(), QString("a.cnc"));
}

void TestFileFaults::programVanishesBeforeItIsRemoved()
{
    const QString path = programPath(named("a.cnc"));
    writeFile(path, stored);
    OpenWindow window;
    window.loadFile(path);
    ModalDriver person;
    pick(person, named("a.cnc"));
    person.then([path](QWidget *box) {
        QFile::remove(path);
        qobject_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click();
    });
    QVERIFY(QMetaObject::invokeMethod(&window, "remove"));
    // It could not be removed any more, of which there is no word.
    QVERIFY2(person.finished(), person.report());
    QCOMPARE(window.documentText(), QString());
    QCOMPARE(window.getCurrentFile(), QString());
}

void TestFileFaults::programFolderVanishesUnderAnOpenProgram()
{
    const QString path = programPath(named("a.cnc"));
    writeFile(path, stored);
    OpenWindow window;
    window.loadFile(path);
    window.type(named("G01 X2"));
    emptyFolder(home());

    bool isSaved = true;
    {
        ModalDriver person;
        person.press(QMessageBox::Ok);
        QVERIFY(QMetaObject::invokeMethod(&window, "save", Q_RETURN_ARG(bool, isSaved)));
        QVERIFY2(person.finished(), person.report());
        QVERIFY(!isSaved);
        QVERIFY(window.isDocumentModified());
    }

    // The picker's listing makes the folder anew, and the program is safe.
    ModalDriver again;
    pick(again, named("b.cnc"));
    QVERIFY(QMetaObject::invokeMethod(&window, "saveAs", Q_RETURN_ARG(bool, isSaved)));
    QVERIFY2(again.finished(), again.report());
    QVERIFY(isSaved);
    QCOMPARE(readFile(programPath(named("b.cnc"))), QByteArray("G01 X2"));
}

void TestFileFaults::homeThatIsMissing_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("folder");
    QTest::newRow("not there") << QByteArray("/tmp/home/no/such") << "/tmp/home/no/such/cnc";
    QTest::newRow("a file") << QByteArray("/tmp/home/file") << "/tmp/home/file/cnc";
    QTest::newRow("empty") << QByteArray("") << "/cnc";
}

void TestFileFaults::homeThatIsMissing()
{
    QFETCH(QByteArray, path);
    QFETCH(QString, folder);
    writeFile(home() + "/file", "x");
    qputenv("HOME", path);
    QCOMPARE(WAQP::getCncDir(), folder);
    QCOMPARE(WFileDialog(nullptr).filesTable->rowCount(), 0);
    OpenWindow window;
    window.type(named("G01 X2"));
    ModalDriver person;
    pick(person, named("a.cnc"));
    person.press(QMessageBox::Ok);
    bool isSaved = true;
    QVERIFY(QMetaObject::invokeMethod(&window, "saveAs", Q_RETURN_ARG(bool, isSaved)));
    QVERIFY2(person.finished(), person.report());
    QVERIFY(!isSaved);
    QVERIFY(window.isDocumentModified());
}

/// The folder of the window's size and position.
void TestFileFaults::windowSettings()
{
    QFETCH(int, fault);
    // A place of its own for each fault: the toolkit remembers what it has read from a file.
    const QString root = home() + "/config" + QString::number(fault);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, root);
    const QString folder = root + "/Corvane Soft";
    const QString path = folder + "/G Code.conf";
    const QByteArray before("[MainWindow]\npos=@Point(7 8)\nsize=@Size(640 400)\n");
    makeFolder(folder, named("G Code.conf"), before, FolderFault(fault));
    const bool isRead = folderFaults[fault].isRead;
    {
        OpenWindow window;
        QCOMPARE(window.size(), isRead ? QSize(640, 400) : QSize(1000, 600));
        QCOMPARE(window.pos(), isRead ? QPoint(7, 8) : QPoint(200, 200));
        window.resize(700, 500);
    }
    openUp(home());
    // What cannot be stored is not stored, without a word.
    const bool isStored = folderFaults[fault].isWritten
                          || (fault == ReadOnly && TestCompat::settingsAreWrittenInPlace());
    QCOMPARE(readFile(path).contains("700 500"), isStored);
    if (!isStored && (fault == Closed || fault == ReadOnly))
        QCOMPARE(readFile(path), before);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       home() + TestCompat::settingsFolder());
}

void TestFileFaults::pathBrowser()
{
    QFETCH(int, fault);
    makeProgramFolder(FolderFault(fault));
    const QString path = home() + "/cnc/";
    FileDialog dialog(QDir::Files, named("Path"), path, nullptr, Qt::WindowFlags());
    ListWidget *const lines = dialog.m_list;
    QCOMPARE(lines->count(), folderFaults[fault].isListed ? 1 : 0);
    QCOMPARE(FileDialog::m_returnStr, path);
    button(dialog, ">>")->click();
    QCOMPARE(FileDialog::m_returnStr, path);
    button(dialog, "<<")->click();
    QCOMPARE(FileDialog::m_returnStr, home() + "/cnc");
    button(dialog, "<<")->click();
    QCOMPARE(FileDialog::m_returnStr, home());
}

void TestFileFaults::pathBrowserFolderVanishes()
{
    writeFile(home() + "/job/sub/a.cnc", stored);
    FileDialog dialog(QDir::AllEntries | QDir::NoDotAndDotDot, named("Path"), home() + "/job/",
                      nullptr, Qt::WindowFlags());
    Label *const line = dialog.m_list->findChild<Label *>();
    QCOMPARE(line->text(), QString("sub"));
    emptyFolder(home());
    QVERIFY(QMetaObject::invokeMethod(line, "clicked"));
    QCOMPARE(FileDialog::m_returnStr, home() + "/job/sub");
    button(dialog, ">>")->click();
    QCOMPARE(FileDialog::m_returnStr, home() + "/job/sub");
    button(dialog, "<<")->click();
    QCOMPARE(FileDialog::m_returnStr, home() + "/job");
    QCOMPARE(dialog.m_list->ListWidget::count(), 0);
}

void TestFileFaults::connectionFile_data()
{
    addFolderFaults();
    // In the place of the file itself.
    QTest::newRow("a folder in its place") << int(FaultCount);
    QTest::newRow("no name") << int(FaultCount) + 1;
}

void TestFileFaults::connectionFile()
{
    QFETCH(int, fault);
    const QString folder = home() + "/etc";
    // A name of its own for each fault: the toolkit remembers what it has read from a file.
    const QString file = QString::fromLatin1("connections%1.ini").arg(fault);
    QString path = folder + QLatin1Char('/') + file;
    const QByteArray before("[General]\nconnect%20count=1\nConnect%200=PLC\nPLCnew%20IP=1.2.3.4\n");
    const bool isOfTheFolder = fault < FaultCount;
    if (isOfTheFolder)
        makeFolder(folder, file, before, FolderFault(fault));
    else if (fault == FaultCount)
        QDir().mkpath(path);
    else
        path.clear();
    const bool isRead = isOfTheFolder && folderFaults[fault].isRead;
    ConnEditor editor(path, nullptr);
    editor.init_list();
    QCOMPARE(editor.m_list->count(), isRead ? 2 : 1);
    if (isRead)
        editor.findChild<ComboLineEdit *>()->setText(named("4.3.2.1"));
    editor.on_save_clicked();
    // The dialog is accepted all the same.
    QCOMPARE(editor.result(), int(QDialog::Accepted));
    openUp(home());
    const bool isStored = (isOfTheFolder && folderFaults[fault].isWritten)
                          || (fault == ReadOnly && TestCompat::settingsAreWrittenInPlace());
    if (isStored)
        QVERIFY(readFile(path).contains("4.3.2.1"));
    else if (fault == Closed || fault == ReadOnly)
        QCOMPARE(readFile(path), before);
}

/// The names are read again, and there are none: the address goes under the bare key.
void TestFileFaults::connectionFileVanishesBeforeItIsStored()
{
    const QString path = home() + "/connections.ini";
    writeFile(path, "[General]\nconnect%20count=1\nConnect%200=PLC\nPLCnew%20IP=1.2.3.4\n");
    ConnEditor editor(path, nullptr);
    editor.init_list();
    QVERIFY(QFile::remove(path));
    editor.on_save_clicked();
    QCOMPARE(editor.result(), int(QDialog::Accepted));
    QCOMPARE(readFile(path), QByteArray("[General]\nnew%20IP=1.2.3.4\n"));
}

void TestFileFaults::deviceFile_data()
{
    QTest::addColumn<int>("fault");
    QTest::newRow("missing") << 0;
    QTest::newRow("a folder in its place") << 1;
    QTest::newRow("unreadable") << 2;
    QTest::newRow("no settings in it") << 3;
}

/// A field asks the device file for the size of its keypad.
void TestFileFaults::deviceFile()
{
    QFETCH(int, fault);
    const QString path = named("/usr/share/qt/bin/settingex.ini");
    QFile::remove(path);
    QDir().rmdir(path);
    if (fault == 1)
        QDir().mkpath(path);
    if (fault >= 2)
        writeFile(path, QByteArray("\0\xff[[[HMIDeviceType", 18));
    if (fault == 2)
        setMode(path, 0);
    ComboLineEdit field(nullptr);
    field.setText(named("IP:1"));
    DeviceLog::acceptWith(named("2"));
    QTest::mouseClick(&field, Qt::LeftButton);
    QCOMPARE(DeviceLog::answersLeft(), 0);
    QCOMPARE(field.text(), QString("2"));
    QFile::remove(path);
    QDir().rmdir(path);
}

void TestFileFaults::importFromAndToABadProgramFolder()
{
    QFETCH(int, fault);
    const bool isListed = folderFaults[fault].isListed;
    const bool isWritable = folderFaults[fault].isWritten;
    makeProgramFolder(FolderFault(fault));
    writeFile(named("/mnt/Storage/new.cnc"), "G5");
    ImportManage manager(nullptr);
    manager.init();
    QCOMPARE(selectFirst(manager, 0), isListed);
    const bool isCopied = isListed && folderFaults[fault].isRead;
    QCOMPARE(pressed(manager, ">>", isCopied ? noBox : ok),
             QString(isCopied   ? ""
                     : isListed ? "Copy file failed!"
                                : "No file Selected!"));
    QCOMPARE(readFile(named("/mnt/Storage/a.cnc")), isCopied ? QByteArray(stored) : QByteArray());
    QFile::remove(named("/mnt/Storage/a.cnc"));
    manager.init();

    QVERIFY(selectFirst(manager, 1));
    QCOMPARE(pressed(manager, "<<", isWritable ? noBox : ok),
             QString(isWritable ? "" : "Copy file failed!"));

    QCOMPARE(selectFirst(manager, 0), isListed);
    const QList<QMessageBox::StandardButton> yes = QList<QMessageBox::StandardButton>()
                                                   << QMessageBox::Yes;
    if (!isListed)
        QCOMPARE(pressed(manager, ">Del", ok), QString("No file Selected."));
    else if (isWritable)
        QCOMPARE(pressed(manager, ">Del", yes), QString("Are you sure to delete a.cnc?"));
    else
        QCOMPARE(pressed(manager, ">Del", yes + ok), QString("Can't delete this file."));
    openUp(home());
    QCOMPARE(readFile(programPath(named("new.cnc"))), isWritable ? QByteArray("G5") : QByteArray());
    QCOMPARE(QFile::exists(programPath(named("a.cnc"))),
             fault == Unreadable || fault == Closed || fault == ReadOnly);
}

void TestFileFaults::importFromAndToABadStick_data()
{
    QTest::addColumn<int>("fault");
    const FolderFault faults[] = {Unreadable, Closed, ReadOnly, IsAFile};
    for (FolderFault fault : faults)
        QTest::newRow(folderFaults[fault].name) << int(fault);
}

void TestFileFaults::importFromAndToABadStick()
{
    QFETCH(int, fault);
    makeProgramFolder(Sound);
    if (fault == IsAFile) {
        QVERIFY(QDir().rmdir(named(stick)));
        writeFile(named(stick), "");
    } else {
        setMode(named(stick), folderFaults[fault].mode);
    }
    ImportManage manager(nullptr);
    manager.init();
    const bool isWritable = folderFaults[fault].isWritten;
    QVERIFY(selectFirst(manager, 0));
    QCOMPARE(pressed(manager, ">>", isWritable ? noBox : ok),
             QString(isWritable ? "" : "Copy file failed!"));
    QCOMPARE(pressed(manager, "<<", ok), QString("No file Selected."));
    QCOMPARE(readFile(programPath(named("a.cnc"))), QByteArray(stored));
}

void TestFileFaults::importedFileVanishes()
{
    makeProgramFolder(Sound);
    writeFile(named("/mnt/Storage/new.cnc"), "G5");
    ImportManage manager(nullptr);
    manager.init();
    QVERIFY(selectFirst(manager, 0));
    QVERIFY(selectFirst(manager, 1));
    QVERIFY(QFile::remove(programPath(named("a.cnc"))));
    QVERIFY(QFile::remove(named("/mnt/Storage/new.cnc")));
    QCOMPARE(pressed(manager, "<<", ok), QString("Copy file failed!"));
    QCOMPARE(QDir(home() + "/cnc").entryList(QDir::Files), QStringList());
}

FILARIX_TEST_MAIN(TestFileFaults)
#include "tst_filefaults.moc"
