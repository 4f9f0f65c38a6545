// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "plainlist.h"

#include "dataeditor.h"
#include "mjline.h"

#include <QApplication>
#include <QDesktopWidget>

PlainList::PlainList(QStringList &, QWidget *parent)
    : ListWidget(parent), m_startLine(0), m_totalLine(14), m_curIndex(0), m_lastIndex(-1)
{
    m_size = QApplication::desktop()->availableGeometry(-1).size();
    m_size.setWidth(qMin(m_size.width(), 480));
}

void PlainList::reshow()
{
    m_lastIndex = m_curIndex;
    m_startLine = qMax(m_startLine, 0);
    const int first = m_startLine;
    const int end = qMax(first, qMin(m_startLine + m_totalLine, count()));
    recalculateHeight();
    for (int i = first; getListPos(i) < ListWidget::count(); ++i) {
        if (i < end)
            itemAt(getListPos(i))->blockSignals(true);
        else
            itemAt(getListPos(i))->hide();
    }
    for (int i = first; i < end; ++i) {
        QStringList row = m_content.at(i);
        if (getListPos(i) < ListWidget::count()) {
            setContent(i, row);
        } else {
            row.removeFirst();
            ListWidget::addWidget(new MJLine(row, m_size, this));
        }
        QWidget *widget = itemAt(getListPos(i));
        widget->show();
        deselect(i, i != m_curIndex);
        widget->blockSignals(false);
    }
    recalculateHeight();
}

void PlainList::setContent(int i, QStringList row)
{
    m_content.replace(i, row);
    row.removeFirst();
    if (getListPos(i) < 0 || getListPos(i) > m_totalLine)
        return;
    MJLine *line = static_cast<MJLine *>(itemAt(getListPos(i)));
    line->setLineList(row);
    line->firstLine()->show();
    line->dataEditor()->hide();
}

void PlainList::deselect(int i, bool plain)
{
    if (getListPos(i) > m_totalLine || getListPos(i) < 0 || i >= count())
        return;
    QWidget *widget = itemAt(getListPos(i));
    if (!widget)
        return;
    widget->setStyleSheet(plain ? QLatin1String("border-style:solid;border-width: 1px; "
                                                "background-color:#ffffff;color: #000000;")
                                : QLatin1String("border-style:solid;border-width: 1px;"
                                                "background-color: #00ffff;color: #ffffff;"));
}

void PlainList::sweep()
{
    for (int i = m_startLine;
         i < count() && getListPos(i) < m_totalLine && getListPos(i) < ListWidget::count(); ++i) {
        MJLine *line = static_cast<MJLine *>(itemAt(getListPos(i)));
        if (line->isExpanded())
            line->on_expand();
    }
}

void PlainList::prevPage()
{
    if (m_totalLine > count())
        return;
    m_startLine = qMax(0, m_startLine - m_totalLine);
    sweep();
    reshow();
}

void PlainList::nextPage()
{
    if (m_startLine + m_totalLine >= count())
        return;
    m_startLine += m_totalLine;
    sweep();
    reshow();
}

void PlainList::home()
{
    if (m_totalLine > count())
        return;
    m_startLine = 0;
    sweep();
    reshow();
}

void PlainList::addWidget(QStringList &row, bool refresh, bool viewOnly)
{
    if (!viewOnly) {
        m_content.append(row);
        if (refresh)
            setCurIndex(count() - 1, false);
    }
    if (count() >= m_totalLine)
        m_startLine = qMax(0, count() - m_totalLine);
    if (refresh)
        reshow();
}

void PlainList::insertWidget(int i, QStringList &row, bool refresh, bool viewOnly)
{
    if (!viewOnly) {
        for (int j = i; j < count(); ++j)
            setIndex(j, QString::fromLatin1("N%1").arg(j + 1));
        m_content.insert(i, row);
        deselect(m_curIndex, true);
        m_curIndex = i;
    }
    if (refresh)
        reshow();
}

void PlainList::setIndex(int i, const QString &n)
{
    QStringList row = m_content.at(i);
    row.replace(1, n);
    m_content.replace(i, row);
    if (getListPos(i) < 1 || getListPos(i) >= m_totalLine)
        return;
    if (MJLine *line = static_cast<MJLine *>(itemAt(getListPos(i))))
        line->setNum(n);
}

void PlainList::setCurIndex(int i, bool force)
{
    if (i < 0)
        return;
    if (getListPos(i) < 0 || getListPos(i) >= m_totalLine || ListWidget::count() <= 1 || force) {
        m_curIndex = i;
        reshow();
        return;
    }
    deselect(m_curIndex, true);
    m_curIndex = i;
    deselect(i, false);
}
