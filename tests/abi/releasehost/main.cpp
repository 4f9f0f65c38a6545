// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// A host as it was built with the last release: releasehost.sh compiles it with that release's
// headers and runs it with the libraries of today. It changes with a release only.

#include <checkbox.h>
#include <combobox.h>
#include <conneditor.h>
#include <dataeditor.h>
#include <dialog.h>
#include <doublespinbox.h>
#include <filarixrows.h>
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
#include <tlistwidget.h>
#include <wgcodeediter.h>
#include <whighlighter.h>
#include <wmmainwindow.h>

#include <base/questioner.h>
#include <guards/programguard.h>
#include <programs/checkeddownload.h>
#include <programs/plctransfer.h>
#include <programs/programhistory.h>
#include <programs/programsnapshot.h>
#include <programs/unsavedwork.h>
#include <stick/importguard.h>
#include <storage/durablefile.h>
#include <storage/filetaskrunner.h>
#include <storage/rowkeeper.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

namespace {

int failures = 0;

void check(bool condition, const char *what)
{
    if (condition)
        return;
    std::fprintf(stderr, "releasehost: not so: %s\n", what);
    ++failures;
}

const unsigned char pattern = 0xA5;

/// A class of a host's upon one of the library's, which must keep off what the host has behind it.
template<class Base>
class Derived : public Base
{
public:
    template<class... Arguments>
    explicit Derived(Arguments &&...arguments) : Base(std::forward<Arguments>(arguments)...)
    {}

    bool isUntouched() const
    {
        const unsigned char *end = m_own + sizeof m_own;
        return std::count(m_own, end, pattern) == long(sizeof m_own);
    }

private:
    // Not set by the constructor: it stays as it was found in memory.
    unsigned char m_own[256];
};

template<class Base, class... Arguments>
void derive(const char *name, Arguments &&...arguments)
{
    void *memory = ::operator new(sizeof(Derived<Base>));
    std::memset(memory, pattern, sizeof(Derived<Base>));
    auto *object = new (memory) Derived<Base>(std::forward<Arguments>(arguments)...);
    check(object->isUntouched(), name);
    object->~Derived<Base>();
    ::operator delete(memory);
}

QString homeFile(const char *name)
{
    return QDir::home().filePath(QLatin1String(name));
}

void deriveFromTheLibrary()
{
    QStringList title = FilarixRows::titleRow("Name", "Position", "Speed", "Zone", "Tool");
    QStringList row =
        FilarixRows::InstructionRow(FilarixRows::InstructionRow::Linear, "MOVL").row(1);
    QStringList cells = QStringList() << "1"
                                      << "speed";
    derive<CheckBox>("CheckBox", "Dry run", nullptr);
    derive<ComboBox>("ComboBox", nullptr, false);
    derive<ConnEditor>("ConnEditor", homeFile("connections.ini"), nullptr);
    derive<DataEditor>("DataEditor", false, cells, QSize(480, 272), nullptr, false);
    derive<Dialog>("Dialog", nullptr);
    derive<DoubleSpinBox>("DoubleSpinBox", nullptr);
    derive<FileDialog>("FileDialog", QDir::Files, "Rows", QDir::homePath(), nullptr, Qt::Dialog);
    derive<GroupBox>("GroupBox", "Limits", nullptr);
    derive<ImportManage>("ImportManage", nullptr);
    derive<LineEdit>("LineEdit", nullptr);
    derive<ListWidget>("ListWidget", nullptr);
    derive<MessageBox>("MessageBox", nullptr);
    derive<PushButton>("PushButton", "Start", nullptr);
    derive<ScrollBar>("ScrollBar", Qt::Vertical, nullptr);
    derive<SpinBox>("SpinBox", nullptr);
    derive<TListWidget>("TListWidget", title, nullptr);
    derive<WGCodeEditer>("WGCodeEditer", nullptr);
    QTextDocument document;
    derive<WHighlighter>("WHighlighter", &document);
    derive<WMMainWindow>("WMMainWindow", nullptr, 90);
}

/// Answers that only the right places in the table of virtual functions give.
class Count : public FileTask
{
public:
    bool step() override { return ++m_steps < 3; }
    int percent() const override { return 100 * m_steps / 3; }
    void close() override { m_isClosed = true; }

    int steps() const { return m_steps; }
    bool isClosed() const { return m_isClosed; }

private:
    int m_steps = 0;
    bool m_isClosed = false;
};

class LastAnswer : public Questioner
{
public:
    int ask(const Question &question) override { return question.answers.size() - 1; }
};

void deriveFromTheCompanion()
{
    LastAnswer questioner;
    WMMainWindow window(nullptr, 0);
    derive<ProgramGuard>("ProgramGuard", &window, QDir::homePath(), &questioner);
    derive<ProgramHistory>("ProgramHistory", QDir::homePath(), homeFile("history"));
    derive<ProgramSnapshot>("ProgramSnapshot", homeFile("snapshots"));
    derive<PlcTransfer>("PlcTransfer", homeFile("plc"));
    derive<ImportGuard>("ImportGuard", QDir::homePath(), homeFile("stick"), &questioner);
    derive<UnsavedWork>("UnsavedWork", homeFile("unsaved"));
    derive<DurableFile>("DurableFile", homeFile("file"));
    derive<FileTaskRunner>("FileTaskRunner");
}

void runATask()
{
    const auto task = std::make_shared<Count>();
    FileTaskRunner runner;
    QEventLoop loop;
    QObject::connect(&runner, SIGNAL(ended()), &loop, SLOT(quit()));
    QTimer::singleShot(30000, &loop, SLOT(quit()));
    runner.start(task);
    loop.exec();
    check(task->steps() == 3 && task->isClosed(), "the companion calls a host's task");
}

void useTheWindow()
{
    WMMainWindow window(nullptr, 90);
    WGCodeEditer *editor = window.findChild<WGCodeEditer *>();
    window.show();
    window.insertLine("G01 X1 Y2");
    check(editor && editor->curLineText() == "G01 X1 Y2", "the window takes a line");
    window.setDownloading(true);
    check(window.isDownloading(), "the window knows of a transfer");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    deriveFromTheLibrary();
    deriveFromTheCompanion();
    runATask();
    useTheWindow();
    return failures ? 1 : 0;
}
