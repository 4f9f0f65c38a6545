// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/unsavedlist.h"

#include "filarixrows.h"
#include "tlistwidget.h"

UnsavedList::UnsavedList(TListWidget *list, int firstRow, const QString &name)
    : m_list(list), m_firstRow(firstRow), m_name(name), m_stored(UnsavedList::rows())
{}

QList<QStringList> UnsavedList::rows() const
{
    QList<QStringList> all;
    for (int i = m_firstRow; i < m_list->count(); ++i)
        all.append(m_list->getContent(i));
    return all;
}

bool UnsavedList::bringBack(const QString &, const QList<QStringList> &rows)
{
    if (!FilarixRows::checkRows(rows, m_firstRow).isEmpty())
        return false;
    m_list->clear();
    for (QStringList row : rows)
        m_list->addWidget(row, false, false);
    QStringList none;
    m_list->addWidget(none, true, true);
    m_list->home();
    return true;
}

QString UnsavedList::nameOf(const QString &) const
{
    return m_name;
}

QString UnsavedList::describe(const QString &name, const QString &time, int count) const
{
    return tr("%1, %2, rows: %3").arg(name, time).arg(count);
}
