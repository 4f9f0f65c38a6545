// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ROWVIEW_H
#define ROWVIEW_H

#include "mjline.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>

/// What an operator sees of an instruction row, reached through its layouts.
class RowView
{
public:
    enum Cell { Num, Ins, Jpos, V, Z, T };

    explicit RowView(MJLine *row) : m_row(row) {}

    QWidget *cell(Cell cell) const { return m_row->firstLine()->layout()->itemAt(cell)->widget(); }

    QWidget *detailArea() const { return m_row->layout()->itemAt(1)->widget(); }
    /// Whether the row was ever opened; the fields below are there only then.
    bool isBuilt() const { return detailArea()->layout(); }
    QWidget *arrow() const { return detailArea()->layout()->itemAt(0)->widget(); }
    QWidget *detail(int k) const
    {
        return (k < 5 ? line(0)->itemAt(k) : line(1)->itemAt(k - 5))->widget();
    }
    QWidget *res() const { return line(1)->itemAt(4)->widget(); }

    static QString text(QWidget *widget)
    {
        if (QLabel *label = qobject_cast<QLabel *>(widget))
            return label->text();
        QLineEdit *edit = qobject_cast<QLineEdit *>(widget);
        return edit ? edit->text() : QString();
    }

    QString text(Cell which) const { return text(cell(which)); }
    QString detailText(int k) const { return text(detail(k)); }
    QString resText() const { return text(res()); }

private:
    QLayout *line(int i) const
    {
        return detailArea()->layout()->itemAt(1)->layout()->itemAt(i)->layout();
    }

    MJLine *m_row;
};

#endif // ROWVIEW_H
