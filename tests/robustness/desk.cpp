// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "desk.h"

#include "combobox.h"
#include "conneditor.h"
#include "dataeditor.h"
#include "filedialog.h"
#include "importmanage.h"
#include "messagebox.h"
#include "spinbox.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QSettings>
#include <QTimer>
#include <QToolButton>

namespace {

void useWindow(bool shown)
{
    WMMainWindow window(nullptr, 90);
    window.resize(480, 800);
    window.setVisible(shown);
    WGCodeEditer *const editor = window.findChild<WGCodeEditer *>();
    editor->readGCode(QString::fromLatin1("G01 X1 ; one\n").repeated(600));
    editor->gotoLine(7);
    editor->findAndReplace();
    window.getEffectiveString(QLatin1String("G01 X1 Y2"));
    QCoreApplication::processEvents();
    window.close();
}

void useList(bool shown)
{
    QStringList title;
    for (int i = 0; i < 9; ++i)
        title << QString::number(i);
    TListWidget list(title, nullptr);
    for (int i = 0; i < 40; ++i) {
        QStringList row = QStringList() << QLatin1String("DataEditor") << QString::number(i)
                                        << QLatin1String("name") << QLatin1String("1");
        list.addWidget(row, i == 39, false);
    }
    list.setVisible(shown);
    QCoreApplication::processEvents();
    list.home();
}

void useDialogs(bool shown)
{
    const QString path = QLatin1String("/tmp/home/connections.ini");
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setValue(QLatin1String("connect count"), 3);
    }
    ConnEditor connections(path, nullptr);
    connections.init_list();
    connections.setVisible(shown);
    FileDialog browser(QDir::AllEntries, QLatin1String("Path"), QLatin1String("/"), nullptr,
                       Qt::WindowFlags());
    browser.setVisible(shown);
    ImportManage manager(nullptr);
    manager.init();
    manager.setVisible(shown);
    QCoreApplication::processEvents();
    QTimer::singleShot(0, &manager, SLOT(slot_quit()));
    MessageBox::warning(&manager, QString(), QLatin1String("text"), QMessageBox::Yes,
                        QMessageBox::NoButton);
}

void useControls(bool shown)
{
    SpinBox number(nullptr);
    ComboBox choice(nullptr);
    choice.addItem(QLatin1String("one"));
    number.setVisible(shown);
    choice.setVisible(shown);
    QCoreApplication::processEvents();
}

} // namespace

void useDesk(bool shown)
{
    useWindow(shown);
    useList(shown);
    useDialogs(shown);
    useControls(shown);
    // The buttons that a window leaves are the host's to delete.
    Q_FOREACH (QWidget *widget, QApplication::topLevelWidgets()) {
        if (qobject_cast<QToolButton *>(widget))
            delete widget;
    }
}
