// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SHELL_H
#define SHELL_H

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

/// What the library hands to the operating system's `system`, and what the tools that it names are.
///
/// A program that links shell.cpp has its `system` replaced by one that notes each command and
/// passes it on to the real one.
namespace Shell {

/// The command lines in order, letter for letter.
QList<QByteArray> commands();

/// Runs before each command that is no "sync"; null for none.
void setBefore(const std::function<void()> &action);

/// The next command that is no "sync" does not run and gives \a status.
void answerNext(int status);

/// Puts a shell script first on the PATH under the name \a tool.
void standIn(const char *tool, const QByteArray &script);
/// A stand-in that notes its arguments and becomes the real tool.
void recordTool(const char *tool);
/// What the recording stand-ins were called with: "cp [/a/b] [/c/d] [-rf]".
QStringList toolCalls();

/// Leaves nothing on the PATH: no tool is found.
void hideTools();

/// The real tools, nothing noted.
void reset();

} // namespace Shell

#endif // SHELL_H
