// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LETTERS_H
#define LETTERS_H

#include <QObject>
#include <QSize>
#include <QString>

class QWidget;

/// Brings the texts of a widget and of all in it to the size that the operator has chosen, and
/// keeps them there. Where the room is short the texts grow as far as it lasts, all alike. No text
/// is cut for being large, and none is smaller than at 100 percent.
///
/// What the library makes keeps the size that its design gives it, and what has Letters of its own
/// is left to them.
///
///     new Letters(strip);           // lives with the strip
///     Letters::grow(&dialog, room); // once, for a dialog that opens
class Letters : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a container, whose layout says what has room. Its parent lets it become \a
    /// higher by so many pixels than at 100 percent.
    explicit Letters(QWidget *container, int higher = 0);

    /// In percent of the usual size; textSize() where there is room for it.
    int percent() const { return m_percent; }

    /// Lets a dialog grow with its texts, to \a room at the most. Its layout is made.
    static void grow(QWidget *dialog, const QSize &room);
    /// Whether \a widget is one of the library's windows and lists, or a keypad.
    static bool isForeign(const QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();
    void reset();

    QWidget *m_container;
    const int m_higher;
    int m_percent = 100;
    QString m_fitted;
    bool m_isFitting = false;
};

#endif // LETTERS_H
