// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VALUEMARK_H
#define VALUEMARK_H

#include "base/message.h"

#include <QString>
#include <QWidget>

class QLineEdit;
class QPainter;

/// The unit of a value and how the value stands, in the right part of its field. Touches go to the
/// field, and the field's text ends before the mark.
class ValueMark : public QWidget
{
    Q_OBJECT

public:
    /// What a mark shows.
    struct State
    {
        enum Drawing { Unit, SwitchedOff, SwitchedOn };

        bool operator==(const State &other) const;

        /// A switch is drawn in place of the unit.
        Drawing drawing = Unit;
        QString unit;
        /// In a word or two; empty for a value with nothing to tell of.
        QString word;
        Message::Tone tone = Message::Information;
    };

    /// Belongs to \a field and follows its size.
    explicit ValueMark(QLineEdit *field);

    const State &state() const { return m_state; }
    void setState(const State &state);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();
    void paintSwitch(QPainter *painter, const QRect &cell) const;
    void paintWord(QPainter *painter, const QRect &cell) const;

    QLineEdit *m_field;
    int m_unitWidth = 0;
    State m_state;
};

#endif // VALUEMARK_H
