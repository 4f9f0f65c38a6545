// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "listwidget.h"

#include <QVBoxLayout>

ListWidget::ListWidget(QWidget *parent)
    : QWidget(parent, Qt::WindowFlags()), boxLayout(nullptr), totalHeight(0), reserved(0)
{
    initializeWidget();
}

ListWidget::~ListWidget() = default;

void ListWidget::initializeWidget()
{
    boxLayout = new QVBoxLayout(this);
    boxLayout->setSpacing(0);
    boxLayout->setMargin(0);
    boxLayout->setAlignment(Qt::AlignTop);
    setFixedHeight(0);
    setLayout(boxLayout);
}

/// A row that grew after it was added, and is then removed, can leave a sum below 0.
void ListWidget::applyHeight()
{
    setFixedHeight(qMax(totalHeight, 0));
}

void ListWidget::addWidget(QWidget *widget)
{
    if (!widget)
        return;
    totalHeight += widget->height();
    boxLayout->addWidget(widget);
    applyHeight();
}

void ListWidget::insertWidget(int index, QWidget *widget)
{
    if (!widget)
        return;
    totalHeight += widget->height();
    boxLayout->insertWidget(index, widget);
    applyHeight();
}

QWidget *ListWidget::removeWidget(int index)
{
    QWidget *widget = itemAt(index);
    removeWidget(widget);
    return widget;
}

void ListWidget::removeWidget(QWidget *widget)
{
    if (!widget)
        return;
    totalHeight -= widget->height();
    boxLayout->removeWidget(widget);
    applyHeight();
}

void ListWidget::takeAt(int index)
{
    delete removeWidget(index);
}

void ListWidget::takeAt(QWidget *widget)
{
    removeWidget(widget);
    delete widget;
}

int ListWidget::indexof(QWidget *widget) const
{
    return boxLayout->indexOf(widget);
}

QWidget *ListWidget::itemAt(int index) const
{
    if (index < 0 || index >= count())
        return nullptr;
    return boxLayout->itemAt(index)->widget();
}

int ListWidget::height() const
{
    return totalHeight;
}

int ListWidget::count() const
{
    return boxLayout->count();
}

void ListWidget::setContentsMargins(int left, int top, int right, int bottom)
{
    QWidget::setContentsMargins(qMax(left, 0), qMax(top, 0), qMax(right, 0), qMax(bottom, 0));
}

void ListWidget::clear()
{
    while (count() >= 1)
        removeWidget(0);
    setVisible(false);
}

void ListWidget::recalculateHeight()
{
    totalHeight = 0;
    for (int i = 0; i < count(); ++i)
        totalHeight += itemAt(i)->height();
    applyHeight();
}
