// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "host.h"

#include <checkbox.h>
#include <combobox.h>
#include <conneditor.h>
#include <dataeditor.h>
#include <doublespinbox.h>
#include <filarixrows.h>
#include <filarixversion.h>
#include <filedialog.h>
#include <groupbox.h>
#include <importmanage.h>
#include <lineedit.h>
#include <listwidget.h>
#include <messagebox.h>
#include <mjline.h>
#include <pushbutton.h>
#include <scrollbar.h>
#include <spinbox.h>
#include <wgcodeediter.h>
#include <whighlighter.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTextDocument>
#include <QTranslator>

#include <cstdio>

namespace {

int failures = 0;

void check(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "host: not so: %s\n", what);
    ++failures;
}

#if FILARIX_VERSION < FILARIX_VERSION_CHECK(1, 0, 0)
#error "A version is older than the first one."
#endif

void compareVersions()
{
    check(FILARIX_VERSION
              == FILARIX_VERSION_MAJOR * 65536 + FILARIX_VERSION_MINOR * 256
                     + FILARIX_VERSION_PATCH,
          "a version is one number");
    check(FILARIX_VERSION_CHECK(1, 2, 3) > FILARIX_VERSION_CHECK(1, 1, 255), "they compare");
#ifdef PACKAGE_VERSION
    check(!qstrcmp(FILARIX_VERSION_STR, PACKAGE_VERSION), "the package and its header agree");
#endif
}

void useProgramSide()
{
    WMMainWindow window(nullptr, 90);
    Downloader downloader(&window);
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    // The two ways to connect find the same signal.
    QStringList paths;
    check(QObject::connect(&window, &WMMainWindow::signal_download,
                           [&paths](const QString &path) { paths << path; }),
          "a signal is found by its address");
#endif
    QObject *object = &window;
    check(qobject_cast<WMMainWindow *>(object), "a class is found by its meta-object");
    window.show();
    window.insertLine("G01 X1 Y2");
    window.insertLine("G01 X1 Y3");
    WGCodeEditer *editor = window.findChild<WGCodeEditer *>();
    check(editor, "the window has an editor");
    editor->gotoLine(2);
    check(editor->curLineText() == "G01 X1 Y3", "a host reaches the lines of the editor");
    check(editor->document()->findChild<WHighlighter *>(), "the document has its highlighter");
    QMetaObject::invokeMethod(&window, "signal_download", Q_ARG(QString, "/a/program.cnc"));
    check(downloader.sent() == "/a/program.cnc", "the host gets the program's path");
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    check(paths == QStringList("/a/program.cnc"), "the host gets it either way");
#endif
    check(downloader.wasBusy() && !window.isDownloading(), "the transfer is bracketed");
}

void useListSide()
{
    using namespace FilarixRows;
    QStringList title = titleRow("Name", "Position", "Speed", "Zone", "Tool");
    Program program(title);
    QList<QStringList> rows;
    for (int i = 1; i <= 30; ++i) {
        InstructionRow row(InstructionRow::Linear, "MOVL");
        row.setJpos("P", i).setV("V", 2).setZ("Z", "1").setT("T", "0.5").setRes("next layer");
        rows << row.row(program.count());
        QStringList copy = rows.last();
        program.addWidget(copy, false, false);
    }
    check(checkRows(rows, 1).isEmpty(), "built rows are well-formed");
    program.home();
    program.show();
    check(program.count() == 31 && program.getContent(30) == rows.last(), "the list keeps rows");
    check(program.getJposIndex(7) == 7, "the list reads rows");
    check(qobject_cast<MJLine *>(program.itemAt(1)), "a row's widget is a MJLine");
    check(!qstrcmp(program.metaObject()->superClass()->className(), "TListWidget"), "derived");
    QStringList cells = QStringList() << "1"
                                      << "speed";
    DataEditor editor(false, cells, QSize(480, 272), nullptr, false);
    check(editor.getData() == cells, "a table row keeps its cells");
}

#ifdef TRANSLATIONS
void useTranslations()
{
    QTranslator german;
    check(german.load("filarix_de", TRANSLATIONS), "the translations are where the package says");
    QCoreApplication::installTranslator(&german);
    check(MessageBox::tr("About Corvane") == QString::fromUtf8("\303\234ber Corvane"),
          "the library speaks German");
    QCoreApplication::removeTranslator(&german);
}
#endif

void useTheRest()
{
    Question question;
    check(question.getTitle() == question.windowTitle(), "a dialog has one title");
    MessageBox box(nullptr);
    ImportManage manager(nullptr);
    ConnEditor connections(QDir::home().filePath("connections.ini"), nullptr);
    QFile(QDir::home().filePath("rows.txt")).open(QIODevice::WriteOnly);
    FileDialog files(QDir::Files, "Rows", QDir::homePath(), nullptr, Qt::Dialog);
    files.getDirList();
    check(files.findChild<TListWidget *>()->ListWidget::count() > 0,
          "the path dialog lists a folder");
    ListWidget list(nullptr);
    list.addWidget(new PushButton("Start", nullptr));
    list.addWidget(new CheckBox("Dry run", nullptr));
    list.addWidget(new ComboBox(nullptr, false));
    list.addWidget(new SpinBox(nullptr));
    list.addWidget(new DoubleSpinBox(nullptr));
    list.addWidget(new LineEdit(nullptr));
    list.addWidget(new GroupBox("Limits", nullptr));
    list.addWidget(new ScrollBar(Qt::Vertical, nullptr));
    check(list.count() == 8, "the control kit");
}

} // namespace

// The resource functions are global, so is who declares them.
static void swapIcons()
{
    check(QFile::exists(":/images/copy.png"), "the icons come with the library");
    Q_CLEANUP_RESOURCE(robot);
    check(!QFile::exists(":/images/copy.png"), "a host takes the icons away");
    Q_INIT_RESOURCE(robot);
    check(QFile::exists(":/images/copy.png"), "a host brings them back");
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    swapIcons();
    compareVersions();
    useProgramSide();
    useListSide();
    useTheRest();
#ifdef TRANSLATIONS
    useTranslations();
#endif
    return failures ? 1 : 0;
}
