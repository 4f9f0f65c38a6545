// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "filedialog.h"
#include "fuzz.h"
#include "label.h"
#include "waqp.h"
#include "wfiledialog.h"

#include <QDir>
#include <QLineEdit>
#include <QTableWidget>

#include <fcntl.h>
#include <unistd.h>

namespace {

QString parentOf(const QString &path)
{
    const QString parent = path.left(path.lastIndexOf(QLatin1Char('/')));
    return parent.isEmpty() ? QString(QLatin1Char('/')) : parent;
}

/// Every name of the program directory can be picked, and comes back as it stands there.
void pickEachProgram(const QStringList &names)
{
    WFileDialog dialog(nullptr);
    QTableWidget *table = dialog.findChild<QTableWidget *>();
    FUZZ_REQUIRE(table->rowCount() == names.size());
    for (int row = 0; row < table->rowCount(); ++row) {
        dialog.openFileOfItem(row, 1);
        dialog.on_applyButton_clicked();
        FUZZ_REQUIRE(names.contains(dialog.fileName));
    }
}

/// The path dialog from \a start: each line is touched, opened and left again.
void touchEachLine(const QString &start)
{
    FileDialog dialog(QDir::AllEntries | QDir::NoDotAndDotDot, start, start, nullptr,
                      Qt::WindowFlags());
    const QList<Label *> lines = dialog.findChildren<Label *>();
    for (Label *line : lines) {
        const QString before = FileDialog::m_returnStr;
        const QString parent = before.endsWith(QLatin1Char('/')) ? before : parentOf(before) + '/';
        Q_EMIT line->clicked();
        FUZZ_REQUIRE(FileDialog::m_returnStr == parent + line->text());
        dialog.on_cdDown_click();
        dialog.on_cdUp_click();
    }
}

} // namespace

// Files of odd names, each a line of the input; the first line is where the path dialog starts.
void Fuzz::tryInput(QByteArray bytes)
{
    const QByteArray directory = WAQP::getCncDir().toLocal8Bit();
    const QString start = QString::fromUtf8(takePart(&bytes, '\n'));
    QList<QByteArray> paths;
    for (int i = 0; i < 12 && !bytes.isEmpty(); ++i) {
        const QByteArray path = directory + '/' + takePart(&bytes, '\n');
        const int file = ::open(path.constData(), O_CREAT | O_EXCL | O_WRONLY, 0600);
        if (file < 0)
            continue; // no name, or one that is there already
        ::close(file);
        paths << path;
    }
    QDir programs(WAQP::getCncDir());
    pickEachProgram(programs.entryList(QDir::Files | QDir::NoSymLinks));
    touchEachLine(WAQP::getCncDir() + QLatin1Char('/'));
    touchEachLine(WAQP::getCncDir() + QLatin1Char('/') + start);
    for (const QByteArray &path : paths)
        ::unlink(path.constData());
}
