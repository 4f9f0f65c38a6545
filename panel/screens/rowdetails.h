// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWDETAILS_H
#define ROWDETAILS_H

#include "base/message.h"

#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

class DetailCell;
class QGridLayout;
class QLabel;

/// What the chosen row of a list holds, value by value, beside the list. A touch on a value that
/// can be changed is told.
///
///     details->setDetails(tr("Instruction 2: MoveJ"), {{tr("X"), "-6 mm", "-2000 to 2000"}});
///     connect(details, &RowDetails::touched, this, &Screen::editValue);
class RowDetails : public QWidget
{
    Q_OBJECT

public:
    struct Detail
    {
        QString name;
        QString value;
        /// What the value may be, or what is wrong with it.
        QString note;
        /// Whether the note has to be noticed.
        Message::Tone tone = Message::Information;
        /// Whether a touch changes the value.
        bool isKey = false;
        /// Whether it has a line of its own, for a long text.
        bool isWide = false;
    };

    /// \a columns is how many values stand side by side.
    explicit RowDetails(int columns, QWidget *parent = nullptr);
    ~RowDetails() override;

    /// Where \a details are none, \a heading says why.
    void setDetails(const QString &heading, const QList<Detail> &details = QList<Detail>());
    /// Where the value of that place, counted from 0, is on the screen.
    QRect placeOf(int index) const;

Q_SIGNALS:
    /// The value of that place, counted from 0.
    void touched(int index);

private:
    void makeCells(const QList<Detail> &details);

    const int m_columns;
    QLabel *m_heading;
    QGridLayout *m_grid;
    QList<DetailCell *> m_cells;
};

#endif // ROWDETAILS_H
