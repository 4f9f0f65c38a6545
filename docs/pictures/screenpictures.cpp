// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// screenpictures FOLDER
//
// Leaves a PNG of each of the library's screens in FOLDER, as the whole display shows them. It
// writes into the program directory and on the stick, and so belongs into the tests' sandbox.

#include "conneditor.h"
#include "doublespinbox.h"
#include "filedialog.h"
#include "groupbox.h"
#include "lineedit.h"
#include "messagebox.h"
#include "pushbutton.h"
#include "samples.h"
#include "spinbox.h"
#include "testcompat.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include "hmidevice/numerickeypad.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QDir>
#include <QFormLayout>
#include <QScopedPointer>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const int settled = 1500; // milliseconds, for an emulated program, too

/// Pictures the display once it has settled, then closes the dialogs that wait for an answer.
class Photographer : public QObject
{
    Q_OBJECT

public:
    explicit Photographer(const QString &path) : m_path(path)
    {
        QTimer::singleShot(settled, this, SLOT(shoot()));
    }
    bool isDone() const { return m_isDone; }

public Q_SLOTS:
    void shoot()
    {
        if (!m_isDone && !TestCompat::screen().save(m_path))
            qFatal("%s cannot be written", qPrintable(m_path));
        m_isDone = true;
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        dialog->close();
        QTimer::singleShot(0, this, SLOT(shoot()));
    }

private:
    QString m_path;
    bool m_isDone = false;
};

/// The host's window, which fills the display, with what stands on it.
class Desk : public WMMainWindow
{
public:
    Desk() : WMMainWindow(nullptr, 0), editor(findChild<WGCodeEditer *>())
    {
        editor->readGCode(Samples::program());
        editor->document()->setModified(false);
        editor->gotoLine(6);
        showFullScreen();
        QApplication::processEvents();
    }

    void call(const char *command) { QMetaObject::invokeMethod(this, command); }
    void place(QWidget *screen)
    {
        m_screen.reset(screen);
        screen->show();
    }
    void fill(QWidget *screen)
    {
        m_screen.reset(screen);
        screen->showFullScreen();
    }

    WGCodeEditer *const editor;

private:
    QScopedPointer<QWidget> m_screen;
};

void program(Desk &) {}

void findText(Desk &desk)
{
    desk.editor->findAndReplace();
}

void picker(Desk &desk)
{
    desk.call("open");
}

void lineKeypad(Desk &desk)
{
    desk.call("softEditGcode");
}

void numberKeypad(Desk &)
{
    NumericKeypad *keypad = NumericKeypad::instance();
    keypad->setText("120");
    keypad->exec();
}

void importExport(Desk &desk)
{
    desk.call("importExport");
}

void list(Desk &desk)
{
    QWidget *frame = new QWidget;
    QVBoxLayout *column = new QVBoxLayout(frame);
    column->addWidget(Samples::list(QApplication::desktop()->size()));
    desk.fill(frame);
}

void connections(Desk &desk)
{
    desk.place(Samples::connections());
}

void browser(Desk &desk)
{
    desk.place(Samples::browser());
}

void question(Desk &)
{
    MessageBox::warning(nullptr, "Download", "Are you sure to delete part.cnc?",
                        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
}

void controls(Desk &desk)
{
    GroupBox *spindle = new GroupBox("Spindle", nullptr);
    QFormLayout *rows = new QFormLayout(spindle);
    SpinBox *turns = new SpinBox(spindle);
    turns->setRange(1, 500);
    turns->setValue(120);
    DoubleSpinBox *pitch = new DoubleSpinBox(spindle);
    pitch->setValue(12.5);
    LineEdit *name = new LineEdit(spindle);
    name->setText("stator-coil");
    rows->addRow("Turns", turns);
    rows->addRow("Pitch", pitch);
    rows->addRow("Name", name);
    rows->addRow(new PushButton("Start", spindle));
    desk.fill(spindle);
}

struct Screen
{
    const char *name;
    void (*open)(Desk &);
};

const Screen screens[] = {
    {"program", program},
    {"find", findText},
    {"picker", picker},
    {"line-keypad", lineKeypad},
    {"list", list},
    {"number-keypad", numberKeypad},
    {"connections", connections},
    {"browser", browser},
    {"controls", controls},
    {"import-export", importExport},
    {"question", question},
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2 || qgetenv("FILARIX_SANDBOX").isEmpty()) {
        QTextStream(stderr) << "Usage: screenpictures FOLDER, in the sandbox\n";
        return 2;
    }
    // As a panel's host would: what the toolkits start with depends on the display.
    QFont font(QLatin1String("DejaVu Sans"));
    font.setPixelSize(qMax(10, QApplication::desktop()->height() / 32));
    QApplication::setFont(font);
    TestCompat::paintWithoutViewers();
    Samples::writePrograms();
    const QDir folder(arguments.at(1));
    for (const Screen &screen : screens) {
        Desk desk;
        Photographer photographer(folder.filePath(QLatin1String(screen.name) + ".png"));
        screen.open(desk);
        while (!photographer.isDone())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return 0;
}

#include "screenpictures.moc"
