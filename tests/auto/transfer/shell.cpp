// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell.h"

#include "filarixtest.h"

#include <QDir>
#include <QFile>

#include <dlfcn.h>

namespace {

struct State
{
    QList<QByteArray> commands;
    QList<int> answers;
    std::function<void()> before;
};

State &state()
{
    static State instance;
    return instance;
}

const char toolFolder[] = "/tmp/tools";
const char toolLog[] = "/tmp/tools.log";

QByteArray searchPath()
{
    static const QByteArray path = qgetenv("PATH");
    return path;
}

} // namespace

extern "C" int system(const char *command)
{
    state().commands.append(command);
    if (qstrcmp(command, "sync") != 0) {
        if (state().before)
            state().before();
        if (!state().answers.isEmpty())
            return state().answers.takeFirst();
    }
    typedef int (*System)(const char *);
    static const System real = reinterpret_cast<System>(dlsym(RTLD_NEXT, "system"));
    return real(command);
}

QList<QByteArray> Shell::commands()
{
    return state().commands;
}

void Shell::setBefore(const std::function<void()> &action)
{
    state().before = action;
}

void Shell::answerNext(int status)
{
    state().answers.append(status);
}

void Shell::standIn(const char *tool, const QByteArray &script)
{
    const QString path = QLatin1String(toolFolder) + QLatin1Char('/') + QLatin1String(tool);
    FilarixTest::writeFile(path, "#!/bin/sh\n" + script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", QByteArray(toolFolder) + ':' + searchPath());
}

void Shell::recordTool(const char *tool)
{
    standIn(tool, QByteArray("{ printf '%s' ") + tool
                      + "; for a; do printf ' [%s]' \"$a\"; done; echo; } >> " + toolLog
                      + "\nexec /bin/" + tool + " \"$@\"\n");
}

QStringList Shell::toolCalls()
{
    return QString::fromUtf8(FilarixTest::readFile(QLatin1String(toolLog)))
        .split(QLatin1Char('\n'), QString::SkipEmptyParts);
}

void Shell::hideTools()
{
    searchPath();
    qputenv("PATH", "/nonexistent");
}

void Shell::reset()
{
    state() = State();
    FilarixTest::emptyFolder(QLatin1String(toolFolder));
    QFile::remove(QLatin1String(toolLog));
    qputenv("PATH", searchPath());
}
