// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FOREIGNEDITORS_H
#define FOREIGNEDITORS_H

#include <QStringList>

class EditorSubject;

/// What a user would pick instead of the library's editor: QScintilla, KTextEditor.
QStringList foreignEditors();
EditorSubject *newForeignEditor(const QString &name);

#endif // FOREIGNEDITORS_H
