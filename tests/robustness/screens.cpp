// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens.h"

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
#include "messagebox.h"
#include "mjline.h"
#include "pushbutton.h"
#include "scrollbar.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "whighlighter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>

namespace {

QStringList *currentTroubles = nullptr;

void check(bool condition, const char *what)
{
    if (!condition)
        *currentTroubles << QString::fromLatin1(what);
}

template<class Button>
void pressAll(QWidget *screen)
{
    // A button may close the screen, or lead to others that come and go.
    QList<QPointer<Button>> buttons;
    Q_FOREACH (Button *button, screen->findChildren<Button *>())
        buttons << button;
    Q_FOREACH (const QPointer<Button> &button, buttons) {
        if (button)
            button->click();
        QCoreApplication::processEvents();
    }
}

void tapAll(QWidget *screen, const char *className)
{
    QList<QPointer<QWidget>> places;
    Q_FOREACH (QWidget *place, screen->findChildren<QWidget *>()) {
        if (place->inherits(className))
            places << place;
    }
    check(!places.isEmpty(), className);
    Q_FOREACH (const QPointer<QWidget> &place, places) {
        if (!place)
            continue;
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(2, 2), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(place, &press);
    }
}

void walkPrograms()
{
    WMMainWindow window(nullptr, 90);
    window.resize(480, 800);
    window.show();
    window.insertLine(QLatin1String("G01 X1 Y2"));
    WGCodeEditer *const editor = window.findChild<WGCodeEditer *>();
    check(editor, "no editor");
    if (!editor)
        return;
    check(editor->curLineText() == QLatin1String("G01 X1 Y2"), "the line is not there");
    check(editor->document()->findChild<WHighlighter *>(), "no highlighter");
    pressAll<QToolButton>(&window);
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (QToolButton *unplaced = qobject_cast<QToolButton *>(widget)) {
            unplaced->click();
            delete unplaced; // a window leaves the buttons that stand in no bar to the host
        }
    }
    editor->readGCode(QString::fromLatin1("G01 X1 ; one\n").repeated(600));
    check(editor->blockCount() > 500, "the program is not there");
    check(!window.getEffectiveString(QLatin1String("G01 X1 Y2")).isEmpty(), "no filter");
    window.close();
}

QStringList instruction(int index)
{
    FilarixRows::InstructionRow row(FilarixRows::InstructionRow::Joint, QLatin1String("MOVJ"));
    row.setJpos(QLatin1String("P"), 1).setV(QLatin1String("V"), 2);
    row.setZ(QLatin1String("Z"), QLatin1String("0")).setT(QLatin1String("T"), QLatin1String("1"));
    return row.row(index);
}

void walkInstructions()
{
    QStringList title =
        FilarixRows::titleRow(QLatin1String("I"), QLatin1String("P"), QLatin1String("V"),
                              QLatin1String("Z"), QLatin1String("T"));
    TListWidget list(title, nullptr);
    for (int i = 1; i <= 40; ++i) {
        QStringList row = i % 5 ? instruction(i) : FilarixRows::otherRow(i, QLatin1String("text"));
        list.addWidget(row, i == 40, false);
    }
    list.show();
    list.home();
    check(qobject_cast<MJLine *>(list.itemAt(1)), "no instruction row");
    tapAll(&list, "Label");
    tapAll(&list, "ComboLineEdit");
    list.nextPage();
    list.removeWidget(3, true);
    check(list.count() == 40, "the row is still there");
    check(list.getContent(3).value(1) == QLatin1String("3"), "the row has another number");
}

void walkTables()
{
    QStringList noTitle;
    TListWidget list(noTitle, nullptr);
    for (int i = 0; i < 20; ++i) {
        QStringList row = FilarixRows::dataRow(i, QStringList() << QString() << QLatin1String("a")
                                                                << QLatin1String("1"));
        list.addWidget(row, i == 19, false);
    }
    list.show();
    check(qobject_cast<DataEditor *>(list.itemAt(1)), "no table row");
    tapAll(&list, "ComboLineEdit");

    const QString path = QLatin1String("/tmp/home/connections.ini");
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue(QLatin1String("connect count"), 3);
    }
    ConnEditor connections(path, nullptr);
    connections.init_list();
    connections.show();
    pressAll<QPushButton>(&connections);
}

void walkFiles()
{
    FileDialog::getOpenFileName(nullptr, QLatin1String("Path"), QLatin1String("/tmp"),
                                QDir::AllEntries);
    FileDialog browser(QDir::AllEntries, QLatin1String("Path"), QLatin1String("/"), nullptr,
                       Qt::WindowFlags());
    browser.show();
    pressAll<QPushButton>(&browser);
    ImportManage manager(nullptr);
    manager.init();
    manager.show();
    pressAll<QPushButton>(&manager);
    MessageBox::about(nullptr, QString(), QLatin1String("text"));
    MessageBox::critical(nullptr, QString(), QLatin1String("text"));
    MessageBox::warning(nullptr, QString(), QLatin1String("text"), QMessageBox::Yes,
                        QMessageBox::NoButton);
    Dialog dialog(nullptr);
    dialog.setTitle(QLatin1String("title"));
    dialog.show();
    check(dialog.getTitle() == QLatin1String("title"), "another title");
}

void walkControls()
{
    ListWidget list(nullptr);
    list.addWidget(new CheckBox(QLatin1String("Dry run"), nullptr));
    list.addWidget(new ComboBox(nullptr, false));
    list.addWidget(new DoubleSpinBox(nullptr));
    list.addWidget(new GroupBox(QLatin1String("Limits"), nullptr));
    list.addWidget(new LineEdit(nullptr));
    list.addWidget(new PushButton(QLatin1String("Start"), nullptr));
    list.addWidget(new ScrollBar(Qt::Vertical, nullptr));
    list.addWidget(new SpinBox(nullptr));
    list.show();
    check(list.count() == 8, "another number of controls");
    for (int i = 0; i < list.count(); ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(list.itemAt(i), &press);
        QApplication::sendEvent(list.itemAt(i), &release);
    }
    QCoreApplication::processEvents();
}

} // namespace

void walkScreens(QStringList *troubles)
{
    currentTroubles = troubles;
    walkPrograms();
    walkInstructions();
    walkTables();
    walkFiles();
    walkControls();
}
