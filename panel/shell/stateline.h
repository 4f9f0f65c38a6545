// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STATELINE_H
#define STATELINE_H

#include "base/message.h"
#include "look/taparea.h"

class ElidedLabel;

/// A line, or two, that stays in view for as long as something is to be kept in mind. A touch asks
/// for the whole text. Hidden while there is nothing.
///
/// Of a text that is too long, what stands before its colon is shown, rather than a part of a word.
class StateLine : public TapArea
{
    Q_OBJECT

public:
    explicit StateLine(QWidget *parent = nullptr);

    /// In full.
    QString text() const { return m_text; }
    void show(const QString &text, Message::Tone tone);
    /// Where there is room for a finger.
    void setLeastHeight(int height);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void colour();
    void fit();

    QString head() const;

    ElidedLabel *m_label;
    QString m_text;
    Message::Tone m_tone = Message::Information;
    int m_leastHeight = 0;
};

#endif // STATELINE_H
