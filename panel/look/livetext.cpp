// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "look/livetext.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>

LiveText::LiveText(QWidget *widget, const std::function<QString()> &text)
    : QObject(widget), m_text(text)
{
    widget->setProperty("text", m_text());
    widget->installEventFilter(this);
}

bool LiveText::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        watched->setProperty("text", m_text());
    return false;
}
