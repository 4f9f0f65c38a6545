// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "screens/knownrows.h"

#include "storage/rowfile.h"

#include <QCoreApplication>
#include <QMutexLocker>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(KnownRows)
};

} // namespace

void KnownRows::set(const QList<QStringList> &rows)
{
    const QMutexLocker locker(&m_mutex);
    m_isSet = true;
    m_rows = rows;
}

bool KnownRows::read(const QString &path, QList<QStringList> *rows, QString *error) const
{
    QList<QStringList> read;
    if (!RowFile::read(path, &read, error))
        return false;
    const QMutexLocker locker(&m_mutex);
    if (m_isSet && read != m_rows) {
        *error = Words::tr("%1 was changed by somebody else.").arg(path);
        return false;
    }
    *rows = read;
    return true;
}
