// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWWATCHER_H
#define ROWWATCHER_H

#include "base/filarixhostglobal.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class TListWidget;

/// Tells of each edit that the operator makes in a list. The list takes edits without a word: a
/// host would have to compare all rows.
///
///     RowWatcher *watcher = new RowWatcher(list, this);
///     connect(watcher, SIGNAL(rowEdited(int, QStringList)), SLOT(send(int, QStringList)));
///
/// What the host writes, by setContent(), setV() and the like, is no edit.
class FILARIX_HOST_EXPORT RowWatcher : public QObject
{
    Q_OBJECT

public:
    /// \a list may go first.
    explicit RowWatcher(TListWidget *list, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The operator entered a value, maybe the same, in \a row, as the list counts them; a title is
    /// row 0. \a content is the whole row, kind first, as getContent() gives it now.
    void rowEdited(int row, const QStringList &content);

private Q_SLOTS:
    void listenToNew();
    void report(int number);

private:
    void listenTo(QObject *row);

    QPointer<TListWidget> m_list;
    QList<QPointer<QObject>> m_new;
};

#endif // ROWWATCHER_H
