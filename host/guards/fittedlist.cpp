// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "guards/fittedlist.h"

#include "dataeditor.h"
#include "mjline.h"
#include "tlistwidget.h"

#include <QMetaObject>
#include <QResizeEvent>
#include <QScopedPointer>
#include <QScrollBar>

namespace {

TListWidget *makeList(QStringList title, QWidget *parent)
{
    return new TListWidget(title, parent);
}

/// Gives \a widget and all in it the widths of \a model, which was built alike.
void takeWidths(QWidget *widget, const QWidget *model)
{
    widget->setMinimumWidth(model->minimumWidth());
    widget->setMaximumWidth(model->maximumWidth());
    const QObjectList &own = widget->children();
    const QObjectList &others = model->children();
    for (int i = 0; i < qMin(own.size(), others.size()); ++i) {
        if (own.at(i)->isWidgetType() && others.at(i)->isWidgetType())
            takeWidths(static_cast<QWidget *>(own.at(i)),
                       static_cast<const QWidget *>(others.at(i)));
    }
}

} // namespace

FittedList::FittedList(const QStringList &title, QWidget *parent)
    : QScrollArea(parent), m_title(title), m_list(makeList(title, nullptr))
{
    // The list has pages: it is moved by itself alone, and shows no bars.
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setWidget(m_list);
    connect(m_list, SIGNAL(clicked(int)), SLOT(keepInView(int)));
}

void FittedList::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    const QSize place = viewport()->size();
    if (place.isEmpty())
        return;
    if (m_width != place.width()) {
        m_width = place.width();
        m_list->setFixedWidth(m_width);
        m_list->setSize(place);
        fitTitle();
    }
    fitPage();
}

/// The list makes no title anew: its cells get the widths of another one that it makes.
void FittedList::fitTitle()
{
    if (m_title.isEmpty())
        return;
    QStringList title = m_title;
    const QScopedPointer<QWidget> model(m_list->createWidget(title, false, true));
    QWidget *shown = m_list->itemAt(0);
    if (!model || !shown)
        return;
    takeWidths(shown, model.data());
    // The library makes the title of a wide list narrower than its cells, which then move together.
    if (MJLine *line = qobject_cast<MJLine *>(shown))
        line->dataEditor()->setFixedWidth(m_width);
}

void FittedList::fitPage()
{
    // The title is as high as a row that is not open.
    const QWidget *first = m_list->itemAt(0);
    if (!first || first->minimumHeight() <= 0)
        return;
    const int titles = m_title.isEmpty() ? 0 : 1;
    const int lines = viewport()->height() / first->minimumHeight();
    m_list->setTotalLine(qMax(1, lines - titles));
}

void FittedList::keepInView(int row)
{
    m_touched = row;
    // The row opens behind its signal.
    QMetaObject::invokeMethod(this, "moveIntoView", Qt::QueuedConnection);
}

void FittedList::moveIntoView()
{
    const QWidget *row = m_list->itemAt(m_list->getListPos(m_touched));
    if (!row)
        return;
    const int foot = row->geometry().bottom() + 1;
    verticalScrollBar()->setValue(qMax(0, foot - viewport()->height()));
}
