// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TOUCHSOUND_H
#define TOUCHSOUND_H

#include <QObject>
#include <QStringList>

/// Sounds at each touch of a key that can be pressed, keys of keypads and dialogs too, while it is
/// switched on.
///
/// The sound is the display's own bell, as QApplication::beep() has it. A desktop may have one, and
/// a panel that draws on its screen by itself has none. Then nothing is heard.
///
///     TouchSound sounds;
///     sounds.setOn(true);
class TouchSound : public QObject
{
    Q_OBJECT

public:
    /// For the whole application. Off at first.
    explicit TouchSound(QObject *parent = nullptr);

    bool isOn() const { return m_isOn; }
    void setOn(bool isOn) { m_isOn = isOn; }

    /// Under which the operator's choice is kept in the Settings.
    static QString settingsKey();
    /// "off" and "on".
    static QString nameOf(bool isOn);
    /// All that nameOf() gives, the usual one first.
    static QStringList names();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A sound was asked of the display, whether it has one or not.
    void sounded();

private:
    bool m_isOn = false;
};

#endif // TOUCHSOUND_H
