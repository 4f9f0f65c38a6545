// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"
#include "conneditor.h"
#include "filarixtest.h"
#include "importmanage.h"
#include "modaldriver.h"
#include "openwindow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QListView>

namespace {

QString programPath(const char *name)
{
    return FilarixTest::programDir() + QLatin1Char('/') + QLatin1String(name);
}

/// Takes all the room that the home has left.
void fillHome()
{
    QFile file(FilarixTest::home() + QLatin1String("/filler"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        qWarning("cannot make the filler");
    while (file.write(QByteArray(4096, 'x')) > 0) {
    }
}

QByteArray program(int bytes)
{
    return QByteArray("G01 X1\n").repeated(bytes / 7);
}

} // namespace

/// A panel whose storage is full: what can't be written is cut, or stays as it was, and the screens
/// go on. Runs with a small file system as its home.
class TestFullPanel : public FilarixTest
{
    Q_OBJECT

private Q_SLOTS:
    void programThatDoesNotFitIsCutWithoutAWord();
    void coveredProgramIsLost();
    void newProgramIsEmpty();
    void programCanBeReadAndRemoved();
    void copyFromTheStickSaysSo();
    void windowSettingsStayAsTheyWere();
    void connectionFileStaysAsItWas();
    void connectionFileThatGrowsIsCutWhereItIsWrittenInPlace();
};

void TestFullPanel::programThatDoesNotFitIsCutWithoutAWord()
{
    const QByteArray bytes = program(1000 * 1000);
    OpenWindow window;
    window.type(QString::fromLatin1(bytes));
    QVERIFY(window.saveFile(programPath("a.cnc")));
    QVERIFY(!window.isDocumentModified());
    QCOMPARE(window.getCurrentFile(), programPath("a.cnc"));
    const QByteArray stored = readFile(programPath("a.cnc"));
    QVERIFY(!stored.isEmpty());
    QVERIFY(stored.size() < bytes.size());
    QVERIFY(bytes.startsWith(stored));
    // The screen holds it all: with room again, it can be stored.
    QVERIFY(window.documentText().toLatin1() == bytes);
}

void TestFullPanel::coveredProgramIsLost()
{
    writeFile(programPath("a.cnc"), program(7000));
    OpenWindow window;
    window.loadFile(programPath("a.cnc"));
    fillHome();
    window.type(QString::fromLatin1(program(100 * 1000)));
    QVERIFY(window.saveFile(programPath("a.cnc")));
    QVERIFY(readFile(programPath("a.cnc")).size() <= 8192);
    QVERIFY(!window.isDocumentModified());
}

void TestFullPanel::newProgramIsEmpty()
{
    programDir();
    fillHome();
    OpenWindow window;
    window.type(QLatin1String("G01 X1"));
    QVERIFY(window.saveFile(programPath("a.cnc")));
    QCOMPARE(readFile(programPath("a.cnc")), QByteArray(""));
    QVERIFY(QFile::remove(home() + "/filler"));
    QVERIFY(window.saveFile(programPath("a.cnc")));
    QCOMPARE(readFile(programPath("a.cnc")), QByteArray("G01 X1"));
}

void TestFullPanel::programCanBeReadAndRemoved()
{
    writeFile(programPath("a.cnc"), program(7000));
    fillHome();
    OpenWindow window;
    window.loadFile(programPath("a.cnc"));
    QVERIFY(window.documentText().startsWith("G01 X1\nG01 X1"));
    ModalDriver person;
    person.then([](QWidget *dialog) {
        WFileDialog *const picker = qobject_cast<WFileDialog *>(dialog);
        picker->nameEdit->setText(QLatin1String("a.cnc"));
        picker->applyButton->click();
    });
    person.press(QMessageBox::Yes);
    person.press(QMessageBox::Yes);
    QVERIFY(QMetaObject::invokeMethod(&window, "remove"));
    QVERIFY2(person.finished(), person.report());
    QVERIFY(!QFile::exists(programPath("a.cnc")));
}

void TestFullPanel::copyFromTheStickSaysSo()
{
    StrictMessages::expect(QLatin1String("Parentheses expected, slot ImportManage::slot_checkUSB"));
    const QByteArray bytes = program(1000 * 1000);
    writeFile(QLatin1String("/mnt/Storage/a.cnc"), bytes);
    writeFile(QLatin1String("/tmp/udiskattach"), "");
    programDir();
    ImportManage manager(nullptr);
    manager.init();
    QListView *const view = manager.findChildren<QListView *>().value(1);
    view->setCurrentIndex(view->model()->index(0, 0, view->rootIndex()));
    ModalDriver person;
    person.press(QMessageBox::Ok);
    manager.slot_copyFromUsbToHmi();
    QVERIFY2(person.finished(), person.report());
    QCOMPARE(person.boxes().first().text, QString("Copy file failed!"));
    // What fitted stays.
    QVERIFY(QFileInfo(programPath("a.cnc")).size() < bytes.size());
    QCOMPARE(readFile(QLatin1String("/mnt/Storage/a.cnc")).size(), bytes.size());
}

void TestFullPanel::windowSettingsStayAsTheyWere()
{
    const QString path = home() + TestCompat::settingsFolder() + "/Corvane Soft/G Code.conf";
    const QByteArray before("[MainWindow]\npos=@Point(7 8)\nsize=@Size(640 400)\n");
    writeFile(path, before);
    fillHome();
    {
        OpenWindow window;
        QCOMPARE(window.size(), QSize(640, 400));
        window.resize(700, 500);
    }
    // In place the new ones take the room of the old ones.
    QByteArray after = before;
    if (TestCompat::settingsAreWrittenInPlace())
        after.replace("640 400", "700 500");
    QCOMPARE(readFile(path), after);
}

void TestFullPanel::connectionFileStaysAsItWas()
{
    const QString path = home() + "/connections.ini";
    const QByteArray before("[General]\nConnect%200=PLC\nPLCnew%20IP=1.2.3.4\nconnect%20count=1\n");
    writeFile(path, before);
    fillHome();
    ConnEditor editor(path, nullptr);
    editor.init_list();
    editor.findChild<ComboLineEdit *>()->setText(QLatin1String("4.3.2.1"));
    editor.on_save_clicked();
    QCOMPARE(editor.result(), int(QDialog::Accepted));
    QByteArray after = before;
    if (TestCompat::settingsAreWrittenInPlace())
        after.replace("1.2.3.4", "4.3.2.1");
    QCOMPARE(readFile(path), after);
}

/// What does not fit into the room of the old file is lost, and nobody is told.
void TestFullPanel::connectionFileThatGrowsIsCutWhereItIsWrittenInPlace()
{
    const QString path = home() + "/connections.ini";
    const int block = 4096;
    QByteArray before("[General]\nConnect%200=PLC\nPLCnew%20IP=1.2.3.4\nconnect%20count=1\nlast=");
    before += QByteArray(block - 1 - before.size(), 'x') + '\n';
    QCOMPARE(before.size(), block);
    writeFile(path, before);
    fillHome();
    ConnEditor editor(path, nullptr);
    editor.init_list();
    editor.findChild<ComboLineEdit *>()->setText(QLatin1String("111.222.111.222"));
    editor.on_save_clicked();
    QCOMPARE(editor.result(), int(QDialog::Accepted));
    if (!TestCompat::settingsAreWrittenInPlace()) {
        QVERIFY(readFile(path) == before);
        return;
    }
    QByteArray whole = before;
    whole.replace("1.2.3.4", "111.222.111.222");
    QVERIFY(readFile(path) == whole.left(block));
}

FILARIX_TEST_MAIN(TestFullPanel)
#include "tst_fullpanel.moc"
