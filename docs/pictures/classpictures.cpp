// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// classpictures FOLDER
//
// Leaves a PNG of each class of the library in FOLDER, made from the widgets as hosts use them. It
// writes into the program directory and on the stick, and so belongs into the tests' sandbox.

#include "checkbox.h"
#include "combobox.h"
#include "conneditor.h"
#include "dataeditor.h"
#include "dialog.h"
#include "doublespinbox.h"
#include "filarixrows.h"
#include "filedialog.h"
#include "groupbox.h"
#include "importmanage.h"
#include "lineedit.h"
#include "listwidget.h"
#include "messagebox.h"
#include "mjline.h"
#include "pushbutton.h"
#include "samples.h"
#include "scrollbar.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListView>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

namespace {

/// A plain widget around \a widgets, side by side.
QWidget *row(const QList<QWidget *> &widgets)
{
    QWidget *frame = new QWidget;
    QHBoxLayout *layout = new QHBoxLayout(frame);
    Q_FOREACH (QWidget *widget, widgets)
        layout->addWidget(widget);
    return frame;
}

QWidget *mainWindow()
{
    WMMainWindow *window = new WMMainWindow(nullptr, 0);
    window->resize(800, 480);
    WGCodeEditer *editor = window->findChild<WGCodeEditer *>();
    editor->readGCode(Samples::program());
    editor->gotoLine(6);
    editor->highlightCurrentLine();
    return window;
}

QWidget *codeEditer()
{
    WGCodeEditer *editor = new WGCodeEditer(nullptr);
    editor->resize(440, 330);
    editor->readGCode(Samples::program());
    editor->moveCursor(QTextCursor::Down);
    return editor;
}

QWidget *highlighter()
{
    WGCodeEditer *editor = new WGCodeEditer(nullptr);
    editor->readGCode("G01 M08 X-12.5 F180\nS1200 T04\ng01 x10 stays plain\n; G01 is coloured");
    editor->setReadOnly(true);
    editor->highlightCurrentLine();
    editor->resize(440, 150);
    return editor;
}

QWidget *gutter()
{
    QWidget *frame = new QWidget;
    WGCodeEditer *editor = new WGCodeEditer(frame);
    editor->readGCode(QString("\n").repeated(99));
    editor->gotoLine(100);
    editor->highlightCurrentLine();
    editor->setGeometry(0, 0, 300, 170);
    editor->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frame->setFixedSize(160, 170);
    return frame;
}

QWidget *pushButton()
{
    PushButton *focused = new PushButton("Start", nullptr);
    PushButton *icon = new PushButton(QIcon(":/images/downloads.png"), "Download", nullptr);
    PushButton *disabled = new PushButton("Stop", nullptr);
    disabled->setEnabled(false);
    QWidget *frame = row(QList<QWidget *>() << focused << icon << disabled);
    focused->setFocus();
    return frame;
}

QWidget *checkBox()
{
    CheckBox *on = new CheckBox("Coolant", nullptr);
    on->setChecked(true);
    return row(QList<QWidget *>() << on << new CheckBox("Single block", nullptr));
}

QWidget *comboBox()
{
    ComboBox *axis = new ComboBox(nullptr, false);
    axis->addItems(QStringList() << "Axis X"
                                 << "Axis Y");
    ComboBox *name = new ComboBox(nullptr, true);
    name->addItems(QStringList() << "editable");
    return row(QList<QWidget *>() << axis << name);
}

QWidget *spinBox()
{
    SpinBox *turns = new SpinBox(nullptr);
    turns->setRange(1, 500);
    turns->setSuffix(" turns");
    turns->setValue(120);
    return row(QList<QWidget *>() << turns);
}

QWidget *doubleSpinBox()
{
    DoubleSpinBox *pitch = new DoubleSpinBox(nullptr);
    pitch->setSuffix(" mm");
    pitch->setValue(12.5);
    return row(QList<QWidget *>() << pitch);
}

QWidget *lineEdit()
{
    LineEdit *name = new LineEdit(nullptr);
    name->setText("stator-coil");
    return row(QList<QWidget *>() << name);
}

QWidget *groupBox()
{
    GroupBox *options = new GroupBox("Spindle", nullptr);
    options->setCheckable(true);
    QVBoxLayout *column = new QVBoxLayout(options);
    column->addWidget(new CheckBox("Clockwise", options));
    column->addWidget(new CheckBox("Brake", options));
    return row(QList<QWidget *>() << options);
}

QWidget *scrollBar()
{
    ScrollBar *across = new ScrollBar(Qt::Horizontal, nullptr);
    across->setOrientation(Qt::Horizontal);
    across->setFixedWidth(260);
    ScrollBar *down = new ScrollBar(Qt::Vertical, nullptr);
    down->setFixedHeight(160);
    across->setValue(30);
    down->setValue(30);
    return row(QList<QWidget *>() << across << down);
}

QWidget *listWidget()
{
    ListWidget *stack = new ListWidget(nullptr);
    const int heights[] = {30, 50, 30};
    for (int height : heights) {
        QLabel *label = new QLabel(QString("a row of %1 pixels").arg(height));
        label->setFixedHeight(height);
        label->setFrameShape(QFrame::Box);
        stack->addWidget(label);
    }
    stack->setFixedWidth(260);
    return stack;
}

QWidget *pagedList()
{
    TListWidget *list = Samples::list(QSize(480, 560));
    list->setFixedWidth(500);
    return list;
}

QWidget *instructionRow()
{
    QStringList closed = Samples::movement(7).mid(1);
    QStringList open = Samples::movement(8).mid(1);
    ListWidget *stack = new ListWidget(nullptr);
    const QSize size(480, 800);
    stack->addWidget(new MJLine(closed, size, stack));
    MJLine *line = new MJLine(open, size, stack);
    line->on_expand();
    stack->addWidget(line);
    stack->recalculateHeight();
    stack->setFixedWidth(500);
    return stack;
}

QWidget *dataEditor()
{
    ListWidget *stack = new ListWidget(nullptr);
    const QSize size(480, 800);
    QStringList title = QStringList() << "No."
                                      << ""
                                      << "Name"
                                      << "Value";
    QStringList tension = QStringList() << "1"
                                        << ""
                                        << "Tension"
                                        << "cN:25.0";
    QStringList note = QStringList() << "2"
                                     << "wound clockwise";
    stack->addWidget(new DataEditor(true, title, size, stack, false));
    stack->addWidget(new DataEditor(false, tension, size, stack, false));
    stack->addWidget(new DataEditor(false, note, size, stack, false));
    stack->setFixedWidth(500);
    return stack;
}

QWidget *connEditor()
{
    ConnEditor *editor = Samples::connections();
    editor->setFixedHeight(240);
    return editor;
}

QWidget *fileDialog()
{
    FileDialog *dialog = Samples::browser();
    dialog->setFixedHeight(300);
    return dialog;
}

QWidget *importManage()
{
    ImportManage *manager = new ImportManage(nullptr);
    manager->init();
    return manager;
}

QWidget *dialog()
{
    Dialog *question = new Dialog(nullptr);
    question->setTitle("Speed");
    QVBoxLayout *column = new QVBoxLayout(question);
    column->addWidget(new QLabel("Speed of the spindle in 1/min:"));
    column->addWidget(new LineEdit(question));
    column->addWidget(new PushButton("OK", question));
    return question;
}

QWidget *messageBox()
{
    MessageBox *box = new MessageBox(nullptr);
    box->setIcon(QMessageBox::Warning);
    box->setText("Are you sure to delete part.cnc?");
    box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    return box;
}

struct Picture
{
    const char *name;
    QWidget *(*make)();
};

const Picture pictures[] = {
    {"checkbox", checkBox},
    {"combobox", comboBox},
    {"conneditor", connEditor},
    {"dataeditor", dataEditor},
    {"dialog", dialog},
    {"doublespinbox", doubleSpinBox},
    {"filedialog", fileDialog},
    {"groupbox", groupBox},
    {"importmanage", importManage},
    {"lineedit", lineEdit},
    {"listwidget", listWidget},
    {"messagebox", messageBox},
    {"mjline", instructionRow},
    {"pushbutton", pushButton},
    {"scrollbar", scrollBar},
    {"spinbox", spinBox},
    {"tlistwidget", pagedList},
    {"wgcodeediter", codeEditer},
    {"wglinenubmerarea", gutter},
    {"whighlighter", highlighter},
    {"wmmainwindow", mainWindow},
};

/// Time for what a shown widget does by itself: layouts, and a folder that a model reads.
void settle()
{
    QEventLoop loop;
    QTimer::singleShot(100, &loop, SLOT(quit()));
    loop.exec();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 2 || !qEnvironmentVariableIsSet("FILARIX_SANDBOX")) {
        QTextStream(stderr) << "Usage: classpictures FOLDER, in the sandbox\n";
        return 2;
    }
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
    Samples::writePrograms();

    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const Picture &picture : pictures) {
        QWidget *widget = picture.make();
        widget->show();
        settle();
        const QString path = folder.filePath(QLatin1String(picture.name) + ".png");
        if (!widget->grab().save(path))
            qFatal("%s cannot be written", qPrintable(path));
        delete widget;
    }
    return 0;
}
