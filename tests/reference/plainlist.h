// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLAINLIST_H
#define PLAINLIST_H

#include "listwidget.h"

#include <QList>
#include <QSize>
#include <QStringList>

/// The paged list written down as plainly as it is described: each row that is shown gets its style
/// sheet anew, and each write of the store copies the row. Its rows are the library's. Without a
/// title, and for instruction rows only.
class PlainList : public ListWidget
{
public:
    PlainList(QStringList &noTitle, QWidget *parent);

    int count() const { return m_content.size(); }
    QStringList getContent(int i) const { return m_content.value(i); }

    void reshow();
    void prevPage();
    void nextPage();
    void home();
    void addWidget(QStringList &row, bool refresh, bool viewOnly);
    void insertWidget(int i, QStringList &row, bool refresh, bool viewOnly);
    void setCurIndex(int i, bool force);

private:
    int getListPos(int i) const { return i - m_startLine; }
    void setContent(int i, QStringList row);
    void setIndex(int i, const QString &n);
    void deselect(int i, bool plain);
    void sweep();

    QList<QStringList> m_content;
    int m_startLine;
    int m_totalLine;
    int m_curIndex;
    int m_lastIndex;
    QSize m_size;
};

#endif // PLAINLIST_H
