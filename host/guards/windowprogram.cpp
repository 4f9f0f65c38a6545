// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/windowprogram.h"

#include "guards/programguard.h"
#include "programs/programcomparison.h"
#include "programs/programdirectory.h"
#include "programs/programopener.h"
#include "programs/programtext.h"
#include "storage/filejob.h"
#include "storage/filestamp.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <memory>

namespace {

/// Without touching the file system: "." and ".." and doubled slashes aside.
QString cleaned(const QString &path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool isFile(const QString &path)
{
    const std::shared_ptr<bool> isThere = std::make_shared<bool>(false);
    FileJob job;
    job.run([path, isThere] { *isThere = FileStamp::of(path).isValid(); }, [] {}, [] {});
    job.wait();
    return *isThere;
}

/// What the window reads of the file; empty when it cannot be read.
QString textOf(const QString &path)
{
    const std::shared_ptr<QString> text = std::make_shared<QString>();
    QString read;
    FileJob job;
    job.run(
        [path, text] {
            QString error;
            bool isFaithful = true;
            ProgramText::read(path, text.get(), &error, &isFaithful);
        },
        [text, &read] { read = *text; }, [] {});
    job.wait();
    return read;
}

/// The row, from 1, in which an editor shows line \a line of its file; 0 for none.
int rowOf(const QString &file, const QString &shown, int line)
{
    if (line < 1 || line > ProgramText::lines(file))
        return 0;
    switch (ProgramComparison::judge(file, shown)) {
    case ProgramComparison::Same:
        return qMin(line, int(ProgramText::lines(shown)));
    case ProgramComparison::Cleaned:
        return qMax(1, ProgramText::rowOf(file, line));
    default:
        return 0;
    }
}

bool isOccupied(const QPointer<ProgramGuard> &guard)
{
    return QApplication::activeModalWidget() || ProgramOpener::isLoading()
           || (guard && guard->isBusy());
}

} // namespace

WGCodeEditer *WindowProgram::editorOf(const QWidget *window)
{
    return window ? window->findChild<WGCodeEditer *>() : nullptr;
}

bool WindowProgram::openProgram(WMMainWindow *window, const QString &path, ProgramGuard *guard)
{
    const QPointer<WMMainWindow> self(window);
    const QPointer<ProgramGuard> keeper(guard);
    const QString program = cleaned(path);
    if (!window || isOccupied(keeper)
        || QFileInfo(program).path() != cleaned(ProgramDirectory::path()))
        return false;
    // The window would clear its editor before it finds out.
    const bool isThere = isFile(program);
    if (!isThere || !self || isOccupied(keeper))
        return false;
    const auto isBusy = [keeper] { return keeper && keeper->isBusy(); };
    return ProgramOpener(self, isBusy)
        .open(ProgramDirectory::path() + QLatin1Char('/') + QFileInfo(program).fileName());
}

bool WindowProgram::goToFileLine(WMMainWindow *window, int line)
{
    const QString path = window ? window->getCurrentFile() : QString();
    if (path.isEmpty())
        return false;
    const QPointer<WMMainWindow> self(window);
    const QString file = textOf(path);
    if (!self || path != self->getCurrentFile())
        return false;
    WGCodeEditer *editor = editorOf(self);
    const int row = rowOf(file, editor->toPlainText(), line);
    if (row > 0)
        editor->gotoLine(row);
    return row > 0;
}
