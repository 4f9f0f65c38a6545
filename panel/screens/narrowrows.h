// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef NARROWROWS_H
#define NARROWROWS_H

#include <QObject>

class MJLine;
class TListWidget;

/// Divides the rows of an instruction list by what their cells show, on a panel where the library's
/// shares cut words and numbers. What a cell lacks comes from those that have more than they need.
///
/// The letters of the list are smaller there, too.
class NarrowRows : public QObject
{
    Q_OBJECT

public:
    /// Belongs to \a list, which may have a title. \a longestName is the longest of the names
    /// that instructions have in it.
    NarrowRows(TListWidget *list, const QString &longestName);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void adopt(MJLine *line) const;
    void followFields(MJLine *line);
    void fitAround();
    void showBeginning();

    TListWidget *m_list;
    const QString m_longestName;
};

#endif // NARROWROWS_H
