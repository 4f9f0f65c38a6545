// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TONEMARK_H
#define TONEMARK_H

#include "base/message.h"

#include <QWidget>

class QPainter;

/// The tone of a message as a drawing on the tone's colour.
class ToneMark : public QWidget
{
    Q_OBJECT

public:
    explicit ToneMark(QWidget *parent = nullptr);

    void setTone(Message::Tone tone);
    /// Draws what setTone() draws without the tone's colour: for what is no longer urgent.
    void setQuiet(Message::Tone tone);
    /// Draws nothing, and keeps the place.
    void clear();

    /// The same drawing on \a rect of something else.
    static void draw(QPainter *painter, const QRect &rect, Message::Tone tone);

    /// Sets the property "tone" of a widget whose dress goes by it: "information", "warning",
    /// "alarm"; "none" for a widget that shows no tone.
    static void put(QWidget *widget, Message::Tone tone);
    static void putNone(QWidget *widget);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isClear = true;
    bool m_isQuiet = false;
    Message::Tone m_tone = Message::Information;
};

#endif // TONEMARK_H
