// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/livetext.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>

LiveText::LiveText(QWidget *widget, const std::function<QString()> &text, const char *property)
    : QObject(widget), m_text(text), m_property(property)
{
    widget->setProperty(m_property, m_text());
    widget->installEventFilter(this);
}

bool LiveText::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        watched->setProperty(m_property, m_text());
    return false;
}
