// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MOVEMENTLIMITS_H
#define MOVEMENTLIMITS_H

#include "screens/valuerule.h"

#include <QList>
#include <QObject>
#include <QRect>
#include <QStringList>

class MJLine;
class QLineEdit;
class TListWidget;

/// Keeps the numbers of taught movements within the limits of MachineData. The keypads of a list's
/// fields learn them as the operator touches a field. A panel's own keypad need not keep to them:
/// what it gave then goes back to what was there.
class MovementLimits : public QObject
{
    Q_OBJECT

public:
    /// A number that may not be.
    struct Fault
    {
        /// Counted from 0; -1 for none.
        int row;
        /// For the operator.
        QString text;
    };

    /// \a list has a title. \a parent keeps this object and must not outlive \a list.
    explicit MovementLimits(TListWidget *list, QObject *parent = nullptr);

    /// What the number at \a position of a movement may be. There has to be one.
    static ValueRule ruleAt(int position);
    /// The first fault in the rows of a taught program.
    static Fault firstFault(const QList<QStringList> &rows);

    /// Opens the keypad of the field that shows \a position of \a row, as a touch on that field
    /// does. \a place is what must stay visible, on the screen. The row has to be on the page; it
    /// may be closed.
    void open(int row, int position, const QRect &place);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A keypad gave a number that was not taken.
    void refused(const QString &text);
    /// A row was edited, and what may not be in it is what it was again.
    void judged(bool isTaken);

private:
    void prepare(QLineEdit *field);
    void nameFields(MJLine *line) const;
    QLineEdit *fieldAt(MJLine *line, int position) const;
    void judge(int row, const QStringList &content);
    QString takeBack(int row, const QStringList &content);

    TListWidget *m_list;
    /// The row of the field that was touched last, as it was.
    QStringList m_before;
    /// What must stay visible in the place of the field; empty for the field.
    QRect m_place;
};

#endif // MOVEMENTLIMITS_H
