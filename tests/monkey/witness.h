// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WITNESS_H
#define WITNESS_H

#include "storage/filestamp.h"

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

/// Remembers what every program in a directory ever was, and tells in the end what is lost: in no
/// program any more, and in no version of the history.
class Witness
{
public:
    /// Reads what has changed since the last look.
    void look(const QString &programDir);
    /// What was seen and is neither in \a programDir nor in the history in \a historyDir; a line
    /// each. What the history has let go because it was full doesn't count.
    QStringList lost(const QString &programDir, const QString &historyDir) const;
    int count() const { return m_seen.size(); }

private:
    /// By their SHA-256, the name under which they were seen last and their size.
    QMap<QByteArray, QString> m_seen;
    QHash<QString, FileStamp> m_stamps;
};

#endif // WITNESS_H
