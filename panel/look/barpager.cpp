// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/barpager.h"

#include "look/glyphs.h"

#include <QAction>
#include <QEvent>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

BarPager::BarPager(QToolBar *bar)
    : QObject(bar), m_bar(bar), m_key(new QToolButton), m_items(bar->actions())
{
    m_key->setIcon(Glyphs::icon(Glyphs::More, Glyphs::OnPaper));
    m_key->setText(tr("More"));
    m_key->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_keyAction = bar->addWidget(m_key);
    m_keyAction->setVisible(false);
    connect(m_key, &QToolButton::clicked, this, &BarPager::turn);
    bar->installEventFilter(this);
    divide();
}

bool BarPager::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_bar && (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        && m_bar->width() != m_dividedWidth)
        divide();
    if (watched == m_bar && event->type() == QEvent::LanguageChange) {
        // The window has given its buttons their texts already.
        m_key->setText(tr("More"));
        divide();
    }
    return QObject::eventFilter(watched, event);
}

QVector<QPair<int, int>> BarPager::pages(const QVector<int> &widths, int room)
{
    QVector<QPair<int, int>> pages;
    int first = 0;
    while (first < widths.size()) {
        int last = first;
        int used = widths.at(first);
        while (last + 1 < widths.size() && used + widths.at(last + 1) <= room)
            used += widths.at(++last);
        if (last + 1 == widths.size()) {
            while (first > 0 && used + widths.at(first - 1) <= room)
                used += widths.at(--first);
        }
        pages.append(qMakePair(first, last));
        first = last + 1;
    }
    return pages;
}

void BarPager::divide()
{
    m_dividedWidth = m_bar->width();
    const QStyle *style = m_bar->style();
    const int frame = 2
                      * (style->pixelMetric(QStyle::PM_ToolBarFrameWidth, nullptr, m_bar)
                         + style->pixelMetric(QStyle::PM_ToolBarItemMargin, nullptr, m_bar));
    const int room = m_bar->width() - frame;
    m_pages = pages(widths(), room);
    if (m_pages.size() > 1) {
        const int spacing = style->pixelMetric(QStyle::PM_ToolBarItemSpacing, nullptr, m_bar);
        m_pages = pages(widths(), room - m_key->sizeHint().width() - spacing);
    }
    m_page = 0;
    showPage();
}

void BarPager::turn()
{
    m_page = (m_page + 1) % m_pages.size();
    showPage();
}

void BarPager::showPage()
{
    const QPair<int, int> page = m_pages.value(m_page, qMakePair(0, m_items.size() - 1));
    for (int i = 0; i < m_items.size(); ++i)
        m_items.at(i)->setVisible(i >= page.first && i <= page.second);
    m_keyAction->setVisible(m_pages.size() > 1);
}

QVector<int> BarPager::widths() const
{
    const QStyle *style = m_bar->style();
    const int spacing = style->pixelMetric(QStyle::PM_ToolBarItemSpacing, nullptr, m_bar);
    const int separator = style->pixelMetric(QStyle::PM_ToolBarSeparatorExtent, nullptr, m_bar);
    QVector<int> widths;
    for (QAction *item : m_items) {
        const QWidget *widget = m_bar->widgetForAction(item);
        const bool isWidget = widget && !item->isSeparator();
        // A button may ask for more than its text does.
        const int own =
            isWidget ? widget->sizeHint().expandedTo(widget->minimumSize()).width() : separator;
        widths.append(own + spacing);
    }
    return widths;
}
