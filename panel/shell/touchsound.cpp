// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "shell/touchsound.h"

#include "display/platform.h"
#include "look/taparea.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace {

bool isKey(const QObject *target)
{
    const QWidget *widget = qobject_cast<const QAbstractButton *>(target);
    if (!widget)
        widget = qobject_cast<const TapArea *>(target);
    return widget && widget->isEnabled();
}

} // namespace

TouchSound::TouchSound(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

QString TouchSound::settingsKey()
{
    return QLatin1String("sounds");
}

QString TouchSound::nameOf(bool isOn)
{
    return QLatin1String(isOn ? "on" : "off");
}

QStringList TouchSound::names()
{
    return {nameOf(false), nameOf(true)};
}

bool TouchSound::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (!m_isOn || !isPress || !isKey(watched))
        return false;
    // The toolkit complains of a display without a bell.
    if (Platform::hasBell())
        QApplication::beep();
    Q_EMIT sounded();
    return false;
}
