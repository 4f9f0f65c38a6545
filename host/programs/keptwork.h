// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEPTWORK_H
#define KEPTWORK_H

#include "base/filarixhostglobal.h"

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// In a text, \a removed characters at \a position, from 0, gave way to \a added.
struct FILARIX_HOST_EXPORT TextChange
{
    int position = 0;
    int removed = 0;
    QString added;
};

/// What unsaved work belongs to, and how it stood.
struct FILARIX_HOST_EXPORT KeptHead
{
    /// Path of the file that the work belongs to; empty for none.
    QString path;
    /// Characters before the cursor.
    int cursor = 0;
    /// What the screen has to know besides, in its own words.
    QMap<QString, QString> state;
};

inline bool operator==(const KeptHead &a, const KeptHead &b)
{
    return a.path == b.path && a.cursor == b.cursor && a.state == b.state;
}

/// The unsaved work of one screen.
struct FILARIX_HOST_EXPORT KeptWork
{
    /// Which screen, in a word of small letters: "program".
    QString subject;
    KeptHead head;
    /// When the work was kept, in UTC.
    QDateTime time;
    /// The text of a program. Each line ends in "\n", the last one in nothing.
    QString text;
    /// The rows of a list.
    QList<QStringList> rows;
    /// Whether the file was written, came or went since the work was kept.
    bool isFileChanged = false;
    bool isFileThere = false;
};

#endif // KEPTWORK_H
