// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Four small fixed works, for check.sh to count their instructions. Nothing here is painted or laid
// out: fonts differ from machine to machine.

#include "sampleprogram.h"
#include "samplerows.h"
#include "tlistwidget.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QApplication>

#include <ctime>
#include <functional>

namespace {

const int lines = 1000;
const int rows = 500;

void discard(QtMsgType, const QMessageLogContext &, const QString &) {}

} // namespace

/// Takes the place of the C library's: time stands still. By the clock a view is brought up to date
/// now and then, and a progress dialog comes up, on a machine that is slow at the moment.
extern "C" Q_DECL_EXPORT int clock_gettime(clockid_t, timespec *time) noexcept
{
    time->tv_sec = 1;
    time->tv_nsec = 0;
    return 0;
}

/// Found by its name by the tool that counts, once for each work.
extern "C" Q_DECL_EXPORT Q_NEVER_INLINE void count_work(const std::function<void()> &work)
{
    work();
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    qInstallMessageHandler(discard);
    const QString program = sampleProgram(lines);

    WGCodeEditer editor(nullptr);
    count_work([&]() { editor.readGCode(program); });
    editor.addErrorCode(0, QLatin1String("x"));
    count_work([&]() { editor.highlightErrorCode(); });

    WMMainWindow window(nullptr, 0);
    WGCodeEditer *const filtered = window.findChild<WGCodeEditer *>();
    filtered->setPlainText(program);
    filtered->moveCursor(QTextCursor::End);
    count_work([&]() {
        for (int i = 0; i < 10; ++i) {
            window.getEffectiveString(QLatin1String("G01 Q5"));
            window.getEffectiveString(QLatin1String("G01 X5 Y6"));
        }
    });

    QStringList noTitle;
    TListWidget list(noTitle, nullptr);
    count_work([&]() {
        for (int i = 0; i < rows; ++i) {
            QStringList row = sampleRow(i);
            list.addWidget(row, false, false);
        }
        for (int i = 0; i < 10; ++i) {
            QStringList row = sampleRow(0);
            list.insertWidget(0, row, false, false);
        }
    });
    return 0;
}
