// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SUBJECTS_H
#define SUBJECTS_H

#include <QSharedPointer>
#include <QString>
#include <QStringList>

class QWidget;

/// An editor that the library's is measured against, or that itself.
class EditorSubject
{
public:
    virtual ~EditorSubject() = default;

    virtual QWidget *widget() = 0;
    virtual void load(QString text) = 0;
    /// The rest works at the cursor, as an operator does.
    virtual void type(QChar character) = 0;
    virtual void insertLine(const QString &text) = 0;
    virtual void deleteLine() = 0;
    virtual void gotoLine(int line) = 0;
    virtual void pageDown() = 0;
    /// Colours the whole text anew.
    virtual void rehighlight() {}
};

namespace Subjects {

const char shipped[] = "library";
const char plain[] = "plain";
const char floor[] = "floor";
const char scintilla[] = "QScintilla";
const char kate[] = "KTextEditor";
const char tableView[] = "QTableView";

/// The editors that this program was built with.
QStringList editors();
/// An editor in a window of 800 by 480 pixels, shown and painted. "floor" is the toolkit's plain
/// editor without any colours.
QSharedPointer<EditorSubject> showEditor(const QString &name);

} // namespace Subjects

#endif // SUBJECTS_H
