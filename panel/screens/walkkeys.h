// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WALKKEYS_H
#define WALKKEYS_H

#include <QIcon>
#include <QObject>
#include <QVector>

class ProgramWalk;
class QSplitter;
class QToolBar;
class QToolButton;

/// The keys for a ProgramWalk: First, a page up and down, Last, and Line, which asks for one.
///
///     WalkKeys *keys = new WalkKeys(walk);
///     keys->putBeside(window);
class WalkKeys : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a walk.
    explicit WalkKeys(ProgramWalk *walk);

    /// At the right of the editor of \a window, the library's: the bars below keep their width.
    /// Where the editor is low, Line gives way first, for the read-out does the same.
    void putBeside(QSplitter *window);
    /// At the end of a bar of the library's, like its other buttons. Before its BarPager is made.
    void putInto(QToolBar *bar);

    /// In the language of now. A bar divides itself when it hears of another language, by the
    /// widths that its buttons have by then.
    void retranslate();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add(QToolButton *button, int index);
    QIcon icon(int index, bool isInBar) const;

    ProgramWalk *m_walk;
    QVector<QToolButton *> m_keys;
};

#endif // WALKKEYS_H
