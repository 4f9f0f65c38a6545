// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// The dialog for the USB stick. It hands file names to the shell as they are, so a host looks at
// the names first.

#include "importmanage.h"
#include "messagebox.h"
#include "pushbutton.h"

#include <QApplication>
#include <QDir>
#include <QVBoxLayout>

class Desk : public QWidget
{
    Q_OBJECT

public:
    Desk()
    {
        PushButton *files = new PushButton(tr("Files"), this);
        QVBoxLayout *column = new QVBoxLayout(this);
        column->addWidget(files);
        connect(files, SIGNAL(clicked()), SLOT(openManager()));
    }

public Q_SLOTS:
    void openManager()
    {
        const QStringList unsafe =
            unsafeNames("/mnt/Storage") + unsafeNames(QDir::home().filePath("cnc"));
        if (!unsafe.isEmpty()) {
            // A parent is to be a dialog: the box goes with it, by a signal that a plain widget
            // lacks.
            MessageBox::critical(nullptr, tr("Files"),
                                 tr("Rename these files first:\n%1").arg(unsafe.join("\n")));
            return;
        }
        ImportManage manager(nullptr);
        manager.init();
        manager.exec();
    }

private:
    /// Names that a shell could take for something else than a name.
    static QStringList unsafeNames(const QString &dir)
    {
        QStringList unsafe;
        const QRegExp safe("[A-Za-z0-9_][A-Za-z0-9_.+-]*");
        Q_FOREACH (const QString &name, QDir(dir).entryList(QDir::Files))
            if (!safe.exactMatch(name))
                unsafe.append(name);
        return unsafe;
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Desk desk;
    desk.resize(240, 120);
    desk.show();
    return application.exec();
}

#include "main.moc"
