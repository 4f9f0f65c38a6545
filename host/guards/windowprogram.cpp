// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/windowprogram.h"

#include "guards/programguard.h"
#include "programs/programdirectory.h"
#include "programs/programopener.h"
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
