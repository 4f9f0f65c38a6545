// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "formwidgets.h"

#include <QPainter>

namespace {

// What moc writes for a class that adds nothing to its base.
const struct
{
    QByteArrayData data[1];
    char text[sizeof "ListWidget"];
} strings = {
    {Q_STATIC_BYTE_ARRAY_DATA_HEADER_INITIALIZER_WITH_OFFSET(int(sizeof "ListWidget") - 1,
                                                             qptrdiff(sizeof(QByteArrayData)))},
    "ListWidget",
};
const uint noMembers[] = {8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
const QMetaObject listWidgetMeta = {
    {&QWidget::staticMetaObject, strings.data, noMembers, nullptr, nullptr, nullptr}};

} // namespace

const QMetaObject *FormListWidget::metaObject() const
{
    return &listWidgetMeta;
}

DesignedListWidget::DesignedListWidget(QWidget *parent) : FormListWidget(parent)
{
    setMinimumHeight(0);
    setMaximumHeight(QWIDGETSIZE_MAX);
}

void DesignedListWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, QLatin1String("ListWidget"));
}
