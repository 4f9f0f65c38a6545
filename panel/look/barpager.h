// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef BARPAGER_H
#define BARPAGER_H

#include <QObject>
#include <QPair>
#include <QVector>

class QAction;
class QToolBar;
class QToolButton;

/// Gives a tool bar that is wider than the panel a key that turns to its next buttons.
///
/// The toolkit's own way out, the arrow at the bar's end, cannot show buttons that were added as
/// widgets. The bar's buttons stay the bar's; the pager hides and shows them, and adds its one key
/// at the end.
class BarPager : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the bar.
    explicit BarPager(QToolBar *bar);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// First and last item of each page, for items of these widths in \a room pixels. Everything
    /// that fits beside the last items is repeated on the last page. One page if all fit.
    static QVector<QPair<int, int>> pages(const QVector<int> &widths, int room);

private:
    void divide();
    void turn();
    void showPage();
    QVector<int> widths() const;

    QToolBar *m_bar;
    QToolButton *m_key;
    QAction *m_keyAction;
    QList<QAction *> m_items;
    QVector<QPair<int, int>> m_pages;
    int m_page = 0;
    int m_dividedWidth = 0;
};

#endif // BARPAGER_H
