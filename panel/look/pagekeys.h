// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PAGEKEYS_H
#define PAGEKEYS_H

#include "look/glyphs.h"

#include <QHBoxLayout>

class QAbstractScrollArea;
class QPushButton;
class QScrollBar;

/// The row of keys below what is read a page at a time: a page up, a page down, and what the dialog
/// adds. A key that leads nowhere is off.
///
///     PageKeys *keys = new PageKeys(table, PageKeys::oneRow);
///     QPushButton *closeKey = keys->add(tr("Close"), "close");
///     column->addLayout(keys);
class PageKeys : public QHBoxLayout
{
    Q_OBJECT

public:
    /// For a table that is scrolled by rows.
    static const int oneRow = 1;

    /// Turns \a view, which must outlive the keys. Of each page \a kept steps of the bar stay in
    /// view: the last line of a page is the first of the next.
    PageKeys(QAbstractScrollArea *view, int kept);

    /// What a key that turns a page is called where its face is a drawing or the word "Page" alone:
    /// the same on every screen.
    static QString backName() { return tr("Page up"); }
    static QString forthName() { return tr("Page down"); }

    /// One more key at the end of the row. The key is no default of its dialog.
    QPushButton *add(const QString &text, const char *objectName);
    /// A key for a second row. A word takes twice the room of a drawing.
    static QPushButton *addTo(QHBoxLayout *row, const QString &text, const char *objectName);

private:
    QPushButton *addTurn(Glyphs::Glyph glyph, const char *objectName);
    void turn(int pages);
    void showState();

    QScrollBar *m_bar;
    const int m_kept;
    QPushButton *m_backKey;
    QPushButton *m_forthKey;
};

#endif // PAGEKEYS_H
