// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STOREDPROGRAM_H
#define STOREDPROGRAM_H

#include "wgcodeediter.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

//! [stored program]
/// A program as it lies in its file, beside the one that the editor shows.
///
/// The two differ by design when a program of 500 lines or more has been opened: the editor has
/// neither comments nor empty lines then. Storing the program ends that. They differ by an accident
/// when the operator ended the loading halfway, when the disk was full, or when the last changes
/// were discarded.
class StoredProgram
{
public:
    StoredProgram(WGCodeEditer *editor, const QString &path) : m_editor(editor), m_isRead(false)
    {
        QFile file(path);
        if (path.isEmpty() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
            return;
        QTextStream stream(&file); // reads as the window does
        m_text = stream.readAll();
        m_isRead = true;
    }

    /// The editor shows all of the file, letter for letter.
    bool isShownAsItIs() const { return m_isRead && shown() == m_text; }
    /// The editor shows all of the file but its comments and empty lines.
    bool isShownCleaned() const { return m_isRead && shown() == m_editor->preproccess(lines()); }

    QStringList lines() const { return m_text.split(QLatin1Char('\n')); }

private:
    QString shown() const { return m_editor->toPlainText(); }

    WGCodeEditer *m_editor;
    bool m_isRead;
    QString m_text;
};
//! [stored program]

#endif // STOREDPROGRAM_H
